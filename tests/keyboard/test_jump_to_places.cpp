// Where the Keyboard Launcher's box, its parts, its tips and its list lie.
#include "fake/words.h"
#include "keyboard/open_box.h"

#include <vector>

namespace quill {
namespace {

constexpr ElementKind parts[] = {ElementKind::PicJumpToIcon,    ElementKind::lblJumpToLink,
                                 ElementKind::cboSearch,        ElementKind::lblJumpToTip,
                                 ElementKind::lblHistory,       ElementKind::lblGo,
                                 ElementKind::lblClosePicJumpTo};

struct JumpToPlaces : OpenBox {
    Rect Card() { return {0, 0, Box().Place.Width, JumpToHeight}; }
    void ExpectPartsApart() {
        for (const auto one : parts) {
            EXPECT_TRUE(Within(PartAt(one), Card())) << NameOf(one) << " " << fake::Words(PartAt(one));
            EXPECT_GT(PartAt(one).Height, 0) << NameOf(one);
            for (const auto other : parts)
                if (one != other)
                    EXPECT_FALSE(PartAt(one).Intersects(PartAt(other)))
                        << NameOf(one) << " " << NameOf(other);
        }
    }
    static std::string NameOf(ElementKind kind) { return std::to_string(static_cast<int>(kind)); }
};

TEST_F(JumpToPlaces, TheBoxLiesInTheMiddleOfTheWorkspace) {
    const Rect place = PlaceOfJumpTo(Main);
    EXPECT_FLOAT_EQ(place.Width, JumpToWidth);
    EXPECT_FLOAT_EQ(place.Height, JumpToHeight);
    EXPECT_FLOAT_EQ(place.Left, Back().Width / 2 - JumpToWidth / 2);
    EXPECT_FLOAT_EQ(place.Top, Back().Height / 2 - JumpToHeight / 2);
}

TEST_F(JumpToPlaces, ANarrowWorkspaceMakesTheBoxNarrow) {
    SizeWorkspace(4000, 6000);
    ShowBox();
    EXPECT_LT(Box().Place.Width, Back().Width);
    EXPECT_GT(Box().Place.Width, Back().Width - 20 * TwipsPerPixel);
    EXPECT_FLOAT_EQ(Box().Place.Left, (Back().Width - Box().Place.Width) / 2);
    ExpectPartsApart();
}

TEST_F(JumpToPlaces, NoPartLiesOverAnotherOrOutsideTheCard) {
    ExpectPartsApart();
}

TEST_F(JumpToPlaces, OnTheNarrowestWorkspaceNoPlaceIsNegative) {
    SizeWorkspace(1500, 1500);
    ShowBox();
    EXPECT_GE(Box().Place.Width, 0);
    for (const auto part : parts) EXPECT_GE(PartAt(part).Width, 0) << NameOf(part);
    EXPECT_GT(PartAt(ElementKind::cboSearch).Width, 0);
}

TEST_F(JumpToPlaces, WithoutHistoryTheHintHasItsRoom) {
    const float before = PartAt(ElementKind::lblJumpToTip).Width;
    Box().lblHistoryVisible = false;
    EXPECT_GT(PartAt(ElementKind::lblJumpToTip).Width, before);
    EXPECT_LE(PartAt(ElementKind::lblJumpToTip).Right(), PartAt(ElementKind::lblGo).Left);
}

TEST_F(JumpToPlaces, ALinkIsAsWideAsItsWordInThePersonsLanguage) {
    const float before = PartAt(ElementKind::lblHistory).Width;
    Computer.Catalogue.Messages["History"] = "Eingabeverlauf";
    EXPECT_GT(PartAt(ElementKind::lblHistory).Width, before);
    ExpectPartsApart();
}

TEST_F(JumpToPlaces, WhatIsNoPartHasNoPlace) {
    EXPECT_EQ(PartAt(ElementKind::lblCaption), Rect{});
}

// The tips.

TEST_F(JumpToPlaces, TheTipsHangBelowAndTheBoxStaysWhereItWas) {
    SizeWorkspace(12035, 15000);
    ShowBox();
    const Rect before = Box().Place;
    EXPECT_EQ(PlaceOfJumpToTips(Main), Rect{});
    ShowTips();
    EXPECT_FLOAT_EQ(Box().Place.Top, before.Top);
    const Rect tips = PlaceOfJumpToTips(Main);
    EXPECT_GT(tips.Top, JumpToHeight);
    EXPECT_FLOAT_EQ(tips.Bottom(), Box().Place.Height);
    EXPECT_GE(tips.Bottom(), LayJumpToTips(Main, tips).back().Place.Bottom());
}

TEST_F(JumpToPlaces, OnALowWorkspaceTheBoxGoesUpForTheTips) {
    const float middle = Box().Place.Top;
    ShowTips();
    EXPECT_LT(Box().Place.Top, middle);
    EXPECT_LT(Box().Place.Bottom(), Back().Height);
    const Rect tips = PlaceOfJumpToTips(Main);
    EXPECT_GE(tips.Bottom(), LayJumpToTips(Main, tips).back().Place.Bottom()) << "all of them";
}

TEST_F(JumpToPlaces, ALowerWorkspaceCutsTheTipsAtALineAndTheLowestShowsNone) {
    ShowTips();
    const float whole = PlaceOfJumpToTips(Main).Height;
    SizeWorkspace(12035, 5000);
    ShowBox();
    EXPECT_GT(PlaceOfJumpToTips(Main).Height, 0);
    EXPECT_LT(PlaceOfJumpToTips(Main).Height, whole);
    EXPECT_GE(Box().Place.Top, 0);
    EXPECT_LE(Box().Place.Bottom(), Back().Height);
    SizeWorkspace(12035, 3000);
    ShowBox();
    EXPECT_EQ(PlaceOfJumpToTips(Main), Rect{});
    EXPECT_FLOAT_EQ(Box().Place.Height, JumpToHeight);
    EXPECT_FLOAT_EQ(Box().Place.Top, (Back().Height - JumpToHeight) / 2);
}

TEST_F(JumpToPlaces, TheTipsGiveWayToTheList) {
    ShowTips();
    DropDown(3);
    EXPECT_EQ(PlaceOfJumpToTips(Main), Rect{});
}

// The list.

TEST_F(JumpToPlaces, TheListLiesBelowTheFieldAndIsAsWide) {
    DropDown(4);
    const Rect list = PlaceOfSearchList(Main), field = PartAt(ElementKind::cboSearch);
    EXPECT_FLOAT_EQ(list.Left, Box().Place.Left + field.Left);
    EXPECT_FLOAT_EQ(list.Width, field.Width);
    EXPECT_GT(list.Top, Box().Place.Top + field.Bottom());
    EXPECT_FLOAT_EQ(list.Height, 4 * SearchRowHeight + 2 * SearchListInset);
}

TEST_F(JumpToPlaces, NoMoreThanTenLinesShowAtOnce) {
    SizeWorkspace(12035, 15000);
    ShowBox();
    DropDown(12'850);
    EXPECT_FLOAT_EQ(PlaceOfSearchList(Main).Height, 10 * SearchRowHeight + 2 * SearchListInset);
}

TEST_F(JumpToPlaces, TheListEndsWithinTheWorkspaceOfAnyHeight) {
    DropDown(30);
    for (float height = 3000; height < 15000; height += 500) {
        SizeWorkspace(12035, height);
        ShowBox();
        EXPECT_LE(PlaceOfSearchList(Main).Bottom(), Back().Height) << height;
        EXPECT_GE(PlaceOfSearchList(Main).Top, 0) << height;
    }
}

TEST_F(JumpToPlaces, WhereTheBoxLiesLowTheListGoesUp) {
    DropDown(5);
    Box().Place.Top = Back().Height - JumpToHeight;
    const Rect list = PlaceOfSearchList(Main);
    EXPECT_LT(list.Bottom(), Box().Place.Top);
    EXPECT_FLOAT_EQ(list.Height, 5 * SearchRowHeight + 2 * SearchListInset);
}

TEST_F(JumpToPlaces, ThereIsNoListWithoutLinesWithoutBoxOrWhenItIsUp) {
    DropDown(0);
    EXPECT_EQ(PlaceOfSearchList(Main), Rect{});
    DropDown(3);
    Box().cboSearch.DroppedDown = false;
    EXPECT_EQ(PlaceOfSearchList(Main), Rect{});
    DropDown(3);
    Box().Visible = false;
    EXPECT_EQ(PlaceOfSearchList(Main), Rect{});
}

} // namespace
} // namespace quill
