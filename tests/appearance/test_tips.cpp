#include "appearance/colors.h"
#include "appearance/paint_tip.h"
#include "appearance/palette.h"
#include "appearance/tips.h"
#include "containers/selection.h"
#include "containers/workspace_fixture.h"
#include "core/menus.h"
#include "core/start.h"
#include "dock/dock_commands.h"
#include "dock/docking.h"
#include "fake/canvas.h"
#include "fake/desk.h"
#include "fake/words.h"
#include "notes/notes.h"

namespace quill::test {
namespace {

constexpr int restTime = 500, fadeTime = 110; // milliseconds

const std::string Gestures = "Ctrl Click: Toggle Selection\nRight Click: Show Menu\n"
                             "Drag: Change Location (Ctrl+Z: Undo)";

// What a tip says.

struct TipTexts : WorkspaceFixture {
    void NameLink(int index, const std::string& name) { Main.Link(index).FullCaption = name; }
    int Feed() {
        const int index = New({0, 0, 3000, 3000});
        Main.Con(index).RSS = true;
        Main.Con(index).RSSListIndex = 0;
        Main.FeedViews.resize(1);
        return index;
    }
    int Note(const std::string& text) {
        const int index = New({0, 0, 3000, 3000});
        SetNoteText(Main, index, text);
        Main.ConView(index).PinPressed = true;
        Main.Con(index).CreationDate = "1/2/2026";
        Main.Con(index).ModifyDate = "3/4/2026";
        return index;
    }
    std::string Info(int index) {
        Main.Settings.WhichTips = 1;
        return TipOfContainer(Main, index);
    }
    void Shrink(int index) { ExpandShrinkContainer(Main, index, false); }
};

TEST_F(TipTexts, AnOpenContainerListsItsItemsAndThenWhatTheMouseDoes) {
    const int index = New({0, 0, 3000, 3000});
    NameLink(NewLink(InContainer(index), {0, 0}), "Letter to Anna");
    NameLink(NewLink(InContainer(index), {0, 400}), "Home");
    EXPECT_EQ(TipOfContainer(Main, index), "Letter to Anna\nHome\n\nDouble Click: Fold/Unfold\n" + Gestures);
}

TEST_F(TipTexts, TheTileSaysHowItOpens) {
    const int index = NewTile(0, 0);
    EXPECT_EQ(TipOfContainer(Main, index), "Click: Expand | Double-Click to Shrink\n" + Gestures);
    Main.Settings.DblClickToStartAll = true;
    EXPECT_EQ(TipOfContainer(Main, index), "Double Click: Start all\n" + Gestures);
}

TEST_F(TipTexts, ATileThatHoldsNothingToStartIsExpandedByADoubleClick) {
    Main.Settings.DblClickToStartAll = true;
    const int note = Note("");
    Shrink(note);
    EXPECT_NE(TipOfContainer(Main, note).find("Double Click: Expand\n"), std::string::npos);
    const int feed = Feed();
    Shrink(feed);
    EXPECT_NE(TipOfContainer(Main, feed).find("Double Click: Expand\n"), std::string::npos);
}

TEST_F(TipTexts, AFeedWithNoDataAsksForARefreshAndHasAGestureMore) {
    const int index = Feed();
    EXPECT_EQ(TipOfContainer(Main, index),
              "First few headlines:\n[Refresh RSS to see headlines]\n\nDouble Click: Fold/Unfold\n"
              "Ctrl Click: Toggle Selection\nShift Click: Refresh RSS (F5)\nRight Click: Show Menu\n"
              "Drag: Change Location (Ctrl+Z: Undo)");
}

TEST_F(TipTexts, AFeedTellsItsFilterOnlyWhileItIsOn) {
    const int index = Feed();
    Main.Feed(index).FilterString = "sport, weather";
    EXPECT_EQ(Info(index), "First few headlines:\n[Refresh RSS to see headlines]");
    Main.Feed(index).Filter = true;
    EXPECT_EQ(Info(index), "First few headlines:\n[Refresh RSS to see headlines]\nFilter: sport, weather");
}

TEST_F(TipTexts, ANoteBeginsWithItsWordsAndEndsWithItsDates) {
    const int index = Note("Buy ink.\r\nWrite to Anna.");
    EXPECT_EQ(Info(index), "Buy ink.\nWrite to Anna....\nCreated: 1/2/2026\nModified: 3/4/2026");
}

TEST_F(TipTexts, ANoteBehindItsItemsStandsApartFromThem) {
    const int index = Note("Buy ink.");
    NameLink(NewLink(InContainer(index), {0, 0}), "Home");
    EXPECT_EQ(Info(index), "Home\n\nBuy ink....\nCreated: 1/2/2026\nModified: 3/4/2026");
}

TEST_F(TipTexts, ALongNoteIsCutAfterAHundredLettersOfAnyAlphabet) {
    std::string note, expected;
    for (int letter = 0; letter < 150; ++letter) note += "ж";
    for (int letter = 0; letter < 100; ++letter) expected += "ж";
    const int index = Note(note);
    EXPECT_EQ(Info(index), expected + "...\nCreated: 1/2/2026\nModified: 3/4/2026");
}

TEST_F(TipTexts, ANoteOfShortLinesDoesNotMakeTheTipHigherThanTheScreen) {
    std::string note;
    for (int line = 0; line < 50; ++line) note += "a\r\n";
    EXPECT_EQ(Info(Note(note)), "a\na\na\na\na\na\na\na...\nCreated: 1/2/2026\nModified: 3/4/2026");
}

TEST_F(TipTexts, AHiddenNoteIsNotTold) {
    const int index = Note("secret");
    Main.ConView(index).PinPressed = false;
    EXPECT_EQ(Info(index), "");
}

TEST_F(TipTexts, AnEncryptedNoteIsNotShownWhetherItIsPinnedOrNot) {
    const int index = Note("0A3F");
    Main.Con(index).Encrypted = true;
    EXPECT_EQ(Info(index), "* Encrypted Note *\nCreated: 1/2/2026\nModified: 3/4/2026");
    Main.ConView(index).PinPressed = false;
    EXPECT_EQ(Info(index), "* Encrypted Note *");
}

TEST_F(TipTexts, AReminderTellsItsMoment) {
    const int index = Note("Call Tomas");
    Main.Con(index).SetReminder(true, 2026, 12, 24, 18, 5, "Dec 24, 2026 6:05 PM");
    EXPECT_EQ(Info(index), "Call Tomas...\nDate & Time: Dec 24, 2026 6:05 PM\nCreated: 1/2/2026\n"
                           "Modified: 3/4/2026");
}

TEST_F(TipTexts, ManyItemsEndInDots) {
    const int index = New({0, 0, 3000, 3000});
    for (int link = 0; link < 40; ++link) NameLink(NewLink(InContainer(index), {0, 0}), "a");
    EXPECT_EQ(Info(index), "a\na\na\na\na\na\na\na\na\na\na\na\n...");
}

TEST_F(TipTexts, AsManyItemsAsThereIsRoomForAreAllNamed) {
    const int index = New({0, 0, 3000, 3000});
    for (int link = 0; link < 12; ++link) NameLink(NewLink(InContainer(index), {0, 0}), "a");
    EXPECT_EQ(Info(index), "a\na\na\na\na\na\na\na\na\na\na\na");
}

TEST_F(TipTexts, ALongNameIsCutAndStaysInItsLine) {
    const int index = New({0, 0, 3000, 3000});
    NameLink(NewLink(InContainer(index), {0, 0}), std::string(200, 'x'));
    NameLink(NewLink(InContainer(index), {0, 0}), "two\nlines\tand a tab");
    EXPECT_EQ(Info(index), std::string(60, 'x') + "...\ntwo lines and a tab");
}

TEST_F(TipTexts, WhatATagViewHidesIsNotTold) {
    const int index = New({0, 0, 3000, 3000});
    NameLink(NewLink(InContainer(index), {0, 0}), "Home");
    const int hidden = NewLink(InContainer(index), {0, 0});
    NameLink(hidden, "Work");
    Main.LinkView(hidden).Visible = false;
    EXPECT_EQ(Info(index), "Home");
}

TEST_F(TipTexts, PicturesAreItemsToo) {
    const int index = New({0, 0, 3000, 3000});
    Main.Pictures.resize(1);
    Main.PictureViews.resize(1);
    Main.Pictures[0].Index = 0;
    Main.Pic(0).Path = "/home/user/Pictures/dusk.png";
    Main.PicView(0).In = InContainer(index);
    EXPECT_EQ(Info(index), "dusk.png");
}

TEST_F(TipTexts, NothingIsToldWhenTipsAreOffOrTheContainerIsGone) {
    const int index = NewTile(0, 0);
    EXPECT_NE(TipOfContainer(Main, index), "");
    Main.Settings.ShowTips = false;
    EXPECT_EQ(TipOfContainer(Main, index), "");
    Main.Settings.ShowTips = true;
    DeleteContainer(Main, index, false);
    EXPECT_EQ(TipOfContainer(Main, index), "");
    EXPECT_EQ(TipOfContainer(Main, -1), "");
}

TEST_F(TipTexts, OurOwnWordsAreTranslatedAndNamesAreNot) {
    computer.Catalogue.Messages["Right Click: Show Menu"] = "Rechtsklick: Menü";
    computer.Catalogue.Messages["Created: %1"] = "Angelegt: %1";
    computer.Catalogue.Messages["Home"] = "Zuhause";
    const int index = Note("");
    NameLink(NewLink(InContainer(index), {0, 0}), "Home");
    const auto tip = TipOfContainer(Main, index);
    EXPECT_EQ(tip.find("Home\n"), 0U) << tip;
    EXPECT_NE(tip.find("\nAngelegt: 1/2/2026\n"), std::string::npos) << tip;
    EXPECT_NE(tip.find("\nRechtsklick: Menü\n"), std::string::npos) << tip;
}

// What the tip of the title says.

const std::string SwitchesOff =
    "\n\nUndock on Click: Off\nUndock Immediately: Off\nGrab Focus: Off\nCenter Mouse: Off";

TEST_F(TipTexts, TheTitleTellsHowItIsMovedAndHowTheWorkspaceComesOut) {
    EXPECT_EQ(TipOfTitle(Main), "Click and hold to move the workspace" + SwitchesOff);
    Main.Settings.PreventWindowMovement = true;
    EXPECT_EQ(TipOfTitle(Main), "WORKSPACE POSITION IS LOCKED" + SwitchesOff);
}

TEST_F(TipTexts, TheTitleTellsEachSwitchInItsOwnLine) {
    auto& settings = Main.Settings;
    const std::string head = "Click and hold to move the workspace\n\n";
    settings.UndockOnClick = true;
    EXPECT_EQ(TipOfTitle(Main), head + "Undock on Click: On\nUndock Immediately: Off\nGrab Focus: Off\n"
                                       "Center Mouse: Off");
    settings.UndockImmediately = true;
    EXPECT_EQ(TipOfTitle(Main), head + "Undock on Click: On\nUndock Immediately: On\nGrab Focus: Off\n"
                                       "Center Mouse: Off");
    settings.UndockOnClick = false;
    settings.GrabFocus = true;
    EXPECT_EQ(TipOfTitle(Main), head + "Undock on Click: Off\nUndock Immediately: On\nGrab Focus: On\n"
                                       "Center Mouse: Off");
    settings.GrabFocus = false;
    settings.CenterMouse = true;
    EXPECT_EQ(TipOfTitle(Main), head + "Undock on Click: Off\nUndock Immediately: On\nGrab Focus: Off\n"
                                       "Center Mouse: On");
}

TEST_F(TipTexts, WithExactlyOneShortcutSelectedTheTitleTellsItsNameFirst) {
    const int home = NewLink(OnWorkspace(), {0, 0}), work = NewLink(OnWorkspace(), {0, 0});
    NameLink(home, "<b>Home</b>\n%1");
    NameLink(work, "");
    SetSelection(Main, home, true);
    EXPECT_EQ(TipOfTitle(Main), "Selected Shortcut: <b>Home</b> %1" + SwitchesOff) << "a name is plain text";
    Main.Settings.PreventWindowMovement = true;
    EXPECT_EQ(TipOfTitle(Main), "Selected Shortcut: <b>Home</b> %1" + SwitchesOff);
    SetSelection(Main, work, true);
    EXPECT_EQ(TipOfTitle(Main), "WORKSPACE POSITION IS LOCKED" + SwitchesOff);
    SetSelection(Main, home, false);
    EXPECT_EQ(TipOfTitle(Main), "Selected Shortcut: thing" + SwitchesOff) << "without a name, its target's";
    NameLink(work, std::string(200, 'x'));
    EXPECT_EQ(TipOfTitle(Main), "Selected Shortcut: " + std::string(60, 'x') + "..." + SwitchesOff);
}

TEST_F(TipTexts, TheTitleTellsNothingWhileMaximisedOrWithTipsOff) {
    Main.Dock.Maximized = true;
    EXPECT_EQ(TipOfTitle(Main), "");
    Main.Dock.Maximized = false;
    Main.Settings.ShowTips = false;
    EXPECT_EQ(TipOfTitle(Main), "");
}

TEST_F(TipTexts, TheWordsOfTheTitleAreTranslated) {
    computer.Catalogue.Messages["Grab Focus: %1"] = "Fokus holen: %1";
    computer.Catalogue.Messages["Off"] = "aus";
    EXPECT_NE(TipOfTitle(Main).find("\nFokus holen: aus\n"), std::string::npos) << TipOfTitle(Main);
}

// When it shows, and where.

struct Tips : testing::Test {
    fake::Desk desk;
    void SetUp() override {
        desk.Files().Put(desk.Settings("Quillmere.ini"),
                         "108\r\n[X]\r\n1500\r\n[Y]\r\n1500\r\n[W]\r\n12000\r\n[H]\r\n8250\r\n");
        Put("0", "Work", 600, 0);
        Put("1", "Tile", 6000, 1);
        desk.StartWorkspace();
    }
    void Put(const std::string& number, const std::string& name, int x, int shrink) {
        desk.Files().Put(desk.Settings("Containers/" + number + ".con"),
                         "108\r\n[Container]\r\n-1\r\n[Name]\r\n" + name + "\r\n[Shrink]\r\n" +
                             std::to_string(shrink) + "\r\n[X]\r\n" + std::to_string(x) +
                             "\r\n[Y]\r\n600\r\n[W]\r\n3000\r\n[H]\r\n3000\r\n");
    }
    const TipState& Tip() { return desk.Main->Looks.frmTip; }
    bool Shows() { return desk.Computer.Windows.IsVisible(TipWindow); }
    int Opacity() { return desk.Computer.Windows.Of(TipWindow).Opacity; }
    bool Runs(TimerName name) { return desk.Computer.Clock.IsRunning({name}); }
    void Rest(ElementKind kind, int index) {
        desk.Main->Settings.AutoExpand = false;
        desk.PointAt(kind, index);
        desk.Wait(restTime);
    }
    void ExpectNothingLeft() {
        EXPECT_FALSE(Shows());
        EXPECT_FALSE(Tip().Visible || Tip().Waiting);
        for (const auto name : {TimerName::TimerTip, TimerName::TimerFadeIn, TimerName::TimerFadeOut,
                                TimerName::TimerMouseMove})
            EXPECT_FALSE(Runs(name));
    }
};

TEST_F(Tips, AMouseThatRestsHalfASecondOnATitleIsToldAboutTheContainer) {
    desk.PointAt(ElementKind::ContainerLabel, 0);
    desk.Wait(restTime - 1);
    EXPECT_FALSE(Shows());
    desk.Wait(1);
    EXPECT_TRUE(Shows());
    EXPECT_EQ(Tip().Text, TipOfContainer(*desk.Main, 0));
    EXPECT_NE(desk.Computer.Windows.Foreground, TipWindow);
}

TEST_F(Tips, AMouseThatRestsOnATileIsToldToo) {
    Rest(ElementKind::ContainerIcon, 1);
    EXPECT_TRUE(Shows());
    EXPECT_EQ(Tip().Container, 1);
}

TEST_F(Tips, EveryMoveBeginsTheRestAnew) {
    desk.PointAt(ElementKind::ContainerLabel, 0);
    desk.Wait(400);
    desk.PointAt(ElementKind::ContainerLabel, 0);
    desk.Wait(499);
    EXPECT_FALSE(Shows());
    desk.Wait(1);
    EXPECT_TRUE(Shows());
}

TEST_F(Tips, AMouseThatHasGoneOnBeforeTheTimeIsUpIsToldNothing) {
    desk.PointAt(ElementKind::ContainerLabel, 0);
    desk.Wait(400);
    desk.PointAt(ElementKind::ContainerFrame, 0);
    desk.Wait(1000);
    ExpectNothingLeft();
}

TEST_F(Tips, WithTipsOffNothingEvenWaits) {
    desk.Main->Settings.ShowTips = false;
    desk.PointAt(ElementKind::ContainerLabel, 0);
    EXPECT_FALSE(Runs(TimerName::TimerTip));
}

TEST_F(Tips, ATipFadesInAndStaysWhileTheMouseMovesOnItsTitle) {
    Rest(ElementKind::ContainerLabel, 0);
    EXPECT_LT(Opacity(), 50);
    desk.Wait(50);
    EXPECT_GT(Opacity(), 100);
    desk.Wait(fadeTime);
    EXPECT_EQ(Opacity(), 255);
    EXPECT_FALSE(Runs(TimerName::TimerFadeIn));
    const auto place = Tip().Place;
    desk.PointAt(ElementKind::ContainerLabel, 0);
    desk.Wait(2000);
    EXPECT_TRUE(Shows());
    EXPECT_EQ(Tip().Place, place);
}

TEST_F(Tips, ATipGoesWhenTheCursorHasLeftItsTitle) {
    Rest(ElementKind::ContainerLabel, 0);
    desk.Wait(fadeTime);
    desk.Computer.Windows.Cursor = {28000, 15000}; // nobody tells
    desk.Wait(100);
    EXPECT_TRUE(Tip().Leaving);
    EXPECT_TRUE(Shows()) << "it fades";
    desk.Wait(fadeTime);
    ExpectNothingLeft();
}

TEST_F(Tips, ATipGoesWhenTheMouseLeavesItsContainer) {
    Rest(ElementKind::ContainerLabel, 0);
    MouseLeave(*desk.Main, {SurfaceKind::Container, 0});
    desk.Wait(fadeTime);
    ExpectNothingLeft();
}

TEST_F(Tips, ATipThatWaitsIsForgottenWhenTheMouseLeaves) {
    desk.PointAt(ElementKind::ContainerLabel, 0);
    MouseLeave(*desk.Main, {SurfaceKind::Container, 0});
    ExpectNothingLeft();
}

TEST_F(Tips, TheTipOfTheNextTitleTakesThePlaceOfTheFirst) {
    Rest(ElementKind::ContainerLabel, 0);
    desk.PointAt(ElementKind::ContainerIcon, 1);
    EXPECT_FALSE(Shows());
    desk.Wait(restTime);
    EXPECT_TRUE(Shows());
    EXPECT_EQ(Tip().Container, 1);
}

TEST_F(Tips, APersonWhoWantsLessMotionSeesItComeAndGoAtOnce) {
    desk.Computer.Session.LessMotion = true;
    Rest(ElementKind::ContainerLabel, 0);
    EXPECT_EQ(Opacity(), 255);
    EXPECT_FALSE(Runs(TimerName::TimerFadeIn));
    desk.Computer.Windows.Cursor = {28000, 15000};
    desk.Wait(100);
    ExpectNothingLeft();
}

TEST_F(Tips, APressHidesItAtOnce) {
    Rest(ElementKind::ContainerLabel, 0);
    MouseDown(*desk.Main, {}, {});
    ExpectNothingLeft();
}

TEST_F(Tips, TheWheelHidesItAtOnceAndScrollsWhatLiesBelow) {
    Rest(ElementKind::ContainerLabel, 0);
    MouseWheel(*desk.Main, {SurfaceKind::Container, 0}, {}, -1);
    ExpectNothingLeft();
}

TEST_F(Tips, AKeyHidesItAtOnce) {
    Rest(ElementKind::ContainerLabel, 0);
    desk.PressKey(KeyTab);
    ExpectNothingLeft();
}

TEST_F(Tips, AMenuOrAQuestionHidesItAndNoneComesWhileItIsOpen) {
    Rest(ElementKind::ContainerLabel, 0);
    desk.PointAt(ElementKind::ContainerLabel, 0);
    const DialogPause pause(*desk.Main);
    ExpectNothingLeft();
    desk.PointAt(ElementKind::ContainerLabel, 0);
    desk.Wait(1000);
    ExpectNothingLeft();
}

TEST_F(Tips, AContainerThatDiesTakesItsTipAlong) {
    Rest(ElementKind::ContainerLabel, 0);
    DeleteContainer(*desk.Main, 0, false);
    desk.Wait(100 + fadeTime);
    ExpectNothingLeft();
}

TEST_F(Tips, AContainerThatLiesOverTheTitleHidesItFromTheMouse) {
    desk.PointAt(ElementKind::ContainerLabel, 0);
    desk.Main->ConView(1).Container.Place = desk.Main->ConView(0).Container.Place;
    desk.Wait(restTime);
    ExpectNothingLeft();
}

TEST_F(Tips, TheEndOfTheProgramLeavesNoTip) {
    Rest(ElementKind::ContainerLabel, 0);
    UnloadMain(*desk.Main);
    ExpectNothingLeft();
}

TEST_F(Tips, AMouseThatRestsHalfASecondOnTheWorkspacesTitleIsToldAboutIt) {
    desk.PointAt(ElementKind::lblCaption);
    desk.Wait(restTime - 1);
    EXPECT_FALSE(Shows());
    desk.Wait(1);
    EXPECT_TRUE(Shows());
    EXPECT_EQ(Tip().Text, TipOfTitle(*desk.Main));
    EXPECT_EQ(Tip().Container, TitleTip);
}

TEST_F(Tips, TheButtonsInTheTitleHaveNoneOfIt) {
    for (const auto button : {ElementKind::PicMenu, ElementKind::PicUnLockToolbar, ElementKind::PicDock}) {
        Rest(button, -1);
        ExpectNothingLeft();
    }
}

TEST_F(Tips, OnTheGroundOfTheWorkspaceNothingWaits) {
    desk.PointAt(ElementKind::picBack);
    ExpectNothingLeft();
}

TEST_F(Tips, TheTipOfTheTitleStaysWhileTheMouseMovesThereAndGoesWhenItLeaves) {
    Rest(ElementKind::lblCaption, -1);
    desk.Wait(fadeTime);
    desk.PointAt(ElementKind::lblCaption);
    desk.Wait(2000);
    EXPECT_TRUE(Shows() && !Tip().Leaving);
    desk.PointAt(ElementKind::picBack);
    desk.Wait(100 + fadeTime);
    ExpectNothingLeft();
}

TEST_F(Tips, TheTipOfTheTitleGoesWhenTheSessionOnlyTellsThatTheMouseHasLeft) {
    Rest(ElementKind::lblCaption, -1);
    desk.Wait(fadeTime);
    Form_MouseLeave(*desk.Main, MainWindow); // the cursor stands where it was last seen
    desk.Wait(100 + fadeTime);
    ExpectNothingLeft();
}

TEST_F(Tips, APressAWheelAndAKeyHideTheTipOfTheTitle) {
    Rest(ElementKind::lblCaption, -1);
    MouseDown(*desk.Main, {}, {});
    ExpectNothingLeft();
    Rest(ElementKind::lblCaption, -1);
    MouseWheel(*desk.Main, {}, {}, 1);
    ExpectNothingLeft();
    Rest(ElementKind::lblCaption, -1);
    desk.PressKey(KeyTab);
    ExpectNothingLeft();
}

TEST_F(Tips, AContainerThatLiesOverTheTitleRowIsToldInsteadOfIt) {
    desk.PointAt(ElementKind::lblCaption);
    auto& box = desk.Main->ConView(0).Container.Place;
    box.Left = box.Top = 0;
    box.Width = desk.Main->View.picBack.Place.Width;
    desk.Wait(restTime);
    ExpectNothingLeft();
}

TEST_F(Tips, WhileMaximisedTheTitleHasNone) {
    desk.DoubleClickOn(ElementKind::lblCaption);
    ASSERT_TRUE(desk.Main->Dock.Maximized);
    Rest(ElementKind::lblCaption, -1);
    ExpectNothingLeft();
}

TEST_F(Tips, AWorkspaceThatIsHiddenTakesItsTipAlong) {
    desk.PointAt(ElementKind::lblCaption);
    mnuHideAlterDesk_Click(*desk.Main);
    desk.Wait(restTime);
    ExpectNothingLeft();
}

struct TipPlaces : Tips {
    // Where the tip stands when the cursor is there and the label is below it.
    Rect PlaceAt(Point cursor) {
        desk.Computer.Windows.Cursor = cursor;
        HideTip(*desk.Main);
        SetTip(*desk.Main, "line\nline\nline");
        return desk.Computer.Windows.Of(TipWindow).Place;
    }
};

TEST_F(TipPlaces, BelowTheCursorAndToItsRight) {
    const auto place = PlaceAt({3000, 3000});
    EXPECT_EQ(place.Left, 3000 + 180);
    EXPECT_EQ(place.Top, 3000 + 300);
    EXPECT_GT(place.Height, 3 * 9 * 26) << "three lines of nine points";
}

TEST_F(TipPlaces, InsideTheMonitorAndNeverUnderTheCursor) {
    for (const Point cursor : {Point{28790, 15740}, {28790, 100}, {10, 15740}, {10, 10}, {14400, 15600}}) {
        const auto place = PlaceAt(cursor);
        const Rect area = desk.Computer.Windows.Screens[0].WorkArea;
        EXPECT_GE(place.Left, area.Left);
        EXPECT_GE(place.Top, area.Top);
        EXPECT_LE(place.Right(), area.Right());
        EXPECT_LE(place.Bottom(), area.Bottom());
        EXPECT_FALSE(place.Contains(cursor.X, cursor.Y)) << fake::Words(place);
    }
}

TEST_F(TipPlaces, OnTheMonitorOfTheCursor) {
    desk.Computer.Windows.Screens = {{{0, 0, 15000, 12000}, {0, 0, 15000, 12000}},
                                     {{15000, 0, 15000, 12000}, {15000, 0, 15000, 12000}}};
    EXPECT_LE(PlaceAt({14990, 3000}).Right(), 15000);
    EXPECT_GE(PlaceAt({15010, 3000}).Left, 15000);
}

TEST_F(TipPlaces, ATextThatIsHigherThanTheMonitorIsCutThere) {
    std::string text;
    for (int line = 0; line < 500; ++line) text += "line\n";
    SetTip(*desk.Main, text);
    const auto place = desk.Computer.Windows.Of(TipWindow).Place;
    EXPECT_LE(place.Height, desk.Computer.Windows.Screens[0].WorkArea.Height);
    EXPECT_GE(place.Top, 0);
}

// What it looks like.

struct TipLooks : Tips {
    std::string Painted() {
        fake::FakeCanvas canvas;
        PaintTip(*desk.Main, {Tip().Place.Width, Tip().Place.Height}, canvas);
        return canvas.Painted();
    }
};

TEST_F(TipLooks, TheNameOfTheContainerStandsAboveItsTip) {
    Rest(ElementKind::ContainerIcon, 1);
    const auto painted = Painted();
    EXPECT_LT(painted.find("text \"Tile\""), painted.find("text \"Click: Expand")) << painted;
}

TEST_F(TipLooks, ItsLettersCanBeReadOnEveryColourOfTheWorkspace) {
    Rest(ElementKind::ContainerLabel, 0);
    for (const Color back : {0, 0x1A1306, 0x808080, 0xFFFFFF, 0x20FF20}) {
        for (const Color fore : {0, 0x777777, 0xFFFFFF}) {
            desk.Main->View.BackColor = back;
            desk.Main->View.ForeColor = fore;
            const auto painted = Painted();
            for (const Color ink : {0, 0x777777, 0xFFFFFF}) {
                const bool used =
                    painted.find(" " + fake::ColorWords(ink) + " left 9pt") != std::string::npos;
                EXPECT_TRUE(!used || ContrastRatio(ink, back) >= ReadableContrast) << painted;
            }
        }
    }
}

} // namespace
} // namespace quill::test
