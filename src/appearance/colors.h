// Colours: the arithmetic used all over the program, and how a colour reaches a container.
#pragma once

#include "core/frmMain.h"

namespace quill {

Color Lighter(Color color, bool Slightly);
Color Darker(Color color, bool Much);
Color ContrastColor(Color color);
void SetColors(frmMain& Main, int Index, Color color);
void SetLabelColors(frmMain& Main, int Index, Color color);
// BackColor and ForeColor of picBack, with what is derived from them.
void SetWorkspaceColors(frmMain& Main, Color back, Color fore);
double ContrastRatio(Color one, Color other); // 1 to 21

} // namespace quill
