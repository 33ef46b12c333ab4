#include "appearance/paint.h"

#include "appearance/paint_parts.h"
#include "appearance/palette.h"
#include "core/frmMain.h"

namespace quill {

namespace {

constexpr float FocusWidth = 2 * TwipsPerPixel;

// Where the keyboard is, shown once the keyboard was used.
void PaintFocus(const frmMain& Main, SurfaceId surface, Canvas& canvas) {
    const WorkspaceView& view = Main.View;
    if (!view.FocusVisible || view.FocusSurface != surface || view.Focus.Kind == ElementKind::None) return;
    Elements(Main, surface, [&](const ElementInfo& element) {
        if (element.Id != view.Focus) return true;
        Outline(canvas, Inset(element.Place, -FocusWidth), view.ForeColor, FocusWidth, 0.9F);
        return false;
    });
}

} // namespace

void PaintSurface(frmMain& Main, SurfaceId surface, Canvas& canvas) {
    if (Main.IsExiting) return;
    if (surface.Kind == SurfaceKind::Workspace) PaintWorkspace(Main, canvas);
    if (surface.Kind == SurfaceKind::Container) PaintContainer(Main, surface.Index, canvas);
    if (surface.Kind == SurfaceKind::Picture) PaintPicture(Main, surface.Index, canvas);
    PaintFocus(Main, surface, canvas);
}

} // namespace quill
