#include "qt/dock/pointer_drag.h"

#include "dock/docking.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace quill {
namespace {

constexpr int leastWidth = 160,
              leastHeight = 100; // pixels: the title row with its buttons, and something below

bool HasButton() {
    return QGuiApplication::mouseButtons() != Qt::NoButton;
}

} // namespace

void PointerDrag::Begin(QWidget& window, int edges, Placed placed) {
    if (!HasButton() || window_) return;
    window_ = &window;
    edges_ = edges;
    start_ = window.geometry();
    from_ = QCursor::pos();
    placed_ = std::move(placed);
    QCoreApplication::instance()->installEventFilter(this);
}

// The release goes on to where the press was, so that nothing there stays pressed.
bool PointerDrag::eventFilter(QObject* object, QEvent* event) {
    if (!object->isWidgetType()) return false;
    const bool over = !window_ || event->type() == QEvent::MouseButtonRelease;
    if (over) {
        End();
        return false;
    }
    if (event->type() != QEvent::MouseMove) return false;
    if (!HasButton()) {
        End();
        return false;
    }
    placed_(Follow(static_cast<QMouseEvent*>(event)->globalPosition().toPoint()));
    return true;
}

QRect PointerDrag::Follow(QPoint pointer) const {
    const QPoint way = pointer - from_;
    if (edges_ == 0) return start_.translated(way);
    QRect place = start_;
    if (edges_ & EdgeLeft) place.setLeft(std::min(start_.left() + way.x(), start_.right() - leastWidth + 1));
    if (edges_ & EdgeTop) place.setTop(std::min(start_.top() + way.y(), start_.bottom() - leastHeight + 1));
    if (edges_ & EdgeRight) place.setWidth(std::max(start_.width() + way.x(), leastWidth));
    if (edges_ & EdgeBottom) place.setHeight(std::max(start_.height() + way.y(), leastHeight));
    return place;
}

void PointerDrag::End() {
    QCoreApplication::instance()->removeEventFilter(this);
    window_ = nullptr;
}

} // namespace quill
