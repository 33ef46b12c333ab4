#include "shortcuts/create.h"

#include "containers/selection.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "platform/drawing.h"
#include "platform/files.h"
#include "platform/questions.h"
#include "platform/shell.h"
#include "shortcuts/foreign_text.h"
#include "shortcuts/launch.h"
#include "shortcuts/link_target.h"

#include <algorithm>

namespace quill {

namespace {

constexpr int NetworkTimeout = 5000; // milliseconds for a picture on a server to answer

std::string Trimmed(const std::string& text) {
    return std::string(WithoutBlanks(text));
}

// A Folder Connector shows its files by their whole names.
bool KeepsWholeName(const frmMain& Main, const Parent& target) {
    return target.Kind == ParentKind::ContainerFrame && IsLive(Main.Containers, target.Index) &&
           KindOf(Main, target.Index) == ContainerKind::FolderConnector;
}

std::string NameOfPath(const std::string& path) {
    const std::string name = path.substr(path.find_last_of('/') + 1);
    return name.empty() ? path : name;
}

// The file that it was is forgotten: only its name stays, without the ending.
NewShortcut Followed(const frmMain& Main, LinkTarget link, const std::string& path) {
    const std::string name = NameOfPath(path);
    std::string caption = link.Caption.empty() ? name.substr(0, name.find_last_of('.')) : link.Caption;
    caption = ShownLine(caption);
    if (link.Kind == LinkKind::Address) {
        NewShortcut shortcut = ShortcutForAddress(caption, link.Path);
        shortcut.Followed = true;
        return shortcut;
    }
    const std::string stored = StoredPath(Main, link.Path);
    return {TypeFile, stored, std::move(caption), std::move(link.Parameters), std::move(link.StartIn), true};
}

void MarkPlace(frmMain& Main, const Parent& in) {
    if (in.Kind == ParentKind::ContainerFrame)
        Main.Marks.Container(in.Index);
    else
        Main.Marks.Workspace();
}

int AppendPicture(frmMain& Main, const std::string& path, Parent target, const Rect& place) {
    const int index = Main.NextPictureIndex;
    const auto rows = static_cast<std::size_t>(index) + 1;
    if (Main.Pictures.size() < rows) {
        Main.Pictures.resize(rows);
        Main.PictureViews.resize(rows);
    }
    Main.Pictures[rows - 1].Index = index;
    Main.Pic(index).Path = path;
    Main.PicView(index) = {target, place, true, false};
    ++Main.NextPictureIndex;
    AddToZorderCollection(Main, {KindPicture, index}, false);
    Main.Marks.Picture(index);
    MarkPlace(Main, target);
    return index;
}

// Whether the file of a loaded picture is there. A dead server must not hold up the load: it is asked off the
// thread, and the picture may be gone or show another file when the answer comes.
void LookForPicture(frmMain& Main, int index) {
    const std::string path = ResolvedPath(Main, Main.Pic(index).Path);
    if (!Main.P.Shell.PathIsNetworkPath(path)) {
        Main.PicView(index).Missing = !Main.P.Files.Exists(path);
        return;
    }
    Main.P.Shell.PathFileExists(
        path, NetworkTimeout, [&Main, index, written = Main.Pic(index).Path](bool there) {
            if (Main.IsExiting || !IsLive(Main.Pictures, index) || Main.Pic(index).Path != written) return;
            Main.PicView(index).Missing = !there;
            Main.Marks.Picture(index);
        });
}

// A picture that a person adds: refused when it is not there, and with words when it is no picture.
bool CanShow(frmMain& Main, const std::string& path) {
    if (!Main.P.Files.Exists(path)) return false;
    if (Main.P.Images.PictureSize(path).Width > 0) return true;
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, "Unable to load selected picture"), BoxOk | BoxWarning, ProgramName);
    return false;
}

} // namespace

Color ShortcutInk(const frmMain& Main, int Index) {
    const clsShortcut& record = Main.Link(Index);
    if (record.Color != -1) return record.Color;
    const Parent& in = Main.LinkView(Index).In;
    const bool inContainer = in.Kind == ParentKind::ContainerFrame && IsLive(Main.Containers, in.Index);
    return inContainer ? Main.ConView(in.Index).FrameForeColor : Main.View.ForeColor;
}

void TakeShortcutStyle(frmMain& Main, int Index) {
    const clsShortcut& record = Main.Link(Index);
    EruLabel& label = Main.LinkView(Index).lblShortcut;
    label.FontSize = std::clamp(static_cast<float>(record.FontSize), 1.0F, 200.0F);
    label.FontBold = record.FontBold;
    if (label.BackStyle != 1) label.ForeColor = ShortcutInk(Main, Index); // a selected one has its own
}

void ApplyShortcutStyle(frmMain& Main, int Index) {
    if (!IsLive(Main.Shortcuts, Index)) return;
    TakeShortcutStyle(Main, Index);
    Main.LinkView(Index).LabelMeasured = false;
    MarkPlace(Main, Main.LinkView(Index).In);
}

NewShortcut ShortcutForFile(const frmMain& Main, const std::string& path, Parent target) {
    if (KeepsWholeName(Main, target)) return {TypeFile, path, ShownLine(NameOfPath(path)), {}, {}, false};
    const LinkTarget link = Main.Settings.ExtractURLs ? ResolveLink(Main, path) : LinkTarget{};
    if (link.Kind == LinkKind::Entry) return {TypeFile, path, link.Caption, {}, {}, false};
    if (link.Kind != LinkKind::None) return Followed(Main, link, path);
    return {TypeFile, path, ShownLine(CaptionOfPath(path)), {}, {}, false};
}

NewShortcut ShortcutForAddress(const std::string& label, const std::string& address) {
    return {TypeUrl, address, ShownLine(label.empty() ? address : label), {}, {}, false};
}

// A row with its view. Nothing is measured and no icon is asked for before it is seen.
int AddShortcut(frmMain& Main, NewShortcut shortcut, Parent target, Point position) {
    const int index = Main.NextShortcutIndex;
    const auto rows = static_cast<std::size_t>(index) + 1;
    if (Main.Shortcuts.size() < rows) {
        Main.Shortcuts.resize(rows);
        Main.ShortcutViews.resize(rows);
    }
    Main.Shortcuts[rows - 1].Index = index;
    clsShortcut& record = Main.Link(index);
    record.ShortcutType = shortcut.Type;
    record.Path = std::move(shortcut.Path);
    record.Parameters = std::move(shortcut.Parameters);
    record.StartIn = std::move(shortcut.StartIn);
    record.FontSize = static_cast<std::int16_t>(Main.Settings.FontSize);
    ShortcutView& view = Main.LinkView(index);
    view.In = target;
    view.lblShortcut.Place = {position.X, position.Y, 0, 0};
    view.lblShortcut.Caption = shortcut.Caption;
    record.FullCaption = std::move(shortcut.Caption);
    ++Main.Links.CaptionsRevision;
    ++Main.NextShortcutIndex;
    ApplyShortcutStyle(Main, index);
    return index;
}

void AddFile(frmMain& Main, const std::string& path, Parent target, Point position) {
    if (Main.IsLoading) {
        const bool whole = KeepsWholeName(Main, target);
        std::string caption = whole ? NameOfPath(path) : CaptionOfPath(path);
        AddShortcut(Main, {TypeFile, path, std::move(caption), {}, {}, false}, target, position);
        return;
    }
    const std::string taken = WithoutEndSeparator(Trimmed(path));
    AddShortcut(Main, ShortcutForFile(Main, taken, target), target, position);
}

void AddURL(frmMain& Main, Parent target, const std::string& label, const std::string& address,
            Point position) {
    AddShortcut(Main, ShortcutForAddress(label, address), target, position);
}

void AddPicture(frmMain& Main, const std::string& path, Parent target, const Rect& place, bool& ok) {
    ok = true;
    if (Main.IsLoading) {
        LookForPicture(Main, AppendPicture(Main, path, target, place));
        return;
    }
    const std::string stored = Trimmed(path);
    ok = CanShow(Main, ResolvedPath(Main, stored)) && !Main.IsExiting;
    if (!ok) return;
    AppendPicture(Main, StoredPath(Main, stored), target, place);
}

void DeleteShortcut(frmMain& Main, int Index) {
    if (!IsLive(Main.Shortcuts, Index)) return;
    SetSelection(Main, Index, false);
    RemoveFromRecent(Main, Index);
    if (Main.Links.CurrentShortcut == Index) Main.Links.CurrentShortcut = -1;
    ++Main.Links.CaptionsRevision;
    const Parent in = Main.LinkView(Index).In;
    Main.Shortcuts[static_cast<std::size_t>(Index)] = {};
    Main.LinkView(Index) = {};
    Main.LinkView(Index).Visible = false;
    MarkPlace(Main, in);
}

void DeletePicture(frmMain& Main, int Index) {
    if (!IsLive(Main.Pictures, Index)) return;
    RemoveFromZorder(Main, {KindPicture, Index});
    const Parent in = Main.PicView(Index).In;
    Main.Pictures[static_cast<std::size_t>(Index)] = {};
    Main.PicView(Index) = {};
    Main.PicView(Index).Visible = false;
    Main.Marks.Picture(Index);
    MarkPlace(Main, in);
}

} // namespace quill
