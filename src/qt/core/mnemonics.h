// Mnemonics: gives each caption of a dialog a letter of its own, in whatever language it is. The first letter
// of a word is preferred, then any other; a caption for which no letter is left stays without.
#pragma once

#include <QString>

namespace quill {

class Mnemonics {
public:
    // Letters that stand on the dialog already, as "OC" for its buttons.
    explicit Mnemonics(const QString& taken = {}) : taken_(taken.toUpper()) {}

    // The caption with "&" before its letter; every other "&" is a letter of the text.
    QString Give(const QString& caption);

private:
    qsizetype FreeLetter(const QString& caption) const; // -1: none

    QString taken_;
};

} // namespace quill
