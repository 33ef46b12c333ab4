// KeyGrab: one key of the X server for this program alone, whatever window has the keyboard and whatever lock
// is on. It follows the keyboard when its layout changes. A press is told once, however long the key is held,
// and what is typed behind it is kept for the window that it calls (keyboard_hold.h).
#pragma once

#include "platform/result.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace quill::qt {

class KeyGrab {
public:
    struct Listener {
        std::function<bool()> Pressed;         // true: a window comes out and is about to get the keyboard
        std::function<std::uint32_t()> Window; // the server's number of that window
    };

    explicit KeyGrab(Listener listener);
    ~KeyGrab(); // gives the key back

    // A sum of HotkeyModifiers and a virtual key code. Refused: another program has it, or no key of this
    // keyboard is it; nothing is held then. Where there is no X server, nothing is held and nothing is wrong.
    Status Hold(int modifiers, int code);
    void GiveUp();

private:
    class Grabber;
    Listener listener_;
    std::unique_ptr<Grabber> grabber_;
};

} // namespace quill::qt
