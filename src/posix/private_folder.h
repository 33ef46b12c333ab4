// A folder that is this user's alone.
#pragma once

#include "platform/result.h"

#include <string>

namespace quill {

// Makes it when it is missing. Denied when something else stands there, or it belongs to another user.
Status SettlePrivateFolder(const std::string& folder);

} // namespace quill
