#include "containers/flip.h"

#include "appearance/effects.h"
#include "appearance/tips.h"
#include "containers/fold.h"
#include "containers/shrink.h"
#include "core/keyboard_focus.h"
#include "core/objects.h"
#include "platform/windows.h"

#include <algorithm>

namespace quill {
namespace {

bool IsAny(const frmMain&, int) {
    return true;
}
bool IsFeed(const frmMain& Main, int Index) {
    return Main.Con(Index).RSS;
}
bool ShowsNote(const frmMain& Main, int Index) {
    return Main.ConView(Index).ContainerNote.Visible || Main.Con(Index).IsReminder();
}
bool IsChosen(const frmMain& Main, int Index) {
    return Main.Con(Index).SpacebarFlip;
}

using Test = bool (*)(const frmMain&, int);
constexpr Test sets[] = {&IsAny, &IsFeed, &ShowsNote, &IsChosen}; // by [SpacebarFlip]

Test PresentSet(const frmMain& Main) {
    const int last = static_cast<int>(std::size(sets)) - 1;
    return sets[std::clamp<int>(Main.Settings.SpacebarFlip, 0, last)];
}

// From the row behind the present one on; with none, from the end that lies behind. -1: there is none left.
int NextInSet(const frmMain& Main, bool forward) {
    const int rows = static_cast<int>(Main.Containers.size());
    const int step = forward ? 1 : -1;
    int row = Main.Group.FlipPosition + step;
    if (Main.Group.FlipPosition == -1 && !forward) row = rows - 1;
    for (const Test isIn = PresentSet(Main); row >= 0 && row < rows; row += step) {
        const bool seen = IsLive(Main.Containers, row) && Main.ConView(row).Container.Visible;
        if (seen && isIn(Main, row)) return row;
    }
    return -1;
}

// The mouse waits in a corner, where it opens nothing on the way.
void PutMouseAside(frmMain& Main) {
    const auto& back = Main.View.picBack.Place;
    Main.P.Windows.SetCursorPos({Main.View.Window.Left + back.Left, Main.View.Window.Top + back.Top});
    Main.Group.MouseContainer = -1;
}

void CloseWhatWasOpened(frmMain& Main) {
    const int unfolded = Main.Group.AutoFoldContainerIndex;
    if (IsLive(Main.Containers, unfolded) && !IsFolded(Main, unfolded))
        FoldUnfoldContainer(Main, unfolded, false);
    Main.Group.JustExpanded = false; // that guards against a second click, and this is a key
    ShrinkBackContainer(Main, false);
}

void Open(frmMain& Main, int Index) {
    if (Main.ConView(Index).ContainerIcon.Visible) return ExpandShrinkContainer(Main, Index, false);
    if (!IsFolded(Main, Index)) return;
    FoldUnfoldContainer(Main, Index, true);
    Main.Group.AutoFoldContainerIndex = Index;
}

// Tab goes on from the container that was flipped to. The focus is shown if it was shown before.
void PutFocusOn(frmMain& Main, int Index) {
    Main.Group.CurrentContainer = Index;
    Main.Group.ContainerHasFocus = true;
    const bool shown = Main.View.FocusVisible;
    HideFocus(Main);
    Main.View.FocusVisible = shown;
    Main.View.FocusSurface = {SurfaceKind::Container, Index};
    Main.View.Focus = {ElementKind::ContainerLabel, Index};
    Main.Marks.Container(Index);
}

} // namespace

void SpacebarFlip(frmMain& Main, bool forward) {
    EndEffect(Main); // what it hides is in the set too
    const int next = NextInSet(Main, forward);
    if (next == -1) {
        ShrinkBackContainer(Main, true);
    } else {
        HideTip(Main);
        Main.Group.ContainerHasFocus = true;
        GoToContainer(Main, next);
    }
    Main.Group.FlipPosition = next;
}

void GoToContainer(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    Main.P.Windows.ShowCursor(false);
    PutMouseAside(Main);
    EndEffect(Main);
    CloseWhatWasOpened(Main);
    Open(Main, Index);
    if (Main.ConView(Index).lblPinNote.Visible) Main.Marks.Workspace();
    AddToZorderCollection(Main, {KindContainer, Index}, false);
    PutFocusOn(Main, Index);
    Main.P.Windows.ShowCursor(true);
}

} // namespace quill
