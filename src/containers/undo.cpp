#include "containers/undo.h"

#include "containers/boundaries.h"
#include "containers/full_size.h"
#include "containers/layout.h"
#include "containers/lock.h"
#include "containers/scroll.h"
#include "containers/selection.h"
#include "core/objects.h"
#include "persistence/save.h"

#include <algorithm>
#include <utility>

namespace quill {
namespace {

std::int32_t ParentOf(const Parent& in) {
    return in.Kind == ParentKind::ContainerFrame ? in.Index : -1;
}

Parent ParentIn(const MoveRecord& record) {
    return record.Parent == -1 ? OnWorkspace() : InContainer(record.Parent);
}

bool Refuses(const frmMain& Main, int container) {
    if (!IsLive(Main.Containers, container) || Main.Con(container).Encrypted) return true;
    const auto kind = KindOf(Main, container);
    return kind == ContainerKind::Feed || kind == ContainerKind::Reminder;
}

bool IsFull(const frmMain& Main, const Parent& in) {
    if (in.Kind == ParentKind::picBack) return WorkspaceShortcutCount(Main) >= MaxShortcutsOnWorkspace;
    return GetContainerShortcutCount(Main, in.Index) >= MaxShortcutsInContainer;
}

bool CanLieIn(const frmMain& Main, const Parent& in) {
    return in.Kind == ParentKind::picBack || !Refuses(Main, in.Index);
}

void ShowContents(frmMain& Main, const Parent& in) {
    if (in.Kind == ParentKind::ContainerFrame) LayScrollBar(Main, in.Index);
    MarkParent(Main, in);
}

// One that is open for the moment is moved by as much as its tile is: the record tells the tile's place.
void MoveContainerTo(frmMain& Main, int Index, Point to) {
    auto& place = Main.ConView(Index).Container.Place;
    const auto now = PlaceNow(Main, MovedKind::Container, Index);
    place.Left += to.X - now.Left;
    place.Top += to.Y - now.Top;
    Main.Con(Index).SetSize({.X = to.X, .Y = to.Y});
    Main.Marks.Container(Index);
}

bool MoveBack(frmMain& Main, const MoveRecord& record) {
    const Point at{record.Left, record.Top};
    switch (record.Kind) {
    case MovedKind::Shortcut:
        return MoveShortcutTo(Main, record.Index, ParentIn(record), at);
    case MovedKind::Picture:
        return MovePictureTo(Main, record.Index, ParentIn(record), at);
    case MovedKind::Container:
        MoveContainerTo(Main, record.Index, at);
        return true;
    }
    return false;
}

// The surface may have become smaller meanwhile. A container scrolls to what lies below it.
void KeepReachable(frmMain& Main, const MoveRecord& record) {
    const auto ground = GroundSize(Main, ParentIn(record));
    if (record.Left < ground.Width && (record.Top < ground.Height || record.Parent != -1)) return;
    CheckBoundaries(Main, {record.Kind, record.Index}, true);
    const bool container = record.Kind == MovedKind::Container;
    if (container && Main.Group.ExpandedContainer != record.Index) RememberPlace(Main, record.Index);
}

bool Restore(frmMain& Main, const MoveRecord& record) {
    if (!MoveBack(Main, record)) return false;
    KeepReachable(Main, record);
    return true;
}

bool IsThere(const frmMain& Main, const MoveRecord& record) {
    switch (record.Kind) {
    case MovedKind::Shortcut:
        return IsLive(Main.Shortcuts, record.Index);
    case MovedKind::Picture:
        return IsLive(Main.Pictures, record.Index);
    case MovedKind::Container:
        return IsLive(Main.Containers, record.Index) && Main.ConView(record.Index).Container.Visible;
    }
    return false;
}

void Push(std::vector<MoveStep>& stack, MoveStep step) {
    if (step.empty()) return;
    if (stack.size() >= UndoDepth) stack.erase(stack.begin());
    stack.push_back(std::move(step));
}

bool LiesOnWorkspace(const MoveRecord& record) {
    return record.Kind != MovedKind::Container && record.Parent == -1;
}

// What lies on the workspace itself stands in the settings file.
void SaveAfter(frmMain& Main, const MoveStep& from, const MoveStep& to) {
    SaveContainers(Main, true);
    if (std::ranges::any_of(from, LiesOnWorkspace) || std::ranges::any_of(to, LiesOnWorkspace))
        SaveWorkspace(Main, true, false);
}

} // namespace

MoveRecord PlaceNow(const frmMain& Main, MovedKind kind, int Index) {
    switch (kind) {
    case MovedKind::Shortcut: {
        const auto& view = Main.LinkView(Index);
        const auto& place = view.lblShortcut.Place;
        return {place.Left, place.Top, Index, kind, ParentOf(view.In)};
    }
    case MovedKind::Picture: {
        const auto& view = Main.PicView(Index);
        return {view.PicContainer.Left, view.PicContainer.Top, Index, kind, ParentOf(view.In)};
    }
    case MovedKind::Container: {
        const auto& place = Main.ConView(Index).Container.Place;
        const auto& stored = Main.Con(Index).StoredSize();
        const bool fromTile = Main.Group.ExpandedContainer == Index;
        return {fromTile ? stored.X : place.Left, fromTile ? stored.Y : place.Top, Index, kind, -1};
    }
    }
    return {};
}

void PushMove(frmMain& Main, MoveStep step) {
    if (step.empty()) return;
    Push(Main.Group.UndoStack, std::move(step));
    Main.Group.RedoStack.clear();
}

// The last that was moved goes back first, so that an object that stands in a step twice ends where it began.
void UndoMove(frmMain& Main, bool IsUndo) {
    auto& stack = IsUndo ? Main.Group.UndoStack : Main.Group.RedoStack;
    if (stack.empty()) return;
    const MoveStep step = std::move(stack.back());
    stack.pop_back();
    MoveStep left;
    for (auto record = step.rbegin(); record != step.rend(); ++record) {
        if (!IsThere(Main, *record)) continue;
        const auto now = PlaceNow(Main, record->Kind, record->Index);
        if (Restore(Main, *record)) left.push_back(now);
    }
    if (left.empty()) return;
    SaveAfter(Main, step, left);
    Push(IsUndo ? Main.Group.RedoStack : Main.Group.UndoStack, std::move(left));
}

void mnuUndoRedo_Click(frmMain& Main, int Index) {
    const auto& steps = Index == 0 ? Main.Group.UndoStack : Main.Group.RedoStack;
    if (steps.empty() || !NeedsEdit(Main, Edit::Shortcuts)) return;
    UndoMove(Main, Index == 0);
}

void mnuClearUndoRedoBuffer_Click(frmMain& Main) {
    Main.Group.UndoStack.clear();
    Main.Group.RedoStack.clear();
}

bool MoveShortcutTo(frmMain& Main, int Shortcut, Parent to, Point at) {
    if (!IsLive(Main.Shortcuts, Shortcut)) return false;
    auto& view = Main.LinkView(Shortcut);
    const Parent from = view.In;
    if (from != to && (!CanLieIn(Main, to) || IsFull(Main, to))) return false;
    if (from != to) view.Visible = true, Main.Link(Shortcut).TagHidden = false; // a tag view stays behind
    view.In = to;
    view.lblShortcut.Place.Left = at.X;
    view.lblShortcut.Place.Top = at.Y;
    MoveLinkIcon(Main, Shortcut);
    SetSelection(Main, Shortcut, Main.Link(Shortcut).Selected); // in the colours of where it lies now
    ShowContents(Main, from);
    ShowContents(Main, to);
    return true;
}

bool MovePictureTo(frmMain& Main, int Picture, Parent to, Point at) {
    if (!IsLive(Main.Pictures, Picture)) return false;
    auto& view = Main.PicView(Picture);
    const Parent from = view.In;
    if (from != to && !CanLieIn(Main, to)) return false;
    view.In = to;
    view.PicContainer.Left = at.X;
    view.PicContainer.Top = at.Y;
    Main.Marks.Picture(Picture);
    ShowContents(Main, from);
    ShowContents(Main, to);
    return true;
}

} // namespace quill
