// clsTick: decides which stream of frames is due. It never waits: the frame clock of the platform calls, and
// the due streams are asked for. Times are nanoseconds of QueryPerformanceCounter.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quill {

struct TickStream {
    std::int64_t Period = 0;
    std::int64_t NextDue = 0;
    std::int64_t Count = 0;
    bool Skip = false;
};

class clsTick {
public:
    int Add(double framesPerSecond, bool skipFlag); // index, or -1 for a rate that is not above 0
    bool start(std::int64_t now);
    // The due stream with the smallest next-due time, the earliest index in a tie; -1 when none is due yet.
    int Due(std::int64_t now);
    std::int64_t CountOf(int stream) const { return streams_[static_cast<std::size_t>(stream)].Count; }

private:
    std::vector<TickStream> streams_;
};

} // namespace quill
