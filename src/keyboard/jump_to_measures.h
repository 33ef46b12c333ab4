// The measures of the Keyboard Launcher's box, twips. It is centred by its own height, and what is told
// about it while the tips are shown hangs below. A workspace that is narrower makes the box as narrow.
#pragma once

#include "platform/geometry.h"

#include <string>
#include <vector>

namespace quill {

struct frmMain;

inline constexpr float JumpToWidth = 420 * TwipsPerPixel;
inline constexpr float JumpToHeight = 144 * TwipsPerPixel;

// Where the box lies on picBack, in its middle. To be asked again when KeyboardState::TipShown changes: the
// tips make it higher, downwards, and on a low workspace it goes up for them.
Rect PlaceOfJumpTo(const frmMain& Main);
// Where the tips are painted, on the box's surface; empty while none are, or the list lies there.
Rect PlaceOfJumpToTips(const frmMain& Main);
struct JumpToTipLine {
    Rect Place; // on the box's surface
    std::string Text;
};
// The tips line by line; the first is their heading, the last says where they are turned off.
std::vector<JumpToTipLine> LayJumpToTips(const frmMain& Main, const Rect& card);
// The list below the field, or above the box where there is more room, on picBack. It has room for whole
// rows, at most ten of them; empty when there is nothing to show.
Rect PlaceOfSearchList(const frmMain& Main);

inline constexpr float SearchRowHeight = 28 * TwipsPerPixel;
inline constexpr float SearchListInset = 5 * TwipsPerPixel; // between the list's edge and its rows
inline constexpr float JumpToTextPoints = 11;               // the name line and the field
inline constexpr float JumpToSmallPoints = 9;               // all else

} // namespace quill
