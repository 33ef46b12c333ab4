// Icons of shortcuts: which file or name of the icon theme carries the icon, and what is drawn until it is
// there or where the desktop has none. Asks no file.
#pragma once

#include "core/frmMain.h"
#include "platform/drawing.h"

#include <string_view>

namespace quill {

// With UseCustom the record's own Icon comes first.
IconSource GetIconSource(const frmMain& Main, int Index, bool UseCustom);
// Name of the symbol that stands for its kind: "generic-link", "generic-program" ...
std::string_view GenericSymbol(const clsShortcut& record);
bool IsImageName(std::string_view path); // by its ending

} // namespace quill
