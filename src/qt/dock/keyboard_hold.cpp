#include "qt/dock/keyboard_hold.h"

#include "qt/dock/x11.h"

#include <xcb/xcb.h>

namespace quill::qt {
namespace {

constexpr int longest = 500; // milliseconds

} // namespace

KeyboardHold::KeyboardHold(xcb_connection_t* server, std::function<std::uint32_t()> receiver)
    : server_(server), receiver_(std::move(receiver)) {
    limit_.setSingleShot(true);
    limit_.setInterval(longest);
    QObject::connect(&limit_, &QTimer::timeout, &limit_, [this] { LetGo(); });
}

KeyboardHold::~KeyboardHold() {
    End();
}

// The grab by the hotkey ends with its key, and this one takes its place in between. Its answer is not waited
// for: the only program that could be in the way is this one.
void KeyboardHold::Begin(std::uint32_t time) {
    const auto asked =
        xcb_grab_keyboard(server_, 1, x11::Root(), time, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    xcb_discard_reply(server_, asked.sequence);
    xcb_allow_events(server_, XCB_ALLOW_ASYNC_KEYBOARD, XCB_CURRENT_TIME);
    xcb_flush(server_);
    held_ = keyDown_ = true;
    limit_.start();
}

void KeyboardHold::Follow() {
    following_ = held_;
}

void KeyboardHold::LetGo() {
    following_ = false;
    if (!keyDown_) End();
}

void KeyboardHold::HotkeyUp() {
    keyDown_ = false;
    if (!following_) End();
}

void KeyboardHold::Take(xcb_key_press_event_t& event, bool isPress) {
    if (event.event != event.root) return;
    const bool mine = isPress ? following_ : turned_.contains(event.detail);
    if (isPress && mine) turned_.insert(event.detail);
    if (!isPress) turned_.erase(event.detail);
    if (const auto window = receiver_(); mine && window != 0) event.event = window;
}

// A grab that comes or goes is told as focus as well.
void KeyboardHold::FocusCame(const xcb_focus_in_event_t& event) {
    const bool isReal = event.mode == XCB_NOTIFY_MODE_NORMAL || event.mode == XCB_NOTIFY_MODE_WHILE_GRABBED;
    if (following_ && isReal && event.detail != XCB_NOTIFY_DETAIL_POINTER) LetGo();
}

void KeyboardHold::End() {
    limit_.stop();
    if (!held_) return;
    held_ = following_ = false;
    turned_.clear();
    xcb_ungrab_keyboard(server_, XCB_CURRENT_TIME);
    xcb_flush(server_);
}

} // namespace quill::qt
