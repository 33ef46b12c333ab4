#include "qt/appearance/qt_images.h"

#include "qt/appearance/decode.h"
#include "qt/core/convert.h"
#include "qt/core/display.h"

#include <QImage>

namespace quill {
namespace {

constexpr int halfSolid = 128; // of 255; what is less counts as transparent
constexpr Color transparent = -1;

PixelGrid GridOf(const QImage& image) {
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    PixelGrid grid{pixels.width(), pixels.height(), {}};
    grid.Colors.reserve(static_cast<std::size_t>(grid.Width) * static_cast<std::size_t>(grid.Height));
    for (int y = 0; y < grid.Height; ++y) {
        for (int x = 0; x < grid.Width; ++x) {
            const QRgb pixel = pixels.pixel(x, y);
            const bool seen = qAlpha(pixel) >= halfSolid;
            grid.Colors.push_back(seen ? Rgb(qRed(pixel), qGreen(pixel), qBlue(pixel)) : transparent);
        }
    }
    return grid;
}

} // namespace

Size QtImages::PictureSize(const std::string& path) const {
    const QSize size = NaturalSize(Text(path));
    if (size.isEmpty()) return {};
    return {static_cast<float>(size.width()) * TwipsPerPixel,
            static_cast<float>(size.height()) * TwipsPerPixel};
}

PixelGrid QtImages::PixelsOf(const IconSource& source, int edgePixels) const {
    return GridOf(display_.Get().Looks.Icons.Now(source, edgePixels));
}

void QtImages::Forget(const std::string& path) {
    display_.Get().Looks.Pictures.Forget(Text(path));
    display_.Get().Looks.Icons.Forget(path);
}

} // namespace quill
