#include "persistence/backup.h"
#include "persistence/container_file.h"
#include "persistence/save.h"
#include "persistence/saving_desk.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using namespace test;
using Names = std::vector<std::string>;

const std::string part = "Quillmere_Backup.part";

struct Backup : testing::Test {
    fake::Computer Computer;
    std::unique_ptr<frmMain> Main = Process(Computer);

    Backup() {
        Furnish(*Main, "committed");
        SaveWorkspace(*Main, false, false);
    }
    const std::vector<ZipEntry>& Entries() { return Computer.Zip.Archives[At(part)]; }
    Names EntryNames() {
        Names names;
        for (const auto& entry : Entries()) names.push_back(entry.Name);
        return names;
    }
    std::string Entry(const std::string& name) {
        for (const auto& entry : Entries()) {
            if (entry.Name == name) return entry.Bytes;
        }
        return "(none)";
    }
    bool Stands(const std::string& name) const { return Computer.Files.Has(At(name)); }
};

TEST_F(Backup, HoldsTheContainersTheSettingsAndHowToRestoreThem) {
    ASSERT_TRUE(BackupQuillmere(*Main, "Quillmere_Backup.zip"));
    EXPECT_EQ(EntryNames(), (Names{"0.con", "1.con", "2.con", "Quillmere.ini", "Readme_1st.txt"}));
    EXPECT_EQ(Entry("1.con"), Get(Computer, "Containers/1.con"));
    EXPECT_EQ(Entry("Quillmere.ini"), Get(Computer, "Quillmere.ini"));
    EXPECT_EQ(
        Entry("Readme_1st.txt"),
        "Restore:\r\n"
        "1) Exit Quillmere and open the settings folder.\r\n"
        "2) Overwrite 'Quillmere.ini' with the copy that is in the zip file.\r\n"
        "3) Open the Containers subfolder, delete any existing files and extract all of the .con files from "
        "the zip into the Containers subfolder.\r\n");
    EXPECT_TRUE(Stands("Quillmere_Backup.zip"));
    EXPECT_FALSE(Stands(part));
}

TEST_F(Backup, LeavesNoReadmeInTheFolderAndTouchesNoneOfTheUsers) {
    Computer.Files.Put(At("Readme_1st.txt"), "the user's own");
    ASSERT_TRUE(BackupQuillmere(*Main, "Quillmere_Backup.zip"));
    EXPECT_EQ(Get(Computer, "Readme_1st.txt"), "the user's own");
    Computer.Files.Delete(At("Readme_1st.txt"));
    ASSERT_TRUE(BackupQuillmere(*Main, "Quillmere_Backup.zip"));
    EXPECT_FALSE(Stands("Readme_1st.txt"));
}

TEST_F(Backup, WithoutContainersHoldsTheSettingsAndTheReadme) {
    for (const int index : {0, 1, 2}) Delete(*Main, index);
    SaveWorkspace(*Main, false, false);
    ASSERT_TRUE(BackupQuillmere(*Main, "Quillmere_Backup.zip"));
    EXPECT_EQ(EntryNames(), (Names{"Quillmere.ini", "Readme_1st.txt"}));
}

TEST_F(Backup, FromTheCommandLinePacksWhatWasSavedAndNotTheRecentChanges) {
    Note(*Main, 0, "recent change");
    SaveWorkspace(*Main, true, false);
    const auto other = Process(Computer);
    const auto before = Computer.Files.Snapshot();
    ASSERT_TRUE(BackupQuillmere(*other, "Quillmere_Backup.zip"));
    EXPECT_NE(Entry("0.con").find("committed"), std::string::npos);
    Computer.Files.Delete(At("Quillmere_Backup.zip"));
    EXPECT_EQ(Computer.Files.Snapshot(), before) << "the running copy's files were touched";
}

TEST_F(Backup, ContainersComeByNumberAndForeignOnesBehindThem) {
    while (Main->NextContainerIndex < 11) AddContainer(*Main, "More");
    SaveWorkspace(*Main, false, false);
    Computer.Files.Put(At("Containers/mine.con"), "by hand");
    Computer.Files.PutFolder(At("Containers/folder.con"));
    ASSERT_TRUE(BackupQuillmere(*Main, "Quillmere_Backup.zip"));
    const auto names = EntryNames();
    EXPECT_EQ(names[2], "2.con");
    EXPECT_EQ(names[10], "10.con");
    EXPECT_EQ(names[11], "mine.con");
    EXPECT_EQ(names.size(), 14u);
}

// The process died behind the commit point and nobody has started it since.
TEST_F(Backup, PacksTheWholeNewGenerationOfASaveThatWasInterrupted) {
    const auto before = Computer.Files.Snapshot();
    int interrupted = 0;
    for (int step = 1; step < 60; ++step) {
        Computer.Files.Restore(before);
        Computer.Files.Recount();
        Note(*Main, 0, "newer");
        Note(*Main, 2, "newer too");
        Computer.Files.DieAfter(step);
        try {
            SaveWorkspace(*Main, false, false);
        } catch (const fake::ProcessDied&) {
        }
        Computer.Files.Revive();
        interrupted += Stands("Saving");
        ASSERT_TRUE(BackupQuillmere(*Process(Computer), "Quillmere_Backup.zip"));
        const bool first = Entry("0.con") == ContainerText(*Main, 0);
        const bool last = Entry("2.con") == ContainerText(*Main, 2);
        EXPECT_EQ(first, last) << "half of each generation after step " << step;
        EXPECT_TRUE(first || !Stands("Saving")) << step;
    }
    EXPECT_GT(interrupted, 3);
}

TEST_F(Backup, AFailedOneKeepsTheLastAndLeavesNothingHalf) {
    Computer.Files.Put(At("Quillmere_Backup.zip"), "the last one");
    Computer.Zip.FailNext({Reason::NoSpace, "No space left on device"});
    const auto made = BackupQuillmere(*Main, "Quillmere_Backup.zip");
    EXPECT_EQ(made.Error().Text, "No space left on device");
    EXPECT_EQ(Get(Computer, "Quillmere_Backup.zip"), "the last one");
    EXPECT_FALSE(Stands(part));
    EXPECT_FALSE(Stands("Readme_1st.txt"));
    for (int step = 1; step <= 3; ++step) {
        Computer.Files.Recount();
        Computer.Files.FailFrom(step, Reason::Denied);
        EXPECT_FALSE(BackupQuillmere(*Main, "Quillmere_Backup.zip")) << step;
        EXPECT_EQ(Get(Computer, "Quillmere_Backup.zip"), "the last one") << step;
        Computer.Files.Heal();
    }
}

TEST_F(Backup, AContainerThatCannotBeReadMakesNoBackup) {
    Computer.Files.FailReading(At("Containers/1.con"), Reason::Denied);
    Computer.Files.Put(At("Quillmere_Backup.zip"), "the last one");
    EXPECT_FALSE(BackupQuillmere(*Main, "Quillmere_Backup.zip"));
    EXPECT_EQ(Get(Computer, "Quillmere_Backup.zip"), "the last one");
}

TEST_F(Backup, WhatADeathLeftUnderTheWorkingNameIsReplaced) {
    Computer.Files.Put(At(part), "half of one");
    ASSERT_TRUE(BackupQuillmere(*Main, "Quillmere_Backup.zip"));
    EXPECT_FALSE(Stands(part));
}

TEST_F(Backup, TheNameHasTheDayWithoutLeadingZeros) {
    Computer.Clock.SetNow({2027, 3, 5, 1, 2, 3});
    EXPECT_EQ(BackupName(*Main), "Quillmere_Backup.zip");
    Main->Settings.BackupDateStamp = true;
    EXPECT_EQ(BackupName(*Main), "Quillmere_Backup_2027-3-5.zip");
    Computer.Clock.SetNow({2027, 11, 25, 1, 2, 3});
    EXPECT_EQ(BackupName(*Main), "Quillmere_Backup_2027-11-25.zip");
}

// ---- from the menu

const std::string question =
    "Backup workspace to: /home/user/.config/Quillmere/Quillmere_Backup.zip?\n\n"
    "To Restore: Open the settings folder and exit Quillmere. Extract the *.con files from the zip file into "
    "the "
    "Containers sub-folder and Quillmere.ini into the main settings folder. Delete any previous *.con files "
    "from "
    "the Containers sub-folder before restoring the backed-up copies.\n\n"
    "Automate backup from the command line using the '/backup' or '/backup /silent' parameters.";

struct MenuBackup : Backup {
    void Ask(int answer = AnswerYes) {
        Computer.Questions.Answer(answer);
        mnuBackup_Click(*Main);
    }
};

TEST_F(MenuBackup, AsksThenSavesPacksAndShowsTheResult) {
    Note(*Main, 0, "typed");
    Ask();
    ASSERT_EQ(Computer.Questions.Boxes.size(), 1u);
    EXPECT_EQ(Computer.Questions.Boxes[0].Text, question);
    EXPECT_EQ(Computer.Questions.Boxes[0].Flags, BoxYesNo | BoxQuestion);
    EXPECT_EQ(Computer.Questions.Boxes[0].Title, "Quillmere");
    EXPECT_EQ(Main->View.Caption, "Workspace Backup: Creating Zip file, please wait...");
    EXPECT_FALSE(Stands("Quillmere_Backup.zip"));
    Computer.Worker.RunAll();
    EXPECT_NE(Entry("0.con").find("typed"), std::string::npos);
    EXPECT_EQ(Computer.Shell.Shown, Names{At("Quillmere_Backup.zip")});
    EXPECT_EQ(Main->View.Caption, "Quillmere v5.70b");
}

TEST_F(MenuBackup, AnythingButYesChangesNothing) {
    Note(*Main, 0, "typed");
    Computer.Files.Recount();
    for (const int answer : {AnswerNo, AnswerCancel}) Ask(answer);
    EXPECT_EQ(Computer.Files.Steps(), 0);
    EXPECT_EQ(Computer.Worker.Waiting(), 0u);
}

TEST_F(MenuBackup, TheTitleIsLeftAloneWhileTagsAreShown) {
    const auto caption = Main->View.Caption;
    Main->Group.FrameLinkGroup = true;
    Ask();
    EXPECT_EQ(Main->View.Caption, caption);
}

TEST_F(MenuBackup, NothingDocksWhileItAsks) {
    int pauses = 0;
    Computer.Questions.OnBox = [&](const auto&) { pauses = Main->Dock.DialogPauses; };
    Ask();
    EXPECT_EQ(pauses, 1);
    EXPECT_EQ(Main->Dock.DialogPauses, 0);
}

TEST_F(MenuBackup, AFailureIsToldInABoxAndTheTitleComesBack) {
    Computer.Files.Put(At("Quillmere_Backup.zip"), "the last one");
    Computer.Zip.FailNext({Reason::NoSpace, "No space left on device"});
    Ask();
    Computer.Questions.Answer(AnswerOk);
    Computer.Worker.RunAll();
    EXPECT_EQ(Computer.Questions.LastBox(), "Error (No space left on device) in procedure AddFilesToZip");
    EXPECT_EQ(Main->View.Caption, "Quillmere v5.70b");
    EXPECT_TRUE(Computer.Shell.Shown.empty());
    EXPECT_EQ(Get(Computer, "Quillmere_Backup.zip"), "the last one");
}

TEST_F(MenuBackup, ASaveThatFailsMakesNoBackupOfTheOlderState) {
    Note(*Main, 0, "typed");
    Computer.Files.FailFrom(1, Reason::NoSpace);
    Ask();
    EXPECT_EQ(Computer.Worker.Waiting(), 0u);
    EXPECT_EQ(Main->View.Caption, "Can't save the workspace: No space left on device");
}

TEST_F(MenuBackup, ASecondOneOfTheSameDayReplacesTheFirst) {
    Main->Settings.BackupDateStamp = true;
    Computer.Clock.SetNow({2027, 3, 5, 1, 2, 3});
    Computer.Files.Put(At("Quillmere_Backup_2027-3-5.zip"), "this morning's");
    Computer.Files.Put(At("Quillmere_Backup_2027-3-4.zip"), "yesterday's");
    BackupSetings(*Main, false);
    Computer.Worker.RunAll();
    EXPECT_EQ(Get(Computer, "Quillmere_Backup_2027-3-5.zip"), fake::FakeZip::Token(Entries()));
    EXPECT_EQ(Get(Computer, "Quillmere_Backup_2027-3-4.zip"), "yesterday's");
}

TEST_F(MenuBackup, WithBackupOnSaveEverySaveMakesOneWithoutAsking) {
    Main->Settings.BackupOnSave = true;
    Note(*Main, 0, "typed");
    mnuSave_Click(*Main);
    Computer.Worker.RunAll();
    EXPECT_TRUE(Computer.Questions.Boxes.empty());
    EXPECT_TRUE(Computer.Shell.Shown.empty());
    EXPECT_NE(Entry("0.con").find("typed"), std::string::npos);
    EXPECT_NE(Get(Computer, "Containers/0.con").find("typed"), std::string::npos);
}

TEST_F(MenuBackup, WhatIsSavedWhileOneRunsIsInTheOneThatFollows) {
    Main->Settings.BackupOnSave = true;
    mnuSave_Click(*Main);
    Computer.Worker.RunJob();
    for (const char* text : {"second", "third"}) {
        Note(*Main, 0, text);
        mnuSave_Click(*Main);
        EXPECT_NE(Get(Computer, "Containers/0.con").find(text), std::string::npos);
    }
    EXPECT_EQ(Computer.Worker.Waiting(), 0u) << "two at a time";
    Computer.Worker.Complete();
    EXPECT_EQ(Computer.Worker.Waiting(), 1u);
    Computer.Worker.RunAll();
    EXPECT_NE(Entry("0.con").find("third"), std::string::npos);
    EXPECT_EQ(Main->View.Caption, "Quillmere v5.70b");
    EXPECT_FALSE(Main->Store.BackupRunning);
}

TEST_F(MenuBackup, TheJobHoldsAllThatItNeeds) {
    Ask();
    for (const int index : {0, 1, 2}) Delete(*Main, index);
    Computer.Files.Delete(At("Containers"));
    Computer.Worker.RunAll();
    EXPECT_EQ(EntryNames(), (Names{"0.con", "1.con", "2.con", "Quillmere.ini", "Readme_1st.txt"}));
}

TEST_F(MenuBackup, AProgramThatEndsMeanwhileKeepsTheLastOne) {
    Computer.Files.Put(At("Quillmere_Backup.zip"), "the last one");
    Ask();
    Computer.Worker.RunJob();
    Main->IsExiting = true;
    SaveWorkspace(*Main, false, true);
    Computer.EndProcess(); // the completion never runs
    Main.reset();
    EXPECT_EQ(Get(Computer, "Quillmere_Backup.zip"), "the last one");
    Main = Process(Computer);
    ASSERT_TRUE(BackupQuillmere(*Main, "Quillmere_Backup.zip"));
    EXPECT_FALSE(Stands(part));
}

TEST_F(MenuBackup, AProgramThatEndsWhileItAsksSavesNothingMore) {
    Note(*Main, 0, "typed");
    Computer.Files.Recount();
    Computer.Questions.OnBox = [&](const auto&) { Main->IsExiting = true; };
    Ask();
    EXPECT_EQ(Computer.Files.Steps(), 0);
}

} // namespace
} // namespace quill
