// Folding: a container collapses to its title row. Folded is exactly: the mark shows "+". Folding may have an
// effect (appearance/effects.h), unfolding has none; the tables hold the end state from the start.
#pragma once

#include "core/frmMain.h"

namespace quill {

inline constexpr float FoldedHeight = 320; // twips

void FoldUnfoldContainer(frmMain& Main, int Index, bool UseEffect);
// Folds what a double-click unfolded, if that is this container and [FoldOnClick] is on.
void AutoFoldContainer(frmMain& Main, int Index);
void FlipFoldedNote(frmMain& Main, int Index); // the upward move of an unfold near the bottom, at load

void lblFoldUnfold_Click(frmMain& Main, int Index);
void ContainerLabel_DblClick(frmMain& Main, int Index);

} // namespace quill
