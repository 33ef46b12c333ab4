// Foreground: the keyboard comes to the workspace when a person calls it and never otherwise, and the title
// row tells who has it.
#pragma once

#include "core/frmMain.h"

namespace quill {

// True when frmMain has the keyboard at the end; where it only arrives a moment later, TitleBarFollowFocus
// does the rest then.
bool ForceForeground(frmMain& Main);
void MakeTitleBarActive(frmMain& Main);  // the title row in the workspace's own colours
void TitleBarFollowFocus(frmMain& Main); // in these, or paler while another window has the keyboard

} // namespace quill
