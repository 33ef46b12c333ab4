#include "containers/rubber_band.h"
#include "containers/workspace_fixture.h"

#include "containers/selection.h"

namespace quill {
namespace {

struct RubberBand : test::WorkspaceFixture {
    static MouseEvent At(Point at, MouseButton button = MouseButton::Left, bool ctrl = false) {
        MouseEvent event{.At = at, .Screen = at, .Button = button};
        event.Ctrl = ctrl;
        return event;
    }
    void Press(Point at, bool ctrl = false) { MouseDown(Main, OnBack, At(at, MouseButton::Left, ctrl)); }
    void Move(Point at) { MouseMove(Main, OnBack, At(at)); }
    void Release(Point at) { MouseUp(Main, OnBack, At(at)); }
    void Band(Point from, Point to, bool ctrl = false) {
        Press(from, ctrl);
        Move({(from.X + to.X) / 2, (from.Y + to.Y) / 2});
        Move(to);
        Release(to);
    }
    void Escape() {
        KeyEvent key;
        key.Code = KeyEscape;
        Form_KeyDown(Main, key);
    }
    std::string Selected() {
        std::string text;
        for (const int link : Main.Links.SelectedShortcuts)
            text += (text.empty() ? "s" : " s") + std::to_string(link);
        for (const int index : SelectedContainers(Main))
            text += (text.empty() ? "c" : " c") + std::to_string(index);
        return text;
    }
};

TEST_F(RubberBand, WhatItTouchesIsSelected) {
    NewLink(OnWorkspace(), {2000, 1000});
    NewLink(OnWorkspace(), {2000, 5000});
    New({4000, 1000, 3000, 3000});
    New({8000, 6000, 3000, 2000});
    Band({1000, 700}, {4100, 1100});
    EXPECT_EQ(Selected(), "s0 c0");
}

TEST_F(RubberBand, ItIsDrawnInAnyDirection) {
    NewLink(OnWorkspace(), {2000, 1000});
    New({4000, 1000, 3000, 3000});
    Band({7500, 4500}, {1500, 900});
    EXPECT_EQ(Selected(), "s0 c0");
}

TEST_F(RubberBand, ItShowsFromThePressToTheCursor) {
    Press({5000, 4000});
    EXPECT_EQ(Seen({SurfaceKind::Overlay, -1}), "") << "nothing is drawn before the hand moves";
    Main.Marks.Take();
    Move({3000, 4600});
    EXPECT_EQ(fake::Words(PlaceOfSurface(Main, {SurfaceKind::Overlay, -1})), "3000,4000 2000x600");
    EXPECT_EQ(Seen({SurfaceKind::Overlay, -1}), "frmSelection");
    const auto marks = Main.Marks.Take();
    EXPECT_TRUE(marks.Overlay);
    EXPECT_TRUE(marks.Containers.empty() && !marks.Workspace && !marks.Everything)
        << "nothing else is painted";
    Release({3000, 4600});
    EXPECT_FALSE(SurfaceVisible(Main, {SurfaceKind::Overlay, -1}));
    EXPECT_TRUE(Main.Marks.Take().Overlay);
}

TEST_F(RubberBand, ItEndsAtTheEdgesOfTheWorkspace) {
    Press({5000, 4000});
    Move({-9000, 90000});
    EXPECT_EQ(fake::Words(Main.Group.frmSelection.Place), "0,4000 5000x5000");
}

TEST_F(RubberBand, OverNothingItClearsNothingMoreThanThePressDid) {
    const int link = NewLink(OnWorkspace(), {2000, 1000}), box = New({4000, 1000, 3000, 3000});
    SetSelection(Main, link, true);
    SelectContainer(Main, box);
    Band({8000, 5000}, {9000, 6000}, true);
    EXPECT_EQ(Selected(), "s0 c0");
    Press({8000, 5000});
    EXPECT_EQ(Selected(), "");
    Move({9000, 6000});
    Release({9000, 6000});
    EXPECT_EQ(Selected(), "");
}

TEST_F(RubberBand, WithCtrlItAdds) {
    const int link = NewLink(OnWorkspace(), {2000, 1000});
    NewLink(OnWorkspace(), {2000, 5000});
    SetSelection(Main, link, true);
    Band({1000, 4700}, {3000, 5600}, true);
    EXPECT_EQ(Selected(), "s0 s1");
    Band({1000, 700}, {3000, 1600});
    EXPECT_EQ(Selected(), "s0");
}

TEST_F(RubberBand, WhatLiesInContainersIsNotItsBusiness) {
    const int box = New({4000, 1000, 3000, 3000});
    NewLink(InContainer(box), {400, 400});
    Band({3500, 700}, {7500, 4500});
    EXPECT_EQ(Selected(), "c0");
}

TEST_F(RubberBand, HiddenDeletedAndNamelessShortcutsAreSkipped) {
    const int hidden = NewLink(OnWorkspace(), {2000, 1000}), dead = NewLink(OnWorkspace(), {2000, 1400});
    const int nameless = NewLink(OnWorkspace(), {2000, 1800});
    NewLink(OnWorkspace(), {2000, 2200});
    Main.LinkView(hidden).Visible = false;
    DeleteShortcut(Main, dead);
    Main.LinkView(nameless).lblShortcut.Caption.clear();
    Band({1000, 700}, {5000, 5000});
    EXPECT_EQ(Selected(), "s3");
}

TEST_F(RubberBand, WhatAContainerHidesIsNotSelected) {
    New({4000, 1000, 4000, 3000});
    NewLink(OnWorkspace(), {5000, 2000});
    Band({3500, 700}, {8500, 4500});
    EXPECT_EQ(Selected(), "c0");
}

TEST_F(RubberBand, HiddenContainersAreSkipped) {
    const int box = New({4000, 1000, 3000, 3000});
    Main.ConView(box).Container.Visible = false;
    Band({3500, 700}, {7500, 4500});
    Main.ConView(box).Container.Visible = true;
    EXPECT_EQ(Selected(), "");
}

TEST_F(RubberBand, EscapeEndsItAndSelectsNothing) {
    NewLink(OnWorkspace(), {2000, 1000});
    Press({1000, 700});
    Move({5000, 5000});
    Escape();
    EXPECT_FALSE(Main.Group.frmSelection.Loaded);
    Move({6000, 5000});
    Release({6000, 5000});
    EXPECT_EQ(Selected(), "");
    EXPECT_FALSE(SurfaceVisible(Main, {SurfaceKind::Overlay, -1}));
}

TEST_F(RubberBand, APressThatNeverMovesIsAPlainClick) {
    const int tile = NewTile(4000, 2000);
    SelectContainer(Main, tile);
    Press({9000, 7000});
    Release({9000, 7000});
    EXPECT_EQ(Selected(), "");
    EXPECT_FALSE(Main.Group.frmSelection.Loaded);
    EXPECT_EQ(Main.Group.NewContainerPos, (Point{9000, 7000}));
}

TEST_F(RubberBand, TheWorkspaceDoesNotDockMeanwhile) {
    Press({1000, 700});
    EXPECT_TRUE(Main.Dock.WorkspaceDragging);
    Move({5000, 5000});
    EXPECT_TRUE(Main.Dock.WorkspaceDragging);
    Release({5000, 5000});
    EXPECT_FALSE(Main.Dock.WorkspaceDragging);
    Press({1000, 700});
    UnloadSelection(Main);
    EXPECT_FALSE(Main.Dock.WorkspaceDragging);
}

TEST_F(RubberBand, AReleaseThatNobodySawEndsIt) {
    NewLink(OnWorkspace(), {2000, 1000});
    Press({1000, 700});
    Move({5000, 5000});
    MouseMove(Main, OnBack, At({5000, 5000}, MouseButton::None));
    EXPECT_FALSE(Main.Group.frmSelection.Loaded);
    EXPECT_EQ(Selected(), "");
}

TEST_F(RubberBand, AnotherButtonEndsItAndOpensNoMenu) {
    NewLink(OnWorkspace(), {2000, 1000});
    Press({1000, 700});
    Move({5000, 5000});
    MouseDown(Main, OnBack, At({5000, 5000}, MouseButton::Right));
    EXPECT_FALSE(Main.Group.frmSelection.Loaded);
    EXPECT_TRUE(computer.Questions.Menus.empty());
}

TEST_F(RubberBand, ThePressClosesWhatWasOpenAndKeepsTheSelectionThen) {
    const int tile = NewTile(4000, 2000), other = New({8000, 6000, 3000, 2000});
    SelectContainer(Main, other);
    Main.Settings.Effect = false;
    ExpandShrinkContainer(Main, tile, false);
    Wait(100);
    Press({600, 8000});
    EXPECT_TRUE(IsShrunk(Main, tile));
    EXPECT_EQ(Selected(), "c1");
    EXPECT_TRUE(Main.Group.frmSelection.Loaded);
}

} // namespace
} // namespace quill
