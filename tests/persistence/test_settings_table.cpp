#include "persistence/format_fixture.h"
#include "persistence/settings_table.h"
#include "persistence/text_values.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace quill {
namespace {

using test::Formats;

// What the plain record says when nothing was loaded must be what the table says.
TEST(SettingsTable, TheDefaultsOfTheTableAreThoseOfTheRecord) {
    Formats initial;
    Formats plain;
    plain.Main.Settings = {};
    plain.Main.Settings.WebSearch = "https://www.google.com/search?q=%s";
    plain.Main.Settings.Effect = false;
    EXPECT_EQ(initial.WrittenSettings(), plain.WrittenSettings());
}

TEST(SettingsTable, LoadingTheDefaultsLeavesColoursAndFontsAlone) {
    SettingsRecord settings;
    settings.ContainerFor = 1;
    settings.FontName = "Sans";
    settings.FontSize = 17;
    settings.Buttons = "Mine";
    settings.Opacity = 99;
    settings.Wallpaper = "/home/user/wall.jpg";
    InitDefaultSettings(settings);
    EXPECT_EQ(settings.ContainerFor, 1);
    EXPECT_EQ(settings.FontName, "Sans");
    EXPECT_EQ(settings.FontSize, 17);
    EXPECT_EQ(settings.Buttons, "Mine");
    EXPECT_EQ(settings.Opacity, 235);
    EXPECT_EQ(settings.Wallpaper, "");
    InitAppearanceDefaults(settings);
    EXPECT_EQ(settings.ContainerFor, 0x290700);
    EXPECT_EQ(settings.FontName, "Tahoma");
    EXPECT_EQ(settings.FontSize, 10);
    EXPECT_EQ(settings.Buttons, "Modern Dark");
}

TEST(SettingsTable, LoadingTheDefaultsKeepsServersAndDialogPlaces) {
    SettingsRecord settings;
    settings.LibraryServer = "https://example.org";
    settings.RSSViewerX = 12;
    InitDefaultSettings(settings);
    EXPECT_EQ(settings.LibraryServer, "https://example.org");
    EXPECT_EQ(settings.RSSViewerX, 12);
}

TEST(SettingsTable, ColoursInTheTableAreTheDesignedOnes) {
    std::set<std::pair<std::string_view, int>> colours;
    for (const auto& row : SettingsRows())
        for (const std::string_view key :
             {"[Background]", "[ContainerFor]", "[DockingColor]", "[ContainerTextBack]"})
            if (row.Key == key) colours.insert({key, ReadWhole(row.Default).value_or(-1)});
    EXPECT_EQ(colours, (std::set<std::pair<std::string_view, int>>{{"[Background]", 0x1A1306},
                                                                   {"[ContainerFor]", 0x290700},
                                                                   {"[DockingColor]", 0x38290E},
                                                                   {"[ContainerTextBack]", 0xE1FDFF}}));
}

TEST(SettingsTable, NoKeyStandsTwice) {
    std::set<std::string_view> keys;
    for (const auto& row : SettingsRows()) EXPECT_TRUE(keys.insert(row.Key).second) << row.Key;
}

TEST(SettingsTable, EveryDefaultIsReadable) {
    for (const auto& row : SettingsRows())
        EXPECT_TRUE(row.Default.empty() || row.Readable(row.Default)) << row.Key;
}

TEST(SettingsTable, TheDocumentationHoldsTheTable) {
    const auto page = std::filesystem::path(QUILLMERE_SOURCE_DIR) / "docs/formats-settings.md";
    std::stringstream text;
    text << std::ifstream(page).rdbuf();
    EXPECT_NE(text.str().find(SettingsTableText()), std::string::npos) << "The page lacks this table:\n"
                                                                       << SettingsTableText();
}

} // namespace
} // namespace quill
