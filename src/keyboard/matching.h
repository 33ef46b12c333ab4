// Matching: which shortcut a typed text means. Captions are compared in lower case, in every alphabet.
#pragma once

#include "core/frmMain.h"

#include <string_view>

namespace quill {

// Up to date with the tables when it returns; made again only after a caption has changed.
const CaptionIndex& Captions(frmMain& Main);

// text is lower-cased by the caller. An equal name wins, then the first in alphabetical order that begins
// with the text. The table index; NoMatch when there is none.
int FindShortcutByName(frmMain& Main, std::string_view text);
// Of the names that hold the text anywhere the shortest (below 255 code points), of equal ones the first in
// table order.
int FindShortcutContaining(frmMain& Main, std::string_view text);
// Of the names that a blank follows at the beginning of the text the longest: what is behind it is meant for
// the shortcut. Of equal ones the first in table order.
int FindShortcutInFront(frmMain& Main, std::string_view text);
// Whether the name is exactly the text.
bool IsNamed(const frmMain& Main, int Shortcut, std::string_view text);

} // namespace quill
