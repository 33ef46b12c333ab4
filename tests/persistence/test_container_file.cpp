#include "persistence/format_fixture.h"

#include "core/objects.h"

namespace quill {
namespace {

using test::Formats;
using test::ValueOf;

// A container of every kind as this program writes it, to the letter. What is read is written back the same.
constexpr const char* NoteContainer = R"(108
[Container]
-1
[Name]
Shopping
[Date]
Nov 1, 2026 8:05 AM
[Modified]
Nov 2, 2026 9:15 PM
[Backcolor]
255
[Forecolor]
65280
[ContainerTextBack]
14810623
[ContainerTextFor]
16711680
[Icon]
/home/user/icons/cart.png
[CopyPath]

[AutoRefresh]
0
[NOTE ON]
1
[NoteFontSize]
12
[START Note]
milk
  bread

eggs
[END Note]
[ConShrinkW]
650
[ConShrinkH]
870
[Folded]
0
[DetachedConFolded]
1
[Flipped]
0
[DetachedUndockOnClick]
1
[DetachedTab]
0
[DetachedCollapseOnClick]
0
[DetachedTransparent]
1
[DetachedOnTop]
1
[DetachedFadeOut]
0
[DetachedTabX]
1
[DetachedTabY]
2
[DetachedTabH]
3
[DetachedTabW]
4
[DetachedTabDocked]
2
[DetachedX]
-5
[DetachedY]
6
[DetachedH]
7
[DetachedW]
8
[HideToolbar]
1
[Spacebar Flip]
1
[Encrypted]
0
[LineSpacing]
200
[Shrink]
0
[X]
1500.5
[Y]
-200
[W]
4000
[H]
2500.25
[ShowTag]
work
[Picture]
[Locked]
0
[PicX]
10
[PicY]
20.5
[PicW]
300
[PicH]
200
[PicPath]
/home/user/picture.jpg
[Comment]
the cat
[SlideShow]
2
[End Picture]
[Link]
[Size]
12
[LinkX]
30
[LinkY]
155.5
[LinkLabel]
Editor
[LinkType]
2
[LinkPath]
/usr/bin/editor
[LinkParam]
--new "a b"
[Color]
255
[Bold]
1
[Confirm]
1
[Command]
0
[Icon]
/home/user/icons/pen.png
[Tags]
work, text
[RunIn]
3
[TagStart]
1
[PromptParameters]
1
[StartIn]
/home/user
[Admin]
1
[SpeedLaunch]
7
[Tip]
 writes things 
[End Link]
[Link]
[Size]
10
[LinkX]
30
[LinkY]
310
[LinkLabel]
Example
[LinkType]
1
[LinkPath]
https://example.org/?a=1
[LinkParam]

[Color]
-1
[Bold]
0
[Confirm]
0
[Command]
0
[Icon]

[Tags]

[RunIn]
1
[TagStart]
0
[PromptParameters]
0
[StartIn]

[Admin]
0
[SpeedLaunch]
0
[Tip]

[End Link]
)";

// The part that stands between the note and the end of a container with nothing special.
std::string OrdinaryTail(const std::string& place) {
    return "[ConShrinkW]\n700\n[ConShrinkH]\n950\n[Folded]\n0\n[DetachedConFolded]\n0\n[Flipped]\n0\n"
           "[DetachedUndockOnClick]\n0\n[DetachedTab]\n1\n[DetachedCollapseOnClick]\n1\n[DetachedTransparent]"
           "\n0\n"
           "[DetachedOnTop]\n0\n[DetachedFadeOut]\n1\n[DetachedTabX]\n0\n[DetachedTabY]\n0\n[DetachedTabH]"
           "\n0\n"
           "[DetachedTabW]\n0\n[DetachedTabDocked]\n0\n[DetachedX]\n0\n[DetachedY]\n0\n[DetachedH]\n0\n"
           "[DetachedW]\n0\n[Spacebar Flip]\n0\n[Encrypted]\n0\n[LineSpacing]\n155\n[Shrink]\n0\n" +
           place;
}

const std::string OrdinaryPlace = "[X]\n100\n[Y]\n200\n[W]\n3000\n[H]\n2000\n";

const std::string Feed =
    "108\n[RSS]\nhttps://example.org/feed\nNews\n-1\n[Name]\nNews\n[Date]\n\n[Modified]\n\n"
    "[Backcolor]\n255\n[Forecolor]\n65280\n[ContainerTextBack]\n1\n[ContainerTextFor]\n2\n"
    "[Icon]\nrss.ico\n[CopyPath]\nhttps://example.org/feed\n[AutoRefresh]\n30\n[NOTE ON]\n0\n"
    "[NoteFontSize]\n10\n[RSSFontSize]\n11\n[RefreshOnExpand]\n1\n[BuiltInViewer]\n0\n"
    "[ArticleTooltip]\n0\n[HighlightSearchTerms]\n0\n[Filter]\n1\n[FilterString]\n rain \n"
    "[START Note]\n[END Note]\n" +
    OrdinaryTail(OrdinaryPlace);

std::string OfContainer(const std::string& name, const std::string& copyPath, const std::string& rest) {
    return "108\n[Container]\n-1\n[Name]\n" + name +
           "\n[Date]\n\n[Modified]\n\n[Backcolor]\n2688768\n[Forecolor]\n16777215\n[ContainerTextBack]"
           "\n14810623\n"
           "[ContainerTextFor]\n0\n[Icon]\nemptyicon.ico\n[CopyPath]\n" +
           copyPath + "\n[AutoRefresh]\n0\n[NOTE ON]\n0\n[NoteFontSize]\n10\n[START Note]\n[END Note]\n" +
           rest;
}

const std::string Plain = OfContainer("Plain", "", OrdinaryTail(OrdinaryPlace));
const std::string FolderConnector =
    OfContainer("Folder", "/home/user/Documents", OrdinaryTail(OrdinaryPlace));

void ExpectWrittenBack(const std::string& text) {
    Formats loaded;
    loaded.PutContainer(text);
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Written(0), text);
    EXPECT_EQ(ContainerText(loaded.Main, 0), test::Crlf(loaded.Written(0)));
    EXPECT_TRUE(loaded.Computer.Questions.Boxes.empty());
}

TEST(ContainerFile, ANoteContainerWithAllIsWrittenBackToTheLetter) {
    ExpectWrittenBack(NoteContainer);
}
TEST(ContainerFile, AFeedIsWrittenBackToTheLetter) {
    ExpectWrittenBack(Feed);
}
TEST(ContainerFile, APlainContainerIsWrittenBackToTheLetter) {
    ExpectWrittenBack(Plain);
}
TEST(ContainerFile, AFolderConnectorIsWrittenBackToTheLetter) {
    ExpectWrittenBack(FolderConnector);
}

std::string With(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

TEST(ContainerFile, AReminderIsWrittenBackWithItsSixLines) {
    Formats loaded;
    loaded.PutContainer(
        With(Plain, "[Folded]", "[ReminderV2]\n 17 \n5\n2026\n12\n31\nDec 31, 2026 5:05 PM\n[Folded]"));
    ASSERT_TRUE(loaded.Load());
    const Reminder& reminder = loaded.Con(0).ReminderRecord();
    EXPECT_TRUE(reminder.IsReminder);
    EXPECT_EQ(reminder.Hour, 17);
    EXPECT_EQ(reminder.Minute, 5);
    EXPECT_EQ(reminder.Year, 2026);
    EXPECT_EQ(reminder.Month, 12);
    EXPECT_EQ(reminder.Day, 31);
    EXPECT_TRUE(loaded.View(0).ContainerNote.Visible);
    EXPECT_EQ(loaded.View(0).ContainerNote.BackColor, loaded.View(0).FrameBackColor);
    EXPECT_EQ(loaded.View(0).ContainerNote.ForeColor, loaded.View(0).ContainerLabel.ForeColor);
    EXPECT_NE(loaded.Written(0).find("[ReminderV2]\n17\n5\n2026\n12\n31\nDec 31, 2026 5:05 PM\n[Folded]\n"),
              std::string::npos);
}

TEST(ContainerFile, AFoldedContainerKeepsTheSizeThatItUnfoldsTo) {
    ExpectWrittenBack(With(Plain, "[Folded]\n0", "[Folded]\n1"));
    Formats loaded;
    loaded.PutContainer(With(Plain, "[Folded]\n0", "[Folded]\n1"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.View(0).FoldMark, "+");
    EXPECT_EQ(loaded.View(0).Container.Place.Height, 320);
}

TEST(ContainerFile, ATileKeepsTheSizeThatItExpandsTo) {
    ExpectWrittenBack(With(Plain, "[Shrink]\n0", "[Shrink]\n1"));
    Formats loaded;
    loaded.PutContainer(With(Plain, "[Shrink]\n0", "[Shrink]\n1"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.View(0).Container.Place, (Rect{100, 200, 700, 950}));
    EXPECT_TRUE(loaded.View(0).ContainerIcon.Visible);
    EXPECT_EQ(loaded.Main.Group.CurrentContainer, -1);
}

TEST(ContainerFile, ATilesOwnSizeIsNeverTakenForItsFullSize) {
    Formats loaded;
    loaded.PutContainer(
        With(With(Plain, "[Shrink]\n0", "[Shrink]\n1"), "[W]\n3000\n[H]\n2000", "[W]\n700\n[H]\n950"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_TRUE(IsShrunk(loaded.Main, 0));
    EXPECT_EQ(ValueOf(loaded.Written(0), "[W]"), "3000");
    EXPECT_EQ(ValueOf(loaded.Written(0), "[H]"), "3000");
}

TEST(ContainerFile, AContainerOfExactlyTheTilesSizeIsATile) {
    Formats loaded;
    loaded.PutContainer(With(Plain, "[W]\n3000\n[H]\n2000", "[W]\n700\n[H]\n950"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_TRUE(loaded.View(0).ContainerIcon.Visible);
    EXPECT_EQ(ValueOf(loaded.Written(0), "[Shrink]"), "1");
}

TEST(ContainerFile, ADetachedContainerKeepsItsKeysAndItsFold) {
    const auto detached = With(With(Plain, "[Folded]\n0", "[Folded]\n1"), "[DetachedUndockOnClick]",
                               "[Detached]\n1\n[DetachedUndockOnClick]");
    ExpectWrittenBack(detached);
    Formats loaded;
    loaded.PutContainer(detached);
    ASSERT_TRUE(loaded.Load());
    EXPECT_TRUE(loaded.Con(0).Detached);
    EXPECT_TRUE(loaded.Con(0).DetachedFolded);
    EXPECT_EQ(loaded.View(0).FoldMark, "-");
}

TEST(ContainerFile, AFlippedStateOutlivesEveryOtherState) {
    const auto flipped = With(Plain, "[Flipped]\n0", "[Flipped]\n1");
    ExpectWrittenBack(flipped);
    ExpectWrittenBack(With(flipped, "[Folded]\n0", "[Folded]\n1"));
    ExpectWrittenBack(With(flipped, "[Shrink]\n0", "[Shrink]\n1"));
}

// One text for each way in which the named states can stand together.
std::vector<std::string> InEveryState(const std::string& text) {
    struct State {
        const char *From, *To;
    };
    const State states[] = {{"[Folded]\n0", "[Folded]\n1"},
                            {"[Flipped]\n0", "[Flipped]\n1"},
                            {"[Shrink]\n0", "[Shrink]\n1"},
                            {"[NOTE ON]\n0", "[NOTE ON]\n1"},
                            {"[DetachedConFolded]\n0", "[DetachedConFolded]\n1"},
                            {"[DetachedUndockOnClick]", "[Detached]\n1\n[DetachedUndockOnClick]"},
                            {"[Spacebar Flip]", "[HideToolbar]\n1\n[Spacebar Flip]"}};
    std::vector<std::string> texts{text};
    for (const auto& state : states)
        for (std::size_t at = 0, count = texts.size(); at < count; ++at)
            texts.push_back(With(texts[at], state.From, state.To));
    return texts;
}

TEST(ContainerFile, StatesThatStandTogetherAreWrittenBackTogether) {
    const auto reminder = With(With(Plain, "[ContainerTextBack]\n14810623\n[ContainerTextFor]\n0",
                                    "[ContainerTextBack]\n2688768\n[ContainerTextFor]\n16777215"),
                               "[Folded]", "[ReminderV2]\n17\n5\n2026\n12\n31\nat five\n[Folded]");
    const auto asNarrowAsATile = With(Plain, "[W]\n3000", "[W]\n700");
    const auto aboveTheWindow = With(Plain, "[Y]\n200", "[Y]\n-1500.5");
    for (const auto& base : {Plain, Feed, FolderConnector, reminder, asNarrowAsATile, aboveTheWindow}) {
        for (const auto& text : InEveryState(base)) {
            const auto says = [&](const char* lines) { return text.find(lines) != std::string::npos; };
            // A tile that stands in the workspace is never folded.
            if (says("[Folded]\n1") && says("[Shrink]\n1") && !says("[Detached]\n1")) continue;
            ExpectWrittenBack(text);
        }
    }
}

TEST(ContainerFile, AFeedOpensWithItsListAndKeepsThatItsNoteWasOn) {
    Formats loaded;
    loaded.PutContainer(With(Feed, "[NOTE ON]\n0", "[NOTE ON]\n1"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_FALSE(loaded.View(0).PinPressed);
    EXPECT_FALSE(loaded.View(0).ContainerNote.Visible);
    EXPECT_EQ(ValueOf(loaded.Written(0), "[NOTE ON]"), "1");
}

TEST(ContainerFile, AFlippedContainerComesBackToThePlaceAboveItsFoot) {
    Formats loaded;
    loaded.PutContainer(With(Plain, "[Flipped]\n0", "[Flipped]\n1"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_TRUE(loaded.Con(0).CloseToEdgeY);
    EXPECT_EQ(loaded.Con(0).StoredSize().Y, 200 + 2000 - 350);
}

TEST(ContainerFile, OnlyANegativeXIsBroughtBackToTheEdge) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[X]\n-200\n[Y]\n-200\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.View(0).Container.Place.Left, 0);
    EXPECT_EQ(loaded.View(0).Container.Place.Top, -200);
    EXPECT_EQ(ValueOf(loaded.Written(0), "[X]"), "0");
    EXPECT_EQ(ValueOf(loaded.Written(0), "[Y]"), "-200");
}

TEST(ContainerFile, TheStartUpContainerIsFoundByItsExactName) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[Name]\n#startup\n");
    loaded.PutContainer("108\n[Container]\n-1\n[Name]\n#STARTUP\n");
    loaded.PutContainer("108\n[Container]\n-1\n[Name]\n#STARTUP \n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Startup, std::vector<int>{1});
}

TEST(ContainerFile, ANoteComesBackWithoutBlanksAroundItAndWithALineEnd) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[START Note]\n  \n\t text \n  more \n\n[END Note]\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_NE(loaded.Written(0).find("[START Note]\ntext \n  more\n[END Note]\n"), std::string::npos);
    Formats again;
    again.PutContainer(loaded.Written(0));
    ASSERT_TRUE(again.Load());
    EXPECT_EQ(again.View(0).ContainerNote.Text, "text \r\n  more\r\n");
}

TEST(ContainerFile, ANoteOfBlanksIsNoNote) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[START Note]\n\n[END Note]\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.View(0).ContainerNote.Text, "");
}

TEST(ContainerFile, ANoteWithTheEndLineInItReloadsAsAShorterNote) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[START Note]\nfirst\n[END Note]\nlost line\n[Backcolor]\n255\n"
                        "[END Note]\n[Name]\nAfter\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.View(0).ContainerNote.Text, "first\r\n");
    EXPECT_EQ(loaded.View(0).FrameBackColor, 255);
    EXPECT_EQ(loaded.View(0).ContainerLabel.Caption, "After");
}

TEST(ContainerFile, BehindAnEarlyEndOfANoteAnUnreadableValueIsNoDamage) {
    Formats loaded;
    loaded.PutContainer(
        "108\n[Container]\n-1\n[START Note]\nfirst\n[END Note]\n[Backcolor]\nis my favourite tag\n"
        "[ReminderV2]\nsoon\n[Link]\n[Size]\nhuge\nrest\n[END Note]\n[Y]\n77\n[Name]\nAfter\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_TRUE(loaded.Computer.Questions.Boxes.empty());
    EXPECT_EQ(loaded.View(0).ContainerLabel.Caption, "After");
    EXPECT_EQ(loaded.View(0).Container.Place.Top, 77);
    EXPECT_EQ(loaded.Main.NextShortcutIndex, 0);
}

TEST(ContainerFile, BehindTheLastEndOfANoteAnUnreadableValueIsDamage) {
    ContainerRecord record;
    const auto damage =
        ParseContainer("108\n[Container]\n-1\n[START Note]\na\n[END Note]\n[Y]\nhigh\n", record);
    ASSERT_TRUE(damage);
    EXPECT_EQ(damage->Line, 8U);
}

TEST(ContainerFile, OurOwnNotesNeverEndEarly) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n");
    ASSERT_TRUE(loaded.Load());
    loaded.Main.ConView(0).ContainerNote.Text = "a\r\n[END Note]\r\nb";
    EXPECT_NE(loaded.Written(0).find("[START Note]\na\n[END Note] \nb\n[END Note]\n"), std::string::npos);
    Formats again;
    again.PutContainer(loaded.Written(0));
    ASSERT_TRUE(again.Load());
    EXPECT_EQ(again.View(0).ContainerNote.Text, "a\r\n[END Note] \r\nb\r\n");
}

TEST(ContainerFile, ANoteIsShownAsItWasSaved) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[NOTE ON]\nTrue\n[START Note]\ntext\n[END Note]\n");
    loaded.PutContainer("108\n[Container]\n-1\n[NOTE ON]\n0\n[START Note]\ntext\n[END Note]\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_TRUE(loaded.View(0).ContainerNote.Visible);
    EXPECT_TRUE(loaded.View(0).PinPressed);
    EXPECT_EQ(loaded.Con(0).ShrinkPath, "note.ico");
    EXPECT_FALSE(loaded.View(1).ContainerNote.Visible);
    EXPECT_FALSE(loaded.View(1).PinPressed);
    EXPECT_TRUE(loaded.View(1).shapeNoteIndicator.Visible);
    EXPECT_EQ(loaded.Con(1).ShrinkPath, "emptyicon.ico");
}

TEST(ContainerFile, AFeedsAddressIsNoFolder) {
    Formats loaded;
    loaded.PutContainer(With(Feed, "[CopyPath]\nhttps://example.org/feed", "[CopyPath]\n/home/user"));
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(KindOf(loaded.Main, 0), ContainerKind::Feed);
    EXPECT_EQ(loaded.Con(0).CopyPath, "https://example.org/feed");
    EXPECT_EQ(loaded.Con(0).RSSListIndex, 0);
    EXPECT_EQ(loaded.Main.Feed(0).GroupIndex, 0);
    EXPECT_EQ(loaded.View(0).ContainerLabel.BorderStyle, 0);
    EXPECT_EQ(loaded.Main.Feed(0).FilterString, " rain ");
    EXPECT_EQ(loaded.Main.Feed(0).FrameBackColor, 255);
}

TEST(ContainerFile, AFolderConnectorIsMarkedOnItsLabel) {
    Formats loaded;
    loaded.PutContainer(FolderConnector);
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(KindOf(loaded.Main, 0), ContainerKind::FolderConnector);
    EXPECT_EQ(loaded.View(0).ContainerLabel.BorderStyle, 1);
}

TEST(ContainerFile, FilesOfExistingUsersLoad) {
    Formats loaded;
    loaded.PutRaw(
        "108\r\n[Container]\r\n-1\r\n[Name]\r\nB\xFCro\r\n[Backcolor]\r\n 255 \r\n[Folded]\r\nFalse\r\n"
        "[Spacebar Flip]\r\nTrue\r\n[HideToolbar]\r\n-1\r\n[X]\r\n 150,5 \r\n[Y]\r\n 2.25\r\n"
        "[LineSpacing]\r\n 154.7 \r\n[NoteFontSize]\r\n9,75\r\n[START Note]\r\n\x84Gr\xFC\xDF\x65\x93\r\n"
        "[END Note]\r\n[DetachedX]\r\n10.6\r\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.View(0).ContainerLabel.Caption, "B\xC3\xBCro");
    EXPECT_EQ(loaded.View(0).FrameBackColor, 255);
    EXPECT_TRUE(loaded.Con(0).SpacebarFlip);
    EXPECT_TRUE(loaded.Con(0).HideToolbar);
    EXPECT_EQ(loaded.View(0).Container.Place.Left, 150.5F);
    EXPECT_EQ(loaded.View(0).Container.Place.Top, 2.25F);
    EXPECT_EQ(loaded.Con(0).LineSpacing, 155);
    EXPECT_EQ(loaded.View(0).ContainerNote.FontSize, 10);
    EXPECT_EQ(loaded.View(0).ContainerNote.Text, "\xE2\x80\x9EGr\xC3\xBC\xC3\x9F\x65\xE2\x80\x9C\r\n");
    EXPECT_EQ(loaded.Con(0).DetachedSize().X, 11);
}

TEST(ContainerFile, LineFeedsAloneAndAByteOrderMarkAreRead) {
    Formats loaded;
    loaded.PutRaw("\xEF\xBB\xBF" + Plain);
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Written(0), Plain);
}

TEST(ContainerFile, ANameIsNotTrimmedAndTagsCompareWithCase) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[Name]\n  padded \n[name]\nother\n[Newer Tag]\nvalue\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.View(0).ContainerLabel.Caption, "  padded ");
}

TEST(ContainerFile, AMissingTagLeavesTheDefault) {
    Formats loaded;
    loaded.Main.Settings.ContainerTextBack = 123;
    loaded.Main.Settings.ContainerTextFor = 45;
    loaded.PutContainer("106\n[Container]\n-1\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.View(0).ContainerNote.BackColor, 123);
    EXPECT_EQ(loaded.View(0).ContainerNote.ForeColor, 45);
    EXPECT_EQ(loaded.View(0).ContainerNote.FontSize, 10);
    EXPECT_EQ(loaded.Con(0).ShrinkSize(), (TileSize{700, 950}));
    EXPECT_EQ(loaded.View(0).ContainerLabel.Caption, "Container");
}

TEST(ContainerFile, ASecondHeadMakesNoSecondContainer) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[RSS]\n[Name]\nOne\n[Container]\n-1\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(LiveContainers(loaded.Main), 1);
    EXPECT_FALSE(loaded.Con(0).RSS);
    EXPECT_EQ(loaded.View(0).ContainerLabel.Caption, "One");
}

TEST(ContainerFile, TheLoadOrderIsTheStackingOrder) {
    Formats loaded;
    for (int count = 0; count < 3; ++count) loaded.PutContainer("108\n[Container]\n-1\n");
    ASSERT_TRUE(loaded.Load());
    const std::vector<ZOrderEntry> order{{KindContainer, 0}, {KindContainer, 1}, {KindContainer, 2}};
    EXPECT_EQ(loaded.Main.ZOrderList, order);
    for (int index = 0; index < 3; ++index) EXPECT_TRUE(loaded.View(index).Container.Visible);
}

TEST(ContainerFile, IconsThatStandBesideTheProgramAreNamedBare) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n");
    ASSERT_TRUE(loaded.Load());
    loaded.Main.Con(0).ShrinkPath = loaded.Computer.Places.DataFolder() + "/note.ico";
    EXPECT_EQ(ValueOf(loaded.Written(0), "[Icon]"), "note.ico");
    loaded.Main.Con(0).ShrinkPath = "/home/user/note.ico";
    EXPECT_EQ(ValueOf(loaded.Written(0), "[Icon]"), "/home/user/note.ico");
}

TEST(ContainerFile, TheSplashTellsWhatIsLoaded) {
    Formats loaded;
    std::vector<std::string> told;
    loaded.PutContainer("108\n[Container]\n-1\n[Name]\nWork\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.View.SplashText, "Loading Work...");
    Formats feeds;
    feeds.PutContainer(Feed);
    ASSERT_TRUE(feeds.Load());
    EXPECT_EQ(feeds.Main.View.SplashText, "News...");
    Formats quiet;
    quiet.Main.Start.QuietFeedNames = true;
    quiet.PutContainer(Feed);
    ASSERT_TRUE(quiet.Load());
    EXPECT_EQ(quiet.Main.View.SplashText, "");
}

TEST(ContainerFile, ADetachedFlippedNoteIsSavedWithItsStoredTop) {
    Formats loaded;
    loaded.PutContainer("108\n[Container]\n-1\n[Y]\n500\n[Detached]\n1\n[Folded]\n1\n[Flipped]\n1\n");
    ASSERT_TRUE(loaded.Load());
    loaded.Main.Con(0).SetSize({.Y = 900.0F});
    EXPECT_EQ(ValueOf(loaded.Written(0), "[Y]"), "900");
    loaded.Main.Con(0).DetachedFolded = false;
    EXPECT_EQ(ValueOf(loaded.Written(0), "[Y]"), "500");
}

} // namespace
} // namespace quill
