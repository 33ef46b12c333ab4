// Decode: reading image files into pixels. Safe on any thread; a file is never trusted, so the memory that an
// image may take is limited.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace quill {

// Natural size with the turn that the file asks for; invalid when it can't be read.
QSize NaturalSize(const QString& path);
// The whole image in exactly these sides; null when it can't be read.
QImage DecodeStretched(const QString& path, QSize size);
// The image within a square, keeping its shape, never enlarged. Of a file with several sizes the best one.
QImage DecodeWithin(const QString& path, int side);

} // namespace quill
