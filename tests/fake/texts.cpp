#include "fake/texts.h"

#include <algorithm>

namespace quill::fake {

namespace {

std::size_t Letters(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

// The text's lines, a line end being CR LF or LF.
template <class Visit> void EachLine(std::string_view text, Visit visit) {
    for (;;) {
        const auto end = text.find('\n');
        auto line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        visit(line);
        if (end == std::string_view::npos) return;
        text.remove_prefix(end + 1);
    }
}

struct Broken {
    std::size_t Rows = 1, Widest = 0; // in letters
};

// A word that is longer than the row stands on a row of its own and is cut into full rows.
Broken BreakAtWords(std::string_view line, std::size_t width) {
    Broken result;
    std::size_t used = 0;
    while (!line.empty()) {
        const auto end = std::min(line.find(' '), line.size());
        const auto word = Letters(line.substr(0, end));
        if (used != 0 && used + 1 + word > width) ++result.Rows, used = 0;
        used += (used == 0 ? 0 : 1) + word;
        while (used > width) ++result.Rows, used -= width, result.Widest = width;
        result.Widest = std::max(result.Widest, used);
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return result;
}

} // namespace

Size FakeTexts::MeasureText(const FontSpec& font, std::string_view text, float wrapWidth) const {
    ++Measured;
    const float letter = LetterWidth * font.Points;
    const auto width =
        wrapWidth > 0 ? std::max<std::size_t>(static_cast<std::size_t>(wrapWidth / letter), 1) : 0;
    std::size_t rows = 0, widest = 0;
    EachLine(text, [&](std::string_view line) {
        const Broken broken = width > 0 ? BreakAtWords(line, width) : Broken{1, Letters(line)};
        rows += broken.Rows;
        widest = std::max(widest, broken.Widest);
    });
    return {static_cast<float>(widest) * letter, static_cast<float>(rows) * LineHeight * font.Points};
}

std::string FakeCatalogue::Lookup(std::string_view english) const {
    const auto found = Messages.find(english);
    return std::string(found == Messages.end() ? english : found->second);
}

} // namespace quill::fake
