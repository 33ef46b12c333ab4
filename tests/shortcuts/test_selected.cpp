#include "shortcuts/selected.h"

#include "appearance/colors.h"
#include "containers/selection.h"
#include "containers/undo.h"
#include "containers/workspace_fixture.h"
#include "core/keyboard_focus.h"
#include "core/menus.h"
#include "dock/workspace_lock.h"
#include "shortcuts/launch.h"

namespace quill {
namespace {

struct SelectedShortcuts : test::WorkspaceFixture {
    SelectedShortcuts() {
        Main.Settings.DblClick = true;
        Main.View.Visible = true;
        for (const char* name : {"one", "two", "three"})
            links.push_back(Named(OnWorkspace(), name, 1000.0F * static_cast<float>(links.size() + 1)));
    }
    void TearDown() override {
        EXPECT_EQ(Person().Unexpected, 0)
            << (Person().UnexpectedTexts.empty() ? "" : Person().UnexpectedTexts.front());
        EXPECT_TRUE(Person().AllAnswered());
    }
    int Named(Parent in, const std::string& name, float top) {
        const int link = NewLink(in, {2000, top}, "/usr/bin/" + name);
        Main.Link(link).FullCaption = Main.LinkView(link).lblShortcut.Caption = name;
        SetNewLinkHeight(Main, link);
        return link;
    }
    fake::FakeQuestions& Person() { return computer.Questions; }
    void Select(const std::vector<int>& some) {
        for (const int link : some) SetSelection(Main, link, true);
    }
    std::string Started() {
        std::string text;
        for (const auto& request : computer.Shell.Launches) text += fake::Words(request) + "\n";
        return text;
    }
    std::string Left() {
        std::string text;
        for (const auto& row : Live(Main.Shortcuts)) text += Main.Link(row.Index).FullCaption + " ";
        return text;
    }
    std::string Saved() {
        auto file = computer.Files.Read(std::string(fake::SettingsFolder) + "/Quillmere.REC", 1 << 20);
        return file ? file.Value() : "(none)";
    }
    void Key(int code, bool ctrl = false, bool shift = false, bool alt = false) {
        Form_KeyDown(Main, {.Code = code, .Shift = shift, .Ctrl = ctrl, .Alt = alt});
    }
    void Press(int link, MouseButton button) {
        const auto info = Find(OnBack, ElementKind::lblShortcut, link);
        const Point at{info.Place.Left + 15, info.Place.Top + 15};
        const MouseEvent event{.At = at, .Screen = at, .Button = button};
        MouseDown(Main, OnBack, event);
        MouseUp(Main, OnBack, event);
    }
    void Choose(int link, const std::string& line) {
        Main.Links.CurrentShortcut = link;
        Person().ChooseMenu(line);
        PopupMenu(Main, MenuName::Shortcut, {0, 0});
    }
    std::vector<int> links;
};

// ---- starting

TEST_F(SelectedShortcuts, TheyStartInTheOrderInWhichTheyWereSelected) {
    Select({links[2], links[0]});
    StartSelected(Main, false, false);
    EXPECT_EQ(Started(), "start /usr/bin/three\nstart /usr/bin/one\n");
    EXPECT_EQ(Main.Links.CurrentShortcut, links[0]);
}

TEST_F(SelectedShortcuts, WithNoneNothingStarts) {
    Main.Links.CurrentShortcut = links[0];
    StartSelected(Main, false, false);
    EXPECT_EQ(Started(), "");
}

TEST_F(SelectedShortcuts, OneThatStandsForATagStartsItselfAndNotItsGroup) {
    for (const int link : links) Main.Link(link).Tags = "work";
    Main.Link(links[0]).TagStart = true;
    Select({links[0]});
    StartSelected(Main, false, false);
    EXPECT_EQ(Started(), "start /usr/bin/one\n");
}

TEST_F(SelectedShortcuts, AsAdministratorEachAsksForElevation) {
    Select({links[0], links[1]});
    StartSelected(Main, true, false);
    EXPECT_EQ(Started(), "runas /usr/bin/one\nrunas /usr/bin/two\n");
}

TEST_F(SelectedShortcuts, TheFirstPutsTheWorkspaceAwayAndTheOthersStartAllTheSame) {
    Main.Settings.Animate = false;
    Select(links);
    StartSelected(Main, false, false);
    EXPECT_NE(Main.Dock.DockPosition, 0);
    EXPECT_EQ(computer.Shell.Launches.size(), 3U);
}

TEST_F(SelectedShortcuts, InTheBackgroundTheWorkspaceStaysOut) {
    Select(links);
    StartSelected(Main, false, true);
    EXPECT_EQ(Main.Dock.DockPosition, 0);
    EXPECT_EQ(computer.Shell.Launches.size(), 3U);
}

TEST_F(SelectedShortcuts, EachThatWantsToBeConfirmedIsAskedAboutAndANoSkipsItAlone) {
    Main.Link(links[0]).Confirm = Main.Link(links[2]).Confirm = true;
    Person().AnswerTo("Start one?", AnswerNo);
    Person().AnswerTo("Start three?", AnswerYes);
    Select(links);
    StartSelected(Main, false, true);
    EXPECT_EQ(Started(), "start /usr/bin/two\nstart /usr/bin/three\n");
}

TEST_F(SelectedShortcuts, OneThatDiesWhileAnotherAsksIsNotStartedAndNeitherIsWhatIsSelectedMeanwhile) {
    Main.Link(links[0]).Confirm = true;
    Person().Answer(AnswerYes);
    Person().OnBox = [&](const auto&) {
        DeleteShortcut(Main, links[1]);
        SetSelection(Main, links[2], true);
    };
    Select({links[0], links[1]});
    StartSelected(Main, false, true);
    EXPECT_EQ(Started(), "start /usr/bin/one\n");
}

TEST_F(SelectedShortcuts, TheEndOfTheProgramEndsTheWalk) {
    computer.Shell.OnLaunch = [&](const auto&) { Main.IsExiting = true; };
    Select(links);
    StartSelected(Main, false, true);
    EXPECT_EQ(computer.Shell.Launches.size(), 1U);
}

TEST_F(SelectedShortcuts, TheMiddleButtonAddsTheShortcutAndStartsAllInTheBackground) {
    Select({links[2]});
    Press(links[0], MouseButton::Middle);
    EXPECT_EQ(Started(), "start /usr/bin/three\nstart /usr/bin/one\n");
    EXPECT_EQ(Main.Links.SelectedShortcuts, (std::vector<int>{links[2], links[0]}));
    EXPECT_EQ(Main.Dock.DockPosition, 0) << "the workspace stays";
}

TEST_F(SelectedShortcuts, TheMiddleButtonOnASelectedOneStartsEachOnce) {
    Select({links[0], links[1]});
    Press(links[1], MouseButton::Middle);
    EXPECT_EQ(Started(), "start /usr/bin/one\nstart /usr/bin/two\n");
}

TEST_F(SelectedShortcuts, AMiddleButtonReleasedElsewhereStartsNothing) {
    const auto place = Find(OnBack, ElementKind::lblShortcut, links[0]).Place;
    MouseEvent event{.At = {place.Left + 15, place.Top + 15}, .Button = MouseButton::Middle};
    MouseDown(Main, OnBack, event);
    event.At = {9000, 8000};
    MouseUp(Main, OnBack, event);
    EXPECT_EQ(Started(), "");
}

struct StartRow {
    const char* Line;
    const char* Verb;
    bool StaysOut;
};

const StartRow starts[] = {
    {"Sta&rt Selected", "start", false},
    {"Start in &Background", "start", true},
    {"Run as &administrator", "runas", false},
};

TEST_F(SelectedShortcuts, TheMenusLinesStartTheSelectionThatTheirShortcutIsPartOf) {
    Main.Settings.Animate = false;
    for (const auto& row : starts) {
        Select({links[0], links[1]});
        computer.Shell.Launches.clear();
        Main.Dock.DockPosition = 0;
        Main.View.Window = {0, 0, 12035, 9030};
        Main.View.Visible = true;
        Choose(links[1], row.Line);
        const std::string verb = row.Verb;
        EXPECT_EQ(Started(), verb + " /usr/bin/one\n" + verb + " /usr/bin/two\n") << row.Line;
        EXPECT_EQ(Main.Dock.DockPosition == 0, row.StaysOut) << row.Line;
    }
}

TEST_F(SelectedShortcuts, TheMenuOfAnotherShortcutStartsThatOneInTheirPlace) {
    Select({links[0], links[1]});
    Choose(links[2], "Start in &Background");
    EXPECT_EQ(Started(), "start /usr/bin/three\n");
    EXPECT_EQ(Main.Links.SelectedShortcuts, std::vector<int>{links[2]});
}

TEST_F(SelectedShortcuts, AKeyStartsThemToo) {
    Select({links[0], links[1]});
    Key('R', false, false, true);
    EXPECT_EQ(Started(), "start /usr/bin/one\nstart /usr/bin/two\n");
}

// ---- bold

TEST_F(SelectedShortcuts, AllBecomeWhatTheFirstSelectedOneIsNot) {
    Main.Link(links[0]).FontBold = true;
    Select({links[1], links[0]});
    ToggleBoldFont(Main);
    EXPECT_TRUE(Main.Link(links[0]).FontBold && Main.Link(links[1]).FontBold);
    EXPECT_FALSE(Main.Link(links[2]).FontBold) << "it is not selected";
    EXPECT_TRUE(Main.LinkView(links[1]).lblShortcut.FontBold) << "and it is seen";
    ToggleBoldFont(Main);
    EXPECT_FALSE(Main.Link(links[0]).FontBold || Main.Link(links[1]).FontBold);
    EXPECT_FALSE(Main.LinkView(links[1]).lblShortcut.FontBold);
}

TEST_F(SelectedShortcuts, ABoldLabelIsMeasuredAgain) {
    auto& view = Main.LinkView(links[2]);
    const Rect label = view.lblShortcut.Place, icon = view.picShortcut;
    view.lblShortcut.Place.Width = view.picShortcut.Left = 1; // as thinner letters might have left it
    Select({links[2]});
    ToggleBoldFont(Main);
    EXPECT_TRUE(view.LabelMeasured);
    EXPECT_EQ(view.lblShortcut.Place.Width, label.Width);
    EXPECT_EQ(view.picShortcut, icon) << "and the icon stands beside it";
}

TEST_F(SelectedShortcuts, BoldIsSaved) {
    Select({links[0]});
    ToggleBoldFont(Main);
    EXPECT_NE(Saved().find("[Bold]"), std::string::npos) << Saved();
}

TEST_F(SelectedShortcuts, CtrlBIsBold) {
    Select({links[0]});
    Key('B', true);
    EXPECT_TRUE(Main.Link(links[0]).FontBold);
}

TEST_F(SelectedShortcuts, BoldAndColourAreNoStepsOfUndo) {
    PushMove(Main, {PlaceNow(Main, MovedKind::Shortcut, links[0])});
    Select(links);
    ToggleBoldFont(Main);
    SetSelectedColor(Main, 0x0000FF);
    EXPECT_EQ(Main.Group.UndoStack.size(), 1U);
}

// ---- colour

TEST_F(SelectedShortcuts, TheChosenColourIsThatOfEverySelectedOneAndIsSeenOnceItIsNotSelected) {
    computer.Dialogs.Colors.push_back(0x20FF40);
    Main.Link(links[1]).Color = 0x111111;
    Select({links[1], links[0]});
    mnuChooseColor_Click(Main);
    EXPECT_EQ(computer.Dialogs.ColorsAsked, std::vector<Color>{0x111111}) << "it begins with the first one's";
    UnselectLinks(Main);
    for (const int at : {0, 1}) {
        EXPECT_EQ(Main.Link(links[static_cast<std::size_t>(at)]).Color, 0x20FF40);
        EXPECT_EQ(Main.LinkView(links[static_cast<std::size_t>(at)]).lblShortcut.ForeColor, 0x20FF40);
    }
    EXPECT_EQ(Main.Link(links[2]).Color, -1);
}

TEST_F(SelectedShortcuts, WhileSelectedThePlateHasTheNewColourAndCanBeRead) {
    Select({links[0]});
    for (int grey = 0; grey < 256; grey += 15) {
        SetSelectedColor(Main, Rgb(grey, grey, grey));
        const auto& label = Main.LinkView(links[0]).lblShortcut;
        EXPECT_EQ(label.BackColor, Rgb(grey, grey, grey));
        EXPECT_EQ(label.BackStyle, 1);
        EXPECT_GE(ContrastRatio(label.ForeColor, label.BackColor), 4.5) << grey;
    }
}

TEST_F(SelectedShortcuts, ACancelledChoiceChangesAndSavesNothing) {
    computer.Dialogs.Colors.push_back(std::nullopt);
    Select(links);
    mnuChooseColor_Click(Main);
    EXPECT_EQ(Main.Link(links[0]).Color, -1);
    EXPECT_EQ(Saved(), "(none)");
}

TEST_F(SelectedShortcuts, TheColourIsSaved) {
    Select({links[0]});
    SetSelectedColor(Main, 1234567);
    EXPECT_NE(Saved().find("1234567"), std::string::npos) << Saved();
}

TEST_F(SelectedShortcuts, WithNoneSelectedNothingIsAskedOrChanged) {
    mnuChooseColor_Click(Main);
    ToggleBoldFont(Main);
    DeleteSelectedShortcuts(Main);
    EXPECT_EQ(Left(), "one two three ");
    EXPECT_TRUE(computer.Dialogs.ColorsAsked.empty());
    EXPECT_EQ(Saved(), "(none)");
}

TEST_F(SelectedShortcuts, ALockedWorkspaceLetsNothingBeChangedOrRemoved) {
    Select(links);
    mnuLock_Click(Main);
    mnuChooseColor_Click(Main);
    SetSelectedColor(Main, 0x123456);
    ToggleBoldFont(Main);
    DeleteSelectedShortcuts(Main);
    Key(KeyDelete);
    Key(KeyDelete, false, true);
    EXPECT_EQ(Left(), "one two three ");
    EXPECT_TRUE(computer.Dialogs.ColorsAsked.empty());
    EXPECT_EQ(Main.Link(links[0]).Color, -1);
    EXPECT_FALSE(Main.Link(links[0]).FontBold);
}

struct EditRow {
    const char* What;
    void (*Do)(frmMain&);
    bool (*Done)(const SelectedShortcuts&);
};

const EditRow edits[] = {
    {"bold", &ToggleBoldFont, [](const auto& t) { return t.Main.Link(t.links[0]).FontBold; }},
    {"colour", &mnuChooseColor_Click,
     [](const auto& t) { return t.Main.Link(t.links[0]).Color == 0x123456; }},
    {"removal", &DeleteSelectedShortcuts,
     [](const auto& t) { return !IsLive(t.Main.Shortcuts, t.links[0]); }},
};

TEST_F(SelectedShortcuts, ALockThatMayBeOpenedBrieflyIsByEachOfTheseEdits) {
    Main.Settings.QuicklyUnlock = 11;
    Main.Settings.ConfirmDelete = false;
    computer.Dialogs.Colors.push_back(0x123456);
    Select(links);
    for (const auto& edit : edits) {
        Main.Dock.Locked = true;
        Main.Dock.BrieflyUnlocked = false;
        edit.Do(Main);
        EXPECT_TRUE(edit.Done(*this)) << edit.What;
        EXPECT_TRUE(Main.Dock.BrieflyUnlocked) << edit.What;
    }
}

TEST_F(SelectedShortcuts, AQuestionThatIsAnsweredWithNoOpensNoLock) {
    Main.Settings.QuicklyUnlock = 11;
    Person().Answer(AnswerNo);
    computer.Dialogs.Colors.push_back(std::nullopt);
    Select(links);
    mnuLock_Click(Main);
    DeleteSelectedShortcuts(Main);
    mnuChooseColor_Click(Main);
    EXPECT_TRUE(Main.Dock.Locked);
    EXPECT_FALSE(Main.Dock.BrieflyUnlocked);
}

// ---- removing

TEST_F(SelectedShortcuts, RemovingOneAsksWithItsName) {
    Person().Answer(AnswerYes);
    Select({links[1]});
    DeleteSelectedShortcuts(Main);
    const auto& box = Person().Boxes.back();
    EXPECT_EQ(box.Text, "Remove 'two'?");
    EXPECT_EQ(box.Title, "Remove Shortcuts");
    EXPECT_EQ(box.Flags, 52);
    EXPECT_EQ(Left(), "one three ");
}

TEST_F(SelectedShortcuts, RemovingSeveralAsksWithTheirNumber) {
    Person().Answer(AnswerYes);
    Select({links[1], links[0]});
    DeleteSelectedShortcuts(Main);
    EXPECT_EQ(Person().LastBox(), "Remove Selected Shortcuts?\n\n2 Shortcuts Selected");
    EXPECT_EQ(Left(), "three ");
    EXPECT_TRUE(Main.Links.SelectedShortcuts.empty());
}

TEST_F(SelectedShortcuts, AnythingButYesKeepsThemAndTheirSelection) {
    for (const int answer : {AnswerNo, AnswerCancel}) {
        Person().Answer(answer);
        Select(links);
        DeleteSelectedShortcuts(Main);
        EXPECT_EQ(Left(), "one two three ");
        EXPECT_EQ(Main.Links.SelectedShortcuts.size(), 3U);
    }
    EXPECT_EQ(Saved(), "(none)");
}

TEST_F(SelectedShortcuts, WithoutTheConfirmationNothingIsAsked) {
    Main.Settings.ConfirmDelete = false;
    Select(links);
    DeleteSelectedShortcuts(Main);
    EXPECT_EQ(Left(), "");
    EXPECT_TRUE(Person().Boxes.empty());
}

TEST_F(SelectedShortcuts, RemovingLeavesTheFilesAlone) {
    computer.Files.Put("/usr/bin/one", "the program");
    const int box = New({6000, 1000, 3000, 3000});
    Main.Con(box).CopyPath = "/home/user/shelf";
    computer.Files.Put("/home/user/shelf/letter", "dear");
    Main.Settings.ConfirmDelete = false;
    Select({links[0], NewLink(InContainer(box), {400, 400}, "/home/user/shelf/letter")});
    DeleteSelectedShortcuts(Main);
    EXPECT_EQ(Left(), "two three ");
    EXPECT_EQ(computer.Files.Get("/usr/bin/one"), "the program");
    EXPECT_EQ(computer.Files.Get("/home/user/shelf/letter"), "dear");
}

TEST_F(SelectedShortcuts, WhatWasRemovedIsNoLongerSaved) {
    Main.Settings.ConfirmDelete = false;
    Select({links[0]});
    ToggleBoldFont(Main);
    EXPECT_NE(Saved().find("/usr/bin/one"), std::string::npos);
    DeleteSelectedShortcuts(Main);
    EXPECT_EQ(Saved().find("/usr/bin/one"), std::string::npos);
    EXPECT_NE(Saved().find("/usr/bin/two"), std::string::npos);
}

TEST_F(SelectedShortcuts, RemovedOnesAreGoneFromTheRecentListAndNoLongerCurrent) {
    StartShortcut(Main, links[0], false, "", false, true);
    StartShortcut(Main, links[1], false, "", false, true);
    Main.Settings.ConfirmDelete = false;
    Select({links[1]});
    DeleteSelectedShortcuts(Main);
    ASSERT_EQ(Main.Links.Recent.size(), 1U);
    EXPECT_EQ(Main.Links.Recent[0].Tag, links[0]);
    EXPECT_EQ(Main.Links.CurrentShortcut, -1);
}

TEST_F(SelectedShortcuts, OnlyWhatWasAskedAboutGoes) {
    Person().Answer(AnswerYes);
    Person().OnBox = [&](const auto&) {
        DeleteShortcut(Main, links[0]);
        SetSelection(Main, links[2], true);
    };
    Select({links[0], links[1]});
    DeleteSelectedShortcuts(Main);
    EXPECT_EQ(Left(), "three ");
}

TEST_F(SelectedShortcuts, TheEndOfTheProgramIsNoYes) {
    Person().Answer(AnswerYes);
    Person().OnBox = [&](const auto&) { Main.IsExiting = true; };
    Select(links);
    DeleteSelectedShortcuts(Main);
    EXPECT_EQ(Left(), "one two three ");
}

TEST_F(SelectedShortcuts, AContainerThatHoldsLessScrollsNoMore) {
    const int box = New({6000, 1000, 3000, 3000});
    NewLink(InContainer(box), {400, 400});
    const int below = NewLink(InContainer(box), {400, 5000});
    SetObjectRelativeSize(Main, box);
    ASSERT_TRUE(Main.ConView(box).VScroll.Visible);
    Main.Settings.ConfirmDelete = false;
    Select({below});
    DeleteSelectedShortcuts(Main);
    EXPECT_FALSE(Main.ConView(box).VScroll.Visible);
}

TEST_F(SelectedShortcuts, AMoveOfARemovedOneCanNoLongerBeTakenBackAndNothingElseHappens) {
    PushMove(Main, {PlaceNow(Main, MovedKind::Shortcut, links[0])});
    Main.Settings.ConfirmDelete = false;
    Select({links[0]});
    DeleteSelectedShortcuts(Main);
    mnuUndoRedo_Click(Main, 0);
    EXPECT_EQ(Left(), "two three ");
}

TEST_F(SelectedShortcuts, DeleteRemovesTheSelectionWhileTheCurrentOneIsPartOfItAndShiftDeleteAlways) {
    Main.Settings.ConfirmDelete = false;
    Select({links[0]});
    Main.Links.CurrentShortcut = links[1];
    Key(KeyDelete);
    EXPECT_EQ(Left(), "one two three ");
    Main.Links.CurrentShortcut = links[0];
    Key(KeyDelete);
    EXPECT_EQ(Left(), "two three ");
    Select({links[2]});
    Main.Links.CurrentShortcut = links[1];
    Key(KeyDelete, false, true);
    EXPECT_EQ(Left(), "two ");
}

TEST_F(SelectedShortcuts, DeleteInATextFieldBelongsToTheField) {
    Select({links[0]});
    Main.Links.CurrentShortcut = links[0];
    for (const bool shift : {false, true})
        EXPECT_FALSE(Form_KeyDown(Main, {.Code = KeyDelete, .Shift = shift, .InTextField = true}));
    EXPECT_EQ(Left(), "one two three ");
}

TEST_F(SelectedShortcuts, TheMenusLineRemovesTheSelectionThatItsShortcutIsPartOf) {
    Person().Answer(AnswerYes);
    Select({links[0], links[2]});
    Choose(links[2], "Remo&ve Shortcuts");
    EXPECT_EQ(Left(), "two ");
}

TEST_F(SelectedShortcuts, AFailedSaveIsToldAndTheyAreGoneAllTheSame) {
    computer.Files.PutFolder(fake::SettingsFolder);
    computer.Files.MakeReadOnly(fake::SettingsFolder);
    Main.Settings.ConfirmDelete = false;
    Select({links[0]});
    DeleteSelectedShortcuts(Main);
    EXPECT_EQ(Left(), "two three ");
    EXPECT_FALSE(Main.Store.SaveFailure.empty());
}

} // namespace
} // namespace quill
