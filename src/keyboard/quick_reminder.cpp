#include "keyboard/quick_reminder.h"

#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/text_values.h"
#include "platform/questions.h"

#include <algorithm>

namespace quill {
namespace {

constexpr std::size_t mostDigits = 2;

void Tell(frmMain& Main, std::string_view english) {
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, english), BoxOk | BoxInformation, ProgramName);
}

int NumberOf(std::string_view digits) {
    int number = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9') return 0;
        number = number * 10 + (digit - '0');
    }
    return number;
}

} // namespace

std::optional<QuickReminder> ReadQuickReminder(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const auto blank = text.find(' ');
    if (blank == std::string_view::npos || blank > mostDigits) return {};
    const int minutes = NumberOf(text.substr(0, blank));
    if (minutes == 0) return {};
    return QuickReminder{minutes, std::string(Trimmed(text.substr(blank)))};
}

bool ScheduleQuickReminder(frmMain& Main, std::string_view text) {
    if (!ReadQuickReminder(text))
        Tell(Main, "To schedule a Quick Reminder use: \n\nr ## reminder\n\nExample: r 15 Be Happy!");
    else
        Tell(Main, "Reminders can't be made yet. Nothing was scheduled.");
    return false;
}

} // namespace quill
