// SurfaceWidget: one surface on the screen, the workspace, a container or a picture, or a window of its own
// as the bar and the strip. It paints what the logic
// paints there and calls the logic's handlers; it knows nothing of what it shows.
#pragma once

#include "core/handlers.h"
#include "core/surfaces.h"
#include "qt/core/attachment.h"
#include "qt/shortcuts/surface_drops.h"

#include <QPoint>
#include <QWidget>

class QMouseEvent;

namespace quill {

struct Looks;
class NoteDesk;
class Stage;

// What a surface needs of its stage.
struct SurfaceContext {
    const Attachment& Attached;
    quill::Looks& Looks;
    NoteDesk& Notes;
    quill::Stage& Stage;
};

class SurfaceWidget : public QWidget {
public:
    SurfaceWidget(SurfaceId id, const SurfaceContext& context, QWidget* parent);

    SurfaceId Id() const { return id_; }
    const SurfaceContext& Context() const { return context_; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override { drops_.Enter(*event); }
    void dragMoveEvent(QDragMoveEvent* event) override { drops_.Move(*event); }
    void dragLeaveEvent(QDragLeaveEvent*) override { drops_.Leave(); }
    void dropEvent(QDropEvent* event) override { drops_.Drop(*event); }

private:
    bool Alive() const;
    QRegion Uncovered(const QRegion& region) const;
    void ShowTip(QPoint at, QPoint screen);
    void ShowPointer(Point at);
    void OpenNoteAt(Point at, const QMouseEvent& event);

    SurfaceId id_;
    SurfaceContext context_;
    SurfaceDrops drops_;
    int wheel_ = 0; // eighths of a degree that make no whole step yet
};

// What a surface in this place hides for certain: the corners are round, and the edges may lie between
// pixels.
QRegion SolidPart(const QRect& place);

// A mouse event in the logic's terms; the origin is that of the surface in the coordinates of the event.
MouseEvent MouseOf(const QMouseEvent& event, QPointF origin = {});

} // namespace quill
