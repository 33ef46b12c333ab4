// Lock: what the lock for editing (mnuLock) holds fast. It never keeps anything from being started, folded,
// shrunk or read.
//
// Whoever changes something asks NeedsEdit right before, behind all questions, so that nothing is opened for
// a person who then thinks better of it. What only tells whether a change is possible, as a menu or a drag
// over a surface does, asks the two others; they open nothing.
#pragma once

#include "core/frmMain.h"
#include "dock/workspace_lock.h"

namespace quill {

enum class Edit {
    Shortcuts,
    Containers, // and pictures: place and size
};

inline bool IsHeldByLock(const frmMain& Main, Edit what) {
    return Main.Dock.Locked && !(what == Edit::Containers && Main.Settings.LockOnlyShortcuts);
}

// The lock does not hold them, or would open for it.
inline bool MayMoveShortcuts(const frmMain& Main) {
    return !IsHeldByLock(Main, Edit::Shortcuts) || Main.Settings.QuicklyUnlock != 0;
}
inline bool MayMoveContainers(const frmMain& Main) {
    return !IsHeldByLock(Main, Edit::Containers) || Main.Settings.QuicklyUnlock != 0;
}

// Whether the edit may be made now; a lock that may be opened briefly is.
inline bool NeedsEdit(frmMain& Main, Edit what) {
    if (IsHeldByLock(Main, what)) BrieflyUnlock(Main);
    return !IsHeldByLock(Main, what);
}

} // namespace quill
