// QtCanvas: the drawing port on a painter. Every edge is rounded to the pixels of the device, also where a
// surface itself lies between two of them.
#pragma once

#include "platform/drawing.h"
#include "qt/appearance/looks.h"

#include <QPainter>
#include <QRegion>

class QWidget;

namespace quill {

class QtCanvas : public Canvas {
public:
    QtCanvas(QPainter& painter, QWidget& surface, const QRegion& exposed, Looks& looks);

    Rect Exposed() const override;
    void FillRect(const Rect& place, Color color, float opacity) override;
    void RoundRect(const Rect& place, float radius, Color fill, Pen pen, float opacity) override;
    void Line(Point from, Point to, Pen pen) override;
    void Text(const Rect& place, std::string_view text, const TextStyle& style) override;
    void RotatedText(Point at, std::string_view text, const TextStyle& style, int tenths) override;
    void Symbol(std::string_view name, const Rect& place, Color ink, float opacity) override;
    bool Icon(const IconSource& source, const Rect& place) override;
    bool Picture(const std::string& path, const Rect& place) override;
    bool Button(const std::string& path, const Rect& place, Color fallbackInk,
                std::string_view fallbackSymbol) override;
    void PushClip(const Rect& place, float radius) override;
    void PopClip() override;

private:
    bool IsExposed(const Rect& place) const;
    QPointF Snap(Point place) const;
    QRectF Snap(const Rect& place) const;
    qreal PenWidth(int pixels) const; // in whole pixels of the device
    int DeviceSide(const Rect& place) const;
    void Smooth(bool smooth); // for what is drawn next
    void DrawCentered(const QImage& image, const Rect& place);
    Spot SpotOf(const Rect& place) const;

    QPainter& painter_;
    QWidget& surface_;
    QRegion exposed_;
    Looks& looks_;
    QTransform toDevice_, fromDevice_;
    qreal scale_; // pixels of the device to one of ours
};

} // namespace quill
