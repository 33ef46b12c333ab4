// Docking state, one record a window, so that detached windows use the same code.
#pragma once

#include <cstdint>
#include <functional>

namespace quill {

struct frmMain;

struct DockState {
    int DockPosition = 0;     // 0 not docked, 1 top, 2 left, 3 right, 4 bottom
    int LastDockPosition = 0; // never cleared
    bool WorkspaceDragging = false;
    std::int32_t DockedLeft = 0, DockedTop = 0; // twips
    bool Maximized = false;
    bool Suspended = false;       // mnuSuspendSlideOut is checked
    bool Locked = false;          // mnuLock is checked
    bool Align = false;           // mnuAlign is checked
    bool ClickToTagStart = false; // mnuClickToTagStart is checked
    bool Hidden = false;          // the user's own Hide
    // What runs at each frame while one is wanted; empty: nothing moves.
    std::function<void(frmMain&)> FrameHandler;
    int DialogPauses = 0; // dialogs that are open; above 0 nothing slides
};

} // namespace quill
