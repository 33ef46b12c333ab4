// WorkspaceLock: the lock for editing, and its brief opening. With [Quickly Unlock] a locked workspace that
// needs an edit is opened for so many seconds; then it locks itself, not before a hand or a dialog is done,
// and ImgLock shows for a moment, which a press opens again. What is saved is a locked workspace all the
// time.
//
// What the lock holds, and how an edit asks for it, stands in containers/lock.h.
#pragma once

#include "core/frmMain.h"

namespace quill {

inline constexpr int LockMarkTime = 3500;   // milliseconds that ImgLock shows
inline constexpr int BusyHandRecheck = 500; // milliseconds until a relocking that had to wait is tried again

// The other way round from what shows: an unlocking for the moment becomes a lock.
void mnuLock_Click(frmMain& Main);
void BrieflyUnlock(frmMain& Main);    // nothing while it is not locked or [Quickly Unlock] is 0
void EndBrieflyUnlock(frmMain& Main); // locks again, without ImgLock: a save is about to tell
void ImgLock_Click(frmMain& Main);
void TimerBrieflyUnlock_Timer(frmMain& Main);
void TimeLock_Timer(frmMain& Main);

} // namespace quill
