#include "keyboard/typed_key.h"

#include "core/frmMain.h"
#include "core/lower_case.h"
#include "keyboard/jump_to.h"
#include "shortcuts/speed_launch.h"

#include <algorithm>

namespace quill {
namespace {

constexpr int keyPlus = 187, keySlash = 191;

// What a letter is not, of all that lies beyond ASCII: signs, marks, punctuation, pictures.
struct SignRun {
    std::uint32_t First, Last;
};
constexpr SignRun signs[] = {
    {0x80, 0xA9},       {0xAB, 0xB4},        {0xB6, 0xB9},     {0xBB, 0xBF},     {0xD7, 0xD7},
    {0xF7, 0xF7},       {0x2B0, 0x36F},      {0x2000, 0x20FF}, {0x2190, 0x2BFF}, {0x2E00, 0x2E7F},
    {0x3000, 0x3004},   {0x3008, 0x3020},    {0xD800, 0xF8FF}, {0xFE00, 0xFE4F}, {0xFF00, 0xFF0F},
    {0xFF1A, 0xFF20},   {0xFF3B, 0xFF40},    {0xFF5B, 0xFF65}, {0xFFE0, 0xFFFF}, {0x1D000, 0x1D3FF},
    {0x1F000, 0x1FAFF}, {0xE0000, 0x10FFFF},
};

bool IsAsciiLetter(int code) {
    return (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
}
bool IsDigit(int code) {
    return code >= '0' && code <= '9';
}

// 0xFFFFFFFF where the text does not begin with a whole letter.
std::uint32_t FirstCodePoint(std::string_view text) {
    constexpr std::uint32_t none = 0xFFFFFFFF;
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (length == 0 || length > text.size() || lead > 0xF4) return none;
    std::uint32_t letter = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (std::size_t at = 1; at < length; ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        if ((byte & 0xC0) != 0x80) return none;
        letter = (letter << 6) | (byte & 0x3FU);
    }
    return letter;
}

bool BeginsWithLetter(std::string_view text) {
    const auto letter = FirstCodePoint(text);
    if (letter < 0x80) return IsAsciiLetter(static_cast<int>(letter));
    const auto run = std::ranges::lower_bound(signs, letter, {}, &SignRun::Last);
    return letter <= 0x10FFFF && (run == std::end(signs) || letter < run->First);
}

// What a key types, also where only its code is told.
std::string TextOf(const KeyEvent& event) {
    if (!event.Text.empty()) return event.Text;
    if (event.Code == '1' && event.Shift) return "!";
    if (IsAsciiLetter(event.Code) || (IsDigit(event.Code) && !event.Shift))
        return std::string(1, static_cast<char>(event.Code));
    if (event.Shift) return {};
    return event.Code == keyPlus ? "=" : event.Code == keySlash ? "/" : "";
}

bool OpenWith(frmMain& Main, const std::string& text) {
    ShowPicJumpTo(Main, LowerCase(text), true, false);
    return true;
}

bool Digit(frmMain& Main, char digit) {
    const std::string text(1, digit);
    if (!Main.Settings.CalcOrSpeedLaunch) return OpenWith(Main, "=" + text);
    return SpeedLaunchKey(Main, digit) || OpenWith(Main, text);
}

bool IsPutAway(const frmMain& Main) {
    return Main.Dock.Hidden || Main.Dock.DockPosition != 0;
}

bool PlainKey(frmMain& Main, const std::string& text) {
    if (text.empty()) return false;
    if (text == "!") return ShowHistory(Main), true;
    if (text == "/") return ShowSpeedLaunch(Main), true;
    if (text.size() == 1 && IsDigit(text[0])) return Digit(Main, text[0]);
    return (text == "=" || BeginsWithLetter(text)) && OpenWith(Main, text);
}

} // namespace

// A digit with Ctrl is for Speed Launch where one without it is for the calculator.
bool TypedKey(frmMain& Main, const KeyEvent& event) {
    if (Main.IsLoading || Main.IsExiting || IsPutAway(Main) || event.Alt) return false;
    if (event.Ctrl)
        return !event.Shift && !Main.Settings.CalcOrSpeedLaunch && SpeedLaunchKey(Main, event.Code);
    return !event.InTextField && PlainKey(Main, TextOf(event));
}

} // namespace quill
