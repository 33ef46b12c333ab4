#include "shortcuts/desktop_entry.h"

#include "shortcuts/foreign_text.h"

#include <algorithm>

namespace quill {
namespace {

// A backslash makes a blank, a line end, a tab or itself of the next letter; before any other it stands.
std::string Unescaped(std::string_view value) {
    constexpr std::string_view written = "sntr\\", meant = " \n\t\r\\";
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        const bool escape = value[at] == '\\' && at + 1 < value.size();
        const auto which = escape ? written.find(value[at + 1]) : written.npos;
        text += which == written.npos ? value[at] : meant[which];
        if (which != written.npos) ++at;
    }
    return text;
}

// A key that may be written once for each language.
class LocalText {
public:
    LocalText(std::string_view key, const std::vector<std::string>& languages)
        : key_(key), languages_(languages), best_(languages.size() + 1) {}

    // "Name" or "Name[de_DE]". The same key again takes the place of the one before.
    void Offer(std::string_view key, std::string_view value) {
        if (!key.starts_with(key_)) return;
        const auto rank = RankOf(key.substr(key_.size()));
        if (rank > best_) return;
        best_ = rank;
        value_ = value;
    }
    std::string Text() const { return Unescaped(value_); }

private:
    // By the order of the languages; what is in none comes behind them all.
    std::size_t RankOf(std::string_view suffix) const {
        if (suffix.empty()) return languages_.size();
        if (suffix.front() != '[' || suffix.back() != ']') return languages_.size() + 2;
        const auto language = suffix.substr(1, suffix.size() - 2);
        const auto found = std::ranges::find(languages_, language);
        const bool spoken = found != languages_.end();
        return spoken ? static_cast<std::size_t>(found - languages_.begin()) : languages_.size() + 2;
    }

    std::string_view key_;
    const std::vector<std::string>& languages_;
    std::size_t best_;
    std::string_view value_;
};

} // namespace

std::optional<DesktopEntry> ReadDesktopEntry(std::string_view bytes,
                                             const std::vector<std::string>& languages) {
    const std::string text = FromTextFile(bytes);
    const std::vector<std::string> none;
    LocalText name("Name", languages), comment("Comment", languages), type("Type", none), url("URL", none);
    bool inGroup = false;
    for (std::string_view rest = text; !rest.empty();) {
        const auto line = TakeLine(rest);
        if (line.empty() || line.front() == '#') continue;
        if (line.front() == '[') {
            if (inGroup) break;
            inGroup = line == "[Desktop Entry]";
            continue;
        }
        const auto equals = line.find('=');
        if (!inGroup || equals == line.npos) continue;
        const auto key = WithoutBlanks(line.substr(0, equals));
        const auto value = WithoutBlanks(line.substr(equals + 1));
        for (LocalText* field : {&name, &comment, &type, &url}) field->Offer(key, value);
    }
    DesktopEntry entry{type.Text(), name.Text(), comment.Text(), url.Text()};
    if (entry.Type.empty() || entry.Name.empty()) return std::nullopt;
    return entry;
}

} // namespace quill
