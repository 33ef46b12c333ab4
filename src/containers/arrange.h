// Arrange: the commands that put shortcuts and containers in order.
#pragma once

#include "core/frmMain.h"

#include <vector>

namespace quill {

enum class SortOrder { Ascending, Descending };

// Commands that move shortcuts or change them do nothing while the workspace is locked; each is one step of
// undo (sizes are none) and is saved.

// The selected ones, each parent's in a column of its own that begins at the highest of them. By name in
// natural order; equal names stay in the order of the table.
void SortShortcuts(frmMain& Main, SortOrder order);
void mnuSortShortcuts_Click(frmMain& Main, int Index); // 0 ascending, else descending
// The font size of the selected shortcuts, two points at a time, 1 to 200; the last asks for one.
void MakeIconsLarger_Click(frmMain& Main);
void MakeIconsSmaller_Click(frmMain& Main);
void MakeIconsSizeDifferent_Click(frmMain& Main);
void mnuLineSpacing_Click(
    frmMain& Main); // of the current container while it has the keys, or of the workspace
void mnuAlign_Click(frmMain& Main);
// 0 top, 1 left, as the current container has it; 2 spaced evenly from left to right. Of the selected ones.
void mnuAlignContainers_Click(frmMain& Main, int Index);

// The shortcuts of one parent by its row spacing: those that stand one below the other stay a column and keep
// their order. Neither undone nor saved here.
void LayShortcuts(frmMain& Main, Parent in);
// Where these shortcuts lie, each place once, in the order of the list.
std::vector<Parent> ParentsOf(const frmMain& Main, const std::vector<int>& links);
// The first free cell of the columns that fill a parent from its upper left; where the next shortcut goes.
// Not under a container, and below what is seen only when that is full.
Point NextFreeCell(const frmMain& Main, Parent in);

} // namespace quill
