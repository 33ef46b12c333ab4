// QtCanvas: the drawing port on a painter. Every edge is rounded to the pixels of the device, also where a
// surface itself lies between two of them.
#pragma once

#include "platform/drawing.h"
#include "qt/appearance/looks.h"

#include <QPainter>
#include <QRegion>

class QWidget;

namespace quill {

// A box with round corners, pixels of the device.
struct RoundBox {
    QRectF Box;
    qreal Radius = 0;
    qreal Cell() const; // the side of a corner in whole pixels
    QRectF CellAt(CornerTurn turn) const;
};

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
    bool Hides(const std::string& path, const Rect& place) override;
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
    bool FillRound(const QRectF& box, qreal radius, QColor color);

    // These think in pixels of the device.
    void FillWithin(const RoundBox& round, const QRectF& box, QColor color);
    void FillPlain(const QRectF& box, QColor color);
    void FillCorner(const RoundBox& round, CornerTurn turn, const QRectF& box, QColor color);
    void Blit(const QImage& image, QPointF corner);
    QImage CutAtCorners(const QImage& image, QPointF corner) const;
    bool AtCorner(const QRectF& box) const; // of the clip
    bool CornersShow(const RoundBox& round) const;
    void ClipTo(const RoundBox& round);
    class CornerCut;
    void DrawPiece(const QImage& image, const QRect& part, QPoint corner);
    QImage PictureFor(const std::string& path, const Rect& place);
    void DrawHalo(LaidText& laid, QPointF corner, QColor color);
    void DrawPixels(const QImage& image, QPointF corner); // the corner in pixels of the device
    void DrawCentered(const QImage& image, const Rect& place);
    Spot SpotOf(const Rect& place) const;

    QPainter& painter_;
    QWidget& surface_;
    QRegion exposed_;
    Looks& looks_;
    QTransform toDevice_, fromDevice_;
    qreal scale_;                     // pixels of the device to one of ours
    RoundBox round_;                  // the clip that has round corners which show; radius 0: none has
    int depth_ = 0, roundDepth_ = -1; // of clips, and of that one
};

} // namespace quill
