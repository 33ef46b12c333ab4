// FirstWindow: waits for the first window of a program that was started, makes it small or large where that
// was asked for, and ends the start's notice then. Nothing is kept of a program that shows no window in time
// or is gone.
#pragma once

#include <string>

namespace quill {

struct StartedProgram {
    int Number = 0;    // of its process; 0: not known
    std::string Token; // empty: there is nothing to wait for
    int Show = 1;      // 1 as it comes, 2 minimised, 3 maximised
};

void FollowFirstWindow(const StartedProgram& program);

} // namespace quill
