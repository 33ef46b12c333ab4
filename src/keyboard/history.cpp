#include "keyboard/history.h"

#include "core/lower_case.h"
#include "persistence/line_reader.h"
#include "persistence/names.h"
#include "persistence/text_values.h"
#include "platform/files.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace quill {
namespace {

constexpr const char* FileName = "KB_History.txt";
constexpr const char* NewFileName = "KB_History.new";
constexpr std::uint64_t MostBytes = 1024 * 1024; // far more than the lines that are kept may have together
constexpr std::size_t LongestLine = 4096;        // bytes

bool IsControl(char letter) {
    return static_cast<unsigned char>(letter) < ' ' || letter == 127;
}

bool IsBlank(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos;
}

// One that can be shown and typed again.
bool IsGoodLine(std::string_view line) {
    return !IsBlank(line) && line.size() <= LongestLine && std::ranges::none_of(line, IsControl) &&
           IsUtf8(line);
}

bool IsKept(std::string_view text) {
    return IsGoodLine(text) && std::ranges::all_of(text, [](char letter) { return (letter & 0x80) == 0; });
}

// Oldest first, the good lines of whatever stands in the file. Nothing: it can't be read, so that nobody
// knows what stands there. A file beyond all measure is not what we wrote: it counts as empty, and goes aside
// before another is written.
std::optional<std::vector<std::string>> ReadHistory(const frmMain& Main) {
    std::vector<std::string> lines;
    const auto bytes = Main.P.Files.Read(Main.SettingsFolder + "/" + FileName, MostBytes);
    if (!bytes) {
        if (bytes.Missing() || bytes.Error().Kind == Reason::TooLarge) return lines;
        return {};
    }
    LineReader reader(bytes.Value());
    for (std::string_view line; reader.Next(line);) {
        if (IsGoodLine(line)) lines.emplace_back(line);
    }
    return lines;
}

// In one step: what stands there stays until all of the new file is written. Not synchronised, since the
// started program would wait for the disk.
void WriteHistory(frmMain& Main, const std::vector<std::string>& lines) {
    auto& files = Main.P.Files;
    const std::string standing = Main.SettingsFolder + "/" + FileName;
    const std::string made = Main.SettingsFolder + "/" + NewFileName;
    std::string bytes;
    for (const auto& line : lines) bytes += line + "\r\n";
    if (files.Exists(made) && !files.Remove(made)) return;
    if (!files.Create(made, bytes)) return;
    if (!files.Rename(made, standing)) (void)files.Remove(made);
}

bool IsBeyondMeasure(const FileReader& files, const std::string& path) {
    const auto info = files.Stat(path);
    return info && info.Value().Size > MostBytes;
}

// False: what stands there would be lost.
bool MadeRoom(frmMain& Main) {
    const std::string standing = Main.SettingsFolder + "/" + FileName;
    if (!IsBeyondMeasure(Main.P.Files, standing)) return true;
    const std::string aside = AsideName(Main.P.Files, Main.SettingsFolder, FileName);
    return Main.P.Files.Rename(standing, Main.SettingsFolder + "/" + aside).Ok();
}

std::size_t MostLines(const frmMain& Main) {
    return static_cast<std::size_t>(std::clamp(Main.Settings.KeyboardHistoryCount, 5.F, 50.F));
}

} // namespace

void AddToHistory(frmMain& Main, const std::string& text) {
    if (!Main.Settings.KeyboardHistory || !IsKept(text)) return;
    auto lines = ReadHistory(Main);
    if (!lines) return;
    const auto isSame = [typed = LowerCase(text)](const std::string& line) {
        return LowerCase(line) == typed;
    };
    std::erase_if(*lines, isSame);
    lines->push_back(text);
    if (const auto most = MostLines(Main); lines->size() > most)
        lines->erase(lines->begin(), lines->end() - static_cast<std::ptrdiff_t>(most));
    if (!Main.PortableMode && !Main.P.Files.MakeFolder(Main.SettingsFolder)) return;
    if (MadeRoom(Main)) WriteHistory(Main, *lines);
}

std::vector<std::string> HistoryLines(const frmMain& Main) {
    auto lines = ReadHistory(Main).value_or(std::vector<std::string>());
    std::ranges::reverse(lines);
    return lines;
}

} // namespace quill
