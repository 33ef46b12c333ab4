// Docking state, one record a window, so that detached windows use the same code.
#pragma once

#include "dock/clsTick.h"
#include "platform/geometry.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace quill {

struct frmMain;
struct MenuEntry;

// A line of a menu as it was shown.
struct OfferedLine {
    const MenuEntry* Entry = nullptr;
    int Value = -1; // of an item that was made for this once
};

// What moves on the screen by frames, each at its own rate.
enum class FrameStream { Slide, Effect, Fade };

struct RunningFrames {
    FrameStream Stream = FrameStream::Slide;
    int PerSecond = 50;
    clsTick Tick; // with this one stream
    std::function<void(frmMain&)> Step;
};

// The slide that runs: where to, and how solid the window still is.
struct SlideState {
    int Edge = 0; // 0: none runs
    int Alpha = 255;
};

// frmMiniDock: the bar at the edge. BarHoverPoint is twips on the virtual desktop.
struct MiniDockState {
    bool Loaded = false; // it may be placed already and not show yet
    bool Visible = false;
    Rect Place; // on the virtual desktop
    Color BaseColor = 0;
    Color BackColor = 0; // what shows now; another one than BaseColor while it flashes
    int Flashes = 0;     // ticks of TimerFlash so far
    bool BarHoverArmed = false;
    bool BarClickSeen = false;
    Point BarHoverPoint;
    bool PointerAway = false; // left the bar, and has not come back
};

// frmMiniToolbar: the strip that comes with a selection of several shortcuts.
struct MiniToolbarState {
    bool Loaded = false;
    Rect Place;           // on the virtual desktop
    int Pointed = -1;     // the cell under the pointer, -1: none
    bool WasBusy = false; // something held it open at the last tick, and may just have let go of the keyboard
};

struct DockState {
    int DockPosition = 0;     // 0 not docked, 1 top, 2 left, 3 right, 4 bottom
    int LastDockPosition = 0; // never cleared
    bool WorkspaceDragging = false;
    std::int32_t DockedLeft = 0, DockedTop = 0; // twips
    Rect DockedOn, DockedDesktop;               // the monitor and the virtual desktop it was docked at
    bool ZOrderAsserted = false;
    bool PointerAway = false; // the pointer has left frmMain, and has not come back
    SlideState Slide;
    MiniDockState MiniDock;
    MiniToolbarState MiniToolbar;
    bool JustUsedHotKey = false;         // a press of the hotkey is not for the workspace now
    bool HotkeyRefused = false;          // another program has it
    std::int32_t UpdateCheckSeconds = 0; // ticks of TimerHide since the last check for a new version
    std::int32_t UpdateChecksDue = 0;    // times that one was due
    bool BrieflyUnlocked = false;        // the lock holds, but not for the moment; Locked is false then
    std::vector<OfferedLine> TrayLines;  // of the menu that the tray shows, by their id
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
