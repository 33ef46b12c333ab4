#include "qt/appearance/fonts.h"

#include "qt/core/convert.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace quill {
namespace {

constexpr double dotsPerInch = 96;
constexpr float smallest = 1, largest = 200; // points

QFont MakeFont(const FontSpec& spec) {
    QFont font;
    if (!spec.Name.empty()) font.setFamily(Text(spec.Name));
    const double points = std::clamp(spec.Points, smallest, largest);
    font.setPointSizeF(points * dotsPerInch / QGuiApplication::primaryScreen()->logicalDotsPerInchY());
    font.setBold(spec.Bold);
    if (spec.Weight > 0) font.setWeight(static_cast<QFont::Weight>(spec.Weight));
    font.setItalic(spec.Italic);
    font.setStrikeOut(spec.StrikeThrough);
    return font;
}

} // namespace

const FontEntry& Fonts::Get(const FontSpec& spec) const {
    Key key{spec.Name, spec.Points,
            (spec.Bold ? 1 : 0) | (spec.Italic ? 2 : 0) | (spec.StrikeThrough ? 4 : 0), spec.Weight};
    const auto found = made_.find(key);
    if (found != made_.end()) return found->second;
    const QFont font = MakeFont(spec);
    return made_.emplace(std::move(key), FontEntry{font, QFontMetricsF(font)}).first->second;
}

} // namespace quill
