#include "qt/dock/main_widget.h"

#include "core/frmMain.h"
#include "core/handlers.h"
#include "qt/core/convert.h"
#include "qt/core/keys.h"
#include "qt/core/surface_widget.h"
#include "qt/dock/native_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimerEvent>

namespace quill {
namespace {

constexpr int settleTime = 150; // milliseconds; a window in flight tells old places

WindowState StateOf(Qt::WindowStates states) {
    if (states.testFlag(Qt::WindowMinimized)) return WindowState::Minimized;
    return states.testFlag(Qt::WindowMaximized) ? WindowState::Maximized : WindowState::Normal;
}

} // namespace

MainWidget::MainWidget(const Attachment& attached) : attached_(attached) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QString::fromLatin1(ProgramName));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    qt::MakeWorkspaceWindow(*this);
}

void MainWidget::PlaceWindow(const QRect& place) {
    placed_ = place;
    settling_.stop();
    qt::PlaceAt(*this, place);
}

void MainWidget::paintEvent(QPaintEvent* event) {
    if (!attached_.Alive()) return;
    QPainter painter(this);
    for (const QRect& part : event->region()) painter.fillRect(part, Ink(attached_.Main->View.FrameColor));
}

void MainWidget::keyPressEvent(QKeyEvent* event) {
    const bool used =
        attached_.Alive() && Form_KeyDown(*attached_.Main, KeyOf(*event, TypingInto::Workspace));
    event->setAccepted(used);
    if (used && OnKeyUsed) OnKeyUsed();
}

// The frame around picBack counts as the workspace, so that its grips reach to the window's very edge.
void MainWidget::mousePressEvent(QMouseEvent* event) {
    if (attached_.Alive()) MouseDown(*attached_.Main, {}, MouseOf(*event, BackCorner()));
}

void MainWidget::mouseMoveEvent(QMouseEvent* event) {
    if (attached_.Alive()) MouseMove(*attached_.Main, {}, MouseOf(*event, BackCorner()));
}

void MainWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (attached_.Alive()) MouseUp(*attached_.Main, {}, MouseOf(*event, BackCorner()));
}

void MainWidget::moveEvent(QMoveEvent*) {
    Watch();
}

void MainWidget::resizeEvent(QResizeEvent*) {
    Watch();
}

void MainWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || !attached_.Alive()) return;
    Form_StateChanged(*attached_.Main, StateOf(windowState()));
}

void MainWidget::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (attached_.Alive()) Form_Closing(*attached_.Main);
}

void MainWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() != settling_.timerId()) return QWidget::timerEvent(event);
    settling_.stop();
    if (geometry() == placed_ || !attached_.Alive() || !isVisible() || isMinimized()) return;
    placed_ = geometry();
    Form_Moved(*attached_.Main, TwipRect(placed_));
}

void MainWidget::Watch() {
    if (geometry() != placed_ && isVisible()) settling_.start(settleTime, this);
}

QPointF MainWidget::BackCorner() const {
    const auto& back = attached_.Main->View.picBack.Place;
    return PixelPoint({back.Left, back.Top});
}

} // namespace quill
