// Tag reader: walks the lines of a file in tags and values, and remembers the first damage that it meets;
// the reading stops there. Tables of tags (TagRow) say what a tag means; a tag is looked for first where the
// written order has it next.
#pragma once

#include "persistence/damage.h"
#include "persistence/line_reader.h"
#include "persistence/text_values.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace quill {

inline constexpr std::string_view NoteEnd = "[END Note]";

class TagReader {
public:
    explicit TagReader(std::string_view bytes) : lines_(bytes) {}

    bool Next(std::string_view& line) { return !damage_ && lines_.Next(line); }

    // The value line or lines that follow a tag. False: damage, reading is over.
    template <class Field> bool Value(std::string_view tag, Field& field) {
        std::string_view line;
        if (!lines_.Next(line)) return CutOff(tag);
        return ReadValue(line, field) || BadValue(tag, line);
    }
    bool Skip(std::string_view tag) {
        std::string_view line;
        return Value(tag, line);
    }

    bool CutOff(std::string_view tag);
    // True where it is forgiven: a note's text may hold a line that ends the note early, and what follows is
    // the rest of its text taken as tags.
    bool BadValue(std::string_view tag, std::string_view value);
    // A note is over, as far as its text tells.
    void NoteEnded() { noteEnded_ = true; }
    void NoHead() { Found(DamageKind::NoHead, {}, {}); }

    bool Damaged() const { return damage_.has_value(); }
    // After the last line, with what only the end shows.
    std::optional<Damage> Finish();

private:
    void Found(DamageKind kind, std::string_view tag, std::string_view value);
    bool NoteEndsAgain();

    LineReader lines_;
    std::optional<Damage> damage_;
    bool noteEnded_ = false;
    // Bytes left behind the last line that ends a note, plus one; 0: there is none, empty: not looked for
    // yet.
    std::optional<std::size_t> lastNoteEnd_;
};

// One tag of a record: how its value line or lines are read and written (the tag line itself included), and
// whether they stand in the file at all (null: always).
template <class Record> struct TagRow {
    std::string_view Tag;
    bool (*Read)(TagReader&, std::string_view tag, Record&);
    void (*Write)(std::string& out, std::string_view tag, const Record&);
    bool (*Stands)(const Record&) = nullptr;
};

inline void AppendEnd(std::string& out) {
    out.append("\r\n", 2);
}
inline void AppendLine(std::string& out, std::string_view line) {
    out.append(line);
    AppendEnd(out);
}

template <class Record, auto Member> bool ReadField(TagReader& reader, std::string_view tag, Record& record) {
    return reader.Value(tag, record.*Member);
}
// A field that was never filled is written as 0 or nothing.
template <class Record, auto Member>
void WriteField(std::string& out, std::string_view tag, const Record& record) {
    const auto& field = record.*Member;
    AppendLine(out, tag);
    if constexpr (requires { field.has_value(); })
        AppendValue(out, field.value_or(typename std::remove_cvref_t<decltype(field)>::value_type{}));
    else
        AppendValue(out, field);
    AppendEnd(out);
}
template <class Record, auto Member>
void WriteTrimmed(std::string& out, std::string_view tag, const Record& record) {
    AppendLine(out, tag);
    AppendTrimmed(out, record.*Member);
    AppendEnd(out);
}
template <class Record, auto Member>
void WritePath(std::string& out, std::string_view tag, const Record& record) {
    AppendLine(out, tag);
    AppendPath(out, record.*Member);
    AppendEnd(out);
}
template <class Record, auto Member> bool HasField(const Record& record) {
    return record.*Member != std::remove_cvref_t<decltype(record.*Member)>{};
}

// The row of a tag line; null for every other line. next is where the search begins and is moved behind the
// row found.
template <class Row>
const Row* FindTag(std::span<const Row> rows, std::string_view Row::*tag, std::string_view line,
                   std::size_t& next) {
    if (line.size() < 2 || line.front() != '[') return nullptr;
    for (std::size_t tried = 0; tried < rows.size(); ++tried, ++next) {
        if (next >= rows.size()) next = 0;
        if (rows[next].*tag == line) return &rows[next++];
    }
    return nullptr;
}

// From behind the opening line to the closing one. False: damage, or the record is broken off by the end of
// the note that it stands in.
template <class Record>
bool ReadRecord(TagReader& reader, std::span<const TagRow<Record>> rows, std::string_view open,
                std::string_view close, Record& record) {
    std::size_t next = 0;
    std::string_view line;
    while (reader.Next(line)) {
        if (line == close) return true;
        if (line == NoteEnd) return false;
        const auto* row = FindTag(rows, &TagRow<Record>::Tag, line, next);
        if (row && !row->Read(reader, row->Tag, record)) return false;
    }
    return reader.CutOff(open);
}

template <class Record>
void WriteTags(std::string& out, std::span<const TagRow<Record>> rows, const Record& record) {
    for (const auto& row : rows)
        if (row.Write && (!row.Stands || row.Stands(record))) row.Write(out, row.Tag, record);
}

} // namespace quill
