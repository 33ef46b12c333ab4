#include "containers/arrange.h"
#include "containers/workspace_fixture.h"

#include "containers/fold.h"
#include "containers/selection.h"
#include "containers/undo.h"

namespace quill {
namespace {

struct AlignContainers : test::WorkspaceFixture {
    int first = New({600, 1000, 2000, 2000}), second = New({4000, 2500, 1500, 2000}),
        third = New({9000, 4000, 1000, 2000});
    void SelectAll() {
        for (const int index : {first, second, third}) SelectContainer(Main, index);
        Main.Group.CurrentContainer = second;
    }
    std::string Places() {
        std::string text;
        for (const int index : {first, second, third})
            text += fake::Words(Point{Box(index).Left, Box(index).Top}) + " ";
        return text;
    }
};

TEST_F(AlignContainers, TopAndLeftAreThoseOfTheCurrentContainer) {
    SelectAll();
    mnuAlignContainers_Click(Main, 0);
    EXPECT_EQ(Places(), "600,2500 4000,2500 9000,2500 ");
    mnuAlignContainers_Click(Main, 1);
    EXPECT_EQ(Places(), "4000,2500 4000,2500 4000,2500 ");
    EXPECT_EQ(GetSelectedContainersCount(Main), 3);
}

TEST_F(AlignContainers, TheCurrentContainerNeedNotBeSelectedAndIsNotAfterwards) {
    SelectContainer(Main, first);
    Main.Group.CurrentContainer = second;
    mnuAlignContainers_Click(Main, 0);
    EXPECT_EQ(Places(), "600,2500 4000,2500 9000,4000 ");
    EXPECT_EQ(SelectedContainers(Main), std::vector<int>{first});
}

TEST_F(AlignContainers, SpacedEvenlyAllGapsAreTheSameAndTheOuterOnesStay) {
    SelectAll();
    mnuAlignContainers_Click(Main, 2);
    EXPECT_EQ(Places(), "600,1000 5050,2500 9000,4000 ");
    EXPECT_EQ(Box(second).Left - Box(first).Right(), Box(third).Left - Box(second).Right());
    EXPECT_EQ(GetSelectedContainersCount(Main), 3);
}

TEST_F(AlignContainers, TheOrderIsThatOfTheirLeftEdges) {
    const int fourth = New({2000, 600, 700, 900});
    SelectAll();
    SelectContainer(Main, fourth);
    mnuAlignContainers_Click(Main, 2);
    EXPECT_EQ(Box(first).Left, 600);
    EXPECT_EQ(Box(fourth).Left, 600 + 2000 + 1400);
    EXPECT_EQ(Box(second).Left, 4000 + 700 + 1400);
    EXPECT_EQ(Box(third).Left, 9000);
}

TEST_F(AlignContainers, WhereThereIsNoRoomTheyOverlapEvenly) {
    Box(second).Left = 1000;
    Box(third).Left = 2000;
    SelectAll();
    mnuAlignContainers_Click(Main, 2);
    EXPECT_EQ(Places(), "600,1000 1550,2500 2000,4000 ");
    EXPECT_EQ(Box(second).Left - Box(first).Right(), Box(third).Left - Box(second).Right());
}

TEST_F(AlignContainers, FewerThanThreeCantBeSpaced) {
    SelectContainer(Main, first);
    SelectContainer(Main, third);
    Main.Group.CurrentContainer = first;
    computer.Questions.Answer(AnswerOk);
    mnuAlignContainers_Click(Main, 2);
    const auto& box = computer.Questions.Boxes.at(0);
    EXPECT_EQ(box.Text,
              "You must have three or more containers selected.\r\n"
              "* Select containers by holding down the Ctrl key and clicking the container name label "
              "(or icon, when the container is shrunk).");
    EXPECT_EQ(box.Title, "Quillmere");
    EXPECT_EQ(Places(), "600,1000 4000,2500 9000,4000 ");
    EXPECT_EQ(GetSelectedContainersCount(Main), 2);
}

TEST_F(AlignContainers, OneUndoTakesAllOfThemBackAndItIsSaved) {
    SelectAll();
    const auto before = Places();
    mnuAlignContainers_Click(Main, 0);
    EXPECT_NE(Recovery("0.REC").find("[Y]\r\n2500\r\n"), std::string::npos) << Recovery("0.REC");
    ASSERT_EQ(Main.Group.UndoStack.size(), 1u);
    UndoMove(Main, true);
    EXPECT_EQ(Places(), before);
}

TEST_F(AlignContainers, WhatIsInLineAlreadyIsNoStepOfUndo) {
    SelectAll();
    mnuAlignContainers_Click(Main, 0);
    mnuAlignContainers_Click(Main, 0);
    EXPECT_EQ(Main.Group.UndoStack.size(), 1u);
}

TEST_F(AlignContainers, OneThatMovedUpWhenItUnfoldedFoldsAtItsNewPlace) {
    const int low = New({6500, 8000, 1500, 2000});
    FoldUnfoldContainer(Main, low, false);
    FoldUnfoldContainer(Main, low, false);
    ASSERT_TRUE(Main.Con(low).CloseToEdgeY);
    ASSERT_EQ(Box(low).Top, 6900);
    SelectContainer(Main, low);
    Main.Group.CurrentContainer = second;
    mnuAlignContainers_Click(Main, 0);
    FoldUnfoldContainer(Main, low, false);
    EXPECT_EQ(Box(low).Top, 2500);
}

TEST_F(AlignContainers, ATileKeepsItsNewPlaceWhenItOpensAndCloses) {
    const int tile = NewTile(7000, 6000);
    SelectContainer(Main, tile);
    Main.Group.CurrentContainer = second;
    mnuAlignContainers_Click(Main, 1);
    EXPECT_EQ(Box(tile).Left, 4000);
    EXPECT_EQ(Main.Con(tile).StoredSize().X, 4000);
    ExpandShrinkContainer(Main, tile, false);
    Wait(20);
    ShrinkBackContainer(Main, false);
    EXPECT_EQ(Box(tile).Left, 4000);
}

TEST_F(AlignContainers, AnOpenedTileCountsWhereItsTileStands) {
    const int tile = NewTile(7000, 6000);
    ExpandShrinkContainer(Main, tile, false);
    ASSERT_NE(Box(tile).Left, 7000);
    SelectContainer(Main, first);
    Main.Group.CurrentContainer = tile;
    mnuAlignContainers_Click(Main, 1);
    EXPECT_EQ(Box(first).Left, 7000);
}

TEST_F(AlignContainers, ALockedWorkspaceIsNotRearrangedUnlessOnlyShortcutsAreLocked) {
    SelectAll();
    const auto before = Places();
    Main.Dock.Locked = true;
    for (const int index : {0, 1, 2}) mnuAlignContainers_Click(Main, index);
    EXPECT_EQ(Places(), before);
    Main.Settings.LockOnlyShortcuts = true;
    mnuAlignContainers_Click(Main, 0);
    EXPECT_NE(Places(), before);
}

TEST_F(AlignContainers, WithoutACurrentContainerNothingHappens) {
    SelectContainer(Main, first);
    Main.Group.CurrentContainer = -1;
    const auto before = Places();
    mnuAlignContainers_Click(Main, 0);
    EXPECT_EQ(Places(), before);
}

} // namespace
} // namespace quill
