// Speed Launch: nine slots, a digit each, that shortcuts own. A digit on the workspace starts its slot; "/"
// opens frmQuickLaunch, a small window of its own that lists them. The slots are kept nowhere but in the
// shortcuts; where two have one digit the first in table order has it.
#pragma once

#include "core/frmMain.h"
#include "core/handlers.h"

#include <vector>

namespace quill {

int ShortcutInSlot(const frmMain& Main, int digit); // table index; -1: the slot is empty, or no slot
// Starts the slot and shows that in the title; true when there is one.
bool RunSpeedLaunchSlot(frmMain& Main, int digit);
// A digit key of the workspace. The launcher's text goes after a hit.
bool SpeedLaunchKey(frmMain& Main, int code);
bool IsSpeedLaunchKey(int code); // "1" to "9"

void ShowSpeedLaunch(frmMain& Main);  // opens frmQuickLaunch, or brings it forward
void CloseSpeedLaunch(frmMain& Main); // where the keyboard goes is the window manager's choice
// Any key but those of the table closes the window, and the keyboard is the workspace's again. False: there
// is no window, or the key does nothing by itself.
bool QuickLaunch_KeyDown(frmMain& Main, const KeyEvent& event);
void QuickLaunch_MouseMove(frmMain& Main, const MouseEvent& event); // over a row: it is selected
void lblSpeedLaunch_Click(frmMain& Main, int row);
void TimeUnload_Timer(frmMain& Main); // closes a window that no longer has the keyboard

// Places on the window, twips.
Rect PlaceOfSpeedLaunchRow(int row);
Rect PlaceOfSpeedLaunchIcon(int row);
Rect PlaceOfSpeedLaunchNumber(int row);
Rect PlaceOfSpeedLaunchName(int row);
Rect PlaceOfSpeedLaunchMarker(const frmMain& Main); // empty while it is hidden

// The shortcuts of the "Send To.." menu, in table order.
std::vector<int> SendToShortcuts(const frmMain& Main);

} // namespace quill
