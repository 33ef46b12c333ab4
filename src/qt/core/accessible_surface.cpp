#include "qt/core/accessible_surface.h"

#include "core/accessible_elements.h"
#include "core/frmMain.h"
#include "keyboard/jump_to.h"
#include "qt/core/accessible_element.h"
#include "qt/core/accessible_place.h"
#include "qt/core/convert.h"
#include "qt/core/surface_widget.h"
#include "qt/notes/note_box.h"

#include <algorithm>

namespace quill {
namespace {

bool Has(const std::vector<ElementId>& list, ElementId id) {
    return std::ranges::find(list, id) != list.end();
}

bool IsFocusShown(const frmMain& Main) {
    const bool typing = IsJumpToOpen(Main); // the launcher's field has the keyboard, and tells so itself
    return Main.View.FocusVisible && Main.View.Focus.Kind != ElementKind::None && !typing;
}

// Of what can change while somebody listens.
QAccessible::State Changed(QAccessible::State before, QAccessible::State now) {
    QAccessible::State changed;
    changed.selected = before.selected != now.selected;
    changed.pressed = before.pressed != now.pressed;
    changed.checked = before.checked != now.checked;
    changed.expanded = before.expanded != now.expanded;
    changed.collapsed = before.collapsed != now.collapsed;
    return changed;
}

} // namespace

AccessibleSurface::AccessibleSurface(SurfaceWidget& surface) : QAccessibleWidget(&surface) {}

AccessibleSurface::~AccessibleSurface() {
    for (const auto& [id, known] : made_) QAccessible::deleteAccessibleInterface(known.Id);
}

SurfaceWidget* AccessibleSurface::Surface() const {
    return dynamic_cast<SurfaceWidget*>(widget());
}

const frmMain* AccessibleSurface::Main() const {
    const auto* surface = Surface();
    if (surface == nullptr || !surface->Context().Attached.Alive()) return nullptr;
    const frmMain* Main = surface->Context().Attached.Main;
    return LiesOn(*Main, surface->Id(), {}) ? Main : nullptr;
}

ElementInfo AccessibleSurface::Info(ElementId id) const {
    const frmMain* Main = this->Main();
    return Main != nullptr ? DescribeTold(*Main, Surface()->Id(), id) : ElementInfo{};
}

// An open box stands for the note that is painted below it.
std::vector<ElementId> AccessibleSurface::Elements() const {
    const frmMain* Main = this->Main();
    if (Main == nullptr) return {};
    auto elements = ToldElements(*Main, Surface()->Id());
    const auto isNote = [](QWidget* box) { return dynamic_cast<NoteBox*>(box) != nullptr; };
    if (std::ranges::any_of(Boxes(), isNote))
        std::erase_if(elements, [](ElementId id) { return id.Kind == ElementKind::ContainerNote; });
    return elements;
}

std::vector<QWidget*> AccessibleSurface::Boxes() const {
    std::vector<QWidget*> boxes;
    for (QObject* child : widget()->children()) {
        auto* box = qobject_cast<QWidget*>(child);
        if (box == nullptr || box->isHidden() || box->isWindow()) continue;
        const auto* surface = dynamic_cast<SurfaceWidget*>(box);
        if (surface == nullptr || surface->Id().Kind != SurfaceKind::Overlay) boxes.push_back(box);
    }
    return boxes;
}

QAccessibleInterface* AccessibleSurface::Element(ElementId id) {
    const auto found = made_.find(id);
    if (found != made_.end()) return QAccessible::accessibleInterface(found->second.Id);
    if (Main() == nullptr) return nullptr;
    auto* element = new AccessibleElement(*Surface(), id);
    auto& known = made_[id];
    known.Id = QAccessible::registerAccessibleInterface(element);
    Remember(known, id);
    return element;
}

int AccessibleSurface::childCount() const {
    counted_ = Elements();
    return static_cast<int>(counted_->size() + Boxes().size());
}

QAccessibleInterface* AccessibleSurface::child(int index) const {
    if (!counted_) counted_ = Elements();
    const auto& elements = *counted_;
    if (index < 0) return nullptr;
    const auto at = static_cast<std::size_t>(index);
    if (at < elements.size()) return const_cast<AccessibleSurface*>(this)->Element(elements[at]);
    const auto boxes = Boxes();
    const auto box = at - elements.size();
    return box < boxes.size() ? QAccessible::queryAccessibleInterface(boxes[box]) : nullptr;
}

int AccessibleSurface::indexOfChild(const QAccessibleInterface* child) const {
    if (child == nullptr) return -1;
    if (!counted_) counted_ = Elements();
    const auto& elements = *counted_;
    if (const auto* element = dynamic_cast<const AccessibleElement*>(child)) {
        const auto found = std::ranges::find(elements, element->Id());
        return found == elements.end() ? -1 : static_cast<int>(found - elements.begin());
    }
    const auto boxes = Boxes();
    const auto found = std::ranges::find(boxes, child->object());
    if (found == boxes.end()) return -1;
    return static_cast<int>(elements.size()) + static_cast<int>(found - boxes.begin());
}

QAccessibleInterface* AccessibleSurface::childAt(int x, int y) const {
    const QPoint place = PlaceOnWidget(*widget(), {x, y});
    if (!widget()->rect().contains(place)) return nullptr;
    const auto boxes = Boxes();
    for (auto box = boxes.rbegin(); box != boxes.rend(); ++box)
        if ((*box)->geometry().contains(place)) return QAccessible::queryAccessibleInterface(*box);
    const frmMain* Main = this->Main();
    if (Main == nullptr) return nullptr;
    const ElementId hit = ToldElementAt(*Main, Surface()->Id(), TwipPoint(place));
    if (hit.Kind == ElementKind::None) return nullptr;
    return const_cast<AccessibleSurface*>(this)->Element(hit);
}

QString AccessibleSurface::text(QAccessible::Text which) const {
    if (which == QAccessible::Name) {
        const QString name = Text(Info({}).Name);
        return name.isEmpty() ? widget()->windowTitle() : name;
    }
    return which == QAccessible::Description ? Text(Info({}).Tip) : QString();
}

QRect AccessibleSurface::rect() const {
    return ToldRect(*widget(), widget()->rect());
}

QAccessible::Role AccessibleSurface::role() const {
    return RoleOf(Info({}).Role);
}

// The toolkit's keyboard is in the workspace, also while an element on another surface is what it is on.
QAccessibleInterface* AccessibleSurface::focusChild() const {
    const frmMain* Main = this->Main();
    if (Main == nullptr || !IsFocusShown(*Main)) return QAccessibleWidget::focusChild();
    if (Main->View.FocusSurface == Surface()->Id())
        return const_cast<AccessibleSurface*>(this)->Element(Main->View.Focus);
    for (QWidget* box : Boxes()) {
        const auto* surface = dynamic_cast<SurfaceWidget*>(box);
        if (surface == nullptr || surface->Id() != Main->View.FocusSurface) continue;
        return QAccessible::queryAccessibleInterface(box)->focusChild();
    }
    return QAccessibleWidget::focusChild();
}

QAccessible::State AccessibleSurface::state() const {
    auto state = QAccessibleWidget::state();
    const auto info = Info({});
    state.selected = info.Selected;
    if (const frmMain* Main = this->Main(); Main != nullptr && IsFocusShown(*Main)) state.focused = false;
    const auto* surface = Surface();
    if (surface == nullptr || surface->Id().Kind != SurfaceKind::Container) return state;
    state.selectable = state.expandable = true;
    state.expanded = info.Expanded;
    state.collapsed = !info.Expanded;
    return state;
}

QStringList AccessibleSurface::actionNames() const {
    QStringList names;
    const frmMain* Main = this->Main();
    if (Main == nullptr) return names;
    for (const auto& name : ActionsOf(*Main, Surface()->Id(), {})) names += Text(name);
    if (Surface()->Id().Kind == SurfaceKind::Workspace) names += setFocusAction();
    return names;
}

void AccessibleSurface::doAction(const QString& name) {
    if (Main() != nullptr) DoLater(*Surface(), {}, name);
}

void AccessibleSurface::Remember(Known& known, ElementId id) {
    const auto info = Info(id);
    known.Name = Text(info.Name);
    known.State = StateOf(info);
    if (id.Kind != ElementKind::None) return;
    known.State.expanded = info.Expanded;
    known.State.collapsed = !info.Expanded;
}

void AccessibleSurface::TellChanges(ElementId id, Known& known) {
    const Known before = known;
    Remember(known, id);
    const auto changed = Changed(before.State, known.State);
    const bool renamed = known.Name != before.Name;
    if (!renamed && changed == QAccessible::State()) return;
    QAccessibleInterface* told = id.Kind == ElementKind::None ? this : Element(id);
    if (renamed) {
        QAccessibleEvent event(told, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
    if (changed != QAccessible::State()) {
        QAccessibleStateChangeEvent event(told, changed);
        QAccessible::updateAccessibility(&event);
    }
}

void AccessibleSurface::TellGone(const std::vector<ElementId>& now) {
    for (auto made = made_.begin(); made != made_.end();) {
        if (Has(now, made->first)) {
            ++made;
            continue;
        }
        QAccessibleEvent event(QAccessible::accessibleInterface(made->second.Id),
                               QAccessible::ObjectDestroyed);
        QAccessible::updateAccessibility(&event);
        QAccessible::deleteAccessibleInterface(made->second.Id);
        made = made_.erase(made);
    }
}

void AccessibleSurface::TellCome(const std::vector<ElementId>& now) {
    if (!counted_) return; // nobody has looked
    const auto before = std::exchange(*counted_, now);
    for (const ElementId id : now) {
        if (Has(before, id)) continue;
        QAccessibleEvent event(Element(id), QAccessible::ObjectCreated);
        QAccessible::updateAccessibility(&event);
    }
}

void AccessibleSurface::Follow() {
    if (Main() == nullptr) return;
    if (own_)
        TellChanges({}, *own_);
    else
        Remember(own_.emplace(), {});
    if (!counted_ && made_.empty()) return;
    const auto now = Elements();
    TellGone(now);
    for (auto& [id, known] : made_) TellChanges(id, known);
    TellCome(now);
}

} // namespace quill
