// LibZip: the archive port on libzip. Safe on any thread.
#pragma once

#include "platform/zip.h"

namespace quill {

class LibZip : public Zip {
public:
    Status Write(const std::string& path, const std::vector<ZipEntry>& entries) override;
};

} // namespace quill
