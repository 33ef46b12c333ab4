// At whatever moment the program dies, the next start has one whole generation: every kind of save.
#include "persistence/backup.h"
#include "persistence/deaths.h"
#include "persistence/save.h"
#include "persistence/saving_desk.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using fake::Computer;
using namespace test;

// ---- what stands on the disk before

void Nothing(Computer&) {}

void Committed(Computer& computer) {
    const auto Main = Process(computer);
    Furnish(*Main, "committed");
    SaveWorkspace(*Main, false, false);
    computer.EndProcess();
}

void CommittedAndRecovered(Computer& computer) {
    Committed(computer);
    const auto Main = Process(computer);
    Furnish(*Main, "recovered");
    AddContainer(*Main, "Fourth");
    SaveWorkspace(*Main, true, false);
    computer.EndProcess();
}

void WithContainersOnly(Computer& computer) {
    Committed(computer);
    const auto Main = Process(computer);
    Furnish(*Main, "only containers");
    SaveContainers(*Main, true);
    computer.EndProcess();
}

void WithFilesBehindAGap(Computer& computer) {
    Committed(computer);
    computer.Files.Put(At("Containers/4.con"), "behind the gap");
    computer.Files.Put(At("Containers/17.con"), "far behind the gap");
}

void LeftByAnOlderVersion(Computer& computer) {
    Committed(computer);
    for (const char* number : {"1", "2"}) {
        const auto name = At(std::string("Containers/") + number + ".con");
        computer.Files.Put(name + ".bak", computer.Files.Get(name));
        computer.Files.Delete(name);
    }
    computer.Files.Put(At("Containers/0.con.bak"), "the one before");
}

// ---- what is done

void Save(Computer& computer, bool recover, const std::string& mark, int containers) {
    const auto Main = Process(computer);
    Furnish(*Main, mark);
    for (int extra = 3; extra < containers; ++extra) AddContainer(*Main, "Extra");
    for (int index = containers; index < 3; ++index) Delete(*Main, index);
    SaveWorkspace(*Main, recover, false);
}

void StartIt(Computer& computer) {
    Start(computer);
}

TEST(Deaths, InTheFirstSaveEver) {
    DieEverywhere({Nothing, [](auto& computer) { Save(computer, false, "new", 3); }, Start});
    DieEverywhere({Nothing, [](auto& computer) { Save(computer, true, "new", 3); }, Start});
}

TEST(Deaths, InARecoverySaveOfEverything) {
    for (const int containers : {0, 1, 5}) {
        SCOPED_TRACE(containers);
        DieEverywhere({Committed, [=](auto& computer) { Save(computer, true, "new", containers); }, Start});
        DieEverywhere(
            {CommittedAndRecovered, [=](auto& computer) { Save(computer, true, "new", containers); }, Start});
        DieEverywhere(
            {WithContainersOnly, [=](auto& computer) { Save(computer, true, "new", containers); }, Start});
    }
}

// The process knows what stands there, and writes one file.
TEST(Deaths, InARecoverySaveOfWhatDiffers) {
    const auto one = [](Computer& computer) {
        const auto Main = Process(computer);
        Furnish(*Main, "recovered");
        AddContainer(*Main, "Fourth");
        SaveWorkspace(*Main, true, false);
        Note(*Main, 1, "a line typed in");
        SaveWorkspace(*Main, true, false);
    };
    DieEverywhere({CommittedAndRecovered, one, Start});
}

TEST(Deaths, InARecoverySaveWithContainersFewerThanBefore) {
    for (const int last : {0, 1, 3}) {
        SCOPED_TRACE(last);
        const auto shrink = [=](Computer& computer) {
            const auto Main = Process(computer);
            Furnish(*Main, "recovered");
            AddContainer(*Main, "Fourth");
            SaveWorkspace(*Main, true, false);
            Delete(*Main, last);
            SaveWorkspace(*Main, true, false);
        };
        DieEverywhere({CommittedAndRecovered, shrink, Start});
    }
}

TEST(Deaths, InASaveOfContainersAlone) {
    for (const auto& stage : {Act(Committed), Act(CommittedAndRecovered), Act(WithContainersOnly)}) {
        for (const int containers : {0, 2, 5}) {
            SCOPED_TRACE(containers);
            const auto save = [=](Computer& computer) {
                const auto Main = Process(computer);
                Furnish(*Main, "new");
                for (int extra = 3; extra < containers; ++extra) AddContainer(*Main, "Extra");
                for (int index = containers; index < 3; ++index) Delete(*Main, index);
                SaveContainers(*Main, true);
            };
            DieEverywhere({stage, save, Start});
        }
    }
}

TEST(Deaths, InACommittedSave) {
    for (const auto& stage : {Act(Committed), Act(CommittedAndRecovered), Act(WithContainersOnly),
                              Act(WithFilesBehindAGap), Act(LeftByAnOlderVersion)}) {
        for (const int containers : {0, 1, 6}) {
            SCOPED_TRACE(containers);
            DieEverywhere({stage, [=](auto& computer) { Save(computer, false, "new", containers); }, Start});
        }
    }
}

TEST(Deaths, InTheExitsSave) {
    const auto exit = [](Computer& computer) {
        const auto Main = Process(computer);
        Furnish(*Main, "new");
        SaveWorkspace(*Main, false, true);
    };
    DieEverywhere({CommittedAndRecovered, exit, Start});
}

TEST(Deaths, InACommittedSaveOfWhatWasRecovered) {
    const auto both = [](Computer& computer) {
        const auto Main = Process(computer);
        Furnish(*Main, "recovered");
        AddContainer(*Main, "Fourth");
        SaveWorkspace(*Main, true, false);
        SaveWorkspace(*Main, false, false);
    };
    DieEverywhere({CommittedAndRecovered, both, Start}, Generations::Same);
}

TEST(Deaths, InTheTakeover) {
    DieEverywhere({CommittedAndRecovered, StartIt, Start}, Generations::Same);
    DieEverywhere({WithContainersOnly, StartIt, Start}, Generations::Same);
    DieEverywhere({LeftByAnOlderVersion, StartIt, Start}, Generations::Same);
}

TEST(Deaths, InATakeoverWithMoreThanTenContainers) {
    const auto twelve = [](Computer& computer) {
        Committed(computer);
        Save(computer, true, "recovered", 12);
        computer.EndProcess();
    };
    DieEverywhere({twelve, StartIt, Start}, Generations::Same);
}

TEST(Deaths, InTheTakeoverOfARecoveryWithoutContainers) {
    const auto none = [](Computer& computer) {
        Committed(computer);
        Save(computer, true, "recovered", 0);
        computer.EndProcess();
    };
    DieEverywhere({none, StartIt, Start}, Generations::Same);
}

TEST(Deaths, WhileRecentChangesAreThrownAway) {
    const auto drop = [](Computer& computer) {
        const auto Main = Process(computer);
        EXPECT_TRUE(DropRecovery(*Main));
    };
    DieEverywhere({CommittedAndRecovered, drop, Start});
    DieEverywhere({WithContainersOnly, drop, Start});
}

TEST(Deaths, InABackupTheLastOneStandsUntilTheNewOneIsWhole) {
    const auto stage = [](Computer& computer) {
        CommittedAndRecovered(computer);
        computer.Files.Put(At("Quillmere_Backup.zip"), "the last backup");
    };
    const auto backup = [](Computer& computer) {
        const auto Main = Process(computer);
        EXPECT_TRUE(BackupQuillmere(*Main, "Quillmere_Backup.zip"));
    };
    const auto look = [](Computer& computer) {
        return Start(computer) + Get(computer, "Quillmere_Backup.zip");
    };
    DieEverywhere({stage, backup, look});
}

TEST(Deaths, InASaveThatMakesABackup) {
    const auto stage = [](Computer& computer) {
        CommittedAndRecovered(computer);
        computer.Files.Put(At("Quillmere_Backup.zip"), "the last backup");
    };
    const auto save = [](Computer& computer) {
        const auto Main = Process(computer);
        Furnish(*Main, "new");
        BackupSetings(*Main, false);
        computer.Worker.RunAll();
    };
    DieEverywhere({stage, save, Start});
    DieEverywhere({stage, save, [](auto& computer) {
                       Start(computer);
                       return Get(computer, "Quillmere_Backup.zip");
                   }});
}

} // namespace
} // namespace quill
