#include "qt/dock/work_area.h"

#include "qt/dock/x11.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <vector>

namespace quill {
namespace {

using Strut = std::vector<std::uint32_t>; // left, right, top, bottom, then the span of each; device pixels

QRect DeviceDesktop() {
    QRect all;
    for (const QScreen* screen : QGuiApplication::screens()) all |= DeviceRect(*screen);
    return all;
}

int Number(std::uint32_t value) {
    return static_cast<int>(std::min<std::uint32_t>(value, 1U << 20));
}

std::vector<QRect> KeptFree(const Strut& strut, const QRect& desktop) {
    const auto at = [&](std::size_t index) { return Number(strut[index]); };
    const auto span = [&](std::size_t first) { return at(first + 1) - at(first) + 1; };
    return {QRect(desktop.left(), at(4), at(0), span(4)),
            QRect(desktop.right() + 1 - at(1), at(6), at(1), span(6)),
            QRect(at(8), desktop.top(), span(8), at(2)),
            QRect(at(10), desktop.bottom() + 1 - at(3), span(10), at(3))};
}

// Cuts the side of the area that loses least.
QRect Without(const QRect& area, const QRect& taken) {
    if (taken.isEmpty() || !area.intersects(taken)) return area;
    QRect rests[] = {area, area, area, area};
    rests[0].setLeft(taken.right() + 1);
    rests[1].setRight(taken.left() - 1);
    rests[2].setTop(taken.bottom() + 1);
    rests[3].setBottom(taken.top() - 1);
    const auto size = [](const QRect& rect) { return rect.isValid() ? rect.width() * rect.height() : 0; };
    return *std::max_element(std::begin(rests), std::end(rests),
                             [&](const QRect& one, const QRect& other) { return size(one) < size(other); });
}

QRect Reduced(QRect area) {
    const QRect desktop = DeviceDesktop();
    for (const auto window : qt::x11::Numbers(qt::x11::Root(), "_NET_CLIENT_LIST")) {
        const Strut strut = qt::x11::Numbers(window, "_NET_WM_STRUT_PARTIAL");
        if (strut.size() < 12) continue;
        for (const QRect& taken : KeptFree(strut, desktop)) area = Without(area, taken);
    }
    return area;
}

} // namespace

QRect DeviceRect(const QScreen& screen) {
    return {screen.geometry().topLeft(), screen.geometry().size() * screen.devicePixelRatio()};
}

QPoint DevicePoint(const QScreen& screen, QPoint place) {
    const QPoint corner = screen.geometry().topLeft();
    return corner + (place - corner) * screen.devicePixelRatio();
}

QRect WorkAreaOfScreen(const QScreen& screen) {
    if (QGuiApplication::screens().size() < 2 || !qt::x11::IsPresent()) return screen.availableGeometry();
    const QRect device = DeviceRect(screen), rest = Reduced(device);
    const qreal ratio = screen.devicePixelRatio();
    const auto scaled = [&](int from, int to) { return static_cast<int>(std::lround((to - from) / ratio)); };
    return {screen.geometry().x() + scaled(device.x(), rest.x()),
            screen.geometry().y() + scaled(device.y(), rest.y()), scaled(0, rest.width()),
            scaled(0, rest.height())};
}

} // namespace quill
