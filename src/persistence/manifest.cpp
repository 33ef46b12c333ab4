#include "persistence/manifest.h"

#include "persistence/checksum.h"

#include <array>
#include <charconv>

namespace quill {
namespace {

constexpr std::string_view title = "Quillmere generation 1\n";
constexpr std::string_view durableTitle = "Quillmere generation 1 durable\n";
constexpr std::string_view words[] = {"aside", "drop", "move", "keep"}; // by StepKind
constexpr std::string_view endWord = "end\t";
constexpr std::size_t fieldCount = 5; // word, from, to, size, checksum

void AppendNumber(std::string& text, std::uint64_t number, int base) {
    char digits[20];
    text.append(digits, std::to_chars(digits, digits + sizeof digits, number, base).ptr);
}

void AppendStep(std::string& text, const Step& step) {
    text += words[static_cast<int>(step.Kind)];
    for (const auto& name : {step.From, step.To}) {
        text += '\t';
        text += name;
    }
    text += '\t';
    AppendNumber(text, step.Sum.Size, 10);
    text += '\t';
    AppendNumber(text, step.Sum.Checksum, 16);
    text += '\n';
}

std::optional<std::uint64_t> Number(std::string_view text, int base) {
    std::uint64_t number = 0;
    const auto [end, trouble] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (trouble != std::errc() || end != text.data() + text.size()) return {};
    return number;
}

// The text up to the mark, which is taken off with it; none when the mark is not there.
std::optional<std::string_view> Cut(std::string_view& text, char mark) {
    const auto at = text.find(mark);
    if (at == text.npos) return {};
    const auto piece = text.substr(0, at);
    text.remove_prefix(at + 1);
    return piece;
}

std::optional<std::array<std::string_view, fieldCount>> Fields(std::string_view line) {
    std::array<std::string_view, fieldCount> fields;
    for (std::size_t i = 0; i + 1 < fieldCount; ++i) {
        const auto field = Cut(line, '\t');
        if (!field) return {};
        fields[i] = *field;
    }
    fields.back() = line;
    return fields;
}

std::optional<StepKind> KindNamed(std::string_view word) {
    for (int kind = 0; kind < static_cast<int>(std::size(words)); ++kind) {
        if (words[kind] == word) return static_cast<StepKind>(kind);
    }
    return {};
}

// Nothing outside the settings folder can be named.
bool IsInside(std::string_view name) {
    return !name.starts_with('/') && name.find("..") == name.npos;
}

std::optional<Step> ReadStep(std::string_view line) {
    const auto fields = Fields(line);
    if (!fields) return {};
    const auto& [word, from, to, size, sum] = *fields;
    const auto kind = KindNamed(word);
    const auto bytes = Number(size, 10), checksum = Number(sum, 16);
    if (!kind || !bytes || !checksum || from.empty() || !IsInside(from) || !IsInside(to)) return {};
    return Step{*kind, std::string(from), std::string(to), {*bytes, *checksum}};
}

// What stands before the last line, when that line vouches for it.
std::optional<std::string_view> Vouched(std::string_view text) {
    if (!text.ends_with('\n')) return {};
    const auto start = text.rfind('\n', text.size() - 2);
    if (start == text.npos) return {};
    const auto body = text.substr(0, start + 1);
    auto last = text.substr(start + 1);
    if (!last.starts_with(endWord)) return {};
    last = last.substr(endWord.size(), last.size() - endWord.size() - 1);
    if (Number(last, 16) != Checksum(body)) return {};
    return body;
}

} // namespace

WrittenFile SumOf(std::string_view bytes) {
    return {bytes.size(), Checksum(bytes)};
}

bool SameSum(const WrittenFile& one, const WrittenFile& other) {
    return one.Size == other.Size && one.Checksum == other.Checksum;
}

std::string ManifestText(const Manifest& manifest) {
    std::string text(manifest.Durable ? durableTitle : title);
    for (const auto& step : manifest.Steps) AppendStep(text, step);
    const auto sum = Checksum(text);
    text += endWord;
    AppendNumber(text, sum, 16);
    text += '\n';
    return text;
}

std::optional<Manifest> ReadManifest(std::string_view text) {
    auto body = Vouched(text);
    if (!body) return {};
    Manifest manifest;
    manifest.Durable = body->starts_with(durableTitle);
    if (!manifest.Durable && !body->starts_with(title)) return {};
    Cut(*body, '\n');
    while (const auto line = Cut(*body, '\n')) {
        auto step = ReadStep(*line);
        if (!step) return {};
        manifest.Steps.push_back(std::move(*step));
    }
    return manifest;
}

} // namespace quill
