// PointerDrag: moving and sizing a window with the pointer, from a press to the release. It watches the
// events of the whole program meanwhile and asks nobody in a loop.
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QRect>

#include <functional>

class QWidget;

namespace quill {

class PointerDrag : public QObject {
public:
    using Placed = std::function<void(const QRect& place)>;

    // edges: sum of 1 left, 2 top, 4 right, 8 bottom; 0 moves the window.
    void Begin(QWidget& window, int edges, Placed placed);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QRect Follow(QPoint pointer) const;
    void End();

    QPointer<QWidget> window_;
    int edges_ = 0;
    QRect start_;
    QPoint from_;
    Placed placed_;
};

} // namespace quill
