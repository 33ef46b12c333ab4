// The commands that put the workspace somewhere: out and away, by whatever way a person asks for it.
#pragma once

#include "core/frmMain.h"

namespace quill {

// Shows the workspace whatever it is: restored from minimised and hidden, out of its edge. Takes no keyboard.
void BringOut(frmMain& Main, bool fromHotkey);
void CallForward(frmMain& Main);     // and with the keyboard
void ToggleWorkspace(frmMain& Main); // what the hotkey and --toggle do: away if it has the keyboard, else out
void ShowMain(frmMain& Main);        // frmMain as it stands, restored, above the others, without the keyboard
void HideMain(frmMain& Main);

// Escape: docks where it stands and gives the keyboard back; false when it may not.
bool CollapseByKey(frmMain& Main);

// 0 top, 1 left, 2 right, 3 bottom of its monitor. It is moved and not docked; the heartbeat does that.
void mnuDockPos_Click(frmMain& Main, int Index);
void ToggleTransparent(frmMain& Main);
void mnuCenterWorkspace_Click(frmMain& Main); // of its monitor; from the tray too
// At the edge that it touches, else where it docked last, without a slide. PicDock does the same.
void mnuDockNow_Click(frmMain& Main);
void mnuSuspendSlideOut_Click(frmMain& Main);
void mnuHideAlterDesk_Click(frmMain& Main); // "&Hide Workspace": window and bar, kept for the next start

// Monitors have come, gone or changed: a docked workspace docks anew, a floating one is brought into view.
void FollowScreens(frmMain& Main);

} // namespace quill
