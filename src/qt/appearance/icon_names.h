// IconNames: what the desktop says about the look of a file: names to ask the icon theme for, or an image
// file. Asks the disk and GIO, so it belongs on a worker's thread; knows no toolkit's theme.
#pragma once

#include "platform/drawing.h"

#include <QImage>
#include <QString>

#include <string>
#include <vector>

namespace quill {

struct IconAnswer {
    QImage Image;                   // the icon itself, when the file is or names an image
    std::vector<std::string> Names; // else of the theme, best first; empty: nothing is known
};

IconAnswer FindIcon(const IconSource& source, int side); // side in device pixels

} // namespace quill
