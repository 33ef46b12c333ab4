#include "qt/dock/x11.h"

#include <QGuiApplication>
#include <QVariant>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <qguiapplication_platform.h>
#include <xcb/xcb.h>

namespace quill::qt::x11 {
namespace {

constexpr std::uint32_t LongestProperty = 4096; // in units of four bytes

constexpr std::uint32_t SourcePager = 2;

template <typename T> using Reply = std::unique_ptr<T, decltype(&std::free)>;

std::uint32_t AskForAtom(xcb_connection_t* server, std::string_view name) {
    const auto asked = xcb_intern_atom(server, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> answer(xcb_intern_atom_reply(server, asked, nullptr), &std::free);
    return answer ? answer->atom : 0;
}

Reply<xcb_get_property_reply_t> Read(WindowId window, std::string_view property) {
    auto* server = Connection();
    if (!server || !window) return {nullptr, &std::free};
    const auto asked =
        xcb_get_property(server, 0, window, Atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, LongestProperty);
    return {xcb_get_property_reply(server, asked, nullptr), &std::free};
}

void Write(WindowId window, std::string_view property, xcb_atom_t type, std::uint8_t mode,
           const std::vector<std::uint32_t>& values) {
    auto* server = Connection();
    if (!server || !window) return;
    xcb_change_property(server, mode, window, Atom(property), type, 32,
                        static_cast<std::uint32_t>(values.size()), values.data());
    xcb_flush(server);
}

} // namespace

// The interface object exists on other platforms too, so the platform's name decides.
xcb_connection_t* Connection() {
    if (!qApp || QGuiApplication::platformName() != QLatin1String("xcb")) return nullptr;
    auto* native = qApp->nativeInterface<QNativeInterface::QX11Application>();
    return native ? native->connection() : nullptr;
}

bool IsPresent() {
    return Connection() != nullptr;
}

// The server gives each of its clients a range of numbers of its own.
bool IsOurs(WindowId window) {
    auto* server = Connection();
    if (!server) return false;
    const auto* setup = xcb_get_setup(server);
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

WindowId Root() {
    auto* server = Connection();
    return server ? xcb_setup_roots_iterator(xcb_get_setup(server)).data->root : 0;
}

// The known names hang on the application object, whose connection they belong to.
std::uint32_t Atom(std::string_view name) {
    auto* server = Connection();
    if (!server) return 0;
    const std::string key = "x11 atom " + std::string(name);
    const QVariant known = qApp->property(key.c_str());
    if (known.isValid()) return known.toUInt();
    const std::uint32_t number = AskForAtom(server, name);
    qApp->setProperty(key.c_str(), number);
    return number;
}

std::vector<std::uint32_t> Numbers(WindowId window, std::string_view property) {
    const auto answer = Read(window, property);
    if (!answer || answer->format != 32) return {};
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(answer.get()));
    return {first, first + answer->value_len};
}

std::string Text(WindowId window, std::string_view property) {
    const auto answer = Read(window, property);
    if (!answer || answer->format != 8) return {};
    const auto* first = static_cast<const char*>(xcb_get_property_value(answer.get()));
    return {first, first + answer->value_len};
}

void WriteAtoms(WindowId window, std::string_view property, std::initializer_list<std::string_view> names) {
    std::vector<std::uint32_t> values(names.size());
    std::transform(names.begin(), names.end(), values.begin(),
                   [](std::string_view name) { return Atom(name); });
    Write(window, property, XCB_ATOM_ATOM, XCB_PROP_MODE_REPLACE, values);
}

void WriteNumbers(WindowId window, std::string_view property, const std::vector<std::uint32_t>& values) {
    Write(window, property, XCB_ATOM_CARDINAL, XCB_PROP_MODE_REPLACE, values);
}

void TouchProperty(WindowId window, std::string_view property) {
    Write(window, property, XCB_ATOM_ATOM, XCB_PROP_MODE_APPEND, {});
}

void TellWindowManager(WindowId window, std::string_view message, std::initializer_list<std::uint32_t> data) {
    auto* server = Connection();
    if (!server || !window) return;
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = Atom(message);
    std::copy(data.begin(), data.end(), event.data.data32);
    xcb_send_event(server, 0, Root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(server);
}

void Raise(WindowId window) {
    auto* server = Connection();
    if (!server || !window) return;
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(server, window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    TellWindowManager(window, "_NET_RESTACK_WINDOW", {SourcePager, 0, above});
}

bool IsTaken(WindowId window) {
    auto* server = Connection();
    if (!server || !window) return true;
    const auto asked = xcb_get_window_attributes(server, window);
    const Reply<xcb_get_window_attributes_reply_t> answer(
        xcb_get_window_attributes_reply(server, asked, nullptr), &std::free);
    return !answer || answer->map_state != XCB_MAP_STATE_UNMAPPED || !Numbers(window, "WM_STATE").empty();
}

void TellPlace(WindowId window) {
    auto* server = Connection();
    if (!server || !window) return;
    const auto size = xcb_get_geometry(server, window);
    const auto corner = xcb_translate_coordinates(server, window, Root(), 0, 0);
    const Reply<xcb_get_geometry_reply_t> sized(xcb_get_geometry_reply(server, size, nullptr), &std::free);
    const Reply<xcb_translate_coordinates_reply_t> placed(
        xcb_translate_coordinates_reply(server, corner, nullptr), &std::free);
    if (!sized || !placed) return;
    xcb_configure_notify_event_t event{};
    event.response_type = XCB_CONFIGURE_NOTIFY;
    event.event = event.window = window;
    event.x = placed->dst_x, event.y = placed->dst_y;
    event.width = sized->width, event.height = sized->height;
    xcb_send_event(server, 0, window, XCB_EVENT_MASK_STRUCTURE_NOTIFY, reinterpret_cast<const char*>(&event));
    xcb_flush(server);
}

WindowId KeyboardWindow() {
    auto* server = Connection();
    if (!server) return 0;
    const auto asked = xcb_get_input_focus(server);
    const Reply<xcb_get_input_focus_reply_t> answer(xcb_get_input_focus_reply(server, asked, nullptr),
                                                    &std::free);
    return answer ? answer->focus : 0;
}

void Flush() {
    if (auto* server = Connection()) xcb_flush(server);
}

// Only the first screen is asked for: there is hardly a desktop with more than one of the old kind.
bool HasCompositor() {
    auto* server = Connection();
    if (!server) return true;
    const auto asked = xcb_get_selection_owner(server, Atom("_NET_WM_CM_S0"));
    const Reply<xcb_get_selection_owner_reply_t> answer(xcb_get_selection_owner_reply(server, asked, nullptr),
                                                        &std::free);
    return answer && answer->owner != XCB_NONE;
}

std::string WindowManagerName() {
    const auto check = Numbers(Root(), "_NET_SUPPORTING_WM_CHECK");
    return check.empty() ? std::string() : Text(check.front(), "_NET_WM_NAME");
}

} // namespace quill::qt::x11
