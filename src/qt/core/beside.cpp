#include "qt/core/beside.h"

#include <algorithm>

namespace quill {
namespace {

// Room for the frame that the window manager adds, whose size nobody knows yet.
constexpr int gap = 16, frame = 12, title = 40; // pixels

int Within(int at, int low, int high) {
    return std::max(low, std::min(at, high));
}

} // namespace

std::optional<QPoint> PlaceBeside(const QRect& place, QSize dialog, const QRect& screen) {
    const QRect room = screen.adjusted(frame, title, -frame, -frame);
    const int right = room.right() - dialog.width(), bottom = room.bottom() - dialog.height();
    const int level = Within(place.top(), room.top(), bottom),
              plumb = Within(place.left(), room.left(), right);
    const QPoint spots[] = {{place.right() + gap, level},
                            {place.left() - gap - dialog.width(), level},
                            {plumb, place.bottom() + gap + title},
                            {plumb, place.top() - gap - frame - dialog.height()}};
    for (const QPoint& spot : spots)
        if (room.contains(QRect(spot, dialog))) return spot;
    return std::nullopt;
}

} // namespace quill
