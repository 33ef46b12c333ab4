#include "qt/core/accessible_element.h"

#include "core/accessible_elements.h"
#include "keyboard/jump_to.h"
#include "qt/core/accessible_note.h"
#include "qt/core/accessible_place.h"
#include "qt/core/accessible_scroll.h"
#include "qt/core/convert.h"
#include "qt/core/surface_widget.h"
#include "qt/dock/native_window.h"

#include <QApplication>
#include <QTimer>

#include <array>

namespace quill {
namespace {

bool CanExpand(ElementKind kind) {
    return kind == ElementKind::ContainerLabel || kind == ElementKind::ContainerIcon ||
           kind == ElementKind::lblFoldUnfold;
}

bool IsPersonAsked() {
    return QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
}

// Why an element may have the keyboard: there is something to do.
bool CanHaveFocus(const ElementInfo& info) {
    return !info.Action.empty() && info.Role != Role::Mark;
}

void Do(SurfaceWidget& surface, ElementId element, const QString& action) {
    const auto& attached = surface.Context().Attached;
    if (!attached.Alive() || IsPersonAsked()) return;
    if (action == QAccessibleActionInterface::setFocusAction()) {
        const bool whole = element.Kind == ElementKind::None;
        if (whole || FocusElement(*attached.Main, surface.Id(), element)) qt::TakeFocus(*surface.window());
        return;
    }
    DoAction(*attached.Main, surface.Id(), element, Bytes(action));
}

} // namespace

QAccessible::Role RoleOf(Role role) {
    static constexpr auto roles = std::to_array<QAccessible::Role>(
        {QAccessible::Grouping, QAccessible::StaticText, QAccessible::Button, QAccessible::StaticText,
         QAccessible::ListItem, QAccessible::EditableText, QAccessible::Graphic, QAccessible::Button,
         QAccessible::ScrollBar, QAccessible::StaticText, QAccessible::EditableText});
    static_assert(roles.size() == static_cast<std::size_t>(Role::Edit) + 1);
    return roles[static_cast<std::size_t>(role)];
}

QAccessible::State StateOf(const ElementInfo& info) {
    QAccessible::State state;
    state.focusable = CanHaveFocus(info);
    state.selectable = info.Role == Role::ListItem;
    state.selected = info.Selected;
    state.checkable = info.Id.Kind == ElementKind::lblPinNote;
    state.checked = state.checkable && info.Pressed;
    state.pressed = info.Pressed;
    state.expandable = CanExpand(info.Id.Kind);
    state.expanded = state.expandable && info.Expanded;
    state.collapsed = state.expandable && !info.Expanded;
    state.multiLine = state.readOnly = info.Role == Role::Note;
    return state;
}

AccessibleElement::AccessibleElement(SurfaceWidget& surface, ElementId id) : surface_(&surface), id_(id) {
    const auto& attached = surface.Context().Attached;
    if (id.Kind == ElementKind::ContainerNote) text_ = MakeAccessibleNote(attached, id.Index, *this);
    if (id.Kind == ElementKind::VScroll) value_ = MakeAccessibleScroll(attached, id.Index);
}

const frmMain* AccessibleElement::Main() const {
    if (!surface_ || !surface_->Context().Attached.Alive()) return nullptr;
    const frmMain* Main = surface_->Context().Attached.Main;
    return LiesOn(*Main, surface_->Id(), id_) ? Main : nullptr;
}

ElementInfo AccessibleElement::Info() const {
    const frmMain* Main = this->Main();
    return Main != nullptr ? DescribeTold(*Main, surface_->Id(), id_) : ElementInfo{};
}

bool AccessibleElement::isValid() const {
    return Main() != nullptr;
}

QWindow* AccessibleElement::window() const {
    return surface_ ? surface_->window()->windowHandle() : nullptr;
}

QAccessibleInterface* AccessibleElement::parent() const {
    return surface_ ? QAccessible::queryAccessibleInterface(surface_) : nullptr;
}

QString AccessibleElement::text(QAccessible::Text which) const {
    if (which == QAccessible::Name) return Text(Info().Name);
    if (which == QAccessible::Description) return Text(Info().Tip);
    const bool tellsNote = which == QAccessible::Value && text_ && isValid();
    return tellsNote ? text_->text(0, text_->characterCount()) : QString();
}

QRect AccessibleElement::rect() const {
    const frmMain* Main = this->Main();
    const auto place = Main != nullptr ? PlaceOfTold(*Main, surface_->Id(), id_) : std::nullopt;
    return place ? ToldRect(*surface_, PixelRect(place->Place)) : QRect();
}

QAccessible::Role AccessibleElement::role() const {
    return RoleOf(Info().Role);
}

QAccessible::State AccessibleElement::state() const {
    const frmMain* Main = this->Main();
    QAccessible::State state;
    state.invalid = Main == nullptr;
    if (Main == nullptr) return state;
    state = StateOf(Info());
    const auto place = PlaceOfTold(*Main, surface_->Id(), id_);
    state.invisible = !place || !surface_->isVisible();
    state.offscreen = place && place->Scrolled;
    state.focused = surface_->window()->isActiveWindow() && Main->View.FocusVisible && !IsJumpToOpen(*Main) &&
                    Main->View.Focus == id_ && Main->View.FocusSurface == surface_->Id();
    return state;
}

void* AccessibleElement::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    if (type == QAccessible::TextInterface) return text_.get();
    return type == QAccessible::ValueInterface ? value_.get() : nullptr;
}

QStringList AccessibleElement::actionNames() const {
    QStringList names;
    const frmMain* Main = this->Main();
    if (Main == nullptr) return names;
    for (const auto& name : ActionsOf(*Main, surface_->Id(), id_)) names += Text(name);
    if (CanHaveFocus(Info())) names += setFocusAction();
    return names;
}

void AccessibleElement::doAction(const QString& name) {
    if (isValid()) DoLater(*surface_, id_, name);
}

void DoLater(SurfaceWidget& surface, ElementId element, const QString& action) {
    QTimer::singleShot(0, &surface, [&surface, element, action] { Do(surface, element, action); });
}

} // namespace quill
