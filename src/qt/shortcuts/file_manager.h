// The file manager of the desktop, as it is reached over the session bus.
#pragma once

#include <string>

namespace quill {

// Shows a file selected in its folder; waits for the answer, so it belongs off the thread. False when no file
// manager answers.
bool ShowItem(const std::string& path);

} // namespace quill
