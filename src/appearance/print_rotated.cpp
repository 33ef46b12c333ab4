#include "appearance/print_rotated.h"

#include <cmath>

namespace quill {

namespace {

constexpr float DotsPerInch = 96; // of the pixels that all measures are in
constexpr float PointsPerInch = 72;
constexpr int TenthsPerDegree = 10;

} // namespace

int CharacterHeight(float PointSize) {
    return static_cast<int>(std::lround(PointSize * DotsPerInch / PointsPerInch));
}

void PrintRotated(Canvas& Target, std::string_view Text, float X, float Y, std::string_view FontName,
                  float PointSize, int Angle, int Weight, Color ink) {
    TextStyle style;
    style.Font.Name = FontName;
    style.Font.Points = static_cast<float>(CharacterHeight(PointSize)) * PointsPerInch / DotsPerInch;
    style.Font.Weight = Weight;
    style.Ink = ink;
    Target.RotatedText({X, Y}, Text, style, Angle * TenthsPerDegree);
}

} // namespace quill
