// Zip: writes one archive. Safe on any thread.
#pragma once

#include "platform/result.h"

#include <string>
#include <utility>
#include <vector>

namespace quill {

struct ZipEntry {
    std::string Name;  // in the archive, flat
    std::string Bytes; // content
};

class Zip {
public:
    virtual ~Zip() = default;
    // Makes a new archive at a path that must be free.
    virtual Status Write(const std::string& path, const std::vector<ZipEntry>& entries) = 0;
};

} // namespace quill
