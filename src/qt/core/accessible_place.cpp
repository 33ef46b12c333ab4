#include "qt/core/accessible_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace quill {
namespace {

// A screen's upper left corner is the same in both kinds of pixels.
struct Scaling {
    QPointF Corner;
    qreal Factor = 1;
};

Scaling ScalingOf(const QWidget& widget) {
    if (QGuiApplication::platformName() != QLatin1String("xcb") || widget.screen() == nullptr) return {};
    return {QPointF(widget.screen()->geometry().topLeft()), widget.screen()->devicePixelRatio()};
}

} // namespace

QRect ToldRect(const QWidget& widget, const QRect& place) {
    const auto [corner, factor] = ScalingOf(widget);
    const QPointF at = QPointF(widget.mapToGlobal(place.topLeft())) - corner;
    return {(corner + at * factor).toPoint(), (QSizeF(place.size()) * factor).toSize()};
}

QPoint PlaceOnWidget(const QWidget& widget, QPoint told) {
    const auto [corner, factor] = ScalingOf(widget);
    const QPointF at = (QPointF(told) - corner) / factor + corner;
    return widget.mapFromGlobal(QPoint(static_cast<int>(at.x()), static_cast<int>(at.y())));
}

} // namespace quill
