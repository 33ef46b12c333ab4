#include "posix/mounts.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <sstream>

namespace quill {

namespace {

constexpr int DeepestStack = 8; // devices that lie upon devices, as an encrypted one does

int OctalDigit(char c) {
    return c >= '0' && c <= '7' ? c - '0' : -1;
}

// "\040" is a blank: the table is separated by blanks itself.
std::string Unescaped(const std::string& text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool escape = text[at] == '\\' && at + 3 < text.size() && OctalDigit(text[at + 1]) >= 0 &&
                            OctalDigit(text[at + 2]) >= 0 && OctalDigit(text[at + 3]) >= 0;
        if (!escape) {
            result += text[at];
            continue;
        }
        result += static_cast<char>(OctalDigit(text[at + 1]) * 64 + OctalDigit(text[at + 2]) * 8 +
                                    OctalDigit(text[at + 3]));
        at += 3;
    }
    return result;
}

// "36 35 98:0 /root /point options tag:1 - type source super": the fields before the "-" vary in number.
bool ParseLine(const std::string& line, Mount& mount) {
    std::istringstream fields(line);
    std::string id, parent, root, word, type;
    if (!(fields >> id >> parent >> mount.Device >> root >> mount.Point)) return false;
    while (fields >> word && word != "-") {
    }
    fields >> type >> mount.Source;
    mount.Point = Unescaped(mount.Point);
    mount.Source = Unescaped(mount.Source);
    return true;
}

bool Holds(const std::string& point, const std::string& path) {
    if (point == "/" || path == point) return true;
    return path.starts_with(point) && path[point.size()] == '/';
}

std::string ReadAll(int fd) {
    std::string text;
    char bytes[4096];
    ::lseek(fd, 0, SEEK_SET);
    for (;;) {
        const auto got = Repeat([&] { return ::read(fd, bytes, sizeof bytes); });
        if (got <= 0) return text;
        text.append(bytes, static_cast<std::size_t>(got));
    }
}

namespace fs = std::filesystem;

bool SaysOne(const fs::path& file) {
    std::ifstream stream(file);
    return stream.get() == '1';
}

// The device's folder, real path: ".../usb1/1-2/.../block/sdb/sdb1". A partition's disk is the folder above.
bool IsRemovableFolder(const fs::path& device, int depth) {
    std::error_code ignored;
    if (SaysOne(device / "removable") || SaysOne(device.parent_path() / "removable")) return true;
    if (device.native().find("/usb") != std::string::npos) return true;
    if (depth == DeepestStack) return false;
    for (const auto& below : fs::directory_iterator(device / "slaves", ignored)) {
        const fs::path real = fs::canonical(below.path(), ignored);
        if (!real.empty() && IsRemovableFolder(real, depth + 1)) return true;
    }
    return false;
}

} // namespace

std::vector<Mount> ParseMountTable(const std::string& text) {
    std::vector<Mount> mounts;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        if (Mount mount; ParseLine(line, mount)) mounts.push_back(std::move(mount));
    return mounts;
}

Mount MountTable::Holding(const std::string& path) {
    Refresh();
    Mount best{"/", {}, {}};
    for (const auto& mount : mounts_)
        if (mount.Point.size() >= best.Point.size() && Holds(mount.Point, path)) best = mount;
    return best;
}

// The kernel marks the open table as urgent after each change.
void MountTable::Refresh() {
    const bool first = !file_;
    if (first) file_ = Descriptor(::open(path_.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file_) return;
    pollfd watched{file_.Get(), POLLPRI, 0};
    const bool changed = ::poll(&watched, 1, 0) == 1;
    if (first || changed) mounts_ = ParseMountTable(ReadAll(file_.Get()));
}

bool IsRemovableDevice(const std::string& sysFolder, const Mount& mount) {
    std::error_code ignored;
    fs::path device = fs::canonical(sysFolder + "/dev/block/" + mount.Device, ignored);
    // Some file systems show a number of their own; the name of the device still leads there.
    const auto name = fs::path(mount.Source).filename();
    if (device.empty() && mount.Source.starts_with("/dev/"))
        device = fs::canonical(sysFolder + "/class/block/" + name.native(), ignored);
    return !device.empty() && IsRemovableFolder(device, 0);
}

} // namespace quill
