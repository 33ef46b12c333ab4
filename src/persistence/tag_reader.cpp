#include "persistence/tag_reader.h"

namespace quill {

bool TagReader::CutOff(std::string_view tag) {
    if (!lines_.HitLongLine()) Found(DamageKind::CutOff, tag, {});
    return false;
}

bool TagReader::BadValue(std::string_view tag, std::string_view value) {
    if (NoteEndsAgain()) return true;
    Found(DamageKind::BadValue, tag, value);
    return false;
}

std::optional<Damage> TagReader::Finish() {
    if (lines_.HitLongLine()) Found(DamageKind::LongLine, {}, {});
    return damage_;
}

void TagReader::Found(DamageKind kind, std::string_view tag, std::string_view value) {
    if (damage_) return;
    constexpr std::size_t Enough = 200; // bytes of a value that a person is shown
    damage_ = Damage{kind, lines_.Line(), std::string(tag), std::string(value.substr(0, Enough)), {}};
}

// Looked for at the first bad value behind a note; most files have none.
bool TagReader::NoteEndsAgain() {
    if (!noteEnded_) return false;
    if (!lastNoteEnd_) {
        LineReader ahead(lines_.Rest());
        std::size_t left = 0;
        for (std::string_view line; ahead.Next(line);)
            if (line == NoteEnd) left = ahead.Rest().size() + 1;
        lastNoteEnd_ = left;
    }
    return lines_.Rest().size() >= *lastNoteEnd_ && *lastNoteEnd_ > 0;
}

} // namespace quill
