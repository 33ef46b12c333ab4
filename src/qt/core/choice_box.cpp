#include "qt/core/choice_box.h"

#include <QKeyEvent>
#include <QWheelEvent>

namespace quill {

void ChoiceBox::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool walks = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home ||
                       key == Qt::Key_End || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    const bool types = !event->text().isEmpty() && event->text().front().isPrint();
    if (!walks && !types) return QComboBox::keyPressEvent(event);
    showPopup();
    event->accept();
}

void ChoiceBox::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace quill
