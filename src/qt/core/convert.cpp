#include "qt/core/convert.h"

namespace quill {

QRect PixelRect(const Rect& place) {
    const QPoint corner = PixelPoint({place.Left, place.Top});
    const QPoint end = PixelPoint({place.Right(), place.Bottom()});
    return {corner.x(), corner.y(), end.x() - corner.x(), end.y() - corner.y()};
}

Rect TwipRect(const QRect& place) {
    const auto twips = [](int pixels) { return static_cast<float>(pixels) * TwipsPerPixel; };
    return {twips(place.x()), twips(place.y()), twips(place.width()), twips(place.height())};
}

} // namespace quill
