#include "dock/sliding.h"
#include "keyboard/jump_to.h"

#include "appearance/effects.h"
#include "appearance/tips.h"
#include "containers/fold.h"
#include "containers/shrink.h"
#include "core/caption.h"
#include "dock/dock_commands.h"
#include "dock/docking.h"
#include "dock/foreground.h"
#include "dock/frames.h"
#include "dock/mini_dock.h"
#include "dock/mini_toolbar.h"
#include "platform/clock.h"
#include "platform/session.h"
#include "platform/windows.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

constexpr float margin = 3 * TwipsPerPixel; // around a window, where the pointer still counts as over it
constexpr int slideRate = 50;               // frames a second
constexpr int alphaStep = 40;               // a frame, of 255
constexpr float slideStep = 500;            // twips a frame
constexpr int hoverTime = 250;              // milliseconds
constexpr int secondsBetweenUpdateChecks = 172800; // two days

// ---- the slide

void StopSlide(frmMain& Main) {
    Main.Dock.Slide = {};
    StopFrames(Main, FrameStream::Slide);
}

// Somebody has put it elsewhere meanwhile, made it large or small, has something in the hand, or is asked.
bool IsSlideWanted(const frmMain& Main) {
    const auto& dock = Main.Dock;
    return dock.DockPosition == dock.Slide.Edge && !IsMaximized(Main) && Main.View.Visible &&
           Main.View.State != WindowState::Minimized && !dock.WorkspaceDragging && dock.DialogPauses == 0;
}

// One step outwards; true when there is nothing left to slide.
bool StepOutwards(frmMain& Main) {
    const Rect desktop = VirtualDesktop(Main);
    Rect place = Main.View.Window;
    bool there = false;
    switch (Main.Dock.Slide.Edge) {
    case edge::Top:
        place.Top -= slideStep;
        there = place.Top <= desktop.Top - place.Height + 100;
        break;
    case edge::Left:
        place.Left -= slideStep;
        there = place.Left <= desktop.Left - place.Width + 100;
        break;
    case edge::Right:
        place.Left += slideStep;
        there = place.Left >= RightOfMonitor(Main, place) - 200;
        break;
    case edge::Bottom:
        place.Top += slideStep;
        there = place.Top >= desktop.Height - 100;
        break;
    }
    PlaceMain(Main, place);
    return there;
}

void SlideStep(frmMain& Main) {
    auto& slide = Main.Dock.Slide;
    if (!IsSlideWanted(Main)) return AbandonSlide(Main);
    slide.Alpha -= alphaStep;
    if (slide.Alpha > 0) Main.P.Windows.SetOpacity(MainWindow, slide.Alpha);
    const bool there = StepOutwards(Main);
    if (!there && slide.Alpha >= 1) return;
    DockNow(Main, false);
    ApplyOpacity(Main);
}

// ---- placing

// With what the edge is a part of: both may change while the workspace is there.
void TakeEdge(frmMain& Main, int position) {
    auto& dock = Main.Dock;
    dock.DockPosition = dock.LastDockPosition = position;
    dock.DockedOn = MonitorOf(Main, Main.View.Window);
    dock.DockedDesktop = VirtualDesktop(Main);
}

// No larger than its monitor, unless its size is held.
Rect Fitted(const frmMain& Main, const Rect& monitor, Rect window) {
    if (Main.Settings.PreventWindowMovement) return window;
    window.Width = std::min(window.Width, monitor.Width);
    window.Height = std::min(window.Height, monitor.Height);
    return window;
}

// What is open for the moment closes, and what belongs to the open workspace goes.
void PrepareToDock(frmMain& Main) {
    HideTip(Main);
    EndEffect(Main);
    LoadMiniDock(Main);
    CloseMiniToolbar(Main);
    if (IsJumpToOpen(Main)) ClosePicJumpTo(Main);
    ShrinkBackContainer(Main, false);
    AutoFoldContainer(Main, Main.Group.AutoFoldContainerIndex);
}

void LayBar(frmMain& Main, int at) {
    const auto& window = Main.View.Window;
    const Rect out = OutPlace(Main, at, window);
    auto& bar = Main.Dock.MiniDock.Place;
    if (at == edge::Left || at == edge::Right)
        LayBarVertical(Main), bar.Top += out.Top - window.Top;
    else
        LayBarHorizontal(Main), bar.Left += out.Left - window.Left;
    if (at == edge::Top) bar.Top = window.Bottom() - 50;
    if (at == edge::Left) bar.Left = window.Right() - 50;
    if (at == edge::Right) bar.Left = window.Left;
    if (at == edge::Bottom) bar.Top = window.Top;
    bar = BarInReach(Main, at, bar, out);
}

// The bar shows before the window goes.
void Park(frmMain& Main) {
    auto& dock = Main.Dock;
    PrepareToDock(Main);
    PlaceMain(Main, ParkedPlace(Main, dock.DockPosition, Main.View.Window));
    LayBar(Main, dock.DockPosition);
    dock.ZOrderAsserted = false;
    dock.DockedLeft = static_cast<std::int32_t>(std::lround(Main.View.Window.Left));
    dock.DockedTop = static_cast<std::int32_t>(std::lround(Main.View.Window.Top));
    ShowMiniDock(Main);
    HideMain(Main);
    if (!Main.Settings.UndockOnClick) Main.P.Clock.Start({TimerName::TimerShowMiniDock}, hoverTime);
}

// ---- the heartbeat

void CountForUpdate(frmMain& Main) {
    auto& dock = Main.Dock;
    if (!Main.Settings.CheckForUpdatesOnStartup) return;
    if (++dock.UpdateCheckSeconds < secondsBetweenUpdateChecks) return;
    dock.UpdateCheckSeconds = 0;
    ++dock.UpdateChecksDue;
}

// Something else has moved a docked workspace. One that is hidden is never moved.
bool WasMoved(const frmMain& Main) {
    const auto pixel = [](float twips) { return std::lround(twips / TwipsPerPixel); };
    const auto& window = Main.View.Window;
    return Main.View.Visible && (pixel(window.Left) != pixel(static_cast<float>(Main.Dock.DockedLeft)) ||
                                 pixel(window.Top) != pixel(static_cast<float>(Main.Dock.DockedTop)));
}

// Nothing that is still on its way is interrupted, nor anybody who points at it.
bool IsBusy(const frmMain& Main) {
    const bool pointed = CursorOverWindow(Main, MainWindow) || CursorOverWindow(Main, MiniToolbarWindow);
    return pointed || Main.Looks.frmExplode.Loaded || Main.Dock.Slide.Edge != edge::None ||
           Main.View.State == WindowState::Minimized;
}

void StayDocked(frmMain& Main) {
    if (WasMoved(Main)) {
        Main.Dock.DockPosition = edge::None;
        UnloadMiniDock(Main);
    } else if (Main.Settings.OnTop) {
        TopMostUpkeep(Main);
    }
}

// Nobody looks at the workspace: it goes, if it touches an edge.
void Collapse(frmMain& Main) {
    auto& dock = Main.Dock;
    if (dock.DialogPauses > 0 || dock.Suspended || Main.Links.Dropping) return;
    if (Main.P.Windows.IsForeground(MainWindow)) return;
    if (const int edge = EdgeOfWindow(Main, Main.View.Window); edge != edge::None)
        return DockMe(Main, edge, true);
    if (dock.ZOrderAsserted) return;
    SetWindowOnTop(Main);
    dock.ZOrderAsserted = true;
}

// ---- coming out

// Off the edge, in pixels.
Point Nudged(Point cursor, int edge) {
    constexpr Point nudges[] = {{0, 0}, {0, 3}, {4, 0}, {-4, 0}, {0, -6}};
    return {cursor.X + nudges[edge].X * TwipsPerPixel, cursor.Y + nudges[edge].Y * TwipsPerPixel};
}

Point MiddleOf(const Rect& window) {
    const auto whole = [](float twips) { return std::nearbyint(twips / TwipsPerPixel) * TwipsPerPixel; };
    return {whole(window.Left + window.Width / 2), whole(window.Top + window.Height / 2)};
}

} // namespace

bool CursorOverWindow(const frmMain& Main, WindowId window) {
    const auto& dock = Main.Dock;
    const bool main = window == MainWindow, bar = window == MiniDockWindow;
    const bool shown = main  ? Main.View.Visible && !dock.PointerAway
                       : bar ? dock.MiniDock.Visible && !dock.MiniDock.PointerAway
                             : window == MiniToolbarWindow && dock.MiniToolbar.Loaded;
    if (!shown) return false;
    const Rect& place = main ? Main.View.Window : bar ? dock.MiniDock.Place : dock.MiniToolbar.Place;
    const auto at = Main.P.Windows.GetCursorPos();
    return Rect{place.Left - margin, place.Top - margin, place.Width + 2 * margin, place.Height + 2 * margin}
        .Contains(at.X, at.Y);
}

bool CursorOverAnyWindow(const frmMain& Main) {
    const auto at = Main.P.Windows.GetCursorPos();
    const auto& dock = Main.Dock;
    return (Main.View.Visible && Main.View.Window.Contains(at.X, at.Y)) ||
           (dock.MiniDock.Visible && dock.MiniDock.Place.Contains(at.X, at.Y)) ||
           (dock.MiniToolbar.Loaded && dock.MiniToolbar.Place.Contains(at.X, at.Y));
}

bool IsMaximized(const frmMain& Main) {
    return Main.Dock.Maximized || Main.View.State == WindowState::Maximized;
}

void DockMe(frmMain& Main, int position, bool animate) {
    if (Main.Dock.WorkspaceDragging || IsMaximized(Main)) return;
    if (position < edge::Top || position > edge::Bottom) return;
    TakeEdge(Main, position);
    DockNow(Main, animate);
}

void DockNow(frmMain& Main, bool animate) {
    if (IsMaximized(Main)) return;
    const bool slides = animate && Main.Settings.Animate && !Main.P.Session.ReducedMotion();
    if (slides && Main.View.Visible) return SlideAway(Main);
    StopSlide(Main);
    Park(Main);
}

void SlideAway(frmMain& Main) {
    HideTip(Main);
    CloseMiniToolbar(Main);
    Main.Dock.Slide.Edge = Main.Dock.DockPosition;
    Main.Dock.Slide.Alpha = Main.Settings.Translucent ? std::clamp<int>(Main.Settings.Opacity, 10, 250) : 255;
    StartFrames(Main, FrameStream::Slide, slideRate, &SlideStep);
}

// Made large meanwhile, it goes back to where it stands when it is out; made small or hidden, it comes back
// there.
void AbandonSlide(frmMain& Main) {
    auto& dock = Main.Dock;
    const int edge = dock.Slide.Edge;
    if (edge == edge::None) return;
    const bool elsewhere = dock.DockPosition != edge;
    auto& place = dock.Maximized ? Main.View.RestoreRect : Main.View.Window;
    const Rect out = elsewhere ? place : OutPlace(Main, edge, place);
    StopSlide(Main);
    ApplyOpacity(Main);
    if (elsewhere) return;
    dock.DockPosition = edge::None;
    if (dock.Maximized)
        place = out;
    else
        PlaceMain(Main, out);
}

// The window shows before the bar goes, so that nothing flickers between them.
void ComeOut(frmMain& Main, const Rect& place) {
    auto& dock = Main.Dock;
    dock.DockPosition = edge::None;
    dock.ZOrderAsserted = false;
    StopSlide(Main);
    ApplyOpacity(Main);
    PlaceMain(Main, place);
    ShowMain(Main);
    UnloadMiniDock(Main);
    if (Main.Settings.GrabFocus && ForceForeground(Main)) MakeTitleBarActive(Main);
}

// The nudge keeps the pointer off the edge, or the first tick would find it away again.
void Undock(frmMain& Main, bool fromHotkey, bool& moved) {
    const int edge = Main.Dock.DockPosition;
    moved = edge >= edge::Top && edge <= edge::Bottom;
    if (!moved) return;
    const Point cursor = Main.P.Windows.GetCursorPos();
    ComeOut(Main, OutPlace(Main, edge, Main.View.Window));
    Main.P.Windows.SetCursorPos(Nudged(cursor, edge));
    if (!fromHotkey && Main.Settings.CenterMouse) Main.P.Windows.SetCursorPos(MiddleOf(Main.View.Window));
}

void DockAnew(frmMain& Main) {
    const int edge = Main.Dock.DockPosition;
    StopSlide(Main);
    HideMain(Main);
    UnloadMiniDock(Main);
    const Rect monitor = MonitorAtEdge(Main, edge, Main.View.Window);
    PlaceMain(Main, CenteredOn(monitor, Fitted(Main, monitor, Main.View.Window)));
    TakeEdge(Main, edge);
    Park(Main);
    ApplyOpacity(Main);
}

bool MayCollapse(const frmMain& Main) {
    return !Main.Dock.Suspended && !IsMaximized(Main) && Main.Dock.DialogPauses == 0 &&
           !Main.Links.Dropping && Main.View.Visible && Main.View.State != WindowState::Minimized &&
           Main.Dock.DockPosition == 0 && EdgeOfWindow(Main, Main.View.Window) != 0;
}

void TimerHide_Timer(frmMain& Main) {
    CountForUpdate(Main);
    if (!Main.View.Visible && Main.Dock.DockPosition == edge::None) return;
    ShowTimeLine(Main);
    if (IsBusy(Main)) return;
    if (Main.Dock.DockPosition != edge::None) StayDocked(Main);
    if (Main.Dock.DockPosition == edge::None) Collapse(Main);
}

void TopMostUpkeep(frmMain& Main) {
    for (const auto& window : Main.P.Windows.Stacking()) {
        if (window.Ours == MiniDockWindow) return;
        if (window.PanelEdge == 0 || window.PanelEdge != Main.Dock.LastDockPosition) continue;
        Main.P.Windows.SetWindowOnTop(MiniDockWindow, true);
        Main.P.Windows.RaiseWindow(MiniDockWindow);
        return;
    }
}

} // namespace quill
