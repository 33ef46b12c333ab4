#include "qt/appearance/text_block.h"

#include <algorithm>

namespace quill {
namespace {

QTextOption Options(const BlockShape& shape) {
    QTextOption options;
    options.setWrapMode(shape.Wrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    return options;
}

qreal Indent(const QTextLine& line, const BlockShape& shape) {
    const qreal free = shape.Width - line.naturalTextWidth();
    if (shape.Align & Qt::AlignHCenter) return free / 2;
    return shape.Align & Qt::AlignRight ? free : 0;
}

} // namespace

TextBlock::TextBlock(const FontEntry& font, QString text, const BlockShape& shape) {
    text.remove(QLatin1Char('\r'));
    qsizetype from = 0;
    int paragraphs = 0;
    while (from <= text.size() && height_ < shape.Height) {
        auto end = text.indexOf(QLatin1Char('\n'), from);
        if (end < 0) end = text.size();
        AddParagraph(font, text.mid(from, end - from), shape);
        from = end + 1;
        ++paragraphs;
    }
    plain_ = paragraphs == 1 && !shape.Wrap && !shape.Elide && shape.Align == Qt::AlignLeft;
    runs_.shrink_to_fit();
}

void TextBlock::Draw(QPainter& painter, QPointF corner) const {
    for (const auto& run : runs_) painter.drawGlyphRun(corner, run);
}

bool TextBlock::AlsoFits(const BlockShape& shape) const {
    return plain_ && !shape.Wrap && shape.Align == Qt::AlignLeft && (!shape.Elide || width_ <= shape.Width);
}

void TextBlock::AddParagraph(const FontEntry& font, const QString& text, const BlockShape& shape) {
    if (shape.Wrap)
        AddWrapped(font, text, shape);
    else
        AddWholeLine(font, text, shape);
}

void TextBlock::AddWholeLine(const FontEntry& font, const QString& text, const BlockShape& shape) {
    const auto lay = [&](const QString& shown) {
        auto layout = std::make_unique<QTextLayout>(shown, font.Font);
        layout->setTextOption(Options(shape));
        layout->setCacheEnabled(true); // or what was shaped would be gone at the end of the layout
        layout->beginLayout();
        auto line = layout->createLine();
        if (line.isValid()) line.setLineWidth(shape.Width);
        layout->endLayout();
        return layout;
    };
    auto layout = lay(text);
    const bool tooLong = shape.Elide && layout->lineAt(0).naturalTextWidth() > shape.Width;
    if (tooLong) layout = lay(font.Metrics.elidedText(text, Qt::ElideRight, shape.Width));
    Place(layout->lineAt(0), shape);
    Keep(*layout);
}

void TextBlock::AddWrapped(const FontEntry& font, const QString& text, const BlockShape& shape) {
    auto layout = std::make_unique<QTextLayout>(text, font.Font);
    layout->setTextOption(Options(shape));
    layout->setCacheEnabled(true);
    layout->beginLayout();
    const qreal top = height_;
    int lastStart = 0;
    bool cut = false; // more would follow where nothing fits any more
    while (height_ < shape.Height && !cut) {
        auto line = layout->createLine();
        if (!line.isValid()) break;
        line.setLineWidth(shape.Width);
        cut = shape.Elide && height_ > top && height_ + line.height() > shape.Height;
        if (cut) break;
        lastStart = line.textStart();
        Place(line, shape);
    }
    layout->endLayout();
    if (cut) {
        height_ = top;
        AddCut(font, text, lastStart, shape);
    } else
        Keep(*layout);
}

void TextBlock::AddCut(const FontEntry& font, const QString& text, int lastStart, BlockShape shape) {
    if (lastStart > 0) {
        BlockShape head = shape;
        head.Elide = false;
        AddWrapped(font, text.left(lastStart), head);
    }
    shape.Wrap = false;
    AddWholeLine(font, text.mid(lastStart), shape);
    height_ = std::max(height_, shape.Height); // nothing more is laid out
}

void TextBlock::Place(QTextLine line, const BlockShape& shape) {
    line.setPosition({Indent(line, shape), height_});
    width_ = std::max(width_, line.naturalTextWidth());
    height_ += line.height();
}

void TextBlock::Keep(const QTextLayout& layout) {
    for (const auto& run : layout.glyphRuns()) runs_.push_back(run);
}

} // namespace quill
