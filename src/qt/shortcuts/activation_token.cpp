#include "qt/shortcuts/activation_token.h"

#include "qt/core/convert.h"
#include "qt/dock/x11.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <unistd.h>
#include <xcb/xcb.h>

namespace quill {
namespace {

// A line to the server for the length of one notice: the toolkit reads all that comes on its own, so that
// nobody else could wait there for the time.
class NoticeLine {
public:
    NoticeLine() : server_(xcb_connect(nullptr, &screen_)) {
        if (xcb_connection_has_error(server_) != 0) return;
        root_ = RootOf(screen_);
        window_ = xcb_generate_id(server_);
        const std::uint32_t wanted = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_create_window(server_, XCB_COPY_FROM_PARENT, window_, root_, -1, -1, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &wanted);
    }
    ~NoticeLine() { xcb_disconnect(server_); }
    NoticeLine(const NoticeLine&) = delete;
    NoticeLine& operator=(const NoticeLine&) = delete;

    explicit operator bool() const { return window_ != 0; }
    int Screen() const { return screen_; }

    // The server tells it with the notice of a change, also of one that changes nothing.
    std::uint32_t PresentTime() {
        xcb_change_property(server_, XCB_PROP_MODE_APPEND, window_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0,
                            nullptr);
        xcb_flush(server_);
        while (const Event event{xcb_wait_for_event(server_), &std::free})
            if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY)
                return reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->time;
        return 0;
    }

    // To whoever listens on the root window, twenty bytes at a time; the last one is a zero.
    void Broadcast(const std::string& text) {
        std::uint32_t kind = qt::x11::Atom("_NET_STARTUP_INFO_BEGIN");
        for (std::size_t at = 0; at <= text.size(); at += PieceSize) {
            Send(kind, text.c_str() + at, std::min(PieceSize, text.size() + 1 - at));
            kind = qt::x11::Atom("_NET_STARTUP_INFO");
        }
        std::free(
            xcb_get_input_focus_reply(server_, xcb_get_input_focus(server_), nullptr)); // all has arrived
    }

private:
    using Event = std::unique_ptr<xcb_generic_event_t, decltype(&std::free)>;
    static constexpr std::size_t PieceSize = 20;

    xcb_window_t RootOf(int number) const {
        auto screens = xcb_setup_roots_iterator(xcb_get_setup(server_));
        for (; number > 0 && screens.rem > 1; --number) xcb_screen_next(&screens);
        return screens.data->root;
    }

    void Send(std::uint32_t kind, const char* piece, std::size_t size) {
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 8;
        message.window = window_;
        message.type = kind;
        std::memcpy(message.data.data8, piece, size);
        xcb_send_event(server_, 0, root_, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&message));
    }

    int screen_ = 0;
    xcb_connection_t* server_;
    xcb_window_t root_ = 0, window_ = 0; // 0: the server does not answer
};

// Valid UTF-8 in quotes, whatever a file is called.
std::string Quoted(const std::string& value) {
    std::string quoted = "\"";
    for (const char letter : Bytes(Text(value))) {
        if (letter == '"' || letter == '\\') quoted += '\\';
        quoted += static_cast<unsigned char>(letter) < ' ' ? ' ' : letter;
    }
    return quoted + '"';
}

std::string NewToken(std::uint32_t time) {
    const auto chance = std::to_string(QRandomGenerator::global()->generate());
    return "quillmere-" + std::to_string(::getpid()) + "-" + chance + "_TIME" + std::to_string(time);
}

} // namespace

std::string AnnounceStart(const std::string& name, const std::string& program, Feedback feedback) {
    if (!qt::x11::IsPresent()) return {};
    NoticeLine line;
    const std::uint32_t time = line ? line.PresentTime() : 0;
    if (time == 0) return {};
    const std::string token = NewToken(time);
    line.Broadcast("new: ID=" + Quoted(token) + " NAME=" + Quoted(name) + " BIN=" + Quoted(program) +
                   " SCREEN=" + std::to_string(line.Screen()) +
                   (feedback == Feedback::No ? " SILENT=1" : ""));
    return token;
}

void EndStartNotice(const std::string& token) {
    if (token.empty() || !qt::x11::IsPresent()) return;
    if (NoticeLine line; line) line.Broadcast("remove: ID=" + Quoted(token));
}

} // namespace quill
