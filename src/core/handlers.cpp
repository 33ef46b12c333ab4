#include "core/handlers.h"

#include "appearance/tips.h"
#include "containers/dragging.h"
#include "containers/fold.h"
#include "containers/gestures.h"
#include "containers/hover.h"
#include "containers/layout.h"
#include "containers/resize.h"
#include "containers/rubber_band.h"
#include "containers/scroll.h"
#include "containers/shrink.h"
#include "core/caption.h"
#include "core/frmMain.h"
#include "core/keyboard_focus.h"
#include "core/routes.h"
#include "core/start.h"
#include "dock/dock_commands.h"
#include "dock/docking.h"
#include "dock/foreground.h"
#include "dock/frames.h"
#include "dock/hotkey.h"
#include "dock/mini_dock.h"
#include "dock/mini_toolbar.h"
#include "dock/sliding.h"
#include "dock/tray_icon.h"
#include "dock/workspace_lock.h"
#include "keyboard/jump_to.h"
#include "keyboard/matching.h"
#include "notes/notes.h"
#include "platform/session.h"
#include "shortcuts/drags.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/launch.h"
#include "shortcuts/selected.h"
#include "shortcuts/speed_launch.h"
#include "system/system_info.h"

#include <algorithm>

namespace quill {
namespace {

bool IsShortcut(ElementKind kind) {
    return kind == ElementKind::lblShortcut || kind == ElementKind::picShortcut;
}

// A click is a release on the element of the press. An element whose object died in between is not hit again.
bool SameElement(const frmMain& Main, SurfaceId surface, const MouseEvent& event) {
    const auto now = ElementAt(Main, surface, event.At);
    return now == Main.View.Pressed && Main.View.PressedSurface == surface;
}

struct TimerRow {
    TimerName Name;
    void (*Tick)(frmMain&);
};

void TimerDblClickLabelDelay_Timer(frmMain& Main) {
    Main.Group.DblClickGuard = false;
    Main.P.Clock.Stop({TimerName::TimerDblClickLabelDelay});
}

// What a start leaves until the first picture stands.
void TimerServices_Timer(frmMain& Main) {
    Main.P.Clock.Stop({TimerName::TimerServices});
    ShowTrayIcon(Main, Main.Settings.ShowTrayIcon);
    if (Main.Settings.SystemInfo) StartCPUMonitoring(Main);
    StartGlobalHotkey(Main);
    Captions(Main); // the first letter that is typed finds it made
}

constexpr TimerRow timers[] = {
    {TimerName::TimerDontShrink, &TimerDontShrink_Timer},
    {TimerName::TimerDblClickLabelDelay, &TimerDblClickLabelDelay_Timer},
    {TimerName::TimerExpandContainer, &TimerExpandContainer_Timer},
    {TimerName::TimerSuspendAutoExpand, &TimerSuspendAutoExpand_Timer},
    {TimerName::TimerExpandUnfoldOnDrag, &TimerExpandUnfoldOnDrag_Timer},
    {TimerName::TimerTip, &TimerTip_Timer},
    {TimerName::TimerFadeIn, &TipTimerFadeIn_Timer},
    {TimerName::TimerFadeOut, &TipTimerFadeOut_Timer},
    {TimerName::TimerMouseMove, &TipTimerMouseMove_Timer},
    {TimerName::TimerSaveNotes, &TimerSaveNotes_Timer},
    {TimerName::TimerRestoreCaption, &TimerRestoreCaption_Timer},
    {TimerName::TimerScrollOnDrag, &TimerScrollOnDrag_Timer},
    {TimerName::TimerHide, &TimerHide_Timer},
    {TimerName::TimerShowMiniDock, &TimerShowMiniDock_Timer},
    {TimerName::TimerFlash, &TimerFlash_Timer},
    {TimerName::TimerUnload, &TimerUnload_Timer},
    {TimerName::TimerBrieflyUnlock, &TimerBrieflyUnlock_Timer},
    {TimerName::TimeLock, &TimeLock_Timer},
    {TimerName::TimerSysInfo, &TimerSysInfo_Timer},
    {TimerName::TimerServices, &TimerServices_Timer},
    {TimerName::TimeUnload, &TimeUnload_Timer},
};

// The mouse moves with no button held: tips, and what opens and closes by being pointed at.
void Hover(frmMain& Main, SurfaceId surface, const MouseEvent& event) {
    if (surface.Kind == SurfaceKind::Picture) return Picture_MouseMove(Main, surface.Index);
    if (surface.Kind == SurfaceKind::Workspace) Title_MouseMove(Main, event);
    if (surface.Kind != SurfaceKind::Container) return MouseElsewhere(Main);
    const auto hit = ElementAt(Main, surface, event.At);
    if (hit.Kind == ElementKind::ContainerLabel || hit.Kind == ElementKind::ContainerIcon)
        ContainerLabel_MouseMove(Main, surface.Index, event);
    Container_MouseMove(Main, surface.Index, event);
}

// A held shortcut or picture that leaves the place of its press is carried.
void DragHeldObject(frmMain& Main, const MouseEvent& event) {
    const auto pressed = Main.View.Pressed;
    const bool picture = pressed.Kind == ElementKind::PicContainer || pressed.Kind == ElementKind::PicImage;
    if (event.Button != MouseButton::Left || !(picture || IsShortcut(pressed.Kind))) return;
    if (!IsBeyondClick(Main, event.Screen)) return;
    Main.View.Pressed = {};
    BeginObjectDrag(Main, {static_cast<std::uint8_t>(picture ? 2 : 1), pressed.Index}, event);
}

// Another button than the one that drags or draws a band lets go of it, as Escape does.
bool CancelByOtherButton(frmMain& Main, const MouseEvent& event) {
    const bool busy = Main.Group.Drag.Moving || Main.Group.frmSelection.Loaded;
    if (!busy || event.Button == MouseButton::Left) return false;
    if (Main.Group.Drag.Moving) CancelContainerDrag(Main);
    UnloadSelection(Main);
    Main.View.Pressed = {};
    return true;
}

// What is dragged over the bar brings the workspace out, and is dropped there. While another program has the
// pointer nobody tells that it has come over the workspace, which would go again at the next heartbeat.
DropAnswer DragOverBar(frmMain& Main, const DragEvent& event) {
    MouseEvent mouse;
    mouse.At = event.At, mouse.Screen = event.Screen;
    mouse.Button = MouseButton::Left;
    frmMiniDock_MouseMove(Main, mouse);
    Main.Dock.PointerAway = false;
    return DropAnswer::Refused;
}

// A pointer that comes back to the very place where it was last seen makes no move that anybody tells.
void EnterBar(frmMain& Main) {
    MouseEvent event;
    event.Screen = Main.P.Windows.GetCursorPos();
    if (Main.Dock.MiniDock.Visible) frmMiniDock_MouseMove(Main, event);
}

bool BeginResizeAt(frmMain& Main, SurfaceId surface, const MouseEvent& event) {
    if (surface.Kind != SurfaceKind::Workspace || event.Button != MouseButton::Left) return false;
    const int edges = GripEdgesAt(Main, event.At);
    if (edges == 0) return false;
    Main.P.Windows.BeginResize(MainWindow, edges);
    return true;
}

} // namespace

void MouseDown(frmMain& Main, SurfaceId surface, const MouseEvent& event) {
    if (Main.IsLoading || Main.IsExiting) return;
    if (surface.Kind == SurfaceKind::MiniDock) return frmMiniDock_MouseMove(Main, event);
    HideFocus(Main);
    HideTip(Main);
    if (surface.Kind != SurfaceKind::JumpTo && IsJumpToOpen(Main)) ClosePicJumpTo(Main);
    if (CancelByOtherButton(Main, event)) return;
    Main.Group.PressedTile = -1;
    if (BeginResizeAt(Main, surface, event)) return;
    Main.View.Pressed = ElementAt(Main, surface, event.At);
    Main.View.PressedSurface = surface;
    Main.View.PressedAt = event.Screen;
    const auto pressed = Main.View.Pressed;
    const auto* route = RouteOf(pressed.Kind);
    if (route && route->Press) route->Press(Main, pressed.Index, event);
}

void MouseUp(frmMain& Main, SurfaceId surface, const MouseEvent& event) {
    if (Main.IsLoading || Main.IsExiting) return;
    if (Main.Group.ScrollingContainer != -1) return VScroll_MouseUp(Main);
    if (Main.Group.ResizingContainer != -1) return ResizeSymbol_MouseUp(Main, event);
    if (Main.Group.frmSelection.Loaded && Main.Group.frmSelection.Band) RubberBand_MouseUp(Main, event);
    if (Main.Group.Drag.Pressed != -1 && ContainerDrag_MouseUp(Main, event)) {
        Main.View.Pressed = {};
        return;
    }
    const auto pressed = Main.View.Pressed;
    const bool same = pressed.Kind != ElementKind::None && SameElement(Main, surface, event);
    Main.View.Pressed = {};
    if (!same) return;
    if (IsShortcut(pressed.Kind) && event.Button == MouseButton::Middle)
        return lblShortcut_MiddleUp(Main, pressed.Index);
    if (IsShortcut(pressed.Kind)) return lblShortcut_MouseUp(Main, pressed.Index, event);
    const auto* route = RouteOf(pressed.Kind);
    if (route && route->Click && event.Button == MouseButton::Left) route->Click(Main, pressed.Index, event);
}

void MouseDoubleClick(frmMain& Main, SurfaceId surface, const MouseEvent& event) {
    if (Main.IsLoading || Main.IsExiting) return;
    // A quick pair that adds to a selection, or of another button, is two clicks.
    if (event.Ctrl || event.Shift || event.Button != MouseButton::Left)
        return MouseDown(Main, surface, event);
    if (EndsOpeningClick(Main)) return;
    const auto hit = ElementAt(Main, surface, event.At);
    const auto* route = RouteOf(hit.Kind);
    // The second press of a quick pair is a click of its own where no double-click is told.
    if (!route || !route->DoubleClick) return MouseDown(Main, surface, event);
    Main.View.Pressed = {};
    route->DoubleClick(Main, hit.Index, event);
}

void MouseMove(frmMain& Main, SurfaceId surface, const MouseEvent& event) {
    if (Main.IsLoading || Main.IsExiting) return;
    if (surface.Kind == SurfaceKind::MiniDock) return frmMiniDock_MouseMove(Main, event);
    if (surface.Kind == SurfaceKind::MiniToolbar) return picMiniToolbar_MouseMove(Main, event);
    if (surface.Kind == SurfaceKind::QuickLaunch) return QuickLaunch_MouseMove(Main, event);
    Main.Dock.PointerAway = false;
    if (Main.Group.ScrollingContainer != -1) return VScroll_MouseMove(Main, event);
    if (Main.Group.ResizingContainer != -1) return ResizeSymbol_MouseMove(Main, event);
    if (Main.Group.Drag.Pressed != -1) return ContainerDrag_MouseMove(Main, event);
    if (Main.Group.frmSelection.Loaded) return RubberBand_MouseMove(Main, event);
    if (event.Button == MouseButton::None) return Hover(Main, surface, event);
    DragHeldObject(Main, event);
}

void MouseLeave(frmMain& Main, SurfaceId surface) {
    if (Main.IsLoading || Main.IsExiting) return;
    if (surface.Kind == SurfaceKind::MiniToolbar) return picMiniToolbar_MouseLeave(Main);
    if (surface.Kind != SurfaceKind::Container) return MouseElsewhere(Main);
    Tip_MouseLeave(Main, surface.Index);
    Container_MouseLeave(Main, surface.Index);
}

DropAnswer DragOver(frmMain& Main, SurfaceId surface, const DragEvent& event, const DragData& data) {
    if (Main.IsLoading || Main.IsExiting) return DropAnswer::Refused;
    if (surface.Kind == SurfaceKind::MiniDock) return DragOverBar(Main, event);
    Main.Dock.PointerAway = false;
    return DragOverSurface(Main, surface, event, data);
}

void DragLeave(frmMain& Main, SurfaceId) {
    if (!Main.IsLoading && !Main.IsExiting) DragLeftSurface(Main);
}

DropAnswer DragDrop(frmMain& Main, SurfaceId surface, const DragEvent& event, const DragData& data) {
    if (Main.IsLoading || Main.IsExiting) return DropAnswer::Refused;
    DragLeftSurface(Main);
    return DropOnSurface(Main, surface, event, data);
}

void MouseWheel(frmMain& Main, SurfaceId surface, const MouseEvent&, int steps) {
    HideTip(Main);
    const bool container = surface.Kind == SurfaceKind::Container && IsLive(Main.Containers, surface.Index);
    if (container) ContainerFrame_MouseWheel(Main, surface.Index, steps);
}

void Timer_Tick(frmMain& Main, TimerId timer) {
    if (Main.IsExiting) return;
    const auto found = std::ranges::find(timers, timer.Name, &TimerRow::Name);
    if (found != std::end(timers)) found->Tick(Main);
}

void Frame_Tick(frmMain& Main) {
    if (!Main.IsExiting) StepFrames(Main);
}

void Form_Moved(frmMain& Main, const Rect& place) {
    const bool sized = place.Width != Main.View.Window.Width || place.Height != Main.View.Window.Height;
    Main.View.Window = place;
    if (sized) ResizeForm(Main);
}

// Without an entry in the taskbar nobody could get a minimised window back but by the ways to a hidden one.
void Form_StateChanged(frmMain& Main, WindowState state) {
    Main.View.State = state;
    if (state != WindowState::Minimized || Main.Settings.ShowInTaskbar || Main.IsLoading) return;
    HideMain(Main);
}
void Form_Closing(frmMain& Main) {
    mnuExitMainWin_Click(Main);
}

void Form_MouseEnter(frmMain& Main, WindowId window) {
    if (Main.IsLoading || Main.IsExiting) return;
    if (window == MainWindow) Main.Dock.PointerAway = false;
    if (window == MiniDockWindow) EnterBar(Main);
}

void Form_MouseLeave(frmMain& Main, WindowId window) {
    if (window == MainWindow) Main.Dock.PointerAway = true;
    if (window == MiniDockWindow) Main.Dock.MiniDock.PointerAway = true;
}

void Foreground_Changed(frmMain& Main) {
    if (!Main.IsLoading && !Main.IsExiting) TitleBarFollowFocus(Main);
}

void Hotkey_Pressed(frmMain& Main) {
    if (!Main.Dock.JustUsedHotKey) ToggleWorkspace(Main);
}

void Screen_Changed(frmMain& Main) {
    if (!Main.IsLoading && !Main.IsExiting) FollowScreens(Main);
}

// A plain second start only ever brings out.
void SecondStart(frmMain& Main, Summons word) {
    if (Main.IsExiting) return;
    if (word == Summons::Toggle)
        ToggleWorkspace(Main);
    else
        CallForward(Main);
}

void SessionEnd(frmMain& Main) {
    Main.P.Session.Quit(0);
}

} // namespace quill
