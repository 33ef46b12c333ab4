// TilePreview: a small picture of a container's tile, its icon on its colour.
#pragma once

#include "platform/drawing.h"

#include <QWidget>

namespace quill {

struct Looks;

class TilePreview : public QWidget {
public:
    explicit TilePreview(Looks& looks);
    void Show(const IconSource& icon, Color back);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Looks& looks_;
    IconSource icon_;
    Color back_ = 0;
};

} // namespace quill
