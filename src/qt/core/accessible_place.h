// Places as assistive technology is told them: in pixels of the screen. The toolkit passes on to it whatever
// an interface says, and itself counts in device-independent pixels, which at 200 % lie elsewhere. Where a
// program doesn't know its place on the screen the two are the same.
#pragma once

#include <QPoint>
#include <QRect>

class QWidget;

namespace quill {

QRect ToldRect(const QWidget& widget, const QRect& place); // from the widget's own pixels
QPoint PlaceOnWidget(const QWidget& widget, QPoint told);  // and back

} // namespace quill
