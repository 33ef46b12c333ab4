// KeyboardMap: which keys of the keyboard stand for a key of the hotkey table, and which bits of a key event
// for its modifiers, in the layouts that the X server has at the moment. Plain data and what is read from it.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

struct xcb_connection_t;

namespace quill::qt {

struct KeyboardMap {
    std::uint8_t First = 0;             // the key that Symbols begins with
    std::size_t PerKey = 0;             // symbols of one key; 0: nothing is known
    std::vector<std::uint32_t> Symbols; // plain and shifted in the first layout, the same in the second, more
    std::size_t PerModifier = 0;
    std::vector<std::uint8_t> Modifiers; // the keys of Shift, Lock, Control and Mod1 to Mod5; 0 is no key
};

KeyboardMap ReadKeyboard(xcb_connection_t* server);

// A key of the hotkey table, by its virtual code. Name is the one that the server's key symbols have.
struct HotkeyKey {
    int Code = 0;
    std::uint32_t Symbol = 0;
    std::string_view Name;
};
// Symbol 0: no such key.
HotkeyKey KeyOfCode(int code);

// All keys that give the symbol in the first two layouts; else those that give it with Shift or in any other
// way; else, where no layout has it, as with one that is not Latin, the key at its usual place.
std::vector<std::uint8_t> KeysOf(const KeyboardMap& keyboard, std::uint32_t symbol);

// A sum of HotkeyModifiers as the bits of a key event.
std::uint16_t MaskOf(const KeyboardMap& keyboard, int modifiers);
// The bits of the keys that stay on by themselves: Caps Lock, Num Lock, Scroll Lock.
std::uint16_t LocksOf(const KeyboardMap& keyboard);

} // namespace quill::qt
