#include "dock/mini_dock.h"

#include "core/frmMain.h"
#include "dock/sliding.h"
#include "platform/session.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

constexpr float thickness = 40;    // twips
constexpr float offScreen = -1000; // twips, where it waits to be laid
constexpr int flashTime = 80;      // milliseconds
constexpr int flashes = 3;
constexpr Color flashMask = 0x808080;
constexpr int hoverTime = 250;                  // milliseconds
constexpr float restRadius = 3 * TwipsPerPixel; // what a resting hand may move
enum Side { LeftOrBottom = 0, RightOrTop = 1 };

void BringOut(frmMain& Main) {
    bool moved = false;
    Undock(Main, false, moved);
}

bool MayHover(const frmMain& Main) {
    return !Main.P.Windows.IsFullScreenAt(Main.P.Windows.GetCursorPos());
}

bool HasMoved(Point from, Point to) {
    return std::abs(to.X - from.X) > restRadius || std::abs(to.Y - from.Y) > restRadius;
}

float LengthOf(const frmMain& Main, float side) {
    const float size = Main.Settings.MiniDockSize;
    return size > 0 ? std::min(size, side) : side;
}

} // namespace

void LoadMiniDock(frmMain& Main) {
    auto& bar = Main.Dock.MiniDock;
    if (bar.Loaded) return;
    bar = {};
    bar.Loaded = true;
    bar.Place = {0, offScreen, thickness, thickness};
    bar.BaseColor = Main.Settings.AccentColor ? Main.P.Session.AccentColor() : Main.Settings.DockingColor;
    bar.BackColor = bar.BaseColor;
}

void UnloadMiniDock(frmMain& Main) {
    Main.P.Clock.Stop({TimerName::TimerShowMiniDock});
    Main.P.Clock.Stop({TimerName::TimerFlash});
    if (Main.Dock.MiniDock.Visible) Main.P.Windows.Hide(MiniDockWindow);
    Main.Dock.MiniDock = {};
}

void ShowMiniDock(frmMain& Main) {
    auto& bar = Main.Dock.MiniDock;
    bar.Visible = true;
    Main.Marks.MiniDock();
    Main.P.Windows.Place(MiniDockWindow, bar.Place);
    Main.P.Windows.SetOpacity(MiniDockWindow, Main.Settings.VisibleBorderCollapsed ? 255 : 1);
    Main.P.Windows.Show(MiniDockWindow, Activate::No);
    Main.P.Windows.SetWindowOnTop(MiniDockWindow, true);
    const bool flash = Main.Settings.VisibleBorderCollapsed && Main.Settings.MiniDockFlash;
    if (flash && !Main.P.Session.ReducedMotion()) Main.P.Clock.Start({TimerName::TimerFlash}, flashTime);
}

void LayBarVertical(frmMain& Main) {
    const auto& window = Main.View.Window;
    auto& bar = Main.Dock.MiniDock.Place;
    const int side = static_cast<int>(Main.Settings.MiniDockSide);
    bar.Width = thickness;
    bar.Height = LengthOf(Main, window.Height);
    if (side == RightOrTop)
        bar.Top = window.Top;
    else if (side == LeftOrBottom)
        bar.Top = window.Bottom() - bar.Height;
    else
        bar.Top = window.Top + window.Height / 2 - bar.Height / 2;
}

void LayBarHorizontal(frmMain& Main) {
    const auto& window = Main.View.Window;
    auto& bar = Main.Dock.MiniDock.Place;
    const int side = static_cast<int>(Main.Settings.MiniDockSide);
    bar.Height = thickness;
    bar.Width = LengthOf(Main, window.Width);
    if (side == LeftOrBottom)
        bar.Left = window.Left;
    else if (side == RightOrTop)
        bar.Left = window.Right() - bar.Width;
    else
        bar.Left = window.Left + window.Width / 2 - bar.Width / 2;
}

void frmMiniDock_MouseMove(frmMain& Main, const MouseEvent& event) {
    const auto& settings = Main.Settings;
    auto& bar = Main.Dock.MiniDock;
    const bool left = event.Button == MouseButton::Left;
    if (!bar.Visible) return; // it has done its work; what was on its way to it comes too late
    bar.PointerAway = false;
    if (!left && !MayHover(Main)) return;
    if (settings.UndockImmediately) return BringOut(Main);
    if (settings.UndockOnClick && !left) return;
    if (bar.BarHoverArmed) return;
    bar.BarClickSeen = left;
    bar.BarHoverPoint = Main.P.Windows.GetCursorPos();
    bar.BarHoverArmed = true;
    Main.P.Clock.Start({TimerName::TimerShowMiniDock}, hoverTime);
}

// A still mouse opens the workspace; a moving one is followed until it rests.
void TimerShowMiniDock_Timer(frmMain& Main) {
    auto& bar = Main.Dock.MiniDock;
    bar.BarHoverArmed = false;
    const bool over = CursorOverWindow(Main, MiniDockWindow);
    if (!over || (!bar.BarClickSeen && !MayHover(Main)))
        return Main.P.Clock.Stop({TimerName::TimerShowMiniDock});
    const Point cursor = Main.P.Windows.GetCursorPos();
    if (HasMoved(bar.BarHoverPoint, cursor) && !bar.BarClickSeen) {
        bar.BarHoverPoint = cursor;
        return;
    }
    Main.P.Clock.Stop({TimerName::TimerShowMiniDock});
    BringOut(Main);
}

void TimerFlash_Timer(frmMain& Main) {
    auto& bar = Main.Dock.MiniDock;
    const bool last = ++bar.Flashes > flashes;
    bar.BackColor = last || bar.BackColor != bar.BaseColor ? bar.BaseColor : bar.BaseColor ^ flashMask;
    if (last) Main.P.Clock.Stop({TimerName::TimerFlash}), bar.Flashes = 0;
    Main.Marks.MiniDock();
}

} // namespace quill
