// Clicks on shortcuts. A plain click starts on release, not on press, so that a drag never starts anything.
#include "shortcuts/launch.h"

#include "containers/selection.h"
#include "core/handlers.h"
#include "core/menus.h"
#include "platform/clock.h"

namespace quill {

namespace {

constexpr std::int64_t StayTime = 250; // milliseconds: a release this soon is a click whatever the hand moved

void MakeCurrent(frmMain& Main, int Index) {
    Main.Links.CurrentShortcut = Index;
    const Parent& in = Main.LinkView(Index).In;
    Main.Group.ContainerHasFocus = in.Kind == ParentKind::ContainerFrame;
    if (Main.Group.ContainerHasFocus) Main.Group.CurrentContainer = in.Index;
}

void SelectAlone(frmMain& Main, int Index) {
    UnselectLinks(Main);
    SetSelection(Main, Index, true);
}

// A press on one of several that are selected may be the start of their drag: they stay so until the release.
void SelectForPress(frmMain& Main, int Index, const MouseEvent& event) {
    const bool plain = !event.Shift && !event.Ctrl && event.Button != MouseButton::Middle;
    if (plain && !Main.Link(Index).Selected) SelectAlone(Main, Index);
}

void ReleaseLeft(frmMain& Main, int Index) {
    if (Main.Links.SelectedShortcuts.size() > 1) SelectAlone(Main, Index);
    const std::int64_t held = Main.P.Clock.GetTickCount() - Main.Links.PressTick;
    if (held <= StayTime && Main.Links.SelectedShortcuts.size() == 1) Main.Links.DragIndex = Index;
    if (Main.Settings.DblClick || Main.Links.DragIndex == -1) return;
    Main.Links.ClickStarted = Index;
    StartShortcut(Main, Index, false, "", false, false);
}

} // namespace

void lblShortcut_MouseDown(frmMain& Main, int Index, const MouseEvent& event) {
    if (!IsLive(Main.Shortcuts, Index)) return;
    SelectForPress(Main, Index, event);
    MakeCurrent(Main, Index);
    Main.Links.ClickStarted = -1;
    Main.Links.PressTick = Main.P.Clock.GetTickCount();
}

void lblShortcut_MouseUp(frmMain& Main, int Index, const MouseEvent& event) {
    if (!IsLive(Main.Shortcuts, Index) || Main.Links.CurrentShortcut != Index) return;
    if (event.Button == MouseButton::Right)
        PopupMenu(Main, MenuName::Shortcut, event.Screen);
    else if (event.Button != MouseButton::Left)
        return;
    else if (event.Ctrl)
        ToggleSelection(Main, {}, {ElementKind::lblShortcut, Index});
    else if (event.Shift)
        SelectRange(Main, Index);
    else
        ReleaseLeft(Main, Index);
}

void lblShortcut_DblClick(frmMain& Main, int Index) {
    if (Main.Settings.DblClick) StartShortcut(Main, Index, false, "", false, false);
}

void picShortcut_DblClick(frmMain& Main, int Index) {
    if (Main.Links.ClickStarted == Index) return; // by the first of the two clicks
    StartShortcut(Main, Index, false, "", false, false);
}

} // namespace quill
