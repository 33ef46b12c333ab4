#include "dock/foreground.h"

#include "appearance/colors.h"
#include "dock/dock_fixture.h"
#include "shortcuts/create.h"
#include "shortcuts/launch.h"

namespace quill::test {
namespace {

struct Foreground : DockFixture {
    void Lose() { windows.Foreground.reset(), Foreground_Changed(Main()); }
    void Gain() { windows.Foreground = MainWindow, Foreground_Changed(Main()); }
};

TEST_F(Foreground, TheKeyboardIsAskedForOnlyWhenItIsNotThereAlready) {
    StartAt(Left);
    windows.Log.clear();
    EXPECT_TRUE(ForceForeground(Main()));
    EXPECT_TRUE(windows.Log.empty());
    Lose();
    EXPECT_TRUE(ForceForeground(Main()));
    EXPECT_TRUE(Logged("foreground frmMain"));
}

TEST_F(Foreground, TheTitleIsInItsOwnColoursWithTheKeyboardAndPalerWithout) {
    StartAt(Left);
    SetWorkspaceColors(Main(), Rgb(0, 40, 100), Rgb(200, 240, 20));
    Lose();
    EXPECT_FALSE(Main().View.TitleActive);
    EXPECT_EQ(Main().View.MoveMeColor, Rgb(50, 90, 80)) << "a quarter of the way to the ink";
    EXPECT_EQ(Main().View.CaptionForeColor, Rgb(200, 240, 20));
    Gain();
    EXPECT_TRUE(Main().View.TitleActive);
    EXPECT_EQ(Main().View.MoveMeColor, Rgb(0, 40, 100));
    EXPECT_EQ(Main().View.CaptionForeColor, Rgb(200, 240, 20));
}

TEST_F(Foreground, ATitleThatStaysAsItIsIsNotPaintedAgain) {
    StartAt(Left);
    Gain();
    desk.Turn();
    Gain();
    EXPECT_FALSE(Main().Marks.Pending().Workspace);
    Lose();
    EXPECT_TRUE(Main().Marks.Pending().Workspace);
}

TEST_F(Foreground, ANewInkReachesTheCaptionAlsoWhenTheGroundIsTheSame) {
    StartAt(Left);
    Gain();
    Main().View.ForeColor = Rgb(1, 2, 3);
    MakeTitleBarActive(Main());
    EXPECT_EQ(Main().View.CaptionForeColor, Rgb(1, 2, 3));
}

TEST_F(Foreground, OnceTheEndHasBegunTheTitleFollowsNobody) {
    StartAt(Left);
    Gain();
    Main().IsExiting = true;
    Lose();
    EXPECT_TRUE(Main().View.TitleActive);
}

TEST_F(Foreground, BeingShownOrCenteredOrHoveredTakesNoKeyboard) {
    StartDocked(Left);
    ShowMain(Main());
    mnuCenterWorkspace_Click(Main());
    EXPECT_FALSE(HasKeyboard());
    for (const auto& line : windows.Log) EXPECT_NE(line, "foreground frmMain");
}

TEST_F(Foreground, WhereTheKeyboardComesAMomentLaterTheTitleFollowsThen) {
    StartDocked(Left);
    desk.PressHotkey();
    windows.Foreground.reset(); // the window manager has not answered yet
    Foreground_Changed(Main());
    EXPECT_FALSE(Main().View.TitleActive);
    Gain();
    EXPECT_TRUE(Main().View.TitleActive);
}

// ---- what was started comes in front

TEST_F(Foreground, AFloatingWorkspaceLetsWhatItStartsInFrontAndIsOnTopAgainWithTheKeyboard) {
    StartAt(0);
    ASSERT_TRUE(windows.Of(MainWindow).OnTop);
    PreLaunch(Main());
    EXPECT_FALSE(windows.Of(MainWindow).OnTop);
    Leave();
    EXPECT_FALSE(windows.Of(MainWindow).OnTop) << "the heartbeat does not cover it again";
    Gain();
    EXPECT_TRUE(windows.Of(MainWindow).OnTop);
}

TEST_F(Foreground, WithoutKeepOnTopNothingIsChangedByAStart) {
    StartAt(0, {"[OnTop]", "0"});
    windows.Log.clear();
    PreLaunch(Main());
    EXPECT_TRUE(windows.Log.empty());
}

TEST_F(Foreground, AWorkspaceAtAnEdgeGoesWhenSomethingIsStarted) {
    StartAt(Left);
    PreLaunch(Main());
    EXPECT_EQ(State(), "sliding");
    desk.Wait(200);
    EXPECT_EQ(State(), "docked");
}

TEST_F(Foreground, SuspendedOrMaximisedOrBehindAQuestionItStaysWhenSomethingIsStarted) {
    StartAt(Left);
    mnuSuspendSlideOut_Click(Main());
    PreLaunch(Main());
    desk.Wait(500);
    EXPECT_EQ(State(), "suspended, out");
    EXPECT_TRUE(windows.Of(MainWindow).OnTop) << "suspended it stays as it is";
    mnuSuspendSlideOut_Click(Main());
    mnuMaximize_Click(Main());
    PreLaunch(Main());
    desk.Wait(500);
    EXPECT_EQ(State(), "maximised");
    EXPECT_FALSE(windows.Of(MainWindow).OnTop);
    mnuMaximize_Click(Main());
    const DialogPause question(Main());
    PreLaunch(Main());
    desk.Wait(500);
    EXPECT_EQ(State(), "out");
}

TEST_F(Foreground, AStartThatFailsBringsTheWorkspaceBackBehindItsProperties) {
    StartAt(Left);
    AddFile(Main(), "/usr/bin/thing", OnWorkspace(), {3000, 3000});
    const int link = Main().NextShortcutIndex - 1;
    desk.Computer.Shell.FailNext({Reason::NotFound, "It is not there"});
    std::string state;
    desk.Computer.Dialogs.OnEditLink = [&](frmEditLink&) {
        clock.Advance(500);
        state = State();
        return false;
    };
    desk.OtherProgram();
    desk.MouseAway();
    StartShortcut(Main(), link, false, "", false, false);
    EXPECT_EQ(state, "out");
    desk.Wait(2000);
    EXPECT_EQ(State(), "docked");
}

} // namespace
} // namespace quill::test
