#include "qt/appearance/symbols.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace quill {
namespace {

QImage RenderSvg(const QString& path, int side) {
    QSvgRenderer drawing(path);
    if (!drawing.isValid()) return {};
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);
    drawing.render(&painter, QRectF(0, 0, side, side));
    return image;
}

QImage Tinted(const QImage& shape, QColor ink) {
    QImage image = shape;
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), ink);
    return image;
}

QImage ReadFitting(const QString& path, int side) {
    QImageReader reader(path);
    const QImage image = reader.read();
    if (image.isNull()) return {};
    return image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QString DrawingBeside(const QString& path) {
    const QFileInfo file(path);
    const QString drawing = file.path() + QLatin1Char('/') + file.completeBaseName() + QStringLiteral(".svg");
    return QFileInfo::exists(drawing) ? drawing : QString();
}

} // namespace

QImage Symbols::Get(const QString& name, int side, QColor ink) {
    const QString key = QStringLiteral("%1/%2/%3").arg(name).arg(side).arg(ink.rgb(), 0, 16);
    const auto found = made_.constFind(key);
    if (found != made_.constEnd()) return *found;
    const QImage& shape = Shape(name, side);
    return *made_.insert(key, shape.isNull() ? shape : Tinted(shape, ink));
}

QImage Symbols::Button(const QString& path, int side) {
    const QString key = QStringLiteral("%1/%2").arg(path).arg(side);
    const auto found = made_.constFind(key);
    if (found != made_.constEnd()) return *found;
    const QString drawing = DrawingBeside(path);
    return *made_.insert(key, drawing.isEmpty() ? ReadFitting(path, side) : RenderSvg(drawing, side));
}

const QImage& Symbols::Shape(const QString& name, int side) {
    const QString key = QStringLiteral("%1/%2").arg(name).arg(side);
    const auto found = shapes_.constFind(key);
    if (found != shapes_.constEnd()) return *found;
    return *shapes_.insert(key, RenderSvg(folder_ + QLatin1Char('/') + name + QStringLiteral(".svg"), side));
}

} // namespace quill
