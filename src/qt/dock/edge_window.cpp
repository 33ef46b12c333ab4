#include "qt/dock/edge_window.h"

#include "qt/dock/x11.h"

#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>

namespace quill::qt {
namespace {

constexpr std::uint32_t stateAdd = 1, sourcePager = 2;
constexpr std::uint32_t allDesktops = 0xFFFFFFFF;
constexpr int lookAgain = 250; // milliseconds after it was shown

x11::WindowId Id(const QWidget& widget) {
    return x11::IsPresent() ? static_cast<x11::WindowId>(widget.internalWinId()) : 0;
}

// The window manager forgets a window that is hidden, and reads what it is when it is shown.
class EdgeWindow final : public QObject {
public:
    explicit EdgeWindow(QWidget& widget) : QObject(&widget), widget_(widget) {
        widget.winId(); // the native window must exist before its type can be written
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (object == &widget_ && event->type() == QEvent::Show) TellKind(), LookAgain();
        return false;
    }

private:
    // A dock, since only docks are left where they are put. Whatever desktop a person goes to, it is there.
    void TellKind() {
        const auto window = Id(widget_);
        x11::WriteAtoms(window, "_NET_WM_WINDOW_TYPE", {"_NET_WM_WINDOW_TYPE_DOCK"});
        x11::WriteAtoms(window, "_NET_WM_STATE",
                        {"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_STICKY", "_NET_WM_STATE_SKIP_TASKBAR",
                         "_NET_WM_STATE_SKIP_PAGER"});
        x11::WriteNumbers(window, "_NET_WM_DESKTOP", {allDesktops});
    }

    // A window manager that is just taking the window may leave the toolkit with a place that was true for a
    // moment only; then assistive technology and tips would look for it there.
    void LookAgain() {
        QTimer::singleShot(lookAgain, this, [this] {
            if (widget_.isVisible()) x11::TellPlace(Id(widget_));
        });
    }

    QWidget& widget_;
};

} // namespace

void MakeEdgeWindow(QWidget& window) {
    window.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                          Qt::WindowDoesNotAcceptFocus);
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    new EdgeWindow(window);
}

void KeepOnTop(QWidget& window) {
    x11::TellWindowManager(Id(window), "_NET_WM_STATE",
                           {stateAdd, x11::Atom("_NET_WM_STATE_ABOVE"), 0, sourcePager});
}

} // namespace quill::qt
