#include "shortcuts/foreign_text.h"

#include "core/lower_case.h"

#include "persistence/line_reader.h"
#include "persistence/text_values.h"

#include <algorithm>
#include <cstdint>

namespace quill {
namespace {

constexpr std::uint32_t unreadable = 0xFFFD;

void AppendLetter(std::string& out, std::uint32_t letter) {
    const auto rest = [](std::uint32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (letter < 0x80)
        out += static_cast<char>(letter);
    else if (letter < 0x800)
        out.append({static_cast<char>(0xC0 | letter >> 6), rest(letter)});
    else if (letter < 0x10000)
        out.append({static_cast<char>(0xE0 | letter >> 12), rest(letter >> 6), rest(letter)});
    else
        out.append(
            {static_cast<char>(0xF0 | letter >> 18), rest(letter >> 12), rest(letter >> 6), rest(letter)});
}

bool IsHighHalf(std::uint32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowHalf(std::uint32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

std::string WithLineFeeds(std::string_view text) {
    std::string lines;
    lines.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool paired = text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
        if (!paired) lines += text[at] == '\r' ? '\n' : text[at];
    }
    return lines;
}

} // namespace

std::string FromUtf16(std::string_view bytes, ByteOrder order) {
    const std::size_t count = bytes.size() / 2;
    const auto unit = [&](std::size_t at) -> std::uint32_t {
        const auto first = static_cast<unsigned char>(bytes[2 * at]);
        const auto second = static_cast<unsigned char>(bytes[2 * at + 1]);
        return order == ByteOrder::LowFirst ? first | second << 8U : second | first << 8U;
    };
    std::string text;
    text.reserve(count);
    for (std::size_t at = 0; at < count; ++at) {
        const std::uint32_t one = unit(at);
        const bool pair = IsHighHalf(one) && at + 1 < count && IsLowHalf(unit(at + 1));
        if (pair)
            AppendLetter(text, 0x10000 + ((one - 0xD800) << 10) + (unit(++at) - 0xDC00));
        else
            AppendLetter(text, IsHighHalf(one) || IsLowHalf(one) ? unreadable : one);
    }
    return text;
}

std::string FromWindows1252(std::string_view bytes) {
    std::string text;
    AppendFromWindows1252(text, bytes);
    return text;
}

std::string FromTextFile(std::string_view bytes) {
    constexpr std::string_view lowFirst = "\xFF\xFE", highFirst = "\xFE\xFF", utf8 = "\xEF\xBB\xBF";
    if (bytes.starts_with(lowFirst)) return WithLineFeeds(FromUtf16(bytes.substr(2), ByteOrder::LowFirst));
    if (bytes.starts_with(highFirst)) return WithLineFeeds(FromUtf16(bytes.substr(2), ByteOrder::HighFirst));
    if (bytes.starts_with(utf8)) bytes.remove_prefix(utf8.size());
    std::string text = WithLineFeeds(bytes);
    PrepareText(text);
    return text;
}

std::string ShownLine(std::string_view text) {
    std::string line;
    AppendValue(line, text);
    return line;
}

std::string_view TakeLine(std::string_view& rest) {
    const auto end = rest.find('\n');
    const auto line = rest.substr(0, end);
    rest.remove_prefix(end == rest.npos ? rest.size() : end + 1);
    return WithoutBlanks(line);
}

std::string_view WithoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto first = text.find_first_not_of(blanks);
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool EndsInAnyCase(std::string_view text, std::string_view lowerEnding) {
    return text.size() >= lowerEnding.size() &&
           SameInAnyCase(text.substr(text.size() - lowerEnding.size()), lowerEnding);
}

bool SameInAnyCase(std::string_view text, std::string_view lower) {
    return std::ranges::equal(text, lower, {}, LowerAscii);
}

} // namespace quill
