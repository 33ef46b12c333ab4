// NoteDesk: at most one note is open in an edit box; the others are painted. Opens and closes that box and
// keeps it over its note.
#pragma once

#include "qt/core/attachment.h"

#include <QPoint>
#include <QPointer>

#include <functional>
#include <map>

class QWidget;

namespace quill {

class Fonts;
class NoteBox;

class NoteDesk {
public:
    NoteDesk(const Attachment& attached, const Fonts& fonts) : attached_(attached), fonts_(fonts) {}

    void Open(QWidget& surface, int index, QPoint caretAt); // a place on the surface
    void Raise();                                           // above all else in its container
    void Leave();                                           // gives the keyboard back to the workspace
    // After a turn of marks: the box follows its note, closes when that is gone, and opens where the logic
    // wishes it. The surface of a container is asked for by its index; it may have none.
    void Follow(const std::function<QWidget*(int index)>& surfaceOf);

private:
    void Make(QWidget& surface, int index);
    void Close();
    bool PlaceBox();

    const Attachment& attached_;
    const Fonts& fonts_;
    QPointer<NoteBox> box_;
    std::map<int, std::uint32_t> wishes_; // the last one that was fulfilled, by container
};

} // namespace quill
