#include "appearance/colors.h"
#include "appearance/covers.h"
#include "appearance/paint_parts.h"
#include "appearance/palette.h"
#include "containers/layout.h"
#include "core/objects.h"
#include "shortcuts/create.h"
#include "shortcuts/icons.h"

#include <algorithm>

namespace quill {

namespace {

constexpr float OverlayPart = 0.5F;               // of the icon's edge
constexpr float CaptionReach = 6 * TwipsPerPixel; // of a caption beyond its label
constexpr float PlateRoom = 5 * TwipsPerPixel;    // that a selected caption's plate is wider than the label

// Captions reach a little beyond the label's own place, the more with a halo. How wide one is that was never
// measured nobody knows; its line is enough to tell that it is seen.
bool MayBeSeen(const frmMain& Main, int index, const Ground& ground, const Rect& exposed) {
    Rect place = Inset(Shifted(LabelPlace(Main, index), ground.Origin), -CaptionReach);
    const Rect icon = Shifted(IconPlace(Main, index), ground.Origin);
    if (Main.LinkView(index).LabelMeasured) return exposed.Intersects(place) || exposed.Intersects(icon);
    place.Left = exposed.Left;
    place.Width = exposed.Width;
    return exposed.Intersects(place);
}

// All that a shortcut may take on the surface; a caption that was never measured is no wider than a square a
// letter.
Rect Reach(const frmMain& Main, int index, const Ground& ground) {
    const auto& view = Main.LinkView(index);
    Rect label = LabelPlace(Main, index);
    const float widest = static_cast<float>(view.lblShortcut.Caption.size()) * view.lblShortcut.FontSize * 20;
    if (!view.LabelMeasured) label.Width = std::max(label.Width, widest);
    label = Inset(label, -CaptionReach);
    const Rect icon = IconPlace(Main, index);
    const float left = std::min(label.Left, icon.Left), top = std::min(label.Top, icon.Top);
    const Rect reach{left, top, std::max(label.Right(), icon.Right()) - left,
                     std::max(label.Bottom(), icon.Bottom()) - top};
    return Shifted(reach, ground.Origin);
}

void PaintIcon(frmMain& Main, int index, const Rect& place, Color ink, Canvas& canvas) {
    const clsShortcut& record = Main.Link(index);
    if (!canvas.Icon(GetIconSource(Main, index, true), place))
        canvas.Symbol(GenericSymbol(record), place, ink, 0.8F);
    Main.LinkView(index).IconDrawn = true;
    if (!record.Command || !Main.Settings.CommandOverlay) return;
    const float edge = place.Width * OverlayPart;
    canvas.Symbol("command-overlay", {place.Right() - edge, place.Bottom() - edge, edge, edge}, ink);
}

Color GroundAt(const Ground& ground, float y) {
    return ground.HasRamp ? RampColorAt(ground.Place, ground.BackColor, ground.Kind, y) : ground.BackColor;
}

// A caption that would run out of the frame ends in an ellipsis instead.
bool CutToGround(EruLabel& label, const Ground& ground) {
    const float room = ground.Place.Right() - CaptionReach - label.Place.Left;
    if (label.Place.Width + CaptionReach <= room) return false;
    label.Place.Width = std::max(0.0F, room);
    return true;
}

void PaintCaption(frmMain& Main, EruLabel label, const Ground& ground, Canvas& canvas) {
    TextStyle style;
    style.Elide = CutToGround(label, ground);
    if (label.BackStyle == 1 && !style.Elide) label.Place.Width += PlateRoom;
    style.VerticalCenter = true;
    const Color behind = GroundAt(ground, label.Place.Top + label.Place.Height / 2);
    const bool readable = !ground.HasPicture && ContrastRatio(label.ForeColor, behind) >= ReadableContrast;
    if (!readable && label.BackStyle != 1) AddHalo(style, label.ForeColor, ground.BackColor);
    PaintEruLabel(canvas, label, Main.Settings.FontName, style);
}

// What a drop would open stands on a plate, and on the opposite one where it had one already.
void StandOut(const frmMain& Main, int index, EruLabel& label) {
    const bool selected = label.BackStyle == 1;
    label.BackColor = selected ? label.ForeColor : ShortcutInk(Main, index);
    label.ForeColor = selected ? ShortcutInk(Main, index) : ExtremeOn(label.BackColor);
    label.BackStyle = 1;
    label.BorderRadius = 2;
}

void PaintShortcut(frmMain& Main, int index, const Ground& ground, Canvas& canvas) {
    TakeShortcutStyle(Main, index);
    if (!Main.LinkView(index).LabelMeasured) SetNewLinkHeight(Main, index);
    const Rect icon = Shifted(Main.LinkView(index).picShortcut, ground.Origin);
    EruLabel label = Main.LinkView(index).lblShortcut;
    label.Place = Shifted(label.Place, ground.Origin);
    if (Main.Links.OpenWithTarget == index) StandOut(Main, index, label);
    if (canvas.Exposed().Intersects(icon)) PaintIcon(Main, index, icon, ShortcutInk(Main, index), canvas);
    if (canvas.Exposed().Intersects(Inset(label.Place, -CaptionReach)))
        PaintCaption(Main, label, ground, canvas);
}

} // namespace

void PaintShortcuts(frmMain& Main, const Ground& ground, const ShortcutLists& lists, Canvas& canvas) {
    const auto covers = CoversAbove(Main, ground.In);
    const Rect exposed = canvas.Exposed();
    lists.Each(Main, ground.In, [&](int link) {
        const bool seen = Main.LinkView(link).Visible && MayBeSeen(Main, link, ground, exposed);
        if (seen && !IsCovered(covers, Reach(Main, link, ground))) PaintShortcut(Main, link, ground, canvas);
    });
}

} // namespace quill
