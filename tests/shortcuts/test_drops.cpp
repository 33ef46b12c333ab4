#include "shortcuts/drag_fixture.h"

#include "containers/measures.h"
#include "dock/sliding.h"
#include "persistence/text_values.h"
#include "shortcuts/link_files.h"

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

// ---- link files

TEST_F(Drops, ALinkFileThatIsDroppedTwiceIsOneShortcut) {
    const int box = New({4000, 1000, 4000, 4000});
    computer.Files.Put("/home/user/site.url", "[InternetShortcut]\nURL=https://a.example/");
    EXPECT_EQ(IntoContainer(box, {900, 900}, Files({"/home/user/site.url"})), DropAnswer::Copied);
    EXPECT_EQ(IntoContainer(box, {900, 2000}, Files({"/home/user/site.url"})), DropAnswer::Refused);
    EXPECT_EQ(IntoContainer(box, {900, 2000}, Address("https://a.example/")), DropAnswer::Refused);
    EXPECT_EQ(GetContainerShortcutCount(Main, box), 1);
    EXPECT_EQ(Main.Link(0).FullCaption, "site");
}

TEST_F(Drops, ALinkFileThatLiesThereItselfIsNotAddedAsWhatItStandsFor) {
    computer.Files.Put("/home/user/site.url", "[InternetShortcut]\nURL=https://a.example/");
    Main.Settings.ExtractURLs = false;
    OnWorkspaceAt({1000, 1000}, Files({"/home/user/site.url"}));
    Main.Settings.ExtractURLs = true;
    EXPECT_EQ(OnWorkspaceAt({1000, 3000}, Files({"/home/user/site.url"})), DropAnswer::Refused);
    EXPECT_EQ(CountOnBack(), 1);
}

TEST_F(Drops, LinksToOneProgramWithOtherParametersAreOtherShortcuts) {
    computer.Files.Put("/opt/tool", "x");
    const auto put = [&](const std::string& name, const std::string& arguments) {
        test::LinkFile file;
        file.Local = "C:\\opt\\tool";
        file.Arguments = arguments;
        computer.Files.Put("/home/user/" + name, file.Text());
    };
    put("a.lnk", "--one");
    put("b.lnk", "--two");
    put("c.lnk", "--two");
    OnWorkspaceAt({1000, 1000}, Files({"/home/user/a.lnk", "/home/user/b.lnk", "/home/user/c.lnk"}));
    ASSERT_EQ(CountOnBack(), 2);
    EXPECT_EQ(Main.Link(0).Parameters, "--one");
    EXPECT_EQ(Main.Link(1).Parameters, "--two");
    EXPECT_EQ(Boxes(), 1);
}

TEST_F(Drops, InPortableModeTheTargetOfALinkOnTheStickIsStoredWithTheMark) {
    computer.Places.Mounts["/media/stick"] = DriveKind::Removable;
    computer.Places.Program = "/media/stick/quillmere";
    Main.PortableMode = true;
    computer.Files.Put("/media/stick/Tools/edit.exe", "x");
    test::LinkFile file;
    file.Relative = "Tools\\edit.exe";
    computer.Files.Put("/media/stick/a.lnk", file.Text());
    computer.Files.Put("/media/stick/damaged.lnk", "x");
    OnWorkspaceAt({1000, 1000}, Files({"/media/stick/a.lnk", "/media/stick/damaged.lnk"}));
    EXPECT_EQ(Main.Link(0).Path, "@/Tools/edit.exe");
    EXPECT_EQ(Main.Link(1).Path, "@/damaged.lnk") << "one that can't be read is its own target";
    EXPECT_EQ(OnWorkspaceAt({1000, 4000}, Files({"/media/stick/Tools/edit.exe"})), DropAnswer::Refused);
}

// ---- links on the desktop

struct DesktopLinks : Drops {
    const std::string Link = "/home/user/Desktop/site.URL";
    DesktopLinks() { Put(Link); }
    void Put(const std::string& path, const std::string& address = "https://a.example/") {
        computer.Files.Put(path, "[InternetShortcut]\nURL=" + address);
    }
    std::vector<std::string> Trashed(const std::string& path) {
        OnWorkspaceAt({1000, 1000}, Files({path}));
        return computer.Shell.Trashed;
    }
    const std::vector<std::string> Nothing;
};

TEST_F(DesktopLinks, OneThatAShortcutTookThePlaceOfGoesToTheTrash) {
    EXPECT_EQ(Trashed(Link), std::vector<std::string>{Link});
    EXPECT_EQ(Main.Link(0).Path, "https://a.example/");
}

TEST_F(DesktopLinks, NothingGoesWhereOneOfTheTwoSettingsIsOff) {
    Main.Settings.DeleteDesktopShortcuts = false;
    EXPECT_EQ(Trashed(Link), Nothing);
    DeleteShortcut(Main, 0);
    Main.Settings.DeleteDesktopShortcuts = true;
    Main.Settings.ExtractURLs = false;
    EXPECT_EQ(Trashed(Link), Nothing);
    EXPECT_EQ(Main.Link(1).Path, Link) << "the link itself";
    EXPECT_EQ(Main.Link(1).FullCaption, "site");
}

TEST_F(DesktopLinks, OneThatWasThereAlreadyStays) {
    OnWorkspaceAt({1000, 1000}, Address("https://a.example/"));
    EXPECT_EQ(Trashed(Link), Nothing);
}

TEST_F(DesktopLinks, OneThatStandsForNothingElseStays) {
    computer.Files.Put("/home/user/Desktop/damaged.lnk", "x");
    Put("/home/user/Desktop/odd.url", "javascript:x");
    computer.Files.Put("/home/user/Desktop/app.desktop", "[Desktop Entry]\nType=Application\nName=App\n");
    for (const char* name : {"damaged.lnk", "odd.url", "app.desktop"})
        EXPECT_EQ(Trashed("/home/user/Desktop/" + std::string(name)), Nothing) << name;
    EXPECT_EQ(Main.Link(2).FullCaption, "App");
    EXPECT_EQ(Main.Link(2).Path, "/home/user/Desktop/app.desktop");
}

TEST_F(DesktopLinks, OneThatLiesElsewhereStays) {
    for (const char* path : {"/home/user/site.url", "/home/user/Desktop/folder/site.url",
                             "/backup/home/user/Desktop/site.url", "/home/user/Desktop2/site.url"}) {
        Put(path, "https://a.example/" + std::string(path));
        EXPECT_EQ(Trashed(path), Nothing) << path;
    }
    Put("/home/user/other.url");
    computer.Places.Folders[SpecialFolder::Desktop] = "/home/user";
    EXPECT_EQ(Trashed("/home/user/other.url"), Nothing) << "a home folder is no desktop";
}

TEST_F(DesktopLinks, NothingGoesWhileTheWorkspaceCantBeSaved) {
    computer.Files.PutFolder(fake::SettingsFolder);
    computer.Files.Space(0);
    EXPECT_EQ(Trashed(Link), Nothing);
    EXPECT_EQ(CountOnBack(), 1);
}

TEST_F(DesktopLinks, OnlyThoseThatFoundRoomGo) {
    const int box = New({4000, 1000, 4000, 4000});
    DragData data = Files(249);
    Put("/home/user/Desktop/two.url", "https://b.example/");
    data.Files.push_back(Link);
    data.Files.push_back("/home/user/Desktop/two.url");
    IntoContainer(box, {900, 900}, data);
    EXPECT_EQ(computer.Shell.Trashed, std::vector<std::string>{Link});
}

// ---- while a drop is being taken

TEST_F(Drops, TheWorkspaceDoesNotCollapseUnderTheHandThatDrops) {
    Main.View.Window.Left = 0;
    bool held = false;
    IntoContainer(New({4000, 1000, 4000, 4000}), {900, 900}, Files({"/a"}));
    computer.Questions.OnBox = [&](const fake::Box&) { held = Main.Links.Dropping && !MayCollapse(Main); };
    OnWorkspaceAt({1000, 1000}, Files({"/a"}));
    OnWorkspaceAt({1000, 1000}, Files({"/a"}));
    EXPECT_TRUE(held);
    EXPECT_FALSE(Main.Links.Dropping) << "and may afterwards";
}

TEST_F(Drops, ManyFilesReadEachLinkOnceAndNothingElse) {
    for (int at = 0; at < 250; ++at)
        computer.Files.Put("/l/" + std::to_string(at) + ".url",
                           "[InternetShortcut]\nURL=https://a.example/" + std::to_string(at));
    DragData data;
    for (int at = 0; at < 250; ++at) data.Files.push_back("/l/" + std::to_string(at) + ".url");
    const int box = New({4000, 1000, 4000, 4000});
    computer.Files.Recount();
    IntoContainer(box, {900, 900}, data);
    EXPECT_EQ(GetContainerShortcutCount(Main, box), 250);
    EXPECT_EQ(
        std::ranges::count_if(computer.Files.Reads, [](auto& read) { return read.starts_with("read /l/"); }),
        250);
    IntoContainer(box, {900, 900}, Files({"/l/1.url"}));
}

TEST_F(Drops, HostileNamesAreStoredAsTheyAreAndShownAsText) {
    const std::string names[] = {
        "/x/\"quoted' `name`",  "/x/two\nlines",   "/x/100%25",   "/x/--leading",
        "/x/\u202Egnp.exe.txt", "/x/\xFF\xFE bad", "/x/ blanks ", "/x/" + std::string(4096, 'n'),
        "/x/<b>bold<b>&amp;",   "/x/$(reboot);"};
    OnWorkspaceAt({1000, 1000}, Files({std::begin(names), std::end(names)}));
    int index = 0;
    for (const std::string& name : names) {
        EXPECT_EQ(Main.Link(index).Path, name);
        const std::string& caption = Main.Link(index++).FullCaption;
        EXPECT_EQ(caption.find('\n'), std::string::npos);
        EXPECT_TRUE(IsUtf8(caption)) << caption;
    }
    EXPECT_EQ(Main.Link(0).FullCaption, "\"quoted' `name`");
    EXPECT_EQ(Main.Link(8).FullCaption, "<b>bold<b>&amp;");
}

TEST_F(Drops, ADeletedShortcutIsNoDuplicate) {
    OnWorkspaceAt({1000, 1000}, Files({"/a"}));
    DeleteShortcut(Main, Last());
    EXPECT_EQ(OnWorkspaceAt({1000, 1000}, Files({"/a"})), DropAnswer::Copied);
}

} // namespace
} // namespace quill
