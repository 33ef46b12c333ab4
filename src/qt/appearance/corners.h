// Corners: how solid each pixel of a round corner is. With them a round box is a few plain boxes and four
// small images, where the painter would work through a shape as high as the box.
#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

#include <map>

namespace quill {

class Corners {
public:
    // The four cells of a box that is nothing but corners, 8 bits a pixel; each of them as many whole pixels
    // of the device as the radius needs.
    const QImage& Solid(qreal radius); // in pixels of the device

private:
    std::map<qreal, QImage> made_; // by radius
};

// A part of a corner's cell in a colour. Turned: the cell is that of a right or a lower corner.
struct CornerTurn {
    bool Right = false, Bottom = false;
};
QImage CornerPart(const QImage& solid, CornerTurn turn, const QRect& part, QColor color);
// Makes an image as see-through as the corner is, whose cell begins there in it. The image is premultiplied.
void CutAtCorner(QImage& image, const QImage& solid, CornerTurn turn, QPoint cell);

} // namespace quill
