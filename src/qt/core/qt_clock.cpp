#include "qt/core/qt_clock.h"

#include "core/handlers.h"
#include "posix/clock_posix.h"
#include "posix/descriptor.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimerEvent>

#include <map>
#include <sys/timerfd.h>

namespace quill {
namespace {

constexpr int coarseFrom = 1000;       // milliseconds
constexpr long second = 1'000'000'000; // nanoseconds

Descriptor MakeBeat() {
    return Descriptor(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC));
}

void SetBeat(int beat, long period) {
    const itimerspec every{{0, period}, {0, period}};
    timerfd_settime(beat, 0, &every, nullptr);
}

} // namespace

class QtClock::Timers : public QObject {
public:
    explicit Timers(const Attachment& attached) : attached_(attached) {}

    void Start(TimerId timer, int milliseconds) {
        Stop(timer);
        const auto kind = milliseconds >= coarseFrom ? Qt::CoarseTimer : Qt::PreciseTimer;
        running_[timer] = startTimer(milliseconds, kind);
    }
    void Stop(TimerId timer) {
        const auto found = running_.find(timer);
        if (found == running_.end()) return;
        killTimer(found->second);
        running_.erase(found);
    }
    bool IsRunning(TimerId timer) const { return running_.contains(timer); }

protected:
    void timerEvent(QTimerEvent* event) override {
        for (const auto& [timer, number] : running_) {
            if (number != event->timerId()) continue;
            const TimerId due = timer; // the handler may stop it
            if (attached_.Alive()) Timer_Tick(*attached_.Main, due);
            return;
        }
    }

private:
    const Attachment& attached_;
    std::map<TimerId, int> running_;
};

class QtClock::Frames {
public:
    explicit Frames(const Attachment& attached)
        : beat_(MakeBeat()), notifier_(beat_.Get(), QSocketNotifier::Read) {
        QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this, &attached] {
            std::uint64_t beats = 0;
            const bool due = read(beat_.Get(), &beats, sizeof beats) > 0;
            if (due && attached.Alive()) Frame_Tick(*attached.Main);
        });
    }

    // A beat of period 0 stands still and costs nothing.
    void Run(int perSecond) {
        if (perSecond != rate_) SetBeat(beat_.Get(), perSecond > 0 ? second / perSecond : 0);
        rate_ = perSecond;
    }

private:
    Descriptor beat_;
    QSocketNotifier notifier_;
    int rate_ = 0;
};

QtClock::QtClock(const Attachment& attached) : attached_(attached) {}
QtClock::~QtClock() = default;

DateTime QtClock::Now() const {
    return LocalNow();
}

std::int64_t QtClock::GetTickCount() const {
    return MonotonicMilliseconds();
}

std::int64_t QtClock::QueryPerformanceCounter() const {
    return MonotonicNanoseconds();
}

void QtClock::Start(TimerId timer, int milliseconds) {
    if (!timers_) timers_ = std::make_unique<Timers>(attached_);
    timers_->Start(timer, milliseconds);
}

void QtClock::Stop(TimerId timer) {
    if (timers_) timers_->Stop(timer);
}

bool QtClock::IsRunning(TimerId timer) const {
    return timers_ && timers_->IsRunning(timer);
}

void QtClock::WantFrames(int perSecond) {
    if (perSecond > 0 && !frames_) frames_ = std::make_unique<Frames>(attached_);
    if (frames_) frames_->Run(perSecond);
}

} // namespace quill
