#include "appearance/drawing_primitives.h"

#include "appearance/print_rotated.h"
#include "appearance/round_window.h"
#include "fake/canvas.h"
#include "fake/texts.h"
#include "fake/words.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

EruLabel Label() {
    EruLabel label;
    label.Place = {150, 300, 1500, 450}; // 10,20 100x30 pixels
    label.Caption = "Mail";
    label.ForeColor = 0xFFFFFF;
    label.BackColor = 0x0000FF;
    label.BorderColor = 0x00FF00;
    return label;
}

std::string Painted(const EruLabel& label) {
    fake::FakeCanvas canvas;
    PaintEruLabel(canvas, label, "Tahoma", {});
    return canvas.Painted();
}

TEST(EruLabel, OnlyTextIsDrawnOverWhatLiesBehind) {
    // The text's place begins 3 pixels in and ends 3 pixels before an edge that lies one pixel further out.
    EXPECT_EQ(Painted(Label()), "text \"Mail\" 195,345 1425x375 white left 10pt clip\n");
}

TEST(EruLabel, AlignmentOneIsRightAndOnlyTwoCentres) {
    struct Row {
        std::uint8_t Alignment;
        const char* Word;
    };
    for (const Row& row :
         {Row{0, " left "}, Row{1, " right "}, Row{2, " center "}, Row{3, " right "}, Row{200, " right "}}) {
        EruLabel label = Label();
        label.Alignment = row.Alignment;
        EXPECT_NE(Painted(label).find(row.Word), std::string::npos)
            << int{row.Alignment} << ": " << Painted(label);
    }
}

TEST(EruLabel, OpacityIsHeldBetweenNothingAndSolid) {
    EruLabel label = Label();
    label.SetOpacity(1.5F);
    EXPECT_EQ(label.Opacity, 1);
    label.SetOpacity(-0.2F);
    EXPECT_EQ(label.Opacity, 0);
    EXPECT_EQ(Painted(label), "") << "an opacity of 0 paints nothing, the text included";
}

TEST(EruLabel, NoCaptionPaintsNothing) {
    EruLabel label = Label();
    label.Caption.clear();
    label.BackStyle = 1;
    EXPECT_EQ(Painted(label), "");
}

TEST(EruLabel, TextStaysSolidOnATranslucentGround) {
    EruLabel label = Label();
    label.BackStyle = 1;
    label.SetOpacity(0.5F);
    EXPECT_EQ(Painted(label), "fill 150,300 1515x465 #FF0000 opacity 0.5\n"
                              "text \"Mail\" 195,345 1425x375 white left 10pt clip\n");
}

TEST(EruLabel, BorderIsTwiceItsWidthLessOne) {
    EruLabel label = Label();
    label.BackStyle = 1;
    label.BorderWidth = 3;
    EXPECT_EQ(Painted(label), "clip 150,300 1515x465\n"
                              "round 120,270 1575x525 r0 #FF0000 pen 5 #00FF00\n"
                              "unclip\n"
                              "text \"Mail\" 240,390 1380x330 white left 10pt clip\n")
        << "square, 5 pixels wide along the edge, of which 3 are seen; the text gives way at the left and "
           "top only";
    label.BorderWidth = 1;
    EXPECT_EQ(Painted(label), "round 150,300 1515x465 r0 #FF0000 pen 1 #00FF00\n"
                              "text \"Mail\" 210,360 1410x360 white left 10pt clip\n");
}

TEST(EruLabel, OnlyTheThinnestBorderCanBeBroken) {
    struct Row {
        std::uint8_t Style, Width;
        const char* Words;
    };
    for (const Row& row :
         {Row{0, 1, "pen 1 #00FF00\n"}, Row{1, 1, "pen 1 #00FF00 dashed\n"},
          Row{2, 1, "pen 1 #00FF00 dotted\n"}, Row{3, 1, "pen 1 #00FF00 dash-dotted\n"},
          Row{4, 1, "pen 1 #00FF00 dash-dot-dotted\n"}, Row{1, 2, "pen 3 #00FF00\n"},
          Row{9, 1, "pen 1 #00FF00\n"}, Row{5, 1, "r0 #FF0000\n"}, Row{5, 3, "r0 #FF0000\n"}}) {
        EruLabel label = Label();
        label.BackStyle = 1;
        label.BorderStyle = row.Style;
        label.BorderWidth = row.Width;
        EXPECT_NE(Painted(label).find(row.Words), std::string::npos)
            << int{row.Style} << " " << int{row.Width} << ": " << Painted(label);
    }
}

TEST(EruLabel, CornersAreRoundedBySpreadingTheRadius) {
    EruLabel label = Label();
    label.BackStyle = 1;
    label.BorderRadius = 4; // ellipse axes of 10 pixels: half of one is 75 twips
    EXPECT_EQ(Painted(label), "round 150,300 1515x465 r75 #FF0000\n"
                              "text \"Mail\" 195,345 1425x375 white left 10pt clip\n")
        << "no border width, no pen";
}

TEST(EruLabel, ARoundedBorderIsSeenAsWideAsASquareOne) {
    EruLabel label = Label();
    label.BackStyle = 1;
    label.BorderRadius = 4;
    label.BorderWidth = 2;
    EXPECT_EQ(Painted(label), "clip 150,300 1515x465\n"
                              "round 135,285 1545x495 r90 #FF0000 pen 3 #00FF00\n"
                              "unclip\n"
                              "text \"Mail\" 225,375 1395x345 white left 10pt clip\n");
}

TEST(EruLabel, ABackStyleOtherThanOneDrawsNoGround) {
    EruLabel label = Label();
    label.BackStyle = 2;
    label.BorderWidth = 2;
    EXPECT_EQ(Painted(label).find("round"), std::string::npos);
}

TEST(EruLabel, ColorsThatNobodySetAreThoseOfTheDesktopsButtons) {
    EruLabel label;
    label.Place = {0, 0, 150, 150};
    label.Caption = "Mail";
    label.BackStyle = 1;
    EXPECT_EQ(Painted(label),
              "fill 0,0 165x165 system15\ntext \"Mail\" 45,45 75x75 system18 left 10pt clip\n");
    EXPECT_EQ(static_cast<std::uint32_t>(label.BackColor), 0x8000000FU);
    EXPECT_EQ(static_cast<std::uint32_t>(label.ForeColor), 0x80000012U);
}

TEST(EruLabel, MinusOneAndOrdinaryColorsAreNoneOfTheSystems) {
    for (const Color color : {-1, 0, 0xFFFFFF, 0x0F}) EXPECT_FALSE(IsSystemColor(color)) << color;
    EXPECT_TRUE(IsSystemColor(CodeOf(SystemColor::WindowBackground)));
}

struct FormatRow {
    std::uint8_t Alignment;
    bool WordWrap, AutoSize;
    int Flags;
};

TEST(EruLabel, FormatFlagsFollowAlignmentWrappingAndSizing) {
    const FormatRow rows[] = {
        {0, false, false, 0x800}, {1, false, false, 0x802}, {2, false, false, 0x801},
        {7, false, false, 0x802}, {0, true, false, 0x810},  {0, false, true, 0x900},
        {2, true, true, 0x811}, // wrapping comes first
        {1, false, true, 0x902},
    };
    for (const auto& row : rows) {
        EruLabel label;
        label.Alignment = row.Alignment;
        label.WordWrap = row.WordWrap;
        label.AutoSize = row.AutoSize;
        EXPECT_EQ(TextFormatOf(label), row.Flags)
            << int{row.Alignment} << " " << row.WordWrap << " " << row.AutoSize;
    }
}

TEST(EruLabel, AnAmpersandIsALetter) {
    EruLabel label = Label();
    label.Caption = "R&D";
    EXPECT_NE(Painted(label).find("\"R&D\""), std::string::npos);
}

TEST(EruLabel, TextIsCutAtItsRectangleUnlessTheLabelFollowsItsText) {
    EruLabel label = Label();
    label.AutoSize = true;
    EXPECT_EQ(Painted(label).find(" clip"), std::string::npos);
    label.WordWrap = true;
    EXPECT_NE(Painted(label).find(" clip"), std::string::npos);
    TextStyle ellipsis;
    ellipsis.Elide = true;
    fake::FakeCanvas canvas;
    PaintEruLabel(canvas, label, "Tahoma", ellipsis);
    EXPECT_EQ(canvas.Painted().find(" clip"), std::string::npos) << "an ellipsis stands within it already";
}

TEST(EruLabel, AutoSizeTakesTheHeightOfTheText) {
    const fake::FakeTexts texts; // a line of 10 points is 260 high, a letter 90 wide
    EruLabel label = Label();
    SizeLabel(texts, label, "Tahoma");
    EXPECT_EQ(label.Place, Label().Place) << "off";
    label.AutoSize = true;
    SizeLabel(texts, label, "Tahoma");
    EXPECT_EQ(label.Place.Height, 260 + 8 * 15);
    label.BorderWidth = 3;
    SizeLabel(texts, label, "Tahoma");
    EXPECT_EQ(label.Place.Height, 260 + 14 * 15);
    EXPECT_EQ(label.Place.Width, Label().Place.Width) << "the width is the holder's";
    label.Caption = "one\r\ntwo";
    SizeLabel(texts, label, "Tahoma");
    EXPECT_EQ(label.Place.Height, 2 * 260 + 14 * 15);
    label.Caption.clear();
    label.Place.Height = 77;
    SizeLabel(texts, label, "Tahoma");
    EXPECT_EQ(label.Place.Height, 77) << "no caption";
}

TEST(EruLabel, AWrappedTextHasTheWidthLessEightPixelsAndBothBorders) {
    const fake::FakeTexts texts;
    EruLabel label = Label();
    label.AutoSize = label.WordWrap = true;
    label.Caption = "aaaaaaa bbbbbbb"; // 7 and 7 letters: 630 twips a word, 1350 both
    label.Place.Width = 1350 + 8 * 15;
    SizeLabel(texts, label, "Tahoma");
    EXPECT_EQ(label.Place.Height, 260 + 8 * 15) << "both words on a line";
    label.BorderWidth = 1;
    SizeLabel(texts, label, "Tahoma");
    EXPECT_EQ(label.Place.Height, 2 * 260 + 10 * 15) << "30 twips less, and they do not fit";
    label.Place.Width = 10;
    SizeLabel(texts, label, "Tahoma");
    EXPECT_EQ(label.Place.Height, 14 * 260 + 10 * 15) << "never without a width: a letter a line";
}

TEST(EruLabel, FontAndWrappingReachTheText) {
    EruLabel label = Label();
    label.FontBold = label.WordWrap = true;
    label.FontSize = 14;
    EXPECT_NE(Painted(label).find("14pt bold wordbreak"), std::string::npos);
}

// ------------------------------------------------------------------------------------------------ the ramp

constexpr Rect Pixels(int width, int height) {
    return {0, 0, static_cast<float>(width) * 15, static_cast<float>(height) * 15};
}

std::vector<std::string> Ramp(const Rect& place, Color back, RampKind kind,
                              Rect exposed = {0, 0, 1e6F, 1e6F}) {
    fake::FakeCanvas canvas(exposed);
    DrawGradient(canvas, place, back, kind);
    return canvas.Lines;
}

TEST(Gradient, RunsFromItsColorTowardsWhiteByOneHundredInAContainer) {
    const Rect place = Pixels(100, 400);
    EXPECT_EQ(RampColorAt(place, 0x102030, RampKind::ContainerFrame, 0), 0x102030);
    EXPECT_EQ(RampColorAt(place, 0x102030, RampKind::ContainerFrame, place.Height - 1), 0x102030 + 0x646464);
}

TEST(Gradient, RunsByOneHundredAndFiftyOnTheWorkspace) {
    const Rect place = Pixels(100, 400);
    EXPECT_EQ(RampColorAt(place, 0, RampKind::Workspace, place.Height - 1), 0x969696);
}

TEST(Gradient, ReversedRunsFromTheBottom) {
    const Rect place = Pixels(100, 400);
    EXPECT_EQ(RampColorAt(place, 0, RampKind::ContainerFrameReversed, place.Height - 1), 0);
    EXPECT_EQ(RampColorAt(place, 0, RampKind::ContainerFrameReversed, 0), 0x646464);
}

TEST(Gradient, TheSumIsRoundedHalvesToTheEvenNumber) {
    const Rect place = Pixels(10, 201); // half a step a row
    EXPECT_EQ(RampColorAt(place, Rgb(0, 1, 2), RampKind::ContainerFrame, 15), Rgb(0, 2, 2));
    EXPECT_EQ(RampColorAt(place, Rgb(0, 1, 2), RampKind::ContainerFrame, 3 * 15), Rgb(2, 2, 4));
}

TEST(Gradient, AChannelMayReachWhiteAndStopsOnlyBeyond) {
    const auto lines = Ramp(Pixels(10, 101), Rgb(155, 155, 155), RampKind::ContainerFrame);
    EXPECT_EQ(lines.size(), 101U);
    EXPECT_EQ(lines.back(), "fill 0,1500 150x15 white");
    EXPECT_EQ(Ramp(Pixels(10, 101), Rgb(156, 155, 155), RampKind::ContainerFrame).size(), 100U);
}

TEST(Gradient, ReversedItStopsOnItsWayUp) {
    const auto lines = Ramp(Pixels(10, 101), Rgb(253, 0, 0), RampKind::ContainerFrameReversed);
    EXPECT_EQ(lines, (std::vector<std::string>{"fill 0,1470 150x15 #FF0202", "fill 0,1485 150x15 #FE0101",
                                               "fill 0,1500 150x15 #FD0000"}));
}

TEST(Gradient, ASingleRowHasItsOwnColor) {
    EXPECT_EQ(Ramp(Pixels(10, 1), 0x102030, RampKind::ContainerFrame),
              std::vector<std::string>{"fill 0,0 150x15 #302010"});
}

TEST(Gradient, ThreeRowsAreThreeSteps) {
    EXPECT_EQ(Ramp(Pixels(10, 3), 0, RampKind::ContainerFrame),
              (std::vector<std::string>{"fill 0,0 150x15 black", "fill 0,15 150x15 #323232",
                                        "fill 0,30 150x15 #646464"}));
}

TEST(Gradient, NeighboursOfOneColorAreOneRectangle) {
    EXPECT_EQ(Ramp(Pixels(1000, 2000), 0, RampKind::ContainerFrame).size(), 101U);
    EXPECT_EQ(Ramp(Pixels(1000, 2000), 0, RampKind::Workspace).size(), 151U);
}

TEST(Gradient, CoversEveryPixelRowOnce) {
    const Rect place = Pixels(20, 777);
    fake::FakeCanvas canvas;
    DrawGradient(canvas, place, 0x101010, RampKind::ContainerFrame);
    std::string last = canvas.Lines.back();
    EXPECT_EQ(canvas.Lines.front().substr(0, 9), "fill 0,0 ");
    float covered = 0;
    for (const std::string& line : canvas.Lines) covered += std::stof(line.substr(line.find('x') + 1));
    EXPECT_EQ(covered, place.Height);
}

TEST(Gradient, StopsWhereAChannelPassesWhiteAndLeavesTheRestUnpainted) {
    const Rect place = Pixels(10, 151); // one step a row
    const auto lines = Ramp(place, Rgb(250, 100, 100), RampKind::Workspace);
    EXPECT_EQ(lines.size(), 6U) << "red 250 to 255 and nothing below";
    EXPECT_EQ(lines.back(), "fill 0,75 150x15 #FF6969");
    EXPECT_EQ(RampColorAt(place, Rgb(250, 100, 100), RampKind::Workspace, 100 * 15), Rgb(250, 100, 100))
        << "below the stop the ground shows";
}

TEST(Gradient, WhiteIsOneRow) {
    EXPECT_EQ(Ramp(Pixels(10, 151), 0xFFFFFF, RampKind::Workspace).size(), 1U);
}

TEST(Gradient, TheDarkRampBeginsFiftyPixelsLower) {
    const Rect place = Pixels(10, 151);
    const auto lines = Ramp(place, 0, RampKind::WorkspaceDark);
    EXPECT_EQ(lines.front(), "fill 0,750 150x15 black") << "the first fifty rows keep the ground";
    EXPECT_EQ(lines.back(), "fill 0,2250 150x15 #646464");
    EXPECT_EQ(RampColorAt(place, 0, RampKind::WorkspaceDark, 49 * 15), 0);
}

TEST(Gradient, TheDarkRampKeepsItsLastBandWhereItStops) {
    // Rows 0 to 5 are painted before red overflows; the band of row 5 reaches 190 rows down.
    const auto lines = Ramp(Pixels(10, 601), Rgb(250, 0, 0), RampKind::WorkspaceDark);
    EXPECT_EQ(lines.back().substr(lines.back().rfind(' ')), " #FF0505");
    const Rect place = Pixels(10, 601);
    const int lastRow = 21; // the last whose step rounds to 5
    EXPECT_EQ(RampColorAt(place, Rgb(250, 0, 0), RampKind::WorkspaceDark, (50 + lastRow + 189) * 15.0F),
              Rgb(255, 5, 5));
    EXPECT_EQ(RampColorAt(place, Rgb(250, 0, 0), RampKind::WorkspaceDark, (50 + lastRow + 191) * 15.0F),
              Rgb(250, 0, 0));
}

TEST(Gradient, OnlyWhatIsExposedIsPainted) {
    const auto lines = Ramp(Pixels(10, 101), 0, RampKind::ContainerFrame, {0, 150, 1e6F, 30});
    EXPECT_EQ(lines, (std::vector<std::string>{"fill 0,150 150x15 #0A0A0A", "fill 0,165 150x15 #0B0B0B"}));
}

TEST(Gradient, NothingOfAnElementWithoutHeight) {
    EXPECT_TRUE(Ramp({0, 0, 150, 0}, 0, RampKind::ContainerFrame).empty());
    EXPECT_EQ(RampColorAt({0, 0, 150, 0}, 0x123456, RampKind::ContainerFrame, 0), 0x123456);
}

TEST(Gradient, StandsWhereItsElementStands) {
    EXPECT_EQ(Ramp({100, 200, 150, 15}, 0, RampKind::ContainerFrame),
              std::vector<std::string>{"fill 100,200 150x15 black"});
}

// ------------------------------------------------------------------------------- rotated text, round windows

std::string Turned(float points, int angle, int weight) {
    fake::FakeCanvas canvas;
    PrintRotated(canvas, "Tab", 0, 1200, "Verdana", points, angle, weight, 0xFFFFFF);
    return canvas.Painted();
}

TEST(RotatedText, IsTurnedInTenthsOfADegreeAroundItsCorner) {
    EXPECT_EQ(Turned(9, 90, 550), "rotated \"Tab\" 0,1200 turned 900 white left 9pt weight 550\n");
    EXPECT_EQ(Turned(9, -45, 400), "rotated \"Tab\" 0,1200 turned -450 white left 9pt weight 400\n");
}

TEST(RotatedText, LettersHaveWholePixels) {
    struct Row {
        float Points;
        int Height;
    };
    for (const Row& row : {Row{8, 11}, Row{9, 12}, Row{10, 13}, Row{11, 15}, Row{72, 96}})
        EXPECT_EQ(CharacterHeight(row.Points), row.Height) << row.Points;
    EXPECT_NE(Turned(8, 90, 550).find(" 8.25pt "), std::string::npos) << "11 pixels";
}

std::string Cut(const Rect& element, float radius, int frameX, int frameY) {
    fake::FakeCanvas canvas;
    RoundWindow(canvas, element, radius, frameX, frameY);
    EXPECT_EQ(canvas.Clips, 1) << "the caller ends it";
    return canvas.Painted();
}

TEST(RoundWindow, CutsWhatIsPaintedToCornersOfHalfTheAxis) {
    EXPECT_EQ(Cut({30, 45, 1500, 900}, 16, 0, 0), "clip 30,45 1500x900 r120\n");
}

TEST(RoundWindow, ItsRegionIsSmallerByTheFrameWhichLiesInside) {
    EXPECT_EQ(Cut({0, 0, 1500, 900}, 20, 1, 2), "round 0,0 1485x870 r150 system1\n"
                                                "clip 15,30 1455x810 r120\n");
}

TEST(RoundWindow, ASmallOneIsAsRoundAsItCanBe) {
    EXPECT_EQ(Cut({0, 0, 90, 60}, 20, 0, 0), "clip 0,0 90x60 r30\n");
    EXPECT_EQ(Cut({0, 0, 15, 15}, 20, 2, 2), "round 0,0 0x0 r0 system1\nclip 30,30 0x0\n");
}

} // namespace
} // namespace quill
