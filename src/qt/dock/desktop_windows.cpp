#include "qt/dock/desktop_windows.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <ranges>
#include <string_view>
#include <xcb/xcb.h>

namespace quill {
namespace {

namespace x11 = qt::x11;
using x11::WindowFacts;

// What nobody works in.
constexpr std::array<std::string_view, 10> beside = {
    "_NET_WM_WINDOW_TYPE_DESKTOP",      "_NET_WM_WINDOW_TYPE_DOCK",          "_NET_WM_WINDOW_TYPE_TOOLBAR",
    "_NET_WM_WINDOW_TYPE_MENU",         "_NET_WM_WINDOW_TYPE_SPLASH",        "_NET_WM_WINDOW_TYPE_TOOLTIP",
    "_NET_WM_WINDOW_TYPE_NOTIFICATION", "_NET_WM_WINDOW_TYPE_DROPDOWN_MENU", "_NET_WM_WINDOW_TYPE_POPUP_MENU",
    "_NET_WM_WINDOW_TYPE_COMBO"};

bool IsOrdinary(const WindowFacts& window) {
    return std::ranges::none_of(beside, [&](std::string_view type) { return window.IsOfType(type); });
}

// Of other programs, on the desktop that shows, the topmost first.
std::vector<WindowFacts> ShownOfOthers() {
    auto order = x11::ClientsInOrder().Windows;
    std::erase_if(order, [](x11::WindowId window) { return x11::IsOurs(window); });
    std::ranges::reverse(order);
    auto windows = x11::FactsOf(order);
    const auto desktop = x11::CurrentDesktop();
    std::erase_if(windows, [&](const WindowFacts& it) { return !it.Shown || !it.IsOn(desktop); });
    return windows;
}

bool IsPanelOn(const WindowFacts& window, const QRect& monitor) {
    return window.PanelEdge() != 0 && window.Place.intersects(monitor);
}

// One that a person has made as large as it goes is not meant: the edges of the screen are still in use.
bool Fills(const WindowFacts& window, const QRect& monitor) {
    return window.Place.contains(monitor) && IsOrdinary(window) &&
           !window.HasState("_NET_WM_STATE_MAXIMIZED_VERT") &&
           !window.HasState("_NET_WM_STATE_MAXIMIZED_HORZ");
}

} // namespace

x11::WindowId TopmostOfOthers() {
    const auto windows = ShownOfOthers();
    const auto found = std::ranges::find_if(windows, &IsOrdinary);
    return found == windows.end() ? 0 : found->Window;
}

bool IsCoveredAt(QPoint place, const QRect& monitor) {
    bool panel = false; // lies above the windows that are still to come
    for (const WindowFacts& window : ShownOfOthers()) {
        if (window.HasState("_NET_WM_STATE_FULLSCREEN") && window.Place.contains(place)) return true;
        panel = panel || IsPanelOn(window, monitor);
        if (!panel && Fills(window, monitor)) return true;
    }
    return false;
}

std::vector<StackedWindow> DesktopWindows::Stacking(const std::vector<Own>& ours) {
    if (!x11::IsPresent()) return {};
    Begin();
    if (!ordered_) ReadOrder();
    std::vector<StackedWindow> stacked;
    for (const x11::WindowId window : order_ | std::views::reverse) {
        const auto own = std::ranges::find(ours, window, &Own::Window);
        if (own != ours.end())
            stacked.push_back({own->Name, 0});
        else if (const int edge = EdgeOf(window); edge != 0)
            stacked.push_back({std::nullopt, edge});
    }
    return stacked;
}

void DesktopWindows::Begin() {
    if (begun_) return;
    begun_ = true;
    qApp->installNativeEventFilter(this);
}

void DesktopWindows::ReadOrder() {
    auto [windows, announced] = x11::ClientsInOrder();
    order_ = std::move(windows);
    ordered_ = announced;
    const auto gone = [this](x11::WindowId window) {
        return std::ranges::find(order_, window) == order_.end();
    };
    std::erase_if(edges_, [&](const auto& row) { return gone(row.first); });
    std::erase_if(heard_, gone);
    std::vector<x11::WindowId> unknown;
    std::ranges::copy_if(order_, std::back_inserter(unknown), [this](x11::WindowId window) {
        return !x11::IsOurs(window) && !edges_.contains(window);
    });
    if (!unknown.empty()) Look(unknown);
}

// What is a panel or may become one is listened to, and looked at again, since it may have changed meanwhile.
void DesktopWindows::Look(const std::vector<x11::WindowId>& windows) {
    std::vector<x11::WindowId> fresh;
    for (const WindowFacts& window : x11::FactsOf(windows)) {
        edges_[window.Window] = window.Shown ? window.PanelEdge() : 0;
        const bool known = std::ranges::find(heard_, window.Window) != heard_.end();
        if (known || (window.PanelEdge() == 0 && !window.IsOfType("_NET_WM_WINDOW_TYPE_DOCK"))) continue;
        x11::Listen(window.Window);
        heard_.push_back(window.Window);
        fresh.push_back(window.Window);
    }
    if (!fresh.empty()) Look(fresh);
}

int DesktopWindows::EdgeOf(x11::WindowId window) const {
    const auto known = edges_.find(window);
    return known == edges_.end() ? 0 : known->second;
}

// A panel that has changed is looked at when somebody asks next.
bool DesktopWindows::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    x11::WindowId changed = 0;
    switch (event->response_type & 0x7f) {
    case XCB_PROPERTY_NOTIFY: {
        const auto* notice = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        changed = notice->window;
        if (changed == x11::Root() && notice->atom == x11::Atom("_NET_CLIENT_LIST_STACKING"))
            ordered_ = false;
        break;
    }
    case XCB_MAP_NOTIFY:
        changed = reinterpret_cast<const xcb_map_notify_event_t*>(event)->window;
        break;
    case XCB_UNMAP_NOTIFY:
        changed = reinterpret_cast<const xcb_unmap_notify_event_t*>(event)->window;
        break;
    default:
        return false;
    }
    if (edges_.contains(changed) && std::ranges::find(heard_, changed) != heard_.end())
        edges_.erase(changed), ordered_ = false;
    return false;
}

} // namespace quill
