// The fake computer's clock: it moves only when told. Advance runs what falls due in order: single events,
// then timers (of two that are due at once the one that was started first), then frames. Who is
// called stands in OnTimer and OnFrame; fake/desk.h leads them to the workspace's handlers.
#pragma once

#include "platform/clock.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace quill::fake {

class FakeClock : public Clock {
public:
    DateTime Now() const override;
    std::int64_t GetTickCount() const override { return now_; }
    std::int64_t QueryPerformanceCounter() const override { return now_ * 1'000'000; }
    void Start(TimerId timer, int milliseconds) override;
    void Stop(TimerId timer) override { timers_.erase(timer); }
    bool IsRunning(TimerId timer) const override { return timers_.contains(timer); }
    void WantFrames(int perSecond) override;

    std::function<void(TimerId)> OnTimer;
    std::function<void()> OnFrame;

    void Advance(std::int64_t milliseconds);
    void SetNow(const DateTime& now); // Weekday is worked out
    // One event of the fake computer itself, run by the Advance that reaches it.
    void After(std::int64_t milliseconds, std::function<void()> event);

    int IntervalOf(TimerId timer) const; // 0 when it does not run
    std::size_t RunningTimers() const { return timers_.size(); }
    int FramesWanted() const { return framesWanted_; } // a second
    void StopEverything();                             // the process is gone

private:
    struct Running {
        int Interval = 0;
        std::int64_t Due = 0;
        std::int64_t Order = 0;
    };
    struct Event {
        std::int64_t Due = 0;
        std::int64_t Order = 0;
        std::function<void()> Run;
    };
    bool RunNext(std::int64_t until);
    bool RunEvent(std::int64_t until);
    bool RunTimer(std::int64_t until);
    bool RunFrame(std::int64_t until);
    std::int64_t NextDue() const;

    std::int64_t now_ = 1'000'000; // milliseconds since the computer was switched on
    std::int64_t epoch_ = 0;       // local civil milliseconds since 1970 at now_ == 0
    bool epochSet_ = false;
    std::int64_t order_ = 0;
    std::map<TimerId, Running> timers_;
    std::vector<Event> events_;
    int framesWanted_ = 0;
    std::int64_t nextFrame_ = 0;
};

} // namespace quill::fake
