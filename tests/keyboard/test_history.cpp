#include "fake/desk.h"
#include "keyboard/history.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using fake::Desk;

struct History : testing::Test {
    Desk desk;
    void SetUp() override { desk.StartWorkspace(); }

    std::string File() const { return desk.Settings("KB_History.txt"); }
    std::string Bytes() const { return desk.Computer.Files.Get(File()); }
    void Put(const std::string& bytes) { desk.Files().Put(File(), bytes); }
    void Add(const std::string& text) { AddToHistory(*desk.Main, text); }
    std::string Lines() const {
        std::string all;
        for (const auto& line : HistoryLines(*desk.Main)) all += line + ";";
        return all;
    }
    // That many lines, "1" the oldest.
    void Fill(int count) {
        std::string bytes;
        for (int at = 1; at <= count; ++at) bytes += std::to_string(at) + "\r\n";
        Put(bytes);
    }
};

TEST_F(History, IsEmptyWhileThereIsNoFile) {
    EXPECT_EQ(Lines(), "");
    EXPECT_FALSE(desk.Files().Has(File()));
}

TEST_F(History, TheFirstTextMakesTheFile) {
    Add("notepad");
    EXPECT_EQ(Bytes(), "notepad\r\n");
    EXPECT_EQ(Lines(), "notepad;");
}

TEST_F(History, TheFirstTextMakesTheFolderToo) {
    desk.Files().Delete(desk.Main->SettingsFolder);
    Add("notepad");
    EXPECT_EQ(Bytes(), "notepad\r\n");
}

TEST_F(History, APortableWorkspaceMakesNoFolder) {
    desk.Files().Delete(desk.Main->SettingsFolder);
    desk.Main->PortableMode = true;
    Add("notepad");
    EXPECT_FALSE(desk.Files().Has(desk.Main->SettingsFolder));
}

TEST_F(History, TheNewestComesFirstAndTheFileEndsWithIt) {
    for (const char* text : {"one", "two", "three"}) Add(text);
    EXPECT_EQ(Lines(), "three;two;one;");
    EXPECT_EQ(Bytes(), "one\r\ntwo\r\nthree\r\n");
}

TEST_F(History, TheSameTextIsMovedAndNotRepeated) {
    for (const char* text : {"one", "two", "one"}) Add(text);
    EXPECT_EQ(Lines(), "one;two;");
}

TEST_F(History, CaseMakesNoOtherText) {
    for (const char* text : {"Notepad", "two", "nOTEPAD"}) Add(text);
    EXPECT_EQ(Lines(), "nOTEPAD;two;");
}

TEST_F(History, TheOldestLineMakesRoom) {
    Fill(20);
    Add("new");
    EXPECT_EQ(HistoryLines(*desk.Main).size(), 20U);
    EXPECT_TRUE(Lines().starts_with("new;20;"));
    EXPECT_TRUE(Lines().ends_with(";3;2;"));
}

TEST_F(History, AMovedLineLeavesTheOthersTheirRoom) {
    Fill(20);
    Add("7");
    EXPECT_EQ(HistoryLines(*desk.Main).size(), 20U);
    EXPECT_TRUE(Lines().ends_with(";2;1;"));
}

TEST_F(History, ASmallerCountHoldsFromTheNextTextOn) {
    Fill(20);
    desk.Main->Settings.KeyboardHistoryCount = 5;
    Add("new");
    EXPECT_EQ(Lines(), "new;20;19;18;17;");
}

struct CountRow {
    float Count;
    std::size_t Lines;
};

TEST_F(History, TheCountStaysWithinItsBounds) {
    for (const CountRow row : {CountRow{-3, 5}, {0, 5}, {50, 50}, {1000, 50}}) {
        Fill(60);
        desk.Main->Settings.KeyboardHistoryCount = row.Count;
        Add("new");
        EXPECT_EQ(HistoryLines(*desk.Main).size(), row.Lines) << row.Count;
    }
}

TEST_F(History, TurnedOffNothingIsRemembered) {
    desk.Main->Settings.KeyboardHistory = false;
    Add("notepad");
    EXPECT_FALSE(desk.Files().Has(File()));
}

TEST_F(History, WhatCantBeALineIsNotRemembered) {
    const std::string notRemembered[] = {
        "",      "   ",
        "Ärger", "a\xFF",
        "дом",   "two\r\nlines",
        "a\tb",  std::string("a\0b", 3),
        "a\x7F", std::string(4097, 'a'),
    };
    for (const auto& text : notRemembered) {
        Add(text);
        EXPECT_FALSE(desk.Files().Has(File())) << text;
    }
}

TEST_F(History, HostileLinesAreOnlyText) {
    for (const char* text : {"%s%n", "\"a\" 'b' $(c) `d`", "-rf", "=1+1", "[END Note]", " led by a blank"})
        Add(text);
    EXPECT_EQ(Lines(), " led by a blank;[END Note];=1+1;-rf;\"a\" 'b' $(c) `d`;%s%n;");
}

TEST_F(History, TheLongestTextIsRemembered) {
    const std::string longest(4096, 'a');
    Add(longest);
    EXPECT_EQ(Lines(), longest + ";");
}

TEST_F(History, LinesOfAnyEndAreReadAndBlankOnesLeftOut) {
    Put("\xEF\xBB\xBF"
        "one\ntwo\r\n\r\n   \r\nthree");
    EXPECT_EQ(Lines(), "three;two;one;");
}

TEST_F(History, ADamagedFileIsReadAsFarAsItHoldsText) {
    Put(std::string("one\r\n\0\0\0\0\r\ntw\xFFo\r\nf\x1Bour\r\n", 25) + std::string(5000, 'x') +
        "\r\nfive\r\n");
    EXPECT_EQ(Lines(), "five;one;");
    Add("six");
    EXPECT_EQ(Bytes(), "one\r\nfive\r\nsix\r\n");
}

TEST_F(History, AFileBeyondAllMeasureIsBegunAnewAndGoesAside) {
    const std::string huge(1024 * 1024 + 1, 'x');
    Put(huge);
    EXPECT_EQ(Lines(), "");
    Add("one");
    EXPECT_EQ(Lines(), "one;");
    EXPECT_EQ(desk.Files().Get(File() + ".aside"), huge) << "whatever it was, it is still there";
}

TEST_F(History, AFileThatCantBeReadIsLeftAlone) {
    Put("one\r\n");
    desk.Files().FailReading(File(), Reason::Denied);
    EXPECT_EQ(Lines(), "");
    Add("two");
    desk.Files().Heal();
    EXPECT_EQ(Bytes(), "one\r\n");
}

TEST_F(History, AFailedWriteLeavesWhatStood) {
    for (int step = 1; step <= 2; ++step) {
        Put("one\r\n");
        desk.Files().FailFrom(step, Reason::NoSpace);
        Add("two");
        desk.Files().Heal();
        EXPECT_EQ(Bytes(), "one\r\n") << step;
        Add("three");
        EXPECT_EQ(Bytes(), "one\r\nthree\r\n") << step;
        desk.Files().Delete(File());
    }
}

// Steps of one add: the new file is made, then renamed.
TEST_F(History, ADeathAtAnyStepLeavesTheOldLinesOrTheNew) {
    for (int step = 0; step <= 3; ++step) {
        for (const bool torn : {false, true}) {
            Put("one\r\n");
            if (torn)
                desk.Files().DieTornAt(step + 1);
            else
                desk.Files().DieAfter(step);
            try {
                Add("two");
            } catch (const fake::ProcessDied&) {
            }
            desk.Files().Revive();
            const std::string bytes = Bytes();
            EXPECT_TRUE(bytes == "one\r\n" || bytes == "one\r\ntwo\r\n") << step << torn << bytes;
            Add("three");
            EXPECT_TRUE(Lines().starts_with("three;")) << step << torn;
            EXPECT_FALSE(desk.Files().Has(desk.Settings("KB_History.new"))) << step << torn;
        }
    }
}

} // namespace
} // namespace quill
