// Shrinking: a container becomes a tile with its icon, and comes back. Shrunk is exactly: the size is the
// tile's.
#pragma once

#include "core/frmMain.h"

namespace quill {

void ExpandShrinkContainer(frmMain& Main, int Index, bool UseEffect);
void ShrinkBackContainer(frmMain& Main, bool UseEffect);
void TimerDontShrink_Timer(frmMain& Main);

} // namespace quill
