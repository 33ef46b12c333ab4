// Files over the C library. Few system calls an operation, no state, safe on any thread. Nothing is cached.
#pragma once

#include "platform/files.h"

namespace quill {

class FilesPosix : public Files {
public:
    Result<FileInfo> Stat(const std::string& path) const override;
    Result<std::string> Read(const std::string& path, std::uint64_t limit) const override;
    Result<std::vector<std::string>> List(const std::string& folder) const override;
    Status Create(const std::string& path, std::string_view bytes) override;
    Status Rename(const std::string& from, const std::string& to) override;
    Status Remove(const std::string& path) override;
    Status MakeFolder(const std::string& path) override;
    Status RemoveFolder(const std::string& path) override;
    Status Sync(const std::string& path) override;
    Status Copy(const std::string& from, const std::string& to) override;
};

} // namespace quill
