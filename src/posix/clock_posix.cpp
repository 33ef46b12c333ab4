#include "posix/clock_posix.h"

#include <ctime>

namespace quill {

std::int64_t MonotonicNanoseconds() {
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

std::int64_t MonotonicMilliseconds() {
    return MonotonicNanoseconds() / 1'000'000;
}

DateTime LocalNow() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::tzset(); // the zone may have changed since the start
    ::localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
            local.tm_min,         local.tm_sec,     local.tm_wday};
}

} // namespace quill
