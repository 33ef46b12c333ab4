#include "persistence/save.h"

#include "core/caption.h"
#include "core/tr.h"
#include "dock/workspace_lock.h"
#include "persistence/backup.h"
#include "persistence/container_file.h"
#include "persistence/generation.h"
#include "persistence/names.h"
#include "persistence/objects_by_parent.h"
#include "persistence/save_report.h"
#include "persistence/settings_file.h"
#include "persistence/surplus.h"
#include "platform/files.h"
#include "platform/session.h"
#include "shortcuts/icon_cache.h"

#include <functional>
#include <map>

namespace quill {
namespace {

enum class What { Everything, ContainersOnly };

// ---- the texts

// In stacking order, the bottom first: the order of the files is what brings the stack back. Every live
// container is written, once, whatever the stack says.
std::vector<int> ContainersInOrder(const frmMain& Main) {
    std::vector<int> order;
    std::vector<bool> taken(Main.Containers.size());
    const auto add = [&](std::int32_t index) {
        if (!IsLive(Main.Containers, index) || taken[static_cast<std::size_t>(index)]) return;
        taken[static_cast<std::size_t>(index)] = true;
        order.push_back(index);
    };
    for (const auto& entry : Main.ZOrderList) {
        if (entry.Kind == KindContainer) add(entry.Index);
    }
    for (std::size_t index = 0; index < Main.Containers.size(); ++index)
        add(static_cast<std::int32_t>(index));
    return order;
}

// One at a time: what need not be written is forgotten before the next is made, which for a large workspace
// is half of the cost. Returns the number of containers.
using TakeText = std::function<void(const std::string& name, std::string bytes)>;

int ComposeContainers(const frmMain& Main, const ObjectsByParent& objects, std::string_view extension,
                      const TakeText& take) {
    int number = 0;
    for (const int index : ContainersInOrder(Main))
        take(ContainerName(number++, extension), ContainerText(Main, index, objects));
    return number;
}

void ComposeRecovery(const frmMain& Main, What what, const TakeText& take) {
    const ObjectsByParent objects(Main);
    const int containers = ComposeContainers(Main, objects, RecoveryExtension, take);
    // No recovery containers without recovery settings would mean: there is no recovery generation.
    if (what == What::Everything || containers == 0)
        take(std::string(RecoverySettings), SettingsText(Main, false, objects));
}

int ComposeCommitted(const frmMain& Main, bool Exiting, const TakeText& take) {
    const ObjectsByParent objects(Main);
    take(std::string(CommittedSettings), SettingsText(Main, Exiting, objects));
    return ComposeContainers(Main, objects, CommittedExtension, take);
}

// ---- the folder

std::string PathOf(const frmMain& Main, std::string_view name) {
    return Main.SettingsFolder + "/" + std::string(name);
}

// A portable workspace lives in the program's own folder, which is never made.
Status PrepareFolder(frmMain& Main) {
    auto& files = Main.P.Files;
    if (Main.PortableMode && !files.FolderExists(Main.SettingsFolder))
        return Failure{Reason::NotFound, Tr(Main, "the folder '%1' is not there", Main.SettingsFolder)};
    if (auto made = files.MakeFolder(PathOf(Main, ContainersFolder)); !made) return made;
    const auto settled = Settle(files, Main.SettingsFolder);
    if (!settled) return settled.Error();
    ReportDamagedSave(Main, settled.Value());
    return {};
}

// ---- the recovery generation

// Size as well, so that a file which somebody else shortened or removed is written again.
bool StandsUnchanged(const frmMain& Main, const std::string& name, const WrittenFile& sum) {
    const auto remembered = Main.Store.Recovery.find(name);
    if (remembered == Main.Store.Recovery.end() || !SameSum(remembered->second, sum)) return false;
    const auto info = Main.P.Files.Stat(PathOf(Main, name));
    return info && info.Value().IsRegular && info.Value().Size == sum.Size;
}

// The settings that an earlier save wrote stay as they are where only containers are written.
void KeepSettings(const frmMain& Main, NameSet& standing, std::map<std::string, WrittenFile>& written) {
    const std::string settings(RecoverySettings);
    const auto remembered = Main.Store.Recovery.find(settings);
    const bool stays = standing.erase(settings) > 0;
    if (stays && remembered != Main.Store.Recovery.end()) written.insert(*remembered);
}

Status WriteRecovery(frmMain& Main, What what) {
    if (auto ready = PrepareFolder(Main); !ready) return ready;
    auto standing = StandingNames(Main.P.Files, Main.SettingsFolder);
    if (!standing) return standing.Error();
    auto& gone = standing.Value();
    std::erase_if(gone, [](const auto& name) { return !IsRecoveryName(name); });

    std::map<std::string, WrittenFile> written;
    Change change(false);
    if (what == What::ContainersOnly) KeepSettings(Main, gone, written);
    ComposeRecovery(Main, what, [&](const std::string& name, std::string bytes) {
        const auto sum = SumOf(bytes);
        if (StandsUnchanged(Main, name, sum))
            change.Keep(name, sum);
        else
            change.Write(name, std::move(bytes), sum);
        written[name] = sum;
        gone.erase(name);
    });
    for (const auto& name : gone) change.Drop(name);
    if (change.ChangesNothing()) return {};
    if (auto done = Commit(Main.P.Files, Main.SettingsFolder, std::move(change)); !done) return done;
    Main.Store.Recovery = std::move(written);
    return {};
}

// ---- the committed generation

bool HoldsBytes(const FileReader& files, const std::string& path, const std::string& bytes) {
    const auto info = files.Stat(path);
    if (!info || info.Value().Size != bytes.size()) return false;
    const auto held = files.Read(path, bytes.size());
    return held && held.Value() == bytes;
}

Status WriteCommitted(frmMain& Main, bool Exiting) {
    if (auto ready = PrepareFolder(Main); !ready) return ready;
    const auto standing = StandingNames(Main.P.Files, Main.SettingsFolder);
    if (!standing) return standing.Error();
    const int run = RunLength(standing.Value());
    Change change(true);
    const int containers = ComposeCommitted(Main, Exiting, [&](const std::string& name, std::string bytes) {
        const bool isRead = NumberOf(name, CommittedExtension).value_or(-1) < run;
        const auto sum = SumOf(bytes);
        if (isRead && HoldsBytes(Main.P.Files, PathOf(Main, name), bytes))
            change.Keep(name, sum);
        else
            change.Write(name, std::move(bytes), sum);
    });
    ClearSurplus(Main.P.Files, Main.SettingsFolder, standing.Value(), containers, Outdated::Drop, change);
    for (const auto& name : standing.Value()) {
        if (IsRecoveryName(name)) change.Drop(name);
    }
    if (change.ChangesNothing()) return {};
    auto done = Commit(Main.P.Files, Main.SettingsFolder, std::move(change));
    if (done) Main.Store.Recovery.clear();
    return done;
}

// A failed save leaves nothing to build on: the next one looks at the disk afresh.
void Concluded(frmMain& Main, const Status& saved) {
    if (!saved) Main.Store.Recovery.clear();
    ReportSave(Main, saved);
}

// Only now may anything go that an earlier generation has named.
void ConcludedCommitted(frmMain& Main, const Status& saved) {
    Concluded(Main, saved);
    if (saved) CleanIconCache(Main);
}

} // namespace

bool MaySave(const frmMain& Main) {
    return !Main.IsLoading && !Main.g_DontSave && !Main.Store.ExitSaved;
}

// The exit's save is the last one even when it failed: what comes after it takes the tables apart.
void SaveWorkspace(frmMain& Main, bool Recover, bool Exiting) {
    if (!MaySave(Main)) return;
    if (!Recover) EndBrieflyUnlock(Main);
    if (Recover)
        Concluded(Main, WriteRecovery(Main, What::Everything));
    else
        ConcludedCommitted(Main, WriteCommitted(Main, Exiting));
    if (Exiting) Main.Store.ExitSaved = true;
}

// A committed generation is never written by halves: settings and containers count together.
void SaveContainers(frmMain& Main, bool Recover) {
    if (!MaySave(Main)) return;
    if (!Recover) EndBrieflyUnlock(Main);
    if (Recover)
        Concluded(Main, WriteRecovery(Main, What::ContainersOnly));
    else
        ConcludedCommitted(Main, WriteCommitted(Main, false));
}

void KillContainers(frmMain& Main, const std::string& Pattern) {
    const auto folder = PathOf(Main, ContainersFolder);
    const auto listed = Main.P.Files.List(folder);
    if (!listed) return;
    for (const auto& name : listed.Value()) {
        if (MatchesPattern(name, Pattern)) (void)Main.P.Files.Remove(folder + "/" + name);
    }
}

bool DropRecovery(frmMain& Main) {
    auto& files = Main.P.Files;
    const auto settled = Settle(files, Main.SettingsFolder);
    const auto standing =
        settled ? StandingNames(files, Main.SettingsFolder) : Result<NameSet>(settled.Error());
    if (!standing) return false;
    Change change(false);
    for (const auto& name : standing.Value()) {
        if (IsRecoveryName(name)) change.Drop(name);
    }
    Main.Store.Recovery.clear();
    return change.ChangesNothing() || Commit(files, Main.SettingsFolder, std::move(change)).Ok();
}

void mnuSave_Click(frmMain& Main) {
    if (Main.Settings.BackupOnSave) return BackupSetings(Main, false);
    if (!MaySave(Main)) return;
    SaveWorkspace(Main, false, false);
    if (Main.Store.SaveFailure.empty()) ShowPassingCaption(Main, Tr(Main, "Workspace Saved"));
}

} // namespace quill
