#include "system/size_texts.h"

#include <charconv>
#include <cmath>
#include <iterator>

namespace quill {
namespace {

constexpr double step = 1024; // from one unit to the next

std::int64_t Joined(std::uint32_t low, std::int32_t high) {
    return static_cast<std::int64_t>(high) * (std::int64_t{1} << 32) + low;
}

// Halves away from zero, with so many decimals.
std::string Fixed(double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    char text[64];
    const auto end = std::to_chars(std::begin(text), std::end(text), std::round(value * scale) / scale,
                                   std::chars_format::fixed, decimals);
    return {text, end.ptr};
}

std::string WithoutEndZeros(std::string number) {
    if (number.find('.') == number.npos) return number;
    number.erase(number.find_last_not_of('0') + 1);
    if (number.back() == '.') number.pop_back();
    return number;
}

struct Unit {
    const char* Name;
    int Decimals;
};

constexpr Unit units[] = {{" bytes", 0}, {" KB", 1}, {" MB", 2}, {" GB", 2}, {" TB", 2}};
constexpr const char* fileUnits[] = {" Bytes", " KB", " MB", " GB", " TB"};

// The first unit in which the value is below the limit, or the last; the value becomes that many of it.
std::size_t UnitFor(double& value, double limit, std::size_t last) {
    std::size_t unit = 0;
    for (; value >= limit && unit < last; ++unit) value /= step;
    return unit;
}

} // namespace

std::string NumberInKB(std::uint32_t Low, std::int32_t High) {
    auto value = static_cast<double>(Joined(Low, High));
    const auto& unit = units[UnitFor(value, step, std::size(units) - 1)];
    return WithoutEndZeros(Fixed(value, unit.Decimals)) + unit.Name;
}

// Below 1000 and not 1024 of a unit, so that there are never four digits before it is rounded.
std::string formatFileSize(std::uint32_t Low, std::int32_t High) {
    const auto bytes = Joined(Low, High);
    if (bytes < 0) return {};
    if (bytes == 0) return "0";
    auto value = static_cast<double>(bytes);
    const auto unit = UnitFor(value, 1000, std::size(fileUnits) - 1);
    return Fixed(value, value >= 100 ? 0 : value >= 10 ? 1 : 2) + fileUnits[unit];
}

} // namespace quill
