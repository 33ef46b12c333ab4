// Any bytes as a settings file: reading never fails in another way than by telling damage, and what was read
// is the same when it was written and read again.
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
    fuzz::Require(once == ReadAndWrite(once));
    return 0;
}
