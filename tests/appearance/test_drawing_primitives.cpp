#include "appearance/drawing_primitives.h"

#include "fake/canvas.h"
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
    EXPECT_EQ(Painted(Label()), "text \"Mail\" 195,345 1425x375 white left 10pt\n");
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
                              "text \"Mail\" 195,345 1425x375 white left 10pt\n");
}

TEST(EruLabel, BorderIsTwiceItsWidthLessOne) {
    EruLabel label = Label();
    label.BackStyle = 1;
    label.BorderWidth = 3;
    EXPECT_EQ(Painted(label), "round 150,300 1515x465 r0 #FF0000 pen 5 #00FF00\n"
                              "text \"Mail\" 240,390 1380x330 white left 10pt\n")
        << "square, 5 pixels wide; the text gives way at the left and top only";
    label.BorderWidth = 1;
    EXPECT_NE(Painted(label).find("pen 1 "), std::string::npos);
}

TEST(EruLabel, CornersAreRoundedBySpreadingTheRadius) {
    EruLabel label = Label();
    label.BackStyle = 1;
    label.BorderRadius = 4; // ellipse axes of 10 pixels: half of one is 75 twips
    EXPECT_EQ(Painted(label), "round 150,300 1515x465 r75 #FF0000\n"
                              "text \"Mail\" 195,345 1425x375 white left 10pt\n")
        << "no border width, no pen";
}

TEST(EruLabel, ABackStyleOtherThanOneDrawsNoGround) {
    EruLabel label = Label();
    label.BackStyle = 2;
    label.BorderWidth = 2;
    EXPECT_EQ(Painted(label).find("round"), std::string::npos);
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

} // namespace
} // namespace quill
