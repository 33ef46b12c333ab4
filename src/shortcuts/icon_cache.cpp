#include "shortcuts/icon_cache.h"

#include "persistence/names.h"
#include "platform/drawing.h"
#include "platform/files.h"
#include "shortcuts/create.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>

namespace quill {
namespace {

constexpr std::string_view folderName = "/iconcache", ending = ".ico";
constexpr std::string_view pattern = "xxxxxxxx-xxxx-4xxx-xxxx-xxxxxxxxxxxx"; // x: a digit
constexpr std::string_view digits = "0123456789abcdef";
constexpr std::size_t variantAt = 19; // the digit that says how a name like this was made: 8 to b
constexpr std::uint64_t mostRead = 64 * 1024 * 1024;

bool Fits(std::size_t at, char letter) {
    if (pattern[at] != 'x') return letter == pattern[at];
    if (at == variantAt) return std::string_view("89ab").find(letter) != std::string_view::npos;
    return digits.find(letter) != digits.npos;
}

// Chance is enough: no two of them are ever alike.
std::string NewName() {
    std::random_device chance;
    std::string name(pattern);
    for (std::size_t at = 0; at < name.size(); ++at) {
        if (pattern[at] != 'x') continue;
        const auto digit = chance() % 16;
        name[at] = digits[at == variantAt ? 8 + digit % 4 : digit];
    }
    return name + std::string(ending);
}

// Whatever folder stands before it: a stick may be mounted elsewhere by now.
void AddName(NameSet& names, const frmMain& Main, const std::string& icon) {
    if (icon.size() < pattern.size()) return; // nearly all have none
    const std::string path = ResolvedPath(Main, icon);
    if (IsCacheName(BareName(path))) names.insert(std::string(BareName(path)));
}

NameSet NamesInTables(const frmMain& Main) {
    NameSet names;
    for (const auto& row : Live(Main.Shortcuts)) AddName(names, Main, row.Object.Icon);
    for (const auto& row : Live(Main.Containers)) {
        AddName(names, Main, row.Object.ShrinkPath);
        AddName(names, Main, Main.ConView(row.Index).IconFile);
    }
    return names;
}

NameSet FilesWithoutName(const frmMain& Main) {
    const auto listed = Main.P.Files.List(IconCacheFolder(Main));
    if (!listed) return {};
    NameSet unnamed;
    for (const auto& name : listed.Value())
        if (IsCacheName(name)) unnamed.insert(name);
    if (unnamed.empty()) return {};
    for (const auto& name : NamesInTables(Main)) unnamed.erase(name);
    return unnamed;
}

// A file that was set aside is read again by nobody but its owner, who may want its icons back.
// False: there is one that can't be read.
bool EraseNamedIn(const frmMain& Main, const std::string& folder, NameSet& names) {
    const auto listed = Main.P.Files.List(folder);
    if (!listed) return listed.Missing();
    for (const auto& name : listed.Value()) {
        if (name.ends_with(".zip")) continue; // packed: no name could be found in it
        const std::string path = folder + "/" + name;
        const auto info = Main.P.Files.Stat(path);
        if (!info || !info.Value().IsRegular) continue;
        const auto text = Main.P.Files.Read(path, mostRead);
        if (!text) return false;
        std::erase_if(names, [&](const auto& icon) { return text.Value().find(icon) != std::string::npos; });
    }
    return true;
}

} // namespace

std::string IconCacheFolder(const frmMain& Main) {
    return Main.SettingsFolder + std::string(folderName);
}

bool IsCacheName(std::string_view name) {
    if (name.size() != pattern.size() + ending.size() || !name.ends_with(ending)) return false;
    for (std::size_t at = 0; at < pattern.size(); ++at)
        if (!Fits(at, name[at])) return false;
    return true;
}

std::string KeepInIconCache(frmMain& Main, const std::string& bytes) {
    auto& files = Main.P.Files;
    if (bytes.empty() || !files.MakeFolder(IconCacheFolder(Main))) return {};
    const std::string path = IconCacheFolder(Main) + "/" + NewName();
    if (!files.Create(path, bytes)) return {};
    if (Main.P.Images.PictureSize(path).Width > 0) return path;
    (void)files.Remove(path);
    return {};
}

bool IsCachedIcon(const frmMain& Main, const std::string& icon) {
    const std::string path = ResolvedPath(Main, icon);
    const auto name = BareName(path);
    return IsCacheName(name) && path == IconCacheFolder(Main) + "/" + std::string(name);
}

void CleanIconCache(frmMain& Main) {
    NameSet unnamed = FilesWithoutName(Main);
    if (unnamed.empty()) return;
    const bool known = EraseNamedIn(Main, Main.SettingsFolder, unnamed) &&
                       EraseNamedIn(Main, Main.SettingsFolder + "/" + std::string(ContainersFolder), unnamed);
    if (!known) return;
    for (const auto& name : unnamed) {
        const std::string path = IconCacheFolder(Main) + "/" + name;
        if (Main.P.Files.Remove(path)) Main.P.Images.Forget(path);
    }
}

} // namespace quill
