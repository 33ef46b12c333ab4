// The four kinds of waiting, each with what may happen meanwhile: the object dies, the program ends, the same
// thing starts again.
#include "containers/lifecycle.h"
#include "core/menus.h"
#include "core/splash.h"
#include "core/start.h"
#include "dock/docking.h"
#include "dock/frames.h"
#include "fake/desk.h"
#include "persistence/backup.h"
#include "persistence/save.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using fake::Desk;

struct Waiting : testing::Test {
    Desk desk;
    void SetUp() override {
        desk.Files().Put(desk.Settings("Quillmere.ini"), "108\r\n");
        desk.Files().Put(
            desk.Settings("Containers/0.con"),
            "108\r\n[Container]\r\n-1\r\n[Name]\r\nWork\r\n[NOTE ON]\r\n1\r\n[START Note]\r\ntext\r\n[END "
            "Note]\r\n[X]\r\n600\r\n[Y]"
            "\r\n600\r\n[W]\r\n3000\r\n[H]\r\n3000\r\n");
        desk.StartWorkspace();
    }
};

TEST_F(Waiting, TheSplashDoesNotLieOverAQuestion) {
    desk.Main->IsLoading = true;
    desk.Main->Start.NoSplash = false;
    BeginSplash(*desk.Main);
    desk.Computer.Clock.Advance(SplashDelay + 1);
    ShowSplashText(*desk.Main, "Loading Work...");
    ASSERT_TRUE(desk.Computer.Windows.IsVisible(SplashWindow));
    desk.Main->IsLoading = false;
    const DialogPause pause(*desk.Main);
    EXPECT_FALSE(desk.Computer.Windows.IsVisible(SplashWindow));
}

TEST_F(Waiting, AContainerThatDiesWhileItsMenuIsOpenIsNotActedOn) {
    desk.Person().OnMenu = [&](const auto&) { DeleteContainer(*desk.Main, 0, false); };
    desk.Person().ChooseMenu("&Fold");
    desk.Main->Group.CurrentContainer = 0;
    PopupMenu(*desk.Main, MenuName::Container, {0, 0});
    EXPECT_TRUE(desk.Containers().empty());
    EXPECT_EQ(desk.Main->Group.CurrentContainer, -1);
}

TEST_F(Waiting, AContainerThatDiesBehindItsOwnQuestionIsNotDeletedTwice) {
    desk.Main->Group.CurrentContainer = 0;
    desk.Person().OnBox = [&](const auto&) { DeleteContainer(*desk.Main, 0, false); };
    desk.Person().ChooseMenu("&Remove Containers");
    desk.Person().Answer(AnswerYes);
    PopupMenu(*desk.Main, MenuName::Container, {0, 0});
    EXPECT_TRUE(desk.Containers().empty());
}

TEST_F(Waiting, AProgramToldToEndLeavesAnOpenQuestionUnanswered) {
    desk.Person().OnBox = [&](const auto&) {
        SessionEnd(*desk.Main);
        desk.Person().Ending = true;
    };
    desk.Person().Answer(AnswerYes);
    mnuClearWorkspace_Click(*desk.Main);
    EXPECT_EQ(desk.Containers().size(), 1U);
    EXPECT_EQ(desk.Computer.Session.QuitCode, 0);
}

TEST_F(Waiting, TheSlideIsHeldBackForAsLongAsAnyQuestionIsOpen) {
    int inside = 0;
    desk.Person().OnMenu = [&](const auto&) { inside = desk.Main->Dock.DialogPauses; };
    desk.Person().DismissMenu();
    PopupMenu(*desk.Main, MenuName::Workspace, {0, 0});
    EXPECT_EQ(inside, 1);
    EXPECT_EQ(desk.Main->Dock.DialogPauses, 0);
}

TEST_F(Waiting, FramesRunWhileWantedAndNoneRunsAfterTheExit) {
    int frames = 0;
    StartFrames(*desk.Main, FrameStream::Slide, 50, [&](frmMain&) { ++frames; });
    desk.Wait(100);
    EXPECT_EQ(frames, 5);
    desk.Main->IsExiting = true;
    desk.Wait(100);
    EXPECT_EQ(frames, 5);
}

TEST_F(Waiting, AnAnimationThatStartsAgainTakesTheFramesOver) {
    std::string ran;
    StartFrames(*desk.Main, FrameStream::Slide, 50, [&](frmMain&) { ran += "a"; });
    desk.Wait(40);
    StartFrames(*desk.Main, FrameStream::Slide, 50, [&](frmMain&) { ran += "b"; });
    desk.Wait(40);
    EXPECT_EQ(ran, "aabb");
}

TEST_F(Waiting, ABackupAskedForTwiceIsMadeAndNothingIsLost) {
    BackupSetings(*desk.Main, false);
    BackupSetings(*desk.Main, false);
    desk.Computer.Worker.RunAll();
    EXPECT_TRUE(desk.Files().Exists(desk.Settings("Quillmere_Backup.zip")));
}

TEST_F(Waiting, AProgramThatEndsDuringABackupEndsWithoutItsCompletion) {
    BackupSetings(*desk.Main, false);
    desk.ExitWorkspace();
    EXPECT_FALSE(desk.Main);
    EXPECT_TRUE(desk.Files().Exists(desk.Settings("Quillmere.ini")));
}

TEST_F(Waiting, ANoteThatDiesBeforeItsSaveTicksIsSavedAsGone) {
    desk.TypeInNote(0, "more");
    DeleteContainer(*desk.Main, 0, false);
    desk.Wait(2500);
    desk.RestartAfterKill();
    EXPECT_TRUE(desk.Containers().empty());
}

TEST_F(Waiting, ATickBehindTheExitDoesNothing) {
    desk.TypeInNote(0, "more");
    UnloadMain(*desk.Main);
    const auto before = desk.Files().Dump(desk.Settings(""));
    Timer_Tick(*desk.Main, {TimerName::TimerSaveNotes});
    EXPECT_EQ(desk.Files().Dump(desk.Settings("")), before);
}

TEST_F(Waiting, EveryKeyStartsTheTwoSecondsOver) {
    desk.TypeInNote(0, "a");
    desk.Wait(1500);
    desk.TypeInNote(0, "b");
    desk.Wait(1500);
    EXPECT_FALSE(desk.Files().Exists(desk.Settings("Containers/0.REC")));
    desk.Wait(600);
    EXPECT_TRUE(desk.Files().Exists(desk.Settings("Containers/0.REC")));
}

} // namespace
} // namespace quill
