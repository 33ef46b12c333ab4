#include "appearance/colors.h"
#include "appearance/drawing_primitives.h"
#include "appearance/paint.h"
#include "appearance/palette.h"
#include "core/frmMain.h"

#include <string>

namespace quill {

namespace {

constexpr float Margin = 360;
constexpr float SymbolEdge = 960;
constexpr float NamePoints = 22;
constexpr float VersionPoints = 10;
constexpr float ProgressPoints = 9;

// No font of the user's: the settings may not be read yet.
TextStyle PlainText(float points, Color ink) {
    TextStyle style;
    style.Font.Points = points;
    style.Ink = ink;
    style.Elide = style.VerticalCenter = true;
    return style;
}

void PaintName(const frmMain& Main, const Rect& inside, Canvas& canvas) {
    const Rect symbol{inside.Left, inside.Top, SymbolEdge, SymbolEdge};
    if (!canvas.Icon({{}, "quillmere", false}, symbol))
        canvas.Symbol("generic-program", symbol, Main.View.ForeColor);
    const float left = symbol.Right() + Margin / 2;
    const float width = inside.Right() - left;
    TextStyle name = PlainText(NamePoints, Main.View.ForeColor);
    name.Font.Bold = true;
    canvas.Text({left, inside.Top, width, SymbolEdge * 0.6F}, ProgramName, name);
    const TextStyle version = PlainText(VersionPoints, Main.View.ForeColor);
    canvas.Text({left, inside.Top + SymbolEdge * 0.6F, width, SymbolEdge * 0.4F}, ProgramVersion, version);
}

// The line of progress is a label of our own.
void PaintProgress(const frmMain& Main, const Rect& inside, Canvas& canvas) {
    EruLabel line;
    line.Place = {inside.Left, inside.Bottom() - 330, inside.Width, 330};
    line.Caption = Main.View.SplashText;
    line.ForeColor = Main.View.ForeColor;
    line.FontSize = ProgressPoints;
    TextStyle style = PlainText(ProgressPoints, line.ForeColor);
    PaintEruLabel(canvas, line, {}, style);
}

} // namespace

void PaintSplash(const frmMain& Main, Size size, Canvas& canvas) {
    const Rect whole{0, 0, size.Width, size.Height};
    const Color back = Main.View.BackColor;
    canvas.RoundRect(whole, CornerRadius, ContrastColor(back), {});
    canvas.PushClip(Inset(whole, TwipsPerPixel), CornerRadius - TwipsPerPixel);
    canvas.FillRect(whole, back);
    DrawGradient(canvas, whole, back, RampKind::ContainerFrameReversed); // darkest behind the small text
    const Rect inside = Inset(whole, Margin);
    PaintName(Main, inside, canvas);
    PaintProgress(Main, inside, canvas);
    canvas.PopClip();
}

} // namespace quill
