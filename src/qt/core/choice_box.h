// ChoiceBox: a list of things to do, of which each is done as it is chosen. The arrows open the list instead
// of doing one after the other, and the wheel does nothing.
#pragma once

#include <QComboBox>

namespace quill {

class ChoiceBox : public QComboBox {
protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace quill
