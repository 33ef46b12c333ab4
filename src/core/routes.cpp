#include "core/routes.h"

#include "containers/dragging.h"
#include "containers/fold.h"
#include "containers/gestures.h"
#include "containers/resize.h"
#include "containers/scroll.h"
#include "core/frmMain.h"
#include "core/menus.h"
#include "core/objects.h"
#include "dock/dock_commands.h"
#include "dock/docking.h"
#include "dock/mini_toolbar.h"
#include "dock/workspace_lock.h"
#include "keyboard/jump_to.h"
#include "notes/notes.h"
#include "persistence/save.h"
#include "platform/windows.h"
#include "shortcuts/launch.h"
#include "shortcuts/speed_launch.h"

#include <algorithm>

namespace quill {
namespace {

void WorkspaceMenu(frmMain& Main, const MouseEvent& event) {
    Main.Group.NewContainerPos = event.At;
    PopupMenu(Main, MenuName::Workspace, event.Screen);
}

void PressBack(frmMain& Main, int, const MouseEvent& event) {
    if (event.Button == MouseButton::Left) return picBack_MouseDown(Main, event);
    Main.Group.ContainerHasFocus = false;
    WorkspaceMenu(Main, event);
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
// Below the button, not over it.
void ClickMenuButton(frmMain& Main, int, const MouseEvent&) {
    const auto& view = Main.View;
    const auto& button = view.PicMenu.Place;
    PopupMenu(Main, MenuName::Workspace,
              {view.Window.Left + view.picBack.Place.Left + view.picMoveMe.Place.Left + button.Left,
               view.Window.Top + view.picBack.Place.Top + view.picMoveMe.Place.Top + button.Bottom()});
}
void ClickDock(frmMain& Main, int, const MouseEvent&) {
    mnuDockNow_Click(Main);
}
void ClickImgLock(frmMain& Main, int, const MouseEvent&) {
    ImgLock_Click(Main);
}
void ClickLock(frmMain& Main, int, const MouseEvent&) {
    mnuLock_Click(Main);
}

template <auto Press> void PressWithMenu(frmMain& Main, int Index, const MouseEvent& event) {
    Press(Main, Index, event);
    if (event.Button == MouseButton::Right) PopupMenu(Main, MenuName::Container, event.Screen);
}

constexpr auto PressContainer = &PressWithMenu<&Container_MouseDown>;
constexpr auto PressFrame = &PressWithMenu<&ContainerFrame_MouseDown>;
constexpr auto PressTitleRow = &PressWithMenu<&ContainerTitle_MouseDown>;
constexpr auto PressLabel = &PressWithMenu<&ContainerLabel_MouseDown>;
constexpr auto PressTile = &PressWithMenu<&ContainerIcon_MouseDown>;

void DoubleClickLabel(frmMain& Main, int Index, const MouseEvent& event) {
    if (LastClickPicked(Main)) return ContainerLabel_MouseDown(Main, Index, event);
    ContainerLabel_DblClick(Main, Index);
}
void DoubleClickEmptyPlace(frmMain& Main, int Index, const MouseEvent&) {
    ContainerFrame_DblClick(Main, Index);
}

bool StartsAll(const frmMain& Main, int Index) {
    const auto kind = KindOf(Main, Index);
    return Main.Settings.DblClickToStartAll && kind != ContainerKind::Note && kind != ContainerKind::Feed;
}

void DoubleClickTile(frmMain& Main, int Index, const MouseEvent& event) {
    if (LastClickPicked(Main)) return ContainerIcon_MouseDown(Main, Index, event);
    if (StartsAll(Main, Index))
        StartAllInContainer(Main, Index);
    else
        ContainerIcon_DblClick(Main, Index);
}

void PressResizeMark(frmMain& Main, int Index, const MouseEvent& event) {
    Container_MouseDown(Main, Index, event);
    ResizeSymbol_MouseDown(Main, Index, event);
}

void PressScrollBar(frmMain& Main, int Index, const MouseEvent& event) {
    Container_MouseDown(Main, Index, event);
    VScroll_MouseDown(Main, Index, event);
}

void ClickFoldMark(frmMain& Main, int Index, const MouseEvent&) {
    lblFoldUnfold_Click(Main, Index);
}
void ClickPin(frmMain& Main, int Index, const MouseEvent&) {
    lblPinNote_Click(Main, Index);
    SaveContainers(Main, true);
}
void ClickShrinkMark(frmMain& Main, int Index, const MouseEvent&) {
    shapeShrink_Click(Main, Index);
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

void ClickMiniToolbarButton(frmMain& Main, int Index, const MouseEvent&) {
    MiniToolbarButton_Click(Main, Index);
}
void ClickLinkColor(frmMain& Main, int, const MouseEvent&) {
    PicLinkColor_Click(Main);
}

template <auto Click> void ClickInBox(frmMain& Main, int, const MouseEvent&) {
    Click(Main);
}
void ClickSpeedLaunchRow(frmMain& Main, int Index, const MouseEvent&) {
    lblSpeedLaunch_Click(Main, Index);
}

constexpr Route routes[] = {
    {ElementKind::picBack, &PressBack, nullptr, nullptr},
    {ElementKind::picMoveMe, &PressTitle, nullptr, &DoubleClickTitle},
    {ElementKind::lblCaption, &PressTitle, nullptr, &DoubleClickTitle},
    {ElementKind::PicMenu, nullptr, &ClickMenuButton, nullptr},
    {ElementKind::PicDock, nullptr, &ClickDock, nullptr},
    {ElementKind::ImgLock, nullptr, &ClickImgLock, nullptr},
    {ElementKind::PicLockToolbar, nullptr, &ClickLock, nullptr},
    {ElementKind::PicUnLockToolbar, nullptr, &ClickLock, nullptr},
    {ElementKind::Container, PressTitleRow, nullptr, &DoubleClickEmptyPlace},
    {ElementKind::ContainerFrame, PressFrame, nullptr, &DoubleClickEmptyPlace},
    {ElementKind::ContainerLabel, PressLabel, nullptr, &DoubleClickLabel},
    {ElementKind::ContainerIcon, PressTile, &ContainerIcon_MouseUp, &DoubleClickTile},
    {ElementKind::lblFoldUnfold, PressContainer, &ClickFoldMark, nullptr},
    {ElementKind::lblPinNote, PressContainer, &ClickPin, nullptr},
    {ElementKind::shapeShrink, PressContainer, &ClickShrinkMark, nullptr},
    {ElementKind::shapeTags, PressContainer, nullptr, nullptr},
    {ElementKind::shapeNoteIndicator, PressContainer, &ClickPin, nullptr},
    {ElementKind::ResizeSymbol, &PressResizeMark, nullptr, nullptr},
    {ElementKind::VScroll, &PressScrollBar, nullptr, nullptr},
    {ElementKind::LstRSS, PressContainer, nullptr, nullptr},
    {ElementKind::lblRSSLastUpdate, PressContainer, nullptr, nullptr},
    {ElementKind::ContainerNote, PressContainer, nullptr, nullptr},
    {ElementKind::lblShortcut, &PressShortcut, nullptr, &DoubleClickShortcut},
    {ElementKind::picShortcut, &PressShortcut, nullptr, &DoubleClickShortcutIcon},
    {ElementKind::PicContainer, &PressPicture, nullptr, nullptr},
    {ElementKind::PicImage, &PressPicture, nullptr, nullptr},
    {ElementKind::MiniToolbarButton, nullptr, &ClickMiniToolbarButton, nullptr},
    {ElementKind::PicLinkColor, nullptr, &ClickLinkColor, nullptr},
    {ElementKind::lblHistory, nullptr, &ClickInBox<&lblHistory_Click>, nullptr},
    {ElementKind::lblGo, nullptr, &ClickInBox<&lblGo_Click>, nullptr},
    {ElementKind::lblClosePicJumpTo, nullptr, &ClickInBox<&lblClosePicJumpTo_Click>, nullptr},
    {ElementKind::lblSpeedLaunch, nullptr, &ClickSpeedLaunchRow, nullptr},
    {ElementKind::picIcon, nullptr, &ClickSpeedLaunchRow, nullptr},
};

} // namespace

const Route* RouteOf(ElementKind kind) {
    const auto found = std::ranges::find(routes, kind, &Route::Kind);
    return found == std::end(routes) ? nullptr : found;
}

} // namespace quill
