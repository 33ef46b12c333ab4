// Drawing primitives: the owner-drawn label and the ramp. Labels and grounds of a surface are painted through
// them; round_window.h and print_rotated.h hold the other two.
#pragma once

#include "core/views.h"
#include "platform/drawing.h"

namespace quill {

// How a label's text is laid out, as one word of flags.
enum TextFormat {
    FormatLeft = 0,
    FormatCenter = 1,
    FormatRight = 2,
    FormatWordBreak = 16,
    FormatNoClip = 0x100,  // the text may run out of its rectangle
    FormatNoPrefix = 0x800 // "&" is a letter
};
int TextFormatOf(const EruLabel& label);

// What of a label is painted: one pixel more than its place each way, so that the far lines of a border lie
// on its edges.
Rect ClientRect(const EruLabel& label);
// Where its text stands: 3 pixels within, and the border's width more at the left and top only.
Rect TextRect(const EruLabel& label);

// A label with AutoSize and a caption takes the height of its text, broken into its width where words wrap;
// every other stays as it is. To be called when one of these, the border or the font has changed.
void SizeLabel(const Texts& texts, EruLabel& label, std::string_view fontName);

// Nothing of a label without a caption or with an opacity of 0. A ground that is see-through bears solid
// text. Of the extra style the label's own properties overrule ink, alignment, wrapping and the font's name
// and size.
void PaintEruLabel(Canvas& canvas, const EruLabel& label, std::string_view fontName, const TextStyle& extra);

enum class RampKind { ContainerFrame, ContainerFrameReversed, Workspace, WorkspaceDark };
// One row of a pixel at a time, from the colour towards white; ends where a channel would pass 255.
void DrawGradient(Canvas& canvas, const Rect& place, Color back, RampKind kind);
// Colour of the ramp at a height, for texts that must stay readable on it.
Color RampColorAt(const Rect& place, Color back, RampKind kind, float y);

} // namespace quill
