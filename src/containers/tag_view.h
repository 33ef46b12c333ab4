// Tag view of one container: only its shortcuts that bear the tag are shown. No container is hidden by it.
#pragma once

#include "core/frmMain.h"

#include <string_view>

namespace quill {

// By ShowingTag of the record; an empty one shows every shortcut again.
void ApplyContainerTag(frmMain& Main, int Index);
// Tags are separated by commas; blanks and case do not count, the tag itself must be the same.
bool HasTag(std::string_view tags, std::string_view tag);

} // namespace quill
