#include "core/shortcut_lists.h"

#include <algorithm>

namespace quill {
namespace {

std::size_t PlaceOf(const Parent& parent) {
    return parent.Kind == ParentKind::picBack ? 0 : static_cast<std::size_t>(parent.Index) + 1;
}

} // namespace

// Counted, summed up, dealt out: the order within a place stays. Where a dead row lay does not matter.
ShortcutLists::ShortcutLists(const frmMain& Main) {
    const std::size_t places = Main.Containers.size() + 1;
    std::vector<std::uint32_t> placeOf; // the views themselves are much larger
    placeOf.reserve(Main.ShortcutViews.size());
    starts_.assign(places + 1, 0);
    for (const auto& view : Main.ShortcutViews) {
        const auto place = std::min(PlaceOf(view.In), places);
        placeOf.push_back(static_cast<std::uint32_t>(place));
        if (place < places) ++starts_[place + 1];
    }
    for (std::size_t place = 1; place <= places; ++place) starts_[place] += starts_[place - 1];
    rows_.resize(starts_[places]);
    auto next = starts_;
    for (std::size_t row = 0; row < placeOf.size(); ++row)
        if (placeOf[row] < places) rows_[next[placeOf[row]]++] = static_cast<std::int32_t>(row);
}

std::span<const std::int32_t> ShortcutLists::Of(const Parent& in) const {
    const std::size_t place = PlaceOf(in);
    if (place >= starts_.size() - 1) return {};
    return {rows_.data() + starts_[place], starts_[place + 1] - starts_[place]};
}

} // namespace quill
