// Hover: what the mouse does to containers by being over them. A tile in whose Shrink/Expand zone it rests
// opens for the moment, and goes back when the mouse leaves; what is dragged over a tile or a folded
// container opens that. Only the zone opens a tile: over the rest of it the mouse may pass, press and drag.
//
// The mouse has left a container when the cursor is outside its place on the desktop. A leave event alone
// says less: it also comes when the mouse goes into a picture or a note box inside, when a menu opens, and
// when an effect hides the container under it.
#pragma once

#include "core/frmMain.h"

namespace quill {

struct MouseEvent;

inline constexpr float StillnessPixels = 10; // the mouse rests while it moves no further than this

// Every move of the mouse over a container, with no button held; at is on the container's surface.
void Container_MouseMove(frmMain& Main, int Index, const MouseEvent& event);
void Container_MouseLeave(frmMain& Main, int Index); // the leave event of its surface
void Picture_MouseMove(frmMain& Main, int Picture);  // over a picture, which may lie in a container
// The mouse moves over something that is no container, or leaves the window: what it has left by that closes.
void MouseElsewhere(frmMain& Main);
// Whether the place lies in the Shrink/Expand zone of an open container or a tile.
bool InShrinkZone(const frmMain& Main, int Index, Point at);
// Whether the cursor is over the container as it stands now, or over the tile that it goes back to.
bool MouseIsOver(const frmMain& Main, int Index);
// LastShrunkBack keeps hover from opening a tile again that has just closed under the mouse; a mouse that is
// elsewhere has left it already.
void ForgetShrunkBackIfLeft(frmMain& Main);

void TimerExpandContainer_Timer(frmMain& Main);
// Opens the tile for the moment, unless something is dragged, the index was the last to shrink back, or
// [AutoExpand] is off.
void HoverExpand(frmMain& Main, int Index);

// A drag enters a frame: nothing opens by hover for half a second, and what was open for the moment closes,
// unless the drag is over that.
void DragEnteredFrame(frmMain& Main);
void TimerSuspendAutoExpand_Timer(frmMain& Main);
// Something is dragged over this container, the pointer is there on the desktop (twips).
void DragOverContainer(frmMain& Main, int Index, Point screen);
void DragLeftContainer(frmMain& Main);
void TimerExpandUnfoldOnDrag_Timer(frmMain& Main);

} // namespace quill
