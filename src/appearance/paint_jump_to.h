// The colours of the Keyboard Launcher's box, for what paints it and for the field and the list that lie over
// it. All of them come from the workspace's own two colours.
#pragma once

#include "core/frmMain.h"

namespace quill {

struct JumpToColors {
    Color Ground = 0;
    Color Line = 0;  // around the box
    Color Field = 0; // the ground of what is typed, and of the list
    Color Ink = 0;   // read on Ground and on Field
    Color Soft = 0;  // the same for what says less
    Color Plate = 0; // under what is highlighted
    Color PlateInk = 0;
    bool operator==(const JumpToColors&) const = default;
};
JumpToColors ColorsOfJumpTo(const frmMain& Main);

inline constexpr float JumpToFieldCorner = 6 * TwipsPerPixel;

// Line ends and what else would break a line become blanks: every text of the box is one line.
std::string OnOneLine(std::string_view text);

} // namespace quill
