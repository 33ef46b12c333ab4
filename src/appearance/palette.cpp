#include "appearance/palette.h"

#include "appearance/colors.h"

#include <algorithm>

namespace quill {

Rect Inset(const Rect& rect, float by) {
    return {rect.Left + by, rect.Top + by, std::max(0.0F, rect.Width - 2 * by),
            std::max(0.0F, rect.Height - 2 * by)};
}

Rect Shifted(const Rect& rect, Point by) {
    return {rect.Left + by.X, rect.Top + by.Y, rect.Width, rect.Height};
}

Rect CenteredIn(const Rect& place, float edge) {
    return {place.Left + (place.Width - edge) / 2, place.Top + (place.Height - edge) / 2, edge, edge};
}

void Outline(Canvas& canvas, const Rect& place, Color color, float width, float opacity) {
    canvas.FillRect({place.Left, place.Top, place.Width, width}, color, opacity);
    canvas.FillRect({place.Left, place.Bottom() - width, place.Width, width}, color, opacity);
    const float inner = std::max(0.0F, place.Height - 2 * width);
    canvas.FillRect({place.Left, place.Top + width, width, inner}, color, opacity);
    canvas.FillRect({place.Right() - width, place.Top + width, width, inner}, color, opacity);
}

Color ExtremeOn(Color ground) {
    constexpr Color black = 0x000000, white = 0xFFFFFF;
    return ContrastRatio(ground, black) > ContrastRatio(ground, white) ? black : white;
}

Color InkOn(const frmMain& Main, Color ground) {
    const bool readable = ContrastRatio(Main.View.ForeColor, ground) >= ReadableContrast;
    return readable ? Main.View.ForeColor : ExtremeOn(ground);
}

void AddHalo(TextStyle& style, Color ink, Color ground) {
    const bool light = ContrastRatio(ink, Rgb(0, 0, 0)) > ContrastRatio(ink, Rgb(255, 255, 255));
    style.Halo = true;
    style.HaloColor = light ? Darker(ground, true) : Lighter(Lighter(ground, false), false);
    if (ContrastRatio(ink, style.HaloColor) < ReadableContrast)
        style.HaloColor = light ? Rgb(0, 0, 0) : Rgb(255, 255, 255);
}

std::string FirstLines(std::string_view text, int count) {
    std::string lines;
    for (const char letter : text) {
        if (letter == '\r') continue;
        if (letter == '\n' && --count <= 0) break;
        lines += letter;
    }
    return lines;
}

} // namespace quill
