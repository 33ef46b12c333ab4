#include "persistence/format_fixture.h"
#include "persistence/settings_table.h"
#include "platform/clock.h"

namespace quill {
namespace {

using test::Formats;
using test::ValueOf;

// The whole text of a fresh workspace. Every key in its place, and nothing else.
constexpr const char* FreshSettings = R"(108
[Hidden]
0
[WindowState]
0
[Maximized]
0
[X]
1200
[Y]
-100
[W]
10065
[H]
7500
[SUSPEND_AUTO_COLLAPSE]
0
[LOCKED]
0
[ShowTrayIcon]
1
[CheckForUpdatesOnStartup]
1
[CheckForBetaVersions]
0
[ShowInTaskbar]
0
[MaxContainers]
50
[ApplyStyle]
1
[Wallpaper]

[Stretch]
0
[Gradient]
1
[GradientDark]
0
[GradientContainers]
1
[ShowTime]
0
[SystemInfo]
0
[Align]
0
[ConfirmDelete]
1
[GlobalHotkey]
1
[GlobalHotkeyChar]
S
[GlobalHotkeyMod]
9
[GlobalHotkeyDetached]
0
[ShowKBLauncher]
0
[Web Search]
https://www.google.com/search?q=%s
[SearchOnSpace]
0
[KBLauncherTips]
1
[ClickToTagStart]
0
[PreventWindowMovement]
0
[RepeatReminder]
0
[BackupOnSave]
0
[BackupDateStamp]
0
[ExtractURLs]
1
[PreviewPictures]
1
[CommandOverlay]
1
[Translucent]
0
[Opacity]
235
[Animate]
1
[VisibleBorderCollapsed]
1
[KeyboardHistory]
1
[KeyboardHistoryCount]
20
[Undock Immediately]
0
[Mini Dock Size]
2500
[Mini Dock Side]
2
[Mini Dock Flash]
1
[Accent Color]
0
[Quickly Unlock]
0
[Center Mouse]
0
[Undock On Click]
0
[AutoSlideShow]
1
[ReEncryptNotes]
0
[GrabFocus]
0
[OnTop]
1
[ConfirmOpenWith]
1
[AutoExpand]
1
[AutoExpandDelay]
1
[Effect]
1
[EffectMode]
0
[FoldUnfoldEffect]
1
[FoldOnClick]
1
[Buttons]
Modern Dark
[Font Size]
10
[Font Name]
Tahoma
[Large Icon Size]
32
[Background]
1708806
[ContainerFor]
2688768
[ContainerLabel]
16777215
[DockingColor]
3680526
[ContainerTextBack]
14810623
[ContainerTextFor]
0
[Foreground]
16777215
[DragToDetach]
1
[DetachNotes]
0
[Dbl-Click]
1
[LockOnlyShortcuts]
0
[LineSpacing]
155
[DeleteDesktopShortcuts]
1
[RememberParams]
1
[ContainerFromFolder]
1
[ShortcutTooltips]
1
[FolderConnector]
0
[CalcOrSpeedLaunch]
1
[ConfirmStartAllShortcuts]
1
[DblClickToStartAll]
0
[ShowTips]
1
[WhichTips]
0
[SpacebarFlip]
1
[ConShrinkW]
700
[ConShrinkH]
950
)";

TEST(SettingsFile, AFreshWorkspaceIsWrittenToTheLetter) {
    Formats fresh;
    fresh.Main.Settings.Effect = true;
    fresh.Main.View.Window = {1200, -100, 10065, 7500};
    EXPECT_EQ(SettingsText(fresh.Main, false), test::Crlf(FreshSettings));
}

TEST(SettingsFile, AFileOfOnlyTheVersionHasAllDefaultsAndNoShortcuts) {
    Formats initial, loaded;
    loaded.PutSettings("108\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.WrittenSettings(), initial.WrittenSettings());
    EXPECT_EQ(loaded.Main.NextShortcutIndex, 0);
    EXPECT_TRUE(loaded.Computer.Questions.Boxes.empty());
}

TEST(SettingsFile, TheLaterOfTwoValuesCounts) {
    Formats loaded;
    loaded.PutSettings("108\n[Opacity]\n100\n[Opacity]\n120\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.Settings.Opacity, 120);
}

TEST(SettingsFile, KeysMayStandInAnyOrderAndUnknownOnesArePassedOver) {
    Formats loaded;
    loaded.PutSettings(
        "108\n[Opacity]\n100\n[Newer Key]\nits value\n[MaxContainers]\n7\n[opacity]\n1\n[Stretch]\n1\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.Settings.Opacity, 100);
    EXPECT_EQ(loaded.Main.Settings.MaxContainers, 7);
    EXPECT_TRUE(loaded.Main.Settings.Stretch);
}

TEST(SettingsFile, AValueOfAnUnknownKeyThatReadsLikeAKeyIsOne) {
    Formats loaded;
    loaded.PutSettings("108\n[Newer Key]\n[Opacity]\n100\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.Settings.Opacity, 100);
}

TEST(SettingsFile, TheValueOfCaptureIsThrownAway) {
    Formats loaded;
    loaded.PutSettings("108\n[Capture]\n[Opacity]\n100\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.Settings.Opacity, 235);
}

TEST(SettingsFile, FilesOfExistingUsersLoad) {
    Formats loaded;
    loaded.PutSettings("108\n[ShowTrayIcon]\nFalse\n[Stretch]\n-1\n[Gradient]\nTrue\n[Opacity]\n 120 \n"
                       "[Mini Dock Size]\n1800,5\n[Background]\n 255 \n[KeyboardHistoryCount]\n12.5\n"
                       "[LineSpacing]\n154.6\n[X]\n-150.5\n[Wallpaper]\nC:\\Bilder\\caf\xE9.jpg\n");
    ASSERT_TRUE(loaded.Load());
    const SettingsRecord& settings = loaded.Main.Settings;
    EXPECT_FALSE(settings.ShowTrayIcon);
    EXPECT_TRUE(settings.Stretch);
    EXPECT_TRUE(settings.Gradient);
    EXPECT_EQ(settings.Opacity, 120);
    EXPECT_EQ(settings.MiniDockSize, 1800.5F);
    EXPECT_EQ(settings.KeyboardHistoryCount, 12.5F);
    EXPECT_EQ(settings.LineSpacing, 155);
    EXPECT_EQ(loaded.Main.View.BackColor, 255);
    EXPECT_EQ(loaded.Deferred.X, "-150.5");
    EXPECT_EQ(settings.Wallpaper, "C:\\Bilder\\caf\xC3\xA9.jpg");
}

TEST(SettingsFile, WhatTheEndOfTheLoadAppliesIsKeptUntilThen) {
    Formats loaded;
    loaded.PutSettings(
        "108\n[Hidden]\nTrue\n[WindowState]\n 2 \n[Maximized]\n-1\n[X]\n1,5\n[Y]\n2\n[W]\n3\n[H]\n4\n"
        "[SUSPEND_AUTO_COLLAPSE]\n0\n[LOCKED]\n1\n[Effect]\nFalse\n");
    ASSERT_TRUE(loaded.Load());
    const DeferredSettings& stored = loaded.Deferred;
    EXPECT_EQ(stored.Hidden, "1");
    EXPECT_EQ(stored.WindowState, "2");
    EXPECT_EQ(stored.Maximized, "1");
    EXPECT_EQ(stored.X, "1.5");
    EXPECT_EQ(stored.Y, "2");
    EXPECT_EQ(stored.W, "3");
    EXPECT_EQ(stored.H, "4");
    EXPECT_EQ(stored.SuspendAutoCollapse, "0");
    EXPECT_EQ(stored.Locked, "1");
    EXPECT_EQ(loaded.Main.Store.StoredEffect, "0");
    EXPECT_FALSE(loaded.Main.Dock.Locked);
}

TEST(SettingsFile, MissingKeysOfTheWindowApplyNothing) {
    Formats loaded;
    loaded.PutSettings("108\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_FALSE(loaded.Deferred.X || loaded.Deferred.Maximized || loaded.Deferred.WindowState);
    EXPECT_EQ(loaded.Main.Store.StoredEffect, "1");
}

TEST(SettingsFile, NothingAnimatesWhileTheFileIsRead) {
    Formats loaded;
    loaded.PutSettings("108\n[Effect]\n1\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_FALSE(loaded.Main.Settings.Effect);
    EXPECT_EQ(loaded.Main.Store.StoredEffect, "1");
}

TEST(SettingsFile, CheckedMenusComeBack) {
    Formats loaded;
    loaded.PutSettings("108\n[Align]\n1\n[ClickToTagStart]\n1\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_TRUE(loaded.Main.Dock.Align);
    EXPECT_TRUE(loaded.Main.Dock.ClickToTagStart);
}

TEST(SettingsFile, TheCaptionFollowsTheForeground) {
    Formats loaded;
    loaded.PutSettings("108\n[Background]\n16711680\n[Foreground]\n65535\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.View.BackColor, 16711680);
    EXPECT_EQ(loaded.Main.View.ForeColor, 65535);
    EXPECT_EQ(loaded.Main.View.CaptionForeColor, 65535);
}

TEST(SettingsFile, AnEmptyWallpaperIsIgnoredAndAMissingOneKeepsItsName) {
    Formats loaded;
    loaded.PutSettings("108\n[Wallpaper]\n@/walls/gone.jpg\n[Wallpaper]\n\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(ValueOf(loaded.WrittenSettings(), "[Wallpaper]"), "@/walls/gone.jpg");
}

TEST(SettingsFile, AFontThatIsNotThereBecomesTahoma) {
    Formats loaded;
    loaded.PutSettings("108\n[Font Name]\nNo Such Font Anywhere\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.Settings.FontName, "Tahoma");
}

TEST(SettingsFile, ValuesOutsideTheirRangeAreWrittenBackAsTheyWere) {
    Formats loaded;
    loaded.PutSettings(
        "108\n[Opacity]\n255\n[KeyboardHistoryCount]\n900\n[Font Size]\n500\n[AutoExpandDelay]\n7\n");
    ASSERT_TRUE(loaded.Load());
    const auto text = loaded.WrittenSettings();
    EXPECT_EQ(ValueOf(text, "[Opacity]"), "255");
    EXPECT_EQ(ValueOf(text, "[KeyboardHistoryCount]"), "900");
    EXPECT_EQ(ValueOf(text, "[Font Size]"), "500");
    EXPECT_EQ(ValueOf(text, "[AutoExpandDelay]"), "7");
}

TEST(SettingsFile, DialogPlacesAndServersAreWrittenOnceTheyStand) {
    Formats loaded;
    EXPECT_EQ(ValueOf(loaded.WrittenSettings(), "[RSSViewerOnTop]"), "(none)");
    EXPECT_EQ(ValueOf(loaded.WrittenSettings(), "[LibraryServer]"), "(none)");
    const std::string places =
        "[RSSViewerOnTop]\n0\n[RSSViewerX]\n1\n[RSSViewerY]\n2\n[RSSViewerW]\n3\n"
        "[RSSViewerH]\n4\n[RSSSearchX]\n0\n[RSSSearchY]\n6\n[ReminderDialogX]\n7.5\n"
        "[ReminderDialogY]\n8\n[ReminderDialogW]\n9\n[ReminderDialogH]\n10\n"
        "[LibraryServer]\nhttps://library.example\n[UpdateServer]\nhttps://update.example\n";
    loaded.PutSettings("108\n" + places);
    ASSERT_TRUE(loaded.Load());
    EXPECT_TRUE(loaded.WrittenSettings().ends_with("[ConShrinkH]\n950\n" + places));
}

TEST(SettingsFile, SubjectsAreRebuiltInFileOrderAndNumberedFromOne) {
    Formats loaded;
    loaded.PutSettings(
        "108\n[RSS Search3]\n space \n[RSS Search0]\nmusic\n[RSS Search20]\nlast\n[RSS Search21]\nno\n"
        "[RSS Search 1]\nno\n[RSS Searchx]\nno\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_EQ(loaded.Main.Links.Subjects, (std::vector<std::string>{" space ", "music", "last"}));
    EXPECT_TRUE(loaded.WrittenSettings().ends_with(
        "[RSS Search1]\n space \n[RSS Search2]\nmusic\n[RSS Search3]\nlast\n"));
}

TEST(SettingsFile, RecentRowsAreReadByTheirNumber) {
    Formats loaded;
    loaded.PutSettings(
        "108\n[Recent 2]\nSecond\n 300 \n 400,5 \nContainerFrame\n[Recent 1]\nFirst\n1\n2\npicBack\n"
        "[Recent 10]\nTenth\n5\n6\npicBack\n");
    ASSERT_TRUE(loaded.Load());
    const auto& rows = loaded.Main.Links.RecentRows;
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].Caption, "First");
    EXPECT_EQ(rows[1].Caption, "Second");
    EXPECT_EQ(rows[1].Left, 300);
    EXPECT_EQ(rows[1].Top, 400.5F);
    EXPECT_EQ(rows[1].ParentName, "ContainerFrame");
    EXPECT_EQ(rows[2].Caption, "Tenth");
}

TEST(SettingsFile, Recent12IsNoKeyAndIsPassedOverLineByLine) {
    Formats loaded;
    loaded.PutSettings("108\n[Recent 12]\ncaption\nno number\n[Opacity]\n100\n[Recent 01]\nx\n");
    ASSERT_TRUE(loaded.Load());
    EXPECT_TRUE(loaded.Main.Links.RecentRows.empty());
    EXPECT_EQ(loaded.Main.Settings.Opacity, 100);
}

TEST(SettingsFile, RecentShortcutsAreWrittenWithTheirPlaces) {
    Formats loaded;
    loaded.PutSettings("108\n[Link]\n[LinkX]\n10\n[LinkY]\n20.5\n[LinkLabel]\nEditor\n[LinkType]\n2\n"
                       "[LinkPath]\n/usr/bin/editor\n[End Link]\n");
    ASSERT_TRUE(loaded.Load());
    loaded.Main.Links.Recent = {{"Editor", 0}, {"gone", 77}, {"again", 0}};
    const auto text = loaded.WrittenSettings();
    EXPECT_NE(text.find("[ConShrinkH]\n950\n[Recent 1]\nEditor\n10\n20.5\npicBack\n"
                        "[Recent 2]\nagain\n10\n20.5\npicBack\n[Link]\n"),
              std::string::npos)
        << text;
}

TEST(SettingsFile, MaxContainersBelowTheNumberOfFilesStopsTheLoadAtThatCount) {
    Formats loaded;
    loaded.PutSettings("108\n[MaxContainers]\n2\n");
    for (int count = 0; count < 3; ++count) loaded.PutContainer("108\n[Container]\n-1\n");
    loaded.Computer.Questions.Answer(AnswerOk);
    EXPECT_FALSE(loaded.Load());
    ASSERT_EQ(loaded.Computer.Questions.Boxes.size(), 1U);
    EXPECT_EQ(
        loaded.Computer.Questions.LastBox(),
        "There is a maximum of 2 containers in the workspace. You can manually change it in the .ini file.");
    EXPECT_EQ(loaded.Computer.Questions.Boxes[0].Title, "Error");
    EXPECT_TRUE(loaded.Main.g_DontSave);
    EXPECT_EQ(loaded.Main.NextContainerIndex, 2);
    for (const auto& path : loaded.files.Containers) EXPECT_TRUE(loaded.Computer.Files.Has(path));
}

TEST(SettingsFile, AMaximisedWorkspaceIsSavedWithItsRestoreRectangle) {
    Formats loaded;
    loaded.Main.View.Window = {0, 0, 30000, 20000};
    loaded.Main.View.RestoreRect = {100, 200, 3000, 4000};
    EXPECT_EQ(ValueOf(loaded.WrittenSettings(), "[W]"), "30000");
    loaded.Main.Dock.Maximized = true;
    EXPECT_EQ(ValueOf(loaded.WrittenSettings(), "[Maximized]"), "1");
    EXPECT_EQ(ValueOf(loaded.WrittenSettings(), "[X]"), "100");
    EXPECT_EQ(ValueOf(loaded.WrittenSettings(), "[W]"), "3000");
}

TEST(SettingsFile, ADockedWorkspaceIsSavedAsOutAtItsEdge) {
    Formats loaded;
    const Rect monitor = loaded.Computer.Windows.Monitors().front().Place;
    loaded.Main.View.Window = {300, monitor.Top - 3950, 3000, 4000};
    loaded.Main.Dock.DockPosition = 1;
    EXPECT_EQ(NormalPlace(loaded.Main), (Rect{300, monitor.Top - 100, 3000, 4000}));
    loaded.Main.View.Window = {monitor.Left - 2960, 300, 3000, 4000};
    loaded.Main.Dock.DockPosition = 2;
    EXPECT_EQ(NormalPlace(loaded.Main), (Rect{monitor.Left - 200, 300, 3000, 4000}));
    loaded.Main.Dock.DockPosition = 3;
    EXPECT_EQ(NormalPlace(loaded.Main), (Rect{monitor.Right() - 2800, 300, 3000, 4000}));
    loaded.Main.Dock.DockPosition = 4;
    EXPECT_EQ(NormalPlace(loaded.Main).Bottom(), monitor.Bottom() + 200);
}

TEST(SettingsFile, ABrieflyUnlockedWorkspaceIsSavedAsLocked) {
    Formats loaded;
    EXPECT_EQ(ValueOf(loaded.WrittenSettings(), "[LOCKED]"), "0");
    loaded.Computer.Clock.Start({TimerName::TimerBrieflyUnlock}, 11000);
    EXPECT_EQ(ValueOf(loaded.WrittenSettings(), "[LOCKED]"), "1");
}

TEST(SettingsFile, AHostileNameStaysInItsLine) {
    Formats loaded;
    loaded.Main.Settings.WebSearch = "https://x/\r\n[MaxContainers]\r\n1";
    loaded.Main.Links.Subjects = {"two\nlines"};
    const auto text = loaded.WrittenSettings();
    EXPECT_EQ(ValueOf(text, "[Web Search]"), "https://x/  [MaxContainers]  1");
    EXPECT_EQ(ValueOf(text, "[RSS Search1]"), "two lines");
}

TEST(SettingsFile, WhatWasReadIsWrittenBackUnchanged) {
    Formats loaded;
    std::string changed;
    for (const auto& row : SettingsRows())
        if (row.Set && row.Write)
            changed += std::string(row.Key) + "\n" +
                       (row.Type == "text"      ? "some text"
                        : row.Type == "Boolean" ? "0"
                                                : "7") +
                       "\n";
    loaded.PutSettings("108\n" + changed);
    loaded.Computer.Texts.Fonts.insert("some text");
    ASSERT_TRUE(loaded.Load());
    for (const auto& row : SettingsRows()) {
        if (!row.Set || !row.Write) continue;
        EXPECT_EQ(ValueOf(loaded.WrittenSettings(), std::string(row.Key)), row.Type == "text" ? "some text"
                                                                           : row.Type == "Boolean" ? "0"
                                                                                                   : "7")
            << row.Key;
    }
}

} // namespace
} // namespace quill
