// FileFacts: what there is to tell about a file in plain words. Reading them may wait for a server, so it
// belongs off the thread.
#pragma once

#include <cstdint>
#include <string>

namespace quill {

struct FileFacts {
    std::string Error;       // of the system, when the file can't be looked at; all else is empty then
    std::string Type;        // as the desktop calls it
    std::uint64_t Bytes = 0; // of a folder: nothing that means something
    bool IsFolder = false;
    std::int64_t Modified = 0; // seconds since 1970; 0: not known
    std::int64_t Created = 0;
    std::uint32_t Permissions = 0; // the nine bits, and the three above them
    std::string Owner;
};

FileFacts ReadFileFacts(const std::string& path);      // a path, or an address of a file on a server
std::string PermissionText(std::uint32_t permissions); // "rwxr-xr-x (755)"

} // namespace quill
