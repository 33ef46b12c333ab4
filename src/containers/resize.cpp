#include "containers/resize.h"

#include "containers/boundaries.h"
#include "containers/full_size.h"
#include "containers/layout.h"
#include "containers/lifecycle.h"
#include "containers/lock.h"
#include "containers/selection.h"
#include "containers/undo.h"
#include "core/handlers.h"
#include "core/objects.h"
#include "persistence/save.h"

#include <algorithm>
#include <utility>

namespace quill {
namespace {

constexpr float firstStep = 3000, secondStep = 6000, thirdStep = 9000; // twips, square

bool CanResize(const frmMain& Main, int Index) {
    return IsLive(Main.Containers, Index) && MayMoveContainers(Main) && !IsFolded(Main, Index) &&
           !IsShrunk(Main, Index);
}

void ApplySize(frmMain& Main, int Index, Size size) {
    auto& place = Main.ConView(Index).Container.Place;
    place.Width = size.Width;
    place.Height = size.Height;
    SetObjectRelativeSize(Main, Index);
    DoRoundGradResizeSym(Main, Index, true);
}

// Not smaller than its tile, and not so large that the mark would leave the workspace and the hand lose it.
Size Possible(const frmMain& Main, int Index, Size wanted) {
    const auto& back = Main.View.picBack.Place;
    const auto& place = Main.ConView(Index).Container.Place;
    const auto tile = Main.Con(Index).ShrinkSize();
    return {std::max(static_cast<float>(tile.Width), std::min(wanted.Width, back.Width - place.Left)),
            std::max(static_cast<float>(tile.Height), std::min(wanted.Height, back.Height - place.Top))};
}

// One that was brought to exactly the size of its tile is one from now on.
void Remember(frmMain& Main, int Index) {
    RememberPresentSize(Main, Index);
    if (IsShrunk(Main, Index)) AddShrinkIcon(Main, Main.Con(Index).ShrinkPath, Index);
}

void Settle(frmMain& Main, int Index) {
    Remember(Main, Index);
    SaveContainers(Main, true);
}

// A step may reach over the edge: the container moves so that its mark can be pressed again, as far as its
// title stays in sight. The place that it comes back to when it closes stays as it was.
void KeepMarkInSight(frmMain& Main, int Index) {
    const auto before = PlaceNow(Main, MovedKind::Container, Index);
    if (BringInside(Main, Index)) PushMove(Main, {before});
}

std::vector<int> ResizedByKey(const frmMain& Main) {
    auto chosen = SelectedContainers(Main);
    if (chosen.empty()) chosen.push_back(Main.Group.CurrentContainer);
    std::erase_if(chosen, [&](int index) { return !CanResize(Main, index); });
    return chosen;
}

} // namespace

// With one side still at most the second step there is something left to grow.
Size NextAutoSize(Size now) {
    const float shorter = std::min(now.Width, now.Height), longer = std::max(now.Width, now.Height);
    if (longer <= firstStep) return {secondStep, secondStep};
    if (shorter <= secondStep) return {thirdStep, thirdStep};
    return {firstStep, firstStep};
}

void AutoResizeContainer(frmMain& Main, int Index) {
    if (!CanResize(Main, Index) || !NeedsEdit(Main, Edit::Containers)) return;
    const auto& place = Main.ConView(Index).Container.Place;
    ApplySize(Main, Index, NextAutoSize({place.Width, place.Height}));
    KeepMarkInSight(Main, Index);
    Settle(Main, Index);
}

void ResizeSymbol_MouseDown(frmMain& Main, int Index, const MouseEvent& event) {
    if (event.Button != MouseButton::Left) return AutoResizeContainer(Main, Index);
    if (!CanResize(Main, Index) || !NeedsEdit(Main, Edit::Containers)) return;
    RememberPresentSize(Main, Index); // what Escape goes back to
    const auto& place = Main.ConView(Index).Container.Place;
    Main.Group.ResizingContainer = Index;
    Main.Group.ResizeGrip = {place.Width - event.At.X, place.Height - event.At.Y};
}

void ResizeSymbol_MouseMove(frmMain& Main, const MouseEvent& event) {
    const int index = Main.Group.ResizingContainer;
    if (!IsLive(Main.Containers, index)) return;
    const auto& grip = Main.Group.ResizeGrip;
    ApplySize(Main, index, Possible(Main, index, {event.At.X + grip.Width, event.At.Y + grip.Height}));
}

void ResizeSymbol_MouseUp(frmMain& Main, const MouseEvent& event) {
    const int index = Main.Group.ResizingContainer;
    if (!IsLive(Main.Containers, index)) return;
    ResizeSymbol_MouseMove(Main, event);
    Main.Group.ResizingContainer = -1;
    Settle(Main, index);
}

void CancelResize(frmMain& Main) {
    const int index = std::exchange(Main.Group.ResizingContainer, -1);
    if (!IsLive(Main.Containers, index)) return;
    ApplySize(Main, index, FullSize(Main, index));
    Main.View.Pressed = {}; // the release that follows is no click
}

void ResizeContainersByKey(frmMain& Main, float x, float y) {
    const auto chosen = ResizedByKey(Main);
    if (chosen.empty() || !NeedsEdit(Main, Edit::Containers)) return;
    for (const int index : chosen) {
        const auto& place = Main.ConView(index).Container.Place;
        ApplySize(Main, index, Possible(Main, index, {place.Width + x, place.Height + y}));
        Remember(Main, index);
    }
    SaveContainers(Main, true);
}

} // namespace quill
