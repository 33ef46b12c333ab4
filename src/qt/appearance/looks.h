// Looks: all that the canvas fetches or makes once and keeps: fonts, symbols, icons, pictures.
#pragma once

#include "qt/appearance/corners.h"
#include "qt/appearance/fonts.h"
#include "qt/appearance/icons.h"
#include "qt/appearance/pictures.h"
#include "qt/appearance/symbols.h"
#include "qt/appearance/text_cache.h"

namespace quill {

struct Looks {
    Looks(const QString& symbolFolder, Worker& worker)
        : Symbols(symbolFolder), Icons(worker), Pictures(worker) {}

    quill::Fonts Fonts;
    TextCache Texts;
    quill::Corners Corners;
    quill::Symbols Symbols;
    quill::Icons Icons;
    quill::Pictures Pictures;
};

} // namespace quill
