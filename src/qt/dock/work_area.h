// Work areas: what panels leave of each monitor, in device-independent pixels. With one monitor the toolkit
// knows it; with several it does not, and the windows are asked for the room that they keep free.
#pragma once

#include <QRect>

class QScreen;

namespace quill {

// Device pixels. Screens keep their corner, and grow by their own factor.
QRect DeviceRect(const QScreen& screen);
QPoint DevicePoint(const QScreen& screen, QPoint place);

QRect WorkAreaOfScreen(const QScreen& screen);

} // namespace quill
