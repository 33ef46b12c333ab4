#include "containers/hover.h"

#include "appearance/effects.h"
#include "containers/fold.h"
#include "containers/measures.h"
#include "containers/shrink.h"
#include "core/handlers.h"
#include "core/objects.h"
#include "dock/sliding.h"
#include "platform/clock.h"

#include <cmath>
#include <utility>

namespace quill {
namespace {

constexpr TimerId expandTimer{TimerName::TimerExpandContainer};
constexpr TimerId dragTimer{TimerName::TimerExpandUnfoldOnDrag};
constexpr TimerId suspendTimer{TimerName::TimerSuspendAutoExpand};

// Milliseconds.
constexpr int dragDelay = 500;
constexpr int suspendTime = 500;

constexpr float zoneAtBottom = 300; // from the lower edge, where the mark has moved there

int ExpandDelay(int setting) {
    return setting == 1 ? 250 : setting == 2 ? 500 : 100;
}

bool IsStill(Point from, Point now) {
    const float most = StillnessPixels * TwipsPerPixel;
    return std::abs(now.X - from.X) <= most && std::abs(now.Y - from.Y) <= most;
}

Rect OnDesktop(const frmMain& Main, const Rect& place) {
    const auto& back = Main.View.picBack.Place;
    return {Main.View.Window.Left + back.Left + place.Left, Main.View.Window.Top + back.Top + place.Top,
            place.Width, place.Height};
}

// Where it goes back to.
Rect TilePlace(const frmMain& Main, int Index) {
    const auto& stored = Main.Con(Index).StoredSize();
    const auto tile = Main.Con(Index).ShrinkSize();
    return {stored.X, stored.Y, static_cast<float>(tile.Width), static_cast<float>(tile.Height)};
}

void StopHover(frmMain& Main) {
    Main.Group.HoverContainer = -1;
    Main.P.Clock.Stop(expandTimer);
}

// A hand that holds something, a menu or a question: what lies under the mouse is not meant.
bool HandIsBusy(const frmMain& Main) {
    return Main.Dock.WorkspaceDragging || Main.Dock.DialogPauses > 0 || Main.Group.Drag.Pressed != -1 ||
           Main.Group.frmSelection.Loaded;
}

// Someone who types is not interrupted by a mouse that drifts.
bool IsTypedInto(const frmMain& Main, int Index) {
    return Main.Group.CurrentContainer == Index && Main.P.Clock.IsRunning({TimerName::TimerSaveNotes});
}

bool MayWait(const frmMain& Main, int Index) {
    return Main.Settings.AutoExpand && Main.ConView(Index).ContainerIcon.Visible &&
           Main.Group.HoverContainer != Index && Main.Group.LastShrunkBack != Index;
}

void WaitOrExpand(frmMain& Main, int Index) {
    if (!MayWait(Main, Index)) return;
    Main.Group.HoverContainer = Index;
    Main.Group.HoverAt = Main.P.Windows.GetCursorPos();
    if (Main.Settings.AutoExpandDelay != 0)
        return Main.P.Clock.Start(expandTimer, ExpandDelay(Main.Settings.AutoExpandDelay));
    HoverExpand(Main, Index);
    StopHover(Main);
}

// False while the same click or gesture goes on, or the strip about what is selected in it is pointed at; it
// is asked again at the next move.
bool MayCloseLeft(const frmMain& Main, int Index) {
    return !HandIsBusy(Main) && !Main.Group.HoldExpanded && !IsTypedInto(Main, Index) &&
           !CursorOverWindow(Main, MiniToolbarWindow);
}

void CloseNow(frmMain& Main, int Index) {
    if (Main.Group.ExpandingContainer == Index) EndEffect(Main);
    ShrinkBackContainer(Main, true);
}

// What the mouse was over and has left.
void CloseLeft(frmMain& Main) {
    const int left = Main.Group.MouseContainer;
    if (left == -1 || MouseIsOver(Main, left)) return;
    if (left == Main.Group.LastShrunkBack) Main.Group.LastShrunkBack = -1;
    if (left == Main.Group.ExpandedContainer) {
        if (!MayCloseLeft(Main, left)) return;
        CloseNow(Main, left);
        if (left == Main.Group.ExpandedContainer) return;
    }
    Main.Group.MouseContainer = -1;
}

// One that an effect hides is the one under the mouse all the same: it will be seen there, and a mouse that
// has come to rest tells nothing more. True when there is one.
bool HoverHidden(frmMain& Main) {
    const int hidden = Main.Group.ExpandingContainer;
    if (!MouseIsOver(Main, hidden)) return false;
    if (Main.Group.MouseContainer == -1) Main.Group.MouseContainer = hidden;
    const Point at = Main.P.Windows.GetCursorPos();
    const Rect place = OnDesktop(Main, Main.ConView(hidden).Container.Place);
    if (InShrinkZone(Main, hidden, {at.X - place.Left, at.Y - place.Top})) WaitOrExpand(Main, hidden);
    return true;
}

void OpenUnderDrag(frmMain& Main, int Index) {
    if (IsShrunk(Main, Index)) {
        ShrinkBackContainer(Main, false);
        ExpandShrinkContainer(Main, Index, false);
    } else if (IsFolded(Main, Index)) {
        AutoFoldContainer(Main, Main.Group.AutoFoldContainerIndex);
        FoldUnfoldContainer(Main, Index, false);
        Main.Group.AutoFoldContainerIndex = Index;
    }
}

} // namespace

bool InShrinkZone(const frmMain& Main, int Index, Point at) {
    if (!IsLive(Main.Containers, Index) || at.X >= measures::ShrinkZoneWidth) return false;
    const auto& view = Main.ConView(Index);
    const bool markMoved = view.shapeShrink.Place.Left != measures::ShrinkMarkLeft;
    return at.Y < measures::ShrinkZoneHeight ||
           (markMoved && at.Y > view.Container.Place.Height - zoneAtBottom);
}

bool MouseIsOver(const frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return false;
    const Point at = Main.P.Windows.GetCursorPos();
    const auto over = [&](const Rect& place) { return OnDesktop(Main, place).Contains(at.X, at.Y); };
    return over(Main.ConView(Index).Container.Place) ||
           (Index == Main.Group.ExpandedContainer && over(TilePlace(Main, Index)));
}

void ForgetShrunkBackIfLeft(frmMain& Main) {
    if (!MouseIsOver(Main, Main.Group.LastShrunkBack)) Main.Group.LastShrunkBack = -1;
}

void Container_MouseMove(frmMain& Main, int Index, const MouseEvent& event) {
    if (!IsLive(Main.Containers, Index)) return;
    if (Index != Main.Group.MouseContainer) CloseLeft(Main);
    if (Index != Main.Group.ExpandingContainer && HoverHidden(Main)) return;
    Main.Group.MouseContainer = Index;
    if (Index != Main.Group.LastShrunkBack) Main.Group.LastShrunkBack = -1;
    if (InShrinkZone(Main, Index, event.At)) return WaitOrExpand(Main, Index);
    if (Main.Group.ExpandedContainer != -1 && Index != Main.Group.ExpandedContainer)
        ShrinkBackContainer(Main, false);
}

void Container_MouseLeave(frmMain& Main, int Index) {
    if (Index == Main.Group.HoverContainer && !MouseIsOver(Main, Index)) StopHover(Main);
    if (Index == Main.Group.MouseContainer) MouseElsewhere(Main);
}

void Picture_MouseMove(frmMain& Main, int Picture) {
    const auto& in = Main.PicView(Picture).In;
    const bool framed = in.Kind == ParentKind::ContainerFrame;
    if (framed && Main.Group.MouseContainer == -1) Main.Group.MouseContainer = in.Index;
    MouseElsewhere(Main);
}

void MouseElsewhere(frmMain& Main) {
    CloseLeft(Main);
    HoverHidden(Main);
}

void TimerExpandContainer_Timer(frmMain& Main) {
    const int index = Main.Group.HoverContainer;
    const bool still = IsStill(Main.Group.HoverAt, Main.P.Windows.GetCursorPos());
    StopHover(Main);
    if (still) HoverExpand(Main, index);
}

void HoverExpand(frmMain& Main, int Index) {
    if (HandIsBusy(Main) || Main.Group.SuspendAutoExpand || !Main.Settings.AutoExpand) return;
    if (Index == Main.Group.LastShrunkBack) return;
    ShrinkBackContainer(Main, true);
    if (!IsLive(Main.Containers, Index) || !Main.ConView(Index).ContainerIcon.Visible) return;
    ExpandShrinkContainer(Main, Index, true);
}

void DragEnteredFrame(frmMain& Main) {
    Main.Group.SuspendAutoExpand = true;
    Main.Group.HoldExpanded = false;
    Main.P.Clock.Start(suspendTimer, suspendTime);
    if (!MouseIsOver(Main, Main.Group.ExpandedContainer)) ShrinkBackContainer(Main, true);
}

void TimerSuspendAutoExpand_Timer(frmMain& Main) {
    Main.Group.SuspendAutoExpand = false;
    Main.P.Clock.Stop(suspendTimer);
}

// The half second counts from where the pointer came to rest: a pointer at rest sends no further moves that
// could begin it again.
void DragOverContainer(frmMain& Main, int Index, Point screen) {
    auto& group = Main.Group;
    if (!IsLive(Main.Containers, Index) || !(IsShrunk(Main, Index) || IsFolded(Main, Index)))
        return DragLeftContainer(Main);
    if (group.DragHoverContainer == Index && IsStill(group.DragHoverAt, screen)) return;
    group.DragHoverContainer = Index;
    group.DragHoverAt = screen;
    Main.P.Clock.Start(dragTimer, dragDelay);
}

void DragLeftContainer(frmMain& Main) {
    Main.Group.DragHoverContainer = -1;
    Main.P.Clock.Stop(dragTimer);
}

// It opens at once: an effect would hide what the drag is over, and a drop would miss it.
void TimerExpandUnfoldOnDrag_Timer(frmMain& Main) {
    const int index = Main.Group.DragHoverContainer;
    DragLeftContainer(Main);
    if (!IsLive(Main.Containers, index)) return;
    TimerSuspendAutoExpand_Timer(Main); // that was against what opens unasked
    OpenUnderDrag(Main, index);
    Main.Group.MouseContainer = index; // it closes again when the mouse leaves it
}

} // namespace quill
