#include "containers/shrink.h"

#include "appearance/effects.h"
#include "appearance/tips.h"
#include "containers/fold.h"
#include "containers/full_size.h"
#include "containers/hover.h"
#include "containers/layout.h"
#include "containers/lifecycle.h"
#include "containers/measures.h"
#include "containers/near_edge.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/mini_toolbar.h"
#include "platform/clock.h"

#include <algorithm>
#include <utility>

namespace quill {
namespace {

constexpr int dontShrinkTime = 20; // milliseconds

// A tile is never folded.
void SetOpenMark(frmMain& Main, int Index) {
    Main.ConView(Index).FoldMark = "-";
    Main.ConView(Index).FoldTip = Tr(Main, "Fold | Double-Click Container Label");
}

// Centred on the tile, with a gap at the right edge; a tile too near to the left edge keeps its Left.
void CentreOnTile(frmMain& Main, Rect& place, const Rect& tile) {
    float left = tile.Left + tile.Width / 2 - place.Width / 2;
    const float back = Main.View.picBack.Place.Width;
    if (left + place.Width + measures::EdgeGap >= back) left = back - place.Width - measures::EdgeGap;
    if (left >= 0) place.Left = left;
}

void TakeFullSize(frmMain& Main, int Index) {
    auto& place = Main.ConView(Index).Container.Place;
    const Rect tile = place;
    const auto full = FullSize(Main, Index);
    RememberPlace(Main, Index);
    place.Width = full.Width;
    place.Height = full.Height;
    CentreOnTile(Main, place, tile);
    KeepAboveLowerEdge(Main, Index, place.Bottom() >= Main.View.picBack.Place.Height);
}

void ShowOpen(frmMain& Main, int Index) {
    auto& container = Main.Con(Index);
    Main.ConView(Index).ContainerIcon.Visible = false;
    SetObjectRelativeSize(Main, Index);
    DoRoundGradResizeSym(Main, Index, true);
    ShowHideContainerToolbar(Main, Index, !container.HideToolbar);
    if (!container.RSS) container.IconsDrawn = true;
}

void GrabFocus(frmMain& Main, int Index) {
    auto& view = Main.ConView(Index);
    if (!Main.Settings.GrabFocus || !view.PinPressed) return;
    ++view.ContainerNote.FocusWish;
    Main.Marks.Note(Index);
}

// Only one container is open for a moment, also when a menu or an effect held the other one. That closes at
// once, because there is one effect at a time and the new one has it.
void ShrinkOther(frmMain& Main, int Index) {
    Main.Group.HoldExpanded = false;
    if (Main.Group.ExpandedContainer == -1) return;
    Main.Group.JustExpanded = false; // that was about the other one
    ShrinkBackContainer(Main, false);
    Main.Group.CurrentContainer = Index;
    Main.Group.ContainerHasFocus = true;
}

// The click that opened it comes to its end within this time and must not close it again.
void GuardAgainstSameClick(frmMain& Main) {
    if (Main.IsLoading) return;
    Main.Group.JustExpanded = true;
    Main.P.Clock.Start({TimerName::TimerDontShrink}, dontShrinkTime);
}

using Effect = void (*)(frmMain&, int, const Rect&, const Rect&);

void RunImplode(frmMain& Main, int Index, const Rect& start, const Rect& end) {
    Implode(Main, Index, start, end, false);
}

// It has its final place already; with an effect it stays hidden until that is over. What a tag view hides
// stays so.
void ShowAgain(frmMain& Main, int Index, const Rect& start, Effect effect) {
    auto& shown = Main.ConView(Index).Container;
    shown.Visible = !effect && !Main.Con(Index).tag;
    if (effect) effect(Main, Index, start, shown.Place);
}

// Null when it is shown at once.
Effect EffectOf(const frmMain& Main, int Index, bool wanted, Effect effect) {
    return wanted && !Main.Con(Index).tag ? effect : nullptr;
}

void Expand(frmMain& Main, int Index, bool UseEffect) {
    AddToZorderCollection(Main, {KindContainer, Index}, false);
    if (Main.Group.SuspendAutoExpand) return;
    AutoFoldContainer(Main, Main.Group.AutoFoldContainerIndex);
    Main.Group.CurrentContainer = Index;
    Main.Group.ContainerHasFocus = true;
    const Rect tile = Main.ConView(Index).Container.Place;
    Main.ConView(Index).Container.Visible = false;
    GrabFocus(Main, Index);
    SetOpenMark(Main, Index);
    TakeFullSize(Main, Index);
    ShowOpen(Main, Index);
    ShrinkOther(Main, Index);
    Main.Group.ExpandedContainer = Index;
    GuardAgainstSameClick(Main);
    ShowAgain(Main, Index, tile, EffectOf(Main, Index, UseEffect && ExplodeWanted(Main), &Explode));
}

// One that was opened for a moment goes back to its tile's place; any other shrinks where it stands.
void ReturnToPlace(frmMain& Main, int Index) {
    auto& place = Main.ConView(Index).Container.Place;
    const auto& stored = Main.Con(Index).StoredSize();
    if (Main.Group.ExpandedContainer == Index) {
        place.Left = stored.X;
        place.Top = stored.Y;
    }
    place.Left = std::max(0.0F, place.Left);
    RememberPlace(Main, Index);
}

void TakeTileSize(frmMain& Main, int Index) {
    auto& place = Main.ConView(Index).Container.Place;
    const auto tile = Main.Con(Index).ShrinkSize();
    place.Width = static_cast<float>(tile.Width);
    place.Height = static_cast<float>(tile.Height);
}

void Shrink(frmMain& Main, int Index, bool UseEffect) {
    auto& view = Main.ConView(Index);
    const Rect full = view.Container.Place;
    Main.Group.ContainerHasFocus = false;
    view.Container.Visible = false;
    Main.Group.LastShrunkBack = Index;
    RememberPresentSize(Main, Index);
    ReturnToPlace(Main, Index);
    SetOpenMark(Main, Index);
    TakeTileSize(Main, Index);
    Main.Group.AutoFoldContainerIndex = -1;
    SetObjectRelativeSize(Main, Index);
    DoRoundGradResizeSym(Main, Index, false);
    AddShrinkIcon(Main, Main.Con(Index).ShrinkPath, Index);
    view.ContainerIcon.Visible = true;
    if (Main.Group.ExpandedContainer == Index) Main.Group.ExpandedContainer = -1;
    ForgetShrunkBackIfLeft(Main);
    ShowAgain(Main, Index, full, EffectOf(Main, Index, UseEffect && ImplodeWanted(Main), &RunImplode));
}

// Nobody waits for an effect of a window that is going away.
bool IsGoingAway(const frmMain& Main) {
    return Main.IsExiting || Main.Dock.DockPosition != 0;
}

bool CanShrinkBack(const frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index) || Main.Con(Index).Detached) return false;
    if (Index == Main.Group.ExpandingContainer || Main.ConView(Index).ContainerIcon.Visible) return false;
    return !Main.Group.FrameLinkGroup || Main.Con(Index).tag; // else the frame of a group is being dragged
}

} // namespace

void ExpandShrinkContainer(frmMain& Main, int Index, bool UseEffect) {
    if (!IsLive(Main.Containers, Index)) return;
    const bool shrunk = IsShrunk(Main, Index);
    if (!shrunk && Main.Group.JustExpanded && !Main.IsLoading && !Main.IsExiting) return;
    HideTip(Main);
    EndEffect(Main);
    CloseMiniToolbar(Main); // what it stands beside comes or goes
    Main.Group.CurrentContainer = Index;
    shrunk ? Expand(Main, Index, UseEffect) : Shrink(Main, Index, UseEffect);
    Main.Marks.Container(Index);
}

void ShrinkBackContainer(frmMain& Main, bool UseEffect) {
    if (Main.Group.HoldExpanded) return;
    Main.Group.LastShrunkBack = -1;
    if (IsGoingAway(Main)) EndEffect(Main);
    const int index = Main.Group.ExpandedContainer;
    if (CanShrinkBack(Main, index)) ExpandShrinkContainer(Main, index, UseEffect);
}

void TimerDontShrink_Timer(frmMain& Main) {
    Main.P.Clock.Stop({TimerName::TimerDontShrink});
    Main.Group.JustExpanded = false;
    MouseElsewhere(Main); // it may have left meanwhile
}

} // namespace quill
