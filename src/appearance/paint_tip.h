// The looks of frmTip: how its text is laid, and how it is painted. Twips from the window's corner.
#pragma once

#include "core/frmMain.h"
#include "platform/drawing.h"

#include <string>

namespace quill {

inline constexpr float TipCorner = 6 * TwipsPerPixel;

// The container's name above the text; the title's tip has none.
struct TipLayout {
    Size Whole;
    Rect Head; // of no height without a name
    Rect Text;
};
// Laid for a text, no higher than told; what does not fit is cut.
TipLayout LayTip(const frmMain& Main, const std::string& text, float highest);
void PaintTip(const frmMain& Main, Size size, Canvas& canvas);

} // namespace quill
