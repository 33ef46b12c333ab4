#include "core/element_walk.h"

#include <array>

namespace quill {
namespace {

constexpr auto names = std::to_array<std::string_view>({
    "",
    "picBack",
    "picMoveMe",
    "lblCaption",
    "PicMenu",
    "PicDock",
    "PicLockToolbar",
    "PicUnLockToolbar",
    "Container",
    "ContainerFrame",
    "ContainerLabel",
    "ContainerIcon",
    "lblFoldUnfold",
    "lblPinNote",
    "shapeShrink",
    "shapeTags",
    "shapeNoteIndicator",
    "ResizeSymbol",
    "ContainerNote",
    "LstRSS",
    "lblRSSLastUpdate",
    "VScroll",
    "lblShortcut",
    "picShortcut",
    "PicContainer",
    "PicImage",
    "PictureGrip",
    "frmSelection",
    "frmExplode",
    "ImgLock",
    "frmMiniDock",
    "picMiniToolbar",
    "MiniToolbarButton",
    "PicLinkColor",
    "PicJumpToLink",
    "PicJumpToIcon",
    "lblJumpToLink",
    "lblJumpToTip",
    "cboSearch",
    "lblHistory",
    "lblGo",
    "lblClosePicJumpTo",
    "frmQuickLaunch",
    "picIcon",
    "lblSpeedLaunch",
});
static_assert(names.size() == static_cast<std::size_t>(ElementKind::lblSpeedLaunch) + 1);

bool FrameIsOpen(const frmMain& Main, int container) {
    if (!IsLive(Main.Containers, container)) return false;
    const auto& view = Main.ConView(container);
    return view.Container.Visible && !view.ContainerNote.Visible && !IsFolded(Main, container) &&
           !IsShrunk(Main, container);
}

Rect PlaceOfPicture(const frmMain& Main, int index) {
    const auto& picture = Main.PicView(index);
    if (picture.In.Kind == ParentKind::picBack || !IsLive(Main.Containers, picture.In.Index)) {
        return picture.PicContainer;
    }
    const auto& container = Main.ConView(picture.In.Index);
    const auto& frame = container.ContainerFrame.Place;
    return walk::Moved(picture.PicContainer, frame.Left, frame.Top - container.ScrollTop);
}

bool PictureVisible(const frmMain& Main, int index) {
    if (!IsLive(Main.Pictures, index) || !Main.PicView(index).Visible) return false;
    const auto& in = Main.PicView(index).In;
    if (in.Kind == ParentKind::picBack) return true;
    if (!FrameIsOpen(Main, in.Index)) return false;
    return PlaceOfPicture(Main, index).Intersects(Main.ConView(in.Index).ContainerFrame.Place);
}

} // namespace

void Elements(const frmMain& Main, SurfaceId surface, const ElementVisitor& visit) {
    WalkElements(Main, surface, [&](const Spot& spot) { return visit(DescribeElement(Main, spot)); });
}

ElementId ElementAt(const frmMain& Main, SurfaceId surface, Point at) {
    ElementId hit;
    WalkElements(Main, surface, [&](const Spot& spot) {
        if (spot.Place.Contains(at.X, at.Y)) hit = spot.Id;
        return true;
    });
    return hit;
}

std::string_view NameOf(ElementKind kind) {
    return names[static_cast<std::size_t>(kind)];
}

std::vector<SurfaceId> Surfaces(const frmMain& Main) {
    std::vector<SurfaceId> surfaces{{SurfaceKind::Workspace, -1}};
    for (const auto& entry : Main.ZOrderList) {
        surfaces.push_back(
            {entry.Kind == KindContainer ? SurfaceKind::Container : SurfaceKind::Picture, entry.Index});
    }
    surfaces.push_back({SurfaceKind::JumpTo, -1});
    surfaces.push_back({SurfaceKind::Overlay, -1});
    return surfaces;
}

Rect PlaceOfSurface(const frmMain& Main, SurfaceId surface) {
    switch (surface.Kind) {
    case SurfaceKind::Workspace:
        return Main.View.picBack.Place;
    case SurfaceKind::Container:
        return IsLive(Main.Containers, surface.Index) ? Main.ConView(surface.Index).Container.Place : Rect{};
    case SurfaceKind::Picture:
        return IsLive(Main.Pictures, surface.Index) ? PlaceOfPicture(Main, surface.Index) : Rect{};
    case SurfaceKind::Overlay:
        return walk::OverlayPlace(Main);
    case SurfaceKind::MiniDock:
        return Main.Dock.MiniDock.Place;
    case SurfaceKind::MiniToolbar:
        return Main.Dock.MiniToolbar.Place;
    case SurfaceKind::JumpTo:
        return Main.Keys.PicJumpToLink.Place;
    case SurfaceKind::QuickLaunch:
        return Main.Links.QuickLaunch.Place;
    }
    return {};
}

bool SurfaceVisible(const frmMain& Main, SurfaceId surface) {
    switch (surface.Kind) {
    case SurfaceKind::Workspace:
        return Main.View.picBack.Visible;
    case SurfaceKind::Container:
        return IsLive(Main.Containers, surface.Index) && Main.ConView(surface.Index).Container.Visible;
    case SurfaceKind::Picture:
        return PictureVisible(Main, surface.Index);
    case SurfaceKind::Overlay:
        return Main.Group.frmSelection.Loaded || Main.Looks.frmExplode.Loaded;
    case SurfaceKind::MiniDock:
        return Main.Dock.MiniDock.Visible;
    case SurfaceKind::MiniToolbar:
        return Main.Dock.MiniToolbar.Loaded;
    case SurfaceKind::JumpTo:
        return Main.Keys.PicJumpToLink.Visible;
    case SurfaceKind::QuickLaunch:
        return Main.Links.QuickLaunch.Loaded;
    }
    return false;
}

} // namespace quill
