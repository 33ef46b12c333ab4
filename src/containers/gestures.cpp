#include "containers/gestures.h"

#include "containers/dragging.h"
#include "containers/fold.h"
#include "containers/rubber_band.h"
#include "containers/selection.h"
#include "containers/shrink.h"
#include "core/handlers.h"
#include "core/objects.h"
#include "persistence/save.h"

#include <cmath>
#include <utility>

namespace quill {
namespace {

void TakeKeys(frmMain& Main, int Index) {
    Main.Group.CurrentContainer = Index;
    Main.Group.ContainerHasFocus = true;
}

constexpr float slip = 4 * TwipsPerPixel;

bool IsPlain(const MouseEvent& event) {
    return !event.Shift && !event.Ctrl && !event.Alt && event.Button != MouseButton::Right;
}

bool AddsToSelection(const MouseEvent& event) {
    return event.Ctrl || event.Shift;
}

// The press that closes what was open for the moment does nothing more.
void EndSelections(frmMain& Main, const MouseEvent& event) {
    const bool closes = Main.Group.ExpandedContainer != -1 || Main.Group.ExpandingContainer != -1;
    if (closes || AddsToSelection(event) || event.Button == MouseButton::Right) return;
    UnselectLinks(Main);
    UnselectContainers(Main);
}

// Only one container at a time is open for a moment.
void OpenTile(frmMain& Main, int Index) {
    ShrinkBackContainer(Main, true);
    ExpandShrinkContainer(Main, Index, true);
}

} // namespace

bool IsSlip(Point pressed, Point now) {
    return std::abs(now.X - pressed.X) <= slip && std::abs(now.Y - pressed.Y) <= slip;
}

void Container_MouseDown(frmMain& Main, int Index, const MouseEvent& event) {
    if (!IsLive(Main.Containers, Index)) return;
    const auto& place = Main.ConView(Index).Container.Place;
    Main.Group.CurrentContainer = Index;
    Main.Group.PressedTile = -1;
    Main.Group.NewContainerPos = {place.Left + event.At.X, place.Top + event.At.Y};
    AddToZorderCollection(Main, {KindContainer, Index}, false);
}

void ContainerLabel_MouseDown(frmMain& Main, int Index, const MouseEvent& event) {
    if (!IsLive(Main.Containers, Index)) return;
    Container_MouseDown(Main, Index, event);
    TakeKeys(Main, Index);
    BeginContainerDrag(Main, Index, event);
}

void ContainerTitle_MouseDown(frmMain& Main, int Index, const MouseEvent& event) {
    if (!IsLive(Main.Containers, Index)) return;
    Container_MouseDown(Main, Index, event);
    BeginContainerDrag(Main, Index, event);
}

void ContainerIcon_MouseDown(frmMain& Main, int Index, const MouseEvent& event) {
    if (!IsLive(Main.Containers, Index)) return;
    ContainerLabel_MouseDown(Main, Index, event);
    Main.Group.PressedTile = Index;
    Main.Group.PressedAt = event.Screen;
}

void ContainerIcon_MouseUp(frmMain& Main, int Index, const MouseEvent& event) {
    const bool click =
        Main.Group.PressedTile == Index && IsSlip(Main.Group.PressedAt, event.Screen) && IsPlain(event);
    if (!click || !IsLive(Main.Containers, Index) || !IsShrunk(Main, Index)) return;
    if (!Main.Settings.DblClickToStartAll) OpenTile(Main, Index);
}

void ContainerIcon_DblClick(frmMain& Main, int Index) {
    if (IsLive(Main.Containers, Index) && IsShrunk(Main, Index)) OpenTile(Main, Index);
}

bool EndsOpeningClick(frmMain& Main) {
    const int tile = std::exchange(Main.Group.PressedTile, -1);
    return IsLive(Main.Containers, tile) && !IsShrunk(Main, tile);
}

void ContainerFrame_MouseDown(frmMain& Main, int Index, const MouseEvent& event) {
    Container_MouseDown(Main, Index, event);
    if (event.Button == MouseButton::Left && !AddsToSelection(event)) UnselectLinks(Main);
}

void ContainerFrame_DblClick(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    if (!IsShrunk(Main, Index) && !IsFolded(Main, Index)) shapeShrink_Click(Main, Index);
}

void shapeShrink_Click(frmMain& Main, int Index) {
    ExpandShrinkContainer(Main, Index, true);
    SaveContainers(Main, true);
}

void picBack_MouseDown(frmMain& Main, const MouseEvent& event) {
    Main.Group.NewContainerPos = event.At;
    Main.Group.PressedTile = -1;
    Main.Group.ContainerHasFocus = false;
    EndSelections(Main, event);
    Main.Group.HoldExpanded = false;
    ShrinkBackContainer(Main, true);
    AutoFoldContainer(Main, Main.Group.AutoFoldContainerIndex);
    BeginRubberBand(Main, event);
}

} // namespace quill
