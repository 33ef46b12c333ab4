// Commands of the container's menu that change containers as a whole. All work on CurrentContainer, or on the
// selected containers; each that changes something ends with a recovery save.
#pragma once

#include "core/frmMain.h"

namespace quill {

void mnuConKeepExpanded_Click(frmMain& Main);
// The two selected containers change places, as one step of undo; any other number is told how to select two.
void mnuConSwitchPlaces_Click(frmMain& Main);
// Every selected container takes the size of the current one, after a question. Folded ones take it as the
// size to unfold to. Where the current one is a tile the others become tiles of its size, and keep their full
// one.
void mnuSetContainerSize_Click(frmMain& Main);
// The selected containers when the current one is among them, else the current one alone: a menu removes
// nothing that it was not opened on.
void mnuConRemove_Click(frmMain& Main);
void mnuConProperties_Click(frmMain& Main);
// All shortcut labels and tile icons are drawn afresh, after a change of colours or icon size, or of the
// files that the icons come from.
void RefreshLinksAndShrinkIcons(frmMain& Main);
// What the container shows is asked for again when it is next seen.
void ResetIconDrawn(frmMain& Main, int Index);

} // namespace quill
