// Paths of shortcuts: the drive marker, captions, and the form that the file tree knows.
#include "shortcuts/create.h"

#include "platform/places.h"
#include "shortcuts/foreign_text.h"
#include "shortcuts/uri_list.h"

#include <algorithm>
#include <string_view>

namespace quill {

namespace {

constexpr char DriveMarker = '@';
constexpr std::string_view FileScheme = "file://";

// The mount point of the program without a separator at its end: "" for the root.
std::string ProgramDrive(const frmMain& Main) {
    std::string mount = Main.P.Places.MountPoint(Main.P.Places.ProgramFolder());
    while (!mount.empty() && mount.back() == '/') mount.pop_back();
    return mount;
}

} // namespace

std::string WithoutEndSeparator(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

std::string CaptionOfPath(const std::string& path) {
    std::string name = path.substr(path.find_last_of('/') + 1);
    if (name.empty()) return path; // the root
    for (std::string_view ending : {".lnk", ".exe", ".url"})
        if (EndsInAnyCase(name, ending)) return name.substr(0, name.size() - ending.size());
    return name;
}

std::string ExpandDriveMarker(const frmMain& Main, const std::string& path) {
    if (path.empty() || path.front() != DriveMarker) return path;
    std::string rest = path.substr(1);
    if (!rest.empty() && rest.front() == ':') {
        rest.erase(0, 1);
        std::replace(rest.begin(), rest.end(), '\\', '/');
    }
    if (rest.empty() || rest.front() != '/') rest.insert(rest.begin(), '/');
    return ProgramDrive(Main) + rest;
}

std::string ToRelativePath(const frmMain& Main, const std::string& path) {
    const std::string drive = ProgramDrive(Main);
    const bool below =
        path.compare(0, drive.size(), drive) == 0 && path.size() > drive.size() && path[drive.size()] == '/';
    return below ? DriveMarker + path.substr(drive.size()) : path;
}

bool ShouldUseRelativePath(const frmMain& Main, const std::string& path) {
    if (!Main.PortableMode || path.empty() || path.front() != '/') return false;
    const Places& places = Main.P.Places;
    return places.MountPoint(path) == places.MountPoint(places.ProgramFolder()) &&
           places.KindOfDrive(path) != DriveKind::Fixed;
}

std::string StoredPath(const frmMain& Main, const std::string& path) {
    return ShouldUseRelativePath(Main, path) ? ToRelativePath(Main, path) : path;
}

std::string ResolvedPath(const frmMain& Main, const std::string& path) {
    std::string resolved = ExpandDriveMarker(Main, path);
    const std::string_view view = resolved;
    if (view.substr(0, FileScheme.size()) != FileScheme || view.substr(FileScheme.size(), 1) != "/")
        return resolved;
    return PercentDecoded(view.substr(FileScheme.size()));
}

} // namespace quill
