// Halo: the soft edge of a text, eight copies of its letters around it, as how solid each pixel is. Made once
// for a text and a scaling; drawn in any colour.
#pragma once

#include "qt/appearance/text_block.h"

#include <QImage>
#include <QPainter>
#include <QPoint>

namespace quill {

class Halo {
public:
    Halo() = default;
    Halo(const TextBlock& block, qreal scale);

    bool IsFor(qreal scale) const { return !solid_.isNull() && scale_ == scale; }
    QImage In(QRgb color) const;
    QPoint Corner() const { return corner_; } // from that of the text, pixels of the device

private:
    QImage solid_; // 8 bits a pixel
    qreal scale_ = 0;
    QPoint corner_;
};

} // namespace quill
