#include "core/keyboard_focus.h"
#include "fake/desk.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using fake::Desk;

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

TEST_F(KeyboardFocus, EscapeShrinksWhatIsExpandedForTheMoment) {
    desk.ClickOn(ElementKind::shapeShrink, 0);
    desk.Wait(100);
    desk.ClickOn(ElementKind::ContainerIcon, 0);
    desk.Wait(100);
    ASSERT_EQ(desk.Main->Group.ExpandedContainer, 0);
    desk.PressKey(KeyEscape);
    EXPECT_TRUE(desk.Sees(ElementKind::ContainerIcon, 0));
}

TEST_F(KeyboardFocus, InATextFieldPlainKeysBelongToTheField) {
    KeyEvent event;
    event.InTextField = true;
    event.Code = KeyTab;
    EXPECT_FALSE(Form_KeyDown(*desk.Main, event));
    event.Code = KeySpace;
    EXPECT_FALSE(Form_KeyDown(*desk.Main, event));
    event.Code = KeyF1 + 7;
    EXPECT_TRUE(Form_KeyDown(*desk.Main, event));
}

} // namespace
} // namespace quill
