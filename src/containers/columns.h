// Columns: shortcuts one below the other, each the row spacing of its parent below the one before. What
// arranges shortcuts by a command lays them through here; LayShortcuts and NextFreeCell stand in arrange.h.
#pragma once

#include "core/frmMain.h"

#include <vector>

namespace quill {

// Shortcuts of one parent, from the place of the first label downward. In a frame the column may be as long
// as it likes: the frame scrolls. On the workspace one that would run out of it begins higher, and goes on in
// a further column at the right if it is higher than the workspace. Neither undone nor saved here.
void LayColumn(frmMain& Main, Parent in, const std::vector<int>& links, Point from);
// Label and icon as its record says, measured if they were never seen.
void MeasureLink(frmMain& Main, int Index);

} // namespace quill
