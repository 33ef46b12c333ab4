// SearchField: cboSearch, the field of the Keyboard Launcher. Each key goes to the logic first; what it
// leaves edits the text, as in every field. The logic is told of every change, and puts a text in only by a
// new revision.
#pragma once

#include "qt/core/attachment.h"

#include <QLineEdit>

#include <cstdint>
#include <functional>
#include <optional>

namespace quill {

class Fonts;
struct SearchBox;

class SearchField : public QLineEdit {
public:
    // used is called after each key, before the next one: that may be for what this one has changed.
    SearchField(const Attachment& attached, const Fonts& fonts, std::function<void()> used, QWidget* parent);

    void TakeOver(); // text and caret, if their revision differs, looks, and what is told of it

protected:
    bool focusNextPrevChild(bool) override { return false; } // Tab completes
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool IsUsed(const QKeyEvent& event);
    void Changed();
    void TakeText(const SearchBox& box);
    void SetLooks();
    void Describe();

    const Attachment& attached_;
    const Fonts& fonts_;
    std::function<void()> used_;
    std::optional<std::uint32_t> revision_; // that was taken over last
    bool taking_ = false;                   // the change is the logic's own
};

} // namespace quill
