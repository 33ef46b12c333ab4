// Schemes: the files in which people keep colours, Skin/Colors/<name>.qmc and Skin/<name>.qmt. A theme holds
// a scheme and a wallpaper; both are read by the same reader.
#pragma once

#include "core/frmMain.h"
#include "platform/drawing.h"

#include <optional>
#include <string>
#include <vector>

namespace quill {

// What a file says; what it does not say, or says in a way that can't be read, is empty.
struct ColorScheme {
    std::optional<Color> Background, ContainerFor, ContainerLabel, ContainerTextBack, ContainerTextFor,
        Foreground;
    std::optional<std::string> Buttons;
    std::optional<int> Gradient; // 0 none, 1 a gradient, else a dark one
    std::optional<bool> GradientContainer;
    std::optional<std::string> Wallpaper; // of a theme only
    bool Stretch = false;
};

// Names of the colour schemes, the person's own and those beside the program, in the order of names.
std::vector<std::string> ColorSchemes(const frmMain& Main);
std::optional<ColorScheme> ReadScheme(std::string text); // nothing: another first line
// Nothing when no scheme of that name can be read.
std::optional<ColorScheme> LoadScheme(const frmMain& Main, const std::string& name);

// The mean of the pixels, channel by channel, without fractions. Transparent ones never count, pure white
// ones not with SkipWhite; when none counts, Result is left as it is.
void ComputeAveragePixelColor(const PixelGrid& Picture, bool SkipWhite, Color& Result);

} // namespace quill
