// Texts: fonts, measuring and the message catalogue. Measuring is asked for when a text is first seen.
#pragma once

#include "platform/geometry.h"

#include <string>
#include <string_view>

namespace quill {

struct FontSpec {
    std::string_view Name;
    float Points = 10;
    bool Bold = false;
    bool Italic = false;
    bool StrikeThrough = false;
    int Weight = 0; // 100 to 900, 400 as ordinary text; 0: by Bold
};

class Texts {
public:
    virtual ~Texts() = default;

    virtual bool FontExists(const std::string& name) const = 0;
    // Size of the text in twips; with wrapWidth above 0 broken at words into that width.
    virtual Size MeasureText(const FontSpec& font, std::string_view text, float wrapWidth) const = 0;
};

// The catalogue of one language. Found nothing: returns the key.
class Catalogue {
public:
    virtual ~Catalogue() = default;
    virtual std::string Lookup(std::string_view english) const = 0;
};

} // namespace quill
