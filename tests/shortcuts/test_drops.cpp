#include "shortcuts/drag_fixture.h"

#include "containers/measures.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

// What other programs drop.
struct Drops : test::DragFixture {
    static DragData Files(std::vector<std::string> paths) {
        DragData data;
        data.Files = std::move(paths);
        return data;
    }
    static DragData Files(int count, const std::string& stem = "/home/user/file") {
        DragData data;
        for (int at = 0; at < count; ++at) data.Files.push_back(stem + std::to_string(at));
        return data;
    }
    static DragData Text(const std::string& text) {
        DragData data;
        data.Text = text;
        return data;
    }
    static DragData Address(const std::string& address) {
        DragData data;
        data.Addresses = {address};
        return data;
    }
    DropAnswer OnWorkspaceAt(Point at, const DragData& data) { return LetGo(data, OnBack, at); }
    DropAnswer IntoContainer(int box, Point at, const DragData& data) {
        return LetGo(data, OnContainer(box), {FrameCorner(box).X + at.X, FrameCorner(box).Y + at.Y});
    }
    int Last() { return Main.NextShortcutIndex - 1; }
    int Boxes() { return static_cast<int>(computer.Questions.Boxes.size()); }
    int CountOnBack() { return WorkspaceShortcutCount(Main); }
};

TEST_F(Drops, AFileBecomesAShortcutWhereItIsDropped) {
    const int box = New({4000, 1000, 4000, 4000});
    EXPECT_EQ(OnWorkspaceAt({1000, 1000}, Files({"/home/user/letter.txt"})), DropAnswer::Copied);
    EXPECT_EQ(Where(Last()), "workspace 1000,1000");
    EXPECT_EQ(Main.Link(Last()).Path, "/home/user/letter.txt");
    EXPECT_EQ(Main.Link(Last()).ShortcutType, TypeFile);
    EXPECT_EQ(Main.LinkView(Last()).lblShortcut.Caption, "letter.txt");
    EXPECT_EQ(IntoContainer(box, {900, 1500}, Files({"/home/user/letter.txt"})), DropAnswer::Copied);
    EXPECT_EQ(Where(Last()), "container 0 900,1500");
    EXPECT_EQ(Main.Group.CurrentContainer, box);
}

TEST_F(Drops, AnAddressBecomesAWebShortcut) {
    OnWorkspaceAt({1000, 1000}, Address("https://a.example/x?y=1"));
    EXPECT_EQ(Main.Link(Last()).ShortcutType, TypeUrl);
    EXPECT_EQ(Main.Link(Last()).Path, "https://a.example/x?y=1");
    OnWorkspaceAt({1000, 2000}, Text(" http://b.example/\r\n"));
    EXPECT_EQ(Main.Link(Last()).Path, "http://b.example/");
    EXPECT_EQ(Main.Link(Last()).FullCaption, "http://b.example/");
}

TEST_F(Drops, ATextThatIsNoAddressIsRefused) {
    for (const char* text : {"just words", "http is a word", "http://", "", "https://a.example/ and more",
                             "https://a.example/\nhttps://b.example/", "javascript:alert(1)",
                             "data:text/html,x", "file:///etc/passwd"})
        EXPECT_EQ(OnWorkspaceAt({1000, 1000}, Text(text)), DropAnswer::Refused) << text;
    EXPECT_EQ(CountOnBack(), 0);
}

TEST_F(Drops, WhatIsNoPathAndNoAddressIsLeftOut) {
    DragData data;
    data.Files = {"relative/path", "", std::string("/with\0nul", 9), "/home/user/good"};
    data.Addresses = {"javascript:alert(1)", "data:text/html,x", "https://a.example/\n[End Link]", "x",
                      "sftp://host/a"};
    EXPECT_EQ(OnWorkspaceAt({1000, 1000}, data), DropAnswer::Copied);
    ASSERT_EQ(CountOnBack(), 2);
    EXPECT_EQ(Main.Link(0).Path, "/home/user/good");
    EXPECT_EQ(Main.Link(1).Path, "sftp://host/a");
}

TEST_F(Drops, ANameWithALineBreakKeepsItsPathAndIsOneLineOnTheScreen) {
    OnWorkspaceAt({1000, 1000}, Files({"/home/user/two\nlines <b>"}));
    EXPECT_EQ(Main.Link(Last()).Path, "/home/user/two\nlines <b>");
    EXPECT_EQ(Main.LinkView(Last()).lblShortcut.Caption, "two lines <b>");
    EXPECT_EQ(Main.Link(Last()).FullCaption, "two lines <b>");
}

TEST_F(Drops, BlanksAtTheEndOfANameBelongToIt) {
    OnWorkspaceAt({1000, 1000}, Files({"/home/user/blank "}));
    EXPECT_EQ(Main.Link(Last()).Path, "/home/user/blank ");
}

TEST_F(Drops, AFolderLosesTheSeparatorAtItsEndAndTheRootKeepsIt) {
    OnWorkspaceAt({1000, 1000}, Files({"/home/user/Documents/", "/"}));
    EXPECT_EQ(Main.Link(0).Path, "/home/user/Documents");
    EXPECT_EQ(Main.Link(1).Path, "/");
}

TEST_F(Drops, InPortableModeAFileOnTheProgramsStickIsStoredWithItsMark) {
    computer.Places.Mounts["/media/stick"] = DriveKind::Removable;
    computer.Places.Mounts["/media/other"] = DriveKind::Removable;
    computer.Places.Program = "/media/stick/quillmere";
    Main.PortableMode = true;
    OnWorkspaceAt({1000, 1000}, Files({"/media/stick/a.txt", "/media/other/a.txt", "/home/user/a.txt"}));
    EXPECT_EQ(Main.Link(0).Path, "@/a.txt");
    EXPECT_EQ(Main.Link(1).Path, "/media/other/a.txt");
    EXPECT_EQ(Main.Link(2).Path, "/home/user/a.txt");
    EXPECT_EQ(OnWorkspaceAt({1000, 4000}, Files({"/media/stick/a.txt"})), DropAnswer::Refused);
    EXPECT_EQ(LastBox(), "Quillmere 48: Duplicate items were not added.") << "the mark hides no duplicate";
}

// ---- duplicates

TEST_F(Drops, TheSameFileTwiceOnOneContainerIsOneShortcutAndOneMessage) {
    const int box = New({4000, 1000, 4000, 4000}), other = New({8100, 1000, 3000, 3000});
    IntoContainer(box, {900, 900}, Files({"/home/user/a"}));
    EXPECT_EQ(Boxes(), 0);
    EXPECT_EQ(IntoContainer(box, {900, 2000}, Files({"/home/user/a"})), DropAnswer::Refused);
    EXPECT_EQ(LastBox(), "Quillmere 48: Duplicate items were not added.");
    EXPECT_EQ(GetContainerShortcutCount(Main, box), 1);
    EXPECT_EQ(IntoContainer(other, {900, 900}, Files({"/home/user/a"})), DropAnswer::Copied);
    EXPECT_EQ(OnWorkspaceAt({1000, 6000}, Files({"/home/user/a"})), DropAnswer::Copied);
    EXPECT_EQ(Boxes(), 1);
}

TEST_F(Drops, ManyDuplicatesAreToldOnceAndTheOthersAreAdded) {
    OnWorkspaceAt({1000, 1000}, Files({"/a", "/b"}));
    EXPECT_EQ(OnWorkspaceAt({3000, 1000}, Files({"/a", "/c", "/b", "/c"})), DropAnswer::Copied);
    EXPECT_EQ(CountOnBack(), 3);
    EXPECT_EQ(Boxes(), 1);
}

// ---- limits

TEST_F(Drops, ADropOfThreeHundredFilesOnAContainerAddsTwoHundredAndFifty) {
    const int box = New({4000, 1000, 4000, 4000});
    EXPECT_EQ(IntoContainer(box, {900, 900}, Files(300)), DropAnswer::Copied);
    EXPECT_EQ(GetContainerShortcutCount(Main, box), 250);
    EXPECT_EQ(Boxes(), 1);
    EXPECT_EQ(LastBox(),
              "Error 48: There's a limit of 250 shortcuts per container (much less is recommended!)");
    EXPECT_EQ(IntoContainer(box, {900, 900}, Files({"/one/more"})), DropAnswer::Refused);
    EXPECT_EQ(GetContainerShortcutCount(Main, box), 250);
    EXPECT_EQ(Boxes(), 2);
}

TEST_F(Drops, OnTheWorkspaceTheLimitIsThreeHundredAndFifty) {
    OnWorkspaceAt({1000, 1000}, Files(251));
    EXPECT_EQ(CountOnBack(), 251) << "the 251st is added";
    EXPECT_EQ(Boxes(), 0);
    OnWorkspaceAt({1000, 1000}, Files(200, "/other"));
    EXPECT_EQ(CountOnBack(), 350);
    EXPECT_EQ(LastBox(),
              "Error 48: There's a limit of 350 shortcuts in the workspace. Please use containers instead.");
}

TEST_F(Drops, WhatIsThereAlreadyTakesNoRoom) {
    const int box = New({4000, 1000, 4000, 4000});
    IntoContainer(box, {900, 900}, Files(250));
    IntoContainer(box, {900, 900}, Files(250));
    EXPECT_EQ(Boxes(), 1);
    EXPECT_EQ(LastBox(), "Quillmere 48: Duplicate items were not added.");
}

// ---- where they stand

TEST_F(Drops, SeveralStandInAColumnFromTheDropPlaceDown) {
    Main.Settings.LineSpacing = 155;
    OnWorkspaceAt({3000, 2000}, Files({"/a", "/b", "/c"}));
    const float step = LabelPlace(Main, 0).Height + 155;
    EXPECT_EQ(Where(0), "workspace 3000,2000");
    EXPECT_EQ(Where(1), "workspace 3000," + fake::Words(2000 + step));
    EXPECT_EQ(Where(2), "workspace 3000," + fake::Words(2000 + 2 * step));
}

TEST_F(Drops, WhereTheColumnIsTakenOrEndsTheNextFreeCellIsUsed) {
    const int below = SeenLink(OnWorkspace(), {3000, 2400});
    const Point cell = NextFreeCell(Main, OnWorkspace());
    OnWorkspaceAt({3000, 2000}, Files({"/a", "/b"}));
    EXPECT_EQ(Where(below + 2), "workspace " + fake::Words(cell));
    OnWorkspaceAt({6000, 8700}, Files({"/c", "/d"}));
    EXPECT_LT(Main.LinkView(Last()).lblShortcut.Place.Top, 8000);
}

TEST_F(Drops, NoneOfManyLiesOnAnother) {
    const int box = New({4000, 1000, 4000, 4000});
    IntoContainer(box, {900, 900}, Files(60));
    const auto links = LinksIn(InContainer(box));
    for (const int one : links)
        for (const int other : links)
            EXPECT_TRUE(one == other || !LabelPlace(Main, one).Intersects(LabelPlace(Main, other)))
                << Where(one) << " " << Where(other);
}

TEST_F(Drops, OnATileATitleOrUnderANoteTheyGoToFreeCells) {
    const int tile = NewTile(600, 600), note = New({4000, 1000, 3000, 3000});
    lblPinNote_Click(Main, note);
    for (const int box : {tile, note}) {
        const Point cell = NextFreeCell(Main, InContainer(box));
        EXPECT_EQ(LetGo(Files({"/a", "/b"}), OnContainer(box), {300, 150}), DropAnswer::Copied);
        const auto links = LinksIn(InContainer(box));
        ASSERT_EQ(links.size(), 2U);
        EXPECT_EQ(Where(links[0]), "container " + std::to_string(box) + " " + fake::Words(cell));
        EXPECT_NE(Where(links[1]), Where(links[0]));
    }
}

TEST_F(Drops, ADroppedShortcutIsKeptInsideAndOnTheGrid) {
    OnWorkspaceAt({11900, 3000}, Files({"/a"}));
    EXPECT_EQ(LabelPlace(Main, 0).Right(), 12000 - 100);
    Main.Dock.Align = true;
    Main.Settings.LineSpacing = 155;
    OnWorkspaceAt({1600, 3160}, Files({"/b", "/c"}));
    EXPECT_EQ(Where(1), "workspace 1550,3100");
    const float below = Main.LinkView(2).lblShortcut.Place.Top;
    EXPECT_EQ(std::fmod(below, 155.0F), 0) << below;
}

TEST_F(Drops, AContainerThatShowedEverythingGrowsToShowWhatIsAddedAndNoFurtherThanTheWorkspace) {
    const int box = New({4000, 1000, 3000, 2000});
    IntoContainer(box, {400, 300}, Files(6));
    EXPECT_FALSE(Main.ConView(box).VScroll.Visible);
    const float height = Box(box).Height;
    EXPECT_GT(height, 2000);
    EXPECT_EQ(Main.Con(box).OriginalSize().Height, height);
    IntoContainer(box, {400, 300}, Files(100, "/other"));
    EXPECT_LE(Box(box).Bottom(), Main.View.picBack.Place.Height - measures::EdgeGap);
    EXPECT_TRUE(Main.ConView(box).VScroll.Visible);
}

TEST_F(Drops, AContainerThatScrollsKeepsItsSize) {
    const int box = New({4000, 1000, 3000, 2000});
    SeenLink(InContainer(box), {500, 6000});
    LayScrollBar(Main, box);
    IntoContainer(box, {400, 300}, Files(1));
    EXPECT_EQ(Box(box).Height, 2000);
}

// ---- what follows

TEST_F(Drops, TheNewOnesAreSelectedAndNothingElseIs) {
    const int before = SeenLink(OnWorkspace(), {6000, 5000});
    SetSelection(Main, before, true);
    OnWorkspaceAt({1000, 1000}, Files({"/a", "/b"}));
    EXPECT_EQ(Main.Links.SelectedShortcuts, (std::vector<int>{before + 1, before + 2}));
}

TEST_F(Drops, TheWindowComesToTheFrontAndTheWorkspaceIsSaved) {
    OnWorkspaceAt({1000, 1000}, Files({"/home/user/a"}));
    EXPECT_EQ(computer.Windows.Foreground, MainWindow);
    const auto settings = computer.Files.Read(fake::SettingsFolder + "/Quillmere.REC", 1 << 20);
    EXPECT_NE(settings.Value().find("/home/user/a"), std::string::npos);
    EXPECT_EQ(Main.Group.NewContainerPos, (Point{1000, 1000}));
}

TEST_F(Drops, ALockedWorkspaceTakesNothing) {
    Main.Dock.Locked = true;
    EXPECT_EQ(OnWorkspaceAt({1000, 1000}, Files({"/a"})), DropAnswer::Refused);
    EXPECT_EQ(CountOnBack(), 0);
}

TEST_F(Drops, WhileTheProgramLoadsOrEndsNothingIsTaken) {
    Main.IsLoading = true;
    EXPECT_EQ(DragDrop(Main, OnBack, EventAt(OnBack, {1000, 1000}), Files({"/a"})), DropAnswer::Refused);
    Main.IsLoading = false;
    Main.IsExiting = true;
    EXPECT_EQ(DragDrop(Main, OnBack, EventAt(OnBack, {1000, 1000}), Files({"/a"})), DropAnswer::Refused);
    EXPECT_EQ(CountOnBack(), 0);
}

TEST_F(Drops, WhenTheProgramEndsOverTheFirstMessageTheSecondIsNotShown) {
    const int box = New({4000, 1000, 4000, 4000});
    IntoContainer(box, {900, 900}, Files(1));
    computer.Questions.OnBox = [&](const fake::Box&) { Main.IsExiting = true; };
    IntoContainer(box, {900, 900}, Files(300));
    EXPECT_EQ(Boxes(), 1);
    EXPECT_EQ(GetContainerShortcutCount(Main, box), 250);
}

TEST_F(Drops, ADeletedShortcutIsNoDuplicate) {
    OnWorkspaceAt({1000, 1000}, Files({"/a"}));
    DeleteShortcut(Main, Last());
    EXPECT_EQ(OnWorkspaceAt({1000, 1000}, Files({"/a"})), DropAnswer::Copied);
}

} // namespace
} // namespace quill
