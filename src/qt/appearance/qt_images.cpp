#include "qt/appearance/qt_images.h"

#include "qt/appearance/decode.h"
#include "qt/core/convert.h"
#include "qt/core/display.h"

namespace quill {

Size QtImages::PictureSize(const std::string& path) const {
    const QSize size = NaturalSize(Text(path));
    if (size.isEmpty()) return {};
    return {static_cast<float>(size.width()) * TwipsPerPixel,
            static_cast<float>(size.height()) * TwipsPerPixel};
}

void QtImages::Forget(const std::string& path) {
    display_.Get().Looks.Pictures.Forget(Text(path));
    display_.Get().Looks.Icons.Forget(path);
}

} // namespace quill
