#include "containers/layout.h"

#include "containers/measures.h"
#include "containers/scroll.h"
#include "core/objects.h"

#include <algorithm>

namespace quill {
namespace {

float AtLeastZero(float size) {
    return std::max(0.0F, size);
}

void LayTitleRow(ContainerView& view, float width) {
    using namespace measures;
    view.shapeShrink.Place = {ShrinkMarkLeft, ShrinkMarkTop, ShrinkMarkEdge, ShrinkMarkEdge};
    view.ContainerLabel.Place = {LabelLeft, LabelTop, AtLeastZero(width - LabelNarrower), LabelHeight};
    view.lblFoldUnfold.Place = {AtLeastZero(width - FoldFromRight), MarkTop, MarkEdge, MarkEdge};
    view.lblPinNote.Place = {AtLeastZero(width - PinFromRight), MarkTop, MarkEdge, MarkEdge};
    view.shapeTags.Place = {AtLeastZero(width - TagsFromRight), StateMarkTop, StateMarkEdge, StateMarkEdge};
    view.shapeNoteIndicator.Place = {AtLeastZero(width - NoteMarkFromRight), StateMarkTop, StateMarkEdge,
                                     StateMarkEdge};
}

void LayFrame(ContainerView& view) {
    using namespace measures;
    const auto& box = view.Container.Place;
    view.ContainerFrame.Place = {0, ContainerTitle, box.Width, AtLeastZero(box.Height - ContainerTitle)};
}

// The note keeps the size that it has on the open frame while that is folded away.
void LayNote(ContainerView& view) {
    using namespace measures;
    const auto& frame = view.ContainerFrame.Place;
    view.ContainerNote.Place = {NoteLeft, NoteTop, AtLeastZero(frame.Width - NoteNarrower),
                                AtLeastZero(frame.Height - NoteLower)};
}

// With no title row above it the list takes that room too.
void LayFeed(frmMain& Main, int Index) {
    using namespace measures;
    const auto& container = Main.Con(Index);
    const auto row = static_cast<std::size_t>(container.RSSListIndex);
    if (!container.RSS || container.RSSListIndex < 0 || row >= Main.FeedViews.size()) return;
    const auto& frame = Main.ConView(Index).ContainerFrame.Place;
    auto& list = Main.FeedViews[row].Place;
    list = {FeedLeft, NoteTop, AtLeastZero(frame.Width - FeedNarrower),
            AtLeastZero(frame.Height - NoteLower)};
    if (!container.HideToolbar) return;
    list.Left += FeedInward;
    list.Top += FeedInward - ContainerTitle;
    list.Height += ContainerTitle - FeedInward;
}

void LayOpenFrame(frmMain& Main, int Index) {
    LayNote(Main.ConView(Index));
    LayFeed(Main, Index);
}

void ShowTitleRow(ContainerView& view, bool shown, bool tile) {
    view.ContainerLabel.Visible = shown;
    view.lblFoldUnfold.Visible = shown;
    view.lblPinNote.Visible = shown;
    view.shapeShrink.Visible = !tile;
}

void LayTile(ContainerView& view) {
    using namespace measures;
    const float top = AtLeastZero(view.Container.Place.Height - TileTagsFromBottom);
    view.shapeTags.Place = {TileTagsLeft, top, StateMarkEdge, StateMarkEdge};
}

// A folded container or a reminder would be lost without its title row.
bool KeepsTitleRow(const frmMain& Main, int Index) {
    return IsFolded(Main, Index) || Main.Con(Index).IsReminder();
}

void ShowStateMarks(frmMain& Main, int Index, bool tile) {
    auto& view = Main.ConView(Index);
    const bool tiny = tile && Main.Con(Index).ShrinkSize().Width == measures::TinyTileWidth;
    const auto& text = view.ContainerNote.Text;
    const bool hasText = text.find_first_not_of(" \t\r\n") != std::string::npos;
    view.shapeTags.Visible = !tiny && !Main.Con(Index).ShowingTag.empty();
    view.shapeNoteIndicator.Visible = !tile && hasText && !view.ContainerNote.Visible;
}

} // namespace

void SetObjectRelativeSize(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    auto& view = Main.ConView(Index);
    const bool tile = IsShrunk(Main, Index);
    LayTitleRow(view, view.Container.Place.Width);
    LayFrame(view);
    if (tile)
        LayTile(view);
    else if (!IsFolded(Main, Index))
        LayOpenFrame(Main, Index);
    view.ContainerIcon.Visible = tile;
    ShowHideContainerToolbar(Main, Index, !Main.Con(Index).HideToolbar);
    if (!Main.IsLoading) LayScrollBar(Main, Index);
}

void DoRoundGradResizeSym(frmMain& Main, int Index, bool /*RedrawResizeMark*/) {
    if (!IsLive(Main.Containers, Index)) return;
    Main.ConView(Index).Gradient = Main.Settings.GradientContainers && !IsShrunk(Main, Index);
    Main.Marks.Container(Index);
}

Rect ResizeMarkPlace(const Rect& box) {
    using namespace measures;
    return {box.Right() - ResizeMarkFromRight - ResizeMarkEdge,
            box.Bottom() - ResizeMarkFromBottom - ResizeMarkEdge, ResizeMarkEdge, ResizeMarkEdge};
}

void ShowHideContainerToolbar(frmMain& Main, int Index, bool Show) {
    if (!IsLive(Main.Containers, Index)) return;
    const bool tile = IsShrunk(Main, Index);
    ShowTitleRow(Main.ConView(Index), !tile && (Show || KeepsTitleRow(Main, Index)), tile);
    ShowStateMarks(Main, Index, tile);
    Main.Marks.Container(Index);
}

} // namespace quill
