#include "containers/full_size.h"
#include "containers/workspace_fixture.h"

namespace quill {
namespace {

struct FullSizeOf : test::WorkspaceFixture {};

TEST_F(FullSizeOf, WithNothingKnownItIsThatOfANewContainer) {
    const int index = New({0, 0, 3000, 3000});
    EXPECT_EQ(FullSize(Main, index), (Size{3000, 3000}));
}

TEST_F(FullSizeOf, TheStoredSizeOfAFileIsEnough) {
    const int index = New({0, 0, 3000, 3000});
    Main.Con(index).SetSize({.H = 4000, .W = 5000});
    EXPECT_EQ(FullSize(Main, index), (Size{5000, 4000}));
}

TEST_F(FullSizeOf, TheTilesOwnSizeIsNeverTakenForIt) {
    const int index = New({0, 0, 3000, 3000});
    RememberFullSize(Main, index, {5000, 4000});
    RememberFullSize(Main, index, {700, 950});
    EXPECT_EQ(FullSize(Main, index), (Size{5000, 4000}));
    Main.Con(index).SetOriginalSize(700, 950);
    Main.Con(index).SetSize({.H = 950, .W = 700});
    EXPECT_EQ(FullSize(Main, index), (Size{3000, 3000}));
}

TEST_F(FullSizeOf, AFoldedContainerKeepsItsHeightAndTakesItsPresentWidth) {
    const int index = New({0, 0, 3000, 3000});
    RememberFullSize(Main, index, {3000, 4000});
    Main.ConView(index).FoldMark = "+";
    Box(index) = {0, 0, 3500, 320};
    RememberPresentSize(Main, index);
    EXPECT_EQ(FullSize(Main, index), (Size{3500, 4000}));
}

} // namespace
} // namespace quill
