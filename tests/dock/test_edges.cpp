#include "dock/edges.h"

#include "dock/dock_fixture.h"

namespace quill::test {
namespace {

struct Edges : DockFixture {
    void Screens(const std::vector<Monitor>& screens) { windows.Screens = screens; }
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

TEST_F(Edges, TheEdgeThatAWindowTouchesIsOneOfTheWholeDesktop) {
    Start({3000, 3000, 9000, 6000});
    for (const auto& row : edges) {
        Screens(row.Screens);
        EXPECT_EQ(EdgeOfWindow(Main(), row.Window), row.Edge) << row.Where;
    }
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

TEST_F(Edges, OnSeveralMonitorsOnlyTheOutsideEdgesDockAndItComesBackWhereItWas) {
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

TEST_F(Edges, MonitorsOfAnotherScalingCountByTheirSizeInTwips) {
    Screens({first, Screen({28800, 0, 14400, 8100})}); // 1920 by 1080 at 200 percent
    Start({34200, 1500, 9000, 6000});
    Leave();
    EXPECT_EQ(Dock().DockPosition, Right);
    EXPECT_EQ(Window().Left, 28800 + 14400 - 30);
    desk.PressHotkey();
    EXPECT_EQ(Window(), (Rect{28800 + 14400 - 9000 + 200, 1500, 9000, 6000}));
}

TEST_F(Edges, PlacesBetweenTwoPixelsAreNoMove) {
    Start({0, 4500.4F, 9000.3F, 6000});
    Leave();
    ASSERT_EQ(State(), "docked");
    Main().View.Visible = true; // something shows it
    desk.Wait(3000);
    EXPECT_EQ(Dock().DockPosition, Left);
}

// The workspace may dock at an edge where the monitor it floats on ends nowhere near that edge.
TEST_F(Edges, DockedBetweenTwoMonitorsItComesOutWhereItsBarIs) {
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

TEST_F(Edges, WhereTheScreensLeaveTheEdgeEmptyBarAndWorkspaceMoveAlongItIntoView) {
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

TEST_F(Edges, AtTheBottomOfADesktopThatBeginsAboveZeroNothingIsLost) {
    Screens(negative);
    Start({3000, 3000, 9000, 6000});
    desk.LeaveWorkspace();
    DockMe(Main(), Bottom, false);
    EXPECT_EQ(State(), "docked");
    desk.PressHotkey();
    EXPECT_EQ(State(), "floating");
    EXPECT_TRUE(first.Place.Contains(Window().Left, Window().Top)) << fake::Words(Window());
}

TEST_F(Edges, AWindowNearlyBelowTheScreenHasItsBarInReach) {
    Start({0, 15500, 9000, 6000});
    Leave();
    ASSERT_EQ(Dock().DockPosition, Left);
    EXPECT_EQ(Bar(), (Rect{0, 15500, 40, 700}));
    desk.PointAtBar();
    desk.Wait(10'000);
    EXPECT_EQ(State(), "out");
}

TEST_F(Edges, ABarIsNeverBesideThePlaceWhereTheWorkspaceComesOutOrItWouldComeAndGoForEver) {
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

TEST_F(Edges, UnpluggedWhileDockedItDocksAtTheSameEdgeOfWhatIsLeft) {
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

TEST_F(Edges, PluggedAgainWhileDockedItGoesBackToTheOutsideEdge) {
    Screens(sideBySide);
    Start({39000, 3000, 9000, 6000});
    Leave();
    desk.ChangeScreens(one);
    desk.ChangeScreens(sideBySide);
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Window(), (Rect{47970, 2400, 9000, 6000}));
    EXPECT_EQ(Bar().Left, 47970);
}

TEST_F(Edges, WithSeveralPluggedAtOnceTheOutermostOneIsTaken) {
    StartDocked(Right);
    desk.ChangeScreens({first, Screen({28800, 0, 28800, 16200}), Screen({57600, 0, 28800, 16200})});
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Bar().Left, 86400 - 30);
    desk.PressHotkey();
    EXPECT_EQ(EdgeOfWindow(Main(), Window()), Right);
}

TEST_F(Edges, ANewResolutionDocksItAtTheNewEdge) {
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

TEST_F(Edges, AWorkspaceLargerThanItsNewScreenIsMadeToFitUnlessItsPositionIsLocked) {
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

TEST_F(Edges, APanelThatComesOrGoesLeavesADockedWorkspaceWhereItIs) {
    StartDocked(Left);
    windows.Log.clear();
    desk.ChangeScreens({{first.Place, {0, 600, 28800, 15600}}});
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Bar(), (Rect{0, 6250, 40, 2500}));
    EXPECT_TRUE(windows.Log.empty()) << windows.Log.front();
}

TEST_F(Edges, AChangeOfMonitorsShowsNothingOnTheWay) {
    StartDocked(Left);
    windows.Log.clear();
    desk.ChangeScreens({Screen({0, 0, 19200, 10800})});
    EXPECT_FALSE(Logged("show frmMain"));
    EXPECT_FALSE(Logged("show frmMain active"));
    EXPECT_EQ(clock.FramesWanted(), 0);
}

TEST_F(Edges, UnpluggedWhileSlidingItIsDockedAtTheNewEdgeAtOnce) {
    Screens(sideBySide);
    Start({39000, 3000, 9000, 6000});
    desk.LeaveWorkspace();
    DockMe(Main(), Right, true);
    desk.Wait(60);
    windows.Log.clear();
    desk.ChangeScreens(one);
    ASSERT_FALSE(windows.Log.empty());
    EXPECT_EQ(windows.Log.front(), "hide frmMain") << "nothing is seen of its way";
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Opacity(), 255);
    EXPECT_EQ(Bar().Left, 28770);
    desk.Wait(500);
    EXPECT_EQ(State(), "docked");
}

TEST_F(Edges, UnpluggedWhileMaximisedItFillsWhatIsLeftAndIsRestoredIntoView) {
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

TEST_F(Edges, UnpluggedWhileHiddenItIsInViewWhenItIsCalled) {
    Screens(sideBySide);
    Start({36000, 3000, 9000, 6000});
    mnuHideAlterDesk_Click(Main());
    desk.ChangeScreens(one);
    EXPECT_EQ(State(), "hidden");
    desk.ClickTray();
    EXPECT_TRUE(first.Place.Contains(Window().Left, Window().Top));
    EXPECT_EQ(State(), "out");
}

TEST_F(Edges, UnpluggedWhileOutItComesIntoViewAndMayDockThere) {
    Screens(sideBySide);
    Start({39000, 3000, 9000, 6000});
    desk.ChangeScreens(one);
    EXPECT_EQ(Window(), (Rect{28800 - 9000, 3000, 9000, 6000}));
    Leave();
    EXPECT_EQ(State(), "docked");
}

} // namespace
} // namespace quill::test
