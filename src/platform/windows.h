// Windows: top-level windows addressed by id, the monitors, the cursor and the foreground. Only its one file
// in the backend knows what kind of native window stands behind an id. All places are twips on the virtual
// desktop.
#pragma once

#include "platform/geometry.h"

#include <compare>
#include <optional>
#include <vector>

namespace quill {

enum class WindowName {
    frmMain,
    frmSplash,
    frmMiniDock,
    frmMiniToolbar,
    frmExplode,
    frmTip,
    frmQuickLaunch,
    frmContainer,
    frmContainerLabel
};

struct WindowId {
    WindowName Name;
    int Index = -1; // the container of a detached window; -1 otherwise
    auto operator<=>(const WindowId&) const = default;
};

// The numbers are those of the settings file.
enum class WindowState { Normal = 0, Minimized = 1, Maximized = 2 };

enum class Activate { No, Yes };

// A window in the desktop's stacking order, as far as it matters to who wants to stay visible at an edge.
struct StackedWindow {
    std::optional<WindowId> Ours;
    int PanelEdge = 0; // of a panel that keeps an edge free: 1 top, 2 left, 3 right, 4 bottom; 0: no panel
};

struct Monitor {
    Rect Place;
    Rect WorkArea; // without panels
};

class Windows {
public:
    virtual ~Windows() = default;

    virtual void Place(WindowId window, const Rect& place) = 0;
    // Drains the marks first, so that what appears is what the tables say.
    virtual void Show(WindowId window, Activate activate) = 0;
    virtual void Hide(WindowId window) = 0;
    virtual void SetState(WindowId window, WindowState state) = 0;
    virtual void SetOpacity(WindowId window, int alpha) = 0; // 0 to 255; solid where nothing composes
    virtual void SetWindowOnTop(WindowId window, bool topMost) = 0;
    virtual void SetTaskbarEntry(WindowId window, bool shown) = 0;
    // Asks for the keyboard past focus stealing prevention; it may arrive a moment later, and
    // Foreground_Changed tells of it. Keys that are typed meanwhile are not lost where the system allows.
    virtual void SetForegroundWindow(WindowId window) = 0;
    virtual bool IsForeground(WindowId window) const = 0;
    // The keyboard goes to the topmost window of another program, if the named one has it.
    virtual void GiveForegroundBack(WindowId window) = 0;
    virtual void RaiseWindow(WindowId window) = 0;           // above its equals, without the keyboard
    virtual std::vector<StackedWindow> Stacking() const = 0; // what shows, topmost first
    // Whether another program's window covers the whole monitor at a place, as a film or a game does.
    virtual bool IsFullScreenAt(Point place) const = 0;
    // Moving and sizing with the pointer, begun by a press; ends with the release. Form_Moved follows.
    virtual void BeginMove(WindowId window) = 0;
    virtual void BeginResize(WindowId window, int edges) = 0; // sum of 1 left, 2 top, 4 right, 8 bottom

    virtual std::vector<Monitor> Monitors() const = 0; // the primary one first, never empty
    virtual Point GetCursorPos() const = 0;
    virtual void SetCursorPos(Point place) = 0;
    virtual void ShowCursor(bool shown) = 0; // over our own windows
    virtual void ShowBusy(bool busy) = 0;    // the pointer of who waits, over our own windows
};

inline constexpr WindowId MainWindow{WindowName::frmMain};
inline constexpr WindowId SplashWindow{WindowName::frmSplash};
inline constexpr WindowId TipWindow{WindowName::frmTip};
inline constexpr WindowId MiniDockWindow{WindowName::frmMiniDock};
inline constexpr WindowId MiniToolbarWindow{WindowName::frmMiniToolbar}; // titled "QuillmereMiniToolbar"
inline constexpr WindowId QuickLaunchWindow{WindowName::frmQuickLaunch}; // takes the keyboard when shown

} // namespace quill
