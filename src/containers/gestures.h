// Gestures: what presses and double-clicks on the parts of a container and on the empty workspace mean.
// Folding, shrinking and resizing themselves stand in fold.h, shrink.h and resize.h.
#pragma once

#include "core/frmMain.h"

namespace quill {

struct MouseEvent;

// Whether a hand that only clicks may move this far; twips on the desktop.
bool IsSlip(Point pressed, Point now);

// A press on any part of a container: it becomes the current one and comes to the front. On its title or
// icon (or note) it also takes the keys.
void Container_MouseDown(frmMain& Main, int Index, const MouseEvent& event);
void ContainerLabel_MouseDown(frmMain& Main, int Index, const MouseEvent& event);
// What of the title row is neither label nor mark: a place to hold the container by.
void ContainerTitle_MouseDown(frmMain& Main, int Index, const MouseEvent& event);

// The whole tile counts as its icon. What a double-click on it does where one starts all is its caller's.
void ContainerIcon_MouseDown(frmMain& Main, int Index, const MouseEvent& event);
void ContainerIcon_MouseUp(frmMain& Main, int Index, const MouseEvent& event);
void ContainerIcon_DblClick(frmMain& Main, int Index);

// True for a double-click whose first press opened a tile: what lies under the mouse now was not meant.
bool EndsOpeningClick(frmMain& Main);

// An empty place of the container.
void ContainerFrame_MouseDown(frmMain& Main, int Index, const MouseEvent& event);
void ContainerFrame_DblClick(frmMain& Main, int Index);
void shapeShrink_Click(frmMain& Main, int Index); // the Shrink/Expand zone

// An empty place of the workspace: what was opened for a moment closes again, a plain press ends the
// selections, and a rubber band begins.
void picBack_MouseDown(frmMain& Main, const MouseEvent& event);

} // namespace quill
