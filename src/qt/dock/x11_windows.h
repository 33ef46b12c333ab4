// What the X server and the window manager know of the windows on the desktop, of any program. Many windows
// are asked about at once and the answers are taken afterwards, so that it costs one way to the server and
// back, however many there are. Places are device pixels.
#pragma once

#include "qt/dock/x11.h"

#include <QRect>

#include <cstdint>
#include <string_view>
#include <vector>

namespace quill::qt::x11 {

struct WindowFacts {
    WindowId Window = 0;
    bool Shown = false; // on the screen at the moment, and not minimised
    QRect Place;
    std::vector<std::uint32_t> States, Types, Strut; // Strut: left, right, top, bottom
    std::uint32_t Desktop = AllDesktops;

    static constexpr std::uint32_t AllDesktops = 0xFFFFFFFF;

    bool HasState(std::string_view state) const;
    bool IsOfType(std::string_view type) const;
    int PanelEdge() const; // that it keeps free: 1 top, 2 left, 3 right, 4 bottom; 0: none
    bool IsOn(std::uint32_t desktop) const { return Desktop == AllDesktops || Desktop == desktop; }
};

// The windows that have a window manager, the lowest first; announced tells whether changes of the order come
// as a notice of the root's property.
struct StackedClients {
    std::vector<WindowId> Windows;
    bool Announced = false;
};
StackedClients ClientsInOrder();

std::vector<WindowFacts> FactsOf(const std::vector<WindowId>& windows); // of those that still exist
std::uint32_t CurrentDesktop();

// From now on what happens to the window is told to the native event filters.
void Listen(WindowId window);

} // namespace quill::qt::x11
