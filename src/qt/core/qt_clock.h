// QtClock: the clock port on Qt's timers. Timers are coarse only from a second on; frames come from a timer
// of the system that keeps its beat under load.
#pragma once

#include "platform/clock.h"
#include "qt/core/attachment.h"

#include <memory>

namespace quill {

class QtClock : public Clock {
public:
    explicit QtClock(const Attachment& attached);
    ~QtClock() override;

    DateTime Now() const override;
    std::int64_t GetTickCount() const override;
    std::int64_t QueryPerformanceCounter() const override;
    void Start(TimerId timer, int milliseconds) override;
    void Stop(TimerId timer) override;
    bool IsRunning(TimerId timer) const override;
    void WantFrames(int perSecond) override;

private:
    class Timers; // made with the first timer, since it needs the toolkit
    class Frames;
    const Attachment& attached_;
    std::unique_ptr<Timers> timers_;
    std::unique_ptr<Frames> frames_;
};

} // namespace quill
