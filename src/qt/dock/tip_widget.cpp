#include "qt/dock/tip_widget.h"

#include "appearance/paint_tip.h"
#include "core/frmMain.h"
#include "qt/appearance/looks.h"
#include "qt/appearance/qt_canvas.h"
#include "qt/core/convert.h"
#include "qt/dock/x11.h"

#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <QResizeEvent>

namespace quill {

TipWidget::TipWidget(const Attachment& attached, Looks& looks)
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus),
      attached_(attached), looks_(looks) {
    setObjectName(QStringLiteral("frmTip"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_TranslucentBackground); // its corners are round
}

// Where nothing mixes windows with what lies behind them, the corners are cut off.
void TipWidget::resizeEvent(QResizeEvent*) {
    if (qt::x11::HasCompositor()) return clearMask();
    QPainterPath shape;
    shape.addRoundedRect(rect(), TipCorner / TwipsPerPixel, TipCorner / TwipsPerPixel);
    setMask(QRegion(shape.toFillPolygon().toPolygon()));
}

void TipWidget::paintEvent(QPaintEvent*) {
    if (!attached_.Alive()) return;
    QPainter painter(this);
    QtCanvas canvas(painter, *this, QRegion(rect()), looks_);
    const Rect whole = TwipRect(rect());
    PaintTip(*attached_.Main, {whole.Width, whole.Height}, canvas);
}

} // namespace quill
