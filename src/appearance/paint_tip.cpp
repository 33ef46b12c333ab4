#include "appearance/paint_tip.h"

#include "appearance/colors.h"
#include "appearance/palette.h"

#include <algorithm>

namespace quill {
namespace {

constexpr float padding = 9 * TwipsPerPixel;
constexpr float headGap = 4 * TwipsPerPixel;
constexpr float points = 9;
constexpr float widestText = 400 * TwipsPerPixel;

std::string HeadOf(const frmMain& Main) {
    const int index = Main.Looks.frmTip.Container;
    return IsLive(Main.Containers, index) ? Main.ConView(index).ContainerLabel.Caption : std::string();
}

FontSpec HeadFont(const frmMain& Main) {
    return {Main.Settings.FontName, points, true};
}
FontSpec TextFont(const frmMain& Main) {
    return {Main.Settings.FontName, points};
}

} // namespace

TipLayout LayTip(const frmMain& Main, const std::string& text, float highest) {
    const auto head = HeadOf(Main);
    const Size name = head.empty() ? Size{} : Main.P.Texts.MeasureText(HeadFont(Main), head, 0);
    const Size body = Main.P.Texts.MeasureText(TextFont(Main), text, widestText);
    const float width = std::min(widestText, std::max(name.Width, body.Width)) + TwipsPerPixel;
    TipLayout lies;
    lies.Head = {padding, padding, width, name.Height};
    const float top = head.empty() ? padding : lies.Head.Bottom() + headGap;
    lies.Text = {padding, top, widestText, std::min(body.Height, highest - top - padding)};
    lies.Whole = {width + 2 * padding, lies.Text.Bottom() + padding};
    return lies;
}

// The text was broken at the widest that it may be, and is again.
void PaintTip(const frmMain& Main, Size size, Canvas& canvas) {
    const auto& tip = Main.Looks.frmTip;
    const auto lies = LayTip(Main, tip.Text, size.Height);
    const Color ground = Main.View.BackColor;
    canvas.RoundRect({0, 0, size.Width, size.Height}, TipCorner, ground, {1, ContrastColor(ground)});
    TextStyle style;
    style.Font = HeadFont(Main);
    style.Ink = InkOn(Main, ground);
    style.Elide = true;
    if (lies.Head.Height > 0) canvas.Text(lies.Head, HeadOf(Main), style);
    style.Font = TextFont(Main);
    style.WordBreak = true;
    canvas.Text(lies.Text, tip.Text, style);
}

} // namespace quill
