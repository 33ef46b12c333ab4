#include "containers/gestures.h"
#include "containers/workspace_fixture.h"

#include "containers/fold.h"

namespace quill {
namespace {

struct Gestures : test::WorkspaceFixture {
    Gestures() { Main.Settings.Effect = false; }
    // Through the handlers, as the window system calls them.
    MouseEvent At(int index, Point at, MouseButton button = MouseButton::Left) {
        return {.At = at, .Screen = {Box(index).Left + at.X, Box(index).Top + at.Y}, .Button = button};
    }
    void Click(int index, Point at) {
        MouseDown(Main, OnContainer(index), At(index, at));
        MouseUp(Main, OnContainer(index), At(index, at));
    }
    void DoubleClick(int index, Point at) {
        const auto left = Box(index).Left, top = Box(index).Top;
        Click(index, at);
        Wait(150);
        // The mouse stays where it is on the screen, whatever the first click did.
        const Point now{left + at.X - Box(index).Left, top + at.Y - Box(index).Top};
        MouseDoubleClick(Main, OnContainer(index), At(index, now));
        MouseUp(Main, OnContainer(index), At(index, now));
    }
    void ClickBack(Point at) {
        MouseDown(Main, OnBack, {.At = at, .Screen = at, .Button = MouseButton::Left});
        MouseUp(Main, OnBack, {.At = at, .Screen = at, .Button = MouseButton::Left});
    }
};

TEST_F(Gestures, AClickAnywhereOnATileOpensIt) {
    for (const Point at : {Point{300, 400}, {5, 5}, {690, 940}, {300, 20}}) {
        const int tile = NewTile(4000, 2000);
        Click(tile, at);
        EXPECT_FALSE(IsShrunk(Main, tile)) << at.X;
        Wait(20);
        DeleteContainer(Main, tile, false);
    }
}

TEST_F(Gestures, OpeningASecondTileClosesTheFirst) {
    const int one = NewTile(1500, 2000), two = NewTile(8000, 2000);
    Click(one, {300, 400});
    Wait(100);
    Click(two, {300, 400});
    EXPECT_TRUE(IsShrunk(Main, one));
    EXPECT_FALSE(IsShrunk(Main, two));
    EXPECT_EQ(Main.Group.ExpandedContainer, two);
}

TEST_F(Gestures, ADoubleClickOnATileOpensItAndDoesNothingWithWhatComesUnderTheMouse) {
    for (const float left : {4000.0F, 600.0F}) {
        const int tile = NewTile(left, 2000);
        for (const Point at : {Point{20, 20}, {300, 150}, {300, 400}}) {
            DoubleClick(tile, at);
            EXPECT_FALSE(IsShrunk(Main, tile)) << left << " " << at.X;
            EXPECT_FALSE(IsFolded(Main, tile)) << left << " " << at.X;
            EXPECT_FALSE(Main.ConView(tile).PinPressed);
            ClickBack({100, 8000});
            EXPECT_TRUE(IsShrunk(Main, tile));
        }
        DeleteContainer(Main, tile, false);
    }
}

TEST_F(Gestures, ADoubleClickOnAnEmptyPlaceOfAnOpenContainerShrinksIt) {
    const int tile = NewTile(4000, 2000);
    Click(tile, {300, 400});
    Wait(1000);
    DoubleClick(tile, {1500, 1500});
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_EQ(BoxWords(tile), "4000,2000 700x950");
}

TEST_F(Gestures, OneThatIsKeptOpenStillShrinksByDoubleClickButNotByAClickElsewhere) {
    const int tile = NewTile(4000, 2000);
    Click(tile, {300, 400});
    Wait(1000);
    Main.Group.ExpandedContainer = Main.Group.AutoFoldContainerIndex = -1;
    ClickBack({100, 8000});
    EXPECT_FALSE(IsShrunk(Main, tile));
    DoubleClick(tile, {1500, 1500});
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Gestures, APressThatMovedOrHadAModifierIsNoClickOnATile) {
    const int tile = NewTile(4000, 2000);
    const auto down = At(tile, {300, 400});
    auto moved = down, ctrl = down, right = down;
    moved.Screen.X += 5 * TwipsPerPixel;
    ctrl.Ctrl = true;
    right.Button = MouseButton::Right;
    for (const auto& up : {moved, ctrl, right}) {
        ContainerIcon_MouseDown(Main, tile, down);
        ContainerIcon_MouseUp(Main, tile, up);
        EXPECT_TRUE(IsShrunk(Main, tile));
    }
    ContainerIcon_MouseUp(Main, tile + 1, down);
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Gestures, WhereADoubleClickStartsAllAClickDoesNotOpenTheTile) {
    Main.Settings.DblClickToStartAll = true;
    const int tile = NewTile(4000, 2000);
    Click(tile, {300, 400});
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Gestures, ANotesTileOpensByDoubleClickWhereOthersStartAll) {
    Main.Settings.DblClickToStartAll = true;
    const int tile = NewTile(4000, 2000);
    Main.ConView(tile).PinPressed = true;
    DoubleClick(tile, {300, 400});
    EXPECT_FALSE(IsShrunk(Main, tile));
}

TEST_F(Gestures, AClickInTheCornerZoneShrinksAnOpenContainer) {
    const int index = New({4000, 2000, 3000, 3000});
    Click(index, {229, 199});
    EXPECT_TRUE(IsShrunk(Main, index));
    const int other = New({4000, 2000, 3000, 3000});
    Click(other, {230, 210});
    EXPECT_FALSE(IsShrunk(Main, other));
}

TEST_F(Gestures, APressMakesTheContainerCurrentAndBringsItToTheFront) {
    const int one = New({600, 600, 3000, 3000});
    New({4000, 600, 3000, 3000});
    Click(one, {1500, 1500});
    EXPECT_EQ(Main.Group.CurrentContainer, one);
    EXPECT_EQ(Main.ZOrderList.back().Index, one);
    EXPECT_FALSE(Main.Group.ContainerHasFocus);
    Click(one, {400, 100});
    EXPECT_TRUE(Main.Group.ContainerHasFocus);
}

TEST_F(Gestures, APressSaysWhereTheNextObjectGoes) {
    const int index = New({600, 700, 3000, 3000});
    Click(index, {1500, 1600});
    EXPECT_EQ(Main.Group.NewContainerPos, (Point{2100, 2300}));
    ClickBack({5000, 6000});
    EXPECT_EQ(Main.Group.NewContainerPos, (Point{5000, 6000}));
}

TEST_F(Gestures, AClickOnTheEmptyWorkspaceClosesWhatWasOpenedForTheMoment) {
    const int tile = NewTile(4000, 2000), folded = New({8000, 600, 3000, 3000});
    FoldUnfoldContainer(Main, folded, false);
    Click(tile, {300, 400});
    Wait(100);
    ContainerLabel_DblClick(Main, folded);
    Main.Group.HoldExpanded = true;
    ClickBack({100, 8000});
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_FALSE(Main.Group.ContainerHasFocus);
    EXPECT_FALSE(Main.Group.HoldExpanded);
}

TEST_F(Gestures, AClickOnTheEmptyWorkspaceFoldsWhatADoubleClickUnfolded) {
    const int folded = New({8000, 600, 3000, 3000});
    FoldUnfoldContainer(Main, folded, false);
    DoubleClick(folded, {500, 100});
    EXPECT_FALSE(IsFolded(Main, folded));
    ClickBack({100, 8000});
    EXPECT_TRUE(IsFolded(Main, folded));
}

TEST_F(Gestures, TheFoldMarkFoldsAndUnfoldsByClick) {
    const int index = New({600, 600, 3000, 3000});
    const auto mark = Main.ConView(index).lblFoldUnfold.Place;
    Click(index, {mark.Left + 100, mark.Top + 100});
    EXPECT_TRUE(IsFolded(Main, index));
    Click(index, {mark.Left + 100, mark.Top + 100});
    EXPECT_FALSE(IsFolded(Main, index));
}

TEST_F(Gestures, ADeadContainerTakesNoGesture) {
    const int index = New({600, 600, 3000, 3000});
    DeleteContainer(Main, index, false);
    const MouseEvent event{{10, 10}, {}, MouseButton::Left};
    for (const int gone : {index, -1, 77}) {
        Container_MouseDown(Main, gone, event);
        ContainerLabel_MouseDown(Main, gone, event);
        ContainerIcon_MouseDown(Main, gone, event);
        ContainerIcon_MouseUp(Main, gone, event);
        ContainerIcon_DblClick(Main, gone);
        ContainerFrame_DblClick(Main, gone);
        shapeShrink_Click(Main, gone);
    }
    EXPECT_EQ(Main.Group.CurrentContainer, -1);
    EXPECT_TRUE(Main.ZOrderList.empty());
}

} // namespace
} // namespace quill
