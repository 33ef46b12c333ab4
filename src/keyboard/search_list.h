// Search list: the lines below the typed text. Shortcuts that the text may mean, the folders of a path, or
// the history.
#pragma once

#include "core/frmMain.h"

#include <vector>

namespace quill {

void SetSearchList(frmMain& Main, std::vector<JumpItem> items); // closed, nothing highlighted
void OpenSearchList(frmMain& Main);                             // if it has lines
void CloseSearchList(frmMain& Main);                            // its lines go, and the history mode
// The list that belongs to the text, opened.
void FillSearchList(frmMain& Main);
void FillHistoryList(frmMain& Main);
// By so many lines, from none to the first or last; the text follows.
void MoveInSearchList(frmMain& Main, int by);
// The line's text is taken into the field, with what it stands for.
void TakeLine(frmMain& Main, int row);

} // namespace quill
