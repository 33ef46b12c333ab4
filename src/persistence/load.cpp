#include "persistence/load.h"

#include "persistence/container_file.h"
#include "persistence/damage.h"
#include "persistence/line_reader.h"
#include "persistence/settings_file.h"
#include "platform/files.h"

#include <algorithm>

namespace quill {

namespace {

struct LoadedText {
    std::string Bytes;
    std::optional<Damage> Found; // the bytes are what stands before it
    bool Missing = false;
};

// Text never holds the byte 0, but a disk that lost its power does.
void CutAtBinary(LoadedText& text) {
    const std::size_t zero = text.Bytes.find('\0');
    if (zero == std::string::npos) return;
    const auto line =
        std::count(text.Bytes.begin(), text.Bytes.begin() + static_cast<std::ptrdiff_t>(zero), '\n');
    const std::size_t feed = text.Bytes.rfind('\n', zero);
    text.Bytes.resize(feed == std::string::npos ? 0 : feed + 1);
    text.Found = Damage{.Kind = DamageKind::Binary, .Line = static_cast<std::size_t>(line) + 1};
}

LoadedText LoadText(const FileReader& files, const std::string& path) {
    LoadedText text;
    auto bytes = files.Read(path, MaxFileBytes);
    if (bytes) {
        text.Bytes = std::move(bytes.Value());
        CutAtBinary(text);
        PrepareText(text.Bytes);
    } else if (bytes.Missing()) {
        text.Missing = true;
    } else {
        const bool large = bytes.Error().Kind == Reason::TooLarge;
        text.Found = Damage{.Kind = large ? DamageKind::TooLarge : DamageKind::Unreadable,
                            .Value = bytes.Error().Text};
    }
    return text;
}

// What the reader of the file found, or what made it unreadable before; with the file's name.
std::optional<Damage> Named(const LoadedText& text, std::optional<Damage> found, const std::string& path) {
    if (text.Found) found = text.Found;
    if (found) found->File = path;
    return found;
}

// The program ends, and everything on the disk stays as it is.
bool EndLoad(frmMain& Main) {
    Main.g_DontSave = true;
    return false;
}

bool GoOn(frmMain& Main, DamagedSet set, const std::vector<Damage>& found) {
    if (!AskAboutDamage(Main, set, found)) return EndLoad(Main);
    Main.Store.SaveAfterLoad = true;
    if (set == DamagedSet::Recovery) return true;
    for (const Damage& damage : found) (void)KeepDamaged(Main, damage.File);
    return true;
}

std::optional<Damage> CheckSettings(const FileReader& files, const std::string& path) {
    const LoadedText text = LoadText(files, path);
    SettingsFileRecord record;
    return text.Missing ? std::nullopt : Named(text, ParseSettings(text.Bytes, record), path);
}

std::optional<Damage> CheckContainer(const FileReader& files, const std::string& path,
                                     ContainerRecord& record) {
    const LoadedText text = LoadText(files, path);
    return text.Missing ? std::nullopt : Named(text, ParseContainer(text.Bytes, record), path);
}

std::vector<Damage> CheckAll(const FileReader& files, const GenerationFiles& set) {
    std::vector<Damage> found;
    ContainerRecord record;
    if (!set.Settings.empty())
        if (auto damage = CheckSettings(files, set.Settings)) found.push_back(std::move(*damage));
    for (const auto& path : set.Containers)
        if (auto damage = CheckContainer(files, path, record)) found.push_back(std::move(*damage));
    return found;
}

// False at the limit of containers.
bool ReadContainer(frmMain& Main, const std::string& path, ContainerRecord& record, std::vector<int>& startup,
                   std::vector<Damage>& found) {
    const LoadedText text = LoadText(Main.P.Files, path);
    if (text.Missing) return true;
    if (auto damage = Named(text, ParseContainer(text.Bytes, record), path)) {
        found.push_back(std::move(*damage));
        return true;
    }
    if (!ApplyContainer(Main, record)) return false;
    if (record.Objects.LeftOut) Main.Store.Older.push_back(path);
    const int index = Main.NextContainerIndex - 1;
    if (Main.ConView(index).ContainerLabel.Caption == "#STARTUP") startup.push_back(index);
    return true;
}

// Only now that the load goes on: one that ends leaves the disk as it is.
void KeepOlderFiles(frmMain& Main) {
    for (const auto& path : Main.Store.Older) KeepOlder(Main, path, MaxFileBytes);
    Main.Store.Older.clear();
}

// Making and folding them addressed each in turn; nobody has clicked one yet.
void ForgetAddressed(ContainersState& group) {
    group.CurrentContainer = group.LastShrunkBack = -1;
    group.ContainerHasFocus = false;
}

} // namespace

bool SettleGeneration(frmMain& Main, GenerationFiles& files) {
    if (!files.Recovery) return true;
    const auto found = CheckAll(Main.P.Files, files);
    if (found.empty()) return true;
    if (!GoOn(Main, DamagedSet::Recovery, found)) return false;
    files = CommittedGeneration(Main);
    return true;
}

bool ReadSettingsFile(frmMain& Main, const GenerationFiles& files, DeferredSettings& deferred) {
    if (files.Settings.empty()) return true;
    const LoadedText text = LoadText(Main.P.Files, files.Settings);
    if (text.Missing) return true;
    SettingsFileRecord record;
    const auto damage = Named(text, ParseSettings(text.Bytes, record), files.Settings);
    if (damage && !GoOn(Main, DamagedSet::Settings, {*damage})) return false;
    ApplySettings(Main, record, deferred);
    if (record.Objects.LeftOut) Main.Store.Older.push_back(files.Settings);
    return true;
}

bool ReadContainerFiles(frmMain& Main, const GenerationFiles& files, std::vector<int>& startup) {
    std::vector<Damage> found;
    ContainerRecord record;
    for (const auto& path : files.Containers)
        if (!ReadContainer(Main, path, record, startup, found)) return EndLoad(Main);
    ForgetAddressed(Main.Group);
    if (!found.empty() && !GoOn(Main, DamagedSet::Containers, found)) return false;
    KeepOlderFiles(Main);
    return true;
}

} // namespace quill
