// TipWidget: the window of frmTip. The mouse goes through it, and it never takes the keyboard.
#pragma once

#include "qt/core/attachment.h"

#include <QWidget>

namespace quill {

struct Looks;

class TipWidget : public QWidget {
public:
    TipWidget(const Attachment& attached, Looks& looks);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    const Attachment& attached_;
    Looks& looks_;
};

} // namespace quill
