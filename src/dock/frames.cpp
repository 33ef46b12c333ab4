#include "dock/frames.h"

#include "platform/clock.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quill {
namespace {

constexpr int mostFrames = 200; // a second: the rate at which streams of 40 and 50 both fall on a beat
// After a change of beat a stream's frames may fall where the beats do, now a hair before and now behind.
constexpr std::int64_t tolerance = 1'000'000; // nanoseconds

auto Find(frmMain& Main, FrameStream stream) {
    return std::ranges::find(Main.Dock.Frames, stream, &RunningFrames::Stream);
}

// The slowest beat on which every stream falls.
int Beat(const frmMain& Main) {
    int beat = 0;
    for (const auto& run : Main.Dock.Frames) beat = beat == 0 ? run.PerSecond : std::lcm(beat, run.PerSecond);
    return std::min(beat, mostFrames);
}

// One step, if the stream still runs and is due. A step may stop its own stream, or start another.
bool StepOnce(frmMain& Main, FrameStream stream, std::int64_t now) {
    const auto run = Find(Main, stream);
    if (run == Main.Dock.Frames.end() || run->Tick.Due(now + tolerance) == -1) return false;
    const auto step = run->Step;
    step(Main);
    return true;
}

} // namespace

void StartFrames(frmMain& Main, FrameStream stream, int perSecond, std::function<void(frmMain&)> step) {
    std::erase_if(Main.Dock.Frames, [&](const RunningFrames& run) { return run.Stream == stream; });
    RunningFrames run{stream, perSecond, {}, std::move(step)};
    if (run.Tick.Add(perSecond, false) == -1) return;
    const std::int64_t period = 1'000'000'000 / perSecond;
    run.Tick.start(Main.P.Clock.QueryPerformanceCounter() + period);
    Main.Dock.Frames.push_back(std::move(run));
    Main.P.Clock.WantFrames(Beat(Main));
}

void StopFrames(frmMain& Main, FrameStream stream) {
    std::erase_if(Main.Dock.Frames, [&](const RunningFrames& run) { return run.Stream == stream; });
    Main.P.Clock.WantFrames(Beat(Main));
}

bool FramesRun(const frmMain& Main, FrameStream stream) {
    return std::ranges::find(Main.Dock.Frames, stream, &RunningFrames::Stream) != Main.Dock.Frames.end();
}

void StepFrames(frmMain& Main) {
    std::vector<FrameStream> streams;
    for (const auto& run : Main.Dock.Frames) streams.push_back(run.Stream);
    const std::int64_t now = Main.P.Clock.QueryPerformanceCounter();
    for (const auto stream : streams)
        while (StepOnce(Main, stream, now)) {
        }
}

} // namespace quill
