#include "core/accessible_elements.h"

#include "containers/fold.h"
#include "containers/rubber_band.h"
#include "containers/workspace_fixture.h"
#include "core/menus.h"
#include "dock/sliding.h"

namespace quill {
namespace {

struct Accessible : test::WorkspaceFixture {
    std::string Told(SurfaceId surface) {
        std::string text;
        for (const auto id : ToldElements(Main, surface)) {
            text += text.empty() ? "" : " ";
            text += NameOf(id.Kind);
        }
        return text;
    }
    std::string Actions(SurfaceId surface, ElementId element = {}) {
        std::string text;
        for (const auto& name : ActionsOf(Main, surface, element)) text += (text.empty() ? "" : "|") + name;
        return text;
    }
    int NewPicture(const Rect& place) {
        Main.IsLoading = true;
        bool ok = false;
        AddPicture(Main, "/home/user/Pictures/cat.png", OnWorkspace(), place, ok);
        Main.IsLoading = false;
        return Main.NextPictureIndex - 1;
    }
    static ElementId Label(int link) { return {ElementKind::lblShortcut, link}; }
};

TEST_F(Accessible, GroundsAndFramesAreTheSurfaceItselfAndAnIconIsPartOfItsLabel) {
    const int index = New({600, 600, 3000, 3000});
    NewLink(InContainer(index), {500, 500});
    EXPECT_EQ(Told(OnContainer(index)),
              "ContainerLabel shapeShrink lblPinNote lblFoldUnfold lblShortcut ResizeSymbol");
    EXPECT_EQ(Told(OnBack), "lblCaption PicMenu PicUnLockToolbar PicDock");
    EXPECT_EQ(Told({SurfaceKind::Picture, NewPicture({5000, 5000, 900, 900})}), "");
}

TEST_F(Accessible, AShortcutIsWhereItsIconAndItsLabelAre) {
    const int index = New({600, 600, 3000, 3000});
    const int link = NewLink(InContainer(index), {500, 500});
    const auto label = Find(OnContainer(index), ElementKind::lblShortcut, link).Whole;
    const auto icon = Find(OnContainer(index), ElementKind::picShortcut, link).Whole;
    const auto told = PlaceOfTold(Main, OnContainer(index), Label(link));
    ASSERT_TRUE(told);
    EXPECT_EQ(told->Place.Left, std::min(icon.Left, label.Left));
    EXPECT_EQ(told->Place.Right(), std::max(icon.Right(), label.Right()));
    EXPECT_FALSE(told->Scrolled);
    const ElementId hit = ToldElementAt(Main, OnContainer(index), {icon.Left + 1, icon.Top + 1});
    EXPECT_EQ(hit, Label(link));
}

TEST_F(Accessible, WhatIsScrolledOutIsToldAndSaysSo) {
    const int index = New({600, 600, 3000, 3000});
    const int link = NewLink(InContainer(index), {500, 9000});
    SetObjectRelativeSize(Main, index);
    ASSERT_TRUE(PlaceOfTold(Main, OnContainer(index), Label(link)));
    EXPECT_TRUE(PlaceOfTold(Main, OnContainer(index), Label(link))->Scrolled);
    EXPECT_GT(PlaceOfTold(Main, OnContainer(index), Label(link))->Place.Top, 9000);
    EXPECT_GT(PlaceOfTold(Main, OnContainer(index), Label(link))->Place.Height, 0);
    ScrollContainer(Main, index, 1e6F);
    EXPECT_FALSE(PlaceOfTold(Main, OnContainer(index), Label(link))->Scrolled);
}

TEST_F(Accessible, WhereTheGroundIsNoElementIs) {
    const int index = New({600, 600, 3000, 3000});
    EXPECT_EQ(ToldElementAt(Main, OnContainer(index), {1500, 1500}).Kind, ElementKind::None);
    EXPECT_EQ(ToldElementAt(Main, OnBack, {6000, 6000}).Kind, ElementKind::None);
}

TEST_F(Accessible, AContainerDoesByNameWhatItsMarksDo) {
    const int index = New({600, 600, 3000, 3000});
    EXPECT_EQ(Actions(OnContainer(index)), "Shrink|Show Note|Fold|Show Menu");
    EXPECT_TRUE(DoAction(Main, OnContainer(index), {}, "Fold"));
    EXPECT_TRUE(IsFolded(Main, index));
    EXPECT_EQ(Actions(OnContainer(index)), "Shrink|Show Note|Unfold|Show Menu");
    EXPECT_FALSE(DoAction(Main, OnContainer(index), {}, "Fold")) << "it is folded already";
    EXPECT_TRUE(DoAction(Main, OnContainer(index), {}, "Unfold"));
    EXPECT_FALSE(IsFolded(Main, index));
    EXPECT_TRUE(DoAction(Main, OnContainer(index), {}, "Shrink"));
    Wait(2000);
    EXPECT_TRUE(IsShrunk(Main, index));
    EXPECT_EQ(Actions(OnContainer(index)), "Expand|Show Menu");
    EXPECT_EQ(Actions(OnContainer(index), {ElementKind::ContainerIcon, index}), "Expand|Show Menu");
    EXPECT_TRUE(DoAction(Main, OnContainer(index), {}, "Expand"));
    Wait(2000);
    EXPECT_FALSE(IsShrunk(Main, index));
}

TEST_F(Accessible, TheBarBringsTheWorkspaceOutByItsAction) {
    const SurfaceId bar{SurfaceKind::MiniDock, -1};
    EXPECT_FALSE(DoAction(Main, bar, {}, "Bring Out")) << "there is no bar yet";
    Main.View.Visible = true;
    DockMe(Main, 2, false);
    ASSERT_EQ(Main.Dock.DockPosition, 2);
    EXPECT_EQ(Actions(bar), "Bring Out");
    EXPECT_TRUE(ToldElements(Main, bar).empty()) << "the bar is one thing";
    EXPECT_TRUE(DoAction(Main, bar, {}, "Bring Out"));
    EXPECT_EQ(Main.Dock.DockPosition, 0);
    EXPECT_TRUE(Main.View.Visible);
}

TEST_F(Accessible, AShortcutStartsByItsActionAndHasAMenu) {
    const int link = NewLink(OnWorkspace(), {900, 900});
    computer.Files.Put("/usr/bin/thing", "");
    EXPECT_EQ(Actions(OnBack, Label(link)), "Start|Show Menu");
    EXPECT_TRUE(DoAction(Main, OnBack, Label(link), "Start"));
    EXPECT_EQ(computer.Shell.LastLaunch(), "start /usr/bin/thing");
    EXPECT_FALSE(DoAction(Main, OnBack, Label(link), "Fold"));
}

TEST_F(Accessible, ANoteOpensByItsAction) {
    const int index = New({600, 600, 3000, 3000});
    EXPECT_TRUE(DoAction(Main, OnContainer(index), {}, "Show Note"));
    const auto wish = Main.ConView(index).ContainerNote.FocusWish;
    EXPECT_TRUE(DoAction(Main, OnContainer(index), {ElementKind::ContainerNote, index}, "Edit"));
    EXPECT_EQ(Main.ConView(index).ContainerNote.FocusWish, wish + 1);
}

TEST_F(Accessible, AReminderSaysWhatItsFootSays) {
    const int index = New({600, 600, 3000, 3000});
    EXPECT_EQ(DescribeTold(Main, OnContainer(index), {}).Tip, "");
    Main.Con(index).SetReminder(true, 2030, 1, 2, 3, 4, {});
    EXPECT_EQ(DescribeTold(Main, OnContainer(index), {}).Tip, "Reminder");
}

TEST_F(Accessible, TheMenuOpensAtWhatItIsOf) {
    const int index = New({600, 600, 3000, 3000});
    const int link = NewLink(InContainer(index), {500, 500});
    computer.Questions.DismissMenu();
    EXPECT_TRUE(DoAction(Main, OnContainer(index), Label(link), "Show Menu"));
    EXPECT_EQ(computer.Questions.Menus.back().substr(0, 6), "&Start");
    computer.Questions.DismissMenu();
    EXPECT_TRUE(DoAction(Main, OnContainer(index), {}, "Show Menu"));
    EXPECT_EQ(Main.Group.CurrentContainer, index);
    EXPECT_NE(computer.Questions.Menus.back().find("&Remove"), std::string::npos)
        << computer.Questions.Menus.back();
    computer.Questions.DismissMenu();
    EXPECT_TRUE(DoAction(Main, OnBack, {}, "Show Menu"));
    EXPECT_EQ(computer.Questions.Menus.size(), 3U);
}

TEST_F(Accessible, TheSizeThatFitsIsOnTheMarkInTheCorner) {
    const int index = New({600, 600, 3000, 3000});
    const auto before = BoxWords(index);
    EXPECT_TRUE(DoAction(Main, OnContainer(index), {ElementKind::ResizeSymbol, index}, "Auto Resize"));
    EXPECT_NE(BoxWords(index), before);
    EXPECT_EQ(Main.Group.ResizingContainer, -1) << "nothing is held";
}

TEST_F(Accessible, TheCaptionMaximizesAndRestores) {
    const ElementId caption{ElementKind::lblCaption, -1};
    EXPECT_EQ(Actions(OnBack, caption), "Maximize");
    EXPECT_TRUE(DoAction(Main, OnBack, caption, "Maximize"));
    EXPECT_TRUE(Main.Dock.Maximized);
    EXPECT_EQ(Actions(OnBack, caption), "Restore");
}

TEST_F(Accessible, ASurfaceHasTheNameOfItsObject) {
    const int index = New({600, 600, 3000, 3000}, "Mail");
    const SurfaceId picture{SurfaceKind::Picture, NewPicture({5000, 5000, 900, 900})};
    EXPECT_EQ(DescribeTold(Main, OnBack, {}).Name, "Workspace");
    EXPECT_EQ(DescribeTold(Main, OnContainer(index), {}).Name, "Mail");
    EXPECT_EQ(DescribeTold(Main, OnContainer(index), {}).Role, Role::Pane);
    EXPECT_EQ(DescribeTold(Main, picture, {}).Name, "cat.png");
    EXPECT_EQ(DescribeTold(Main, picture, {}).Role, Role::Image);
}

TEST_F(Accessible, NothingIsWithoutAName) {
    const int index = New({600, 600, 3000, 3000}, "");
    const int link = NewLink(InContainer(index), {500, 500});
    Main.Link(link).FullCaption = " ";
    EXPECT_EQ(DescribeTold(Main, OnContainer(index), {}).Name, "Container");
    EXPECT_EQ(DescribeTold(Main, OnContainer(index), Label(link)).Name, "thing");
    Main.Link(link).Path.clear();
    EXPECT_EQ(DescribeTold(Main, OnContainer(index), Label(link)).Name, "Shortcut");
}

TEST_F(Accessible, WhatIsDeadOrElsewhereIsNeitherDescribedNorDone) {
    const int index = New({600, 600, 3000, 3000});
    const int link = NewLink(InContainer(index), {500, 500});
    EXPECT_TRUE(LiesOn(Main, OnContainer(index), Label(link)));
    EXPECT_FALSE(LiesOn(Main, OnBack, Label(link)));
    DeleteContainer(Main, index, false);
    for (const ElementId id : {ElementId{}, Label(link), ElementId{ElementKind::lblFoldUnfold, index}}) {
        EXPECT_FALSE(LiesOn(Main, OnContainer(index), id)) << NameOf(id.Kind);
        EXPECT_EQ(DescribeTold(Main, OnContainer(index), id).Name, "");
        EXPECT_EQ(Actions(OnContainer(index), id), "");
        EXPECT_FALSE(DoAction(Main, OnContainer(index), id, "Fold"));
        EXPECT_FALSE(FocusElement(Main, OnContainer(index), id));
        EXPECT_FALSE(PlaceOfTold(Main, OnContainer(index), id));
    }
    EXPECT_FALSE(LiesOn(Main, OnContainer(99), {}));
    EXPECT_FALSE(LiesOn(Main, OnContainer(-1), {}));
}

TEST_F(Accessible, TheKeyboardIsBroughtToWhatHasAnAction) {
    const int index = New({600, 600, 3000, 3000});
    const int link = NewLink(InContainer(index), {500, 9000});
    SetObjectRelativeSize(Main, index);
    EXPECT_TRUE(FocusElement(Main, OnContainer(index), Label(link)));
    EXPECT_EQ(Main.View.Focus, Label(link));
    EXPECT_TRUE(Main.View.FocusVisible);
    EXPECT_FALSE(PlaceOfTold(Main, OnContainer(index), Label(link))->Scrolled) << "it is scrolled into view";
    EXPECT_FALSE(FocusElement(Main, OnContainer(index), {ElementKind::shapeTags, index}));
    EXPECT_EQ(Main.View.Focus, Label(link));
}

TEST_F(Accessible, ADisabledLabelDoesNothing) {
    const int link = NewLink(OnWorkspace(), {900, 900});
    Main.LinkView(link).lblShortcut.Enabled = false;
    EXPECT_EQ(Actions(OnBack, Label(link)), "Show Menu");
    EXPECT_FALSE(FocusElement(Main, OnBack, Label(link)));
}

TEST_F(Accessible, NothingIsDoneWhileTheWorkspaceLoadsOrEnds) {
    const int index = New({600, 600, 3000, 3000});
    Main.IsLoading = true;
    EXPECT_FALSE(DoAction(Main, OnContainer(index), {}, "Fold"));
    Main.IsLoading = false;
    Main.IsExiting = true;
    EXPECT_FALSE(DoAction(Main, OnContainer(index), {}, "Fold"));
    EXPECT_FALSE(IsFolded(Main, index));
    Main.IsExiting = false;
}

} // namespace
} // namespace quill
