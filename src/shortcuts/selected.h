// Selected: what is done to all selected shortcuts at once, beside putting them in order. What changes them
// does nothing while the workspace is locked and is saved; none of it is a step of undo, which takes back
// moves only.
#pragma once

#include "core/frmMain.h"

namespace quill {

// One after the other in the order in which they were selected. Each starts itself, not those that share its
// tags. In the background the workspace stays as it is.
void StartSelected(frmMain& Main, bool ForceAdmin, bool Background);
// The middle button was released on a shortcut: it joins the selection, which starts in the background.
void lblShortcut_MiddleUp(frmMain& Main, int Index);

void ToggleBoldFont(frmMain& Main); // all become what the first selected one is not
void SetSelectedColor(frmMain& Main, Color color);
void mnuChooseColor_Click(frmMain& Main); // asks for that colour

// Asked about by [ConfirmDelete]. The shortcuts go, what they point at stays.
void DeleteSelectedShortcuts(frmMain& Main);

} // namespace quill
