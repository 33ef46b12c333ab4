#include "fake/canvas.h"

#include "fake/words.h"

namespace quill::fake {

namespace {

std::string OpacityWords(float opacity) {
    return opacity == 1 ? "" : " opacity " + Words(opacity);
}

std::string PenWords(Pen pen) {
    static constexpr const char* Styles[] = {"", " dashed", " dotted", " dash-dotted", " dash-dot-dotted"};
    if (pen.Width == 0) return "";
    return " pen " + std::to_string(pen.Width) + " " + ColorWords(pen.Ink) +
           Styles[static_cast<int>(pen.Style)];
}

std::string StyleWords(const TextStyle& style) {
    static constexpr const char* Aligns[] = {" left", " center", " right"};
    std::string text = " " + ColorWords(style.Ink) + Aligns[static_cast<int>(style.Align)] + " " +
                       Words(style.Font.Points) + "pt";
    const std::pair<bool, const char*> flags[] = {
        {style.Font.Bold, " bold"},
        {style.Font.Italic, " italic"},
        {style.Font.StrikeThrough, " struck"},
        {style.WordBreak, " wordbreak"},
        {style.Elide, " elide"},
        {style.VerticalCenter, " vcenter"},
        {style.Clip, " clip"},
        {style.Halo, " halo"},
    };
    for (const auto& [set, word] : flags)
        if (set) text += word;
    if (style.Font.Weight != 0) text += " weight " + std::to_string(style.Font.Weight);
    return text;
}

} // namespace

void FakeCanvas::FillRect(const Rect& place, Color color, float opacity) {
    Lines.push_back("fill " + Words(place) + " " + ColorWords(color) + OpacityWords(opacity));
}

void FakeCanvas::RoundRect(const Rect& place, float radius, Color fill, Pen pen, float opacity) {
    Lines.push_back("round " + Words(place) + " r" + Words(radius) + " " + ColorWords(fill) + PenWords(pen) +
                    OpacityWords(opacity));
}

void FakeCanvas::Line(Point from, Point to, Pen pen) {
    Lines.push_back("line " + Words(from) + " " + Words(to) + PenWords(pen));
}

void FakeCanvas::Text(const Rect& place, std::string_view text, const TextStyle& style) {
    Lines.push_back("text \"" + std::string(text) + "\" " + Words(place) + StyleWords(style));
}

void FakeCanvas::RotatedText(Point at, std::string_view text, const TextStyle& style, int tenths) {
    Lines.push_back("rotated \"" + std::string(text) + "\" " + Words(at) + " turned " +
                    std::to_string(tenths) + StyleWords(style));
}

void FakeCanvas::Symbol(std::string_view name, const Rect& place, Color ink, float opacity) {
    Lines.push_back("symbol " + std::string(name) + " " + Words(place) + " " + ColorWords(ink) +
                    OpacityWords(opacity));
}

bool FakeCanvas::There(const std::string& path, std::string line) {
    const bool there = !Missing.contains(path);
    Lines.push_back(std::move(line) + (there ? "" : " missing"));
    return there;
}

bool FakeCanvas::Icon(const IconSource& source, const Rect& place) {
    if (source.File.empty() && source.ThemeName.empty()) return false;
    std::string name = source.ThemeName.empty() ? source.File : source.ThemeName;
    if (!source.ThemeName.empty() && !source.File.empty()) name += " or " + source.File;
    return There(source.File, (source.IsImage ? "image " : "icon ") + name + " " + Words(place));
}

bool FakeCanvas::Picture(const std::string& path, const Rect& place) {
    return There(path, "picture " + path + " " + Words(place));
}

bool FakeCanvas::Hides(const std::string& path, const Rect&) {
    return Solid.contains(path) && !Missing.contains(path);
}

bool FakeCanvas::Button(const std::string& path, const Rect& place, Color fallbackInk,
                        std::string_view fallbackSymbol) {
    const std::string fallback = " or " + std::string(fallbackSymbol) + " " + ColorWords(fallbackInk);
    return There(path, "button " + (path.empty() ? "-" : path) + " " + Words(place) + fallback);
}

void FakeCanvas::PushClip(const Rect& place, float radius) {
    ++Clips;
    Lines.push_back("clip " + Words(place) + (radius == 0 ? "" : " r" + Words(radius)));
}

void FakeCanvas::PopClip() {
    --Clips;
    Lines.push_back("unclip");
}

std::string FakeCanvas::Painted() const {
    std::string text;
    for (const auto& line : Lines) text += line + "\n";
    return text;
}

std::vector<std::string> FakeCanvas::LinesWith(const std::string& part) const {
    std::vector<std::string> found;
    for (const auto& line : Lines)
        if (line.find(part) != std::string::npos) found.push_back(line);
    return found;
}

} // namespace quill::fake
