// Near the lower edge: a container that opens there moves up, and remembers where it came from. Unfolding and
// expanding share it.
#pragma once

#include "core/frmMain.h"

namespace quill {

// runsOff: it would not fit where it stands. Sets or clears CloseToEdgeY; the present Top is stored before
// the move. Never moved above the workspace's title row.
void KeepAboveLowerEdge(frmMain& Main, int Index, bool runsOff);

} // namespace quill
