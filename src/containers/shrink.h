// Shrinking: a container becomes a tile with its icon, and comes back. Shrunk is exactly: the size is the
// tile's.
//
// An expanded tile is open for the moment: ExpandedContainer, at most one, goes back to its tile's place when
// the mouse leaves it (hover.h), at a press on the empty workspace, when another one is expanded, at a
// docking and at the end of the program. UseEffect only asks for an effect; the settings decide
// (appearance/effects.h). The tables hold the end state from the start, so that what is saved meanwhile is
// right.
#pragma once

#include "core/frmMain.h"

namespace quill {

// From the one to the other. Refused for a moment after it was expanded, so that one click does not do both.
void ExpandShrinkContainer(frmMain& Main, int Index, bool UseEffect);
// Not while HoldExpanded is set or its effect runs; a docking and the end of the program end the effect
// first.
void ShrinkBackContainer(frmMain& Main, bool UseEffect);
void TimerDontShrink_Timer(frmMain& Main);

} // namespace quill
