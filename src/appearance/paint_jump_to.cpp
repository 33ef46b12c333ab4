// The Keyboard Launcher's box: a card over the workspace, in its colours. The field that is typed in lies
// over it on the screen; here its ground is painted.
#include "appearance/paint_jump_to.h"

#include "appearance/colors.h"
#include "appearance/paint_parts.h"
#include "appearance/palette.h"
#include "core/element_walk.h"
#include "core/tr.h"
#include "keyboard/jump_to_measures.h"
#include "shortcuts/icons.h"

namespace quill {

namespace {

constexpr float SymbolEdge = 16 * TwipsPerPixel;
constexpr float PlateRadius = 5 * TwipsPerPixel;

// So much of one colour that the other is left through.
Color Mixed(Color one, Color other, float part) {
    const auto mix = [part](int from, int to) {
        return static_cast<int>(static_cast<float>(from) * part + static_cast<float>(to) * (1 - part));
    };
    return Rgb(mix(RedOf(one), RedOf(other)), mix(GreenOf(one), GreenOf(other)),
               mix(BlueOf(one), BlueOf(other)));
}

bool IsReadable(Color ink, Color ground) {
    return ContrastRatio(ink, ground) >= ReadableContrast;
}

TextStyle OneLine(const frmMain& Main, float points, Color ink) {
    TextStyle style;
    style.Font = {Main.Settings.FontName, points};
    style.Ink = ink;
    style.Elide = true;
    style.VerticalCenter = true;
    return style;
}

struct Box {
    frmMain& Main;
    const JumpToView& View;
    JumpToColors Colors;
    Canvas& Paper;
};

void PaintName(const Box& box, const Rect& place) {
    auto style = OneLine(box.Main, JumpToTextPoints, box.Colors.Ink);
    style.Font.Bold = true;
    box.Paper.Text(place, OnOneLine(box.View.lblJumpToLink), style);
}

void PaintHint(const Box& box, const Rect& place) {
    const auto style = OneLine(box.Main, JumpToSmallPoints, box.Colors.Soft);
    box.Paper.Text(place, OnOneLine(box.View.lblJumpToTip), style);
}

void PaintLink(const Box& box, const Rect& place, std::string_view caption, Color ink) {
    auto style = OneLine(box.Main, JumpToSmallPoints, ink);
    style.Align = TextAlign::Center;
    box.Paper.Text(place, Tr(box.Main, caption), style);
}

void PaintHistory(const Box& box, const Rect& place) {
    PaintLink(box, place, "History", box.Colors.Ink);
}

// What Enter does stands out.
void PaintGo(const Box& box, const Rect& place) {
    box.Paper.RoundRect(place, PlateRadius, box.Colors.Plate, {});
    PaintLink(box, place, "Go", box.Colors.PlateInk);
}

void PaintClose(const Box& box, const Rect& place) {
    box.Paper.Symbol("close", CenteredIn(place, SymbolEdge), box.Colors.Soft);
}

void PaintField(const Box& box, const Rect& place) {
    box.Paper.RoundRect(place, JumpToFieldCorner, box.Colors.Field, {1, box.Colors.Line});
}

void PaintJumpIcon(const Box& box, const Rect& place) {
    const auto& icon = box.View.PicJumpToIcon;
    const bool shortcut = IsLive(box.Main.Shortcuts, icon.Shortcut);
    const auto source = shortcut ? GetIconSource(box.Main, icon.Shortcut, true)
                                 : IconSource{icon.File, icon.ThemeName, IsImageName(icon.File)};
    if (box.Paper.Icon(source, place)) return;
    // What lies on a server that does not answer shows as what it is.
    if (shortcut && !icon.ThemeName.empty() && box.Paper.Icon({{}, icon.ThemeName, false}, place)) return;
    const auto symbol = shortcut ? GenericSymbol(box.Main.Link(icon.Shortcut)) : icon.Symbol;
    if (!symbol.empty()) box.Paper.Symbol(symbol, place, box.Colors.Soft);
}

void PaintCard(const Box& box, const Rect& place) {
    box.Paper.RoundRect(place, CornerRadius, box.Colors.Ground, {1, box.Colors.Line});
}

void PaintGround(const Box& box, const Rect& place) {
    PaintCard(box, {place.Left, place.Top, place.Width, std::min(place.Height, JumpToHeight)});
}

struct PartPainter {
    ElementKind Kind;
    void (*Paint)(const Box& box, const Rect& place);
};

constexpr PartPainter painters[] = {
    {ElementKind::PicJumpToLink, &PaintGround},
    {ElementKind::PicJumpToIcon, &PaintJumpIcon},
    {ElementKind::lblJumpToLink, &PaintName},
    {ElementKind::cboSearch, &PaintField},
    {ElementKind::lblJumpToTip, &PaintHint},
    {ElementKind::lblHistory, &PaintHistory},
    {ElementKind::lblGo, &PaintGo},
    {ElementKind::lblClosePicJumpTo, &PaintClose},
};

// A line that has no room any more is left out.
void PaintTips(const Box& box) {
    const Rect card = PlaceOfJumpToTips(box.Main);
    if (card.Height <= 0) return;
    PaintCard(box, card);
    TextStyle style;
    style.Font = {box.Main.Settings.FontName, JumpToSmallPoints};
    style.Ink = box.Colors.Ink; // of the heading
    style.WordBreak = true;
    for (const auto& line : LayJumpToTips(box.Main, card)) {
        if (line.Place.Bottom() > card.Bottom()) break;
        box.Paper.Text(line.Place, line.Text, style);
        style.Ink = box.Colors.Soft;
    }
}

bool IsLineBreak(std::string_view letter) {
    return letter == "\xE2\x80\xA8" || letter == "\xE2\x80\xA9" || letter == "\xC2\x85";
}

} // namespace

JumpToColors ColorsOfJumpTo(const frmMain& Main) {
    const Color back = Main.View.BackColor;
    JumpToColors colors;
    colors.Field = back;
    colors.Ground = Lighter(back, true);
    colors.Line = ContrastColor(colors.Ground);
    const bool readable =
        IsReadable(Main.View.ForeColor, colors.Ground) && IsReadable(Main.View.ForeColor, colors.Field);
    colors.Ink = readable ? Main.View.ForeColor : ExtremeOn(colors.Ground);
    if (!IsReadable(colors.Ink, colors.Field)) colors.Field = colors.Ground;
    constexpr float softness = 0.75F;
    const Color soft = Mixed(colors.Ink, colors.Ground, softness);
    colors.Soft = IsReadable(soft, colors.Ground) ? soft : colors.Ink;
    const bool dark = ExtremeOn(colors.Ground) != 0;
    colors.Plate = dark ? Lighter(colors.Ground, false) : Darker(colors.Ground, false);
    colors.PlateInk = IsReadable(colors.Ink, colors.Plate) ? colors.Ink : ExtremeOn(colors.Plate);
    return colors;
}

std::string OnOneLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::size_t length = IsLineBreak(text.substr(at, 2))   ? 2
                                   : IsLineBreak(text.substr(at, 3)) ? 3
                                                                     : 0;
        const bool control = static_cast<unsigned char>(text[at]) < ' ';
        line += length > 0 || control ? ' ' : text[at];
        if (length > 0) at += length - 1;
    }
    return line;
}

void PaintJumpTo(frmMain& Main, Canvas& canvas) {
    const Box box{Main, Main.Keys.PicJumpToLink, ColorsOfJumpTo(Main), canvas};
    WalkElements(Main, {SurfaceKind::JumpTo, -1}, [&](const Spot& spot) {
        const auto row = std::ranges::find(painters, spot.Id.Kind, &PartPainter::Kind);
        if (row != std::end(painters)) row->Paint(box, spot.Place);
        return true;
    });
    PaintTips(box);
}

} // namespace quill
