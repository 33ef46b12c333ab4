#include "notes/notes.h"

#include "containers/fold.h"
#include "containers/scroll.h"
#include "containers/workspace_fixture.h"
#include "core/handlers.h"
#include "platform/questions.h"

namespace quill {
namespace {

struct Notes : test::WorkspaceFixture {
    NoteView& Note(int index) { return Main.ConView(index).ContainerNote; }
    bool Pressed(int index) { return Main.ConView(index).PinPressed; }
};

TEST_F(Notes, ANewNoteShowsItsTextUnderItsNameAndTakesTheFocus) {
    computer.Clock.SetNow({2027, 3, 4, 5, 6, 7, 0});
    Main.Group.NewContainerPos = {1200, 1300};
    EXPECT_TRUE(NewNote(Main, "milk\nbread", "Shopping", false));
    EXPECT_EQ(BoxWords(0), "1200,1300 3000x3000");
    EXPECT_EQ(Main.ConView(0).ContainerLabel.Caption, "Shopping");
    EXPECT_EQ(Note(0).Text, "milk\r\nbread");
    EXPECT_TRUE(Note(0).Visible);
    EXPECT_TRUE(Pressed(0));
    EXPECT_EQ(Note(0).FocusWish, 1U);
    EXPECT_EQ(Main.Con(0).CreationDate, "2027-03-04 05:06:07");
    EXPECT_EQ(Main.Con(0).ModifyDate, "2027-03-04 05:06:07");
    EXPECT_EQ(Main.Con(0).ShrinkPath, "note.ico");
    EXPECT_EQ(Main.Group.CurrentContainer, 0);
    EXPECT_EQ(KindOf(Main, 0), ContainerKind::Note);
}

TEST_F(Notes, ALongNoteIsReadToItsLastLineByTheWheelAndNoFurther) {
    std::string text;
    for (int line = 0; line < 60; ++line) text += "line\n";
    ASSERT_TRUE(NewNote(Main, text + "last", "Long", false));
    ContainerFrame_MouseWheel(Main, 0, -1);
    const float once = Note(0).ScrollTop;
    EXPECT_GT(once, 0);
    ContainerFrame_MouseWheel(Main, 0, -1000);
    const float furthest = Note(0).ScrollTop;
    EXPECT_GT(furthest, once);
    EXPECT_LE(TopOfNote(Main, 0).Paragraph, 60);
    ContainerFrame_MouseWheel(Main, 0, -1);
    EXPECT_EQ(Note(0).ScrollTop, furthest);
    ContainerFrame_MouseWheel(Main, 0, 1000);
    EXPECT_EQ(Note(0).ScrollTop, 0);
}

TEST_F(Notes, AShortNoteDoesNotScroll) {
    ASSERT_TRUE(NewNote(Main, "milk", "Shopping", false));
    ContainerFrame_MouseWheel(Main, 0, -3);
    EXPECT_EQ(Note(0).ScrollTop, 0);
}

TEST_F(Notes, ANoteThatIsLeftShowsWhatItsBoxShowed) {
    std::string text;
    for (int line = 0; line < 60; ++line)
        text += line % 2 ? "words that are too long for one row of it\n" : "x\n";
    ASSERT_TRUE(NewNote(Main, text, "Long", false));
    ContainerNote_Scroll(Main, 0, 17, 0);
    EXPECT_EQ(TopOfNote(Main, 0).Paragraph, 17);
    EXPECT_EQ(TopOfNote(Main, 0).Above, 0);
    ContainerNote_Scroll(Main, 0, 17, 30);
    EXPECT_EQ(TopOfNote(Main, 0).Paragraph, 17);
    EXPECT_EQ(TopOfNote(Main, 0).Above, 30);
    SetNoteText(Main, 0, "another");
    EXPECT_EQ(Note(0).ScrollTop, 0) << "another text begins at its first line";
}

TEST_F(Notes, AtTheLimitThereIsTheMessageAndNoNote) {
    Main.Settings.MaxContainers = 1;
    New({0, 0, 3000, 3000});
    computer.Questions.Answer(AnswerOk);
    EXPECT_FALSE(NewNote(Main, "milk", "Shopping", false));
    EXPECT_EQ(computer.Questions.Boxes.size(), 1U);
    EXPECT_EQ(LiveContainers(Main), 1);
}

TEST_F(Notes, ThePinShowsAndHidesTheNote) {
    const int index = New({600, 600, 3000, 3000});
    lblPinNote_Click(Main, index);
    EXPECT_TRUE(Note(index).Visible);
    EXPECT_TRUE(Pressed(index));
    EXPECT_EQ(Find(OnContainer(index), ElementKind::lblPinNote, index).Tip, "Hide Note");
    Main.Con(index).Detached_Note_Visible = true;
    lblPinNote_Click(Main, index);
    EXPECT_FALSE(Note(index).Visible);
    EXPECT_FALSE(Pressed(index));
    EXPECT_FALSE(Main.Con(index).Detached_Note_Visible);
    EXPECT_EQ(Find(OnContainer(index), ElementKind::lblPinNote, index).Tip, "Show Note");
}

TEST_F(Notes, TheNoteOfAFoldedContainerUnfoldsItFirst) {
    const int index = New({600, 600, 3000, 3000});
    FoldUnfoldContainer(Main, index, false);
    lblPinNote_Click(Main, index);
    EXPECT_FALSE(IsFolded(Main, index));
    EXPECT_TRUE(Note(index).Visible);
    EXPECT_TRUE(Pressed(index));
}

TEST_F(Notes, HidingTheNoteOfAFoldedContainerLeavesItFolded) {
    const int index = New({600, 600, 3000, 3000});
    lblPinNote_Click(Main, index);
    FoldUnfoldContainer(Main, index, false);
    lblPinNote_Click(Main, index);
    EXPECT_TRUE(IsFolded(Main, index));
    EXPECT_FALSE(Pressed(index));
}

TEST_F(Notes, WhileAGroupIsShownThePinDoesNothing) {
    const int index = New({600, 600, 3000, 3000});
    Main.Group.FrameLinkGroup = true;
    lblPinNote_Click(Main, index);
    EXPECT_FALSE(Pressed(index));
}

TEST_F(Notes, AFeedAndItsNoteFlip) {
    const int index = New({600, 600, 3000, 3000});
    Main.FeedViews.resize(1);
    Main.Con(index).RSS = true;
    Main.Con(index).RSSListIndex = 0;
    lblPinNote_Click(Main, index);
    EXPECT_FALSE(Main.Feed(index).Visible);
    lblPinNote_Click(Main, index);
    EXPECT_TRUE(Main.Feed(index).Visible);
}

TEST_F(Notes, HiddenTextLeavesAMarkThatGoesWithTheText) {
    const int index = New({600, 600, 3000, 3000});
    SetNoteText(Main, index, "milk");
    EXPECT_TRUE(Main.ConView(index).shapeNoteIndicator.Visible);
    lblPinNote_Click(Main, index);
    EXPECT_FALSE(Main.ConView(index).shapeNoteIndicator.Visible);
    lblPinNote_Click(Main, index);
    EXPECT_TRUE(Main.ConView(index).shapeNoteIndicator.Visible);
    SetNoteText(Main, index, "");
    EXPECT_FALSE(Main.ConView(index).shapeNoteIndicator.Visible);
}

TEST_F(Notes, TextThatIsSetHasWindowsLineEndsAndANewRevisionOnlyWhenItDiffers) {
    const int index = New({600, 600, 3000, 3000});
    const char* rows[][2] = {
        {"a\nb", "a\r\nb"}, {"a\rb", "a\r\nb"}, {"a\r\nb", "a\r\nb"}, {"\n\r\n\r", "\r\n\r\n\r\n"}};
    for (const auto& row : rows) {
        SetNoteText(Main, index, row[0]);
        EXPECT_EQ(Note(index).Text, row[1]);
    }
    EXPECT_EQ(Note(index).Revision, 2U);
}

TEST_F(Notes, ANotesTextIsCleanedOnBothSides) {
    const std::string_view rows[][2] = {
        {"", ""},
        {" \t\r\n", ""},
        {"\r\n\r\n milk \r\nbread\t\r\n", "milk \r\nbread"},
        {"x", "x"},
        {"\xC2\xA0x", "\xC2\xA0x"},
    };
    for (const auto& row : rows) EXPECT_EQ(CleanNoteText(row[0]), row[1]);
}

struct FootRow {
    const char* Name;
    bool Reminder, Encrypted, Shown, Tile;
    const char* Word;
};

TEST_F(Notes, TheFootSaysWhatKindOfNoteItIs) {
    const FootRow rows[] = {
        {"plain", false, false, true, false, ""},
        {"reminder", true, false, true, false, "Reminder"},
        {"encrypted", false, true, true, false, "Encrypted"},
        {"encrypted but hidden", false, true, false, false, ""},
        {"both: the second is written over the first", true, true, true, false, "Encrypted"},
        {"on a tile nothing", true, true, true, true, ""},
    };
    for (const auto& row : rows) {
        const int index = New({600, 600, 3000, 3000});
        if (row.Reminder) Main.Con(index).SetReminder(true, 2027, 1, 2, 3, 4, "");
        Main.Con(index).Encrypted = row.Encrypted;
        if (row.Shown) lblPinNote_Click(Main, index);
        if (row.Tile) ExpandShrinkContainer(Main, index, false);
        EXPECT_EQ(FootText(Main, index), row.Word) << row.Name;
    }
    EXPECT_EQ(FootText(Main, 99), "");
}

TEST_F(Notes, ADeadContainerHasNoNote) {
    const int index = New({600, 600, 3000, 3000});
    DeleteContainer(Main, index, false);
    for (const int gone : {index, -1, 9}) {
        lblPinNote_Click(Main, gone);
        SelectNote(Main, true, gone);
        SetNoteText(Main, gone, "milk");
    }
    EXPECT_FALSE(Pressed(index));
    EXPECT_EQ(Note(index).Text, "");
}

} // namespace
} // namespace quill
