// OpenQuestions: the boxes, dialogs, menus and drags of ours that wait for a person at this moment, the
// innermost last. While one is open nothing docks. When the program is told to end they are all cancelled,
// and only then the exit begins.
#pragma once

#include "qt/core/attachment.h"

#include <functional>
#include <memory>
#include <vector>

class QWidget;

namespace quill {

class DialogPause;

class OpenQuestions {
public:
    explicit OpenQuestions(Attachment& attached) : attached_(attached) {}

    bool IsEnding() const { return attached_.Ending; }
    int Depth() const { return static_cast<int>(open_.size()); }
    void CancelAll(); // innermost first
    std::function<void()> AllClosed;

    // One open question; it counts for as long as this object lives.
    class Entry {
    public:
        Entry(OpenQuestions& questions, QWidget& widget);
        Entry(OpenQuestions& questions, std::function<void()> cancel);
        ~Entry();
        Entry(const Entry&) = delete;
        Entry& operator=(const Entry&) = delete;

    private:
        OpenQuestions& questions_;
        std::unique_ptr<DialogPause> pause_;
    };

private:
    Attachment& attached_;
    std::vector<std::function<void()>> open_; // how each is cancelled
};

} // namespace quill
