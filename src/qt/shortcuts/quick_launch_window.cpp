#include "qt/shortcuts/quick_launch_window.h"

#include "core/frmMain.h"
#include "qt/core/accessible_surface.h"
#include "qt/core/attachment.h"
#include "qt/core/keys.h"
#include "qt/dock/native_window.h"
#include "shortcuts/speed_launch.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QWidget>

namespace quill {
namespace {

// Sees the events of the window, and while it shows those of the whole program.
class QuickLaunchKeys final : public QObject {
public:
    QuickLaunchKeys(QWidget& window, const Attachment& attached)
        : QObject(&window), window_(window), attached_(attached) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (object == &window_ && Follow(*event)) return true;
        if (event->type() != QEvent::KeyPress || !object->isWidgetType() || !IsOpen()) return false;
        return Press(*static_cast<QKeyEvent*>(event));
    }

private:
    bool Follow(QEvent& event) {
        if (event.type() == QEvent::Show) qApp->installEventFilter(this);
        if (event.type() == QEvent::Hide) qApp->removeEventFilter(this);
        if (event.type() != QEvent::Close) return false;
        if (attached_.Alive()) CloseSpeedLaunch(*attached_.Main);
        event.ignore();
        return true;
    }

    bool IsOpen() const {
        const bool asked =
            QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
        return attached_.Alive() && attached_.Main->Links.QuickLaunch.Loaded && !asked;
    }

    // The key that has opened the window is held a little longer, and must not close it again.
    bool Press(const QKeyEvent& event) {
        const KeyEvent key = KeyOf(event, TypingInto::Workspace);
        const bool arrow = key.Code == KeyUp || key.Code == KeyDown;
        if (event.isAutoRepeat() && !arrow) return true;
        QuickLaunch_KeyDown(*attached_.Main, key);
        if (arrow) TellSelected();
        return true;
    }

    // Whoever does not see the plate hears its row.
    void TellSelected() {
        if (!QAccessible::isActive()) return;
        auto* surface = dynamic_cast<AccessibleSurface*>(QAccessible::queryAccessibleInterface(&window_));
        if (surface == nullptr) return;
        surface->Follow();
        const int row = attached_.Main->Links.QuickLaunch.Selected;
        QAccessibleInterface* element = surface->Element({ElementKind::lblSpeedLaunch, row});
        if (element == nullptr || !element->isValid()) return;
        QAccessibleEvent event(element, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }

    QWidget& window_;
    const Attachment& attached_;
};

} // namespace

void MakeQuickLaunchWindow(QWidget& window, const Attachment& attached) {
    qt::MakeWorkspaceWindow(window);
    window.setFocusPolicy(Qt::StrongFocus);
    new QuickLaunchKeys(window, attached);
}

} // namespace quill
