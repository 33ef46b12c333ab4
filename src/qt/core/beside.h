// Where a dialog goes that must not cover what it is about. Pixels, all in one system.
#pragma once

#include <QPoint>
#include <QRect>

#include <optional>

namespace quill {

// At the right of the place, else at the left, above or below it; nothing when there is no room inside the
// screen. The size is the dialog's without its frame.
std::optional<QPoint> PlaceBeside(const QRect& place, QSize dialog, const QRect& screen);

} // namespace quill
