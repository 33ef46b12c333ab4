#include "persistence/save_report.h"

#include "core/caption.h"
#include "core/tr.h"
#include "platform/session.h"

namespace quill {

void ReportSave(frmMain& Main, const Status& saved) {
    const auto failure = saved ? std::string() : saved.Error().Text;
    if (!saved) {
        const auto line =
            Tr(Main, "quillmere: can't save the workspace in '%1': %2", Main.SettingsFolder, failure);
        Main.P.Session.PrintError(line + "\n");
    }
    if (Main.Store.SaveFailure == failure) return;
    Main.Store.SaveFailure = failure;
    RestoreCaption(Main);
}

void ReportDamagedSave(frmMain& Main, const std::string& path) {
    if (path.empty()) return;
    Main.P.Session.PrintError(
        Tr(Main, "quillmere: an interrupted save was damaged; its files lie in '%1' now", path) + "\n");
}

} // namespace quill
