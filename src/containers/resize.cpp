#include "containers/resize.h"

#include "containers/full_size.h"
#include "containers/layout.h"
#include "containers/lifecycle.h"
#include "core/handlers.h"
#include "core/objects.h"
#include "persistence/save.h"

#include <algorithm>

namespace quill {
namespace {

constexpr float firstStep = 3000, secondStep = 6000, thirdStep = 9000; // twips, square

bool CanResize(const frmMain& Main, int Index) {
    return IsLive(Main.Containers, Index) && !Main.Dock.Locked && !IsFolded(Main, Index) &&
           !IsShrunk(Main, Index);
}

void ApplySize(frmMain& Main, int Index, Size size) {
    auto& place = Main.ConView(Index).Container.Place;
    place.Width = size.Width;
    place.Height = size.Height;
    SetObjectRelativeSize(Main, Index);
    DoRoundGradResizeSym(Main, Index, true);
}

// One that was pulled to exactly the size of its tile is one from now on.
void Settle(frmMain& Main, int Index) {
    RememberPresentSize(Main, Index);
    if (IsShrunk(Main, Index)) AddShrinkIcon(Main, Main.Con(Index).ShrinkPath, Index);
    SaveContainers(Main, true);
}

} // namespace

Size NextAutoSize(Size now) {
    const float largest = std::max(now.Width, now.Height);
    if (largest <= firstStep) return {secondStep, secondStep};
    if (largest <= secondStep) return {thirdStep, thirdStep};
    return {firstStep, firstStep};
}

void AutoResizeContainer(frmMain& Main, int Index) {
    if (!CanResize(Main, Index)) return;
    const auto& place = Main.ConView(Index).Container.Place;
    ApplySize(Main, Index, NextAutoSize({place.Width, place.Height}));
    Settle(Main, Index);
}

void ResizeSymbol_MouseDown(frmMain& Main, int Index, const MouseEvent& event) {
    if (!CanResize(Main, Index)) return;
    if (event.Button != MouseButton::Left) return AutoResizeContainer(Main, Index);
    const auto& place = Main.ConView(Index).Container.Place;
    Main.Group.ResizingContainer = Index;
    Main.Group.ResizeGrip = {place.Width - event.At.X, place.Height - event.At.Y};
}

void ResizeSymbol_MouseMove(frmMain& Main, const MouseEvent& event) {
    const int index = Main.Group.ResizingContainer;
    if (!IsLive(Main.Containers, index)) return;
    const auto tile = Main.Con(index).ShrinkSize();
    ApplySize(Main, index,
              {std::max(static_cast<float>(tile.Width), event.At.X + Main.Group.ResizeGrip.Width),
               std::max(static_cast<float>(tile.Height), event.At.Y + Main.Group.ResizeGrip.Height)});
}

void ResizeSymbol_MouseUp(frmMain& Main, const MouseEvent& event) {
    const int index = Main.Group.ResizingContainer;
    if (!IsLive(Main.Containers, index)) return;
    ResizeSymbol_MouseMove(Main, event);
    Main.Group.ResizingContainer = -1;
    Settle(Main, index);
}

} // namespace quill
