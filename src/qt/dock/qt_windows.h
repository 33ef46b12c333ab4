// QtWindows: the window port over the stage's widgets. What native kind of window stands behind them is told
// in native_window.h alone.
#pragma once

#include "platform/windows.h"
#include "qt/core/display.h"
#include "qt/dock/desktop_windows.h"
#include "qt/dock/pointer_drag.h"

namespace quill {

class QtWindows : public Windows {
public:
    QtWindows(const Attachment& attached, const DisplayHolder& display)
        : attached_(attached), display_(display) {}

    void Place(WindowId window, const Rect& place) override;
    void Show(WindowId window, Activate activate) override;
    void Hide(WindowId window) override;
    void SetState(WindowId window, WindowState state) override;
    void SetOpacity(WindowId window, int alpha) override;
    void SetWindowOnTop(WindowId window, bool topMost) override;
    void SetTaskbarEntry(WindowId window, bool shown) override;
    void SetForegroundWindow(WindowId window) override;
    bool IsForeground(WindowId window) const override;
    void GiveForegroundBack(WindowId window) override;
    void RaiseWindow(WindowId window) override;
    std::vector<StackedWindow> Stacking() const override;
    bool IsFullScreenAt(Point place) const override;
    void BeginMove(WindowId window) override;
    void BeginResize(WindowId window, int edges) override;
    std::vector<Monitor> Monitors() const override;
    Point GetCursorPos() const override;
    void SetCursorPos(Point place) override;
    void ShowCursor(bool shown) override;
    void ShowBusy(bool busy) override;

private:
    QWidget* Widget(WindowId window) const;
    void BeginDrag(WindowId window, int edges);

    const Attachment& attached_;
    const DisplayHolder& display_;
    PointerDrag drag_;
    mutable DesktopWindows others_;
    bool busy_ = false;
};

} // namespace quill
