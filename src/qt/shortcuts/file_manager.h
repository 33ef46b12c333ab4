// The file manager of the desktop, as it is reached over the session bus. Each of these waits for the answer,
// so it belongs off the thread; false when no file manager answers.
#pragma once

#include <string>

namespace quill {

bool ShowItem(const std::string& path);           // selected in its folder
bool ShowItemProperties(const std::string& path); // in a window of the file manager's

} // namespace quill
