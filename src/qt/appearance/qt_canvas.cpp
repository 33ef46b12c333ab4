#include "qt/appearance/qt_canvas.h"

#include "qt/appearance/text_block.h"
#include "qt/core/convert.h"

#include <QPainterPath>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <optional>

namespace quill {
namespace {

constexpr float haloOpacity = 0.28F; // of each of the eight copies around a text
constexpr qreal haloMargin = 4;      // pixels

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

// A text that is not broken may be longer and higher than its place.
Rect WithOverhang(const Rect& place, const TextStyle& style) {
    if (style.WordBreak || style.Elide) return place;
    const float more = 40 * style.Font.Points * TwipsPerPixel;
    const float line = 2 * style.Font.Points * TwipsPerPixel;
    return {place.Left - more, place.Top - line, place.Width + 2 * more, place.Height + 2 * line};
}

// The text in the halo's colour with a margin around it; letters reach beyond their line.
QImage HaloCopy(const TextBlock& block, Color color, qreal scale) {
    const QSizeF size(block.Width() + 2 * haloMargin, block.Height() + 2 * haloMargin);
    QImage copy((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (copy.isNull()) return copy;
    copy.setDevicePixelRatio(scale);
    copy.fill(Qt::transparent);
    QPainter painter(&copy);
    painter.setPen(Ink(color, haloOpacity));
    block.Draw(painter, {haloMargin, haloMargin});
    return copy;
}

// Letters are drawn once and copied, which is quicker than drawing them eight times.
void DrawHalo(QPainter& painter, const TextBlock& block, QPointF corner, Color color, qreal scale) {
    const QImage copy = HaloCopy(block, color, scale);
    const QPointF place = corner - QPointF(haloMargin, haloMargin);
    const qreal step = std::max(1.0, std::round(scale)) / scale; // whole pixels of the device
    for (const int y : {-1, 0, 1})
        for (const int x : {-1, 0, 1})
            if (x != 0 || y != 0) painter.drawImage(place + QPointF(x * step, y * step), copy);
}

} // namespace

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
    Smooth(false);
    painter_.fillRect(Snap(place), Ink(color, opacity));
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
    if (!apart) return painter_.drawRoundedRect(line, corner, corner);
    const qreal inner = std::max(0.0, corner - width / 2);
    painter_.drawRoundedRect(outer.adjusted(width, width, -width, -width), inner, inner);
    painter_.setPen(ink);
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRoundedRect(line, corner, corner);
}

// Lines along an axis are boxes of whole pixels; only slanted ones are smoothed.
void QtCanvas::Line(Point from, Point to, Pen pen) {
    const QPointF start = Snap(from), end = Snap(to);
    const qreal width = PenWidth(std::max(1, pen.Width));
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
    const FontEntry& font = looks_.Fonts.Get(style.Font);
    const QString shown = quill::Text(text);
    const BlockShape shape = ShapeOf(place, style);
    std::optional<TextBlock> fresh;
    const bool known = looks_.Measured.Is(font, shown, shape);
    const TextBlock& block = known ? *looks_.Measured.Block : fresh.emplace(font, shown, shape);
    Point corner{place.Left, place.Top};
    if (style.VerticalCenter)
        corner.Y += (place.Height - static_cast<float>(block.Height()) * TwipsPerPixel) / 2;
    const QPointF at = Snap(corner);
    const bool cut = style.Clip && !Fits(block, place);
    if (cut) PushClip(place, 0);
    if (style.Halo) DrawHalo(painter_, block, at, style.HaloColor, scale_);
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
    const QRectF box = Snap(place);
    const QSize device = (box.size() * scale_).toSize();
    const QImage image = looks_.Pictures.Get(quill::Text(path), device, SpotOf(place));
    if (image.isNull()) return false;
    Smooth(false);
    painter_.drawImage(box, image);
    return true;
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

void QtCanvas::PushClip(const Rect& place, float radius) {
    painter_.save();
    const QRectF box = Snap(place);
    if (radius <= 0) {
        Smooth(false);
        painter_.setClipRect(box, Qt::IntersectClip);
        return;
    }
    QPainterPath path;
    path.addRoundedRect(box, radius / TwipsPerPixel, radius / TwipsPerPixel);
    Smooth(true);
    painter_.setClipPath(path, Qt::IntersectClip);
}

void QtCanvas::PopClip() {
    painter_.restore();
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

void QtCanvas::DrawCentered(const QImage& image, const Rect& place) {
    if (image.isNull()) return;
    const QSizeF size = QSizeF(image.size()) / scale_;
    const float left = place.Left + (place.Width - static_cast<float>(size.width()) * TwipsPerPixel) / 2;
    const float top = place.Top + (place.Height - static_cast<float>(size.height()) * TwipsPerPixel) / 2;
    Smooth(false);
    painter_.drawImage(QRectF(Snap(Point{left, top}), size), image);
}

Spot QtCanvas::SpotOf(const Rect& place) const {
    return {&surface_, Snap(place).toAlignedRect()};
}

} // namespace quill
