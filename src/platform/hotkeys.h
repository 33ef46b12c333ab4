// Hotkeys: one key of the whole desktop. A press comes back as Hotkey_Pressed (core/handlers.h), once however
// long it is held.
#pragma once

#include "platform/result.h"

namespace quill {

enum HotkeyModifiers { ModAlt = 1, ModControl = 2, ModShift = 4, ModWin = 8 };

class Hotkeys {
public:
    virtual ~Hotkeys() = default;

    // modifiers: a sum of HotkeyModifiers; key: a virtual key code. Takes the place of the one before it.
    // Refused: another program has it, and nothing is held. In a session that gives programs no keys, the
    // desktop is asked to bind it, whose answer is not waited for.
    virtual Status RegisterHotKey(int modifiers, int key) = 0;
    virtual void UnregisterHotKey() = 0;
};

} // namespace quill
