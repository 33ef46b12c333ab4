#include "qt/containers/color_button.h"

#include "qt/core/convert.h"

#include <QPainter>
#include <QPixmap>

namespace quill {
namespace {

constexpr int side = 16; // pixels

} // namespace

void ColorButton::Show(Color color) {
    const qreal scale = devicePixelRatioF();
    QPixmap swatch(QSize(side, side) * scale);
    swatch.setDevicePixelRatio(scale);
    swatch.fill(Ink(color));
    QPainter painter(&swatch);
    painter.setPen(palette().color(QPalette::ButtonText)); // the edge is seen on any ground
    painter.drawRect(QRectF(0.5, 0.5, side - 1, side - 1));
    painter.end();
    setIcon(swatch);
    setAccessibleDescription(Ink(color).name());
}

} // namespace quill
