// Whether there is a desktop to show a window on. Asked before the toolkit is: it ends the whole program when
// it finds none.
#pragma once

#include "platform/result.h"

namespace quill {

Status CheckDisplay();

} // namespace quill
