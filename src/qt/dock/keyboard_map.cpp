#include "qt/dock/keyboard_map.h"

#include "platform/hotkeys.h"

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <memory>

namespace quill::qt {
namespace {

template <class T> using Reply = std::unique_ptr<T, decltype(&std::free)>;

constexpr std::uint32_t numLock = 0xff7f, scrollLock = 0xff14;
constexpr std::size_t modifierCount = 8,
                      firstFreeModifier = 3; // Mod1; what Mod1 to Mod5 mean is up to the map

constexpr HotkeyKey namedKeys[] = {{32, ' ', "space"},
                                   {37, 0xff51, "Left"},
                                   {38, 0xff52, "Up"},
                                   {39, 0xff53, "Right"},
                                   {40, 0xff54, "Down"}};
constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz", digits = "0123456789";

// Where the keys of Latin letters and digits are on nearly every keyboard.
struct Row {
    std::uint8_t First;
    std::string_view Symbols;
};
constexpr Row rows[] = {{10, "1234567890"}, {24, "qwertyuiop"}, {38, "asdfghjkl"}, {52, "zxcvbnm"}};

HotkeyKey KeyIn(std::string_view symbols, int code, int first) {
    const auto place = static_cast<std::size_t>(code - first);
    return {code, static_cast<unsigned char>(symbols[place]), symbols.substr(place, 1)};
}

std::size_t KeyCount(const KeyboardMap& keyboard) {
    return keyboard.PerKey == 0 ? 0 : keyboard.Symbols.size() / keyboard.PerKey;
}

bool GivesIn(const KeyboardMap& keyboard, std::size_t key, std::size_t column, std::uint32_t symbol) {
    return column < keyboard.PerKey && keyboard.Symbols[key * keyboard.PerKey + column] == symbol;
}

std::vector<std::uint8_t> KeysWhere(const KeyboardMap& keyboard, auto gives) {
    std::vector<std::uint8_t> found;
    for (std::size_t key = 0; key < KeyCount(keyboard); ++key)
        if (gives(key)) found.push_back(static_cast<std::uint8_t>(keyboard.First + key));
    return found;
}

std::vector<std::uint8_t> KeyByPlace(std::uint32_t symbol) {
    for (const Row& row : rows)
        if (const auto place = row.Symbols.find(static_cast<char>(symbol));
            symbol < 0x80 && place != row.Symbols.npos)
            return {static_cast<std::uint8_t>(row.First + place)};
    return {};
}

bool IsKeyOf(const KeyboardMap& keyboard, std::uint8_t key, std::initializer_list<std::uint32_t> symbols) {
    if (key < keyboard.First || static_cast<std::size_t>(key - keyboard.First) >= KeyCount(keyboard))
        return false;
    const auto first =
        keyboard.Symbols.begin() + static_cast<std::ptrdiff_t>((key - keyboard.First) * keyboard.PerKey);
    return std::any_of(first, first + static_cast<std::ptrdiff_t>(keyboard.PerKey),
                       [&](std::uint32_t symbol) {
                           return std::find(symbols.begin(), symbols.end(), symbol) != symbols.end();
                       });
}

// The bit of the first free modifier that one of the symbols is a key of; 0 when there is none.
std::uint16_t BitOf(const KeyboardMap& keyboard, std::initializer_list<std::uint32_t> symbols) {
    for (std::size_t modifier = firstFreeModifier; modifier < modifierCount; ++modifier)
        for (std::size_t place = 0; place < keyboard.PerModifier; ++place)
            if (IsKeyOf(keyboard, keyboard.Modifiers[modifier * keyboard.PerModifier + place], symbols))
                return static_cast<std::uint16_t>(1u << modifier);
    return 0;
}

// Alt, else Meta, else where they are by custom.
std::uint16_t AltBit(const KeyboardMap& keyboard) {
    if (const auto bit = BitOf(keyboard, {0xffe9, 0xffea})) return bit;
    const auto bit = BitOf(keyboard, {0xffe7, 0xffe8});
    return bit != 0 ? bit : static_cast<std::uint16_t>(XCB_MOD_MASK_1);
}

std::uint16_t SuperBit(const KeyboardMap& keyboard) {
    const auto bit = BitOf(keyboard, {0xffeb, 0xffec});
    return bit != 0 ? bit : static_cast<std::uint16_t>(XCB_MOD_MASK_4);
}

} // namespace

KeyboardMap ReadKeyboard(xcb_connection_t* server) {
    const xcb_setup_t& setup = *xcb_get_setup(server);
    const auto count = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);
    const auto askedKeys = xcb_get_keyboard_mapping(server, setup.min_keycode, count);
    const auto askedModifiers = xcb_get_modifier_mapping(server);
    const Reply<xcb_get_keyboard_mapping_reply_t> keys(
        xcb_get_keyboard_mapping_reply(server, askedKeys, nullptr), &std::free);
    const Reply<xcb_get_modifier_mapping_reply_t> modifiers(
        xcb_get_modifier_mapping_reply(server, askedModifiers, nullptr), &std::free);
    if (!keys || !modifiers) return {};
    const auto* symbols = xcb_get_keyboard_mapping_keysyms(keys.get());
    const auto* codes = xcb_get_modifier_mapping_keycodes(modifiers.get());
    return {setup.min_keycode,
            keys->keysyms_per_keycode,
            {symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(keys.get())},
            modifiers->keycodes_per_modifier,
            {codes, codes + xcb_get_modifier_mapping_keycodes_length(modifiers.get())}};
}

HotkeyKey KeyOfCode(int code) {
    if (code >= 'A' && code <= 'Z') return KeyIn(letters, code, 'A');
    if (code >= '0' && code <= '9') return KeyIn(digits, code, '0');
    for (const HotkeyKey& key : namedKeys)
        if (key.Code == code) return key;
    return {};
}

std::vector<std::uint8_t> KeysOf(const KeyboardMap& keyboard, std::uint32_t symbol) {
    const auto in = [&](std::size_t key, std::size_t column) {
        return GivesIn(keyboard, key, column, symbol);
    };
    auto found = KeysWhere(keyboard, [&](std::size_t key) { return in(key, 0) || in(key, 2); });
    if (!found.empty()) return found;
    found = KeysWhere(keyboard, [&](std::size_t key) {
        for (std::size_t column = 0; column < keyboard.PerKey; ++column)
            if (in(key, column)) return true;
        return false;
    });
    return found.empty() ? KeyByPlace(symbol) : found;
}

std::uint16_t MaskOf(const KeyboardMap& keyboard, int modifiers) {
    std::uint16_t mask = 0;
    if (modifiers & ModAlt) mask |= AltBit(keyboard);
    if (modifiers & ModControl) mask |= XCB_MOD_MASK_CONTROL;
    if (modifiers & ModShift) mask |= XCB_MOD_MASK_SHIFT;
    if (modifiers & ModWin) mask |= SuperBit(keyboard);
    return mask;
}

std::uint16_t LocksOf(const KeyboardMap& keyboard) {
    return static_cast<std::uint16_t>(XCB_MOD_MASK_LOCK | BitOf(keyboard, {numLock}) |
                                      BitOf(keyboard, {scrollLock}));
}

} // namespace quill::qt
