#include "core/keyboard_focus.h"

#include "containers/selection.h"
#include "fake/desk.h"
#include "shortcuts/create.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using fake::Desk;

constexpr Rect Afloat{3000, 3000, 12000, 9000};

struct KeyboardFocus : testing::Test {
    Desk desk;
    void SetUp() override {
        desk.Files().Put(desk.Settings("Quillmere.ini"), "108\r\n");
        desk.Files().Put(desk.Settings("Containers/0.con"),
                         "108\r\n[Container]\r\n-1\r\n[Name]\r\nWork\r\n[X]\r\n1500\r\n[Y]\r\n1500\r\n[W]"
                         "\r\n3000\r\n[H]\r\n3000\r\n[Link]\r\n"
                         "[Size]\r\n10\r\n[LinkX]\r\n300\r\n[LinkY]\r\n300\r\n[LinkLabel]\r\nEditor\r\n["
                         "LinkType]\r\n2\r\n[LinkPath]\r\n"
                         "/usr/bin/editor\r\n[RunIn]\r\n1\r\n[End Link]\r\n");
        desk.StartWorkspace();
    }
    // Tab until the keyboard is on an element; false when a whole round does not meet it.
    bool TabTo(ElementKind kind) {
        for (int step = 0; step < 40; ++step) {
            desk.PressKey(KeyTab);
            if (desk.Main->View.Focus.Kind == kind) return true;
        }
        return false;
    }
};

TEST_F(KeyboardFocus, EveryElementThatDoesSomethingIsReachedByTab) {
    for (const auto kind : {ElementKind::PicMenu, ElementKind::PicUnLockToolbar, ElementKind::lblFoldUnfold,
                            ElementKind::lblShortcut}) {
        EXPECT_TRUE(TabTo(kind)) << NameOf(kind);
    }
}

TEST_F(KeyboardFocus, AShortcutIsOneStopAndEnterStartsIt) {
    ASSERT_TRUE(TabTo(ElementKind::lblShortcut));
    desk.PressKey(KeyReturn);
    EXPECT_EQ(desk.Computer.Shell.LastLaunch(), "start /usr/bin/editor");
    desk.PressKey(KeyTab);
    EXPECT_NE(desk.Main->View.Focus.Kind, ElementKind::picShortcut);
}

TEST_F(KeyboardFocus, EnterOnTheFoldMarkFolds) {
    ASSERT_TRUE(TabTo(ElementKind::lblFoldUnfold));
    desk.PressKey(KeyReturn);
    EXPECT_EQ(desk.Main->ConView(0).FoldMark, "+");
}

TEST_F(KeyboardFocus, ShiftTabGoesBack) {
    desk.PressKey(KeyTab);
    const auto first = desk.Main->View.Focus;
    desk.PressKey(KeyTab);
    desk.PressKey(KeyTab, false, true);
    EXPECT_EQ(desk.Main->View.Focus, first);
}

TEST_F(KeyboardFocus, AFocusWhoseObjectIsGoneDoesNothing) {
    ASSERT_TRUE(TabTo(ElementKind::lblShortcut));
    desk.Main->Shortcuts[0].Index = -1;
    desk.PressKey(KeyReturn);
    EXPECT_TRUE(desk.Computer.Shell.Launches.empty());
}

TEST_F(KeyboardFocus, TheMouseTakesTheFocusMarkAway) {
    desk.PressKey(KeyTab);
    EXPECT_TRUE(desk.Main->View.FocusVisible);
    desk.ClickOn(ElementKind::picBack);
    EXPECT_FALSE(desk.Main->View.FocusVisible);
}

TEST_F(KeyboardFocus, TheMenuKeyOpensTheMenuOfWhatHasTheFocus) {
    ASSERT_TRUE(TabTo(ElementKind::lblShortcut));
    desk.Person().DismissMenu();
    desk.PressKey(KeyMenu);
    EXPECT_EQ(desk.Person().Menus.back().substr(0, 6), "&Start");
}

TEST_F(KeyboardFocus, TheMenuKeyOpensTheMenuOfASelectedShortcut) {
    desk.ClickOn(ElementKind::ContainerLabel, 0);
    desk.PressKey(KeyDown);
    HideFocus(*desk.Main);
    desk.Person().DismissMenu();
    desk.PressKey(KeyF10, false, true);
    EXPECT_EQ(desk.Person().Menus.back().substr(0, 6), "&Start");
}

TEST_F(KeyboardFocus, WithNothingChosenTheMenuKeyOpensTheWorkspacesMenu) {
    desk.ClickOn(ElementKind::picBack);
    desk.Person().DismissMenu();
    desk.PressKey(KeyMenu);
    EXPECT_EQ(desk.Person().Menus.back().substr(0, 7), "New &Co");
}

TEST_F(KeyboardFocus, TheMenuOfAContainerOpensAtTheElementWithTheFocus) {
    ASSERT_TRUE(TabTo(ElementKind::lblFoldUnfold));
    desk.Person().DismissMenu();
    desk.PressKey(KeyMenu);
    EXPECT_EQ(desk.Person().Menus.back().substr(0, 5), "&Fold");
    const auto place = desk.Person().MenuPlaces.back();
    const auto& box = desk.Main->ConView(0).Container.Place;
    EXPECT_GT(place.X, desk.Main->View.Window.Left + box.Left);
    EXPECT_LT(place.X, desk.Main->View.Window.Left + box.Right() + 300);
}

// ---- Space and Enter

TEST_F(KeyboardFocus, SpacePressesAButtonThatHasTheFocus) {
    ASSERT_TRUE(TabTo(ElementKind::lblFoldUnfold));
    desk.PressKey(KeySpace);
    EXPECT_EQ(desk.Main->ConView(0).FoldMark, "+");
}

TEST_F(KeyboardFocus, EnterStartsTheSelectedShortcut) {
    SetSelection(*desk.Main, 0, true);
    desk.Main->Links.CurrentShortcut = 0;
    desk.PressKey(KeyReturn);
    EXPECT_EQ(desk.Computer.Shell.LastLaunch(), "start /usr/bin/editor");
}

TEST_F(KeyboardFocus, EnterStartsNothingThatIsNotSelected) {
    desk.Main->Links.CurrentShortcut = 0;
    desk.PressKey(KeyReturn);
    desk.PressKey(KeyReturn, true);
    EXPECT_TRUE(desk.Computer.Shell.Launches.empty());
}

// ---- Escape, on a workspace that touches no edge and so is not put away by it

TEST_F(KeyboardFocus, EscapeShrinksWhatIsExpandedForTheMoment) {
    desk.ClickOn(ElementKind::shapeShrink, 0);
    desk.Wait(3000);
    desk.ClickOn(ElementKind::ContainerIcon, 0);
    desk.Wait(3000);
    ASSERT_EQ(desk.Main->Group.ExpandedContainer, 0);
    desk.PressKey(KeyEscape);
    desk.Wait(3000);
    EXPECT_TRUE(desk.Sees(ElementKind::ContainerIcon, 0));
}

TEST_F(KeyboardFocus, EscapeClearsTheSelectionOfContainersAndNothingElse) {
    desk.MoveWindow(Afloat);
    SelectContainer(*desk.Main, 0);
    SetSelection(*desk.Main, 0, true);
    desk.PressKey(KeyEscape);
    EXPECT_EQ(GetSelectedContainersCount(*desk.Main), 0);
    EXPECT_EQ(desk.Main->Links.SelectedShortcuts.size(), 1U);
    desk.PressKey(KeyEscape);
    EXPECT_TRUE(desk.Main->Links.SelectedShortcuts.empty());
}

TEST_F(KeyboardFocus, EscapeFoldsWhatIsUnfoldedForTheMomentAndDeselects) {
    desk.MoveWindow(Afloat);
    desk.ClickOn(ElementKind::lblFoldUnfold, 0);
    desk.DoubleClickOn(ElementKind::ContainerLabel, 0);
    ASSERT_EQ(desk.Main->Group.AutoFoldContainerIndex, 0);
    SetSelection(*desk.Main, 0, true);
    desk.PressKey(KeyEscape);
    EXPECT_EQ(desk.Main->ConView(0).FoldMark, "+");
    EXPECT_TRUE(desk.Main->Links.SelectedShortcuts.empty());
}

TEST_F(KeyboardFocus, EscapeTakesTheFocusMarkAway) {
    desk.MoveWindow(Afloat);
    desk.PressKey(KeyTab);
    desk.PressKey(KeyEscape);
    EXPECT_FALSE(desk.Main->View.FocusVisible);
}

TEST_F(KeyboardFocus, EscapeEndsARubberBandFirst) {
    SelectContainer(*desk.Main, 0);
    desk.Main->Group.frmSelection.Loaded = desk.Main->Group.frmSelection.Band = true;
    desk.PressKey(KeyEscape);
    EXPECT_FALSE(desk.Main->Group.frmSelection.Loaded);
    EXPECT_EQ(GetSelectedContainersCount(*desk.Main), 1);
}

TEST_F(KeyboardFocus, WhileAHandCarriesSomethingNoOtherKeyIsHeard) {
    desk.Main->Group.frmSelection.Loaded = true;
    desk.PressKey('T', true);
    EXPECT_EQ(desk.Containers().size(), 1U);
}

// ---- keys of containers

TEST_F(KeyboardFocus, AContainersKeyActsOnTheOneThatWasPressedLastAgainAndAgain) {
    desk.ClickOn(ElementKind::ContainerLabel, 0);
    desk.PressKey('F', false, false, true);
    EXPECT_EQ(desk.Main->ConView(0).FoldMark, "+");
    EXPECT_TRUE(desk.Main->View.FocusVisible) << "it shows what the next key is about";
    desk.PressKey('F', false, false, true);
    EXPECT_EQ(desk.Main->ConView(0).FoldMark, "-");
}

TEST_F(KeyboardFocus, AfterAPressBesideAllContainersTheirKeysDoNothing) {
    desk.ClickOn(ElementKind::ContainerLabel, 0);
    desk.ClickOn(ElementKind::picBack);
    desk.PressKey('F', false, false, true);
    desk.PressKey(KeyDelete, true);
    EXPECT_EQ(desk.Main->ConView(0).FoldMark, "-");
    EXPECT_TRUE(desk.Person().Boxes.empty()) << "it would have asked about a container that nobody meant";
}

TEST_F(KeyboardFocus, ASelectedContainerIsTheOneThatItsKeysAreAbout) {
    desk.PressKey('T', true);
    SelectContainer(*desk.Main, 0);
    desk.PressKey('F', false, false, true);
    EXPECT_EQ(desk.Main->ConView(0).FoldMark, "+");
    EXPECT_EQ(desk.Main->ConView(1).FoldMark, "-");
}

TEST_F(KeyboardFocus, InATextFieldItsOwnKeysBelongToTheField) {
    const auto used = [&](int code, bool ctrl = false, bool alt = false, bool shift = false) {
        KeyEvent event{code, shift, ctrl, alt, {}, true};
        return Form_KeyDown(*desk.Main, event);
    };
    for (const int plain : {KeyTab, KeySpace, KeyReturn, KeyDelete, KeyLeft, KeyDown, KeyEscape})
        EXPECT_FALSE(used(plain)) << plain;
    for (const char letter : {'A', 'C', 'V', 'X', 'Y', 'Z'}) EXPECT_FALSE(used(letter, true)) << letter;
    for (const int moves : {KeyLeft, KeyUp, KeyDelete, KeyReturn}) EXPECT_FALSE(used(moves, true)) << moves;
    EXPECT_TRUE(used(KeyF1 + 7)) << "F8 saves";
    EXPECT_TRUE(used('L', true)) << "Ctrl+L locks";
    EXPECT_TRUE(used('G', false, true)) << "Alt+G";
}

// ---- the arrows

struct Arrows : KeyboardFocus {
    // Three in a column, one beside the second; and one on the workspace.
    void SetUp() override {
        KeyboardFocus::SetUp();
        Add({300, 900});
        Add({300, 1500});
        Add({1600, 900});
        AddFile(*desk.Main, "/usr/bin/other", OnWorkspace(), {6000, 6000});
        desk.ClickOn(ElementKind::ContainerLabel, 0);
    }
    void Add(Point at) { AddFile(*desk.Main, "/usr/bin/thing", InContainer(0), at); }
    std::string Walk(std::initializer_list<int> arrows, bool shift = false) {
        std::string way;
        for (const int key : arrows) {
            desk.PressKey(key, false, shift);
            way += std::to_string(desk.Main->Links.CurrentShortcut);
        }
        return way;
    }
};

TEST_F(Arrows, WalkOverTheShortcutsOfTheContainerWithTheKeys) {
    EXPECT_EQ(Walk({KeyDown, KeyDown, KeyRight, KeyLeft, KeyDown, KeyUp, KeyUp}), "0131210");
}

TEST_F(Arrows, StayAtTheEnd) {
    EXPECT_EQ(Walk({KeyDown, KeyUp, KeyLeft}), "000");
}

TEST_F(Arrows, SelectWhatTheyReachAndNothingElse) {
    Walk({KeyDown, KeyDown});
    EXPECT_EQ(desk.Main->Links.SelectedShortcuts, std::vector<int>{1});
    EXPECT_TRUE(desk.Main->View.FocusVisible);
}

TEST_F(Arrows, ExtendTheSelectionWithShift) {
    Walk({KeyDown});
    Walk({KeyDown, KeyDown}, true);
    EXPECT_EQ(desk.Main->Links.SelectedShortcuts, (std::vector<int>{0, 1, 2}));
}

TEST_F(Arrows, WalkOverTheWorkspaceAfterAPressOnIt) {
    desk.ClickOn(ElementKind::picBack);
    EXPECT_EQ(Walk({KeyDown}), "4");
}

TEST_F(Arrows, WithNoShortcutToWalkOverGoFromElementToElement) {
    desk.ClickOn(ElementKind::lblFoldUnfold, 0);
    desk.Main->Group.ContainerHasFocus = true;
    desk.PressKey(KeyDown);
    EXPECT_TRUE(desk.Main->View.FocusVisible);
    EXPECT_TRUE(desk.Main->Links.SelectedShortcuts.empty());
}

} // namespace
} // namespace quill
