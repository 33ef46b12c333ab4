// Resize: a container's size, by hand from the mark in its lower-right corner, by the automatic steps, or by
// keys. Folded containers and tiles have no size of their own to change. Moving a container is not part of
// it.
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
void CancelResize(frmMain& Main); // as large as it was before the press, as by Escape
void AutoResizeContainer(frmMain& Main, int Index);
Size NextAutoSize(Size now); // square: 3000, 6000, 9000 twips and back
// The selected containers, or the current one, wider and higher by so many twips, or smaller.
void ResizeContainersByKey(frmMain& Main, float x, float y);

} // namespace quill
