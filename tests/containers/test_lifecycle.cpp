#include "containers/workspace_fixture.h"

#include "appearance/colors.h"
#include "platform/questions.h"

namespace quill {
namespace {

struct Lifecycle : test::WorkspaceFixture {};

TEST_F(Lifecycle, TheFirstContainerTakesRowZeroAndTheNextOnesFollow) {
    EXPECT_EQ(New({0, 0, 3000, 3000}), 0);
    EXPECT_EQ(New({0, 0, 3000, 3000}), 1);
    EXPECT_EQ(Main.Containers.size(), 2U);
    EXPECT_EQ(Main.ContainerViews.size(), 2U);
}

TEST_F(Lifecycle, ANewContainerStandsWhereTheLastPressWasOnTopOfTheOthersAndIsSeen) {
    New({600, 600, 3000, 3000});
    bool ok = false;
    Main.Group.NewContainerPos = {1234, 567};
    NewGroup(Main, true, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(BoxWords(1), "1234,567 3000x3000");
    EXPECT_TRUE(Main.ConView(1).Container.Visible);
    EXPECT_EQ(Main.ZOrderList.back(), (ZOrderEntry{KindContainer, 1}));
}

TEST_F(Lifecycle, ANewContainerHasTheDefaultsOfTheSettings) {
    Main.Settings.Translucent = true;
    Main.Settings.Animate = false;
    Main.Settings.UndockOnClick = true;
    Main.Settings.ConShrinkW = 650;
    Main.Settings.ConShrinkH = 870;
    Main.Settings.FontSize = 12;
    const int index = New({0, 0, 3000, 3000}, "");
    const auto& container = Main.Con(index);
    EXPECT_TRUE(container.DetachedUseTab);
    EXPECT_TRUE(container.DetachedCollapseOnClick);
    EXPECT_TRUE(container.DetachedTransparent);
    EXPECT_FALSE(container.DetachedFadeOut);
    EXPECT_TRUE(container.DetachedUndockOnClick);
    EXPECT_EQ(container.AutoRefresh, 0);
    EXPECT_EQ(container.LineSpacing, 155);
    EXPECT_EQ(container.RSSListIndex, -1);
    EXPECT_FALSE(container.IsReminder());
    EXPECT_EQ(container.ShrinkSize(), (TileSize{650, 870}));
    EXPECT_EQ(Main.ConView(index).ContainerLabel.FontSize, 12);
}

TEST_F(Lifecycle, ANewContainerIsOpenEmptyAndInTheDefaultColours) {
    bool ok = false;
    NewGroup(Main, false, ok);
    const auto& view = Main.ConView(0);
    EXPECT_EQ(view.ContainerLabel.Caption, "Container");
    EXPECT_EQ(view.FoldMark, "-");
    EXPECT_EQ(view.FoldTip, "Fold | Double-Click Container Label");
    EXPECT_FALSE(view.ContainerNote.Visible);
    EXPECT_FALSE(view.PinPressed);
    EXPECT_EQ(view.ContainerNote.BackColor, Main.Settings.ContainerTextBack);
    EXPECT_EQ(view.ContainerNote.ForeColor, Main.Settings.ContainerTextFor);
    EXPECT_EQ(view.ContainerNote.FontSize, 10);
    EXPECT_EQ(view.FrameBackColor, Main.Settings.ContainerFor);
    EXPECT_EQ(view.ContainerLabel.ForeColor, Main.Settings.ContainerLabel);
    EXPECT_FALSE(view.ContainerIcon.Visible);
}

TEST_F(Lifecycle, WhileLoadingANewContainerIsNotSeenBeforeItsFileIsThrough) {
    Main.IsLoading = true;
    bool ok = false;
    NewGroup(Main, false, ok);
    EXPECT_TRUE(ok);
    EXPECT_FALSE(Main.ConView(0).Container.Visible);
}

TEST_F(Lifecycle, TheFiftyFirstContainerIsRefusedInWordsAndLeavesNothingBehind) {
    for (int count = 0; count < 50; ++count) New({0, 0, 3000, 3000});
    computer.Questions.Answer(AnswerOk);
    bool ok = true;
    NewGroup(Main, false, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(Main.Containers.size(), 50U);
    EXPECT_EQ(Main.ContainerViews.size(), 50U);
    EXPECT_EQ(Main.ZOrderList.size(), 50U);
    EXPECT_EQ(Main.NextContainerIndex, 50);
    const auto& box = computer.Questions.Boxes.back();
    EXPECT_EQ(box.Text,
              "There is a maximum of 50 containers in the workspace. You can manually change it in the "
              ".ini file.");
    EXPECT_EQ(box.Title, "Error");
    EXPECT_EQ(box.Flags, BoxCritical);
    EXPECT_FALSE(Main.Store.Quit);
    EXPECT_EQ(Main.Dock.DialogPauses, 0);
}

TEST_F(Lifecycle, TheLimitWhileLoadingMarksTheProgramToQuit) {
    Main.Settings.MaxContainers = 1;
    New({0, 0, 3000, 3000});
    Main.IsLoading = true;
    computer.Questions.Answer(AnswerOk);
    bool ok = true;
    NewGroup(Main, false, ok);
    EXPECT_FALSE(ok);
    EXPECT_TRUE(Main.Store.Quit);
}

TEST_F(Lifecycle, ADeletedContainerMakesRoomBelowTheLimitButItsIndexIsNotUsedAgain) {
    Main.Settings.MaxContainers = 2;
    New({0, 0, 3000, 3000});
    New({0, 0, 3000, 3000});
    DeleteContainer(Main, 0, false);
    EXPECT_EQ(New({0, 0, 3000, 3000}), 2);
    EXPECT_FALSE(IsLive(Main.Containers, 0));
}

TEST_F(Lifecycle, AfterTheTablesWereCutBackTheCountersGoOnAndTheRowsBetweenAreDead) {
    New({0, 0, 3000, 3000});
    New({0, 0, 3000, 3000});
    Main.Containers.assign(1, {});
    Main.ContainerViews.assign(1, {});
    Main.ZOrderList.clear();
    EXPECT_EQ(New({0, 0, 3000, 3000}), 2);
    EXPECT_EQ(LiveContainers(Main), 1);
    EXPECT_EQ(Main.Containers[0].Index, -1);
    EXPECT_EQ(Main.Containers[1].Index, -1);
}

TEST_F(Lifecycle, DeletingTakesWhatLiesInItAndNothingElse) {
    const int gone = New({0, 0, 3000, 3000}), stays = New({0, 0, 3000, 3000});
    const int inGone = NewLink(InContainer(gone), {500, 500});
    const int inStays = NewLink(InContainer(stays), {500, 500});
    const int onBack = NewLink(OnWorkspace(), {500, 500});
    DeleteContainer(Main, gone, false);
    EXPECT_FALSE(IsLive(Main.Containers, gone));
    EXPECT_FALSE(IsLive(Main.Shortcuts, inGone));
    EXPECT_TRUE(IsLive(Main.Containers, stays));
    EXPECT_TRUE(IsLive(Main.Shortcuts, inStays));
    EXPECT_TRUE(IsLive(Main.Shortcuts, onBack));
    EXPECT_EQ(Main.ZOrderList, (std::vector<ZOrderEntry>{{KindContainer, stays}}));
}

TEST_F(Lifecycle, DeletingForgetsTheContainerWhereverItWasRemembered) {
    const int gone = New({0, 0, 3000, 3000});
    auto& state = Main.Group;
    for (int* index : {&state.CurrentContainer, &state.ExpandedContainer, &state.ExpandingContainer,
                       &state.LastShrunkBack, &state.AutoFoldContainerIndex, &state.FlipPosition,
                       &state.PressedTile, &state.ResizingContainer, &state.ScrollingContainer,
                       &state.HoverContainer, &state.MouseContainer, &state.DragHoverContainer}) {
        *index = gone;
    }
    DeleteContainer(Main, gone, false);
    for (const int index :
         {state.CurrentContainer, state.ExpandedContainer, state.ExpandingContainer, state.LastShrunkBack,
          state.AutoFoldContainerIndex, state.FlipPosition, state.PressedTile, state.ResizingContainer,
          state.ScrollingContainer, state.HoverContainer, state.MouseContainer, state.DragHoverContainer}) {
        EXPECT_EQ(index, -1);
    }
    EXPECT_FALSE(SurfaceVisible(Main, OnContainer(gone)));
}

TEST_F(Lifecycle, DeletingAConnectedFolderLeavesTheUsersFiles) {
    computer.Files.Put("/home/user/Documents/letter.txt", "dear");
    const int index = New({0, 0, 3000, 3000});
    Main.Con(index).CopyPath = "/home/user/Documents";
    NewLink(InContainer(index), {500, 500}, "/home/user/Documents/letter.txt");
    DeleteContainer(Main, index, true);
    EXPECT_TRUE(computer.Files.Exists("/home/user/Documents/letter.txt"));
}

TEST_F(Lifecycle, DeletingADeadOrUnknownRowDoesNothing) {
    const int index = New({0, 0, 3000, 3000});
    for (const int other : {-1, 7}) DeleteContainer(Main, other, false);
    EXPECT_TRUE(IsLive(Main.Containers, index));
    DeleteContainer(Main, index, false);
    Main.Group.CurrentContainer = 3;
    DeleteContainer(Main, index, false);
    EXPECT_EQ(Main.Group.CurrentContainer, 3);
}

} // namespace
} // namespace quill
