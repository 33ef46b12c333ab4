// The mounted file systems, from the kernel's table. It is read again only when the kernel says that it has
// changed, so asking is cheap.
#pragma once

#include "posix/descriptor.h"

#include <string>
#include <vector>

namespace quill {

struct Mount {
    std::string Point;
    std::string Device; // "8:17", major and minor
    std::string Source; // "/dev/sdb1", or a word for what has no device
};

class MountTable {
public:
    // The table as the kernel writes it, normally /proc/self/mountinfo.
    explicit MountTable(std::string path) : path_(std::move(path)) {}

    // The mount that holds an absolute path by its name; links are not followed. "/" when the table is not
    // there.
    Mount Holding(const std::string& path);

private:
    void Refresh();
    std::string path_;
    Descriptor file_;
    std::vector<Mount> mounts_; // in the order in which they were made: the last one covers those before
};

std::vector<Mount> ParseMountTable(const std::string& text);

// True for a block device that can be taken away, as a stick, or that hangs on such a bus. The folder is
// normally "/sys".
bool IsRemovableDevice(const std::string& sysFolder, const Mount& mount);

} // namespace quill
