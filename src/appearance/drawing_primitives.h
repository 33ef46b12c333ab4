// Drawing primitives: the owner-drawn label and the ramp. Everything on a surface is painted through them and
// the canvas port.
#pragma once

#include "core/views.h"
#include "platform/drawing.h"

namespace quill {

void PaintEruLabel(Canvas& canvas, const EruLabel& label, std::string_view fontName, const TextStyle& extra);

enum class RampKind { ContainerFrame, ContainerFrameReversed, Workspace, WorkspaceDark };
// One row of a pixel at a time, from the colour towards white; ends where a channel would pass 255.
void DrawGradient(Canvas& canvas, const Rect& place, Color back, RampKind kind);
// Colour of the ramp at a height, for texts that must stay readable on it.
Color RampColorAt(const Rect& place, Color back, RampKind kind, float y);

} // namespace quill
