// A tip's text as the toolkit is to be given it, so that nothing in it is read as markup.
#pragma once

#include <QString>

namespace quill {

QString PlainTip(const QString& text);

} // namespace quill
