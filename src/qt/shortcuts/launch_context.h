// LaunchContext: what GIO passes on to an application that it starts: the token by which it may come to the
// front, in the environment and, where an entry is started over the bus, in the call.
#pragma once

#include "qt/system/gobject.h"

#include <string>

namespace quill {

OwnedObject<GAppLaunchContext> NewLaunchContext(const std::string& token); // empty: none

} // namespace quill
