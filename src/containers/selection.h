// Selection: shortcuts and containers that a person has picked. A shortcut is selected when its record says
// so and its index stands in SelectedShortcuts, in order of selection; a container by the flag of its label.
#pragma once

#include "core/frmMain.h"

namespace quill {

void SetSelection(frmMain& Main, int Shortcut, bool Selected);
void GetSelection(const frmMain& Main, int Shortcut, bool& Selected);
void UnselectLinks(frmMain& Main);
// All that lies between the one selected last and this one, if both lie on the same surface, and nothing
// else. The one selected last stays so, for the next range.
void SelectRange(frmMain& Main, int Shortcut);
// A shortcut, or the container that the element is part of; anything else has no selection.
void ToggleSelection(frmMain& Main, SurfaceId surface, ElementId element);
void SelectContainer(frmMain& Main, int Index);
void UnselectContainer(frmMain& Main, int Index);
void UnselectContainers(frmMain& Main);
int GetSelectedContainersCount(const frmMain& Main);
std::vector<int> SelectedContainers(const frmMain& Main); // in table order

void mnuConInvertSelection_Click(frmMain& Main);
void mnuConUnselectAll_Click(frmMain& Main);
// 0 selects all shortcuts of the current container or of the workspace, 1 deselects them, 2 inverts.
void mnuSelectShortcuts_Click(frmMain& Main, int Index);

} // namespace quill
