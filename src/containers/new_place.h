// New place: where a container that a person makes will stand.
#pragma once

#include "core/frmMain.h"

namespace quill {

// Main.Group.NewContainerPos, where the last press was, becomes a place where the whole container is seen,
// and not exactly over another that nobody would then see.
void ChooseNewPlace(frmMain& Main);

} // namespace quill
