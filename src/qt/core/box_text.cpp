#include "qt/core/box_text.h"

#include <QRegularExpression>

namespace quill {
namespace {

constexpr int longWord = 40;   // letters without a blank; then a line may end anywhere
constexpr int longText = 1500; // letters; the middle of longer ones is left out
constexpr QChar zeroWidthSpace(0x200B), ellipsis(0x2026);

QString Shortened(const QString& text) {
    if (text.size() <= longText) return text;
    return text.left(longText / 2) + ellipsis + text.right(longText / 2);
}

bool MayPart(const QString& text, int at) {
    return !text[at].isLowSurrogate() && !text[at].isMark();
}

// The tab stops of a box are so far apart that one tab leads to the next column.
QString OneTabAColumn(QString text) {
    const QRegularExpression tabs(QStringLiteral("\\t+"));
    return text.replace(tabs, QStringLiteral("\t"));
}

} // namespace

QString BoxText(const QString& text) {
    const QString shown = OneTabAColumn(Shortened(text));
    QString broken;
    int run = 0;
    for (int at = 0; at < shown.size(); ++at) {
        run = shown[at].isSpace() ? 0 : run + 1;
        if (run > longWord && MayPart(shown, at)) {
            broken += zeroWidthSpace;
            run = 1;
        }
        broken += shown[at];
    }
    return broken;
}

} // namespace quill
