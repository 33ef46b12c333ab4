// Placing: where a new shortcut stands. At a place that somebody pointed at, in a column below the one before
// it, or in the next free cell; and what the container around it does then.
#pragma once

#include "core/frmMain.h"
#include "shortcuts/drop_target.h"

namespace quill {

// Measures it and gives it its place. before: the one that was added just before it, -1 for none. A place
// that nobody sees is none: it goes to a free cell.
void PlaceNewShortcut(frmMain& Main, const DropPlace& place, int Index, int before);
// The same for one that was added by a command: in a container in the next free cell, on the workspace where
// it was added if nothing lies there, else in a free cell.
void PlaceAddedShortcut(frmMain& Main, int Index);

// A container whose frame has shown everything goes on showing everything, as far as the workspace reaches.
// Asked before the first shortcut is added, and done behind the last.
bool ShowsAll(const frmMain& Main, Parent in);
void FitToContent(frmMain& Main, Parent in, bool shownAll);

} // namespace quill
