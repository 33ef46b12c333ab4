// What lies over everything on the workspace for a moment: the rubber band, and the rectangle of an effect.
#include "appearance/colors.h"
#include "appearance/paint_parts.h"
#include "appearance/palette.h"
#include "core/element_walk.h"

namespace quill {

namespace {

constexpr float Solid = 255;
constexpr float BandOpacity = 80 / Solid;
constexpr float HairLine = TwipsPerPixel;
constexpr int BlastRim = 2; // pixels

void PaintBand(const frmMain& Main, const Rect& place, Canvas& canvas) {
    canvas.FillRect(place, Main.View.FrameColor, BandOpacity);
    Outline(canvas, place, Main.View.ForeColor, HairLine, 0.8F);
}

// A light that goes over the container and out beyond its edge.
void PaintBlast(const ContainerView& view, const Rect& place, float opacity, Canvas& canvas) {
    const Color light = Lighter(Lighter(view.ContainerBackColor, false), false);
    canvas.RoundRect(place, CornerRadius + TwipsPerPixel, light, {BlastRim, light}, opacity);
}

// In the colours of the container that it stands for.
void PaintEffect(const frmMain& Main, int container, const Rect& place, Canvas& canvas) {
    if (!IsLive(Main.Containers, container)) return;
    const auto& effect = Main.Looks.frmExplode;
    const ContainerView& view = Main.ConView(container);
    const float opacity = static_cast<float>(effect.Alpha) / Solid;
    if (effect.Running == EffectState::Kind::Blast) return PaintBlast(view, place, opacity, canvas);
    canvas.RoundRect(place, CornerRadius, view.FrameBackColor, {1, view.ContainerBackColor}, opacity);
}

} // namespace

void PaintOverlay(const frmMain& Main, Canvas& canvas) {
    WalkElements(Main, {SurfaceKind::Overlay, -1}, [&](const Spot& spot) {
        if (spot.Id.Kind == ElementKind::frmExplode) PaintEffect(Main, spot.Id.Index, spot.Place, canvas);
        if (spot.Id.Kind == ElementKind::frmSelection) PaintBand(Main, spot.Place, canvas);
        return true;
    });
}

} // namespace quill
