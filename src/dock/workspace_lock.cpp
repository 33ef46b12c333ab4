#include "dock/workspace_lock.h"

#include "containers/layout.h"
#include "persistence/save.h"
#include "platform/clock.h"

namespace quill {
namespace {

constexpr TimerId briefTimer{TimerName::TimerBrieflyUnlock};
constexpr TimerId markTimer{TimerName::TimeLock};

enum class Mark { Hidden, Shown };

// The title row is laid anew: one of the two buttons goes, and the mark takes room of the caption's.
void Put(frmMain& Main, bool locked, Mark mark) {
    Main.Dock.Locked = locked;
    Main.View.ImgLock.Visible = mark == Mark::Shown;
    ResizeForm(Main);
}

// Neither waits for the end of its time any more.
void StopBoth(frmMain& Main) {
    Main.Dock.BrieflyUnlocked = false;
    Main.P.Clock.Stop(briefTimer);
    Main.P.Clock.Stop(markTimer);
}

void LockAgain(frmMain& Main, Mark mark) {
    StopBoth(Main);
    Put(Main, true, mark);
    if (mark == Mark::Shown) Main.P.Clock.Start(markTimer, LockMarkTime);
}

bool IsEditInHand(const frmMain& Main) {
    const auto& group = Main.Group;
    return Main.Dock.DialogPauses > 0 || Main.Dock.WorkspaceDragging || group.Drag.Pressed != -1 ||
           group.ResizingContainer != -1 || Main.Links.Dragged.Taken;
}

} // namespace

void mnuLock_Click(frmMain& Main) {
    StopBoth(Main);
    Put(Main, !Main.Dock.Locked, Mark::Hidden);
    SaveWorkspace(Main, true, false);
}

void BrieflyUnlock(frmMain& Main) {
    if (!Main.Dock.Locked || Main.Settings.QuicklyUnlock == 0) return;
    StopBoth(Main);
    Main.Dock.BrieflyUnlocked = true;
    Put(Main, false, Mark::Hidden);
    Main.P.Clock.Start(briefTimer, Main.Settings.QuicklyUnlock * 1000);
}

void EndBrieflyUnlock(frmMain& Main) {
    if (Main.Dock.BrieflyUnlocked) LockAgain(Main, Mark::Hidden);
}

void ImgLock_Click(frmMain& Main) {
    BrieflyUnlock(Main);
}

void TimerBrieflyUnlock_Timer(frmMain& Main) {
    if (!Main.Dock.BrieflyUnlocked) return Main.P.Clock.Stop(briefTimer);
    if (IsEditInHand(Main)) return Main.P.Clock.Start(briefTimer, BusyHandRecheck);
    LockAgain(Main, Mark::Shown);
}

void TimeLock_Timer(frmMain& Main) {
    Main.P.Clock.Stop(markTimer);
    Put(Main, Main.Dock.Locked, Mark::Hidden);
}

} // namespace quill
