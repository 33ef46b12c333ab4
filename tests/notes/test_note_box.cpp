#include "notes/notes.h"

#include "containers/workspace_fixture.h"
#include "core/handlers.h"

namespace quill {
namespace {

struct NoteBox : test::WorkspaceFixture {
    int index = -1;
    void SetUp() override {
        NewNote(Main, "milk", "Shopping", true);
        index = Main.NextContainerIndex - 1;
        ContainerNote_GotFocus(Main, index);
    }
    static KeyEvent Key(int code) {
        KeyEvent event;
        event.Code = code;
        event.InTextField = true;
        return event;
    }
    void Type(const std::string& text) {
        ContainerNote_KeyDown(Main, index, Key('A'));
        ContainerNote_Change(Main, index, text);
    }
    bool Saved(const std::string& text) { return Recovery("0.REC").find(text) != std::string::npos; }
    NoteView& Note() { return Main.ConView(index).ContainerNote; }
};

TEST_F(NoteBox, WhatIsTypedIsKeptWithWindowsLineEndsAndNeverWrittenBackIntoTheBox) {
    const auto revision = Note().Revision;
    Type("milk\nbread");
    EXPECT_EQ(Note().Text, "milk\r\nbread");
    EXPECT_EQ(Note().Revision, revision);
}

TEST_F(NoteBox, TwoSecondsAfterTheLastKeyWhatWasTypedIsSaved) {
    Type("milk, bread");
    Wait(1999);
    EXPECT_FALSE(Saved("bread"));
    Type("milk, bread, salt");
    Wait(1999);
    EXPECT_FALSE(Saved("bread"));
    Wait(1);
    EXPECT_TRUE(Saved("milk, bread, salt"));
    EXPECT_EQ(computer.Clock.RunningTimers(), 0U);
}

TEST_F(NoteBox, LeavingTheNoteSavesAtOnce) {
    Type("milk, bread");
    ContainerNote_LostFocus(Main, index);
    EXPECT_TRUE(Saved("milk, bread"));
    EXPECT_EQ(computer.Clock.RunningTimers(), 0U);
}

TEST_F(NoteBox, EveryKeyStampsTheNoteAlsoOneThatChangesNothing) {
    computer.Clock.SetNow({2027, 3, 4, 5, 6, 7, 0});
    ContainerNote_KeyDown(Main, index, Key(KeyLeft));
    EXPECT_EQ(Main.Con(index).ModifyDate, "2027-03-04 05:06:07");
    EXPECT_EQ(Note().Text, "milk");
    EXPECT_EQ(computer.Clock.RunningTimers(), 0U);
}

TEST_F(NoteBox, AChangeThatIsNoneStartsNothing) {
    ContainerNote_Change(Main, index, "milk");
    EXPECT_EQ(computer.Clock.RunningTimers(), 0U);
}

TEST_F(NoteBox, TextThatComesWithoutAKeyStampsToo) {
    computer.Clock.SetNow({2027, 3, 4, 5, 6, 7, 0});
    ContainerNote_Change(Main, index, "pasted");
    EXPECT_EQ(Main.Con(index).ModifyDate, "2027-03-04 05:06:07");
}

TEST_F(NoteBox, TheFocusMakesTheContainerTheCurrentOne) {
    const int other = New({0, 0, 3000, 3000});
    Main.Group.CurrentContainer = other;
    Main.Group.ContainerHasFocus = false;
    ContainerNote_GotFocus(Main, index);
    EXPECT_EQ(Main.Group.CurrentContainer, index);
    EXPECT_TRUE(Main.Group.ContainerHasFocus);
}

TEST_F(NoteBox, WhenTheContainerDiesWhileTheSaveIsDueTheRestIsSaved) {
    New({0, 0, 3000, 3000}, "Other");
    Type("milk, bread");
    DeleteContainer(Main, index, false);
    Wait(2000);
    EXPECT_FALSE(Saved("bread"));
    EXPECT_TRUE(Saved("Other"));
    ContainerNote_Change(Main, index, "late");
    ContainerNote_KeyDown(Main, index, {});
    ContainerNote_LostFocus(Main, index);
    EXPECT_EQ(Note().Text, "");
}

TEST_F(NoteBox, WhenTheProgramExitsWhileTheSaveIsDueNothingIsSavedTwice) {
    Type("milk, bread");
    Main.IsExiting = true;
    Wait(2000);
    ContainerNote_LostFocus(Main, index);
    EXPECT_EQ(Recovery("0.REC"), "(none)");
}

TEST_F(NoteBox, ANoteLosesItsLeadingBlankLinesAtTheNextSave) {
    Type("\n\n  milk");
    ContainerNote_LostFocus(Main, index);
    EXPECT_TRUE(Saved("[START Note]\r\nmilk\r\n[END Note]\r\n")) << Recovery("0.REC");
}

} // namespace
} // namespace quill
