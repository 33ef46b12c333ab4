// Our own objects dropped on a parent: they move there.
#include "containers/arrange.h"
#include "containers/boundaries.h"
#include "containers/undo.h"
#include "persistence/save.h"
#include "shortcuts/drags.h"
#include "shortcuts/drop_target.h"

#include <algorithm>

namespace quill {
namespace {

MovedKind KindOf(const DraggedObject& object) {
    return IsPicture(object) ? MovedKind::Picture : MovedKind::Shortcut;
}

// What nobody has lifted (there is no pointer in a drop by a routine) lies under the hand with its corner.
Point FromHand(const frmMain& Main, const DraggedObject& object) {
    const auto found = std::ranges::find(Main.Links.Carried, object, &CarriedObject::Object);
    return found == Main.Links.Carried.end() ? Point{} : found->FromHand;
}

Point PlaceFor(const frmMain& Main, const DropPlace& place, const DraggedObject& object) {
    if (!ShowsPlace(Main, place)) return NextFreeCell(Main, place.To);
    const Point away = FromHand(Main, object);
    const Point at{place.At.X + away.X, place.At.Y + away.Y};
    return IsPicture(object) ? at : SnapToGrid(Main, place.To, at);
}

// False: there is no room for it.
bool MoveObject(frmMain& Main, const DropPlace& place, const DraggedObject& object) {
    const Point at = PlaceFor(Main, place, object);
    const bool moved = IsPicture(object) ? MovePictureTo(Main, object.Index, place.To, at)
                                         : MoveShortcutTo(Main, object.Index, place.To, at);
    if (moved && ShowsPlace(Main, place)) CheckBoundaries(Main, {KindOf(object), object.Index}, true);
    return moved;
}

bool Differ(const MoveRecord& one, const MoveRecord& other) {
    return one.Left != other.Left || one.Top != other.Top || one.Parent != other.Parent;
}

struct Moved {
    MoveStep Step;          // the places before
    bool AnyOnBack = false; // something lies on the workspace, or did
    bool AllFound = true;
};

Moved MoveAll(frmMain& Main, const DropPlace& place, const DragData& data) {
    Moved moved;
    for (const DraggedObject& object : data.Objects) {
        if (!IsThere(Main, object)) continue;
        const MoveRecord before = PlaceNow(Main, KindOf(object), object.Index);
        if (!MoveObject(Main, place, object)) {
            moved.AllFound = false;
            continue;
        }
        const MoveRecord after = PlaceNow(Main, KindOf(object), object.Index);
        if (!Differ(before, after)) continue;
        moved.AnyOnBack = moved.AnyOnBack || before.Parent == -1 || after.Parent == -1;
        moved.Step.push_back(before);
    }
    return moved;
}

void SaveMoved(frmMain& Main, const Moved& moved) {
    if (moved.Step.empty()) return;
    if (moved.AnyOnBack)
        SaveWorkspace(Main, true, false);
    else
        SaveContainers(Main, true);
}

} // namespace

DropAnswer DropObjects(frmMain& Main, Parent to, Point at, const DragData& data) {
    const bool heldIsGone = data.Objects.empty() || !IsThere(Main, data.Objects.front());
    if (heldIsGone || !OpensForDrop(Main, to, data)) return DropAnswer::Refused;
    if (to.Kind == ParentKind::ContainerFrame) Main.Group.CurrentContainer = to.Index;
    const Moved moved = MoveAll(Main, {to, at}, data);
    PushMove(Main, moved.Step);
    SaveMoved(Main, moved);
    if (!moved.AllFound) TellLimit(Main, to);
    return moved.Step.empty() && !moved.AllFound ? DropAnswer::Refused : DropAnswer::Copied;
}

} // namespace quill
