#include "qt/core/convert.h"

#include <QGuiApplication>
#include <QPalette>

namespace quill {
namespace {

QPalette::ColorRole RoleOf(Color code) {
    switch (static_cast<SystemColor>(code & 0xFF)) {
    case SystemColor::Window:
        return QPalette::Base;
    case SystemColor::WindowText:
        return QPalette::Text;
    case SystemColor::ButtonFace:
        return QPalette::Button;
    case SystemColor::ButtonText:
        return QPalette::ButtonText;
    case SystemColor::WindowBackground:
        break;
    }
    return QPalette::Window;
}

} // namespace

Color ColorOfDesktop(Color code) {
    const QColor color = QGuiApplication::palette().color(RoleOf(code));
    return Rgb(color.red(), color.green(), color.blue());
}

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
