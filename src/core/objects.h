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
// Every live shortcut that lies in a parent. The views are asked first: nearly all lie elsewhere, and the
// records are the larger table.
template <class Act> void EachShortcutIn(const frmMain& Main, const Parent& parent, const Act& act) {
    for (std::size_t at = 0; at < Main.ShortcutViews.size(); ++at) {
        const auto index = static_cast<std::int32_t>(at);
        if (Main.ShortcutViews[at].In == parent && IsLive(Main.Shortcuts, index)) act(index);
    }
}
std::string ParentName(const Parent& parent); // "picBack" or "ContainerFrame", as the files write it
std::string DateText(const frmMain& Main);    // now, in the form of CreationDate and ModifyDate

} // namespace quill
