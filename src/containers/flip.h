// Flip: the Space key walks over the containers of a chosen set, and GoToContainer brings one of them out.
// What was opened for the moment closes on the way.
#pragma once

#include "core/frmMain.h"

namespace quill {

// One step from FlipPosition; the set is [SpacebarFlip]. Behind the last one everything is closed and the
// next step starts over.
void SpacebarFlip(frmMain& Main, bool forward);
void GoToContainer(frmMain& Main, int Index);

} // namespace quill
