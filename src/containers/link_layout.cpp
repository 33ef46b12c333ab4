// The two parts of a shortcut: its icon stands left of the label, centred on its height.
#include "containers/layout.h"
#include "containers/measures.h"
#include "core/objects.h"
#include "platform/texts.h"

#include <algorithm>

namespace quill {
namespace {

constexpr int smallestSpacing = 45, aboveLargestSpacing = 456, usualSpacing = 155; // twips

Rect BesideLabel(const Rect& label, float edge) {
    return {label.Left - measures::IconGap - edge, label.Top + (label.Height - edge) / 2, edge, edge};
}

// Near enough for a label that nobody has seen: half an em a letter.
Size Guess(const EruLabel& label) {
    const auto letters = static_cast<float>(label.Caption.size());
    return {letters * label.FontSize * 10, label.FontSize * measures::LinePerPoint};
}

} // namespace

float IconEdge(const frmMain& Main, int ShortcutIndex) {
    const bool large = Main.LinkView(ShortcutIndex).lblShortcut.FontSize >= measures::LargeIconFrom;
    const auto pixels =
        large ? static_cast<float>(std::max(0, Main.Settings.LargeIconSize)) : measures::SmallIconPixels;
    return pixels * TwipsPerPixel;
}

Rect LabelPlace(const frmMain& Main, int Index) {
    const auto& view = Main.LinkView(Index);
    auto place = view.lblShortcut.Place;
    if (view.LabelMeasured) return place;
    const auto size = Guess(view.lblShortcut);
    place.Width = std::max(place.Width, size.Width);
    place.Height = std::max({place.Height, size.Height, IconEdge(Main, Index)});
    return place;
}

Rect IconPlace(const frmMain& Main, int Index) {
    return BesideLabel(LabelPlace(Main, Index), IconEdge(Main, Index));
}

void MoveLinkIcon(frmMain& Main, int Index) {
    if (!IsLive(Main.Shortcuts, Index)) return;
    Main.LinkView(Index).picShortcut = IconPlace(Main, Index);
}

void SetNewLinkHeight(frmMain& Main, int Index) {
    if (!IsLive(Main.Shortcuts, Index)) return;
    auto& view = Main.LinkView(Index);
    auto& label = view.lblShortcut;
    const FontSpec font{Main.Settings.FontName, label.FontSize, label.FontBold};
    const auto text = Main.P.Texts.MeasureText(font, label.Caption, 0);
    label.Place.Width = text.Width;
    label.Place.Height = std::max(text.Height, IconEdge(Main, Index));
    view.LabelMeasured = true;
    MoveLinkIcon(Main, Index);
}

int GetProperSpacing(int value) {
    return value >= smallestSpacing && value < aboveLargestSpacing ? value : usualSpacing;
}

int RowSpacing(const frmMain& Main, Parent in) {
    const bool workspace = in.Kind == ParentKind::picBack;
    return GetProperSpacing(workspace ? Main.Settings.LineSpacing : Main.Con(in.Index).LineSpacing);
}

void MarkParent(frmMain& Main, Parent in) {
    if (in.Kind == ParentKind::ContainerFrame)
        Main.Marks.Container(in.Index);
    else
        Main.Marks.Workspace();
}

} // namespace quill
