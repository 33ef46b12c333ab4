// The way out. Every step stands for itself: what one of them can't do does not keep the next from running.
#include "core/start.h"

#include "appearance/effects.h"
#include "appearance/tips.h"
#include "appearance/wallpaper.h"
#include "containers/dragging.h"
#include "containers/layout.h"
#include "containers/shrink.h"
#include "core/frmMain.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "dock/hotkey.h"
#include "dock/mini_dock.h"
#include "dock/mini_toolbar.h"
#include "dock/tray_icon.h"
#include "persistence/load.h"
#include "persistence/save.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/places.h"
#include "platform/questions.h"
#include "platform/session.h"
#include "platform/shell.h"
#include "platform/windows.h"
#include "system/system_info.h"

namespace quill {
namespace {

int Ask(frmMain& Main, const std::string& text, int flags, const std::string& title = ProgramName) {
    const DialogPause pause(Main);
    return Main.P.Questions.MsgBox(text, flags, title);
}

void StopTimers(frmMain& Main) {
    for (const auto name : {TimerName::TimerDontShrink, TimerName::TimerDblClickLabelDelay,
                            TimerName::TimerSaveNotes, TimerName::TimerRestoreCaption, TimerName::TimerHide,
                            TimerName::TimerShowMiniDock, TimerName::TimerServices, TimerName::TimeLock}) {
        Main.P.Clock.Stop({name});
    }
}

void EraseTables(frmMain& Main) {
    Main.Containers.clear();
    Main.ContainerViews.clear();
    Main.Shortcuts.clear();
    Main.ShortcutViews.clear();
    Main.Pictures.clear();
    Main.PictureViews.clear();
    Main.FeedViews.clear();
}

} // namespace

void mnuExitApp_Click(frmMain& Main) {
    mnuExitMainWin_Click(Main);
}

// The exit routine itself runs when the outermost loop is back, never inside an open question.
void mnuExitMainWin_Click(frmMain& Main) {
    Main.P.Session.Quit(0);
}

void UnloadMain(frmMain& Main) {
    if (Main.IsExiting) return;
    Main.IsExiting = true;
    Main.Group.HoldExpanded = false;
    HideTip(Main);
    EndEffect(Main); // what is animated does not shrink back
    CancelContainerDrag(Main);
    ShrinkBackContainer(Main, false);
    CloseMiniToolbar(Main);
    ShellTrayRemove(Main);
    SaveWorkspace(Main, false, true); // a docked workspace is told as out at its edge
    StopTimers(Main);
    StopCPUMonitoring(Main);
    UnregisterGlobalHotkey(Main);
    UnloadMiniDock(Main);
    Main.P.Windows.Hide(MainWindow);
    Main.ZOrderList.clear();
    Main.P.Session.ProcessPending();
    EraseTables(Main);
}

void RestartIgnoringChanges(frmMain& Main) {
    const auto reloader = Main.P.Places.ProgramFolder() + "/Reloader";
    if (!Main.P.Files.Exists(reloader)) {
        Ask(Main, Tr(Main, "Can't find: %1. Please reinstall the program.", reloader), BoxWarning);
        return;
    }
    const auto question = Tr(Main, "Ignore all recent changes and restart the program?");
    if (Ask(Main, question, BoxYesNo | BoxQuestion) != AnswerYes || Main.IsExiting) return;
    if (const auto started = Main.P.Shell.StartProgram(reloader, {}); !started) {
        Ask(Main, Tr(Main, "Error: %1", started.Error().Text), BoxWarning);
        return;
    }
    // It waits for our end, so there is time to throw the changes away; before it, a start that fails lost
    // them.
    (void)DropRecovery(Main);
    Main.g_DontSave = true;
    mnuExitMainWin_Click(Main);
}

void mnuClearWorkspace_Click(frmMain& Main) {
    const auto question =
        Tr(Main, "Are you sure you want to delete all objects and start from scratch?") + "\n\n" +
        Tr(Main,
           "Reminder: You can always select [Ignore Changes] and revert back to the last time the workspace "
           "was saved, even after clearing the workspace.");
    const int answer = Ask(Main, question, BoxYesNo | BoxQuestion, Tr(Main, "Clear Workspace"));
    if (answer == AnswerYes && !Main.IsExiting) ClearWorkspace(Main);
}

void mnuLoadDefaults_Click(frmMain& Main) {
    const auto question = Tr(Main, "Load the default settings?");
    const int answer = Ask(Main, question, BoxYesNo | BoxQuestion, Tr(Main, "Default Settings"));
    if (answer != AnswerYes || Main.IsExiting) return;
    InitDefaultSettings(Main.Settings);
    LoadWallpaper(Main);
    LockUnlockWindowMovement(Main, Main.Settings.PreventWindowMovement);
    SetWindowOnTop(Main);
    ApplyOpacity(Main);
    Main.P.Windows.SetTaskbarEntry(MainWindow, Main.Settings.ShowInTaskbar);
    Main.Marks.Everything();
    SaveWorkspace(Main, true, false);
}

} // namespace quill
