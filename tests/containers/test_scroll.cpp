#include "containers/scroll.h"
#include "containers/workspace_fixture.h"

#include "containers/fold.h"
#include "notes/notes.h"

namespace quill {
namespace {

struct Scroll : test::WorkspaceFixture {
    // 3000 by 3290: its frame is 3000 high, the content 6000.
    int NewLong() {
        const int index = New({600, 600, 3000, 3290});
        links = {NewLink(InContainer(index), {500, 100}), NewLink(InContainer(index), {500, 5000})};
        Measured(links[0], {500, 100, 900, 240});
        Measured(links[1], {500, 5760, 900, 240});
        LayScrollBar(Main, index);
        return index;
    }
    void Measured(int link, const Rect& place) {
        Main.LinkView(link).lblShortcut.Place = place;
        Main.LinkView(link).LabelMeasured = true;
        MoveLinkIcon(Main, link);
    }
    bool Bar(int index) { return Main.ConView(index).VScroll.Visible; }
    float Top(int index) { return Main.ConView(index).ScrollTop; }
    MouseEvent At(float y) { return {{2900, y}, {}, MouseButton::Left}; }
    std::vector<int> links;
};

TEST_F(Scroll, ABarShowsExactlyWhenTheContentIsHigherThanTheFrame) {
    const int index = New({600, 600, 3000, 3290});
    const int link = NewLink(InContainer(index), {500, 100});
    for (const auto& [top, shown] : {std::pair{2760.0F, false}, {2761.0F, true}}) {
        Measured(link, {500, top, 900, 240});
        LayScrollBar(Main, index);
        EXPECT_EQ(ContentHeight(Main, index), top + 240);
        EXPECT_EQ(Bar(index), shown) << top;
    }
}

TEST_F(Scroll, PicturesCountAsContentAndWhatLiesElsewhereDoesNot) {
    const int index = New({600, 600, 3000, 3290}), other = New({600, 600, 3000, 3290});
    Measured(NewLink(OnWorkspace(), {0, 0}), {500, 8000, 900, 240});
    Measured(NewLink(InContainer(other), {0, 0}), {500, 7000, 900, 240});
    EXPECT_EQ(ContentHeight(Main, index), 0);
    Main.IsLoading = true;
    bool ok = false;
    AddPicture(Main, "/home/user/cat.png", InContainer(index), {100, 3000, 500, 500}, ok);
    EXPECT_EQ(ContentHeight(Main, index), 3500);
}

TEST_F(Scroll, ScrollingStaysWithinTheContent) {
    const int index = NewLong();
    EXPECT_TRUE(Bar(index));
    for (const auto& [wanted, got] : {std::pair{-10.0F, 0.0F}, {1200.0F, 1200.0F}, {9000.0F, 3000.0F}}) {
        ScrollContainer(Main, index, wanted);
        EXPECT_EQ(Top(index), got) << wanted;
    }
}

TEST_F(Scroll, AScrolledShortcutIsPressedWhereItIsSeenAndNeverThroughTheTitleRow) {
    const int index = NewLong();
    ScrollContainer(Main, index, 3000);
    EXPECT_EQ(ElementAt(Main, OnContainer(index), {600, 290 + 2800}),
              (ElementId{ElementKind::lblShortcut, links[1]}));
    EXPECT_FALSE(Main.LinkView(links[0]).lblShortcut.Place.Top < 0);
    const auto outside = Find(OnContainer(index), ElementKind::lblShortcut, links[0]);
    EXPECT_EQ(outside.Place.Height, 0);
    EXPECT_EQ(fake::Words(outside.Whole), "500,-2610 900x240");
    ScrollContainer(Main, index, 150);
    const auto cut = Find(OnContainer(index), ElementKind::lblShortcut, links[0]);
    EXPECT_EQ(fake::Words(cut.Place), "500,290 900x190");
}

TEST_F(Scroll, MakingTheContainerHigherTakesTheContentAlong) {
    const int index = NewLong();
    ScrollContainer(Main, index, 3000);
    Box(index).Height += 1000;
    SetObjectRelativeSize(Main, index);
    EXPECT_EQ(Top(index), 2000);
    Box(index).Height += 5000;
    SetObjectRelativeSize(Main, index);
    EXPECT_EQ(Top(index), 0);
    EXPECT_FALSE(Bar(index));
}

TEST_F(Scroll, NoBarStandsOnATileAFoldedContainerOrOverANote) {
    const int index = NewLong();
    FoldUnfoldContainer(Main, index, false);
    EXPECT_FALSE(Bar(index));
    FoldUnfoldContainer(Main, index, false);
    EXPECT_TRUE(Bar(index));
    lblPinNote_Click(Main, index);
    EXPECT_FALSE(Bar(index));
    lblPinNote_Click(Main, index);
    EXPECT_TRUE(Bar(index));
    ExpandShrinkContainer(Main, index, false);
    EXPECT_FALSE(Bar(index));
}

TEST_F(Scroll, FoldingAndUnfoldingKeepsHowFarItWasScrolled) {
    const int index = NewLong();
    ScrollContainer(Main, index, 1234);
    FoldUnfoldContainer(Main, index, false);
    FoldUnfoldContainer(Main, index, false);
    EXPECT_EQ(Top(index), 1234);
}

TEST_F(Scroll, TheWheelMovesThreeLinesANotchAndStopsAtTheEnds) {
    const int index = NewLong();
    ContainerFrame_MouseWheel(Main, index, -2);
    EXPECT_EQ(Top(index), 930);
    ContainerFrame_MouseWheel(Main, index, 1);
    EXPECT_EQ(Top(index), 465);
    ContainerFrame_MouseWheel(Main, index, 5);
    EXPECT_EQ(Top(index), 0);
}

TEST_F(Scroll, TheThumbShowsHowMuchIsSeenAndWhere) {
    const int index = NewLong();
    EXPECT_EQ(fake::Words(Main.ConView(index).VScroll.Place), "2850,30 120x2580");
    EXPECT_EQ(fake::Words(ScrollThumb(Main, index)), "2850,30 120x1290");
    ScrollContainer(Main, index, 3000);
    EXPECT_EQ(fake::Words(ScrollThumb(Main, index)), "2850,1320 120x1290");
}

TEST_F(Scroll, APressBesideTheThumbTurnsAPage) {
    const int index = NewLong();
    VScroll_MouseDown(Main, index, At(290 + 2000));
    EXPECT_EQ(Top(index), 3000);
    VScroll_MouseDown(Main, index, At(290 + 100));
    EXPECT_EQ(Top(index), 0);
    EXPECT_EQ(Main.Group.ScrollingContainer, -1);
}

TEST_F(Scroll, TheThumbFollowsTheMouseUntilTheRelease) {
    const int index = NewLong();
    VScroll_MouseDown(Main, index, At(290 + 100));
    VScroll_MouseMove(Main, At(290 + 100 + 645));
    EXPECT_FLOAT_EQ(Top(index), 1500);
    VScroll_MouseMove(Main, At(99999));
    EXPECT_FLOAT_EQ(Top(index), 3000);
    VScroll_MouseUp(Main);
    VScroll_MouseMove(Main, At(290 + 100));
    EXPECT_FLOAT_EQ(Top(index), 3000);
}

TEST_F(Scroll, WhenTheContainerDiesUnderTheHandNothingIsScrolled) {
    const int index = NewLong();
    VScroll_MouseDown(Main, index, At(290 + 100));
    DeleteContainer(Main, index, false);
    VScroll_MouseMove(Main, At(290 + 900));
    EXPECT_EQ(Main.Group.ScrollingContainer, -1);
}

TEST_F(Scroll, AfterALoadEveryContainerHasItsBarAsIfItWasLaidAlone) {
    const int longOne = NewLong(), shortOne = New({600, 600, 3000, 3290});
    Main.ConView(longOne).VScroll = {{}, false};
    Main.ConView(shortOne).VScroll = {{}, true};
    Main.IsLoading = true;
    ResizeForm(Main);
    EXPECT_TRUE(Bar(longOne));
    EXPECT_FALSE(Bar(shortOne));
    EXPECT_EQ(fake::Words(Main.ConView(longOne).VScroll.Place), "2850,30 120x2580");
}

} // namespace
} // namespace quill
