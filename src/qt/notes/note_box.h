// NoteBox: the edit box that stands in for a painted note while a person types. The model's text is the truth
// until the first edit; the box is set only when the text's revision differs.
#pragma once

#include "notes/notes.h"
#include "qt/core/attachment.h"

#include <QPlainTextEdit>

#include <cstdint>
#include <functional>
#include <optional>

namespace quill {

class Fonts;
struct NoteView;

class NoteBox : public QPlainTextEdit {
public:
    // left is called when the focus has gone to another place in the window for good.
    NoteBox(int index, const Attachment& attached, const Fonts& fonts, std::function<void()> left,
            QWidget* parent);

    int Index() const { return index_; }
    void TakeOver(const NoteView& note); // text, if its revision differs, and looks
    NoteTop Top() const;
    void ScrollTo(const NoteTop& top);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;

private:
    bool Alive() const;
    void SetColors(const NoteView& note);
    void Changed();

    int index_;
    const Attachment& attached_;
    const Fonts& fonts_;
    std::function<void()> left_;
    std::optional<std::uint32_t> revision_; // of the text that was last taken over
    bool taking_ = false;                   // the change is the model's own
};

} // namespace quill
