// How far a note's text is moved up in its place. Nothing keeps it: a start shows the first line.
#include "containers/measures.h"
#include "core/handlers.h"
#include "core/objects.h"
#include "notes/notes.h"
#include "platform/texts.h"

#include <algorithm>
#include <vector>

namespace quill {
namespace {

// The paragraphs as the canvas is given them, and how high any number of them is.
class Paragraphs {
public:
    Paragraphs(const frmMain& Main, const NoteView& note) : main_(Main), note_(note), text_(note.Text) {
        std::erase(text_, '\r');
        for (std::size_t at = text_.find('\n'); at != std::string::npos; at = text_.find('\n', at + 1))
            ends_.push_back(at);
        ends_.push_back(text_.size());
    }

    int Count() const { return static_cast<int>(ends_.size()); }

    float HeightOf(int count) const {
        if (count <= 0) return 0;
        const auto end = ends_[static_cast<std::size_t>(std::min(count, Count())) - 1];
        const FontSpec font{main_.Settings.FontName, note_.FontSize};
        return main_.P.Texts.MeasureText(font, std::string_view(text_).substr(0, end), Width()).Height;
    }

    float FurthestTop() const {
        const float seen = note_.Place.Height - 2 * measures::NotePadding;
        return Width() <= 0 || seen <= 0 ? 0 : std::max(0.0F, HeightOf(Count()) - seen);
    }

private:
    float Width() const { return note_.Place.Width - 2 * measures::NotePadding; }

    const frmMain& main_;
    const NoteView& note_;
    std::string text_;
    std::vector<std::size_t> ends_;
};

} // namespace

NoteTop TopOfNote(const frmMain& Main, int Index) {
    const auto& note = Main.ConView(Index).ContainerNote;
    if (note.ScrollTop <= 0) return {};
    const Paragraphs paragraphs(Main, note);
    int above = 0, beyond = paragraphs.Count(); // whole paragraphs above the edge: at least, and too many
    while (beyond - above > 1) {
        const int middle = (above + beyond) / 2;
        (paragraphs.HeightOf(middle) <= note.ScrollTop ? above : beyond) = middle;
    }
    return {above, note.ScrollTop - paragraphs.HeightOf(above)};
}

void ScrollNote(frmMain& Main, int Index, float top) {
    if (!IsLive(Main.Containers, Index)) return;
    auto& note = Main.ConView(Index).ContainerNote;
    if (!note.Visible) return;
    const float wanted = top <= 0 ? 0 : std::min(top, Paragraphs(Main, note).FurthestTop());
    if (wanted == note.ScrollTop) return;
    note.ScrollTop = wanted;
    Main.Marks.Note(Index);
}

void ContainerNote_Scroll(frmMain& Main, int Index, int paragraph, float above) {
    if (!IsLive(Main.Containers, Index)) return;
    const auto& note = Main.ConView(Index).ContainerNote;
    const float before = paragraph > 0 ? Paragraphs(Main, note).HeightOf(paragraph) : 0;
    ScrollNote(Main, Index, before + above);
}

} // namespace quill
