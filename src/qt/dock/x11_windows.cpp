#include "qt/dock/x11_windows.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <optional>
#include <xcb/xcb.h>

namespace quill::qt::x11 {
namespace {

template <typename T> using Reply = std::unique_ptr<T, decltype(&std::free)>;
template <typename T> Reply<T> Taken(T* answer) {
    return Reply<T>(answer, &std::free);
}

constexpr std::uint32_t longest = 64; // of these properties, in units of four bytes
constexpr std::array properties = {"_NET_WM_STATE", "_NET_WM_WINDOW_TYPE", "_NET_WM_STRUT_PARTIAL",
                                   "_NET_WM_STRUT", "_NET_WM_DESKTOP"};
enum Property { State, Type, PartialStrut, OldStrut, Desktop };

struct Asked {
    WindowId Window;
    xcb_get_window_attributes_cookie_t Attributes;
    xcb_get_geometry_cookie_t Size;
    xcb_translate_coordinates_cookie_t Corner;
    std::array<xcb_get_property_cookie_t, properties.size()> Values;
};

Asked Ask(xcb_connection_t* server, WindowId window) {
    Asked asked{window,
                xcb_get_window_attributes(server, window),
                xcb_get_geometry(server, window),
                xcb_translate_coordinates(server, window, Root(), 0, 0),
                {}};
    std::ranges::transform(properties, asked.Values.begin(), [&](const char* name) {
        return xcb_get_property(server, 0, window, Atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, longest);
    });
    return asked;
}

std::vector<std::uint32_t> NumbersIn(const xcb_get_property_reply_t* answer) {
    if (!answer || answer->format != 32) return {};
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(answer));
    return {first, first + answer->value_len};
}

// Every answer is taken, also for a window that has gone.
std::optional<WindowFacts> Answer(xcb_connection_t* server, const Asked& asked) {
    const auto attributes = Taken(xcb_get_window_attributes_reply(server, asked.Attributes, nullptr));
    const auto size = Taken(xcb_get_geometry_reply(server, asked.Size, nullptr));
    const auto corner = Taken(xcb_translate_coordinates_reply(server, asked.Corner, nullptr));
    std::array<std::vector<std::uint32_t>, properties.size()> values;
    std::ranges::transform(asked.Values, values.begin(), [server](auto cookie) {
        return NumbersIn(Taken(xcb_get_property_reply(server, cookie, nullptr)).get());
    });
    if (!attributes || !size || !corner) return std::nullopt;
    WindowFacts facts;
    facts.Window = asked.Window;
    facts.Place = {corner->dst_x, corner->dst_y, size->width, size->height};
    facts.States = std::move(values[State]), facts.Types = std::move(values[Type]);
    facts.Strut = std::move(values[values[PartialStrut].empty() ? OldStrut : PartialStrut]);
    if (!values[Desktop].empty()) facts.Desktop = values[Desktop].front();
    facts.Shown = attributes->map_state == XCB_MAP_STATE_VIEWABLE && !facts.HasState("_NET_WM_STATE_HIDDEN");
    return facts;
}

bool Has(const std::vector<std::uint32_t>& list, std::string_view name) {
    return std::ranges::find(list, Atom(name)) != list.end();
}

std::vector<WindowId> ChildrenOf(xcb_connection_t* server, WindowId window) {
    const auto answer = Taken(xcb_query_tree_reply(server, xcb_query_tree(server, window), nullptr));
    if (!answer) return {};
    const auto* first = xcb_query_tree_children(answer.get());
    return {first, first + xcb_query_tree_children_length(answer.get())};
}

// In the frame that a window manager may have put around it.
WindowId ClientIn(xcb_connection_t* server, WindowId top) {
    const auto isClient = [](WindowId window) { return !Numbers(window, "WM_STATE").empty(); };
    if (isClient(top)) return top;
    const auto inside = ChildrenOf(server, top);
    const auto client = std::ranges::find_if(inside, isClient);
    return client == inside.end() ? top : *client;
}

} // namespace

bool WindowFacts::HasState(std::string_view state) const {
    return Has(States, state);
}

bool WindowFacts::IsOfType(std::string_view type) const {
    return Has(Types, type);
}

int WindowFacts::PanelEdge() const {
    constexpr std::array<int, 4> edges = {2, 3, 1, 4};
    for (std::size_t side = 0; side < edges.size() && side < Strut.size(); ++side)
        if (Strut[side] != 0) return edges[side];
    return 0;
}

StackedClients ClientsInOrder() {
    auto* server = Connection();
    if (!server) return {};
    if (auto told = Numbers(Root(), "_NET_CLIENT_LIST_STACKING"); !told.empty())
        return {std::move(told), true};
    StackedClients found;
    for (const WindowId top : ChildrenOf(server, Root())) found.Windows.push_back(ClientIn(server, top));
    return found;
}

std::vector<WindowFacts> FactsOf(const std::vector<WindowId>& windows) {
    auto* server = Connection();
    if (!server) return {};
    std::vector<Asked> asked;
    for (const WindowId window : windows) asked.push_back(Ask(server, window));
    std::vector<WindowFacts> facts;
    for (const Asked& one : asked)
        if (auto answer = Answer(server, one)) facts.push_back(std::move(*answer));
    return facts;
}

std::uint32_t CurrentDesktop() {
    const auto number = Numbers(Root(), "_NET_CURRENT_DESKTOP");
    return number.empty() ? 0 : number.front();
}

// No window of ours: the toolkit's own choice of what it hears would be lost.
void Listen(WindowId window) {
    auto* server = Connection();
    if (!server || IsOurs(window)) return;
    const std::uint32_t wanted = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(server, window, XCB_CW_EVENT_MASK, &wanted);
}

} // namespace quill::qt::x11
