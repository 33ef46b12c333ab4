// What the workspace's menu does with the window: maximise, on top, movement.
#include "dock/docking.h"

#include "containers/layout.h"
#include "persistence/save.h"
#include "platform/windows.h"

namespace quill {

void mnuMaximize_Click(frmMain& Main) {
    if (Main.Dock.Maximized) {
        Main.Dock.Maximized = false;
        PlaceMain(Main, Main.View.RestoreRect);
    } else {
        Main.View.RestoreRect = Main.View.Window;
        Main.Dock.Maximized = true;
        PlaceMain(Main, WorkAreaOf(Main, Main.View.Window));
    }
    Main.Marks.Workspace();
}

void mnuOnTop_Click(frmMain& Main) {
    Main.Settings.OnTop = !Main.Settings.OnTop;
    SetWindowOnTop(Main);
    SaveWorkspace(Main, true, false);
}

void mnuPreventWindowMovement_Click(frmMain& Main) {
    LockUnlockWindowMovement(Main, !Main.Settings.PreventWindowMovement);
    SaveWorkspace(Main, true, false);
}

} // namespace quill
