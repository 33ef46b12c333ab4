// Files: the file tree, one small operation a call, so that a fake can die after each of them. Paths are
// UTF-8 bytes as the system has them, absolute, with "/" between. Nothing here knows what a file means.
#pragma once

#include "platform/result.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quill {

struct FileInfo {
    bool IsFolder = false;
    bool IsRegular = false;
    bool IsExecutable = false; // for this user
    bool IsWritable = false;
    std::uint64_t Size = 0;    // bytes
    std::int64_t Modified = 0; // seconds since 1970, UTC
};

// Asked for by routines that only read.
class FileReader {
public:
    virtual ~FileReader() = default;

    // Follows symbolic links. NotFound when nothing stands there.
    virtual Result<FileInfo> Stat(const std::string& path) const = 0;
    // The whole file. TooLarge when it holds more than limit bytes (nothing is read then).
    virtual Result<std::string> Read(const std::string& path, std::uint64_t limit) const = 0;
    // Bare names of what the folder holds, without "." and "..", in no order.
    virtual Result<std::vector<std::string>> List(const std::string& folder) const = 0;

    bool Exists(const std::string& path) const { return Stat(path).Ok(); }
    bool FolderExists(const std::string& path) const {
        auto info = Stat(path);
        return info && info.Value().IsFolder;
    }
};

class Files : public FileReader {
public:
    // Makes a new file and writes all of it. Exists when the name is taken; on a failed write the torn
    // file is removed again where that is possible.
    virtual Status Create(const std::string& path, std::string_view bytes) = 0;
    // Replaces a file at the new name in one step; fails for a folder that is not empty.
    virtual Status Rename(const std::string& from, const std::string& to) = 0;
    virtual Status Remove(const std::string& path) = 0;       // a file
    virtual Status MakeFolder(const std::string& path) = 0;   // and the missing ones above it
    virtual Status RemoveFolder(const std::string& path) = 0; // empty
    // Returns when the file's (or the folder's entries') bytes are on the disk.
    virtual Status Sync(const std::string& path) = 0;
    // Copies a file byte by byte to a free name; Exists when it is taken.
    virtual Status Copy(const std::string& from, const std::string& to) = 0;
};

} // namespace quill
