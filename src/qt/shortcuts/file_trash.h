// The desktop's trash.
#pragma once

#include "platform/result.h"

#include <string>

namespace quill {

// Into the trash, from which the person can take it back; never an unlink. A file on another machine is
// refused: most of those have no trash, and asking could take long.
Status TrashFile(const std::string& path);

} // namespace quill
