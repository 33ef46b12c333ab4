#include "dock/edges.h"

#include "dock/docking.h"
#include "platform/windows.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quill {
namespace {

constexpr float rim = 40;     // twips of the desktop that count as its edge
constexpr float enough = 450; // twips by which a hand finds something
constexpr float everywhere = 1e7F;

struct Span {
    float Begin, Length;
    float End() const { return Begin + Length; }
};

bool IsUpright(int at) {
    return at == edge::Left || at == edge::Right;
}
Span Along(int at, const Rect& it) {
    return IsUpright(at) ? Span{it.Top, it.Height} : Span{it.Left, it.Width};
}
Span Across(int at, const Rect& it) {
    return IsUpright(at) ? Span{it.Left, it.Width} : Span{it.Top, it.Height};
}
float Overlap(Span one, Span other) {
    return std::min(one.End(), other.End()) - std::max(one.Begin, other.Begin);
}
// Where a span begins when it is moved as little as it takes to lie within another.
float Within(Span it, Span area) {
    return std::max(area.Begin, std::min(it.Begin, area.End() - it.Length));
}
Rect MovedInto(const Rect& area, const Rect& window) {
    return {Within({window.Left, window.Width}, {area.Left, area.Width}),
            Within({window.Top, window.Height}, {area.Top, area.Height}), window.Width, window.Height};
}

bool ReachesEdge(const Rect& desktop, int at, const Rect& monitor) {
    if (at == edge::Top) return monitor.Top <= desktop.Top;
    if (at == edge::Left) return monitor.Left <= desktop.Left;
    if (at == edge::Right) return monitor.Right() >= desktop.Right();
    return monitor.Bottom() >= desktop.Height;
}

// The rim of the desktop at which a window stands out. A hand finds the window there, and there it docks
// anew.
Span RimOf(const frmMain& Main, int at, const Rect& window) {
    const Rect desktop = VirtualDesktop(Main);
    if (at == edge::Top) return {desktop.Top, rim};
    if (at == edge::Left) return {desktop.Left, rim};
    if (at == edge::Right) return {RightOfMonitor(Main, window) - rim, rim};
    return {desktop.Height - rim, rim};
}

Span Common(Span one, Span other) {
    return {std::max(one.Begin, other.Begin), Overlap(one, other)};
}

// Where the span lies along its edge once enough of it shows on a monitor that shows this rim, moved as
// little as it takes and not beyond the limits. None: there is no such monitor.
std::optional<Span> FoundAlong(const frmMain& Main, int at, Span rimOf, Span along, Span limits) {
    std::optional<Span> best;
    const auto move = [&](Span to) { return std::abs(to.Begin - along.Begin); };
    for (const auto& monitor : Main.P.Windows.Monitors()) {
        const Span shown = Common(Along(at, monitor.Place), limits);
        if (Overlap(Across(at, monitor.Place), rimOf) <= 0 || shown.Length <= 0) continue;
        const bool found = Overlap(along, shown) >= std::min(enough, along.Length);
        const Span there = found ? along : Span{Within(along, shown), std::min(along.Length, shown.Length)};
        if (!best || move(there) < move(*best)) best = there;
    }
    return best;
}

float GapBetween(Span one, Span other) {
    return std::max(0.0F, -Overlap(one, other));
}

} // namespace

int EdgeOfWindow(const frmMain& Main, const Rect& window) {
    const Rect desktop = VirtualDesktop(Main);
    if (window.Right() >= desktop.Right()) return edge::Right;
    if (window.Left <= desktop.Left) return edge::Left;
    if (window.Top <= desktop.Top) return edge::Top;
    return window.Bottom() >= desktop.Height ? edge::Bottom : edge::None;
}

// A parked window lies beyond its monitor, perhaps on the next one.
float RightOfMonitor(const frmMain& Main, const Rect& window) {
    const auto& dock = Main.Dock;
    const bool docked = dock.DockPosition == edge::Right && dock.DockedOn.Width > 0;
    return MonitorOf(Main, docked ? dock.DockedOn : window).Right();
}

Rect ParkedPlace(const frmMain& Main, int edge, Rect window) {
    const Rect desktop = VirtualDesktop(Main);
    switch (edge) {
    case edge::Top:
        window.Top = desktop.Top - window.Height + 40;
        break;
    case edge::Left:
        window.Left = desktop.Left - window.Width + 50;
        break;
    case edge::Right:
        window.Left = RightOfMonitor(Main, window) - 30;
        break;
    case edge::Bottom:
        window.Top = desktop.Height - 30;
        break;
    }
    return window;
}

Rect OutPlace(const frmMain& Main, int edge, Rect window) {
    const Rect desktop = VirtualDesktop(Main);
    const Rect before = window;
    switch (edge) {
    case edge::Top:
        window.Top = desktop.Top - 100;
        break;
    case edge::Left:
        window.Left = desktop.Left - 200;
        break;
    case edge::Right:
        window.Left = RightOfMonitor(Main, window) - window.Width + 200;
        break;
    case edge::Bottom:
        window.Top = desktop.Height - window.Height + 200;
        break;
    default:
        return window;
    }
    const auto along =
        FoundAlong(Main, edge, RimOf(Main, edge, before), Along(edge, window), {-everywhere, 2 * everywhere});
    if (!along) return MovedInto(MonitorOf(Main, window), window);
    (IsUpright(edge) ? window.Top : window.Left) = along->Begin;
    return window;
}

Rect MonitorAtEdge(const frmMain& Main, int edge, const Rect& window) {
    const Rect desktop = VirtualDesktop(Main);
    std::optional<Rect> nearest;
    const auto gap = [&](const Rect& monitor) {
        return GapBetween(Along(edge, monitor), Along(edge, window));
    };
    for (const auto& monitor : Main.P.Windows.Monitors()) {
        if (!ReachesEdge(desktop, edge, monitor.Place)) continue;
        if (!nearest || gap(monitor.Place) < gap(*nearest)) nearest = monitor.Place;
    }
    return nearest.value_or(MonitorOf(Main, window));
}

Rect BarInReach(const frmMain& Main, int edge, Rect bar, const Rect& out) {
    const auto along = FoundAlong(Main, edge, Across(edge, bar), Along(edge, bar), Along(edge, out));
    if (!along) return MovedInto(MonitorOf(Main, bar), bar);
    (IsUpright(edge) ? bar.Top : bar.Left) = along->Begin;
    (IsUpright(edge) ? bar.Height : bar.Width) = along->Length;
    return bar;
}

Rect CenteredOn(const Rect& area, const Rect& window) {
    return {area.Left + (area.Width - window.Width) / 2, area.Top + (area.Height - window.Height) / 2,
            window.Width, window.Height};
}

Rect KeptInView(const frmMain& Main, Rect window) {
    const auto shows = [&](const Monitor& it) {
        return Overlap({window.Left, window.Width}, {it.Place.Left, it.Place.Width}) >= enough &&
               Overlap({window.Top, window.Height}, {it.Place.Top, it.Place.Height}) >= enough;
    };
    const auto monitors = Main.P.Windows.Monitors();
    return std::ranges::any_of(monitors, shows) ? window : MovedInto(WorkAreaOf(Main, window), window);
}

} // namespace quill
