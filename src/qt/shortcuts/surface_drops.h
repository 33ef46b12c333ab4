// SurfaceDrops: what is dragged over one surface, brought to the logic's handlers. The data is read once when
// the drag enters, not at each move.
#pragma once

#include "core/handlers.h"
#include "core/surfaces.h"
#include "platform/drags.h"
#include "qt/core/attachment.h"

#include <QDropEvent>

class QDragEnterEvent;
class QDragMoveEvent;
class QWidget;

namespace quill {

class SurfaceDrops {
public:
    SurfaceDrops(SurfaceId id, const Attachment& attached, QWidget& surface)
        : id_(id), attached_(attached), surface_(surface) {}

    void Enter(QDragEnterEvent& event);
    void Move(QDragMoveEvent& event);
    void Leave();
    void Drop(QDropEvent& event);

private:
    void DropLater(QDropEvent& event, const DragEvent& drag);

    SurfaceId id_;
    const Attachment& attached_;
    QWidget& surface_;
    DragData data_; // what is over it
};

} // namespace quill
