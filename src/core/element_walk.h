// The walk over what is visible on a surface, without texts: one template that Elements, ElementAt and
// whoever only needs places share. Painting order; the last spot that contains a point is the one that is
// hit.
#pragma once

#include "containers/layout.h"
#include "containers/measures.h"
#include "core/frmMain.h"
#include "core/objects.h"
#include "core/surfaces.h"
#include "dock/mini_toolbar.h"
#include "keyboard/jump_to.h"
#include "shortcuts/speed_launch.h"

#include <algorithm>

namespace quill {

struct Spot {
    ElementId Id;
    Rect Place; // on the surface, cut to what can be seen of it
    Rect Whole; // uncut
};

namespace walk {

inline Rect Cut(const Rect& place, const Rect& area) {
    const float left = std::max(place.Left, area.Left), top = std::max(place.Top, area.Top);
    const float right = std::min(place.Right(), area.Right()),
                bottom = std::min(place.Bottom(), area.Bottom());
    return {left, top, std::max(0.0F, right - left), std::max(0.0F, bottom - top)};
}

inline Rect Moved(const Rect& place, float x, float y) {
    return {place.Left + x, place.Top + y, place.Width, place.Height};
}

// Passes on what has a size; false from the visitor ends the walk.
template <class Visit> bool Show(Visit& visit, ElementKind kind, int index, const Rect& place) {
    return place.Width <= 0 || place.Height <= 0 || visit(Spot{{kind, index}, place, place});
}

template <class Visit> bool Show(Visit& visit, ElementKind kind, int index, const Element& element) {
    return !element.Visible || Show(visit, kind, index, element.Place);
}

// A part of a shortcut. What is scrolled out of a frame can be scrolled back, by keyboard too: it is passed
// on with an empty place.
template <class Visit>
bool LinkPart(Visit& visit, ElementId id, const Rect& whole, const Rect& area, bool scrolls) {
    const auto seen = Cut(whole, area);
    const bool outside = seen.Width <= 0 || seen.Height <= 0;
    if (outside && !scrolls) return true;
    return visit(Spot{id, outside ? Rect{seen.Left, seen.Top, 0, 0} : seen, whole});
}

// The shortcuts of one parent, moved by what the parent is away from the surface's corner.
template <class Visit>
bool Links(const frmMain& Main, Parent parent, const Rect& area, float x, float y, Visit& visit) {
    const bool scrolls = parent.Kind == ParentKind::ContainerFrame;
    for (const auto& row : Live(Main.Shortcuts)) {
        const auto& view = Main.LinkView(row.Index);
        if (!view.Visible || view.In.Kind != parent.Kind || view.In.Index != parent.Index) continue;
        const auto label = Moved(LabelPlace(Main, row.Index), x, y),
                   icon = Moved(IconPlace(Main, row.Index), x, y);
        if (!LinkPart(visit, {ElementKind::lblShortcut, row.Index}, label, area, scrolls)) return false;
        if (!LinkPart(visit, {ElementKind::picShortcut, row.Index}, icon, area, scrolls)) return false;
    }
    return true;
}

template <class Visit> bool Title(const frmMain& Main, Visit& visit) {
    const auto& view = Main.View;
    const float x = view.picMoveMe.Place.Left, y = view.picMoveMe.Place.Top;
    const auto inTitle = [&](ElementKind kind, const Element& element) {
        return !element.Visible || Show(visit, kind, -1, Moved(element.Place, x, y));
    };
    return Show(visit, ElementKind::picMoveMe, -1, view.picMoveMe) &&
           inTitle(ElementKind::lblCaption, view.lblCaption) && inTitle(ElementKind::ImgLock, view.ImgLock) &&
           inTitle(ElementKind::PicMenu, view.PicMenu) &&
           inTitle(ElementKind::PicLockToolbar, view.PicLockToolbar) &&
           inTitle(ElementKind::PicUnLockToolbar, view.PicUnLockToolbar) &&
           inTitle(ElementKind::PicDock, view.PicDock);
}

template <class Visit> bool Workspace(const frmMain& Main, Visit& visit) {
    const auto& back = Main.View.picBack.Place;
    const Rect area{0, 0, back.Width, back.Height};
    return Show(visit, ElementKind::picBack, -1, area) && Links(Main, OnWorkspace(), area, 0, 0, visit) &&
           Title(Main, visit);
}

// A tile is its icon from edge to edge.
template <class Visit> bool Tile(const ContainerView& view, int index, const Rect& box, Visit& visit) {
    return Show(visit, ElementKind::Container, index, box) &&
           Show(visit, ElementKind::shapeTags, index, view.shapeTags) &&
           Show(visit, ElementKind::ContainerIcon, index, box);
}

template <class Visit> bool TitleRow(const ContainerView& view, int index, Visit& visit) {
    const Rect zone{0, 0, measures::ShrinkZoneWidth, measures::ShrinkZoneHeight};
    const Element shrink{zone, view.shapeShrink.Visible};
    const Element label{view.ContainerLabel.Place, view.ContainerLabel.Visible};
    return Show(visit, ElementKind::ContainerLabel, index, label) &&
           Show(visit, ElementKind::shapeShrink, index, shrink) &&
           Show(visit, ElementKind::shapeTags, index, view.shapeTags) &&
           Show(visit, ElementKind::shapeNoteIndicator, index, view.shapeNoteIndicator) &&
           Show(visit, ElementKind::lblPinNote, index, view.lblPinNote) &&
           Show(visit, ElementKind::lblFoldUnfold, index, view.lblFoldUnfold);
}

template <class Visit> bool Frame(const frmMain& Main, int index, Visit& visit) {
    const auto& view = Main.ConView(index);
    const auto& frame = view.ContainerFrame.Place;
    const auto inFrame = [&](ElementKind kind, const Element& element) {
        return !element.Visible ||
               Show(visit, kind, index, Cut(Moved(element.Place, frame.Left, frame.Top), frame));
    };
    if (!Show(visit, ElementKind::ContainerFrame, index, frame)) return false;
    if (view.ContainerNote.Visible) return inFrame(ElementKind::ContainerNote, view.ContainerNote);
    return Links(Main, InContainer(index), frame, frame.Left, frame.Top - view.ScrollTop, visit) &&
           inFrame(ElementKind::VScroll, view.VScroll);
}

template <class Visit> bool ResizeMark(const Rect& box, int index, Visit& visit) {
    const float edge = measures::ResizeHitEdge;
    const Rect corner{box.Width - edge, box.Height - edge, edge, edge};
    return Show(visit, ElementKind::ResizeSymbol, index, Cut(corner, box));
}

template <class Visit> bool Container(const frmMain& Main, int index, Visit& visit) {
    const auto& view = Main.ConView(index);
    const Rect box{0, 0, view.Container.Place.Width, view.Container.Place.Height};
    if (IsShrunk(Main, index)) return Tile(view, index, box, visit);
    if (!Show(visit, ElementKind::Container, index, box) || !TitleRow(view, index, visit)) return false;
    return IsFolded(Main, index) || (Frame(Main, index, visit) && ResizeMark(box, index, visit));
}

template <class Visit> bool Picture(const frmMain& Main, int index, Visit& visit) {
    const auto& frame = Main.PicView(index).PicContainer;
    const float rim = measures::PictureRim;
    const Rect image{rim, rim, frame.Width - 2 * rim, frame.Height - 2 * rim};
    return Show(visit, ElementKind::PicContainer, index, Rect{0, 0, frame.Width, frame.Height}) &&
           Show(visit, ElementKind::PicImage, index, image);
}

// What shows over everything, the smallest place that holds all of it.
inline Rect Around(const Rect& one, const Rect& other) {
    const float left = std::min(one.Left, other.Left), top = std::min(one.Top, other.Top);
    return {left, top, std::max(one.Right(), other.Right()) - left,
            std::max(one.Bottom(), other.Bottom()) - top};
}

inline Rect OverlayPlace(const frmMain& Main) {
    const auto& band = Main.Group.frmSelection;
    const auto& effect = Main.Looks.frmExplode;
    if (!effect.Loaded) return band.Loaded ? band.Place : Rect{};
    return band.Loaded ? Around(band.Place, effect.Now) : effect.Now;
}

template <class Visit> bool Overlay(const frmMain& Main, Visit& visit) {
    const auto corner = OverlayPlace(Main);
    const auto here = [&](const Rect& place) { return Moved(place, -corner.Left, -corner.Top); };
    const auto& band = Main.Group.frmSelection;
    const auto& effect = Main.Looks.frmExplode;
    return (!effect.Loaded || Show(visit, ElementKind::frmExplode, effect.Container, here(effect.Now))) &&
           (!band.Loaded || Show(visit, ElementKind::frmSelection, -1, here(band.Place)));
}

template <class Visit> bool MiniDock(const frmMain& Main, Visit& visit) {
    const auto& place = Main.Dock.MiniDock.Place;
    return Show(visit, ElementKind::frmMiniDock, -1, Rect{0, 0, place.Width, place.Height});
}

template <class Visit> bool MiniToolbar(const frmMain& Main, Visit& visit) {
    const auto& strip = Main.Dock.MiniToolbar.Place;
    if (!Show(visit, ElementKind::picMiniToolbar, -1, Rect{0, 0, strip.Width, strip.Height})) return false;
    for (int cell = 0; cell < MiniToolbarButtons; ++cell)
        if (!Show(visit, ElementKind::MiniToolbarButton, cell, PlaceOfMiniToolbarCell(cell))) return false;
    return Show(visit, ElementKind::PicLinkColor, -1, PlaceOfMiniToolbarCell(MiniToolbarButtons));
}

template <class Visit> bool JumpTo(const frmMain& Main, Visit& visit) {
    const auto& box = Main.Keys.PicJumpToLink;
    const auto part = [&](ElementKind kind) { return Show(visit, kind, -1, PlaceOfJumpToPart(Main, kind)); };
    return Show(visit, ElementKind::PicJumpToLink, -1, Rect{0, 0, box.Place.Width, box.Place.Height}) &&
           part(ElementKind::PicJumpToIcon) && part(ElementKind::lblJumpToLink) &&
           part(ElementKind::cboSearch) && part(ElementKind::lblJumpToTip) &&
           (!box.lblHistoryVisible || part(ElementKind::lblHistory)) && part(ElementKind::lblGo) &&
           part(ElementKind::lblClosePicJumpTo);
}

template <class Visit> bool QuickLaunch(const frmMain& Main, Visit& visit) {
    const auto& window = Main.Links.QuickLaunch.Place;
    if (!Show(visit, ElementKind::frmQuickLaunch, -1, Rect{0, 0, window.Width, window.Height})) return false;
    for (int row = 0; row < SpeedLaunchSlots; ++row)
        if (!Show(visit, ElementKind::lblSpeedLaunch, row, PlaceOfSpeedLaunchRow(row)) ||
            !Show(visit, ElementKind::picIcon, row, PlaceOfSpeedLaunchIcon(row)))
            return false;
    return true;
}

} // namespace walk

// Visits every visible element on a surface; false when the visitor ended the walk.
template <class Visit> bool WalkElements(const frmMain& Main, SurfaceId surface, Visit&& visit) {
    switch (surface.Kind) {
    case SurfaceKind::Workspace:
        return walk::Workspace(Main, visit);
    case SurfaceKind::Container:
        return !IsLive(Main.Containers, surface.Index) || walk::Container(Main, surface.Index, visit);
    case SurfaceKind::Picture:
        return !IsLive(Main.Pictures, surface.Index) || walk::Picture(Main, surface.Index, visit);
    case SurfaceKind::Overlay:
        return walk::Overlay(Main, visit);
    case SurfaceKind::MiniDock:
        return walk::MiniDock(Main, visit);
    case SurfaceKind::MiniToolbar:
        return walk::MiniToolbar(Main, visit);
    case SurfaceKind::JumpTo:
        return walk::JumpTo(Main, visit);
    case SurfaceKind::QuickLaunch:
        return walk::QuickLaunch(Main, visit);
    }
    return true;
}

// The texts and states of a spot.
ElementInfo DescribeElement(const frmMain& Main, const Spot& spot);

} // namespace quill
