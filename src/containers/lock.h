// Lock: what the lock for editing (mnuLock) holds fast. It never keeps anything from being started, folded,
// shrunk or read.
#pragma once

#include "core/frmMain.h"

namespace quill {

inline bool MayMoveShortcuts(const frmMain& Main) {
    return !Main.Dock.Locked;
}
// Containers and pictures: place and size.
inline bool MayMoveContainers(const frmMain& Main) {
    return !Main.Dock.Locked || Main.Settings.LockOnlyShortcuts;
}

} // namespace quill
