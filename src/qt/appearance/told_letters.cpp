#include "qt/appearance/told_letters.h"

#include "qt/core/mnemonics.h"

namespace quill {
namespace {

qsizetype MarkOf(const QString& caption) {
    for (qsizetype at = 0; at + 1 < caption.size(); ++at) {
        if (caption[at] != QLatin1Char('&')) continue;
        if (caption[at + 1] != QLatin1Char('&')) return at;
        ++at;
    }
    return -1;
}

} // namespace

QChar MarkedLetter(const QString& caption) {
    const qsizetype at = MarkOf(caption);
    return at < 0 ? QChar() : caption[at + 1].toUpper();
}

QString WithoutLetter(const QString& caption) {
    QString text = caption;
    if (const qsizetype at = MarkOf(text); at >= 0) text.remove(at, 1);
    return text.replace(QStringLiteral("&&"), QStringLiteral("&"));
}

QStringList GiveToldLetters(const QStringList& captions, const QString& taken) {
    QString used = taken.toUpper();
    QStringList given;
    for (const auto& caption : captions) {
        const QChar letter = MarkedLetter(caption);
        const bool keeps = !letter.isNull() && !used.contains(letter);
        if (keeps) used += letter;
        given += keeps ? caption : QString();
    }
    Mnemonics others(used);
    for (qsizetype place = 0; place < captions.size(); ++place)
        if (given[place].isEmpty()) given[place] = others.Give(WithoutLetter(captions[place]));
    return given;
}

} // namespace quill
