#include "posix/places_posix.h"

#include "posix/environment.h"
#include "posix/files_posix.h"

#include <algorithm>
#include <array>
#include <climits>
#include <pwd.h>
#include <sys/utsname.h>

namespace quill {

namespace {

constexpr std::uint64_t LongestList = 1024 * 1024;
constexpr const char* FileBeside = "emptyicon.ico"; // stands wherever the program's data stand

struct UserFolderRow {
    SpecialFolder Which;
    const char* Key;  // in user-dirs.dirs
    const char* Name; // below the home folder when nothing is told
};

constexpr UserFolderRow UserFolders[] = {
    {SpecialFolder::Pictures, "XDG_PICTURES_DIR", "Pictures"},
    {SpecialFolder::Documents, "XDG_DOCUMENTS_DIR", "Documents"},
    {SpecialFolder::Desktop, "XDG_DESKTOP_DIR", "Desktop"},
};

std::string WithoutEnd(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == 0 || slash == std::string::npos ? "/" : path.substr(0, slash);
}

std::string Join(const std::string& folder, const std::string& name) {
    return folder == "/" ? "/" + name : folder + "/" + name;
}

// The kernel says " (deleted)" behind the name when the program was replaced while it ran.
std::string RealExecutable() {
    std::array<char, PATH_MAX> path{};
    const auto length = ::readlink("/proc/self/exe", path.data(), path.size());
    std::string result(path.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
    constexpr std::string_view Deleted = " (deleted)";
    if (result.ends_with(Deleted)) result.resize(result.size() - Deleted.size());
    return result;
}

// Both variables are inherited by whatever a program in an image starts; only below its mount they are about
// us.
std::string ImageOf(const std::string& executable) {
    const auto mount = WithoutEnd(Variable("APPDIR"));
    const auto image = Variable("APPIMAGE");
    return image.starts_with('/') && mount.size() > 1 && executable.starts_with(mount + "/") ? image : "";
}

std::string HomeFolder() {
    const auto home = Variable("HOME");
    if (home.starts_with('/')) return WithoutEnd(home);
    const passwd* entry = ::getpwuid(::getuid());
    return entry != nullptr && entry->pw_dir != nullptr ? WithoutEnd(entry->pw_dir) : "";
}

std::string AbsoluteOr(const std::string& path, const std::string& otherwise) {
    return path.starts_with('/') ? WithoutEnd(path) : otherwise;
}

std::string FindDataFolder(const PlacesSources& sources) {
    const FilesPosix files;
    const auto beside = FolderOf(sources.Executable);
    const auto below = Join(FolderOf(beside), "share/quillmere");
    for (const auto& folder : {beside, below})
        if (files.Exists(Join(folder, FileBeside))) return folder;
    return sources.InstalledData.empty() ? below : sources.InstalledData;
}

// What stands between the quotes, a backslash taken off each letter that carries one.
std::string Unquoted(std::string_view value) {
    std::string result;
    if (!value.starts_with('"')) return result;
    for (std::size_t at = 1; at < value.size() && value[at] != '"'; ++at) {
        if (value[at] == '\\' && at + 1 < value.size()) ++at;
        result += value[at];
    }
    return result;
}

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::string WithHome(const std::string& value, const std::string& home) {
    constexpr std::string_view Home = "$HOME";
    if (value == Home || value.starts_with("$HOME/")) return WithoutEnd(home + value.substr(Home.size()));
    return value.starts_with('/') ? WithoutEnd(value) : "";
}

} // namespace

PlacesSources PlacesSourcesOfSystem() {
    PlacesSources sources;
    sources.Executable = RealExecutable();
    sources.AppImage = ImageOf(sources.Executable);
    sources.Home = HomeFolder();
    sources.ConfigHome = Variable("XDG_CONFIG_HOME");
    sources.DataHome = Variable("XDG_DATA_HOME");
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"})
        if (sources.Language.empty()) sources.Language = Variable(name);
#ifdef QUILLMERE_DATA_DIR
    sources.InstalledData = QUILLMERE_DATA_DIR;
#endif
    return sources;
}

std::string ExecutableFolder() {
    return FolderOf(RealExecutable());
}

std::string UserFolderNamed(const std::string& text, const std::string& name, const std::string& home) {
    std::string found;
    std::string_view rest = text;
    while (!rest.empty()) {
        const auto end = std::min(rest.find('\n'), rest.size());
        const auto line = Trimmed(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        const auto equals = line.find('=');
        if (equals == line.npos || Trimmed(line.substr(0, equals)) != name) continue;
        found = WithHome(Unquoted(Trimmed(line.substr(equals + 1))), home); // the last one counts
    }
    return found;
}

PlacesPosix::PlacesPosix(PlacesSources sources)
    : sources_(std::move(sources)),
      programFolder_(FolderOf(sources_.AppImage.empty() ? sources_.Executable : sources_.AppImage)),
      dataFolder_(FindDataFolder(sources_)), mounts_(sources_.MountTable) {}

std::string PlacesPosix::Folder(SpecialFolder which) const {
    switch (which) {
    case SpecialFolder::Home:
        return sources_.Home;
    case SpecialFolder::Configuration:
        return ConfigurationFolder();
    case SpecialFolder::Applications:
        return ApplicationsFolder();
    default:
        return UserFolder(which);
    }
}

std::string PlacesPosix::ConfigurationFolder() const {
    return AbsoluteOr(sources_.ConfigHome, sources_.Home.empty() ? "" : Join(sources_.Home, ".config"));
}

std::string PlacesPosix::ApplicationsFolder() const {
    const auto data =
        AbsoluteOr(sources_.DataHome, sources_.Home.empty() ? "" : Join(sources_.Home, ".local/share"));
    const auto own = data.empty() ? "" : Join(data, "applications");
    const FilesPosix files;
    return !own.empty() && files.FolderExists(own) ? own : sources_.SystemApplications;
}

// A folder that is set to the home folder itself is switched off; only the desktop may really lie there.
std::string PlacesPosix::UserFolder(SpecialFolder which) const {
    if (sources_.Home.empty()) return {};
    const auto list = FilesPosix().Read(Join(ConfigurationFolder(), "user-dirs.dirs"), LongestList);
    for (const auto& row : UserFolders) {
        if (row.Which != which) continue;
        const auto told = list ? UserFolderNamed(list.Value(), row.Key, sources_.Home) : "";
        if (told.empty()) return Join(sources_.Home, row.Name);
        return told == sources_.Home && which != SpecialFolder::Desktop ? "" : told;
    }
    return {};
}

DriveKind PlacesPosix::KindOfDrive(const std::string& path) const {
    const auto mount = mounts_.Holding(path);
    return IsRemovableDevice(sources_.SysFolder, mount) ? DriveKind::Removable : DriveKind::Fixed;
}

// "de_DE.UTF-8@euro" is asked for as "de_DE" and as "de".
std::vector<std::string> PlacesPosix::Languages() const {
    std::vector<std::string> languages;
    const auto add = [&](std::string name) {
        if (!name.empty() && std::ranges::find(languages, name) == languages.end())
            languages.push_back(std::move(name));
    };
    for (std::size_t at = 0; at <= sources_.Language.size();) {
        const std::size_t end = std::min(sources_.Language.find(':', at), sources_.Language.size());
        std::string name = sources_.Language.substr(at, end - at);
        name.erase(std::min(name.find_first_of(".@"), name.size()));
        add(name);
        add(name.substr(0, name.find('_')));
        at = end + 1;
    }
    return languages;
}

std::string PlacesPosix::SystemRelease() const {
    utsname name{};
    return ::uname(&name) == 0 ? name.release : "";
}

} // namespace quill
