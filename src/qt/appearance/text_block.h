// TextBlock: a plain text laid out in a box, once, so that it can be measured and drawn several times. Only
// what fits the height is laid out, and only where its letters stand is kept. Nothing in a text is ever read
// as markup.
#pragma once

#include "qt/appearance/fonts.h"

#include <QGlyphRun>
#include <QPainter>
#include <QString>
#include <QTextLayout>

#include <limits>
#include <vector>

namespace quill {

struct BlockShape {
    qreal Width = std::numeric_limits<int>::max() / 256; // of the box, pixels
    qreal Height = std::numeric_limits<int>::max() / 256;
    bool Wrap = false;
    bool Elide = false;
    Qt::Alignment Align = Qt::AlignLeft;
    bool operator==(const BlockShape&) const = default;
};

class TextBlock {
public:
    TextBlock(const FontEntry& font, QString text, const BlockShape& shape);

    qreal Width() const { return width_; }   // of the widest line
    qreal Height() const { return height_; } // of all lines
    void Draw(QPainter& painter, QPointF corner) const;

    // What it would be in another box: true when it is one line that fits there and stands where it stood.
    bool AlsoFits(const BlockShape& shape) const;

private:
    void AddParagraph(const FontEntry& font, const QString& text, const BlockShape& shape);
    void AddWholeLine(const FontEntry& font, const QString& text, const BlockShape& shape);
    void AddWrapped(const FontEntry& font, const QString& text, const BlockShape& shape);
    void AddCut(const FontEntry& font, const QString& text, int lastStart, BlockShape shape);
    void Place(QTextLine line, const BlockShape& shape);
    void Keep(const QTextLayout& layout);

    std::vector<QGlyphRun> runs_;
    qreal width_ = 0;
    qreal height_ = 0;
    bool plain_ = false; // one line, from the left
};

} // namespace quill
