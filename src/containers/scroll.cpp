#include "containers/scroll.h"

#include "containers/layout.h"
#include "containers/measures.h"
#include "core/handlers.h"
#include "core/objects.h"
#include "core/shortcut_lists.h"
#include "notes/notes.h"

#include <algorithm>
#include <vector>

namespace quill {
namespace {

float LinkBottom(const frmMain& Main, int Index) {
    return std::max(LabelPlace(Main, Index).Bottom(), IconPlace(Main, Index).Bottom());
}

// What a bar has to do: nothing on a tile, a folded container or over a note, which scrolls itself.
bool CanScroll(const frmMain& Main, int Index) {
    const auto& view = Main.ConView(Index);
    return !view.ContainerNote.Visible && !Main.Con(Index).RSS && !IsFolded(Main, Index) &&
           !IsShrunk(Main, Index);
}

float FurthestTop(const ContainerView& view, float content) {
    return std::max(0.0F, content - view.ContainerFrame.Place.Height);
}

// A folded container keeps how far it was scrolled.
void Lay(frmMain& Main, int Index, float content) {
    using namespace measures;
    auto& view = Main.ConView(Index);
    const auto& frame = view.ContainerFrame.Place;
    const bool can = CanScroll(Main, Index);
    if (can) view.ScrollTop = std::clamp(view.ScrollTop, 0.0F, FurthestTop(view, content));
    view.VScroll.Visible = can && content > frame.Height;
    view.VScroll.Place = {std::max(0.0F, frame.Width - ScrollBarFromRight), ScrollBarTop, ScrollBarWidth,
                          std::max(0.0F, frame.Height - FootHeight - ScrollBarTop)};
}

float PicturesBottom(const frmMain& Main, int Index, ObjectRef except = {}) {
    float bottom = 0;
    for (const auto& row : Live(Main.Pictures)) {
        const auto& picture = Main.PicView(row.Index);
        if (except == ObjectRef{MovedKind::Picture, row.Index}) continue;
        if (picture.In == InContainer(Index)) bottom = std::max(bottom, picture.PicContainer.Bottom());
    }
    return bottom;
}

float HeightByLists(const frmMain& Main, int Index, const ShortcutLists& lists) {
    float height = PicturesBottom(Main, Index);
    lists.Each(Main, InContainer(Index), [&](int link) {
        if (Main.LinkView(link).Visible) height = std::max(height, LinkBottom(Main, link));
    });
    return height;
}

Rect Thumb(const ContainerView& view, float content) {
    const auto& bar = view.VScroll.Place;
    const float seen = view.ContainerFrame.Place.Height;
    const float wanted = std::max(measures::ScrollThumbSmallest, bar.Height * seen / std::max(content, 1.0F));
    const float height = std::min(bar.Height, wanted);
    const float furthest = FurthestTop(view, content);
    const float part = furthest > 0 ? view.ScrollTop / furthest : 0;
    return {bar.Left, bar.Top + part * (bar.Height - height), bar.Width, height};
}

float TopOfThumb(const frmMain& Main, int Index, float thumbTop) {
    const auto& view = Main.ConView(Index);
    const auto thumb = ScrollThumb(Main, Index);
    const float way = view.VScroll.Place.Height - thumb.Height;
    const float part = way > 0 ? (thumbTop - view.VScroll.Place.Top) / way : 0;
    return part * FurthestTop(view, ContentHeight(Main, Index));
}

} // namespace

float ContentHeight(const frmMain& Main, int Index) {
    return ContentHeight(Main, Index, ObjectRef{});
}

float ContentHeight(const frmMain& Main, int Index, ObjectRef except) {
    float height = PicturesBottom(Main, Index, except);
    EachShortcutIn(Main, InContainer(Index), [&](int link) {
        if (except == ObjectRef{MovedKind::Shortcut, link}) return;
        if (Main.LinkView(link).Visible) height = std::max(height, LinkBottom(Main, link));
    });
    return height;
}

void ScrollContainer(frmMain& Main, int Index, float top) {
    if (!IsLive(Main.Containers, Index) || !CanScroll(Main, Index)) return;
    auto& view = Main.ConView(Index);
    const float wanted = std::clamp(top, 0.0F, FurthestTop(view, ContentHeight(Main, Index)));
    if (wanted == view.ScrollTop) return;
    view.ScrollTop = wanted;
    Main.Marks.Container(Index);
    for (const auto& row : Live(Main.Pictures)) {
        if (Main.PicView(row.Index).In == InContainer(Index)) Main.Marks.Picture(row.Index);
    }
}

void LayScrollBar(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    const bool was = Main.ConView(Index).VScroll.Visible;
    Lay(Main, Index, ContentHeight(Main, Index));
    if (was != Main.ConView(Index).VScroll.Visible) Main.Marks.Container(Index);
}

void LayAllScrollBars(frmMain& Main) {
    std::vector<float> heights(Main.Containers.size(), 0.0F);
    const auto count = [&](const Parent& in, float bottom) {
        if (in.Kind != ParentKind::ContainerFrame || !IsLive(Main.Containers, in.Index)) return;
        auto& height = heights[static_cast<std::size_t>(in.Index)];
        height = std::max(height, bottom);
    };
    for (const auto& row : Live(Main.Shortcuts)) {
        const auto& link = Main.LinkView(row.Index);
        if (link.Visible) count(link.In, LinkBottom(Main, row.Index));
    }
    for (const auto& row : Live(Main.Pictures)) {
        count(Main.PicView(row.Index).In, Main.PicView(row.Index).PicContainer.Bottom());
    }
    for (const auto& row : Live(Main.Containers))
        Lay(Main, row.Index, heights[static_cast<std::size_t>(row.Index)]);
}

Rect ScrollThumb(const frmMain& Main, int Index) {
    const auto& view = Main.ConView(Index);
    return view.VScroll.Visible ? Thumb(view, ContentHeight(Main, Index)) : Rect{};
}

Rect ScrollThumb(const frmMain& Main, int Index, const ShortcutLists& lists) {
    const auto& view = Main.ConView(Index);
    return view.VScroll.Visible ? Thumb(view, HeightByLists(Main, Index, lists)) : Rect{};
}

void VScroll_MouseDown(frmMain& Main, int Index, const MouseEvent& event) {
    if (!IsLive(Main.Containers, Index) || event.Button != MouseButton::Left) return;
    const auto& view = Main.ConView(Index);
    const auto thumb = ScrollThumb(Main, Index);
    const float y = event.At.Y - view.ContainerFrame.Place.Top, page = view.ContainerFrame.Place.Height;
    if (y < thumb.Top) return ScrollContainer(Main, Index, view.ScrollTop - page);
    if (y >= thumb.Bottom()) return ScrollContainer(Main, Index, view.ScrollTop + page);
    Main.Group.ScrollingContainer = Index;
    Main.Group.ScrollGrip = y - thumb.Top;
}

void VScroll_MouseMove(frmMain& Main, const MouseEvent& event) {
    const int index = Main.Group.ScrollingContainer;
    if (!IsLive(Main.Containers, index)) return;
    const float y = event.At.Y - Main.ConView(index).ContainerFrame.Place.Top;
    ScrollContainer(Main, index, TopOfThumb(Main, index, y - Main.Group.ScrollGrip));
}

void VScroll_MouseUp(frmMain& Main) {
    Main.Group.ScrollingContainer = -1;
}

void ContainerFrame_MouseWheel(frmMain& Main, int Index, int steps) {
    if (!IsLive(Main.Containers, Index)) return;
    const auto& view = Main.ConView(Index);
    const float way = static_cast<float>(steps) * WheelStep;
    if (view.ContainerNote.Visible) return ScrollNote(Main, Index, view.ContainerNote.ScrollTop - way);
    ScrollContainer(Main, Index, view.ScrollTop - way);
}

} // namespace quill
