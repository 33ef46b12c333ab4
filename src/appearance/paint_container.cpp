#include "appearance/colors.h"
#include "appearance/paint_parts.h"
#include "appearance/palette.h"
#include "appearance/round_window.h"
#include "containers/layout.h"
#include "containers/measures.h"
#include "containers/scroll.h"
#include "core/objects.h"
#include "notes/notes.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/icons.h"

#include <algorithm>

namespace quill {

namespace {

constexpr float HairLine = TwipsPerPixel;
constexpr float TitleSetOff = 0.35F; // how much of the border's colour the title row takes
constexpr float TileSetOff = 0.4F;   // how much of the selection's colour a selected tile takes
constexpr float FootPoints = 8;
constexpr float TilePadding = 60;

Rect Body(const ContainerView& view) {
    return {0, 0, view.Container.Place.Width, view.Container.Place.Height};
}

Rect FramePlace(const ContainerView& view) {
    return view.ContainerFrame.Place;
}

// A container whose tile has its icon at 20 twips, which is every step but the normal one, has its ramp
// upside down.
RampKind RampOf(const frmMain& Main, int index) {
    const bool normal = Main.Con(index).ShrinkSize().Width == measures::NormalTileWidth;
    return normal ? RampKind::ContainerFrame : RampKind::ContainerFrameReversed;
}

Ground FrameGround(const frmMain& Main, int index) {
    const ContainerView& view = Main.ConView(index);
    Ground ground;
    ground.In = InContainer(index);
    ground.Place = FramePlace(view);
    ground.Origin = {ground.Place.Left, ground.Place.Top - view.ScrollTop};
    ground.BackColor = view.FrameBackColor;
    ground.Kind = RampOf(Main, index);
    ground.HasRamp = view.Gradient;
    return ground;
}

// What marks a selected container: the colour of its title where that stands out from the frame.
Color SelectionGround(const ContainerView& view) {
    const bool seen = ContrastRatio(view.MarkForeColor, view.FrameBackColor) >= ReadableContrast;
    return seen ? view.MarkForeColor : ExtremeOn(view.FrameBackColor);
}

// The title of a selected container is written on its own plate.
Color TitleInk(const ContainerView& view) {
    return view.LabelSelected ? ExtremeOn(SelectionGround(view)) : view.MarkForeColor;
}

// The rim in the border's colour, the rest clipped to what it leaves free; selected ones have a wider rim,
// and one that would take what is dragged over it the widest.
void BeginBody(const ContainerView& view, bool target, Canvas& canvas) {
    const Rect body = Body(view);
    const float radius = std::min({CornerRadius, body.Width / 2, body.Height / 2});
    const float rim = (target ? 3 : view.LabelSelected ? 2 : 1) * HairLine;
    const bool marked = target || view.LabelSelected;
    canvas.RoundRect(body, radius, marked ? SelectionGround(view) : view.ContainerBackColor, {});
    RoundWindow(canvas, Inset(body, rim), 2 * (radius - rim) / TwipsPerPixel, 0, 0);
    canvas.FillRect(body, view.FrameBackColor);
}

void PaintTitleGround(const ContainerView& view, Canvas& canvas) {
    if (!view.ContainerLabel.Visible) return; // the title row is hidden
    const float height = std::min(measures::ContainerTitle, view.Container.Place.Height);
    const Rect row{0, 0, view.Container.Place.Width, height};
    if (view.LabelSelected) return canvas.FillRect(row, SelectionGround(view));
    canvas.FillRect(row, view.ContainerBackColor, TitleSetOff);
    canvas.FillRect({0, height - HairLine, row.Width, HairLine}, view.ContainerBackColor);
}

void PaintMark(const Element& element, const char* symbol, Color ink, float opacity, Canvas& canvas) {
    if (element.Visible) canvas.Symbol(symbol, element.Place, ink, opacity);
}

void PaintLabel(const frmMain& Main, const ContainerView& view, Canvas& canvas) {
    if (!view.ContainerLabel.Visible) return;
    TextStyle style;
    style.Elide = style.VerticalCenter = true;
    if (view.LabelSelected) {
        EruLabel label = view.ContainerLabel;
        label.ForeColor = TitleInk(view);
        return PaintEruLabel(canvas, label, Main.Settings.FontName, style);
    }
    if (ContrastRatio(view.ContainerLabel.ForeColor, view.FrameBackColor) < ReadableContrast)
        AddHalo(style, view.ContainerLabel.ForeColor, view.FrameBackColor);
    PaintEruLabel(canvas, view.ContainerLabel, Main.Settings.FontName, style);
}

void PaintPin(const ContainerView& view, Canvas& canvas) {
    if (!view.lblPinNote.Visible) return;
    const Color ink = TitleInk(view);
    if (view.PinPressed)
        canvas.RoundRect(Inset(view.lblPinNote.Place, -HairLine), 3 * HairLine, ink, {}, 0.25F);
    canvas.Symbol("pin-note", view.lblPinNote.Place, ink, view.PinPressed ? 1.0F : 0.65F);
}

void PaintTitle(const frmMain& Main, const ContainerView& view, Canvas& canvas) {
    PaintLabel(Main, view, canvas);
    const Color ink = TitleInk(view);
    PaintMark(view.shapeShrink, "shrink", ink, 0.65F, canvas);
    PaintMark(view.shapeTags, "tag", ink, 0.85F, canvas);
    PaintMark(view.shapeNoteIndicator, "note-mark", ink, 0.85F, canvas);
    PaintPin(view, canvas);
    PaintMark(view.lblFoldUnfold, view.FoldMark == "+" ? "unfold" : "fold", ink, 0.85F, canvas);
}

void PaintNote(const frmMain& Main, const ContainerView& view, Canvas& canvas) {
    const NoteView& note = view.ContainerNote;
    if (!note.Visible) return;
    const Rect place = Shifted(note.Place, {view.ContainerFrame.Place.Left, view.ContainerFrame.Place.Top});
    if (!canvas.Exposed().Intersects(place)) return;
    canvas.RoundRect(place, 4 * HairLine, note.BackColor, {});
    Rect text = Inset(place, measures::NotePadding);
    canvas.PushClip(text);
    text.Top -= note.ScrollTop;
    text.Height += note.ScrollTop;
    TextStyle style;
    style.Font = {Main.Settings.FontName, note.FontSize};
    style.Ink = note.ForeColor;
    style.WordBreak = style.Elide = true;
    // No line is lower than its letters, so this many reach the lower edge.
    const int lines = static_cast<int>(text.Height / (std::max(1.0F, note.FontSize) * 20)) + 2;
    canvas.Text(text, FirstLines(note.Text, lines), style);
    canvas.PopClip();
}

// The list of a feed has no rows before its reader is there: its ground stands for it.
void PaintFeed(const frmMain& Main, int index, const ContainerView& view, Canvas& canvas) {
    const int list = Main.Con(index).RSSListIndex;
    if (list < 0 || static_cast<std::size_t>(list) >= Main.FeedViews.size() || !Main.Feed(index).Visible)
        return;
    const FeedView& feed = Main.Feed(index);
    canvas.RoundRect(Shifted(feed.Place, {view.ContainerFrame.Place.Left, view.ContainerFrame.Place.Top}),
                     4 * HairLine, feed.FeedBackColor, {});
}

void PaintScrollBar(const frmMain& Main, int index, const ShortcutLists& lists, Canvas& canvas) {
    const ContainerView& view = Main.ConView(index);
    if (!view.VScroll.Visible) return;
    const Point frame{view.ContainerFrame.Place.Left, view.ContainerFrame.Place.Top};
    const float radius = view.VScroll.Place.Width / 2;
    canvas.RoundRect(Shifted(view.VScroll.Place, frame), radius, view.MarkForeColor, {}, 0.12F);
    canvas.RoundRect(Shifted(ScrollThumb(Main, index, lists), frame), radius, view.MarkForeColor, {}, 0.5F);
}

void PrintReminderOrEncAtBottom(const frmMain& Main, int index, const ContainerView& view, Canvas& canvas) {
    const std::string word = FootText(Main, index);
    if (word.empty()) return;
    TextStyle style;
    style.Font = {Main.Settings.FontName, FootPoints};
    style.Ink = view.MarkForeColor;
    style.VerticalCenter = true;
    const Rect body = Body(view);
    canvas.Text({measures::NoteLeft, body.Bottom() - measures::FootHeight,
                 body.Width - 2 * measures::NoteLeft, measures::FootHeight},
                word, style);
}

void DrawResizeSymbol(const ContainerView& view, Canvas& canvas) {
    canvas.Symbol("resize-grip", ResizeMarkPlace(Body(view)), view.MarkForeColor, 0.65F);
}

void PaintFrame(frmMain& Main, int index, const ShortcutLists& lists, Canvas& canvas) {
    const ContainerView& view = Main.ConView(index);
    const Ground ground = FrameGround(Main, index);
    if (!view.ContainerFrame.Visible || !canvas.Exposed().Intersects(ground.Place)) return;
    if (ground.HasRamp) DrawGradient(canvas, ground.Place, ground.BackColor, ground.Kind);
    canvas.PushClip(ground.Place);
    if (!view.PinPressed) PaintShortcuts(Main, ground, lists, canvas); // a note covers them
    PaintFeed(Main, index, view, canvas);
    PaintNote(Main, view, canvas);
    PrintReminderOrEncAtBottom(Main, index, view, canvas);
    DrawResizeSymbol(view, canvas);
    PaintScrollBar(Main, index, lists, canvas);
    canvas.PopClip();
}

// Icons are drawn for a few sizes and blur at any other.
float IconEdgeFor(float room) {
    for (const float pixels : {64.0F, 48.0F, 32.0F, 24.0F, 16.0F})
        if (pixels * TwipsPerPixel <= room) return pixels * TwipsPerPixel;
    return std::max(0.0F, room);
}

// The whole tile shows the icon, as large as it has room.
void PaintTile(const ContainerView& view, Canvas& canvas) {
    const Rect body = Body(view);
    const float room = std::min(body.Width, body.Height) - 2 * TilePadding;
    if (view.LabelSelected) canvas.FillRect(body, SelectionGround(view), TileSetOff);
    const Rect place =
        CenteredIn(body, IconEdgeFor(view.IconSmall ? measures::SmallIconPixels * TwipsPerPixel : room));
    if (!canvas.Icon({view.IconFile, {}, IsImageName(view.IconFile)}, place))
        canvas.Symbol("generic-folder", place, view.MarkForeColor, 0.8F);
    PaintMark(view.shapeTags, "tag", view.MarkForeColor, 0.85F, canvas);
}

} // namespace

void PaintContainer(frmMain& Main, int Index, const ShortcutLists& lists, Canvas& canvas) {
    if (!IsLive(Main.Containers, Index)) return;
    const ContainerView& view = Main.ConView(Index);
    BeginBody(view, IsDropTarget(Main, Index), canvas);
    if (IsShrunk(Main, Index)) {
        PaintTile(view, canvas);
    } else {
        if (!IsFolded(Main, Index)) PaintFrame(Main, Index, lists, canvas);
        PaintTitleGround(view, canvas);
        PaintTitle(Main, view, canvas);
    }
    canvas.PopClip();
}

} // namespace quill
