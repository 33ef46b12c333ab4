#include "persistence/backup.h"

#include "core/caption.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/clsZip.h"
#include "persistence/generation.h"
#include "persistence/save.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/questions.h"
#include "platform/shell.h"
#include "platform/work.h"

#include <memory>

namespace quill {
namespace {

constexpr std::uint64_t fileLimit = 1u << 30; // nothing that could be loaded comes near it
constexpr int readAttempts = 5;               // a running copy may save while we read

constexpr const char* readmeName = "Readme_1st.txt";
constexpr const char* readme = "Restore:\r\n"
                               "1) Exit Quillmere and open the settings folder.\r\n"
                               "2) Overwrite 'Quillmere.ini' with the copy that is in the zip file.\r\n"
                               "3) Open the Containers subfolder, delete any existing files and extract all "
                               "of the .con files from the zip "
                               "into the Containers subfolder.\r\n";

constexpr const char* question =
    "Backup workspace to: %1/%2?\n\n"
    "To Restore: Open the settings folder and exit Quillmere. Extract the *.con files from the zip file into "
    "the "
    "Containers sub-folder and Quillmere.ini into the main settings folder. Delete any previous *.con files "
    "from "
    "the Containers sub-folder before restoring the backed-up copies.\n\n"
    "Automate backup from the command line using the '/backup' or '/backup /silent' parameters.";

std::string PathOf(const frmMain& Main, const std::string& FileName) {
    return Main.SettingsFolder + "/" + FileName;
}

// ---- what goes in

// With what else the folder lists as a container: a name that no save of ours would give is packed as well.
PathsByName PathsToPack(const FileReader& files, const std::string& folder) {
    auto paths = Standing(files, folder);
    const std::string containers(ContainersFolder);
    const auto listed = files.List(folder + "/" + containers);
    if (!listed) return paths;
    for (const auto& bare : listed.Value()) {
        if (!MatchesPattern(bare, "*.con") || NumberOf(bare, CommittedExtension)) continue;
        const auto name = containers + "/" + bare;
        const auto info = files.Stat(folder + "/" + name);
        if (info && info.Value().IsRegular) paths[name] = folder + "/" + name;
    }
    return paths;
}

// Containers in the order of their numbers, then the settings.
std::vector<std::string> CommittedNames(const PathsByName& standing) {
    std::vector<std::string> names;
    for (const auto& [name, path] : standing) {
        if (MatchesPattern(name, "*.con")) names.push_back(name);
    }
    SortByNumber(names);
    if (standing.contains(CommittedSettings)) names.emplace_back(CommittedSettings);
    return names;
}

Result<std::vector<ZipEntry>> ReadOnce(const FileReader& files, const PathsByName& standing) {
    std::vector<ZipEntry> entries;
    for (const auto& name : CommittedNames(standing)) {
        auto bytes = files.Read(standing.find(name)->second, fileLimit);
        if (!bytes) return bytes.Error();
        entries.push_back({std::string(BareName(name)), std::move(bytes.Value())});
    }
    entries.push_back({readmeName, readme});
    return entries;
}

// The committed files as they stand, one generation. A running copy may be in the middle of a save: then a
// file is gone or has moved between two looks, and all is read again.
Result<std::vector<ZipEntry>> CommittedFiles(const FileReader& files, const std::string& folder) {
    Result<std::vector<ZipEntry>> entries = Failure{};
    for (int attempt = 0; attempt < readAttempts; ++attempt) {
        const auto before = PathsToPack(files, folder);
        entries = ReadOnce(files, before);
        if (entries && PathsToPack(files, folder) == before) return entries;
        if (!entries && !entries.Missing()) return entries;
    }
    return entries;
}

// ---- off the thread

// All that the job needs, by value. The archive itself is made by the zip port, which any thread may call.
struct Packing {
    clsZip Archive;
    std::vector<ZipEntry> Entries;
    Status Made;
};

void Pack(frmMain& Main, const BackupRequest& request);

void TellFailure(frmMain& Main, const Status& made) {
    const DialogPause pause(Main);
    const auto text = Tr(Main, "Error (%1) in procedure AddFilesToZip", made.Error().Text);
    Main.P.Questions.MsgBox(text, BoxOk | BoxCritical, ProgramName);
}

void Conclude(frmMain& Main, const BackupRequest& request, const Status& made) {
    Main.Store.BackupRunning = false;
    RestoreCaption(Main);
    const auto next = std::exchange(Main.Store.NextBackup, std::nullopt);
    if (made && request.Confirm) Main.P.Shell.ShowInFolder(PathOf(Main, request.FileName));
    if (next && !Main.IsExiting) Pack(Main, *next);
    if (!made && !Main.IsExiting) TellFailure(Main, made);
}

void Pack(frmMain& Main, const BackupRequest& request) {
    if (!Main.Group.FrameLinkGroup) {
        RestoreCaption(Main);
        SetCaption(Main, Tr(Main, "Workspace Backup: Creating Zip file, please wait..."));
    }
    auto entries = CommittedFiles(Main.P.Files, Main.SettingsFolder);
    if (!entries) return Conclude(Main, request, entries.Error());
    const auto packing =
        std::make_shared<Packing>(Packing{clsZip(Main.P.Zip), std::move(entries.Value()), {}});
    packing->Archive.ZipFileName = PathOf(Main, request.FileName);
    if (auto cleared = packing->Archive.ClearPart(Main.P.Files); !cleared)
        return Conclude(Main, request, cleared);
    Main.Store.BackupRunning = true;
    Main.P.Worker.Run([packing] { packing->Made = packing->Archive.AddFilesToZip(packing->Entries); },
                      [&Main, packing, request] {
                          auto made =
                              packing->Made ? packing->Archive.TakePlace(Main.P.Files) : packing->Made;
                          if (!made) (void)packing->Archive.ClearPart(Main.P.Files);
                          Conclude(Main, request, made);
                      });
}

// One at a time. What is asked for meanwhile is made afterwards, once, from what stands then.
void PackOrWait(frmMain& Main, BackupRequest request) {
    auto& next = Main.Store.NextBackup;
    if (!Main.Store.BackupRunning) return Pack(Main, request);
    request.Confirm = request.Confirm || (next && next->Confirm);
    next = std::move(request);
}

bool Confirmed(frmMain& Main, const std::string& FileName) {
    const DialogPause pause(Main);
    const auto text = Tr(Main, question, Main.SettingsFolder, FileName);
    return Main.P.Questions.MsgBox(text, BoxYesNo | BoxQuestion, ProgramName) == AnswerYes && !Main.IsExiting;
}

} // namespace

std::string BackupName(const frmMain& Main) {
    std::string name = std::string(ProgramName) + "_Backup";
    if (Main.Settings.BackupDateStamp) {
        const auto today = Main.P.Clock.Now();
        name += "_" + std::to_string(today.Year) + "-" + std::to_string(today.Month) + "-" +
                std::to_string(today.Day);
    }
    return name + ".zip";
}

Status BackupQuillmere(frmMain& Main, const std::string& FileName) {
    const auto entries = CommittedFiles(Main.P.Files, Main.SettingsFolder);
    if (!entries) return entries.Error();
    clsZip archive(Main.P.Zip);
    archive.ZipFileName = PathOf(Main, FileName);
    if (auto cleared = archive.ClearPart(Main.P.Files); !cleared) return cleared;
    auto made = archive.AddFilesToZip(entries.Value());
    if (made) return archive.TakePlace(Main.P.Files);
    (void)archive.ClearPart(Main.P.Files);
    return made;
}

// A save that failed makes no backup: it would put the older state in the place of the last one.
void BackupSetings(frmMain& Main, bool Confirm) {
    const auto name = BackupName(Main);
    if (Confirm && !Confirmed(Main, name)) return;
    if (!MaySave(Main)) return;
    SaveWorkspace(Main, false, false);
    if (Main.Store.SaveFailure.empty()) PackOrWait(Main, {name, Confirm});
}

void mnuBackup_Click(frmMain& Main) {
    BackupSetings(Main, true);
}

} // namespace quill
