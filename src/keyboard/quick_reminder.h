// Quick Reminder: "15 Be Happy!" behind the prefix of the Keyboard Launcher.
#pragma once

#include "core/frmMain.h"

#include <optional>
#include <string>
#include <string_view>

namespace quill {

struct QuickReminder {
    int Minutes = 0; // 1 to 99
    std::string Text;
};
// What stands behind "r ", untrimmed at its end: "15 " has a blank and an empty text. Nothing for bad syntax.
std::optional<QuickReminder> ReadQuickReminder(std::string_view text);
// False: refused, the usage was shown, and the box is to keep its text. Reminders cannot be made yet; a good
// one says so and is refused too.
bool ScheduleQuickReminder(frmMain& Main, std::string_view text);

} // namespace quill
