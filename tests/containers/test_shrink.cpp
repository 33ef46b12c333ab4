#include "containers/shrink.h"
#include "containers/workspace_fixture.h"

#include "containers/fold.h"

namespace quill {
namespace {

struct Shrink : test::WorkspaceFixture {
    Shrink() { Main.Settings.Effect = false; }
    void Expand(int index) {
        ExpandShrinkContainer(Main, index, true);
        Wait(20);
    }
};

TEST_F(Shrink, ATileShowsItsIconAndComesBackToTheSizeItHad) {
    const int index = New({3000, 2000, 4000, 3500});
    ExpandShrinkContainer(Main, index, true);
    EXPECT_EQ(BoxWords(index), "3000,2000 700x950");
    EXPECT_TRUE(Main.ConView(index).ContainerIcon.Visible);
    EXPECT_FALSE(Main.ConView(index).ContainerLabel.Visible);
    EXPECT_FALSE(Main.ConView(index).lblFoldUnfold.Visible);
    EXPECT_TRUE(Main.ConView(index).Container.Visible);
    EXPECT_EQ(fake::Words(Main.ConView(index).ContainerFrame.Place), "0,290 700x660");
    Expand(index);
    EXPECT_EQ(BoxWords(index), "1350,2000 4000x3500"); // centred on the tile: 3000 + 350 - 2000
    EXPECT_FALSE(Main.ConView(index).ContainerIcon.Visible);
    EXPECT_TRUE(Main.ConView(index).ContainerLabel.Visible);
    EXPECT_TRUE(Main.ConView(index).lblFoldUnfold.Visible);
}

struct ExpandRow {
    const char* Name;
    float Left, Top;
    const char* Opened;
    bool CloseToEdgeY;
};

TEST_F(Shrink, ATileOpensOverItselfAndStaysInsideTheWorkspace) {
    const ExpandRow rows[] = {
        {"in the middle", 4000, 2000, "2850,2000 3000x3000", false},
        {"at the right edge 100 twips stay free", 11000, 2000, "8900,2000 3000x3000", false},
        {"one twip from the right edge", 10049, 2000, "8899,2000 3000x3000", false},
        {"exactly at it", 10050, 2000, "8900,2000 3000x3000", false},
        {"so near to the left that it keeps its Left", 600, 2000, "600,2000 3000x3000", false},
        {"just centred at 0", 1150, 2000, "0,2000 3000x3000", false},
        {"at the bottom it opens upwards", 4000, 8000, "2850,5900 3000x3000", true},
        {"touching the lower edge counts as running off", 4000, 6000, "2850,5900 3000x3000", true},
        {"one twip above it does not", 4000, 5999, "2850,5999 3000x3000", false},
    };
    for (const auto& row : rows) {
        const int tile = NewTile(row.Left, row.Top);
        Expand(tile);
        EXPECT_EQ(BoxWords(tile), row.Opened) << row.Name;
        EXPECT_EQ(Main.Con(tile).CloseToEdgeY, row.CloseToEdgeY) << row.Name;
        ShrinkBackContainer(Main, false);
        EXPECT_EQ(Box(tile).Left, row.Left) << row.Name;
        EXPECT_EQ(Box(tile).Top, row.Top) << row.Name;
        EXPECT_TRUE(IsShrunk(Main, tile)) << row.Name;
    }
}

TEST_F(Shrink, ExpandingBringsItToTheFrontAndGivesItTheKeys) {
    const int tile = NewTile(4000, 2000);
    New({0, 0, 3000, 3000});
    Expand(tile);
    EXPECT_EQ(Main.ZOrderList.back().Index, tile);
    EXPECT_EQ(Main.Group.CurrentContainer, tile);
    EXPECT_EQ(Main.Group.ExpandedContainer, tile);
    EXPECT_TRUE(Main.Group.ContainerHasFocus);
    computer.Windows.Cursor = {4400, 2400}; // over the tile
    ShrinkBackContainer(Main, false);
    EXPECT_EQ(Main.Group.ExpandedContainer, -1);
    EXPECT_EQ(Main.Group.LastShrunkBack, tile);
    EXPECT_FALSE(Main.Group.ContainerHasFocus);
}

TEST_F(Shrink, TwoClicksWithinTwentyMillisecondsOpenATileAndDoNotCloseIt) {
    const int tile = NewTile(4000, 2000);
    ExpandShrinkContainer(Main, tile, true);
    Wait(19);
    ExpandShrinkContainer(Main, tile, true);
    EXPECT_FALSE(IsShrunk(Main, tile));
    Wait(1);
    ExpandShrinkContainer(Main, tile, true);
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_EQ(computer.Clock.RunningTimers(), 0U);
}

TEST_F(Shrink, WhileADragIsOverItNothingOpensBesideTheOrder) {
    const int tile = NewTile(4000, 2000);
    New({0, 0, 3000, 3000});
    Main.Group.SuspendAutoExpand = true;
    ExpandShrinkContainer(Main, tile, true);
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_EQ(Main.ZOrderList.back().Index, tile);
    EXPECT_EQ(Main.Group.ExpandedContainer, -1);
}

TEST_F(Shrink, OneThatWasNotOpenedForTheMomentShrinksWhereItStands) {
    const int tile = NewTile(4000, 2000);
    Expand(tile);
    Main.Group.ExpandedContainer = -1; // kept open
    ExpandShrinkContainer(Main, tile, true);
    EXPECT_EQ(BoxWords(tile), "2850,2000 700x950");
}

TEST_F(Shrink, ATileNeverStandsLeftOfTheWorkspace) {
    const int index = New({-500, 2000, 3000, 3000});
    ExpandShrinkContainer(Main, index, false);
    EXPECT_EQ(Box(index).Left, 0);
}

TEST_F(Shrink, AFoldedContainerBecomesATileWithTheOpenMarkAndOpensInFull) {
    const int index = New({4000, 2000, 4000, 3500});
    FoldUnfoldContainer(Main, index, false);
    ExpandShrinkContainer(Main, index, false);
    EXPECT_EQ(Main.ConView(index).FoldMark, "-");
    EXPECT_EQ(BoxWords(index), "4000,2000 700x950");
    Expand(index);
    EXPECT_EQ(Box(index).Width, 4000);
    EXPECT_EQ(Box(index).Height, 3500);
}

TEST_F(Shrink, AContainerOfExactlyTheTilesSizeIsATile) {
    const int index = New({4000, 2000, 700, 950});
    EXPECT_TRUE(IsShrunk(Main, index));
    Expand(index);
    EXPECT_EQ(Box(index).Width, 3000);
    EXPECT_EQ(Box(index).Height, 3000);
}

TEST_F(Shrink, ExpandingFoldsWhatADoubleClickHadUnfolded) {
    const int folded = New({0, 0, 3000, 3000}), tile = NewTile(4000, 2000);
    FoldUnfoldContainer(Main, folded, false);
    ContainerLabel_DblClick(Main, folded);
    Expand(tile);
    EXPECT_TRUE(IsFolded(Main, folded));
    EXPECT_EQ(Main.Group.CurrentContainer, tile);
    EXPECT_TRUE(Main.Group.ContainerHasFocus);
}

TEST_F(Shrink, OneThatAMenuHeldOpenClosesWhenAnotherIsExpanded) {
    const int held = NewTile(1000, 2000), tile = NewTile(8000, 2000);
    Expand(held);
    Main.Group.HoldExpanded = true;
    ExpandShrinkContainer(Main, tile, true);
    EXPECT_TRUE(IsShrunk(Main, held));
    EXPECT_FALSE(IsShrunk(Main, tile));
    EXPECT_FALSE(Main.Group.HoldExpanded);
    EXPECT_EQ(Main.Group.ExpandedContainer, tile);
    EXPECT_EQ(Main.Group.CurrentContainer, tile);
}

TEST_F(Shrink, ShrinkBackLeavesAloneWhatItMust) {
    struct Row {
        const char* Name;
        void (*Prepare)(frmMain&, int);
    };
    const Row rows[] = {
        {"held open by a menu", [](frmMain& main, int) { main.Group.HoldExpanded = true; }},
        {"detached", [](frmMain& main, int index) { main.Con(index).Detached = true; }},
        {"its effect runs", [](frmMain& main, int index) { main.Group.ExpandingContainer = index; }},
        {"a group is shown", [](frmMain& main, int) { main.Group.FrameLinkGroup = true; }},
        {"none is remembered", [](frmMain& main, int) { main.Group.ExpandedContainer = -1; }},
    };
    for (const auto& row : rows) {
        const int tile = NewTile(4000, 2000);
        Expand(tile);
        const auto before = Main.Group;
        row.Prepare(Main, tile);
        ShrinkBackContainer(Main, true);
        EXPECT_FALSE(IsShrunk(Main, tile)) << row.Name;
        Main.Group = before;
        Main.Con(tile).Detached = false;
        ShrinkBackContainer(Main, true);
        EXPECT_TRUE(IsShrunk(Main, tile)) << row.Name;
    }
}

TEST_F(Shrink, InAGroupsViewAContainerThatItHidesStillGoesBack) {
    const int tile = NewTile(4000, 2000);
    Expand(tile);
    Main.Group.FrameLinkGroup = true;
    Main.Con(tile).tag = true;
    ShrinkBackContainer(Main, false);
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Shrink, ShrinkBackForgetsWhichOneWentBackLast) {
    Main.Group.LastShrunkBack = 4;
    ShrinkBackContainer(Main, true);
    EXPECT_EQ(Main.Group.LastShrunkBack, -1);
}

TEST_F(Shrink, WhileLoadingTheGuardOfAClickDoesNotKeepAContainerOpen) {
    const int index = New({4000, 2000, 3000, 3000});
    Main.Group.JustExpanded = true;
    Main.IsLoading = true;
    ExpandShrinkContainer(Main, index, false);
    EXPECT_TRUE(IsShrunk(Main, index));
    EXPECT_EQ(Main.Con(index).OriginalSize(), (Size{3000, 3000}));
}

TEST_F(Shrink, AnExitRightBehindTheClickStillReturnsTheTileToItsPlace) {
    const int tile = NewTile(4000, 2000);
    ExpandShrinkContainer(Main, tile, true);
    Main.IsExiting = true;
    ShrinkBackContainer(Main, false);
    EXPECT_EQ(BoxWords(tile), "4000,2000 700x950");
}

TEST_F(Shrink, AHiddenToolbarStaysHiddenWhenTheTileOpens) {
    const int tile = NewTile(4000, 2000);
    Main.Con(tile).HideToolbar = true;
    Expand(tile);
    EXPECT_FALSE(Main.ConView(tile).ContainerLabel.Visible);
    EXPECT_FALSE(Main.ConView(tile).lblFoldUnfold.Visible);
}

TEST_F(Shrink, AnOpenedNoteTakesTheKeyboardWhereThatIsWanted) {
    const int tile = NewTile(4000, 2000);
    auto& note = Main.ConView(tile).ContainerNote;
    Main.ConView(tile).PinPressed = true;
    Main.Settings.GrabFocus = false;
    const auto before = note.FocusWish;
    Expand(tile);
    EXPECT_EQ(note.FocusWish, before);
    ShrinkBackContainer(Main, false);
    Main.Settings.GrabFocus = true;
    Expand(tile);
    EXPECT_EQ(note.FocusWish, before + 1);
}

TEST_F(Shrink, ExpandingAnotherOneClosesWhatIsOpenForTheMoment) {
    const int one = NewTile(1000, 2000), two = NewTile(8000, 2000);
    ExpandShrinkContainer(Main, one, true);
    ExpandShrinkContainer(Main, two, true); // also within the time in which a click does not close
    EXPECT_TRUE(IsShrunk(Main, one));
    EXPECT_FALSE(IsShrunk(Main, two));
    EXPECT_EQ(Main.Group.ExpandedContainer, two);
    EXPECT_EQ(Main.Group.CurrentContainer, two);
    EXPECT_TRUE(Main.Group.ContainerHasFocus);
}

TEST_F(Shrink, WhatATagViewHidesIsNotShownByGoingBack) {
    const int tile = NewTile(4000, 2000);
    Expand(tile);
    Main.Con(tile).tag = true;
    Main.ConView(tile).Container.Visible = false;
    Main.Settings.Effect = true;
    ShrinkBackContainer(Main, true);
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_FALSE(Main.ConView(tile).Container.Visible);
}

// ---- effects

struct ShrinkEffect : Shrink {
    ShrinkEffect() { Main.Settings.Effect = true; }
    EffectState& Effect() { return Main.Looks.frmExplode; }
    bool Seen(int index) { return Main.ConView(index).Container.Visible; }
    std::string Course() { return fake::Words(Effect().Start) + " > " + fake::Words(Effect().End); }
    void EffectEnds() { Wait(600); }
};

TEST_F(ShrinkEffect, ATileGrowsToTheContainerAndShrinksBackToTheTile) {
    const int tile = NewTile(4000, 2000);
    ExpandShrinkContainer(Main, tile, true);
    EXPECT_EQ(Effect().Running, EffectState::Kind::Explode);
    EXPECT_EQ(Course(), "4000,2000 700x950 > 2850,2000 3000x3000");
    EXPECT_EQ(Main.Group.ExpandingContainer, tile);
    EXPECT_FALSE(Seen(tile));
    EffectEnds();
    EXPECT_TRUE(Seen(tile));
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
    EXPECT_FALSE(Main.Group.JustExpanded);
    ShrinkBackContainer(Main, true);
    EXPECT_EQ(Effect().Running, EffectState::Kind::Implode);
    EXPECT_EQ(Course(), "2850,2000 3000x3000 > 4000,2000 700x950");
    EXPECT_FALSE(Seen(tile));
    EXPECT_EQ(Main.Group.ExpandedContainer, -1);
    EffectEnds();
    EXPECT_TRUE(Seen(tile));
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
}

TEST_F(ShrinkEffect, OnlyWhatTheSettingsNameIsAnimated) {
    struct Row {
        const char* Name;
        bool On;
        std::uint8_t Mode;
        bool UseEffect, Grows, Shrinks;
    };
    const Row rows[] = {
        {"both", true, 0, true, true, true},
        {"explode only", true, 1, true, true, false},
        {"implode only", true, 2, true, false, true},
        {"switched off", false, 0, true, false, false},
        {"not asked for", true, 0, false, false, false},
    };
    for (const auto& row : rows) {
        Main.Settings.Effect = row.On;
        Main.Settings.EffectMode = row.Mode;
        const int tile = NewTile(4000, 2000);
        ExpandShrinkContainer(Main, tile, row.UseEffect);
        EXPECT_EQ(!Seen(tile), row.Grows) << row.Name;
        EXPECT_EQ(Main.Group.ExpandingContainer == tile, row.Grows) << row.Name;
        EffectEnds();
        ShrinkBackContainer(Main, row.UseEffect);
        EXPECT_EQ(!Seen(tile), row.Shrinks) << row.Name;
        EffectEnds();
        EXPECT_TRUE(Seen(tile)) << row.Name;
        EXPECT_TRUE(IsShrunk(Main, tile)) << row.Name;
        EXPECT_EQ(Effect().Loaded, false) << row.Name;
        DeleteContainer(Main, tile, false);
    }
}

TEST_F(ShrinkEffect, OneThatIsAskedToCloseWhileItOpensTurnsRound) {
    const int tile = NewTile(4000, 2000);
    ExpandShrinkContainer(Main, tile, true);
    ExpandShrinkContainer(Main, tile, true); // the same click
    EXPECT_FALSE(IsShrunk(Main, tile));
    Wait(100);
    ExpandShrinkContainer(Main, tile, true);
    EXPECT_TRUE(IsShrunk(Main, tile));
    EffectEnds();
    EXPECT_TRUE(Seen(tile));
    EXPECT_EQ(BoxWords(tile), "4000,2000 700x950");
}

TEST_F(ShrinkEffect, WhileItOpensItIsLeftAlone) {
    const int tile = NewTile(4000, 2000);
    ExpandShrinkContainer(Main, tile, true);
    Wait(100);
    ShrinkBackContainer(Main, true);
    EXPECT_FALSE(IsShrunk(Main, tile));
}

TEST_F(ShrinkEffect, OpeningAnotherOneMeanwhileClosesTheFirstForGood) {
    const int one = NewTile(1000, 2000), two = NewTile(8000, 2000);
    ExpandShrinkContainer(Main, one, true);
    Wait(100);
    ExpandShrinkContainer(Main, two, true);
    EXPECT_TRUE(IsShrunk(Main, one));
    EXPECT_TRUE(Seen(one));
    EXPECT_EQ(Main.Group.ExpandingContainer, two);
    EffectEnds();
    EXPECT_TRUE(Seen(two));
    EXPECT_EQ(Main.Group.ExpandedContainer, two);
}

TEST_F(ShrinkEffect, AnExitInTheMiddleSavesTheTile) {
    const int tile = NewTile(4000, 2000);
    ExpandShrinkContainer(Main, tile, true);
    Wait(100);
    Main.IsExiting = true;
    ShrinkBackContainer(Main, false);
    EXPECT_EQ(BoxWords(tile), "4000,2000 700x950");
    EXPECT_FALSE(Effect().Loaded);
}

TEST_F(ShrinkEffect, ADockingInTheMiddleEndsItAndReturnsTheTile) {
    const int tile = NewTile(4000, 2000);
    ExpandShrinkContainer(Main, tile, true);
    Wait(100);
    Main.Dock.DockPosition = 2;
    ShrinkBackContainer(Main, false);
    EXPECT_FALSE(Effect().Loaded);
    EXPECT_TRUE(Seen(tile));
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(ShrinkEffect, AContainerThatDiesInItsEffectTakesTheEffectAlong) {
    const int tile = NewTile(4000, 2000);
    ExpandShrinkContainer(Main, tile, true);
    Wait(100);
    DeleteContainer(Main, tile, false);
    EXPECT_FALSE(Effect().Loaded);
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
    EXPECT_FALSE(Main.ConView(tile).Container.Visible);
    EffectEnds();
    EXPECT_FALSE(Main.ConView(tile).Container.Visible);
}

TEST_F(ShrinkEffect, WhileLoadingNothingMoves) {
    const int index = New({4000, 2000, 3000, 3000});
    Main.IsLoading = true;
    ExpandShrinkContainer(Main, index, true);
    EXPECT_FALSE(Effect().Loaded);
    EXPECT_TRUE(Seen(index));
}

} // namespace
} // namespace quill
