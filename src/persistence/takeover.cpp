// Takeover: which generation a start reads, and how it becomes the committed one once it has loaded. Nothing
// on the disk changes before that, so that a start which is broken off can be tried again.
#include "persistence/generation.h"
#include "persistence/load.h"
#include "persistence/save_report.h"
#include "persistence/surplus.h"
#include "platform/files.h"

namespace quill {
namespace {

constexpr std::uint64_t fileLimit = 1u << 30; // nothing that loaded comes near it

// A set of containers alone begins with 0. With the settings beside it any numbers are its containers, and no
// containers are an empty workspace.
bool HasRecovery(const NameSet& names) {
    return names.contains(RecoverySettings) || names.contains(ContainerName(0, RecoveryExtension));
}

// Numbers as they stand, gaps skipped, 2 before 10.
std::vector<std::string> RecoveryContainers(const NameSet& names) {
    std::vector<std::string> found;
    for (const auto& name : names) {
        if (NumberOf(name, RecoveryExtension)) found.push_back(name);
    }
    SortByNumber(found);
    return found;
}

// From 0 to the first gap. Where an older version died while it saved, a container may stand only under the
// name of its backup.
std::vector<std::string> CommittedContainers(const NameSet& names) {
    std::vector<std::string> found;
    for (int number = 0;; ++number) {
        auto name = ContainerName(number, CommittedExtension);
        if (!names.contains(name)) name = ContainerName(number, OldBackupExtension);
        if (!names.contains(name)) return found;
        found.push_back(name);
    }
}

GenerationFiles Chosen(const PathsByName& standing, bool recovery) {
    NameSet names;
    for (const auto& [name, path] : standing) names.insert(name);
    GenerationFiles files;
    files.Recovery = recovery && HasRecovery(names);
    const bool ownSettings = files.Recovery && names.contains(RecoverySettings);
    const auto settings = standing.find(ownSettings ? RecoverySettings : CommittedSettings);
    if (settings != standing.end()) files.Settings = settings->second;
    for (const auto& name : files.Recovery ? RecoveryContainers(names) : CommittedContainers(names))
        files.Containers.push_back(standing.find(name)->second);
    return files;
}

// ---- on the disk

Status TakeInto(const FileReader& files, const std::string& folder, const std::string& from,
                const std::string& to, Change& change) {
    const auto bytes = files.Read(folder + "/" + from, fileLimit);
    if (!bytes) return bytes.Error();
    change.Take(from, to, SumOf(bytes.Value()));
    return {};
}

// A recovery set with no container in it takes nothing's place: what it would remove goes aside.
Status PlanRecovery(const FileReader& files, const std::string& folder, const NameSet& names,
                    Change& change) {
    int count = 0;
    for (const auto& name : RecoveryContainers(names)) {
        if (auto taken = TakeInto(files, folder, name, ContainerName(count++, CommittedExtension), change);
            !taken)
            return taken;
    }
    ClearSurplus(files, folder, names, count, count == 0 ? Outdated::Aside : Outdated::Drop, change);
    if (!names.contains(RecoverySettings)) return {};
    return TakeInto(files, folder, std::string(RecoverySettings), std::string(CommittedSettings), change);
}

// A backup of an older version takes its name back where that is free. Recovery files that were not chosen go
// aside, or the next start would choose them.
Status PlanOldBackups(const FileReader& files, const std::string& folder, const NameSet& names,
                      Change& change) {
    for (const auto& name : names) {
        const auto number = NumberOf(name, OldBackupExtension);
        const auto original = ContainerName(number.value_or(0), CommittedExtension);
        if (number && !names.contains(original)) {
            if (auto taken = TakeInto(files, folder, name, original, change); !taken) return taken;
        } else if (number || IsRecoveryName(name)) {
            change.Aside(name, AsideName(files, folder, name));
        }
    }
    return {};
}

Status TakeOver(frmMain& Main, bool recovery) {
    auto& files = Main.P.Files;
    const auto settled = Settle(files, Main.SettingsFolder);
    if (!settled) return settled.Error();
    const auto names = StandingNames(files, Main.SettingsFolder);
    if (!names) return names.Error();
    Change change(true);
    auto planned = recovery ? PlanRecovery(files, Main.SettingsFolder, names.Value(), change)
                            : PlanOldBackups(files, Main.SettingsFolder, names.Value(), change);
    if (!planned || change.ChangesNothing()) return planned;
    return Commit(files, Main.SettingsFolder, std::move(change));
}

} // namespace

// What can't be finished now is looked through by ChooseGeneration, and tried again by the first save.
void FinishInterruptedSave(frmMain& Main) {
    const auto settled = Settle(Main.P.Files, Main.SettingsFolder);
    if (settled)
        ReportDamagedSave(Main, settled.Value());
    else
        ReportSave(Main, settled.Error());
}

GenerationFiles ChooseGeneration(frmMain& Main) {
    return Chosen(Standing(Main.P.Files, Main.SettingsFolder), true);
}

GenerationFiles CommittedGeneration(frmMain& Main) {
    return Chosen(Standing(Main.P.Files, Main.SettingsFolder), false);
}

void TakeOverRecovery(frmMain& Main, const GenerationFiles& files) {
    if (!Main.P.Files.FolderExists(Main.SettingsFolder)) return;
    ReportSave(Main, TakeOver(Main, files.Recovery));
}

} // namespace quill
