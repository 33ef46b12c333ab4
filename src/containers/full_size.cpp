#include "containers/full_size.h"

#include "containers/measures.h"
#include "core/objects.h"

namespace quill {
namespace {

bool IsTileSize(const clsContainer& container, Size size) {
    const auto tile = container.ShrinkSize();
    return size.Width == static_cast<float>(tile.Width) && size.Height == static_cast<float>(tile.Height);
}

bool IsKnown(const clsContainer& container, Size size) {
    return size.Width > 0 && size.Height > 0 && !IsTileSize(container, size);
}

} // namespace

void RememberFullSize(frmMain& Main, int Index, Size size) {
    auto& container = Main.Con(Index);
    if (!IsKnown(container, size)) return;
    container.SetOriginalSize(size.Width, size.Height);
    container.SetSize({.H = size.Height, .W = size.Width});
}

void RememberPresentSize(frmMain& Main, int Index) {
    const auto& place = Main.ConView(Index).Container.Place;
    const float height = IsFolded(Main, Index) ? FullSize(Main, Index).Height : place.Height;
    RememberFullSize(Main, Index, {place.Width, height});
}

Size FullSize(const frmMain& Main, int Index) {
    const auto& container = Main.Con(Index);
    if (const auto size = container.OriginalSize(); IsKnown(container, size)) return size;
    const Size stored{container.StoredSize().W, container.StoredSize().H};
    if (IsKnown(container, stored)) return stored;
    return {measures::NewContainerEdge, measures::NewContainerEdge};
}

void RememberPlace(frmMain& Main, int Index) {
    const auto& place = Main.ConView(Index).Container.Place;
    Main.Con(Index).SetSize({.X = place.Left, .Y = place.Top});
}

} // namespace quill
