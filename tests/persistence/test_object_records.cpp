#include "persistence/format_fixture.h"

#include "persistence/objects_by_parent.h"
#include "shortcuts/create.h"

namespace quill {
namespace {

using test::Formats;
using test::ValueOf;

std::string Link(const std::string& inside) {
    return "[Link]\n" + inside + "[End Link]\n";
}
const std::string Head = "108\n[Container]\n-1\n";

TEST(ObjectRecords, ARecordOfAnotherTypeIsPassedOverSilently) {
    Formats loaded;
    loaded.PutContainer(Head + Link("[LinkType]\n3\n[LinkPath]\n/x\n") + Link("[LinkPath]\n/no/type\n") +
                        Link("[LinkType]\n2\n[LinkPath]\n/y\n"));
    ASSERT_TRUE(loaded.Load());
    ASSERT_EQ(loaded.Main.NextShortcutIndex, 1);
    EXPECT_EQ(loaded.Main.Link(0).Path, "/y");
    EXPECT_TRUE(loaded.Computer.Questions.Boxes.empty());
}

TEST(ObjectRecords, AShortcutWithAnEmptyPathIsKept) {
    Formats loaded;
    loaded.PutContainer(Head + Link("[LinkType]\n2\n[LinkLabel]\nNothing yet\n[LinkPath]\n\n"));
    ASSERT_TRUE(loaded.Load());
    ASSERT_EQ(loaded.Main.NextShortcutIndex, 1);
    EXPECT_NE(loaded.Written(0).find("[LinkLabel]\nNothing yet\n[LinkType]\n2\n[LinkPath]\n\n"),
              std::string::npos);
}

TEST(ObjectRecords, OnlyTheLeftOfAShortcutIsReadAsAWholeNumber) {
    Formats loaded;
    loaded.PutContainer(Head + Link("[LinkX]\n 100.6 \n[LinkY]\n 155,5 \n[LinkType]\n2\n"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.LinkView(0).lblShortcut.Place.Left, 101);
    EXPECT_EQ(loaded.Main.LinkView(0).lblShortcut.Place.Top, 155.5F);
}

TEST(ObjectRecords, AColourOfItsOwnReachesTheLabel) {
    Formats loaded;
    loaded.PutContainer(Head + "[Forecolor]\n65280\n" +
                        Link("[LinkType]\n2\n[Color]\n 255 \n[Bold]\nTrue\n[Size]\n14\n") +
                        Link("[LinkType]\n2\n[Color]\n-1\n"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.LinkView(0).lblShortcut.ForeColor, 255);
    EXPECT_TRUE(loaded.Main.LinkView(0).lblShortcut.FontBold);
    EXPECT_EQ(loaded.Main.LinkView(0).lblShortcut.FontSize, 14);
    EXPECT_EQ(loaded.Main.Link(1).Color, -1);
    EXPECT_EQ(loaded.Main.LinkView(1).lblShortcut.ForeColor, loaded.View(0).FrameForeColor);
    EXPECT_EQ(loaded.Main.LinkView(1).lblShortcut.FontSize, 10);
}

TEST(ObjectRecords, LinksToLinksAreNotFollowedByTheReader) {
    Formats loaded;
    loaded.PutContainer(Head +
                        Link("[LinkType]\n2\n[LinkPath]\n/home/user/a.desktop\n[LinkLabel]\nOld name\n") +
                        Link("[LinkType]\n2\n[LinkPath]\n/home/user/folder/\n[LinkLabel]\nFolder\n"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.Link(0).FullCaption, "Old name");
    EXPECT_EQ(loaded.Main.LinkView(0).lblShortcut.Caption, "Old name");
    EXPECT_EQ(loaded.Main.Link(1).Path, "/home/user/folder/");
}

TEST(ObjectRecords, ManyMoreThanTheLimitAreRead) {
    std::string links;
    for (int count = 0; count < 300; ++count) links += Link("[LinkType]\n2\n[LinkPath]\n/a\n");
    Formats loaded;
    loaded.PutContainer(Head + links);
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.NextShortcutIndex, 300);
}

TEST(ObjectRecords, TextsAreTrimmedWhereTheFormatTrimsThem) {
    Formats loaded;
    loaded.PutContainer(Head);
    ASSERT_TRUE(loaded.Load());
    AddURL(loaded.Main, InContainer(0), "x", "y", {});
    clsShortcut& link = loaded.Main.Link(0);
    link.FullCaption = link.Path = link.Parameters = " a ";
    link.Icon = link.Tags = link.StartIn = link.Tip = " b ";
    const auto text = loaded.Written(0);
    for (const char* tag : {"[LinkLabel]", "[LinkPath]", "[LinkParam]"})
        EXPECT_EQ(ValueOf(text, tag), "a") << tag;
    const auto record = text.substr(text.find("[Link]\n"));
    for (const char* tag : {"[Icon]", "[Tags]", "[StartIn]", "[Tip]"})
        EXPECT_EQ(ValueOf(record, tag), " b ") << tag;
}

TEST(ObjectRecords, PathsThatALineCantHoldComeBack) {
    const std::string paths[] = {"/home/user/bad\xE4name", "/home/user/two\nlines", "/home/user/blank "};
    Formats loaded;
    loaded.PutContainer(Head);
    ASSERT_TRUE(loaded.Load());
    for (const auto& path : paths) {
        AddFile(loaded.Main, path, InContainer(0), {});
        loaded.Main.Link(loaded.LastShortcut()).StartIn = path;
        loaded.Main.Link(loaded.LastShortcut()).Icon = path;
    }
    Formats again;
    again.PutContainer(loaded.Written(0));
    ASSERT_TRUE(again.Load());
    for (int index = 0; index < 3; ++index) {
        EXPECT_EQ(again.Main.Link(index).Path, paths[index]);
        EXPECT_EQ(again.Main.Link(index).StartIn, paths[index]);
        EXPECT_EQ(again.Main.Link(index).Icon, paths[index]);
    }
}

TEST(ObjectRecords, AnAddressWithAFileSchemeStaysAnAddress) {
    Formats loaded;
    loaded.PutContainer(Head + Link("[LinkType]\n1\n[LinkPath]\nfile:///a%0Ab\n"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.Link(0).Path, "file:///a%0Ab");
}

TEST(ObjectRecords, InAnotherVersionNothingBetweenLinkAndItsEndIsRead) {
    for (const char* version : {"106", "107", "109", "abc"}) {
        Formats loaded;
        loaded.PutContainer(std::string(version) + "\n[Container]\n-1\n[Icon]\n/mine.png\n" +
                            Link("[LinkType]\n2\n[Icon]\n/of/the/link.png\n[X]\n7\n") + "[Name]\nAfter\n");
        ASSERT_TRUE(loaded.Load());
        EXPECT_EQ(loaded.Main.NextShortcutIndex, 0);
        EXPECT_EQ(ValueOf(loaded.Written(0), "[Icon]"), "/mine.png");
        EXPECT_EQ(loaded.View(0).ContainerLabel.Caption, "After");
    }
}

TEST(ObjectRecords, ACopyOfAFileWhoseRecordsWereNotReadIsKeptOnce) {
    Formats loaded;
    loaded.PutContainer("106\n[Container]\n-1\n" + Link("[LinkType]\n2\n"));
    ASSERT_TRUE(loaded.Load());
    const auto kept = loaded.files.Containers[0] + ".older";
    EXPECT_EQ(loaded.Computer.Files.Get(kept), loaded.Computer.Files.Get(loaded.files.Containers[0]));
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Computer.Files.Names(fake::SettingsFolder + "/Containers").size(), 2U);
}

TEST(ObjectRecords, AFileOfThisVersionIsNotKeptTwice) {
    Formats loaded;
    loaded.PutContainer(Head + Link("[LinkType]\n2\n"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Computer.Files.Names(fake::SettingsFolder + "/Containers").size(), 1U);
}

const std::string OldPicture =
    "[Picture]\n[Locked]\n1\n[whatever]\n10\n[PicY]\n20,5\n[PicW]\n300\n[PicH]\n200\n"
    "[PicPath]\n/home/user/cat.jpg\n[Comment]\nTEMP\n[SlideShow]\nTEMP\n";

TEST(ObjectRecords, PicturesOfTheOldFormatAreReadByPosition) {
    for (const char* version : {"106", "105", "1"}) {
        Formats loaded;
        loaded.PutContainer(std::string(version) + "\n[Container]\n-1\n" + OldPicture + "[Name]\nAfter\n");
        ASSERT_TRUE(loaded.Load());
        ASSERT_EQ(loaded.Main.NextPictureIndex, 1) << version;
        EXPECT_EQ(loaded.Main.PicView(0).PicContainer, (Rect{10, 20.5F, 300, 200}));
        EXPECT_EQ(loaded.Main.Pic(0).Path, "/home/user/cat.jpg");
        EXPECT_EQ(loaded.Main.Pic(0).Comment, "");
        EXPECT_EQ(loaded.Main.Pic(0).counter, -1);
        EXPECT_EQ(loaded.View(0).ContainerLabel.Caption, "After");
    }
}

TEST(ObjectRecords, OldPicturesKeepTheirCommentAndTheirPlaceInTheSlideshow) {
    Formats loaded;
    auto text = "106\n[Container]\n-1\n" + OldPicture;
    text.replace(text.find("TEMP"), 4, "my cat");
    text.replace(text.find("TEMP"), 4, " 3 ");
    loaded.PutContainer(text);
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.Pic(0).Comment, "my cat");
    EXPECT_EQ(loaded.Main.Pic(0).counter, 3);
}

TEST(ObjectRecords, PicturesOfAVersionInBetweenAreNotRead) {
    Formats loaded;
    loaded.PutContainer("107\n[Container]\n-1\n[Picture]\n[PicX]\n1\n[End Picture]\n[Name]\nAfter\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.NextPictureIndex, 0);
    EXPECT_EQ(loaded.View(0).ContainerLabel.Caption, "After");
    EXPECT_TRUE(loaded.Computer.Files.Has(loaded.files.Containers[0] + ".older"));
}

TEST(ObjectRecords, APictureWhoseFileIsGoneKeepsItsRecord) {
    Formats loaded;
    const std::string picture =
        "[Picture]\n[Locked]\n0\n[PicX]\n1\n[PicY]\n2\n[PicW]\n3\n[PicH]\n4\n[PicPath]\n"
        "/gone.jpg\n[Comment]\nwas here\n[SlideShow]\n0\n[End Picture]\n";
    loaded.PutContainer(Head + picture);
    ASSERT_TRUE(loaded.Load());
    EXPECT_TRUE(loaded.Main.PicView(0).Missing);
    EXPECT_NE(loaded.Written(0).find(picture), std::string::npos);
    EXPECT_TRUE(loaded.Computer.Questions.Boxes.empty());
}

TEST(ObjectRecords, PicturesAreWrittenFromTheBottomOfTheStackUp) {
    Formats loaded;
    loaded.PutSettings(
        "108\n[Picture]\n[Comment]\na\n[End Picture]\n[Picture]\n[Comment]\nb\n[End Picture]\n");
    ASSERT_TRUE(loaded.Load());
    std::swap(loaded.Main.ZOrderList[0], loaded.Main.ZOrderList[1]);
    const auto text = loaded.WrittenSettings();
    EXPECT_LT(text.find("[Comment]\nb\n"), text.find("[Comment]\na\n"));
}

TEST(ObjectRecords, DeadRowsAndOtherParentsAreNotWritten) {
    Formats loaded;
    loaded.PutSettings("108\n" + Link("[LinkType]\n2\n[LinkPath]\n/desk\n"));
    loaded.PutContainer(Head + Link("[LinkType]\n2\n[LinkPath]\n/a\n") +
                        Link("[LinkType]\n2\n[LinkPath]\n/dead\n") + Link("[LinkType]\n2\n[LinkPath]\n/b\n"));
    ASSERT_TRUE(loaded.Load());
    DeleteShortcut(loaded.Main, 2);
    const ObjectsByParent objects(loaded.Main);
    const auto in = objects.ShortcutsIn(InContainer(0));
    EXPECT_EQ(std::vector<int>(in.begin(), in.end()), (std::vector<int>{1, 3}));
    EXPECT_EQ(objects.ShortcutsIn(OnWorkspace()).size(), 1U);
    EXPECT_TRUE(objects.ShortcutsIn(InContainer(99)).empty());
    EXPECT_TRUE(objects.PicturesIn(InContainer(0)).empty());
    EXPECT_EQ(loaded.Written(0).find("/dead"), std::string::npos);
    EXPECT_EQ(loaded.WrittenSettings().find("/a"), std::string::npos);
}

} // namespace
} // namespace quill
