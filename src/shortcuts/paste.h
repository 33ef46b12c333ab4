// Paste: the files on the clipboard become shortcuts, text becomes a note, and an address a web shortcut.
#pragma once

#include "core/frmMain.h"

namespace quill {

void mnuPaste_Click(frmMain& Main);            // where the keys go, or at the last press on the workspace
void mnuPasteToContainer_Click(frmMain& Main); // into the current container
bool CanPaste(const frmMain& Main);            // the clipboard holds something that paste would take

} // namespace quill
