// Full size: the size that a container has when it is neither folded nor a tile. It is remembered once, in
// both places of the record that hold it, and the tile's own size is never taken for it.
#pragma once

#include "core/frmMain.h"

namespace quill {

void RememberFullSize(frmMain& Main, int Index, Size size);
// From the view while it is unfolded; a folded one has its present width and the remembered height.
void RememberPresentSize(frmMain& Main, int Index);
Size FullSize(const frmMain& Main, int Index); // 3000 by 3000 when none is known
void RememberPlace(frmMain& Main, int Index);  // where it stands, as the place to come back to

} // namespace quill
