#include "dock/clsTick.h"

namespace quill {
namespace {

constexpr std::int64_t second = 1'000'000'000; // nanoseconds
constexpr std::int64_t tooLate = second / 5;   // then the stream starts over instead of catching up

void Advance(TickStream& stream, std::int64_t now) {
    const std::int64_t late = now - stream.NextDue;
    stream.NextDue = !stream.Skip && late > tooLate ? now + stream.Period : stream.NextDue + stream.Period;
}

} // namespace

int clsTick::Add(double framesPerSecond, bool skipFlag) {
    if (!(framesPerSecond > 0)) return -1;
    streams_.push_back(
        {static_cast<std::int64_t>(static_cast<double>(second) / framesPerSecond), 0, 0, skipFlag});
    return static_cast<int>(streams_.size()) - 1;
}

bool clsTick::start(std::int64_t now) {
    for (auto& stream : streams_) stream.NextDue = now;
    return true;
}

int clsTick::Due(std::int64_t now) {
    int first = -1;
    for (std::size_t at = 0; at < streams_.size(); ++at) {
        auto& stream = streams_[at];
        if (stream.NextDue == 0) stream.NextDue = now;
        const bool sooner = first == -1 || stream.NextDue < streams_[static_cast<std::size_t>(first)].NextDue;
        if (stream.NextDue <= now && sooner) first = static_cast<int>(at);
    }
    if (first == -1) return -1;
    auto& stream = streams_[static_cast<std::size_t>(first)];
    ++stream.Count;
    Advance(stream, now);
    return first;
}

} // namespace quill
