#include "qt/core/display_check.h"

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <xcb/xcb.h>

namespace quill {
namespace {

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

bool Answers() {
    const std::unique_ptr<xcb_connection_t, Disconnect> connection(xcb_connect(nullptr, nullptr));
    return xcb_connection_has_error(connection.get()) == 0;
}

} // namespace

Status CheckDisplay() {
    const auto kind = Variable("QT_QPA_PLATFORM");
    if (!kind.empty() && !kind.starts_with("xcb") && !kind.starts_with("wayland"))
        return {}; // asked for by name
    const auto display = Variable("DISPLAY");
    if (display.empty() && !Variable("WAYLAND_DISPLAY").empty())
        return Failure{Reason::NotFound,
                       "this Wayland session runs no X server; install Xwayland and log in again."};
    if (display.empty())
        return Failure{Reason::NotFound,
                       "there is no display to open a window on; start it from a desktop, or set "
                       "DISPLAY."};
    if (!Answers())
        return Failure{Reason::NotFound, "the display " + display +
                                             " does not answer; check DISPLAY, and that you "
                                             "may use it."};
    return {};
}

} // namespace quill
