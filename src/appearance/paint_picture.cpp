#include "appearance/colors.h"
#include "appearance/paint_parts.h"
#include "appearance/palette.h"
#include "containers/measures.h"
#include "shortcuts/create.h"

#include <algorithm>

namespace quill {

namespace {

constexpr float MissingEdge = 480;
constexpr float MissingPoints = 8;

// An empty frame that says which file it waits for.
void PaintMissing(const frmMain& Main, int index, const Rect& place, Canvas& canvas) {
    const Color ink = Main.View.ForeColor;
    const float edge = std::min({MissingEdge, place.Width / 2, place.Height / 2});
    canvas.Symbol("picture-missing", CenteredIn(place, edge), ink, 0.7F);
    TextStyle style;
    style.Font = {Main.Settings.FontName, MissingPoints};
    style.Ink = ink;
    style.Align = TextAlign::Center;
    style.Elide = true;
    const float top = place.Top + (place.Height + edge) / 2 + 4 * TwipsPerPixel;
    const float height = place.Bottom() - top;
    if (height < style.Font.Points * 20) return;
    canvas.Text({place.Left, top, place.Width, height}, CaptionOfPath(Main.Pic(index).Path), style);
}

} // namespace

void PaintPicture(frmMain& Main, int Index, Canvas& canvas) {
    if (!IsLive(Main.Pictures, Index)) return;
    const PictureView& view = Main.PicView(Index);
    const Rect frame{0, 0, view.PicContainer.Width, view.PicContainer.Height};
    const Rect image = Inset(frame, measures::PictureRim);
    canvas.FillRect(frame, ContrastColor(Main.View.BackColor));
    canvas.FillRect(Inset(frame, TwipsPerPixel), Lighter(Main.View.BackColor, true));
    if (view.Missing)
        PaintMissing(Main, Index, image, canvas);
    else
        canvas.Picture(ResolvedPath(Main, Main.Pic(Index).Path), image);
}

} // namespace quill
