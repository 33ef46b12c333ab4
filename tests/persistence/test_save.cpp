#include "core/caption.h"
#include "core/start.h"
#include "persistence/container_file.h"
#include "persistence/save.h"
#include "persistence/saving_desk.h"
#include "persistence/settings_file.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using namespace test;
using Names = std::vector<std::string>;

struct Saving : testing::Test {
    fake::Computer Computer;
    std::unique_ptr<frmMain> Main = Process(Computer);

    Names Containers() const { return Computer.Files.Names(At("Containers")); }
    void KillAndStartAgain() {
        Computer.EndProcess();
        Main = Process(Computer);
    }
};

TEST_F(Saving, WhatIsSavedIsTheSettingsAndEveryContainerNumberedFromTheBottomOfTheStack) {
    Furnish(*Main, "mark");
    std::swap(Main->ZOrderList[0], Main->ZOrderList[2]);
    SaveWorkspace(*Main, false, false);
    EXPECT_EQ(Containers(), (Names{"0.con", "1.con", "2.con"}));
    EXPECT_EQ(Get(Computer, "Quillmere.ini"), SettingsText(*Main, false));
    EXPECT_EQ(Get(Computer, "Containers/0.con"), ContainerText(*Main, 2));
    EXPECT_EQ(Get(Computer, "Containers/1.con"), ContainerText(*Main, 1));
    EXPECT_EQ(Get(Computer, "Containers/2.con"), ContainerText(*Main, 0));
}

TEST_F(Saving, ARecoverySaveHasTheSameTextsAndLeavesTheCommittedOnesAlone) {
    Furnish(*Main, "before");
    SaveWorkspace(*Main, false, false);
    const auto committed = Get(Computer, "Containers/0.con");
    Note(*Main, 0, "after");
    SaveWorkspace(*Main, true, false);
    EXPECT_EQ(Get(Computer, "Containers/0.con"), committed);
    EXPECT_EQ(Get(Computer, "Containers/0.REC"), ContainerText(*Main, 0));
    EXPECT_EQ(Get(Computer, "Quillmere.REC"), SettingsText(*Main, false));
}

TEST_F(Saving, EveryLiveContainerIsWrittenWhateverShows) {
    Furnish(*Main, "mark");
    Main->ConView(0).Container.Visible = false; // docked, in an effect
    Main->Con(1).tag = true;                    // hidden by the tag view
    Main->Con(2).Detached = true;
    SaveContainers(*Main, true);
    EXPECT_EQ(Containers(), (Names{"0.REC", "1.REC", "2.REC"}));
}

TEST_F(Saving, ALiveContainerThatTheStackForgotIsWrittenOnTop) {
    Furnish(*Main, "mark");
    Main->ZOrderList.erase(Main->ZOrderList.begin());
    SaveContainers(*Main, true);
    EXPECT_EQ(Get(Computer, "Containers/2.REC"), ContainerText(*Main, 0));
}

TEST_F(Saving, DeadRowsAndPicturesInTheStackAreNoContainers) {
    Furnish(*Main, "mark");
    Main->Containers[1].Index = -1;
    Main->ZOrderList.push_back({KindPicture, 0});
    SaveContainers(*Main, true);
    EXPECT_EQ(Containers(), (Names{"0.REC", "1.REC"}));
}

TEST_F(Saving, ASaveOfContainersWritesNoSettings) {
    Furnish(*Main, "mark");
    SaveContainers(*Main, true);
    EXPECT_FALSE(Computer.Files.Has(At("Quillmere.REC")));
    SaveWorkspace(*Main, true, false);
    const auto settings = Get(Computer, "Quillmere.REC");
    Main->Settings.ShowTime = !Main->Settings.ShowTime;
    SaveContainers(*Main, true);
    EXPECT_EQ(Get(Computer, "Quillmere.REC"), settings);
}

TEST_F(Saving, DeletingTheLastContainerDoesNotBringTheOldOnesBack) {
    Furnish(*Main, "mark");
    SaveWorkspace(*Main, false, false);
    for (const int index : {0, 1, 2}) Delete(*Main, index);
    SaveContainers(*Main, true);
    KillAndStartAgain();
    const auto chosen = ChooseGeneration(*Main);
    EXPECT_TRUE(chosen.Recovery);
    EXPECT_TRUE(chosen.Containers.empty());
}

TEST_F(Saving, ACommittedSaveLeavesNoRecoveryAndNoSurplus) {
    Furnish(*Main, "mark");
    SaveWorkspace(*Main, false, false);
    SaveWorkspace(*Main, true, false);
    Computer.Files.Put(At("Containers/9.REC"), "left by somebody");
    Delete(*Main, 1);
    SaveWorkspace(*Main, false, false);
    EXPECT_EQ(Containers(), (Names{"0.con", "1.con"}));
    EXPECT_FALSE(Computer.Files.Has(At("Quillmere.REC")));
}

TEST_F(Saving, ACommittedSaveOfContainersAloneIsWhole) {
    Furnish(*Main, "mark");
    SaveWorkspace(*Main, true, false);
    SaveContainers(*Main, false);
    EXPECT_EQ(Containers(), (Names{"0.con", "1.con", "2.con"}));
    EXPECT_EQ(Get(Computer, "Quillmere.ini"), SettingsText(*Main, false));
    EXPECT_FALSE(Computer.Files.Has(At("Quillmere.REC")));
}

TEST_F(Saving, WhatDoesNotDifferIsNotWrittenAgain) {
    Furnish(*Main, "mark");
    SaveWorkspace(*Main, true, false);
    Computer.Files.Recount();
    SaveWorkspace(*Main, true, false);
    EXPECT_EQ(Computer.Files.Log, Names{});
    Note(*Main, 1, "typed");
    SaveWorkspace(*Main, true, false);
    for (const auto& line : Computer.Files.Log) {
        EXPECT_EQ(line.find("0.REC"), line.npos) << line;
        EXPECT_EQ(line.find("2.REC"), line.npos) << line;
    }
    EXPECT_EQ(Get(Computer, "Containers/1.REC"), ContainerText(*Main, 1));
    SaveWorkspace(*Main, false, false);
    Computer.Files.Recount();
    SaveWorkspace(*Main, false, false);
    EXPECT_EQ(Computer.Files.Log, Names{});
}

TEST_F(Saving, ARecoveryFileThatSomebodyRemovedCutOrAddedIsPutRight) {
    Furnish(*Main, "mark");
    SaveWorkspace(*Main, true, false);
    Computer.Files.Delete(At("Containers/0.REC"));
    Computer.Files.Put(At("Containers/1.REC"), "cut");
    Computer.Files.Delete(At("Quillmere.REC"));
    Computer.Files.Put(At("Containers/3.REC"), "more");
    SaveWorkspace(*Main, true, false);
    EXPECT_EQ(Containers(), (Names{"0.REC", "1.REC", "2.REC"}));
    for (const int index : {0, 1, 2})
        EXPECT_EQ(Get(Computer, "Containers/" + std::to_string(index) + ".REC"), ContainerText(*Main, index));
    EXPECT_EQ(Get(Computer, "Quillmere.REC"), SettingsText(*Main, false));
}

TEST_F(Saving, ACommittedFileThatSomebodyChangedIsPutRight) {
    Furnish(*Main, "mark");
    SaveWorkspace(*Main, false, false);
    auto changed = Get(Computer, "Containers/1.con");
    changed.back() = '!';
    Computer.Files.Put(At("Containers/1.con"), changed);
    SaveWorkspace(*Main, false, false);
    EXPECT_EQ(Get(Computer, "Containers/1.con"), ContainerText(*Main, 1));
}

TEST_F(Saving, FilesBehindAGapGetASideNameInsteadOfVanishing) {
    Furnish(*Main, "mark");
    Computer.Files.Put(At("Containers/0.con"), "old");
    Computer.Files.Put(At("Containers/2.con"), "behind the gap");
    Computer.Files.Put(At("Containers/7.con"), "far behind");
    Computer.Files.Put(At("Containers/7.con.aside"), "from another day");
    SaveWorkspace(*Main, true, false);
    EXPECT_EQ(Get(Computer, "Containers/2.con"), "behind the gap");
    SaveWorkspace(*Main, false, false);
    EXPECT_EQ(Get(Computer, "Containers/2.con.aside"), "behind the gap");
    EXPECT_EQ(Get(Computer, "Containers/7.con.aside"), "from another day");
    EXPECT_EQ(Get(Computer, "Containers/7.con.aside2"), "far behind");
    EXPECT_EQ(Get(Computer, "Containers/2.con"), ContainerText(*Main, 2));
    EXPECT_FALSE(Computer.Files.Has(At("Containers/7.con")));
}

TEST_F(Saving, AFileBehindAGapGoesAsideEvenWhenTheNewOneHasTheSameBytes) {
    Furnish(*Main, "mark");
    Computer.Files.Put(At("Containers/1.con"), ContainerText(*Main, 1));
    SaveWorkspace(*Main, false, false);
    EXPECT_EQ(Containers(), (Names{"0.con", "1.con", "1.con.aside", "2.con"}));
}

TEST_F(Saving, NothingIsSavedWhileTheWorkspaceLoads) {
    Main->IsLoading = true;
    SaveWorkspace(*Main, false, false);
    SaveWorkspace(*Main, true, false);
    SaveContainers(*Main, true);
    EXPECT_EQ(Computer.Files.Steps(), 0);
}

TEST_F(Saving, NothingIsSavedOnceChangesAreThrownAway) {
    Main->g_DontSave = true;
    SaveWorkspace(*Main, false, true);
    SaveWorkspace(*Main, true, false);
    SaveContainers(*Main, false);
    EXPECT_EQ(Computer.Files.Steps(), 0);
}

TEST_F(Saving, NothingIsSavedBehindTheExitsOwnSave) {
    Furnish(*Main, "mark");
    SaveWorkspace(*Main, false, true);
    const auto tree = Computer.Files.Snapshot();
    Main->ZOrderList.clear();
    Main->Containers.clear();
    SaveContainers(*Main, true);
    SaveWorkspace(*Main, false, false);
    EXPECT_EQ(Computer.Files.Snapshot(), tree);
}

TEST_F(Saving, NothingIsSavedBehindTheExitsOwnSaveEvenIfThatFailed) {
    Furnish(*Main, "mark");
    SaveWorkspace(*Main, false, false);
    Note(*Main, 0, "later");
    Computer.Files.FailMutation(1, Reason::NoSpace);
    SaveWorkspace(*Main, false, true);
    const auto tree = Computer.Files.Snapshot();
    Main->ZOrderList.clear();
    Main->Containers.clear();
    SaveContainers(*Main, true);
    EXPECT_EQ(Computer.Files.Snapshot(), tree);
}

TEST_F(Saving, AKillAfterAChangeLosesNothingAndTheStartLeavesNoRecoveryFile) {
    Furnish(*Main, "before");
    SaveWorkspace(*Main, false, false);
    Note(*Main, 0, "the change");
    SaveContainers(*Main, true);
    const auto changed = ContainerText(*Main, 0);
    KillAndStartAgain();
    const auto has = Start(Computer);
    EXPECT_NE(has.find("the change"), has.npos);
    EXPECT_EQ(Get(Computer, "Containers/0.con"), changed);
}

TEST_F(Saving, IgnoreChangesBringsBackWhatWasSavedAndTheExitWritesNothing) {
    Furnish(*Main, "before");
    SaveWorkspace(*Main, false, false);
    const auto committed = Start(Computer);
    Note(*Main, 0, "the change");
    SaveWorkspace(*Main, true, false);
    Computer.Questions.Answer(AnswerYes);
    RestartIgnoringChanges(*Main);
    EXPECT_EQ(Computer.Shell.Programs.size(), 1u);
    EXPECT_TRUE(Main->g_DontSave);
    SaveWorkspace(*Main, false, true);
    KillAndStartAgain();
    EXPECT_EQ(Start(Computer), committed);
}

TEST_F(Saving, TheSettingsFolderIsMadeAtTheFirstSave) {
    EXPECT_FALSE(Computer.Files.Has(fake::SettingsFolder));
    SaveWorkspace(*Main, true, false);
    EXPECT_TRUE(Computer.Files.Has(At("Quillmere.REC")));
}

TEST_F(Saving, APortableWorkspaceNeverMakesItsFolder) {
    Main->PortableMode = true;
    Main->SettingsFolder = "/media/stick/Quillmere";
    SaveWorkspace(*Main, false, false);
    EXPECT_FALSE(Computer.Files.Has("/media/stick/Quillmere"));
    EXPECT_NE(Main->Store.SaveFailure, "");
    Computer.Files.PutFolder("/media/stick/Quillmere");
    SaveWorkspace(*Main, false, false);
    EXPECT_TRUE(Computer.Files.Has("/media/stick/Quillmere/Quillmere.ini"));
    EXPECT_EQ(Main->Store.SaveFailure, "");
}

TEST_F(Saving, SaveSaysSoInTheTitleAndTheTextGoesAgain) {
    const auto normal = Main->View.Caption;
    mnuSave_Click(*Main);
    EXPECT_EQ(Main->View.Caption, "Workspace Saved");
    EXPECT_TRUE(Computer.Clock.IsRunning({TimerName::TimerRestoreCaption}));
    Computer.Clock.OnTimer = [&](TimerId timer) {
        if (timer.Name == TimerName::TimerRestoreCaption) TimerRestoreCaption_Timer(*Main);
    };
    Computer.Clock.Advance(10'000);
    EXPECT_EQ(Main->View.Caption, normal);
    EXPECT_TRUE(Computer.Files.Has(At("Quillmere.ini")));
}

TEST_F(Saving, SaveSaysNothingOfTheKindWhereNothingIsSaved) {
    Main->IsLoading = true;
    mnuSave_Click(*Main);
    EXPECT_NE(Main->View.Caption, "Workspace Saved");
}

TEST_F(Saving, KillContainersDeletesWhatMatchesAndNothingElse) {
    for (const char* name : {"0.REC", "1.rec", "0.con", "0.con.bak", "notes.txt"})
        Computer.Files.Put(At("Containers/") + name, "x");
    KillContainers(*Main, "*.REC");
    EXPECT_EQ(Containers(), (Names{"0.con", "0.con.bak", "notes.txt"}));
    KillContainers(*Main, "*.con.bak");
    EXPECT_EQ(Containers(), (Names{"0.con", "notes.txt"}));
}

} // namespace
} // namespace quill
