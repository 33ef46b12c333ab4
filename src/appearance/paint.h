// Paint: a surface as it is to be seen, from the tables to a canvas. Changes nothing but what is first seen
// (icons asked for, labels measured).
#pragma once

#include "core/surfaces.h"
#include "platform/drawing.h"

namespace quill {

void PaintSurface(frmMain& Main, SurfaceId surface, Canvas& canvas);
void PaintSplash(const frmMain& Main, Size size, Canvas& canvas);

} // namespace quill
