#include "persistence/generation.h"

#include <algorithm>

namespace quill {
namespace {

constexpr std::string_view stagingFolder = "Saving.part";
constexpr std::string_view savingFolder = "Saving";
constexpr std::string_view manifestName = "manifest";
constexpr std::uint64_t fileLimit = 1u << 30; // nothing of ours comes near it

std::string Joined(std::string_view folder, std::string_view name) {
    std::string path(folder);
    path += '/';
    path += name;
    return path;
}

bool IsStagedName(std::string_view bare) {
    return bare == manifestName || bare == CommittedSettings || bare == RecoverySettings ||
           NumberOf(bare, CommittedExtension) || NumberOf(bare, RecoveryExtension);
}

bool IsOurs(std::string_view bare) {
    return NumberOf(bare, CommittedExtension) || NumberOf(bare, RecoveryExtension) ||
           NumberOf(bare, OldBackupExtension);
}

Status UnlessMissing(Status status) {
    return status.Missing() ? Status() : status;
}

// What the disk can't promise about a folder does not hold up a save: the names are there for every process.
void SyncFolder(Files& files, const std::string& folder) {
    (void)files.Sync(folder);
}

// ---- staging

Status StageFiles(Files& files, const std::string& staging,
                  const std::vector<std::pair<std::string, std::string_view>>& all, bool durable) {
    if (auto made = files.MakeFolder(staging); !made) return made;
    for (const auto& [bare, bytes] : all) {
        if (auto written = files.Create(Joined(staging, bare), bytes); !written) return written;
    }
    if (!durable) return {};
    for (const auto& [bare, bytes] : all) {
        if (auto synced = files.Sync(Joined(staging, bare)); !synced) return synced;
    }
    SyncFolder(files, staging);
    return {};
}

// A file that takes a name of a durable generation has to be on the disk before that counts.
Status SyncTaken(Files& files, const std::string& folder, const Manifest& plan) {
    for (const auto& step : plan.Steps) {
        const bool staged = step.From.starts_with(Joined(savingFolder, ""));
        if (step.Kind != StepKind::Move || staged) continue;
        if (auto synced = files.Sync(Joined(folder, step.From)); !synced) return synced;
    }
    return {};
}

// ---- the steps

enum class Run { First, Again };

Status DoAside(Files& files, const std::string& from, const std::string& to) {
    if (files.Exists(to)) return {};
    return UnlessMissing(files.Rename(from, to));
}

// Makes a name free. A folder can't be one of ours, whatever it is called: it goes aside.
Status ClearName(Files& files, const std::string& path) {
    auto removed = UnlessMissing(files.Remove(path));
    if (removed || !files.FolderExists(path)) return removed;
    return files.Rename(path, FreeName(files, path + ".aside"));
}

// Where Containers leads to another disk nothing can be renamed into it. The copy may be torn by a death, but
// then the original stands still and is copied again.
Status DoMove(Files& files, const std::string& from, const std::string& to, Run run) {
    if (run == Run::Again && !files.Exists(from)) return {};
    if (auto cleared = ClearName(files, to); !cleared) return cleared;
    auto moved = files.Rename(from, to);
    if (moved || moved.Error().Kind != Reason::Other) return moved;
    if (!files.Copy(from, to) || !files.Sync(to)) return moved;
    return files.Remove(from);
}

Status DoStep(Files& files, const std::string& folder, const Step& step, Run run) {
    const auto from = Joined(folder, step.From), to = Joined(folder, step.To);
    switch (step.Kind) {
    case StepKind::Aside:
        return DoAside(files, from, to);
    case StepKind::Drop:
        return ClearName(files, from);
    case StepKind::Move:
        return DoMove(files, from, to, run);
    case StepKind::Keep:
        break;
    }
    return {};
}

// A folder that should be empty and is not holds something of somebody's: it goes aside as it is. So does a
// file in its place.
Status RemoveOrSetAside(Files& files, const std::string& path) {
    const auto info = files.Stat(path);
    if (!info) return UnlessMissing(info.Error());
    const auto removed = info.Value().IsFolder ? UnlessMissing(files.RemoveFolder(path)) : Failure{};
    if (removed) return removed;
    const auto held = files.List(path);
    const bool foreign = !info.Value().IsFolder || !held || !held.Value().empty();
    return foreign ? files.Rename(path, FreeName(files, path + ".aside")) : removed;
}

Status Finish(Files& files, const std::string& folder, const Manifest& plan, Run run) {
    if (auto made = files.MakeFolder(Joined(folder, ContainersFolder)); !made) return made;
    for (const auto& step : plan.Steps) {
        if (auto done = DoStep(files, folder, step, run); !done) return done;
    }
    if (plan.Durable) {
        SyncFolder(files, Joined(folder, ContainersFolder));
        SyncFolder(files, folder);
    }
    const auto saving = Joined(folder, savingFolder);
    if (auto removed = UnlessMissing(files.Remove(Joined(saving, manifestName))); !removed) return removed;
    return RemoveOrSetAside(files, saving);
}

// ---- what an interrupted save left

enum class Leftover {
    None,
    Done,    // all steps were done, only the empty folder is left
    Pending, // the manifest is whole, and so is every file that it names
    Damaged,
};

struct Interrupted {
    Leftover State = Leftover::None;
    Manifest Plan;
};

bool Holds(const FileReader& files, const std::string& path, const WrittenFile& sum) {
    const auto bytes = files.Read(path, fileLimit);
    return bytes && SameSum(SumOf(bytes.Value()), sum);
}

// What a durable change keeps was on the disk long before it: a difference there is somebody's edit.
bool IsWhole(const FileReader& files, const std::string& folder, const Step& step, bool durable) {
    const auto from = Joined(folder, step.From);
    if (step.Kind == StepKind::Keep) return durable || Holds(files, from, step.Sum);
    if (step.Kind != StepKind::Move) return true;
    return Holds(files, files.Exists(from) ? from : Joined(folder, step.To), step.Sum);
}

Interrupted ReadInterrupted(const FileReader& files, const std::string& folder) {
    const auto saving = Joined(folder, savingFolder);
    const auto info = files.Stat(saving);
    if (!info) return {};
    if (!info.Value().IsFolder) return {Leftover::Done, {}};
    const auto text = files.Read(Joined(saving, manifestName), fileLimit);
    if (text.Missing()) return {Leftover::Done, {}};
    auto plan = text ? ReadManifest(text.Value()) : std::nullopt;
    if (!plan) return {Leftover::Damaged, {}};
    for (const auto& step : plan->Steps) {
        if (!IsWhole(files, folder, step, plan->Durable)) return {Leftover::Damaged, {}};
    }
    return {Leftover::Pending, std::move(*plan)};
}

std::string NameIn(std::string_view bare) {
    return Joined(ContainersFolder, bare);
}

NameSet SettingsNames(const FileReader& files, const std::string& folder) {
    NameSet names;
    for (const auto settings : {CommittedSettings, RecoverySettings}) {
        if (files.Exists(Joined(folder, settings))) names.emplace(settings);
    }
    return names;
}

Result<NameSet> AllNames(const FileReader& files, const std::string& folder) {
    auto names = SettingsNames(files, folder);
    const auto listed = files.List(Joined(folder, ContainersFolder));
    if (!listed && !listed.Missing()) return listed.Error();
    if (!listed) return names;
    for (const auto& bare : listed.Value()) {
        if (IsOurs(bare)) names.insert(NameIn(bare));
    }
    return names;
}

// Where the folder does not let itself be listed its files are asked for one by one. One that can't even be
// asked for counts as there: whoever reads it learns why, and does not take the workspace for empty.
void Probe(const FileReader& files, const std::string& folder, std::string_view extension, bool unsure,
           NameSet& names) {
    for (int number = 0;; ++number) {
        auto name = ContainerName(number, extension);
        const auto info = files.Stat(Joined(folder, name));
        const bool there = info || (unsure && !info.Missing());
        if (there) names.insert(std::move(name));
        if (!info) return;
    }
}

NameSet ProbedNames(const FileReader& files, const std::string& folder) {
    auto names = SettingsNames(files, folder);
    Probe(files, folder, CommittedExtension, true, names);
    Probe(files, folder, RecoveryExtension, false, names);
    return names;
}

// The recovery files go into the folder first and the folder last, so that a death in between changes
// nothing: as long as the folder stands under its name, they count as torn.
Result<std::string> SetDamagedAside(Files& files, const std::string& folder) {
    const auto saving = Joined(folder, savingFolder);
    const auto names = AllNames(files, folder);
    if (!names) return names.Error();
    for (const auto& name : names.Value()) {
        if (!IsRecoveryName(name)) continue;
        const auto to = FreeName(files, Joined(saving, std::string(BareName(name)) + ".old"));
        if (auto moved = files.Rename(Joined(folder, name), to); !moved) return moved.Error();
    }
    const auto aside = FreeName(files, saving + ".damaged");
    if (auto moved = files.Rename(saving, aside); !moved) return moved.Error();
    return aside;
}

Status ThrowStagingAway(Files& files, const std::string& folder) {
    const auto staging = Joined(folder, stagingFolder);
    if (!files.Exists(staging)) return {};
    const auto listed = files.List(staging);
    if (listed) {
        for (const auto& bare : listed.Value()) {
            if (IsStagedName(bare)) (void)files.Remove(Joined(staging, bare));
        }
    }
    return RemoveOrSetAside(files, staging);
}

void LookThrough(const Manifest& plan, const FileReader& files, const std::string& folder,
                 PathsByName& standing) {
    for (const auto& step : plan.Steps) {
        const auto from = Joined(folder, step.From);
        if (step.Kind == StepKind::Drop) standing.erase(step.From);
        if (step.Kind == StepKind::Aside && !files.Exists(Joined(folder, step.To))) standing.erase(step.From);
        if (step.Kind != StepKind::Move || !files.Exists(from)) continue;
        standing.erase(step.From);
        standing[step.To] = from;
    }
}

} // namespace

// ---- Change

void Change::Write(const std::string& name, std::string bytes, const WrittenFile& sum) {
    const std::string bare(BareName(name));
    staged_.push_back({bare, std::move(bytes)});
    plan_.Steps.push_back({StepKind::Move, Joined(savingFolder, bare), name, sum});
}

void Change::Take(const std::string& from, const std::string& to, const WrittenFile& sum) {
    plan_.Steps.push_back({StepKind::Move, from, to, sum});
}

void Change::Aside(const std::string& from, const std::string& to) {
    plan_.Steps.push_back({StepKind::Aside, from, to, {}});
}

void Change::Drop(const std::string& name) {
    plan_.Steps.push_back({StepKind::Drop, name, {}, {}});
}

void Change::Keep(const std::string& name, const WrittenFile& sum) {
    plan_.Steps.push_back({StepKind::Keep, name, {}, sum});
}

bool Change::ChangesNothing() const {
    return std::all_of(plan_.Steps.begin(), plan_.Steps.end(),
                       [](const Step& step) { return step.Kind == StepKind::Keep; });
}

// ---- the calls

Status Commit(Files& files, const std::string& folder, Change change) {
    auto& plan = change.plan_;
    std::stable_sort(plan.Steps.begin(), plan.Steps.end(),
                     [](const Step& one, const Step& other) { return one.Kind < other.Kind; });
    const auto manifest = ManifestText(plan);
    std::vector<std::pair<std::string, std::string_view>> all;
    for (const auto& file : change.staged_) all.emplace_back(file.BareName, file.Bytes);
    all.emplace_back(manifestName, manifest);

    const auto staging = Joined(folder, stagingFolder);
    auto ready = plan.Durable ? SyncTaken(files, folder, plan) : Status();
    if (ready) ready = StageFiles(files, staging, all, plan.Durable);
    if (ready) ready = files.Rename(staging, Joined(folder, savingFolder));
    if (!ready) {
        (void)ThrowStagingAway(files, folder);
        return ready;
    }
    if (plan.Durable) SyncFolder(files, folder);
    return Finish(files, folder, plan, Run::First);
}

Result<std::string> Settle(Files& files, const std::string& folder) {
    const auto left = ReadInterrupted(files, folder);
    Status settled;
    if (left.State == Leftover::Damaged) {
        const auto aside = SetDamagedAside(files, folder);
        if (!aside) return aside.Error();
        if (auto thrown = ThrowStagingAway(files, folder); !thrown) return thrown.Error();
        return aside;
    }
    if (left.State == Leftover::Done) settled = RemoveOrSetAside(files, Joined(folder, savingFolder));
    if (left.State == Leftover::Pending) settled = Finish(files, folder, left.Plan, Run::Again);
    if (settled) settled = ThrowStagingAway(files, folder);
    if (!settled) return settled.Error();
    return std::string();
}

Result<NameSet> StandingNames(const FileReader& files, const std::string& folder) {
    return AllNames(files, folder);
}

PathsByName Standing(const FileReader& files, const std::string& folder) {
    PathsByName standing;
    const auto names = AllNames(files, folder);
    for (const auto& name : names ? names.Value() : ProbedNames(files, folder))
        standing[name] = Joined(folder, name);
    const auto left = ReadInterrupted(files, folder);
    if (left.State == Leftover::Pending) LookThrough(left.Plan, files, folder, standing);
    if (left.State == Leftover::Damaged)
        std::erase_if(standing, [](const auto& row) { return IsRecoveryName(row.first); });
    return standing;
}

bool IsRecoveryName(std::string_view name) {
    return name == RecoverySettings || NumberOf(name, RecoveryExtension).has_value();
}

} // namespace quill
