#include "appearance/colors.h"
#include "appearance/paint_parts.h"
#include "appearance/palette.h"
#include "appearance/wallpaper.h"

namespace quill {

namespace {

constexpr float HairLine = TwipsPerPixel;
constexpr float CaptionPoints = 10;

Rect BackPlace(const frmMain& Main) {
    return {0, 0, Main.View.picBack.Place.Width, Main.View.picBack.Place.Height};
}

Ground WorkspaceGround(const frmMain& Main) {
    Ground ground;
    ground.In = OnWorkspace();
    ground.Place = BackPlace(Main);
    ground.BackColor = Main.View.BackColor;
    ground.Kind = Main.Settings.GradientDark ? RampKind::WorkspaceDark : RampKind::Workspace;
    ground.HasRamp = Main.Settings.Gradient;
    return ground;
}

bool WallpaperHidesAll(const frmMain& Main, Canvas& canvas) {
    const std::string& file = Main.View.WallpaperFile;
    return !file.empty() && Main.Settings.Stretch && canvas.Hides(file, BackPlace(Main));
}

// As it is from the upper left corner, or stretched over all of it. False: nothing of it can be seen yet.
bool PaintWallpaper(frmMain& Main, Canvas& canvas) {
    const std::string& file = Main.View.WallpaperFile;
    if (file.empty()) return false;
    if (Main.Settings.Stretch) return canvas.Picture(file, BackPlace(Main));
    Size& size = Main.View.WallpaperSize;
    if (size.Width <= 0) size = Main.P.Images.PictureSize(file);
    return size.Width > 0 && canvas.Picture(file, {0, 0, size.Width, size.Height});
}

void PaintButton(const frmMain& Main, const Element& element, const char* name, Canvas& canvas) {
    if (!element.Visible) return;
    const Rect place =
        Shifted(element.Place, {Main.View.picMoveMe.Place.Left, Main.View.picMoveMe.Place.Top});
    canvas.Button(ButtonFile(Main, name), place, Main.View.CaptionForeColor, name);
}

void PaintButtons(const frmMain& Main, Canvas& canvas) {
    const WorkspaceView& view = Main.View;
    PaintButton(Main, view.PicDock, "dock", canvas);
    PaintButton(Main, view.PicLockToolbar, "lock", canvas);
    PaintButton(Main, view.PicUnLockToolbar, "unlock", canvas);
    PaintButton(Main, view.ImgLock, "lock", canvas);
    if (!view.PicMenu.Visible) return;
    const Rect place = Shifted(view.PicMenu.Place, {view.picMoveMe.Place.Left, view.picMoveMe.Place.Top});
    canvas.Symbol("menu", place, view.CaptionForeColor);
}

void PaintCaption(const frmMain& Main, Canvas& canvas) {
    const WorkspaceView& view = Main.View;
    if (!view.lblCaption.Visible) return;
    TextStyle style;
    style.Font = {Main.Settings.FontName, CaptionPoints};
    style.Ink = view.CaptionForeColor;
    style.Elide = style.VerticalCenter = true;
    if (ContrastRatio(style.Ink, view.MoveMeColor) < ReadableContrast)
        AddHalo(style, style.Ink, view.MoveMeColor);
    canvas.Text(Shifted(view.lblCaption.Place, {view.picMoveMe.Place.Left, view.picMoveMe.Place.Top}),
                view.Caption, style);
}

void PaintTitleRow(const frmMain& Main, Canvas& canvas) {
    const Element& row = Main.View.picMoveMe;
    if (!row.Visible || !canvas.Exposed().Intersects(row.Place)) return;
    canvas.FillRect(row.Place, Main.View.MoveMeColor);
    canvas.FillRect({row.Place.Left, row.Place.Bottom() - HairLine, row.Place.Width, HairLine},
                    ContrastColor(Main.View.MoveMeColor), 0.5F);
    PaintCaption(Main, canvas);
    PaintButtons(Main, canvas);
}

} // namespace

void PaintWorkspace(frmMain& Main, const ShortcutLists& lists, Canvas& canvas) {
    Ground ground = WorkspaceGround(Main);
    if (!WallpaperHidesAll(Main, canvas)) {
        canvas.FillRect(ground.Place, ground.BackColor);
        if (ground.HasRamp) DrawGradient(canvas, ground.Place, ground.BackColor, ground.Kind);
    }
    ground.HasPicture = PaintWallpaper(Main, canvas);
    PaintShortcuts(Main, ground, lists, canvas);
    PaintTitleRow(Main, canvas);
}

} // namespace quill
