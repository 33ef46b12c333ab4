// Symbols: monochrome drawings of ours and the images of button sets, at the device's own resolution. Each is
// drawn once per size and colour.
#pragma once

#include <QColor>
#include <QHash>
#include <QImage>
#include <QSize>
#include <QString>

namespace quill {

class Symbols {
public:
    explicit Symbols(QString folder) : folder_(std::move(folder)) {}

    // A symbol in a colour; null when there is none of that name. Sides are device pixels.
    QImage Get(const QString& name, int side, QColor ink);
    // An image of a button set, in its own colours; a drawing beside an image of the same name is preferred,
    // since it is sharp at every scaling. Null when it can't be read.
    QImage Button(const QString& path, int side);

private:
    const QImage& Shape(const QString& name, int side);

    QString folder_;
    QHash<QString, QImage> shapes_; // by name and side, black
    QHash<QString, QImage> made_;   // by name, side and colour
};

} // namespace quill
