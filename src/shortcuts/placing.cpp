#include "shortcuts/placing.h"

#include "containers/arrange.h"
#include "containers/boundaries.h"
#include "containers/full_size.h"
#include "containers/layout.h"
#include "containers/measures.h"
#include "containers/scroll.h"
#include "core/objects.h"

#include <algorithm>

namespace quill {
namespace {

constexpr Point Nowhere{-1e6F, -1e6F};

bool Covers(const frmMain& Main, Parent in, const Rect& place) {
    const auto inTheWay = [&](const Rect& other) { return other.Intersects(place); };
    bool covered = false;
    for (const auto& row : Live(Main.Pictures))
        covered |= Main.PicView(row.Index).In == in && inTheWay(Main.PicView(row.Index).PicContainer);
    if (in.Kind == ParentKind::ContainerFrame) return covered;
    for (const auto& row : Live(Main.Containers)) {
        const Element& box = Main.ConView(row.Index).Container;
        covered |= box.Visible && inTheWay(box.Place);
    }
    return covered;
}

bool IsFree(const frmMain& Main, Parent in, int link) {
    const Rect label = LabelPlace(Main, link), icon = IconPlace(Main, link);
    const Rect whole{icon.Left, label.Top, label.Right() - icon.Left, label.Height};
    bool free = !Covers(Main, in, whole);
    EachShortcutIn(Main, in, [&](int other) {
        free = free && (other == link || !(whole.Intersects(LabelPlace(Main, other)) ||
                                           whole.Intersects(IconPlace(Main, other))));
    });
    return free;
}

float HeightOf(const frmMain& Main, Parent in) {
    if (in.Kind == ParentKind::picBack) return Main.View.picBack.Place.Height;
    return Main.ConView(in.Index).ScrollTop + Main.ConView(in.Index).ContainerFrame.Place.Height;
}

void PutAt(frmMain& Main, int link, Point at) {
    Rect& place = Main.LinkView(link).lblShortcut.Place;
    place.Left = at.X;
    place.Top = at.Y;
    MoveLinkIcon(Main, link);
}

void PutInFreeCell(frmMain& Main, Parent in, int link) {
    PutAt(Main, link, Nowhere); // it holds no cell itself
    PutAt(Main, link, NextFreeCell(Main, in));
}

// Below the one before it, as long as that is free and inside; else in the next free cell.
void PutBelow(frmMain& Main, Parent in, int link, int before) {
    const Rect above = LabelPlace(Main, before);
    const auto spacing = static_cast<float>(RowSpacing(Main, in));
    PutAt(Main, link, SnapToGrid(Main, in, {above.Left, above.Bottom() + spacing}));
    const bool inside = LabelPlace(Main, link).Bottom() <= HeightOf(Main, in);
    if (!inside || !IsFree(Main, in, link)) PutInFreeCell(Main, in, link);
}

void PutInside(frmMain& Main, Parent in, int link, Point at) {
    PutAt(Main, link, SnapToGrid(Main, in, at));
    CheckBoundaries(Main, {MovedKind::Shortcut, link}, true);
}

void GrowToContent(frmMain& Main, int container) {
    Rect& place = Main.ConView(container).Container.Place;
    const float lowest = Main.View.picBack.Place.Height - measures::EdgeGap - place.Top;
    const float needed = measures::ContainerTitle + ContentHeight(Main, container) + measures::FootHeight;
    const float height = std::min(needed, lowest);
    if (height <= place.Height) return;
    place.Height = height;
    RememberPresentSize(Main, container);
    SetObjectRelativeSize(Main, container);
    DoRoundGradResizeSym(Main, container, true);
}

} // namespace

void PlaceNewShortcut(frmMain& Main, const DropPlace& place, int Index, int before) {
    SetNewLinkHeight(Main, Index);
    if (!ShowsPlace(Main, place)) return PutInFreeCell(Main, place.To, Index);
    if (before != -1) return PutBelow(Main, place.To, Index, before);
    PutInside(Main, place.To, Index, place.At);
}

void PlaceAddedShortcut(frmMain& Main, int Index) {
    const Parent in = Main.LinkView(Index).In;
    const Rect at = Main.LinkView(Index).lblShortcut.Place;
    SetNewLinkHeight(Main, Index);
    if (in.Kind == ParentKind::picBack) PutInside(Main, in, Index, {at.Left, at.Top});
    if (in.Kind == ParentKind::ContainerFrame || !IsFree(Main, in, Index)) PutInFreeCell(Main, in, Index);
}

bool ShowsAll(const frmMain& Main, Parent in) {
    return in.Kind == ParentKind::ContainerFrame && IsOpenFrame(Main, in.Index) &&
           !Main.ConView(in.Index).VScroll.Visible;
}

void FitToContent(frmMain& Main, Parent in, bool shownAll) {
    if (in.Kind == ParentKind::ContainerFrame) LayScrollBar(Main, in.Index);
    if (shownAll && Main.ConView(in.Index).VScroll.Visible) GrowToContent(Main, in.Index);
    MarkParent(Main, in);
}

} // namespace quill
