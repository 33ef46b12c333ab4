#include "persistence/object_records.h"

#include "core/frmMain.h"
#include "persistence/objects_by_parent.h"
#include "shortcuts/create.h"

namespace quill {

namespace {

constexpr std::string_view LastOldVersion = "106"; // compared as text

// The tags in there mean something else outside of a record.
void PassOver(TagReader& reader, std::string_view close) {
    std::string_view line;
    while (reader.Next(line) && line != close) {
    }
}

void ReadLinkOf(TagReader& reader, std::string_view version, ObjectRecords& records) {
    if (version != FormatVersion) {
        records.LeftOut = true;
        return PassOver(reader, LinkClose);
    }
    LinkRecord& record = records.Links.emplace_back();
    if (!ReadLink(reader, record)) records.Links.pop_back();
}

void ReadPictureOf(TagReader& reader, std::string_view version, ObjectRecords& records) {
    const bool old = version <= LastOldVersion;
    if (!old && version != FormatVersion) {
        records.LeftOut = true;
        return PassOver(reader, PictureClose);
    }
    PictureRecord& record = records.Pictures.emplace_back();
    if (!(old ? ReadOldPicture(reader, record) : ReadPicture(reader, record))) records.Pictures.pop_back();
}

void ApplyValues(const LinkRecord& record, clsShortcut& link) {
    if (record.Size != 0) link.FontSize = record.Size;
    link.Color = record.Color;
    link.FontBold = record.Bold;
    link.ShortcutType = record.LinkType;
    const bool isText = record.LinkType != TypeFile || record.Command;
    link.Path = isText ? std::string(Trimmed(record.LinkPath)) : ReadPath(Trimmed(record.LinkPath));
    link.FullCaption = record.LinkLabel;
    link.Parameters = record.LinkParam;
    link.Confirm = record.Confirm;
    link.Command = record.Command;
    link.Icon = ReadPath(record.Icon);
    link.Tags = record.Tags;
    link.RunIn = record.RunIn;
    link.TagStart = record.TagStart;
    link.PromptParameters = record.PromptParameters;
    link.StartIn = ReadPath(record.StartIn);
    link.Admin = record.Admin;
    link.SpeedLaunch = record.SpeedLaunch;
    link.Tip = record.Tip;
}

void ApplyLink(frmMain& Main, const LinkRecord& record, Parent parent) {
    const Point place{record.LinkX, record.LinkY};
    if (record.LinkType == TypeUrl)
        AddURL(Main, parent, {}, {}, place);
    else
        AddFile(Main, {}, parent, place);
    const int index = Main.NextShortcutIndex - 1;
    ApplyValues(record, Main.Link(index));
    ++Main.Links.CaptionsRevision;
    Main.LinkView(index).lblShortcut.Caption = Main.Link(index).FullCaption;
    ApplyShortcutStyle(Main, index);
}

void ApplyPicture(frmMain& Main, const PictureRecord& record, Parent parent) {
    bool ok = false;
    const Rect place{record.PicX, record.PicY, record.PicW, record.PicH};
    AddPicture(Main, ReadPath(record.PicPath), parent, place, ok);
    if (!ok) return;
    clsPicture& picture = Main.Pic(Main.NextPictureIndex - 1);
    picture.Comment = record.Comment;
    picture.counter = record.SlideShow;
}

LinkRecord RecordOfLink(const frmMain& Main, int index) {
    const clsShortcut& link = Main.Link(index);
    const Rect& place = Main.LinkView(index).lblShortcut.Place;
    return {.Size = link.FontSize,
            .LinkX = place.Left,
            .LinkY = place.Top,
            .LinkLabel = link.FullCaption,
            .LinkType = link.ShortcutType,
            .LinkPath = link.Path,
            .LinkParam = link.Parameters,
            .Color = link.Color,
            .Bold = link.FontBold,
            .Confirm = link.Confirm,
            .Command = link.Command,
            .Icon = link.Icon,
            .Tags = link.Tags,
            .RunIn = link.RunIn,
            .TagStart = link.TagStart,
            .PromptParameters = link.PromptParameters,
            .StartIn = link.StartIn,
            .Admin = link.Admin,
            .SpeedLaunch = link.SpeedLaunch,
            .Tip = link.Tip};
}

PictureRecord RecordOfPicture(const frmMain& Main, int index) {
    const clsPicture& picture = Main.Pic(index);
    const Rect& place = Main.PicView(index).PicContainer;
    return {.PicX = place.Left,
            .PicY = place.Top,
            .PicW = place.Width,
            .PicH = place.Height,
            .PicPath = picture.Path,
            .Comment = picture.Comment,
            .SlideShow = picture.counter};
}

} // namespace

void ObjectRecords::Clear() {
    Links.clear();
    Pictures.clear();
    LeftOut = false;
}

bool ReadObject(TagReader& reader, std::string_view line, std::string_view version, ObjectRecords& records) {
    if (line == LinkOpen)
        ReadLinkOf(reader, version, records);
    else if (line == PictureOpen)
        ReadPictureOf(reader, version, records);
    else
        return false;
    return true;
}

void ApplyObjects(frmMain& Main, const ObjectRecords& records, Parent parent) {
    for (const auto& record : records.Pictures) ApplyPicture(Main, record, parent);
    for (const auto& record : records.Links) ApplyLink(Main, record, parent);
}

void WriteObjects(std::string& out, const frmMain& Main, const ObjectsByParent& objects, Parent parent) {
    for (const int index : objects.PicturesIn(parent)) WritePicture(out, RecordOfPicture(Main, index));
    for (const int index : objects.ShortcutsIn(parent)) WriteLink(out, RecordOfLink(Main, index));
}

} // namespace quill
