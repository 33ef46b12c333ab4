#include "containers/resize.h"
#include "containers/workspace_fixture.h"

#include "containers/fold.h"
#include "containers/full_size.h"

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
        {{3000, 3000}, 6000}, {{100, 200}, 6000},  {{3001, 3000}, 9000}, {{6000, 6000}, 9000},
        {{3000, 7000}, 3000}, {{6001, 100}, 3000}, {{9000, 9000}, 3000},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(NextAutoSize(row.Now), (Size{row.Edge, row.Edge}))
            << row.Now.Width << " by " << row.Now.Height;
    }
}

TEST_F(Resize, RightOrMiddleClickOnTheMarkTakesOneStep) {
    const int index = New({600, 600, 3000, 3000});
    ResizeSymbol_MouseDown(Main, index, At(2900, 2900, MouseButton::Right));
    EXPECT_EQ(BoxWords(index), "600,600 6000x6000");
    ResizeSymbol_MouseDown(Main, index, At(5900, 5900, MouseButton::Middle));
    EXPECT_EQ(BoxWords(index), "600,600 9000x9000");
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
