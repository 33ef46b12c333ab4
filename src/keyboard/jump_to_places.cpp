// Where the parts of the Keyboard Launcher's box lie.
#include "core/frmMain.h"
#include "core/tr.h"
#include "keyboard/jump_to.h"
#include "keyboard/jump_to_measures.h"
#include "platform/texts.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

constexpr float pixel = TwipsPerPixel;
constexpr float aroundBox = 8 * pixel; // between the box and the edge of the workspace at least
constexpr float tipGap = 6 * pixel;    // between the box and the tips
constexpr float tipInset = 12 * pixel, tipLineGap = 3 * pixel, tipPartGap = 6 * pixel;
constexpr float padding = 16 * pixel; // between the box and what lies in it
constexpr float iconEdge = 32 * pixel, closeEdge = 24 * pixel;
constexpr float nameGap = 12 * pixel; // beside the icon
constexpr float fieldTop = 60 * pixel, fieldHeight = 34 * pixel;
constexpr float footTop = 106 * pixel, footHeight = 24 * pixel; // of the hint and the links
constexpr float linkPadding = 10 * pixel;
constexpr float gap = 4 * pixel;
constexpr std::size_t fewestTips = 3; // fewer would not be worth their card
constexpr int mostRows = 10, fewRows = 3;

float LinkWidth(const frmMain& Main, std::string_view caption) {
    const FontSpec font{Main.Settings.FontName, JumpToSmallPoints};
    return std::ceil(Main.P.Texts.MeasureText(font, Tr(Main, caption), 0).Width / pixel) * pixel +
           2 * linkPadding;
}

struct Parts {
    Rect Icon, Name, Field, Hint, History, Go, Close;
};

Rect From(float left, float top, float right, float height) {
    return {left, top, std::max(0.0F, right - left), height};
}

// The row below the field: its words are measured.
void LayFoot(const frmMain& Main, float right, Parts& lies) {
    const float go = LinkWidth(Main, "Go");
    const float history = Main.Keys.PicJumpToLink.lblHistoryVisible ? LinkWidth(Main, "History") : 0;
    lies.Go = {right - go, footTop, go, footHeight};
    lies.History = {lies.Go.Left - gap - history, footTop, history, footHeight};
    lies.Hint = From(padding, footTop, (history > 0 ? lies.History.Left : lies.Go.Left) - gap, footHeight);
}

Parts LayParts(const frmMain& Main, bool foot) {
    const float right = Main.Keys.PicJumpToLink.Place.Width - padding;
    Parts lies;
    lies.Icon = {padding, padding, iconEdge, iconEdge};
    // Its cross ends where the field does.
    const float crossInset = gap;
    lies.Close = {right - closeEdge + crossInset, padding + (iconEdge - closeEdge) / 2, closeEdge, closeEdge};
    lies.Name = From(lies.Icon.Right() + nameGap, padding, lies.Close.Left - gap, iconEdge);
    lies.Field = From(padding, fieldTop, right, fieldHeight);
    if (foot) LayFoot(Main, right, lies);
    return lies;
}

struct PartRow {
    ElementKind Kind;
    Rect Parts::*Place;
    bool Foot = false; // lies below the field
};

constexpr PartRow parts[] = {
    {ElementKind::PicJumpToIcon, &Parts::Icon},       {ElementKind::lblJumpToLink, &Parts::Name},
    {ElementKind::cboSearch, &Parts::Field},          {ElementKind::lblJumpToTip, &Parts::Hint, true},
    {ElementKind::lblHistory, &Parts::History, true}, {ElementKind::lblGo, &Parts::Go, true},
    {ElementKind::lblClosePicJumpTo, &Parts::Close},
};

// The height of a card with as many of the tips as the room takes, 0 when that would be too few.
float TipsThatFit(const frmMain& Main, float width, float room) {
    float height = 0;
    std::size_t fitting = 0;
    for (const auto& line : LayJumpToTips(Main, {0, 0, width, 0})) {
        const float whole = std::ceil((line.Place.Bottom() + tipInset) / pixel) * pixel;
        if (whole > room) break;
        height = whole;
        ++fitting;
    }
    return fitting < fewestTips ? 0 : height;
}

int RowsIn(float room) {
    return std::clamp(static_cast<int>((room - 2 * SearchListInset) / SearchRowHeight), 0, mostRows);
}

} // namespace

Rect PlaceOfJumpToPart(const frmMain& Main, ElementKind part) {
    const auto row = std::ranges::find(parts, part, &PartRow::Kind);
    return row == std::end(parts) ? Rect{} : LayParts(Main, row->Foot).*row->Place;
}

Rect PlaceOfJumpTo(const frmMain& Main) {
    const auto& back = Main.View.picBack.Place;
    const float width = std::max(0.0F, std::min(JumpToWidth, back.Width - 2 * aroundBox));
    Rect place{(back.Width - width) / 2, (back.Height - JumpToHeight) / 2, width, JumpToHeight};
    if (!Main.Keys.TipShown) return place;
    // On a low workspace the box makes room for them.
    const float room = back.Height - 2 * aroundBox - JumpToHeight - tipGap;
    const float tips = TipsThatFit(Main, width, room);
    if (tips <= 0) return place;
    place.Height += tipGap + tips;
    place.Top = std::min(place.Top, back.Height - aroundBox - place.Height);
    return place;
}

Rect PlaceOfJumpToTips(const frmMain& Main) {
    const auto& box = Main.Keys.PicJumpToLink;
    const float top = JumpToHeight + tipGap;
    if (!Main.Keys.TipShown || box.cboSearch.DroppedDown || box.Place.Height <= top) return {};
    return {0, top, box.Place.Width, box.Place.Height - top};
}

std::vector<JumpToTipLine> LayJumpToTips(const frmMain& Main, const Rect& card) {
    const FontSpec font{Main.Settings.FontName, JumpToSmallPoints};
    const std::string text = KeyboardLauncherTips(Main);
    const float width = std::max(pixel, card.Width - 2 * padding);
    std::vector<JumpToTipLine> lines;
    float top = card.Top + tipInset;
    for (std::size_t from = 0; from <= text.size();) {
        const auto end = std::min(text.find('\n', from), text.size());
        const auto first = std::min(text.find_first_not_of(' ', from), end);
        std::string line = text.substr(first, end - first);
        const bool apart = lines.size() == 1 || (end == text.size() && !lines.empty());
        top += lines.empty() ? 0 : apart ? tipPartGap : tipLineGap;
        const float height = Main.P.Texts.MeasureText(font, line, width).Height;
        lines.push_back({{card.Left + padding, top, width, height}, std::move(line)});
        top += height;
        from = end + 1;
    }
    return lines;
}

Rect PlaceOfSearchList(const frmMain& Main) {
    const auto& box = Main.Keys.PicJumpToLink;
    const auto count = static_cast<int>(std::min<std::size_t>(box.cboSearch.List.size(), mostRows));
    if (!box.Visible || !box.cboSearch.DroppedDown || count == 0) return {};
    const Rect field = PlaceOfJumpToPart(Main, ElementKind::cboSearch);
    Rect place{box.Place.Left + field.Left, box.Place.Top + field.Bottom() + gap, field.Width, 0};
    const int below = RowsIn(Main.View.picBack.Place.Height - gap - place.Top);
    const int above = RowsIn(box.Place.Top - 2 * gap);
    const bool goesUp = below < std::min(count, fewRows) && above > below;
    const int rows = std::max(1, std::min(count, goesUp ? above : below));
    place.Height = static_cast<float>(rows) * SearchRowHeight + 2 * SearchListInset;
    if (goesUp) place.Top = box.Place.Top - gap - place.Height;
    return place;
}

} // namespace quill
