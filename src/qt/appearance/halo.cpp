#include "qt/appearance/halo.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace quill {
namespace {

constexpr int copySolid = 71; // of 255: how solid each of the eight copies is
constexpr qreal reach = 4;    // of letters beyond their line and of the halo beyond them, pixels

// How solid the text is, 8 bits a pixel, with a margin around it.
QImage Letters(const TextBlock& block, qreal scale, int margin) {
    const QSize size(static_cast<int>(std::ceil(block.Width() * scale)) + 2 * margin,
                     static_cast<int>(std::ceil(block.Height() * scale)) + 2 * margin);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(margin, margin);
    painter.scale(scale, scale);
    painter.setPen(Qt::white);
    block.Draw(painter, {0, 0});
    painter.end();
    return image.convertToFormat(QImage::Format_Alpha8);
}

// What a copy leaves of what lies behind it, by how solid the letter is there.
std::array<std::uint8_t, 256> LeftBehindCopies() {
    std::array<std::uint8_t, 256> left{};
    for (int solid = 0; solid < 256; ++solid)
        left[static_cast<std::size_t>(solid)] = static_cast<std::uint8_t>(255 - copySolid * solid / 255);
    return left;
}

// Eight copies, each a step away from the letters, one over the other.
QImage Surrounded(const QImage& letters, int step) {
    const auto left = LeftBehindCopies();
    QImage halo(letters.size(), QImage::Format_Alpha8);
    halo.fill(0);
    const int width = letters.width(), height = letters.height();
    for (int y = step; y < height - step; ++y) {
        const uchar* rows[3] = {letters.constScanLine(y - step), letters.constScanLine(y),
                                letters.constScanLine(y + step)};
        uchar* out = halo.scanLine(y);
        for (int x = step; x < width - step; ++x) {
            std::uint32_t behind = 255 * 256;
            for (int row = 0; row < 3; ++row)
                for (const int at : {x - step, x, x + step})
                    if (row != 1 || at != x) behind = behind * left[rows[row][at]] / 255;
            out[x] = static_cast<uchar>(255 - (behind + 128) / 256);
        }
    }
    return halo;
}

bool IsEmptyRow(const QImage& image, int y) {
    const uchar* row = image.constScanLine(y);
    return std::all_of(row, row + image.width(), [](uchar solid) { return solid == 0; });
}

// Without the empty rows above and below.
QRect UsedPart(const QImage& image) {
    int top = 0, bottom = image.height();
    while (top + 1 < bottom && IsEmptyRow(image, top)) ++top;
    while (bottom - 1 > top && IsEmptyRow(image, bottom - 1)) --bottom;
    return {0, top, image.width(), bottom - top};
}

} // namespace

Halo::Halo(const TextBlock& block, qreal scale) : scale_(scale) {
    const int margin = static_cast<int>(std::ceil(reach * scale));
    const QImage letters = Letters(block, scale, margin);
    if (letters.isNull()) return;
    const QImage whole = Surrounded(letters, std::max(1, static_cast<int>(std::lround(scale))));
    const QRect used = UsedPart(whole);
    solid_ = whole.copy(used);
    corner_ = used.topLeft() - QPoint(margin, margin);
}

QImage Halo::In(QRgb color) const {
    QImage image(solid_.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return image;
    std::array<QRgb, 256> inks{};
    for (int solid = 0; solid < 256; ++solid)
        inks[static_cast<std::size_t>(solid)] =
            qPremultiply(qRgba(qRed(color), qGreen(color), qBlue(color), solid));
    for (int y = 0; y < image.height(); ++y) {
        const uchar* from = solid_.constScanLine(y);
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(from, from + image.width(), to, [&](uchar solid) { return inks[solid]; });
    }
    return image;
}

} // namespace quill
