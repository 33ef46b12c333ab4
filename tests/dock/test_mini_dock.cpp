#include "dock/mini_dock.h"

#include "dock/dock_fixture.h"

namespace quill::test {
namespace {

constexpr TimerId hoverTimer{TimerName::TimerShowMiniDock}, flashTimer{TimerName::TimerFlash};

struct MiniDock : DockFixture {
    MiniDockState& It() { return Dock().MiniDock; }
    // Docked at the left, long enough ago that the timer of the docking rests.
    void StartResting(const std::vector<std::string>& more = {}) {
        StartDocked(Left, more);
        desk.Wait(1000);
        ASSERT_FALSE(clock.IsRunning(hoverTimer));
    }
};

// ---- where it lies

struct LayRow {
    int Edge;
    const char *Size, *Side;
    Rect Bar;
};

// The workspace is 9000 by 6000, its corner at 4500 or 9000 along the edge. Size 0 is its whole side.
const LayRow lays[] = {
    {Left, "0", "2", {0, 4500, 40, 6000}},
    {Left, "0", "1", {0, 4500, 40, 6000}},
    {Left, "0", "0", {0, 4500, 40, 6000}},
    {Left, "2500", "2", {0, 6250, 40, 2500}},
    {Left, "2500", "1", {0, 4500, 40, 2500}},
    {Left, "2500", "0", {0, 8000, 40, 2500}},
    {Left, "1500", "2", {0, 6750, 40, 1500}},
    {Right, "2500", "2", {28770, 6250, 40, 2500}},
    {Right, "2500", "1", {28770, 4500, 40, 2500}},
    {Right, "1500", "0", {28770, 9000, 40, 1500}},
    {Top, "0", "2", {9000, -10, 9000, 40}},
    {Top, "2500", "2", {12250, -10, 2500, 40}},
    {Top, "2500", "1", {15500, -10, 2500, 40}},
    {Top, "2500", "0", {9000, -10, 2500, 40}},
    {Bottom, "0", "1", {9000, 16170, 9000, 40}},
    {Bottom, "1500", "1", {16500, 16170, 1500, 40}},
    {Bottom, "1500", "0", {9000, 16170, 1500, 40}},
    {Bottom, "2500", "7", {12250, 16170, 2500, 40}}, // any other side is the middle
};

TEST_F(MiniDock, SizeAndSideSayWhereTheBarLiesOneIsRightOrTopAndZeroLeftOrBottom) {
    for (const auto& row : lays) {
        StartDocked(row.Edge, {"[Mini Dock Size]", row.Size, "[Mini Dock Side]", row.Side});
        EXPECT_EQ(Bar(), row.Bar) << row.Edge << " size " << row.Size << " side " << row.Side;
        desk.StopWorkspace();
    }
}

// A mouse on the rest of it would call a workspace that it is not over.
TEST_F(MiniDock, ItIsNeverLongerThanTheWorkspaceWhichWouldComeAndGoForEver) {
    for (const char* side : {"0", "1", "2"}) {
        Start({0, 4500, 9000, 1600}, {"[Mini Dock Side]", side});
        Leave();
        ASSERT_EQ(State(), "docked");
        EXPECT_EQ(Bar(), (Rect{0, 4500, 40, 1600})) << side;
        desk.PointAtBar({0, 790});
        desk.Wait(10'000);
        EXPECT_EQ(State(), "out") << side;
        desk.StopWorkspace();
    }
}

TEST_F(MiniDock, ASizeBelowNothingIsTheWholeSide) {
    StartDocked(Left, {"[Mini Dock Size]", "-2500"});
    EXPECT_EQ(Bar(), (Rect{0, 4500, 40, 6000}));
}

TEST_F(MiniDock, ItWaitsOffTheScreenUntilItIsLaid) {
    StartAt(Left);
    LoadMiniDock(Main());
    EXPECT_EQ(It().Place.Top, -1000);
    EXPECT_FALSE(desk.BarShows());
}

TEST_F(MiniDock, ItIsUnloadedWithItsTimersWhenTheWorkspaceIsOut) {
    StartAt(Left);
    DockMe(Main(), Left, false);
    ASSERT_TRUE(clock.IsRunning(hoverTimer) && clock.IsRunning(flashTimer));
    desk.PressHotkey();
    EXPECT_FALSE(desk.BarShows());
    EXPECT_FALSE(It().Loaded);
    EXPECT_FALSE(clock.IsRunning(hoverTimer));
    EXPECT_FALSE(clock.IsRunning(flashTimer));
}

// ---- a mouse on it

TEST_F(MiniDock, AStillMouseOpensTheWorkspaceWithinAQuarterOfASecond) {
    StartResting();
    desk.PointAtBar();
    desk.Wait(240);
    EXPECT_EQ(State(), "docked");
    desk.Wait(20);
    EXPECT_EQ(State(), "out");
}

TEST_F(MiniDock, AMovingMouseOpensNothingUntilItRests) {
    StartResting();
    for (int step = 0; step < 30; ++step) {
        desk.PointAtBar({0, -1000 + static_cast<float>(step) * 60});
        desk.Wait(100);
        ASSERT_EQ(State(), "docked") << step;
    }
    desk.Wait(500);
    EXPECT_EQ(State(), "out");
}

TEST_F(MiniDock, AHandThatTremblesByThreePixelsRests) {
    StartResting();
    desk.PointAtBar();
    desk.Wait(100);
    desk.PointAtBar({0, 45});
    desk.Wait(160);
    EXPECT_EQ(State(), "out");
}

TEST_F(MiniDock, FourPixelsAreAMove) {
    StartResting();
    desk.PointAtBar();
    desk.Wait(100);
    desk.PointAtBar({0, 60});
    desk.Wait(160);
    EXPECT_EQ(State(), "docked");
    desk.Wait(250);
    EXPECT_EQ(State(), "out") << "it has rested since";
}

TEST_F(MiniDock, AMouseThatOnlyPassesByOpensNothingAndTheTimerRests) {
    StartResting();
    desk.PointAtBar();
    desk.Wait(100);
    desk.MouseAway();
    desk.Wait(1000);
    EXPECT_EQ(State(), "docked");
    EXPECT_FALSE(clock.IsRunning(hoverTimer));
    desk.PointAtBar();
    desk.Wait(260);
    EXPECT_EQ(State(), "out") << "and the next rest counts again";
}

TEST_F(MiniDock, ThreePixelsBesideTheBarStillCount) {
    StartResting();
    desk.PointAtBar();
    windows.Cursor = {40 + 40, 7500}; // nobody told that it left
    desk.Wait(300);
    EXPECT_EQ(State(), "docked") << "it has moved";
    clock.Advance(250);
    EXPECT_EQ(State(), "docked") << "and here it is told to have left";
}

TEST_F(MiniDock, AfterALeaveEventThePointerIsNotOnTheBarWhateverItsPlaceSays) {
    StartResting();
    desk.PointAtBar();
    Form_MouseLeave(Main(), MiniDockWindow);
    desk.Wait(1000);
    EXPECT_EQ(State(), "docked");
}

TEST_F(MiniDock, AMoveOverTheBarTellsThatThePointerIsBackAlsoWhereNoEnterIsTold) {
    StartResting();
    desk.PointAtBar();
    Form_MouseLeave(Main(), MiniDockWindow);
    desk.Wait(300);
    MouseMove(Main(), {SurfaceKind::MiniDock, -1}, MouseEvent{});
    desk.Wait(260);
    EXPECT_EQ(State(), "out");
}

TEST_F(MiniDock, AMouseThatIsThereWhenTheBarComesOpensWithinHalfASecond) {
    StartAt(Left);
    desk.MoveMouse({5, 7500});
    ASSERT_TRUE(CollapseByKey(Main()));
    desk.Wait(140);
    ASSERT_EQ(State(), "docked");
    desk.Wait(240);
    EXPECT_EQ(State(), "docked");
    desk.Wait(280);
    EXPECT_EQ(State(), "out");
}

TEST_F(MiniDock, AMoveThatComesAfterItHasOpenedIsForNobody) {
    StartResting();
    desk.PressHotkey();
    ASSERT_EQ(State(), "out");
    const MouseEvent late;
    MouseMove(Main(), {SurfaceKind::MiniDock, -1}, late);
    EXPECT_EQ(State(), "out");
    EXPECT_FALSE(clock.IsRunning(hoverTimer));
}

TEST_F(MiniDock, UndockImmediatelyOpensAtTheFirstTouch) {
    StartResting({"[Undock Immediately]", "1"});
    desk.PointAtBar();
    EXPECT_EQ(State(), "out");
}

TEST_F(MiniDock, WithUndockOnClickAHoverDoesNothingAndDockingStartsNoTimer) {
    StartAt(Left, {"[Undock On Click]", "1"});
    desk.LeaveWorkspace();
    DockMe(Main(), Left, false);
    EXPECT_FALSE(clock.IsRunning(hoverTimer));
    desk.PointAtBar();
    EXPECT_FALSE(clock.IsRunning(hoverTimer));
    desk.Wait(5000);
    EXPECT_EQ(State(), "docked");
}

TEST_F(MiniDock, WithUndockOnClickALeftPressOpensAndARightOneDoesNot) {
    StartResting({"[Undock On Click]", "1"});
    desk.PressBar(MouseButton::Right);
    desk.Wait(1000);
    EXPECT_EQ(State(), "docked");
    desk.PressBar();
    desk.Wait(260);
    EXPECT_EQ(State(), "out");
}

TEST_F(MiniDock, WithBothTheImmediateOneComesFirst) {
    StartResting({"[Undock Immediately]", "1", "[Undock On Click]", "1"});
    desk.PointAtBar();
    EXPECT_EQ(State(), "out");
}

TEST_F(MiniDock, APressOpensAlsoWhenTheMouseMovesOn) {
    StartResting({"[Undock On Click]", "1"});
    desk.PressBar();
    desk.Wait(100);
    desk.PointAtBar({0, 900});
    desk.Wait(160);
    EXPECT_EQ(State(), "out");
}

TEST_F(MiniDock, APressWhoseMouseIsGoneWithinTheQuarterOfASecondOpensNothing) {
    StartResting({"[Undock On Click]", "1"});
    desk.PressBar();
    desk.MouseAway();
    desk.Wait(1000);
    EXPECT_EQ(State(), "docked");
}

TEST_F(MiniDock, WhatIsDraggedOverTheBarBringsTheWorkspaceOutAlsoWithUndockOnClick) {
    for (const char* onClick : {"0", "1"}) {
        StartResting({"[Undock On Click]", onClick});
        desk.DragOverBar();
        desk.Wait(260);
        EXPECT_EQ(State(), "out") << onClick;
        desk.StopWorkspace();
    }
}

// Who drags has the pointer for itself: the window system tells of no crossing.
TEST_F(MiniDock, WhatIsBeingDraggedFindsItOutUntilThePointerHasGone) {
    StartResting();
    desk.DragOverBar();
    clock.Advance(260);
    EXPECT_EQ(State(), "out");
    clock.Advance(5000);
    EXPECT_EQ(State(), "out") << "the pointer is over it, though nobody has said so";
    windows.Cursor = {14400, 8100};
    clock.Advance(5000);
    EXPECT_EQ(State(), "docked");
}

TEST_F(MiniDock, ADragThatPassesByOpensNothing) {
    StartResting();
    desk.DragOverBar();
    windows.Cursor = {14400, 8100};
    desk.Wait(1000);
    EXPECT_EQ(State(), "docked");
}

// ---- over a window that fills the screen

TEST_F(MiniDock, AHoverOverAFilmOpensNothingHoweverLongItRests) {
    for (const char* immediately : {"0", "1"}) {
        StartResting({"[Undock Immediately]", immediately});
        windows.FullScreen = Rect{0, 0, 28800, 16200};
        desk.PointAtBar();
        desk.Wait(5000);
        EXPECT_EQ(State(), "docked") << immediately;
        EXPECT_FALSE(clock.IsRunning(hoverTimer));
        windows.FullScreen.reset();
        desk.PointAtBar({0, 100});
        desk.Wait(500);
        EXPECT_EQ(State(), "out") << "the film is over";
        desk.StopWorkspace();
    }
}

TEST_F(MiniDock, AFilmThatBeginsWhileTheMouseRestsHoldsItBackToo) {
    StartResting();
    desk.PointAtBar();
    desk.Wait(100);
    windows.FullScreen = Rect{0, 0, 28800, 16200};
    desk.Wait(2000);
    EXPECT_EQ(State(), "docked");
}

TEST_F(MiniDock, AClickOpensItOverAFilmToo) {
    StartResting();
    windows.FullScreen = Rect{0, 0, 28800, 16200};
    desk.PressBar();
    desk.Wait(260);
    EXPECT_EQ(State(), "out");
}

TEST_F(MiniDock, TheHotkeyBringsItOutOverAFilmToo) {
    StartResting();
    windows.FullScreen = Rect{0, 0, 28800, 16200};
    desk.PressHotkey();
    EXPECT_EQ(State(), "out");
    EXPECT_TRUE(HasKeyboard());
}

TEST_F(MiniDock, AFilmOnAnotherMonitorHoldsNothingBack) {
    windows.Screens.push_back(Screen({28800, 0, 28800, 16200}));
    StartResting();
    windows.FullScreen = Rect{28800, 0, 28800, 16200};
    desk.PointAtBar();
    desk.Wait(260);
    EXPECT_EQ(State(), "out");
}

// ---- its looks

TEST_F(MiniDock, ItFlashesForThreeTicksAndRests) {
    StartAt(Left, {"[DockingColor]", "1122867"}); // 0x112233
    DockMe(Main(), Left, false);
    ASSERT_EQ(clock.IntervalOf(flashTimer), 80);
    std::vector<Color> seen;
    for (int tick = 0; tick < 4; ++tick) clock.Advance(80), seen.push_back(It().BackColor);
    EXPECT_EQ(seen, (std::vector<Color>{0x112233 ^ 0x808080, 0x112233, 0x112233 ^ 0x808080, 0x112233}));
    EXPECT_FALSE(clock.IsRunning(flashTimer));
}

TEST_F(MiniDock, EachFlashIsMarkedForTheScreen) {
    StartAt(Left);
    DockMe(Main(), Left, false);
    desk.Turn();
    clock.Advance(80);
    EXPECT_TRUE(Main().Marks.Pending().MiniDock);
}

TEST_F(MiniDock, EveryDockingFlashesAnew) {
    StartDocked(Left);
    desk.PressHotkey();
    DockMe(Main(), Left, false);
    EXPECT_TRUE(clock.IsRunning(flashTimer));
    clock.Advance(80);
    EXPECT_EQ(It().BackColor, It().BaseColor ^ 0x808080);
}

TEST_F(MiniDock, NoFlashWhereItIsSwitchedOffOrTheBarIsNotToBeSeen) {
    for (const char* key : {"[Mini Dock Flash]", "[VisibleBorderCollapsed]"}) {
        StartAt(Left, {key, "0"});
        DockMe(Main(), Left, false);
        EXPECT_FALSE(clock.IsRunning(flashTimer)) << key;
        desk.StopWorkspace();
    }
}

TEST_F(MiniDock, NoFlashForThoseWhoWantLessMotion) {
    desk.Computer.Session.LessMotion = true;
    StartAt(Left);
    DockMe(Main(), Left, false);
    EXPECT_FALSE(clock.IsRunning(flashTimer));
}

TEST_F(MiniDock, ABarThatIsNotToBeSeenIsThereAllTheSame) {
    StartDocked(Left, {"[VisibleBorderCollapsed]", "0"});
    EXPECT_TRUE(desk.BarShows());
    EXPECT_EQ(windows.Of(MiniDockWindow).Opacity, 1);
    desk.PointAtBar();
    desk.Wait(600);
    EXPECT_EQ(State(), "out");
    desk.StopWorkspace();
    StartDocked(Left);
    EXPECT_EQ(windows.Of(MiniDockWindow).Opacity, 255);
}

TEST_F(MiniDock, ItsColourIsItsOwnOrTheDesktopsAccent) {
    desk.Computer.Session.Accent = 0xABCDEF;
    StartDocked(Left, {"[DockingColor]", "255"});
    EXPECT_EQ(It().BaseColor, 255);
    desk.StopWorkspace();
    StartDocked(Left, {"[DockingColor]", "255", "[Accent Color]", "1"});
    EXPECT_EQ(It().BaseColor, 0xABCDEF);
}

TEST_F(MiniDock, DockedAndIdleOnlyTheHeartbeatWakes) {
    StartDocked(Left);
    desk.MouseAway();
    desk.Wait(2000);
    EXPECT_EQ(clock.FramesWanted(), 0);
    EXPECT_EQ(clock.RunningTimers(), 1U);
    EXPECT_TRUE(clock.IsRunning({TimerName::TimerHide}));
}

} // namespace
} // namespace quill::test
