// Dragging: containers follow the hand that holds their title or tile, the whole selection with it, each
// keeping its distance. A release where the press was is a click.
#pragma once

#include "core/frmMain.h"

namespace quill {

struct MouseEvent;

void BeginContainerDrag(frmMain& Main, int Index, const MouseEvent& event); // the press
void ContainerDrag_MouseMove(frmMain& Main, const MouseEvent& event); // while Group.Drag.Pressed is not -1
// True when the container was moved: the release is no click.
bool ContainerDrag_MouseUp(frmMain& Main, const MouseEvent& event);
// The last click on a title or tile put the container into the selection or took it out, so that it is no
// half of a double-click.
bool LastClickPicked(const frmMain& Main);
void CancelContainerDrag(frmMain& Main);                   // back to where it was, as by Escape
void MoveContainersByKey(frmMain& Main, float x, float y); // the current one or the selection, twips
// The same for shortcuts, within where they lie. Where they snap to the grid a key moves them by one line of
// it.
void MoveShortcutsByKey(frmMain& Main, float x, float y);

} // namespace quill
