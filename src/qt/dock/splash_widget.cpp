#include "qt/dock/splash_widget.h"

#include "appearance/paint.h"
#include "core/frmMain.h"
#include "qt/appearance/looks.h"
#include "qt/appearance/qt_canvas.h"
#include "qt/core/convert.h"

#include <QPainter>

namespace quill {

SplashWidget::SplashWidget(const Attachment& attached, Looks& looks)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      attached_(attached), looks_(looks) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(QString::fromLatin1(ProgramName));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground); // its corners are round
}

void SplashWidget::paintEvent(QPaintEvent*) {
    if (!attached_.Alive()) return;
    QPainter painter(this);
    QtCanvas canvas(painter, *this, QRegion(rect()), looks_);
    const Rect whole = TwipRect(rect());
    PaintSplash(*attached_.Main, {whole.Width, whole.Height}, canvas);
}

} // namespace quill
