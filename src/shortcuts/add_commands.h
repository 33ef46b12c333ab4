// Add commands: a file, a folder, an address or a command by a dialog, in a parent: the workspace, or the
// frame of a container. Each is saved, selected, and made the current shortcut.
#pragma once

#include "core/frmMain.h"

namespace quill {

// The workspace for the lines of its menu, the current container for those of a container's menu.
Parent CurrentContainerFrame(const frmMain& Main);
void AddFileLink(frmMain& Main, Parent to);
void AddFolderLink(frmMain& Main, Parent to); // on the workspace the folder may become a container
void AddWebLink(frmMain& Main, Parent to);
void AddCommand(frmMain& Main, Parent to);     // and opens its properties
bool CanAddTo(const frmMain& Main, Parent to); // it takes shortcuts and is not locked

// One more shortcut that a person has added: where there is room the next free cell, selected.
void SettleNewShortcut(frmMain& Main, int Index);

} // namespace quill
