// Folder items: a folder that becomes a container with some of what it holds.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

inline constexpr int FolderItemsOfDrop = 10;

// The folder itself and then its items, in name order, as many as limit. False: not all were added. A
// folder that can't be listed adds itself alone.
bool AddFolderItems(frmMain& Main, const std::string& folder, int container, int limit);
// Asks by [ContainerFromFolder] when the path is a folder; true: a container was made, and nothing is left to
// do.
bool ContainerFromFolder(frmMain& Main, const std::string& path, Point at);

} // namespace quill
