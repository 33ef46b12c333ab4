// Reloader: waits until the running copy's lock is free, then starts the program that stands beside it, with no
// arguments. It ends silently where there is nothing to start.
#include "posix/instance_posix.h"
#include "posix/places_posix.h"

#include <string>
#include <unistd.h>

int main() {
    quill::posix::WaitUntilNoneRuns();
    const std::string program = quill::posix::ExecutableFolder() + "/quillmere";
    execl(program.c_str(), program.c_str(), static_cast<char*>(nullptr));
    return 1;
}
