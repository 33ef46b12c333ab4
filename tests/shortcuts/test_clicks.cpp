#include "shortcuts/at_work.h"

namespace quill {
namespace {

struct Clicks : AtWork {
    Clicks() { Index = File("/usr/bin/editor"); }
    MouseEvent With(MouseButton button, bool shift = false, bool ctrl = false) const {
        MouseEvent event;
        event.Button = button;
        event.Shift = shift;
        event.Ctrl = ctrl;
        return event;
    }
    void Click(int index, MouseEvent event, int held = 50) {
        lblShortcut_MouseDown(Main, index, event);
        Computer.Clock.Advance(held);
        lblShortcut_MouseUp(Main, index, event);
    }
    int Index = -1;
};

TEST_F(Clicks, APlainClickStartsOnRelease) {
    lblShortcut_MouseDown(Main, Index, With(MouseButton::Left));
    EXPECT_EQ(Started(), "");
    lblShortcut_MouseUp(Main, Index, With(MouseButton::Left));
    EXPECT_EQ(Started(), "start /usr/bin/editor\n");
}

TEST_F(Clicks, ASlowClickStartsToo) {
    Click(Index, With(MouseButton::Left), 2000);
    EXPECT_EQ(Started(), "start /usr/bin/editor\n");
}

TEST_F(Clicks, ADraggedShortcutStartsNothing) {
    Main.Links.SelectedShortcuts = {Index};
    lblShortcut_MouseDown(Main, Index, With(MouseButton::Left));
    Main.Links.DragIndex = -1;
    Computer.Clock.Advance(251);
    lblShortcut_MouseUp(Main, Index, With(MouseButton::Left));
    EXPECT_EQ(Started(), "");
}

TEST_F(Clicks, AReleaseWithin250MillisecondsIsAClickWhateverTheHandMoved) {
    Main.Links.SelectedShortcuts = {Index};
    lblShortcut_MouseDown(Main, Index, With(MouseButton::Left));
    Main.Links.DragIndex = -1;
    Computer.Clock.Advance(250);
    lblShortcut_MouseUp(Main, Index, With(MouseButton::Left));
    EXPECT_EQ(Main.Links.DragIndex, Index);
    EXPECT_EQ(Started(), "start /usr/bin/editor\n");
}

TEST_F(Clicks, ShiftAndCtrlBelongToTheSelection) {
    Click(Index, With(MouseButton::Left, true));
    Click(Index, With(MouseButton::Left, false, true));
    EXPECT_EQ(Started(), "");
}

TEST_F(Clicks, WithDoubleClickSetOnlyThatStarts) {
    Main.Settings.DblClick = true;
    Click(Index, With(MouseButton::Left));
    EXPECT_EQ(Started(), "");
    lblShortcut_DblClick(Main, Index);
    EXPECT_EQ(Started(), "start /usr/bin/editor\n");
}

TEST_F(Clicks, WithoutDoubleClickSetTheSecondClickOfADoubleClickStartsNothingMore) {
    Click(Index, With(MouseButton::Left));
    lblShortcut_DblClick(Main, Index);
    EXPECT_EQ(Started(), "start /usr/bin/editor\n");
}

TEST_F(Clicks, TheIconStartsByDoubleClickWhateverIsSet) {
    for (const bool set : {true, false}) {
        Main.Settings.DblClick = set;
        Computer.Shell.Launches.clear();
        Click(Index, With(MouseButton::Left));
        picShortcut_DblClick(Main, Index);
        EXPECT_EQ(Started(), "start /usr/bin/editor\n") << "once";
    }
}

TEST_F(Clicks, APressMakesTheShortcutAndItsContainerCurrent) {
    const int box = Container("Box");
    const int inside = File("/a", InContainer(box));
    lblShortcut_MouseDown(Main, inside, With(MouseButton::Middle));
    EXPECT_EQ(Main.Links.CurrentShortcut, inside);
    EXPECT_EQ(Main.Group.CurrentContainer, box);
}

TEST_F(Clicks, TheRightButtonOpensTheMenuAndStartsNothing) {
    Person().DismissMenu();
    Click(Index, With(MouseButton::Right));
    EXPECT_EQ(Person().Menus.size(), 1U);
    EXPECT_EQ(Started(), "");
}

TEST_F(Clicks, AReleaseOverAnotherShortcutStartsNeither) {
    const int other = File("/b");
    lblShortcut_MouseDown(Main, Index, With(MouseButton::Left));
    lblShortcut_MouseUp(Main, other, With(MouseButton::Left));
    EXPECT_EQ(Started(), "");
}

TEST_F(Clicks, AShortcutThatDiedUnderThePressStartsNothing) {
    lblShortcut_MouseDown(Main, Index, With(MouseButton::Left));
    DeleteShortcut(Main, Index);
    lblShortcut_MouseUp(Main, Index, With(MouseButton::Left));
    picShortcut_DblClick(Main, Index);
    EXPECT_EQ(Started(), "");
}

} // namespace
} // namespace quill
