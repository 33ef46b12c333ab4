#include "containers/resize.h"
#include "containers/workspace_fixture.h"

#include "containers/fold.h"
#include "containers/full_size.h"
#include "containers/undo.h"

namespace quill {
namespace {

struct Resize : test::WorkspaceFixture {
    MouseEvent At(float x, float y, MouseButton button = MouseButton::Left) { return {{x, y}, {}, button}; }
};

TEST_F(Resize, TheAutomaticStepsAreSquareAndFixed) {
    struct Row {
        Size Now;
        float Edge;
    };
    const Row rows[] = {
        {{3000, 3000}, 6000}, {{100, 200}, 6000},   {{3001, 3000}, 9000}, {{6000, 6000}, 9000},
        {{6001, 100}, 9000},  {{6001, 6001}, 3000}, {{9000, 9000}, 3000}, {{20000, 7000}, 3000},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(NextAutoSize(row.Now), (Size{row.Edge, row.Edge}))
            << row.Now.Width << " by " << row.Now.Height;
    }
}

TEST_F(Resize, AContainerOf3000By7000GoesTo9000AndNotTo6000) {
    const int index = New({600, 600, 3000, 7000});
    AutoResizeContainer(Main, index);
    EXPECT_EQ(Box(index).Width, 9000);
    EXPECT_EQ(Box(index).Height, 9000);
}

TEST_F(Resize, AfterAStepOverTheEdgeTheMarkComesBackIntoSightAndUndoPutsThePlaceBack) {
    const int index = New({8000, 5000, 3000, 3000});
    AutoResizeContainer(Main, index);
    EXPECT_EQ(BoxWords(index), "5900,2900 6000x6000");
    ASSERT_EQ(Main.Group.UndoStack.size(), 1u);
    UndoMove(Main, true);
    EXPECT_EQ(BoxWords(index), "8000,5000 6000x6000");
}

TEST_F(Resize, TheTitleStaysInSightWhateverTheStep) {
    const int index =
        New({600, 600, 6000, 6000}); // 9000 is higher than what the workspace has below its title
    AutoResizeContainer(Main, index);
    EXPECT_EQ(BoxWords(index), "600,480 9000x9000");
}

TEST_F(Resize, RightOrMiddleClickOnTheMarkTakesOneStep) {
    const int index = New({600, 600, 3000, 3000});
    ResizeSymbol_MouseDown(Main, index, At(2900, 2900, MouseButton::Right));
    EXPECT_EQ(BoxWords(index), "600,600 6000x6000");
    ResizeSymbol_MouseDown(Main, index, At(5900, 5900, MouseButton::Middle));
    EXPECT_EQ(BoxWords(index), "600,480 9000x9000");
    EXPECT_EQ(Main.ConView(index).ContainerFrame.Place.Width, 9000);
    EXPECT_EQ(FullSize(Main, index), (Size{9000, 9000}));
}

TEST_F(Resize, TheCornerFollowsTheMouseWithoutAJumpAndNotBelowTheTile) {
    const int index = New({600, 600, 3000, 3000});
    ResizeSymbol_MouseDown(Main, index, At(2900, 2950));
    ResizeSymbol_MouseMove(Main, At(2900, 2950));
    EXPECT_EQ(BoxWords(index), "600,600 3000x3000");
    ResizeSymbol_MouseMove(Main, At(3900, 3450));
    EXPECT_EQ(BoxWords(index), "600,600 4000x3500");
    EXPECT_EQ(Main.ConView(index).ContainerLabel.Place.Width, 2760);
    ResizeSymbol_MouseMove(Main, At(-500, 1000));
    EXPECT_EQ(BoxWords(index), "600,600 700x1050");
    ResizeSymbol_MouseUp(Main, At(4900, 3950));
    EXPECT_EQ(BoxWords(index), "600,600 5000x4000");
    ResizeSymbol_MouseMove(Main, At(100, 100));
    EXPECT_EQ(BoxWords(index), "600,600 5000x4000");
}

TEST_F(Resize, TheNewSizeIsRemembered) {
    const int index = New({600, 600, 3000, 3000});
    ResizeSymbol_MouseDown(Main, index, At(3000, 3000));
    ResizeSymbol_MouseUp(Main, At(5000, 4000));
    EXPECT_EQ(FullSize(Main, index), (Size{5000, 4000}));
    EXPECT_NE(Recovery("0.REC").find("[W]\r\n5000\r\n"), std::string::npos) << Recovery("0.REC");
}

TEST_F(Resize, OnePulledToExactlyTheTilesSizeIsATileAndOpensAsLargeAsItWas) {
    const int index = New({1600, 600, 3000, 3000});
    ResizeSymbol_MouseDown(Main, index, At(3000, 3000));
    ResizeSymbol_MouseUp(Main, At(0, 0));
    EXPECT_TRUE(IsShrunk(Main, index));
    EXPECT_TRUE(Main.ConView(index).ContainerIcon.Visible);
    EXPECT_FALSE(Main.ConView(index).IconFile.empty());
    ExpandShrinkContainer(Main, index, false);
    EXPECT_EQ(Box(index).Width, 3000);
}

TEST_F(Resize, LockedFoldedAndShrunkContainersKeepTheirSize) {
    const int open = New({600, 600, 3000, 3000}), folded = New({600, 600, 3000, 3000}),
              tile = NewTile(5000, 600);
    FoldUnfoldContainer(Main, folded, false);
    for (const int index : {folded, tile}) {
        const auto before = BoxWords(index);
        ResizeSymbol_MouseDown(Main, index, At(100, 100));
        ResizeSymbol_MouseUp(Main, At(4000, 4000));
        AutoResizeContainer(Main, index);
        EXPECT_EQ(BoxWords(index), before);
    }
    Main.Dock.Locked = true;
    ResizeSymbol_MouseDown(Main, open, At(3000, 3000));
    ResizeSymbol_MouseUp(Main, At(5000, 4000));
    AutoResizeContainer(Main, open);
    EXPECT_EQ(BoxWords(open), "600,600 3000x3000");
}

TEST_F(Resize, WithOnlyTheShortcutsLockedContainersAreResized) {
    const int index = New({600, 600, 3000, 3000});
    Main.Dock.Locked = Main.Settings.LockOnlyShortcuts = true;
    AutoResizeContainer(Main, index);
    EXPECT_EQ(Box(index).Width, 6000);
}

TEST_F(Resize, TheMarkIsNotLostBeyondTheEdgeOfTheWorkspace) {
    const int index = New({600, 600, 3000, 3000});
    ResizeSymbol_MouseDown(Main, index, At(3000, 3000));
    ResizeSymbol_MouseUp(Main, At(50000, 50000));
    EXPECT_EQ(BoxWords(index), "600,600 11400x8400");
}

TEST_F(Resize, EscapePutsTheSizeBack) {
    const int index = New({600, 600, 3000, 3000});
    RememberPresentSize(Main, index);
    ResizeSymbol_MouseDown(Main, index, At(3000, 3000));
    ResizeSymbol_MouseMove(Main, At(5000, 4000));
    CancelResize(Main);
    EXPECT_EQ(BoxWords(index), "600,600 3000x3000");
    ResizeSymbol_MouseUp(Main, At(5000, 4000));
    EXPECT_EQ(BoxWords(index), "600,600 3000x3000");
}

TEST_F(Resize, ByKeyTheCurrentContainerOrTheSelectionGrowsAndShrinks) {
    const int one = New({600, 600, 3000, 3000}), other = New({5000, 600, 3000, 4000});
    Main.Group.CurrentContainer = one;
    ResizeContainersByKey(Main, 150, 0);
    EXPECT_EQ(BoxWords(one), "600,600 3150x3000");
    EXPECT_EQ(BoxWords(other), "5000,600 3000x4000");
    EXPECT_EQ(FullSize(Main, one), (Size{3150, 3000}));
    Main.ConView(one).LabelSelected = Main.ConView(other).LabelSelected = true;
    ResizeContainersByKey(Main, 0, -150);
    EXPECT_EQ(BoxWords(one), "600,600 3150x2850");
    EXPECT_EQ(BoxWords(other), "5000,600 3000x3850");
    EXPECT_NE(Recovery("0.REC").find("[W]\r\n3150\r\n"), std::string::npos) << Recovery("0.REC");
}

TEST_F(Resize, ByKeyTooTheTileIsTheSmallestAndFoldedOnesStay) {
    const int index = New({600, 600, 800, 900}), folded = New({600, 600, 3000, 3000});
    Main.Group.CurrentContainer = index;
    ResizeContainersByKey(Main, -50, -5000);
    EXPECT_EQ(Box(index).Width, 750);
    EXPECT_EQ(Box(index).Height, static_cast<float>(Main.Con(index).ShrinkSize().Height));
    Main.Group.CurrentContainer = folded;
    FoldUnfoldContainer(Main, folded, false);
    const auto before = BoxWords(folded);
    ResizeContainersByKey(Main, 150, 150);
    EXPECT_EQ(BoxWords(folded), before);
    Main.Group.CurrentContainer = -1;
    ResizeContainersByKey(Main, 150, 150);
}

TEST_F(Resize, WhenTheContainerDiesUnderTheHandNothingIsResized) {
    const int index = New({600, 600, 3000, 3000});
    ResizeSymbol_MouseDown(Main, index, At(3000, 3000));
    DeleteContainer(Main, index, false);
    ResizeSymbol_MouseMove(Main, At(5000, 4000));
    ResizeSymbol_MouseUp(Main, At(5000, 4000));
    EXPECT_EQ(Box(index).Width, 0);
}

} // namespace
} // namespace quill
