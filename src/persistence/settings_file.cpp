#include "persistence/settings_file.h"

#include "core/objects.h"
#include "persistence/settings_table.h"
#include "persistence/tag_reader.h"

#include <charconv>

namespace quill {

namespace {

constexpr std::string_view SubjectKey = "[RSS Search"; // the number follows without a blank
constexpr std::string_view RecentKey = "[Recent ";

// The number of a key in a list, up to one past the limit; nothing for every other line.
std::optional<std::size_t> NumberIn(std::string_view line, std::string_view key, std::size_t limit) {
    if (!line.starts_with(key) || !line.ends_with(']')) return std::nullopt;
    const std::string_view digits = line.substr(key.size(), line.size() - key.size() - 1);
    const bool plain = !digits.empty() && (digits.size() == 1 || digits.front() != '0');
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (!plain || error != std::errc() || end != digits.data() + digits.size() || number > limit)
        return std::nullopt;
    return number;
}

void AppendKey(std::string& out, std::string_view key, std::size_t number) {
    out.append(key).append(std::to_string(number)).append("]\r\n");
}

template <class Value> void AppendValueLine(std::string& out, const Value& value) {
    AppendValue(out, value);
    AppendEnd(out);
}

void WriteRows(std::string& out, const frmMain& Main) {
    for (const SettingsRow& row : SettingsRows()) {
        if (!row.Write || (row.Stands && !row.Stands(Main))) continue;
        AppendLine(out, row.Key);
        row.Write(out, Main);
        AppendEnd(out);
    }
}

void WriteSubjects(std::string& out, const frmMain& Main) {
    for (std::size_t number = 1; number <= Main.Links.Subjects.size(); ++number) {
        AppendKey(out, SubjectKey, number);
        AppendValueLine(out, Main.Links.Subjects[number - 1]);
    }
}

void WriteRecent(std::string& out, const frmMain& Main) {
    std::size_t number = 0;
    for (const RecentItem& item : Main.Links.Recent) {
        if (!IsLive(Main.Shortcuts, item.Tag)) continue;
        const ShortcutView& view = Main.LinkView(item.Tag);
        AppendKey(out, RecentKey, ++number);
        AppendValueLine(out, item.Caption);
        AppendValueLine(out, view.lblShortcut.Place.Left);
        AppendValueLine(out, view.lblShortcut.Place.Top);
        AppendValueLine(out, ParentName(view.In));
    }
}

bool ReadSubject(TagReader& reader, std::string_view line, SettingsFileRecord& record) {
    std::string_view subject;
    if (!reader.Value(line, subject)) return false;
    if (record.Subjects.size() < MaxSubjects) record.Subjects.push_back(subject);
    return true;
}

bool ReadRecent(TagReader& reader, std::string_view line, std::size_t number, SettingsFileRecord& record) {
    SettingsFileRecord::Recent recent;
    const bool whole = reader.Value(line, recent.Caption) && reader.Value(line, recent.Left) &&
                       reader.Value(line, recent.Top) && reader.Value(line, recent.ParentName);
    if (whole) record.RecentRows[number] = recent;
    return whole;
}

bool ReadSetting(TagReader& reader, const SettingsRow& row, SettingsFileRecord& record) {
    std::string_view text;
    if (!reader.Value(row.Key, text)) return false;
    if (!row.Readable(text)) return reader.BadValue(row.Key, text);
    record.Values.push_back({static_cast<std::size_t>(&row - SettingsRows().data()), text});
    return true;
}

struct Place {
    std::size_t Next = 0;     // row that the written order has next
    std::string_view Version; // trimmed first line
};

// False: damage. A line that is none of ours is passed over.
bool ReadLine(TagReader& reader, std::string_view line, Place& place, SettingsFileRecord& record) {
    if (const auto* row = FindTag(SettingsRows(), &SettingsRow::Key, line, place.Next))
        return ReadSetting(reader, *row, record);
    if (ReadObject(reader, line, place.Version, record.Objects)) return !reader.Damaged();
    if (NumberIn(line, SubjectKey, MaxSubjects)) return ReadSubject(reader, line, record);
    if (const auto number = NumberIn(line, RecentKey, MaxRecent))
        return ReadRecent(reader, line, *number, record);
    return true;
}

void ApplyLists(frmMain& Main, const SettingsFileRecord& record) {
    for (const auto subject : record.Subjects) Main.Links.Subjects.emplace_back(subject);
    for (const auto& row : record.RecentRows)
        if (row)
            Main.Links.RecentRows.push_back(
                {std::string(row->Caption), row->Left, row->Top, std::string(Trimmed(row->ParentName))});
}

} // namespace

std::string SettingsText(const frmMain& Main, bool Exiting) {
    return SettingsText(Main, Exiting, ObjectsByParent(Main));
}

std::string SettingsText(const frmMain& Main, bool /*Exiting*/, const ObjectsByParent& objects) {
    constexpr std::size_t BytesOfTable = 4096, BytesOfLink = 512;
    std::string text;
    text.reserve(BytesOfTable + objects.ShortcutsIn(OnWorkspace()).size() * BytesOfLink);
    AppendLine(text, FormatVersion);
    WriteRows(text, Main);
    WriteSubjects(text, Main);
    WriteRecent(text, Main);
    WriteObjects(text, Main, objects, OnWorkspace());
    return text;
}

std::optional<Damage> ParseSettings(std::string_view bytes, SettingsFileRecord& record) {
    TagReader reader(bytes);
    Place place;
    std::string_view line;
    const bool headed = reader.Next(line);
    place.Version = Trimmed(line);
    while (reader.Next(line) && ReadLine(reader, line, place, record)) {
    }
    auto damage = reader.Finish();
    if (!damage && !headed) damage = Damage{.Kind = DamageKind::NoHead};
    return damage;
}

void ApplySettings(frmMain& Main, const SettingsFileRecord& record, DeferredSettings& deferred) {
    for (const auto& value : record.Values) SettingsRows()[value.Row].Apply(Main, deferred, value.Text);
    ApplyLists(Main, record);
    ApplyObjects(Main, record.Objects, OnWorkspace());
}

} // namespace quill
