// The fake computer's screen: windows with a stacking order, monitors, the cursor. Nothing here paints, and
// no call comes back by itself: what the window system would report is pending until fake/desk.h takes it.
#pragma once

#include "platform/windows.h"

#include <map>
#include <optional>
#include <string>

namespace quill::fake {

struct FakeWindow {
    Rect Place;
    bool Visible = false;
    bool OnTop = false;
    bool TaskbarEntry = true;
    int Opacity = 255;
    WindowState State = WindowState::Normal;
};

std::string NameOf(WindowId window); // "frmMain", "frmContainer(3)"

class FakeWindows : public Windows {
public:
    void Place(WindowId window, const Rect& place) override;
    void Show(WindowId window, Activate activate) override;
    void Hide(WindowId window) override;
    void SetState(WindowId window, WindowState state) override;
    void SetOpacity(WindowId window, int alpha) override;
    void SetWindowOnTop(WindowId window, bool topMost) override;
    void SetTaskbarEntry(WindowId window, bool shown) override;
    void SetForegroundWindow(WindowId window) override;
    bool IsForeground(WindowId window) const override { return Foreground == window; }
    void GiveForegroundBack(WindowId window) override;
    void RaiseWindow(WindowId window) override;
    std::vector<StackedWindow> Stacking() const override;
    bool IsFullScreenAt(Point place) const override;
    void BeginMove(WindowId window) override;
    void BeginResize(WindowId window, int edges) override;
    std::vector<Monitor> Monitors() const override { return Screens; }
    Point GetCursorPos() const override { return Cursor; }
    void SetCursorPos(Point place) override;
    void ShowCursor(bool shown) override;
    void ShowBusy(bool busy) override { Busy = busy, WasBusy = WasBusy || busy; }

    const FakeWindow& Of(WindowId window) const; // one that was never touched is a default one
    void MovedByPerson(const Rect& place);       // frmMain, as the window manager does it
    void EndProcess();                           // every window is gone
    bool IsVisible(WindowId window) const { return Of(window).Visible; }

    std::vector<Monitor> Screens{{{0, 0, 28800, 16200}, {0, 0, 28800, 15750}}}; // 1920 by 1080, a panel below
    Point Cursor{14400, 8100};
    bool CursorShown = true;
    bool Busy = false, WasBusy = false;
    std::optional<WindowId> Foreground; // none: another program has it
    std::vector<WindowId> Stack;        // shown windows of ours, the last is the top
    // A panel of another program that keeps an edge free (1 top, 2 left, 3 right, 4 bottom; 0: there is
    // none), and whether it lies above everything of ours.
    int PanelEdge = 0;
    bool PanelOnTop = false;
    std::optional<Rect> FullScreen; // the monitor that another program's window fills
    std::vector<std::string> Log;   // "place frmMain 0,0 100x100", "show frmMain active" ...
    // What the window system has still to report about frmMain.
    std::optional<Rect> PendingMove;
    std::optional<WindowState> PendingState;
    std::optional<WindowId> Moving, Resizing; // begun, until the desk's release
    int ResizingEdges = 0;                    // sum of 1 left, 2 top, 4 right, 8 bottom

private:
    void Raise(WindowId window);
    std::map<WindowId, FakeWindow> windows_;
};

} // namespace quill::fake
