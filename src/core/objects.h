// Objects: what every room asks of the tables: stacking, parents, counts, the kind of a container, and the
// making and deleting of rows that no room owns alone.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

// Brings the object to the top (the end of ZOrderList), or with ToBack to the bottom (element 0). The list
// never holds an object twice, also while loading.
void AddToZorderCollection(frmMain& Main, ZOrderEntry Object, bool ToBack);
void RemoveFromZorder(frmMain& Main, ZOrderEntry Object);

ContainerKind KindOf(const frmMain& Main, int Index);
bool IsShrunk(const frmMain& Main, int Index); // its size is the tile's
bool IsFolded(const frmMain& Main, int Index); // its mark is "+"
int LiveContainers(const frmMain& Main);
int GetContainerShortcutCount(const frmMain& Main, int Index);
int WorkspaceShortcutCount(const frmMain& Main);
std::string ParentName(const Parent& parent); // "picBack" or "ContainerFrame", as the files write it
std::string DateText(const frmMain& Main);    // now, in the form of CreationDate and ModifyDate

} // namespace quill
