#include "containers/arrange.h"
#include "containers/workspace_fixture.h"

#include "containers/columns.h"
#include "containers/full_size.h"
#include "containers/selection.h"
#include "containers/undo.h"

#include <algorithm>

namespace quill {
namespace {

struct Arrange : test::WorkspaceFixture {
    // A measured shortcut of 900 by 240, unless the style changes.
    int Named(Parent in, Point at, const std::string& name) {
        const int link = NewLink(in, at);
        Main.Link(link).FullCaption = Main.LinkView(link).lblShortcut.Caption = name;
        Main.LinkView(link).lblShortcut.Place = {at.X, at.Y, 900, 240};
        Main.LinkView(link).LabelMeasured = true;
        MoveLinkIcon(Main, link);
        return link;
    }
    void Select(std::initializer_list<int> links) {
        for (const int link : links) SetSelection(Main, link, true);
    }
    const Rect& Label(int link) { return Main.LinkView(link).lblShortcut.Place; }
    // Names and places of the shortcuts of a parent from the top.
    std::string Column(Parent in) {
        std::vector<int> links;
        EachShortcutIn(Main, in, [&](int link) { links.push_back(link); });
        std::ranges::stable_sort(links, {}, [&](int link) { return Label(link).Top; });
        std::string text;
        for (const int link : links)
            text += Main.Link(link).FullCaption + " " +
                    fake::Words(Point{Label(link).Left, Label(link).Top}) + "\n";
        return text;
    }
    std::string SettingsOnDisk() {
        auto file = computer.Files.Read(std::string(fake::SettingsFolder) + "/Quillmere.REC", 1 << 20);
        return file ? file.Value() : "(none)";
    }
};

// ---- sorting

struct Sorting : Arrange {
    int pear = Named(OnWorkspace(), {1000, 2000}, "pear");
    int apple = Named(OnWorkspace(), {4000, 5000}, "Apple");
    int ten = Named(OnWorkspace(), {3000, 1000}, "Item 10");
    int nine = Named(OnWorkspace(), {2000, 3000}, "item 9");
};

TEST_F(Sorting, TheSelectedShortcutsStandInOneColumnFromTheHighestPlace) {
    Select({pear, apple, ten, nine});
    mnuSortShortcuts_Click(Main, 0);
    EXPECT_EQ(Column(OnWorkspace()),
              "Apple 3000,1000\nitem 9 3000,1395\nItem 10 3000,1790\npear 3000,2185\n");
    EXPECT_EQ(fake::Words(Main.LinkView(apple).picShortcut), "2750,1000 240x240");
}

TEST_F(Sorting, AnyOtherIndexThan0IsDescendingAndTheColumnStaysWhereItIs) {
    Select({pear, apple, ten, nine});
    mnuSortShortcuts_Click(Main, 0);
    mnuSortShortcuts_Click(Main, 1);
    EXPECT_EQ(Column(OnWorkspace()),
              "pear 3000,1000\nItem 10 3000,1395\nitem 9 3000,1790\nApple 3000,2185\n");
    const auto before = Column(OnWorkspace());
    mnuSortShortcuts_Click(Main, 7);
    EXPECT_EQ(Column(OnWorkspace()), before);
}

TEST_F(Sorting, OnlyTheSelectedOnesMoveAndWithNoneNothingHappens) {
    const auto before = Column(OnWorkspace());
    mnuSortShortcuts_Click(Main, 0);
    EXPECT_EQ(Column(OnWorkspace()), before);
    EXPECT_TRUE(Main.Group.UndoStack.empty());
    Select({apple, pear});
    mnuSortShortcuts_Click(Main, 0);
    EXPECT_EQ(Column(OnWorkspace()),
              "Item 10 3000,1000\nApple 1000,2000\npear 1000,2395\nitem 9 2000,3000\n");
}

TEST_F(Sorting, EqualNamesStayInTheOrderOfTheTable) {
    const int second = Named(OnWorkspace(), {6000, 6000}, "PEAR");
    Select({second, pear});
    for (const int order : {0, 1}) {
        mnuSortShortcuts_Click(Main, order);
        EXPECT_LT(Label(pear).Top, Label(second).Top) << order;
    }
}

TEST_F(Sorting, TheRowSpacingIsThatOfWhereTheyLie) {
    const int index = New({600, 600, 4000, 4000});
    Main.Con(index).LineSpacing = 300;
    const int b = Named(InContainer(index), {700, 500}, "b"), a = Named(InContainer(index), {900, 900}, "a");
    Select({a, b, pear, apple});
    mnuSortShortcuts_Click(Main, 0);
    EXPECT_EQ(Column(InContainer(index)), "a 700,500\nb 700,1040\n");
    EXPECT_EQ(Label(apple).Top, 2000);
    EXPECT_EQ(Label(pear).Top, 2395);
}

TEST_F(Sorting, OneUndoTakesItBackAndItIsSaved) {
    const auto before = Column(OnWorkspace());
    Select({pear, apple, ten, nine});
    mnuSortShortcuts_Click(Main, 0);
    EXPECT_NE(SettingsOnDisk().find("[LinkY]\r\n2185\r\n"), std::string::npos);
    ASSERT_EQ(Main.Group.UndoStack.size(), 1u);
    UndoMove(Main, true);
    EXPECT_EQ(Column(OnWorkspace()), before);
}

TEST_F(Sorting, AColumnThatWouldRunOutOfTheWorkspaceBeginsHigher) {
    for (const int link : {pear, apple, ten, nine}) {
        Main.LinkView(link).lblShortcut.Place.Top += 7500;
        SetSelection(Main, link, true);
    }
    mnuSortShortcuts_Click(Main, 0);
    EXPECT_EQ(Column(OnWorkspace()),
              "Apple 3000,7475\nitem 9 3000,7870\nItem 10 3000,8265\npear 3000,8660\n");
}

TEST_F(Sorting, WhatIsMoreThanAColumnGoesOnAtItsRightAndAllOfItIsSeen) {
    for (int number = 0; number < 40; ++number)
        SetSelection(Main, Named(OnWorkspace(), {1000, 700}, "n" + std::to_string(number)), true);
    mnuSortShortcuts_Click(Main, 0);
    for (const int link : Main.Links.SelectedShortcuts) {
        EXPECT_GE(Label(link).Top, 530);
        EXPECT_LE(Label(link).Bottom(), 9000);
    }
    EXPECT_EQ(Label(4).Left, 1000);
    EXPECT_EQ(Label(43).Left, 1000 + 900 + 240 + 200);
}

TEST_F(Sorting, InAFrameTheColumnMayBeAsLongAsItLikes) {
    const int index = New({600, 600, 4000, 2000});
    for (int number = 0; number < 20; ++number)
        SetSelection(Main, Named(InContainer(index), {1000, 1500}, "n" + std::to_string(number)), true);
    mnuSortShortcuts_Click(Main, 0);
    EXPECT_EQ(Label(4 + 19).Top, 1500 + 19 * 395);
    EXPECT_TRUE(Main.ConView(index).VScroll.Visible);
}

TEST_F(Sorting, ALockedWorkspaceIsNotRearranged) {
    Select({pear, apple});
    Main.Dock.Locked = true;
    const auto before = Column(OnWorkspace());
    mnuSortShortcuts_Click(Main, 0);
    MakeIconsLarger_Click(Main);
    mnuLineSpacing_Click(Main);
    EXPECT_EQ(Column(OnWorkspace()), before);
    EXPECT_EQ(Main.Link(pear).FontSize, 10);
    EXPECT_TRUE(computer.Questions.Inputs.empty());
}

// ---- font sizes

struct FontSizes : Arrange {
    int link = Named(OnWorkspace(), {1000, 2000}, "pear");
    int other = Named(OnWorkspace(), {1000, 3000}, "plum");
    void Is(int points) {
        Main.Link(link).FontSize = static_cast<std::int16_t>(points);
        Select({link});
    }
};

TEST_F(FontSizes, TwoPointsAtATimeUpTo200AndDownTo1) {
    struct Row {
        int Now, Larger, Smaller;
    };
    for (const auto& row : {Row{10, 12, 8}, Row{198, 200, 196}, Row{199, 199, 197}, Row{200, 200, 198},
                            Row{3, 5, 1}, Row{2, 4, 2}, Row{1, 3, 1}}) {
        Is(row.Now);
        MakeIconsLarger_Click(Main);
        EXPECT_EQ(Main.Link(link).FontSize, row.Larger) << row.Now;
        Is(row.Now);
        MakeIconsSmaller_Click(Main);
        EXPECT_EQ(Main.Link(link).FontSize, row.Smaller) << row.Now;
    }
}

TEST_F(FontSizes, LabelAndIconFollowAndTheNewSizeIsSaved) {
    Is(10);
    MakeIconsLarger_Click(Main);
    EXPECT_EQ(Main.LinkView(link).lblShortcut.FontSize, 12);
    EXPECT_EQ(Main.LinkView(link).picShortcut.Width, 480); // from eleven points on the large one
    EXPECT_EQ(Main.LinkView(link).picShortcut.Right() + 10, Label(link).Left);
    EXPECT_GE(Label(link).Height, 480);
    EXPECT_NE(SettingsOnDisk().find("[Size]\r\n12\r\n"), std::string::npos) << SettingsOnDisk();
    EXPECT_EQ(Main.Link(other).FontSize, 10);
}

TEST_F(FontSizes, AnySizeCanBeAskedFor) {
    Is(10);
    computer.Questions.Type("36");
    MakeIconsSizeDifferent_Click(Main);
    EXPECT_EQ(Main.Link(link).FontSize, 36);
    const auto& asked = computer.Questions.Inputs.at(0);
    EXPECT_EQ(asked.Title, "Font Size");
    EXPECT_EQ(asked.Caption, "New Size:");
    EXPECT_EQ(asked.Text, "10");
}

TEST_F(FontSizes, ABadAnswerKeepsTheOldSize) {
    Is(10);
    for (const char* answer : {"", "large", "0", "-5", "201", "1e9", "12 pt"}) {
        computer.Questions.Type(answer);
        MakeIconsSizeDifferent_Click(Main);
        EXPECT_EQ(Main.Link(link).FontSize, 10) << answer;
    }
    computer.Questions.CancelInput();
    MakeIconsSizeDifferent_Click(Main);
    EXPECT_EQ(Main.Link(link).FontSize, 10);
}

TEST_F(FontSizes, WithNothingSelectedNothingIsAsked) {
    MakeIconsSizeDifferent_Click(Main);
    MakeIconsLarger_Click(Main);
    EXPECT_TRUE(computer.Questions.Inputs.empty());
    EXPECT_EQ(Main.Link(link).FontSize, 10);
}

TEST_F(FontSizes, AShortcutThatIsGoneWhenTheAnswerComesIsLeftAlone) {
    Is(10);
    Select({other});
    computer.Questions.OnInput = [&](InputQuestion&) { DeleteShortcut(Main, link); };
    computer.Questions.Type("20");
    MakeIconsSizeDifferent_Click(Main);
    EXPECT_EQ(Main.Link(other).FontSize, 20);
}

TEST_F(FontSizes, LargerTextMakesAFrameScroll) {
    const int index = New({600, 600, 4000, 1500});
    const int low = Named(InContainer(index), {700, 900}, "low");
    ASSERT_FALSE(Main.ConView(index).VScroll.Visible);
    Select({low});
    computer.Questions.Type("90");
    MakeIconsSizeDifferent_Click(Main);
    EXPECT_TRUE(Main.ConView(index).VScroll.Visible);
}

// ---- spacing

struct Spacing : Arrange {
    int upper = Named(OnWorkspace(), {1000, 2000}, "upper");
    int lower = Named(OnWorkspace(), {1100, 4000}, "lower");
    int aside = Named(OnWorkspace(), {5000, 3000}, "aside");
};

TEST_F(Spacing, TheQuestionNamesTheWorkspaceOrTheContainerThatHasTheKeys) {
    const int index = New({600, 600, 4000, 4000}, "Tools");
    Main.Con(index).LineSpacing = 300;
    Main.Group.CurrentContainer = index;
    for (const bool focus : {false, true}) {
        Main.Group.ContainerHasFocus = focus;
        computer.Questions.CancelInput();
        mnuLineSpacing_Click(Main);
    }
    const auto& asked = computer.Questions.Inputs;
    ASSERT_EQ(asked.size(), 2u);
    EXPECT_EQ(asked[0].Title, "Quillmere");
    EXPECT_EQ(asked[0].Caption,
              "Workspace: Spacing in pixels when arranging workspace shortcuts in columns:4 to 30");
    EXPECT_EQ(asked[0].Text, "10");
    EXPECT_EQ(asked[1].Caption,
              "Tools: Spacing in pixels when arranging workspace shortcuts in columns:4 to 30");
    EXPECT_EQ(asked[1].Text, "20");
}

TEST_F(Spacing, TheAnswerIsKeptInTwipsAndTheColumnsAreLaidAgain) {
    computer.Questions.Type("20");
    mnuLineSpacing_Click(Main);
    EXPECT_EQ(Main.Settings.LineSpacing, 300);
    EXPECT_EQ(Column(OnWorkspace()), "upper 1000,2000\nlower 1000,2540\naside 5000,3000\n");
    EXPECT_NE(SettingsOnDisk().find("[LineSpacing]\r\n300\r\n"), std::string::npos) << SettingsOnDisk();
    ASSERT_EQ(Main.Group.UndoStack.size(), 1u);
    UndoMove(Main, true);
    EXPECT_EQ(Column(OnWorkspace()), "upper 1000,2000\naside 5000,3000\nlower 1100,4000\n");
}

TEST_F(Spacing, WhatIsNoNumberIsIgnoredAndWhatIsNoSpacingIsTheUsualOne) {
    struct Row {
        const char* Answer;
        int Spacing;
    };
    for (const auto& row :
         {Row{"wide", 300}, Row{"", 300}, Row{"12 px", 300}, Row{"3", 45}, Row{"2", 155}, Row{"30", 450},
          Row{"31", 155}, Row{"-8", 155}, Row{"1e30", 155}, Row{"7,5", 113}}) {
        Main.Settings.LineSpacing = 300;
        computer.Questions.Type(row.Answer);
        mnuLineSpacing_Click(Main);
        EXPECT_EQ(Main.Settings.LineSpacing, row.Spacing) << row.Answer;
    }
}

TEST_F(Spacing, TheOfferedNumberLeavesTheSpacingAsItIs) {
    computer.Questions.Type("10"); // 155 twips are a little more than ten pixels
    mnuLineSpacing_Click(Main);
    EXPECT_EQ(Main.Settings.LineSpacing, 155);
}

TEST_F(Spacing, AContainerHasItsOwnAndTheWorkspaceStays) {
    const int index = New({600, 600, 4000, 4000});
    const int a = Named(InContainer(index), {700, 500}, "a"), b = Named(InContainer(index), {700, 2000}, "b");
    Main.Group.CurrentContainer = index;
    Main.Group.ContainerHasFocus = true;
    computer.Questions.Type("4");
    mnuLineSpacing_Click(Main);
    EXPECT_EQ(Main.Con(index).LineSpacing, 60);
    EXPECT_EQ(Main.Settings.LineSpacing, 155);
    EXPECT_EQ(Label(a).Top, 500);
    EXPECT_EQ(Label(b).Top, 800);
    EXPECT_EQ(Label(lower).Top, 4000);
}

TEST_F(Spacing, AContainerThatIsGoneWhenTheAnswerComesIsLeftAlone) {
    const int index = New({600, 600, 4000, 4000});
    Main.Group.CurrentContainer = index;
    Main.Group.ContainerHasFocus = true;
    computer.Questions.OnInput = [&](InputQuestion&) { DeleteContainer(Main, index, false); };
    computer.Questions.Type("20");
    mnuLineSpacing_Click(Main);
    EXPECT_EQ(Main.Settings.LineSpacing, 155);
    EXPECT_EQ(Label(lower).Top, 4000);
}

TEST_F(Spacing, ASortedColumnKeepsItsOrder) {
    Select({upper, lower, aside});
    mnuSortShortcuts_Click(Main, 0);
    computer.Questions.Type("5");
    mnuLineSpacing_Click(Main);
    EXPECT_EQ(Column(OnWorkspace()), "aside 1000,2000\nlower 1000,2315\nupper 1000,2630\n");
}

TEST(SpacingOfTheSettings, ASpacingThatIsNoneIsTheUsualOneFromTheLoadOn) {
    fake::Desk desk;
    desk.Files().Put(desk.Settings("Quillmere.ini"), "108\r\n[LineSpacing]\r\n456\r\n");
    desk.StartWorkspace();
    EXPECT_EQ(desk.Main->Settings.LineSpacing, 155);
}

// ---- the grid's tick

TEST_F(Arrange, AlignIsATickThatIsSaved) {
    mnuAlign_Click(Main);
    EXPECT_TRUE(Main.Dock.Align);
    EXPECT_NE(SettingsOnDisk().find("[Align]\r\n1\r\n"), std::string::npos) << SettingsOnDisk();
    mnuAlign_Click(Main);
    EXPECT_FALSE(Main.Dock.Align);
    EXPECT_NE(SettingsOnDisk().find("[Align]\r\n0\r\n"), std::string::npos);
}

// ---- the next free cell

TEST_F(Arrange, NewShortcutsFillAColumnAndThenTheNext) {
    std::vector<Point> cells;
    for (int number = 0; number < 30; ++number) {
        cells.push_back(NextFreeCell(Main, OnWorkspace()));
        Named(OnWorkspace(), cells.back(), "n");
    }
    EXPECT_EQ(cells[0], (Point{350, 530}));
    EXPECT_EQ(cells[1].X, 350);
    EXPECT_GT(cells[1].Y, 530 + 240);
    EXPECT_EQ(cells[29].X, 350 + 2400);
    for (const auto& cell : cells) EXPECT_LE(cell.Y + 240, 9000 - 100);
}

TEST_F(Arrange, ANewShortcutDoesNotLieUnderAContainer) {
    New({0, 480, 3000, 3000});
    const auto cell = NextFreeCell(Main, OnWorkspace());
    EXPECT_EQ(cell.X, 350);
    EXPECT_GE(cell.Y, 3480);
}

TEST_F(Arrange, AFullFrameGoesOnBelowWhatIsSeenAndAFullWorkspaceWhereLeastLies) {
    const int index = New({0, 480, 3000, 1500});
    for (int number = 0; number < 9; ++number)
        Named(InContainer(index), NextFreeCell(Main, InContainer(index)), "n");
    EXPECT_GT(ContentHeight(Main, index), 3000);
    Main.ConView(index).Container.Place = {0, 480, 12000, 8520};
    const auto first = NextFreeCell(Main, OnWorkspace());
    Named(OnWorkspace(), first, "n");
    EXPECT_NE(NextFreeCell(Main, OnWorkspace()), first);
}

TEST_F(Arrange, TheFirstCellOfATileIsSeenWhenItIsOpen) {
    const int tile = NewTile(600, 600);
    EXPECT_EQ(NextFreeCell(Main, InContainer(tile)), (Point{350, 240}));
}

} // namespace
} // namespace quill
