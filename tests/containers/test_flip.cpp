#include "containers/flip.h"
#include "containers/workspace_fixture.h"

#include "containers/fold.h"
#include "core/keyboard_focus.h"

namespace quill {
namespace {

struct Flip : test::WorkspaceFixture {
    Flip() {
        Main.Settings.Effect = false;
        Main.Settings.SpacebarFlip = 0;
    }
    // The containers that so many steps lead to; -1 where nothing is left and it starts over.
    std::vector<int> Steps(int count, bool forward = true) {
        std::vector<int> reached;
        for (int step = 0; step < count; ++step) {
            SpacebarFlip(Main, forward);
            reached.push_back(Main.Group.FlipPosition);
        }
        return reached;
    }
    int NewFeed() {
        const int index = New({500, 600, 3000, 3000});
        Main.Con(index).RSS = true;
        return index;
    }
    int NewNote() {
        const int index = New({500, 600, 3000, 3000});
        Main.ConView(index).ContainerNote.Visible = true;
        return index;
    }
};

TEST_F(Flip, SpaceWalksOverAllContainersAndStartsOver) {
    for (int count = 0; count < 3; ++count) New({500, 600, 3000, 3000});
    EXPECT_EQ(Steps(5), (std::vector<int>{0, 1, 2, -1, 0}));
}

TEST_F(Flip, ShiftSpaceWalksBackwards) {
    for (int count = 0; count < 3; ++count) New({500, 600, 3000, 3000});
    EXPECT_EQ(Steps(2), (std::vector<int>{0, 1}));
    EXPECT_EQ(Steps(4, false), (std::vector<int>{0, -1, 2, 1}));
}

TEST_F(Flip, DeadAndHiddenContainersAreNotInIt) {
    for (int count = 0; count < 4; ++count) New({500, 600, 3000, 3000});
    DeleteContainer(Main, 1, false);
    Main.ConView(2).Container.Visible = false; // by a tag view
    EXPECT_EQ(Steps(3), (std::vector<int>{0, 3, -1}));
}

TEST_F(Flip, TheSettingSaysWhichContainersItPassesThrough) {
    const int plain = New({500, 600, 3000, 3000}), feed = NewFeed(), note = NewNote(),
              reminder = New({500, 600, 3000, 3000}), chosen = New({500, 600, 3000, 3000});
    Main.Con(reminder).SetReminder(true, 2027, 1, 1, 8, 0, "");
    Main.Con(chosen).SpacebarFlip = true;
    const std::pair<int, std::vector<int>> rows[] = {
        {0, {plain, feed, note, reminder, chosen, -1}},
        {1, {feed, -1}},
        {2, {note, reminder, -1}},
        {3, {chosen, -1}},
        {4, {chosen, -1}}, // out of bounds is taken as the nearest
        {-1, {plain, feed, note, reminder, chosen, -1}},
    };
    for (const auto& [setting, expected] : rows) {
        Main.Settings.SpacebarFlip = static_cast<std::int16_t>(setting);
        EXPECT_EQ(Steps(static_cast<int>(expected.size())), expected) << setting;
    }
}

TEST_F(Flip, ATileOpensForTheMomentAndClosesAtTheNextStep) {
    const int one = NewTile(2000, 2000), two = NewTile(8000, 2000);
    SpacebarFlip(Main, true);
    EXPECT_FALSE(IsShrunk(Main, one));
    EXPECT_EQ(Main.Group.ExpandedContainer, one);
    SpacebarFlip(Main, true); // within the time in which a second click would close nothing
    EXPECT_TRUE(IsShrunk(Main, one));
    EXPECT_FALSE(IsShrunk(Main, two));
    Wait(20);
    SpacebarFlip(Main, true);
    EXPECT_TRUE(IsShrunk(Main, two));
    EXPECT_EQ(Main.Group.FlipPosition, -1);
}

TEST_F(Flip, AtTheEndOfTheSetTheLastOneShrinksBackWithItsEffect) {
    Main.Settings.Effect = true;
    const int tile = NewTile(2000, 2000);
    SpacebarFlip(Main, true);
    EXPECT_TRUE(Main.ConView(tile).Container.Visible); // opened without one
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
    Wait(20);
    SpacebarFlip(Main, true);
    EXPECT_EQ(Main.Group.ExpandingContainer, tile);
    SpacebarFlip(Main, true); // what the effect hides is in the set as well
    EXPECT_EQ(Main.Group.FlipPosition, tile);
    EXPECT_FALSE(IsShrunk(Main, tile));
}

TEST_F(Flip, AFoldedContainerUnfoldsAndFoldsBackAtTheNextStep) {
    const int folded = New({500, 600, 3000, 3000}), other = New({5000, 600, 3000, 3000});
    FoldUnfoldContainer(Main, folded, false);
    Main.Settings.FoldOnClick = false; // that is about clicks
    GoToContainer(Main, folded);
    EXPECT_FALSE(IsFolded(Main, folded));
    EXPECT_EQ(Main.Group.AutoFoldContainerIndex, folded);
    GoToContainer(Main, other);
    EXPECT_TRUE(IsFolded(Main, folded));
    EXPECT_EQ(Main.Group.AutoFoldContainerIndex, -1);
}

TEST_F(Flip, TheContainerComesToTheFrontAndHasTheKeys) {
    const int below = New({500, 600, 3000, 3000});
    New({500, 600, 3000, 3000});
    Main.Group.ContainerHasFocus = false;
    GoToContainer(Main, below);
    EXPECT_EQ(Main.ZOrderList.back(), (ZOrderEntry{KindContainer, below}));
    EXPECT_EQ(Main.Group.CurrentContainer, below);
    EXPECT_TRUE(Main.Group.ContainerHasFocus);
    EXPECT_FALSE(Main.View.FocusVisible);
    MoveFocus(Main, true);
    EXPECT_EQ(Main.View.Focus, (ElementId{ElementKind::ContainerLabel, below}));
}

TEST_F(Flip, TheMouseIsPutIntoTheCornerUnseen) {
    New({500, 600, 3000, 3000});
    computer.Windows.Cursor = {2000, 2000};
    computer.Windows.Log.clear();
    GoToContainer(Main, 0);
    const auto& back = Main.View.picBack.Place;
    EXPECT_EQ(computer.Windows.Cursor,
              (Point{Main.View.Window.Left + back.Left, Main.View.Window.Top + back.Top}));
    EXPECT_TRUE(computer.Windows.CursorShown);
    ASSERT_EQ(computer.Windows.Log.size(), 3U);
    EXPECT_EQ(computer.Windows.Log.front(), "hide cursor");
    EXPECT_EQ(computer.Windows.Log.back(), "show cursor");
}

TEST_F(Flip, AnEmptySetChangesNothingButClosesWhatIsOpen) {
    const int tile = NewTile(2000, 2000);
    ExpandShrinkContainer(Main, tile, false);
    Wait(20);
    Main.Settings.SpacebarFlip = 1;
    SpacebarFlip(Main, true);
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_EQ(Main.Group.FlipPosition, -1);
}

TEST_F(Flip, ADeadContainerIsNoGoal) {
    const int index = New({500, 600, 3000, 3000});
    DeleteContainer(Main, index, false);
    const auto cursor = computer.Windows.Cursor;
    for (const int gone : {index, -1, 99}) GoToContainer(Main, gone);
    EXPECT_EQ(computer.Windows.Cursor, cursor);
    EXPECT_EQ(Main.Group.CurrentContainer, -1);
}

} // namespace
} // namespace quill
