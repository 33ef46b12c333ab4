#include "qt/dock/key_grab.h"

#include "qt/dock/keyboard_hold.h"
#include "qt/dock/keyboard_map.h"
#include "qt/dock/x11.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <qguiapplication_platform.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace quill::qt {
namespace {

constexpr std::string_view keyboardExtension = "XKEYBOARD";
constexpr std::uint8_t lastKeymapNotice = 1; // of the extension's: a new keyboard, a new map
constexpr std::uint32_t longestPause = 2000; // milliseconds between two words of a key that is held

xcb_connection_t* Server() {
    if (!x11::IsPresent()) return nullptr;
    return qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

std::uint8_t KeyboardEvent(xcb_connection_t* server) {
    const auto asked = xcb_query_extension(server, keyboardExtension.size(), keyboardExtension.data());
    const std::unique_ptr<xcb_query_extension_reply_t, decltype(&std::free)> answer(
        xcb_query_extension_reply(server, asked, nullptr), &std::free);
    return answer && answer->present ? answer->first_event : 0;
}

// What is grabbed: each of the keys with the modifiers, and with each of the locks beside them.
struct Wanted {
    std::vector<std::uint8_t> Keys;
    std::uint16_t Mask = 0;
    std::uint16_t Locks = 0;

    bool operator==(const Wanted&) const = default;
};

Wanted WantedNow(xcb_connection_t* server, int modifiers, std::uint32_t symbol) {
    const KeyboardMap keyboard = ReadKeyboard(server);
    const std::uint16_t mask = MaskOf(keyboard, modifiers);
    return {KeysOf(keyboard, symbol), mask, static_cast<std::uint16_t>(LocksOf(keyboard) & ~mask)};
}

// All subsets of the locks, none first.
template <class Action> void ForEachMask(const Wanted& wanted, Action action) {
    std::uint16_t locks = 0;
    do {
        for (const std::uint8_t key : wanted.Keys)
            action(key, static_cast<std::uint16_t>(wanted.Mask | locks));
        locks = static_cast<std::uint16_t>((locks - wanted.Locks) & wanted.Locks);
    } while (locks != 0);
}

void Release(xcb_connection_t* server, const Wanted& wanted) {
    ForEachMask(wanted, [server](std::uint8_t key, std::uint16_t mask) {
        xcb_ungrab_key(server, key, x11::Root(), mask);
    });
    xcb_flush(server);
}

// All or nothing. With the press the server keeps further keys back until it is told where they go, so that
// none slips by while this program is about to hear of it.
bool Grab(xcb_connection_t* server, const Wanted& wanted) {
    std::vector<xcb_void_cookie_t> asked;
    ForEachMask(wanted, [&](std::uint8_t key, std::uint16_t mask) {
        asked.push_back(
            xcb_grab_key_checked(server, 0, x11::Root(), mask, key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC));
    });
    bool all = !asked.empty();
    for (const xcb_void_cookie_t& request : asked) {
        const std::unique_ptr<xcb_generic_error_t, decltype(&std::free)> error(
            xcb_request_check(server, request), &std::free);
        all = all && !error;
    }
    if (!all) Release(server, wanted);
    return all;
}

// Tells the first press from those by which a key that is held repeats itself: these come behind a release of
// the same moment, or behind none.
class HeldKey {
public:
    bool IsFirstPress(std::uint8_t key, std::uint32_t time) {
        const bool repeats = key == key_ && (down_ ? time - last_ < longestPause : time == last_);
        key_ = key, last_ = time, down_ = true;
        return !repeats;
    }
    bool IsRelease(std::uint8_t key, std::uint32_t time) {
        if (!down_ || key != key_) return false;
        last_ = time, down_ = false;
        return true;
    }

private:
    std::uint8_t key_ = 0;
    std::uint32_t last_ = 0;
    bool down_ = false;
};

} // namespace

class KeyGrab::Grabber final : public QObject, public QAbstractNativeEventFilter {
public:
    Grabber(xcb_connection_t* server, const Listener& listener)
        : server_(server), listener_(listener), hold_(server, listener.Window),
          keyboardEvent_(KeyboardEvent(server)) {}
    ~Grabber() override { Release(server_, held_); }

    Status Hold(int modifiers, std::uint32_t symbol) {
        modifiers_ = modifiers, symbol_ = symbol;
        const Wanted wanted = WantedNow(server_, modifiers, symbol);
        if (wanted.Keys.empty()) return Failure{Reason::Refused, "No key of this keyboard is that one."};
        if (!Grab(server_, wanted)) return Failure{Reason::Refused, "Another program holds this key."};
        held_ = wanted;
        again_.setSingleShot(true);
        connect(&again_, &QTimer::timeout, this, [this] { HoldAgain(); });
        qApp->installNativeEventFilter(this);
        return {};
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        auto* event = static_cast<xcb_generic_event_t*>(message);
        const auto kind = static_cast<std::uint8_t>(event->response_type & 0x7f);
        if (kind == XCB_KEY_PRESS) return Pressed(*reinterpret_cast<xcb_key_press_event_t*>(event));
        if (kind == XCB_KEY_RELEASE) return Released(*reinterpret_cast<xcb_key_release_event_t*>(event));
        if (kind == XCB_FOCUS_IN) hold_.FocusCame(*reinterpret_cast<const xcb_focus_in_event_t*>(event));
        if (TellsOfKeyboard(*event)) again_.start();
        return false;
    }

private:
    // The extension says in the second byte what it tells of.
    bool TellsOfKeyboard(const xcb_generic_event_t& event) const {
        const auto kind = static_cast<std::uint8_t>(event.response_type & 0x7f);
        if (kind == XCB_MAPPING_NOTIFY) return true;
        return keyboardEvent_ != 0 && kind == keyboardEvent_ && event.pad0 <= lastKeymapNotice;
    }

    bool IsHotkey(const xcb_key_press_event_t& event) const {
        constexpr std::uint16_t modifierBits = 0xff;
        const auto state = static_cast<std::uint16_t>(event.state & modifierBits & ~held_.Locks);
        return state == held_.Mask && std::ranges::find(held_.Keys, event.detail) != held_.Keys.end();
    }

    // While the keyboard is held, the key comes to whichever window of ours has it; it is no key of that
    // window.
    bool Pressed(xcb_key_press_event_t& event) {
        if (!IsHotkey(event)) {
            hold_.Take(event, true);
            return false;
        }
        if (key_.IsFirstPress(event.detail, event.time))
            TellPress(event.time);
        else
            LetKeysOn();
        return event.event != event.root;
    }

    // The listener may do what it likes, the keyboard is no longer kept back; it may even give the key up.
    void TellPress(std::uint32_t time) {
        hold_.Begin(time);
        const QPointer<QObject> alive(this);
        const bool comesOut = listener_.Pressed();
        if (!alive) return;
        if (comesOut)
            hold_.Follow();
        else
            hold_.LetGo();
    }

    void LetKeysOn() {
        xcb_allow_events(server_, XCB_ALLOW_ASYNC_KEYBOARD, XCB_CURRENT_TIME);
        xcb_flush(server_);
    }

    bool Released(xcb_key_release_event_t& event) {
        if (key_.IsRelease(event.detail, event.time)) {
            hold_.HotkeyUp();
            return event.event != event.root;
        }
        hold_.Take(event, false);
        return false;
    }

    // The keys are elsewhere now. Another program may have those: then nothing is held until the next change.
    void HoldAgain() {
        const Wanted wanted = WantedNow(server_, modifiers_, symbol_);
        if (wanted == held_) return;
        Release(server_, held_);
        held_ = Grab(server_, wanted) ? wanted : Wanted{};
    }

    xcb_connection_t* server_;
    const Listener& listener_;
    KeyboardHold hold_;
    std::uint8_t keyboardEvent_; // 0: the server has no such extension
    int modifiers_ = 0;
    std::uint32_t symbol_ = 0;
    Wanted held_;
    HeldKey key_;
    QTimer again_; // one change of the keyboard is told in many notices
};

KeyGrab::KeyGrab(Listener listener) : listener_(std::move(listener)) {}
KeyGrab::~KeyGrab() = default;

void KeyGrab::GiveUp() {
    grabber_.reset();
}

Status KeyGrab::Hold(int modifiers, int code) {
    grabber_.reset();
    xcb_connection_t* server = Server();
    if (server == nullptr) return {};
    const HotkeyKey key = KeyOfCode(code);
    if (key.Symbol == 0) return Failure{Reason::Refused, "No key has this code."};
    auto grabber = std::make_unique<Grabber>(server, listener_);
    const Status held = grabber->Hold(modifiers, key.Symbol);
    if (held) grabber_ = std::move(grabber);
    return held;
}

} // namespace quill::qt
