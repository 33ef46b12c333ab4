// The workspace's menu. What its lines about shortcuts and spacing mean, the container with the keys or the
// workspace itself, their routines decide.
#include "appearance/settings_dialog.h"
#include "appearance/wallpaper.h"
#include "containers/arrange.h"
#include "containers/commands.h"
#include "containers/flip.h"
#include "containers/lifecycle.h"
#include "containers/lock.h"
#include "containers/new_place.h"
#include "containers/selection.h"
#include "containers/undo.h"
#include "core/menu_tables.h"
#include "core/objects.h"
#include "core/start.h"
#include "core/tr.h"
#include "dock/dock_commands.h"
#include "dock/docking.h"
#include "dock/workspace_lock.h"
#include "keyboard/jump_to.h"
#include "notes/notes.h"
#include "persistence/backup.h"
#include "persistence/save.h"
#include "platform/shell.h"
#include "shortcuts/add_commands.h"
#include "shortcuts/launch.h"
#include "shortcuts/paste.h"
#include "shortcuts/selected.h"
#include "shortcuts/speed_launch.h"

#include <algorithm>

namespace quill {
namespace {

constexpr const char* HelpPage = "Quillmere Home Page.html";

void mnuNew_Click(frmMain& Main) {
    ChooseNewPlace(Main);
    bool ok = false;
    NewGroup(Main, false, ok);
    if (!ok) return;
    Main.Group.CurrentContainer = Main.NextContainerIndex - 1;
    Main.Con(Main.Group.CurrentContainer).CreationDate = DateText(Main);
    Main.Con(Main.Group.CurrentContainer).ModifyDate = DateText(Main);
    SaveContainers(Main, true);
}

void mnuNewNote_Click(frmMain& Main) {
    ChooseNewPlace(Main);
    if (NewNote(Main, "", Tr(Main, "Note"), false)) SaveContainers(Main, true);
}

void mnuStartSelected_Click(frmMain& Main) {
    StartSelected(Main, false, false);
}

// The page is one of ours and needs no network.
void mnuHelp_Click(frmMain& Main) {
    LaunchRequest request;
    request.Verb = "open";
    request.File = FileBeside(Main, HelpPage);
    const Status status =
        request.File.empty() ? Status(Failure{Reason::NotFound, {}}) : Main.P.Shell.ShellExecute(request);
    if (status.Ok()) return;
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, "The help page can't be opened.") + "\n\n" + status.Error().Text,
                            BoxWarning, ProgramName);
}

void mnuHelpItem_Click(frmMain& Main) {
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(CommandLineHelp(), BoxInformation, ProgramName);
}

void FlipForward(frmMain& Main) {
    SpacebarFlip(Main, true);
}
void FlipBackward(frmMain& Main) {
    SpacebarFlip(Main, false);
}

bool CanUndo(const frmMain& Main) {
    return !Main.Group.UndoStack.empty() && MayMoveShortcuts(Main);
}
bool CanRedo(const frmMain& Main) {
    return !Main.Group.RedoStack.empty() && MayMoveShortcuts(Main);
}
bool HasHistory(const frmMain& Main) {
    return !Main.Group.UndoStack.empty() || !Main.Group.RedoStack.empty();
}
bool HasShortcuts(const frmMain& Main) {
    return Live(Main.Shortcuts).begin() != Live(Main.Shortcuts).end();
}
bool MaySortShortcuts(const frmMain& Main) {
    return Main.Links.SelectedShortcuts.size() > 1 && MayArrangeShortcuts(Main);
}

bool IsLocked(const frmMain& Main) {
    return Main.Dock.Locked;
}
bool IsOnTop(const frmMain& Main) {
    return Main.Settings.OnTop;
}
bool IsMovementLocked(const frmMain& Main) {
    return Main.Settings.PreventWindowMovement;
}
bool IsSuspended(const frmMain& Main) {
    return Main.Dock.Suspended;
}
bool MayDock(const frmMain& Main) {
    return !Main.Dock.Maximized;
}
void mnuProgramSettings_Click(frmMain& Main) {
    ShowSettingsDialog(Main, SettingsPage::FrameGeneral);
}
bool IsTransparent(const frmMain& Main) {
    return Main.Settings.Translucent;
}
bool IsMaximized(const frmMain& Main) {
    return Main.Dock.Maximized;
}
bool IsNotMaximized(const frmMain& Main) {
    return !Main.Dock.Maximized;
}

template <auto Add> void AddOnWorkspace(frmMain& Main) {
    Add(Main, OnWorkspace());
}
bool MayAdd(const frmMain& Main) {
    return CanAddTo(Main, OnWorkspace());
}

constexpr MenuEntry addLines[] = {
    {"mnuAddFileLink", "&File...", "Ctrl+F", &AddOnWorkspace<&AddFileLink>, &MayAdd},
    {"mnuAddFolderLink", "F&older...", "Ctrl+D", &AddOnWorkspace<&AddFolderLink>, &MayAdd},
    {"mnuAddLink", "&Web Address...", "Ctrl+W", &AddOnWorkspace<&AddWebLink>, &MayAdd},
    {"mnuNewCommand", "&Command...", "Ctrl+O", &AddOnWorkspace<&AddCommand>, &MayAdd},
    MenuSeparator,
    {"mnuPaste", "&Paste Shortcuts...", "Ctrl+V", &mnuPaste_Click, &CanPaste},
};

void mnuCalculator_Click(frmMain& Main) {
    ShowPicJumpTo(Main, "=", true, false);
}

std::vector<MenuItem> RecentItems(const frmMain& Main) {
    std::vector<MenuItem> items;
    for (const auto& recent : Main.Links.Recent) items.push_back({recent.Caption, recent.Tag});
    if (items.empty()) items.push_back({Tr(Main, "[No Recent Shortcuts]"), -1, false});
    return items;
}
void mnuRecentShortcut_Click(frmMain& Main, int Shortcut) {
    StartShortcut(Main, Shortcut, false, "", false, false);
}

constexpr MenuEntry recentLines[] = {
    {.Name = "mnuRecentShortcut", .Items = &RecentItems, .Choose = &mnuRecentShortcut_Click},
};

MenuTable RecentLines() {
    return recentLines;
}

constexpr MenuEntry startLines[] = {
    {"mnuKeyboardLauncher(0)", "&Keyboard Launcher", "Ctrl+J", &mnuKeyboardLauncher_Click},
    {"mnuKeyboardLauncher(1)", "Keyboard Launcher History", "Alt+H", &lblHistory_Click},
    {"mnuCalculator", "Calculator", "=", &mnuCalculator_Click},
    MenuSeparator,
    {"mnuSpeedLaunch", "&Speed Launch", "/", &ShowSpeedLaunch},
    {.Caption = "&Recent Shortcuts", .Children = &RecentLines},
};

constexpr MenuEntry shortcutLines[] = {
    {"mnuSelectShortcuts(0)", "&Select All", "Ctrl+A", &Item<&mnuSelectShortcuts_Click, 0>, &HasShortcuts},
    {"mnuSelectShortcuts(1)", "&Deselect All", "Esc", &Item<&mnuSelectShortcuts_Click, 1>,
     &HasSelectedShortcuts},
    {"mnuSelectShortcuts(2)", "&Invert Selection", "Alt+I", &Item<&mnuSelectShortcuts_Click, 2>,
     &HasShortcuts},
    MenuSeparator,
    {"mnuStartSelected", "Sta&rt Selected", "Alt+R", &mnuStartSelected_Click, &HasSelectedShortcuts},
    {"DeleteSelectedShortcuts", "Remo&ve Shortcuts", "Shift+Delete", &DeleteSelectedShortcuts,
     &MayChangeSelected},
};

constexpr MenuEntry containerLines[] = {
    {"mnuFlipForward", "&Next Container", "Space", &FlipForward, &HasContainers},
    {"mnuFlipBackward", "&Previous Container", "Shift+Space", &FlipBackward, &HasContainers},
    MenuSeparator,
    {"mnuConInvertSelection", "&Invert Selection", "Alt+Shift+I", &mnuConInvertSelection_Click,
     &HasContainers},
    {"mnuConUnselectAll", "&Deselect All", "Esc", &mnuConUnselectAll_Click, &HasSelectedContainers},
};

constexpr MenuEntry arrangeLines[] = {
    {"mnuSortShortcuts(0)", "Sort &Ascending", "Alt+A", &Item<&mnuSortShortcuts_Click, 0>, &MaySortShortcuts},
    {"mnuSortShortcuts(1)", "Sort &Descending", "Alt+D", &Item<&mnuSortShortcuts_Click, 1>,
     &MaySortShortcuts},
    MenuSeparator,
    {"mnuLineSpacing", "&Line Spacing...", "Alt+P", &mnuLineSpacing_Click, &MayArrangeShortcuts},
    {"mnuAlign", "&Snap to Grid", "Alt+G", &mnuAlign_Click, nullptr, &SnapsToGrid},
};

constexpr MenuEntry textLines[] = {
    {"MakeIconsLarger", "&Larger", "Ctrl++", &MakeIconsLarger_Click, &MayChangeSelected},
    {"MakeIconsSmaller", "&Smaller", "Ctrl+-", &MakeIconsSmaller_Click, &MayChangeSelected},
    {"MakeIconsSizeDifferent", "&Other...", "Alt+Z", &MakeIconsSizeDifferent_Click, &MayChangeSelected},
    MenuSeparator,
    {"ToggleBoldFont", "&Bold", "Ctrl+B", &ToggleBoldFont, &MayChangeSelected},
    {"mnuChooseColor", "&Color...", "Alt+Shift+C", &mnuChooseColor_Click, &MayChangeSelected},
};

constexpr MenuEntry positionLines[] = {
    {"mnuDockPos(0)", "&Top", "Alt+Up", &Item<&mnuDockPos_Click, 0>},
    {"mnuDockPos(1)", "&Left", "Alt+Left", &Item<&mnuDockPos_Click, 1>},
    {"mnuDockPos(2)", "&Right", "Alt+Right", &Item<&mnuDockPos_Click, 2>},
    {"mnuDockPos(3)", "&Bottom", "Alt+Down", &Item<&mnuDockPos_Click, 3>},
    MenuSeparator,
    {"mnuCenterWorkspace", "&Center Workspace", "Alt+C", &mnuCenterWorkspace_Click},
    {"mnuPreventWindowMovement", "Loc&k Position", "Ctrl+Shift+L", &mnuPreventWindowMovement_Click, nullptr,
     &IsMovementLocked},
};

constexpr MenuEntry viewLines[] = {
    {"mnuDockNow", "Collapse &Now", "Esc", &mnuDockNow_Click, &MayDock},
    {"mnuSuspendSlideOut", "&Suspend Auto-Collapse", "Ctrl+Shift+U", &mnuSuspendSlideOut_Click, nullptr,
     &IsSuspended},
    {"mnuHideAlterDesk", "&Hide Workspace", "Ctrl+Shift+H", &mnuHideAlterDesk_Click},
    MenuSeparator,
    {"mnuMaximize", "Ma&ximize", "F11", &mnuMaximize_Click, nullptr, nullptr, &IsNotMaximized},
    {"mnuRestore", "Restor&e", "F11", &mnuMaximize_Click, nullptr, nullptr, &IsMaximized},
    {"mnuOnTop", "Keep &On Top", "Ctrl+Shift+T", &mnuOnTop_Click, nullptr, &IsOnTop},
    {"ToggleTransparent", "&Transparent", "F9", &ToggleTransparent, nullptr, &IsTransparent},
};

constexpr MenuEntry helpLines[] = {
    {"mnuHelp", "&Help", "F1", &mnuHelp_Click},
    {"mnuHelpItem", "Command-&line Options", "Shift+F1", &mnuHelpItem_Click},
};

MenuTable HelpLines() {
    return helpLines;
}
MenuTable ViewLines() {
    return viewLines;
}
MenuTable AddLines() {
    return addLines;
}
MenuTable StartLines() {
    return startLines;
}
MenuTable ShortcutLines() {
    return shortcutLines;
}
MenuTable ContainerLines() {
    return containerLines;
}
MenuTable ArrangeLines() {
    return arrangeLines;
}
MenuTable TextLines() {
    return textLines;
}

constexpr MenuEntry workspaceMenu[] = {
    {"mnuNew", "New &Container", "Ctrl+T", &mnuNew_Click},
    {"mnuNewNote", "&Note", "Ctrl+N", &mnuNewNote_Click},
    {.Caption = "New Sh&ortcut", .Children = &AddLines},
    {.Caption = "&Quick Start", .Children = &StartLines},
    MenuSeparator,
    {"mnuUndoRedo(0)", "&Undo", "Ctrl+Z", &Item<&mnuUndoRedo_Click, 0>, &CanUndo},
    {"mnuUndoRedo(1)", "&Redo", "Ctrl+Y", &Item<&mnuUndoRedo_Click, 1>, &CanRedo},
    {"mnuClearUndoRedoBuffer", "Clear Undo Histor&y", "Ctrl+Shift+Delete", &mnuClearUndoRedoBuffer_Click,
     &HasHistory},
    MenuSeparator,
    {.Caption = "S&hortcuts", .Children = &ShortcutLines},
    {.Caption = "Cont&ainers", .Children = &ContainerLines},
    {.Caption = "Arran&ge", .Children = &ArrangeLines},
    {.Caption = "Te&xt", .Children = &TextLines},
    {"mnuRefresh", "Re&fresh", "Shift+F5", &RefreshLinksAndShrinkIcons},
    MenuSeparator,
    {"mnuSave", "&Save", "F8", &mnuSave_Click},
    {"mnuBackup", "&Backup", "Ctrl+F8", &mnuBackup_Click},
    MenuSeparator,
    {.Caption = "&Position", .Children = &PositionMenu},
    {.Caption = "&View", .Children = &ViewLines},
    {"mnuLock", "Loc&k", "Ctrl+L", &mnuLock_Click, nullptr, &IsLocked},
    {"mnuProgramSettings", "S&ettings...", "F3", &mnuProgramSettings_Click},
    MenuSeparator,
    {"mnuIgnoreChanges", "&Ignore Changes", "Ctrl+Shift+F8", &RestartIgnoringChanges},
    {"mnuClearWorkspace", "Clear &Workspace", "Ctrl+Shift+F4", &mnuClearWorkspace_Click},
    {"mnuLoadDefaults", "Load &Defaults", "Ctrl+Shift+F5", &mnuLoadDefaults_Click},
    {.Caption = "He&lp", .Children = &HelpLines},
    MenuSeparator,
    {"mnuExitMainWin", "Exi&t", "Alt+F4", &mnuExitMainWin_Click},
};

} // namespace

MenuTable PositionMenu() {
    return positionLines;
}

MenuTable WorkspaceMenu() {
    return workspaceMenu;
}

} // namespace quill
