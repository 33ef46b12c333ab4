#include "containers/selection.h"
#include "shortcuts/at_work.h"
#include "shortcuts/open_with.h"
#include "shortcuts/selected.h"

namespace quill {
namespace {

struct TagStart : AtWork {
    int Tagged(const std::string& path, const std::string& tags) {
        const int index = File(path);
        Main.Link(index).Tags = tags;
        return index;
    }
    int ByClick(int index) {
        Main.Link(index).TagStart = true;
        return index;
    }
};

struct MatchRow {
    const char* Name;
    const char* Tags;
    const char* Asked;
    bool Starts;
};

class TagMatch : public AtWork, public testing::WithParamInterface<MatchRow> {};

TEST_P(TagMatch, DecidesWhatIsStarted) {
    Main.Link(File("/a")).Tags = GetParam().Tags;
    StartAllWithTag(Main, GetParam().Asked);
    EXPECT_EQ(Started(), GetParam().Starts ? "start /a\n" : "");
}

const MatchRow MatchRows[] = {
    {"TheTagItself", "work", "work", true},
    {"CaseAndBlanksDoNotCount", "Work, Home", " home ", true},
    {"NorInOtherAlphabets", "\xC3\x84RGER", "\xC3\xA4rger", true},
    {"ATagInsideWhatWasAskedFor", "art", "start", true},
    {"ButNotTheOtherWayRound", "start", "art", false},
    {"SeveralTagsAreAskedForAtOnce", "home", "work, home", true},
    {"ATagThatIsRepeatedStartsOnce", "work,work, Work", "work", true},
    {"AnEmptyItemIsNoTag", " ,, ", "work", false},
    {"NorIsAnEmptyList", "", "work", false},
    {"ABlankInsideATagCounts", "home work", "homework", false},
    {"TheLastOfTheListIsFound", "a1,b2,c3", "c3", true},
};

INSTANTIATE_TEST_SUITE_P(Table, TagMatch, testing::ValuesIn(MatchRows),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(TagStart, AClickStartsAllOfItsTagsInTableOrderEachOnce) {
    Tagged("/a", "home");
    const int index = ByClick(Tagged("/b", "Work, Home"));
    Tagged("/c", "other");
    Tagged("/d", "work");
    Start(index);
    EXPECT_EQ(Started(), "start /a\nstart /b\nstart /d\n");
    EXPECT_EQ(Recent(), "d, b, a");
}

TEST_F(TagStart, ByTheKeyboardLauncherABlankListStartsNothingAndSaysSo) {
    Tagged("/a", "work");
    for (const char* tags : {"", "  \t"}) {
        Person().Answer(AnswerOk);
        StartAllWithTag(Main, tags);
        EXPECT_EQ(Person().LastBox(), "Tag Start: The selected shortcut does not have any tags.\n\n"
                                      "Shortcut Properties >> Advanced >> Tag Start");
        EXPECT_EQ(Person().Boxes.back().Flags, 64);
        EXPECT_EQ(Person().Boxes.back().Title, "Quillmere");
    }
    EXPECT_EQ(Started(), "");
}

TEST_F(TagStart, AShortcutWithoutTagsSaysSoOnEachClick) {
    const int index = ByClick(Tagged("/a", ""));
    for (int click = 1; click <= 2; ++click) {
        Person().Answer(AnswerOk);
        Start(index);
        EXPECT_EQ(Person().Boxes.size(), static_cast<std::size_t>(click));
    }
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Recent(), "");
}

TEST_F(TagStart, ATagStartInsideATagStartStartsItselfOnly) {
    ByClick(Tagged("/a", "work, other"));
    Tagged("/b", "other");
    StartAllWithTag(Main, "work");
    EXPECT_EQ(Started(), "start /a\n");
}

TEST_F(TagStart, TheMenusStartSelectedStartsThatOneShortcut) {
    const int index = ByClick(Tagged("/a", "work"));
    Tagged("/b", "work");
    SetSelection(Main, index, true);
    StartSelected(Main, false, false);
    EXPECT_EQ(Started(), "start /a\n");
}

TEST_F(TagStart, EachIsStartedAsItsRecordSays) {
    clsShortcut& record = Main.Link(Tagged("/a", "work"));
    record.Parameters = "--new";
    record.StartIn = "/home/user";
    record.RunIn = 2;
    record.Admin = true;
    StartAllWithTag(Main, "work");
    EXPECT_EQ(Started(), "runas /a --new in /home/user show 2\n");
}

TEST_F(TagStart, EachIsAskedAboutForItselfAndANoSkipsThatOneOnly) {
    for (const char* path : {"/a", "/b", "/c"}) Main.Link(Tagged(path, "work")).Confirm = true;
    for (const int answer : {AnswerYes, AnswerNo, AnswerYes}) Person().Answer(answer);
    StartAllWithTag(Main, "work");
    EXPECT_EQ(Started(), "start /a\nstart /c\n");
    EXPECT_EQ(Recent(), "c, a");
}

TEST_F(TagStart, TheSelectionIsGoneAndTheLastOneIsCurrent) {
    SetSelection(Main, Tagged("/other", ""), true);
    const int index = Tagged("/a", "work");
    StartAllWithTag(Main, "work");
    EXPECT_TRUE(Main.Links.SelectedShortcuts.empty());
    EXPECT_EQ(Main.Links.CurrentShortcut, index);
}

TEST_F(TagStart, WithNothingToStartTheSelectionStays) {
    SetSelection(Main, Tagged("/other", ""), true);
    StartAllWithTag(Main, "work");
    EXPECT_EQ(Main.Links.SelectedShortcuts.size(), 1U);
}

TEST_F(TagStart, WhatDiesMeanwhileIsLeftOutAndTheEndOfTheProgramEndsIt) {
    Tagged("/a", "work");
    const int second = Tagged("/b", "work");
    Tagged("/c", "work");
    Tagged("/d", "work");
    Computer.Shell.OnLaunch = [&](const LaunchRequest& request) {
        if (request.File == "/a") DeleteShortcut(Main, second);
        if (request.File == "/c") Main.IsExiting = true;
    };
    StartAllWithTag(Main, "work");
    EXPECT_EQ(Started(), "start /a\nstart /c\n");
}

TEST_F(TagStart, WhatIsAddedMeanwhileWasNotAskedFor) {
    Tagged("/a", "work");
    Computer.Shell.OnLaunch = [&](const LaunchRequest& request) {
        if (request.File == "/a") Tagged("/new", "work");
    };
    StartAllWithTag(Main, "work");
    EXPECT_EQ(Started(), "start /a\n");
}

} // namespace
} // namespace quill
