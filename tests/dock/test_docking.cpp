#include "dock/docking.h"
#include "fake/desk.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using fake::Desk;

struct Window : testing::Test {
    Desk desk;
    void SetUp() override {
        desk.Files().Put(desk.Settings("Quillmere.ini"),
                         "108\r\n[X]\r\n1500\r\n[Y]\r\n1500\r\n[W]\r\n9000\r\n[H]\r\n6000\r\n");
        desk.StartWorkspace();
    }
};

TEST_F(Window, TheTitleRowMovesIt) {
    desk.Drag(ElementKind::lblCaption, -1, {600, 300});
    EXPECT_EQ(desk.Main->View.Window, (Rect{2100, 1800, 9000, 6000}));
}

TEST_F(Window, WithMovementLockedTheTitleRowDoesNothing) {
    mnuPreventWindowMovement_Click(*desk.Main);
    desk.Drag(ElementKind::lblCaption, -1, {600, 300});
    EXPECT_EQ(desk.Main->View.Window, (Rect{1500, 1500, 9000, 6000}));
    EXPECT_EQ(GripEdgesAt(*desk.Main, {1, 1}), 0);
}

struct GripRow {
    const char* Where;
    float X, Y; // part of the width and height
    int Edges;
};

const GripRow grips[] = {
    {"upper left corner", 0, 0, EdgeLeft | EdgeTop},
    {"upper right corner", 1, 0, EdgeRight | EdgeTop},
    {"lower left corner", 0, 1, EdgeLeft | EdgeBottom},
    {"lower right corner", 1, 1, EdgeRight | EdgeBottom},
    {"left edge", 0, 0.5F, EdgeLeft},
    {"right edge", 1, 0.5F, EdgeRight},
    {"top edge", 0.5F, 0, EdgeTop},
    {"bottom edge", 0.5F, 1, EdgeBottom},
    {"middle", 0.5F, 0.5F, 0},
};

TEST_F(Window, ItHasGripsAtEveryEdgeAndCorner) {
    const auto& back = desk.Main->View.picBack.Place;
    for (const auto& row : grips) {
        const Point at{row.X * (back.Width - 1), row.Y * (back.Height - 1)};
        EXPECT_EQ(GripEdgesAt(*desk.Main, at), row.Edges) << row.Where;
    }
}

TEST_F(Window, LayoutFollowsWhenOneDimensionChanges) {
    desk.MoveWindow({1500, 1500, 9000, 7500});
    EXPECT_EQ(desk.Main->View.picBack.Place.Height, 7500 - 30);
    desk.MoveWindow({1500, 1500, 10500, 7500});
    EXPECT_EQ(desk.Main->View.picBack.Place.Width, 10500 - 35);
}

TEST_F(Window, KeepOnTopTakesEffectAtOnceAndIsSaved) {
    EXPECT_TRUE(desk.Computer.Windows.Of(MainWindow).OnTop);
    mnuOnTop_Click(*desk.Main);
    EXPECT_FALSE(desk.Computer.Windows.Of(MainWindow).OnTop);
    desk.RestartAfterKill();
    EXPECT_FALSE(desk.Main->Settings.OnTop);
}

TEST_F(Window, AMonitorThatGoesAwayBringsAFloatingWorkspaceIntoView) {
    desk.Computer.Windows.Screens.push_back({{28800, 0, 28800, 16200}, {28800, 0, 28800, 16200}});
    desk.MoveWindow({30000, 1500, 9000, 6000});
    desk.Computer.Windows.Screens.pop_back();
    Screen_Changed(*desk.Main);
    EXPECT_EQ(desk.Main->View.Window, (Rect{28800 - 9000, 1500, 9000, 6000}));
}

TEST_F(Window, ANegligibleSizeIsMended) {
    PlaceMain(*desk.Main, {0, 0, 50, 50});
    EXPECT_EQ(desk.Main->View.Window, (Rect{0, 0, 1500, 1500}));
}

TEST_F(Window, OpacityIsHeldWithinItsBounds) {
    desk.Main->Settings.Translucent = true;
    for (const auto& [set, used] : {std::pair{0, 10}, {255, 250}, {235, 235}}) {
        desk.Main->Settings.Opacity = static_cast<std::int16_t>(set);
        ApplyOpacity(*desk.Main);
        EXPECT_EQ(desk.Computer.Windows.Of(MainWindow).Opacity, used);
    }
}

TEST_F(Window, TheVirtualDesktopSpansEveryMonitor) {
    desk.Computer.Windows.Screens = {{{0, 0, 19200, 12000}, {0, 0, 19200, 12000}},
                                     {{-19200, -3000, 19200, 12000}, {-19200, -3000, 19200, 12000}}};
    EXPECT_EQ(VirtualDesktop(*desk.Main), (Rect{-19200, -3000, 38400, 15000}));
}

} // namespace
} // namespace quill
