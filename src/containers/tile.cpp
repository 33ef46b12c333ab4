// The tile: its icon, and its size.
#include "appearance/wallpaper.h"
#include "containers/layout.h"
#include "containers/lifecycle.h"
#include "containers/measures.h"
#include "core/objects.h"
#include "platform/drawing.h"
#include "platform/files.h"
#include "shortcuts/create.h"

#include <algorithm>

namespace quill {
namespace {

constexpr const char* emptyIcon = "emptyicon.ico";

// What stands behind the last separator; workspaces from elsewhere name their icons with other ones.
std::string LastElement(const std::string& path) {
    const auto cut = path.find_last_of("/\\");
    return cut == std::string::npos ? path : path.substr(cut + 1);
}

// While loading nobody waits for the head of a file: what can't be read then is drawn as a symbol.
bool IsPicture(const frmMain& Main, const std::string& path) {
    return Main.P.Files.Exists(path) && (Main.IsLoading || Main.P.Images.PictureSize(path).Width > 0);
}

std::string IconFileOf(const frmMain& Main, const std::string& path) {
    const auto full = ExpandDriveMarker(Main, path);
    if (full.starts_with('/') && IsPicture(Main, full)) return full;
    const auto name = LastElement(path);
    const auto beside = name.empty() ? std::string() : FileBeside(Main, name);
    return beside.empty() ? FileBeside(Main, emptyIcon) : beside;
}

Rect TileIconPlace(TileSize tile) {
    const bool normal = tile.Width == measures::NormalTileWidth;
    const float left = normal ? measures::TileIconLeftNormal : measures::TileIconLeft;
    const float width = static_cast<float>(tile.Width), height = static_cast<float>(tile.Height);
    const float room = std::min(width, height) - 2 * left;
    const float edge = std::max(0.0F, std::min(measures::TileIconEdge, room));
    return {left, std::max(0.0F, (height - edge) / 2), edge, edge};
}

void ApplyTileSize(frmMain& Main, int Index) {
    auto& place = Main.ConView(Index).Container.Place;
    const auto tile = Main.Con(Index).ShrinkSize();
    place.Width = static_cast<float>(tile.Width);
    place.Height = static_cast<float>(tile.Height);
    SetObjectRelativeSize(Main, Index);
    DoRoundGradResizeSym(Main, Index, true);
    AddShrinkIcon(Main, Main.Con(Index).ShrinkPath, Index);
}

} // namespace

std::string DefaultShrinkIcon(const frmMain& Main, int Index) {
    if (Main.Con(Index).RSS) return "rss.ico";
    return Main.ConView(Index).PinPressed ? "note.ico" : emptyIcon;
}

void AddShrinkIcon(frmMain& Main, const std::string& path, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    auto& container = Main.Con(Index);
    auto& view = Main.ConView(Index);
    container.ShrinkPath = path.empty() ? DefaultShrinkIcon(Main, Index) : path;
    view.IconFile = IconFileOf(Main, container.ShrinkPath);
    view.IconSmall = container.ShrinkSize().Width <= measures::TinyTileWidth;
    view.ContainerIcon.Place = TileIconPlace(container.ShrinkSize());
    Main.Marks.Container(Index);
}

void AddDefaultShrinkIcon(frmMain& Main, const std::string& path) {
    AddShrinkIcon(Main, path.empty() ? emptyIcon : path, Main.NextContainerIndex - 1);
}

void SetContainerShrinkSize(frmMain& Main, int Index, int width, int height) {
    if (!IsLive(Main.Containers, Index)) return;
    const bool isTile = IsShrunk(Main, Index);
    Main.Con(Index).SetShrinkSize(width, height);
    if (isTile || IsShrunk(Main, Index)) ApplyTileSize(Main, Index);
}

} // namespace quill
