// Open with: one shortcut's target is started with another's, or all selected ones', as its document. A
// shortcut that is dropped on a program's label or icon is opened with that program; where nothing can be
// opened, as on a command, an address, a folder or a document, it is put down as anywhere else.
#pragma once

#include "core/frmMain.h"
#include "core/surfaces.h"
#include "platform/drags.h"

#include <string>

namespace quill {

// Whether a shortcut dropped on another would be opened with it; false where either is a command, or the
// target is an address, a folder or a document. A target that is gone can't be told from a program.
bool CanOpenWith(const frmMain& Main, int targetIndex, int sourceIndex);
// The drop: asks where that is set, then opens. The selection goes along.
void DropOnShortcut(frmMain& Main, int targetIndex, int sourceIndex);
// Each document is one argument of the program, started in the program's own folder. A program that is gone
// is passed over in silence.
void OpenShortcutWith(frmMain& Main, int targetIndex, int sourceIndex);
// "Start: " ... while the drag is over a shortcut; empty: no tip.
std::string OpenWithTip(const frmMain& Main, int targetIndex, int sourceIndex);

// The shortcut at a place of a surface that would open what is dragged; -1: none. What is in the hand itself
// opens nothing.
int OpenWithAt(const frmMain& Main, SurfaceId surface, Point at, const DragData& data);
// The target's label stands on a plate, and the tip tells what the drop would do. -1: nothing shows.
void ShowOpenWith(frmMain& Main, int targetIndex, int sourceIndex);

// Every shortcut of a tag, one after the other in table order. A tag of a shortcut counts that occurs
// anywhere in the argument, without regard to case.
void StartAllWithTag(frmMain& Main, const std::string& tags);

} // namespace quill
