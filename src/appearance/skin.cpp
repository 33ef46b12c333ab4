#include "appearance/skin.h"

#include "core/lower_case.h"
#include "core/name_order.h"
#include "platform/files.h"
#include "platform/places.h"

#include <algorithm>

namespace quill {
namespace {

std::vector<std::string> SkinFolders(const frmMain& Main) {
    std::vector<std::string> folders;
    for (const std::string& folder : {Main.SettingsFolder, Main.P.Places.DataFolder()})
        if (!folder.empty()) folders.push_back(folder + "/Skin");
    return folders;
}

bool EndsWith(std::string_view name, std::string_view ending) {
    return name.size() > ending.size() && LowerCase(name).ends_with(ending);
}

bool Holds(const std::vector<SkinEntry>& entries, const std::string& name) {
    return std::ranges::find(entries, name, &SkinEntry::Name) != entries.end();
}

} // namespace

bool IsOneElement(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && name.find_first_of("/\\") == name.npos &&
           name.find('\0') == name.npos;
}

bool IsFile(const frmMain& Main, const std::string& path) {
    const auto info = Main.P.Files.Stat(path);
    return info && !info.Value().IsFolder;
}

std::string SkinFile(const frmMain& Main, std::initializer_list<std::string> names) {
    for (const auto& folder : SkinFolders(Main)) {
        for (const std::string& name : names) {
            const auto path = folder + "/" + name;
            if (IsFile(Main, path)) return path;
        }
    }
    return {};
}

std::vector<SkinEntry> SkinEntries(const frmMain& Main, std::string_view folder, std::string_view ending) {
    std::vector<SkinEntry> entries;
    for (auto place : SkinFolders(Main)) {
        place += folder;
        auto names = Main.P.Files.List(place);
        if (!names) continue;
        for (const auto& file : names.Value()) {
            const auto name = file.substr(0, file.size() - std::min(file.size(), ending.size()));
            const auto path = place + "/" + file;
            if (file.starts_with('.') || !EndsWith(file, ending) || Holds(entries, name)) continue;
            if (IsFile(Main, path)) entries.push_back({name, path});
        }
    }
    std::ranges::sort(entries, [](const SkinEntry& one, const SkinEntry& other) {
        const int order = CompareNames(one.Name, other.Name);
        return order < 0 || (order == 0 && one.Name < other.Name);
    });
    return entries;
}

} // namespace quill
