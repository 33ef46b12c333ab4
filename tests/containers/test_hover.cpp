#include "containers/hover.h"
#include "containers/workspace_fixture.h"

#include "containers/commands.h"
#include "containers/flip.h"
#include "containers/fold.h"
#include "containers/gestures.h"
#include "core/routes.h"
#include "dock/docking.h"

namespace quill {
namespace {

constexpr Point zone{100, 100}; // a place in the Shrink/Expand zone
constexpr float pixel = 15;

struct Hover : test::WorkspaceFixture {
    Hover() { Main.Settings.Effect = false; }

    Point OnDesktop(Point onBack) {
        const auto& back = Main.View.picBack.Place;
        return {Main.View.Window.Left + back.Left + onBack.X, Main.View.Window.Top + back.Top + onBack.Y};
    }
    // As the window system tells it: the move goes to the surface under the mouse.
    void PointAt(int index, Point at) {
        computer.Windows.Cursor = OnDesktop({Box(index).Left + at.X, Box(index).Top + at.Y});
        MouseMove(Main, OnContainer(index), {.At = at, .Screen = computer.Windows.Cursor});
    }
    void PointAtBack(Point at) {
        computer.Windows.Cursor = OnDesktop(at);
        MouseMove(Main, OnBack, {.At = at, .Screen = computer.Windows.Cursor});
    }
    // From a container to the empty workspace.
    void Leave(int index, Point to = {200, 8500}) {
        computer.Windows.Cursor = OnDesktop(to);
        MouseLeave(Main, OnContainer(index));
        PointAtBack(to);
    }
    void OpenByHover(int tile) {
        PointAt(tile, zone);
        Wait(250);
        EXPECT_FALSE(IsShrunk(Main, tile));
        Wait(20);
    }
    void Click(int index, Point at) {
        PointAt(index, at);
        const MouseEvent event{.At = at, .Screen = computer.Windows.Cursor, .Button = MouseButton::Left};
        MouseDown(Main, OnContainer(index), event);
        MouseUp(Main, OnContainer(index), event);
    }
    bool Waits() { return computer.Clock.IsRunning({TimerName::TimerExpandContainer}); }
};

// ---- opening

TEST_F(Hover, ATileOpensWhenTheMouseHasRestedInItsCornerForTheTimeThatIsSet) {
    for (const auto& [setting, delay] : {std::pair{1, 250}, {2, 500}, {3, 100}, {-1, 100}}) {
        Main.Settings.AutoExpandDelay = static_cast<std::int16_t>(setting);
        const int tile = NewTile(4000, 2000);
        PointAt(tile, zone);
        Wait(delay - 1);
        EXPECT_TRUE(IsShrunk(Main, tile)) << setting;
        Wait(1);
        EXPECT_FALSE(IsShrunk(Main, tile)) << setting;
        EXPECT_EQ(Main.Group.ExpandedContainer, tile) << setting;
        EXPECT_EQ(Main.Group.HoverContainer, -1) << setting;
        EXPECT_FALSE(Waits()) << setting;
        DeleteContainer(Main, tile, false);
        computer.Windows.Cursor = {};
        Wait(20);
    }
}

TEST_F(Hover, WithNoDelayATileOpensAtOnceAndNoTimerRuns) {
    Main.Settings.AutoExpandDelay = 0;
    const int tile = NewTile(4000, 2000);
    PointAt(tile, zone);
    EXPECT_FALSE(IsShrunk(Main, tile));
    EXPECT_FALSE(Waits());
    EXPECT_EQ(Main.Group.HoverContainer, -1);
}

TEST_F(Hover, AMouseThatMovesTenPixelsOpensATileAndOneThatMovesElevenDoesNot) {
    struct Row {
        const char* Name;
        float Right, Down; // pixels
        bool Opens;
    };
    const Row rows[] = {
        {"ten to the right", 10, 0, true}, {"eleven to the right", 11, 0, false},
        {"ten down", 0, 10, true},         {"eleven down", 0, 11, false},
        {"ten both ways", 10, 10, true},   {"ten right and eleven down", 10, 11, false},
        {"ten back", -10, -10, true},      {"eleven back", -11, 0, false},
    };
    for (const auto& row : rows) {
        const int tile = NewTile(4000, 2000);
        PointAt(tile, {20, 20});
        Wait(100);
        auto& cursor = computer.Windows.Cursor;
        cursor = {cursor.X + row.Right * pixel, cursor.Y + row.Down * pixel};
        Wait(150);
        EXPECT_EQ(!IsShrunk(Main, tile), row.Opens) << row.Name;
        EXPECT_EQ(Main.Group.HoverContainer, -1) << row.Name;
        EXPECT_FALSE(Waits()) << row.Name;
        DeleteContainer(Main, tile, false);
        computer.Windows.Cursor = {};
        Wait(20);
    }
}

TEST_F(Hover, OverTheRestOfATileTheMouseOpensNothing) {
    const int tile = NewTile(4000, 2000);
    for (const Point at : {Point{230, 100}, {100, 200}, {350, 475}, {690, 940}}) {
        PointAt(tile, at);
        Wait(1000);
        EXPECT_TRUE(IsShrunk(Main, tile)) << at.X << " " << at.Y;
    }
}

TEST_F(Hover, AMouseThatIsJustPassingOverTilesOpensNone) {
    const int one = NewTile(2000, 2000), two = NewTile(2700, 2000), three = NewTile(3400, 2000);
    for (const int tile : {one, two, three}) {
        PointAt(tile, zone);
        Wait(30);
        PointAt(tile, {600, 100});
        Wait(30);
    }
    Leave(three);
    Wait(1000);
    for (const int tile : {one, two, three}) EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Hover, AMouseThatWasThereAndIsGoneOpensNothing) {
    const int tile = NewTile(4000, 2000);
    PointAt(tile, {10, 10});
    Leave(tile, {3990, 1990}); // not two pixels away
    Wait(1000);
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_FALSE(Waits());
}

TEST_F(Hover, TheZoneIsTheCornerAndFollowsTheMarkToTheBottom) {
    struct Row {
        Point At;
        float MarkLeft;
        bool In;
    };
    const Row rows[] = {
        {{0, 0}, 80, true},     {{229, 199}, 80, true},   {{230, 0}, 80, false},
        {{0, 200}, 80, false},  {{0, 2701}, 80, false},   {{0, 2701}, 60, true},
        {{0, 2700}, 60, false}, {{230, 2701}, 60, false}, {{229, 199}, 60, true},
    };
    const int index = New({500, 500, 3000, 3000});
    for (const auto& row : rows) {
        Main.ConView(index).shapeShrink.Place.Left = row.MarkLeft;
        EXPECT_EQ(InShrinkZone(Main, index, row.At), row.In) << row.At.X << "," << row.At.Y;
    }
    EXPECT_FALSE(InShrinkZone(Main, 99, {0, 0}));
}

TEST_F(Hover, NothingOpensByHoverWhereItIsNotWanted) {
    struct Row {
        const char* Name;
        void (*Prepare)(frmMain&, int);
    };
    const Row rows[] = {
        {"option off", [](frmMain& main, int) { main.Settings.AutoExpand = false; }},
        {"the workspace is dragged", [](frmMain& main, int) { main.Dock.WorkspaceDragging = true; }},
        {"a drag has just entered", [](frmMain& main, int) { main.Group.SuspendAutoExpand = true; }},
        {"a container is held", [](frmMain& main, int tile) { main.Group.Drag.Pressed = tile; }},
        {"a rubber band runs", [](frmMain& main, int) { main.Group.frmSelection.Loaded = true; }},
        {"a question or a menu is open", [](frmMain& main, int) { main.Dock.DialogPauses = 1; }},
        {"it has just shrunk back", [](frmMain& main, int tile) { main.Group.LastShrunkBack = tile; }},
    };
    const auto settings = Main.Settings;
    for (const auto& row : rows) {
        const int tile = NewTile(4000, 2000);
        const auto group = Main.Group;
        row.Prepare(Main, tile);
        HoverExpand(Main, tile);
        EXPECT_TRUE(IsShrunk(Main, tile)) << row.Name;
        Main.Group = group;
        Main.Dock = {};
        Main.Settings = settings;
        HoverExpand(Main, tile);
        EXPECT_FALSE(IsShrunk(Main, tile)) << row.Name;
        DeleteContainer(Main, tile, false);
        Wait(20);
    }
}

TEST_F(Hover, ATileThatIsPressedMeanwhileIsNotOpenedUnderTheHand) {
    const int tile = NewTile(4000, 2000);
    PointAt(tile, zone);
    Main.Group.Drag.Pressed = tile;
    Wait(1000);
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Hover, OpeningATileClosesTheOneThatWasOpenForTheMoment) {
    const int one = NewTile(2000, 2000), two = NewTile(8000, 2000);
    ExpandShrinkContainer(Main, one, false); // by key: the mouse was never there
    Wait(20);
    PointAt(two, zone);
    Wait(250);
    EXPECT_TRUE(IsShrunk(Main, one));
    EXPECT_FALSE(IsShrunk(Main, two));
    EXPECT_EQ(Main.Group.ExpandedContainer, two);
}

TEST_F(Hover, ATileThatDiesUnderTheMouseIsForgotten) {
    const int tile = NewTile(4000, 2000);
    PointAt(tile, zone);
    DeleteContainer(Main, tile, false);
    EXPECT_EQ(Main.Group.HoverContainer, -1);
    EXPECT_EQ(Main.Group.MouseContainer, -1);
    Wait(1000);
    Container_MouseMove(Main, tile, {.At = zone});
    Container_MouseLeave(Main, tile);
    EXPECT_EQ(Main.Group.ExpandedContainer, -1);
}

// ---- closing

TEST_F(Hover, WhatIsOpenForTheMomentClosesWhenTheMouseLeavesIt) {
    const int tile = NewTile(4000, 2000);
    OpenByHover(tile);
    PointAt(tile, {1500, 1500});
    Leave(tile);
    EXPECT_EQ(BoxWords(tile), "4000,2000 700x950");
    Click(tile, {350, 475});
    Wait(20);
    EXPECT_FALSE(IsShrunk(Main, tile));
    Leave(tile);
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Hover, GoingIntoAPictureOrANoteBoxInsideIsNoLeaving) {
    const int tile = NewTile(4000, 2000);
    OpenByHover(tile);
    PointAt(tile, {1500, 1500});
    MouseLeave(Main, OnContainer(tile)); // the cursor is still inside
    EXPECT_FALSE(IsShrunk(Main, tile));
}

TEST_F(Hover, FromAPictureInsideTheMouseLeavesTheContainerToo) {
    const int tile = NewTile(4000, 2000);
    ExpandShrinkContainer(Main, tile, false);
    Wait(20);
    Main.PictureViews[0].In = InContainer(tile);
    computer.Windows.Cursor = OnDesktop({Box(tile).Left + 500, Box(tile).Top + 900});
    MouseMove(Main, {SurfaceKind::Picture, 0}, {.At = {10, 10}, .Screen = computer.Windows.Cursor});
    EXPECT_FALSE(IsShrunk(Main, tile));
    Leave(tile);
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Hover, WhileItsMenuIsOpenALeavingClosesNothingAndAfterwardsTheNextMoveDoes) {
    const int tile = NewTile(4000, 2000);
    OpenByHover(tile);
    Main.Group.HoldExpanded = true;
    Leave(tile);
    EXPECT_FALSE(IsShrunk(Main, tile));
    Main.Group.HoldExpanded = false;
    PointAtBack({300, 8500});
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Hover, AQuestionThatLiesBesideItKeepsItOpen) {
    const int tile = NewTile(4000, 2000);
    OpenByHover(tile);
    {
        DialogPause pause(Main);
        Leave(tile);
        EXPECT_FALSE(IsShrunk(Main, tile));
    }
    PointAtBack({300, 8500});
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Hover, AMouseThatDriftsOffDoesNotCloseWhatIsTypedInto) {
    const int tile = NewTile(4000, 2000);
    OpenByHover(tile);
    ContainerNote_GotFocus(Main, tile);
    ContainerNote_Change(Main, tile, "dear");
    Leave(tile);
    EXPECT_FALSE(IsShrunk(Main, tile));
    Wait(2000);
    PointAtBack({300, 8500});
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Hover, KeptExpandedItStaysOpenWhenTheMouseMovesAway) {
    const int tile = NewTile(4000, 2000);
    OpenByHover(tile);
    mnuConKeepExpanded_Click(Main);
    Leave(tile);
    EXPECT_FALSE(IsShrunk(Main, tile));
    const int other = New({8000, 4000, 3000, 3000});
    PointAt(other, {1500, 1500});
    EXPECT_FALSE(IsShrunk(Main, tile));
    ContainerFrame_DblClick(Main, tile);
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(Hover, TheMouseOverAnotherContainerClosesWhatIsOpenForTheMoment) {
    const int tile = NewTile(4000, 2000), other = New({8000, 4000, 3000, 3000});
    ExpandShrinkContainer(Main, tile, false); // by key
    Wait(20);
    PointAt(other, {1500, 1500});
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_EQ(Main.Group.MouseContainer, other);
}

TEST_F(Hover, WhatAKeyOpenedStaysOpenWhileTheMouseMovesOverTheEmptyWorkspace) {
    const int tile = NewTile(4000, 2000);
    PointAt(tile, {350, 475});
    GoToContainer(Main, tile);
    MouseLeave(Main, OnContainer(tile)); // the mouse was put aside
    PointAtBack({300, 8500});
    EXPECT_FALSE(IsShrunk(Main, tile));
}

TEST_F(Hover, ATileAtTheLowerEdgeStaysOpenWhileTheMouseIsWhereItWasClicked) {
    const int tile = NewTile(4000, 8050); // opens upwards and leaves the lowest 100 twips free
    Click(tile, {350, 900});
    Wait(20);
    EXPECT_EQ(Box(tile).Bottom(), 8900);
    PointAtBack({4350, 8950});
    EXPECT_FALSE(IsShrunk(Main, tile));
    PointAtBack({3000, 8950});
    EXPECT_TRUE(IsShrunk(Main, tile));
}

// ---- the one that shrank back last

TEST_F(Hover, ATileThatShrankUnderTheMouseDoesNotOpenAgainBeforeTheMouseHasLeftIt) {
    const int tile = NewTile(500, 2000); // opens to the right, so its corner stays where it was
    OpenByHover(tile);
    Click(tile, zone); // on its mark
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_EQ(Main.Group.LastShrunkBack, tile);
    for (const Point at : {Point{120, 100}, {400, 600}, {100, 120}}) {
        PointAt(tile, at);
        Wait(1000);
        EXPECT_TRUE(IsShrunk(Main, tile)) << at.X;
    }
    Leave(tile);
    EXPECT_EQ(Main.Group.LastShrunkBack, -1);
    OpenByHover(tile);
}

TEST_F(Hover, ATileThatWasClosedFromElsewhereOpensAtTheFirstHover) {
    const int tile = NewTile(4000, 2000);
    OpenByHover(tile);
    Leave(tile);
    EXPECT_TRUE(IsShrunk(Main, tile));
    OpenByHover(tile);
    computer.Windows.Cursor = OnDesktop({200, 8500});
    picBack_MouseDown(Main, {.At = {200, 8500}, .Screen = computer.Windows.Cursor});
    EXPECT_TRUE(IsShrunk(Main, tile));
    OpenByHover(tile);
}

// ---- while an effect runs

struct HoverEffect : Hover {
    HoverEffect() { Main.Settings.Effect = true; }
    void EffectEnds() { Wait(600); }
};

TEST_F(HoverEffect, WhatTheEffectHidesIsStillUnderTheMouse) {
    const int below = New({3000, 2500, 3000, 3000}), tile = NewTile(4000, 2000);
    EffectEnds();
    PointAt(tile, {350, 700});
    ExpandShrinkContainer(Main, tile, true);
    EXPECT_FALSE(Main.ConView(tile).Container.Visible);
    MouseLeave(Main, OnContainer(tile)); // it was hidden under the mouse
    PointAt(below, {1350, 200});         // that is what the mouse now finds
    EffectEnds();
    EXPECT_FALSE(IsShrunk(Main, tile));
    EXPECT_TRUE(Main.ConView(tile).Container.Visible);
    EXPECT_EQ(Main.Group.MouseContainer, tile);
    Leave(tile);
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(HoverEffect, AMouseThatLeavesWhileItOpensClosesItAgain) {
    const int tile = NewTile(4000, 2000);
    PointAt(tile, {350, 475});
    ExpandShrinkContainer(Main, tile, true);
    Wait(100);
    PointAtBack({200, 8500});
    EXPECT_TRUE(IsShrunk(Main, tile));
    EffectEnds();
    EXPECT_TRUE(Main.ConView(tile).Container.Visible);
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
    EXPECT_EQ(BoxWords(tile), "4000,2000 700x950");
}

TEST_F(HoverEffect, AMouseThatLeavesInTheVeryFirstMomentClosesItAgain) {
    Main.Settings.Effect = false;
    const int tile = NewTile(4000, 2000);
    PointAt(tile, {350, 475});
    ExpandShrinkContainer(Main, tile, true);
    Leave(tile); // within the 20 ms in which a click does not close
    EXPECT_FALSE(IsShrunk(Main, tile));
    Wait(20);
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(HoverEffect, AMouseThatComesToRestWhileAnotherOneClosesStillOpensATile) {
    const int one = NewTile(2000, 2000), two = NewTile(8000, 2000);
    PointAt(one, zone);
    Wait(250);
    EffectEnds();
    computer.Windows.Cursor = OnDesktop({8100, 2100});
    MouseLeave(Main, OnContainer(one));
    PointAt(two, zone); // its last move
    EXPECT_EQ(Main.Group.ExpandingContainer, one);
    Wait(250);
    EXPECT_FALSE(IsShrunk(Main, two));
    EffectEnds();
    EXPECT_TRUE(IsShrunk(Main, one));
    EXPECT_TRUE(Main.ConView(one).Container.Visible);
    EXPECT_TRUE(Main.ConView(two).Container.Visible);
}

TEST_F(HoverEffect, AMouseThatComesBackToRestWhileTheTileStillClosesOpensItAgain) {
    const int tile = NewTile(4000, 2000);
    PointAt(tile, zone);
    Wait(250);
    EffectEnds();
    PointAtBack({200, 8500});
    EXPECT_EQ(Main.Group.ExpandingContainer, tile);
    PointAtBack({4100, 2100}); // the tile is not seen yet, and this is the last move
    EffectEnds();
    EXPECT_FALSE(IsShrunk(Main, tile));
    EXPECT_TRUE(Main.ConView(tile).Container.Visible);
}

// ---- dragging

struct DragHover : Hover {
    // What is carried moves over a container; the pointer is so many pixels right of a fixed place.
    void DragOver(int index, float pixels) {
        const Point screen{5000 + pixels * pixel, 3000};
        computer.Windows.Cursor = screen;
        DragOverContainer(Main, index, screen);
    }
};

TEST_F(DragHover, ATileUnderADragOpensAfterHalfASecondOfRest) {
    const int tile = NewTile(4000, 2000);
    DragOver(tile, 0);
    Wait(499);
    EXPECT_TRUE(IsShrunk(Main, tile));
    Wait(1);
    EXPECT_FALSE(IsShrunk(Main, tile));
    EXPECT_EQ(Main.Group.DragHoverContainer, -1);
    EXPECT_FALSE(computer.Clock.IsRunning({TimerName::TimerExpandUnfoldOnDrag}));
}

TEST_F(DragHover, ItIsSeenAtOnceSoThatADropFindsIt) {
    Main.Settings.Effect = true;
    const int tile = NewTile(4000, 2000);
    DragOver(tile, 0);
    Wait(500);
    EXPECT_TRUE(Main.ConView(tile).Container.Visible);
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
}

TEST_F(DragHover, AFoldedContainerUnfoldsUnderADragAndFoldsBackLater) {
    const int index = New({4000, 2000, 3000, 3000});
    FoldUnfoldContainer(Main, index, false);
    DragOver(index, 0);
    Wait(500);
    EXPECT_FALSE(IsFolded(Main, index));
    EXPECT_EQ(Main.Group.AutoFoldContainerIndex, index);
    picBack_MouseDown(Main, {.At = {200, 8500}});
    EXPECT_TRUE(IsFolded(Main, index));
}

TEST_F(DragHover, TenPixelsAreRestAndElevenBeginItAnew) {
    const int tile = NewTile(4000, 2000);
    DragOver(tile, 0);
    Wait(400);
    DragOver(tile, 10);
    Wait(100);
    EXPECT_FALSE(IsShrunk(Main, tile));
    Wait(20);
    const int other = NewTile(8000, 2000);
    DragOver(other, 0);
    Wait(400);
    DragOver(other, 11);
    Wait(499);
    EXPECT_TRUE(IsShrunk(Main, other));
    Wait(1); // and a pointer that came to rest later opens it too
    EXPECT_FALSE(IsShrunk(Main, other));
}

TEST_F(DragHover, ADragThatGoesOnOpensNothing) {
    const int tile = NewTile(4000, 2000), open = New({8000, 2000, 3000, 3000});
    DragOver(tile, 0);
    Wait(300);
    DragLeftContainer(Main);
    Wait(1000);
    EXPECT_TRUE(IsShrunk(Main, tile));
    DragOver(tile, 0);
    Wait(300);
    DragOver(open, 2); // one that has nothing to open
    Wait(1000);
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_EQ(Main.Group.DragHoverContainer, -1);
}

TEST_F(DragHover, WhatADragOpensClosesWhenTheMouseLeavesItAfterTheDrop) {
    const int tile = NewTile(4000, 2000);
    DragOver(tile, 0);
    Wait(600);
    PointAtBack({200, 8500});
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(DragHover, WhatDiesUnderADragIsForgotten) {
    const int tile = NewTile(4000, 2000);
    DragOver(tile, 0);
    DeleteContainer(Main, tile, false);
    Wait(1000);
    EXPECT_EQ(Main.Group.ExpandedContainer, -1);
    DragOver(tile, 0);
    EXPECT_EQ(Main.Group.DragHoverContainer, -1);
}

TEST_F(DragHover, ADragIntoAFrameClosesWhatIsOpenAndNothingOpensByHoverForHalfASecond) {
    const int open = NewTile(8000, 2000), tile = NewTile(4000, 2000);
    ExpandShrinkContainer(Main, open, false);
    Wait(20);
    Main.Group.HoldExpanded = true;
    computer.Windows.Cursor = OnDesktop({1000, 5000});
    DragEnteredFrame(Main);
    EXPECT_FALSE(Main.Group.HoldExpanded);
    EXPECT_TRUE(IsShrunk(Main, open));
    Wait(499);
    HoverExpand(Main, tile);
    EXPECT_TRUE(IsShrunk(Main, tile));
    Wait(1);
    EXPECT_FALSE(Main.Group.SuspendAutoExpand);
    EXPECT_FALSE(computer.Clock.IsRunning({TimerName::TimerSuspendAutoExpand}));
    HoverExpand(Main, tile);
    EXPECT_FALSE(IsShrunk(Main, tile));
}

TEST_F(DragHover, WhatTheDragIsOverStaysOpen) {
    const int tile = NewTile(4000, 2000);
    DragEnteredFrame(Main);
    DragOver(tile, 0);
    Wait(500);
    EXPECT_FALSE(IsShrunk(Main, tile));
    computer.Windows.Cursor = OnDesktop({Box(tile).Left + 1500, Box(tile).Top + 1500});
    DragEnteredFrame(Main); // into the frame that has just opened
    EXPECT_FALSE(IsShrunk(Main, tile));
}

} // namespace
} // namespace quill
