// The Keyboard Launcher's box, as it is painted.
#include "appearance/colors.h"
#include "appearance/paint.h"
#include "appearance/paint_jump_to.h"
#include "appearance/palette.h"
#include "fake/canvas.h"
#include "fake/words.h"
#include "keyboard/open_box.h"

#include <filesystem>

namespace quill {
namespace {

struct PaintedBox : OpenBox {
    fake::FakeCanvas Paint() {
        fake::FakeCanvas canvas;
        canvas.Missing = Missing;
        PaintSurface(Main, {SurfaceKind::JumpTo, -1}, canvas);
        EXPECT_EQ(canvas.Clips, 0);
        return canvas;
    }
    std::string TextIn(ElementKind part) {
        const auto lines = Paint().LinesWith("\" " + fake::Words(PartAt(part)));
        return lines.size() == 1 ? lines.front() : std::to_string(lines.size()) + " lines";
    }
    std::set<std::string> Missing;
};

bool Holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST_F(PaintedBox, TheCardCoversTheBoxAndTheFieldStandsOut) {
    const auto lines = Paint().LinesWith("round");
    ASSERT_GE(lines.size(), 2U);
    EXPECT_TRUE(Holds(lines[0], "round " + fake::Words(Rect{0, 0, JumpToWidth, JumpToHeight}))) << lines[0];
    EXPECT_TRUE(Holds(lines[1], fake::Words(PartAt(ElementKind::cboSearch)))) << lines[1];
    const auto colors = ColorsOfJumpTo(Main);
    EXPECT_NE(colors.Field, colors.Ground);
}

TEST_F(PaintedBox, TheNameIsBoldAndTheHintSmaller) {
    const auto name = TextIn(ElementKind::lblJumpToLink), hint = TextIn(ElementKind::lblJumpToTip);
    EXPECT_TRUE(Holds(name, "\"Keyboard Launcher\"") && Holds(name, " 11pt bold elide")) << name;
    EXPECT_TRUE(Holds(hint, "\"Open shortcuts, folders and URLs\"") && Holds(hint, " 9pt elide")) << hint;
}

TEST_F(PaintedBox, TheLinksAndTheCrossAreThere) {
    EXPECT_TRUE(Holds(TextIn(ElementKind::lblHistory), "\"History\""));
    EXPECT_TRUE(Holds(TextIn(ElementKind::lblGo), "\"Go\""));
    EXPECT_EQ(Paint().LinesWith("symbol close").size(), 1U);
}

TEST_F(PaintedBox, WithoutHistoryNoLinkToItIsPainted) {
    Box().lblHistoryVisible = false;
    EXPECT_TRUE(Paint().LinesWith("\"History\"").empty());
}

TEST_F(PaintedBox, EveryTextOfTheBoxIsOneLineAndCutWhereItDoesNotFit) {
    Box().lblJumpToLink = "one\ntwo\r\nthree\tfour\xE2\x80\xA8"
                          "five\xC2\x85six";
    Box().lblJumpToTip = std::string(4096, 'w');
    EXPECT_TRUE(Holds(TextIn(ElementKind::lblJumpToLink), "\"one two  three four five six\""));
    EXPECT_TRUE(Holds(TextIn(ElementKind::lblJumpToTip), " elide"));
}

TEST_F(PaintedBox, WhatIsTypedShowsAsItStands) {
    Box().lblJumpToLink = "<b>50%</b> %1 & \"x\" --help \xE2\x80\xAE"
                          "fdp";
    EXPECT_TRUE(Holds(TextIn(ElementKind::lblJumpToLink), "\"" + Box().lblJumpToLink + "\""));
}

TEST_F(PaintedBox, BytesThatAreNoTextStayBytes) {
    Box().lblJumpToLink = "a\xFF\xC3";
    EXPECT_TRUE(Holds(TextIn(ElementKind::lblJumpToLink), "\"a\xFF\xC3\""));
}

// The icon.

TEST_F(PaintedBox, TheIconIsThatOfTheMatchedShortcut) {
    Box().PicJumpToIcon.Shortcut = File("/home/user/letter.odt");
    EXPECT_EQ(Paint().LinesWith("icon /home/user/letter.odt").size(), 1U) << Paint().Painted();
}

TEST_F(PaintedBox, UntilTheIconIsThereTheSymbolOfItsKindStands) {
    Box().PicJumpToIcon.Shortcut = File("/home/user/letter.odt");
    Missing.insert("/home/user/letter.odt");
    EXPECT_EQ(Paint().LinesWith("symbol generic-file").size(), 1U);
}

TEST_F(PaintedBox, AShortcutThatHasGoneHasNoIcon) {
    Box().PicJumpToIcon.Shortcut = 7;
    EXPECT_TRUE(Paint().LinesWith("icon ").empty());
}

TEST_F(PaintedBox, AnIconOfTheThemeIsAskedForByNameAndReplacedByItsSymbol) {
    Box().PicJumpToIcon = {-1, "", "accessories-calculator", "calculator"};
    EXPECT_EQ(Paint().LinesWith("icon accessories-calculator").size(), 1U);
    EXPECT_TRUE(Paint().LinesWith("symbol calculator").empty());
    Missing.insert("");
    EXPECT_EQ(Paint().LinesWith("symbol calculator").size(), 1U);
}

TEST_F(PaintedBox, AnIconFileIsShownAsThePictureThatItIs) {
    Box().PicJumpToIcon = {-1, "/opt/quillmere/note.ico", "", "note-mark"};
    EXPECT_EQ(Paint().LinesWith("image /opt/quillmere/note.ico").size(), 1U) << Paint().Painted();
}

TEST_F(PaintedBox, EachSymbolOfTheBoxIsOneOfOurs) {
    const std::filesystem::path folder = std::string(QUILLMERE_SOURCE_DIR) + "/data/symbols";
    for (const auto* name : {"close", "search", "history", "calculator", "reminder"})
        EXPECT_TRUE(std::filesystem::exists(folder / (std::string(name) + ".svg"))) << name;
}

// Colours.

TEST_F(PaintedBox, EveryTextCanBeReadInEveryColourOfTheWorkspace) {
    for (int back = 0; back < 256; back += 5) {
        for (const Color fore : {Rgb(255, 255, 255), Rgb(0, 0, 0), Rgb(back, back, 128)}) {
            SetWorkspaceColors(Main, Rgb(back, 255 - back, back / 2), fore);
            const auto colors = ColorsOfJumpTo(Main);
            EXPECT_GE(ContrastRatio(colors.Ink, colors.Ground), ReadableContrast) << back << " " << fore;
            EXPECT_GE(ContrastRatio(colors.Ink, colors.Field), ReadableContrast) << back << " " << fore;
            EXPECT_GE(ContrastRatio(colors.Soft, colors.Ground), ReadableContrast) << back << " " << fore;
            EXPECT_GE(ContrastRatio(colors.PlateInk, colors.Plate), ReadableContrast) << back << " " << fore;
        }
    }
}

TEST_F(PaintedBox, ADarkWorkspaceHasADarkBox) {
    SetWorkspaceColors(Main, Rgb(6, 19, 26), Rgb(255, 255, 255));
    EXPECT_GE(ContrastRatio(ColorsOfJumpTo(Main).Ground, Rgb(255, 255, 255)), 12);
}

// Tips.

TEST_F(PaintedBox, TheTipsAreACardWithAHeading) {
    EXPECT_TRUE(Paint().LinesWith("Tips:").empty());
    ShowTips();
    const auto canvas = Paint();
    EXPECT_EQ(canvas.LinesWith("round " + fake::Words(PlaceOfJumpToTips(Main))).size(), 1U)
        << canvas.Painted();
    const auto heading = canvas.LinesWith("Keyboard Launcher Tips:");
    ASSERT_EQ(heading.size(), 1U) << canvas.Painted();
    EXPECT_TRUE(Holds(canvas.Painted(), "Disable from the Settings dialog"));
}

TEST_F(PaintedBox, EveryTipBeginsAtTheSameEdgeAndLiesBelowTheOneBefore) {
    ShowTips();
    const auto lines = LayJumpToTips(Main, PlaceOfJumpToTips(Main));
    ASSERT_GT(lines.size(), 8U);
    for (std::size_t line = 0; line < lines.size(); ++line) {
        EXPECT_FALSE(lines[line].Text.starts_with(' ')) << lines[line].Text;
        EXPECT_EQ(lines[line].Place.Left, PartAt(ElementKind::PicJumpToIcon).Left);
        EXPECT_TRUE(Within(lines[line].Place, PlaceOfJumpToTips(Main)));
        if (line > 0) EXPECT_GT(lines[line].Place.Top, lines[line - 1].Place.Bottom());
    }
}

TEST_F(PaintedBox, OnALowWorkspaceNoTipIsPaintedBeyondItsCard) {
    SizeWorkspace(12035, 5000);
    ShowTips();
    const auto canvas = Paint();
    EXPECT_EQ(canvas.LinesWith("Keyboard Launcher Tips:").size(), 1U) << canvas.Painted();
    EXPECT_TRUE(canvas.LinesWith("Disable from the Settings dialog").empty()) << canvas.Painted();
}

TEST_F(PaintedBox, TheTipsHideWhileTheListIsDown) {
    ShowTips();
    DropDown(2);
    EXPECT_TRUE(Paint().LinesWith("Tips:").empty());
}

TEST_F(PaintedBox, WhileTheProgramEndsNothingIsPainted) {
    Main.IsExiting = true;
    EXPECT_TRUE(Paint().Lines.empty());
    Main.IsExiting = false;
}

} // namespace
} // namespace quill
