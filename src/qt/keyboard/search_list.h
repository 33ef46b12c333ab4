// SearchList: what drops down below the launcher's field. The keyboard stays in the field; the pointer
// highlights a row where it moves, and a click takes it.
#pragma once

#include "qt/core/attachment.h"

#include <QPoint>
#include <QWidget>

#include <cstdint>
#include <optional>

class QListView;
class QMouseEvent;

namespace quill {

class Fonts;
class SearchLines;

class SearchList : public QWidget {
public:
    SearchList(const Attachment& attached, const Fonts& fonts, QWidget& field, QWidget* parent);

    void Follow(); // place, lines, the highlighted one, looks; hides when the list is not down

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void SetLooks();
    void TakeLines();
    void PointAt(QPoint place, QPoint screen);
    void ClickAt(QPoint place);

    const Attachment& attached_;
    const Fonts& fonts_;
    SearchLines* lines_;
    QListView* view_;
    std::optional<std::uint32_t> revision_; // of the lines that were taken over last
    QPoint pointer_;                        // on the screen, where it was seen last
    int pressed_ = -1;                      // the row under the button
};

} // namespace quill
