#include "qt/system/remote_paths.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <memory>
#include <mntent.h>
#include <string_view>

namespace quill {
namespace {

constexpr std::array remoteSchemes{"smb", "cifs", "sftp", "ssh", "ftp", "ftps", "nfs", "dav", "davs", "afp"};
constexpr std::array remoteKinds{"nfs",
                                 "nfs4",
                                 "cifs",
                                 "smb3",
                                 "smbfs",
                                 "ncpfs",
                                 "afs",
                                 "9p",
                                 "ceph",
                                 "fuse.sshfs",
                                 "fuse.gvfsd-fuse",
                                 "fuse.rclone",
                                 "fuse.davfs",
                                 "fuse.curlftpfs",
                                 "glusterfs",
                                 "fuse.glusterfs"};

template <class List> bool Holds(const List& list, std::string_view word) {
    return std::ranges::any_of(list, [&](const char* it) { return word == it; });
}

bool IsSchemeLetter(char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) || letter == '+' || letter == '-' ||
           letter == '.';
}

// Empty when the text has none. One letter alone is a drive of another system and no scheme.
std::string SchemeOf(const std::string& text) {
    const auto colon = text.find(':');
    if (colon == std::string::npos || colon < 2 || !std::isalpha(static_cast<unsigned char>(text[0])))
        return {};
    if (!std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(colon), IsSchemeLetter))
        return {};
    std::string scheme = text.substr(0, colon);
    std::ranges::transform(scheme, scheme.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return scheme;
}

bool LiesBelow(std::string_view path, std::string_view mount) {
    if (mount == "/") return true;
    return path.starts_with(mount) && (path.size() == mount.size() || path[mount.size()] == '/');
}

struct CloseTable {
    void operator()(std::FILE* table) const { endmntent(table); }
};

} // namespace

bool IsAddress(const std::string& text) {
    return !SchemeOf(text).empty();
}

bool IsRemoteScheme(const std::string& text) {
    return Holds(remoteSchemes, SchemeOf(text));
}

bool IsOnRemoteMount(const std::string& asked) {
    const std::string path = std::filesystem::path(asked).lexically_normal().string();
    const std::unique_ptr<std::FILE, CloseTable> table(setmntent("/proc/self/mounts", "r"));
    if (!table) return false;
    std::size_t longest = 0;
    bool remote = false;
    mntent entry{};
    char text[4096];
    while (getmntent_r(table.get(), &entry, text, sizeof text) != nullptr) {
        const std::string_view mount = entry.mnt_dir;
        if (mount.size() < longest || !LiesBelow(path, mount)) continue;
        longest = mount.size();
        remote = Holds(remoteKinds, entry.mnt_type);
    }
    return remote;
}

} // namespace quill
