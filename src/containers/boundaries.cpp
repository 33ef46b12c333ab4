#include "containers/boundaries.h"

#include "containers/full_size.h"
#include "containers/layout.h"
#include "containers/measures.h"
#include "containers/scroll.h"
#include "core/objects.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

// A surface as one object sees it that is to stand there. An upper edge at or above Top goes to MovedTo.
struct Ground {
    float Width = 0, Height = 0;
    float Top = 0;
    float MovedTo = 0;
};

bool IsLink(ObjectRef object) {
    return object.Kind == MovedKind::Shortcut;
}

bool IsAlive(const frmMain& Main, ObjectRef object) {
    if (IsLink(object)) return IsLive(Main.Shortcuts, object.Index);
    if (object.Kind == MovedKind::Picture) return IsLive(Main.Pictures, object.Index);
    return IsLive(Main.Containers, object.Index);
}

Parent ParentOf(const frmMain& Main, ObjectRef object) {
    if (IsLink(object)) return Main.LinkView(object.Index).In;
    return object.Kind == MovedKind::Picture ? Main.PicView(object.Index).In : OnWorkspace();
}

Rect PlaceOf(const frmMain& Main, ObjectRef object) {
    if (IsLink(object)) return LabelPlace(Main, object.Index);
    if (object.Kind == MovedKind::Picture) return Main.PicView(object.Index).PicContainer;
    return Main.ConView(object.Index).Container.Place;
}

// The lower edge is that of the visible part. What lies below it in a frame that scrolls anyhow is not lost,
// and stays where it is.
float HeightOfFrame(const frmMain& Main, ObjectRef object, int container) {
    const float frame = GroundSize(Main, InContainer(container)).Height;
    const float seen = Main.ConView(container).ScrollTop + frame;
    const auto place = PlaceOf(Main, object);
    const bool below = place.Top >= seen && ContentHeight(Main, container, object) > frame;
    return below ? place.Bottom() + measures::LowestObject : seen;
}

Ground GroundOf(const frmMain& Main, ObjectRef object) {
    using namespace measures;
    const auto in = ParentOf(Main, object);
    const auto size = GroundSize(Main, in);
    const float top = HighestTop(Main, in), below = top + (IsLink(object) ? LinkExtra : 0);
    if (in.Kind == ParentKind::picBack) return {size.Width, size.Height, top, below};
    const bool picture = object.Kind == MovedKind::Picture; // may use the top of its frame
    return {size.Width, HeightOfFrame(Main, object, in.Index), top, picture ? EdgeGap : below};
}

// What is larger than its surface keeps its upper-left corner in it, where a hand can take it.
Point Inside(const Ground& ground, ObjectRef object, const Rect& place) {
    using namespace measures;
    float left = place.Left, top = place.Top;
    if (top <= ground.Top) top = ground.MovedTo;
    if (left < 0) left = EdgeGap;
    if (ground.Width - left < RightmostObject) left = std::max(EdgeGap, ground.Width - place.Width - EdgeGap);
    if (ground.Height - top < (IsLink(object) ? LowestLink : LowestObject))
        top = std::max(ground.MovedTo, ground.Height - place.Height - EdgeGap);
    return {left, top};
}

// All of it that fits.
Point WhollyInside(const Ground& ground, const Rect& place) {
    using namespace measures;
    const float left = ground.Width - place.Width - EdgeGap;
    const float top = ground.Height - place.Height - EdgeGap;
    return {std::max(EdgeGap, std::min(place.Left, left)),
            std::max(ground.MovedTo, std::min(place.Top, top))};
}

void MoveContainer(frmMain& Main, int Index, Point to) {
    auto& place = Main.ConView(Index).Container.Place;
    place.Left = to.X;
    place.Top = to.Y;
    Main.Marks.Container(Index);
}

void MoveLink(frmMain& Main, int Index, Point to) {
    auto& view = Main.LinkView(Index);
    view.lblShortcut.Place.Left = to.X;
    view.lblShortcut.Place.Top = to.Y;
    MoveLinkIcon(Main, Index);
    MarkParent(Main, view.In);
}

void MovePicture(frmMain& Main, int Index, Point to) {
    auto& view = Main.PicView(Index);
    view.PicContainer.Left = to.X;
    view.PicContainer.Top = to.Y;
    Main.Marks.Picture(Index);
    MarkParent(Main, view.In);
}

void MoveTo(frmMain& Main, ObjectRef object, Point to) {
    const auto place = PlaceOf(Main, object);
    if (to == Point{place.Left, place.Top}) return;
    if (IsLink(object)) return MoveLink(Main, object.Index, to);
    if (object.Kind == MovedKind::Picture) return MovePicture(Main, object.Index, to);
    MoveContainer(Main, object.Index, to);
}

bool WouldLeave(const frmMain& Main, ObjectRef object, bool InternalMove, const Rect& dropped) {
    return !Main.IsLoading && object.Kind == MovedKind::Container && !InternalMove &&
           Main.Settings.DragToDetach && LiesOutside(Main, dropped);
}

} // namespace

// What lies in a folded container or a tile is placed for the size that it has when it is open.
Size GroundSize(const frmMain& Main, Parent in) {
    const auto& back = Main.View.picBack.Place;
    if (in.Kind == ParentKind::picBack) return {back.Width, back.Height};
    const auto& frame = Main.ConView(in.Index).ContainerFrame.Place;
    if (!IsFolded(Main, in.Index) && !IsShrunk(Main, in.Index)) return {frame.Width, frame.Height};
    const auto full = FullSize(Main, in.Index);
    return {full.Width, full.Height - measures::ContainerTitle};
}

float HighestTop(const frmMain& Main, Parent in) {
    if (in.Kind == ParentKind::ContainerFrame) return measures::BelowFrameTop;
    return Main.View.picMoveMe.Place.Bottom() + measures::BelowTitleBar;
}

void CheckBoundaries(frmMain& Main, ObjectRef object, bool InternalMove, float x, float y, float width,
                     float height) {
    if (!IsAlive(Main, object)) return;
    const auto ground = GroundOf(Main, object);
    MoveTo(Main, object, Inside(ground, object, PlaceOf(Main, object)));
    if (WouldLeave(Main, object, InternalMove, {x, y, width, height})) BringInside(Main, object.Index);
}

bool BringInside(frmMain& Main, int Container) {
    const ObjectRef object{MovedKind::Container, Container};
    const auto before = PlaceOf(Main, object);
    MoveTo(Main, object, WhollyInside(GroundOf(Main, object), before));
    return PlaceOf(Main, object) != before;
}

void CheckBoundaries(frmMain& Main, ObjectRef object, bool InternalMove) {
    if (!IsAlive(Main, object)) return;
    const auto place = PlaceOf(Main, object);
    const auto &window = Main.View.Window, &back = Main.View.picBack.Place;
    CheckBoundaries(Main, object, InternalMove, window.Left + back.Left + place.Left,
                    window.Top + back.Top + place.Top, place.Width, place.Height);
}

bool LiesOutside(const frmMain& Main, const Rect& dropped) {
    const auto& window = Main.View.Window;
    return dropped.Right() < window.Left || dropped.Left > window.Right() || dropped.Top > window.Bottom() ||
           dropped.Bottom() < window.Top;
}

Point SnapToGrid(const frmMain& Main, Parent in, Point at) {
    if (!Main.Dock.Align) return at;
    const auto step = static_cast<float>(RowSpacing(Main, in));
    const float highest = (std::floor(HighestTop(Main, in) / step) + 1) * step;
    return {std::round(at.X / step) * step, std::max(highest, std::round(at.Y / step) * step)};
}

} // namespace quill
