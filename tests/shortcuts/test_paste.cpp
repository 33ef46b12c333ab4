#include "shortcuts/paste.h"

#include "shortcuts/drag_fixture.h"

namespace quill {
namespace {

struct Pasting : test::DragFixture {
    Pasting() { Main.Group.NewContainerPos = {2000, 2000}; }
    ClipboardData& Clip() { return computer.Clipboard.Data; }
    int Last() { return Main.NextShortcutIndex - 1; }
    std::string Saved() {
        const auto settings = computer.Files.Read(fake::SettingsFolder + "/Quillmere.REC", 1 << 20);
        return settings ? settings.Value() : "(none)";
    }
    void GiveKeys(int box) {
        Main.Group.CurrentContainer = box;
        Main.Group.ContainerHasFocus = true;
    }
};

TEST_F(Pasting, CopiedFilesBecomeShortcutsAtTheLastPress) {
    Clip().Files = {"/home/user/a.txt", "/home/user/b.txt"};
    Clip().Text = "/home/user/a.txt";
    EXPECT_TRUE(CanPaste(Main));
    mnuPaste_Click(Main);
    EXPECT_EQ(Where(0), "workspace 2000,2000");
    EXPECT_EQ(Main.Link(1).Path, "/home/user/b.txt");
    EXPECT_EQ(Main.Links.SelectedShortcuts, (std::vector<int>{0, 1}));
    EXPECT_NE(Saved().find("/home/user/b.txt"), std::string::npos);
    EXPECT_EQ(LiveContainers(Main), 0) << "their text is not pasted as well";
}

TEST_F(Pasting, WhereAContainerHasTheKeysItIsPastedThere) {
    const int box = New({4000, 1000, 4000, 4000});
    GiveKeys(box);
    Clip().Files = {"/home/user/a.txt"};
    const Point cell = NextFreeCell(Main, InContainer(box));
    mnuPaste_Click(Main);
    EXPECT_EQ(Where(0), "container 0 " + fake::Words(cell));
}

TEST_F(Pasting, IntoTheContainerItGoesToFreeCells) {
    const int box = New({4000, 1000, 4000, 4000});
    Main.Group.CurrentContainer = box;
    Clip().Files = {"/home/user/a.txt", "/home/user/b.txt"};
    mnuPasteToContainer_Click(Main);
    EXPECT_EQ(GetContainerShortcutCount(Main, box), 2);
    EXPECT_NE(Where(0), Where(1));
}

TEST_F(Pasting, WhatLiesThereAlreadyIsToldOnceAndNotAdded) {
    Clip().Files = {"/a", "/b"};
    mnuPaste_Click(Main);
    Clip().Files = {"/a", "/b", "/c"};
    mnuPaste_Click(Main);
    EXPECT_EQ(WorkspaceShortcutCount(Main), 3);
    EXPECT_EQ(computer.Questions.Boxes.size(), 1U);
    EXPECT_EQ(LastBox(), "Quillmere 48: Duplicate items were not added.");
}

TEST_F(Pasting, AnEmptyClipboardPastesNothing) {
    EXPECT_FALSE(CanPaste(Main));
    mnuPaste_Click(Main);
    mnuPasteToContainer_Click(Main);
    EXPECT_EQ(Main.NextShortcutIndex + LiveContainers(Main), 0);
    EXPECT_EQ(Saved(), "(none)");
}

TEST_F(Pasting, AnAddressBecomesAWebShortcut) {
    Clip().Text = " https://a.example/x \n";
    mnuPaste_Click(Main);
    EXPECT_EQ(Main.Link(Last()).ShortcutType, TypeUrl);
    EXPECT_EQ(Main.Link(Last()).Path, "https://a.example/x");
    Clip().Text.clear();
    Clip().Addresses = {"https://b.example/"};
    mnuPaste_Click(Main);
    EXPECT_EQ(Main.Link(Last()).Path, "https://b.example/");
    EXPECT_EQ(LiveContainers(Main), 0);
}

TEST_F(Pasting, TextBecomesANote) {
    Clip().Text = "two\nlines";
    mnuPaste_Click(Main);
    ASSERT_EQ(LiveContainers(Main), 1);
    EXPECT_EQ(Main.ConView(0).ContainerLabel.Caption, "Clipboard Text");
    EXPECT_EQ(Main.ConView(0).ContainerNote.Text, "two\r\nlines");
    EXPECT_TRUE(Main.ConView(0).ContainerNote.Visible);
    EXPECT_NE(Recovery("0.REC").find("lines"), std::string::npos);
}

TEST_F(Pasting, TextWithoutALetterIsNoNote) {
    Clip().Text = " \n\t";
    mnuPaste_Click(Main);
    EXPECT_EQ(LiveContainers(Main), 0);
    EXPECT_EQ(Main.View.Caption, "Nothing to paste here");
}

TEST_F(Pasting, TextJoinsANoteThatShowsAndNoOtherContainer) {
    const int box = New({4000, 1000, 4000, 4000});
    GiveKeys(box);
    Clip().Text = "more";
    mnuPaste_Click(Main);
    EXPECT_EQ(Main.ConView(box).ContainerNote.Text, "");
    EXPECT_EQ(Main.View.Caption, "Nothing to paste here");
    lblPinNote_Click(Main, box);
    SetNoteText(Main, box, "some");
    mnuPasteToContainer_Click(Main);
    EXPECT_EQ(Main.ConView(box).ContainerNote.Text, "some\r\n\r\nmore");
    EXPECT_EQ(LiveContainers(Main), 1);
}

TEST_F(Pasting, FeedsRemindersEncryptedNotesAndConnectedFoldersTakeNoShortcuts) {
    const int box = New({4000, 1000, 4000, 4000});
    Main.Group.CurrentContainer = box;
    Clip().Files = {"/home/user/a.txt"};
    Main.Con(box).Encrypted = true;
    mnuPasteToContainer_Click(Main);
    Main.Con(box).Encrypted = false;
    Main.Con(box).SetReminder(true, 2027, 1, 1, 1, 1, "then");
    mnuPasteToContainer_Click(Main);
    Main.Con(box).SetReminder(false, 0, 0, 0, 0, 0, "");
    Main.Con(box).CopyPath = "/home/user/Games";
    mnuPasteToContainer_Click(Main);
    EXPECT_EQ(Main.NextShortcutIndex, 0);
    EXPECT_EQ(Main.View.Caption, "Nothing to paste here");
}

TEST_F(Pasting, AContainerTakesNoMoreThanItsLimit) {
    const int box = New({4000, 1000, 4000, 4000});
    GiveKeys(box);
    for (int at = 0; at < 251; ++at) Clip().Files.push_back("/x" + std::to_string(at));
    mnuPaste_Click(Main);
    EXPECT_EQ(GetContainerShortcutCount(Main, box), 250);
    EXPECT_EQ(LastBox(),
              "Error 48: There's a limit of 250 shortcuts per container (much less is recommended!)");
}

TEST_F(Pasting, ALockHoldsShortcutsAndLetsNotesBeMade) {
    Main.Dock.Locked = true;
    Clip().Files = {"/a"};
    mnuPaste_Click(Main);
    EXPECT_EQ(Main.NextShortcutIndex, 0);
    Clip() = {};
    Clip().Text = "text";
    mnuPaste_Click(Main);
    EXPECT_EQ(LiveContainers(Main), 1);
}

TEST_F(Pasting, LinkFilesAreFollowedAndStayOnTheDesktop) {
    computer.Files.Put("/home/user/Desktop/site.url", "[InternetShortcut]\nURL=https://a.example/");
    Clip().Files = {"/home/user/Desktop/site.url"};
    mnuPaste_Click(Main);
    EXPECT_EQ(Main.Link(Last()).Path, "https://a.example/");
    EXPECT_EQ(Main.Link(Last()).FullCaption, "site");
    EXPECT_TRUE(computer.Shell.Trashed.empty()) << "it was copied, not moved";
}

TEST_F(Pasting, WhatIsNoPathOfThisMachineIsLeftOut) {
    Clip().Files = {"relative", "", std::string("/with\0nul", 9)};
    Clip().Addresses = {"javascript:alert(1)"};
    mnuPaste_Click(Main);
    EXPECT_EQ(Main.NextShortcutIndex, 0);
}

} // namespace
} // namespace quill
