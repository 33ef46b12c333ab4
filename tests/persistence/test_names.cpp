#include "fake/files.h"
#include "persistence/names.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(SavedNames, OnlyOurOwnSpellingOfANumberIsOurs) {
    const struct {
        const char* Name;
        std::optional<int> Number;
    } rows[] = {
        {"0.con", 0},   {"17.con", 17},      {"Containers/3.con", 3}, {"03.con", {}},
        {"-1.con", {}}, {"+1.con", {}},      {" 1.con", {}},          {"1.con.bak", {}},
        {"1.REC", {}},  {".con", {}},        {"notes.con", {}},       {"1a.con", {}},
        {"1.CON", {}},  {"1.con.aside", {}}, {"99999999999.con", {}},
    };
    for (const auto& row : rows) EXPECT_EQ(NumberOf(row.Name, CommittedExtension), row.Number) << row.Name;
    EXPECT_EQ(NumberOf("4.con.bak", OldBackupExtension), 4);
    EXPECT_EQ(ContainerName(4, OldBackupExtension), "Containers/4.con.bak");
}

TEST(SavedNames, PatternsIgnoreCaseAndReachTheEnd) {
    const struct {
        const char* Name;
        const char* Pattern;
        bool Matches;
    } rows[] = {
        {"3.REC", "*.REC", true},
        {"3.rec", "*.REC", true},
        {"3.REC.old", "*.REC", false},
        {"3.con.bak", "*.con", false},
        {"3.con.bak", "*.con.bak", true},
        {"3.con", "?.con", true},
        {"13.con", "?.con", false},
        {"", "*", true},
        {"", "?", false},
        {"anything", "*", true},
        {"a.con.con", "*.con", true},
        {"abc", "a*c*", true},
    };
    for (const auto& row : rows)
        EXPECT_EQ(MatchesPattern(row.Name, row.Pattern), row.Matches) << row.Name << " " << row.Pattern;
}

TEST(SavedNames, TwoComesBeforeTen) {
    std::vector<std::string> names{"Containers/10.REC", "Containers/2.REC", "Containers/0.REC",
                                   "Containers/x.REC"};
    SortByNumber(names);
    EXPECT_EQ(names, (std::vector<std::string>{"Containers/0.REC", "Containers/2.REC", "Containers/10.REC",
                                               "Containers/x.REC"}));
}

TEST(SavedNames, ASideNameNeverHitsAFileThatStands) {
    fake::FakeFiles files;
    files.Put("/q/Containers/7.con", "a");
    EXPECT_EQ(AsideName(files, "/q", "Containers/7.con"), "Containers/7.con.aside");
    files.Put("/q/Containers/7.con.aside", "b");
    files.Put("/q/Containers/7.con.aside2", "c");
    EXPECT_EQ(AsideName(files, "/q", "Containers/7.con"), "Containers/7.con.aside3");
}

} // namespace
} // namespace quill
