#include "persistence/objects_by_parent.h"

#include "core/frmMain.h"

namespace quill {

namespace {

std::size_t PlaceOf(const Parent& parent) {
    return parent.Kind == ParentKind::picBack ? 0 : static_cast<std::size_t>(parent.Index) + 1;
}

std::vector<std::int32_t> LiveShortcuts(const frmMain& Main) {
    std::vector<std::int32_t> rows;
    rows.reserve(Main.Shortcuts.size());
    for (const auto& row : Live(Main.Shortcuts)) rows.push_back(row.Index);
    return rows;
}

std::vector<std::int32_t> LivePictures(const frmMain& Main) {
    std::vector<std::int32_t> rows;
    for (const auto& entry : Main.ZOrderList)
        if (entry.Kind == KindPicture && IsLive(Main.Pictures, entry.Index)) rows.push_back(entry.Index);
    return rows;
}

} // namespace

ObjectsByParent::ObjectsByParent(const frmMain& Main) {
    const std::size_t places = Main.Containers.size() + 1;
    shortcuts_ = Bucket(LiveShortcuts(Main), Main.ShortcutViews, places);
    pictures_ = Bucket(LivePictures(Main), Main.PictureViews, places);
}

// Counted, summed up, dealt out: the order within a place stays.
template <class View>
ObjectsByParent::Bucketed ObjectsByParent::Bucket(const std::vector<std::int32_t>& rows,
                                                  const std::vector<View>& views, std::size_t places) {
    const auto placeOf = [&](std::int32_t row) { return PlaceOf(views[static_cast<std::size_t>(row)].In); };
    Bucketed sorted;
    sorted.Starts.assign(places + 1, 0);
    for (const auto row : rows)
        if (placeOf(row) < places) ++sorted.Starts[placeOf(row) + 1];
    for (std::size_t place = 1; place <= places; ++place) sorted.Starts[place] += sorted.Starts[place - 1];
    sorted.Rows.resize(sorted.Starts[places]);
    auto next = sorted.Starts;
    for (const auto row : rows)
        if (placeOf(row) < places) sorted.Rows[next[placeOf(row)]++] = row;
    return sorted;
}

std::span<const std::int32_t> ObjectsByParent::Bucketed::Of(const Parent& parent) const {
    const std::size_t place = PlaceOf(parent);
    if (place + 1 >= Starts.size()) return {};
    return {Rows.data() + Starts[place], Starts[place + 1] - Starts[place]};
}

} // namespace quill
