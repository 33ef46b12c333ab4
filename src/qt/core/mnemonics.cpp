#include "qt/core/mnemonics.h"

namespace quill {
namespace {

QString Escaped(const QString& text) {
    return QString(text).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

bool BeginsWord(const QString& text, qsizetype at) {
    return at == 0 || !text[at - 1].isLetterOrNumber();
}

} // namespace

qsizetype Mnemonics::FreeLetter(const QString& caption) const {
    for (const bool anywhere : {false, true})
        for (qsizetype at = 0; at < caption.size(); ++at)
            if (caption[at].isLetter() && !taken_.contains(caption[at].toUpper()) &&
                (anywhere || BeginsWord(caption, at)))
                return at;
    return -1;
}

QString Mnemonics::Give(const QString& caption) {
    const qsizetype at = FreeLetter(caption);
    if (at < 0) return Escaped(caption);
    taken_ += caption[at].toUpper();
    return Escaped(caption.left(at)) + QLatin1Char('&') + Escaped(caption.mid(at));
}

} // namespace quill
