#include "core/name_order.h"

#include "core/lower_case.h"

#include <string>

namespace quill {
namespace {

// The letters below the accents from U+00DF to U+017F; "." has none.
constexpr std::string_view letters = "s"
                                     "aaaaaaaceeeeiiii"
                                     "dnooooo.ouuuuy.y"
                                     "aaaaaaccccccccddddeeeeeeeeeegggg"
                                     "gggghhhhiiiiiiiiiiiijjkkklllllll"
                                     "lllnnnnnnnnnoooooooorrrrrrssssss"
                                     "ssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
constexpr unsigned firstLetter = 0xDF, endOfLetters = 0x180;
constexpr unsigned firstMark = 0x300, endOfMarks = 0x370; // accents that stand behind their letter
static_assert(letters.size() == endOfLetters - firstLetter);

// The code of the two bytes that begin a text, where it has that form.
unsigned PairAt(std::string_view text) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const bool pair = text.size() > 1 && byte(0) >= 0xC3 && byte(0) < 0xE0 && (byte(1) & 0xC0) == 0x80;
    return pair ? (byte(0) & 0x1FU) << 6 | (byte(1) & 0x3FU) : 0;
}

std::string WithoutAccents(std::string_view text) {
    std::string bare;
    while (!text.empty()) {
        const unsigned code = PairAt(text);
        const bool mark = code >= firstMark && code < endOfMarks;
        const bool letter = code >= firstLetter && code < endOfLetters && letters[code - firstLetter] != '.';
        if (letter)
            bare += letters[code - firstLetter];
        else if (!mark)
            bare += text.substr(0, code ? 2 : 1);
        text.remove_prefix(code ? 2 : 1);
    }
    return bare;
}

bool IsDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

// The digits at the front of a text, taken off it, without their leading zeros.
std::string_view TakeNumber(std::string_view& text) {
    std::size_t length = 0;
    while (length < text.size() && IsDigit(text[length])) ++length;
    auto number = text.substr(0, length);
    text.remove_prefix(length);
    while (!number.empty() && number.front() == '0') number.remove_prefix(1);
    return number;
}

int CompareNumbers(std::string_view first, std::string_view second) {
    if (first.size() != second.size()) return first.size() < second.size() ? -1 : 1;
    return first.compare(second);
}

// UTF-8 orders its bytes, taken as unsigned, as it orders its letters.
int CompareLetters(std::string_view& first, std::string_view& second) {
    const auto one = static_cast<unsigned char>(first.front());
    const auto other = static_cast<unsigned char>(second.front());
    first.remove_prefix(1);
    second.remove_prefix(1);
    return one == other ? 0 : one < other ? -1 : 1;
}

int CompareParts(std::string_view first, std::string_view second) {
    while (!first.empty() && !second.empty()) {
        const bool numbers = IsDigit(first.front()) && IsDigit(second.front());
        const int order =
            numbers ? CompareNumbers(TakeNumber(first), TakeNumber(second)) : CompareLetters(first, second);
        if (order != 0) return order;
    }
    return first.empty() == second.empty() ? 0 : first.empty() ? -1 : 1;
}

} // namespace

int CompareNames(std::string_view first, std::string_view second) {
    const auto one = LowerCase(first), other = LowerCase(second);
    const int order = CompareParts(WithoutAccents(one), WithoutAccents(other));
    return order != 0 ? order : CompareParts(one, other);
}

} // namespace quill
