#include "shortcuts/launch.h"

#include "core/tr.h"
#include "dock/docking.h"
#include "platform/questions.h"

namespace quill {

namespace {

bool StartAllConfirmed(frmMain& Main, int Index) {
    if (!Main.Settings.ConfirmStartAllShortcuts) return true;
    const std::string text = Tr(Main,
                                "Start all shortcuts in %1?\n\n* Disable this confirmation from the Settings "
                                "dialog.",
                                Main.ConView(Index).ContainerLabel.Caption);
    const DialogPause pause(Main);
    return Main.P.Questions.MsgBox(text, BoxYesNo | BoxQuestion, ProgramName) == AnswerYes;
}

// By value, because each start may ask something, and rows may die meanwhile.
std::vector<int> ShortcutsIn(const frmMain& Main, int Index) {
    std::vector<int> found;
    for (const auto& row : Live(Main.Shortcuts))
        if (Main.LinkView(row.Index).In == InContainer(Index)) found.push_back(row.Index);
    return found;
}

} // namespace

// The window that has the keyboard afterwards is not asked to keep it: that wish would be younger than the
// starts, and the windows of all that was started would open behind it.
void StartAllInContainer(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    PreLaunch(Main);
    if (!StartAllConfirmed(Main, Index) || Main.IsExiting || !IsLive(Main.Containers, Index)) return;
    for (const int shortcut : ShortcutsIn(Main, Index)) {
        if (Main.IsExiting) return;
        Main.Links.DragIndex = shortcut;
        StartShortcut(Main, shortcut, true, "", false, false);
    }
}

} // namespace quill
