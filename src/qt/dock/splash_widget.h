// SplashWidget: the window that tells what is being loaded.
#pragma once

#include "qt/core/attachment.h"

#include <QWidget>

namespace quill {

struct Looks;

class SplashWidget : public QWidget {
public:
    SplashWidget(const Attachment& attached, Looks& looks);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    const Attachment& attached_;
    Looks& looks_;
};

} // namespace quill
