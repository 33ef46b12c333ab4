#include "containers/workspace_fixture.h"

#include "containers/fold.h"
#include "core/keyboard_focus.h"
#include "notes/notes.h"

namespace quill {
namespace {

struct ElementsOf : test::WorkspaceFixture {
    int NewPicture(Parent in, const Rect& place) {
        Main.IsLoading = true;
        bool ok = false;
        AddPicture(Main, "/home/user/Pictures/cat.png", in, place, ok);
        Main.IsLoading = false;
        return Main.NextPictureIndex - 1;
    }
};

TEST_F(ElementsOf, TheEmptyWorkspaceHasItsTitleRowAndWhatWorksInIt) {
    EXPECT_EQ(Seen(OnBack), "picBack picMoveMe lblCaption PicMenu PicUnLockToolbar PicDock");
}

TEST_F(ElementsOf, AnOpenContainerHasItsTitleRowFrameShortcutsAndResizeMark) {
    const int index = New({600, 600, 3000, 3000});
    NewLink(InContainer(index), {500, 500});
    NewLink(OnWorkspace(), {500, 500});
    EXPECT_EQ(Seen(OnContainer(index)),
              "Container ContainerLabel shapeShrink lblPinNote lblFoldUnfold ContainerFrame "
              "lblShortcut picShortcut ResizeSymbol");
}

TEST_F(ElementsOf, AShownNoteCoversTheShortcuts) {
    const int index = New({600, 600, 3000, 3000});
    NewLink(InContainer(index), {500, 500});
    lblPinNote_Click(Main, index);
    EXPECT_EQ(Seen(OnContainer(index)),
              "Container ContainerLabel shapeShrink lblPinNote lblFoldUnfold ContainerFrame "
              "ContainerNote ResizeSymbol");
    EXPECT_EQ(ElementAt(Main, OnContainer(index), {800, 900}).Kind, ElementKind::ContainerNote);
}

TEST_F(ElementsOf, ATileIsItsIconAllOver) {
    const int tile = NewTile(600, 600);
    EXPECT_EQ(Seen(OnContainer(tile)), "Container ContainerIcon");
    for (const Point at : {Point{0, 0}, {699, 949}, {350, 475}}) {
        EXPECT_EQ(ElementAt(Main, OnContainer(tile), at), (ElementId{ElementKind::ContainerIcon, tile}));
    }
    const auto icon = Find(OnContainer(tile), ElementKind::ContainerIcon, tile);
    EXPECT_EQ(icon.Name, "Work");
    EXPECT_EQ(icon.Tip, "Shrink/Expand");
}

struct HitRow {
    Point At;
    ElementKind Kind;
};

TEST_F(ElementsOf, ThePressedElementIsTheOneOnTop) {
    const int index = New({600, 600, 3000, 3000});
    const HitRow rows[] = {
        {{0, 0}, ElementKind::shapeShrink},
        {{229, 199}, ElementKind::shapeShrink},
        {{230, 10}, ElementKind::Container},
        {{260, 30}, ElementKind::ContainerLabel},
        {{2019, 269}, ElementKind::ContainerLabel},
        {{2020, 100}, ElementKind::Container},
        {{2440, 45}, ElementKind::lblPinNote},
        {{2720, 45}, ElementKind::lblFoldUnfold},
        {{2919, 244}, ElementKind::lblFoldUnfold},
        {{10, 290}, ElementKind::ContainerFrame},
        {{2669, 2669}, ElementKind::ContainerFrame},
        {{2670, 2670}, ElementKind::ResizeSymbol},
        {{2999, 2999}, ElementKind::ResizeSymbol},
        {{3000, 3000}, ElementKind::None},
        {{-1, 10}, ElementKind::None},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(NameOf(ElementAt(Main, OnContainer(index), row.At).Kind), NameOf(row.Kind))
            << row.At.X << "," << row.At.Y;
    }
}

TEST_F(ElementsOf, TheWalkAndTheHitTestAgreeEverywhere) {
    const int index = New({600, 600, 3000, 3000});
    for (int link = 0; link < 12; ++link) NewLink(InContainer(index), {500, static_cast<float>(link) * 400});
    SetObjectRelativeSize(Main, index);
    ScrollContainer(Main, index, 700);
    for (float y = -15; y < 3030; y += 37) {
        for (float x = -15; x < 3030; x += 41) {
            ElementId last;
            Elements(Main, OnContainer(index), [&](const ElementInfo& info) {
                if (info.Place.Contains(x, y)) last = info.Id;
                return true;
            });
            ASSERT_EQ(ElementAt(Main, OnContainer(index), {x, y}), last) << x << "," << y;
        }
    }
}

TEST_F(ElementsOf, TheWalkEndsWhenTheVisitorHasEnough) {
    New({600, 600, 3000, 3000});
    int seen = 0;
    Elements(Main, OnContainer(0), [&](const ElementInfo&) { return ++seen < 3; });
    EXPECT_EQ(seen, 3);
}

TEST_F(ElementsOf, EveryElementSaysWhatItIsAndWhatAPressDoes) {
    const int index = New({600, 600, 3000, 3000}, "Work");
    const int link = NewLink(InContainer(index), {500, 500});
    Main.Link(link).FullCaption = "The whole name";
    Main.Link(link).Tip = "a comment";
    const auto find = [&](ElementKind kind, int at) { return Find(OnContainer(index), kind, at); };
    EXPECT_EQ(find(ElementKind::ContainerLabel, index).Name, "Work");
    EXPECT_EQ(find(ElementKind::lblFoldUnfold, index).Action, "Fold");
    EXPECT_EQ(find(ElementKind::lblFoldUnfold, index).Tip, "Fold | Double-Click Container Label");
    EXPECT_TRUE(find(ElementKind::lblFoldUnfold, index).Expanded);
    EXPECT_EQ(find(ElementKind::lblPinNote, index).Tip, "Show Note");
    EXPECT_EQ(find(ElementKind::shapeShrink, index).Tip, "Shrink/Expand");
    EXPECT_EQ(find(ElementKind::ResizeSymbol, index).Tip,
              "Right/Middle Click: Auto Resize | Left Click: Drag to manually set the size");
    EXPECT_EQ(find(ElementKind::lblShortcut, link).Name, "The whole name");
    EXPECT_EQ(find(ElementKind::lblShortcut, link).Action, "Start");
    EXPECT_EQ(find(ElementKind::lblShortcut, link).Tip, "a comment");
    EXPECT_EQ(find(ElementKind::lblShortcut, link).Role, Role::ListItem);
    Main.Settings.ShortcutTooltips = false;
    EXPECT_EQ(find(ElementKind::lblShortcut, link).Tip, "");
    FoldUnfoldContainer(Main, index, false);
    EXPECT_EQ(find(ElementKind::lblFoldUnfold, index).Name, "Unfold");
    EXPECT_EQ(find(ElementKind::lblFoldUnfold, index).Tip, "Unfold | Double-Click Container Label");
}

TEST_F(ElementsOf, EveryElementOfEveryStateHasANameForThoseWhoDoNotSeeIt) {
    const int open = New({600, 600, 3000, 3000}), tile = NewTile(4000, 600),
              folded = New({600, 5000, 3000, 3000});
    NewLink(InContainer(open), {500, 4000});
    Main.Con(open).ShowingTag = "";
    Main.ConView(open).ContainerNote.Text = "milk";
    SetObjectRelativeSize(Main, open);
    FoldUnfoldContainer(Main, folded, false);
    NewPicture(OnWorkspace(), {5000, 5000, 900, 900});
    Main.Group.frmSelection.Loaded = Main.Looks.frmExplode.Loaded = true;
    Main.Group.frmSelection.Place = Main.Looks.frmExplode.Now = {100, 100, 900, 900};
    for (const auto& surface : Surfaces(Main)) {
        Elements(Main, surface, [&](const ElementInfo& info) {
            EXPECT_FALSE(info.Name.empty()) << NameOf(info.Id.Kind);
            return true;
        });
    }
    EXPECT_TRUE(IsShrunk(Main, tile));
}

TEST_F(ElementsOf, WhateverNamesAnActionDoesIt) {
    const int open = New({600, 600, 3000, 3000}), folded = New({600, 5000, 3000, 3000}),
              noted = New({5000, 600, 3000, 3000}), tile = NewTile(9000, 600);
    NewLink(InContainer(open), {500, 500});
    NewLink(OnWorkspace(), {5000, 5000});
    FoldUnfoldContainer(Main, folded, false);
    lblPinNote_Click(Main, noted);
    NewPicture(OnWorkspace(), {5000, 6000, 900, 900});
    std::vector<std::pair<SurfaceId, ElementId>> doing;
    for (const auto& surface : Surfaces(Main)) {
        Elements(Main, surface, [&](const ElementInfo& info) {
            if (!info.Action.empty()) doing.emplace_back(surface, info.Id);
            return true;
        });
    }
    EXPECT_GT(doing.size(), 15U);
    for (const auto& [surface, element] : doing) {
        computer.Questions.DismissMenu();
        bool still = false; // what was done before may have taken it away
        Elements(Main, surface, [&](const ElementInfo& info) { return !(still |= info.Id == element); });
        if (!still) continue;
        EXPECT_TRUE(ActivateElement(Main, surface, element)) << NameOf(element.Kind);
    }
    EXPECT_FALSE(IsShrunk(Main, tile));
}

TEST_F(ElementsOf, EachKindHasItsOwnName) {
    EXPECT_EQ(NameOf(ElementKind::picBack), "picBack");
    EXPECT_EQ(NameOf(ElementKind::lblFoldUnfold), "lblFoldUnfold");
    EXPECT_EQ(NameOf(ElementKind::ResizeSymbol), "ResizeSymbol");
    EXPECT_EQ(NameOf(ElementKind::picShortcut), "picShortcut");
    EXPECT_EQ(NameOf(ElementKind::PictureGrip), "PictureGrip");
}

TEST_F(ElementsOf, TheTitleRowLiesOverShortcutsThatRunUnderIt) {
    const int link = NewLink(OnWorkspace(), {1000, 100});
    EXPECT_EQ(ElementAt(Main, OnBack, {1010, 120}).Kind, ElementKind::lblCaption);
    EXPECT_EQ(ElementAt(Main, OnBack, {1010, 335}), (ElementId{ElementKind::lblShortcut, link}));
}

TEST_F(ElementsOf, SurfacesComeInStackingOrderWithTheWorkspaceBelow) {
    const int one = New({600, 600, 3000, 3000}), two = New({600, 600, 3000, 3000});
    const int picture = NewPicture(OnWorkspace(), {5000, 5000, 900, 900});
    AddToZorderCollection(Main, {KindContainer, one}, false);
    EXPECT_EQ(Surfaces(Main), (std::vector<SurfaceId>{{SurfaceKind::Workspace, -1},
                                                      {SurfaceKind::Container, two},
                                                      {SurfaceKind::Picture, picture},
                                                      {SurfaceKind::Container, one},
                                                      {SurfaceKind::JumpTo, -1},
                                                      {SurfaceKind::Overlay, -1}}));
}

TEST_F(ElementsOf, APictureInAContainerFollowsItsFrameAndScrolling) {
    const int index = New({600, 700, 3000, 3000});
    const int picture = NewPicture(InContainer(index), {100, 2000, 900, 2000});
    const SurfaceId surface{SurfaceKind::Picture, picture};
    SetObjectRelativeSize(Main, index);
    EXPECT_EQ(fake::Words(PlaceOfSurface(Main, surface)), "100,2290 900x2000");
    ScrollContainer(Main, index, 500);
    EXPECT_EQ(fake::Words(PlaceOfSurface(Main, surface)), "100,1790 900x2000");
    EXPECT_EQ(fake::Words(PlaceOfSurface(Main, OnContainer(index))), "600,700 3000x3000");
    EXPECT_EQ(fake::Words(PlaceOfSurface(Main, OnBack)), "20,15 12000x9000");
}

TEST_F(ElementsOf, APictureInAContainerIsSeenOnlyWhileTheFrameIs) {
    const int index = New({600, 700, 3000, 3000});
    const int picture = NewPicture(InContainer(index), {100, 100, 900, 900});
    const SurfaceId surface{SurfaceKind::Picture, picture};
    EXPECT_TRUE(SurfaceVisible(Main, surface));
    FoldUnfoldContainer(Main, index, false);
    EXPECT_FALSE(SurfaceVisible(Main, surface));
    FoldUnfoldContainer(Main, index, false);
    lblPinNote_Click(Main, index);
    EXPECT_FALSE(SurfaceVisible(Main, surface));
    lblPinNote_Click(Main, index);
    ExpandShrinkContainer(Main, index, false);
    EXPECT_FALSE(SurfaceVisible(Main, surface));
    ExpandShrinkContainer(Main, index, false);
    EXPECT_TRUE(SurfaceVisible(Main, surface));
    Main.ConView(index).Container.Visible = false;
    EXPECT_FALSE(SurfaceVisible(Main, surface));
    DeletePicture(Main, picture);
    EXPECT_FALSE(SurfaceVisible(Main, surface));
}

TEST_F(ElementsOf, WhatIsDeadHasNoElementsAndNoPlace) {
    const int index = New({600, 700, 3000, 3000});
    DeleteContainer(Main, index, false);
    for (const auto surface : {OnContainer(index), OnContainer(-1), SurfaceId{SurfaceKind::Picture, 4}}) {
        EXPECT_EQ(Seen(surface), "");
        EXPECT_EQ(PlaceOfSurface(Main, surface), Rect{});
        EXPECT_FALSE(SurfaceVisible(Main, surface));
        EXPECT_EQ(ElementAt(Main, surface, {1, 1}).Kind, ElementKind::None);
    }
}

} // namespace
} // namespace quill
