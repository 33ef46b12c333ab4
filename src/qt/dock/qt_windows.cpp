#include "qt/dock/qt_windows.h"

#include "core/handlers.h"
#include "qt/core/convert.h"
#include "qt/core/stage.h"
#include "qt/dock/edge_window.h"
#include "qt/dock/native_window.h"
#include "qt/dock/work_area.h"
#include "qt/dock/x11.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace quill {
namespace {

constexpr double solid = 255;

Qt::WindowStates StatesOf(WindowState state) {
    if (state == WindowState::Minimized) return Qt::WindowMinimized;
    return state == WindowState::Maximized ? Qt::WindowMaximized : Qt::WindowNoState;
}

bool IsEdge(WindowId window) {
    return window == MiniDockWindow || window == MiniToolbarWindow;
}

} // namespace

void QtWindows::Place(WindowId window, const Rect& place) {
    if (window == MainWindow)
        display_.Get().Stage.Main().PlaceWindow(PixelRect(place));
    else if (QWidget* widget = Widget(window))
        qt::PlaceAt(*widget, PixelRect(place));
}

void QtWindows::Show(WindowId window, Activate activate) {
    QWidget* widget = Widget(window);
    if (widget == nullptr) return;
    if (window == MainWindow) display_.Get().Stage.Drain();
    const bool appears = !widget->isVisible();
    widget->show();
    if (appears) widget->repaint(); // while the window manager is still busy with the window
    if (activate == Activate::Yes) qt::TakeFocus(*widget);
}

void QtWindows::Hide(WindowId window) {
    if (QWidget* widget = Widget(window)) widget->hide();
}

void QtWindows::SetState(WindowId window, WindowState state) {
    if (QWidget* widget = Widget(window)) widget->setWindowState(StatesOf(state));
}

void QtWindows::SetOpacity(WindowId window, int alpha) {
    if (QWidget* widget = Widget(window)) qt::SetOpacity(*widget, std::clamp(alpha, 0, 255) / solid);
}

void QtWindows::SetWindowOnTop(WindowId window, bool topMost) {
    QWidget* widget = Widget(window);
    if (widget == nullptr) return;
    if (IsEdge(window))
        qt::KeepOnTop(*widget); // they are nowhere else
    else
        qt::SetOnTop(*widget, topMost);
}

void QtWindows::SetTaskbarEntry(WindowId window, bool shown) {
    if (QWidget* widget = Widget(window)) qt::SetTaskbarEntry(*widget, shown);
}

void QtWindows::SetForegroundWindow(WindowId window) {
    if (QWidget* widget = Widget(window)) qt::TakeFocus(*widget);
}

bool QtWindows::IsForeground(WindowId window) const {
    const QWidget* widget = Widget(window);
    return widget != nullptr && qt::HasForeground(*widget);
}

void QtWindows::GiveForegroundBack(WindowId window) {
    QWidget* widget = Widget(window);
    if (widget == nullptr || !qt::HasForeground(*widget)) return;
    if (const auto other = TopmostOfOthers(); other != 0) qt::GiveForegroundTo(other, *widget);
}

void QtWindows::RaiseWindow(WindowId window) {
    if (QWidget* widget = Widget(window)) qt::RaiseWindow(*widget);
}

std::vector<StackedWindow> QtWindows::Stacking() const {
    std::vector<DesktopWindows::Own> ours;
    for (const WindowId name : {MainWindow, MiniDockWindow, MiniToolbarWindow}) {
        const QWidget* widget = display_.Get().Stage.Known(name);
        if (widget != nullptr && widget->isVisible())
            ours.push_back({static_cast<qt::x11::WindowId>(widget->internalWinId()), name});
    }
    return others_.Stacking(ours);
}

bool QtWindows::IsFullScreenAt(Point place) const {
    const QPoint pixel = PixelPoint(place);
    const QScreen* screen = QGuiApplication::screenAt(pixel);
    if (screen == nullptr || !qt::x11::IsPresent()) return false;
    return IsCoveredAt(DevicePoint(*screen, pixel), DeviceRect(*screen));
}

void QtWindows::BeginMove(WindowId window) {
    BeginDrag(window, 0);
}

void QtWindows::BeginResize(WindowId window, int edges) {
    if (edges != 0) BeginDrag(window, edges);
}

void QtWindows::BeginDrag(WindowId window, int edges) {
    if (window != MainWindow) return;
    drag_.Begin(display_.Get().Stage.Main(), edges, [this](const QRect& place) {
        if (!attached_.Alive()) return;
        display_.Get().Stage.Main().PlaceWindow(place);
        Form_Moved(*attached_.Main, TwipRect(place));
        display_.Get().Stage.Drain();
    });
}

std::vector<Monitor> QtWindows::Monitors() const {
    std::vector<Monitor> monitors;
    const QScreen* primary = QGuiApplication::primaryScreen();
    for (const QScreen* screen : QGuiApplication::screens()) {
        const Monitor monitor{TwipRect(screen->geometry()), TwipRect(WorkAreaOfScreen(*screen))};
        monitors.insert(screen == primary ? monitors.begin() : monitors.end(), monitor);
    }
    if (monitors.empty()) monitors.push_back({{0, 0, 1024 * TwipsPerPixel, 768 * TwipsPerPixel}, {}});
    return monitors;
}

Point QtWindows::GetCursorPos() const {
    return TwipPoint(QCursor::pos());
}

void QtWindows::SetCursorPos(Point place) {
    QCursor::setPos(PixelPoint(place));
}

void QtWindows::ShowCursor(bool shown) {
    if (shown)
        QGuiApplication::restoreOverrideCursor();
    else
        QGuiApplication::setOverrideCursor(Qt::BlankCursor);
}

void QtWindows::ShowBusy(bool busy) {
    if (busy == std::exchange(busy_, busy)) return;
    if (busy)
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

QWidget* QtWindows::Widget(WindowId window) const {
    return display_.Get().Stage.Window(window);
}

} // namespace quill
