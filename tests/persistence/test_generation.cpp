#include "persistence/deaths.h"
#include "persistence/generation.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quill {
namespace {

using fake::Computer;
const std::string& folder = fake::SettingsFolder;

std::string At(const std::string& name) {
    return folder + "/" + name;
}

// Every name of ours with its bytes, as a start would read them.
std::string Standings(const FileReader& files) {
    std::string text;
    for (const auto& [name, path] : Standing(files, folder))
        text += name + "=" + files.Read(path, 1000).Value() + "\n";
    return text;
}

// Looks through what a death left, then finishes it, and finds the same.
std::string LookAndSettle(Computer& computer) {
    const auto seen = Standings(computer.Files);
    const auto settled = Settle(computer.Files, folder);
    EXPECT_TRUE(settled) << settled.Error().Text;
    EXPECT_TRUE(settled && settled.Value().empty());
    EXPECT_EQ(Standings(computer.Files), seen);
    EXPECT_FALSE(computer.Files.Has(At("Saving")));
    EXPECT_FALSE(computer.Files.Has(At("Saving.part")));
    return seen;
}

void PutCommitted(Computer& computer) {
    computer.Files.Put(At("Quillmere.ini"), "settings 1");
    for (const char* number : {"0", "1", "2", "7"})
        computer.Files.Put(At(std::string("Containers/") + number + ".con"), std::string("old ") + number);
}

void PutRecovery(Computer& computer) {
    PutCommitted(computer);
    computer.Files.Put(At("Quillmere.REC"), "settings 2");
    for (const char* number : {"0", "1", "2"})
        computer.Files.Put(At(std::string("Containers/") + number + ".REC"), std::string("rec ") + number);
}

void MustCommit(Computer& computer, Change change) {
    ASSERT_TRUE(Settle(computer.Files, folder));
    const auto done = Commit(computer.Files, folder, std::move(change));
    EXPECT_TRUE(done) << done.Error().Text;
}

void Write(Change& change, const std::string& name, const std::string& bytes) {
    change.Write(name, bytes, SumOf(bytes));
}

const std::string settings = "settings 3", first = "new 0", second = "new 1", third = "new 2";

void ReplaceCommitted(Computer& computer) {
    Change change(true);
    Write(change, "Containers/0.con", first);
    change.Keep("Containers/1.con", SumOf("old 1"));
    change.Drop("Containers/2.con");
    change.Aside("Containers/7.con", "Containers/7.con.aside");
    Write(change, "Quillmere.ini", settings);
    MustCommit(computer, std::move(change));
}

void ReplaceRecovery(Computer& computer) {
    Change change(false);
    Write(change, "Containers/0.REC", first);
    change.Keep("Containers/1.REC", SumOf("rec 1"));
    Write(change, "Containers/2.REC", third);
    Write(change, "Quillmere.REC", settings);
    MustCommit(computer, std::move(change));
}

void TakeRecovery(Computer& computer) {
    Change change(true);
    change.Take("Containers/0.REC", "Containers/0.con", SumOf("rec 0"));
    change.Take("Containers/1.REC", "Containers/1.con", SumOf("rec 1"));
    change.Take("Containers/2.REC", "Containers/2.con", SumOf("rec 2"));
    change.Take("Quillmere.REC", "Quillmere.ini", SumOf("settings 2"));
    change.Aside("Containers/7.con", "Containers/7.con.aside");
    MustCommit(computer, std::move(change));
}

TEST(Generation, ADeathWhileCommittingLeavesAllOldOrAllNew) {
    test::DieEverywhere({PutCommitted, ReplaceCommitted, LookAndSettle});
}

TEST(Generation, ADeathWhileWritingRecoveryLeavesAllOldOrAllNew) {
    test::DieEverywhere({PutRecovery, ReplaceRecovery, LookAndSettle});
}

TEST(Generation, ADeathWhileRecoveryTakesTheNamesOfTheOldLeavesAllOldOrAllNew) {
    test::DieEverywhere({PutRecovery, TakeRecovery, LookAndSettle});
}

TEST(Generation, AFileThatGoesAsideMakesRoomForANewOneOfItsName) {
    const auto replace = [](Computer& computer) {
        Change change(true);
        change.Aside("Containers/7.con", "Containers/7.con.aside");
        Write(change, "Containers/7.con", second);
        MustCommit(computer, std::move(change));
    };
    test::DieEverywhere({PutCommitted, replace, LookAndSettle});
    Computer computer;
    PutCommitted(computer);
    replace(computer);
    EXPECT_EQ(computer.Files.Get(At("Containers/7.con.aside")), "old 7");
    EXPECT_EQ(computer.Files.Get(At("Containers/7.con")), second);
}

TEST(Generation, ACommittedOneIsOnTheDiskBeforeItCounts) {
    Computer computer;
    PutRecovery(computer);
    computer.Files.Recount();
    ReplaceCommitted(computer);
    EXPECT_TRUE(computer.Files.LostSyncs.empty());
    computer.Files.CutPower();
    EXPECT_EQ(computer.Files.Get(At("Containers/0.con")), first);
    EXPECT_EQ(computer.Files.Get(At("Quillmere.ini")), settings);
}

TEST(Generation, ACommittedOneIsNotForgottenBeforeItsNamesAreOnTheDisk) {
    Computer computer;
    PutCommitted(computer);
    computer.Files.Recount();
    ReplaceCommitted(computer);
    std::string order;
    for (const auto& line : computer.Files.Log) {
        const bool tells =
            line.starts_with("sync") || line.starts_with("rename Saving") || line == "remove Saving/manifest";
        if (tells) order += line + "\n";
    }
    EXPECT_EQ(order, "sync Saving.part/0.con\n"
                     "sync Saving.part/Quillmere.ini\n"
                     "sync Saving.part/manifest\n"
                     "sync Saving.part\n"
                     "rename Saving.part -> Saving\n"
                     "sync " +
                         folder +
                         "\n"
                         "rename Saving/0.con -> Containers/0.con\n"
                         "rename Saving/Quillmere.ini -> Quillmere.ini\n"
                         "sync Containers\n"
                         "sync " +
                         folder +
                         "\n"
                         "remove Saving/manifest\n");
}

TEST(Generation, ARecoveryOneNeverWaitsForTheDisk) {
    Computer computer;
    PutRecovery(computer);
    computer.Files.Recount();
    ReplaceRecovery(computer);
    for (const auto& line : computer.Files.Log) EXPECT_FALSE(line.starts_with("sync")) << line;
}

TEST(Generation, ARecoveryThatTakesTheNamesOfTheOldIsOnTheDiskFirst) {
    Computer computer;
    PutRecovery(computer);
    for (const char* name : {"Quillmere.REC", "Containers/0.REC", "Containers/1.REC", "Containers/2.REC"}) {
        const auto bytes = computer.Files.Get(At(name));
        computer.Files.Delete(At(name));
        ASSERT_TRUE(computer.Files.Create(At(name), bytes));
    }
    computer.Files.Recount();
    TakeRecovery(computer);
    EXPECT_TRUE(computer.Files.LostSyncs.empty());
}

TEST(Generation, AnOldFileIsGoneBeforeTheNewOneTakesItsName) {
    Computer computer;
    PutCommitted(computer);
    computer.Files.Recount();
    ReplaceCommitted(computer);
    const auto& log = computer.Files.Log;
    const auto removed = std::find(log.begin(), log.end(), "remove Containers/0.con");
    const auto renamed = std::find(log.begin(), log.end(), "rename Saving/0.con -> Containers/0.con");
    ASSERT_NE(removed, log.end());
    EXPECT_LT(removed, renamed);
}

// A computer whose process died right behind the commit point.
void DieBehindCommit(Computer& computer, void (*change)(Computer&)) {
    computer.Files.Recount();
    for (int step = 1;; ++step) {
        const auto before = computer.Files.Snapshot();
        computer.Files.DieAfter(step);
        try {
            change(computer);
        } catch (const fake::ProcessDied&) {
        }
        computer.Files.Revive();
        if (computer.Files.Has(At("Saving"))) return;
        computer.Files.Restore(before);
        computer.Files.Recount();
    }
}

TEST(Generation, WhereTheDiskRefusesToFinishAStartStillReadsTheNewOne) {
    Computer computer;
    PutCommitted(computer);
    ReplaceCommitted(computer);
    const auto newer = Standings(computer.Files);

    Computer other;
    PutCommitted(other);
    DieBehindCommit(other, ReplaceCommitted);
    other.Files.MakeReadOnly(folder);
    other.Files.MakeReadOnly(At("Containers"));
    EXPECT_EQ(Standings(other.Files), newer);
    EXPECT_FALSE(Settle(other.Files, folder));
    EXPECT_EQ(Standings(other.Files), newer);
    other.Files.MakeWritable(folder);
    other.Files.MakeWritable(At("Containers"));
    EXPECT_TRUE(Settle(other.Files, folder));
    EXPECT_EQ(Standings(other.Files), newer);
}

TEST(Generation, AnInterruptedSaveThatLostItsBytesGoesAsideTogetherWithWhatItMayHaveTorn) {
    const struct {
        const char* What;
        std::function<void(fake::FakeFiles&)> Harm;
    } rows[] = {
        {"the manifest is empty", [](auto& files) { files.Put(At("Saving/manifest"), ""); }},
        {"a new file is empty", [](auto& files) { files.Put(At("Saving/0.REC"), ""); }},
        {"a new file is gone", [](auto& files) { files.Delete(At("Saving/2.REC")); }},
        {"a file that stays is empty", [](auto& files) { files.Put(At("Containers/1.REC"), ""); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.What);
        Computer computer;
        PutRecovery(computer);
        DieBehindCommit(computer, ReplaceRecovery);
        row.Harm(computer.Files);
        const auto seen = Standings(computer.Files);
        EXPECT_EQ(seen, "Containers/0.con=old 0\nContainers/1.con=old 1\nContainers/2.con=old 2\n"
                        "Containers/7.con=old 7\nQuillmere.ini=settings 1\n");
        const auto settled = Settle(computer.Files, folder);
        ASSERT_TRUE(settled);
        EXPECT_EQ(settled.Value(), At("Saving.damaged"));
        EXPECT_EQ(Standings(computer.Files), seen);
        EXPECT_EQ(computer.Files.Get(At("Saving.damaged/Quillmere.REC.old")), "settings 2");
    }
}

TEST(Generation, ADeathWhileADamagedSaveGoesAsideChangesNothing) {
    const auto harm = [](Computer& computer) {
        PutRecovery(computer);
        DieBehindCommit(computer, ReplaceRecovery);
        computer.Files.Put(At("Saving/manifest"), "");
    };
    const auto settle = [](Computer& computer) { (void)Settle(computer.Files, folder); };
    const auto look = [](Computer& computer) {
        EXPECT_TRUE(Settle(computer.Files, folder));
        return Standings(computer.Files);
    };
    test::DieEverywhere({harm, settle, look}, test::Generations::Same);
}

TEST(Generation, SomebodysFilesUnderOurWorkingNamesGoAsideWhole) {
    Computer computer;
    PutCommitted(computer);
    computer.Files.Put(At("Saving/holiday.jpg"), "a picture");
    computer.Files.Put(At("Saving.part/draft.txt"), "a draft");
    ReplaceCommitted(computer);
    EXPECT_EQ(computer.Files.Get(At("Saving.aside/holiday.jpg")), "a picture");
    EXPECT_EQ(computer.Files.Get(At("Saving.part.aside/draft.txt")), "a draft");
    EXPECT_EQ(computer.Files.Get(At("Containers/0.con")), first);
}

TEST(Generation, AFileUnderAWorkingNameGoesAside) {
    Computer computer;
    PutCommitted(computer);
    computer.Files.Put(At("Saving"), "a note");
    computer.Files.Put(At("Saving.part"), "another");
    ReplaceCommitted(computer);
    EXPECT_EQ(computer.Files.Get(At("Saving.aside")), "a note");
    EXPECT_EQ(computer.Files.Get(At("Saving.part.aside")), "another");
}

TEST(Generation, AFolderUnderOneOfOurNamesGoesAsideWithAllThatIsInIt) {
    Computer computer;
    computer.Files.Put(At("Containers/0.con/inside.txt"), "mine");
    computer.Files.Put(At("Containers/2.con/inside.txt"), "mine too");
    computer.Files.Put(At("Containers/1.con"), "old 1");
    ReplaceCommitted(computer);
    EXPECT_EQ(computer.Files.Get(At("Containers/0.con")), first);
    EXPECT_EQ(computer.Files.Get(At("Containers/0.con.aside/inside.txt")), "mine");
    EXPECT_EQ(computer.Files.Get(At("Containers/2.con.aside/inside.txt")), "mine too");
}

TEST(Generation, ContainersOnAnotherDiskAreReachedByACopy) {
    Computer computer;
    PutCommitted(computer);
    computer.Files.Recount();
    ReplaceCommitted(computer);
    const auto& log = computer.Files.Log;
    const auto at =
        std::find(log.begin(), log.end(), "rename Saving/0.con -> Containers/0.con") - log.begin();
    Computer other;
    PutCommitted(other);
    other.Files.Recount();
    other.Files.FailMutation(static_cast<int>(at) + 1, Reason::Other);
    ReplaceCommitted(other);
    EXPECT_EQ(Standings(other.Files), Standings(computer.Files));
    EXPECT_FALSE(other.Files.Has(At("Saving")));
}

TEST(Generation, AFailureAtAnyOperationLeavesTheOldOneOrTheNewOne) {
    Computer whole;
    PutCommitted(whole);
    const auto older = Standings(whole.Files);
    whole.Files.Recount();
    ReplaceCommitted(whole);
    const auto newer = Standings(whole.Files);
    for (int step = 1; step <= whole.Files.Steps(); ++step) {
        for (const auto reason : {Reason::NoSpace, Reason::Denied}) {
            Computer computer;
            PutCommitted(computer);
            computer.Files.Recount();
            computer.Files.FailFrom(step, reason);
            ASSERT_TRUE(Settle(computer.Files, folder));
            Change change(true);
            Write(change, "Containers/0.con", first);
            change.Keep("Containers/1.con", SumOf("old 1"));
            change.Drop("Containers/2.con");
            change.Aside("Containers/7.con", "Containers/7.con.aside");
            Write(change, "Quillmere.ini", settings);
            const auto done = Commit(computer.Files, folder, std::move(change));
            const auto has = Standings(computer.Files);
            EXPECT_TRUE(has == newer || (!done && has == older)) << step << "\n" << has;
            computer.Files.Heal();
            ReplaceCommitted(computer);
            EXPECT_EQ(Standings(computer.Files), newer) << step;
        }
    }
}

} // namespace
} // namespace quill
