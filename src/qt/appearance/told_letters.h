// ToldLetters: mnemonics for captions that name their own letter by "&". Each letter leads to one control:
// who comes first keeps the told one, and a caption whose letter is gone, or that tells none, gets another.
#pragma once

#include <QString>
#include <QStringList>

namespace quill {

// The captions with "&" before their letters, in the same order. taken: letters that are in use beside them.
QStringList GiveToldLetters(const QStringList& captions, const QString& taken);
// The caption as it is read: without the mark, and "&&" as "&".
QString WithoutLetter(const QString& caption);
// The letter that a caption marks; null for none.
QChar MarkedLetter(const QString& caption);

} // namespace quill
