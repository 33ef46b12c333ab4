// ColorButton: a button that shows a colour beside its caption.
#pragma once

#include "platform/geometry.h"

#include <QPushButton>

namespace quill {

class ColorButton : public QPushButton {
public:
    explicit ColorButton(const QString& caption) : QPushButton(caption) {}
    void Show(Color color);
};

} // namespace quill
