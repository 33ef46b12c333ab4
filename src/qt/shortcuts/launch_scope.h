// LaunchScope: a started program is put under a name of its own where the session has a service manager, so
// that it is counted, limited and ended for itself and not as a part of the workspace. Asked for and not
// waited for; where nobody answers nothing happens.
#pragma once

#include <string>

namespace quill {

// name is that of the program's file or entry.
void GiveScope(const std::string& name, int process);
// "app-quillmere-name-number.scope", in the letters that such a name may have.
std::string ScopeName(const std::string& name, int process);

} // namespace quill
