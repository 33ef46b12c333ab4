#include "containers/boundaries.h"
#include "containers/workspace_fixture.h"

#include "containers/fold.h"
#include "containers/full_size.h"
#include "containers/scroll.h"

namespace quill {
namespace {

// picBack is 12000 by 9000, its title row 330 high: what is at or above 480 goes below the title.
struct Boundaries : test::WorkspaceFixture {
    Rect LabelAfter(Parent in, const Rect& label) {
        const int link = LinkAt(in, label);
        CheckBoundaries(Main, {MovedKind::Shortcut, link}, true);
        return Main.LinkView(link).lblShortcut.Place;
    }
    int LinkAt(Parent in, const Rect& label) {
        const int link = NewLink(in, {label.Left, label.Top});
        Main.LinkView(link).lblShortcut.Place = label;
        Main.LinkView(link).LabelMeasured = true;
        MoveLinkIcon(Main, link);
        return link;
    }
    Rect ContainerAfter(const Rect& place, bool internalMove = true) {
        const int index = New(place);
        CheckBoundaries(Main, {MovedKind::Container, index}, internalMove);
        return Box(index);
    }
    Rect PictureAfter(Parent in, const Rect& place) {
        Main.IsLoading = true; // the file itself is of no interest
        bool ok = false;
        AddPicture(Main, "/home/ann/sea.jpg", in, place, ok);
        Main.IsLoading = false;
        const int picture = Main.NextPictureIndex - 1;
        CheckBoundaries(Main, {MovedKind::Picture, picture}, true);
        return Main.PicView(picture).PicContainer;
    }
};

std::string Corner(const Rect& place) {
    return fake::Words(Point{place.Left, place.Top});
}

TEST_F(Boundaries, WhatStandsWellStaysToTheTwip) {
    EXPECT_EQ(fake::Words(ContainerAfter({600, 600, 3000, 3000})), "600,600 3000x3000");
    EXPECT_EQ(Corner(LabelAfter(OnWorkspace(), {600, 600, 900, 240})), "600,600");
    EXPECT_EQ(Corner(LabelAfter(InContainer(0), {600, 600, 900, 240})), "600,600");
}

TEST_F(Boundaries, NothingStandsUnderTheTitleOfTheWorkspace) {
    struct Row {
        float Top, After;
    };
    for (const auto& row : {Row{-900, 480}, Row{0, 480}, Row{479, 480}, Row{480, 480}, Row{481, 481}})
        EXPECT_EQ(ContainerAfter({600, row.Top, 3000, 3000}).Top, row.After) << row.Top;
}

TEST_F(Boundaries, AShortcutDroppedUnderTheTitleBarTakesFiftyTwipsMoreThanAContainer) {
    EXPECT_EQ(LabelAfter(OnWorkspace(), {600, 300, 900, 240}).Top,
              ContainerAfter({600, 300, 3000, 3000}).Top + 50);
    EXPECT_EQ(LabelAfter(OnWorkspace(), {600, 530, 900, 240}).Top, 530);
    EXPECT_EQ(LabelAfter(OnWorkspace(), {600, 480, 900, 240}).Top, 530);
}

TEST_F(Boundaries, InAFrameAShortcutGoesTo240AndAPictureTo100) {
    const int index = New({600, 600, 4000, 4000});
    struct Row {
        float Top, Shortcut, Picture;
    };
    for (const auto& row : {Row{-50, 240, 100}, Row{0, 240, 100}, Row{190, 240, 100}, Row{191, 191, 191}}) {
        EXPECT_EQ(LabelAfter(InContainer(index), {600, row.Top, 900, 240}).Top, row.Shortcut) << row.Top;
        EXPECT_EQ(PictureAfter(InContainer(index), {600, row.Top, 900, 900}).Top, row.Picture) << row.Top;
    }
}

TEST_F(Boundaries, APictureOnTheWorkspaceStandsBelowItsTitle) {
    EXPECT_EQ(fake::Words(PictureAfter(OnWorkspace(), {600, 100, 900, 900})), "600,480 900x900");
}

TEST_F(Boundaries, ANegativeLeftEndsAtExactly100AndNotAt0) {
    EXPECT_EQ(ContainerAfter({-1, 600, 3000, 3000}).Left, 100);
    EXPECT_EQ(ContainerAfter({-9000, 600, 3000, 3000}).Left, 100);
    EXPECT_EQ(LabelAfter(OnWorkspace(), {-1, 600, 900, 240}).Left, 100);
    EXPECT_EQ(PictureAfter(OnWorkspace(), {-1, 600, 900, 900}).Left, 100);
    EXPECT_EQ(ContainerAfter({0, 600, 3000, 3000}).Left, 0);
}

TEST_F(Boundaries, WithLessThan700AtItsRightAnObjectComesBackWhole) {
    EXPECT_EQ(ContainerAfter({11300, 600, 3000, 3000}).Left, 11300);
    EXPECT_EQ(ContainerAfter({11301, 600, 3000, 3000}).Left, 8900);
    EXPECT_EQ(LabelAfter(OnWorkspace(), {20000, 600, 900, 240}).Left, 11000);
}

TEST_F(Boundaries, AShortcutNeeds200BelowItsTopAndAnythingElse500) {
    EXPECT_EQ(LabelAfter(OnWorkspace(), {600, 8800, 900, 240}).Top, 8800);
    EXPECT_EQ(LabelAfter(OnWorkspace(), {600, 8801, 900, 240}).Top, 8660);
    EXPECT_EQ(ContainerAfter({600, 8500, 3000, 3000}).Top, 8500);
    EXPECT_EQ(ContainerAfter({600, 8501, 3000, 3000}).Top, 5900);
    EXPECT_EQ(PictureAfter(OnWorkspace(), {600, 8501, 900, 900}).Top, 8000);
}

TEST_F(Boundaries, InAFrameTheFramesOwnEdgesCount) {
    const int index = New({600, 600, 4000, 4000}); // a frame of 4000 by 3710
    EXPECT_EQ(Corner(LabelAfter(InContainer(index), {3301, 600, 900, 240})), "3000,600");
    EXPECT_EQ(Corner(LabelAfter(InContainer(index), {600, 3511, 900, 240})), "600,3370");
    EXPECT_EQ(Corner(PictureAfter(InContainer(index), {600, 3211, 900, 900})), "600,2710");
}

TEST_F(Boundaries, TheIconGoesAlongWithItsLabel) {
    const int link = LinkAt(OnWorkspace(), {20000, 20000, 900, 240});
    CheckBoundaries(Main, {MovedKind::Shortcut, link}, true);
    EXPECT_EQ(fake::Words(Main.LinkView(link).picShortcut), "10750,8660 240x240");
}

TEST_F(Boundaries, WhatIsLargerThanItsSurfaceKeepsItsTitleInSight) {
    EXPECT_EQ(fake::Words(ContainerAfter({11500, 8800, 20000, 15000})), "100,480 20000x15000");
    const int small = New({600, 600, 900, 900});
    EXPECT_EQ(fake::Words(LabelAfter(InContainer(small), {800, 800, 5000, 240})), "100,270 5000x240");
    EXPECT_EQ(fake::Words(PictureAfter(InContainer(small), {800, 800, 5000, 5000})), "100,100 5000x5000");
}

TEST_F(Boundaries, CheckedTwiceNothingMovesAgain) {
    for (const Rect& place : {Rect{-500, -500, 3000, 3000}, Rect{20000, 20000, 3000, 3000},
                              Rect{11500, 8800, 20000, 15000}, Rect{400, 100, 700, 760}}) {
        const int index = New(place);
        CheckBoundaries(Main, {MovedKind::Container, index}, true);
        const auto once = BoxWords(index);
        CheckBoundaries(Main, {MovedKind::Container, index}, true);
        EXPECT_EQ(BoxWords(index), once);
    }
}

TEST_F(Boundaries, DroppedInTheVisiblePartOfAScrolledFrameAShortcutStaysThere) {
    const int index = New({600, 600, 4000, 4000});
    LinkAt(InContainer(index), {600, 9000, 900, 240});
    ScrollContainer(Main, index, 3000); // 3000 to 6710 is seen
    EXPECT_EQ(LabelAfter(InContainer(index), {600, 5000, 900, 240}).Top, 5000);
    EXPECT_EQ(LabelAfter(InContainer(index), {600, 6600, 900, 240}).Top, 6370);
}

TEST_F(Boundaries, WhereAFrameScrollsAnyhowWhatLiesBelowStaysBelow) {
    const int index = New({600, 600, 4000, 4000});
    const int lower = LinkAt(InContainer(index), {600, 9000, 900, 240});
    EXPECT_EQ(LabelAfter(InContainer(index), {600, 7000, 900, 240}).Top, 7000);
    CheckBoundaries(Main, {MovedKind::Shortcut, lower}, true);
    EXPECT_EQ(Main.LinkView(lower).lblShortcut.Place.Top, 9000);
}

TEST_F(Boundaries, TheOnlyShortcutBelowAFrameComesBackIntoIt) {
    const int index = New({600, 600, 4000, 4000});
    EXPECT_EQ(LabelAfter(InContainer(index), {600, 9000, 900, 240}).Top, 3370);
}

TEST_F(Boundaries, WhatIsDroppedOnATileOrAFoldedContainerIsPlacedForTheOpenOne) {
    const int tile = NewTile(600, 600), folded = New({600, 600, 4000, 4000});
    FoldUnfoldContainer(Main, folded, false);
    EXPECT_EQ(Corner(LabelAfter(InContainer(tile), {1500, 1200, 900, 240})), "1500,1200");
    EXPECT_EQ(Corner(LabelAfter(InContainer(tile), {2500, 2600, 900, 240})), "2000,2370");
    EXPECT_EQ(Corner(LabelAfter(InContainer(folded), {1500, 3000, 900, 240})), "1500,3000");
}

TEST_F(Boundaries, DeadObjectsAreLeftAlone) {
    const int index = New({-500, 600, 3000, 3000});
    DeleteContainer(Main, index, false);
    Main.Marks.Take();
    for (const int gone : {index, -1, 99}) {
        for (const auto kind : {MovedKind::Container, MovedKind::Shortcut, MovedKind::Picture})
            CheckBoundaries(Main, {kind, gone}, true);
    }
    EXPECT_TRUE(Main.Marks.Pending().Empty());
}

// ---- carried out of the window

struct Outside : Boundaries {
    Outside() {
        Main.View.Window.Left = 2000, Main.View.Window.Top = 1000; // to 14035, 10030
    }
    // Where it stands on the workspace, and where on the desktop it was let go.
    Rect Dropped(const Rect& desktop, bool internalMove = false) {
        const int index = New({desktop.Left - 2020, desktop.Top - 1015, desktop.Width, desktop.Height});
        CheckBoundaries(Main, {MovedKind::Container, index}, internalMove, desktop.Left, desktop.Top,
                        desktop.Width, desktop.Height);
        return Box(index);
    }
};

TEST_F(Outside, ASinglePixelThatStillOverlapsTheWindowIsNotOutside) {
    struct Row {
        const char* Name;
        Rect Place;
        bool Outside;
    };
    const Row rows[] = {
        {"left", {-1001, 3000, 3000, 3000}, true},
        {"left, touching", {-1000, 3000, 3000, 3000}, false},
        {"left, a pixel", {-985, 3000, 3000, 3000}, false},
        {"right", {14036, 3000, 3000, 3000}, true},
        {"right, touching", {14035, 3000, 3000, 3000}, false},
        {"right, a pixel", {14020, 3000, 3000, 3000}, false},
        {"below", {5000, 10031, 3000, 3000}, true},
        {"below, a pixel", {5000, 10015, 3000, 3000}, false},
        {"above", {5000, -2001, 3000, 3000}, true},
        {"above, a pixel", {5000, -1985, 3000, 3000}, false},
    };
    for (const auto& row : rows) EXPECT_EQ(LiesOutside(Main, row.Place), row.Outside) << row.Name;
}

TEST_F(Outside, AContainerCarriedOutOfTheWindowComesBackWhole) {
    EXPECT_EQ(fake::Words(Dropped({-9000, 9000, 3000, 3000})), "100,5900 3000x3000");
    EXPECT_EQ(fake::Words(Dropped({12000, -9000, 3000, 3000})), "8900,480 3000x3000");
}

TEST_F(Outside, OneThatOverlapsTheWindowMayReachOverItsEdge) {
    EXPECT_EQ(fake::Words(Dropped({12000, 9000, 3000, 3000})), "9980,7985 3000x3000");
}

TEST_F(Outside, ItIsNotAskedDuringALoadNorOfAMoveFromWithinNorWithTheOptionOff) {
    const Rect left{-9000, 9000, 3000, 3000};
    const char* reachesOver = "100,7985 3000x3000";
    EXPECT_EQ(fake::Words(Dropped(left, true)), reachesOver);
    Main.Settings.DragToDetach = false;
    EXPECT_EQ(fake::Words(Dropped(left)), reachesOver);
    Main.Settings.DragToDetach = true;
    Main.IsLoading = true;
    EXPECT_EQ(fake::Words(Dropped(left)), reachesOver);
    Main.IsLoading = false;
    EXPECT_NE(fake::Words(Dropped(left)), reachesOver);
}

// ---- the grid

struct Snap : test::WorkspaceFixture {};

TEST_F(Snap, WithoutAlignAPlaceStaysAsItIs) {
    EXPECT_EQ(SnapToGrid(Main, OnWorkspace(), {1234, 2345}), (Point{1234, 2345}));
}

TEST_F(Snap, WithAlignAPlaceGoesToTheNearestLineOfTheRowSpacing) {
    Main.Dock.Align = true;
    EXPECT_EQ(SnapToGrid(Main, OnWorkspace(), {1234, 2345}), (Point{1240, 2325}));
    EXPECT_EQ(SnapToGrid(Main, OnWorkspace(), {1240, 2325}), (Point{1240, 2325}));
    Main.Settings.LineSpacing = 300;
    EXPECT_EQ(SnapToGrid(Main, OnWorkspace(), {1234, 2345}), (Point{1200, 2400}));
}

TEST_F(Snap, AContainerHasAGridOfItsOwn) {
    const int index = New({600, 600, 4000, 4000});
    Main.Dock.Align = true;
    Main.Con(index).LineSpacing = 450;
    EXPECT_EQ(SnapToGrid(Main, InContainer(index), {700, 700}), (Point{900, 900}));
    Main.Con(index).LineSpacing = 7; // of a file: no spacing at all
    EXPECT_EQ(SnapToGrid(Main, InContainer(index), {700, 700}), (Point{775, 775}));
}

TEST_F(Snap, NoLineLiesUnderATitleSoThatWhatHasSnappedStays) {
    Main.Dock.Align = true;
    const int index = New({600, 600, 4000, 4000});
    for (const auto& in : {OnWorkspace(), InContainer(index)}) {
        const auto at = SnapToGrid(Main, in, {1000, 10});
        const int link = NewLink(in, at);
        CheckBoundaries(Main, {MovedKind::Shortcut, link}, true);
        EXPECT_EQ(Main.LinkView(link).lblShortcut.Place.Top, at.Y);
    }
}

} // namespace
} // namespace quill
