// The nine slots: which shortcut has a digit, how it starts, and what is told of it.
#include "shortcuts/speed_launch.h"

#include "core/caption.h"
#include "core/menus.h"
#include "fake/desk.h"
#include "persistence/link_record.h"
#include "shortcuts/at_work.h"

#include <cctype>

namespace quill {
namespace {

struct SpeedLaunch : AtWork {
    SpeedLaunch() {
        Main.View.Window = {3000, 3000, 9000, 6000};
        Main.View.Visible = true;
        Main.View.Caption = NormalCaption(Main);
    }
    int InSlot(int digit, const std::string& path) {
        const int index = File(path);
        Main.Link(index).SpeedLaunch = static_cast<std::uint8_t>(digit);
        return index;
    }
    std::string Normal() { return NormalCaption(Main); }
};

// ---- the slots

TEST_F(SpeedLaunch, ASlotIsFoundByItsDigit) {
    File("/none");
    const int one = InSlot(1, "/one"), nine = InSlot(9, "/nine");
    EXPECT_EQ(ShortcutInSlot(Main, 1), one);
    EXPECT_EQ(ShortcutInSlot(Main, 9), nine);
    EXPECT_EQ(ShortcutInSlot(Main, 5), -1);
}

TEST_F(SpeedLaunch, OfTwoWithOneDigitTheFirstInTableOrderHasIt) {
    const int first = InSlot(4, "/first");
    InSlot(4, "/second");
    EXPECT_EQ(ShortcutInSlot(Main, 4), first);
    DeleteShortcut(Main, first);
    EXPECT_EQ(Main.Link(ShortcutInSlot(Main, 4)).Path, "/second");
}

TEST_F(SpeedLaunch, NothingIsASlotButOneToNine) {
    InSlot(0, "/none");
    InSlot(10, "/ten");
    for (const int digit : {-1, 0, 10, 255}) EXPECT_EQ(ShortcutInSlot(Main, digit), -1) << digit;
}

TEST_F(SpeedLaunch, ARemovedShortcutLeavesItsSlotEmpty) {
    DeleteShortcut(Main, InSlot(3, "/three"));
    EXPECT_EQ(ShortcutInSlot(Main, 3), -1);
    EXPECT_FALSE(RunSpeedLaunchSlot(Main, 3));
    EXPECT_EQ(Started(), "");
}

// ---- starting

TEST_F(SpeedLaunch, ADigitStartsItsSlotAndNoOther) {
    InSlot(1, "/usr/bin/one");
    InSlot(2, "/usr/bin/two");
    EXPECT_TRUE(RunSpeedLaunchSlot(Main, 2));
    ASSERT_EQ(Computer.Shell.Launches.size(), 1U);
    EXPECT_EQ(Computer.Shell.Launches[0].File, "/usr/bin/two");
    EXPECT_EQ(Recent(), "two");
}

TEST_F(SpeedLaunch, AnEmptySlotIsNoErrorAndDoesNothing) {
    InSlot(1, "/one");
    EXPECT_FALSE(RunSpeedLaunchSlot(Main, 7));
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Main.View.Caption, Normal());
}

TEST_F(SpeedLaunch, AVisibleWorkspaceAtAnEdgeStaysThere) {
    Main.View.Window = {0, 3000, 9000, 6000};
    Main.Settings.Animate = false;
    InSlot(1, "/one");
    RunSpeedLaunchSlot(Main, 1);
    EXPECT_EQ(Computer.Shell.Launches.size(), 1U);
    EXPECT_EQ(Main.Dock.DockPosition, 0);
    EXPECT_TRUE(Main.View.Visible);
}

struct KeyRow {
    int Code;
    bool Used;
    const char* What;
};

TEST_F(SpeedLaunch, OnlyTheDigitsOneToNineAreItsKeys) {
    for (int digit = 1; digit <= 9; ++digit) InSlot(digit, "/usr/bin/" + std::to_string(digit));
    for (const KeyRow& row : {
             KeyRow{'0', false, "zero is no key of it"},
             KeyRow{'1', true, "the first"},
             KeyRow{'9', true, "the last"},
             KeyRow{':', false, "behind nine"},
             KeyRow{'A', false, "a letter"},
             KeyRow{KeyReturn, false, "Enter"},
             KeyRow{KeyTab, false, "a small code, as a slot's number is"},
         }) {
        Computer.Shell.Launches.clear();
        EXPECT_EQ(SpeedLaunchKey(Main, row.Code), row.Used) << row.What;
        EXPECT_EQ(Computer.Shell.Launches.size(), row.Used ? 1U : 0U) << row.What;
    }
}

TEST_F(SpeedLaunch, EveryDigitStartsItsOwn) {
    for (int digit = 9; digit >= 1; --digit) InSlot(digit, "/usr/bin/" + std::to_string(digit));
    for (int digit = 1; digit <= 9; ++digit) {
        ASSERT_TRUE(SpeedLaunchKey(Main, '0' + digit));
        EXPECT_EQ(Computer.Shell.Launches.back().File, "/usr/bin/" + std::to_string(digit));
    }
}

TEST_F(SpeedLaunch, AConfirmShortcutInASlotStillAsks) {
    Main.Link(InSlot(1, "/usr/bin/editor")).Confirm = true;
    Person().Answer(AnswerNo);
    EXPECT_TRUE(RunSpeedLaunchSlot(Main, 1)) << "there is one";
    EXPECT_EQ(Person().LastBox(), "Start editor?");
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Main.View.Caption, Normal()) << "nothing was started, and nothing is told";
    Person().Answer(AnswerYes);
    RunSpeedLaunchSlot(Main, 1);
    EXPECT_EQ(Computer.Shell.Launches.size(), 1U);
    EXPECT_EQ(Main.View.Caption, "editor");
}

TEST_F(SpeedLaunch, ATagStartShortcutInASlotStartsItsTagGroup) {
    const int slot = InSlot(1, "/usr/bin/one"), other = File("/usr/bin/two"),
              stranger = File("/usr/bin/three");
    Main.Link(slot).Tags = Main.Link(other).Tags = "Morning";
    Main.Link(stranger).Tags = "Evening";
    Main.Link(slot).TagStart = true;
    RunSpeedLaunchSlot(Main, 1);
    ASSERT_EQ(Computer.Shell.Launches.size(), 2U) << Started();
    EXPECT_EQ(Computer.Shell.Launches[0].File, "/usr/bin/one");
    EXPECT_EQ(Computer.Shell.Launches[1].File, "/usr/bin/two");
}

TEST_F(SpeedLaunch, AProgramThatEndsDuringTheQuestionIsLeftAlone) {
    Main.Link(InSlot(1, "/usr/bin/editor")).Confirm = true;
    Person().OnBox = [&](const fake::Box&) { Main.IsExiting = true; };
    Person().Answer(AnswerYes);
    RunSpeedLaunchSlot(Main, 1);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Main.View.Caption, Normal());
}

TEST_F(SpeedLaunch, OneThatIsRemovedDuringTheQuestionIsNotStarted) {
    const int slot = InSlot(1, "/usr/bin/editor");
    Main.Link(slot).Confirm = true;
    Person().OnBox = [&](const fake::Box&) { DeleteShortcut(Main, slot); };
    Person().Answer(AnswerYes);
    EXPECT_TRUE(RunSpeedLaunchSlot(Main, 1));
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Main.View.Caption, Normal());
}

// ---- what is told

TEST_F(SpeedLaunch, AStartIsToldInTheTitleAndThenNoMore) {
    fake::Connect(Computer, &Main);
    InSlot(1, "/usr/bin/editor");
    RunSpeedLaunchSlot(Main, 1);
    EXPECT_EQ(Main.View.Caption, "editor");
    Computer.Clock.Advance(PassingCaptionTime);
    EXPECT_EQ(Main.View.Caption, Normal());
    fake::Connect(Computer, nullptr);
}

TEST_F(SpeedLaunch, OfAWorkspaceBesideAllScreensTheStartIsToldInFull) {
    InSlot(1, "/usr/bin/editor");
    Main.View.Window = {60000, 3000, 9000, 6000};
    RunSpeedLaunchSlot(Main, 1);
    EXPECT_EQ(Main.View.Caption, "Speed Launch: editor");
}

TEST_F(SpeedLaunch, OfAWorkspaceOnItsWayOutTheStartIsToldInFull) {
    InSlot(1, "/usr/bin/editor");
    Main.Dock.DockPosition = 2;
    RunSpeedLaunchSlot(Main, 1);
    EXPECT_EQ(Main.View.Caption, "Speed Launch: editor");
}

TEST_F(SpeedLaunch, AHiddenWorkspaceTellsNothing) {
    InSlot(1, "/usr/bin/editor");
    Main.View.Visible = false;
    RunSpeedLaunchSlot(Main, 1);
    EXPECT_EQ(Computer.Shell.Launches.size(), 1U);
    EXPECT_EQ(Main.View.Caption, Normal());
}

TEST_F(SpeedLaunch, ARefusedStartIsNotToldAsOne) {
    InSlot(1, "/usr/bin/editor");
    Computer.Shell.FailNext({Reason::Refused, "no"});
    EXPECT_TRUE(RunSpeedLaunchSlot(Main, 1));
    EXPECT_EQ(Computer.Shell.Launches.size(), 1U);
    EXPECT_EQ(Main.View.Caption, Normal());
}

// ---- keys of the workspace

struct SpeedLaunchAtDesk : testing::Test {
    SpeedLaunchAtDesk() {
        desk.StartWorkspace();
        AddFile(*desk.Main, "/usr/bin/editor", OnWorkspace(), {600, 900});
        desk.Main->Link(Editor()).SpeedLaunch = 3;
        desk.Turn();
    }
    int Editor() { return desk.ShortcutNamed("editor"); }
    std::size_t Starts() { return desk.Computer.Shell.Launches.size(); }
    bool BoxIsOpen() { return desk.Main->Keys.PicJumpToLink.Visible; }
    fake::Desk desk;
};

TEST_F(SpeedLaunchAtDesk, ADigitWithASlotStartsItAndOpensNothing) {
    desk.Type("3");
    EXPECT_EQ(Starts(), 1U);
    EXPECT_FALSE(BoxIsOpen());
}

TEST_F(SpeedLaunchAtDesk, ADigitWithNoSlotOpensTheLauncherWithThatDigitAsItsText) {
    desk.Type("4");
    EXPECT_EQ(Starts(), 0U);
    EXPECT_TRUE(BoxIsOpen());
    EXPECT_EQ(desk.Typed(), "4");
}

TEST_F(SpeedLaunchAtDesk, ZeroIsNoSpeedLaunchKey) {
    desk.Main->Link(Editor()).SpeedLaunch = 0;
    desk.Type("0");
    EXPECT_EQ(Starts(), 0U);
    EXPECT_EQ(desk.Typed(), "0");
}

TEST_F(SpeedLaunchAtDesk, WithDigitsForTheCalculatorCtrlAndADigitIsSpeedLaunch) {
    desk.Main->Settings.CalcOrSpeedLaunch = false;
    desk.Type("3");
    EXPECT_EQ(Starts(), 0U);
    EXPECT_EQ(desk.Typed(), "=3");
    desk.PressKey(KeyEscape);
    desk.PressKey(KeyEscape);
    ASSERT_FALSE(BoxIsOpen());
    desk.PressKey('3', true);
    EXPECT_EQ(Starts(), 1U);
}

TEST_F(SpeedLaunchAtDesk, ASlotStartedOutOfTheOpenBoxClearsItsText) {
    desk.Type("xyz");
    ASSERT_TRUE(BoxIsOpen());
    desk.PressKey('3', true);
    EXPECT_EQ(Starts(), 1U);
    EXPECT_EQ(desk.Typed(), "");
}

TEST_F(SpeedLaunchAtDesk, TheSlashOpensTheWindowWithAndWithoutShift) {
    desk.Main->Dock.Suspended = true; // the workspace stays where it is
    desk.Type("/");
    EXPECT_TRUE(desk.Main->Links.QuickLaunch.Loaded);
    CloseSpeedLaunch(*desk.Main);
    desk.PressKey(191, false, true);
    EXPECT_TRUE(desk.Main->Links.QuickLaunch.Loaded);
}

// ---- Send To

TEST_F(SpeedLaunch, SendToOffersWhatHasADigitInTableOrder) {
    const int five = InSlot(5, "/five");
    File("/none");
    const int one = InSlot(1, "/one"), gone = InSlot(2, "/gone");
    DeleteShortcut(Main, gone);
    EXPECT_EQ(SendToShortcuts(Main), (std::vector{five, one}));
}

TEST_F(SpeedLaunch, SendToOffersNothingWhereAllSlotsAreEmpty) {
    File("/none");
    EXPECT_TRUE(SendToShortcuts(Main).empty());
}

// ---- the recent list, as the slots leave it

TEST_F(SpeedLaunch, ARemovedShortcutLeavesTheRecentListAndTheOthersMoveUp) {
    const int one = InSlot(1, "/one"), two = InSlot(2, "/two"), three = InSlot(3, "/three");
    for (int digit = 1; digit <= 3; ++digit) RunSpeedLaunchSlot(Main, digit);
    ASSERT_EQ(Recent(), "three, two, one");
    DeleteShortcut(Main, two);
    EXPECT_EQ(Recent(), "three, one");
    EXPECT_EQ(Main.Links.Recent[0].Tag, three);
    EXPECT_EQ(Main.Links.Recent[1].Tag, one);
    DeleteShortcut(Main, three);
    EXPECT_EQ(Recent(), "one") << "also the first of the list";
    DeleteShortcut(Main, one);
    EXPECT_EQ(Recent(), "");
}

} // namespace
} // namespace quill
