// RoundWindow: a window with rounded corners. On this system a window is cut by what is painted on it: what
// lies outside the region stays as it was.
#pragma once

#include "platform/drawing.h"

namespace quill {

// The region begins in the element's corner and is as large as the element, less the frame; Radius is the
// axis, in pixels, of the ellipse in its corners, which makes half of it their radius. The frame is painted
// once, inside the region and in the window background's colour, FrameX pixels wide at the sides, FrameY
// above and below; 0 by 0 is none. From here to the canvas's PopClip all that is painted stays inside of the
// frame.
void RoundWindow(Canvas& canvas, const Rect& Element, float Radius, int FrameX, int FrameY);

} // namespace quill
