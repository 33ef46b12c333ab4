#include "appearance/colors.h"

#include "containers/lifecycle.h"
#include "fake/computer.h"
#include "fake/words.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct ColorRow {
    const char* Why;
    Color From, To;
};

TEST(Colors, LighterStepsEachChannelAndStopsAtWhite) {
    for (const ColorRow& row : {
             ColorRow{"slightly is ten", 0x102030, 0x1A2A3A},
             ColorRow{"each channel stops for itself", 0x0000FA, 0x0A0AFF},
             ColorRow{"white stays white", 0xFFFFFF, 0xFFFFFF},
         })
        EXPECT_EQ(Lighter(row.From, true), row.To) << row.Why;
    EXPECT_EQ(Lighter(0x000000, false), 0x3C3C3C) << "the full step is sixty";
    EXPECT_EQ(Lighter(0xFFFFFF, false), 0xFFFFFF);
}

TEST(Colors, DarkerStepsOtherwiseThanLighterAndStopsAtBlack) {
    EXPECT_EQ(Darker(0xFFFFFF, false), 0xD7D7D7) << "the small step is forty";
    EXPECT_EQ(Darker(0xFFFFFF, true), 0x878787) << "the large one a hundred and twenty";
    EXPECT_EQ(Darker(0x0000FF, true), 0x000087);
    EXPECT_EQ(Darker(0x000000, false), 0x000000);
    EXPECT_EQ(Darker(0x000000, true), 0x000000);
}

TEST(Colors, ContrastLooksAtRedOnly) {
    EXPECT_EQ(ContrastColor(0x808080), Lighter(0x808080, false)) << "red 128 is lighter";
    EXPECT_EQ(ContrastColor(0x818181), Darker(0x818181, false)) << "red 129 is darker";
    EXPECT_EQ(ContrastColor(0xFFFF00), Lighter(0xFFFF00, false)) << "bright, but without red";
    EXPECT_EQ(ContrastColor(0x0000FF), Darker(0x0000FF, false)) << "pure red counts as bright";
}

TEST(Colors, ContrastRatioRunsFromOneToTwentyOne) {
    EXPECT_NEAR(ContrastRatio(0, 0xFFFFFF), 21, 0.01);
    EXPECT_NEAR(ContrastRatio(0xFFFFFF, 0), 21, 0.01);
    EXPECT_NEAR(ContrastRatio(0x336699, 0x336699), 1, 0.001);
    EXPECT_NEAR(ContrastRatio(0x777777, 0xFFFFFF), 4.48, 0.01);
}

struct ContainerColors : testing::Test {
    ContainerColors() {
        Main.IsLoading = false;
        bool ok = false;
        NewGroup(Main, true, ok);
        EXPECT_TRUE(ok);
    }
    fake::Computer Computer;
    frmMain Main{Computer.MakePlatform()};
};

TEST_F(ContainerColors, BackColorOfAContainerGivesItsBorder) {
    Main.Marks.Take();
    SetColors(Main, 0, 0x290700);
    EXPECT_EQ(Main.ConView(0).FrameBackColor, 0x290700);
    EXPECT_EQ(Main.ConView(0).ContainerBackColor, ContrastColor(0x290700));
    EXPECT_FALSE(Main.Marks.Pending().Containers.empty()) << "the new colour would not be seen";
}

TEST_F(ContainerColors, GradientFollowsTheSettingAndATileHasNone) {
    SetColors(Main, 0, 0x290700);
    EXPECT_TRUE(Main.ConView(0).Gradient);
    Main.Settings.GradientContainers = false;
    SetColors(Main, 0, 0x290700);
    EXPECT_FALSE(Main.ConView(0).Gradient);
    Main.Settings.GradientContainers = true;
    const auto tile = Main.Con(0).ShrinkSize();
    Main.ConView(0).Container.Place.Width = static_cast<float>(tile.Width);
    Main.ConView(0).Container.Place.Height = static_cast<float>(tile.Height);
    SetColors(Main, 0, 0x290700);
    EXPECT_FALSE(Main.ConView(0).Gradient);
}

TEST_F(ContainerColors, TagMarkShowsWhileTheContainerShowsATag) {
    SetColors(Main, 0, 0);
    EXPECT_FALSE(Main.ConView(0).shapeTags.Visible);
    Main.Con(0).ShowingTag = "work";
    SetColors(Main, 0, 0);
    EXPECT_TRUE(Main.ConView(0).shapeTags.Visible);
}

TEST_F(ContainerColors, LabelColorReachesTitleMarksAndCaptions) {
    SetLabelColors(Main, 0, 0x00FFEE);
    const ContainerView& view = Main.ConView(0);
    EXPECT_EQ(view.ContainerLabel.ForeColor, 0x00FFEE);
    EXPECT_EQ(view.MarkForeColor, 0x00FFEE) << "fold mark and pin";
    EXPECT_EQ(view.FrameForeColor, 0x00FFEE) << "what is saved, and what captions take";
}

TEST_F(ContainerColors, ADeadContainerTakesNoColor) {
    DeleteContainer(Main, 0, false);
    const Color before = Main.ConView(0).FrameBackColor;
    SetColors(Main, 0, 0x123456);
    SetLabelColors(Main, 7, 0x123456);
    EXPECT_EQ(Main.ConView(0).FrameBackColor, before);
}

TEST_F(ContainerColors, WorkspaceColorsGiveTitleAndFrame) {
    SetWorkspaceColors(Main, 0x1A1306, 0xEEEEEE);
    EXPECT_EQ(Main.View.BackColor, 0x1A1306);
    EXPECT_EQ(Main.View.MoveMeColor, 0x1A1306);
    EXPECT_EQ(Main.View.FrameColor, ContrastColor(0x1A1306));
    EXPECT_EQ(Main.View.CaptionForeColor, 0xEEEEEE);
    EXPECT_TRUE(Main.Marks.Pending().Workspace);
}

} // namespace
} // namespace quill
