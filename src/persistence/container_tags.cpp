#include "persistence/container_tags.h"

namespace quill {

namespace {

using Record = ContainerRecord;
using Row = TagRow<ContainerRecord>;

template <auto Member> constexpr Row Always(std::string_view tag) {
    return {tag, &ReadField<Record, Member>, &WriteField<Record, Member>};
}
// Written only when the field says something.
template <auto Member> constexpr Row WhenSet(std::string_view tag) {
    return {tag, &ReadField<Record, Member>, &WriteField<Record, Member>, &HasField<Record, Member>};
}
template <auto Member> constexpr Row PathField(std::string_view tag) {
    return {tag, &ReadField<Record, Member>, &WritePath<Record, Member>};
}

// What is only read as a whole number, although its field holds a fraction.
template <auto Member> bool ReadWholeField(TagReader& reader, std::string_view tag, Record& record) {
    std::optional<std::int32_t> value;
    if (!reader.Value(tag, value)) return false;
    if (value) record.*Member = static_cast<float>(*value);
    return true;
}
template <auto Member> constexpr Row WholeField(std::string_view tag) {
    return {tag, &ReadWholeField<Member>, &WriteField<Record, Member>};
}

constexpr std::string_view HeadMark = "-1"; // the line that closes a head; says nothing

bool ReadContainerHead(TagReader& reader, std::string_view tag, Record& record) {
    if (record.Head == HeadKind::None) record.Head = HeadKind::Container;
    return reader.Skip(tag);
}
void WriteContainerHead(std::string& out, std::string_view tag, const Record&) {
    AppendLine(out, tag);
    AppendLine(out, HeadMark);
}
bool IsContainer(const Record& record) {
    return record.Head == HeadKind::Container;
}

bool ReadFeedHead(TagReader& reader, std::string_view tag, Record& record) {
    if (record.Head != HeadKind::None) return true;
    record.Head = HeadKind::Feed;
    return reader.Value(tag, record.FeedUrl) && reader.Value(tag, record.FeedCaption) && reader.Skip(tag);
}
void WriteFeedHead(std::string& out, std::string_view tag, const Record& record) {
    AppendLine(out, tag);
    for (const auto text : {record.FeedUrl, record.FeedCaption, HeadMark}) {
        AppendValue(out, text);
        AppendEnd(out);
    }
}
bool IsFeed(const Record& record) {
    return record.Head == HeadKind::Feed;
}

bool ReadNoteText(TagReader& reader, std::string_view tag, Record& record) {
    std::string_view line;
    while (reader.Next(line)) {
        if (line == NoteEnd) {
            reader.NoteEnded();
            return true;
        }
        AppendLine(record.ReadNote, line);
    }
    return reader.CutOff(tag);
}

std::string_view WithoutReturn(std::string_view line) {
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

// A line of the text that would end the note gets a blank behind it.
void AppendNoteLine(std::string& out, std::string_view line) {
    const std::size_t start = out.size();
    if (IsUtf8(line))
        out.append(line);
    else
        AppendFromWindows1252(out, line);
    for (std::size_t at = start; (at = out.find('\0', at)) != std::string::npos;) out[at] = ' ';
    AppendLine(out, line == NoteEnd ? std::string_view(" ") : std::string_view());
}

void WriteNoteText(std::string& out, std::string_view tag, const Record& record) {
    AppendLine(out, tag);
    for (std::string_view rest = record.WriteNote; !rest.empty();) {
        const std::size_t feed = rest.find('\n');
        AppendNoteLine(out, WithoutReturn(rest.substr(0, feed)));
        rest.remove_prefix(feed == rest.npos ? rest.size() : feed + 1);
    }
    AppendLine(out, NoteEnd);
}

bool ReadReminder(TagReader& reader, std::string_view tag, Record& record) {
    ReminderFields reminder;
    for (auto* part : {&reminder.Hour, &reminder.Minute, &reminder.Year, &reminder.Month, &reminder.Day})
        if (!reader.Value(tag, *part)) return false;
    if (!reader.Value(tag, reminder.ReadbleTimeString)) return false;
    record.ReminderV2 = reminder;
    return true;
}
void WriteReminder(std::string& out, std::string_view tag, const Record& record) {
    const ReminderFields& reminder = *record.ReminderV2;
    AppendLine(out, tag);
    for (const auto part : {reminder.Hour, reminder.Minute, reminder.Year, reminder.Month, reminder.Day}) {
        AppendValue(out, std::int32_t{part});
        AppendEnd(out);
    }
    AppendValue(out, reminder.ReadbleTimeString);
    AppendEnd(out);
}

// The records of what lies in the container; written from the tables, behind all tags.
bool ReadObjectTag(TagReader& reader, std::string_view tag, Record& record) {
    ReadObject(reader, tag, record.Version, record.Objects);
    return !reader.Damaged();
}

constexpr Row Tags[] = {
    {"[RSS]", &ReadFeedHead, &WriteFeedHead, &IsFeed},
    {"[Container]", &ReadContainerHead, &WriteContainerHead, &IsContainer},
    Always<&Record::Name>("[Name]"),
    Always<&Record::Date>("[Date]"),
    Always<&Record::Modified>("[Modified]"),
    Always<&Record::Backcolor>("[Backcolor]"),
    Always<&Record::Forecolor>("[Forecolor]"),
    Always<&Record::ContainerTextBack>("[ContainerTextBack]"),
    Always<&Record::ContainerTextFor>("[ContainerTextFor]"),
    PathField<&Record::Icon>("[Icon]"),
    PathField<&Record::CopyPath>("[CopyPath]"),
    Always<&Record::AutoRefresh>("[AutoRefresh]"),
    Always<&Record::NoteOn>("[NOTE ON]"),
    WholeField<&Record::NoteFontSize>("[NoteFontSize]"),
    WhenSet<&Record::RSSFontSize>("[RSSFontSize]"),
    WhenSet<&Record::RefreshOnExpand>("[RefreshOnExpand]"),
    WhenSet<&Record::BuiltInViewer>("[BuiltInViewer]"),
    WhenSet<&Record::ArticleTooltip>("[ArticleTooltip]"),
    WhenSet<&Record::HighlightSearchTerms>("[HighlightSearchTerms]"),
    WhenSet<&Record::Filter>("[Filter]"),
    WhenSet<&Record::FilterString>("[FilterString]"),
    {"[START Note]", &ReadNoteText, &WriteNoteText},
    Always<&Record::ConShrinkW>("[ConShrinkW]"),
    Always<&Record::ConShrinkH>("[ConShrinkH]"),
    {"[ReminderV2]", &ReadReminder, &WriteReminder, &HasField<Record, &Record::ReminderV2>},
    Always<&Record::Folded>("[Folded]"),
    Always<&Record::DetachedConFolded>("[DetachedConFolded]"),
    Always<&Record::Flipped>("[Flipped]"),
    WhenSet<&Record::Detached>("[Detached]"),
    Always<&Record::DetachedUndockOnClick>("[DetachedUndockOnClick]"),
    Always<&Record::DetachedTab>("[DetachedTab]"),
    Always<&Record::DetachedCollapseOnClick>("[DetachedCollapseOnClick]"),
    Always<&Record::DetachedTransparent>("[DetachedTransparent]"),
    Always<&Record::DetachedOnTop>("[DetachedOnTop]"),
    Always<&Record::DetachedFadeOut>("[DetachedFadeOut]"),
    WholeField<&Record::DetachedTabX>("[DetachedTabX]"),
    WholeField<&Record::DetachedTabY>("[DetachedTabY]"),
    WholeField<&Record::DetachedTabH>("[DetachedTabH]"),
    WholeField<&Record::DetachedTabW>("[DetachedTabW]"),
    Always<&Record::DetachedTabDocked>("[DetachedTabDocked]"),
    WholeField<&Record::DetachedX>("[DetachedX]"),
    WholeField<&Record::DetachedY>("[DetachedY]"),
    WholeField<&Record::DetachedH>("[DetachedH]"),
    WholeField<&Record::DetachedW>("[DetachedW]"),
    WhenSet<&Record::HideToolbar>("[HideToolbar]"),
    Always<&Record::SpacebarFlip>("[Spacebar Flip]"),
    Always<&Record::Encrypted>("[Encrypted]"),
    Always<&Record::LineSpacing>("[LineSpacing]"),
    Always<&Record::Shrink>("[Shrink]"),
    Always<&Record::X>("[X]"),
    Always<&Record::Y>("[Y]"),
    Always<&Record::W>("[W]"),
    Always<&Record::H>("[H]"),
    WhenSet<&Record::ShowTag>("[ShowTag]"),
    {PictureOpen, &ReadObjectTag, nullptr},
    {LinkOpen, &ReadObjectTag, nullptr},
};

} // namespace

void ContainerRecord::Clear() {
    ContainerRecord fresh;
    std::swap(fresh.Objects, Objects);
    std::swap(fresh.ReadNote, ReadNote);
    fresh.Objects.Clear();
    fresh.ReadNote.clear();
    *this = std::move(fresh);
}

std::span<const TagRow<ContainerRecord>> ContainerTags() {
    return Tags;
}

} // namespace quill
