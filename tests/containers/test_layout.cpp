#include "containers/workspace_fixture.h"

#include "containers/fold.h"

namespace quill {
namespace {

struct Layout : test::WorkspaceFixture {};

std::string Dump(const ContainerView& view) {
    std::string text;
    const auto line = [&](const char* name, const Rect& place) {
        text += std::string(name) + " " + fake::Words(place) + "\n";
    };
    line("frame", view.ContainerFrame.Place);
    line("label", view.ContainerLabel.Place);
    line("fold", view.lblFoldUnfold.Place);
    line("pin", view.lblPinNote.Place);
    line("shrink", view.shapeShrink.Place);
    line("note", view.ContainerNote.Place);
    return text;
}

TEST_F(Layout, TheInnerPartsFollowTheSizeOfTheContainer) {
    const int index = New({600, 600, 4000, 3500});
    EXPECT_EQ(Dump(Main.ConView(index)), "frame 0,290 4000x3210\n"
                                         "label 260,30 2760x240\n"
                                         "fold 3720,45 200x200\n"
                                         "pin 3440,45 200x200\n"
                                         "shrink 80,60 150x150\n"
                                         "note 75,10 3850x2810\n");
}

TEST_F(Layout, NoPartOfATinyContainerHasANegativeSize) {
    const int index = New({600, 600, 100, 100});
    EXPECT_EQ(Dump(Main.ConView(index)), "frame 0,290 100x0\n"
                                         "label 260,30 0x240\n"
                                         "fold 0,45 200x200\n"
                                         "pin 0,45 200x200\n"
                                         "shrink 80,60 150x150\n"
                                         "note 75,10 0x0\n");
}

TEST_F(Layout, OnAFoldedContainerOnlyTheTitleRowIsLaid) {
    const int index = New({600, 600, 4000, 3500});
    FoldUnfoldContainer(Main, index, false);
    Box(index).Width = 5000;
    SetObjectRelativeSize(Main, index);
    EXPECT_EQ(Main.ConView(index).ContainerLabel.Place.Width, 3760);
    EXPECT_EQ(fake::Words(Main.ConView(index).ContainerNote.Place), "75,10 3850x2810");
}

TEST_F(Layout, AContainersToolbarCanBeHiddenButNotWhileItIsFoldedOrAReminder) {
    struct Row {
        const char* Name;
        bool Hide, Folded, Reminder, Shown;
    };
    const Row rows[] = {
        {"open, shown", false, false, false, true},
        {"open, hidden", true, false, false, false},
        {"folded, hidden", true, true, false, true},
        {"reminder, hidden", true, false, true, true},
    };
    for (const auto& row : rows) {
        const int index = New({600, 600, 3000, 3000});
        Main.ConView(index).FoldMark = row.Folded ? "+" : "-";
        if (row.Reminder) Main.Con(index).SetReminder(true, 2027, 1, 2, 3, 4, "Jan 02, 2027 3:04 AM");
        ShowHideContainerToolbar(Main, index, !row.Hide);
        EXPECT_EQ(Main.ConView(index).ContainerLabel.Visible, row.Shown) << row.Name;
        EXPECT_EQ(Main.ConView(index).lblFoldUnfold.Visible, row.Shown) << row.Name;
        EXPECT_EQ(Main.ConView(index).lblPinNote.Visible, row.Shown) << row.Name;
    }
}

TEST_F(Layout, TheRampOfAContainerFollowsTheSettingAndATileHasNone) {
    const int index = New({600, 600, 3000, 3000});
    for (const bool wanted : {false, true}) {
        Main.Settings.GradientContainers = wanted;
        DoRoundGradResizeSym(Main, index, true);
        EXPECT_EQ(Main.ConView(index).Gradient, wanted);
    }
    ExpandShrinkContainer(Main, index, false);
    EXPECT_FALSE(Main.ConView(index).Gradient);
}

TEST_F(Layout, TextInAHiddenNoteIsShownByAMark) {
    struct Row {
        const char* Text;
        bool Open, Shown;
    };
    for (const auto& row : {Row{"milk", false, true}, Row{"milk", true, false}, Row{"", false, false},
                            Row{" \r\n\t", false, false}}) {
        const int index = New({600, 600, 3000, 3000});
        Main.ConView(index).ContainerNote.Text = row.Text;
        Main.ConView(index).ContainerNote.Visible = row.Open;
        SetObjectRelativeSize(Main, index);
        EXPECT_EQ(Main.ConView(index).shapeNoteIndicator.Visible, row.Shown) << row.Text;
    }
}

TEST_F(Layout, TheListOfAFeedFillsItsFrameAndTakesTheRoomOfAHiddenTitleRow) {
    const int index = New({600, 600, 4000, 3500});
    Main.Con(index).RSS = true;
    Main.Con(index).RSSListIndex = 0;
    Main.FeedViews.resize(1);
    SetObjectRelativeSize(Main, index);
    EXPECT_EQ(fake::Words(Main.FeedViews[0].Place), "65,10 3870x2810");
    Main.Con(index).HideToolbar = true;
    SetObjectRelativeSize(Main, index);
    EXPECT_EQ(fake::Words(Main.FeedViews[0].Place), "75,-270 3870x3090");
}

TEST_F(Layout, TheMarkThatResizesKeepsClearOfTheRoundedCornerAndCanBeHit) {
    const int index = New({600, 600, 4000, 3500});
    const auto mark = ResizeMarkPlace({0, 0, 4000, 3500});
    EXPECT_EQ(4000 - mark.Right(), 130);
    EXPECT_EQ(3500 - mark.Bottom(), 145);
    for (const auto& at :
         {Point{mark.Left, mark.Top}, Point{mark.Right() - 1, mark.Bottom() - 1}, Point{3999, 3499}})
        EXPECT_EQ(ElementAt(Main, OnContainer(index), at).Kind, ElementKind::ResizeSymbol);
}

TEST_F(Layout, ADeadContainerIsLeftAlone) {
    const int index = New({600, 600, 3000, 3000});
    DeleteContainer(Main, index, false);
    Main.Marks.Take();
    for (const int gone : {index, -1, 50}) {
        SetObjectRelativeSize(Main, gone);
        DoRoundGradResizeSym(Main, gone, true);
        ShowHideContainerToolbar(Main, gone, true);
    }
    EXPECT_TRUE(Main.Marks.Pending().Empty());
}

} // namespace
} // namespace quill
