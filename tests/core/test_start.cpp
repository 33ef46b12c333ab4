#include "core/caption.h"
#include "core/splash.h"
#include "core/start.h"
#include "fake/desk.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using fake::Desk;

std::string Ini(const std::string& body = "") {
    return "108\r\n" + body;
}

std::string Note(const std::string& name, const std::string& text) {
    return "108\r\n[Container]\r\n-1\r\n[Name]\r\n" + name + "\r\n[NOTE ON]\r\n1\r\n[START Note]\r\n" + text +
           "\r\n[END Note]\r\n[X]\r\n600\r\n[Y]\r\n600\r\n[W]\r\n3000\r\n[H]\r\n3000\r\n";
}

std::string Editor(const std::string& path = "/usr/bin/editor") {
    return "[Link]\r\n[Size]\r\n10\r\n[LinkX]\r\n100\r\n[LinkY]\r\n240\r\n[LinkLabel]\r\nEditor\r\n["
           "LinkType]"
           "\r\n2\r\n[LinkPath]\r\n" +
           path + "\r\n[RunIn]\r\n1\r\n[End Link]\r\n";
}

std::string StartupContainer(const std::string& name) {
    return "108\r\n[Container]\r\n-1\r\n[Name]\r\n" + name + "\r\n" + Editor();
}

struct Start : testing::Test {
    Desk desk;
    void TearDown() override { EXPECT_EQ(desk.Person().Unexpected, 0) << desk.Person().LastBox(); }
};

TEST_F(Start, HelpAndVersionPrintAndNeedNoDisplay) {
    EXPECT_EQ(desk.RunProgram({"--version"}), 0);
    EXPECT_EQ(desk.Computer.Session.Out, "Quillmere v5.70b\n");
    EXPECT_EQ(desk.RunProgram({"--help"}), 0);
    EXPECT_EQ(desk.Computer.Session.DisplayOpened, 0);
    EXPECT_TRUE(desk.Computer.Instance.Words.empty());
}

TEST_F(Start, AnUnknownOptionIsNamedAndNothingStarts) {
    EXPECT_EQ(desk.RunProgram({"--bakcup"}), 2);
    EXPECT_NE(desk.Computer.Session.Err.find("--bakcup"), std::string::npos);
    EXPECT_EQ(desk.Computer.Session.DisplayOpened, 0);
}

TEST_F(Start, TheHelpBoxIsPrintedWhereThereIsNoDisplay) {
    desk.Computer.Session.DisplayFailure = Failure{Reason::Other, "no display"};
    EXPECT_EQ(desk.RunProgram({"/?"}), 0);
    EXPECT_EQ(desk.Computer.Session.Out, CommandLineHelp() + "\n");
}

TEST_F(Start, TheHelpBoxShowsWithItsTitleAndIcon) {
    desk.Person().Answer(AnswerOk);
    EXPECT_EQ(desk.RunProgram({"/?"}), 0);
    ASSERT_EQ(desk.Person().Boxes.size(), 1U);
    EXPECT_EQ(desk.Person().Boxes[0].Title, "Quillmere");
    EXPECT_EQ(desk.Person().Boxes[0].Flags, 64);
}

TEST_F(Start, WithoutADisplayItSaysSoAndEnds) {
    desk.Computer.Session.DisplayFailure = Failure{Reason::Other, "No display is set."};
    EXPECT_EQ(desk.RunProgram({}), 1);
    EXPECT_EQ(desk.Computer.Session.Err, "quillmere: No display is set.\n");
}

TEST_F(Start, AProgramInTheRootOfADriveRefusesWithThePath) {
    desk.Computer.Places.Program = "/media/stick";
    desk.Computer.Places.Mounts["/media/stick"] = DriveKind::Removable;
    desk.Person().Answer(AnswerOk);
    EXPECT_EQ(desk.RunProgram({}), 1);
    ASSERT_EQ(desk.Person().Boxes.size(), 1U);
    EXPECT_EQ(desk.Person().Boxes[0].Text, "Quillmere cannot run from the root folder: /media/stick");
    EXPECT_EQ(desk.Person().Boxes[0].Flags, BoxCritical | BoxSystemModal);
    EXPECT_TRUE(desk.Computer.Instance.Words.empty());
}

TEST_F(Start, ASecondStartCallsTheFirstAndMakesNoWindow) {
    desk.Computer.Instance.Next(Claim::Called);
    EXPECT_EQ(desk.RunProgram({}), 0);
    EXPECT_EQ(desk.Computer.Session.DisplayOpened, 0);
    EXPECT_EQ(desk.Computer.Instance.Words, std::vector<Summons>{Summons::Show});
}

TEST_F(Start, ToggleSendsTheHotkeysWord) {
    desk.Computer.Instance.Next(Claim::Called);
    EXPECT_EQ(desk.RunProgram({"--toggle"}), 0);
    EXPECT_EQ(desk.Computer.Instance.Words, std::vector<Summons>{Summons::Toggle});
}

TEST_F(Start, AFirstCopyThatDoesNotAnswerIsTold) {
    desk.Computer.Instance.Next(Claim::NoAnswer);
    EXPECT_EQ(desk.RunProgram({}), 1);
    EXPECT_EQ(desk.Computer.Session.Err, "quillmere: it runs already and does not answer.\n");
}

TEST_F(Start, ABackupFromASecondStartDoesNotDisturbTheFirst) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini());
    EXPECT_EQ(desk.RunProgram({"/backup", "/silent"}), 0);
    EXPECT_TRUE(desk.Computer.Instance.Words.empty());
    EXPECT_EQ(desk.Computer.Session.DisplayOpened, 0);
    EXPECT_TRUE(desk.Files().Exists(desk.Settings("Quillmere_Backup.zip")));
}

TEST_F(Start, ABackupSaysWhenItIsComplete) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini());
    desk.Person().Answer(AnswerOk);
    EXPECT_EQ(desk.RunProgram({"/backup"}), 0);
    EXPECT_EQ(desk.Person().LastBox(), "Backup Complete");
}

TEST_F(Start, AFailedBackupIsToldAndIsNotComplete) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini());
    desk.Files().MakeReadOnly(fake::SettingsFolder);
    EXPECT_EQ(desk.RunProgram({"/backup"}), 1);
    EXPECT_TRUE(desk.Person().Boxes.empty());
    EXPECT_NE(desk.Computer.Session.Err.find("the backup could not be made"), std::string::npos);
}

TEST_F(Start, AFileNamedLocationrootMakesItPortable) {
    desk.Files().Put("/opt/quillmere/bin/LOCATIONROOT", "any size");
    desk.StartWorkspace();
    EXPECT_TRUE(desk.Main->PortableMode);
    EXPECT_EQ(desk.Main->SettingsFolder, "/opt/quillmere/bin");
}

TEST_F(Start, AFolderNamedLocationrootMakesItPortableToo) {
    ASSERT_TRUE(desk.Files().MakeFolder("/opt/quillmere/bin/LOCATIONROOT"));
    desk.StartWorkspace();
    EXPECT_TRUE(desk.Main->PortableMode);
}

TEST_F(Start, WithNoConfigurationFolderTheSettingsLieInTheCurrentOne) {
    desk.Computer.Places.Folders.erase(SpecialFolder::Configuration);
    frmMain Main(desk.Computer.MakePlatform());
    SettleSettingsFolder(Main);
    EXPECT_EQ(Main.SettingsFolder, "Quillmere");
}

TEST_F(Start, AFirstRunShowsTheUsersFoldersThatExist) {
    for (const char* folder :
         {"/home/user", "/home/user/Pictures", "/home/user/Desktop", "/usr/share/applications"})
        ASSERT_TRUE(desk.Files().MakeFolder(folder));
    desk.Files().RemoveFolder("/home/user/Documents").Ok();
    desk.StartWorkspace();
    auto& Main = *desk.Main;
    std::string shown;
    for (const auto& row : Live(Main.Shortcuts)) {
        const auto& view = Main.LinkView(row.Index);
        shown += view.lblShortcut.Caption + " " +
                 std::to_string(static_cast<int>(view.lblShortcut.Place.Top)) + " " +
                 std::to_string(row.Object.FontSize) + " " + row.Object.Tags + "\n";
    }
    EXPECT_EQ(shown,
              "user 1010 12 User Folders\nPictures 2400 10 User Folders\nDesktop 1610 10 User Folders\n"
              "Programs 2790 10 User Folders\n");
    EXPECT_EQ(Main.View.Window, (Rect{28800.0F / 2 - 10065.0F / 2, -100, 10065, 7500}));
    EXPECT_EQ(Main.Settings.FontName, "Segoe UI");
}

TEST_F(Start, ASettingsFileOfItsVersionAloneIsNoFirstRun) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini());
    desk.StartWorkspace();
    EXPECT_EQ(desk.Main->NextShortcutIndex, 0);
    EXPECT_EQ(desk.Main->Settings.MaxContainers, 50);
}

TEST_F(Start, AGapInTheNumbersEndsTheReading) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini());
    desk.Files().Put(desk.Settings("Containers/0.con"), Note("first", "a"));
    desk.Files().Put(desk.Settings("Containers/2.con"), Note("third", "c"));
    desk.StartWorkspace();
    EXPECT_EQ(desk.Containers(), std::vector<std::string>{"first"});
}

TEST_F(Start, TheStartupContainerStartsAndItsLowerCaseNamesakeDoesNot) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini());
    desk.Files().Put(desk.Settings("Containers/0.con"), StartupContainer("#STARTUP"));
    desk.Files().Put(desk.Settings("Containers/1.con"), StartupContainer("#startup"));
    desk.StartWorkspace();
    ASSERT_EQ(desk.Computer.Shell.Launches.size(), 1U);
    EXPECT_EQ(desk.Computer.Shell.Launches[0].File, "/usr/bin/editor");
}

TEST_F(Start, WhatStartsWithTheWorkspaceComesInItsOrderAndDoesNotGetInFrontOfIt) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini("[OnTop]\r\n1\r\n"));
    desk.Files().Put(desk.Settings("Containers/0.con"), StartupContainer("#STARTUP") + Editor("/usr/bin/a"));
    bool loading = false;
    desk.Computer.Shell.OnLaunch = [&](const auto&) { loading = desk.Main->IsLoading; };
    desk.StartWorkspace();
    ASSERT_EQ(desk.Computer.Shell.Launches.size(), 2U);
    EXPECT_EQ(desk.Computer.Shell.Launches[0].File, "/usr/bin/editor");
    EXPECT_EQ(desk.Computer.Shell.Launches[1].File, "/usr/bin/a");
    EXPECT_TRUE(loading);
    EXPECT_TRUE(desk.Computer.Windows.Of(MainWindow).OnTop);
}

TEST_F(Start, AtTheLimitOfContainersTheProgramEndsAndEveryFileIsStillThere) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini("[MaxContainers]\r\n2\r\n"));
    for (const char* name : {"0.con", "1.con", "2.con", "0.REC", "1.REC", "2.REC"})
        desk.Files().Put(desk.Settings(std::string("Containers/") + name), Note(name, "a"));
    const auto before = desk.Files().Dump(desk.Settings(""));
    desk.Person().Answer(AnswerOk);
    desk.RunProgram({"--nosplash"}, [](frmMain&) { FAIL() << "it runs"; });
    EXPECT_EQ(
        desk.Person().LastBox(),
        "There is a maximum of 2 containers in the workspace. You can manually change it in the .ini file.");
    EXPECT_EQ(desk.Files().Dump(desk.Settings("")), before);
}

TEST_F(Start, WhatALoadFoundIsWrittenBackAtTheExit) {
    const std::string window =
        "[Hidden]\r\n1\r\n[WindowState]\r\n1\r\n[Maximized]\r\n1\r\n[X]\r\n1500.5\r\n[Y]\r\n-100\r\n"
        "[W]\r\n9000\r\n[H]\r\n6000\r\n[SUSPEND_AUTO_COLLAPSE]\r\n1\r\n[LOCKED]\r\n1\r\n";
    const std::string recent = "[Recent 1]\r\nEditor\r\n100\r\n240\r\npicBack\r\n";
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini(window + "[Effect]\r\n0\r\n" + recent + Editor()));
    desk.Files().Put(desk.Settings("Containers/0.con"), Note("first", "a") + "[Flipped]\r\n1\r\n");
    desk.Files().Put(desk.Settings("Containers/1.con"), Note("second", "b") + "[Folded]\r\n1\r\n");
    desk.Files().Put(desk.Settings("Containers/2.con"), Note("third", "c") + "[Shrink]\r\n1\r\n");
    desk.StartWorkspace();
    desk.ExitWorkspace();
    const auto ini = desk.Files().Get(desk.Settings("Quillmere.ini"));
    EXPECT_TRUE(ini.starts_with("108\r\n" + window)) << ini;
    EXPECT_NE(ini.find("[Effect]\r\n0\r\n"), std::string::npos);
    EXPECT_NE(ini.find(recent), std::string::npos);
    const auto written = desk.Files().Dump(desk.Settings(""));
    desk.StartWorkspace();
    desk.ExitWorkspace();
    EXPECT_EQ(desk.Files().Dump(desk.Settings("")), written);
}

TEST_F(Start, TheWindowStandsWhereItStood) {
    desk.Files().Put(desk.Settings("Quillmere.ini"),
                     Ini("[X]\r\n 1500\r\n[Y]\r\n2250.5\r\n[W]\r\n9000\r\n[H]\r\n6000\r\n"));
    desk.StartWorkspace();
    EXPECT_EQ(desk.Main->View.Window, (Rect{1500, 2250.5F, 9000, 6000}));
    EXPECT_TRUE(desk.Computer.Windows.IsVisible(MainWindow));
}

TEST_F(Start, AWindowBeyondEveryMonitorIsBroughtBack) {
    desk.Files().Put(desk.Settings("Quillmere.ini"),
                     Ini("[X]\r\n90000\r\n[Y]\r\n300\r\n[W]\r\n9000\r\n[H]\r\n6000\r\n"));
    desk.StartWorkspace();
    EXPECT_EQ(desk.Main->View.Window, (Rect{28800 - 9000, 300, 9000, 6000}));
}

TEST_F(Start, AHiddenWorkspaceStaysHiddenUntilASecondStartCallsIt) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini("[Hidden]\r\n1\r\n"));
    desk.StartWorkspace();
    EXPECT_FALSE(desk.Computer.Windows.IsVisible(MainWindow));
    SecondStart(*desk.Main, Summons::Show);
    EXPECT_TRUE(desk.Computer.Windows.IsVisible(MainWindow));
    EXPECT_EQ(desk.Computer.Windows.Foreground, MainWindow);
}

TEST_F(Start, WindowStateTwoIsNotRestoredAndOneIs) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini("[WindowState]\r\n2\r\n"));
    desk.StartWorkspace();
    EXPECT_EQ(desk.Main->View.State, WindowState::Normal);
    desk.StopWorkspace();
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini("[WindowState]\r\n1\r\n"));
    desk.StartWorkspace();
    EXPECT_EQ(desk.Computer.Windows.Of(MainWindow).State, WindowState::Minimized);
}

TEST_F(Start, AMaximisedWorkspaceComesBackMaximisedAndRestoresToItsPlace) {
    desk.Files().Put(desk.Settings("Quillmere.ini"),
                     Ini("[Maximized]\r\n1\r\n[X]\r\n1500\r\n[Y]\r\n1500\r\n[W]\r\n9000\r\n[H]\r\n6000\r\n"));
    desk.StartWorkspace();
    EXPECT_EQ(desk.Main->View.Window, (Rect{0, 0, 28800, 15750}));
    desk.PressKey(KeyF1 + 10);
    EXPECT_EQ(desk.Main->View.Window, (Rect{1500, 1500, 9000, 6000}));
}

TEST_F(Start, AMaximisedWorkspaceWithoutAPlaceIsMaximisedToo) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini("[Maximized]\r\n1\r\n"));
    desk.StartWorkspace();
    EXPECT_TRUE(desk.Main->Dock.Maximized);
    EXPECT_EQ(desk.Main->View.Window, (Rect{0, 0, 28800, 15750}));
    EXPECT_EQ(desk.Main->View.RestoreRect, FirstPlace(*desk.Main));
}

TEST_F(Start, ALockedWorkspaceShowsItsLock) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini("[LOCKED]\r\n1\r\n"));
    desk.StartWorkspace();
    EXPECT_TRUE(desk.Sees(ElementKind::PicLockToolbar));
    EXPECT_FALSE(desk.Sees(ElementKind::PicUnLockToolbar));
}

TEST_F(Start, EffectIsPutInPlaceOnlyAtTheEnd) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini());
    desk.StartWorkspace();
    EXPECT_TRUE(desk.Main->Settings.Effect);
    desk.StopWorkspace();
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini("[Effect]\r\n0\r\n"));
    desk.StartWorkspace();
    EXPECT_FALSE(desk.Main->Settings.Effect);
}

TEST_F(Start, AQuickLoadShowsNoSplash) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini());
    desk.StartWorkspace({});
    EXPECT_EQ(desk.Computer.Session.SplashesShown, 0);
    EXPECT_FALSE(desk.Computer.Windows.IsVisible(SplashWindow));
}

TEST_F(Start, WithNosplashEvenALongLoadShowsNone) {
    for (const auto& switches : {std::vector<std::string>{}, {"/nosplash"}, {"/nosplash", "/backup"}}) {
        desk.StartWorkspace(switches);
        desk.Main->IsLoading = true;
        desk.Wait(SplashDelay + 1);
        ShowSplashText(*desk.Main, "Loading Work...");
        EXPECT_EQ(desk.Computer.Windows.IsVisible(SplashWindow), switches.empty());
        EndSplash(*desk.Main);
        desk.StopWorkspace();
    }
}

TEST_F(Start, AFeedOptionDoesNotStopTheStart) {
    desk.Files().Put(desk.Settings("Quillmere.ini"), Ini());
    desk.StartWorkspace({"/loadrss"});
    EXPECT_FALSE(desk.Main->IsLoading);
}

} // namespace
} // namespace quill
