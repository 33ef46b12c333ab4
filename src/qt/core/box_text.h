// A message's text as a box can show it: names of any length come into it, and a line without a blank would
// make the box wider than the screen, a page of text higher.
#pragma once

#include <QString>

namespace quill {

QString BoxText(const QString& text);

} // namespace quill
