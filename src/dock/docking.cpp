#include "dock/docking.h"

#include "appearance/tips.h"
#include "containers/layout.h"
#include "core/splash.h"
#include "platform/windows.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

float Distance(const Rect& area, float x, float y) {
    const float dx = std::max({area.Left - x, 0.0F, x - area.Right()});
    const float dy = std::max({area.Top - y, 0.0F, y - area.Bottom()});
    return dx * dx + dy * dy;
}

Monitor NearestMonitor(const frmMain& Main, const Rect& window) {
    const auto monitors = Main.P.Windows.Monitors();
    const float x = window.Left + window.Width / 2, y = window.Top + window.Height / 2;
    return *std::ranges::min_element(monitors, {},
                                     [&](const Monitor& it) { return Distance(it.Place, x, y); });
}

constexpr float smallestWindow = 1500; // twips, what a collapsed size is mended to
constexpr float grip = 90, cornerGrip = 240;
constexpr float visibleEnough = 450; // of the window on some monitor, so that a hand can get it back

bool Reachable(const Rect& window, const Rect& area) {
    const float width = std::min(window.Right(), area.Right()) - std::max(window.Left, area.Left);
    const float height = std::min(window.Bottom(), area.Bottom()) - std::max(window.Top, area.Top);
    return width >= visibleEnough && height >= visibleEnough;
}

} // namespace

DialogPause::DialogPause(frmMain& main) : dock_(main.Dock) {
    ++dock_.DialogPauses;
    EndSplash(main);
    HideTip(main);
}

Rect VirtualDesktop(const frmMain& Main) {
    const auto monitors = Main.P.Windows.Monitors();
    float left = monitors[0].Place.Left, top = monitors[0].Place.Top;
    float right = monitors[0].Place.Right(), bottom = monitors[0].Place.Bottom();
    for (const auto& monitor : monitors) {
        left = std::min(left, monitor.Place.Left);
        top = std::min(top, monitor.Place.Top);
        right = std::max(right, monitor.Place.Right());
        bottom = std::max(bottom, monitor.Place.Bottom());
    }
    return {left, top, right - left, bottom - top};
}

Rect MonitorOf(const frmMain& Main, const Rect& window) {
    return NearestMonitor(Main, window).Place;
}
Rect WorkAreaOf(const frmMain& Main, const Rect& window) {
    return NearestMonitor(Main, window).WorkArea;
}

void PlaceMain(frmMain& Main, const Rect& window) {
    Rect place = window;
    if (place.Width < 100 && place.Height < 100) place.Width = place.Height = smallestWindow;
    const bool sized = place.Width != Main.View.Window.Width || place.Height != Main.View.Window.Height;
    Main.View.Window = place;
    Main.P.Windows.Place(MainWindow, place);
    if (sized) ResizeForm(Main);
}

void BringIntoView(frmMain& Main) {
    const auto& window = Main.View.Window;
    const auto monitors = Main.P.Windows.Monitors();
    if (std::ranges::any_of(monitors, [&](const Monitor& it) { return Reachable(window, it.Place); })) return;
    const auto area = WorkAreaOf(Main, window);
    const float left = std::clamp(window.Left, area.Left, std::max(area.Left, area.Right() - window.Width));
    const float top = std::clamp(window.Top, area.Top, std::max(area.Top, area.Bottom() - window.Height));
    PlaceMain(Main, {left, top, window.Width, window.Height});
}

void SetWindowOnTop(frmMain& Main) {
    Main.P.Windows.SetWindowOnTop(MainWindow, Main.Settings.OnTop);
}

void ApplyOpacity(frmMain& Main) {
    const int opacity = std::clamp<int>(Main.Settings.Opacity, 10, 250);
    Main.P.Windows.SetOpacity(MainWindow, Main.Settings.Translucent ? opacity : 255);
}

int GripEdgesAt(const frmMain& Main, Point at) {
    if (Main.Settings.PreventWindowMovement || Main.Dock.Maximized) return 0;
    const auto& back = Main.View.picBack.Place;
    const auto near = [](float place, float size) { return place < grip ? 1 : place >= size - grip ? 2 : 0; };
    const auto nearCorner = [](float place, float size) {
        return place < cornerGrip ? 1 : place >= size - cornerGrip ? 2 : 0;
    };
    int x = near(at.X, back.Width), y = near(at.Y, back.Height);
    if (y != 0 && x == 0)
        x = nearCorner(at.X, back.Width);
    else if (x != 0 && y == 0)
        y = nearCorner(at.Y, back.Height);
    return (x == 1 ? EdgeLeft : x == 2 ? EdgeRight : 0) | (y == 1 ? EdgeTop : y == 2 ? EdgeBottom : 0);
}

} // namespace quill
