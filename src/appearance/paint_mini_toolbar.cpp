// The strip beside a selection: nine cells in the workspace's own colours, the one under the pointer on a
// plate. PicLinkColor wears the colour that it changes.
#include "appearance/colors.h"
#include "appearance/paint_parts.h"
#include "appearance/palette.h"
#include "core/element_walk.h"
#include "dock/mini_toolbar.h"
#include "shortcuts/create.h"

namespace quill {

namespace {

constexpr float HairLine = TwipsPerPixel;
constexpr float SymbolEdge = 16 * TwipsPerPixel;
constexpr float PlateInset = TwipsPerPixel;
constexpr float PlateRadius = 4 * TwipsPerPixel;
constexpr float BarWidth = 18 * TwipsPerPixel, BarHeight = 5 * TwipsPerPixel;
constexpr float BarFromBottom = 8 * TwipsPerPixel;
constexpr float ColorSymbolUp = 3 * TwipsPerPixel; // makes room for the bar
constexpr float HeldOpacity = 0.4F;                // of what the lock holds

Color PlateColor(Color ground) {
    return ExtremeOn(ground) == 0 ? Darker(ground, false) : Lighter(Lighter(ground, false), false);
}

// That of the one selected first, by which a choice begins too.
void PaintColorBar(const frmMain& Main, const Rect& place, Color ink, Canvas& canvas) {
    const auto& selected = Main.Links.SelectedShortcuts;
    if (selected.empty() || !IsLive(Main.Shortcuts, selected.front())) return;
    const Rect bar{place.Left + (place.Width - BarWidth) / 2, place.Bottom() - BarFromBottom, BarWidth,
                   BarHeight};
    canvas.RoundRect(bar, HairLine, ShortcutInk(Main, selected.front()), {1, ink});
}

void PaintCell(const frmMain& Main, int cell, const Rect& place, Canvas& canvas) {
    const bool works = MiniToolbarCellWorks(Main, cell);
    const bool pointed = works && Main.Dock.MiniToolbar.Pointed == cell;
    const Color ground = pointed ? PlateColor(Main.View.BackColor) : Main.View.BackColor;
    const Color ink = InkOn(Main, ground);
    if (pointed) canvas.RoundRect(Inset(place, PlateInset), PlateRadius, ground, {});
    const bool color = cell == MiniToolbarButtons;
    const Rect symbol = Shifted(CenteredIn(place, SymbolEdge), {0, color ? -ColorSymbolUp : 0});
    const auto& look = MiniToolbarCells()[static_cast<std::size_t>(cell)];
    canvas.Symbol(look.Symbol, symbol, ink, works ? 1 : HeldOpacity);
    if (color) PaintColorBar(Main, place, ink, canvas);
}

} // namespace

void PaintMiniToolbar(const frmMain& Main, Canvas& canvas) {
    const Color ground = Main.View.BackColor;
    WalkElements(Main, {SurfaceKind::MiniToolbar, -1}, [&](const Spot& spot) {
        if (spot.Id.Kind == ElementKind::picMiniToolbar) {
            canvas.FillRect(spot.Place, ground);
            Outline(canvas, spot.Place, ContrastColor(ground), HairLine);
        }
        if (spot.Id.Kind == ElementKind::MiniToolbarButton)
            PaintCell(Main, spot.Id.Index, spot.Place, canvas);
        if (spot.Id.Kind == ElementKind::PicLinkColor)
            PaintCell(Main, MiniToolbarButtons, spot.Place, canvas);
        return true;
    });
}

} // namespace quill
