#include "qt/appearance/qt_canvas.h"

#include "qt/core/convert.h"

#include <QPainterPath>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

// More rows at once the painter shares among threads, which for anything narrower than this takes longer than
// drawing them. Pixels of the device.
constexpr int rowsAtOnce = 64, widest = 512;

Qt::Alignment AlignOf(TextAlign align) {
    if (align == TextAlign::Center) return Qt::AlignHCenter;
    return align == TextAlign::Right ? Qt::AlignRight : Qt::AlignLeft;
}

Qt::PenStyle StyleOf(PenStyle style) {
    static constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                              Qt::DashDotDotLine};
    return styles[static_cast<std::size_t>(style)];
}

BlockShape ShapeOf(const Rect& place, const TextStyle& style) {
    BlockShape shape;
    shape.Width = place.Width / TwipsPerPixel;
    shape.Wrap = style.WordBreak;
    shape.Elide = style.Elide;
    shape.Align = AlignOf(style.Align);
    if (style.WordBreak) shape.Height = place.Height / TwipsPerPixel;
    return shape;
}

bool Fits(const TextBlock& block, const Rect& place) {
    return block.Width() * TwipsPerPixel <= place.Width && block.Height() * TwipsPerPixel <= place.Height;
}

QString OneLine(QString text) {
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

// Letters and their halo reach beyond the line, and the line may be higher than its place. A text that is
// neither broken nor cut may be longer, too.
Rect WithOverhang(const Rect& place, const TextStyle& style) {
    const float line = 2 * style.Font.Points * TwipsPerPixel;
    const float more = (style.WordBreak || style.Elide ? 1 : 20) * line;
    return {place.Left - more, place.Top - line, place.Width + 2 * more, place.Height + 2 * line};
}

// Shares the pixels. A part of an image that is named by its place in it would be drawn by a slower way.
QImage PieceOf(const QImage& image, const QRect& part) {
    const uchar* first = image.constScanLine(part.top()) + part.left() * (image.depth() / 8);
    return {first, part.width(), part.height(), image.bytesPerLine(), image.format()};
}

constexpr CornerTurn turns[] = {{false, false}, {true, false}, {false, true}, {true, true}};

} // namespace

qreal RoundBox::Cell() const {
    return std::ceil(Radius);
}

QRectF RoundBox::CellAt(CornerTurn turn) const {
    const qreal cell = Cell();
    return {turn.Right ? Box.right() - cell : Box.left(), turn.Bottom ? Box.bottom() - cell : Box.top(), cell,
            cell};
}

// Cuts what is drawn while it lives where that touches a round corner of the clip.
class QtCanvas::CornerCut {
public:
    CornerCut(QtCanvas& canvas, const QRectF& box) : painter_(canvas.painter_), cuts_(canvas.AtCorner(box)) {
        if (!cuts_) return;
        painter_.save();
        canvas.ClipTo(canvas.round_);
    }
    ~CornerCut() {
        if (cuts_) painter_.restore();
    }
    CornerCut(const CornerCut&) = delete;
    CornerCut& operator=(const CornerCut&) = delete;

private:
    QPainter& painter_;
    bool cuts_;
};

QtCanvas::QtCanvas(QPainter& painter, QWidget& surface, const QRegion& exposed, Looks& looks)
    : painter_(painter), surface_(surface), exposed_(exposed), looks_(looks),
      toDevice_(painter.deviceTransform()), fromDevice_(toDevice_.inverted()), scale_(toDevice_.m11()) {
    painter_.setRenderHint(QPainter::SmoothPixmapTransform);
}

Rect QtCanvas::Exposed() const {
    return TwipRect(exposed_.boundingRect());
}

void QtCanvas::FillRect(const Rect& place, Color color, float opacity) {
    if (!IsExposed(place)) return;
    const QRectF box = toDevice_.mapRect(Snap(place));
    const QColor ink = Ink(color, opacity);
    if (AtCorner(box))
        FillWithin(round_, box, ink);
    else
        FillPlain(box, ink);
}

void QtCanvas::RoundRect(const Rect& place, float radius, Color fill, Pen pen, float opacity) {
    if (!IsExposed(place)) return;
    const QRectF outer = Snap(place);
    const qreal width = PenWidth(pen.Width);
    const QRectF line = outer.adjusted(width / 2, width / 2, -width / 2, -width / 2);
    const qreal roundest = std::min(outer.width(), outer.height()) / 2;
    const qreal corner = std::max(0.0, std::min<qreal>(radius / TwipsPerPixel, roundest) - width / 2);
    Smooth(corner > 0);
    const bool apart = width > 0 && opacity < 1; // or the inner half of the line would show the fill as well
    const QPen ink(Ink(pen.Ink, opacity), width, StyleOf(pen.Style), Qt::FlatCap, Qt::MiterJoin);
    painter_.setPen(width > 0 && !apart ? ink : QPen(Qt::NoPen));
    painter_.setBrush(Ink(fill, opacity));
    if (!apart && width <= 0 && FillRound(outer, corner, Ink(fill, opacity))) return;
    const CornerCut cut(*this, toDevice_.mapRect(outer));
    Smooth(corner > 0);
    if (!apart) return painter_.drawRoundedRect(line, corner, corner);
    const qreal inner = std::max(0.0, corner - width / 2);
    painter_.drawRoundedRect(outer.adjusted(width, width, -width, -width), inner, inner);
    painter_.setPen(ink);
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRoundedRect(line, corner, corner);
}

// False where the box is too small for its corners, or reaches into those of the clip.
bool QtCanvas::FillRound(const QRectF& box, qreal radius, QColor color) {
    const RoundBox round{toDevice_.mapRect(box), radius * scale_};
    const qreal least = 2 * round.Cell();
    if (radius <= 0 || AtCorner(round.Box) || round.Box.width() < least || round.Box.height() < least)
        return false;
    FillWithin(round, round.Box, color);
    return true;
}

// What of a box lies in a round one: a few plain boxes and four corners, which is much less work than a round
// shape.
void QtCanvas::FillWithin(const RoundBox& round, const QRectF& box, QColor color) {
    const qreal cell = round.Cell();
    const QRectF middle = round.Box.adjusted(0, cell, 0, -cell),
                 inner = round.Box.adjusted(cell, 0, -cell, 0);
    FillPlain(box & middle, color);
    FillPlain(box & QRectF(inner.left(), inner.top(), inner.width(), cell), color);
    FillPlain(box & QRectF(inner.left(), middle.bottom(), inner.width(), cell), color);
    for (const CornerTurn turn : turns) FillCorner(round, turn, box, color);
}

void QtCanvas::FillPlain(const QRectF& box, QColor color) {
    if (box.isEmpty()) return;
    Smooth(false);
    const bool plain = color.alpha() == 255 && exposed_.rectCount() == 1;
    if (plain || box.width() > widest) return painter_.fillRect(fromDevice_.mapRect(box), color);
    for (qreal top = box.top(); top < box.bottom(); top += rowsAtOnce) {
        const QRectF strip(box.left(), top, box.width(), std::min<qreal>(rowsAtOnce, box.bottom() - top));
        painter_.fillRect(fromDevice_.mapRect(strip), color);
    }
}

// What of a box lies in one corner of a round one.
void QtCanvas::FillCorner(const RoundBox& round, CornerTurn turn, const QRectF& box, QColor color) {
    const QRectF cell = round.CellAt(turn), part = box.intersected(cell);
    if (part.isEmpty()) return;
    const QRect inCell = part.translated(-cell.topLeft()).toRect();
    Blit(CornerPart(looks_.Corners.Solid(round.Radius), turn, inCell, color), part.topLeft());
}

bool QtCanvas::AtCorner(const QRectF& box) const {
    return round_.Radius > 0 &&
           std::ranges::any_of(turns, [&](CornerTurn turn) { return round_.CellAt(turn).intersects(box); });
}

// Lines along an axis are boxes of whole pixels; only slanted ones are smoothed.
void QtCanvas::Line(Point from, Point to, Pen pen) {
    const QPointF start = Snap(from), end = Snap(to);
    const qreal width = PenWidth(std::max(1, pen.Width));
    const CornerCut cut(
        *this, toDevice_.mapRect(QRectF(start, end).normalized().adjusted(-width, -width, width, width)));
    if (start.x() == end.x() || start.y() == end.y()) {
        const QRectF box = QRectF(start, end).normalized();
        const QSizeF size(std::max(box.width(), width), std::max(box.height(), width));
        Smooth(false);
        painter_.fillRect(QRectF(box.topLeft(), size), Ink(pen.Ink));
        return;
    }
    Smooth(true);
    painter_.setPen(QPen(Ink(pen.Ink), width, Qt::SolidLine, Qt::RoundCap));
    painter_.drawLine(start, end);
}

void QtCanvas::Text(const Rect& place, std::string_view text, const TextStyle& style) {
    if (text.empty() || !IsExposed(WithOverhang(place, style))) return;
    auto& laid = looks_.Texts.Get(looks_.Fonts.Get(style.Font), text, ShapeOf(place, style));
    const TextBlock& block = laid.Block;
    Point corner{place.Left, place.Top};
    if (style.VerticalCenter)
        corner.Y += (place.Height - static_cast<float>(block.Height()) * TwipsPerPixel) / 2;
    const QPointF at = Snap(corner);
    const CornerCut corners(*this, toDevice_.mapRect(QRectF(at, QSizeF(block.Width(), block.Height()))));
    const bool cut = style.Clip && !Fits(block, place);
    if (cut) PushClip(place, 0);
    if (style.Halo) DrawHalo(laid, at, Ink(style.HaloColor));
    painter_.setPen(Ink(style.Ink));
    block.Draw(painter_, at);
    if (cut) PopClip();
}

void QtCanvas::RotatedText(Point at, std::string_view text, const TextStyle& style, int tenths) {
    if (text.empty()) return;
    const TextBlock block(looks_.Fonts.Get(style.Font), OneLine(quill::Text(text)), {});
    constexpr double tenthsInADegree = 10;
    const QPointF corner = Snap(at);
    const QTransform turn =
        QTransform::fromTranslate(corner.x(), corner.y()).rotate(-tenths / tenthsInADegree);
    const QRectF upright(-1, -1, block.Width() + 2, block.Height() + 2);
    if (!exposed_.intersects(turn.mapRect(upright).toAlignedRect())) return;
    painter_.save();
    painter_.setTransform(turn, true);
    painter_.setPen(Ink(style.Ink));
    block.Draw(painter_, {0, 0});
    painter_.restore();
}

void QtCanvas::Symbol(std::string_view name, const Rect& place, Color ink, float opacity) {
    if (!IsExposed(place)) return;
    const QImage image = looks_.Symbols.Get(quill::Text(name), DeviceSide(place), Ink(ink));
    painter_.setOpacity(opacity);
    DrawCentered(image, place);
    painter_.setOpacity(1);
}

bool QtCanvas::Icon(const IconSource& source, const Rect& place) {
    const QImage image = looks_.Icons.Get(source, DeviceSide(place), SpotOf(place));
    DrawCentered(image, place);
    return !image.isNull();
}

bool QtCanvas::Picture(const std::string& path, const Rect& place) {
    const QImage image = PictureFor(path, place);
    if (image.isNull()) return false;
    const QRectF box = Snap(place);
    const CornerCut cut(*this, toDevice_.mapRect(box));
    Smooth(false);
    if (QSizeF(image.size()) != box.size() || scale_ != 1) {
        painter_.drawImage(box, image);
        return true;
    }
    const QPoint corner = box.topLeft().toPoint();
    for (const QRect& part : exposed_.intersected(box.toAlignedRect())) DrawPiece(image, part, corner);
    return true;
}

// A wallpaper is large, and most of it may be covered.
void QtCanvas::DrawPiece(const QImage& image, const QRect& part, QPoint corner) {
    for (int top = part.top(); top <= part.bottom(); top += rowsAtOnce) {
        const QRect strip = QRect(part.left(), top, part.width(), rowsAtOnce) & part;
        painter_.drawImage(QPointF(strip.topLeft()), PieceOf(image, strip.translated(-corner)));
    }
}

bool QtCanvas::Hides(const std::string& path, const Rect& place) {
    const QImage image = PictureFor(path, place);
    return !image.isNull() && !image.hasAlphaChannel();
}

bool QtCanvas::Button(const std::string& path, const Rect& place, Color fallbackInk,
                      std::string_view fallbackSymbol) {
    if (!path.empty()) {
        const QImage image = looks_.Symbols.Button(quill::Text(path), DeviceSide(place));
        DrawCentered(image, place);
        if (!image.isNull()) return true;
    }
    if (!fallbackSymbol.empty()) Symbol(fallbackSymbol, place, fallbackInk, 1);
    return false;
}

// Under a clip of the painter that is no plain box all it draws would take much longer. So the clip is a box,
// and what touches one of its round corners is cut there by itself.
void QtCanvas::PushClip(const Rect& place, float radius) {
    painter_.save();
    ++depth_;
    const QRectF box = Snap(place);
    const RoundBox round{toDevice_.mapRect(box), radius / TwipsPerPixel * scale_};
    if (radius > 0 && round_.Radius > 0) return ClipTo(round);
    Smooth(false);
    painter_.setClipRect(box, Qt::IntersectClip);
    if (radius <= 0 || !CornersShow(round)) return;
    round_ = round;
    roundDepth_ = depth_;
}

void QtCanvas::PopClip() {
    if (roundDepth_ == depth_) {
        round_ = {};
        roundDepth_ = -1;
    }
    --depth_;
    painter_.restore();
}

void QtCanvas::ClipTo(const RoundBox& round) {
    QPainterPath path;
    path.addRoundedRect(fromDevice_.mapRect(round.Box), round.Radius / scale_, round.Radius / scale_);
    Smooth(true);
    painter_.setClipPath(path, Qt::IntersectClip);
}

bool QtCanvas::CornersShow(const RoundBox& round) const {
    return std::ranges::any_of(turns, [&](CornerTurn turn) {
        return exposed_.intersects(fromDevice_.mapRect(round.CellAt(turn)).toAlignedRect());
    });
}

// One pixel more, since edges are rounded.
bool QtCanvas::IsExposed(const Rect& place) const {
    return exposed_.intersects(PixelRect(place).normalized().adjusted(-1, -1, 1, 1));
}

QPointF QtCanvas::Snap(Point place) const {
    const QPointF device = toDevice_.map(QPointF(place.X / TwipsPerPixel, place.Y / TwipsPerPixel));
    return fromDevice_.map(QPointF(std::round(device.x()), std::round(device.y())));
}

QRectF QtCanvas::Snap(const Rect& place) const {
    return QRectF(Snap(Point{place.Left, place.Top}), Snap(Point{place.Right(), place.Bottom()}));
}

qreal QtCanvas::PenWidth(int pixels) const {
    if (pixels <= 0) return 0;
    return std::max(1.0, std::round(pixels * scale_)) / scale_;
}

int QtCanvas::DeviceSide(const Rect& place) const {
    return static_cast<int>(std::lround(std::min(place.Width, place.Height) / TwipsPerPixel * scale_));
}

// Each switch costs the painter as much as a small box; most of what is drawn needs none.
void QtCanvas::Smooth(bool smooth) {
    if (painter_.testRenderHint(QPainter::Antialiasing) != smooth)
        painter_.setRenderHint(QPainter::Antialiasing, smooth);
}

QImage QtCanvas::PictureFor(const std::string& path, const Rect& place) {
    return looks_.Pictures.Get(quill::Text(path), (Snap(place).size() * scale_).toSize(), SpotOf(place));
}

void QtCanvas::DrawHalo(LaidText& laid, QPointF corner, QColor color) {
    if (!laid.Halo.IsFor(scale_)) laid.Halo = Halo(laid.Block, scale_);
    DrawPixels(laid.Halo.In(color.rgb()), toDevice_.map(corner) + laid.Halo.Corner());
}

// Pixel by pixel of the device.
void QtCanvas::DrawPixels(const QImage& image, QPointF corner) {
    if (!image.isNull()) Blit(AtCorner({corner, image.size()}) ? CutAtCorners(image, corner) : image, corner);
}

QImage QtCanvas::CutAtCorners(const QImage& image, QPointF corner) const {
    QImage cut = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (const CornerTurn turn : turns)
        CutAtCorner(cut, looks_.Corners.Solid(round_.Radius), turn,
                    (round_.CellAt(turn).topLeft() - corner).toPoint());
    return cut;
}

void QtCanvas::Blit(const QImage& image, QPointF corner) {
    Smooth(false);
    if (scale_ == 1) return painter_.drawImage(fromDevice_.map(corner), image);
    painter_.drawImage(QRectF(fromDevice_.map(corner), QSizeF(image.size()) / scale_), image);
}

void QtCanvas::DrawCentered(const QImage& image, const Rect& place) {
    if (image.isNull()) return;
    const QSizeF size = QSizeF(image.size()) / scale_;
    const float left = place.Left + (place.Width - static_cast<float>(size.width()) * TwipsPerPixel) / 2;
    const float top = place.Top + (place.Height - static_cast<float>(size.height()) * TwipsPerPixel) / 2;
    DrawPixels(image, toDevice_.map(Snap(Point{left, top})));
}

Spot QtCanvas::SpotOf(const Rect& place) const {
    return {&surface_, Snap(place).toAlignedRect()};
}

} // namespace quill
