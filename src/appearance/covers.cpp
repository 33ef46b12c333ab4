#include "appearance/covers.h"

#include "appearance/palette.h"

#include <algorithm>

namespace quill {
namespace {

bool Encloses(const Rect& outer, const Rect& inner) {
    return inner.Left >= outer.Left && inner.Right() <= outer.Right() && inner.Top >= outer.Top &&
           inner.Bottom() <= outer.Bottom();
}

} // namespace

std::vector<Rect> CoversAbove(const frmMain& Main, const Parent& surface) {
    const bool inContainer = surface.Kind == ParentKind::ContainerFrame;
    const Rect own = inContainer ? Main.ConView(surface.Index).Container.Place : Rect{};
    bool above = !inContainer;
    std::vector<Rect> covers;
    for (const auto& entry : Main.ZOrderList) {
        if (entry.Kind != KindContainer || !IsLive(Main.Containers, entry.Index)) continue;
        const bool isOwn = inContainer && entry.Index == surface.Index;
        const auto& other = Main.ConView(entry.Index).Container;
        if (above && !isOwn && other.Visible)
            covers.push_back(Inset(Shifted(other.Place, {-own.Left, -own.Top}), CornerRadius));
        above = above || isOwn;
    }
    return covers;
}

bool IsCovered(const std::vector<Rect>& covers, const Rect& place) {
    return std::ranges::any_of(covers, [&](const Rect& cover) { return Encloses(cover, place); });
}

} // namespace quill
