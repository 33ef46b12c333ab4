#include "persistence/picture_record.h"

namespace quill {

namespace {

using Record = PictureRecord;
using Row = TagRow<PictureRecord>;

template <auto Member> constexpr Row Field(std::string_view tag) {
    return {tag, &ReadField<Record, Member>, &WriteField<Record, Member>};
}

// Kept for older readers; nothing locks a single picture.
bool ReadLocked(TagReader& reader, std::string_view tag, Record&) {
    return reader.Skip(tag);
}
void WriteLocked(std::string& out, std::string_view tag, const Record&) {
    AppendLine(out, tag);
    AppendLine(out, "0");
}

constexpr Row Tags[] = {
    {"[Locked]", &ReadLocked, &WriteLocked},
    Field<&Record::PicX>("[PicX]"),
    Field<&Record::PicY>("[PicY]"),
    Field<&Record::PicW>("[PicW]"),
    Field<&Record::PicH>("[PicH]"),
    {"[PicPath]", &ReadField<Record, &Record::PicPath>, &WritePath<Record, &Record::PicPath>},
    Field<&Record::Comment>("[Comment]"),
    Field<&Record::SlideShow>("[SlideShow]"),
};

constexpr std::string_view OldNothing = "TEMP"; // an empty comment, no slideshow

bool ReadOldSlideShow(TagReader& reader, std::string_view tag, Record& record) {
    std::string_view text;
    if (!reader.Value(tag, text)) return false;
    if (Trimmed(text) == OldNothing) return true;
    return ReadValue(text, record.SlideShow) || reader.BadValue(tag, text);
}

} // namespace

std::span<const TagRow<PictureRecord>> PictureTags() {
    return Tags;
}

bool ReadPicture(TagReader& reader, PictureRecord& record) {
    return ReadRecord(reader, PictureTags(), PictureOpen, PictureClose, record);
}

// By position: whatever the tag lines say.
bool ReadOldPicture(TagReader& reader, PictureRecord& record) {
    for (const Row& row : Tags) {
        if (!reader.Skip(row.Tag)) return false;
        const bool last = &row == std::end(Tags) - 1;
        if (!(last ? ReadOldSlideShow(reader, row.Tag, record) : row.Read(reader, row.Tag, record)))
            return false;
    }
    if (record.Comment == OldNothing) record.Comment = {};
    return true;
}

void WritePicture(std::string& out, const PictureRecord& record) {
    AppendLine(out, PictureOpen);
    WriteTags(out, PictureTags(), record);
    AppendLine(out, PictureClose);
}

} // namespace quill
