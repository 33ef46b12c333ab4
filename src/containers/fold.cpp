#include "containers/fold.h"

#include "appearance/effects.h"
#include "appearance/tips.h"
#include "containers/full_size.h"
#include "containers/layout.h"
#include "containers/measures.h"
#include "containers/near_edge.h"
#include "core/objects.h"
#include "core/tr.h"
#include "persistence/save.h"
#include "platform/clock.h"

namespace quill {
namespace {

constexpr int dblClickGuardTime = 500; // milliseconds

void ShowFeed(frmMain& Main, int Index, bool shown) {
    const int row = Main.Con(Index).RSSListIndex;
    if (row >= 0 && static_cast<std::size_t>(row) < Main.FeedViews.size()) Main.Feed(Index).Visible = shown;
}

void Lay(frmMain& Main, int Index) {
    SetObjectRelativeSize(Main, Index);
    DoRoundGradResizeSym(Main, Index, true);
}

void Fold(frmMain& Main, int Index) {
    auto& container = Main.Con(Index);
    auto& view = Main.ConView(Index);
    Main.Group.ContainerHasFocus = false;
    RememberPresentSize(Main, Index);
    view.FoldMark = "+";
    view.FoldTip = Tr(Main, "Unfold | Double-Click Container Label");
    ShowFeed(Main, Index, false);
    if (container.CloseToEdgeY) view.Container.Place.Top = container.StoredSize().Y;
    view.Container.Place.Height = FoldedHeight;
    if (Main.Group.ExpandedContainer == Index) Main.Group.ExpandedContainer = -1;
    Main.Group.AutoFoldContainerIndex = -1;
    Lay(Main, Index);
}

void Unfold(frmMain& Main, int Index) {
    auto& view = Main.ConView(Index);
    Main.Group.ContainerHasFocus = true;
    view.Container.Place.Height = FullSize(Main, Index).Height;
    view.FoldMark = "-";
    view.FoldTip = Tr(Main, "Fold | Double-Click Container Label");
    const bool runsOff = view.Container.Place.Bottom() > Main.View.picBack.Place.Height;
    KeepAboveLowerEdge(Main, Index, runsOff);
    ShowFeed(Main, Index, !view.ContainerNote.Visible);
    Main.Con(Index).IconsDrawn = true;
    Lay(Main, Index);
}

// Only folding has an effect. The title row that is left stays in sight meanwhile.
void ShowFold(frmMain& Main, int Index, const Rect& open) {
    Implode(Main, Index, open, Main.ConView(Index).Container.Place, false);
}

} // namespace

void FoldUnfoldContainer(frmMain& Main, int Index, bool UseEffect) {
    if (!IsLive(Main.Containers, Index)) return;
    const bool folded = IsFolded(Main, Index);
    if (!folded && IsShrunk(Main, Index)) return; // a tile is never folded
    HideTip(Main);
    if (Main.Group.ExpandingContainer == Index) EndEffect(Main);
    const Rect open = Main.ConView(Index).Container.Place;
    Main.Group.CurrentContainer = Index;
    folded ? Unfold(Main, Index) : Fold(Main, Index);
    if (UseEffect && !folded && FoldEffectWanted(Main)) ShowFold(Main, Index, open);
}

void AutoFoldContainer(frmMain& Main, int Index) {
    const bool wanted =
        Index != -1 && Index == Main.Group.AutoFoldContainerIndex && Main.Settings.FoldOnClick;
    if (!wanted || !IsLive(Main.Containers, Index) || Main.Con(Index).Detached) return;
    if (!IsFolded(Main, Index)) FoldUnfoldContainer(Main, Index, false);
}

// An open container that was moved up when it was saved folds to the place that it came from, just above the
// lower edge.
void FlipFoldedNote(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    auto& container = Main.Con(Index);
    const auto& place = Main.ConView(Index).Container.Place;
    const float floor = Main.View.picBack.Place.Height; // not known yet early in a load
    if (floor > 0 && place.Bottom() > floor) KeepAboveLowerEdge(Main, Index, true);
    container.SetSize({.Y = place.Top + place.Height - 350});
    container.CloseToEdgeY = true;
    Main.Marks.Container(Index);
}

void lblFoldUnfold_Click(frmMain& Main, int Index) {
    FoldUnfoldContainer(Main, Index, true);
    SaveContainers(Main, true);
}

void ContainerLabel_DblClick(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    Main.Group.DblClickGuard = true;
    Main.P.Clock.Start({TimerName::TimerDblClickLabelDelay}, dblClickGuardTime);
    if (IsFolded(Main, Index)) {
        AutoFoldContainer(Main, Main.Group.AutoFoldContainerIndex);
        Main.Group.AutoFoldContainerIndex = Index;
    }
    FoldUnfoldContainer(Main, Index, false);
    SaveContainers(Main, true);
}

} // namespace quill
