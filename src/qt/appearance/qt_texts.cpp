#include "qt/appearance/qt_texts.h"

#include "qt/appearance/text_block.h"
#include "qt/core/convert.h"
#include "qt/core/display.h"

#include <QFontInfo>

namespace quill {

// Asks what is chosen for the name instead of listing all fonts, which takes long.
bool QtTexts::FontExists(const std::string& name) const {
    const QString wanted = Text(name);
    return QFontInfo(QFont(wanted)).family().compare(wanted, Qt::CaseInsensitive) == 0;
}

Size QtTexts::MeasureText(const FontSpec& font, std::string_view text, float wrapWidth) const {
    BlockShape shape;
    shape.Wrap = wrapWidth > 0;
    if (shape.Wrap) shape.Width = wrapWidth / TwipsPerPixel;
    auto& looks = display_.Get().Looks;
    const auto& block = looks.Texts.Get(looks.Fonts.Get(font), text, shape).Block;
    return {static_cast<float>(block.Width()) * TwipsPerPixel,
            static_cast<float>(block.Height()) * TwipsPerPixel};
}

} // namespace quill
