#include "qt/core/qt_clock.h"

#include "core/handlers.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimerEvent>

#include <chrono>
#include <ctime>
#include <map>
#include <sys/timerfd.h>
#include <unistd.h>

namespace quill {
namespace {

constexpr int coarseFrom = 1000;                // milliseconds
constexpr long frameNanoseconds = 1'000'000'000 / 50;

int MakeBeat() {
    const int beat = timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
    const itimerspec every{{0, frameNanoseconds}, {0, frameNanoseconds}};
    timerfd_settime(beat, 0, &every, nullptr);
    return beat;
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
    explicit Frames(const Attachment& attached) : beat_(MakeBeat()), notifier_(beat_, QSocketNotifier::Read) {
        QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this, &attached] {
            std::uint64_t beats = 0;
            if (read(beat_, &beats, sizeof beats) < 0) return;
            if (notifier_.isEnabled() && attached.Alive()) Frame_Tick(*attached.Main);
        });
    }
    ~Frames() { close(beat_); }
    Frames(const Frames&) = delete;
    Frames& operator=(const Frames&) = delete;

    void Run(bool wanted) { notifier_.setEnabled(wanted); }

private:
    int beat_;
    QSocketNotifier notifier_;
};

QtClock::QtClock(const Attachment& attached) : attached_(attached) {}
QtClock::~QtClock() = default;

DateTime QtClock::Now() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
            local.tm_min,         local.tm_sec,     local.tm_wday};
}

std::int64_t QtClock::GetTickCount() const {
    return QueryPerformanceCounter() / 1'000'000;
}

std::int64_t QtClock::QueryPerformanceCounter() const {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
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

// The beat is made new each time it is wanted, so that the first frame is a whole period away and an idle
// program has no timer in the system at all.
void QtClock::WantFrames(bool wanted) {
    if (wanted && !frames_) frames_ = std::make_unique<Frames>(attached_);
    if (!wanted && frames_) {
        frames_->Run(false);
        frames_.reset();
    }
}

} // namespace quill
