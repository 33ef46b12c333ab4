// The workspace's own parts inside its window.
#include "containers/layout.h"
#include "containers/measures.h"
#include "containers/scroll.h"
#include "keyboard/jump_to.h"
#include "keyboard/jump_to_measures.h"

#include <algorithm>

namespace quill {
namespace {

float AtLeastZero(float size) {
    return std::max(0.0F, size);
}

// A rim stays free around picBack while the window may be moved.
Rect BackPlace(const Rect& window, bool movable) {
    using namespace measures;
    if (!movable) return {0, 0, window.Width, window.Height};
    return {WindowRimLeft, WindowRimTop, AtLeastZero(window.Width - WindowRimWidth),
            AtLeastZero(window.Height - WindowRimHeight)};
}

Rect ButtonPlace(float left) {
    using namespace measures;
    return {AtLeastZero(left), TitleContentTop + (TitleHeight - TitleContentTop - ButtonEdge) / 2, ButtonEdge,
            ButtonEdge};
}

// The caption ends before the leftmost button that shows.
void LayTitle(WorkspaceView& view, bool locked) {
    using namespace measures;
    const float width = view.picBack.Place.Width;
    const float narrower = CaptionNarrower + (view.ImgLock.Visible ? ButtonStep : 0);
    view.picMoveMe.Place = {0, 0, width, TitleHeight};
    view.lblCaption.Place = {CaptionLeft, TitleContentTop, AtLeastZero(width - narrower),
                             TitleHeight - TitleContentTop};
    const float dock = width - DockFromRight;
    view.PicDock.Place = ButtonPlace(dock);
    view.PicLockToolbar.Place = view.PicUnLockToolbar.Place = ButtonPlace(dock - ButtonStep);
    view.PicLockToolbar.Visible = locked;
    view.PicUnLockToolbar.Visible = !locked;
    view.PicMenu.Place = ButtonPlace(dock - 2 * ButtonStep);
    view.ImgLock.Place = ButtonPlace(dock - 3 * ButtonStep);
}

// The frame of grouped shortcuts, in the middle and clear of the title.
void LayGroupFrame(WorkspaceView& view, bool shown) {
    auto& frame = view.FrameLinkGroup;
    frame.Visible = shown;
    if (!shown) return;
    frame.Place.Left = AtLeastZero((view.picMoveMe.Place.Width - frame.Place.Width) / 2);
    frame.Place.Top = view.picMoveMe.Place.Bottom() + measures::GroupFrameBelowTitle;
}

// The launcher's box stays in the middle.
void LayJumpTo(frmMain& Main) {
    if (!IsJumpToOpen(Main)) return;
    Main.Keys.PicJumpToLink.Place = PlaceOfJumpTo(Main);
    Main.Marks.JumpTo();
}

} // namespace

void ResizeForm(frmMain& Main) {
    auto& view = Main.View;
    view.picBack.Place = BackPlace(view.Window, !Main.Settings.PreventWindowMovement);
    LayTitle(view, Main.Dock.Locked);
    LayGroupFrame(view, Main.Group.FrameLinkGroup);
    LayJumpTo(Main);
    if (Main.IsLoading) LayAllScrollBars(Main); // the readers leave them to the end of the load
    Main.Marks.Workspace();
}

void LockUnlockWindowMovement(frmMain& Main, bool Locked) {
    Main.Settings.PreventWindowMovement = Locked;
    if (!Main.IsLoading) ResizeForm(Main);
}

} // namespace quill
