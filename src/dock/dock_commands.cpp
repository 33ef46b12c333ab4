#include "dock/dock_commands.h"
#include "keyboard/jump_to.h"

#include "containers/fold.h"
#include "containers/shrink.h"
#include "core/caption.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "dock/foreground.h"
#include "dock/mini_dock.h"
#include "dock/mini_toolbar.h"
#include "dock/sliding.h"
#include "persistence/save.h"
#include "platform/windows.h"

#include <algorithm>

namespace quill {
namespace {

constexpr float beyond = 100; // twips that a positioned workspace reaches over its edge

bool HasKeyboard(const frmMain& Main) {
    return Main.View.Visible && Main.Dock.DockPosition == 0 && Main.P.Windows.IsForeground(MainWindow);
}

// Off the screen with all that belongs to it, until it is called.
void PutOutOfSight(frmMain& Main) {
    CloseMiniToolbar(Main);
    ShrinkBackContainer(Main, false);
    AutoFoldContainer(Main, Main.Group.AutoFoldContainerIndex);
    UnloadMiniDock(Main);
    if (!Main.View.Visible) return;
    Main.P.Windows.GiveForegroundBack(MainWindow);
    HideMain(Main);
}

// The keyboard goes while the window still has it; whoever takes it next is told of by the system.
void DockByHand(frmMain& Main, int edge) {
    if (Main.Dock.WorkspaceDragging) return;
    Main.P.Windows.GiveForegroundBack(MainWindow);
    DockMe(Main, edge, true);
}

void PutAway(frmMain& Main) {
    const int edge = EdgeOfWindow(Main, Main.View.Window);
    if (edge == 0 || IsMaximized(Main)) return PutOutOfSight(Main);
    DockByHand(Main, edge);
}

// Shown at a place, whether it was docked, hidden or out.
void PutThere(frmMain& Main, const Rect& place) {
    if (Main.Dock.DockPosition != 0) return ComeOut(Main, place);
    Main.Dock.Hidden = false;
    PlaceMain(Main, place);
    ShowMain(Main);
}

// Where it stands once it is out.
Rect StandingPlace(const frmMain& Main) {
    return OutPlace(Main, Main.Dock.DockPosition, Main.View.Window);
}

Rect PositionOf(const frmMain& Main, int Index) {
    const Rect window = StandingPlace(Main);
    const Rect monitor = MonitorOf(Main, window);
    const Rect middle = CenteredOn(monitor, window);
    const Point corners[] = {{middle.Left, -beyond},
                             {monitor.Left - beyond, middle.Top},
                             {monitor.Right() - window.Width + beyond, middle.Top},
                             {middle.Left, monitor.Bottom() - window.Height + beyond}};
    const Point corner = corners[std::clamp(Index, 0, 3)];
    return KeptInView(Main, {corner.X, corner.Y, window.Width, window.Height});
}

bool IsWhereItWasDocked(const frmMain& Main) {
    const auto& dock = Main.Dock;
    const auto monitors = Main.P.Windows.Monitors();
    return VirtualDesktop(Main) == dock.DockedDesktop &&
           std::ranges::any_of(monitors, [&](const Monitor& it) { return it.Place == dock.DockedOn; });
}

} // namespace

void ShowMain(frmMain& Main) {
    Main.View.Visible = true;
    if (Main.View.State == WindowState::Minimized) {
        Main.View.State = WindowState::Normal;
        Main.P.Windows.SetState(MainWindow, WindowState::Normal);
    }
    Main.P.Windows.Show(MainWindow, Activate::No);
    SetWindowOnTop(Main);
    Main.P.Windows.RaiseWindow(MainWindow);
}

// The pointer is not over what nobody sees. Where it is when the window shows again, the system tells then.
void HideMain(frmMain& Main) {
    if (!Main.View.Visible) return;
    Main.View.Visible = false;
    Main.Dock.PointerAway = true;
    Main.P.Windows.Hide(MainWindow);
}

void BringOut(frmMain& Main, bool fromHotkey) {
    Main.Dock.Hidden = false;
    bool moved = false;
    Undock(Main, fromHotkey, moved);
    if (!moved) ShowMain(Main);
}

void CallForward(frmMain& Main) {
    BringOut(Main, true);
    if (ForceForeground(Main)) MakeTitleBarActive(Main);
}

void ToggleWorkspace(frmMain& Main) {
    if (Main.IsLoading || Main.IsExiting) return;
    if (HasKeyboard(Main) && Main.Dock.DialogPauses == 0) return PutAway(Main);
    CallForward(Main);
    if (Main.Settings.ShowKBLauncher && Main.Dock.DialogPauses == 0) ShowPicJumpTo(Main, "", true, false);
}

bool CollapseByKey(frmMain& Main) {
    if (!MayCollapse(Main)) return false;
    DockByHand(Main, EdgeOfWindow(Main, Main.View.Window));
    return Main.Dock.DockPosition != 0;
}

void mnuDockPos_Click(frmMain& Main, int Index) {
    if (Main.Dock.Maximized) mnuMaximize_Click(Main);
    PutThere(Main, PositionOf(Main, Index));
    SaveWorkspace(Main, true, false);
}

void mnuCenterWorkspace_Click(frmMain& Main) {
    if (Main.Dock.Maximized) mnuMaximize_Click(Main);
    const Rect window = StandingPlace(Main);
    PutThere(Main, CenteredOn(MonitorOf(Main, window), window));
    ApplyOpacity(Main);
}

void ToggleTransparent(frmMain& Main) {
    Main.Settings.Translucent = !Main.Settings.Translucent;
    ApplyOpacity(Main);
    SaveWorkspace(Main, true, false);
}

void mnuDockNow_Click(frmMain& Main) {
    auto& dock = Main.Dock;
    if (IsMaximized(Main) || dock.WorkspaceDragging || dock.DockPosition != 0) return;
    if (const int edge = EdgeOfWindow(Main, Main.View.Window); edge != 0) dock.LastDockPosition = edge;
    if (dock.LastDockPosition == 0)
        return ShowPassingCaption(Main, Tr(Main, "Move the workspace to an edge of the screen first."));
    if (dock.Suspended) mnuSuspendSlideOut_Click(Main);
    ShrinkBackContainer(Main, true);
    Main.P.Windows.GiveForegroundBack(MainWindow);
    DockMe(Main, dock.LastDockPosition, false);
}

void mnuSuspendSlideOut_Click(frmMain& Main) {
    Main.Dock.Suspended = !Main.Dock.Suspended;
    if (Main.Dock.Suspended) AbandonSlide(Main);
    RestoreCaption(Main);
    SaveWorkspace(Main, true, false);
}

// It stands out at its edge when it is shown again, wherever it was.
void mnuHideAlterDesk_Click(frmMain& Main) {
    auto& dock = Main.Dock;
    if (dock.DockPosition != 0) PlaceMain(Main, OutPlace(Main, dock.DockPosition, Main.View.Window));
    dock.DockPosition = 0;
    dock.Hidden = true;
    PutOutOfSight(Main);
    ApplyOpacity(Main);
    SaveWorkspace(Main, true, false);
}

void FollowScreens(frmMain& Main) {
    auto& dock = Main.Dock;
    if (dock.Maximized) {
        Main.View.RestoreRect = KeptInView(Main, Main.View.RestoreRect);
        PlaceMain(Main, WorkAreaOf(Main, Main.View.Window));
    } else if (dock.DockPosition == 0) {
        BringIntoView(Main);
    } else if (!IsWhereItWasDocked(Main)) {
        DockAnew(Main);
    }
}

} // namespace quill
