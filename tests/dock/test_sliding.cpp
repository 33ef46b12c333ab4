#include "dock/sliding.h"

#include "core/start.h"
#include "dock/dock_fixture.h"
#include "persistence/save.h"

#include <algorithm>

namespace quill::test {
namespace {

struct Sliding : DockFixture {
    std::string Frame() {
        desk.Wait(20);
        return fake::Words(Window()) + " " + std::to_string(Opacity());
    }
};

// ---- when it goes

TEST_F(Sliding, AWorkspaceAtAnEdgeDocksWithinASecondOfBeingLeft) {
    for (const int at : {Top, Left, Right, Bottom}) {
        StartAt(at);
        EXPECT_EQ(State(), "out") << at;
        desk.LeaveWorkspace();
        desk.Wait(1000);
        EXPECT_EQ(State(), "sliding") << at;
        EXPECT_EQ(Dock().DockPosition, at);
        desk.Wait(140);
        EXPECT_EQ(State(), "docked") << at;
        EXPECT_EQ(Dock().LastDockPosition, at);
        desk.StopWorkspace();
    }
}

TEST_F(Sliding, AWorkspaceDraggedAwayFromAllEdgesNeverDocksHoweverLongTheMouseStaysAway) {
    StartAt(Left);
    desk.CarryWindow({6000, 3000, 9000, 6000});
    desk.LeaveWorkspace();
    clock.Advance(3'600'000);
    EXPECT_EQ(State(), "floating");
    EXPECT_EQ(Window(), (Rect{6000, 3000, 9000, 6000}));
}

TEST_F(Sliding, AWorkspaceDraggedAgainstAnEdgeDocksThere) {
    StartAt(0);
    Leave();
    EXPECT_EQ(State(), "floating");
    desk.CarryWindow({ScreenWidth - 9000, 3000, 9000, 6000});
    Leave();
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Dock().DockPosition, Right);
}

TEST_F(Sliding, AWorkspaceWithTheKeyboardStaysOutWhereverTheMouseIs) {
    StartAt(Left);
    desk.MouseAway();
    desk.Wait(10'000);
    EXPECT_EQ(State(), "out");
    desk.OtherProgram();
    desk.Wait(2000);
    EXPECT_EQ(State(), "docked");
}

TEST_F(Sliding, AWorkspaceUnderTheMouseStaysOutWhoeverHasTheKeyboard) {
    StartAt(Left);
    desk.MoveMouse({3000, 6000});
    desk.OtherProgram();
    desk.Wait(10'000);
    EXPECT_EQ(State(), "out");
}

TEST_F(Sliding, TheMouseMayBeThreePixelsBesideTheWorkspace) {
    StartAt(Left);
    desk.OtherProgram();
    windows.Cursor = {9000 + 44, 6000}; // nobody told that it left
    EXPECT_TRUE(CursorOverWindow(Main(), MainWindow));
    windows.Cursor = {9000 + 46, 6000};
    EXPECT_FALSE(CursorOverWindow(Main(), MainWindow));
    windows.Cursor = {3000, 4500 - 45};
    EXPECT_TRUE(CursorOverWindow(Main(), MainWindow));
    windows.Cursor = {3000, 4500 - 46};
    EXPECT_FALSE(CursorOverWindow(Main(), MainWindow));
    windows.Cursor = {3000, 10500 + 44};
    EXPECT_TRUE(CursorOverWindow(Main(), MainWindow));
}

TEST_F(Sliding, OverAnyWindowOfOursIsWithoutAMargin) {
    StartAt(Left);
    windows.Cursor = {8999, 6000};
    EXPECT_TRUE(CursorOverAnyWindow(Main()));
    windows.Cursor = {9001, 6000};
    EXPECT_FALSE(CursorOverAnyWindow(Main()));
    Leave();
    windows.Cursor = {5, 7500};
    EXPECT_TRUE(CursorOverAnyWindow(Main())) << "the bar";
    windows.Cursor = {50, 7500};
    EXPECT_FALSE(CursorOverAnyWindow(Main()));
}

// Some sessions tell nothing of a pointer over another program's window: the last known place stays.
TEST_F(Sliding, AfterALeaveThePointerIsAwayUntilItComesBackWhateverItsPlaceSays) {
    StartAt(Left);
    windows.Cursor = {3000, 6000};
    windows.Foreground.reset();
    Form_MouseLeave(Main(), MainWindow);
    Tick();
    EXPECT_EQ(State(), "sliding");
    desk.Wait(1000);
    desk.PressHotkey();
    EXPECT_EQ(State(), "out");
    Form_MouseEnter(Main(), MainWindow);
    windows.Foreground.reset();
    Tick();
    EXPECT_EQ(State(), "out");
}

TEST_F(Sliding, AfterTheHotkeyAStalePlaceOfThePointerDoesNotHoldTheWorkspaceOut) {
    StartAt(Left);
    windows.Cursor = {3000, 6000};
    ASSERT_TRUE(CollapseByKey(Main())); // it goes from under the pointer, and no leave is told
    clock.Advance(1000);
    Hotkey_Pressed(Main());
    EXPECT_FALSE(CursorOverWindow(Main(), MainWindow));
    windows.Foreground.reset();
    Tick();
    EXPECT_EQ(State(), "sliding");
}

TEST_F(Sliding, TheToolStripCountsAsTheWorkspaceForThePointer) {
    StartAt(Left);
    Dock().MiniToolbar.Loaded = true;
    Dock().MiniToolbar.Place = {10000, 6000, 3000, 400};
    windows.Foreground.reset();
    windows.Cursor = {11000, 6100};
    Tick();
    EXPECT_EQ(State(), "out");
    windows.Cursor = {11000, 9000};
    Tick();
    EXPECT_EQ(State(), "sliding");
}

TEST_F(Sliding, NothingDocksWhileADialogIsOpenAndTheCountForUpdatesGoesOn) {
    StartAt(Left, {"[Animate]", "0"});
    desk.LeaveWorkspace();
    {
        const DialogPause outer(Main());
        {
            const DialogPause inner(Main());
            desk.Wait(3000);
        }
        const auto counted = Dock().UpdateCheckSeconds;
        desk.Wait(3000);
        EXPECT_EQ(State(), "out") << "the outer one is still open";
        EXPECT_EQ(Dock().UpdateCheckSeconds, counted + 3);
    }
    desk.Wait(2000);
    EXPECT_EQ(State(), "docked");
}

TEST_F(Sliding, NothingDocksWhileAnEffectRuns) {
    StartAt(Left);
    desk.LeaveWorkspace();
    Main().Looks.frmExplode.Loaded = true;
    desk.Wait(3000);
    EXPECT_EQ(State(), "out");
    Main().Looks.frmExplode.Loaded = false;
    desk.Wait(2000);
    EXPECT_EQ(State(), "docked");
}

TEST_F(Sliding, DuringADragNothingDocksAndTheDockPositionKeepsItsFormerValue) {
    StartAt(Left);
    Dock().WorkspaceDragging = true;
    Leave();
    EXPECT_EQ(State(), "out");
    DockMe(Main(), Right, false);
    EXPECT_EQ(Dock().DockPosition, 0);
    EXPECT_EQ(Dock().LastDockPosition, 0);
    Dock().WorkspaceDragging = false;
    DockMe(Main(), Left, false);
    Dock().WorkspaceDragging = true;
    DockMe(Main(), Right, false);
    EXPECT_EQ(Dock().DockPosition, Left);
    EXPECT_EQ(Dock().LastDockPosition, Left);
}

TEST_F(Sliding, AMaximisedWorkspaceNeverDocks) {
    StartAt(Left);
    mnuMaximize_Click(Main());
    Leave();
    EXPECT_EQ(State(), "maximised");
    EXPECT_EQ(Window(), (Rect{0, 0, 28800, 15750}));
    DockMe(Main(), Left, true);
    DockNow(Main(), false);
    EXPECT_EQ(Dock().DockPosition, 0);
    EXPECT_EQ(Dock().LastDockPosition, 0);
    mnuMaximize_Click(Main());
    EXPECT_EQ(Window(), PlaceAt(Left));
    desk.Wait(2000);
    EXPECT_EQ(State(), "docked");
}

TEST_F(Sliding, OneThatTheWindowManagerHasMaximisedDoesNotDockEither) {
    StartAt(Left);
    Form_StateChanged(Main(), WindowState::Maximized);
    Leave();
    EXPECT_EQ(State(), "out");
}

TEST_F(Sliding, AMinimisedWorkspaceDoesNotDock) {
    StartAt(Left, {"[ShowInTaskbar]", "1"});
    desk.Minimize();
    Leave();
    EXPECT_EQ(State(), "minimised");
    EXPECT_EQ(Dock().DockPosition, 0);
}

TEST_F(Sliding, AHiddenWorkspaceDoesNotDockOnATickAndNoBarComes) {
    StartAt(Left);
    mnuHideAlterDesk_Click(Main());
    Leave();
    EXPECT_EQ(State(), "hidden");
    EXPECT_EQ(Dock().DockPosition, 0);
}

TEST_F(Sliding, AWordThatIsNoEdgeNeitherDocksNorForgetsTheLastEdge) {
    StartDocked(Left);
    desk.PressHotkey();
    for (const int at : {0, 5, -1}) {
        DockMe(Main(), at, false);
        EXPECT_EQ(State(), "out");
        EXPECT_EQ(Dock().LastDockPosition, Left);
    }
}

// ---- the slide, frame by frame

struct SlideRow {
    int Edge;
    Rect Small;               // a window that is over its edge before it has faded
    std::vector<Rect> Frames; // of it
    Point Step;               // of any
};

const SlideRow slides[] = {
    {Top,
     {9000, 0, 1600, 1600},
     {{9000, -500, 1600, 1600}, {9000, -1000, 1600, 1600}, {9000, -1500, 1600, 1600}},
     {0, -500}},
    {Left,
     {0, 4500, 1600, 1600},
     {{-500, 4500, 1600, 1600}, {-1000, 4500, 1600, 1600}, {-1500, 4500, 1600, 1600}},
     {-500, 0}},
    {Right,
     {27100, 4500, 1700, 1600},
     {{27600, 4500, 1700, 1600}, {28100, 4500, 1700, 1600}, {28600, 4500, 1700, 1600}},
     {500, 0}},
    {Bottom,
     {9000, 14600, 1600, 1600},
     {{9000, 15100, 1600, 1600}, {9000, 15600, 1600, 1600}, {9000, 16100, 1600, 1600}},
     {0, 500}},
};

TEST_F(Sliding, AnOpaqueWindowVanishesInSevenFramesHoweverFarItHasToTravel) {
    for (const auto& row : slides) {
        StartAt(row.Edge);
        desk.LeaveWorkspace();
        const Rect from = Window();
        DockMe(Main(), row.Edge, true);
        for (int frame = 1; frame <= 6; ++frame) {
            const Rect there{from.Left + row.Step.X * static_cast<float>(frame),
                             from.Top + row.Step.Y * static_cast<float>(frame), from.Width, from.Height};
            EXPECT_EQ(Frame(), fake::Words(there) + " " + std::to_string(255 - 40 * frame)) << row.Edge;
            EXPECT_EQ(State(), "sliding");
        }
        windows.Log.clear();
        desk.Wait(20);
        EXPECT_EQ(State(), "docked") << row.Edge;
        const Rect last{from.Left + row.Step.X * 7, from.Top + row.Step.Y * 7, from.Width, from.Height};
        ASSERT_FALSE(windows.Log.empty());
        EXPECT_EQ(windows.Log.front(), "place frmMain " + fake::Words(last)) << "no alpha below 1 is set";
        EXPECT_EQ(Opacity(), 255) << "solid again behind the bar";
        EXPECT_EQ(clock.FramesWanted(), 0) << "the frame clock rests";
        desk.StopWorkspace();
    }
}

TEST_F(Sliding, AWindowThatIsOverItsEdgeStopsSlidingThere) {
    for (const auto& row : slides) {
        Start(row.Small);
        desk.LeaveWorkspace();
        ASSERT_EQ(EdgeOfWindow(Main(), Window()), row.Edge);
        DockMe(Main(), row.Edge, true);
        for (std::size_t frame = 0; frame + 1 < row.Frames.size(); ++frame) {
            desk.Wait(20);
            EXPECT_EQ(Window(), row.Frames[frame]) << row.Edge;
            EXPECT_EQ(State(), "sliding") << row.Edge;
        }
        windows.Log.clear();
        desk.Wait(20);
        EXPECT_TRUE(Logged("place frmMain " + fake::Words(row.Frames.back()))) << row.Edge;
        EXPECT_EQ(State(), "docked") << row.Edge;
        desk.StopWorkspace();
    }
}

TEST_F(Sliding, ATwipBeforeTheStopItGoesOn) {
    for (const auto& [edge, place] : {std::pair{Top, Rect{9000, 1, 1600, 1600}},
                                      {Left, {1, 4500, 1600, 1600}},
                                      {Right, {27099, 4500, 1600, 1600}},
                                      {Bottom, {9000, 14599, 1600, 1600}}}) {
        Start(place);
        desk.LeaveWorkspace();
        DockMe(Main(), edge, true);
        desk.Wait(60);
        EXPECT_EQ(State(), "sliding") << edge;
        desk.Wait(20);
        EXPECT_EQ(State(), "docked") << edge;
        desk.StopWorkspace();
    }
}

TEST_F(Sliding, ATranslucentWindowFadesFromItsOwnOpacityAndHasItBackAfterwards) {
    StartAt(Left, {"[Translucent]", "1", "[Opacity]", "100"});
    desk.LeaveWorkspace();
    DockMe(Main(), Left, true);
    desk.Wait(20);
    EXPECT_EQ(Opacity(), 60);
    desk.Wait(20);
    EXPECT_EQ(Opacity(), 20);
    desk.Wait(20);
    EXPECT_EQ(State(), "docked") << "three frames";
    EXPECT_EQ(Opacity(), 100);
}

TEST_F(Sliding, WithAnOpacityOfTenTheFirstStepMakesNoAlphaCallAndEndsTheSlide) {
    StartAt(Left, {"[Translucent]", "1", "[Opacity]", "10"});
    desk.LeaveWorkspace();
    DockMe(Main(), Left, true);
    windows.Log.clear();
    desk.Wait(20);
    EXPECT_EQ(State(), "docked");
    ASSERT_FALSE(windows.Log.empty());
    EXPECT_EQ(windows.Log.front(), "place frmMain -500,4500 9000x6000") << "it has made its step";
    for (const auto& line : windows.Log)
        EXPECT_TRUE(!line.starts_with("opacity frmMain ") || line == "opacity frmMain 10") << line;
}

TEST_F(Sliding, FramesThatComeLateAreMadeUpFor) {
    StartAt(Left);
    desk.LeaveWorkspace();
    DockMe(Main(), Left, true);
    clock.OnFrame = nullptr; // the interface is held up
    clock.Advance(100);
    fake::Connect(desk.Computer, desk.Main.get());
    desk.Wait(40);
    EXPECT_EQ(State(), "docked") << "it lasts no longer than it should";
}

TEST_F(Sliding, WithAnimationSwitchedOffItIsPlacedAtOnce) {
    StartAt(Left, {"[Animate]", "0"});
    desk.LeaveWorkspace();
    DockMe(Main(), Left, true);
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(clock.FramesWanted(), 0);
}

TEST_F(Sliding, ForThoseWhoWantLessMotionItIsPlacedAtOnce) {
    desk.Computer.Session.LessMotion = true;
    StartAt(Left);
    desk.LeaveWorkspace();
    DockMe(Main(), Left, true);
    EXPECT_EQ(State(), "docked");
}

TEST_F(Sliding, WhatIsNotAskedToAnimateIsPlacedAtOnce) {
    StartAt(Left);
    DockMe(Main(), Left, false);
    EXPECT_EQ(State(), "docked");
}

// ---- parked, and out again

struct PlaceRow {
    int Edge;
    Rect Parked, Bar, Out;
    Point Nudge; // pixels
};

// 9000 by 6000 on the usual screen. The rims of 40, 50 and 30 twips differ on purpose.
const PlaceRow places[] = {
    {Top, {9000, -5960, 9000, 6000}, {12250, -10, 2500, 40}, {9000, -100, 9000, 6000}, {0, 3}},
    {Left, {-8950, 4500, 9000, 6000}, {0, 6250, 40, 2500}, {-200, 4500, 9000, 6000}, {4, 0}},
    {Right, {28770, 4500, 9000, 6000}, {28770, 6250, 40, 2500}, {20000, 4500, 9000, 6000}, {-4, 0}},
    {Bottom, {9000, 16170, 9000, 6000}, {12250, 16170, 2500, 40}, {9000, 10400, 9000, 6000}, {0, -6}},
};

TEST_F(Sliding, ParkedPlacesAndTheBarsRimsDifferFromEdgeToEdge) {
    for (const auto& row : places) {
        StartDocked(row.Edge);
        EXPECT_EQ(Window(), row.Parked) << row.Edge;
        EXPECT_EQ(Bar(), row.Bar) << row.Edge;
        EXPECT_EQ(Dock().DockedLeft, static_cast<int>(row.Parked.Left));
        EXPECT_EQ(Dock().DockedTop, static_cast<int>(row.Parked.Top));
        desk.StopWorkspace();
    }
}

TEST_F(Sliding, DockedOnlyTheBarIsOnTheScreenAndItIsOnTop) {
    StartDocked(Left);
    EXPECT_FALSE(desk.WorkspaceShows());
    EXPECT_FALSE(Main().View.Visible);
    EXPECT_TRUE(windows.Of(MiniDockWindow).OnTop);
}

TEST_F(Sliding, DockingForgetsThatTheStackingOrderWasSetWhileFloating) {
    StartAt(0);
    Leave();
    EXPECT_TRUE(Dock().ZOrderAsserted);
    DockMe(Main(), Left, false);
    EXPECT_FALSE(Dock().ZOrderAsserted);
}

TEST_F(Sliding, ComingOutItStandsAtItsEdgeAndThePointerIsNudgedOffIt) {
    for (const auto& row : places) {
        StartDocked(row.Edge);
        windows.Cursor = {12000, 7500};
        bool moved = false;
        Undock(Main(), true, moved);
        EXPECT_TRUE(moved);
        EXPECT_EQ(Window(), row.Out) << row.Edge;
        EXPECT_EQ(windows.Cursor, (Point{12000 + row.Nudge.X * 15, 7500 + row.Nudge.Y * 15})) << row.Edge;
        EXPECT_EQ(State(), "out") << row.Edge;
        EXPECT_EQ(EdgeOfWindow(Main(), Window()), row.Edge) << "and docks there again";
        EXPECT_FALSE(clock.IsRunning({TimerName::TimerShowMiniDock}));
        desk.StopWorkspace();
    }
}

TEST_F(Sliding, ItShowsBeforeTheBarGoesSoThatNothingFlickersBetween) {
    StartDocked(Left);
    windows.Log.clear();
    desk.PressHotkey();
    const auto at = [&](const char* line) {
        return std::ranges::find(windows.Log, line) - windows.Log.begin();
    };
    EXPECT_LT(at("place frmMain -200,4500 9000x6000"), at("show frmMain"));
    EXPECT_LT(at("show frmMain"), at("hide frmMiniDock"));
}

TEST_F(Sliding, UndockingWhatIsNotDockedMovesNothingAndSaysSo) {
    StartAt(Left);
    windows.Log.clear();
    bool moved = true;
    Undock(Main(), false, moved);
    EXPECT_FALSE(moved);
    EXPECT_TRUE(windows.Log.empty()) << windows.Log.front();
    EXPECT_EQ(Window(), PlaceAt(Left));
}

TEST_F(Sliding, OutOnItsOwnTheTickDoesNotTakeItAwayFromUnderTheMouse) {
    for (const auto& row : places) {
        StartDocked(row.Edge);
        desk.PointAtBar();
        desk.Wait(600);
        EXPECT_EQ(State(), "out") << row.Edge;
        desk.Wait(10'000);
        EXPECT_EQ(State(), "out") << row.Edge << ": the mouse is over it";
        Leave();
        EXPECT_EQ(State(), "docked") << row.Edge;
        desk.StopWorkspace();
    }
}

TEST_F(Sliding, WithoutGrabFocusComingOutByTheMouseTakesNoKeyboard) {
    StartDocked(Left);
    desk.PointAtBar();
    desk.Wait(600);
    ASSERT_EQ(State(), "out");
    EXPECT_FALSE(HasKeyboard());
    EXPECT_FALSE(Main().View.TitleActive);
}

TEST_F(Sliding, WithGrabFocusTheKeyboardComesAlong) {
    StartDocked(Left, {"[GrabFocus]", "1"});
    EXPECT_FALSE(HasKeyboard());
    desk.PointAtBar();
    desk.Wait(600);
    EXPECT_TRUE(HasKeyboard());
    EXPECT_TRUE(Main().View.TitleActive);
}

TEST_F(Sliding, WithCenterMouseThePointerGoesToTheMiddleInWholePixels) {
    StartDocked(Left, {"[Center Mouse]", "1"});
    desk.PointAtBar();
    desk.Wait(600);
    ASSERT_EQ(Window(), (Rect{-200, 4500, 9000, 6000}));
    EXPECT_EQ(windows.Cursor, (Point{287 * 15, 500 * 15})) << "4300 twips are 286.7 pixels";
}

TEST_F(Sliding, CenterMouseIsForTheMouseAndNotForTheHotkey) {
    StartDocked(Left, {"[Center Mouse]", "1"});
    windows.Cursor = {14400, 15};
    desk.PressHotkey();
    EXPECT_EQ(windows.Cursor, (Point{14400 + 4 * 15, 15})) << "the nudge alone";
}

TEST_F(Sliding, ATranslucentWorkspaceComesOutTranslucent) {
    StartDocked(Left, {"[Translucent]", "1", "[Opacity]", "120"});
    desk.PressHotkey();
    EXPECT_EQ(Opacity(), 120);
}

TEST_F(Sliding, KeptOnTopOrNotIsWhatTheSettingSaysAfterComingOut) {
    StartDocked(Left, {"[OnTop]", "0"});
    desk.PressHotkey();
    EXPECT_FALSE(windows.Of(MainWindow).OnTop);
    desk.StopWorkspace();
    StartDocked(Left);
    windows.SetWindowOnTop(MainWindow, false);
    desk.PointAtBar();
    desk.Wait(600);
    EXPECT_TRUE(windows.Of(MainWindow).OnTop);
}

// ---- the heartbeat while docked

TEST_F(Sliding, WhatShowsADockedWorkspaceElsewhereHasUndockedItAndItsBarGoes) {
    StartDocked(Left);
    windows.Show(MainWindow, Activate::No); // a pager, say
    Main().View.Visible = true;
    desk.MoveWindow({6000, 3000, 9000, 6000});
    desk.MouseAway();
    desk.Wait(1100);
    EXPECT_EQ(State(), "floating");
}

TEST_F(Sliding, AHiddenWindowIsNeverMoved) {
    StartDocked(Left);
    Form_Moved(Main(), {6000, 3000, 9000, 6000}); // the window manager's idea of a window that is not there
    desk.Wait(3000);
    EXPECT_EQ(State(), "docked");
}

TEST_F(Sliding, FloatingItTakesItsPlaceInTheStackingOrderOnceByTheSetting) {
    StartAt(0);
    windows.SetWindowOnTop(MainWindow, false);
    desk.LeaveWorkspace();
    windows.Log.clear();
    desk.Wait(5000);
    EXPECT_EQ(std::ranges::count(windows.Log, "ontop frmMain"), 1);
    desk.StopWorkspace();
    StartAt(0, {"[OnTop]", "0"});
    Leave();
    EXPECT_FALSE(windows.Of(MainWindow).OnTop);
}

struct PanelRow {
    int Panel;
    bool Above;
    bool Raised;
};

TEST_F(Sliding, ABarThatAPanelAtItsEdgeCoversComesAboveItAndNoOtherPanelMatters) {
    for (const int at : {Top, Left, Right, Bottom}) {
        StartDocked(at);
        for (const auto& row :
             {PanelRow{at, true, true}, {at, false, false}, {at % 4 + 1, true, false}, {0, true, false}}) {
            windows.PanelEdge = row.Panel;
            windows.PanelOnTop = row.Above;
            windows.Log.clear();
            Tick();
            EXPECT_EQ(Logged("raise frmMiniDock"), row.Raised) << at << " against " << row.Panel;
            EXPECT_EQ(Logged("ontop frmMiniDock"), row.Raised);
            EXPECT_EQ(windows.PanelOnTop, row.Above && !row.Raised);
        }
        windows.PanelEdge = 0;
        windows.PanelOnTop = false;
        desk.StopWorkspace();
    }
}

TEST_F(Sliding, WithoutKeepOnTopThePanelStaysAbove) {
    StartDocked(Left, {"[OnTop]", "0"});
    windows.PanelEdge = Left;
    windows.PanelOnTop = true;
    windows.Log.clear();
    Tick();
    EXPECT_TRUE(windows.Log.empty());
}

TEST_F(Sliding, WhileItStillSlidesThereIsNoBarToRaise) {
    StartAt(Left);
    windows.PanelEdge = Left;
    windows.PanelOnTop = true;
    desk.LeaveWorkspace();
    windows.Log.clear();
    Tick();
    ASSERT_EQ(State(), "sliding");
    EXPECT_FALSE(Logged("raise frmMiniDock"));
    EXPECT_FALSE(Logged("ontop frmMiniDock"));
}

TEST_F(Sliding, ASuspendedWorkspaceThatTheHotkeyHasDockedKeepsItsBarAboveThePanel) {
    StartAt(Left, {"[SUSPEND_AUTO_COLLAPSE]", "1"});
    desk.PressHotkey();
    desk.Wait(500);
    ASSERT_EQ(State(), "docked");
    windows.PanelEdge = Left;
    windows.PanelOnTop = true;
    desk.Wait(1100);
    EXPECT_FALSE(windows.PanelOnTop);
}

TEST_F(Sliding, TwoDaysOfUptimeTriggerTheUpdateCheckExactlyOnce) {
    StartDocked(Left);
    const auto ticks = 172800 - Dock().UpdateCheckSeconds;
    for (int second = 1; second < ticks; ++second) Timer_Tick(Main(), {TimerName::TimerHide});
    EXPECT_EQ(Dock().UpdateChecksDue, 0) << "a second early";
    Timer_Tick(Main(), {TimerName::TimerHide});
    EXPECT_EQ(Dock().UpdateChecksDue, 1);
    EXPECT_EQ(Dock().UpdateCheckSeconds, 0);
    for (int second = 1; second < 172800; ++second) Timer_Tick(Main(), {TimerName::TimerHide});
    EXPECT_EQ(Dock().UpdateChecksDue, 1);
    Timer_Tick(Main(), {TimerName::TimerHide});
    EXPECT_EQ(Dock().UpdateChecksDue, 2);
}

TEST_F(Sliding, TheCountForUpdatesGoesOnWhateverStateTheWorkspaceIsIn) {
    StartAt(Left);
    const auto grows = [&] {
        const auto before = Dock().UpdateCheckSeconds;
        Tick();
        return Dock().UpdateCheckSeconds == before + 1;
    };
    EXPECT_TRUE(grows()) << "out";
    mnuSuspendSlideOut_Click(Main());
    EXPECT_TRUE(grows()) << "suspended";
    mnuSuspendSlideOut_Click(Main());
    mnuMaximize_Click(Main());
    EXPECT_TRUE(grows()) << "maximised";
    mnuMaximize_Click(Main());
    mnuHideAlterDesk_Click(Main());
    EXPECT_TRUE(grows()) << "hidden";
    Main().Settings.CheckForUpdatesOnStartup = false;
    EXPECT_FALSE(grows()) << "nobody wants it";
}

TEST_F(Sliding, TheTimeInTheTitleGoesOnWhileDocked) {
    StartDocked(Left, {"[ShowTime]", "1"});
    const auto before = Main().View.Caption;
    desk.Wait(61'000);
    EXPECT_NE(Main().View.Caption, before);
}

// ---- what is saved

TEST_F(Sliding, TheSavedPlaceOfADockedWorkspaceIsTheOneOutAtItsEdge) {
    for (const auto& row : places) {
        StartDocked(row.Edge);
        SaveWorkspace(Main(), true, false);
        EXPECT_EQ(State(), "docked") << "a save shows nothing";
        desk.ExitWorkspace();
        EXPECT_EQ(Saved("[X]"), fake::Words(row.Out.Left)) << row.Edge;
        EXPECT_EQ(Saved("[Y]"), fake::Words(row.Out.Top)) << row.Edge;
        EXPECT_EQ(Saved("[W]"), "9000");
        EXPECT_EQ(Saved("[H]"), "6000");
        desk.StartWorkspace();
        EXPECT_EQ(State(), "out") << row.Edge;
        EXPECT_EQ(EdgeOfWindow(Main(), Window()), row.Edge);
        desk.StopWorkspace();
    }
}

TEST_F(Sliding, AMaximisedWorkspaceIsSavedWithTheSizeBefore) {
    StartAt(Left);
    mnuMaximize_Click(Main());
    desk.ExitWorkspace();
    EXPECT_EQ(Saved("[X]"), "0");
    EXPECT_EQ(Saved("[W]"), "9000");
    EXPECT_EQ(Saved("[Maximized]"), "1");
}

TEST_F(Sliding, NothingOfTheSlidingRunsOnceTheProgramHasEnded) {
    StartDocked(Left);
    mnuExitApp_Click(Main());
    UnloadMain(Main());
    EXPECT_FALSE(desk.BarShows());
    EXPECT_FALSE(desk.WorkspaceShows());
    EXPECT_FALSE(desk.Computer.Tray.Shown);
    EXPECT_FALSE(desk.Computer.Hotkeys.Held);
    for (const auto name : {TimerName::TimerHide, TimerName::TimerShowMiniDock, TimerName::TimerFlash})
        EXPECT_FALSE(clock.IsRunning({name}));
}

} // namespace
} // namespace quill::test
