#include "appearance/schemes.h"

#include "fake/computer.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

std::string Lines(std::initializer_list<const char*> lines) {
    std::string text;
    for (const char* line : lines) text += std::string(line) + "\r\n";
    return text;
}

TEST(ReadScheme, TakesEveryTag) {
    const auto scheme = ReadScheme(Lines({"[1.01]",
                                          "[Background]",
                                          "3151901",
                                          "[ContainerFor]",
                                          "4662316",
                                          "[ContainerLabel]",
                                          "16770288",
                                          "[ContainerTextBack]",
                                          "16444659",
                                          "[ContainerTextFor]",
                                          "3808292",
                                          "[Foreground]",
                                          "16777215",
                                          "[Buttons]",
                                          "Modern Dark",
                                          "[Gradient]",
                                          "1",
                                          "[GradientContainer]",
                                          "1",
                                          "[Wallpaper]",
                                          "Reed Bank.jpg",
                                          "1"}));
    ASSERT_TRUE(scheme);
    EXPECT_EQ(scheme->Background, 3151901);
    EXPECT_EQ(scheme->ContainerFor, 4662316);
    EXPECT_EQ(scheme->ContainerLabel, 16770288);
    EXPECT_EQ(scheme->ContainerTextBack, 16444659);
    EXPECT_EQ(scheme->ContainerTextFor, 3808292);
    EXPECT_EQ(scheme->Foreground, 16777215);
    EXPECT_EQ(scheme->Buttons, "Modern Dark");
    EXPECT_EQ(scheme->Gradient, 1);
    EXPECT_EQ(scheme->GradientContainer, true);
    EXPECT_EQ(scheme->Wallpaper, "Reed Bank.jpg");
    EXPECT_TRUE(scheme->Stretch);
}

TEST(ReadScheme, AGradientOfTwoIsTheDarkOne) {
    EXPECT_EQ(ReadScheme("[1.01]\r\n[Gradient]\r\n2\r\n")->Gradient, 2);
}

struct FirstLine {
    const char* Text;
    const char* Why;
};

TEST(ReadScheme, IgnoresAFileWithAnotherFirstLine) {
    for (const FirstLine& row : {
             FirstLine{"", "empty"},
             FirstLine{"[1.02]\r\n[Background]\r\n1\r\n", "another version"},
             FirstLine{"[Background]\r\n1\r\n", "none"},
             FirstLine{"\r\n[1.01]\r\n[Background]\r\n1\r\n", "an empty line before it"},
             FirstLine{"1.01\r\n[Background]\r\n1\r\n", "no brackets"},
         })
        EXPECT_FALSE(ReadScheme(row.Text)) << row.Why;
}

TEST(ReadScheme, TakesLineFeedsAloneAndAByteOrderMark) {
    const auto scheme = ReadScheme("\xEF\xBB\xBF[1.01]\n[Background]\n7\n");
    ASSERT_TRUE(scheme);
    EXPECT_EQ(scheme->Background, 7);
}

TEST(ReadScheme, SkipsTagsThatItDoesNotKnow) {
    const auto scheme = ReadScheme("[1.01]\r\n[Shine]\r\n99\r\n[Background]\r\n7\r\n[background]\r\n8\r\n");
    ASSERT_TRUE(scheme);
    EXPECT_EQ(scheme->Background, 7) << "a tag is spelled as it is told";
}

TEST(ReadScheme, WhatIsNoColorIsLeftOut) {
    for (const char* value : {"blue", "", "-1", "16777216", "99999999999"}) {
        const auto scheme =
            ReadScheme("[1.01]\r\n[Background]\r\n" + std::string(value) + "\r\n[Foreground]\r\n5\r\n");
        ASSERT_TRUE(scheme) << value;
        EXPECT_FALSE(scheme->Background) << value;
        EXPECT_EQ(scheme->Foreground, 5) << value;
    }
}

TEST(ReadScheme, AFileThatEndsInTheMiddleGivesWhatItHas) {
    const std::string whole = Lines({"[1.01]", "[Background]", "7", "[Wallpaper]", "Hills.jpg", "1"});
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const auto scheme = ReadScheme(whole.substr(0, length));
        if (scheme && scheme->Background) EXPECT_EQ(*scheme->Background, 7) << length;
    }
}

TEST(ReadScheme, AWallpaperWithoutANumberBehindItIsNotStretched) {
    const auto scheme = ReadScheme("[1.01]\r\n[Wallpaper]\r\nHills.jpg\r\nyes\r\n");
    EXPECT_EQ(scheme->Wallpaper, "Hills.jpg");
    EXPECT_FALSE(scheme->Stretch);
}

struct Schemes : testing::Test {
    Schemes() { Main.SettingsFolder = fake::SettingsFolder; }
    void Mine(const std::string& name, const std::string& text) {
        Computer.Files.Put(Main.SettingsFolder + "/Skin/Colors/" + name, text);
    }
    void Installed(const std::string& name, const std::string& text) {
        Computer.Files.Put(Computer.Places.DataFolder() + "/Skin/Colors/" + name, text);
    }
    fake::Computer Computer;
    frmMain Main{Computer.MakePlatform()};
};

TEST_F(Schemes, ArePersonsOwnAndInstalledOnesInTheOrderOfNames) {
    Mine("Sea 10.qmc", "[1.01]\r\n");
    Mine("sea 2.QMC", "[1.01]\r\n");
    Installed("Amber.qmc", "[1.01]\r\n");
    Installed("Theme.qmt", "[1.01]\r\n");
    Installed(".hidden.qmc", "[1.01]\r\n");
    Installed(".qmc", "[1.01]\r\n");
    EXPECT_EQ(ColorSchemes(Main), (std::vector<std::string>{"Amber", "sea 2", "Sea 10"}));
}

TEST_F(Schemes, ThePersonsOwnComesBeforeAnInstalledOneOfTheSameName) {
    Mine("Amber.qmc", "[1.01]\r\n[Background]\r\n1\r\n");
    Installed("Amber.qmc", "[1.01]\r\n[Background]\r\n2\r\n");
    EXPECT_EQ(ColorSchemes(Main).size(), 1U);
    EXPECT_EQ(LoadScheme(Main, "Amber")->Background, 1);
}

TEST_F(Schemes, WithNoFolderThereAreNone) {
    EXPECT_TRUE(ColorSchemes(Main).empty());
    EXPECT_FALSE(LoadScheme(Main, "Amber"));
}

TEST_F(Schemes, ANameLeadsNowhereElse) {
    Computer.Files.Put(Main.SettingsFolder + "/Skin/Out.qmc", "[1.01]\r\n");
    Mine("Amber.qmc", "[1.01]\r\n");
    EXPECT_FALSE(LoadScheme(Main, "../Out"));
}

TEST_F(Schemes, AFileTooLargeForASchemeIsNone) {
    Mine("Amber.qmc", "[1.01]\r\n" + std::string(100000, 'x'));
    EXPECT_FALSE(LoadScheme(Main, "Amber"));
}

// ---- the mean of an icon

Color Average(std::vector<Color> pixels, bool skipWhite) {
    Color result = 0x123456;
    const PixelGrid grid{static_cast<int>(pixels.size()), 1, std::move(pixels)};
    ComputeAveragePixelColor(grid, skipWhite, result);
    return result;
}

TEST(AverageColor, IsTheMeanOfEachChannelWithoutFractions) {
    EXPECT_EQ(Average({Rgb(10, 20, 30), Rgb(13, 21, 30)}, true), Rgb(11, 20, 30));
}

TEST(AverageColor, LeavesPureWhiteOutWhereThatIsAskedFor) {
    EXPECT_EQ(Average({0xFFFFFF, Rgb(1, 1, 1)}, true), Rgb(1, 1, 1));
    EXPECT_EQ(Average({0xFFFFFF, Rgb(1, 1, 1)}, false), Rgb(128, 128, 128));
    EXPECT_EQ(Average({Rgb(255, 255, 254)}, true), Rgb(255, 255, 254)) << "nearly white counts";
}

TEST(AverageColor, LeavesTransparentPixelsOut) {
    EXPECT_EQ(Average({-1, Rgb(4, 4, 4)}, false), Rgb(4, 4, 4));
}

TEST(AverageColor, OfNothingIsWhatItWas) {
    EXPECT_EQ(Average({}, true), 0x123456);
    EXPECT_EQ(Average({0xFFFFFF, -1}, true), 0x123456);
}

TEST(AverageColor, OfALargePictureOverflowsNothing) {
    EXPECT_EQ(Average(std::vector<Color>(9'000'000, Rgb(250, 251, 252)), true), Rgb(250, 251, 252));
}

} // namespace
} // namespace quill
