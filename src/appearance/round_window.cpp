#include "appearance/round_window.h"

#include "platform/system_colors.h"

#include <algorithm>

namespace quill {

namespace {

float Corner(float radius, const Rect& place) {
    return std::clamp(radius, 0.0F, std::min(place.Width, place.Height) / 2);
}

} // namespace

void RoundWindow(Canvas& canvas, const Rect& Element, float Radius, int FrameX, int FrameY) {
    const float x = static_cast<float>(FrameX) * TwipsPerPixel,
                y = static_cast<float>(FrameY) * TwipsPerPixel;
    const Rect region{Element.Left, Element.Top, std::max(0.0F, Element.Width - x),
                      std::max(0.0F, Element.Height - y)};
    const Rect inside{region.Left + x, region.Top + y, std::max(0.0F, region.Width - 2 * x),
                      std::max(0.0F, region.Height - 2 * y)};
    const float radius = Radius / 2 * TwipsPerPixel;
    if (FrameX > 0 || FrameY > 0)
        canvas.RoundRect(region, Corner(radius, region), CodeOf(SystemColor::WindowBackground), {});
    canvas.PushClip(inside, Corner(radius - std::max(x, y), inside));
}

} // namespace quill
