#include "qt/appearance/decode.h"

#include <QImageReader>

#include <algorithm>

namespace quill {
namespace {

constexpr int megabytesAtMost = 512; // of decoded pixels
constexpr int largestSide = 32767;
constexpr int mostSizes = 64; // in a file that holds an image in several sizes

void Prepare(QImageReader& reader) {
    reader.setAutoTransform(true);
    reader.setAllocationLimit(megabytesAtMost);
    reader.setDecideFormatFromContent(true);
}

bool IsTurned(const QImageReader& reader) {
    return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

bool Sensible(QSize size) {
    return size.isValid() && !size.isEmpty() && size.width() <= largestSide && size.height() <= largestSide;
}

QImage ReadScaled(QImageReader& reader, QSize size) {
    reader.setScaledSize(IsTurned(reader) ? size.transposed() : size);
    const QImage image = reader.read();
    if (image.isNull() || image.size() == size) return image;
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage ForScreen(const QImage& image) {
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

// The smallest that is large enough, else the largest.
bool IsBetter(const QImage& image, const QImage& best, int side) {
    if (best.isNull()) return true;
    const bool enough = image.width() >= side, hadEnough = best.width() >= side;
    if (enough != hadEnough) return enough;
    return enough ? image.width() < best.width() : image.width() > best.width();
}

QImage BestOfSeveral(QImageReader& reader, int side) {
    QImage best;
    const int count = std::min(reader.imageCount(), mostSizes);
    for (int at = 0; at < count && reader.jumpToImage(at); ++at) {
        const QImage image = reader.read();
        if (!image.isNull() && IsBetter(image, best, side)) best = image;
    }
    return best;
}

QSize Within(QSize size, int side) {
    if (size.width() <= side && size.height() <= side) return size;
    return size.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
}

} // namespace

QSize NaturalSize(const QString& path) {
    QImageReader reader(path);
    Prepare(reader);
    const QSize size = reader.size();
    if (!Sensible(size)) return {};
    return IsTurned(reader) ? size.transposed() : size;
}

QImage DecodeStretched(const QString& path, QSize size) {
    QImageReader reader(path);
    Prepare(reader);
    if (!Sensible(size) || !Sensible(reader.size())) return {};
    return ForScreen(ReadScaled(reader, size));
}

QImage DecodeWithin(const QString& path, int side) {
    QImageReader reader(path);
    Prepare(reader);
    const bool several = reader.format() == "ico" || reader.format() == "icns";
    if (several) {
        const QImage best = BestOfSeveral(reader, side);
        if (best.isNull()) return {};
        return ForScreen(
            best.scaled(Within(best.size(), side), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    QSize size = reader.size();
    if (!Sensible(size)) return {};
    if (IsTurned(reader)) size = size.transposed();
    const bool drawing = reader.format() == "svg" || reader.format() == "svgz";
    const QSize wanted = drawing ? size.scaled(side, side, Qt::KeepAspectRatio) : Within(size, side);
    return ForScreen(ReadScaled(reader, wanted));
}

} // namespace quill
