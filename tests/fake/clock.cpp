#include "fake/clock.h"

#include <algorithm>
#include <chrono>
#include <limits>

namespace quill::fake {

namespace {

constexpr std::int64_t Never = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t DayMilliseconds = 86'400'000;

// 9 July 2024, 10:30, a Tuesday: what the fake computer shows when nothing was set.
constexpr DateTime Default{2024, 7, 9, 10, 30, 0, 2};

std::int64_t MillisecondsOf(const DateTime& at) {
    using namespace std::chrono;
    const sys_days day{year{at.Year} / at.Month / at.Day};
    return day.time_since_epoch().count() * DayMilliseconds +
           ((at.Hour * 60LL + at.Minute) * 60 + at.Second) * 1000;
}

DateTime CivilOf(std::int64_t milliseconds) {
    using namespace std::chrono;
    const sys_days day{days{static_cast<int>(milliseconds / DayMilliseconds)}};
    const year_month_day date{day};
    const int second = static_cast<int>(milliseconds % DayMilliseconds / 1000);
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            second / 3600,
            second / 60 % 60,
            second % 60,
            static_cast<int>(weekday{day}.c_encoding())};
}

template <class Rows, class Key> auto Earliest(Rows& rows, Key key) {
    return std::min_element(rows.begin(), rows.end(),
                            [&](const auto& one, const auto& other) { return key(one) < key(other); });
}

} // namespace

DateTime FakeClock::Now() const {
    return CivilOf((epochSet_ ? epoch_ : MillisecondsOf(Default) - 1'000'000) + now_);
}

void FakeClock::SetNow(const DateTime& now) {
    epoch_ = MillisecondsOf(now) - now_;
    epochSet_ = true;
}

void FakeClock::Start(TimerId timer, int milliseconds) {
    const int interval = std::max(milliseconds, 1);
    timers_[timer] = {interval, now_ + interval, ++order_};
}

void FakeClock::WantFrames(int perSecond) {
    if (perSecond > 0 && perSecond != framesWanted_) nextFrame_ = now_ + 1000 / perSecond;
    framesWanted_ = perSecond;
}

void FakeClock::After(std::int64_t milliseconds, std::function<void()> event) {
    events_.push_back({now_ + milliseconds, ++order_, std::move(event)});
}

int FakeClock::IntervalOf(TimerId timer) const {
    const auto found = timers_.find(timer);
    return found == timers_.end() ? 0 : found->second.Interval;
}

void FakeClock::StopEverything() {
    timers_.clear();
    events_.clear();
    framesWanted_ = 0;
}

void FakeClock::Advance(std::int64_t milliseconds) {
    const std::int64_t until = now_ + milliseconds;
    while (RunNext(until)) {
    }
    now_ = std::max(now_, until); // a handler may have advanced the clock itself
}

std::int64_t FakeClock::NextDue() const {
    std::int64_t due = framesWanted_ > 0 ? nextFrame_ : Never;
    for (const auto& event : events_) due = std::min(due, event.Due);
    for (const auto& [id, timer] : timers_) due = std::min(due, timer.Due);
    return due;
}

bool FakeClock::RunNext(std::int64_t until) {
    const std::int64_t due = NextDue();
    if (due > until || due == Never) return false;
    now_ = std::max(now_, due);
    return RunEvent(due) || RunTimer(due) || RunFrame(due);
}

bool FakeClock::RunEvent(std::int64_t until) {
    const auto next = Earliest(events_, [](const Event& event) { return std::pair(event.Due, event.Order); });
    if (next == events_.end() || next->Due > until) return false;
    const auto run = std::move(next->Run);
    events_.erase(next);
    run();
    return true;
}

bool FakeClock::RunTimer(std::int64_t until) {
    const auto next =
        Earliest(timers_, [](const auto& row) { return std::pair(row.second.Due, row.second.Order); });
    if (next == timers_.end() || next->second.Due > until) return false;
    const TimerId id = next->first;
    next->second.Due += next->second.Interval;
    if (OnTimer) OnTimer(id);
    return true;
}

bool FakeClock::RunFrame(std::int64_t until) {
    if (framesWanted_ == 0 || nextFrame_ > until) return false;
    nextFrame_ += 1000 / framesWanted_;
    if (OnFrame) OnFrame();
    return true;
}

} // namespace quill::fake
