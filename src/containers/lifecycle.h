// Lifecycle of a container: made, deleted, its icon. Folding and the tile stand in fold.h and shrink.h.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

// Makes a container at NewContainerPos. ok is false at the limit: the message was shown, nothing was made;
// while loading the load ends and the program quits without saving. The new index is NextContainerIndex - 1
// afterwards.
void NewGroup(frmMain& Main, bool showNow, bool& ok);
// Removes one container and all it holds from the tables; never a file of the user's.
void DeleteContainer(frmMain& Main, int Index, bool removeFiles);
void AddShrinkIcon(frmMain& Main, const std::string& path, int Index);
void AddDefaultShrinkIcon(frmMain& Main, const std::string& path); // the container made last
// An empty ShrinkPath: the icon of its kind, from the files beside the program.
std::string DefaultShrinkIcon(const frmMain& Main, int Index);
void SetContainerShrinkSize(frmMain& Main, int Index, int width, int height);

} // namespace quill
