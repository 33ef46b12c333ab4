#include "containers/commands.h"
#include "containers/workspace_fixture.h"

#include "containers/con_properties.h"
#include "containers/fold.h"
#include "containers/selection.h"
#include "containers/undo.h"
#include "platform/questions.h"

namespace quill {
namespace {

struct Commands : test::WorkspaceFixture {
    void Select(std::initializer_list<int> containers) {
        for (const int index : containers) SelectContainer(Main, index);
    }
    fake::Box LastBox() {
        return computer.Questions.Boxes.empty() ? fake::Box{} : computer.Questions.Boxes.back();
    }
    bool Saved() { return computer.Files.Exists(fake::SettingsFolder + "/Containers/0.REC"); }
};

// ---- keep expanded

TEST_F(Commands, KeptExpandedNothingShrinksOrFoldsBackByItself) {
    const int tile = NewTile(4000, 2000), folded = New({8000, 600, 3000, 3000});
    FoldUnfoldContainer(Main, folded, false);
    ContainerLabel_DblClick(Main, folded);
    ExpandShrinkContainer(Main, tile, false);
    Wait(20);
    Main.Group.AutoFoldContainerIndex = folded;
    mnuConKeepExpanded_Click(Main);
    EXPECT_EQ(Main.Group.ExpandedContainer, -1);
    EXPECT_EQ(Main.Group.AutoFoldContainerIndex, -1);
    ShrinkBackContainer(Main, false);
    EXPECT_FALSE(IsShrunk(Main, tile));
    EXPECT_TRUE(Saved());
}

// ---- remove

TEST_F(Commands, RemovingOneAsksByItsName) {
    const int gone = New({500, 600, 3000, 3000}, "Letters"), stays = New({4000, 600, 3000, 3000});
    Main.Group.CurrentContainer = gone;
    computer.Questions.Answer(AnswerNo);
    mnuConRemove_Click(Main);
    EXPECT_EQ(LastBox().Text, "Letters?");
    EXPECT_EQ(LastBox().Title, "Quillmere");
    EXPECT_EQ(LastBox().Flags, BoxYesNo | BoxQuestion);
    EXPECT_TRUE(IsLive(Main.Containers, gone));
    EXPECT_FALSE(Saved());
    computer.Questions.Answer(AnswerYes);
    mnuConRemove_Click(Main);
    EXPECT_FALSE(IsLive(Main.Containers, gone));
    EXPECT_TRUE(IsLive(Main.Containers, stays));
    EXPECT_TRUE(Saved());
}

TEST_F(Commands, RemovingSeveralAsksByTheirNumber) {
    for (int count = 0; count < 4; ++count) New({500, 600, 3000, 3000});
    Select({0, 2, 3});
    Main.Group.CurrentContainer = 2;
    computer.Questions.Answer(AnswerYes);
    mnuConRemove_Click(Main);
    EXPECT_EQ(LastBox().Text, "3 Containers Selected\n\nRemove Selected Containers?");
    EXPECT_EQ(LiveContainers(Main), 1);
    EXPECT_TRUE(IsLive(Main.Containers, 1));
    EXPECT_EQ(GetSelectedContainersCount(Main), 0);
}

TEST_F(Commands, AMenuRemovesNothingThatItWasNotOpenedOn) {
    for (int count = 0; count < 3; ++count) New({500, 600, 3000, 3000});
    Select({0, 2});
    Main.Group.CurrentContainer = 1;
    Main.Settings.ConfirmDelete = false;
    mnuConRemove_Click(Main);
    EXPECT_FALSE(IsLive(Main.Containers, 1));
    EXPECT_EQ(LiveContainers(Main), 2);
}

TEST_F(Commands, WithoutConfirmationItIsRemovedUnasked) {
    Main.Settings.ConfirmDelete = false;
    Main.Group.CurrentContainer = New({500, 600, 3000, 3000});
    mnuConRemove_Click(Main);
    EXPECT_EQ(LiveContainers(Main), 0);
    EXPECT_TRUE(computer.Questions.Boxes.empty());
}

TEST_F(Commands, WhatDiesWhileItIsAskedAboutIsNotRemovedTwice) {
    New({500, 600, 3000, 3000});
    New({500, 600, 3000, 3000});
    Select({0, 1});
    Main.Group.CurrentContainer = 0;
    computer.Questions.OnBox = [&](const fake::Box&) { DeleteContainer(Main, 0, false); };
    computer.Questions.Answer(AnswerYes);
    mnuConRemove_Click(Main);
    EXPECT_EQ(LiveContainers(Main), 0);
}

TEST_F(Commands, AProgramThatEndsMeanwhileRemovesNothing) {
    Main.Group.CurrentContainer = New({500, 600, 3000, 3000});
    computer.Questions.OnBox = [&](const fake::Box&) { Main.IsExiting = true; };
    computer.Questions.Answer(AnswerYes);
    mnuConRemove_Click(Main);
    EXPECT_EQ(LiveContainers(Main), 1);
    EXPECT_EQ(Main.Dock.DialogPauses, 0);
}

TEST_F(Commands, WithNoContainerThereIsNothingToRemove) {
    mnuConRemove_Click(Main);
    EXPECT_TRUE(computer.Questions.Boxes.empty());
}

// ---- switch

TEST_F(Commands, TwoSelectedContainersChangePlaces) {
    const int one = New({500, 600, 3000, 2000}), two = New({5000, 4000, 1500, 1500});
    Select({one, two});
    Main.Group.CurrentContainer = one;
    mnuConSwitchPlaces_Click(Main);
    EXPECT_EQ(BoxWords(one), "5000,4000 3000x2000");
    EXPECT_EQ(BoxWords(two), "500,600 1500x1500");
    EXPECT_EQ(Main.Con(one).StoredSize().X, 5000);
    EXPECT_EQ(Main.Con(two).StoredSize().Y, 600);
    EXPECT_TRUE(Saved());
    UndoMove(Main, true);
    EXPECT_EQ(BoxWords(one), "500,600 3000x2000");
    EXPECT_EQ(BoxWords(two), "5000,4000 1500x1500");
}

TEST_F(Commands, AnyOtherNumberIsToldHowToSelectTwo) {
    for (int count = 0; count < 3; ++count) New({500.0F + 100 * static_cast<float>(count), 600, 3000, 3000});
    for (const int selected : {0, 1, 3}) {
        UnselectContainers(Main);
        for (int index = 0; index < selected; ++index) SelectContainer(Main, index);
        Main.Group.CurrentContainer = 0;
        computer.Questions.Answer(AnswerOk);
        mnuConSwitchPlaces_Click(Main);
        EXPECT_EQ(
            LastBox().Text,
            "You must have two (and only two) containers selected.\n* Select containers by holding down "
            "the Ctrl key and clicking the container name label (or icon, when the container is shrunk).")
            << selected;
        EXPECT_EQ(LastBox().Title, "Quillmere");
        EXPECT_EQ(Box(0).Left, 500) << selected;
    }
    EXPECT_FALSE(Saved());
}

// ---- match size

TEST_F(Commands, SelectedContainersTakeTheSizeOfTheCurrentOne) {
    const int model = New({500, 600, 4000, 2500}, "Model"), one = New({5000, 600, 3000, 3000}),
              other = New({500, 4000, 1000, 1000}), unasked = New({9000, 600, 2000, 2000});
    Select({model, one, other});
    Main.Group.CurrentContainer = model;
    computer.Questions.Answer(AnswerYes);
    mnuSetContainerSize_Click(Main);
    EXPECT_EQ(LastBox().Text, "Resize selected containers to match 'Model' size?");
    EXPECT_EQ(LastBox().Flags, BoxYesNo | BoxQuestion);
    for (const int index : {one, other}) {
        EXPECT_EQ(Box(index).Width, 4000);
        EXPECT_EQ(Box(index).Height, 2500);
        EXPECT_EQ(Main.Con(index).OriginalSize(), (Size{4000, 2500}));
        EXPECT_EQ(Main.ConView(index).ContainerFrame.Place.Width, 4000);
    }
    EXPECT_EQ(BoxWords(unasked), "9000,600 2000x2000");
    EXPECT_TRUE(Saved());
}

TEST_F(Commands, ANoKeepsAllSizes) {
    const int model = New({500, 600, 4000, 2500}), other = New({5000, 600, 3000, 3000});
    Select({model, other});
    Main.Group.CurrentContainer = model;
    computer.Questions.Answer(AnswerNo);
    mnuSetContainerSize_Click(Main);
    EXPECT_EQ(BoxWords(other), "5000,600 3000x3000");
    EXPECT_FALSE(Saved());
}

TEST_F(Commands, AFoldedContainerStaysFoldedAndUnfoldsToTheMatchedSize) {
    const int model = New({500, 600, 4000, 2500}), folded = New({5000, 600, 3000, 3000});
    FoldUnfoldContainer(Main, folded, false);
    Select({folded});
    Main.Group.CurrentContainer = model;
    computer.Questions.Answer(AnswerYes);
    mnuSetContainerSize_Click(Main);
    EXPECT_EQ(BoxWords(folded), "5000,600 4000x320");
    EXPECT_EQ(Main.ConView(folded).lblFoldUnfold.Place.Left, 4000 - 280);
    FoldUnfoldContainer(Main, folded, false);
    EXPECT_EQ(BoxWords(folded), "5000,600 4000x2500");
}

TEST_F(Commands, AFoldedModelHasTheSizeThatItUnfoldsTo) {
    const int model = New({500, 600, 4000, 2500}), other = New({5000, 600, 3000, 3000});
    FoldUnfoldContainer(Main, model, false);
    Select({other});
    Main.Group.CurrentContainer = model;
    computer.Questions.Answer(AnswerYes);
    mnuSetContainerSize_Click(Main);
    EXPECT_EQ(BoxWords(other), "5000,600 4000x2500");
}

TEST_F(Commands, ATileThatIsMatchedToAnOpenContainerOpens) {
    const int model = New({500, 600, 4000, 2500}), tile = NewTile(5000, 600);
    Select({tile});
    Main.Group.CurrentContainer = model;
    computer.Questions.Answer(AnswerYes);
    mnuSetContainerSize_Click(Main);
    EXPECT_EQ(BoxWords(tile), "5000,600 4000x2500");
    EXPECT_FALSE(Main.ConView(tile).ContainerIcon.Visible);
    EXPECT_TRUE(Main.ConView(tile).ContainerLabel.Visible);
}

TEST_F(Commands, MatchedToATileTheyBecomeTilesOfItsSizeAndKeepTheirFullOne) {
    const int model = NewTile(500, 600), open = New({5000, 600, 3500, 2500}),
              folded = New({500, 4000, 2000, 1500});
    SetContainerShrinkSize(Main, model, 410, 650);
    FoldUnfoldContainer(Main, folded, false);
    Select({open, folded});
    Main.Group.CurrentContainer = model;
    computer.Questions.Answer(AnswerYes);
    mnuSetContainerSize_Click(Main);
    for (const int index : {open, folded}) {
        EXPECT_EQ(Box(index).Width, 410);
        EXPECT_EQ(Box(index).Height, 650);
        EXPECT_TRUE(Main.ConView(index).ContainerIcon.Visible);
        EXPECT_EQ(Main.ConView(index).FoldMark, "-");
    }
    ExpandShrinkContainer(Main, open, false);
    EXPECT_EQ(Box(open).Width, 3500);
    EXPECT_EQ(Box(open).Height, 2500);
}

TEST_F(Commands, AModelThatDiesWhileItIsAskedAboutMatchesNothing) {
    const int model = New({500, 600, 4000, 2500}), other = New({5000, 600, 3000, 3000});
    Select({other});
    Main.Group.CurrentContainer = model;
    computer.Questions.OnBox = [&](const fake::Box&) { DeleteContainer(Main, model, false); };
    computer.Questions.Answer(AnswerYes);
    mnuSetContainerSize_Click(Main);
    EXPECT_EQ(BoxWords(other), "5000,600 3000x3000");
}

// ---- drawn afresh

TEST_F(Commands, WhatWasDrawnIsAskedForAgainAndWhatNobodySawIsNot) {
    const int index = New({500, 600, 3000, 3000});
    const int seen = NewLink(InContainer(index), {500, 300}, "/usr/bin/seen"),
              unseen = NewLink(OnWorkspace(), {500, 300}, "/usr/bin/unseen");
    Main.LinkView(seen).IconDrawn = Main.LinkView(seen).LabelMeasured = true;
    AddShrinkIcon(Main, "note.ico", index);
    Main.Marks.Take();
    RefreshLinksAndShrinkIcons(Main);
    EXPECT_FALSE(Main.LinkView(seen).IconDrawn);
    EXPECT_FALSE(Main.LinkView(seen).LabelMeasured);
    EXPECT_FALSE(Main.LinkView(unseen).IconDrawn);
    EXPECT_EQ(computer.Images.Forgotten,
              (std::vector<std::string>{computer.Places.Data + "/note.ico", "/usr/bin/seen"}));
    EXPECT_EQ(Main.Con(index).ShrinkPath, "note.ico");
    EXPECT_TRUE(Main.Marks.Take().Everything);
}

TEST_F(Commands, TheIconsOfAClosedContainerAreDrawnWhenItIsNextOpened) {
    const int index = New({4000, 2000, 3000, 3000});
    const int link = NewLink(InContainer(index), {500, 300});
    Main.Con(index).IconsDrawn = Main.LinkView(link).IconDrawn = true;
    FoldUnfoldContainer(Main, index, false);
    ResetIconDrawn(Main, index);
    EXPECT_FALSE(Main.Con(index).IconsDrawn);
    EXPECT_FALSE(Main.LinkView(link).IconDrawn);
    FoldUnfoldContainer(Main, index, false);
    EXPECT_TRUE(Main.Con(index).IconsDrawn);
    ResetIconDrawn(Main, 99);
}

// ---- properties

TEST_F(Commands, PropertiesOpenOnTheCurrentContainerAndHoldTheWorkspaceMeanwhile) {
    Main.Group.CurrentContainer = New({4000, 2000, 3000, 3000}, "Letters");
    int pauses = 0;
    computer.Dialogs.OnConProperties = [&](frmConProperties&) {
        pauses = Main.Dock.DialogPauses;
        return false;
    };
    mnuConProperties_Click(Main);
    EXPECT_EQ(pauses, 1);
    EXPECT_EQ(Main.Dock.DialogPauses, 0);
    Main.Group.CurrentContainer = -1;
    pauses = 0;
    mnuConProperties_Click(Main);
    EXPECT_EQ(pauses, 0);
}

} // namespace
} // namespace quill
