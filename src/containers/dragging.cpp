#include "containers/dragging.h"

#include "containers/boundaries.h"
#include "containers/full_size.h"
#include "containers/gestures.h"
#include "containers/layout.h"
#include "containers/lock.h"
#include "containers/selection.h"
#include "containers/undo.h"
#include "core/handlers.h"
#include "core/objects.h"
#include "persistence/save.h"
#include "platform/clock.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quill {
namespace {

using Part = ContainerDrag::Part;

Point CornerOf(const frmMain& Main, int Index) {
    const auto& place = Main.ConView(Index).Container.Place;
    return {place.Left, place.Top};
}

void Place(frmMain& Main, int Index, Point to) {
    if (CornerOf(Main, Index) == to) return;
    auto& place = Main.ConView(Index).Container.Place;
    place.Left = to.X;
    place.Top = to.Y;
    Main.Marks.Container(Index);
}

// The container itself, and the whole selection if it is part of it.
std::vector<Part> PartsWith(const frmMain& Main, int Index) {
    std::vector<Part> parts{{Index, CornerOf(Main, Index)}};
    if (!Main.ConView(Index).LabelSelected) return parts;
    for (const int other : SelectedContainers(Main))
        if (other != Index) parts.push_back({other, CornerOf(Main, other)});
    return parts;
}

void MoveParts(frmMain& Main, const std::vector<Part>& parts, Point by) {
    for (const auto& part : parts)
        if (IsLive(Main.Containers, part.Index))
            Place(Main, part.Index, {part.From.X + by.X, part.From.Y + by.Y});
}

// A tile that is open for the moment goes along by as much as was moved, so that what a hand has placed stays
// where it was put when it closes. Anything else belongs from now on where it stands.
void SettlePlace(frmMain& Main, int Index, Point by) {
    auto& container = Main.Con(Index);
    if (Main.Group.ExpandedContainer != Index) {
        container.CloseToEdgeY = false;
        return RememberPlace(Main, Index);
    }
    const auto& back = Main.View.picBack.Place;
    const auto& stored = container.StoredSize();
    const auto tile = container.ShrinkSize();
    const float right = std::max(0.0F, back.Width - static_cast<float>(tile.Width));
    const float top = HighestTop(Main, OnWorkspace());
    const float bottom = std::max(top, back.Height - static_cast<float>(tile.Height));
    container.SetSize(
        {.X = std::clamp(stored.X + by.X, 0.0F, right), .Y = std::clamp(stored.Y + by.Y, top, bottom)});
}

// Where everything stood before, as one step, and each kept inside.
void FinishMove(frmMain& Main, const std::vector<Part>& parts, bool InternalMove) {
    MoveStep step;
    for (const auto& part : parts) {
        if (!IsLive(Main.Containers, part.Index)) continue;
        auto before = PlaceNow(Main, MovedKind::Container, part.Index);
        if (Main.Group.ExpandedContainer != part.Index) before.Left = part.From.X, before.Top = part.From.Y;
        CheckBoundaries(Main, {MovedKind::Container, part.Index}, InternalMove);
        const auto now = CornerOf(Main, part.Index);
        if (now == part.From) continue;
        SettlePlace(Main, part.Index, {now.X - part.From.X, now.Y - part.From.Y});
        step.push_back(before);
    }
    if (step.empty()) return;
    PushMove(Main, std::move(step));
    SaveContainers(Main, true);
}

// The shortcut itself, and what else is selected where it lies if it is part of that.
std::vector<int> LinksWith(const frmMain& Main, int Shortcut) {
    if (!Main.Link(Shortcut).Selected) return {Shortcut};
    std::vector<int> links;
    for (const int other : Main.Links.SelectedShortcuts)
        if (Main.LinkView(other).In == Main.LinkView(Shortcut).In) links.push_back(other);
    return links;
}

float KeyStep(const frmMain& Main, const Parent& in, float by) {
    return Main.Dock.Align && by != 0 ? std::copysign(static_cast<float>(RowSpacing(Main, in)), by) : by;
}

// Nothing of it when it stands where it stood.
void MoveLinkBy(frmMain& Main, int Shortcut, Point by, MoveStep& step) {
    const auto before = PlaceNow(Main, MovedKind::Shortcut, Shortcut);
    const auto in = Main.LinkView(Shortcut).In;
    MoveShortcutTo(Main, Shortcut, in, SnapToGrid(Main, in, {before.Left + by.X, before.Top + by.Y}));
    CheckBoundaries(Main, {MovedKind::Shortcut, Shortcut}, true);
    const auto& now = Main.LinkView(Shortcut).lblShortcut.Place;
    if (now.Left != before.Left || now.Top != before.Top) step.push_back(before);
}

void KeepInView(frmMain& Main, int Shortcut) {
    const auto in = Main.LinkView(Shortcut).In;
    if (in.Kind == ParentKind::picBack) return;
    const auto& view = Main.ConView(in.Index);
    auto place = LabelPlace(Main, Shortcut);
    place.Left += view.ContainerFrame.Place.Left;
    place.Top += view.ContainerFrame.Place.Top - view.ScrollTop;
    ScrollIntoView(Main, in.Index, place);
}

// False: the lock holds it where it is, however far the hand goes.
bool StartMoving(frmMain& Main) {
    if (!NeedsEdit(Main, Edit::Containers)) return false;
    auto& drag = Main.Group.Drag;
    drag.Moving = true;
    drag.Parts = PartsWith(Main, drag.Pressed);
    Main.Dock.WorkspaceDragging = true;
    return true;
}

// The drag as it was; nothing is held any more.
ContainerDrag LetGo(frmMain& Main) {
    if (Main.Group.Drag.Moving) Main.Dock.WorkspaceDragging = false;
    return std::exchange(Main.Group.Drag, {});
}

} // namespace

void BeginContainerDrag(frmMain& Main, int Index, const MouseEvent& event) {
    if (!IsLive(Main.Containers, Index) || event.Button != MouseButton::Left) return;
    LetGo(Main);
    Main.Group.Drag = {Index, event.Screen, Main.P.Clock.GetTickCount(), false, {}};
}

void ContainerDrag_MouseMove(frmMain& Main, const MouseEvent& event) {
    auto& drag = Main.Group.Drag;
    if (!IsLive(Main.Containers, drag.Pressed)) return CancelContainerDrag(Main);
    // The release went elsewhere, as to a box that opened.
    if (event.Button != MouseButton::Left) return static_cast<void>(ContainerDrag_MouseUp(Main, event));
    if (!drag.Moving && IsSlip(drag.PressScreen, event.Screen)) return;
    if (!drag.Moving && !StartMoving(Main)) return;
    MoveParts(Main, drag.Parts, {event.Screen.X - drag.PressScreen.X, event.Screen.Y - drag.PressScreen.Y});
}

bool ContainerDrag_MouseUp(frmMain& Main, const MouseEvent& event) {
    const auto drag = LetGo(Main);
    if (!IsLive(Main.Containers, drag.Pressed)) return true;
    const Point by{event.Screen.X - drag.PressScreen.X, event.Screen.Y - drag.PressScreen.Y};
    if (drag.Moving) MoveParts(Main, drag.Parts, by);
    if (drag.Moving && by != Point{}) {
        FinishMove(Main, drag.Parts, false);
        Main.Group.LastShrunkBack = drag.Pressed; // a tile that was put down does not open under the hand
        return true;
    }
    if (event.Button != MouseButton::Left || !event.Ctrl) return false;
    ToggleSelection(Main, {SurfaceKind::Container, drag.Pressed}, {});
    Main.Group.Drag.PressTick = drag.PressTick;
    return true;
}

bool LastClickPicked(const frmMain& Main) {
    return Main.Group.Drag.Pressed == -1 && Main.Group.Drag.PressTick != 0;
}

void CancelContainerDrag(frmMain& Main) {
    const auto drag = LetGo(Main);
    MoveParts(Main, drag.Parts, {});
    Main.View.Pressed = {};
}

void MoveContainersByKey(frmMain& Main, float x, float y) {
    if (!IsLive(Main.Containers, Main.Group.CurrentContainer) || !NeedsEdit(Main, Edit::Containers)) return;
    const auto parts = PartsWith(Main, Main.Group.CurrentContainer);
    MoveParts(Main, parts, {x, y});
    FinishMove(Main, parts, true);
}

void MoveShortcutsByKey(frmMain& Main, float x, float y) {
    const int current = Main.Links.CurrentShortcut;
    if (!IsLive(Main.Shortcuts, current) || !NeedsEdit(Main, Edit::Shortcuts)) return;
    const auto in = Main.LinkView(current).In;
    MoveStep step;
    for (const int link : LinksWith(Main, current))
        MoveLinkBy(Main, link, {KeyStep(Main, in, x), KeyStep(Main, in, y)}, step);
    if (step.empty()) return;
    KeepInView(Main, current);
    PushMove(Main, std::move(step));
    in.Kind == ParentKind::picBack ? SaveWorkspace(Main, true, false) : SaveContainers(Main, true);
}

} // namespace quill
