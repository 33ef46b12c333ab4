// The strip beside a selection, as it is painted.
#include "appearance/colors.h"
#include "appearance/paint.h"
#include "appearance/palette.h"
#include "containers/layout.h"
#include "containers/selection.h"
#include "core/element_walk.h"
#include "dock/mini_toolbar.h"
#include "dock/workspace_lock.h"
#include "fake/canvas.h"
#include "fake/words.h"
#include "shortcuts/at_work.h"

#include <filesystem>

namespace quill {
namespace {

// Writes down grounds and inks as numbers.
struct InkCanvas : fake::FakeCanvas {
    void FillRect(const Rect& place, Color color, float opacity) override {
        if (Ground == -1) Ground = color;
        FakeCanvas::FillRect(place, color, opacity);
    }
    void RoundRect(const Rect& place, float radius, Color fill, Pen pen, float opacity) override {
        if (pen.Width == 0) Plate = fill;
        FakeCanvas::RoundRect(place, radius, fill, pen, opacity);
    }
    void Symbol(std::string_view name, const Rect& place, Color ink, float opacity) override {
        Inks.emplace_back(std::string(name), ink);
        FakeCanvas::Symbol(name, place, ink, opacity);
    }
    Color Ground = -1, Plate = -1;
    std::vector<std::pair<std::string, Color>> Inks;
};

struct PaintedStrip : AtWork {
    PaintedStrip() {
        Main.View.Window = {6000, 3000, 12035, 9030};
        SetWorkspaceColors(Main, 0x1A1306, 0xFFFFFF);
        ResizeForm(Main);
        Main.View.Visible = true;
        File("/a");
        File("/b");
        SetSelection(Main, 0, true);
        SetSelection(Main, 1, true);
        TimerUnload_Timer(Main);
    }
    InkCanvas Paint() {
        InkCanvas canvas;
        PaintSurface(Main, {SurfaceKind::MiniToolbar, -1}, canvas);
        return canvas;
    }
    Rect CellOf(int cell) { return PlaceOfMiniToolbarCell(cell); }
};

TEST_F(PaintedStrip, EachCellShowsItsSymbolFromLeftToRight) {
    const auto canvas = Paint();
    std::string names;
    for (const auto& [name, ink] : canvas.Inks) names += name + " ";
    EXPECT_EQ(names, "larger smaller text-size bold sort-ascending sort-descending delete start color ");
}

TEST_F(PaintedStrip, EachSymbolIsOneOfOurs) {
    const std::filesystem::path folder = std::string(QUILLMERE_SOURCE_DIR) + "/data/symbols";
    for (const auto& cell : MiniToolbarCells())
        EXPECT_TRUE(std::filesystem::exists(folder / (std::string(cell.Symbol) + ".svg"))) << cell.Symbol;
}

TEST_F(PaintedStrip, ItsGroundCoversAllOfIt) {
    const auto& place = Main.Dock.MiniToolbar.Place;
    EXPECT_EQ(Paint().Lines.front(),
              "fill 0,0 " + fake::Words(place.Width) + "x" + fake::Words(place.Height) + " #06131A");
}

TEST_F(PaintedStrip, EverySymbolCanBeReadOnEveryGroundPointedAtOrNot) {
    for (int back = 0; back < 256; back += 17) {
        for (const Color fore : {Rgb(255, 255, 255), Rgb(0, 0, 0), Rgb(back, back, 128)}) {
            SetWorkspaceColors(Main, Rgb(back, 255 - back, back / 2), fore);
            for (int pointed = -1; pointed <= MiniToolbarButtons; ++pointed) {
                Main.Dock.MiniToolbar.Pointed = pointed;
                const auto canvas = Paint();
                ASSERT_EQ(canvas.Inks.size(), 9U);
                for (int cell = 0; cell <= MiniToolbarButtons; ++cell) {
                    const Color ground = cell == pointed ? canvas.Plate : canvas.Ground;
                    EXPECT_GE(ContrastRatio(canvas.Inks[static_cast<std::size_t>(cell)].second, ground),
                              ReadableContrast)
                        << back << " " << fore << " " << cell;
                }
            }
        }
    }
}

TEST_F(PaintedStrip, TheCellUnderThePointerStandsOnAPlateOfAnotherColour) {
    EXPECT_EQ(Paint().Plate, -1);
    Main.Dock.MiniToolbar.Pointed = 3;
    const auto canvas = Paint();
    EXPECT_NE(canvas.Plate, -1);
    EXPECT_NE(canvas.Plate, canvas.Ground);
    const Rect plate = Inset(CellOf(3), TwipsPerPixel);
    EXPECT_EQ(canvas.LinesWith("round " + fake::Words(plate)).size(), 1U) << canvas.Painted();
}

TEST_F(PaintedStrip, TheColourCellWearsTheColourOfTheFirstSelectedOne) {
    Main.Link(0).Color = 0x20FF40;
    Main.Link(1).Color = 0x0000FF;
    EXPECT_EQ(Paint().LinesWith("#40FF20").size(), 1U) << Paint().Painted();
    EXPECT_TRUE(Paint().LinesWith("#FF0000").empty());
}

TEST_F(PaintedStrip, WhatTheLockHoldsIsPaleAndUnderNoPointerAPlate) {
    mnuLock_Click(Main);
    Main.Dock.MiniToolbar.Pointed = 3;
    const auto canvas = Paint();
    EXPECT_EQ(canvas.Plate, -1);
    EXPECT_EQ(canvas.LinesWith("opacity 0.4").size(), 8U) << canvas.Painted();
    Main.Dock.MiniToolbar.Pointed = 7;
    EXPECT_NE(Paint().Plate, -1) << "starting is never held";
}

} // namespace
} // namespace quill
