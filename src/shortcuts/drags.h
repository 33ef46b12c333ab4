// Drags: shortcuts and pictures are carried between containers and the workspace, and what other programs
// carry here becomes shortcuts. One that is dropped on a program's label is opened with it
// (shortcuts/open_with.h). A drag of ours is a question: it runs until the hand lets go. What a drop may land
// on, and what shows and moves while something is dragged over it, stands in shortcuts/drop_target.h.
// Nothing is put into the folder of a Folder Connector.
#pragma once

#include "core/frmMain.h"
#include "core/handlers.h"

namespace quill {

// The hand holds a shortcut or picture and has left the place of the press. A selected shortcut takes along
// what else is selected and can be seen; another one becomes the selection.
void BeginObjectDrag(frmMain& Main, DraggedObject object, const MouseEvent& event);
// Whether the press has become a drag by this move of the hand. A quick click may slip further than a slow
// one.
bool IsBeyondClick(const frmMain& Main, Point now);

// Each answers whether the data would be taken, or was. Places are those of the event's surface.
DropAnswer DragOverSurface(frmMain& Main, SurfaceId surface, const DragEvent& event, const DragData& data);
DropAnswer DropOnSurface(frmMain& Main, SurfaceId surface, const DragEvent& event, const DragData& data);

// Our own objects, dropped with the pointer at a place of a parent; one step of undo. Each keeps its distance
// from the hand. What finds no room stays where it is, and a box says so.
DropAnswer DropObjects(frmMain& Main, Parent to, Point at, const DragData& data);
// Files and addresses of other programs: the first stands at the place, the others in a column below it, or
// in the next free cells where that is taken. What lies there already is not added again. Text becomes a
// note, or joins one. With Shift alone the thing itself is wanted, no shortcut to it.
DropAnswer DropFromOutside(frmMain& Main, Parent to, Point at, const DragData& data, bool ShiftAlone = false);

} // namespace quill
