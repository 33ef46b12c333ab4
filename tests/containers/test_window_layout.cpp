#include "containers/workspace_fixture.h"

#include "core/caption.h"
#include "dock/docking.h"
#include "dock/edges.h"

namespace quill {
namespace {

struct WindowLayout : test::WorkspaceFixture {};

TEST_F(WindowLayout, ARimStaysToGrabWhileTheWindowMayBeMoved) {
    EXPECT_EQ(fake::Words(Main.View.picBack.Place), "20,15 12000x9000");
    LockUnlockWindowMovement(Main, true);
    EXPECT_TRUE(Main.Settings.PreventWindowMovement);
    EXPECT_EQ(fake::Words(Main.View.picBack.Place), "0,0 12035x9030");
    LockUnlockWindowMovement(Main, false);
    EXPECT_EQ(fake::Words(Main.View.picBack.Place), "20,15 12000x9000");
}

TEST_F(WindowLayout, WhileLoadingTheWindowIsLaidOutOnlyAtTheEnd) {
    Main.IsLoading = true;
    LockUnlockWindowMovement(Main, true);
    EXPECT_TRUE(Main.Settings.PreventWindowMovement);
    EXPECT_EQ(fake::Words(Main.View.picBack.Place), "20,15 12000x9000");
}

TEST_F(WindowLayout, TheTitleRowFollowsTheWidth) {
    EXPECT_EQ(fake::Words(Main.View.picMoveMe.Place), "0,0 12000x330");
    EXPECT_EQ(fake::Words(Main.View.lblCaption.Place), "270,60 10650x270");
    EXPECT_EQ(fake::Words(Main.View.PicDock.Place), "11630,75 240x240");
    EXPECT_EQ(fake::Words(Main.View.PicLockToolbar.Place), "11310,75 240x240");
    EXPECT_EQ(fake::Words(Main.View.PicUnLockToolbar.Place), "11310,75 240x240");
    EXPECT_EQ(fake::Words(Main.View.PicMenu.Place), "10990,75 240x240");
}

TEST_F(WindowLayout, TheCaptionIsWholeWhenTheWorkspaceIsOutAtTheLeft) {
    const Rect out = OutPlace(Main, 2, Main.View.Window);
    const float left = out.Left + Main.View.picBack.Place.Left + Main.View.lblCaption.Place.Left;
    EXPECT_GE(left, VirtualDesktop(Main).Left);
}

TEST_F(WindowLayout, OneOfTheTwoLocksIsSeen) {
    for (const bool locked : {false, true}) {
        Main.Dock.Locked = locked;
        ResizeForm(Main);
        EXPECT_EQ(Main.View.PicLockToolbar.Visible, locked);
        EXPECT_EQ(Main.View.PicUnLockToolbar.Visible, !locked);
    }
}

TEST_F(WindowLayout, ACollapsedWindowHasNoNegativeSizes) {
    Main.View.Window = {0, 0, 10, 10};
    ResizeForm(Main);
    EXPECT_EQ(fake::Words(Main.View.picBack.Place), "20,15 0x0");
    EXPECT_EQ(Main.View.lblCaption.Place.Width, 0);
    EXPECT_EQ(Main.View.PicMenu.Place.Left, 0);
}

TEST_F(WindowLayout, TheFrameOfGroupedShortcutsStandsInTheMiddleBelowTheTitle) {
    ResizeForm(Main);
    EXPECT_FALSE(Main.View.FrameLinkGroup.Visible);
    Main.Group.FrameLinkGroup = true;
    Main.View.FrameLinkGroup.Place = {0, 0, 4000, 3000};
    ResizeForm(Main);
    EXPECT_TRUE(Main.View.FrameLinkGroup.Visible);
    EXPECT_EQ(fake::Words(Main.View.FrameLinkGroup.Place), "4000,450 4000x3000");
}

TEST_F(WindowLayout, ATitleInAnyAlphabetStandsInTheOneCaption) {
    const auto before = fake::Words(Main.View.lblCaption.Place);
    SetCaption(Main, "\u4ed5\u4e8b \U0001F4CC \u0420\u0430\u0431\u043e\u0442\u0430");
    ResizeForm(Main);
    EXPECT_EQ(Find(OnBack, ElementKind::lblCaption, -1).Name,
              "\u4ed5\u4e8b \U0001F4CC \u0420\u0430\u0431\u043e\u0442\u0430");
    EXPECT_EQ(fake::Words(Main.View.lblCaption.Place), before);
}

TEST_F(WindowLayout, TheWorkspaceIsNeverLargerThanItsWindow) {
    for (const bool locked : {false, true}) {
        LockUnlockWindowMovement(Main, locked);
        EXPECT_LE(Main.View.picBack.Place.Right(), Main.View.Window.Width);
        EXPECT_LE(Main.View.picBack.Place.Bottom(), Main.View.Window.Height);
    }
}

} // namespace
} // namespace quill
