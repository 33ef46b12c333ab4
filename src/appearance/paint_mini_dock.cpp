// The bar that a docked workspace leaves at its edge: one colour, another one while it flashes.
#include "appearance/paint_parts.h"

namespace quill {

// A little more than the bar, so that none of a pixel at its far edges is left.
void PaintMiniDock(const frmMain& Main, Canvas& canvas) {
    const auto& bar = Main.Dock.MiniDock;
    canvas.FillRect({0, 0, bar.Place.Width + TwipsPerPixel, bar.Place.Height + TwipsPerPixel}, bar.BackColor);
}

} // namespace quill
