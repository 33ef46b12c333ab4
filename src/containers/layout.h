// Layout: the window's own parts and the inner parts of a container, from their present sizes; all in twips.
// The one table of design measures for what has no told place stands in containers/measures.h.
#pragma once

#include "core/frmMain.h"

namespace quill {

void ResizeForm(frmMain& Main);
void SetObjectRelativeSize(frmMain& Main, int Index);
void DoRoundGradResizeSym(frmMain& Main, int Index, bool RedrawResizeMark);
void ShowHideContainerToolbar(frmMain& Main, int Index, bool Show);
Rect ResizeMarkPlace(const Rect& box);       // the mark of DrawResizeSymbol, in a container of this size
void MoveLinkIcon(frmMain& Main, int Index); // the icon beside its label
// Measures the text and sizes label and icon: when a shortcut is first seen and after a change of style.
void SetNewLinkHeight(frmMain& Main, int Index);
// Where label and icon are in their parent; near enough while the text was never measured.
Rect LabelPlace(const frmMain& Main, int Index);
Rect IconPlace(const frmMain& Main, int Index);
int GetProperSpacing(int value);                        // twips; 155 for what is no spacing
int RowSpacing(const frmMain& Main, Parent in);         // twips between the shortcuts of a column
void MarkParent(frmMain& Main, Parent in);              // the surface on which shortcuts lie is painted again
float IconEdge(const frmMain& Main, int ShortcutIndex); // twips
void LockUnlockWindowMovement(frmMain& Main, bool Locked);
// Height of what lies in a container's frame, and how far it is scrolled; clamps ScrollTop.
float ContentHeight(const frmMain& Main, int Index);
// Scrolls as little as it takes to show a place of the container's surface.
void ScrollIntoView(frmMain& Main, int Index, const Rect& place);
void ScrollContainer(frmMain& Main, int Index, float top);

} // namespace quill
