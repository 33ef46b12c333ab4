// What a record says, field by field, as the dialog shows it and as the dialog writes it.
#include "shortcuts/properties.h"

#include "core/objects.h"
#include "persistence/text_values.h"
#include "shortcuts/create.h"
#include "shortcuts/drop_target.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

constexpr int smallestFont = 1, largestFont = 200; // points
constexpr int lastRunState = 3, lastDigit = 9;

using Value = LinkProperties;

struct FieldRow {
    LinkField Field;
    bool (*Same)(const Value&, const Value&);
    void (*Write)(frmMain&, int Index, const Value&);
};

template <auto Control> bool Same(const Value& one, const Value& other) {
    return one.*Control == other.*Control;
}

template <auto Control, auto Member> void WriteAsIs(frmMain& Main, int Index, const Value& value) {
    Main.Link(Index).*Member = value.*Control;
}
template <auto Control, auto Member> void WritePath(frmMain& Main, int Index, const Value& value) {
    Main.Link(Index).*Member = PathOfLine(value.*Control);
}

// What is an address opens with what opens addresses; one that was of a rarer kind stays one.
void SettleType(clsShortcut& record) {
    const bool address = IsWebAddress(record.Path) ||
                         (record.ShortcutType == TypeUrl && record.Path.find("://") != std::string::npos);
    record.ShortcutType = address && !record.Command ? TypeUrl : TypeFile;
}

void AskIconAgain(frmMain& Main, int Index) {
    Main.LinkView(Index).IconDrawn = false;
}

void WriteTarget(frmMain& Main, int Index, const Value& value) {
    Main.Link(Index).Path = PathOfLine(value.txtPath);
    SettleType(Main.Link(Index));
    AskIconAgain(Main, Index);
}

void WriteCommand(frmMain& Main, int Index, const Value& value) {
    Main.Link(Index).Command = value.ChkCommand;
    SettleType(Main.Link(Index));
    AskIconAgain(Main, Index);
}

void WriteIcon(frmMain& Main, int Index, const Value& value) {
    Main.Link(Index).Icon = PathOfLine(value.txtIcon);
    AskIconAgain(Main, Index);
}

void WriteRunIn(frmMain& Main, int Index, const Value& value) {
    if (value.cboRun >= 0) Main.Link(Index).RunIn = static_cast<std::int16_t>(value.cboRun + 1);
}

void WriteSpeedLaunch(frmMain& Main, int Index, const Value& value) {
    if (value.cboSpeedLaunch >= 0)
        Main.Link(Index).SpeedLaunch = static_cast<std::uint8_t>(value.cboSpeedLaunch);
}

void WriteSize(frmMain& Main, int Index, const Value& value) {
    const auto points = ReadNumber(value.txtSize);
    if (points && *points >= smallestFont && *points <= largestFont)
        Main.Link(Index).FontSize = static_cast<std::int16_t>(std::lround(*points));
}

std::string NameOfFile(const frmMain& Main, int Index) {
    const std::string path = ResolvedPath(Main, Main.Link(Index).Path);
    const auto& in = Main.LinkView(Index).In;
    const bool listed = in.Kind == ParentKind::ContainerFrame && IsLive(Main.Containers, in.Index) &&
                        KindOf(Main, in.Index) == ContainerKind::FolderConnector;
    return listed ? path.substr(path.find_last_of('/') + 1) : CaptionOfPath(path);
}

// The name that it has when nobody gives one.
std::string NameOfTarget(const frmMain& Main, int Index) {
    const clsShortcut& record = Main.Link(Index);
    if (record.Command) return record.Parameters;
    return record.ShortcutType == TypeUrl ? record.Path : NameOfFile(Main, Index);
}

// A shortcut of which there is nothing to tell keeps its name.
void WriteLabel(frmMain& Main, int Index, const Value& value) {
    std::string name;
    AppendTrimmed(name, value.txtLabel);
    if (name.empty()) AppendTrimmed(name, NameOfTarget(Main, Index));
    if (name.empty() || name == Main.Link(Index).FullCaption) return;
    Main.Link(Index).FullCaption = Main.LinkView(Index).lblShortcut.Caption = name;
    ++Main.Links.CaptionsRevision;
    for (RecentItem& item : Main.Links.Recent)
        if (item.Tag == Index) item.Caption = name;
}

// The name stands behind the target and the command, since it may come from them.
constexpr FieldRow rows[] = {
    {LinkField::Path, &Same<&Value::txtPath>, &WriteTarget},
    {LinkField::Parameters, &Same<&Value::txtParam>, &WriteAsIs<&Value::txtParam, &clsShortcut::Parameters>},
    {LinkField::StartIn, &Same<&Value::txtStartIn>, &WritePath<&Value::txtStartIn, &clsShortcut::StartIn>},
    {LinkField::RunIn, &Same<&Value::cboRun>, &WriteRunIn},
    {LinkField::Icon, &Same<&Value::txtIcon>, &WriteIcon},
    {LinkField::Tags, &Same<&Value::txtTags>, &WriteAsIs<&Value::txtTags, &clsShortcut::Tags>},
    {LinkField::Tip, &Same<&Value::txtTip>, &WriteAsIs<&Value::txtTip, &clsShortcut::Tip>},
    {LinkField::PromptParameters, &Same<&Value::chkPromptForParameters>,
     &WriteAsIs<&Value::chkPromptForParameters, &clsShortcut::PromptParameters>},
    {LinkField::Admin, &Same<&Value::chkAdminPriv>, &WriteAsIs<&Value::chkAdminPriv, &clsShortcut::Admin>},
    {LinkField::Confirm, &Same<&Value::chkConfirm>, &WriteAsIs<&Value::chkConfirm, &clsShortcut::Confirm>},
    {LinkField::Command, &Same<&Value::ChkCommand>, &WriteCommand},
    {LinkField::TagStart, &Same<&Value::chkTagStart>,
     &WriteAsIs<&Value::chkTagStart, &clsShortcut::TagStart>},
    {LinkField::Label, &Same<&Value::txtLabel>, &WriteLabel},
    {LinkField::SpeedLaunch, &Same<&Value::cboSpeedLaunch>, &WriteSpeedLaunch},
    {LinkField::Bold, &Same<&Value::ChkBold>, &WriteAsIs<&Value::ChkBold, &clsShortcut::FontBold>},
    {LinkField::Size, &Same<&Value::txtSize>, &WriteSize},
    {LinkField::Ink, &Same<&Value::PicLinkColor>, &WriteAsIs<&Value::PicLinkColor, &clsShortcut::Color>},
};
static_assert(std::size(rows) == LinkFields);

constexpr bool RowsStandByField() {
    for (int at = 0; at < LinkFields; ++at)
        if (static_cast<int>(rows[at].Field) != at) return false;
    return true;
}
static_assert(RowsStandByField());

const FieldRow& RowOf(LinkField field) {
    return rows[static_cast<std::size_t>(field)];
}

} // namespace

std::string LineOfPath(const std::string& path) {
    std::string line;
    if (!IsPath(path)) return path;
    AppendPath(line, path);
    return line;
}

std::string PathOfLine(const std::string& line) {
    return ReadPath(Trimmed(line));
}

LinkProperties PropertiesOf(const frmMain& Main, int Index) {
    const clsShortcut& record = Main.Link(Index);
    LinkProperties shown;
    shown.txtLabel = record.FullCaption;
    shown.txtPath = LineOfPath(record.Path);
    shown.txtParam = record.Parameters;
    shown.txtStartIn = LineOfPath(record.StartIn);
    shown.txtIcon = LineOfPath(record.Icon);
    shown.txtTags = record.Tags;
    shown.txtTip = record.Tip;
    shown.txtSize = std::to_string(record.FontSize);
    shown.cboRun = record.RunIn >= 1 && record.RunIn <= lastRunState ? record.RunIn - 1 : -1;
    shown.cboSpeedLaunch = record.SpeedLaunch <= lastDigit ? record.SpeedLaunch : -1;
    shown.chkPromptForParameters = record.PromptParameters;
    shown.chkAdminPriv = record.Admin;
    shown.chkConfirm = record.Confirm;
    shown.ChkCommand = record.Command;
    shown.chkTagStart = record.TagStart;
    shown.ChkBold = record.FontBold;
    shown.PicLinkColor = record.Color;
    return shown;
}

bool SameField(LinkField field, const LinkProperties& one, const LinkProperties& other) {
    return RowOf(field).Same(one, other);
}

void WriteLinkField(frmMain& Main, int Index, LinkField field, const LinkProperties& value) {
    RowOf(field).Write(Main, Index, value);
}

} // namespace quill
