#include "qt/core/plain_tip.h"

#include <QTextDocument>

namespace quill {
namespace {

constexpr int longLine = 60; // characters; longer ones are broken into several lines

bool HasLongLine(const QString& text) {
    const auto lines = text.split(QLatin1Char('\n'));
    return std::any_of(lines.begin(), lines.end(),
                       [](const QString& line) { return line.size() > longLine; });
}

} // namespace

// Only what is marked as rich text is wrapped by the toolkit; there the text is escaped.
QString PlainTip(const QString& text) {
    if (!Qt::mightBeRichText(text) && !HasLongLine(text)) return text;
    return Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

} // namespace quill
