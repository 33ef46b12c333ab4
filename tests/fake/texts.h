// The fake computer's fonts: every letter is as wide as every other, so that tests can reckon sizes in the
// head. A letter is 9 twips wide for each point, a line 26 twips high for each point.
#pragma once

#include "platform/texts.h"

#include <map>
#include <set>
#include <string>

namespace quill::fake {

class FakeTexts : public Texts {
public:
    static constexpr float LetterWidth = 9; // twips a point
    static constexpr float LineHeight = 26;

    bool FontExists(const std::string& name) const override { return Fonts.contains(name); }
    Size MeasureText(const FontSpec& font, std::string_view text, float wrapWidth) const override;

    std::set<std::string> Fonts{"Tahoma", "DejaVu Sans"};
    mutable int Measured = 0; // how often a text was measured
};

// Gives the key back, but for what Messages holds.
class FakeCatalogue : public Catalogue {
public:
    std::string Lookup(std::string_view english) const override;
    std::map<std::string, std::string, std::less<>> Messages;
};

} // namespace quill::fake
