#include "containers/workspace_fixture.h"

namespace quill {
namespace {

struct LinkLayout : test::WorkspaceFixture {};

TEST_F(LinkLayout, ASpacingOutsideItsBoundsBecomesTheUsualOne) {
    const int rows[][2] = {{44, 155}, {45, 45}, {455, 455}, {456, 155}, {155, 155}, {0, 155}, {-1, 155}};
    for (const auto& row : rows) EXPECT_EQ(GetProperSpacing(row[0]), row[1]) << row[0];
}

TEST_F(LinkLayout, TheIconStandsLeftOfTheLabelCentredOnItsHeight) {
    const int link = NewLink(OnWorkspace(), {1000, 2000});
    Main.LinkView(link).lblShortcut.Place = {1000, 2000, 900, 300};
    Main.LinkView(link).LabelMeasured = true;
    MoveLinkIcon(Main, link);
    EXPECT_EQ(fake::Words(Main.LinkView(link).picShortcut), "750,2030 240x240");
}

TEST_F(LinkLayout, ALargeFontHasALargeIconInTheSizeOfTheSettings) {
    const int link = NewLink(OnWorkspace(), {1000, 2000});
    Main.Settings.LargeIconSize = 48;
    for (const auto& [points, edge] :
         {std::pair{10.0F, 240.0F}, {10.9F, 240.0F}, {11.0F, 720.0F}, {40.0F, 720.0F}}) {
        Main.LinkView(link).lblShortcut.FontSize = points;
        EXPECT_EQ(IconEdge(Main, link), edge) << points;
    }
}

TEST_F(LinkLayout, TheLabelIsAtLeastAsHighAsItsTextAndItsIcon) {
    const int link = NewLink(OnWorkspace(), {1000, 2000});
    for (const float points : {1.0F, 10.0F, 12.0F, 60.0F}) {
        auto& label = Main.LinkView(link).lblShortcut;
        label.FontSize = points;
        SetNewLinkHeight(Main, link);
        const FontSpec font{Main.Settings.FontName, points, label.FontBold};
        const auto text = computer.Texts.MeasureText(font, label.Caption, 0);
        EXPECT_EQ(label.Place.Width, text.Width) << points;
        EXPECT_EQ(label.Place.Height, std::max(text.Height, IconEdge(Main, link))) << points;
        EXPECT_EQ(Main.LinkView(link).picShortcut.Right() + 10, label.Place.Left) << points;
    }
}

TEST_F(LinkLayout, AShortcutThatNobodyHasSeenHasAPlaceToBePressed) {
    const int link = NewLink(OnWorkspace(), {1000, 2000}, "/usr/bin/thing");
    ASSERT_FALSE(Main.LinkView(link).LabelMeasured);
    EXPECT_GT(LabelPlace(Main, link).Width, 0);
    EXPECT_GE(LabelPlace(Main, link).Height, 240);
    EXPECT_EQ(IconPlace(Main, link).Width, 240);
    EXPECT_EQ(ElementAt(Main, OnBack, {1010, 2100}), (ElementId{ElementKind::lblShortcut, link}));
    EXPECT_EQ(ElementAt(Main, OnBack, {900, 2120}), (ElementId{ElementKind::picShortcut, link}));
}

TEST_F(LinkLayout, ADeadShortcutIsLeftAlone) {
    const int link = NewLink(OnWorkspace(), {1000, 2000});
    DeleteShortcut(Main, link);
    for (const int gone : {link, -1, 9}) {
        MoveLinkIcon(Main, gone);
        SetNewLinkHeight(Main, gone);
    }
    EXPECT_FALSE(Main.LinkView(link).LabelMeasured);
}

} // namespace
} // namespace quill
