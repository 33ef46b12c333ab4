#include "qt/shortcuts/surface_drops.h"

#include "core/handlers.h"
#include "qt/core/convert.h"
#include "qt/shortcuts/qt_drags.h"

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QMetaObject>
#include <QWidget>

#include <utility>

namespace quill {
namespace {

DragEvent DragOf(const QDropEvent& event, const QWidget& surface) {
    DragEvent drag;
    drag.At = TwipPoint(event.position());
    drag.Screen = TwipPoint(surface.mapToGlobal(event.position()));
    drag.Shift = event.modifiers().testFlag(Qt::ShiftModifier);
    drag.Ctrl = event.modifiers().testFlag(Qt::ControlModifier);
    drag.Alt = event.modifiers().testFlag(Qt::AltModifier);
    return drag;
}

bool IsOurs(const QDropEvent& event) {
    return event.source() != nullptr; // known only of this process
}

// Others are told of a copy, whatever they propose, so that they delete nothing. Within the program it is a
// move, and the pointer says so.
Qt::DropAction ActionFor(const QDropEvent& event) {
    if (IsOurs(event)) return Qt::MoveAction;
    const bool linkOnly =
        !(event.possibleActions() & Qt::CopyAction) && (event.possibleActions() & Qt::LinkAction);
    return linkOnly ? Qt::LinkAction : Qt::CopyAction;
}

void Answer(QDropEvent& event, DropAnswer answer) {
    if (answer == DropAnswer::Refused) return event.ignore();
    event.setDropAction(ActionFor(event));
    event.accept();
}

} // namespace

// Accepted in any case: what a surface refuses must not fall through to the one behind it. The move that
// follows at once gives the true answer.
void SurfaceDrops::Enter(QDragEnterEvent& event) {
    if (!attached_.Alive() || event.mimeData() == nullptr) return event.ignore();
    data_ = DragDataOf(*event.mimeData(), IsOurs(event) ? DragSource::ThisProgram : DragSource::Other);
    event.setDropAction(ActionFor(event));
    event.accept();
}

void SurfaceDrops::Move(QDragMoveEvent& event) {
    if (!attached_.Alive()) return event.ignore();
    Answer(event, DragOver(*attached_.Main, id_, DragOf(event, surface_), data_));
}

void SurfaceDrops::Leave() {
    data_ = {};
    if (attached_.Alive()) DragLeave(*attached_.Main, id_);
}

void SurfaceDrops::Drop(QDropEvent& event) {
    if (!attached_.Alive()) return event.ignore();
    const DragEvent drag = DragOf(event, surface_);
    if (IsOurs(event))
        Answer(event, DragDrop(*attached_.Main, id_, drag, std::exchange(data_, {})));
    else
        DropLater(event, drag);
}

// Another program waits for the end of its drop and must not wait for a box of ours to be answered: it is
// told that the data is taken, and then the work begins.
void SurfaceDrops::DropLater(QDropEvent& event, const DragEvent& drag) {
    const DropAnswer answer = DragOver(*attached_.Main, id_, drag, data_);
    Answer(event, answer);
    if (answer == DropAnswer::Refused) return Leave();
    QMetaObject::invokeMethod(
        &surface_,
        [attached = &attached_, id = id_, drag, data = std::exchange(data_, {})] {
            if (attached->Alive()) DragDrop(*attached->Main, id, drag, data);
        },
        Qt::QueuedConnection);
}

} // namespace quill
