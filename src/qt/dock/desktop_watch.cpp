#include "qt/dock/desktop_watch.h"

#include "core/handlers.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

#include <cstdlib>
#include <memory>
#include <utility>
#include <xcb/xcb.h>

namespace quill {
namespace {

namespace x11 = qt::x11;

constexpr auto tellEvent = static_cast<QEvent::Type>(QEvent::User + 1);
constexpr std::string_view inputExtension = "XInputExtension";
constexpr int inputEnter = 7, inputLeave = 8;
constexpr int modeGrab = 1, modePassiveGrab = 4; // the modes of both kinds of events
constexpr int detailInferior = 2;

// An event of the newer kind, as far as it is the same for all of them.
struct InputCrossing {
    std::uint8_t ResponseType, Extension;
    std::uint16_t Sequence;
    std::uint32_t Length;
    std::uint16_t Kind, Device;
    std::uint32_t Time;
    std::uint16_t Source;
    std::uint8_t Mode, Detail;
    std::uint32_t Root, Window, Child;
};
static_assert(sizeof(InputCrossing) == 32);

int AskForInputExtension() {
    auto* server = x11::Connection();
    if (!server) return 0;
    const auto asked = xcb_query_extension(server, inputExtension.size(), inputExtension.data());
    const std::unique_ptr<xcb_query_extension_reply_t, decltype(&std::free)> answer(
        xcb_query_extension_reply(server, asked, nullptr), &std::free);
    return answer && answer->present ? answer->major_opcode : 0;
}

// A grab moves the events and not the pointer; what lies inside a window is part of it.
bool Counts(int mode, int detail) {
    return mode != modeGrab && mode != modePassiveGrab && detail != detailInferior;
}

} // namespace

DesktopWatch::DesktopWatch(const Attachment& attached, Names names)
    : attached_(attached), names_(std::move(names)) {
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &DesktopWatch::ForegroundMoved);
    if (!x11::IsPresent()) return;
    inputExtension_ = AskForInputExtension();
    qApp->installNativeEventFilter(this);
}

bool DesktopWatch::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    const int kind = event->response_type & 0x7f;
    if (kind == XCB_ENTER_NOTIFY || kind == XCB_LEAVE_NOTIFY) {
        const auto* crossing = reinterpret_cast<const xcb_enter_notify_event_t*>(event);
        if (Counts(crossing->mode, crossing->detail)) Crossed(crossing->event, kind == XCB_ENTER_NOTIFY);
    } else if (kind == XCB_GE_GENERIC && inputExtension_ != 0) {
        const auto* crossing = reinterpret_cast<const InputCrossing*>(event);
        const bool enter = crossing->Kind == inputEnter;
        if (crossing->Extension == inputExtension_ && (enter || crossing->Kind == inputLeave) &&
            Counts(crossing->Mode, crossing->Detail))
            Crossed(crossing->Window, enter);
    } else if (kind == XCB_PROPERTY_NOTIFY) {
        const auto* notice = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        if (notice->window == x11::Root() && notice->atom == x11::Atom("_NET_ACTIVE_WINDOW"))
            ForegroundMoved();
    }
    return false;
}

void DesktopWatch::Crossed(x11::WindowId window, bool over) {
    if (const auto name = names_(window)) {
        crossings_.push_back({*name, over});
        TellSoon();
    }
}

void DesktopWatch::ForegroundMoved() {
    foregroundMoved_ = true;
    TellSoon();
}

// Not before the moves of the mouse that came earlier and wait in the toolkit's own queue.
void DesktopWatch::TellSoon() {
    if (!std::exchange(telling_, true)) QCoreApplication::postEvent(this, new QEvent(tellEvent));
}

bool DesktopWatch::event(QEvent* event) {
    if (event->type() != tellEvent) return QObject::event(event);
    telling_ = false;
    Tell();
    return true;
}

void DesktopWatch::Tell() {
    for (const auto& [window, over] : std::exchange(crossings_, {})) {
        if (!attached_.Alive()) return;
        over ? Form_MouseEnter(*attached_.Main, window) : Form_MouseLeave(*attached_.Main, window);
    }
    if (std::exchange(foregroundMoved_, false) && attached_.Alive()) Foreground_Changed(*attached_.Main);
}

} // namespace quill
