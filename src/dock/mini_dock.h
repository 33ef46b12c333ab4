// MiniDock: the bar that a docked workspace leaves at its edge. A mouse that rests on it brings the workspace
// out within half a second, one that only passes by does not; [Undock Immediately] and [Undock On Click] say
// otherwise. No hover brings anything out over a window of another program that fills the monitor.
#pragma once

#include "core/handlers.h"

namespace quill {

void LoadMiniDock(frmMain& Main);   // placed off the screen until it is laid
void UnloadMiniDock(frmMain& Main); // and its timers
void ShowMiniDock(frmMain& Main);   // as it is laid; flashes by [Mini Dock Flash]
// Length and place along the edge by [Mini Dock Size] and [Mini Dock Side]; across it stays where it is. It
// is never longer than the workspace: a mouse on the rest of it would not be over what it has called, which
// would go and come for ever.
void LayBarVertical(frmMain& Main);
void LayBarHorizontal(frmMain& Main);

// Over the bar: the mouse, pressed or not, or something that is dragged.
void frmMiniDock_MouseMove(frmMain& Main, const MouseEvent& event);
void TimerShowMiniDock_Timer(frmMain& Main);
void TimerFlash_Timer(frmMain& Main);

} // namespace quill
