#include "appearance/drawing_primitives.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace quill {

namespace {

constexpr int TextInset = 3;       // pixels between the label's edge and its text
constexpr int SizeMargin = 8;      // pixels, of both sides together, around a text that is measured
constexpr float CornerAxis = 2.5F; // of the ellipse in a corner, to the radius

float Twips(int pixels) {
    return static_cast<float>(pixels) * TwipsPerPixel;
}

TextAlign AlignOf(int format) {
    if (format & FormatCenter) return TextAlign::Center;
    return format & FormatRight ? TextAlign::Right : TextAlign::Left;
}

// Only the thinnest line can be anything but solid. Style 5 is no line at all.
Pen BorderPen(const EruLabel& label) {
    static constexpr PenStyle styles[] = {PenStyle::Solid, PenStyle::Dash, PenStyle::Dot, PenStyle::DashDot,
                                          PenStyle::DashDotDot};
    constexpr int noLine = 5;
    if (label.BorderWidth == 0 || label.BorderStyle == noLine) return {};
    const bool thin = label.BorderWidth == 1 && label.BorderStyle < std::size(styles);
    return {2 * label.BorderWidth - 1, label.BorderColor, thin ? styles[label.BorderStyle] : PenStyle::Solid};
}

// The line runs along the edge, so that of its width one pixel less than half lies beyond and is cut away.
void PaintBorder(Canvas& canvas, const EruLabel& label) {
    const Rect client = ClientRect(label);
    const Pen pen = BorderPen(label);
    const float beyond = pen.Width > 0 ? Twips(label.BorderWidth - 1) : 0;
    // The canvas wants half an axis.
    const float radius = CornerAxis / 2 * Twips(label.BorderRadius);
    if (beyond > 0) canvas.PushClip(client);
    canvas.RoundRect(
        {client.Left - beyond, client.Top - beyond, client.Width + 2 * beyond, client.Height + 2 * beyond},
        radius > 0 ? radius + beyond : 0, label.BackColor, pen, label.Opacity);
    if (beyond > 0) canvas.PopClip();
}

void PaintGround(Canvas& canvas, const EruLabel& label) {
    if (label.BorderRadius == 0 && label.BorderWidth == 0)
        canvas.FillRect(ClientRect(label), label.BackColor, label.Opacity);
    else
        PaintBorder(canvas, label);
}

// What a kind of ramp draws: how far it goes towards white, from where, and in bands of which height.
struct Ramp {
    int Step = 100;
    bool TopToBottom = true;
    int RowOffset = 0; // pixels between a row and the band that it paints
    int RowHeight = 1; // pixels
};

constexpr Ramp Ramps[] = {
    {100, true, 0, 1},    // ContainerFrame
    {100, false, 0, 1},   // ContainerFrameReversed
    {150, true, 0, 1},    // Workspace
    {150, true, 50, 190}, // WorkspaceDark
};

const Ramp& RampOf(RampKind kind) {
    return Ramps[static_cast<std::size_t>(kind)];
}

int PixelRows(const Rect& place) {
    return static_cast<int>(std::lround(place.Height / TwipsPerPixel));
}

// The sum is rounded, halves to the even number.
int Raised(int channel, int step, double fraction) {
    return static_cast<int>(std::nearbyint(channel + step * fraction));
}

// Colour of the n-th row that is painted; nothing where a channel does not fit a byte any more.
std::optional<Color> RowColor(Color back, const Ramp& ramp, int row, int rows) {
    const double fraction = rows > 1 ? static_cast<double>(row) / (rows - 1) : 0;
    const int red = Raised(RedOf(back), ramp.Step, fraction);
    const int green = Raised(GreenOf(back), ramp.Step, fraction);
    const int blue = Raised(BlueOf(back), ramp.Step, fraction);
    if (red > 255 || green > 255 || blue > 255) return std::nullopt;
    return Rgb(red, green, blue);
}

// Rows that get painted before the first that overflows.
int PaintedRows(Color back, const Ramp& ramp, int rows) {
    int low = 0, high = rows;
    while (low < high) {
        const int middle = (low + high) / 2;
        if (RowColor(back, ramp, middle, rows))
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

// Each band hides all of the one before but its first pixel, so that of the row which shows at a pixel only
// the number is needed: the last whose band reaches it, -1 for none.
int RowShownAt(int pixel, const Ramp& ramp, int rows, int painted) {
    const int along = (ramp.TopToBottom ? pixel : rows - 1 - pixel) - ramp.RowOffset;
    if (along < 0 || painted == 0) return -1;
    const int row = std::min(along, painted - 1);
    return along < row + ramp.RowHeight ? row : -1;
}

std::optional<Color> PixelColor(Color back, const Ramp& ramp, int pixel, int rows, int painted) {
    const int row = RowShownAt(pixel, ramp, rows, painted);
    return row < 0 ? std::nullopt : RowColor(back, ramp, row, rows);
}

struct Band {
    int First = 0, End = 0; // pixel rows, the end not included
};

Band VisibleRows(const Rect& place, const Rect& exposed, int rows) {
    const auto pixel = [&](float y) { return (y - place.Top) / TwipsPerPixel; };
    return {std::max(0, static_cast<int>(std::floor(pixel(exposed.Top)))),
            std::min(rows, static_cast<int>(std::ceil(pixel(exposed.Bottom()))))};
}

void FillBand(Canvas& canvas, const Rect& place, Band band, std::optional<Color> color) {
    if (!color || band.First >= band.End) return;
    const float top = static_cast<float>(band.First) * TwipsPerPixel;
    const float bottom = std::min(static_cast<float>(band.End) * TwipsPerPixel, place.Height);
    canvas.FillRect({place.Left, place.Top + top, place.Width, bottom - top}, *color);
}

} // namespace

int TextFormatOf(const EruLabel& label) {
    const int align = label.Alignment == 0 ? FormatLeft : label.Alignment == 2 ? FormatCenter : FormatRight;
    const int overflow = label.WordWrap ? FormatWordBreak : label.AutoSize ? FormatNoClip : 0;
    return align | FormatNoPrefix | overflow;
}

Rect ClientRect(const EruLabel& label) {
    return {label.Place.Left, label.Place.Top, label.Place.Width + TwipsPerPixel,
            label.Place.Height + TwipsPerPixel};
}

Rect TextRect(const EruLabel& label) {
    const Rect client = ClientRect(label);
    const float near = Twips(label.BorderWidth + TextInset), far = Twips(TextInset);
    return {client.Left + near, client.Top + near, std::max(0.0F, client.Width - near - far),
            std::max(0.0F, client.Height - near - far)};
}

void SizeLabel(const Texts& texts, EruLabel& label, std::string_view fontName) {
    if (!label.AutoSize || label.Caption.empty()) return;
    const float around = Twips(SizeMargin + 2 * label.BorderWidth);
    const float width = std::max(TwipsPerPixel, label.Place.Width - around);
    const bool breaks = (TextFormatOf(label) & FormatWordBreak) != 0;
    const FontSpec font{fontName, label.FontSize, label.FontBold};
    label.Place.Height = texts.MeasureText(font, label.Caption, breaks ? width : 0).Height + around;
}

void PaintEruLabel(Canvas& canvas, const EruLabel& label, std::string_view fontName, const TextStyle& extra) {
    if (label.Opacity <= 0 || label.Caption.empty()) return;
    if (label.BackStyle == 1) PaintGround(canvas, label);
    const int format = TextFormatOf(label);
    TextStyle style = extra;
    style.Font = {fontName, label.FontSize, label.FontBold, extra.Font.Italic, extra.Font.StrikeThrough};
    style.Ink = label.ForeColor;
    style.Align = AlignOf(format);
    style.WordBreak = (format & FormatWordBreak) != 0;
    style.Clip = (format & FormatNoClip) == 0 && !style.Elide;
    canvas.Text(TextRect(label), label.Caption, style);
}

void DrawGradient(Canvas& canvas, const Rect& place, Color back, RampKind kind) {
    const Ramp& ramp = RampOf(kind);
    const int rows = PixelRows(place);
    const int painted = PaintedRows(back, ramp, rows);
    const Band visible = VisibleRows(place, canvas.Exposed(), rows);
    Band band{visible.First, visible.First};
    std::optional<Color> color;
    for (; band.End < visible.End; ++band.End) {
        const auto next = PixelColor(back, ramp, band.End, rows, painted);
        if (next == color) continue;
        FillBand(canvas, place, band, color);
        band.First = band.End;
        color = next;
    }
    FillBand(canvas, place, band, color);
}

Color RampColorAt(const Rect& place, Color back, RampKind kind, float y) {
    const Ramp& ramp = RampOf(kind);
    const int rows = PixelRows(place);
    if (rows <= 0) return back;
    const int pixel = std::clamp(static_cast<int>((y - place.Top) / TwipsPerPixel), 0, rows - 1);
    return PixelColor(back, ramp, pixel, rows, PaintedRows(back, ramp, rows)).value_or(back);
}

} // namespace quill
