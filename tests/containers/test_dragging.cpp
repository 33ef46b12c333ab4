#include "containers/dragging.h"
#include "containers/workspace_fixture.h"

#include "containers/fold.h"
#include "containers/selection.h"
#include "containers/undo.h"
#include "core/start.h"

namespace quill {
namespace {

struct Dragging : test::WorkspaceFixture {
    Dragging() { Main.Settings.Effect = false; }

    SurfaceId held = OnBack;
    Point from; // of the press, on the desktop

    MouseEvent At(Point screen, MouseButton button = MouseButton::Left, bool ctrl = false) {
        const auto place = PlaceOfSurface(Main, held);
        MouseEvent event{
            .At = {screen.X - place.Left, screen.Y - place.Top}, .Screen = screen, .Button = button};
        event.Ctrl = ctrl;
        return event;
    }
    void Press(int index, Point at, bool ctrl = false) {
        held = OnContainer(index);
        from = {Box(index).Left + at.X, Box(index).Top + at.Y};
        MouseDown(Main, held, At(from, MouseButton::Left, ctrl));
    }
    void PressTitle(int index, bool ctrl = false) { Press(index, {700, 120}, ctrl); }
    void PressTile(int index, bool ctrl = false) { Press(index, {350, 500}, ctrl); }
    void MoveTo(Point by) { MouseMove(Main, held, At({from.X + by.X, from.Y + by.Y})); }
    void Release(Point by, bool ctrl = false) {
        MouseUp(Main, held, At({from.X + by.X, from.Y + by.Y}, MouseButton::Left, ctrl));
    }
    void Drag(Point by) { MoveTo({by.X / 2, by.Y / 2}), MoveTo(by), Release(by); }
    void Escape() {
        KeyEvent key;
        key.Code = KeyEscape;
        Form_KeyDown(Main, key);
    }
    std::string BoxPlace(int index) { return fake::Words(Point{Box(index).Left, Box(index).Top}); }
    std::string Stored(int index) {
        return fake::Words(Point{Main.Con(index).StoredSize().X, Main.Con(index).StoredSize().Y});
    }
    std::size_t Steps() { return Main.Group.UndoStack.size(); }
};

TEST_F(Dragging, AContainerFollowsTheHandThatHoldsItsTitle) {
    const int box = New({600, 700, 3000, 3000});
    PressTitle(box);
    MoveTo({300, 150});
    EXPECT_EQ(BoxPlace(box), "900,850");
    MoveTo({1500, 2000});
    EXPECT_EQ(BoxPlace(box), "2100,2700");
    Release({1500, 2000});
    EXPECT_EQ(BoxPlace(box), "2100,2700");
    EXPECT_EQ(Stored(box), "2100,2700");
    EXPECT_EQ(Steps(), 1U);
    UndoMove(Main, true);
    EXPECT_EQ(BoxPlace(box), "600,700");
    EXPECT_EQ(Stored(box), "600,700");
}

TEST_F(Dragging, TheTitleRowBesideTheLabelIsAPlaceToHoldItByToo) {
    const int box = New({600, 700, 3000, 3000});
    Press(box, {2200, 120});
    ASSERT_EQ(Main.View.Pressed.Kind, ElementKind::Container);
    Drag({900, 600});
    EXPECT_EQ(BoxPlace(box), "1500,1300");
}

TEST_F(Dragging, ATileIsDraggedAndNotOpened) {
    const int tile = NewTile(5000, 2000);
    PressTile(tile);
    Drag({-1500, 900});
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_EQ(BoxPlace(tile), "3500,2900");
    EXPECT_EQ(Stored(tile), "3500,2900");
}

TEST_F(Dragging, AFoldedContainerBelongsWhereItWasPut) {
    const int box = New({600, 700, 3000, 3000});
    FoldUnfoldContainer(Main, box, false);
    PressTitle(box);
    Drag({600, 900});
    EXPECT_TRUE(IsFolded(Main, box));
    EXPECT_EQ(Stored(box), "1200,1600");
}

TEST_F(Dragging, OneThatMovedUpWhenItOpenedFoldsWhereAHandPutIt) {
    const int box = New({600, 700, 3000, 3000});
    FoldUnfoldContainer(Main, box, false);
    Box(box).Top = 8000;
    FoldUnfoldContainer(Main, box, false);
    ASSERT_TRUE(Main.Con(box).CloseToEdgeY);
    PressTitle(box);
    Drag({300, -3000});
    const float top = Box(box).Top;
    FoldUnfoldContainer(Main, box, false);
    EXPECT_EQ(Box(box).Top, top);
}

TEST_F(Dragging, AHandThatSlipsByFourPixelsOnlyClicks) {
    const int box = New({600, 700, 3000, 3000}), tile = NewTile(5000, 2000);
    PressTitle(box);
    MoveTo({60, -60});
    Release({60, -60});
    EXPECT_EQ(BoxPlace(box), "600,700");
    PressTile(tile);
    MoveTo({60, 60});
    Release({60, 60});
    EXPECT_FALSE(IsShrunk(Main, tile)) << "the click opens it";
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(Dragging, FivePixelsAreADrag) {
    const int box = New({600, 700, 3000, 3000});
    PressTitle(box);
    MoveTo({0, 75});
    EXPECT_EQ(BoxPlace(box), "600,775");
}

TEST_F(Dragging, AReleaseWhereThePressWasIsAClick) {
    const int box = New({600, 700, 3000, 3000}), tile = NewTile(5000, 2000);
    PressTitle(box);
    MoveTo({900, 900});
    MoveTo({0, 0});
    Release({0, 0});
    EXPECT_EQ(BoxPlace(box), "600,700");
    PressTile(tile);
    MoveTo({900, 900});
    MoveTo({0, 0});
    Release({0, 0});
    EXPECT_FALSE(IsShrunk(Main, tile));
    EXPECT_EQ(Steps(), 0U) << "nothing was moved";
}

TEST_F(Dragging, ReleasedFirstAndMovedAtTheSameTimeItIsStillMoved) {
    const int box = New({600, 700, 3000, 3000});
    PressTitle(box);
    MoveTo({300, 300});
    Release({900, 600});
    EXPECT_EQ(BoxPlace(box), "1500,1300");
}

TEST_F(Dragging, TheSelectedOnesMoveTogetherAndKeepTheirOffsets) {
    const int one = New({600, 700, 3000, 3000}), two = NewTile(5000, 2000),
              three = New({7000, 700, 2000, 2000});
    SelectContainer(Main, one);
    SelectContainer(Main, two);
    PressTitle(one);
    Drag({900, 1200});
    EXPECT_EQ(BoxPlace(one) + " " + BoxPlace(two) + " " + BoxPlace(three), "1500,1900 5900,3200 7000,700");
    EXPECT_EQ(Steps(), 1U) << "one step";
    UndoMove(Main, true);
    EXPECT_EQ(BoxPlace(one) + " " + BoxPlace(two), "600,700 5000,2000");
    UndoMove(Main, false);
    EXPECT_EQ(BoxPlace(one) + " " + BoxPlace(two), "1500,1900 5900,3200");
}

TEST_F(Dragging, OneThatIsNotSelectedMovesAlone) {
    const int one = New({600, 700, 3000, 3000}), two = New({4000, 700, 2000, 2000});
    SelectContainer(Main, two);
    PressTitle(one);
    Drag({900, 1200});
    EXPECT_EQ(BoxPlace(one) + " " + BoxPlace(two), "1500,1900 4000,700");
    EXPECT_TRUE(Main.ConView(two).LabelSelected);
}

TEST_F(Dragging, EachOfAGroupIsKeptInsideByItself) {
    const int one = New({600, 700, 3000, 3000}), two = New({4000, 2000, 2000, 2000});
    SelectContainer(Main, one);
    SelectContainer(Main, two);
    PressTitle(two);
    Drag({-2000, 600});
    EXPECT_EQ(BoxPlace(one), "100,1300") << "a negative left becomes 100";
    EXPECT_EQ(BoxPlace(two), "2000,2600");
    UndoMove(Main, true);
    EXPECT_EQ(BoxPlace(one) + " " + BoxPlace(two), "600,700 4000,2000");
}

TEST_F(Dragging, WhatWasPutBackInsideToItsOldPlaceWasNotMoved) {
    const int box = New({100, 700, 3000, 3000});
    PressTitle(box);
    Drag({-1500, 0});
    EXPECT_EQ(BoxPlace(box), "100,700");
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(Dragging, EscapePutsEverythingBack) {
    const int one = New({600, 700, 3000, 3000}), two = New({4000, 700, 2000, 2000});
    SelectContainer(Main, one);
    SelectContainer(Main, two);
    PressTitle(one);
    MoveTo({900, 1200});
    Escape();
    EXPECT_EQ(BoxPlace(one) + " " + BoxPlace(two), "600,700 4000,700");
    MoveTo({1200, 1200});
    Release({1200, 1200});
    EXPECT_EQ(BoxPlace(one), "600,700") << "the hand holds nothing any more";
    EXPECT_EQ(Steps(), 0U);
    EXPECT_TRUE(Main.ConView(one).LabelSelected);
}

TEST_F(Dragging, AnotherButtonLetsGoToo) {
    const int box = New({600, 700, 3000, 3000});
    PressTitle(box);
    MoveTo({900, 1200});
    MouseDown(Main, held, At({from.X + 900, from.Y + 1200}, MouseButton::Right));
    EXPECT_EQ(BoxPlace(box), "600,700");
    EXPECT_TRUE(computer.Questions.Menus.empty());
}

TEST_F(Dragging, AReleaseThatNobodySawPutsItDown) {
    const int box = New({600, 700, 3000, 3000});
    PressTitle(box);
    MoveTo({900, 1200});
    MouseMove(Main, held, At({from.X + 1200, from.Y + 1200}, MouseButton::None));
    EXPECT_EQ(BoxPlace(box), "1800,1900");
    EXPECT_EQ(Main.Group.Drag.Pressed, -1);
    EXPECT_EQ(Steps(), 1U);
}

TEST_F(Dragging, TheWorkspaceDoesNotDockWhileSomethingIsCarried) {
    const int box = New({600, 700, 3000, 3000});
    PressTitle(box);
    EXPECT_FALSE(Main.Dock.WorkspaceDragging) << "a press is none";
    MoveTo({900, 1200});
    EXPECT_TRUE(Main.Dock.WorkspaceDragging);
    Release({900, 1200});
    EXPECT_FALSE(Main.Dock.WorkspaceDragging);
    PressTitle(box);
    MoveTo({900, 1200});
    Escape();
    EXPECT_FALSE(Main.Dock.WorkspaceDragging);
}

TEST_F(Dragging, OnlyWhatMovesIsMarked) {
    New({7000, 700, 2000, 2000});
    const int box = New({600, 700, 3000, 3000});
    PressTitle(box);
    MoveTo({300, 300});
    Main.Marks.Take();
    MoveTo({600, 600});
    const auto marks = Main.Marks.Take();
    EXPECT_EQ(marks.Containers, std::vector<int>{box});
    EXPECT_FALSE(marks.Everything || marks.Workspace || marks.Stacking || marks.Overlay);
    MoveTo({600, 600});
    EXPECT_TRUE(Main.Marks.Take().Empty()) << "a hand that rests costs nothing";
}

TEST_F(Dragging, ThePressBringsItToTheFront) {
    const int box = New({600, 700, 3000, 3000});
    New({4000, 700, 2000, 2000});
    PressTitle(box);
    EXPECT_EQ(Main.ZOrderList.back().Index, box);
}

TEST_F(Dragging, OneThatDiesInTheHandIsLetGo) {
    const int one = New({600, 700, 3000, 3000}), two = New({4000, 700, 2000, 2000});
    SelectContainer(Main, one);
    SelectContainer(Main, two);
    PressTitle(one);
    MoveTo({900, 1200});
    DeleteContainer(Main, one, false);
    MoveTo({1200, 1200});
    Release({1200, 1200});
    EXPECT_EQ(BoxPlace(two), "4000,700");
    EXPECT_FALSE(Main.Dock.WorkspaceDragging);
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(Dragging, OneOfTheGroupThatDiesIsLeftOut) {
    const int one = New({600, 700, 3000, 3000}), two = New({4000, 700, 2000, 2000});
    SelectContainer(Main, one);
    SelectContainer(Main, two);
    PressTitle(one);
    MoveTo({900, 1200});
    DeleteContainer(Main, two, false);
    Release({900, 1200});
    EXPECT_EQ(BoxPlace(one), "1500,1900");
    UndoMove(Main, true);
    EXPECT_EQ(BoxPlace(one), "600,700");
    EXPECT_FALSE(IsLive(Main.Containers, two));
}

TEST_F(Dragging, ATileThatIsOpenForTheMomentTakesItsTileAlong) {
    const int tile = NewTile(5000, 2000);
    PressTile(tile);
    Release({0, 0});
    ASSERT_EQ(Main.Group.ExpandedContainer, tile);
    const Rect open = Box(tile);
    Wait(100);
    PressTitle(tile);
    Drag({1500, 900});
    EXPECT_EQ(Box(tile).Left, open.Left + 1500);
    EXPECT_EQ(Main.Group.ExpandedContainer, tile) << "it is still only open for the moment";
    ShrinkBackContainer(Main, false);
    EXPECT_EQ(BoxPlace(tile), "6500,2900");
    UndoMove(Main, true);
    EXPECT_EQ(BoxPlace(tile), "5000,2000");
}

TEST_F(Dragging, ItsTileStaysInTheWorkspace) {
    const int tile = NewTile(10500, 2000);
    PressTile(tile);
    Release({0, 0});
    Wait(100);
    PressTitle(tile);
    Drag({2000, 6500});
    ShrinkBackContainer(Main, false);
    EXPECT_LE(Box(tile).Right(), 12000);
    EXPECT_LE(Box(tile).Bottom(), 9000);
}

TEST_F(Dragging, ATileThatWasPutDownDoesNotOpenUnderTheHand) {
    const int tile = NewTile(5000, 2000);
    Press(tile, {100, 100});
    Drag({1500, 900});
    MouseMove(Main, held, At({from.X + 1500, from.Y + 900}, MouseButton::None));
    Wait(1000);
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Dragging, CtrlClickOnATitleOrATileTogglesTheContainer) {
    const int box = New({600, 700, 3000, 3000}), tile = NewTile(5000, 2000);
    PressTitle(box, true);
    Release({0, 0}, true);
    PressTile(tile, true);
    Release({0, 0}, true);
    EXPECT_TRUE(Main.ConView(box).LabelSelected);
    EXPECT_TRUE(Main.ConView(tile).LabelSelected);
    EXPECT_TRUE(IsShrunk(Main, tile));
    PressTitle(box, true);
    Release({0, 0}, true);
    EXPECT_FALSE(Main.ConView(box).LabelSelected);
    EXPECT_TRUE(Main.ConView(tile).LabelSelected);
}

TEST_F(Dragging, TwoQuickCtrlClicksOnATitleFoldNothing) {
    const int box = New({600, 700, 3000, 3000});
    PressTitle(box, true);
    Release({0, 0}, true);
    MouseDoubleClick(Main, held, At(from, MouseButton::Left, true));
    Release({0, 0}, true);
    EXPECT_FALSE(IsFolded(Main, box));
    EXPECT_FALSE(Main.ConView(box).LabelSelected);
}

TEST_F(Dragging, OneThatWasJustPickedByCtrlIsDraggedAtOnceAndNotFolded) {
    const int box = New({600, 700, 3000, 3000});
    PressTitle(box, true);
    Release({0, 0}, true);
    MouseDoubleClick(Main, held, At(from));
    Drag({900, 600});
    EXPECT_FALSE(IsFolded(Main, box));
    EXPECT_EQ(BoxPlace(box), "1500,1300");
    PressTitle(box);
    Release({0, 0});
    MouseDoubleClick(Main, held, At(from));
    EXPECT_TRUE(IsFolded(Main, box));
}

TEST_F(Dragging, APlainClickOnATitleLeavesTheSelection) {
    const int one = New({600, 700, 3000, 3000}), two = New({4000, 700, 2000, 2000});
    SelectContainer(Main, two);
    PressTitle(one);
    Release({0, 0});
    EXPECT_EQ(SelectedContainers(Main), std::vector<int>{two});
}

TEST_F(Dragging, KeysMoveTheCurrentContainerOrTheSelectionAroundIt) {
    const int one = New({600, 700, 3000, 3000}), two = New({4000, 700, 2000, 2000});
    Main.Group.CurrentContainer = one;
    MoveContainersByKey(Main, 150, 0);
    EXPECT_EQ(BoxPlace(one) + " " + BoxPlace(two), "750,700 4000,700");
    SelectContainer(Main, one);
    SelectContainer(Main, two);
    MoveContainersByKey(Main, 0, 150);
    EXPECT_EQ(BoxPlace(one) + " " + BoxPlace(two), "750,850 4000,850");
    UndoMove(Main, true);
    UndoMove(Main, true);
    EXPECT_EQ(BoxPlace(one) + " " + BoxPlace(two), "600,700 4000,700");
    Main.Group.CurrentContainer = -1;
    MoveContainersByKey(Main, 150, 0);
    EXPECT_EQ(BoxPlace(one), "600,700");
}

TEST_F(Dragging, KeysDoNotMoveItOutOfTheWorkspace) {
    const int box = New({600, 700, 3000, 3000});
    Main.Group.CurrentContainer = box;
    for (int n = 0; n < 100; ++n) MoveContainersByKey(Main, -150, -150);
    EXPECT_GE(Box(box).Left, 0);
    EXPECT_GE(Box(box).Top, Main.View.picMoveMe.Place.Bottom());
}

TEST_F(Dragging, KeysMoveTheShortcutThatTheyAreOnAndWhatIsSelectedAroundIt) {
    const int box = New({6000, 700, 3000, 3000});
    const int one = NewLink(OnWorkspace(), {2000, 1000}), two = NewLink(OnWorkspace(), {2000, 2000});
    const int inside = NewLink(InContainer(box), {400, 400});
    const auto place = [&](int link) {
        const auto& label = Main.LinkView(link).lblShortcut.Place;
        return fake::Words(Point{label.Left, label.Top});
    };
    Main.Links.CurrentShortcut = one;
    MoveShortcutsByKey(Main, 150, 0);
    EXPECT_EQ(place(one) + " " + place(two), "2150,1000 2000,2000");
    for (const int link : {one, two, inside}) SetSelection(Main, link, true);
    MoveShortcutsByKey(Main, 0, 150);
    EXPECT_EQ(place(one) + " " + place(two) + " " + place(inside), "2150,1150 2000,2150 400,400");
    UndoMove(Main, true);
    EXPECT_EQ(place(one) + " " + place(two), "2150,1000 2000,2000") << "one step";
    for (int n = 0; n < 50; ++n) MoveShortcutsByKey(Main, -150, 0);
    EXPECT_GE(Main.LinkView(one).lblShortcut.Place.Left, 0) << "they stay inside";
    DeleteShortcut(Main, one);
    Main.Links.CurrentShortcut = one;
    MoveShortcutsByKey(Main, 150, 0);
    EXPECT_FALSE(IsLive(Main.Shortcuts, one));
}

TEST_F(Dragging, WhereShortcutsSnapToTheGridAKeyMovesThemByOneLineOfIt) {
    Main.Dock.Align = true;
    Main.Settings.LineSpacing = 455;
    const int link = NewLink(OnWorkspace(), {455 * 4, 455 * 3});
    Main.Links.CurrentShortcut = link;
    MoveShortcutsByKey(Main, 150, 0);
    MoveShortcutsByKey(Main, 0, 150);
    const auto& label = Main.LinkView(link).lblShortcut.Place;
    EXPECT_EQ(fake::Words(Point{label.Left, label.Top}), fake::Words(Point{455 * 5, 455 * 4}));
}

TEST_F(Dragging, AnEndInTheMiddleSavesItWhereItWas) {
    const int box = New({600, 700, 3000, 3000});
    PressTitle(box);
    MoveTo({90000, 1200});
    UnloadMain(Main);
    EXPECT_EQ(BoxPlace(box), "600,700");
}

TEST_F(Dragging, AMoveIsSavedForTheCaseOfADeath) {
    const int box = New({600, 700, 3000, 3000});
    PressTitle(box);
    Drag({900, 1200});
    EXPECT_NE(Recovery("0.REC").find("[X]\r\n1500\r\n[Y]\r\n1900\r\n"), std::string::npos)
        << Recovery("0.REC");
}

} // namespace
} // namespace quill
