#include "core/caption.h"

#include "core/tr.h"
#include "platform/clock.h"

namespace quill {

std::string NormalCaption(const frmMain& Main) {
    if (!Main.Store.SaveFailure.empty())
        return Tr(Main, "Can't save the workspace: %1", Main.Store.SaveFailure);
    const auto selected = Main.Links.SelectedShortcuts.size();
    if (selected > 1) return Tr(Main, "%1 shortcuts selected", std::to_string(selected));
    return std::string(ProgramName) + " " + ProgramVersion;
}

void SetCaption(frmMain& Main, const std::string& text) {
    if (Main.View.Caption == text) return;
    Main.View.Caption = text;
    Main.Marks.Workspace();
}

void ShowPassingCaption(frmMain& Main, const std::string& text) {
    SetCaption(Main, text);
    Main.P.Clock.Start({TimerName::TimerRestoreCaption}, PassingCaptionTime);
}

void RestoreCaption(frmMain& Main) {
    Main.P.Clock.Stop({TimerName::TimerRestoreCaption});
    SetCaption(Main, NormalCaption(Main));
}

void TimerRestoreCaption_Timer(frmMain& Main) {
    RestoreCaption(Main);
}

} // namespace quill
