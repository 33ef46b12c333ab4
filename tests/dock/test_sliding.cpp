#include "dock/sliding.h"

#include "appearance/effects.h"
#include "containers/lifecycle.h"
#include "core/caption.h"
#include "core/objects.h"
#include "core/start.h"
#include "dock/dock_fixture.h"
#include "persistence/save.h"
#include "shortcuts/create.h"
#include "shortcuts/launch.h"

#include <algorithm>

namespace quill::test {
namespace {

struct Sliding : DockFixture {
    void Screens(const std::vector<Monitor>& screens) { windows.Screens = screens; }
    std::string Frame() {
        desk.Wait(20);
        return fake::Words(Window()) + " " + std::to_string(Opacity());
    }
};

// ---- which edge

struct EdgeRow {
    const char* Where;
    std::vector<Monitor> Screens;
    Rect Window;
    int Edge;
};

const Monitor first = Screen({0, 0, 28800, 16200});
const std::vector<Monitor> one{first};
const std::vector<Monitor> sideBySide{first, Screen({28800, 0, 19200, 10800})};
const std::vector<Monitor> stacked{first, Screen({4800, 16200, 19200, 10800})}; // a narrow one below
const std::vector<Monitor> diagonal{Screen({0, 0, 19200, 10800}), Screen({19200, 10800, 19200, 10800})};
const std::vector<Monitor> lowered{first, Screen({28800, 3000, 28800, 16200})}; // and the desktop ends lower
const std::vector<Monitor> negative{first, Screen({0, -10800, 19200, 10800})};  // above where places begin

const EdgeRow edges[] = {
    {"in the middle", one, {3000, 3000, 9000, 6000}, 0},
    {"a twip from everything", one, {1, 1, 28798, 16198}, 0},
    {"at the right", one, {19800, 3000, 9000, 6000}, Right},
    {"across the right", one, {26000, 3000, 9000, 6000}, Right},
    {"at the left", one, {0, 3000, 9000, 6000}, Left},
    {"across the left", one, {-200, 3000, 9000, 6000}, Left},
    {"at the top", one, {3000, 0, 9000, 6000}, Top},
    {"at the bottom", one, {3000, 10200, 9000, 6000}, Bottom},
    {"right before left", one, {0, 3000, 28800, 6000}, Right},
    {"right before top", one, {19800, 0, 9000, 6000}, Right},
    {"left before top", one, {0, 0, 9000, 6000}, Left},
    {"left before bottom", one, {0, 10200, 9000, 6000}, Left},
    {"top before bottom", one, {3000, 0, 9000, 16200}, Top},

    {"between two monitors, on the first", sideBySide, {19800, 3000, 9000, 6000}, 0},
    {"at the left of the second", sideBySide, {28800, 3000, 9000, 6000}, 0},
    {"at the right of the second", sideBySide, {39000, 3000, 9000, 6000}, Right},
    {"at the bottom of the shorter second", sideBySide, {33000, 4800, 9000, 6000}, 0},

    {"between two monitors, above", stacked, {9000, 10200, 9000, 6000}, 0},
    {"at the top of the lower", stacked, {9000, 16200, 9000, 6000}, 0},
    {"at the left of the narrower", stacked, {4800, 18000, 9000, 6000}, 0},
    {"at the right of the narrower", stacked, {15000, 18000, 9000, 6000}, 0},
    {"at the bottom of the lower", stacked, {9000, 21000, 9000, 6000}, Bottom},

    {"at the top of the lowered second", lowered, {33000, 3000, 9000, 6000}, 0},
    {"at the bottom of the first, with a lower one beside it", lowered, {3000, 10200, 9000, 6000}, 0},
    {"at the bottom of the lowered second", lowered, {33000, 13200, 9000, 6000}, Bottom},

    {"at the top of one that lies above all", negative, {3000, -10800, 9000, 6000}, Top},
    {"at its real bottom: the top of the desktop is left out", negative, {3000, 10200, 9000, 6000}, 0},
    {"where the desktop's height ends", negative, {3000, 21000, 9000, 6000}, Bottom},
};

TEST_F(Sliding, TheEdgeThatAWindowTouchesIsOneOfTheWholeDesktop) {
    Start({3000, 3000, 9000, 6000});
    for (const auto& row : edges) {
        Screens(row.Screens);
        EXPECT_EQ(EdgeOfWindow(Main(), row.Window), row.Edge) << row.Where;
    }
}

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
    StartAt(Left);
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
     {27200, 4500, 1600, 1600},
     {{27700, 4500, 1600, 1600}, {28200, 4500, 1600, 1600}, {28700, 4500, 1600, 1600}},
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
    desk.PressHotkey();
    EXPECT_TRUE(windows.Of(MainWindow).OnTop);
}

// ---- several monitors

struct LayoutRow {
    const char* Where;
    std::vector<Monitor> Screens;
    Rect Window;
    int Edge; // 0: it floats
    Rect Parked, Out;
};

const LayoutRow layouts[] = {
    {"the left edge of a second monitor is none of the desktop's",
     sideBySide,
     {28800, 3000, 9000, 6000},
     0,
     {},
     {}},
    {"the right edge of the first is none either", sideBySide, {19800, 3000, 9000, 6000}, 0, {}, {}},
    {"the far right",
     sideBySide,
     {39000, 3000, 9000, 6000},
     Right,
     {47970, 3000, 9000, 6000},
     {39200, 3000, 9000, 6000}},
    {"the left of the first",
     sideBySide,
     {0, 3000, 9000, 6000},
     Left,
     {-8950, 3000, 9000, 6000},
     {-200, 3000, 9000, 6000}},
    {"the top of the second",
     sideBySide,
     {33000, 0, 9000, 6000},
     Top,
     {33000, -5960, 9000, 6000},
     {33000, -100, 9000, 6000}},
    {"the bottom of a shorter second", sideBySide, {33000, 4800, 9000, 6000}, 0, {}, {}},
    {"the bottom of the first",
     sideBySide,
     {3000, 10200, 9000, 6000},
     Bottom,
     {3000, 16170, 9000, 6000},
     {3000, 10400, 9000, 6000}},
    {"the bottom of the upper one", stacked, {9000, 10200, 9000, 6000}, 0, {}, {}},
    {"the bottom of the lower one",
     stacked,
     {9000, 21000, 9000, 6000},
     Bottom,
     {9000, 26970, 9000, 6000},
     {9000, 21200, 9000, 6000}},
    {"the right of the wider one above",
     stacked,
     {19800, 3000, 9000, 6000},
     Right,
     {28770, 3000, 9000, 6000},
     {20000, 3000, 9000, 6000}},
    {"the right of the narrower one below", stacked, {15000, 18000, 9000, 6000}, 0, {}, {}},
    {"the bottom of a lowered second",
     lowered,
     {33000, 13200, 9000, 6000},
     Bottom,
     {33000, 19170, 9000, 6000},
     {33000, 13400, 9000, 6000}},
};

TEST_F(Sliding, OnSeveralMonitorsOnlyTheOutsideEdgesDockAndItComesBackWhereItWas) {
    for (const auto& row : layouts) {
        Screens(row.Screens);
        Start(row.Window);
        Leave();
        EXPECT_EQ(Dock().DockPosition, row.Edge) << row.Where;
        if (row.Edge == 0) {
            EXPECT_EQ(State(), "floating") << row.Where;
            EXPECT_EQ(Window(), row.Window) << row.Where;
        } else {
            EXPECT_EQ(State(), "docked") << row.Where;
            EXPECT_EQ(Window(), row.Parked) << row.Where;
            desk.PointAtBar();
            desk.Wait(600);
            EXPECT_EQ(State(), "out") << row.Where;
            EXPECT_EQ(Window(), row.Out) << row.Where;
        }
        desk.StopWorkspace();
    }
}

TEST_F(Sliding, MonitorsOfAnotherScalingCountByTheirSizeInTwips) {
    Screens({first, Screen({28800, 0, 14400, 8100})}); // 1920 by 1080 at 200 percent
    Start({34200, 1500, 9000, 6000});
    Leave();
    EXPECT_EQ(Dock().DockPosition, Right);
    EXPECT_EQ(Window().Left, 28800 + 14400 - 30);
    desk.PressHotkey();
    EXPECT_EQ(Window(), (Rect{28800 + 14400 - 9000 + 200, 1500, 9000, 6000}));
}

TEST_F(Sliding, PlacesBetweenTwoPixelsAreNoMove) {
    Start({0, 4500.4F, 9000.3F, 6000});
    Leave();
    ASSERT_EQ(State(), "docked");
    Main().View.Visible = true; // something shows it
    desk.Wait(3000);
    EXPECT_EQ(Dock().DockPosition, Left);
}

// The workspace may dock at an edge where the monitor it floats on ends nowhere near that edge.
TEST_F(Sliding, DockedBetweenTwoMonitorsItComesOutWhereItsBarIs) {
    Screens({Screen({0, 0, 19200, 10800}), Screen({19200, 0, 28800, 16200})});
    Start({39000, 3000, 9000, 6000});
    Leave();
    ASSERT_EQ(Dock().DockPosition, Right);
    desk.PressHotkey();
    desk.CarryWindow({6000, 2000, 9000, 6000}); // onto the left one
    mnuDockNow_Click(Main());
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Bar().Left, 19200 - 30);
    desk.PointAtBar();
    desk.Wait(600);
    EXPECT_EQ(Window(), (Rect{19200 - 9000 + 200, 2000, 9000, 6000}));
}

TEST_F(Sliding, WhereTheScreensLeaveTheEdgeEmptyBarAndWorkspaceMoveAlongItIntoView) {
    Screens(diagonal);
    Start({0, 3000, 9000, 6000});
    Leave();
    ASSERT_EQ(Dock().DockPosition, Left);
    desk.PressHotkey();
    desk.CarryWindow({24000, 14000, 9000, 6000}); // on the lower right one, whose left is not the desktop's
    mnuDockNow_Click(Main());
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Bar(), (Rect{0, 4800 + 1750, 40, 2500}));
    desk.PointAtBar();
    desk.Wait(600);
    EXPECT_EQ(State(), "out");
    EXPECT_EQ(Window(), (Rect{-200, 10800 - 6000, 9000, 6000}));
    desk.Wait(5000);
    EXPECT_EQ(State(), "out") << "and it is under the mouse";
}

TEST_F(Sliding, AtTheBottomOfADesktopThatBeginsAboveZeroNothingIsLost) {
    Screens(negative);
    Start({3000, 3000, 9000, 6000});
    desk.LeaveWorkspace();
    DockMe(Main(), Bottom, false);
    EXPECT_EQ(State(), "docked");
    desk.PressHotkey();
    EXPECT_EQ(State(), "floating");
    EXPECT_TRUE(first.Place.Contains(Window().Left, Window().Top)) << fake::Words(Window());
}

TEST_F(Sliding, AWindowNearlyBelowTheScreenHasItsBarInReach) {
    Start({0, 15500, 9000, 6000});
    Leave();
    ASSERT_EQ(Dock().DockPosition, Left);
    EXPECT_EQ(Bar(), (Rect{0, 15500, 40, 700}));
    desk.PointAtBar();
    desk.Wait(10'000);
    EXPECT_EQ(State(), "out");
}

TEST_F(Sliding, ABarIsNeverBesideThePlaceWhereTheWorkspaceComesOutOrItWouldComeAndGoForEver) {
    Screens({Screen({0, 0, 19200, 10800}), Screen({19200, 0, 28800, 16200})});
    Start({10900, 10200, 9000, 6000}); // most of it where no screen is
    Leave();
    ASSERT_EQ(Dock().DockPosition, Bottom);
    EXPECT_EQ(Bar(), (Rect{19200, 16170, 700, 40}));
    desk.PointAtBar({340, 0});
    desk.Wait(10'000);
    EXPECT_EQ(State(), "out");
}

// ---- monitors that change

TEST_F(Sliding, UnpluggedWhileDockedItDocksAtTheSameEdgeOfWhatIsLeft) {
    Screens(sideBySide);
    Start({39000, 3000, 9000, 6000});
    Leave();
    ASSERT_EQ(Dock().DockPosition, Right);
    desk.ChangeScreens(one);
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Dock().DockPosition, Right);
    EXPECT_EQ(Window(), (Rect{28770, 5100, 9000, 6000})) << "in the middle of the edge";
    EXPECT_EQ(Bar(), (Rect{28770, 5100 + 1750, 40, 2500}));
    desk.PointAtBar();
    desk.Wait(600);
    EXPECT_EQ(Window(), (Rect{20000, 5100, 9000, 6000}));
}

TEST_F(Sliding, PluggedAgainWhileDockedItGoesBackToTheOutsideEdge) {
    Screens(sideBySide);
    Start({39000, 3000, 9000, 6000});
    Leave();
    desk.ChangeScreens(one);
    desk.ChangeScreens(sideBySide);
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Window(), (Rect{47970, 2400, 9000, 6000}));
    EXPECT_EQ(Bar().Left, 47970);
}

TEST_F(Sliding, WithSeveralPluggedAtOnceTheOutermostOneIsTaken) {
    StartDocked(Right);
    desk.ChangeScreens({first, Screen({28800, 0, 28800, 16200}), Screen({57600, 0, 28800, 16200})});
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Bar().Left, 86400 - 30);
    desk.PressHotkey();
    EXPECT_EQ(EdgeOfWindow(Main(), Window()), Right);
}

TEST_F(Sliding, ANewResolutionDocksItAtTheNewEdge) {
    for (const int at : {Top, Left, Right, Bottom}) {
        StartDocked(at);
        desk.ChangeScreens({Screen({0, 0, 19200, 10800})});
        EXPECT_EQ(State(), "docked") << at;
        EXPECT_EQ(Dock().DockPosition, at);
        desk.PressHotkey();
        EXPECT_EQ(State(), "out") << at;
        EXPECT_EQ(EdgeOfWindow(Main(), Window()), at);
        desk.StopWorkspace();
        Screens(one);
    }
}

TEST_F(Sliding, AWorkspaceLargerThanItsNewScreenIsMadeToFitUnlessItsPositionIsLocked) {
    StartDocked(Left);
    desk.ChangeScreens({Screen({0, 0, 7500, 4500})});
    EXPECT_EQ(Window().Width, 7500);
    EXPECT_EQ(Window().Height, 4500);
    desk.StopWorkspace();
    Screens(one);
    StartDocked(Left, {"[PreventWindowMovement]", "1"});
    desk.ChangeScreens({Screen({0, 0, 7500, 4500})});
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Window().Width, 9000);
    EXPECT_EQ(Window().Height, 6000);
}

TEST_F(Sliding, APanelThatComesOrGoesLeavesADockedWorkspaceWhereItIs) {
    StartDocked(Left);
    windows.Log.clear();
    desk.ChangeScreens({{first.Place, {0, 600, 28800, 15600}}});
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Bar(), (Rect{0, 6250, 40, 2500}));
    EXPECT_TRUE(windows.Log.empty()) << windows.Log.front();
}

TEST_F(Sliding, AChangeOfMonitorsShowsNothingOnTheWay) {
    StartDocked(Left);
    windows.Log.clear();
    desk.ChangeScreens({Screen({0, 0, 19200, 10800})});
    EXPECT_FALSE(Logged("show frmMain"));
    EXPECT_FALSE(Logged("show frmMain active"));
    EXPECT_EQ(clock.FramesWanted(), 0);
}

TEST_F(Sliding, UnpluggedWhileSlidingItIsDockedAtTheNewEdgeAtOnce) {
    Screens(sideBySide);
    Start({39000, 3000, 9000, 6000});
    desk.LeaveWorkspace();
    DockMe(Main(), Right, true);
    desk.Wait(60);
    desk.ChangeScreens(one);
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Opacity(), 255);
    EXPECT_EQ(Bar().Left, 28770);
    desk.Wait(500);
    EXPECT_EQ(State(), "docked");
}

TEST_F(Sliding, UnpluggedWhileMaximisedItFillsWhatIsLeftAndIsRestoredIntoView) {
    Screens(sideBySide);
    Start({36000, 3000, 9000, 6000});
    mnuMaximize_Click(Main());
    EXPECT_EQ(Window(), sideBySide[1].Place);
    desk.ChangeScreens(one);
    EXPECT_EQ(State(), "maximised");
    EXPECT_EQ(Window(), first.Place);
    mnuMaximize_Click(Main());
    EXPECT_EQ(Window(), (Rect{28800 - 9000, 3000, 9000, 6000}));
}

TEST_F(Sliding, UnpluggedWhileHiddenItIsInViewWhenItIsCalled) {
    Screens(sideBySide);
    Start({36000, 3000, 9000, 6000});
    mnuHideAlterDesk_Click(Main());
    desk.ChangeScreens(one);
    EXPECT_EQ(State(), "hidden");
    desk.ClickTray();
    EXPECT_TRUE(first.Place.Contains(Window().Left, Window().Top));
    EXPECT_EQ(State(), "out");
}

TEST_F(Sliding, UnpluggedWhileOutItComesIntoViewAndMayDockThere) {
    Screens(sideBySide);
    Start({39000, 3000, 9000, 6000});
    desk.ChangeScreens(one);
    EXPECT_EQ(Window(), (Rect{28800 - 9000, 3000, 9000, 6000}));
    Leave();
    EXPECT_EQ(State(), "docked");
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

// ---- what comes in the middle of a slide

struct MidSlide : Sliding {
    // Three frames on its way, 1500 twips.
    void StartSliding(const std::vector<std::string>& more = {}) {
        StartAt(Left, more);
        desk.LeaveWorkspace();
        DockMe(Main(), Left, true);
        desk.Wait(60);
        ASSERT_EQ(State(), "sliding");
        ASSERT_EQ(Window().Left, -1500);
    }
    const Rect out{-200, 4500, 9000, 6000};
};

TEST_F(MidSlide, TheHotkeyBringsItOutAndTheSlideIsOver) {
    StartSliding();
    desk.PressHotkey();
    EXPECT_EQ(State(), "out");
    EXPECT_EQ(Window(), out);
    EXPECT_TRUE(HasKeyboard());
    desk.Wait(500);
    EXPECT_EQ(State(), "out");
    EXPECT_EQ(Window(), out);
}

TEST_F(MidSlide, ASecondStartAndTheTrayBringItOut) {
    StartSliding();
    SecondStart(Main(), Summons::Show);
    EXPECT_EQ(State(), "out");
    desk.StopWorkspace();
    StartSliding();
    desk.ClickTray();
    EXPECT_EQ(State(), "out");
}

TEST_F(MidSlide, AHandOnTheTitleTakesItWhereItIs) {
    StartSliding();
    const Rect there = Window();
    desk.CarryWindow({there.Left + 6000, there.Top, there.Width, there.Height});
    desk.Wait(20);
    EXPECT_EQ(State(), "floating");
    EXPECT_EQ(Window().Left, 4500);
    desk.Wait(2000);
    EXPECT_EQ(State(), "floating");
}

TEST_F(MidSlide, MaximisedOnTheWayItStaysSoAndIsRestoredToItsEdge) {
    StartSliding();
    mnuMaximize_Click(Main());
    desk.Wait(40);
    EXPECT_EQ(State(), "maximised");
    EXPECT_EQ(Window(), (Rect{0, 0, 28800, 15750}));
    desk.PressHotkey();
    EXPECT_EQ(Window(), (Rect{0, 0, 28800, 15750})) << "the hotkey does not take it for a docked one";
    mnuMaximize_Click(Main());
    EXPECT_EQ(Window(), out);
    EXPECT_EQ(State(), "out");
}

TEST_F(MidSlide, ADialogKeepsTheWorkspaceOutBehindItAndTakesNothingFromIt) {
    StartSliding({"[GrabFocus]", "1", "[Center Mouse]", "1"});
    const Point cursor = windows.Cursor;
    {
        const DialogPause dialog(Main());
        desk.Wait(500);
        EXPECT_EQ(State(), "out");
        EXPECT_EQ(Window(), out);
        EXPECT_FALSE(HasKeyboard()) << "the dialog keeps it";
        EXPECT_EQ(windows.Cursor, cursor);
    }
    desk.Wait(2000);
    EXPECT_EQ(State(), "docked") << "it goes once the dialog has closed";
}

TEST_F(MidSlide, ADragInItStopsTheSlideWithoutMovingThePointer) {
    StartSliding({"[Center Mouse]", "1"});
    const Point cursor = windows.Cursor;
    Dock().WorkspaceDragging = true;
    desk.Wait(20);
    EXPECT_EQ(State(), "out");
    EXPECT_EQ(windows.Cursor, cursor);
}

TEST_F(MidSlide, HiddenOnTheWayItIsOutAtItsEdgeWhenItIsCalled) {
    StartSliding();
    mnuHideAlterDesk_Click(Main());
    desk.Wait(500);
    EXPECT_EQ(State(), "hidden");
    SecondStart(Main(), Summons::Show);
    EXPECT_EQ(State(), "out");
    EXPECT_EQ(Window(), out);
}

TEST_F(MidSlide, MinimisedOnTheWayItIsOutAtItsEdgeWhenItIsCalled) {
    for (const char* inTaskbar : {"0", "1"}) {
        StartSliding({"[ShowInTaskbar]", inTaskbar});
        desk.Minimize();
        desk.Wait(500);
        EXPECT_EQ(State(), *inTaskbar == '0' ? "hidden" : "minimised");
        EXPECT_EQ(Dock().DockPosition, 0) << "with no bar it is not docked";
        desk.PressHotkey();
        EXPECT_EQ(State(), "out");
        EXPECT_EQ(Window(), out);
        desk.StopWorkspace();
    }
}

TEST_F(MidSlide, SuspendingKeepsItOut) {
    StartSliding();
    mnuSuspendSlideOut_Click(Main());
    EXPECT_EQ(State(), "suspended, out");
    desk.Wait(3000);
    EXPECT_EQ(State(), "suspended, out");
    EXPECT_EQ(Window(), out);
}

TEST_F(MidSlide, APositionOfTheMenuAndCenteringTakeItThere) {
    StartSliding();
    mnuDockPos_Click(Main(), 2);
    EXPECT_EQ(State(), "out");
    EXPECT_EQ(Window(), (Rect{28800 - 9000 + 100, 5100, 9000, 6000}));
    desk.Wait(500);
    desk.StopWorkspace();
    StartSliding();
    mnuCenterWorkspace_Click(Main());
    desk.Wait(500);
    EXPECT_EQ(State(), "floating");
    EXPECT_EQ(Window(), (Rect{9900, 5100, 9000, 6000}));
}

TEST_F(MidSlide, EscapeAndCollapseNowChangeNothing) {
    StartSliding();
    EXPECT_FALSE(CollapseByKey(Main()));
    mnuDockNow_Click(Main());
    EXPECT_EQ(State(), "sliding");
    desk.Wait(200);
    EXPECT_EQ(State(), "docked");
}

TEST_F(MidSlide, TheProgramThatEndsSavesThePlaceOutAtTheEdge) {
    StartSliding();
    desk.ExitWorkspace();
    EXPECT_EQ(Saved("[X]"), "-200");
    EXPECT_EQ(Saved("[Y]"), "4500");
}

TEST_F(MidSlide, AnotherStartedProgramLeavesTheSlideAlone) {
    StartSliding();
    windows.Log.clear();
    PreLaunch(Main());
    EXPECT_FALSE(Logged("notontop frmMain"));
    desk.Wait(200);
    EXPECT_EQ(State(), "docked");
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
