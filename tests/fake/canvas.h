// A canvas that writes down what is painted, one readable line each:
//     text "Container" 260,20 1760x250 white left 10pt
#pragma once

#include "platform/drawing.h"

#include <set>
#include <string>
#include <vector>

namespace quill::fake {

class FakeCanvas : public Canvas {
public:
    explicit FakeCanvas(Rect exposed = {0, 0, 1'000'000, 1'000'000}) : exposed_(exposed) {}

    Rect Exposed() const override { return exposed_; }
    void FillRect(const Rect& place, Color color, float opacity) override;
    void RoundRect(const Rect& place, float radius, Color fill, Pen pen, float opacity) override;
    void Line(Point from, Point to, Pen pen) override;
    void Text(const Rect& place, std::string_view text, const TextStyle& style) override;
    void RotatedText(Point at, std::string_view text, const TextStyle& style, int tenths) override;
    void Symbol(std::string_view name, const Rect& place, Color ink, float opacity) override;
    bool Icon(const IconSource& source, const Rect& place) override;
    bool Picture(const std::string& path, const Rect& place) override;
    bool Hides(const std::string& path, const Rect& place) override;
    bool Button(const std::string& path, const Rect& place, Color fallbackInk,
                std::string_view fallbackSymbol) override;
    void PushClip(const Rect& place, float radius) override;
    void PopClip() override;

    std::vector<std::string> Lines;
    std::set<std::string> Missing; // files of icons, pictures and buttons that are not there (yet)
    std::set<std::string> Solid;   // files of pictures through which nothing shows
    int Clips = 0;                 // pushed and not popped

    std::string Painted() const; // every line, one text
    std::vector<std::string> LinesWith(const std::string& part) const;

private:
    bool There(const std::string& path, std::string line);
    Rect exposed_;
};

} // namespace quill::fake
