// The fake computer's deaths and failures: what the tests of saving rest on.
#include "fake/files.h"

#include <gtest/gtest.h>

namespace quill::fake {
namespace {

class FakeFilesTest : public testing::Test {
protected:
    FakeFilesTest() {
        files.PutFolder("/w");
        files.LogRoot = "/w/";
    }
    FakeFiles files;
};

TEST_F(FakeFilesTest, TheLogTellsWhatWasAskedInOrder) {
    EXPECT_TRUE(files.MakeFolder("/w/a/b"));
    EXPECT_TRUE(files.Create("/w/a/file", "123"));
    EXPECT_TRUE(files.Sync("/w/a/file"));
    EXPECT_TRUE(files.Rename("/w/a/file", "/w/file"));
    EXPECT_TRUE(files.Copy("/w/file", "/w/copy"));
    EXPECT_FALSE(files.Remove("/w/none"));
    const std::vector<std::string> expected{"mkdir a",
                                            "mkdir a/b",
                                            "create a/file 3",
                                            "sync a/file",
                                            "rename a/file -> file",
                                            "copy file -> copy",
                                            "remove none ! No such file or directory"};
    EXPECT_EQ(files.Log, expected);
    EXPECT_EQ(files.Steps(), 7);
}

TEST_F(FakeFilesTest, AfterItsLastStepAProcessDoesNothingMore) {
    files.DieAfter(2);
    EXPECT_TRUE(files.Create("/w/one", "1"));
    EXPECT_TRUE(files.Create("/w/two", "2"));
    EXPECT_THROW((void)files.Create("/w/three", "3"), ProcessDied);
    EXPECT_THROW((void)files.Stat("/w/one"), ProcessDied);
    EXPECT_EQ(files.Dump("/w"), "== one\n1\n== two\n2\n");
    files.Revive();
    EXPECT_TRUE(files.Create("/w/three", "3"));
}

TEST_F(FakeFilesTest, ADeathBeforeTheFirstStepChangesNothing) {
    files.DieAfter(0);
    EXPECT_THROW((void)files.Create("/w/one", "1"), ProcessDied);
    EXPECT_EQ(files.Dump("/w"), "");
}

TEST_F(FakeFilesTest, ATornDeathLeavesHalfOfTheFile) {
    files.DieTornAt(2);
    EXPECT_TRUE(files.Create("/w/one", "1234"));
    EXPECT_THROW((void)files.Create("/w/two", "1234"), ProcessDied);
    EXPECT_TRUE(files.Dead());
    EXPECT_EQ(files.Dump("/w"), "== one\n1234\n== two\n12\n");
}

TEST_F(FakeFilesTest, FailuresComeOnceOrFromThereOn) {
    files.FailMutation(1, Reason::NoSpace);
    EXPECT_EQ(files.Create("/w/one", "1").Error().Text, "No space left on device");
    EXPECT_TRUE(files.Create("/w/one", "1"));
    files.FailFrom(1, Reason::Other);
    EXPECT_FALSE(files.Sync("/w/one"));
    EXPECT_FALSE(files.Remove("/w/one"));
    files.Heal();
    EXPECT_TRUE(files.Remove("/w/one"));
}

TEST_F(FakeFilesTest, AFullDiskTakesWhatFitsAndFreesWhatIsRemoved) {
    files.Put("/w/old", "12345");
    files.Space(3);
    EXPECT_EQ(files.Create("/w/four", "1234").Error().Kind, Reason::NoSpace);
    EXPECT_TRUE(files.Create("/w/three", "123"));
    EXPECT_TRUE(files.Remove("/w/old"));
    EXPECT_TRUE(files.Create("/w/four", "1234"));
}

TEST_F(FakeFilesTest, WhatWasNeverSyncedIsLostWithThePower) {
    EXPECT_TRUE(files.Create("/w/kept", "1"));
    EXPECT_TRUE(files.Sync("/w/kept"));
    EXPECT_TRUE(files.Create("/w/lost", "2"));
    EXPECT_TRUE(files.Rename("/w/lost", "/w/renamed"));
    EXPECT_EQ(files.LostSyncs, std::vector<std::string>{"lost -> renamed"});
    files.CutPower();
    EXPECT_EQ(files.Dump("/w"), "== kept\n1\n== renamed\n\n");
}

TEST_F(FakeFilesTest, ATreeCanBeTakenBack) {
    files.Put("/w/a/file", "before");
    const Tree before = files.Snapshot();
    EXPECT_TRUE(files.Remove("/w/a/file"));
    files.Restore(before);
    EXPECT_EQ(files.Get("/w/a/file"), "before");
    EXPECT_EQ(files.Get("/w/none"), "(none)");
}

} // namespace
} // namespace quill::fake
