// clsShortcut: the record of a shortcut. It holds what has no element on the screen; caption, colour on
// screen and place live in the ShortcutView of the same index.
#pragma once

#include "platform/geometry.h"

#include <cstdint>
#include <string>

namespace quill {

inline constexpr int TypeUrl = 1;  // ShortcutType of a web address
inline constexpr int TypeFile = 2; // of a file, folder or command

struct clsShortcut {
    bool Selected = false; // in the multi-selection; never saved
    bool PromptParameters = false;
    std::uint8_t SpeedLaunch = 0; // digit, 0 = none
    std::int16_t RunIn = 1;       // 1 normal window, 2 minimised, 3 maximised; passed on unchanged
    std::string StartIn;
    std::string Path;        // target; may begin with the drive marker "@"
    std::string FullCaption; // the name in full
    std::int16_t ShortcutType = TypeFile;
    std::string Parameters;
    bool FontBold = false;
    quill::Color Color = -1; // -1: the default of the parent
    std::int16_t FontSize = 10;
    bool Admin = false;
    bool Confirm = false;
    bool Command = false;
    bool TagHidden = false; // hidden by a tag view; never saved
    bool TagStart = false;
    std::string Tip;
    std::string Icon; // empty: the target's own
    std::string Tags; // separated by commas
};

} // namespace quill
