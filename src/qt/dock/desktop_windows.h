// DesktopWindows: the windows of other programs, as far as a workspace at an edge has to do with them: the
// panels that may cover its bar, a film or a game that fills the monitor, and who gets the keyboard when it
// goes. The order with the panels is asked for every second of a docked life, so it is kept and thrown away
// only when the server tells of a change; an idle desktop is never asked.
#pragma once

#include "platform/windows.h"
#include "qt/dock/x11_windows.h"

#include <QAbstractNativeEventFilter>

#include <map>
#include <vector>

namespace quill {

class DesktopWindows final : private QAbstractNativeEventFilter {
public:
    struct Own {
        qt::x11::WindowId Window;
        WindowId Name;
    };

    ~DesktopWindows() override = default;

    // Panels and those of ours that are named, topmost first.
    std::vector<StackedWindow> Stacking(const std::vector<Own>& ours);

private:
    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override;
    void Begin();
    void ReadOrder();
    void Look(const std::vector<qt::x11::WindowId>& windows);
    int EdgeOf(qt::x11::WindowId window) const;

    bool begun_ = false;
    bool ordered_ = false;                   // order_ is as it was announced last
    std::vector<qt::x11::WindowId> order_;   // the lowest first
    std::map<qt::x11::WindowId, int> edges_; // of panels that show; 0: it keeps nothing free, or is hidden
    std::vector<qt::x11::WindowId> heard_;   // panels, and what may become one
};

// The topmost window of another program that a person works in, on the desktop that shows; 0: there is none.
qt::x11::WindowId TopmostOfOthers();

// Whether another program's window covers the whole monitor at a place in it. Device pixels.
bool IsCoveredAt(QPoint place, const QRect& monitor);

} // namespace quill
