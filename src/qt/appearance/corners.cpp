#include "qt/appearance/corners.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace quill {
namespace {

constexpr std::size_t mostKept = 16; // a workspace has three or four radiuses

QImage Drawn(qreal radius) {
    const int side = 2 * static_cast<int>(std::ceil(radius));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainterPath path;
    path.addRoundedRect(image.rect(), radius, radius);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, Qt::white);
    painter.end();
    return image.convertToFormat(QImage::Format_Alpha8);
}

// At a place of a corner's cell.
int SolidAt(const QImage& solid, CornerTurn turn, int x, int y) {
    const int cell = solid.width() / 2;
    return solid.constScanLine(turn.Bottom ? cell + y : y)[turn.Right ? cell + x : x];
}

QRgb Thinned(QRgb premultiplied, int solid) {
    const auto part = [solid](int channel) { return channel * solid / 255; };
    return qRgba(part(qRed(premultiplied)), part(qGreen(premultiplied)), part(qBlue(premultiplied)),
                 part(qAlpha(premultiplied)));
}

} // namespace

const QImage& Corners::Solid(qreal radius) {
    const auto found = made_.find(radius);
    if (found != made_.end()) return found->second;
    if (made_.size() >= mostKept) made_.clear();
    return made_.emplace(radius, Drawn(radius)).first->second;
}

QImage CornerPart(const QImage& solid, CornerTurn turn, const QRect& part, QColor color) {
    QImage image(part.size(), QImage::Format_ARGB32_Premultiplied);
    const QRgb ink = qPremultiply(color.rgba());
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] = Thinned(ink, SolidAt(solid, turn, part.left() + x, part.top() + y));
    }
    return image;
}

void CutAtCorner(QImage& image, const QImage& solid, CornerTurn turn, QPoint cell) {
    const QRect part = QRect(cell, solid.size() / 2) & image.rect();
    for (int y = part.top(); y <= part.bottom(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = part.left(); x <= part.right(); ++x)
            row[x] = Thinned(row[x], SolidAt(solid, turn, x - cell.x(), y - cell.y()));
    }
}

} // namespace quill
