// Any bytes as a container file: reading never fails in another way than by telling damage, a damaged file
// leaves the tables as they were, and what was read is the same when it was written and read again.
#include "fuzz_workspace.h"

#include "persistence/container_file.h"
#include "persistence/line_reader.h"

using namespace quill;

namespace {

// Empty when the file is damaged.
std::string ReadAndWrite(std::string bytes) {
    fuzz::Workspace workspace;
    PrepareText(bytes);
    ContainerRecord record;
    if (ParseContainer(bytes, record)) return {};
    fuzz::Require(ApplyContainer(workspace.Main, record));
    return ContainerText(workspace.Main, 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string once = ReadAndWrite({reinterpret_cast<const char*>(data), size});
    if (once.empty()) return 0;
    const std::string twice = ReadAndWrite(once);
    fuzz::Require(!twice.empty());
    fuzz::Require(twice == ReadAndWrite(twice));
    return 0;
}
