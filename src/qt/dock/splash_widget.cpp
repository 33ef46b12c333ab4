#include "qt/dock/splash_widget.h"

#include "appearance/paint.h"
#include "appearance/palette.h"
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

SplashWidget::SplashWidget(const Attachment& attached, Looks& looks)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      attached_(attached), looks_(looks) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QString::fromLatin1(ProgramName));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground); // its corners are round
}

// Where nothing mixes windows with what lies behind them, the corners are cut off.
void SplashWidget::resizeEvent(QResizeEvent*) {
    if (qt::x11::HasCompositor()) return;
    constexpr double radius = CornerRadius / TwipsPerPixel;
    QPainterPath shape;
    shape.addRoundedRect(rect(), radius, radius);
    setMask(QRegion(shape.toFillPolygon().toPolygon()));
}

void SplashWidget::paintEvent(QPaintEvent*) {
    if (!attached_.Alive()) return;
    QPainter painter(this);
    QtCanvas canvas(painter, *this, QRegion(rect()), looks_);
    const Rect whole = TwipRect(rect());
    PaintSplash(*attached_.Main, {whole.Width, whole.Height}, canvas);
}

} // namespace quill
