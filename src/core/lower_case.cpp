#include "core/lower_case.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace quill {
namespace {

// A run of upper-case letters and how its lower-case ones are found: by a distance, or, with Step 2, each by
// the letter behind it.
struct Run {
    std::uint32_t First, Last;
    std::int32_t Distance;
    std::uint32_t Step;
};

constexpr Run runs[] = {
    {0x41, 0x5A, 32, 1},     {0xC0, 0xD6, 32, 1},        {0xD8, 0xDE, 32, 1},
    {0x100, 0x12E, 1, 2},    {0x132, 0x136, 1, 2},       {0x139, 0x147, 1, 2},
    {0x14A, 0x176, 1, 2},    {0x178, 0x178, -121, 1},    {0x179, 0x17D, 1, 2},
    {0x1CD, 0x1DB, 1, 2},    {0x1DE, 0x1EE, 1, 2},       {0x1F8, 0x21E, 1, 2},
    {0x222, 0x232, 1, 2},    {0x386, 0x386, 38, 1},      {0x388, 0x38A, 37, 1},
    {0x38C, 0x38C, 64, 1},   {0x38E, 0x38F, 63, 1},      {0x391, 0x3A1, 32, 1},
    {0x3A3, 0x3AB, 32, 1},   {0x3D8, 0x3EE, 1, 2},       {0x400, 0x40F, 80, 1},
    {0x410, 0x42F, 32, 1},   {0x460, 0x480, 1, 2},       {0x48A, 0x4BE, 1, 2},
    {0x4C0, 0x4C0, 15, 1},   {0x4C1, 0x4CD, 1, 2},       {0x4D0, 0x52E, 1, 2},
    {0x531, 0x556, 48, 1},   {0x10A0, 0x10C5, 7264, 1},  {0x1C90, 0x1CBA, -3008, 1},
    {0x1E00, 0x1E94, 1, 2},  {0x1E9E, 0x1E9E, -7615, 1}, {0x1EA0, 0x1EFE, 1, 2},
    {0x1F08, 0x1F0F, -8, 1}, {0x1F18, 0x1F1D, -8, 1},    {0x1F28, 0x1F2F, -8, 1},
    {0x1F38, 0x1F3F, -8, 1}, {0x1F48, 0x1F4D, -8, 1},    {0x1F68, 0x1F6F, -8, 1},
    {0x24B6, 0x24CF, 26, 1}, {0xFF21, 0xFF3A, 32, 1},    {0x10400, 0x10427, 40, 1},
};

std::uint32_t Lower(std::uint32_t letter) {
    const auto run = std::ranges::lower_bound(runs, letter, {}, &Run::Last);
    if (run == std::end(runs) || letter < run->First || (letter - run->First) % run->Step != 0) return letter;
    return letter + static_cast<std::uint32_t>(run->Distance);
}

// Bytes of the sequence that begins here, 1 for what is none.
std::size_t LengthAt(std::string_view text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    const std::size_t length = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 1;
    if (at + length > text.size()) return 1;
    for (std::size_t next = 1; next < length; ++next) {
        if ((static_cast<unsigned char>(text[at + next]) & 0xC0) != 0x80) return 1;
    }
    return length;
}

std::uint32_t Decode(std::string_view sequence) {
    std::uint32_t letter = static_cast<unsigned char>(sequence[0]) & (0xFFU >> (sequence.size() + 1));
    for (std::size_t at = 1; at < sequence.size(); ++at) {
        letter = (letter << 6) | (static_cast<unsigned char>(sequence[at]) & 0x3FU);
    }
    return letter;
}

void Append(std::string& text, std::uint32_t letter) {
    const auto tail = [&](int shift) { text += static_cast<char>(0x80U | ((letter >> shift) & 0x3FU)); };
    if (letter < 0x80) {
        text += static_cast<char>(letter);
    } else if (letter < 0x800) {
        text += static_cast<char>(0xC0U | (letter >> 6));
        tail(0);
    } else if (letter < 0x10000) {
        text += static_cast<char>(0xE0U | (letter >> 12));
        tail(6), tail(0);
    } else {
        text += static_cast<char>(0xF0U | (letter >> 18));
        tail(12), tail(6), tail(0);
    }
}

} // namespace

std::string LowerCase(std::string_view utf8) {
    std::string lower;
    lower.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const auto length = LengthAt(utf8, at);
        const auto byte = static_cast<unsigned char>(utf8[at]);
        if (length > 1)
            Append(lower, Lower(Decode(utf8.substr(at, length))));
        else
            lower += static_cast<char>(byte < 0x80 ? Lower(byte) : byte);
        at += length;
    }
    return lower;
}

} // namespace quill
