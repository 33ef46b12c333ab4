// Convert: between the logic's plain types and Qt's. Twips become device-independent pixels here and nowhere
// else: 15 twips a pixel, edges rounded, so that neighbours meet.
#pragma once

#include "platform/geometry.h"

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
inline QColor Ink(Color color, float opacity = 1) {
    return QColor(RedOf(color), GreenOf(color), BlueOf(color), qRound(opacity * 255));
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
