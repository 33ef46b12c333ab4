// Errors of the C library as the failures of the ports.
#pragma once

#include "platform/result.h"

namespace quill {

// What errno says, with the system's own words.
Failure FailureOfErrno(int error);

} // namespace quill
