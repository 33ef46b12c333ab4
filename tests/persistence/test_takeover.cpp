#include "persistence/save.h"
#include "persistence/saving_desk.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using namespace test;
using Names = std::vector<std::string>;

struct Takeover : testing::Test {
    fake::Computer Computer;
    std::unique_ptr<frmMain> Main = Process(Computer);

    void Put(const Names& names) {
        for (const auto& name : names) Computer.Files.Put(At(name), "bytes of " + name);
    }
    Names Chosen() {
        const auto files = ChooseGeneration(*Main);
        Names names{Short(files.Settings)};
        for (const auto& path : files.Containers) names.push_back(Short(path));
        return names;
    }
    void Take() { TakeOverRecovery(*Main, ChooseGeneration(*Main)); }
    Names Containers() const { return Computer.Files.Names(At("Containers")); }
    static std::string Short(const std::string& path) {
        return path.empty() ? "(none)" : path.substr(fake::SettingsFolder.size() + 1);
    }
};

TEST_F(Takeover, AFirstRunHasNothing) {
    EXPECT_EQ(Chosen(), Names{"(none)"});
    Take();
    EXPECT_EQ(Computer.Files.Steps(), 0);
}

TEST_F(Takeover, TheCommittedSetEndsAtTheFirstGap) {
    Put({"Quillmere.ini", "Containers/0.con", "Containers/2.con"});
    EXPECT_EQ(Chosen(), (Names{"Quillmere.ini", "Containers/0.con"}));
    Take();
    EXPECT_EQ(Containers(), (Names{"0.con", "2.con"}));
}

TEST_F(Takeover, MoreThanTenContainersComeInTheOrderOfTheirNumbers) {
    Put({"Quillmere.REC"});
    Names expected{"Quillmere.REC"};
    for (int number = 0; number < 12; ++number) {
        expected.push_back("Containers/" + std::to_string(number) + ".REC");
        Put({expected.back()});
    }
    EXPECT_EQ(Chosen(), expected);
    Take();
    EXPECT_EQ(Get(Computer, "Containers/2.con"), "bytes of Containers/2.REC");
    EXPECT_EQ(Get(Computer, "Containers/10.con"), "bytes of Containers/10.REC");
}

TEST_F(Takeover, NothingOnTheDiskChangesBeforeTheSetHasLoaded) {
    Put({"Quillmere.ini", "Quillmere.REC", "Containers/0.con", "Containers/0.REC", "Containers/1.con.bak"});
    FinishInterruptedSave(*Main);
    EXPECT_EQ(Chosen(), (Names{"Quillmere.REC", "Containers/0.REC"}));
    EXPECT_EQ(Computer.Files.Steps(), 0);
}

TEST_F(Takeover, TheRecoverySetTakesThePlaceOfTheWholeCommittedSet) {
    Put({"Quillmere.ini", "Quillmere.REC", "Containers/0.con", "Containers/1.con", "Containers/2.con",
         "Containers/0.REC", "Containers/1.REC"});
    Take();
    EXPECT_EQ(Containers(), (Names{"0.con", "1.con"}));
    EXPECT_EQ(Get(Computer, "Quillmere.ini"), "bytes of Quillmere.REC");
    EXPECT_EQ(Get(Computer, "Containers/1.con"), "bytes of Containers/1.REC");
    EXPECT_FALSE(Computer.Files.Has(At("Quillmere.REC")));
}

TEST_F(Takeover, RecoveredContainersAloneLeaveTheSettingsAsTheyAre) {
    Put({"Quillmere.ini", "Containers/0.con", "Containers/1.con", "Containers/0.REC"});
    EXPECT_EQ(Chosen(), (Names{"Quillmere.ini", "Containers/0.REC"}));
    Take();
    EXPECT_EQ(Get(Computer, "Quillmere.ini"), "bytes of Quillmere.ini");
    EXPECT_EQ(Containers(), Names{"0.con"});
}

TEST_F(Takeover, RecoveredSettingsAloneAreAnEmptyWorkspaceAndTheOldContainersGoAside) {
    Put({"Quillmere.ini", "Quillmere.REC", "Containers/0.con", "Containers/1.con"});
    EXPECT_EQ(Chosen(), Names{"Quillmere.REC"});
    Take();
    EXPECT_EQ(Containers(), (Names{"0.con.aside", "1.con.aside"}));
    EXPECT_EQ(Chosen(), Names{"Quillmere.ini"});
}

TEST_F(Takeover, ATornSetOfAnOlderVersionIsReadAcrossItsGaps) {
    Put({"Quillmere.REC", "Containers/0.REC", "Containers/3.REC", "Containers/11.REC"});
    EXPECT_EQ(Chosen(),
              (Names{"Quillmere.REC", "Containers/0.REC", "Containers/3.REC", "Containers/11.REC"}));
    Take();
    EXPECT_EQ(Containers(), (Names{"0.con", "1.con", "2.con"}));
    EXPECT_EQ(Get(Computer, "Containers/2.con"), "bytes of Containers/11.REC");
}

TEST_F(Takeover, RecoveryFilesThatAreNoSetGoAside) {
    Put({"Quillmere.ini", "Containers/0.con", "Containers/2.REC"});
    EXPECT_EQ(Chosen(), (Names{"Quillmere.ini", "Containers/0.con"}));
    Take();
    EXPECT_EQ(Containers(), (Names{"0.con", "2.REC.aside"}));
}

TEST_F(Takeover, ADamagedRecoverySetGoesAsideWholeWhenTheCommittedOneHasLoaded) {
    Put({"Quillmere.ini", "Quillmere.REC", "Containers/0.con", "Containers/0.REC", "Containers/1.REC"});
    const auto committed = CommittedGeneration(*Main);
    EXPECT_FALSE(committed.Recovery);
    TakeOverRecovery(*Main, committed);
    EXPECT_EQ(Containers(), (Names{"0.REC.aside", "0.con", "1.REC.aside"}));
    EXPECT_EQ(Get(Computer, "Quillmere.REC.aside"), "bytes of Quillmere.REC");
    EXPECT_EQ(Chosen(), (Names{"Quillmere.ini", "Containers/0.con"}));
}

TEST_F(Takeover, FilesBehindAGapGoAsideWithTheTakeoverToo) {
    Put({"Quillmere.REC", "Containers/0.con", "Containers/0.REC", "Containers/1.REC", "Containers/4.con"});
    Take();
    EXPECT_EQ(Containers(), (Names{"0.con", "1.con", "4.con.aside"}));
    EXPECT_EQ(Get(Computer, "Containers/4.con.aside"), "bytes of Containers/4.con");
}

// What an older version leaves when it dies in the middle of a committed save.
TEST_F(Takeover, BackupsOfAnOlderVersionTakeTheirNamesBackAndLoseNothing) {
    const struct {
        const char* What;
        Names Before, Loaded, After;
    } rows[] = {
        {"before any was written",
         {"0.con.bak", "1.con.bak"},
         {"0.con.bak", "1.con.bak"},
         {"0.con", "1.con"}},
        {"while they were renamed", {"0.con", "1.con.bak"}, {"0.con", "1.con.bak"}, {"0.con", "1.con"}},
        {"while they were written",
         {"0.con", "0.con.bak", "1.con.bak"},
         {"0.con", "1.con.bak"},
         {"0.con", "0.con.bak.aside", "1.con"}},
        {"when all was written",
         {"0.con", "1.con", "0.con.bak", "1.con.bak"},
         {"0.con", "1.con"},
         {"0.con", "0.con.bak.aside", "1.con", "1.con.bak.aside"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.What);
        Computer.Files.Delete(fake::SettingsFolder);
        Put({"Quillmere.ini"});
        for (const auto& name : row.Before) Put({"Containers/" + name});
        Names loaded{"Quillmere.ini"};
        for (const auto& name : row.Loaded) loaded.push_back("Containers/" + name);
        EXPECT_EQ(Chosen(), loaded);
        Take();
        EXPECT_EQ(Containers(), row.After);
        for (std::size_t number = 0; number < row.Loaded.size(); ++number)
            EXPECT_EQ(Get(Computer, "Containers/" + std::to_string(number) + ".con"),
                      "bytes of Containers/" + row.Loaded[number]);
    }
}

TEST_F(Takeover, TheNextRecoverySaveStartsAfresh) {
    Furnish(*Main, "recovered");
    SaveWorkspace(*Main, true, false);
    Start(Computer);
    Main = Process(Computer);
    Furnish(*Main, "recovered");
    SaveContainers(*Main, true);
    EXPECT_EQ(Containers(), (Names{"0.REC", "0.con", "1.REC", "1.con", "2.REC", "2.con"}));
}

TEST_F(Takeover, AFolderThatCannotBeListedChangesNothing) {
    Put({"Quillmere.ini", "Quillmere.REC", "Containers/0.REC"});
    Computer.Files.MakeUnreadable(At("Containers"));
    EXPECT_EQ(Chosen(), (Names{"Quillmere.REC", "Containers/0.REC"}));
    Take();
    EXPECT_EQ(Computer.Files.Steps(), 0);
    EXPECT_EQ(Main->Store.SaveFailure, "Permission denied");
}

} // namespace
} // namespace quill
