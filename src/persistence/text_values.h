// Text values: how a single value stands in a line of our files, in both directions. Free of the locale, and
// lenient in reading as files of other platforms ask for: blanks around numbers, "," as the decimal sign,
// every form of a truth value. Knows nothing of keys, tags and files.
#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace quill {

// Blanks, tabs and line ends off both ends.
std::string_view Trimmed(std::string_view text);

// "1", "0", "-1" and every other number, "True", "False" in any case. Nothing: no truth value.
std::optional<bool> ReadBoolean(std::string_view text);
// A finite decimal number. Larger ones than a 32-bit number holds end at its bounds. Nothing: no number.
std::optional<double> ReadNumber(std::string_view text);
// Rounded to nearest, a fraction of one half away from 0.
std::optional<std::int32_t> ReadWhole(std::string_view text);

// One overload a type of field, for the tables of keys and tags. False: not readable, the field is as before.
// A whole number beyond its type's range ends at the bound.
bool ReadValue(std::string_view text, bool& field);
bool ReadValue(std::string_view text, float& field);
bool ReadValue(std::string_view text, std::string& field);      // trimmed
bool ReadValue(std::string_view text, std::string_view& field); // as it stands
template <std::integral Whole> bool ReadValue(std::string_view text, Whole& field) {
    const auto value = ReadWhole(text);
    if (!value) return false;
    const auto low = std::int64_t{std::numeric_limits<Whole>::min()};
    const auto high = std::int64_t{std::numeric_limits<Whole>::max()};
    field = static_cast<Whole>(*value < low ? low : *value > high ? high : *value);
    return true;
}
template <class Value> bool ReadValue(std::string_view text, std::optional<Value>& field) {
    Value value{};
    if (!ReadValue(text, value)) return false;
    field = value;
    return true;
}

// Writing appends to the text of the whole file. Numbers carry "." and no exponent, whole values no fraction.
void AppendValue(std::string& out, bool value);
void AppendValue(std::string& out, std::int32_t value);
void AppendValue(std::string& out, float value);
// One line: control characters become blanks; bytes that are not UTF-8 are taken as Windows-1252.
void AppendValue(std::string& out, std::string_view value);
inline void AppendValue(std::string& out, const std::string& value) {
    AppendValue(out, std::string_view(value));
}
void AppendTrimmed(std::string& out, std::string_view value);

bool IsUtf8(std::string_view text);
// Appends the letters of a Windows-1252 text as UTF-8.
void AppendFromWindows1252(std::string& out, std::string_view text);

// A path of this system, perhaps with the drive marker "@"; names of other systems are plain text here.
bool IsPath(std::string_view text);
// A path that a line can't hold as it is (bytes that are not UTF-8, control characters, blanks at an end) is
// stored as a percent-encoded file:// URI; every other path stands as it is.
void AppendPath(std::string& out, std::string_view path);
std::string ReadPath(std::string_view stored);

} // namespace quill
