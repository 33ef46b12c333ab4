// Reloader: waits until no copy of the program runs, then starts the one that stands beside it, with no
// arguments. A copy that does not end within a minute is left alone.
#include "posix/instance_posix.h"
#include "posix/places_posix.h"

#include <string>
#include <unistd.h>

namespace {

constexpr int patience = 60000; // milliseconds

} // namespace

int main() {
    if (!quill::WaitUntilNoCopyRuns(quill::InstanceOptionsOfSystem(), patience)) return 1;
    const std::string program = quill::ExecutableFolder() + "/quillmere";
    execl(program.c_str(), program.c_str(), static_cast<char*>(nullptr));
    return 1;
}
