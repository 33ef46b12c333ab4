// Docking state, one record a window, so that detached windows use the same code.
#pragma once

#include "dock/clsTick.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace quill {

struct frmMain;

// What moves on the screen by frames, each at its own rate.
enum class FrameStream { Slide, Effect, Fade };

struct RunningFrames {
    FrameStream Stream = FrameStream::Slide;
    int PerSecond = 50;
    clsTick Tick; // with this one stream
    std::function<void(frmMain&)> Step;
};

struct DockState {
    int DockPosition = 0;     // 0 not docked, 1 top, 2 left, 3 right, 4 bottom
    int LastDockPosition = 0; // never cleared
    bool WorkspaceDragging = false;
    std::int32_t DockedLeft = 0, DockedTop = 0; // twips
    bool Maximized = false;
    bool Suspended = false;            // mnuSuspendSlideOut is checked
    bool Locked = false;               // mnuLock is checked
    bool Align = false;                // mnuAlign is checked
    bool ClickToTagStart = false;      // mnuClickToTagStart is checked
    bool Hidden = false;               // the user's own Hide
    std::vector<RunningFrames> Frames; // empty: nothing moves, and the clock is at rest
    int DialogPauses = 0;              // dialogs that are open; above 0 nothing slides
};

} // namespace quill
