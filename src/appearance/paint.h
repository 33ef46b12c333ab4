// Paint: a surface as it is to be seen, from the tables to a canvas. Changes nothing but what is first seen
// (icons asked for, labels measured).
#pragma once

#include "core/surfaces.h"
#include "platform/drawing.h"

namespace quill {

class ShortcutLists;

void PaintSurface(frmMain& Main, SurfaceId surface, Canvas& canvas);
// The same by a list that was made before, for who paints many surfaces. What the list says is asked of the
// tables again: a shortcut that has gone or lies elsewhere by now is not painted.
void PaintSurface(frmMain& Main, SurfaceId surface, Canvas& canvas, const ShortcutLists& lists);
void PaintSplash(const frmMain& Main, Size size, Canvas& canvas);

} // namespace quill
