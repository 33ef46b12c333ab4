#include "persistence/save.h"
#include "persistence/saving_desk.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using namespace test;

struct FailedSave : testing::Test {
    fake::Computer Computer;
    std::unique_ptr<frmMain> Main = Process(Computer);

    FailedSave() {
        Furnish(*Main, "before");
        SaveWorkspace(*Main, false, false);
    }
    // What a start would have, on a computer of its own.
    std::string NextStart() const {
        fake::Computer other;
        other.Files.Restore(Computer.Files.Snapshot());
        for (const auto& folder : {fake::SettingsFolder, At("Containers")}) {
            if (other.Files.Has(folder)) other.Files.MakeWritable(folder);
        }
        return Start(other);
    }
    int Lines() const {
        const auto& text = Computer.Session.Err;
        return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    }
};

TEST_F(FailedSave, AFullDiskIsToldInTheTitleAndOnOneLineWithoutABox) {
    Note(*Main, 0, "after");
    Computer.Files.Space(10);
    SaveWorkspace(*Main, true, false);
    EXPECT_EQ(Main->Store.SaveFailure, "No space left on device");
    EXPECT_EQ(Main->View.Caption, "Can't save the workspace: No space left on device");
    EXPECT_EQ(Lines(), 1);
    EXPECT_NE(Computer.Session.Err.find("No space left on device"), std::string::npos);
    EXPECT_NE(Computer.Session.Err.find(fake::SettingsFolder), std::string::npos);
    EXPECT_TRUE(Computer.Questions.Boxes.empty());
}

TEST_F(FailedSave, TheTitleSaysItUntilASaveSucceeds) {
    const auto normal = Main->View.Caption;
    Note(*Main, 0, "after");
    Computer.Files.Space(10);
    SaveWorkspace(*Main, true, false);
    mnuSave_Click(*Main);
    EXPECT_EQ(Main->View.Caption, "Can't save the workspace: No space left on device");
    Computer.Files.Heal();
    SaveContainers(*Main, true);
    EXPECT_EQ(Main->View.Caption, normal);
    EXPECT_EQ(Main->Store.SaveFailure, "");
}

TEST_F(FailedSave, TheDiskFillsAtTheNthWriteAndNothingIsLost) {
    struct Kind {
        const char* Name;
        void (*Save)(frmMain&);
    };
    const Kind kinds[] = {{"recovery", [](frmMain& main) { SaveWorkspace(main, true, false); }},
                          {"containers", [](frmMain& main) { SaveContainers(main, true); }},
                          {"committed", [](frmMain& main) { SaveWorkspace(main, false, false); }}};
    SaveWorkspace(*Main, true, false);
    const auto before = Computer.Files.Snapshot();
    const auto older = NextStart();
    for (const auto& kind : kinds) {
        for (const auto reason : {Reason::NoSpace, Reason::Denied, Reason::Other}) {
            bool failed = true;
            for (int step = 1; failed; ++step) {
                SCOPED_TRACE(std::string(kind.Name) + " " + std::to_string(step));
                Computer.Files.Restore(before);
                Note(*Main, 0, "before");
                SaveWorkspace(*Main, true, false);
                Computer.Files.Recount();
                Note(*Main, 0, "after");
                AddContainer(*Main, "One more");
                Computer.Files.FailFrom(step, reason);
                kind.Save(*Main);
                failed = !Main->Store.SaveFailure.empty();
                Computer.Files.Heal();
                const auto has = NextStart();
                kind.Save(*Main);
                EXPECT_EQ(Main->Store.SaveFailure, "");
                const auto newer = NextStart();
                EXPECT_NE(newer, older);
                EXPECT_TRUE(has == newer || (failed && has == older)) << has;
                Delete(*Main, Main->NextContainerIndex - 1);
                ASSERT_LT(step, 200);
            }
        }
    }
}

TEST_F(FailedSave, AFolderThatBecameReadOnlyKeepsItsGeneration) {
    const auto older = NextStart();
    for (const auto& folder : {fake::SettingsFolder, At("Containers")}) {
        SCOPED_TRACE(folder);
        Note(*Main, 0, "after " + folder);
        Computer.Files.MakeReadOnly(folder);
        SaveWorkspace(*Main, true, false);
        EXPECT_EQ(Main->Store.SaveFailure, "Permission denied");
        Computer.Files.MakeWritable(folder);
        SaveWorkspace(*Main, true, false);
        EXPECT_EQ(Main->Store.SaveFailure, "");
        EXPECT_NE(NextStart().find("after " + folder), std::string::npos);
    }
    EXPECT_EQ(older.find("after"), std::string::npos);
}

TEST_F(FailedSave, AReadOnlyPortableFolderFailsQuietlyOnEverySave) {
    Main->PortableMode = true;
    Computer.Files.MakeReadOnly(fake::SettingsFolder);
    for (int time = 1; time <= 3; ++time) {
        Note(*Main, 0, "after " + std::to_string(time));
        SaveWorkspace(*Main, true, false);
        EXPECT_EQ(Main->Store.SaveFailure, "Permission denied");
        EXPECT_EQ(Lines(), time);
    }
    EXPECT_TRUE(Computer.Questions.Boxes.empty());
    EXPECT_NE(NextStart().find("before"), std::string::npos);
}

TEST_F(FailedSave, ASettingsFolderThatVanishedIsMadeAgainWithEverythingInIt) {
    SaveWorkspace(*Main, true, false);
    Computer.Files.Delete(fake::SettingsFolder);
    SaveWorkspace(*Main, true, false);
    EXPECT_EQ(Main->Store.SaveFailure, "");
    EXPECT_EQ(Computer.Files.Names(At("Containers")), (std::vector<std::string>{"0.REC", "1.REC", "2.REC"}));
}

TEST_F(FailedSave, AFileWhereTheSettingsFolderShouldBeIsLeftAlone) {
    Computer.Files.Delete(fake::SettingsFolder);
    Computer.Files.Put(fake::SettingsFolder, "somebody's file");
    SaveWorkspace(*Main, false, false);
    EXPECT_NE(Main->Store.SaveFailure, "");
    EXPECT_EQ(Computer.Files.Get(fake::SettingsFolder), "somebody's file");
}

// The save counted, then the disk refused to move the files to their names.
TEST_F(FailedSave, ASaveThatCouldNotBeFinishedIsFinishedByTheNextOneOrTheNextStart) {
    Note(*Main, 0, "after");
    Computer.Files.Recount();
    SaveWorkspace(*Main, false, false);
    const int steps = Computer.Files.Steps();
    Note(*Main, 0, "later");
    Computer.Files.FailFrom(steps - 2, Reason::Denied);
    SaveWorkspace(*Main, false, false);
    EXPECT_TRUE(Computer.Files.Has(At("Saving")));
    EXPECT_EQ(Main->Store.SaveFailure, "Permission denied");
    Computer.Files.Heal();
    EXPECT_NE(NextStart().find("later"), std::string::npos);
    Note(*Main, 0, "at last");
    SaveWorkspace(*Main, true, false);
    EXPECT_EQ(Main->Store.SaveFailure, "");
    EXPECT_NE(NextStart().find("at last"), std::string::npos);
}

TEST_F(FailedSave, AStartThatCannotTidyUpStillHasTheWholeGenerationAndSaysWhy) {
    Note(*Main, 0, "recovered");
    SaveWorkspace(*Main, true, false);
    Main = Process(Computer);
    Computer.Files.MakeReadOnly(fake::SettingsFolder);
    FinishInterruptedSave(*Main);
    const auto chosen = ChooseGeneration(*Main);
    EXPECT_TRUE(chosen.Recovery);
    TakeOverRecovery(*Main, chosen);
    EXPECT_EQ(Main->Store.SaveFailure, "Permission denied");
    EXPECT_EQ(Lines(), 1);
    EXPECT_NE(NextStart().find("recovered"), std::string::npos);
}

} // namespace
} // namespace quill
