#include "appearance/covers.h"
#include "containers/lifecycle.h"
#include "core/objects.h"
#include "fake/computer.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct Covers : testing::Test {
    fake::Computer computer;
    frmMain Main{computer.MakePlatform()};

    int ContainerAt(float left, float top) {
        bool ok = false;
        Main.Group.NewContainerPos = {left, top};
        Main.IsLoading = false;
        NewGroup(Main, true, ok);
        return Main.NextContainerIndex - 1;
    }
};

TEST_F(Covers, WhatLiesUnderAContainerIsNotPaintedAndWhatPeepsOutIs) {
    ContainerAt(1000, 1000);
    const auto covers = CoversAbove(Main, OnWorkspace());
    EXPECT_TRUE(IsCovered(covers, {1500, 1500, 900, 300}));
    EXPECT_FALSE(IsCovered(covers, {3500, 1500, 900, 300})) << "it sticks out at the right";
    EXPECT_FALSE(IsCovered(covers, {1000, 1000, 300, 300})) << "the corner is round";
}

TEST_F(Covers, OnlyWhatIsHigherInTheStackHides) {
    const int lower = ContainerAt(1000, 1000);
    const int upper = ContainerAt(2000, 1000);
    EXPECT_TRUE(IsCovered(CoversAbove(Main, InContainer(lower)), {1500, 500, 600, 300}));
    EXPECT_FALSE(IsCovered(CoversAbove(Main, InContainer(upper)), {300, 500, 600, 300}));
    AddToZorderCollection(Main, {KindContainer, lower}, false);
    EXPECT_TRUE(IsCovered(CoversAbove(Main, InContainer(upper)), {300, 500, 600, 300}));
}

TEST_F(Covers, AContainerThatIsHiddenOrGoneHidesNothing) {
    const int hidden = ContainerAt(1000, 1000);
    Main.ConView(hidden).Container.Visible = false;
    EXPECT_TRUE(CoversAbove(Main, OnWorkspace()).empty());
    Main.ConView(hidden).Container.Visible = true;
    DeleteContainer(Main, hidden, false);
    EXPECT_TRUE(CoversAbove(Main, OnWorkspace()).empty());
}

} // namespace
} // namespace quill
