#include "keyboard/meaning.h"

#include "core/lower_case.h"
#include "core/objects.h"
#include "keyboard/matching.h"
#include "keyboard/path_walk.h"
#include "persistence/text_values.h"

#include <algorithm>

namespace quill {
namespace {

constexpr std::string_view blanks = " \t\r\n";

struct CommandRow {
    char Letter; // a blank follows it
    Meaning What;
};

constexpr CommandRow commands[] = {
    {'t', Meaning::TagStart},
    {'n', Meaning::Note},
    {'r', Meaning::Reminder},
    {'s', Meaning::WebSearch},
};

bool IsPrefix(std::string_view text) {
    return text.size() > 1 && text[1] == ' ';
}

// A tag must follow the "t"; the others do something without more.
TypedMeaning CommandOf(std::string_view text) {
    if (text.front() == '=') return {Meaning::Calculator, -1, -1, std::string(Trimmed(text.substr(1)))};
    if (!IsPrefix(text)) return {};
    const auto row = std::ranges::find(commands, LowerAscii(text[0]), &CommandRow::Letter);
    if (row == std::end(commands)) return {};
    const auto rest = text.substr(2), argument = Trimmed(rest);
    if (row->What == Meaning::TagStart && argument.empty()) return {};
    return {row->What, -1, -1, std::string(row->What == Meaning::Reminder ? rest : argument)};
}

TypedMeaning Started(int shortcut) {
    return {Meaning::Shortcut, shortcut, -1, {}};
}

// The text begins with the shortcut's name and a blank. A command takes none: what is typed would be read by
// a shell in its place.
TypedMeaning WithParameters(const frmMain& Main, int shortcut, std::string_view text) {
    const auto name = LowerCase(Main.Link(shortcut).FullCaption).size();
    // A letter may have more bytes than its lower case, so the name is counted off in letters.
    std::size_t end = 0, folded = 0;
    while (end < text.size() && folded < name) {
        std::size_t next = end + 1;
        while (next < text.size() && (text[next] & 0xC0) == 0x80) ++next;
        folded += LowerCase(text.substr(end, next - end)).size();
        end = next;
    }
    const auto parameters = Trimmed(text.substr(end));
    if (!Main.Link(shortcut).Command) return {Meaning::WithParameters, shortcut, -1, std::string(parameters)};
    return parameters.empty() ? Started(shortcut) : TypedMeaning{};
}

bool StandsInFront(const frmMain& Main, int shortcut, std::string_view lower) {
    if (!IsLive(Main.Shortcuts, shortcut)) return false;
    const auto name = LowerCase(Main.Link(shortcut).FullCaption);
    return !name.empty() && lower.size() > name.size() && lower[name.size()] == ' ' &&
           lower.starts_with(name);
}

// What begins like this is a path and never the name of a shortcut with something behind it.
bool IsRooted(std::string_view text) {
    return text.starts_with('/') || text.starts_with('~');
}

int TileNamed(const frmMain& Main, std::string_view lower) {
    for (const auto& row : Live(Main.Containers)) {
        const auto& view = Main.ConView(row.Index);
        if (view.Container.Visible && IsShrunk(Main, row.Index) &&
            LowerCase(view.ContainerLabel.Caption) == lower)
            return row.Index;
    }
    return -1;
}

bool IsSchemeLetter(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= '0' && letter <= '9') || letter == '+' || letter == '-' || letter == '.';
}

bool HasScheme(std::string_view text) {
    const auto end = text.find("://");
    return end != std::string_view::npos && end > 0 &&
           std::ranges::all_of(text.substr(0, end), IsSchemeLetter);
}

// ---- the text on its own

struct Search {
    frmMain& Main;
    std::string_view Text;
    std::string Lower;
    int ByName = NoMatch; // of all that begin with the text, the equal one first
    bool Equal = false;
};

// Behind a single letter and a blank nothing is looked for in the middle of names: a command may be begun.
int ByPart(Search& search) {
    const bool part = search.ByName == NoMatch && !IsPrefix(search.Text);
    return part ? FindShortcutContaining(search.Main, search.Lower) : search.ByName;
}

TypedMeaning InFront(Search& search) {
    if (search.ByName != NoMatch || IsRooted(search.Text)) return {};
    const int shortcut = FindShortcutInFront(search.Main, search.Lower);
    if (shortcut == NoMatch) return {};
    if (!IsPathText(search.Text) && ByPart(search) != NoMatch) return {};
    return WithParameters(search.Main, shortcut, search.Text);
}

TypedMeaning Tile(Search& search) {
    if (search.ByName != NoMatch || IsPrefix(search.Text)) return {};
    const int container = TileNamed(search.Main, search.Lower);
    return container == -1 ? TypedMeaning{} : TypedMeaning{Meaning::Container, -1, container, {}};
}

// A name that is exactly the text is meant, not the path or the address that it might be read as.
TypedMeaning ByForm(Search& search) {
    if (IsPathText(search.Text) && !(search.Equal && !IsWalkable(search.Text)))
        return {Meaning::Path, -1, -1, {}};
    if (LooksLikeAddress(search.Text) && !search.Equal) return {Meaning::Address, -1, -1, {}};
    return {};
}

TypedMeaning Found(Search& search) {
    const int shortcut = ByPart(search);
    return shortcut == NoMatch ? TypedMeaning{} : Started(shortcut);
}

TypedMeaning Searched(frmMain& Main, std::string_view text, std::string lower) {
    Search search{Main, text, std::move(lower)};
    search.ByName = FindShortcutByName(Main, search.Lower);
    search.Equal = IsNamed(Main, search.ByName, search.Lower);
    for (const auto step : {&Tile, &InFront, &ByForm, &Found}) {
        auto meaning = step(search);
        if (meaning.What != Meaning::Nothing) return meaning;
    }
    return {};
}

TypedMeaning WholeQuery(std::string_view text) {
    if (IsPathText(text)) return {Meaning::Path, -1, -1, {}};
    return {Meaning::WebSearch, -1, -1, std::string(text)};
}

} // namespace

bool HoldsBlank(std::string_view text) {
    return text.find_first_of(blanks) != std::string_view::npos;
}

bool LooksLikeAddress(std::string_view text) {
    if (HoldsBlank(text) || text.starts_with("://")) return false;
    return text.find('.') != std::string_view::npos || text.find("://") != std::string_view::npos;
}

std::string AddressOf(std::string_view text) {
    constexpr std::string_view noSlashes = "mailto:";
    const bool complete = HasScheme(text) || LowerCase(text.substr(0, noSlashes.size())) == noSlashes;
    return (complete ? "" : "http://") + std::string(text);
}

TypedMeaning MeaningOf(frmMain& Main, std::string_view text, int Listed) {
    if (Trimmed(text).empty()) return {};
    auto lower = LowerCase(text);
    for (const int chosen : {Listed, Main.Keys.Picked})
        if (IsNamed(Main, chosen, lower)) return Started(chosen);
    const bool query = Main.Settings.SearchOnSpace && HoldsBlank(text);
    if (!query && StandsInFront(Main, Main.Keys.Picked, lower))
        return WithParameters(Main, Main.Keys.Picked, text);
    auto command = CommandOf(text);
    if (command.What != Meaning::Nothing) return command;
    if (query) return WholeQuery(text);
    return Searched(Main, text, std::move(lower));
}

} // namespace quill
