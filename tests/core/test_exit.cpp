#include "core/start.h"
#include "fake/desk.h"
#include "persistence/save.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using fake::Desk;

std::string Container(const std::string& name) {
    return "108\r\n[Container]\r\n-1\r\n[Name]\r\n" + name +
           "\r\n[X]\r\n600\r\n[Y]\r\n600\r\n[W]\r\n3000\r\n[H]\r\n3000\r\n";
}

struct Exit : testing::Test {
    Desk desk;
    void SetUp() override {
        desk.Files().Put(desk.Settings("Quillmere.ini"), "108\r\n");
        desk.Files().Put(desk.Settings("Containers/0.con"), Container("Work"));
        desk.Files().Put("/opt/quillmere/bin/Reloader", "program");
    }
    void TearDown() override { EXPECT_EQ(desk.Person().Unexpected, 0) << desk.Person().LastBox(); }
    std::string Ini() { return desk.Files().Read(desk.Settings("Quillmere.ini"), 1 << 20).Value(); }
};

TEST_F(Exit, ItAlwaysSavesAndNeverAsks) {
    EXPECT_EQ(desk.RunProgram({"--nosplash"},
                              [](frmMain& Main) {
                                  Main.ConView(0).ContainerLabel.Caption = "Renamed";
                                  mnuExitApp_Click(Main);
                              }),
              0);
    const auto text = desk.Files().Read(desk.Settings("Containers/0.con"), 1 << 20).Value();
    EXPECT_NE(text.find("[Name]\r\nRenamed\r\n"), std::string::npos);
}

TEST_F(Exit, TheDesktopsSessionEndSavesToo) {
    desk.RunProgram({"--nosplash"}, [](frmMain& Main) {
        Main.ConView(0).ContainerLabel.Caption = "Renamed";
        SessionEnd(Main);
    });
    const auto text = desk.Files().Read(desk.Settings("Containers/0.con"), 1 << 20).Value();
    EXPECT_NE(text.find("[Name]\r\nRenamed\r\n"), std::string::npos);
}

TEST_F(Exit, AClosedWindowIsAnExit) {
    EXPECT_EQ(desk.RunProgram({"--nosplash"}, [](frmMain& Main) { Form_Closing(Main); }), 0);
}

TEST_F(Exit, AfterItsOwnSaveNothingIsWrittenAnyMore) {
    desk.StartWorkspace();
    UnloadMain(*desk.Main);
    const auto before = desk.Files().Dump(desk.Settings(""));
    SaveWorkspace(*desk.Main, true, false);
    SaveContainers(*desk.Main, true);
    EXPECT_EQ(desk.Files().Dump(desk.Settings("")), before);
}

TEST_F(Exit, ItLeavesNoRecoverySet) {
    desk.StartWorkspace();
    SaveWorkspace(*desk.Main, true, false);
    desk.ExitWorkspace();
    EXPECT_FALSE(desk.Files().Exists(desk.Settings("Quillmere.REC")));
    EXPECT_FALSE(desk.Files().Exists(desk.Settings("Containers/0.REC")));
}

TEST_F(Exit, AnErrorInTheSaveDoesNotKeepItFromEnding) {
    EXPECT_EQ(desk.RunProgram({"--nosplash"},
                              [&](frmMain& Main) {
                                  desk.Files().MakeReadOnly(fake::SettingsFolder);
                                  mnuExitApp_Click(Main);
                              }),
              0);
    EXPECT_NE(desk.Computer.Session.Err, "");
}

TEST_F(Exit, AnExpandedTileIsSavedAsATile) {
    desk.StartWorkspace();
    desk.ClickOn(ElementKind::shapeShrink, 0); // becomes a tile
    desk.Wait(1000);
    desk.ClickOn(ElementKind::ContainerIcon, 0);
    ASSERT_EQ(desk.Main->Group.ExpandedContainer, 0);
    desk.ExitWorkspace();
    const auto text = desk.Files().Read(desk.Settings("Containers/0.con"), 1 << 20).Value();
    EXPECT_NE(text.find("[Shrink]\r\n1\r\n"), std::string::npos);
}

TEST_F(Exit, IgnoreChangesBringsBackTheCommittedWorkspace) {
    desk.Person().AnswerTo("Ignore all recent changes and restart the program?", AnswerYes);
    desk.RunProgram({"--nosplash"}, [](frmMain& Main) {
        Main.ConView(0).ContainerLabel.Caption = "Renamed";
        SaveWorkspace(Main, true, false);
        RestartIgnoringChanges(Main);
    });
    ASSERT_EQ(desk.Computer.Shell.Programs.size(), 1U);
    EXPECT_EQ(desk.Computer.Shell.Programs[0].Path, "/opt/quillmere/bin/Reloader");
    EXPECT_TRUE(desk.Computer.Shell.Programs[0].Arguments.empty());
    desk.StartWorkspace();
    EXPECT_EQ(desk.Containers(), std::vector<std::string>{"Work"});
}

TEST_F(Exit, IgnoreChangesAnsweredNoChangesNothing) {
    desk.StartWorkspace();
    SaveWorkspace(*desk.Main, true, false);
    desk.Person().Answer(AnswerNo);
    RestartIgnoringChanges(*desk.Main);
    EXPECT_TRUE(desk.Files().Exists(desk.Settings("Quillmere.REC")));
    EXPECT_FALSE(desk.Main->g_DontSave);
}

TEST_F(Exit, WithoutTheReloaderTheWorkspaceStaysUp) {
    ASSERT_TRUE(desk.Files().Remove("/opt/quillmere/bin/Reloader"));
    desk.StartWorkspace();
    desk.Person().Answer(AnswerOk);
    RestartIgnoringChanges(*desk.Main);
    EXPECT_EQ(desk.Person().LastBox(),
              "Can't find: /opt/quillmere/bin/Reloader. Please reinstall the program.");
    EXPECT_EQ(desk.Person().Boxes.back().Title, "Quillmere");
    EXPECT_FALSE(desk.Main->g_DontSave);
    EXPECT_FALSE(desk.Computer.Session.QuitCode);
}

TEST_F(Exit, AReloaderThatCantStartLosesNothing) {
    desk.StartWorkspace();
    SaveWorkspace(*desk.Main, true, false);
    desk.Computer.Shell.FailNext({Reason::Denied, "Permission denied"});
    desk.Person().Answer(AnswerYes);
    desk.Person().Answer(AnswerOk);
    RestartIgnoringChanges(*desk.Main);
    EXPECT_EQ(desk.Person().LastBox(), "Error: Permission denied");
    EXPECT_FALSE(desk.Main->g_DontSave);
    EXPECT_TRUE(desk.Files().Exists(desk.Settings("Quillmere.REC")));
}

TEST_F(Exit, ClearingAsksAndWritesNothing) {
    desk.StartWorkspace();
    const auto before = desk.Files().Dump(desk.Settings(""));
    desk.Person().Answer(AnswerNo);
    mnuClearWorkspace_Click(*desk.Main);
    EXPECT_EQ(desk.Containers().size(), 1U);
    desk.Person().Answer(AnswerYes);
    mnuClearWorkspace_Click(*desk.Main);
    EXPECT_TRUE(desk.Containers().empty());
    EXPECT_EQ(desk.Person().Boxes.back().Title, "Clear Workspace");
    EXPECT_EQ(desk.Files().Dump(desk.Settings("")), before);
}

TEST_F(Exit, NothingDocksWhileItAsks) {
    desk.StartWorkspace();
    std::vector<int> pauses;
    desk.Person().OnBox = [&](const auto&) { pauses.push_back(desk.Main->Dock.DialogPauses); };
    for (const auto ask : {&RestartIgnoringChanges, &mnuClearWorkspace_Click, &mnuLoadDefaults_Click}) {
        desk.Person().Answer(AnswerNo);
        ask(*desk.Main);
    }
    EXPECT_EQ(pauses, (std::vector<int>{1, 1, 1}));
    EXPECT_EQ(desk.Main->Dock.DialogPauses, 0);
}

TEST_F(Exit, LoadingTheDefaultsAsksAndPutsThemInPlace) {
    desk.StartWorkspace();
    desk.Main->Settings.OnTop = false;
    desk.Main->Settings.MaxContainers = 7;
    desk.Person().Answer(AnswerYes);
    mnuLoadDefaults_Click(*desk.Main);
    EXPECT_EQ(desk.Person().Boxes.back().Title, "Default Settings");
    EXPECT_TRUE(desk.Main->Settings.OnTop);
    EXPECT_TRUE(desk.Computer.Windows.Of(MainWindow).OnTop);
}

} // namespace
} // namespace quill
