// Surfaces and elements: the names by which screen and logic talk about what is on the workspace. A surface
// is what can overlap (one widget each); everything else is an element painted on a surface.
#pragma once

#include "platform/geometry.h"

#include <compare>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quill {

struct frmMain;

// The overlay lies over everything on picBack and lets the mouse through; it shows only while it has
// something to show. JumpTo is the Keyboard Launcher's box, above all objects. MiniDock, MiniToolbar and
// QuickLaunch are windows of their own beside the workspace.
enum class SurfaceKind { Workspace, Container, Picture, Overlay, MiniDock, MiniToolbar, JumpTo, QuickLaunch };

struct SurfaceId {
    SurfaceKind Kind = SurfaceKind::Workspace;
    int Index = -1; // table index of the container or picture; -1 for the workspace and the overlay
    auto operator<=>(const SurfaceId&) const = default;
};

enum class ElementKind {
    None,
    picBack,
    picMoveMe,
    lblCaption,
    PicMenu,
    PicDock,
    PicLockToolbar,
    PicUnLockToolbar,
    Container,
    ContainerFrame,
    ContainerLabel,
    ContainerIcon,
    lblFoldUnfold,
    lblPinNote,
    shapeShrink,
    shapeTags,
    shapeNoteIndicator,
    ResizeSymbol,
    ContainerNote,
    LstRSS,
    lblRSSLastUpdate,
    VScroll,
    lblShortcut,
    picShortcut,
    PicContainer,
    PicImage,
    PictureGrip,
    frmSelection,
    frmExplode,
    ImgLock,
    frmMiniDock,
    picMiniToolbar,
    MiniToolbarButton,
    PicLinkColor,
    PicJumpToLink,
    PicJumpToIcon,
    lblJumpToLink,
    lblJumpToTip,
    cboSearch,
    lblHistory,
    lblGo,
    lblClosePicJumpTo,
    frmQuickLaunch,
    picIcon,        // of a row of frmQuickLaunch; its index is the row
    lblSpeedLaunch, // the row itself
};

struct ElementId {
    ElementKind Kind = ElementKind::None;
    int Index = -1; // table index of the object it belongs to; -1 for the workspace's own
    auto operator<=>(const ElementId&) const = default;
};

enum class Role { Pane, Title, Button, Label, ListItem, Note, Image, Grip, Scroll, Mark, Edit };

struct ElementInfo {
    ElementId Id;
    Rect Place; // twips from the surface's corner; empty for a shortcut that is scrolled out of its frame
    Rect Whole; // the same uncut by the frame that it lies in
    quill::Role Role = Role::Label;
    std::string Name;   // what a person calls it
    std::string Action; // what a press does, empty for nothing
    std::string Tip;
    bool Pressed = false; // states
    bool Selected = false;
    bool Expanded = false;
};

// Every visible element on a surface, in painting order: the last that contains a point is the one that is
// hit. Painting, hit-testing, tips, assistive technology, the route table and the tests all use this one
// walk. The visitor returns false to end it.
using ElementVisitor = std::function<bool(const ElementInfo&)>;
void Elements(const frmMain& Main, SurfaceId surface, const ElementVisitor& visit);

// The topmost element at a point of a surface; Kind None when the point is outside. Builds no texts.
ElementId ElementAt(const frmMain& Main, SurfaceId surface, Point at);

std::string_view NameOf(ElementKind kind); // "lblFoldUnfold": object names on the screen and in tests

// Surfaces of the workspace's window in stacking order, the workspace first (the bottom), for the screen side
// and for tests.
std::vector<SurfaceId> Surfaces(const frmMain& Main);
// Place of a surface relative to its parent surface: picBack for containers, the frame's container for
// pictures in it. Of one that is a window of its own: on the virtual desktop.
Rect PlaceOfSurface(const frmMain& Main, SurfaceId surface);
bool SurfaceVisible(const frmMain& Main, SurfaceId surface);

} // namespace quill
