// Plain shapes and colours that every port and every room share. Positions and sizes are twips as float:
// 15 twips are one device-independent pixel on both axes; only the drawing and window ports round.
#pragma once

#include <cstdint>

namespace quill {

inline constexpr float TwipsPerPixel = 15.0F;

struct Point {
    float X = 0;
    float Y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    float Width = 0;
    float Height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;

    float Right() const { return Left + Width; }
    float Bottom() const { return Top + Height; }
    bool Contains(float x, float y) const { return x >= Left && x < Right() && y >= Top && y < Bottom(); }
    bool Intersects(const Rect& other) const {
        return Left < other.Right() && other.Left < Right() && Top < other.Bottom() && other.Top < Bottom();
    }
    bool operator==(const Rect&) const = default;
};

// 0x00BBGGRR, as the files hold it.
using Color = std::int32_t;

constexpr Color Rgb(int red, int green, int blue) {
    return red | (green << 8) | (blue << 16);
}
constexpr int RedOf(Color color) {
    return color & 0xFF;
}
constexpr int GreenOf(Color color) {
    return (color >> 8) & 0xFF;
}
constexpr int BlueOf(Color color) {
    return (color >> 16) & 0xFF;
}

} // namespace quill
