#include "keyboard/jump_to.h"

#include "containers/fold.h"
#include "dock/sliding.h"
#include "keyboard/jump_to_measures.h"
#include "keyboard/launcher_fixture.h"

#include <algorithm>

namespace quill {
namespace {

struct JumpTo : test::LauncherFixture {
    void RightArrow() { Press(KeyRight); }
};

// ---- opening and closing

TEST_F(JumpTo, TheMenuOpensTheEmptyBoxInTheMiddle) {
    Open();
    ASSERT_TRUE(IsOpen());
    EXPECT_TRUE(Keys().LauncherActive);
    EXPECT_EQ(desk.Typed(), "");
    EXPECT_EQ(Preview(), "Keyboard Launcher | Open shortcuts, folders and URLs");
    EXPECT_EQ(Icon(), "quillmere");
    EXPECT_EQ(Field().FocusWish, 1U);
    EXPECT_EQ(Box().Place, PlaceOfJumpTo(Main()));
    EXPECT_FLOAT_EQ(Box().Place.Left + Box().Place.Width / 2, Main().View.picBack.Place.Width / 2);
}

TEST_F(JumpTo, EveryOpeningBeginsEmpty) {
    Type("text");
    lblClosePicJumpTo_Click(Main());
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(Keys().LauncherActive);
    ShowPicJumpTo(Main(), "", true, false);
    EXPECT_EQ(desk.Typed(), "");
    EXPECT_EQ(Keys().PreviewedShortcut, -1);
}

TEST_F(JumpTo, TheMenuEmptiesABoxThatIsOpen) {
    Link("Notepad");
    Type("note");
    mnuKeyboardLauncher_Click(Main());
    EXPECT_EQ(desk.Typed(), "");
    EXPECT_EQ(Selected(), "");
}

TEST_F(JumpTo, AnOpenBoxIsRefilledAndAnEmptyTextLeavesWhatStands) {
    Type("one");
    ShowPicJumpTo(Main(), "two", true, false);
    EXPECT_EQ(desk.Typed(), "two");
    EXPECT_EQ(Field().SelStart, 3) << "the caret is behind the text";
    ShowPicJumpTo(Main(), "", true, false);
    EXPECT_EQ(desk.Typed(), "two");
    EXPECT_EQ(Field().FocusWish, 3U);
}

TEST_F(JumpTo, WhatIsOpenForTheMomentGoesBackFirst) {
    const int tile = Tile("Mail");
    ExpandShrinkContainer(Main(), tile, false);
    Main().Group.JustExpanded = false;
    ASSERT_EQ(Main().Group.ExpandedContainer, tile);
    Open();
    EXPECT_EQ(Main().Group.ExpandedContainer, -1);
}

TEST_F(JumpTo, WhatWasUnfoldedForTheMomentFoldsFirst) {
    const int box = Tile("Box");
    ExpandShrinkContainer(Main(), box, false);
    Main().Group.ExpandedContainer = -1;
    FoldUnfoldContainer(Main(), box, false);
    ContainerLabel_DblClick(Main(), box);
    ASSERT_EQ(Main().Group.AutoFoldContainerIndex, box);
    Open();
    EXPECT_EQ(Main().ConView(box).FoldMark, "+");
}

TEST_F(JumpTo, TheTipsShowWhereTheyAreWantedAndNeverOverTheHistory) {
    Open();
    EXPECT_TRUE(Keys().TipShown);
    ClosePicJumpTo(Main());
    EXPECT_FALSE(Keys().TipShown);
    Main().Settings.KBLauncherTips = false;
    Open();
    EXPECT_FALSE(Keys().TipShown);
    ClosePicJumpTo(Main());
    Main().Settings.KBLauncherTips = true;
    lblHistory_Click(Main());
    EXPECT_FALSE(Keys().TipShown);
}

TEST_F(JumpTo, TheTipsNameThisSystemsSeparator) {
    const auto text = KeyboardLauncherTips(Main());
    EXPECT_TRUE(text.starts_with("Keyboard Launcher Tips:\nType any part of a shortcut and [Enter].\n"));
    EXPECT_NE(text.find(" [/] Navigate the directory tree."), std::string::npos);
    EXPECT_TRUE(text.ends_with("\nDisable from the Settings dialog"));
    EXPECT_EQ(std::ranges::count(text, '\n'), 10);
}

TEST_F(JumpTo, DockingClosesIt) {
    Type("note");
    DockMe(Main(), edge::Left, false);
    EXPECT_FALSE(IsOpen());
}

TEST_F(JumpTo, ItStaysInTheMiddleWhenTheWindowBecomesAnotherSize) {
    desk.PressKey('J', true);
    desk.PressKey(KeyF1 + 10);
    const auto& back = desk.Main->View.picBack.Place;
    const auto& box = desk.Main->Keys.PicJumpToLink.Place;
    EXPECT_FLOAT_EQ(box.Left + box.Width / 2, back.Width / 2);
}

TEST_F(JumpTo, NothingOpensWhileLoadingOrExiting) {
    Main().IsExiting = true;
    ShowPicJumpTo(Main(), "x", true, false);
    Main().IsExiting = false;
    Main().IsLoading = true;
    ShowPicJumpTo(Main(), "x", true, false);
    Main().IsLoading = false;
    EXPECT_FALSE(IsOpen());
}

TEST_F(JumpTo, ATextThatOpensATileLeavesNoBoxBehind) {
    Tile("m");
    ShowPicJumpTo(Main(), "m", true, false);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Field().FocusWish, 0U);
}

// ---- keys in the field

TEST_F(JumpTo, TabCompletesTheNameAndWaitsForParameters) {
    Link("Notepad"), Link("Notepad Plus");
    Type("notep");
    Press(KeyTab);
    EXPECT_EQ(desk.Typed(), "Notepad ");
    EXPECT_EQ(Field().SelStart, 8);
    EXPECT_EQ(Box().lblJumpToLink, "Notepad") << "and not the one whose name goes on like this";
    desk.Type("p a");
    Enter();
    EXPECT_EQ(Started(), "start /apps/Notepad p a");
}

TEST_F(JumpTo, TabKeepsParametersThatStandAlready) {
    Link("Notepad");
    Type("notepad a.txt");
    Press(KeyTab);
    EXPECT_EQ(desk.Typed(), "notepad a.txt");
}

TEST_F(JumpTo, TabCompletesNothingWhereNoShortcutIsShown) {
    for (const char* text : {"", "nothing", "/usr", "=2", "example.com"}) {
        Type(text);
        Press(KeyTab);
        EXPECT_EQ(desk.Typed(), text);
    }
}

TEST_F(JumpTo, TabOnANameOfOneLetterIsNoPrefixCommand) {
    Link("N");
    Type("n");
    Press(KeyTab);
    Enter();
    EXPECT_EQ(Started(), "start /apps/N");
    EXPECT_TRUE(desk.Containers().empty());
}

TEST_F(JumpTo, UnderSearchOnSpaceParametersAreASearch) {
    Link("Notepad");
    Main().Settings.SearchOnSpace = true;
    Type("notep");
    Press(KeyTab);
    desk.Type("x");
    EXPECT_EQ(Box().lblJumpToTip, "Web Search: [search query]");
}

TEST_F(JumpTo, TheRightArrowCompletesAtTheEndOnly) {
    Link("Notepad");
    Type("note");
    Press(KeyHome);
    RightArrow();
    EXPECT_EQ(desk.Typed(), "note");
    Press(KeyEnd);
    RightArrow();
    EXPECT_EQ(desk.Typed(), "Notepad");
    EXPECT_EQ(Field().SelStart, 7);
}

TEST_F(JumpTo, TheRightArrowLeavesAnExpressionAlone) {
    Link("=2 sum");
    Type("=2");
    RightArrow();
    EXPECT_EQ(desk.Typed(), "=2");
}

TEST_F(JumpTo, EscapeFirstClearsThenCloses) {
    Link("Notepad");
    Type("note");
    Press(KeyEscape);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(desk.Typed(), "");
    EXPECT_EQ(Selected(), "");
    Press(KeyEscape);
    EXPECT_FALSE(IsOpen());
}

TEST_F(JumpTo, CtrlASelectsTheWholeText) {
    Type("größer");
    desk.PressKey('A', true);
    EXPECT_EQ(Field().SelStart, 0);
    EXPECT_EQ(Field().SelLength, 6) << "letters, not bytes";
    desk.Type("x");
    EXPECT_EQ(desk.Typed(), "x");
}

TEST_F(JumpTo, CtrlAndADigitIsSpeedLaunch) {
    Main().Link(Link("Notepad")).SpeedLaunch = 3;
    Type("nothing");
    desk.PressKey('3', true);
    EXPECT_EQ(Started(), "start /apps/Notepad");
    desk.Computer.Shell.Launches.clear();
    desk.PressKey('4', true);
    EXPECT_EQ(Started(), "") << "the slot is empty";
}

TEST_F(JumpTo, KeysOfTheKeyTableStillReachIt) {
    Type("x");
    desk.PressKey('J', true);
    EXPECT_EQ(desk.Typed(), "") << "Ctrl+J empties the box";
}

TEST_F(JumpTo, GoIsEnter) {
    Link("Notepad");
    Type("note");
    lblGo_Click(Main());
    EXPECT_EQ(Started(), "start /apps/Notepad");
    EXPECT_FALSE(IsOpen());
}

// ---- the list

TEST_F(JumpTo, DownListsNamesThatBeginLikeTheTextThenThoseThatHoldIt) {
    Link("Pan"), Link("Apple Pie"), Link("Pie"), Link("Öl"), Link("Recipe"), Link("");
    Type("pi");
    Press(KeyDown);
    EXPECT_EQ(Lines(), "Pan, Pie, Apple Pie") << "the first letter counts";
    EXPECT_TRUE(Field().DroppedDown);
    EXPECT_EQ(Field().ListIndex, -1);
    EXPECT_TRUE(desk.Computer.Windows.WasBusy);
    EXPECT_FALSE(desk.Computer.Windows.Busy);
    Type("ö");
    Press(KeyDown);
    EXPECT_EQ(Lines(), "Öl");
}

TEST_F(JumpTo, DownOnAnEmptyTextListsEverything) {
    Link("B"), Link(""), Link("A");
    Open();
    Press(KeyDown);
    EXPECT_EQ(Lines(), "B, A") << "what has no name is no line";
}

TEST_F(JumpTo, DownWithNothingToListOpensNothing) {
    Type("zzz");
    Press(KeyDown);
    EXPECT_FALSE(Field().DroppedDown);
    Press(KeyUp);
    EXPECT_EQ(desk.Typed(), "zzz");
}

TEST_F(JumpTo, TheTextAndThePreviewFollowTheArrows) {
    Link("Pan"), Link("Pie"), Link("Pot");
    Type("p");
    Press(KeyDown, 3);
    EXPECT_EQ(desk.Typed(), "Pie");
    EXPECT_EQ(Selected(), "Pie");
    Press(KeyUp);
    EXPECT_EQ(desk.Typed(), "Pan");
    Press(KeyUp, 3);
    EXPECT_EQ(desk.Typed(), "Pan");
    Press(KeyPageDown);
    EXPECT_EQ(desk.Typed(), "Pot");
    Press(KeyPageUp);
    EXPECT_EQ(desk.Typed(), "Pan");
    Enter();
    EXPECT_EQ(Started(), "start /apps/Pan");
}

TEST_F(JumpTo, OfTwoWithOneNameTheHighlightedOneStarts) {
    Main().Link(Link("Notes")).Path = "/first";
    Main().Link(Link("Notes")).Path = "/second";
    Type("notes");
    Press(KeyDown, 3);
    Enter();
    EXPECT_EQ(Started(), "start /second");
    Run("notes");
    EXPECT_EQ(desk.Computer.Shell.LastLaunch(), "start /first");
}

TEST_F(JumpTo, APickIsForgottenAsSoonAsTheTextIsAnother) {
    Main().Link(Link("Notes")).Path = "/first";
    Main().Link(Link("Notes")).Path = "/second";
    Type("notes");
    Press(KeyDown, 3);
    Press(KeyEscape);
    desk.Type("notes");
    Enter();
    EXPECT_EQ(Started(), "start /first");
}

TEST_F(JumpTo, AClickedLineIsTakenAndTheListCloses) {
    Main().Link(Link("Notes")).Path = "/first";
    Main().Link(Link("Notes")).Path = "/second";
    Type("n");
    Press(KeyDown);
    cboSearch_Choose(Main(), 1);
    EXPECT_EQ(desk.Typed(), "Notes");
    EXPECT_FALSE(Field().DroppedDown);
    EXPECT_EQ(Started(), "") << "a click chooses, Enter starts";
    Enter();
    EXPECT_EQ(Started(), "start /second");
}

TEST_F(JumpTo, APickedNameStartsWhateverElseItLooksLike) {
    for (const char* name : {"t rex", "example.com/x", "=1", "a b"}) Link(name);
    Main().Settings.SearchOnSpace = true;
    for (int row = 0; row < 4; ++row) {
        Open();
        Press(KeyDown, row + 2);
        Enter();
    }
    EXPECT_EQ(Started(), "start /apps/t rex; start /apps/example.com/x; start /apps/=1; start /apps/a b");
}

TEST_F(JumpTo, ThePointerOverALineChangesNothingThatEnterDoes) {
    Link("Pan"), Link("Pie");
    Type("pan");
    Press(KeyDown);
    cboSearch_Highlight(Main(), 1);
    EXPECT_EQ(Field().ListIndex, 1);
    EXPECT_EQ(desk.Typed(), "pan");
    Enter();
    EXPECT_EQ(Started(), "start /apps/Pan");
}

TEST_F(JumpTo, ALineThatIsNotThereIsNotTaken) {
    Link("Pan");
    Type("p");
    Press(KeyDown);
    for (const int row : {-1, 1, 99}) cboSearch_Choose(Main(), row);
    cboSearch_Highlight(Main(), 99);
    EXPECT_EQ(Field().ListIndex, -1);
    EXPECT_EQ(desk.Typed(), "p");
    ClosePicJumpTo(Main());
    cboSearch_Choose(Main(), 0);
    cboSearch_Change(Main(), "x", 1);
    EXPECT_FALSE(IsOpen());
}

TEST_F(JumpTo, AShortcutThatDiesWhileTheListIsOpenIsNotStarted) {
    const int pan = Link("Pan");
    Link("Panther");
    Type("pa");
    Press(KeyDown);
    DeleteShortcut(Main(), pan);
    Press(KeyDown);
    EXPECT_EQ(desk.Typed(), "Pan");
    EXPECT_EQ(Selected(), "Panther") << "what the text means by now";
}

TEST_F(JumpTo, TypingOnClosesTheListOfTheFormerText) {
    Link("Pan");
    Type("p");
    Press(KeyDown);
    desk.Type("a");
    EXPECT_FALSE(Field().DroppedDown);
    EXPECT_EQ(Lines(), "");
}

// ---- history

struct InHistory : JumpTo {
    void SetUp() override {
        JumpTo::SetUp();
        AddToHistory(Main(), "/usr/lib");
        AddToHistory(Main(), "example.com");
    }
};

TEST_F(InHistory, TheLinkShowsTheNewestFirst) {
    Type("x");
    lblHistory_Click(Main());
    EXPECT_EQ(Box().lblJumpToLink, "History");
    EXPECT_TRUE(Keys().HistoryMode);
    EXPECT_TRUE(Field().DroppedDown);
    EXPECT_EQ(Lines(), "example.com, /usr/lib");
    EXPECT_EQ(desk.Typed(), "");
}

TEST_F(InHistory, ALineIsUsedByEnter) {
    lblHistory_Click(Main());
    Press(KeyDown, 2);
    EXPECT_EQ(desk.Typed(), "/usr/lib");
    Enter();
    EXPECT_EQ(Started(), "open /usr/lib");
    EXPECT_FALSE(Keys().HistoryMode);
    EXPECT_EQ(History(), "/usr/lib, example.com");
}

TEST_F(InHistory, AClickedLineEndsTheMode) {
    lblHistory_Click(Main());
    cboSearch_Choose(Main(), 0);
    EXPECT_EQ(desk.Typed(), "example.com");
    EXPECT_FALSE(Keys().HistoryMode);
}

TEST_F(InHistory, AnExclamationMarkAloneOpensIt) {
    Type("!");
    EXPECT_TRUE(Keys().HistoryMode);
    EXPECT_EQ(desk.Typed(), "") << "the mark is a key and no text";
    desk.Type("!");
    EXPECT_EQ(desk.Typed(), "!") << "in the mode it is one";
    Type("a!");
    EXPECT_FALSE(Keys().HistoryMode);
}

TEST_F(InHistory, TypingWithTheListOpenNeverClosesTheBox) {
    lblHistory_Click(Main());
    Press(KeyDown);
    desk.PressKey('A', true);
    desk.Type("zzz");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(desk.Typed(), "zzz");
    EXPECT_EQ(Field().ListIndex, -1) << "no line is what stands there now";
}

TEST_F(InHistory, AnEmptyHistoryOpensNoListAndClosesNothing) {
    static_cast<void>(desk.Files().Remove(desk.Settings("KB_History.txt")));
    lblHistory_Click(Main());
    EXPECT_EQ(Box().lblJumpToLink, "History");
    EXPECT_FALSE(Field().DroppedDown);
    desk.Type("zzz");
    EXPECT_TRUE(IsOpen());
}

TEST_F(InHistory, TurnedOffItAsksAndYesTurnsItOnForGood) {
    Main().Settings.KeyboardHistory = false;
    Open();
    EXPECT_FALSE(Box().lblHistoryVisible);
    desk.Person().Answer(AnswerNo);
    desk.Type("!");
    EXPECT_EQ(Boxes(), "Keyboard Launcher History is turned off. Turn on? (52, Quillmere)");
    EXPECT_FALSE(Main().Settings.KeyboardHistory);
    EXPECT_EQ(desk.Typed(), "!");
    desk.Person().Answer(AnswerYes);
    desk.PressKey('H', false, false, true);
    EXPECT_TRUE(Keys().HistoryMode);
    EXPECT_TRUE(Box().lblHistoryVisible);
    desk.RestartAfterKill();
    EXPECT_TRUE(Main().Settings.KeyboardHistory);
}

TEST_F(InHistory, AltHOpensItOnAClosedBox) {
    desk.PressKey('H', false, false, true);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Box().lblJumpToLink, "History");
}

TEST_F(InHistory, TheEndOfTheProgramInTheQuestionTurnsNothingOn) {
    Main().Settings.KeyboardHistory = false;
    desk.Person().Answer(AnswerYes);
    desk.Person().OnBox = [this](const fake::Box&) { Main().IsExiting = true; };
    lblHistory_Click(Main());
    EXPECT_FALSE(Main().Settings.KeyboardHistory);
    EXPECT_FALSE(IsOpen());
    Main().IsExiting = false;
}

} // namespace
} // namespace quill
