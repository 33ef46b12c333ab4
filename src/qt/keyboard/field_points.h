// Places in a text, counted in code points as the logic does, and in the toolkit's own units.
#pragma once

#include <QString>

#include <algorithm>

namespace quill {

// How many code points stand before a unit.
inline int PointsBefore(const QString& text, qsizetype unit) {
    const auto end = text.cbegin() + std::clamp<qsizetype>(unit, 0, text.size());
    return static_cast<int>(
        std::count_if(text.cbegin(), end, [](QChar letter) { return !letter.isLowSurrogate(); }));
}

// The unit at which a code point begins; the text's end for what lies behind it.
inline int UnitOfPoint(const QString& text, int point) {
    int unit = 0;
    for (int passed = 0; unit < text.size(); ++unit)
        if (!text[unit].isLowSurrogate() && passed++ == point) break;
    return unit;
}

} // namespace quill
