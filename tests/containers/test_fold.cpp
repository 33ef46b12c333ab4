#include "containers/fold.h"
#include "containers/workspace_fixture.h"

#include "containers/full_size.h"

namespace quill {
namespace {

struct Fold : test::WorkspaceFixture {
    std::string Mark(int index) { return Main.ConView(index).FoldMark; }
};

TEST_F(Fold, AFoldedContainerIsItsTitleRowAndComesBackAsLargeAsItWas) {
    const int index = New({500, 600, 3000, 4000});
    FoldUnfoldContainer(Main, index, true);
    EXPECT_EQ(Mark(index), "+");
    EXPECT_EQ(Main.ConView(index).FoldTip, "Unfold | Double-Click Container Label");
    EXPECT_EQ(BoxWords(index), "500,600 3000x320");
    EXPECT_EQ(Main.ConView(index).ContainerFrame.Place.Height, 30);
    EXPECT_TRUE(IsFolded(Main, index));
    FoldUnfoldContainer(Main, index, true);
    EXPECT_EQ(Mark(index), "-");
    EXPECT_EQ(Main.ConView(index).FoldTip, "Fold | Double-Click Container Label");
    EXPECT_EQ(BoxWords(index), "500,600 3000x4000");
}

TEST_F(Fold, FoldingRemembersTheFullSizeForTheFileAndForUnfolding) {
    const int index = New({500, 600, 3000, 4000});
    FoldUnfoldContainer(Main, index, false);
    EXPECT_EQ(Main.Con(index).OriginalSize(), (Size{3000, 4000}));
    EXPECT_EQ(Main.Con(index).StoredSize().W, 3000);
    EXPECT_EQ(Main.Con(index).StoredSize().H, 4000);
}

TEST_F(Fold, FoldingGivesTheKeysBackAndUnfoldingTakesThem) {
    const int index = New({500, 600, 3000, 4000});
    Main.Group.ContainerHasFocus = true;
    FoldUnfoldContainer(Main, index, false);
    EXPECT_FALSE(Main.Group.ContainerHasFocus);
    EXPECT_EQ(Main.Group.CurrentContainer, index);
    FoldUnfoldContainer(Main, index, false);
    EXPECT_TRUE(Main.Group.ContainerHasFocus);
}

TEST_F(Fold, FoldingTheExpandedTileKeepsItFromShrinkingBackLater) {
    const int tile = NewTile(500, 600);
    ExpandShrinkContainer(Main, tile, false);
    EXPECT_EQ(Main.Group.ExpandedContainer, tile);
    FoldUnfoldContainer(Main, tile, false);
    EXPECT_EQ(Main.Group.ExpandedContainer, -1);
    Wait(20);
    ShrinkBackContainer(Main, false);
    EXPECT_TRUE(IsFolded(Main, tile));
    EXPECT_FALSE(IsShrunk(Main, tile));
}

TEST_F(Fold, NearTheLowerEdgeItUnfoldsUpwardsAndFoldsBackToWhereItWas) {
    const int index = New({500, 600, 3000, 3000});
    FoldUnfoldContainer(Main, index, false);
    Box(index).Top = 8000;
    FoldUnfoldContainer(Main, index, false);
    EXPECT_TRUE(Main.Con(index).CloseToEdgeY);
    EXPECT_EQ(BoxWords(index), "500,5900 3000x3000"); // 9000 - (3000 + 100)
    FoldUnfoldContainer(Main, index, false);
    EXPECT_EQ(BoxWords(index), "500,8000 3000x320");
}

TEST_F(Fold, OneThatJustFitsUnfoldsWhereItStands) {
    const int index = New({500, 600, 3000, 3000});
    FoldUnfoldContainer(Main, index, false);
    Box(index).Top = 6000;
    Main.Con(index).CloseToEdgeY = true;
    Main.Con(index).SetSize({.Y = 6000});
    FoldUnfoldContainer(Main, index, false);
    EXPECT_FALSE(Main.Con(index).CloseToEdgeY);
    EXPECT_EQ(Box(index).Top, 6000);
}

TEST_F(Fold, OneThatIsHigherThanTheWorkspaceUnfoldsBelowTheTitleRow) {
    const int index = New({500, 600, 3000, 20000});
    FoldUnfoldContainer(Main, index, false);
    FoldUnfoldContainer(Main, index, false);
    EXPECT_EQ(Box(index).Top, Main.View.picMoveMe.Place.Bottom());
}

TEST_F(Fold, ATileIsNeverFolded) {
    const int tile = NewTile(500, 600);
    FoldUnfoldContainer(Main, tile, false);
    EXPECT_EQ(Mark(tile), "-");
    EXPECT_EQ(BoxWords(tile), "500,600 700x950");
}

TEST_F(Fold, AFoldedContainerShowsNothingButItsTitleRow) {
    const int index = New({500, 600, 3000, 3000});
    NewLink(InContainer(index), {500, 100});
    FoldUnfoldContainer(Main, index, false);
    EXPECT_EQ(Seen(OnContainer(index)), "Container ContainerLabel shapeShrink lblPinNote lblFoldUnfold");
}

TEST_F(Fold, FoldingHidesTheFeedAndUnfoldingShowsItUnlessANoteDoes) {
    const int index = New({500, 600, 3000, 3000});
    Main.FeedViews.resize(1);
    Main.Con(index).RSS = true;
    Main.Con(index).RSSListIndex = 0;
    FoldUnfoldContainer(Main, index, false);
    EXPECT_FALSE(Main.Feed(index).Visible);
    FoldUnfoldContainer(Main, index, false);
    EXPECT_TRUE(Main.Feed(index).Visible);
    Main.ConView(index).ContainerNote.Visible = true;
    FoldUnfoldContainer(Main, index, false);
    FoldUnfoldContainer(Main, index, false);
    EXPECT_FALSE(Main.Feed(index).Visible);
}

TEST_F(Fold, DoubleClickOnTheLabelUnfoldsAndTheNextOneFoldsTheFirstBack) {
    const int one = New({500, 600, 3000, 3000}), two = New({4000, 600, 3000, 3000});
    for (const int index : {one, two}) FoldUnfoldContainer(Main, index, false);
    ContainerLabel_DblClick(Main, one);
    EXPECT_EQ(Mark(one), "-");
    EXPECT_EQ(Main.Group.AutoFoldContainerIndex, one);
    ContainerLabel_DblClick(Main, two);
    EXPECT_EQ(Mark(one), "+");
    EXPECT_EQ(Mark(two), "-");
    EXPECT_EQ(Main.Group.AutoFoldContainerIndex, two);
    ContainerLabel_DblClick(Main, two);
    EXPECT_EQ(Mark(two), "+");
    EXPECT_EQ(Main.Group.AutoFoldContainerIndex, -1);
}

TEST_F(Fold, TheDoubleClickGuardHoldsHalfASecond) {
    const int index = New({500, 600, 3000, 3000});
    ContainerLabel_DblClick(Main, index);
    Wait(499);
    EXPECT_TRUE(Main.Group.DblClickGuard);
    Wait(1);
    EXPECT_FALSE(Main.Group.DblClickGuard);
    EXPECT_EQ(computer.Clock.RunningTimers(), 0U);
}

struct AutoFoldRow {
    const char* Name;
    bool FoldOnClick, Detached, Asked;
    const char* Mark;
};

TEST_F(Fold, AutoFoldActsOnlyOnTheRememberedContainerAndOnlyWhenItIsOn) {
    const AutoFoldRow rows[] = {
        {"remembered", true, false, true, "+"},
        {"option off", false, false, true, "-"},
        {"detached", true, true, true, "-"},
        {"another one asked for", true, false, false, "-"},
    };
    for (const auto& row : rows) {
        const int index = New({500, 600, 3000, 3000});
        Main.Group.AutoFoldContainerIndex = index;
        Main.Settings.FoldOnClick = row.FoldOnClick;
        Main.Con(index).Detached = row.Detached;
        AutoFoldContainer(Main, row.Asked ? index : index + 1);
        EXPECT_EQ(Mark(index), row.Mark) << row.Name;
    }
    Main.Group.AutoFoldContainerIndex = -1;
    AutoFoldContainer(Main, -1);
}

TEST_F(Fold, AutoFoldNeverUnfoldsOneThatWasFoldedMeanwhile) {
    const int index = New({500, 600, 3000, 3000});
    FoldUnfoldContainer(Main, index, false);
    Main.Group.AutoFoldContainerIndex = index;
    AutoFoldContainer(Main, index);
    EXPECT_EQ(Mark(index), "+");
}

TEST_F(Fold, TheFoldMarkTakesNoPartInAutoFold) {
    const int index = New({500, 600, 3000, 3000});
    FoldUnfoldContainer(Main, index, false);
    lblFoldUnfold_Click(Main, index);
    EXPECT_EQ(Mark(index), "-");
    EXPECT_EQ(Main.Group.AutoFoldContainerIndex, -1);
}

TEST_F(Fold, OneThatWasSavedFlippedFoldsToJustAboveItsLowerEdge) {
    const int index = New({500, 5900, 3000, 3000});
    Main.IsLoading = true;
    FlipFoldedNote(Main, index);
    EXPECT_TRUE(Main.Con(index).CloseToEdgeY);
    EXPECT_EQ(BoxWords(index), "500,5900 3000x3000");
    FoldUnfoldContainer(Main, index, false);
    EXPECT_EQ(Box(index).Top, 5900 + 3000 - 350);
}

TEST_F(Fold, EveryFoldIsMarkedForTheScreen) {
    const int index = New({500, 600, 3000, 3000});
    Main.Marks.Take();
    FoldUnfoldContainer(Main, index, false);
    const auto marks = Main.Marks.Take();
    ASSERT_FALSE(marks.Containers.empty());
    EXPECT_EQ(marks.Containers.front(), index);
}

TEST_F(Fold, ADeadOrUnknownContainerIsLeftAlone) {
    const int index = New({500, 600, 3000, 3000});
    DeleteContainer(Main, index, false);
    for (const int gone : {index, -1, 99}) {
        FoldUnfoldContainer(Main, gone, false);
        ContainerLabel_DblClick(Main, gone);
        FlipFoldedNote(Main, gone);
    }
    EXPECT_EQ(Main.Group.CurrentContainer, -1);
}

TEST_F(Fold, FoldingIsAnimatedAndUnfoldingIsNot) {
    const int index = New({500, 600, 3000, 3000});
    const auto& effect = Main.Looks.frmExplode;
    FoldUnfoldContainer(Main, index, true);
    EXPECT_EQ(effect.Running, EffectState::Kind::Implode);
    EXPECT_EQ(fake::Words(effect.Start), "500,600 3000x3000");
    EXPECT_EQ(fake::Words(effect.End), "500,600 3000x320");
    EXPECT_EQ(Main.Group.ExpandingContainer, index);
    EXPECT_TRUE(Main.ConView(index).Container.Visible); // its title row
    Wait(600);
    EXPECT_FALSE(effect.Loaded);
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
    FoldUnfoldContainer(Main, index, true);
    EXPECT_FALSE(effect.Loaded);
}

TEST_F(Fold, TheFoldEffectNeedsBothItsSettingsAndToBeAskedFor) {
    struct Row {
        const char* Name;
        bool Effect, FoldUnfoldEffect, UseEffect, Runs;
    };
    const Row rows[] = {
        {"both on", true, true, true, true},
        {"no effects at all", false, true, true, false},
        {"not when folding", true, false, true, false},
        {"not asked for", true, true, false, false},
    };
    for (const auto& row : rows) {
        const int index = New({500, 600, 3000, 3000});
        Main.Settings.Effect = row.Effect;
        Main.Settings.FoldUnfoldEffect = row.FoldUnfoldEffect;
        FoldUnfoldContainer(Main, index, row.UseEffect);
        EXPECT_EQ(Main.Looks.frmExplode.Loaded, row.Runs) << row.Name;
        EXPECT_TRUE(IsFolded(Main, index)) << row.Name;
        Wait(600);
        DeleteContainer(Main, index, false);
    }
}

TEST_F(Fold, OneThatFoldsWhileItsTileStillOpensIsSeenFolded) {
    const int tile = NewTile(4000, 2000);
    ExpandShrinkContainer(Main, tile, true);
    FoldUnfoldContainer(Main, tile, false);
    EXPECT_TRUE(IsFolded(Main, tile));
    EXPECT_TRUE(Main.ConView(tile).Container.Visible);
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
}

} // namespace
} // namespace quill
