// frmQuickLaunch: nine rows in the workspace's own colours, the selected one on a plate and with the marker.
// The number stands apart from the name, so that a name that runs from right to left does not move it.
#include "appearance/colors.h"
#include "appearance/paint_parts.h"
#include "appearance/palette.h"
#include "core/element_walk.h"
#include "core/objects.h"
#include "shortcuts/foreign_text.h"
#include "shortcuts/icons.h"
#include "shortcuts/speed_launch.h"

namespace quill {
namespace {

constexpr float HairLine = TwipsPerPixel;
constexpr float PlateInset = TwipsPerPixel;
constexpr float PlateRadius = 4 * TwipsPerPixel;
constexpr float RowPoints = 10;
constexpr float SymbolOpacity = 0.8F;
constexpr int Paleness = 4; // tenths of the ground in the ink of an empty slot

// Nearer to the ground, as far as it still can be read.
Color PaleInkOn(Color ink, Color ground) {
    const auto mixed = [](int one, int other) { return (one * (10 - Paleness) + other * Paleness) / 10; };
    const Color pale = Rgb(mixed(RedOf(ink), RedOf(ground)), mixed(GreenOf(ink), GreenOf(ground)),
                           mixed(BlueOf(ink), BlueOf(ground)));
    return ContrastRatio(pale, ground) >= ReadableContrast ? pale : ink;
}

constexpr float RimOpacity = 0.35F;

Color PlateColor(Color ground) {
    return ExtremeOn(ground) == 0 ? Darker(ground, false) : Lighter(ground, false);
}

void PaintIcon(const frmMain& Main, int shortcut, const Rect& place, Color ink, Canvas& canvas) {
    if (!canvas.Icon(GetIconSource(Main, shortcut, true), place))
        canvas.Symbol(GenericSymbol(Main.Link(shortcut)), place, ink, SymbolOpacity);
}

void PaintRow(const frmMain& Main, int row, Canvas& canvas) {
    const auto& window = Main.Links.QuickLaunch;
    const auto& shown = window.Rows[static_cast<std::size_t>(row)];
    const bool selected = window.Selected == row;
    const bool empty = !IsLive(Main.Shortcuts, shown.Shortcut);
    const Color ground = selected ? PlateColor(Main.View.BackColor) : Main.View.BackColor;
    const Color ink = InkOn(Main, ground);
    if (selected) {
        canvas.RoundRect(Inset(PlaceOfSpeedLaunchRow(row), PlateInset), PlateRadius, ground, {});
        canvas.Symbol("start", PlaceOfSpeedLaunchMarker(Main), ink);
    }
    if (!empty) PaintIcon(Main, shown.Shortcut, PlaceOfSpeedLaunchIcon(row), ink, canvas);
    TextStyle style;
    style.Font = {Main.Settings.FontName, RowPoints};
    style.Ink = empty ? PaleInkOn(ink, ground) : ink;
    style.VerticalCenter = style.Elide = true;
    canvas.Text(PlaceOfSpeedLaunchNumber(row), std::to_string(row + 1), style);
    canvas.Text(PlaceOfSpeedLaunchName(row), ShownLine(shown.Caption), style);
}

} // namespace

void PaintQuickLaunch(frmMain& Main, Canvas& canvas) {
    const Color ground = Main.View.BackColor;
    WalkElements(Main, {SurfaceKind::QuickLaunch, -1}, [&](const Spot& spot) {
        if (spot.Id.Kind == ElementKind::frmQuickLaunch) {
            canvas.FillRect(spot.Place, ground);
            Outline(canvas, spot.Place, InkOn(Main, ground), HairLine, RimOpacity);
        }
        if (spot.Id.Kind == ElementKind::lblSpeedLaunch) PaintRow(Main, spot.Id.Index, canvas);
        return true;
    });
}

} // namespace quill
