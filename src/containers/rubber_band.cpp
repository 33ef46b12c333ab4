#include "containers/rubber_band.h"

#include "appearance/covers.h"
#include "containers/layout.h"
#include "containers/selection.h"
#include "core/handlers.h"
#include "core/objects.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

Rect Between(Point one, Point other) {
    return {std::min(one.X, other.X), std::min(one.Y, other.Y), std::abs(one.X - other.X),
            std::abs(one.Y - other.Y)};
}

Point OnBack(const frmMain& Main, Point at) {
    const auto& back = Main.View.picBack.Place;
    return {std::clamp(at.X, 0.0F, std::max(0.0F, back.Width)),
            std::clamp(at.Y, 0.0F, std::max(0.0F, back.Height))};
}

bool CanBeSelected(const ShortcutView& view) {
    return view.Visible && view.In.Kind == ParentKind::picBack && !view.lblShortcut.Caption.empty();
}

// What a container hides was not meant.
bool TouchesLink(const frmMain& Main, int Index, const Rect& band, const std::vector<Rect>& covers) {
    const auto seen = [&](const Rect& part) { return band.Intersects(part) && !IsCovered(covers, part); };
    return seen(LabelPlace(Main, Index)) || seen(IconPlace(Main, Index));
}

void SelectTouched(frmMain& Main, const Rect& band) {
    const auto covers = CoversAbove(Main, OnWorkspace());
    EachShortcutIn(Main, OnWorkspace(), [&](int link) {
        if (CanBeSelected(Main.LinkView(link)) && TouchesLink(Main, link, band, covers))
            SetSelection(Main, link, true);
    });
    for (const auto& row : Live(Main.Containers)) {
        const auto& container = Main.ConView(row.Index).Container;
        if (container.Visible && band.Intersects(container.Place)) SelectContainer(Main, row.Index);
    }
}

} // namespace

void BeginRubberBand(frmMain& Main, const MouseEvent& event) {
    if (event.Button != MouseButton::Left) return;
    Main.Group.frmSelection = {true, true, event.At, {event.At.X, event.At.Y, 0, 0}};
    Main.Dock.WorkspaceDragging = true;
}

void RubberBand_MouseMove(frmMain& Main, const MouseEvent& event) {
    // The release went elsewhere, as to a box that opened.
    if (event.Button != MouseButton::Left) return UnloadSelection(Main);
    auto& window = Main.Group.frmSelection;
    const auto place = Between(window.From, OnBack(Main, event.At));
    if (place == window.Place) return;
    window.Place = place;
    Main.Marks.Overlay();
}

void RubberBand_MouseUp(frmMain& Main, const MouseEvent& event) {
    if (!Main.Group.frmSelection.Loaded) return;
    const auto band = Between(Main.Group.frmSelection.From, OnBack(Main, event.At));
    UnloadSelection(Main);
    if (band.Width > 0 || band.Height > 0) SelectTouched(Main, band);
}

void UnloadSelection(frmMain& Main) {
    if (!Main.Group.frmSelection.Loaded) return;
    Main.Group.frmSelection = {};
    Main.Dock.WorkspaceDragging = false;
    Main.Marks.Overlay();
}

} // namespace quill
