#include "persistence/text_values.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

namespace quill {

namespace {

constexpr std::string_view Blanks = " \t\r\n";
constexpr std::string_view UriHead = "file://";
constexpr double WholeLow = std::numeric_limits<std::int32_t>::min();
constexpr double WholeHigh = std::numeric_limits<std::int32_t>::max();

char Lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

bool IsWord(std::string_view text, std::string_view lowerCase) {
    return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(),
                      [](char a, char b) { return Lower(a) == b; });
}

// Most numbers in the files are short and whole.
std::optional<std::int32_t> ShortWhole(std::string_view text) {
    const bool negative = !text.empty() && text.front() == '-';
    const std::string_view digits = text.substr(negative ? 1 : 0);
    if (digits.empty() || digits.size() > 9) return std::nullopt;
    std::int32_t value = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9') return std::nullopt;
        value = value * 10 + (digit - '0');
    }
    return negative ? -value : value;
}

// What the library's reader leaves out: a sign "+", and "," as the decimal sign.
std::optional<double> LongNumber(std::string_view text) {
    char digits[64];
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    if (text.empty() || text.size() > sizeof digits) return std::nullopt;
    const char* const end = std::replace_copy(text.begin(), text.end(), digits, ',', '.');
    double value = 0;
    const auto [stop, error] = std::from_chars(digits, end, value);
    if (stop != end) return std::nullopt;
    if (error == std::errc::result_out_of_range)
        return text.find("e-") != text.npos || text.find("E-") != text.npos ? 0
               : text.front() == '-'                                        ? WholeLow
                                                                            : WholeHigh;
    if (error != std::errc() || !std::isfinite(value)) return std::nullopt;
    return std::clamp(value, WholeLow, WholeHigh);
}

std::uint64_t EightBytes(const char* at) {
    std::uint64_t bytes;
    std::memcpy(&bytes, at, sizeof bytes);
    return bytes;
}

constexpr std::uint64_t TopBits = 0x8080808080808080U;

bool AllAscii(std::uint64_t bytes) {
    return (bytes & TopBits) == 0;
}
// Of eight ASCII bytes: none below the blank and no 127.
bool NoControls(std::uint64_t bytes) {
    const std::uint64_t low = bytes + 0x6060606060606060U;  // top bit set from 0x20 up
    const std::uint64_t high = bytes + 0x0101010101010101U; // top bit set at 0x7F
    return (low & ~high & TopBits) == TopBits;
}

bool IsControl(char letter) {
    const auto byte = static_cast<unsigned char>(letter);
    return byte < 0x20 || byte == 0x7F;
}

bool IsPlain(std::string_view text) {
    std::size_t at = 0;
    for (; at + 8 <= text.size(); at += 8) {
        const std::uint64_t bytes = EightBytes(text.data() + at);
        if (!AllAscii(bytes) || !NoControls(bytes)) return false;
    }
    for (; at < text.size(); ++at)
        if (IsControl(text[at]) || static_cast<unsigned char>(text[at]) > 0x7F) return false;
    return true;
}

// Length of the well-formed letter at the front, 0 for none.
std::size_t LetterLength(std::string_view text) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return 1;
    const std::size_t length = lead >= 0xC2 && lead < 0xE0   ? 2
                               : lead >= 0xE0 && lead < 0xF0 ? 3
                               : lead >= 0xF0 && lead < 0xF5 ? 4
                                                             : 0;
    if (length == 0 || length > text.size()) return 0;
    for (std::size_t at = 1; at < length; ++at)
        if ((byte(at) & 0xC0) != 0x80) return 0;
    const bool overlong = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xF0 && byte(1) < 0x90);
    const bool surrogate = lead == 0xED && byte(1) > 0x9F;
    const bool beyond = lead == 0xF4 && byte(1) > 0x8F;
    return overlong || surrogate || beyond ? 0 : length;
}

// 0x80 to 0x9F; what has no letter there keeps its number.
constexpr char16_t Windows1252[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

void AppendLetter(std::string& out, char16_t letter) {
    if (letter < 0x80) {
        out += static_cast<char>(letter);
    } else if (letter < 0x800) {
        out += static_cast<char>(0xC0 | (letter >> 6));
        out += static_cast<char>(0x80 | (letter & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (letter >> 12));
        out += static_cast<char>(0x80 | ((letter >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (letter & 0x3F));
    }
}

bool NeedsUri(std::string_view path) {
    const bool blankEnds = Trimmed(path).size() != path.size();
    if (!IsPath(path) || (!blankEnds && IsPlain(path))) return false;
    return blankEnds || std::any_of(path.begin(), path.end(), IsControl) || !IsUtf8(path);
}

bool StandsInUri(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= '0' && letter <= '9') ||
           std::string_view("/-_.~@").find(letter) != std::string_view::npos;
}

int HexDigit(char letter) {
    if (letter >= '0' && letter <= '9') return letter - '0';
    const char lower = Lower(letter);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// Nothing when a "%" is not followed by two hexadecimal digits.
std::optional<std::string> PercentDecoded(std::string_view text) {
    std::string path;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '%') {
            path += text[at];
            continue;
        }
        const int high = at + 2 < text.size() ? HexDigit(text[at + 1]) : -1;
        const int low = at + 2 < text.size() ? HexDigit(text[at + 2]) : -1;
        if (high < 0 || low < 0) return std::nullopt;
        if (high + low == 0) return std::nullopt; // no path holds the byte 0
        path += static_cast<char>(high * 16 + low);
        at += 2;
    }
    return path;
}

} // namespace

bool IsPath(std::string_view text) {
    return text.starts_with('/') || text.starts_with('@');
}

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

std::optional<bool> ReadBoolean(std::string_view text) {
    text = Trimmed(text);
    if (text == "1") return true;
    if (text == "0") return false;
    if (IsWord(text, "true")) return true;
    if (IsWord(text, "false")) return false;
    const auto number = ReadNumber(text);
    return number ? std::optional(*number != 0) : std::nullopt;
}

std::optional<double> ReadNumber(std::string_view text) {
    text = Trimmed(text);
    if (const auto whole = ShortWhole(text)) return *whole;
    return LongNumber(text);
}

std::optional<std::int32_t> ReadWhole(std::string_view text) {
    text = Trimmed(text);
    if (const auto whole = ShortWhole(text)) return whole;
    const auto number = LongNumber(text);
    if (!number) return std::nullopt;
    return static_cast<std::int32_t>(std::clamp(std::round(*number), WholeLow, WholeHigh));
}

bool ReadValue(std::string_view text, bool& field) {
    const auto value = ReadBoolean(text);
    if (value) field = *value;
    return value.has_value();
}

bool ReadValue(std::string_view text, float& field) {
    const auto value = ReadNumber(text);
    if (value) field = static_cast<float>(*value);
    return value.has_value();
}

bool ReadValue(std::string_view text, std::string& field) {
    field = Trimmed(text);
    return true;
}

bool ReadValue(std::string_view text, std::string_view& field) {
    field = text;
    return true;
}

void AppendValue(std::string& out, bool value) {
    out += value ? '1' : '0';
}

void AppendValue(std::string& out, std::int32_t value) {
    char digits[16];
    out.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

void AppendValue(std::string& out, float value) {
    const bool whole =
        value >= -1e9F && value <= 1e9F && value == static_cast<float>(static_cast<std::int32_t>(value));
    if (whole) return AppendValue(out, static_cast<std::int32_t>(value));
    char digits[128];
    const double bounded = std::isnan(value) ? 0 : std::clamp<double>(value, WholeLow, WholeHigh);
    out.append(digits, std::to_chars(digits, digits + sizeof digits, static_cast<float>(bounded),
                                     std::chars_format::fixed)
                           .ptr);
}

void AppendValue(std::string& out, std::string_view value) {
    if (IsPlain(value)) {
        out.append(value);
        return;
    }
    const std::size_t start = out.size();
    if (IsUtf8(value))
        out.append(value);
    else
        AppendFromWindows1252(out, value);
    std::replace_if(out.begin() + static_cast<std::ptrdiff_t>(start), out.end(), IsControl, ' ');
}

void AppendTrimmed(std::string& out, std::string_view value) {
    const auto blank = [](char letter) { return letter == ' ' || IsControl(letter); };
    while (!value.empty() && blank(value.front())) value.remove_prefix(1);
    while (!value.empty() && blank(value.back())) value.remove_suffix(1);
    AppendValue(out, value);
}

bool IsUtf8(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        if (at + 8 <= text.size() && AllAscii(EightBytes(text.data() + at))) {
            at += 8;
            continue;
        }
        const std::size_t length = LetterLength(text.substr(at));
        if (length == 0) return false;
        at += length;
    }
    return true;
}

void AppendFromWindows1252(std::string& out, std::string_view text) {
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        AppendLetter(out, byte >= 0x80 && byte < 0xA0 ? Windows1252[byte - 0x80] : byte);
    }
}

void AppendPath(std::string& out, std::string_view path) {
    if (!NeedsUri(path)) return AppendValue(out, path);
    if (path.find('\0') != path.npos) {
        std::string cleaned(path);
        std::replace(cleaned.begin(), cleaned.end(), '\0', ' ');
        return AppendPath(out, cleaned);
    }
    constexpr char Hex[] = "0123456789ABCDEF";
    out += UriHead;
    for (const char letter : path) {
        const auto byte = static_cast<unsigned char>(letter);
        if (StandsInUri(letter))
            out += letter;
        else
            out.append({'%', Hex[byte >> 4], Hex[byte & 15]});
    }
}

// An address of this kind that a person typed for a path that a line can hold stays as it was typed.
std::string ReadPath(std::string_view stored) {
    if (!stored.starts_with(UriHead)) return std::string(stored);
    const auto path = PercentDecoded(stored.substr(UriHead.size()));
    return path && NeedsUri(*path) ? *path : std::string(stored);
}

} // namespace quill
