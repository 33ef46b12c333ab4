#include "notes/text_notes.h"

#include "containers/workspace_fixture.h"
#include "core/caption.h"
#include "notes/notes.h"

namespace quill {
namespace {

struct TextNotes : test::WorkspaceFixture {
    TextNotes() {
        Main.Group.NewContainerPos = {1260, 2040};
        Main.View.Caption = NormalCaption(Main);
    }
    const NoteView& Note(int index = 0) { return Main.ConView(index).ContainerNote; }
    void Put(const std::string& bytes, const std::string& path = "/home/user/list.txt") {
        computer.Files.Put(path, bytes);
    }
    std::string LastBox() {
        if (computer.Questions.Boxes.empty()) return "(none)";
        return computer.Questions.Boxes.back().Text;
    }
};

TEST_F(TextNotes, PastedTextIsANoteOnTheGridOfNotes) {
    EXPECT_TRUE(PasteTextFromClipboard(Main, "milk\nbread", "Clipboard Text"));
    EXPECT_EQ(BoxWords(0), "1300,2000 3000x3000");
    EXPECT_EQ(Note().Text, "milk\r\nbread");
    EXPECT_EQ(Main.ConView(0).ContainerLabel.Caption, "Clipboard Text");
    EXPECT_EQ(Main.Con(0).ShrinkPath, "note.ico");
    EXPECT_EQ(Main.Con(0).StoredSize().X, 1300) << "the place to come back to";
}

TEST_F(TextNotes, NoneLiesExactlyOverAnother) {
    for (int at = 0; at < 6; ++at) PasteTextFromClipboard(Main, "text", "Note");
    Main.Group.NewContainerPos = {11900, 8900};
    for (int at = 0; at < 6; ++at) PasteTextFromClipboard(Main, "text", "Note");
    for (int one = 0; one < 12; ++one) {
        EXPECT_LE(Box(one).Right(), Main.View.picBack.Place.Width);
        EXPECT_LE(Box(one).Bottom(), Main.View.picBack.Place.Height);
        for (int other = 0; other < one; ++other) EXPECT_NE(BoxWords(one), BoxWords(other));
    }
}

TEST_F(TextNotes, TextWithoutALetterMakesNone) {
    for (const char* text : {"", " ", "\r\n\t "}) EXPECT_FALSE(PasteTextFromClipboard(Main, text, "Note"));
    EXPECT_EQ(LiveContainers(Main), 0);
}

TEST_F(TextNotes, AtTheLimitOfContainersItIsTold) {
    Main.Settings.MaxContainers = 1;
    computer.Questions.Answer(1);
    EXPECT_TRUE(PasteTextFromClipboard(Main, "one", "Note"));
    EXPECT_FALSE(PasteTextFromClipboard(Main, "two", "Note"));
    EXPECT_EQ(computer.Questions.Boxes.size(), 1U);
}

TEST_F(TextNotes, ATextFileBecomesANoteUnderItsName) {
    Put("one\ntwo\n");
    AddNoteFromTextFile(Main, "/home/user/list.txt");
    EXPECT_EQ(Note().Text, "one\r\ntwo\r\n");
    EXPECT_TRUE(Note().Visible);
    EXPECT_EQ(Main.ConView(0).ContainerLabel.Caption, "list.txt");
    EXPECT_NE(Recovery("0.REC").find("two"), std::string::npos);
    EXPECT_EQ(Main.View.Caption, NormalCaption(Main)) << "nobody waits any more";
}

TEST_F(TextNotes, TwoHundredLinesAreReadAndTheRestIsLeftOutWithoutAWord) {
    std::string lines, expected;
    for (int at = 1; at <= 201; ++at) lines += "line " + std::to_string(at) + "\n";
    for (int at = 1; at <= 200; ++at) expected += (at == 1 ? "line " : "\r\nline ") + std::to_string(at);
    Put(lines);
    AddNoteFromTextFile(Main, "/home/user/list.txt");
    EXPECT_EQ(Note().Text, expected);
    EXPECT_EQ(LastBox(), "(none)");
}

TEST_F(TextNotes, LettersOfOtherCodePagesAreRead) {
    Put("caf\xE9\r\n");
    AddNoteFromTextFile(Main, "/home/user/list.txt");
    EXPECT_EQ(Note().Text, "café\r\n");
    Put(std::string("\xFF\xFE\xE4\x00", 4), "/home/user/b.txt");
    AddNoteFromTextFile(Main, "/home/user/b.txt");
    EXPECT_EQ(Note(1).Text, "ä");
    Put(std::string("a\0b", 3), "/home/user/c.txt");
    AddNoteFromTextFile(Main, "/home/user/c.txt");
    EXPECT_EQ(Note(2).Text, "a b");
}

TEST_F(TextNotes, AFileThatCantBeReadIsToldAndMakesNoNote) {
    Put("x");
    computer.Files.MakeUnreadable("/home/user/list.txt");
    AddNoteFromTextFile(Main, "/home/user/list.txt");
    EXPECT_TRUE(LastBox().starts_with("Unable to read 'list.txt'.")) << LastBox();
    EXPECT_EQ(LiveContainers(Main), 0);
    EXPECT_EQ(Main.View.Caption, NormalCaption(Main));
}

TEST_F(TextNotes, AFileOnAServerIsWaitedForWithoutStandingStill) {
    computer.Shell.NetworkPaths = {"/mnt/nas"};
    computer.Shell.SilentPaths = {"/mnt/nas"};
    Put("far", "/mnt/nas/a.txt");
    AddNoteFromTextFile(Main, "/mnt/nas/a.txt");
    EXPECT_EQ(LiveContainers(Main), 0);
    EXPECT_EQ(Main.View.Caption, "Please wait...");
    computer.Shell.Answer("/mnt/nas/a.txt", true);
    EXPECT_EQ(Note().Text, "far");
    EXPECT_EQ(Main.View.Caption, NormalCaption(Main));
    AddNoteFromTextFile(Main, "/mnt/nas/b.txt");
    computer.Clock.Advance(10'000);
    EXPECT_EQ(LiveContainers(Main), 1) << "a server that says nothing is not there";
    EXPECT_EQ(Main.View.Caption, NormalCaption(Main));
}

TEST_F(TextNotes, APathOfLessThanFourLettersIsTheNameAsItStands) {
    Put("x", "/a");
    AddNoteFromTextFile(Main, "/a");
    EXPECT_EQ(Main.ConView(0).ContainerLabel.Caption, "/a");
}

TEST_F(TextNotes, TextThatJoinsANoteStandsBehindAnEmptyLine) {
    computer.Clock.SetNow({2027, 3, 4, 5, 6, 7, 0});
    NewNote(Main, "", "Note", false);
    AppendToNote(Main, 0, "one");
    EXPECT_EQ(Note().Text, "one");
    computer.Clock.SetNow({2027, 3, 5, 5, 6, 7, 0});
    AppendToNote(Main, 0, "two\nthree");
    EXPECT_EQ(Note().Text, "one\r\n\r\ntwo\r\nthree");
    EXPECT_EQ(Main.Con(0).ModifyDate, "2027-03-05 05:06:07");
    AppendToNote(Main, 7, "nowhere");
}

} // namespace
} // namespace quill
