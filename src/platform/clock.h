// Clock: the only source of time. A timer is a name of one enum and the index of its owner; it comes back as
// Timer_Tick (core/handlers.h). Frames come back as Frame_Tick, as many a second as are wanted.
#pragma once

#include <compare>
#include <cstdint>

namespace quill {

enum class TimerName {
    TimerHide,
    TimerShowMiniDock,
    TimerExpandContainer,
    TimerExpandUnfoldOnDrag,
    TimerDontShrink,
    TimerSuspendAutoExpand,
    TimerDblClickLabelDelay,
    TimerBrieflyUnlock,
    TimeLock,
    TimerTip,
    TimerFadeIn,    // of the tip
    TimerFadeOut,   // of the tip
    TimerMouseMove, // of the tip: whether the cursor is still over what it tells about
    TimerSysInfo,
    TimerFadeInReminder,
    TimerFlash,
    TimerUnload,
    TimerAlarm,
    TimerRefreshRSS,
    TimerUpdateCheck,
    TimerResizeWallpaper,
    TimerSaveNotes,      // ours: 2000 ms after the last key in a note
    TimerRestoreCaption, // ours: takes a passing text out of lblCaption again
    TimerScrollOnDrag,   // ours: 50 ms while something is held near the edge of a frame that scrolls
    TimeUnload,          // of frmQuickLaunch
    TimerServices,       // ours: once, when the first picture stands: tray, hotkey, counters
};

struct TimerId {
    TimerName Name;
    int Owner = -1; // -1: the workspace; else the table index of the container, picture ... it belongs to
    auto operator<=>(const TimerId&) const = default;
};

// Local civil time. Month 1 to 12, day 1 to 31, Weekday 0 is Sunday.
struct DateTime {
    int Year = 2000, Month = 1, Day = 1, Hour = 0, Minute = 0, Second = 0, Weekday = 6;
};

class Clock {
public:
    virtual ~Clock() = default;

    virtual DateTime Now() const = 0;
    virtual std::int64_t GetTickCount() const = 0;            // milliseconds, monotonic
    virtual std::int64_t QueryPerformanceCounter() const = 0; // nanoseconds, monotonic

    // Starts, or starts over with the new interval. A timer repeats until it is stopped.
    virtual void Start(TimerId timer, int milliseconds) = 0;
    virtual void Stop(TimerId timer) = 0;
    virtual bool IsRunning(TimerId timer) const = 0;

    // Frame_Tick runs so many times a second, as exactly as the system can; 0: none, which costs nothing.
    virtual void WantFrames(int perSecond) = 0;
};

} // namespace quill
