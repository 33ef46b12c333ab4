#include "persistence/link_record.h"

#include "core/clsShortcut.h"

namespace quill {

namespace {

using Record = LinkRecord;
using Row = TagRow<LinkRecord>;

template <auto Member> constexpr Row Field(std::string_view tag) {
    return {tag, &ReadField<Record, Member>, &WriteField<Record, Member>};
}
template <auto Member> constexpr Row TrimmedField(std::string_view tag) {
    return {tag, &ReadField<Record, Member>, &WriteTrimmed<Record, Member>};
}
template <auto Member> constexpr Row PathField(std::string_view tag) {
    return {tag, &ReadField<Record, Member>, &WritePath<Record, Member>};
}

// Only whole twips are read, although the label's place has a fraction.
bool ReadLeft(TagReader& reader, std::string_view tag, Record& record) {
    std::int32_t left = 0;
    if (!reader.Value(tag, left)) return false;
    record.LinkX = static_cast<float>(left);
    return true;
}

void WriteTarget(std::string& out, std::string_view tag, const Record& record) {
    HoldsPath(record) ? WritePath<Record, &Record::LinkPath>(out, tag, record)
                      : WriteTrimmed<Record, &Record::LinkPath>(out, tag, record);
}

constexpr Row Tags[] = {
    Field<&Record::Size>("[Size]"),
    {"[LinkX]", &ReadLeft, &WriteField<Record, &Record::LinkX>},
    Field<&Record::LinkY>("[LinkY]"),
    TrimmedField<&Record::LinkLabel>("[LinkLabel]"),
    Field<&Record::LinkType>("[LinkType]"),
    {"[LinkPath]", &ReadField<Record, &Record::LinkPath>, &WriteTarget},
    TrimmedField<&Record::LinkParam>("[LinkParam]"),
    Field<&Record::Color>("[Color]"),
    Field<&Record::Bold>("[Bold]"),
    Field<&Record::Confirm>("[Confirm]"),
    Field<&Record::Command>("[Command]"),
    PathField<&Record::Icon>("[Icon]"),
    Field<&Record::Tags>("[Tags]"),
    Field<&Record::RunIn>("[RunIn]"),
    Field<&Record::TagStart>("[TagStart]"),
    Field<&Record::PromptParameters>("[PromptParameters]"),
    PathField<&Record::StartIn>("[StartIn]"),
    Field<&Record::Admin>("[Admin]"),
    Field<&Record::SpeedLaunch>("[SpeedLaunch]"),
    Field<&Record::Tip>("[Tip]"),
};

} // namespace

std::span<const TagRow<LinkRecord>> LinkTags() {
    return Tags;
}

bool HoldsPath(const LinkRecord& record) {
    return record.LinkType == TypeFile && !record.Command && IsPath(record.LinkPath);
}

bool ReadLink(TagReader& reader, LinkRecord& record) {
    if (!ReadRecord(reader, LinkTags(), LinkOpen, LinkClose, record)) return false;
    return record.LinkType == TypeUrl || record.LinkType == TypeFile;
}

void WriteLink(std::string& out, const LinkRecord& record) {
    AppendLine(out, LinkOpen);
    WriteTags(out, LinkTags(), record);
    AppendLine(out, LinkClose);
}

} // namespace quill
