#include "qt/core/accessible_desk.h"

#include "core/frmMain.h"
#include "keyboard/jump_to.h"
#include "qt/core/accessible_surface.h"
#include "qt/core/accessible_window.h"
#include "qt/core/surface_widget.h"
#include "qt/dock/main_widget.h"

#include <QGuiApplication>
#include <QTimer>

#include <utility>

namespace quill {
namespace {

QAccessibleInterface* InterfaceFor(const QString&, QObject* object) {
    if (auto* surface = dynamic_cast<SurfaceWidget*>(object)) return new AccessibleSurface(*surface);
    if (auto* main = dynamic_cast<MainWidget*>(object)) return new AccessibleWindow(*main);
    return nullptr;
}

AccessibleSurface* InterfaceOf(SurfaceWidget* surface) {
    return surface == nullptr
               ? nullptr
               : dynamic_cast<AccessibleSurface*>(QAccessible::queryAccessibleInterface(surface));
}

} // namespace

AccessibleDesk::AccessibleDesk(const Attachment& attached, SurfaceFinder find)
    : attached_(attached), find_(std::move(find)) {
    QAccessible::installFactory(&InterfaceFor); // the toolkit asks for interfaces before anybody listens
    QAccessible::installActivationObserver(this);
    if (QAccessible::isActive()) accessibilityActiveChanged(true);
}

AccessibleDesk::~AccessibleDesk() {
    QAccessible::removeActivationObserver(this);
    QAccessible::removeFactory(&InterfaceFor);
}

// The window that comes back from a box has the keyboard as a whole; the element that has it is told again.
void AccessibleDesk::accessibilityActiveChanged(bool active) {
    QObject::disconnect(qGuiApp, nullptr, &signals_, nullptr);
    if (!active) return;
    FollowAll();
    QObject::connect(qGuiApp, &QGuiApplication::focusObjectChanged, &signals_, [this](QObject* object) {
        if (object != nullptr) QTimer::singleShot(0, &signals_, [this] { TellFocus(); });
    });
}

void AccessibleDesk::Follow(const MarkSet& set) {
    if (!QAccessible::isActive() || !attached_.Alive()) return;
    if (set.Everything) FollowAll();
    if (set.Workspace && !set.Everything) FollowSurface({});
    for (const auto* list : {&set.Containers, &set.Notes})
        for (const int index : *list) FollowSurface({SurfaceKind::Container, index});
    for (const int index : set.Pictures) FollowSurface({SurfaceKind::Picture, index});
    if (set.MiniToolbar) FollowSurface({SurfaceKind::MiniToolbar, -1});
    if (set.QuickLaunch) FollowSurface({SurfaceKind::QuickLaunch, -1});
    if (set.JumpTo && !set.Everything) FollowSurface({SurfaceKind::JumpTo, -1});
    FollowFocus();
}

void AccessibleDesk::FollowAll() {
    if (!attached_.Alive()) return;
    for (const SurfaceId id : Surfaces(*attached_.Main)) FollowSurface(id);
}

void AccessibleDesk::FollowSurface(SurfaceId id) {
    if (id.Kind == SurfaceKind::Overlay) return;
    if (auto* surface = InterfaceOf(find_(id))) surface->Follow();
}

void AccessibleDesk::FollowFocus() {
    const auto& view = attached_.Main->View;
    const bool shown = view.FocusVisible && !IsJumpToOpen(*attached_.Main); // its field has the keyboard
    const auto now = shown ? view.Focus : ElementId{};
    if (now == focus_ && view.FocusSurface == focusSurface_) return;
    focus_ = now;
    focusSurface_ = view.FocusSurface;
    TellFocus();
}

void AccessibleDesk::TellFocus() {
    if (!attached_.Alive() || focus_.Kind == ElementKind::None) return;
    SurfaceWidget* widget = find_(focusSurface_);
    AccessibleSurface* surface = InterfaceOf(widget);
    if (surface == nullptr || !widget->window()->isActiveWindow()) return;
    QAccessibleInterface* element = surface->Element(focus_);
    if (element == nullptr || !element->isValid()) return;
    QAccessibleEvent event(element, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

} // namespace quill
