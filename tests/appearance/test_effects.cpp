#include "appearance/effects.h"
#include "appearance/paint.h"
#include "containers/fold.h"
#include "containers/workspace_fixture.h"
#include "core/start.h"
#include "dock/frames.h"
#include "fake/canvas.h"

namespace quill::test {
namespace {

constexpr int explodeFrame = 20, implodeFrame = 25; // milliseconds

struct Effects : WorkspaceFixture {
    const Rect tile{1000, 1000, 700, 950}, open{200, 1000, 3000, 3000};
    const EffectState& Effect() { return Main.Looks.frmExplode; }

    // As fold and shrink do before they start one.
    int Hidden(const Rect& place) {
        const int index = New(place);
        Main.ConView(index).Container.Visible = false;
        return index;
    }
    bool Shown(int index) { return Main.ConView(index).Container.Visible; }
    std::string Now() { return Effect().Loaded ? fake::Words(Effect().Now) : "(none)"; }
    std::string Painted() {
        fake::FakeCanvas canvas;
        PaintSurface(Main, {SurfaceKind::Overlay, -1}, canvas);
        return canvas.Painted();
    }
};

TEST_F(Effects, AnExpansionRunsFromTheTileToTheContainerInTwelveFramesOfAFiftieth) {
    const int index = Hidden(open);
    Explode(Main, index, tile, open);
    EXPECT_EQ(Now(), "1000,1000 700x950");
    EXPECT_EQ(Main.Group.ExpandingContainer, index);
    EXPECT_EQ(computer.Clock.FramesWanted(), 50);
    // (200 - 1000) / 12 and (3000 - 700) / 12 and (3000 - 950) / 12, each rounded to a whole twip.
    Wait(explodeFrame);
    EXPECT_EQ(Now(), "933,1000 892x1121");
    Wait(10 * explodeFrame);
    EXPECT_EQ(Effect().Frame, 11);
    EXPECT_FALSE(Shown(index));
    Wait(explodeFrame);
    EXPECT_TRUE(Shown(index));
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
}

TEST_F(Effects, AContractionRunsDownToTheTileInTenFramesOfAFortieth) {
    const int index = Hidden(tile);
    Implode(Main, index, open, tile, false);
    EXPECT_EQ(computer.Clock.FramesWanted(), 40);
    Wait(implodeFrame);
    EXPECT_EQ(Now(), "280,1000 2770x2795");
    Wait(8 * implodeFrame);
    EXPECT_FALSE(Shown(index));
    Wait(implodeFrame);
    EXPECT_TRUE(Shown(index));
    EXPECT_EQ(Now(), "(none)");
    EXPECT_EQ(computer.Clock.FramesWanted(), 0);
}

TEST_F(Effects, StepsThatAreRoundedDownEndWithTheLastFrameAllTheSame) {
    const Rect start{0, 0, 700, 950}, end{0, 0, 705, 955}; // less than half a twip a frame
    const int index = Hidden(end);
    Explode(Main, index, start, end);
    Wait(11 * explodeFrame);
    EXPECT_EQ(Now(), "0,0 700x950");
    Wait(explodeFrame);
    EXPECT_TRUE(Shown(index));
    EXPECT_EQ(fake::Words(Effect().End), "-40,-40 785x1035") << "the flash stands around the end rectangle";
}

TEST_F(Effects, StepsThatAreRoundedUpEndAsSoonAsBothSidesArePastTheEnd) {
    const Rect start{0, 0, 700, 950}, end{0, 0, 708, 958}; // two thirds of a twip a frame, rounded to one
    const int index = Hidden(end);
    Explode(Main, index, start, end);
    Wait(7 * explodeFrame);
    EXPECT_FALSE(Shown(index));
    Wait(explodeFrame);
    EXPECT_TRUE(Shown(index));
}

TEST_F(Effects, TheRectangleComesOutOfNothingAndGoesIntoNothing) {
    const int index = Hidden(open);
    Explode(Main, index, tile, open);
    const int low = Effect().Alpha;
    EXPECT_LT(low, 128);
    Wait(explodeFrame);
    EXPECT_EQ(Effect().Alpha, low + 5);
    Implode(Main, index, open, tile, false);
    const int full = Effect().Alpha;
    Wait(implodeFrame);
    EXPECT_EQ(Effect().Alpha, full - 30);
}

TEST_F(Effects, AnExpansionEndsWithAFlashThatGrowsTheRectangleByEightyTwips) {
    const int index = Hidden(open);
    Main.Group.JustExpanded = true;
    Explode(Main, index, tile, open);
    Wait(12 * explodeFrame);
    EXPECT_FALSE(Main.Group.JustExpanded);
    EXPECT_EQ(Effect().Running, EffectState::Kind::Blast);
    EXPECT_EQ(Now(), "160,960 3080x3080");
    EXPECT_TRUE(Shown(index)) << "the flash goes over the container itself";
    EXPECT_EQ(Main.Group.ExpandingContainer, -1) << "the container is at hand again meanwhile";
    Wait(4 * explodeFrame);
    EXPECT_EQ(Now(), "(none)");
    EXPECT_EQ(computer.Clock.FramesWanted(), 0);
}

TEST_F(Effects, AContractionFlashesOnlyWhenItIsTold) {
    const int index = Hidden(tile);
    Implode(Main, index, open, tile, true);
    Wait(10 * implodeFrame);
    EXPECT_EQ(Now(), "960,960 780x1030");
}

TEST_F(Effects, AFadeOutPalesWhereItIs) {
    const int index = Hidden({200, 1000, 3000, 320});
    FadeOut(Main, open, index);
    EXPECT_EQ(computer.Clock.FramesWanted(), 40);
    const int full = Effect().Alpha;
    Wait(implodeFrame);
    EXPECT_EQ(Effect().Alpha, full - 30);
    EXPECT_EQ(Now(), "200,1000 3000x3000");
    Wait(8 * implodeFrame);
    EXPECT_EQ(Now(), "(none)");
    EXPECT_TRUE(Shown(index));
}

TEST_F(Effects, ADockingEndsAnExpansionAndStillShowsTheContainer) {
    const int index = Hidden(open);
    Main.Group.JustExpanded = true;
    Explode(Main, index, tile, open);
    Wait(3 * explodeFrame);
    Main.Dock.DockPosition = 1;
    Wait(explodeFrame);
    EXPECT_EQ(Now(), "(none)") << "no flash either";
    EXPECT_TRUE(Shown(index));
    EXPECT_FALSE(Main.Group.JustExpanded);
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
}

TEST_F(Effects, ADockingEndsAContractionAndStillShowsTheTile) {
    const int index = Hidden(tile);
    Implode(Main, index, open, tile, true);
    Wait(implodeFrame);
    Main.Dock.DockPosition = 4;
    Wait(implodeFrame);
    EXPECT_EQ(Now(), "(none)");
    EXPECT_TRUE(Shown(index));
}

TEST_F(Effects, AContainerThatDiesTakesItsEffectAlong) {
    const int index = Hidden(tile);
    Implode(Main, index, open, tile, true);
    Wait(implodeFrame);
    DeleteContainer(Main, index, false);
    EXPECT_EQ(Painted(), "") << "nothing is left of it on the screen";
    Wait(implodeFrame);
    EXPECT_EQ(Now(), "(none)");
    EXPECT_FALSE(Shown(index));
    EXPECT_EQ(computer.Clock.FramesWanted(), 0);
}

TEST_F(Effects, AnotherEffectEndsTheOneThatRunsAndShowsItsContainer) {
    const int first = Hidden(tile), second = Hidden(open);
    Implode(Main, first, open, tile, true);
    Wait(implodeFrame);
    Main.Group.ExpandingContainer = second;
    Main.Group.JustExpanded = true;
    Explode(Main, second, tile, open);
    EXPECT_TRUE(Shown(first));
    EXPECT_FALSE(Shown(second));
    EXPECT_EQ(Main.Group.ExpandingContainer, second);
    EXPECT_TRUE(Main.Group.JustExpanded) << "that of the second";
    Wait(12 * explodeFrame);
    EXPECT_TRUE(Shown(second));
}

TEST_F(Effects, AContainerThatIsAnimatedAgainStaysHiddenUntilTheSecondEffectEnds) {
    const int index = Hidden(open);
    Explode(Main, index, tile, open);
    Wait(2 * explodeFrame);
    Implode(Main, index, open, tile, false);
    EXPECT_FALSE(Shown(index));
    EXPECT_EQ(Main.Group.ExpandingContainer, index);
    Wait(10 * implodeFrame);
    EXPECT_TRUE(Shown(index));
}

TEST_F(Effects, AContainerThatATagViewHidesMeanwhileStaysHidden) {
    const int index = Hidden(open);
    Explode(Main, index, tile, open);
    Main.Con(index).tag = true;
    Wait(12 * explodeFrame);
    EXPECT_FALSE(Shown(index));
}

TEST_F(Effects, ADeadContainerHasNoEffect) {
    Explode(Main, 7, tile, open);
    Implode(Main, -1, open, tile, true);
    FadeOut(Main, open, 99);
    EXPECT_EQ(Now(), "(none)");
}

TEST_F(Effects, AFrameThatComesLateDoesNotMakeTheEffectLonger) {
    const int index = Hidden(open);
    Explode(Main, index, tile, open);
    computer.Clock.OnFrame = nullptr; // the interface is held up
    Wait(5 * explodeFrame);
    fake::Connect(computer, &Main);
    Wait(explodeFrame);
    EXPECT_EQ(Effect().Frame, 6);
    Wait(6 * explodeFrame);
    EXPECT_TRUE(Shown(index));
}

TEST_F(Effects, TheRectangleIsPaintedInTheColoursOfItsContainerWhereItStands) {
    const int index = Hidden(open);
    Main.ConView(index).FrameBackColor = Rgb(1, 2, 3);
    Explode(Main, index, tile, open);
    EXPECT_TRUE(SurfaceVisible(Main, {SurfaceKind::Overlay, -1}));
    EXPECT_EQ(fake::Words(PlaceOfSurface(Main, {SurfaceKind::Overlay, -1})), "1000,1000 700x950");
    EXPECT_NE(Painted().find("#010203"), std::string::npos) << Painted();
}

struct WhichEffects {
    bool Effect;
    int Mode;
    bool Fold;
    std::string Wanted;
};

struct EffectModes : Effects, testing::WithParamInterface<WhichEffects> {};

TEST_P(EffectModes, AreWantedByTheSettings) {
    Main.Settings.Effect = GetParam().Effect;
    Main.Settings.EffectMode = static_cast<std::uint8_t>(GetParam().Mode);
    Main.Settings.FoldUnfoldEffect = GetParam().Fold;
    std::string wanted;
    if (ExplodeWanted(Main)) wanted += "explode ";
    if (ImplodeWanted(Main)) wanted += "implode ";
    if (FoldEffectWanted(Main)) wanted += "fold ";
    EXPECT_EQ(wanted, GetParam().Wanted);
}

INSTANTIATE_TEST_SUITE_P(All, EffectModes,
                         testing::Values(WhichEffects{true, 0, true, "explode implode fold "},
                                         WhichEffects{true, 1, true, "explode fold "},
                                         WhichEffects{true, 2, true, "implode fold "},
                                         WhichEffects{true, 0, false, "explode implode "},
                                         WhichEffects{false, 0, true, ""}, WhichEffects{false, 1, true, ""},
                                         WhichEffects{false, 2, true, ""}));

TEST_F(Effects, APersonWhoWantsLessMotionGetsNone) {
    computer.Session.LessMotion = true;
    EXPECT_FALSE(ExplodeWanted(Main) || ImplodeWanted(Main) || FoldEffectWanted(Main));
}

TEST_F(Effects, NothingMovesWhileTheWorkspaceIsDockedOrLoads) {
    Main.Dock.DockPosition = 2;
    EXPECT_FALSE(ExplodeWanted(Main) || ImplodeWanted(Main) || FoldEffectWanted(Main));
    Main.Dock.DockPosition = 0;
    Main.IsLoading = true;
    EXPECT_FALSE(ExplodeWanted(Main) || ImplodeWanted(Main) || FoldEffectWanted(Main));
}

// --- with what starts them
// -----------------------------------------------------------------------------------

TEST_F(Effects, WithoutEffectsNoRectangleIsLoadedByAnyOfTheThree) {
    Main.Settings.Effect = false;
    const int index = NewTile(1000, 1000);
    for (int time = 0; time < 2; ++time) {
        ExpandShrinkContainer(Main, index, true);
        EXPECT_EQ(Now(), "(none)");
        EXPECT_TRUE(Shown(index));
        Main.Group.JustExpanded = false;
    }
    ExpandShrinkContainer(Main, index, false);
    Main.Group.JustExpanded = false;
    FoldUnfoldContainer(Main, index, true);
    EXPECT_EQ(Now(), "(none)");
    EXPECT_EQ(computer.Clock.FramesWanted(), 0);
}

TEST_F(Effects, InTheExplodeModeAnExpansionIsAnimatedAndShrinkingIsImmediate) {
    Main.Settings.EffectMode = 1;
    const int index = NewTile(1000, 1000);
    ExpandShrinkContainer(Main, index, true);
    EXPECT_EQ(Effect().Running, EffectState::Kind::Explode);
    EXPECT_NE(Now(), "(none)");
    EXPECT_FALSE(Shown(index));
    Wait(1000);
    EXPECT_TRUE(Shown(index));
    ExpandShrinkContainer(Main, index, true);
    EXPECT_EQ(Now(), "(none)");
    EXPECT_TRUE(Shown(index));
}

TEST_F(Effects, InTheImplodeModeAnExpansionIsImmediateAndShrinkingIsAnimated) {
    Main.Settings.EffectMode = 2;
    const int index = NewTile(1000, 1000);
    ExpandShrinkContainer(Main, index, true);
    EXPECT_EQ(Now(), "(none)");
    EXPECT_TRUE(Shown(index));
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
    Wait(1000);
    ExpandShrinkContainer(Main, index, true);
    EXPECT_EQ(Effect().Running, EffectState::Kind::Implode);
    EXPECT_FALSE(Shown(index));
    Wait(1000);
    EXPECT_TRUE(Shown(index));
}

TEST_F(Effects, FoldingIsAnimatedAndUnfoldingIsNot) {
    const int index = New({1000, 1000, 3000, 3000});
    FoldUnfoldContainer(Main, index, true);
    EXPECT_EQ(Effect().Running, EffectState::Kind::Implode);
    EXPECT_EQ(Now(), "1000,1000 3000x3000");
    EXPECT_TRUE(Shown(index)) << "the title row stays";
    Wait(10 * implodeFrame);
    EXPECT_EQ(Effect().Running, EffectState::Kind::FadeOut);
    EXPECT_EQ(Now(), "1000,1000 3000x320");
    Wait(1000);
    EXPECT_TRUE(Shown(index));
    EXPECT_EQ(Main.Group.ExpandingContainer, -1);
    FoldUnfoldContainer(Main, index, true);
    EXPECT_EQ(Now(), "(none)");
    EXPECT_TRUE(Shown(index));
}

TEST(EffectsAtTheExit, WhatIsAnimatedIsSavedAsTheTileThatItShrinksBackTo) {
    fake::Desk desk;
    desk.Files().Put(desk.Settings("Quillmere.ini"), "108\r\n");
    desk.Files().Put(
        desk.Settings("Containers/0.con"),
        "108\r\n[Container]\r\n-1\r\n[Name]\r\nWork\r\n[Shrink]\r\n1\r\n[X]\r\n600\r\n[Y]\r\n600\r\n"
        "[W]\r\n3000\r\n[H]\r\n3000\r\n");
    desk.StartWorkspace();
    ExpandShrinkContainer(*desk.Main, 0, true);
    ASSERT_TRUE(desk.Main->Looks.frmExplode.Loaded);
    desk.ExitWorkspace();
    desk.StartWorkspace();
    EXPECT_TRUE(desk.Sees(ElementKind::ContainerIcon, 0)) << desk.Screen();
}

} // namespace
} // namespace quill::test
