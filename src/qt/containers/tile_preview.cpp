#include "qt/containers/tile_preview.h"

#include "qt/appearance/qt_canvas.h"

#include <QPaintEvent>
#include <QPainter>

namespace quill {
namespace {

constexpr int side = 48, iconSide = 32; // pixels
constexpr float corner = 6 * TwipsPerPixel;

} // namespace

TilePreview::TilePreview(Looks& looks) : looks_(looks) {
    setFixedSize(side, side);
}

void TilePreview::Show(const IconSource& icon, Color back) {
    icon_ = icon;
    back_ = back;
    update();
}

void TilePreview::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    QtCanvas canvas(painter, *this, event->region(), looks_);
    constexpr float all = side * TwipsPerPixel, icon = iconSide * TwipsPerPixel, rim = (all - icon) / 2;
    canvas.RoundRect({0, 0, all, all}, corner, back_, {}, 1);
    canvas.Icon(icon_, {rim, rim, icon, icon});
}

} // namespace quill
