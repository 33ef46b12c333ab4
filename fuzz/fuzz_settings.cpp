// Any bytes as a settings file: reading never fails in another way than by telling damage, and what was read
// settles: written and read again it stays the same.
#include "fuzz_workspace.h"

#include "persistence/line_reader.h"
#include "persistence/settings_file.h"

using namespace quill;

namespace {

std::string ReadAndWrite(std::string bytes) {
    fuzz::Workspace workspace;
    PrepareText(bytes);
    SettingsFileRecord record;
    (void)ParseSettings(bytes, record);
    DeferredSettings deferred;
    ApplySettings(workspace.Main, record, deferred);
    return SettingsText(workspace.Main, false);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string once = ReadAndWrite({reinterpret_cast<const char*>(data), size});
    const std::string twice = ReadAndWrite(once);
    fuzz::Require(twice == ReadAndWrite(twice));
    return 0;
}
