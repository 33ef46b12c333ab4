#include "dock/sliding.h"

#include "dock/dock_fixture.h"
#include "shortcuts/launch.h"

namespace quill::test {
namespace {

// What comes in the middle of a slide.
struct MidSlide : DockFixture {
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

} // namespace
} // namespace quill::test
