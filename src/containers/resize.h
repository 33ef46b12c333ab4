// Resize: a container's size by hand, from the mark in its lower-right corner. Dragging a container is not
// part of it.
#pragma once

#include "core/frmMain.h"

namespace quill {

struct MouseEvent;

// Left: the corner follows the mouse until the release, never below the size of the tile. Right or middle:
// one step of the automatic sizes.
void ResizeSymbol_MouseDown(frmMain& Main, int Index, const MouseEvent& event);
void ResizeSymbol_MouseMove(frmMain& Main,
                            const MouseEvent& event); // while Group.ResizingContainer is not -1
void ResizeSymbol_MouseUp(frmMain& Main, const MouseEvent& event);
void AutoResizeContainer(frmMain& Main, int Index);
Size NextAutoSize(Size now);

} // namespace quill
