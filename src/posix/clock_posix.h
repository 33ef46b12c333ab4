// The system's clocks, for the clock of the backend.
#pragma once

#include "platform/clock.h"

namespace quill {

std::int64_t MonotonicNanoseconds();
std::int64_t MonotonicMilliseconds();
DateTime LocalNow();

} // namespace quill
