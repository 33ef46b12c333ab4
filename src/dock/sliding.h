// Sliding: where frmMain stands and when it moves. Docked, it is parked beyond an edge and hidden, and only
// the bar is on the screen; out, it touches an edge; floating, it touches none, and never docks by itself.
// The heartbeat TimerHide puts away a workspace that is out, once the mouse and the keyboard are elsewhere;
// the bar, the hotkey, the tray and a second start bring it back.
//
// All places are twips on the virtual desktop. Edges: 1 top, 2 left, 3 right, 4 bottom, 0 none.
#pragma once

#include "core/frmMain.h"
#include "dock/edges.h"

namespace quill {

// Whether the pointer is over a window of ours, 3 pixels around it included. Never over one that is hidden.
// What the session has told as left counts as left until the pointer comes back.
bool CursorOverWindow(const frmMain& Main, WindowId window);
bool CursorOverAnyWindow(const frmMain& Main);

// Docks the workspace; refused while it is maximised, dragged or something in it is. With animate it slides,
// unless [Animate] is off or the person wants less motion. DockPosition is set from the first moment on.
void DockMe(frmMain& Main, int position, bool animate);
void DockNow(frmMain& Main, bool animate); // the placing itself, at DockPosition
void SlideAway(frmMain& Main);             // 50 frames a second; ends by DockNow, or at once when not wanted
// Ends a slide that is no longer wanted. A workspace that nobody has put elsewhere stands out at its edge
// again.
void AbandonSlide(frmMain& Main);

// Brings a docked workspace out at its edge, also out of a slide. moved: it was docked.
void Undock(frmMain& Main, bool fromHotkey, bool& moved);
// The same to any place, and the pointer stays where it is.
void ComeOut(frmMain& Main, const Rect& place);
// Docks a docked workspace at its edge as it is now, without showing it on the way.
void DockAnew(frmMain& Main);

bool IsMaximized(const frmMain& Main); // by the workspace itself, or by the window manager
// Whether the workspace may go away when something is started or Escape is pressed: it touches an edge, no
// question is open, and it is neither maximised nor suspended.
bool MayCollapse(const frmMain& Main);

void TimerHide_Timer(frmMain& Main);
// Keeps the bar above a panel that lies at the same edge.
void TopMostUpkeep(frmMain& Main);

} // namespace quill
