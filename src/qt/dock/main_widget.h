// MainWidget: the widget of frmMain. It shows its frame around picBack and passes on what happens to the
// window as a whole: keys, closing, places that somebody else gave it.
#pragma once

#include "qt/core/attachment.h"

#include <QBasicTimer>
#include <QRect>
#include <QWidget>

#include <functional>

namespace quill {

class MainWidget : public QWidget {
public:
    explicit MainWidget(const Attachment& attached);

    void PlaceWindow(const QRect& place); // by the logic, or by a drag of ours

    std::function<void()> OnKeyUsed; // before the next key: it may be for what this one has opened

protected:
    bool focusNextPrevChild(bool) override { return false; } // Tab is the workspace's own key
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void Watch();
    QPointF BackCorner() const;

    const Attachment& attached_;
    QRect placed_;
    QBasicTimer settling_; // the place is believed when it has stood for a moment
};

} // namespace quill
