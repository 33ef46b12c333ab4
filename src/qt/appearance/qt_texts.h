// QtTexts: the port that measures texts, by the same layout that the canvas draws.
#pragma once

#include "platform/texts.h"

namespace quill {

struct DisplayHolder;

class QtTexts : public Texts {
public:
    explicit QtTexts(const DisplayHolder& display) : display_(display) {}

    bool FontExists(const std::string& name) const override;
    Size MeasureText(const FontSpec& font, std::string_view text, float wrapWidth) const override;

private:
    const DisplayHolder& display_;
};

} // namespace quill
