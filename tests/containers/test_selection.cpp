#include "containers/selection.h"
#include "containers/workspace_fixture.h"

#include "appearance/colors.h"
#include "core/caption.h"
#include "shortcuts/launch.h"

namespace quill {
namespace {

struct Selection : test::WorkspaceFixture {
    Selection() { Main.Settings.DblClick = true; }

    std::string Selected() {
        std::string text;
        for (const int link : Main.Links.SelectedShortcuts)
            text += (text.empty() ? "" : " ") + std::to_string(link);
        return text;
    }
    std::string Boxes() {
        std::string text;
        for (const int index : SelectedContainers(Main))
            text += (text.empty() ? "" : " ") + std::to_string(index);
        return text;
    }
    SurfaceId SurfaceOf(int link) {
        const auto& in = Main.LinkView(link).In;
        return in.Kind == ParentKind::picBack ? OnBack : OnContainer(in.Index);
    }
    MouseEvent On(int link, MouseButton button) {
        const auto info = Find(SurfaceOf(link), ElementKind::lblShortcut, link);
        const Point at{info.Place.Left + 15, info.Place.Top + 15};
        return {.At = at, .Screen = at, .Button = button};
    }
    void Press(int link, MouseButton button = MouseButton::Left) {
        MouseDown(Main, SurfaceOf(link), On(link, button));
    }
    void Release(int link, MouseButton button = MouseButton::Left) {
        MouseUp(Main, SurfaceOf(link), On(link, button));
    }
    void Click(int link, MouseButton button = MouseButton::Left) {
        Press(link, button), Release(link, button);
    }
    void ClickWith(int link, bool ctrl, bool shift) {
        auto event = On(link, MouseButton::Left);
        event.Ctrl = ctrl;
        event.Shift = shift;
        MouseDown(Main, SurfaceOf(link), event);
        MouseUp(Main, SurfaceOf(link), event);
    }
    void CtrlClick(int link) { ClickWith(link, true, false); }
    void ShiftClick(int link) { ClickWith(link, false, true); }
    EruLabel& Label(int link) { return Main.LinkView(link).lblShortcut; }
    // Three in a column on the workspace.
    std::vector<int> Column() {
        return {NewLink(OnWorkspace(), {2000, 1000}), NewLink(OnWorkspace(), {2000, 2000}),
                NewLink(OnWorkspace(), {2000, 3000})};
    }
};

TEST_F(Selection, AShortcutIsSelectedOnceAndInOrder) {
    const auto links = Column();
    for (const int link : {links[2], links[0], links[2]}) SetSelection(Main, link, true);
    EXPECT_EQ(Selected(), "2 0");
    bool selected = false;
    GetSelection(Main, links[2], selected);
    EXPECT_TRUE(selected);
    GetSelection(Main, links[1], selected);
    EXPECT_FALSE(selected);
}

TEST_F(Selection, LabelAndIconAnswerTheSame) {
    const auto links = Column();
    SetSelection(Main, links[1], true);
    EXPECT_TRUE(Find(OnBack, ElementKind::lblShortcut, links[1]).Selected);
    EXPECT_TRUE(Find(OnBack, ElementKind::picShortcut, links[1]).Selected);
    EXPECT_FALSE(Find(OnBack, ElementKind::picShortcut, links[0]).Selected);
}

TEST_F(Selection, ASelectedCaptionCanBeReadInEveryColour) {
    const auto links = Column();
    for (int grey = 0; grey < 256; grey += 5) {
        for (const Color ink :
             {Rgb(grey, grey, grey), Rgb(255, grey, 0), Rgb(0, grey, 255), Rgb(grey, 0, 90)}) {
            Main.Link(links[0]).Color = ink;
            SetSelection(Main, links[0], true);
            EXPECT_GE(ContrastRatio(Label(links[0]).ForeColor, Label(links[0]).BackColor), 4.5) << ink;
            EXPECT_EQ(Label(links[0]).BackStyle, 1);
        }
    }
}

TEST_F(Selection, DeselectingGivesTheShortcutsOwnColourBackOrThatOfWhereItLies) {
    const int box = New({6000, 1000, 3000, 3000});
    SetLabelColors(Main, box, Rgb(10, 200, 30));
    Main.View.ForeColor = Rgb(1, 2, 3);
    const int own = NewLink(OnWorkspace(), {2000, 1000}), plain = NewLink(OnWorkspace(), {2000, 2000});
    const int inside = NewLink(InContainer(box), {400, 400});
    Main.Link(own).Color = Rgb(250, 0, 0);
    for (const int link : {own, plain, inside})
        SetSelection(Main, link, true), SetSelection(Main, link, false);
    EXPECT_EQ(Label(own).ForeColor, Rgb(250, 0, 0));
    EXPECT_EQ(Label(plain).ForeColor, Rgb(1, 2, 3));
    EXPECT_EQ(Label(inside).ForeColor, Rgb(10, 200, 30));
    for (const int link : {own, plain, inside}) {
        EXPECT_EQ(Label(link).BackStyle, 0);
        EXPECT_EQ(Label(link).Opacity, 1);
    }
    EXPECT_EQ(Selected(), "");
}

TEST_F(Selection, TheTitleTellsHowManyAreSelected) {
    const auto links = Column();
    const auto normal = Main.View.Caption;
    SetSelection(Main, links[0], true);
    EXPECT_EQ(Main.View.Caption, normal);
    SetSelection(Main, links[1], true);
    EXPECT_EQ(Main.View.Caption, "2 shortcuts selected");
    UnselectLinks(Main);
    EXPECT_EQ(Main.View.Caption, normal);
}

TEST_F(Selection, ATextThatPassesInTheTitleIsNotReplaced) {
    const auto links = Column();
    ShowPassingCaption(Main, "Workspace Saved");
    for (const int link : links) SetSelection(Main, link, true);
    EXPECT_EQ(Main.View.Caption, "Workspace Saved");
    Wait(PassingCaptionTime);
    EXPECT_EQ(Main.View.Caption, "3 shortcuts selected");
}

TEST_F(Selection, ADeletedShortcutIsNoLongerSelected) {
    const auto links = Column();
    for (const int link : links) SetSelection(Main, link, true);
    DeleteShortcut(Main, links[1]);
    EXPECT_EQ(Selected(), "0 2");
    EXPECT_EQ(Main.View.Caption, "2 shortcuts selected");
    DeleteShortcut(Main, links[0]);
    EXPECT_EQ(Main.View.Caption, NormalCaption(Main));
    EXPECT_NE(Main.View.Caption, "2 shortcuts selected");
}

TEST_F(Selection, DeadRowsCantBeSelected) {
    const int link = NewLink(OnWorkspace(), {2000, 1000}), box = New({600, 600, 3000, 3000});
    DeleteShortcut(Main, link);
    DeleteContainer(Main, box, false);
    for (const int gone : {link, box, -1, 99}) {
        SetSelection(Main, gone, true);
        SelectContainer(Main, gone);
        bool selected = true;
        GetSelection(Main, gone, selected);
        EXPECT_FALSE(selected);
    }
    EXPECT_EQ(Selected() + Boxes(), "");
    EXPECT_EQ(GetSelectedContainersCount(Main), 0);
}

// ---- containers

TEST_F(Selection, ContainersAreCountedByTheFlagOfTheirLabelsWhileTheyShow) {
    const int one = New({600, 600, 3000, 3000}), two = New({4000, 600, 3000, 3000});
    New({8000, 600, 3000, 3000});
    SelectContainer(Main, two);
    SelectContainer(Main, one);
    EXPECT_EQ(Boxes(), "0 1");
    Main.ConView(one).Container.Visible = false;
    EXPECT_EQ(GetSelectedContainersCount(Main), 1);
    UnselectContainer(Main, two);
    EXPECT_EQ(GetSelectedContainersCount(Main), 0);
    Main.ConView(one).Container.Visible = true;
    EXPECT_EQ(Boxes(), "0");
    UnselectContainers(Main);
    EXPECT_EQ(Boxes(), "");
}

TEST_F(Selection, InvertingSelectsTheOthers) {
    for (const float left : {600.0F, 4000.0F, 8000.0F}) New({left, 600, 3000, 3000});
    SelectContainer(Main, 1);
    mnuConInvertSelection_Click(Main);
    EXPECT_EQ(Boxes(), "0 2");
    mnuConUnselectAll_Click(Main);
    EXPECT_EQ(Boxes(), "");
    mnuConInvertSelection_Click(Main);
    EXPECT_EQ(Boxes(), "0 1 2");
}

TEST_F(Selection, AContainersSelectionIsNotWrittenIntoItsColours) {
    const int box = New({600, 600, 3000, 3000});
    const auto ink = Main.ConView(box).ContainerLabel.ForeColor;
    SelectContainer(Main, box);
    EXPECT_EQ(Main.ConView(box).ContainerLabel.ForeColor, ink);
    EXPECT_EQ(Main.ConView(box).FrameForeColor, ink);
}

// ---- the menu's commands

TEST_F(Selection, SelectAllTakesTheCurrentContainerWhileItHasTheKeysElseTheWorkspace) {
    const int box = New({6000, 1000, 3000, 3000});
    Column();
    NewLink(InContainer(box), {400, 400});
    NewLink(InContainer(box), {400, 800});
    Main.Group.CurrentContainer = box;
    Main.Group.ContainerHasFocus = true;
    mnuSelectShortcuts_Click(Main, 0);
    EXPECT_EQ(Selected(), "3 4");
    Main.Group.ContainerHasFocus = false;
    mnuSelectShortcuts_Click(Main, 0);
    EXPECT_EQ(Selected(), "3 4 0 1 2");
    mnuSelectShortcuts_Click(Main, 1);
    EXPECT_EQ(Selected(), "3 4");
}

TEST_F(Selection, InvertingShortcutsTurnsEachOfThatPlace) {
    const auto links = Column();
    SetSelection(Main, links[1], true);
    mnuSelectShortcuts_Click(Main, 2);
    EXPECT_EQ(Selected(), "0 2");
}

TEST_F(Selection, SelectAllLeavesWhatATagViewHides) {
    const auto links = Column();
    Main.LinkView(links[1]).Visible = false;
    mnuSelectShortcuts_Click(Main, 0);
    EXPECT_EQ(Selected(), "0 2");
}

TEST_F(Selection, SelectAllOfAContainerThatDiedIsThatOfTheWorkspace) {
    const int box = New({6000, 1000, 3000, 3000});
    Column();
    DeleteContainer(Main, box, false);
    Main.Group.CurrentContainer = box;
    Main.Group.ContainerHasFocus = true;
    mnuSelectShortcuts_Click(Main, 0);
    EXPECT_EQ(Selected(), "0 1 2");
}

// ---- clicks

TEST_F(Selection, APlainPressSelectsJustTheShortcutUnderIt) {
    const auto links = Column();
    Click(links[0]);
    EXPECT_EQ(Selected(), "0");
    Press(links[2]);
    EXPECT_EQ(Selected(), "2");
    Release(links[2]);
    EXPECT_EQ(Selected(), "2");
}

TEST_F(Selection, APressOnOneOfSeveralKeepsThemForADragAndTheReleaseSelectsItAlone) {
    const auto links = Column();
    for (const int link : links) SetSelection(Main, link, true);
    Press(links[1]);
    EXPECT_EQ(Selected(), "0 1 2");
    Release(links[1]);
    EXPECT_EQ(Selected(), "1");
}

TEST_F(Selection, CtrlClickTogglesAShortcutAndKeepsTheOthers) {
    const auto links = Column();
    Click(links[0]);
    CtrlClick(links[2]);
    EXPECT_EQ(Selected(), "0 2");
    CtrlClick(links[0]);
    EXPECT_EQ(Selected(), "2");
}

TEST_F(Selection, TwoQuickCtrlClicksAreTwoClicksAndStartNothing) {
    const auto links = Column();
    CtrlClick(links[0]);
    auto event = On(links[0], MouseButton::Left);
    event.Ctrl = true;
    MouseDoubleClick(Main, OnBack, event);
    MouseUp(Main, OnBack, event);
    EXPECT_EQ(Selected(), "");
    EXPECT_TRUE(computer.Shell.Launches.empty());
}

TEST_F(Selection, ShiftClickSelectsAllBetweenTheLastSelectedAndThisOne) {
    const auto links = Column();
    const int aside = NewLink(OnWorkspace(), {8000, 2000});
    Click(links[0]);
    ShiftClick(links[2]);
    EXPECT_EQ(Selected(), "1 2 0");
    ShiftClick(links[1]);
    EXPECT_EQ(Selected(), "1 0") << "from the same one as before";
    bool selected = true;
    GetSelection(Main, aside, selected);
    EXPECT_FALSE(selected);
}

TEST_F(Selection, AShiftClickOnAnotherSurfaceSelectsJustThatOne) {
    const int box = New({6000, 1000, 3000, 3000});
    const auto links = Column();
    const int inside = NewLink(InContainer(box), {400, 400});
    Click(links[0]);
    ShiftClick(inside);
    EXPECT_EQ(Selected(), std::to_string(inside));
}

TEST_F(Selection, ARightClickSelectsWhatItsMenuIsAbout) {
    const auto links = Column();
    SetSelection(Main, links[0], true);
    SetSelection(Main, links[1], true);
    computer.Questions.DismissMenu();
    Click(links[1], MouseButton::Right);
    EXPECT_EQ(Selected(), "0 1") << "the menu is for both";
    computer.Questions.DismissMenu();
    Click(links[2], MouseButton::Right);
    EXPECT_EQ(Selected(), "2");
}

TEST_F(Selection, APressOnAnEmptyPlaceOfAContainerDeselectsShortcuts) {
    const int box = New({6000, 1000, 3000, 3000});
    const auto links = Column();
    Click(links[0]);
    const MouseEvent event{.At = {1500, 1500}, .Screen = {7500, 2500}, .Button = MouseButton::Left};
    MouseDown(Main, OnContainer(box), event);
    MouseUp(Main, OnContainer(box), event);
    EXPECT_EQ(Selected(), "");
}

TEST_F(Selection, AClickedShortcutSaysWhichPlaceTheKeysMean) {
    const int box = New({6000, 1000, 3000, 3000});
    const auto links = Column();
    const int inside = NewLink(InContainer(box), {400, 400});
    Click(inside);
    EXPECT_TRUE(Main.Group.ContainerHasFocus);
    Click(links[0]);
    EXPECT_FALSE(Main.Group.ContainerHasFocus);
}

TEST_F(Selection, CtrlAndSpaceToggleWhatTheKeyboardIsOn) {
    const auto links = Column();
    KeyEvent tab, toggle;
    tab.Code = KeyTab;
    toggle.Code = KeySpace;
    toggle.Ctrl = true;
    for (int n = 0; n < 2; ++n) {
        Form_KeyDown(Main, tab);
        EXPECT_TRUE(Form_KeyDown(Main, toggle));
    }
    EXPECT_EQ(Selected(), "0 1");
    Form_KeyDown(Main, toggle);
    EXPECT_EQ(Selected(), "0");
}

TEST_F(Selection, WhatTheKeyboardIsOnIsToggled) {
    const int box = New({6000, 1000, 3000, 3000});
    const auto links = Column();
    ToggleSelection(Main, OnBack, {ElementKind::lblShortcut, links[1]});
    ToggleSelection(Main, OnContainer(box), {ElementKind::lblFoldUnfold, box});
    EXPECT_EQ(Selected(), "1");
    EXPECT_EQ(Boxes(), "0");
    ToggleSelection(Main, OnBack, {ElementKind::lblShortcut, links[1]});
    ToggleSelection(Main, OnContainer(box), {ElementKind::ContainerLabel, box});
    ToggleSelection(Main, OnBack, {ElementKind::PicMenu, -1});
    EXPECT_EQ(Selected() + Boxes(), "");
}

} // namespace
} // namespace quill
