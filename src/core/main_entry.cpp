// The entry routine. Everything up to the claim of the one running copy needs no display and makes no window.
#include "core/start.h"

#include "core/frmMain.h"
#include "core/splash.h"
#include "core/tr.h"
#include "persistence/backup.h"
#include "platform/instance.h"
#include "platform/places.h"
#include "platform/questions.h"
#include "platform/session.h"

#include <optional>

namespace quill {
namespace {

using ExitStatus = std::optional<int>; // empty: go on

// A box where there is a display, a line where there is none.
void Tell(frmMain& Main, const std::string& text, int flags) {
    if (Main.P.Session.OpenDisplay())
        Main.P.Questions.MsgBox(text, flags, ProgramName);
    else
        Main.P.Session.PrintOut(text + "\n");
}

ExitStatus RunBackup(frmMain& Main) {
    const auto made = BackupQuillmere(Main, std::string(ProgramName) + "_Backup.zip");
    if (!made) {
        Main.P.Session.PrintError(Tr(Main, "quillmere: the backup could not be made: %1", made.Error().Text) +
                                  "\n");
        return 1;
    }
    if (!Main.Start.Silent) Tell(Main, Tr(Main, "Backup Complete"), BoxOk);
    return 0;
}

ExitStatus PrintHelp(frmMain& Main) {
    Main.P.Session.PrintOut(PlainHelp());
    return 0;
}

ExitStatus PrintVersion(frmMain& Main) {
    Main.P.Session.PrintOut(std::string(ProgramName) + " " + ProgramVersion + "\n");
    return 0;
}

ExitStatus RefuseUnknown(frmMain& Main) {
    Main.P.Session.PrintError(
        Tr(Main, "quillmere: unknown option %1; --help lists what there is.", Main.Start.Unknown) + "\n");
    return 2;
}

ExitStatus ShowHelpBox(frmMain& Main) {
    Tell(Main, CommandLineHelp(), BoxInformation);
    return 0;
}

ExitStatus AnswerCommandLine(frmMain& Main) {
    const auto& start = Main.Start;
    if (!start.Unknown.empty()) return RefuseUnknown(Main);
    if (start.Help) return PrintHelp(Main);
    if (start.Version) return PrintVersion(Main);
    if (start.Backup) return RunBackup(Main);
    if (start.HelpBox) return ShowHelpBox(Main);
    return {};
}

// A program in the root of a drive would take the whole drive for its own folder.
ExitStatus RefuseRootFolder(frmMain& Main) {
    const auto folder = Main.P.Places.ProgramFolder();
    if (folder != "/" && Main.P.Places.MountPoint(folder) != folder) return {};
    Tell(Main, Tr(Main, "%1 cannot run from the root folder: %2", ProgramName, folder),
         BoxCritical | BoxSystemModal);
    return 1;
}

ExitStatus CallRunningCopy(frmMain& Main) {
    const auto claim = Main.P.Instance.ClaimOrCall(Main.Start.Toggle ? Summons::Toggle : Summons::Show);
    if (!claim) {
        Main.P.Session.PrintError(
            Tr(Main, "quillmere: can't tell whether it runs already: %1", claim.Error().Text) + "\n");
        return 1;
    }
    if (claim.Value() == Claim::Called) return 0;
    if (claim.Value() == Claim::First) return {};
    Main.P.Session.PrintError(Tr(Main, "quillmere: it runs already and does not answer.") + "\n");
    return 1;
}

ExitStatus OpenDisplay(frmMain& Main) {
    const auto opened = Main.P.Session.OpenDisplay();
    if (opened) return {};
    Main.P.Session.PrintError("quillmere: " + opened.Error().Text + "\n");
    return 1;
}

int RunWorkspace(frmMain& Main) {
    Main.P.Session.Attach(Main);
    LoadSettings(Main);
    EndSplash(Main);
    int status = 0;
    if (!Main.Store.Quit) {
        PostLoad(Main);
        status = Main.P.Session.Run();
        UnloadMain(Main);
    }
    Main.P.Session.Detach();
    return status;
}

} // namespace

int Main(const Platform& platform, const std::vector<std::string>& arguments) {
    frmMain workspace(platform);
    workspace.Start = ReadCommandLine(arguments);
    SettleSettingsFolder(workspace);
    for (const auto step : {AnswerCommandLine, RefuseRootFolder, CallRunningCopy, OpenDisplay}) {
        if (const auto status = step(workspace)) return *status;
    }
    return RunWorkspace(workspace);
}

} // namespace quill
