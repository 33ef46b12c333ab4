// Numbers and shapes as the short words that the fake computer's logs use: "260,20 1760x250".
#pragma once

#include "platform/geometry.h"
#include "platform/system_colors.h"

#include <charconv>
#include <string>

namespace quill::fake {

inline std::string Words(float value) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value == 0 ? 0.0F : value);
    return {text, end.ptr};
}

inline std::string Words(Point point) {
    return Words(point.X) + "," + Words(point.Y);
}

inline std::string Words(const Rect& rect) {
    return Words(rect.Left) + "," + Words(rect.Top) + " " + Words(rect.Width) + "x" + Words(rect.Height);
}

// Black and white by name, system colours by number, else six digits as red, green, blue.
inline std::string ColorWords(Color color) {
    if (IsSystemColor(color)) return "system" + std::to_string(color & 0xFF);
    if (color == 0) return "black";
    if (color == 0xFFFFFF) return "white";
    static constexpr char Digits[] = "0123456789ABCDEF";
    std::string text = "#";
    for (const int part : {RedOf(color), GreenOf(color), BlueOf(color)}) {
        text += Digits[part >> 4];
        text += Digits[part & 15];
    }
    return text;
}

} // namespace quill::fake
