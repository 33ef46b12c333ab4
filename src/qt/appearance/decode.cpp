#include "qt/appearance/decode.h"

#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace quill {
namespace {

constexpr int megabytesAtMost = 512; // of decoded pixels
constexpr int largestSide = 32767;
constexpr int mostSizes = 64; // in a file that holds an image in several sizes

struct Kind {
    const char* Format;
    std::string_view Start; // of the file
};

constexpr Kind kinds[] = {
    {"png", "\x89PNG\r\n\x1A\n"},
    {"jpeg", "\xFF\xD8\xFF"},
    {"gif", "GIF8"},
    {"bmp", "BM"},
    {"ico", {"\0\0\1\0", 4}},
    {"webp", "RIFF"},
    {"icns", "icns"},
    {"svg", "<svg"},
    {"svg", "<?xml"},
};

// Told by the first bytes, whatever the file is called. Empty for the rarer kinds: asking every reader
// whether a file is its own loads them all, with the libraries that they need.
QByteArray FormatOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return {};
    const QByteArray head = file.read(16);
    const std::string_view bytes(head.data(), static_cast<std::size_t>(head.size()));
    const auto* kind =
        std::ranges::find_if(kinds, [&](const Kind& it) { return bytes.starts_with(it.Start); });
    return kind == std::end(kinds) ? QByteArray() : QByteArray(kind->Format);
}

void Prepare(QImageReader& reader) {
    reader.setAutoTransform(true);
    reader.setAllocationLimit(megabytesAtMost);
    const QByteArray format = FormatOf(reader.fileName());
    if (format.isEmpty()) return reader.setDecideFormatFromContent(true);
    reader.setFormat(format);
    reader.setAutoDetectImageFormat(false);
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
bool IsBetter(int width, int best, int side) {
    const bool enough = width >= side, hadEnough = best >= side;
    if (enough != hadEnough) return enough;
    return enough ? width < best : width > best;
}

QImage ReadAt(QImageReader& reader, int at) {
    return reader.jumpToImage(at) ? reader.read() : QImage();
}

// The size of each is told by the head of the file; the others are read only where the best one is damaged.
QImage BestOfSeveral(QImageReader& reader, int side) {
    int best = -1, width = 0;
    const int count = std::min(reader.imageCount(), mostSizes);
    for (int at = 0; at < count && reader.jumpToImage(at); ++at) {
        const QSize size = reader.size();
        if (!Sensible(size) || (best >= 0 && !IsBetter(size.width(), width, side))) continue;
        best = at;
        width = size.width();
    }
    QImage image = best >= 0 ? ReadAt(reader, best) : QImage();
    for (int at = 0; image.isNull() && at < count; ++at) image = ReadAt(reader, at);
    return image;
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
