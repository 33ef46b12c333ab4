#include "dock/tray_icon.h"

#include "dock/dock_fixture.h"

#include <algorithm>

namespace quill::test {
namespace {

struct TrayIcon : DockFixture {
    fake::FakeTray& tray = desk.Computer.Tray;
    std::string Menu() {
        std::string text;
        for (const auto& line : TrayMenu_Lines(Main()))
            text += (line.Enabled ? "" : "(-) ") + line.Caption + "\n";
        return text;
    }
    int IdOf(const std::string& caption) {
        for (const auto& line : TrayMenu_Lines(Main()))
            if (line.Caption == caption) return line.Id;
        return -1;
    }
};

TEST_F(TrayIcon, ItComesWithTheProgramsTitleAMomentAfterTheStart) {
    desk.StartWorkspace();
    EXPECT_FALSE(tray.Shown) << "the first picture does not wait for it";
    desk.Wait(60);
    EXPECT_TRUE(tray.Shown);
    EXPECT_EQ(tray.Tip, "Quillmere v5.70b");
}

TEST_F(TrayIcon, SwitchedOffThereIsNone) {
    Start(PlaceAt(Left), {"[ShowTrayIcon]", "0"});
    EXPECT_FALSE(tray.Shown);
    ShowTrayIcon(Main(), true);
    EXPECT_TRUE(tray.Shown);
    ShowTrayIcon(Main(), false);
    EXPECT_FALSE(tray.Shown);
}

TEST_F(TrayIcon, ItGoesWithTheProgram) {
    StartAt(Left);
    ASSERT_TRUE(tray.Shown);
    desk.ExitWorkspace();
    EXPECT_FALSE(tray.Shown);
}

TEST_F(TrayIcon, AClickBringsTheWorkspaceOutWithTheKeyboardFromWhereverItIs) {
    StartDocked(Left);
    desk.ClickTray();
    EXPECT_EQ(State(), "out");
    EXPECT_TRUE(HasKeyboard());
    mnuHideAlterDesk_Click(Main());
    desk.ClickTray();
    EXPECT_EQ(State(), "out");
    EXPECT_TRUE(HasKeyboard());
    desk.OtherProgram();
    desk.ClickTray();
    EXPECT_TRUE(HasKeyboard());
    desk.Minimize();
    ASSERT_EQ(State(), "hidden");
    desk.ClickTray();
    EXPECT_EQ(State(), "out");
    mnuMaximize_Click(Main());
    desk.OtherProgram();
    desk.ClickTray();
    EXPECT_EQ(State(), "maximised");
    EXPECT_TRUE(HasKeyboard());
}

TEST_F(TrayIcon, AClickNeverPutsItAway) {
    StartAt(Left);
    ASSERT_TRUE(HasKeyboard());
    desk.ClickTray();
    desk.Wait(500);
    EXPECT_EQ(State(), "out");
}

TEST_F(TrayIcon, OnlyTheLeftButtonCallsIt) {
    StartDocked(Left);
    desk.ClickTray(MouseButton::Right);
    desk.ClickTray(MouseButton::Middle);
    EXPECT_EQ(State(), "docked");
}

TEST_F(TrayIcon, DuringTheLoadAndTheEndAClickDoesNothingAndThereIsNoMenu) {
    StartDocked(Left);
    Main().IsLoading = true;
    desk.ClickTray();
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Menu(), "");
    Main().IsLoading = false;
    Main().IsExiting = true;
    desk.ClickTray();
    EXPECT_EQ(State(), "docked");
    EXPECT_EQ(Menu(), "");
    TrayMenu_Click(Main(), 0);
    EXPECT_EQ(State(), "docked");
}

TEST_F(TrayIcon, ItsMenuShowsCentersHidesAndEnds) {
    StartDocked(Left);
    EXPECT_EQ(Menu(), "&Show Workspace\n&Center Workspace\n&Hide Workspace\n-\nExi&t\n");
    desk.ChooseInTray("Show Workspace");
    EXPECT_EQ(State(), "out");
    EXPECT_TRUE(HasKeyboard());
    desk.ChooseInTray("Center Workspace");
    EXPECT_EQ(State(), "floating");
    desk.ChooseInTray("Hide Workspace");
    EXPECT_EQ(State(), "hidden");
    desk.ChooseInTray("Exit");
    EXPECT_EQ(desk.Computer.Session.QuitCode, 0);
}

TEST_F(TrayIcon, WhatIsHiddenCannotBeHiddenAgainAlsoFromAnOldMenu) {
    StartAt(Left);
    const int hide = IdOf("&Hide Workspace");
    mnuHideAlterDesk_Click(Main());
    EXPECT_EQ(Menu(), "&Show Workspace\n&Center Workspace\n(-) &Hide Workspace\n-\nExi&t\n");
    windows.Log.clear();
    TrayMenu_Click(Main(), hide);
    EXPECT_TRUE(windows.Log.empty());
}

TEST_F(TrayIcon, ALineThatIsNotThereDoesNothing) {
    StartDocked(Left);
    TrayMenu_Click(Main(), 0); // no menu was ever asked for
    static_cast<void>(Menu());
    TrayMenu_Click(Main(), -1);
    TrayMenu_Click(Main(), 99);
    EXPECT_EQ(State(), "docked");
}

} // namespace
} // namespace quill::test
