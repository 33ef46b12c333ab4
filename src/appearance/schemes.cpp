#include "appearance/schemes.h"

#include "appearance/skin.h"
#include "persistence/line_reader.h"
#include "persistence/text_values.h"
#include "platform/files.h"

#include <algorithm>

namespace quill {
namespace {

constexpr std::string_view firstLine = "[1.01]";
constexpr std::string_view colorFolder = "/Colors", colorEnding = ".qmc";
constexpr std::uint64_t largestFile = 64 * 1024; // a scheme holds twenty short lines
constexpr Color white = 0xFFFFFF;

// The values behind a tag, as they come.
using ReadTag = void (*)(LineReader& lines, ColorScheme& scheme);

template <auto Member> void ReadColor(LineReader& lines, ColorScheme& scheme) {
    std::string_view line;
    if (!lines.Next(line)) return;
    const auto color = ReadWhole(line);
    if (color && *color >= 0 && *color <= white) scheme.*Member = *color;
}

template <auto Member> void ReadOther(LineReader& lines, ColorScheme& scheme) {
    std::string_view line;
    if (lines.Next(line)) (void)ReadValue(line, scheme.*Member);
}

void ReadWallpaper(LineReader& lines, ColorScheme& scheme) {
    ReadOther<&ColorScheme::Wallpaper>(lines, scheme);
    ReadOther<&ColorScheme::Stretch>(lines, scheme);
}

struct TagOfScheme {
    std::string_view Tag;
    ReadTag Read;
};

constexpr TagOfScheme tags[] = {
    {"[Background]", &ReadColor<&ColorScheme::Background>},
    {"[ContainerFor]", &ReadColor<&ColorScheme::ContainerFor>},
    {"[ContainerLabel]", &ReadColor<&ColorScheme::ContainerLabel>},
    {"[ContainerTextBack]", &ReadColor<&ColorScheme::ContainerTextBack>},
    {"[ContainerTextFor]", &ReadColor<&ColorScheme::ContainerTextFor>},
    {"[Foreground]", &ReadColor<&ColorScheme::Foreground>},
    {"[Buttons]", &ReadOther<&ColorScheme::Buttons>},
    {"[Gradient]", &ReadOther<&ColorScheme::Gradient>},
    {"[GradientContainer]", &ReadOther<&ColorScheme::GradientContainer>},
    {"[Wallpaper]", &ReadWallpaper},
};

} // namespace

std::vector<std::string> ColorSchemes(const frmMain& Main) {
    std::vector<std::string> names;
    for (auto& entry : SkinEntries(Main, colorFolder, colorEnding)) names.push_back(std::move(entry.Name));
    return names;
}

std::optional<ColorScheme> ReadScheme(std::string text) {
    PrepareText(text);
    LineReader lines(text);
    std::string_view line;
    if (!lines.Next(line) || line != firstLine) return std::nullopt;
    ColorScheme scheme;
    while (lines.Next(line)) {
        const auto* const tag = std::ranges::find(tags, line, &TagOfScheme::Tag);
        if (tag != std::end(tags)) tag->Read(lines, scheme);
    }
    return scheme;
}

std::optional<ColorScheme> LoadScheme(const frmMain& Main, const std::string& name) {
    const auto entries = SkinEntries(Main, colorFolder, colorEnding);
    const auto found = std::ranges::find(entries, name, &SkinEntry::Name);
    if (found == entries.end()) return std::nullopt;
    auto text = Main.P.Files.Read(found->Path, largestFile);
    return text ? ReadScheme(std::move(text.Value())) : std::nullopt;
}

void ComputeAveragePixelColor(const PixelGrid& Picture, bool SkipWhite, Color& Result) {
    std::int64_t red = 0, green = 0, blue = 0, count = 0;
    for (const Color pixel : Picture.Colors) {
        if (pixel < 0 || (SkipWhite && pixel == white)) continue;
        red += RedOf(pixel);
        green += GreenOf(pixel);
        blue += BlueOf(pixel);
        ++count;
    }
    if (count == 0) return;
    Result =
        Rgb(static_cast<int>(red / count), static_cast<int>(green / count), static_cast<int>(blue / count));
}

} // namespace quill
