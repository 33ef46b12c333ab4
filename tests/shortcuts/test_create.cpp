#include "shortcuts/at_work.h"
#include "shortcuts/link_files.h"

#include "core/objects.h"

namespace quill {
namespace {

using Create = AtWork;

TEST_F(Create, AFileHasTheDefaultsOfANewShortcut) {
    Main.Settings.FontSize = 12;
    const int index = File("/usr/bin/editor");
    const clsShortcut& record = Main.Link(index);
    EXPECT_EQ(record.ShortcutType, TypeFile);
    EXPECT_EQ(record.Color, -1);
    EXPECT_EQ(record.RunIn, 1);
    EXPECT_EQ(record.FontSize, 12);
    EXPECT_EQ(record.Path, "/usr/bin/editor");
    EXPECT_EQ(record.FullCaption, "editor");
    EXPECT_EQ(record.Parameters + record.StartIn + record.Icon, "");
    EXPECT_EQ(Main.LinkView(index).lblShortcut.Caption, "editor");
    EXPECT_EQ(Main.LinkView(index).lblShortcut.FontSize, 12);
}

TEST_F(Create, AnAddressIsCalledByItsLabelOrByItself) {
    EXPECT_EQ(Main.Link(Url("https://a.example/x", "News")).FullCaption, "News");
    const int index = Url("https://a.example/x");
    EXPECT_EQ(Main.Link(index).FullCaption, "https://a.example/x");
    EXPECT_EQ(Main.Link(index).ShortcutType, TypeUrl);
}

TEST_F(Create, RowsAreTakenInOrderAndRowZeroIsTheFirst) {
    EXPECT_EQ(File("/a"), 0);
    EXPECT_EQ(File("/b"), 1);
    EXPECT_EQ(Main.Shortcuts.size(), 2U);
    EXPECT_EQ(Main.ShortcutViews.size(), 2U);
}

TEST_F(Create, AfterDeletingTheLastTheNextTakesTheFollowingIndex) {
    File("/a");
    const int last = File("/b");
    DeleteShortcut(Main, last);
    EXPECT_EQ(Main.Shortcuts.size(), 2U) << "the dead row stays";
    EXPECT_FALSE(IsLive(Main.Shortcuts, last));
    EXPECT_EQ(File("/c"), last + 1);
}

TEST_F(Create, ClearedTablesGoOnCounting) {
    File("/a");
    File("/b");
    Main.Shortcuts.assign(1, {});
    Main.ShortcutViews.assign(1, {});
    EXPECT_EQ(File("/c"), 2);
    EXPECT_TRUE(IsLive(Main.Shortcuts, 2));
    EXPECT_FALSE(IsLive(Main.Shortcuts, 1)) << "rows added by growth are dead";
}

TEST_F(Create, APersonsPathLosesBlanksAndTheSeparatorAtItsEnd) {
    EXPECT_EQ(Main.Link(File("  /home/user/Documents/ ")).Path, "/home/user/Documents");
    EXPECT_EQ(Main.Link(File("/")).Path, "/") << "the root is nothing else";
}

TEST_F(Create, ALoadTakesTheRecordAsItIsWritten) {
    Main.IsLoading = true;
    EXPECT_EQ(Main.Link(File(" /home/user/x/ ")).Path, " /home/user/x/ ");
    EXPECT_EQ(Main.Link(File("")).Path, "") << "a shortcut without a path is not dropped";
}

TEST_F(Create, NothingIsMeasuredAndNoFileIsAskedBeforeItIsSeen) {
    Computer.Files.Recount();
    const int measured = Computer.Texts.Measured;
    Main.IsLoading = true;
    for (int at = 0; at < 1000; ++at) File("/usr/bin/editor");
    EXPECT_EQ(Computer.Texts.Measured, measured);
    EXPECT_TRUE(Computer.Files.Reads.empty());
}

TEST_F(Create, CaptionsTakeTheColorOfWhereTheyLie) {
    const int container = Container("Box");
    Main.ConView(container).FrameForeColor = 0x00FF00;
    Main.View.ForeColor = 0x0000FF;
    const int inside = File("/a", InContainer(container)), outside = File("/b");
    EXPECT_EQ(ShortcutInk(Main, inside), 0x00FF00);
    EXPECT_EQ(ShortcutInk(Main, outside), 0x0000FF);
    Main.Link(inside).Color = 0x123456;
    EXPECT_EQ(ShortcutInk(Main, inside), 0x123456) << "its own";
    EXPECT_EQ(Main.LinkView(outside).lblShortcut.ForeColor, 0x0000FF);
}

TEST_F(Create, AStyleIsShownAndMeasuredAgain) {
    const int index = File("/a");
    Main.LinkView(index).LabelMeasured = true;
    Main.Link(index).FontSize = 500;
    Main.Link(index).FontBold = true;
    Main.Marks.Take();
    ApplyShortcutStyle(Main, index);
    const ShortcutView& view = Main.LinkView(index);
    EXPECT_EQ(view.lblShortcut.FontSize, 200) << "held to what can be drawn";
    EXPECT_TRUE(view.lblShortcut.FontBold);
    EXPECT_FALSE(view.LabelMeasured);
    EXPECT_TRUE(Main.Marks.Pending().Workspace);
}

TEST_F(Create, AFileOfAFolderConnectorKeepsItsWholeName) {
    const int box = Container("Folder");
    Main.Con(box).CopyPath = "/home/user/Games";
    EXPECT_EQ(Main.Link(File("/home/user/Games/run.exe", InContainer(box))).FullCaption, "run.exe");
    Main.Con(box).CopyPath.clear();
    EXPECT_EQ(Main.Link(File("/home/user/Games/run.exe", InContainer(box))).FullCaption, "run");
}

TEST_F(Create, ALinkOfAFolderConnectorIsTheFileItself) {
    const int box = Container("Folder");
    Computer.Files.Put("/home/user/Games/site.url", "[InternetShortcut]\nURL=https://a.example/");
    Main.Con(box).CopyPath = "/home/user/Games";
    const int kept = File("/home/user/Games/site.url", InContainer(box));
    EXPECT_EQ(Main.Link(kept).Path, "/home/user/Games/site.url");
    EXPECT_EQ(Main.Link(kept).FullCaption, "site.url");
    EXPECT_EQ(Main.Link(File("/home/user/Games/site.url")).Path, "https://a.example/");
}

TEST_F(Create, AUrlFileGoesOnAsAnAddressUnderItsName) {
    Computer.Files.Put("/home/user/My Site.Url", "[InternetShortcut]\nURL=https://a.example/");
    const int index = File("/home/user/My Site.Url");
    EXPECT_EQ(Main.Link(index).ShortcutType, TypeUrl);
    EXPECT_EQ(Main.Link(index).Path, "https://a.example/");
    EXPECT_EQ(Main.Link(index).FullCaption, "My Site");
}

TEST_F(Create, ALnkFileGivesItsTargetParametersAndStartFolder) {
    test::LinkFile link;
    link.Local = "C:\\opt\\tool.exe";
    link.Arguments = " --new ";
    link.WorkingDirectory = "C:\\opt";
    Computer.Files.Put("/opt/tool.exe", "x");
    Computer.Files.Put("/home/user/My Tool.LNK", link.Text());
    const int index = File("/home/user/My Tool.LNK");
    EXPECT_EQ(Main.Link(index).ShortcutType, TypeFile);
    EXPECT_EQ(Main.Link(index).Path, "/opt/tool.exe");
    EXPECT_EQ(Main.Link(index).FullCaption, "My Tool");
    EXPECT_EQ(Main.Link(index).Parameters, "--new");
    EXPECT_EQ(Main.Link(index).StartIn, "/opt");
}

TEST_F(Create, ALnkFileThatCantBeReadIsItsOwnTarget) {
    Computer.Files.Put("/home/user/Tool.lnk", "damaged");
    const int index = File("/home/user/Tool.lnk");
    EXPECT_EQ(Main.Link(index).Path, "/home/user/Tool.lnk");
    EXPECT_EQ(Main.Link(index).FullCaption, "Tool");
    EXPECT_EQ(Main.Link(index).Parameters + Main.Link(index).StartIn, "");
}

TEST_F(Create, WithoutTheSettingLinksStayLinks) {
    Main.Settings.ExtractURLs = false;
    Computer.Files.Put("/home/user/site.url", "[InternetShortcut]\nURL=https://a.example/");
    Computer.Files.Put("/home/user/app.desktop", "[Desktop Entry]\nType=Application\nName=App\n");
    Computer.Files.Recount();
    EXPECT_EQ(Main.Link(File("/home/user/site.url")).Path, "/home/user/site.url");
    EXPECT_EQ(Main.Link(File("/home/user/app.desktop")).FullCaption, "app.desktop");
    EXPECT_TRUE(Computer.Files.Reads.empty());
}

TEST_F(Create, ADesktopEntryIsCalledByItsName) {
    Computer.Files.Put("/home/user/app.desktop", "[Desktop Entry]\nType=Application\nName=App\nComment=x\n");
    const int index = File("/home/user/app.desktop");
    EXPECT_EQ(Main.Link(index).Path, "/home/user/app.desktop");
    EXPECT_EQ(Main.Link(index).FullCaption, "App");
    EXPECT_EQ(Main.Link(index).Tip, "");
}

TEST_F(Create, ALoadFollowsNoLink) {
    Computer.Files.Put("/home/user/site.url", "[InternetShortcut]\nURL=https://a.example/");
    Main.IsLoading = true;
    const int index = File("/home/user/site.url");
    EXPECT_EQ(Main.Link(index).Path, "/home/user/site.url");
    EXPECT_EQ(Main.Link(index).ShortcutType, TypeFile);
}

TEST_F(Create, CaptionsLoseThreeEndingsInAnyCaseAndNoOther) {
    struct Row {
        const char* Path;
        const char* Caption;
    };
    for (const Row& row : {Row{"/x/Program.EXE", "Program"}, Row{"/x/a.Lnk", "a"}, Row{"/x/a.uRL", "a"},
                           Row{"/x/archive.zip", "archive.zip"}, Row{"/x/a.exe.txt", "a.exe.txt"},
                           Row{"/x/a.lnk.exe", "a.lnk"}, Row{"/", "/"}, Row{"/x/two\nlines", "two lines"}})
        EXPECT_EQ(Main.Link(File(row.Path)).FullCaption, row.Caption) << row.Path;
}

TEST_F(Create, ADeletedShortcutLeavesSelectionRecentListAndCurrent) {
    const int index = File("/a"), other = File("/b");
    Main.Links.SelectedShortcuts = {other, index};
    Main.Links.CurrentShortcut = index;
    UpdateRecent(Main, index);
    UpdateRecent(Main, other);
    DeleteShortcut(Main, index);
    EXPECT_EQ(Main.Links.SelectedShortcuts, std::vector<int>{other});
    EXPECT_EQ(Recent(), "b");
    EXPECT_EQ(Main.Links.CurrentShortcut, -1);
    DeleteShortcut(Main, index);
    EXPECT_TRUE(IsLive(Main.Shortcuts, other)) << "deleting it twice harms nobody";
}

// ---------------------------------------------------------------------------------------------- pictures

struct Pictures : AtWork {
    int Picture(const std::string& path, bool expected = true) {
        bool ok = false;
        AddPicture(Main, path, OnWorkspace(), {100, 200, 3000, 2000}, ok);
        EXPECT_EQ(ok, expected);
        return Main.NextPictureIndex - 1;
    }
    void Put(const std::string& path, Size size = {1500, 1200}) {
        Computer.Files.Put(path, "x");
        Computer.Images.Sizes[path] = size;
    }
};

TEST_F(Pictures, AnAddedPictureStandsOnTop) {
    Put("/home/user/lake.jpg");
    const int index = Picture("/home/user/lake.jpg");
    EXPECT_EQ(Main.Pic(index).Path, "/home/user/lake.jpg");
    EXPECT_EQ(Main.Pic(index).counter, -1) << "its slideshow is stopped";
    EXPECT_EQ(Main.ZOrderList.back(), (ZOrderEntry{KindPicture, index}));
    EXPECT_FALSE(Main.PicView(index).Missing);
}

TEST_F(Pictures, AMissingFileIsRefusedWhenAPersonAddsIt) {
    Picture("/home/user/gone.jpg", false);
    EXPECT_EQ(Main.NextPictureIndex, 0);
    EXPECT_TRUE(Main.ZOrderList.empty());
}

TEST_F(Pictures, AFileThatIsNoPictureIsRefusedWithWords) {
    Put("/home/user/broken.jpg", {});
    Person().Answer(AnswerOk);
    Picture("/home/user/broken.jpg", false);
    EXPECT_EQ(Person().LastBox(), "Unable to load selected picture");
    EXPECT_EQ(Main.NextPictureIndex, 0);
}

TEST_F(Pictures, AMissingFileAtLoadKeepsItsRecordAndAnEmptyFrame) {
    Main.IsLoading = true;
    const int index = Picture("@/pictures/gone.jpg");
    EXPECT_EQ(Main.Pic(index).Path, "@/pictures/gone.jpg");
    EXPECT_TRUE(Main.PicView(index).Missing);
}

TEST_F(Pictures, APictureOnTheProgramsDriveIsStoredRelativeInPortableMode) {
    Computer.Places.Mounts["/media/stick"] = DriveKind::Removable;
    Computer.Places.Program = "/media/stick/quillmere";
    Main.PortableMode = true;
    Put("/media/stick/lake.jpg");
    EXPECT_EQ(Main.Pic(Picture("/media/stick/lake.jpg")).Path, "@/lake.jpg");
    EXPECT_EQ(Main.Pic(Picture("@/lake.jpg")).Path, "@/lake.jpg") << "the marker stays";
}

TEST_F(Pictures, ADeadServerDoesNotHoldUpTheLoadAndItsAnswerCountsLater) {
    Computer.Shell.NetworkPaths.push_back("/mnt/server");
    Computer.Shell.SilentPaths.push_back("/mnt/server");
    Main.IsLoading = true;
    Computer.Files.Recount();
    const int index = Picture("/mnt/server/lake.jpg");
    EXPECT_TRUE(Computer.Files.Reads.empty());
    EXPECT_FALSE(Main.PicView(index).Missing);
    Main.Marks.Take();
    Computer.Clock.Advance(60'000);
    EXPECT_TRUE(Main.PicView(index).Missing);
    EXPECT_FALSE(Main.Marks.Pending().Pictures.empty());
}

TEST_F(Pictures, AnAnswerForADeletedPictureTouchesNothing) {
    Computer.Shell.NetworkPaths.push_back("/mnt/server");
    Computer.Shell.SilentPaths.push_back("/mnt/server");
    Main.IsLoading = true;
    const int index = Picture("/mnt/server/lake.jpg");
    DeletePicture(Main, index);
    EXPECT_TRUE(Main.ZOrderList.empty());
    Computer.Clock.Advance(60'000);
    EXPECT_FALSE(IsLive(Main.Pictures, index));
    EXPECT_FALSE(Main.PicView(index).Missing);
}

} // namespace
} // namespace quill
