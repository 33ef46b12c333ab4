// LaunchTarget: decides what a target is, a command, an address, a folder, a desktop entry, a program or a
// document, and starts it in the way of its kind.
#pragma once

#include "platform/shell.h"

namespace quill {

Status LaunchTarget(const LaunchRequest& request);

} // namespace quill
