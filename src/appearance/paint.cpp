#include "appearance/paint.h"

#include "appearance/paint_parts.h"
#include "appearance/palette.h"
#include "core/frmMain.h"
#include "core/shortcut_lists.h"

#include <algorithm>

namespace quill {

namespace {

constexpr float FocusWidth = 2 * TwipsPerPixel;
constexpr float ShortcutDistance = 4 * TwipsPerPixel; // clear of letters that reach beyond their label

Rect United(const Rect& one, const Rect& other) {
    const float left = std::min(one.Left, other.Left), top = std::min(one.Top, other.Top);
    return {left, top, std::max(one.Right(), other.Right()) - left,
            std::max(one.Bottom(), other.Bottom()) - top};
}

// What lies beyond the surface's edge would not be seen.
Rect WithinSurface(const frmMain& Main, SurfaceId surface, const Rect& place) {
    const auto& lies =
        surface.Kind == SurfaceKind::Workspace ? Main.View.picBack.Place : PlaceOfSurface(Main, surface);
    const float left = std::max(0.0F, place.Left), top = std::max(0.0F, place.Top);
    return {left, top, std::min(lies.Width, place.Right()) - left,
            std::min(lies.Height, place.Bottom()) - top};
}

// A shortcut is one thing to a person: its icon belongs to it.
Rect AroundFocus(const frmMain& Main, SurfaceId surface, const ElementInfo& focus) {
    if (focus.Id.Kind != ElementKind::lblShortcut) return Inset(focus.Place, -FocusWidth);
    Rect place = focus.Place;
    Elements(Main, surface, [&](const ElementInfo& element) {
        const bool icon = element.Id == ElementId{ElementKind::picShortcut, focus.Id.Index};
        if (icon && element.Place.Width > 0) place = United(place, element.Place);
        return !icon;
    });
    return Inset(place, -ShortcutDistance);
}

// Where the keyboard is, shown once the keyboard was used.
void PaintFocus(const frmMain& Main, SurfaceId surface, Canvas& canvas) {
    const WorkspaceView& view = Main.View;
    if (!view.FocusVisible || view.FocusSurface != surface || view.Focus.Kind == ElementKind::None) return;
    Elements(Main, surface, [&](const ElementInfo& element) {
        if (element.Id != view.Focus) return true;
        const Rect around = WithinSurface(Main, surface, AroundFocus(Main, surface, element));
        Outline(canvas, around, view.ForeColor, FocusWidth, 0.9F);
        return false;
    });
}

} // namespace

void PaintSurface(frmMain& Main, SurfaceId surface, Canvas& canvas) {
    PaintSurface(Main, surface, canvas, ShortcutLists(Main));
}

void PaintSurface(frmMain& Main, SurfaceId surface, Canvas& canvas, const ShortcutLists& lists) {
    if (Main.IsExiting) return;
    if (surface.Kind == SurfaceKind::Workspace) PaintWorkspace(Main, lists, canvas);
    if (surface.Kind == SurfaceKind::Container) PaintContainer(Main, surface.Index, lists, canvas);
    if (surface.Kind == SurfaceKind::Overlay) return PaintOverlay(Main, canvas);
    if (surface.Kind == SurfaceKind::MiniDock) return PaintMiniDock(Main, canvas);
    if (surface.Kind == SurfaceKind::MiniToolbar) return PaintMiniToolbar(Main, canvas);
    if (surface.Kind == SurfaceKind::QuickLaunch) return PaintQuickLaunch(Main, canvas);
    if (surface.Kind == SurfaceKind::JumpTo) PaintJumpTo(Main, canvas);
    if (surface.Kind == SurfaceKind::Picture) PaintPicture(Main, surface.Index, canvas);
    PaintFocus(Main, surface, canvas);
}

} // namespace quill
