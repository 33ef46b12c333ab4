#include "core/routes.h"

#include "containers/fold.h"
#include "containers/shrink.h"
#include "core/frmMain.h"
#include "core/menus.h"
#include "core/objects.h"
#include "dock/docking.h"
#include "notes/notes.h"
#include "platform/windows.h"
#include "shortcuts/launch.h"

#include <algorithm>

namespace quill {
namespace {

void WorkspaceMenu(frmMain& Main, const MouseEvent& event) {
    Main.Group.NewContainerPos = event.At;
    PopupMenu(Main, MenuName::Workspace, event.Screen);
}

void PressBack(frmMain& Main, int, const MouseEvent& event) {
    Main.Group.ContainerHasFocus = false;
    if (event.Button != MouseButton::Left) return WorkspaceMenu(Main, event);
    Main.Group.HoldExpanded = false;
    Main.Group.NewContainerPos = event.At;
    ShrinkBackContainer(Main, true);
    AutoFoldContainer(Main, Main.Group.AutoFoldContainerIndex);
}

void PressTitle(frmMain& Main, int, const MouseEvent& event) {
    if (event.Button != MouseButton::Left) return PopupMenu(Main, MenuName::Workspace, event.Screen);
    if (Main.Settings.PreventWindowMovement || Main.Dock.Maximized) return;
    Main.Dock.DockPosition = 0;
    Main.P.Windows.BeginMove(MainWindow);
}

void DoubleClickTitle(frmMain& Main, int, const MouseEvent&) {
    mnuMaximize_Click(Main);
}
void ClickMenuButton(frmMain& Main, int, const MouseEvent& event) {
    PopupMenu(Main, MenuName::Workspace, event.Screen);
}
void ClickLock(frmMain& Main, int, const MouseEvent&) {
    mnuLock_Click(Main);
}

// Every press in a container addresses it and brings it to the front.
void PressContainer(frmMain& Main, int Index, const MouseEvent& event) {
    Main.Group.CurrentContainer = Index;
    AddToZorderCollection(Main, {KindContainer, Index}, false);
    if (event.Button != MouseButton::Right) return;
    Main.Group.HoldExpanded = true;
    PopupMenu(Main, MenuName::Container, event.Screen);
    Main.Group.HoldExpanded = false;
}

void PressLabel(frmMain& Main, int Index, const MouseEvent& event) {
    Main.Group.ContainerHasFocus = true;
    PressContainer(Main, Index, event);
}

void DoubleClickLabel(frmMain& Main, int Index, const MouseEvent&) {
    ContainerLabel_DblClick(Main, Index);
}

void DoubleClickEmptyPlace(frmMain& Main, int Index, const MouseEvent&) {
    if (!IsShrunk(Main, Index) && !IsFolded(Main, Index)) ExpandShrinkContainer(Main, Index, true);
}

bool StartsAll(const frmMain& Main, int Index) {
    const auto kind = KindOf(Main, Index);
    return Main.Settings.DblClickToStartAll && kind != ContainerKind::Note && kind != ContainerKind::Feed;
}

void ClickTile(frmMain& Main, int Index, const MouseEvent& event) {
    const bool plain = !event.Shift && !event.Ctrl && !event.Alt;
    if (plain && !Main.Settings.DblClickToStartAll) ExpandShrinkContainer(Main, Index, true);
}

void DoubleClickTile(frmMain& Main, int Index, const MouseEvent&) {
    if (StartsAll(Main, Index))
        StartAllInContainer(Main, Index);
    else
        ExpandShrinkContainer(Main, Index, true);
}

void ClickFoldMark(frmMain& Main, int Index, const MouseEvent&) {
    lblFoldUnfold_Click(Main, Index);
}
void ClickPin(frmMain& Main, int Index, const MouseEvent&) {
    lblPinNote_Click(Main, Index);
}
void ClickShrinkMark(frmMain& Main, int Index, const MouseEvent&) {
    ExpandShrinkContainer(Main, Index, true);
}

void PressShortcut(frmMain& Main, int Index, const MouseEvent& event) {
    lblShortcut_MouseDown(Main, Index, event);
}
void DoubleClickShortcut(frmMain& Main, int Index, const MouseEvent&) {
    lblShortcut_DblClick(Main, Index);
}
void DoubleClickShortcutIcon(frmMain& Main, int Index, const MouseEvent&) {
    picShortcut_DblClick(Main, Index);
}

void PressPicture(frmMain& Main, int Index, const MouseEvent& event) {
    AddToZorderCollection(Main, {KindPicture, Index}, false);
    if (event.Button == MouseButton::Right) PopupMenu(Main, MenuName::Workspace, event.Screen);
}

constexpr Route routes[] = {
    {ElementKind::picBack, &PressBack, nullptr, nullptr},
    {ElementKind::picMoveMe, &PressTitle, nullptr, &DoubleClickTitle},
    {ElementKind::lblCaption, &PressTitle, nullptr, &DoubleClickTitle},
    {ElementKind::PicMenu, nullptr, &ClickMenuButton, nullptr},
    {ElementKind::PicLockToolbar, nullptr, &ClickLock, nullptr},
    {ElementKind::PicUnLockToolbar, nullptr, &ClickLock, nullptr},
    {ElementKind::Container, &PressContainer, nullptr, &DoubleClickEmptyPlace},
    {ElementKind::ContainerFrame, &PressContainer, nullptr, &DoubleClickEmptyPlace},
    {ElementKind::ContainerLabel, &PressLabel, nullptr, &DoubleClickLabel},
    {ElementKind::ContainerIcon, &PressLabel, &ClickTile, &DoubleClickTile},
    {ElementKind::lblFoldUnfold, &PressContainer, &ClickFoldMark, nullptr},
    {ElementKind::lblPinNote, &PressContainer, &ClickPin, nullptr},
    {ElementKind::shapeShrink, &PressContainer, &ClickShrinkMark, nullptr},
    {ElementKind::shapeTags, &PressContainer, nullptr, nullptr},
    {ElementKind::shapeNoteIndicator, &PressContainer, &ClickPin, nullptr},
    {ElementKind::ResizeSymbol, &PressContainer, nullptr, nullptr},
    {ElementKind::LstRSS, &PressContainer, nullptr, nullptr},
    {ElementKind::lblRSSLastUpdate, &PressContainer, nullptr, nullptr},
    {ElementKind::ContainerNote, &PressContainer, nullptr, nullptr},
    {ElementKind::lblShortcut, &PressShortcut, nullptr, &DoubleClickShortcut},
    {ElementKind::picShortcut, &PressShortcut, nullptr, &DoubleClickShortcutIcon},
    {ElementKind::PicContainer, &PressPicture, nullptr, nullptr},
    {ElementKind::PicImage, &PressPicture, nullptr, nullptr},
};

} // namespace

const Route* RouteOf(ElementKind kind) {
    const auto found = std::ranges::find(routes, kind, &Route::Kind);
    return found == std::end(routes) ? nullptr : found;
}

} // namespace quill
