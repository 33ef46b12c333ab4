// Text and what Shift asks for, dropped by other programs.
#include "shortcuts/drag_fixture.h"

#include "core/caption.h"
#include "platform/dialogs.h"

namespace quill {
namespace {

struct DropsOfText : test::DragFixture {
    static DragData Text(const std::string& text) {
        DragData data;
        data.Text = text;
        return data;
    }
    static DragData Files(std::vector<std::string> paths) {
        DragData data;
        data.Files = std::move(paths);
        return data;
    }
    DropAnswer LetGoWith(bool shift, bool ctrl, const DragData& data, SurfaceId to, Point at) {
        DragEvent event = EventAt(to, at);
        event.Shift = shift;
        event.Ctrl = ctrl;
        if (DragOver(Main, to, event, data) == DropAnswer::Refused) return DropAnswer::Refused;
        return DragDrop(Main, to, event, data);
    }
    DropAnswer WithShift(const DragData& data, SurfaceId to = OnBack, Point at = {1000, 1000}) {
        return LetGoWith(true, false, data, to, at);
    }
    DropAnswer OnFrame(int box, const DragData& data) {
        return LetGo(data, OnContainer(box), {FrameCorner(box).X + 300, FrameCorner(box).Y + 600});
    }
    int NewNoteBox(const std::string& text) {
        const int box = New({4000, 1000, 4000, 4000});
        lblPinNote_Click(Main, box);
        SetNoteText(Main, box, text);
        return box;
    }
    std::string Note(int box) { return Main.ConView(box).ContainerNote.Text; }
    std::string Name(int box) { return Main.ConView(box).ContainerLabel.Caption; }
    void PutPicture(const std::string& path, Size size = {1500, 1200}) {
        computer.Files.Put(path, "x");
        computer.Images.Sizes[path] = size;
    }
};

TEST_F(DropsOfText, OnTheWorkspaceItBecomesANoteNamedAfterItsBeginning) {
    EXPECT_EQ(LetGo(Text("The quick brown fox\njumps"), OnBack, {1040, 2060}), DropAnswer::Copied);
    ASSERT_EQ(LiveContainers(Main), 1);
    EXPECT_EQ(Name(0), "The quick brown");
    EXPECT_EQ(Note(0), "The quick brown fox\r\njumps");
    EXPECT_EQ(BoxWords(0), "1000,2100 3000x3000");
    EXPECT_NE(Recovery("0.REC").find("jumps"), std::string::npos);
    EXPECT_EQ(computer.Windows.Foreground, MainWindow);
}

TEST_F(DropsOfText, TheNameCountsLettersAndIsOneLine) {
    LetGo(Text("äöü\nΑΒΓ 日本語 xyz1234"), OnBack, {1000, 1000});
    EXPECT_EQ(Name(0), "äöü ΑΒΓ 日本語 xyz");
}

TEST_F(DropsOfText, WordsThatOnlyBeginLikeAnAddressAreText) {
    int notes = 0;
    for (const char* text :
         {"just words", "http is a word", "https://a.example/ and more", "http://", "javascript:alert(1)",
          "file:///etc/passwd", "https://a.example/\nhttps://b.example/"}) {
        EXPECT_EQ(LetGo(Text(text), OnBack, {1000, 1000}), DropAnswer::Copied) << text;
        EXPECT_EQ(LiveContainers(Main), ++notes) << text;
    }
    EXPECT_EQ(Main.NextShortcutIndex, 0);
    EXPECT_EQ(LetGo(Text(" \n"), OnBack, {1000, 1000}), DropAnswer::Refused);
}

TEST_F(DropsOfText, OnANoteThatShowsItJoinsTheText) {
    const int box = NewNoteBox("");
    EXPECT_EQ(OnFrame(box, Text("one")), DropAnswer::Copied);
    EXPECT_EQ(OnFrame(box, Text("two\nthree")), DropAnswer::Copied);
    EXPECT_EQ(Note(box), "one\r\n\r\ntwo\r\nthree");
    EXPECT_EQ(LiveContainers(Main), 1);
    EXPECT_NE(Recovery("0.REC").find("three"), std::string::npos);
}

TEST_F(DropsOfText, AnAddressIsAShortcutAlsoOnANote) {
    const int box = NewNoteBox("one");
    EXPECT_EQ(OnFrame(box, Text("https://a.example/")), DropAnswer::Copied);
    EXPECT_EQ(Note(box), "one");
    EXPECT_EQ(GetContainerShortcutCount(Main, box), 1);
}

TEST_F(DropsOfText, WithoutANoteThatShowsAContainerTakesNone) {
    const int box = New({4000, 1000, 4000, 4000});
    SetNoteText(Main, box, "hidden");
    EXPECT_EQ(OnFrame(box, Text("words")), DropAnswer::Refused);
    EXPECT_EQ(Note(box), "hidden");
}

TEST_F(DropsOfText, OnAReminderAFeedOrAnEncryptedNoteItDoesNothing) {
    const int box = NewNoteBox("one");
    Main.Con(box).SetReminder(true, 2027, 1, 1, 1, 1, "then");
    for (const DragData& data : {Text("two"), Text("https://a.example/"), Files({"/a"})})
        EXPECT_EQ(OnFrame(box, data), DropAnswer::Refused);
    Main.Con(box).SetReminder(false, 0, 0, 0, 0, 0, "");
    Main.Con(box).Encrypted = true;
    for (const DragData& data : {Text("two"), Text("https://a.example/"), Files({"/a"})})
        EXPECT_EQ(OnFrame(box, data), DropAnswer::Refused);
    Main.Con(box).Encrypted = false;
    Main.Con(box).RSS = true;
    for (const DragData& data : {Text("two"), Text("https://a.example/"), Files({"/a"})})
        EXPECT_EQ(OnFrame(box, data), DropAnswer::Refused);
    EXPECT_EQ(Note(box), "one");
    EXPECT_EQ(Main.NextShortcutIndex, 0);
}

TEST_F(DropsOfText, ALockKeepsNoNoteFromBeingWritten) {
    const int box = NewNoteBox("one");
    Main.Dock.Locked = true;
    EXPECT_EQ(OnFrame(box, Text("two")), DropAnswer::Copied);
    EXPECT_EQ(LetGo(Text("words"), OnBack, {1000, 1000}), DropAnswer::Copied);
    EXPECT_EQ(OnFrame(box, Text("https://a.example/")), DropAnswer::Refused);
    PutPicture("/home/user/cat.jpg");
    EXPECT_EQ(WithShift(Files({"/home/user/cat.jpg"})), DropAnswer::Refused);
}

TEST_F(DropsOfText, WhileATagViewShowsNothingIsTaken) {
    const int box = NewNoteBox("one");
    Main.Group.FrameLinkGroup = true;
    EXPECT_EQ(OnFrame(box, Text("two")), DropAnswer::Refused);
    EXPECT_EQ(LetGo(Text("words"), OnBack, {1000, 1000}), DropAnswer::Refused);
    EXPECT_EQ(LetGo(Files({"/a"}), OnBack, {1000, 1000}), DropAnswer::Refused);
    EXPECT_EQ(LiveContainers(Main), 1);
}

// ---- Shift held alone

TEST_F(DropsOfText, WithShiftItIsShownBeforeItBecomesANote) {
    std::string shown;
    computer.Dialogs.OnText = [&](TextQuestion& question) {
        shown = question.Title + ": " + question.Text;
        EXPECT_EQ(Main.Dock.DialogPauses, 1) << "nothing docks meanwhile";
        question.Text = "changed";
        return true;
    };
    EXPECT_EQ(WithShift(Text("https://a.example/")), DropAnswer::Copied);
    EXPECT_EQ(shown, "Paste Text: https://a.example/");
    EXPECT_EQ(Name(0), "Clipboard Text");
    EXPECT_EQ(Note(0), "changed");
    computer.Dialogs.OnText = [](TextQuestion&) { return false; };
    EXPECT_EQ(WithShift(Text("other")), DropAnswer::Refused);
    EXPECT_EQ(LiveContainers(Main), 1);
}

TEST_F(DropsOfText, WithShiftAPictureIsShownAndNotLinkedTo) {
    for (const char* path :
         {"/home/user/a.JPG", "/home/user/b.gif", "/home/user/c.bmp", "/home/user/d.jpeg"}) {
        PutPicture(path);
        EXPECT_EQ(WithShift(Files({path})), DropAnswer::Copied) << path;
    }
    EXPECT_EQ(Main.NextPictureIndex, 4);
    EXPECT_EQ(Main.NextShortcutIndex, 0);
    EXPECT_EQ(fake::Words(Main.PicView(0).PicContainer), "1000,1000 1500x1200");
    const int box = New({4000, 1000, 4000, 4000});
    EXPECT_EQ(WithShift(Files({"/home/user/a.JPG"}), OnContainer(box), {1000, 1000}), DropAnswer::Copied);
    EXPECT_EQ(Main.PicView(4).In, InContainer(box));
}

TEST_F(DropsOfText, ALargePictureBeginsInASizeThatIsTakenInAtAGlance) {
    PutPicture("/home/user/wide.jpg", {60000, 30000});
    WithShift(Files({"/home/user/wide.jpg"}));
    EXPECT_EQ(fake::Words(Main.PicView(0).PicContainer), "1000,1000 4500x2250");
}

TEST_F(DropsOfText, OfSeveralFilesOnTheWorkspaceOnlyTheFirstCounts) {
    PutPicture("/home/user/a.jpg");
    PutPicture("/home/user/b.jpg");
    WithShift(Files({"/home/user/a.jpg", "/home/user/b.jpg"}));
    EXPECT_EQ(Main.NextPictureIndex, 1);
    const int box = New({4000, 1000, 4000, 4000});
    WithShift(Files({"/home/user/a.jpg", "/home/user/b.jpg"}), OnContainer(box), {1000, 1000});
    EXPECT_EQ(Main.NextPictureIndex, 1);
    EXPECT_EQ(GetContainerShortcutCount(Main, box), 2) << "in a container several are shortcuts";
}

TEST_F(DropsOfText, APictureThatCantBeReadIsToldAndNotAdded) {
    PutPicture("/home/user/broken.jpg", {});
    computer.Questions.Answer(1);
    EXPECT_EQ(WithShift(Files({"/home/user/broken.jpg"})), DropAnswer::Refused);
    EXPECT_EQ(LastBox(), "Quillmere 48: Unable to load selected picture");
    EXPECT_EQ(Main.NextPictureIndex, 0);
}

TEST_F(DropsOfText, WithShiftATextFileBecomesANote) {
    computer.Files.Put("/home/user/List.TXT", "one\ntwo");
    std::string caption;
    EXPECT_EQ(WithShift(Files({"/home/user/List.TXT"})), DropAnswer::Copied);
    EXPECT_EQ(Name(0), "List.TXT");
    EXPECT_EQ(Note(0), "one\r\ntwo");
}

TEST_F(DropsOfText, WithShiftAnyOtherFileIsRefusedOnTheWorkspaceAndAShortcutInAContainer) {
    computer.Files.Put("/home/user/a.png", "x");
    const int box = New({4000, 1000, 4000, 4000});
    for (const char* path : {"/home/user/a.png", "/home/user/a.pdf", "/home/user"}) {
        EXPECT_EQ(WithShift(Files({path})), DropAnswer::Refused) << path;
        EXPECT_EQ(WithShift(Files({path}), OnContainer(box), {1000, 1000}), DropAnswer::Copied) << path;
    }
    EXPECT_EQ(WorkspaceShortcutCount(Main), 0);
}

TEST_F(DropsOfText, ShiftWithAnotherKeyIsNoShift) {
    PutPicture("/home/user/a.jpg");
    EXPECT_EQ(LetGoWith(true, true, Files({"/home/user/a.jpg"}), OnBack, {1000, 1000}), DropAnswer::Copied);
    EXPECT_EQ(Main.NextPictureIndex, 0);
    EXPECT_EQ(WorkspaceShortcutCount(Main), 1);
}

} // namespace
} // namespace quill
