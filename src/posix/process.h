// Starting a program that outlives this one: in a session of its own, adopted by the system, with none of our
// files open. No shell is involved.
#pragma once

#include "platform/result.h"

#include <string>
#include <utility>
#include <vector>

namespace quill {

struct ProcessStart {
    std::string Program; // with "/" a path, else looked up in $PATH
    std::vector<std::string> Arguments;
    std::string Directory;                                          // start folder, empty: ours
    std::vector<std::pair<std::string, std::string>> Environment{}; // set on top of ours; empty value: unset
};

// Returns when the program runs or the system has refused it: its number, which is that of no child of ours;
// the Text names the start folder when that is what can't be entered.
Result<int> StartDetached(const ProcessStart& start);

// Full path of a program by its name; empty when $PATH has none that may be executed.
std::string FindProgram(const std::string& name);

} // namespace quill
