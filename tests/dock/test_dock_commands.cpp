#include "dock/dock_commands.h"

#include "core/caption.h"
#include "dock/dock_fixture.h"
#include "persistence/save.h"
#include "shortcuts/create.h"

#include <algorithm>

namespace quill::test {
namespace {

struct DockCommands : DockFixture {
    static constexpr Rect size{0, 0, 9000, 6000};
    const std::vector<Monitor> sideBySide{Screen({0, 0, 28800, 16200}), Screen({28800, 0, 19200, 10800})};
};

// ---- positions of the menu

struct PositionRow {
    const char* Where;
    int Index;
    Point Corner;
};

const PositionRow positions[] = {
    {"top", 0, {9900, -100}},
    {"left", 1, {-100, 5100}},
    {"right", 2, {28800 - 9000 + 100, 5100}},
    {"bottom", 3, {9900, 16200 - 6000 + 100}},
};

TEST_F(DockCommands, APositionMovesTheWorkspaceAHundredTwipsOverItsEdgeAndDocksNothing) {
    for (const auto& row : positions) {
        StartAt(0);
        desk.OtherProgram();
        desk.MoveMouse({14400, 8100});
        mnuDockPos_Click(Main(), row.Index);
        EXPECT_EQ(Window(), (Rect{row.Corner.X, row.Corner.Y, 9000, 6000})) << row.Where;
        EXPECT_EQ(State(), "out") << row.Where;
        EXPECT_EQ(Saved("[X]", "Quillmere.REC"), fake::Words(row.Corner.X)) << row.Where;
        desk.StopWorkspace();
    }
}

TEST_F(DockCommands, AfterAPositionTheNextTickDocksOnlyIfTheMouseIsAway) {
    StartAt(0);
    mnuDockPos_Click(Main(), 1);
    desk.MoveMouse({3000, 8100});
    desk.OtherProgram();
    desk.Wait(3000);
    EXPECT_EQ(State(), "out");
    desk.MouseAway();
    desk.Wait(2000);
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Dock().DockPosition, Left);
}

TEST_F(DockCommands, PositionsAreThoseOfTheWindowsOwnMonitor) {
    windows.Screens = sideBySide;
    Start({33000, 2000, 9000, 6000});
    mnuDockPos_Click(Main(), 1);
    EXPECT_EQ(Window(), (Rect{28700, 2400, 9000, 6000}));
    mnuDockPos_Click(Main(), 2);
    EXPECT_EQ(Window(), (Rect{48000 - 8900, 2400, 9000, 6000}));
    mnuDockPos_Click(Main(), 3);
    EXPECT_EQ(Window(), (Rect{33900, 4900, 9000, 6000}));
    mnuDockPos_Click(Main(), 0);
    EXPECT_EQ(Window(), (Rect{33900, -100, 9000, 6000}));
}

TEST_F(DockCommands, OnALowerMonitorTheMiddleIsItsOwn) {
    windows.Screens = {Screen({0, 0, 28800, 16200}), Screen({0, 16200, 28800, 16200})};
    Start({3000, 20000, 9000, 6000});
    mnuDockPos_Click(Main(), 1);
    EXPECT_EQ(Window(), (Rect{-100, 16200 + 5100, 9000, 6000}));
    mnuDockPos_Click(Main(), 3);
    EXPECT_EQ(Window(), (Rect{9900, 32400 - 5900, 9000, 6000}));
}

TEST_F(DockCommands, TheTopOfAMonitorWithNothingAboveItIsNotOutOfSight) {
    windows.Screens = {Screen({0, 0, 19200, 10800}), Screen({19200, 10800, 19200, 10800})};
    Start({24000, 14000, 9000, 6000});
    mnuDockPos_Click(Main(), 0);
    EXPECT_EQ(Window(), (Rect{24300, 10800, 9000, 6000}));
}

TEST_F(DockCommands, APositionTakesAMaximisedWorkspaceInItsOwnSize) {
    StartAt(0);
    mnuMaximize_Click(Main());
    mnuDockPos_Click(Main(), 1);
    EXPECT_EQ(Window(), (Rect{-100, 5100, 9000, 6000}));
    EXPECT_EQ(State(), "out");
}

TEST_F(DockCommands, PositionsWorkWithTheirKeysAlsoWhileMovementIsLocked) {
    StartAt(0, {"[PreventWindowMovement]", "1"});
    desk.PressKey(KeyLeft, false, false, true);
    EXPECT_EQ(Window().Left, -100);
    desk.PressKey(KeyRight, false, false, true);
    EXPECT_EQ(Window().Left, 28800 - 9000 + 100);
    desk.PressKey(KeyUp, false, false, true);
    EXPECT_EQ(Window().Top, -100);
    desk.PressKey(KeyDown, false, false, true);
    EXPECT_EQ(Window().Top, 16200 - 6000 + 100);
}

// ---- centering

TEST_F(DockCommands, CenteringADockedWorkspaceShowsItInTheMiddleAndLeavesThePointer) {
    StartDocked(Left);
    windows.Cursor = {20000, 12000};
    windows.Log.clear();
    desk.ChooseInTray("Center Workspace");
    EXPECT_EQ(State(), "floating");
    EXPECT_EQ(Window(), (Rect{9900, 5100, 9000, 6000}));
    EXPECT_EQ(windows.Cursor, (Point{20000, 12000}));
    EXPECT_EQ(
        std::ranges::count_if(windows.Log, [](const auto& it) { return it.starts_with("place frmMain"); }), 1)
        << "it does not hop";
    Leave();
    EXPECT_EQ(State(), "floating");
}

TEST_F(DockCommands, CenteringShowsWhatIsHiddenAndRestoresWhatIsMinimisedOrMaximised) {
    const Rect middle{9900, 5100, 9000, 6000};
    StartAt(Left);
    mnuHideAlterDesk_Click(Main());
    desk.ChooseInTray("Center Workspace");
    EXPECT_EQ(State(), "floating");
    EXPECT_EQ(Window(), middle);
    EXPECT_FALSE(Dock().Hidden);
    desk.MoveWindow(PlaceAt(Left));
    desk.Minimize();
    desk.ChooseInTray("Center Workspace");
    EXPECT_EQ(State(), "floating");
    mnuMaximize_Click(Main());
    desk.ChooseInTray("Center Workspace");
    EXPECT_EQ(State(), "floating");
    EXPECT_EQ(Window(), middle);
}

TEST_F(DockCommands, TheMiddleIsThatOfTheMonitorAtWhoseEdgeItWasDocked) {
    windows.Screens = sideBySide;
    Start({39000, 3000, 9000, 6000});
    Leave();
    desk.ChooseInTray("Center Workspace");
    EXPECT_EQ(Window(), (Rect{33900, 2400, 9000, 6000}));
}

// ---- "Collapse Now"

TEST_F(DockCommands, CollapseNowDocksAtOnceAtTheEdgeThatTheWorkspaceTouches) {
    StartDocked(Left);
    desk.PressHotkey();
    desk.MoveWindow(PlaceAt(Right));
    mnuDockNow_Click(Main());
    EXPECT_EQ(State(), "docked") << "with no slide";
    EXPECT_EQ(Dock().DockPosition, Right);
    EXPECT_FALSE(HasKeyboard());
}

TEST_F(DockCommands, CollapseNowDocksAFloatingWorkspaceWhereItDockedLast) {
    StartDocked(Left);
    desk.PressHotkey();
    desk.MoveWindow(PlaceAt(0));
    mnuDockNow_Click(Main());
    EXPECT_EQ(Dock().DockPosition, Left);
    EXPECT_EQ(State(), "docked");
    desk.PressHotkey();
    EXPECT_EQ(Window(), (Rect{-200, 4500, 9000, 6000}));
}

TEST_F(DockCommands, CollapseNowWithNoEdgeToGoToSaysWhatToDo) {
    StartAt(0);
    mnuDockNow_Click(Main());
    EXPECT_EQ(State(), "floating");
    EXPECT_EQ(Main().View.Caption, "Move the workspace to an edge of the screen first.");
    desk.Wait(PassingCaptionTime);
    EXPECT_EQ(Main().View.Caption, "Quillmere v5.70b");
}

TEST_F(DockCommands, CollapseNowEndsASuspension) {
    StartAt(Left);
    mnuSuspendSlideOut_Click(Main());
    desk.ClickOn(ElementKind::PicDock);
    EXPECT_EQ(State(), "docked");
    EXPECT_FALSE(Dock().Suspended);
    EXPECT_EQ(Main().View.Caption, "Quillmere v5.70b");
}

TEST_F(DockCommands, CollapseNowDoesNothingWhileMaximisedOrDragging) {
    StartAt(Left);
    mnuMaximize_Click(Main());
    mnuDockNow_Click(Main());
    EXPECT_EQ(State(), "maximised");
    mnuMaximize_Click(Main());
    Dock().WorkspaceDragging = true;
    mnuDockNow_Click(Main());
    EXPECT_EQ(State(), "out");
    EXPECT_TRUE(HasKeyboard());
}

// ---- suspended

TEST_F(DockCommands, SuspendedItStaysAndTheTitleSaysSo) {
    StartAt(Left);
    mnuSuspendSlideOut_Click(Main());
    EXPECT_EQ(Main().View.Caption, "AUTO-COLLAPSE SUSPENDED");
    Leave();
    EXPECT_EQ(State(), "suspended, out");
    mnuSuspendSlideOut_Click(Main());
    EXPECT_EQ(Main().View.Caption, "Quillmere v5.70b");
    desk.Wait(2000);
    EXPECT_EQ(State(), "docked");
}

TEST_F(DockCommands, SuspensionOutlivesARestartAndAKill) {
    StartAt(Left);
    mnuSuspendSlideOut_Click(Main());
    desk.RestartAfterKill();
    EXPECT_TRUE(Dock().Suspended);
    EXPECT_EQ(Main().View.Caption, "AUTO-COLLAPSE SUSPENDED");
    Leave();
    EXPECT_EQ(State(), "suspended, out");
    desk.ExitWorkspace();
    EXPECT_EQ(Saved("[SUSPEND_AUTO_COLLAPSE]"), "1");
}

TEST_F(DockCommands, SuspendedTheHotkeyStillPutsItAwayAndBackAndItStaysThen) {
    StartAt(Left);
    mnuSuspendSlideOut_Click(Main());
    desk.PressHotkey();
    desk.Wait(500);
    EXPECT_EQ(State(), "docked");
    desk.PressHotkey();
    EXPECT_EQ(State(), "suspended, out");
    Leave();
    EXPECT_EQ(State(), "suspended, out");
}

TEST_F(DockCommands, SuspendedTheBarStillBringsItOut) {
    StartAt(Left);
    mnuSuspendSlideOut_Click(Main());
    desk.PressHotkey();
    desk.Wait(1500);
    desk.PointAtBar();
    desk.Wait(600);
    EXPECT_EQ(State(), "suspended, out");
}

TEST_F(DockCommands, SuspendedEscapeDoesNotCollapse) {
    StartAt(Left);
    mnuSuspendSlideOut_Click(Main());
    desk.PressKey(KeyEscape);
    desk.Wait(500);
    EXPECT_EQ(State(), "suspended, out");
}

// ---- Escape

TEST_F(DockCommands, EscapeSlidesItAwayAndTheKeyboardGoesBack) {
    StartAt(Left);
    desk.PressKey(KeyEscape);
    EXPECT_EQ(State(), "sliding");
    EXPECT_FALSE(HasKeyboard());
    desk.Wait(200);
    EXPECT_EQ(State(), "docked");
}

TEST_F(DockCommands, EscapeCollapsesNothingThatFloatsIsMaximisedHeldOrAsked) {
    StartAt(0);
    EXPECT_FALSE(CollapseByKey(Main())) << "floating";
    desk.MoveWindow(PlaceAt(Left));
    mnuMaximize_Click(Main());
    EXPECT_FALSE(CollapseByKey(Main())) << "maximised";
    mnuMaximize_Click(Main());
    Dock().WorkspaceDragging = true;
    EXPECT_FALSE(CollapseByKey(Main())) << "held";
    Dock().WorkspaceDragging = false;
    {
        const DialogPause question(Main());
        EXPECT_FALSE(CollapseByKey(Main())) << "asked";
    }
    EXPECT_TRUE(HasKeyboard()) << "and it keeps the keyboard";
    EXPECT_TRUE(CollapseByKey(Main()));
}

// ---- the hotkey

TEST_F(DockCommands, WithTheKeyboardAtAnEdgeTheHotkeyDocksWithTheSlide) {
    StartAt(Left);
    desk.PressHotkey();
    EXPECT_EQ(State(), "sliding");
    EXPECT_FALSE(HasKeyboard()) << "it goes back to the window under it";
    desk.Wait(200);
    EXPECT_EQ(State(), "docked");
}

TEST_F(DockCommands, WithAnimationSwitchedOffTheHotkeyDocksAtOnce) {
    StartAt(Left, {"[Animate]", "0"});
    desk.PressHotkey();
    EXPECT_EQ(State(), "docked");
    EXPECT_FALSE(HasKeyboard());
}

TEST_F(DockCommands, TheHotkeyDocksAtTheEdgeThatTheWorkspaceTouchesNow) {
    StartDocked(Left);
    desk.PressHotkey();
    desk.MoveWindow(PlaceAt(Bottom));
    desk.PressHotkey();
    EXPECT_EQ(Dock().DockPosition, Bottom);
}

TEST_F(DockCommands, WithoutTheKeyboardTheHotkeyBringsItForwardAndNeverAway) {
    StartAt(Left);
    desk.MoveMouse({3000, 6000});
    desk.OtherProgram();
    desk.PressHotkey();
    EXPECT_EQ(State(), "out");
    EXPECT_TRUE(HasKeyboard());
    EXPECT_TRUE(Main().View.TitleActive);
}

TEST_F(DockCommands, DockedTheHotkeyBringsItOutWithTheKeyboard) {
    StartDocked(Left);
    desk.PressHotkey();
    EXPECT_EQ(State(), "out");
    EXPECT_TRUE(HasKeyboard());
    EXPECT_TRUE(Main().View.TitleActive);
    Leave();
    EXPECT_EQ(State(), "docked");
}

TEST_F(DockCommands, FloatingTheHotkeyHidesItAndBringsItBackWhereItWas) {
    StartAt(0);
    desk.PressHotkey();
    EXPECT_EQ(State(), "hidden");
    EXPECT_FALSE(Dock().Hidden) << "the next start shows it";
    desk.Wait(5000);
    EXPECT_EQ(State(), "hidden");
    desk.PressHotkey();
    EXPECT_EQ(State(), "floating");
    EXPECT_EQ(Window(), PlaceAt(0));
    EXPECT_TRUE(HasKeyboard());
}

TEST_F(DockCommands, MaximisedTheHotkeyHidesItAndBringsItBackMaximised) {
    StartAt(Left);
    mnuMaximize_Click(Main());
    desk.PressHotkey();
    EXPECT_EQ(State(), "hidden");
    desk.PressHotkey();
    EXPECT_EQ(State(), "maximised");
    EXPECT_TRUE(HasKeyboard());
}

TEST_F(DockCommands, MinimisedTheHotkeyRestoresAndShowsIt) {
    for (const char* inTaskbar : {"0", "1"}) {
        StartAt(Left, {"[ShowInTaskbar]", inTaskbar});
        desk.Minimize();
        EXPECT_EQ(State(), *inTaskbar == '0' ? "hidden" : "minimised");
        desk.PressHotkey();
        EXPECT_EQ(State(), "out") << inTaskbar;
        EXPECT_EQ(windows.Of(MainWindow).State, WindowState::Normal);
        EXPECT_TRUE(HasKeyboard());
        desk.StopWorkspace();
    }
}

TEST_F(DockCommands, BehindAnOpenDialogTheHotkeyOnlyBringsForward) {
    StartAt(Left);
    const DialogPause dialog(Main());
    desk.PressHotkey();
    desk.Wait(500);
    EXPECT_EQ(State(), "out");
    EXPECT_TRUE(HasKeyboard());
    desk.OtherProgram();
    desk.PressHotkey();
    EXPECT_TRUE(HasKeyboard());
    desk.MoveWindow(PlaceAt(0));
    desk.PressHotkey();
    EXPECT_EQ(State(), "floating") << "nor hides it";
}

TEST_F(DockCommands, PressedAgainAndAgainTheHotkeyNeverLosesTheWorkspace) {
    for (const int at : {0, Top, Left, Right, Bottom}) {
        StartAt(at);
        for (int press = 0; press < 40; ++press) {
            desk.PressHotkey();
            desk.Wait(press % 9 * 20);
            const auto state = State();
            EXPECT_TRUE(state == "out" || state == "sliding" || state == "docked" || state == "floating" ||
                        (at == 0 && state == "hidden"))
                << at << " after " << press << ": " << state;
        }
        desk.StopWorkspace();
    }
}

TEST_F(DockCommands, WithSomethingInTheHandTheHotkeyTakesNeitherWindowNorKeyboard) {
    StartAt(Left);
    Dock().WorkspaceDragging = true;
    desk.PressHotkey();
    EXPECT_EQ(State(), "out");
    EXPECT_TRUE(HasKeyboard());
}

TEST_F(DockCommands, ToggleOfASecondStartDoesWhatTheHotkeyDoes) {
    StartAt(Left);
    SecondStart(Main(), Summons::Toggle);
    desk.Wait(500);
    EXPECT_EQ(State(), "docked");
    SecondStart(Main(), Summons::Toggle);
    EXPECT_EQ(State(), "out");
}

// ---- a second start

TEST_F(DockCommands, ASecondStartOnlyEverBringsOutAndNeverDocksOrHides) {
    StartAt(Left);
    SecondStart(Main(), Summons::Show);
    desk.Wait(500);
    EXPECT_EQ(State(), "out") << "with the keyboard at an edge";
    Leave();
    SecondStart(Main(), Summons::Show);
    EXPECT_EQ(State(), "out") << "docked";
    EXPECT_TRUE(HasKeyboard());
    desk.MoveWindow(PlaceAt(0));
    SecondStart(Main(), Summons::Show);
    EXPECT_EQ(State(), "floating");
    mnuHideAlterDesk_Click(Main());
    SecondStart(Main(), Summons::Show);
    EXPECT_EQ(State(), "floating") << "hidden";
    desk.Minimize();
    SecondStart(Main(), Summons::Show);
    EXPECT_EQ(State(), "floating") << "minimised";
    mnuMaximize_Click(Main());
    SecondStart(Main(), Summons::Show);
    EXPECT_EQ(State(), "maximised");
}

// ---- hidden

TEST_F(DockCommands, HideTakesWindowAndBarAndTheKeyboardGoesBack) {
    StartAt(Left);
    mnuHideAlterDesk_Click(Main());
    EXPECT_EQ(State(), "hidden");
    EXPECT_TRUE(Logged("giveback frmMain"));
    desk.StopWorkspace();
    StartDocked(Left);
    desk.ChooseInTray("Hide Workspace");
    EXPECT_EQ(State(), "hidden");
    desk.Wait(3000);
    EXPECT_EQ(State(), "hidden");
}

TEST_F(DockCommands, HiddenWhileDockedASecondStartShowsItOutAtItsEdge) {
    StartDocked(Right);
    mnuHideAlterDesk_Click(Main());
    SecondStart(Main(), Summons::Show);
    EXPECT_EQ(State(), "out");
    EXPECT_EQ(Window(), (Rect{20000, 4500, 9000, 6000}));
    EXPECT_TRUE(HasKeyboard());
    Leave();
    EXPECT_EQ(State(), "docked");
}

TEST_F(DockCommands, HiddenIsSavedAndTheNextStartShowsNothingUntilItIsCalled) {
    StartDocked(Left);
    mnuHideAlterDesk_Click(Main());
    EXPECT_EQ(Saved("[Hidden]", "Quillmere.REC"), "1");
    desk.ExitWorkspace();
    EXPECT_EQ(Saved("[Hidden]"), "1");
    EXPECT_EQ(Saved("[X]"), "-200");
    desk.StartWorkspace();
    desk.Wait(3000);
    EXPECT_EQ(State(), "hidden");
    EXPECT_FALSE(desk.BarShows());
    desk.PressHotkey();
    EXPECT_EQ(State(), "out");
    desk.ExitWorkspace();
    EXPECT_EQ(Saved("[Hidden]"), "0");
    desk.StartWorkspace();
    EXPECT_EQ(State(), "out");
}

TEST_F(DockCommands, MinimisedWithNoEntryInTheTaskbarItIsHiddenAndNoBarComes) {
    StartAt(Left);
    desk.Minimize();
    EXPECT_EQ(State(), "hidden");
    desk.Wait(3000);
    EXPECT_EQ(State(), "hidden");
    EXPECT_FALSE(Dock().Hidden) << "it is not the user's own hiding";
}

TEST_F(DockCommands, TheHoverRestoresADockedWorkspaceThatSomethingHasMinimised) {
    StartDocked(Left);
    Form_StateChanged(Main(), WindowState::Minimized);
    desk.PointAtBar();
    desk.Wait(600);
    EXPECT_EQ(State(), "out");
    EXPECT_EQ(windows.Of(MainWindow).State, WindowState::Normal);
}

TEST_F(DockCommands, TheTitleRowThatIsPressedMakesADockedPositionNone) {
    StartAt(Left);
    Dock().DockPosition = Left;
    desk.Drag(ElementKind::lblCaption, -1, {600, 0});
    EXPECT_EQ(Dock().DockPosition, 0);
}

// ---- a whole session

TEST_F(DockCommands, AWholeSessionFromTheStartToTheExit) {
    windows.Screens = sideBySide;
    Start({39000, 3000, 9000, 6000});
    AddFile(Main(), "/usr/bin/thing", OnWorkspace(), {3000, 3000});
    const int link = Main().NextShortcutIndex - 1;
    EXPECT_EQ(State(), "out");

    Leave(); // docks by being left
    EXPECT_EQ(State(), "docked");

    desk.PointAtBar(); // comes out under a mouse that rests on the bar
    desk.Wait(600);
    EXPECT_EQ(State(), "out");

    desk.DoubleClickOn(ElementKind::lblShortcut, link); // goes when something is started
    EXPECT_EQ(desk.Computer.Shell.Launches.size(), 1U);
    desk.OtherProgram();
    desk.Wait(500);
    EXPECT_EQ(State(), "docked");

    desk.MouseAway();
    desk.PressHotkey(); // comes with the keyboard and stays while it has it
    desk.Wait(3000);
    EXPECT_EQ(State(), "out");
    EXPECT_TRUE(HasKeyboard());

    desk.PressKey(KeyEscape);
    desk.Wait(500);
    EXPECT_EQ(State(), "docked");

    desk.ChangeScreens({sideBySide[0]}); // unplugged while docked
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Bar().Left, 28800 - 30);
    desk.PressHotkey();
    EXPECT_EQ(Window().Right(), 28800 + 200);
    Leave();
    EXPECT_EQ(State(), "docked");

    desk.ChangeScreens(sideBySide); // and plugged again
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Bar().Left, 48000 - 30);

    desk.ExitWorkspace();
    EXPECT_EQ(Saved("[X]"), fake::Words(48000 - 9000 + 200.0F));
    EXPECT_EQ(Saved("[Y]"), "2400");

    desk.StartWorkspace();
    EXPECT_EQ(State(), "out");
    EXPECT_EQ(EdgeOfWindow(Main(), Window()), Right);
}

} // namespace
} // namespace quill::test
