#include "shortcuts/properties.h"

#include "containers/arrange.h"
#include "containers/layout.h"
#include "containers/lock.h"
#include "containers/scroll.h"
#include "containers/selection.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/save.h"
#include "persistence/text_values.h"
#include "platform/dialogs.h"
#include "platform/questions.h"
#include "platform/shell.h"
#include "shortcuts/add_commands.h"
#include "shortcuts/create.h"
#include "shortcuts/drop_target.h"

#include <algorithm>

namespace quill {
namespace {

constexpr LinkField styleFields[] = {LinkField::Bold, LinkField::Size, LinkField::Ink};

bool IsStyle(LinkField field) {
    return std::ranges::find(styleFields, field) != std::end(styleFields);
}

template <class Act> void EachField(const Act& act) {
    for (int field = 0; field < LinkFields; ++field) act(static_cast<LinkField>(field));
}

std::string SeveralNames(const frmMain& Main) {
    return Tr(Main, "[Multiple Shortcuts]");
}
std::string SeveralTags(const frmMain& Main) {
    return Tr(Main, "[Tags]");
}

// Where the marker stands each shortcut has its own tags.
std::string WithOwnTags(const frmMain& Main, std::string tags, const std::string& own) {
    const std::string marker = SeveralTags(Main);
    if (const auto at = tags.find(marker); at != std::string::npos) {
        tags.replace(at, marker.size(), own);
        if (own.empty() && tags.starts_with(',')) tags.erase(0, 1);
    }
    return tags;
}

// What is selected, in that order, when the shortcut is part of it; that one alone where the others are not
// meant.
std::vector<int> Addressed(const frmMain& Main, const frmEditLink::Opening& opening) {
    auto links = Main.Links.SelectedShortcuts;
    std::erase_if(links, [&](int link) { return !IsLive(Main.Shortcuts, link); });
    const bool alone = opening.Clone || opening.Command || !opening.ErrorText.empty();
    const auto shown = std::ranges::find(links, opening.Index);
    if (alone || shown == links.end()) return {opening.Index};
    return links;
}

Color InkOfPlace(const frmMain& Main, const Parent& in) {
    const bool framed = in.Kind == ParentKind::ContainerFrame && IsLive(Main.Containers, in.Index);
    return framed ? Main.ConView(in.Index).FrameForeColor : Main.View.ForeColor;
}

std::string FolderOf(const std::string& path) {
    const auto slash = path.find_last_of('/');
    return path.starts_with('/') && slash > 0 ? path.substr(0, slash) : std::string();
}

// The label is measured, and stands on a plate of its own colour while it is selected.
void ShowStyle(frmMain& Main, int Index) {
    ApplyShortcutStyle(Main, Index);
    if (Main.Link(Index).Selected) SetSelection(Main, Index, true);
    SetNewLinkHeight(Main, Index);
    MoveLinkIcon(Main, Index);
}

// A clone begins with all that the record says, and no digit.
void CopyRecord(frmMain& Main, int from, int to) {
    clsShortcut record = Main.Link(from);
    record.Selected = record.TagHidden = false;
    record.SpeedLaunch = 0;
    Main.Link(to) = std::move(record);
    Main.LinkView(to).lblShortcut.Caption = Main.Link(to).FullCaption;
    ++Main.Links.CaptionsRevision;
}

} // namespace

frmEditLink::frmEditLink(frmMain& main, const Opening& opening) : Main(main), opening_(opening) {
    if (opening_.Index == -1) opening_.Index = Main.Links.CurrentShortcut;
    tags_ = ExistingTags(Main);
    tags_.insert(tags_.begin(), Tr(Main, "Existing Tags"));
    if (!IsLive(Main.Shortcuts, opening_.Index)) return;
    targets_ = Addressed(Main, opening_);
    several_ = targets_.size() > 1;
    Fill();
    if (!opening_.Command || ChkCommand) return;
    ChkCommand = true;
    ChkCommand_Click();
}

void frmEditLink::Fill() {
    static_cast<LinkProperties&>(*this) = PropertiesOf(Main, targets_.front());
    if (IsClone()) cboSpeedLaunch = 0;
    if (IsForSeveral()) txtLabel = SeveralNames(Main);
    if (IsMixed(LinkField::Tags)) txtTags = SeveralTags(Main);
    before_ = *this;
}

// ---- what the form shows

std::string frmEditLink::Caption() const {
    if (!opening_.ErrorText.empty()) return Tr(Main, "Error: %1", opening_.ErrorText);
    return IsClone() ? Tr(Main, "Clone Shortcut") : Tr(Main, "Shortcut Properties");
}

std::string frmEditLink::OkCaption() const {
    return IsClone() ? Tr(Main, "&Clone") : Tr(Main, "&OK");
}

Color frmEditLink::ShownColor() const {
    if (PicLinkColor != -1 || targets_.empty()) return PicLinkColor;
    return InkOfPlace(Main, Main.LinkView(targets_.front()).In);
}

std::string frmEditLink::ParamCaption() const {
    return ChkCommand ? Tr(Main, "Command:") : Tr(Main, "Parameters:");
}

std::string frmEditLink::ParamTip() const {
    return ChkCommand ? Tr(Main, "Enter a command to start (command prompt). Use && to separate multiple "
                                 "commands.")
                      : Tr(Main, "Enter any additional program parameters. You can override this field when "
                                 "using the keyboard to launch shortcuts.");
}

std::string frmEditLink::ParamFieldTip() const {
    return ChkCommand ? Tr(Main, "Enter a command to start (command prompt)")
                      : Tr(Main, "Additional program parameters");
}

std::string frmEditLink::lblRelativePath() const {
    const bool marked = txtPath.starts_with('@') || txtStartIn.starts_with('@') || txtIcon.starts_with('@');
    if (!marked && !Main.PortableMode) return {};
    return Tr(Main, "\"@\" at the beginning of a path stands for the drive that %1 runs from.", ProgramName);
}

bool frmEditLink::IsMixed(LinkField field) const {
    if (!several_ || !AreThere()) return false;
    const auto first = PropertiesOf(Main, targets_.front());
    return std::ranges::any_of(targets_, [&](int link) {
        return IsLive(Main.Shortcuts, link) && !SameField(field, first, PropertiesOf(Main, link));
    });
}

// ---- what a person does

void frmEditLink::Touch(LinkField field, bool touched) {
    touched_[static_cast<std::size_t>(field)] = touched;
}

// Thought better of, the target is there again. Of several each keeps its own.
void frmEditLink::ChkCommand_Click() {
    if (IsForSeveral()) return;
    if (!ChkCommand && txtPath.empty()) txtPath = pathOfFile_;
    if (!ChkCommand) return;
    if (!txtPath.empty()) pathOfFile_ = txtPath;
    txtPath.clear();
}

void frmEditLink::cboTags_Click(int entry) {
    if (entry < 1 || static_cast<std::size_t>(entry) >= tags_.size()) return;
    if (!txtTags.empty()) txtTags += ',';
    txtTags += tags_[static_cast<std::size_t>(entry)];
}

// What stood there when nothing was chosen.
std::string frmEditLink::ChosenFile(const std::string& now) {
    const FileQuestion question{Tr(Main, "Open"), Tr(Main, "All Files (*.*)"),
                                FolderOf(ResolvedPath(Main, PathOfLine(now)))};
    const DialogPause pause(Main);
    const auto chosen = Main.P.Dialogs.OpenFile(question);
    return chosen && !chosen->empty() ? LineOfPath(StoredPath(Main, *chosen)) : now;
}

void frmEditLink::CmdBrowse_Click() {
    txtPath = ChosenFile(txtPath);
}

void frmEditLink::cmdChooseFileIcon_Click() {
    txtIcon = ChosenFile(txtIcon);
}

void frmEditLink::cmdBrowseStartIn_Click() {
    FileQuestion question;
    question.Title = Tr(Main, "Start in:");
    const std::string now = ResolvedPath(Main, PathOfLine(txtStartIn));
    if (now.starts_with('/')) question.Folder = now;
    const DialogPause pause(Main);
    const auto chosen = Main.P.Dialogs.OpenFolder(question);
    if (chosen && !chosen->empty()) txtStartIn = LineOfPath(StoredPath(Main, *chosen));
}

void frmEditLink::PicLinkColor_Click() {
    const DialogPause pause(Main);
    const auto chosen = Main.P.Dialogs.ChooseColor(ShownColor(), Tr(Main, "Font Color:"));
    if (chosen) PicLinkColor = *chosen;
}

void frmEditLink::cmdProperties_Click() {
    const DialogPause pause(Main);
    if (ChkCommand) {
        Main.P.Questions.MsgBox(Tr(Main, "This function does not work with command shortcuts, only with "
                                         "shortcuts to files and folders."),
                                BoxOk | BoxInformation, ProgramName);
        return;
    }
    const std::string path = ResolvedPath(Main, PathOfLine(txtPath));
    const Status shown = Main.P.Shell.ShowFileProperties(path);
    if (shown.Ok()) return;
    Main.P.Questions.MsgBox(
        Tr(Main, "Failed to display Windows File/Folder Properties for '%1' (%2)", path, shown.Error().Text),
        BoxOk | BoxWarning, ProgramName);
}

void frmEditLink::cmdReset_Click() {
    const DialogPause pause(Main);
    const int flags = BoxYesNo | BoxQuestion;
    if (Main.P.Questions.MsgBox(Tr(Main, "Reset style to default values?"), flags, ProgramName) != AnswerYes)
        return;
    ChkBold = false;
    PicLinkColor = -1;
    txtSize = std::to_string(Main.Settings.FontSize);
}

// ---- the end

bool frmEditLink::IsChanged(LinkField field) const {
    return touched_[static_cast<std::size_t>(field)] || !SameField(field, *this, before_);
}

bool frmEditLink::AreThere() const {
    return !targets_.empty() && IsLive(Main.Shortcuts, targets_.front());
}

// The dialog is open for as long as a person likes, and a folder's shortcuts come and go.
void frmEditLink::DropDead() {
    std::erase_if(targets_, [&](int link) { return !IsLive(Main.Shortcuts, link); });
}

// Why nothing can be written at this moment; empty: it can.
std::string frmEditLink::WhyNot() const {
    if (!AreThere()) return Tr(Main, "This shortcut does not exist any more.");
    if (!MayMoveShortcuts(Main)) return Tr(Main, "The workspace is locked. Unlock it to change shortcuts.");
    if (IsClone() && RoomFor(Main, Main.LinkView(targets_.front()).In) <= 0)
        return Tr(Main, "There is no room for another shortcut.");
    return {};
}

// A digit has one owner. What a No keeps is the number that this shortcut had.
void frmEditLink::SettleSpeedLaunch() {
    if (!IsChanged(LinkField::SpeedLaunch) || cboSpeedLaunch < 1) return;
    const auto owner = std::ranges::find_if(Main.Shortcuts, [&](const ShortcutEntry& entry) {
        const bool own = !IsClone() && entry.Index == targets_.front();
        return entry.Index != -1 && !own && entry.Object.SpeedLaunch == cboSpeedLaunch;
    });
    if (owner == Main.Shortcuts.end()) return;
    const auto question = Tr(Main, "The selected Speed Launch number is already in use by %1, replace?",
                             owner->Object.FullCaption);
    const DialogPause pause(Main);
    if (Main.P.Questions.MsgBox(question, BoxYesNo | BoxQuestion, ProgramName) == AnswerYes) return;
    cboSpeedLaunch = before_.cboSpeedLaunch;
    Touch(LinkField::SpeedLaunch, false);
}

void frmEditLink::FreeSpeedLaunch(int kept) {
    if (!IsChanged(LinkField::SpeedLaunch) || cboSpeedLaunch < 1) return;
    for (ShortcutEntry& entry : Main.Shortcuts)
        if (entry.Index != -1 && entry.Index != kept && entry.Object.SpeedLaunch == cboSpeedLaunch)
            entry.Object.SpeedLaunch = 0;
}

int frmEditLink::MakeClone() {
    const int source = targets_.front();
    const Parent in = Main.LinkView(source).In;
    const Rect beside = Main.LinkView(source).lblShortcut.Place;
    const int made = AddShortcut(Main, {}, in, {beside.Left, beside.Top});
    CopyRecord(Main, source, made);
    return made;
}

void frmEditLink::WriteStyle(int Index) {
    const bool toAll = IsForSeveral() && chkApplyStyle;
    for (const LinkField field : styleFields)
        if (toAll || (Index == written_ && IsChanged(field))) WriteLinkField(Main, Index, field, *this);
}

// The digit has one owner, which is the first of several.
void frmEditLink::SaveShortcutProperties(int Index) {
    LinkProperties value = *this;
    if (IsForSeveral()) value.txtTags = WithOwnTags(Main, txtTags, Main.Link(Index).Tags);
    EachField([&](LinkField field) {
        const bool marker =
            field == LinkField::Label && IsForSeveral() && Trimmed(txtLabel) == SeveralNames(Main);
        const bool others = field == LinkField::SpeedLaunch && Index != written_;
        if (IsChanged(field) && !IsStyle(field) && !marker && !others)
            WriteLinkField(Main, Index, field, value);
    });
    WriteStyle(Index);
    ShowStyle(Main, Index);
}

std::string frmEditLink::cmdEditOK_Click() {
    DropDead();
    if (auto why = WhyNot(); !why.empty()) return why;
    SettleSpeedLaunch();
    if (Main.IsExiting) return {};
    DropDead();
    if (auto why = WhyNot(); !why.empty()) return why;
    if (!NeedsEdit(Main, Edit::Shortcuts)) return WhyNot();
    Write();
    SaveWorkspace(Main, true, false);
    return {};
}

void frmEditLink::Write() {
    if (IsClone()) targets_ = {MakeClone()};
    written_ = targets_.front();
    FreeSpeedLaunch(written_);
    for (const int link : targets_) SaveShortcutProperties(link);
    if (IsClone()) {
        UnselectLinks(Main);
        SettleNewShortcut(Main, written_);
    }
    for (const auto& in : ParentsOf(Main, targets_))
        if (in.Kind == ParentKind::ContainerFrame) LayScrollBar(Main, in.Index);
}

std::string frmEditLink::cmdEditSaveOpen_Click() {
    auto why = cmdEditOK_Click();
    start_ = why.empty() && written_ != -1;
    return why;
}

} // namespace quill
