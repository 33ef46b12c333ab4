// What a ".lnk" names is a path of another system. It is looked for here in three places: below the mount
// point that holds the link (its drive, whatever letter it had), from the folder of the link, and on the
// server that it names. Nothing outside that mount point is taken for it, no server is waited for, and no
// link is followed further than one step.
#include "shortcuts/link_target.h"

#include "platform/files.h"
#include "platform/places.h"
#include "platform/shell.h"
#include "shortcuts/create.h"
#include "shortcuts/desktop_entry.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/foreign_text.h"
#include "shortcuts/shell_link.h"
#include "shortcuts/uri_list.h"
#include "shortcuts/url_file.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace quill {
namespace {

constexpr std::uint64_t largestLink = 1 << 20;
constexpr std::string_view fileScheme = "file:";

// Where a link stands, and the drive that it belongs to.
struct LinkPlace {
    std::string Path, Folder;
    std::string Drive; // a mount point without a separator at its end: "" for the root
};

LinkPlace PlaceOf(const frmMain& Main, const std::string& path) {
    std::string drive = Main.P.Places.MountPoint(path);
    while (!drive.empty() && drive.back() == '/') drive.pop_back();
    return {path, path.substr(0, path.find_last_of('/')), drive};
}

std::string WithSlashes(std::string text) {
    std::ranges::replace(text, '\\', '/');
    return text;
}

// A path with no "." and ".." in it; nothing for one that climbs above the root.
std::optional<std::string> Settled(std::string_view path) {
    std::vector<std::string_view> parts;
    while (!path.empty()) {
        const auto end = std::min(path.find('/'), path.size());
        const auto part = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (part.empty() || part == ".") continue;
        if (part != "..")
            parts.push_back(part);
        else if (parts.empty())
            return std::nullopt;
        else
            parts.pop_back();
    }
    std::string settled;
    for (const auto part : parts) settled.append("/").append(part);
    return settled.empty() ? "/" : settled;
}

bool IsBelow(const std::string& path, const std::string& drive) {
    return path == drive || (path.starts_with(drive) && path[drive.size()] == '/');
}

// It is there and not the link itself. A server that does not answer would be waited for.
bool IsTarget(const frmMain& Main, const LinkPlace& link, const std::string& path) {
    return path != link.Path && !Main.P.Shell.PathIsNetworkPath(path) && Main.P.Files.Exists(path);
}

std::string Found(const frmMain& Main, const LinkPlace& link, const std::string& wanted) {
    const auto path = Settled(wanted);
    return path && IsBelow(*path, link.Drive) && IsTarget(Main, link, *path) ? *path : std::string();
}

bool HasDrive(std::string_view path) {
    const char letter = path.empty() ? ' ' : path.front();
    const bool isLetter = (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
    return isLetter && path.substr(1, 1) == ":";
}

std::string OnDriveOf(const LinkPlace& link, const std::string& local) {
    return link.Drive + "/" + WithSlashes(local.substr(2));
}

// A reader of half the width sees programs in a folder of its own, where they may not be.
std::string LocalTarget(const frmMain& Main, const LinkPlace& link, std::string local) {
    constexpr std::string_view halfWidth = " (x86)";
    if (!HasDrive(local)) return {};
    const std::string there = Found(Main, link, OnDriveOf(link, local));
    const bool program = SameInAnyCase(std::string_view(local).substr(2, 14), "\\program files");
    if (!there.empty() || !program) return there;
    for (auto at = local.find(halfWidth); at != local.npos; at = local.find(halfWidth))
        local.erase(at, halfWidth.size());
    return Found(Main, link, OnDriveOf(link, local));
}

std::string RelativeTarget(const frmMain& Main, const LinkPlace& link, const std::string& relative) {
    if (relative.empty() || HasDrive(relative) || relative.front() == '\\') return {};
    return Found(Main, link, link.Folder + "/" + WithSlashes(relative));
}

bool IsServerName(std::string_view name) {
    return !name.empty() && name.front() != '-' && std::ranges::all_of(name, [](char letter) {
        return (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z') ||
               (letter >= 'a' && letter <= 'z') || letter == '-' || letter == '.' || letter == '_';
    });
}

// "\\server\share\file" is an address of the network; nobody waits for the server here.
std::string NetworkTarget(const std::string& network) {
    if (!network.starts_with("\\\\")) return {};
    const std::string path = WithSlashes(network.substr(2));
    const auto slash = path.find('/');
    if (slash == path.npos || !IsServerName(path.substr(0, slash))) return {};
    const auto rest = Settled(path.substr(slash));
    if (!rest || *rest == "/") return {};
    return "smb://" + path.substr(0, slash) + FileUri(*rest).substr(std::string_view("file://").size());
}

std::string FirstOf(std::initializer_list<std::string> texts) {
    for (const auto& text : texts)
        if (!text.empty()) return text;
    return {};
}

// A folder that is not here would keep the program from starting.
std::string FolderHere(const frmMain& Main, const LinkPlace& link, std::string_view named) {
    const std::string folder(WithoutBlanks(named));
    if (!HasDrive(folder)) return {};
    const std::string here = Found(Main, link, OnDriveOf(link, folder));
    return Main.P.Files.FolderExists(here) ? here : std::string();
}

LinkTarget ReadLnk(const frmMain& Main, const LinkPlace& place, std::string_view bytes) {
    const auto link = ReadShellLink(bytes);
    if (!link) return {};
    const std::string path =
        FirstOf({LocalTarget(Main, place, link->LocalPath), RelativeTarget(Main, place, link->RelativePath),
                 NetworkTarget(link->NetworkPath), NetworkTarget(link->LocalPath)});
    if (path.empty()) return {};
    return {LinkKind::Target,
            path,
            {},
            std::string(WithoutBlanks(link->Arguments)),
            FolderHere(Main, place, link->WorkingDirectory)};
}

// The path of a "file:" address, which may begin with another system's drive.
std::string FileOfAddress(const frmMain& Main, const LinkPlace& link, const std::string& address) {
    const auto files = ReadUriList(address, "").Files;
    if (files.empty()) return {};
    const std::string& path = files.front();
    if (HasDrive(path.substr(1))) return Found(Main, link, OnDriveOf(link, path.substr(1)));
    const auto settled = Settled(path);
    return settled && IsTarget(Main, link, *settled) ? *settled : std::string();
}

LinkTarget TargetOfAddress(const frmMain& Main, const LinkPlace& link, const std::string& address) {
    if (SameInAnyCase(std::string_view(address).substr(0, fileScheme.size()), fileScheme)) {
        const std::string path = FileOfAddress(Main, link, address);
        return path.empty() ? LinkTarget{} : LinkTarget{LinkKind::Target, path, {}, {}, {}};
    }
    return IsWebAddress(address) ? LinkTarget{LinkKind::Address, address, {}, {}, {}} : LinkTarget{};
}

LinkTarget ReadUrl(const frmMain& Main, const LinkPlace& link, std::string_view bytes) {
    const auto address = ReadUrlFile(bytes);
    return address ? TargetOfAddress(Main, link, *address) : LinkTarget{};
}

LinkTarget ReadEntry(const frmMain& Main, const LinkPlace& link, std::string_view bytes) {
    const auto entry = ReadDesktopEntry(bytes, Main.P.Places.Languages());
    if (!entry) return {};
    LinkTarget target;
    if (entry->Type == "Application") target = {LinkKind::Entry, link.Path, {}, {}, {}};
    if (entry->Type == "Link") target = TargetOfAddress(Main, link, entry->Url);
    if (target.Kind != LinkKind::None) target.Caption = ShownLine(entry->Name);
    return target;
}

using Reader = LinkTarget (*)(const frmMain&, const LinkPlace&, std::string_view);

Reader ReaderOf(std::string_view path) {
    if (EndsInAnyCase(path, ".lnk")) return &ReadLnk;
    if (EndsInAnyCase(path, ".url")) return &ReadUrl;
    return EndsInAnyCase(path, ".desktop") ? &ReadEntry : nullptr;
}

} // namespace

bool IsLinkFileName(std::string_view path) {
    return EndsInAnyCase(path, ".lnk") || EndsInAnyCase(path, ".url");
}

// A pipe or a device with such a name would be waited for.
LinkTarget ResolveLink(const frmMain& Main, const std::string& path) {
    const Reader reader = ReaderOf(path);
    const std::string file = reader ? ResolvedPath(Main, path) : std::string();
    if (!file.starts_with('/') || Main.P.Shell.PathIsNetworkPath(file)) return {};
    const auto info = Main.P.Files.Stat(file);
    if (!info || !info.Value().IsRegular) return {};
    const auto bytes = Main.P.Files.Read(file, largestLink);
    return bytes ? reader(Main, PlaceOf(Main, file), bytes.Value()) : LinkTarget{};
}

} // namespace quill
