#include "shortcuts/add_commands.h"

#include "containers/lock.h"
#include "containers/selection.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/save.h"
#include "platform/dialogs.h"
#include "shortcuts/create.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/folder_items.h"
#include "shortcuts/frmInternetShortcut.h"
#include "shortcuts/placing.h"
#include "shortcuts/properties.h"

#include <optional>

namespace quill {
namespace {

constexpr const char* shellOfSystem = "/bin/sh";

// Right before the change, behind all dialogs: the lock, and the room that is left.
bool HasRoom(frmMain& Main, Parent to) {
    if (Main.IsExiting || !TakesShortcuts(Main, to) || !NeedsEdit(Main, Edit::Shortcuts)) return false;
    if (RoomFor(Main, to) > 0) return true;
    TellLimit(Main, to);
    return false;
}

// -1: there was no room.
int AddOne(frmMain& Main, Parent to, NewShortcut shortcut) {
    if (!HasRoom(Main, to)) return -1;
    UnselectLinks(Main);
    const int added = AddShortcut(Main, std::move(shortcut), to, Main.Group.NewContainerPos);
    SettleNewShortcut(Main, added);
    SaveWorkspace(Main, true, false);
    return added;
}

void AddPath(frmMain& Main, Parent to, const std::string& path) {
    const std::string stored = StoredPath(Main, WithoutEndSeparator(path));
    AddOne(Main, to, ShortcutForFile(Main, stored, to));
}

using Chooser = std::optional<std::string> (Dialogs::*)(const FileQuestion&);

std::optional<std::string> Chosen(frmMain& Main, Chooser choose, const std::string& title) {
    FileQuestion question;
    question.Title = title;
    question.FilterCaption = Tr(Main, "All Files (*.*)");
    const DialogPause pause(Main);
    auto path = (Main.P.Dialogs.*choose)(question);
    const bool taken = path && IsLocalPath(*path) && !Main.IsExiting;
    return taken ? path : std::nullopt;
}

} // namespace

Parent CurrentContainerFrame(const frmMain& Main) {
    return InContainer(Main.Group.CurrentContainer);
}

void AddFileLink(frmMain& Main, Parent to) {
    if (!CanAddTo(Main, to)) return;
    if (const auto path = Chosen(Main, &Dialogs::OpenFile, Tr(Main, "Add File Shortcut")))
        AddPath(Main, to, *path);
}

void AddFolderLink(frmMain& Main, Parent to) {
    if (!CanAddTo(Main, to)) return;
    const auto path = Chosen(Main, &Dialogs::OpenFolder, Tr(Main, "Add Folder Shortcut:"));
    if (!path) return;
    const bool onWorkspace = to.Kind == ParentKind::picBack;
    if (onWorkspace && ContainerFromFolder(Main, *path, Main.Group.NewContainerPos)) return;
    AddPath(Main, to, *path);
}

// What the dialog adds it adds itself, one after the other while it is open, each when there is room for it.
void AddWebLink(frmMain& Main, Parent to) {
    if (!CanAddTo(Main, to)) return;
    frmInternetShortcut dialog(Main, to, Main.Group.NewContainerPos);
    {
        const DialogPause pause(Main);
        static_cast<void>(Main.P.Dialogs.Show(dialog));
    }
    if (dialog.Added() > 0 && !Main.IsExiting) SaveWorkspace(Main, true, false);
}

void AddCommand(frmMain& Main, Parent to) {
    if (!CanAddTo(Main, to)) return;
    const int added = AddOne(Main, to, {TypeFile, shellOfSystem, Tr(Main, "Command"), {}, {}, false});
    if (added == -1) return;
    Main.Link(added).Command = true;
    SaveWorkspace(Main, true, false);
    ShowShortcutProperties(Main, {.Index = added, .ErrorText = {}, .Clone = false, .Command = true});
}

void SettleNewShortcut(frmMain& Main, int Index) {
    if (!IsLive(Main.Shortcuts, Index)) return;
    const Parent in = Main.LinkView(Index).In;
    const bool shownAll = ShowsAll(Main, in);
    PlaceAddedShortcut(Main, Index);
    FitToContent(Main, in, shownAll);
    SetSelection(Main, Index, true);
    Main.Links.CurrentShortcut = Index;
}

bool CanAddTo(const frmMain& Main, Parent to) {
    return TakesShortcuts(Main, to) && MayMoveShortcuts(Main);
}

} // namespace quill
