// Convert: between the logic's plain types and Qt's. Twips become device-independent pixels here and nowhere
// else: 15 twips a pixel, edges rounded, so that neighbours meet.
#pragma once

#include "platform/geometry.h"
#include "platform/system_colors.h"

#include <QColor>
#include <QPointF>
#include <QRect>
#include <QString>

#include <string>
#include <string_view>

namespace quill {

inline QString Text(std::string_view bytes) {
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}
inline std::string Bytes(const QString& text) {
    return text.toStdString();
}
Color ColorOfDesktop(Color code); // a system colour as it is now
inline QColor Ink(Color color, float opacity = 1) {
    const Color shown = IsSystemColor(color) ? ColorOfDesktop(color) : color;
    return QColor(RedOf(shown), GreenOf(shown), BlueOf(shown), qRound(opacity * 255));
}
inline QPoint PixelPoint(Point place) {
    return {qRound(place.X / TwipsPerPixel), qRound(place.Y / TwipsPerPixel)};
}
inline Point TwipPoint(QPointF place) {
    return {static_cast<float>(place.x()) * TwipsPerPixel, static_cast<float>(place.y()) * TwipsPerPixel};
}

QRect PixelRect(const Rect& place);
Rect TwipRect(const QRect& place);

} // namespace quill
