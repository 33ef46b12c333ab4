// The container's menu. Its lines are about the current container, or about all that are selected.
#include "containers/arrange.h"
#include "containers/commands.h"
#include "containers/fold.h"
#include "containers/gestures.h"
#include "containers/lock.h"
#include "containers/selection.h"
#include "core/menu_tables.h"
#include "core/objects.h"
#include "notes/notes.h"
#include "persistence/save.h"
#include "shortcuts/add_commands.h"
#include "shortcuts/launch.h"
#include "shortcuts/paste.h"

namespace quill {
namespace {

int Current(const frmMain& Main) {
    return Main.Group.CurrentContainer;
}

bool IsTile(const frmMain& Main) {
    return HasContainer(Main) && IsShrunk(Main, Current(Main));
}
bool IsNoTile(const frmMain& Main) {
    return HasContainer(Main) && !IsShrunk(Main, Current(Main));
}
bool CanFold(const frmMain& Main) {
    return IsNoTile(Main) && !IsFolded(Main, Current(Main));
}
bool CanUnfold(const frmMain& Main) {
    return IsNoTile(Main) && IsFolded(Main, Current(Main));
}
bool ClosesByItself(const frmMain& Main) {
    const auto& group = Main.Group;
    return HasContainer(Main) &&
           (group.ExpandedContainer == Current(Main) || group.AutoFoldContainerIndex == Current(Main));
}
bool NoteShows(const frmMain& Main) {
    return IsNoTile(Main) && Main.ConView(Current(Main)).PinPressed;
}
bool NoteHides(const frmMain& Main) {
    return IsNoTile(Main) && !Main.ConView(Current(Main)).PinPressed;
}
bool IsNoReminder(const frmMain& Main) {
    return HasContainer(Main) && !Main.Con(Current(Main)).IsReminder();
}
bool HoldsShortcuts(const frmMain& Main) {
    return HasContainer(Main) && GetContainerShortcutCount(Main, Current(Main)) > 0;
}
bool ShowsShortcuts(const frmMain& Main) {
    return CanFold(Main) && HoldsShortcuts(Main);
}

// Something that the current container can be a measure for.
bool HasOthersSelected(const frmMain& Main) {
    if (!HasContainer(Main)) return false;
    for (const int index : SelectedContainers(Main))
        if (index != Current(Main)) return true;
    return false;
}

bool MayMoveOthers(const frmMain& Main) {
    return HasOthersSelected(Main) && MayMoveContainers(Main);
}
bool MayMoveThese(const frmMain& Main) {
    return HasContainer(Main) && MayMoveContainers(Main);
}
bool MaySetSpacing(const frmMain& Main) {
    return HasContainer(Main) && MayArrangeShortcuts(Main);
}

void FoldCurrent(frmMain& Main) {
    lblFoldUnfold_Click(Main, Current(Main));
}
void ToggleTile(frmMain& Main) {
    shapeShrink_Click(Main, Current(Main));
}
void ToggleNote(frmMain& Main) {
    lblPinNote_Click(Main, Current(Main));
    SaveContainers(Main, true);
}
void mnuStartAll_Click(frmMain& Main) {
    StartAllInContainer(Main, Current(Main));
}

// For commands that serve workspace and container: now it is the container's turn.
template <auto Command> void InContainerOnly(frmMain& Main) {
    Main.Group.ContainerHasFocus = true;
    Command(Main);
}

template <auto Add> void AddHere(frmMain& Main) {
    Add(Main, CurrentContainerFrame(Main));
}
bool MayAdd(const frmMain& Main) {
    return HasContainer(Main) && CanAddTo(Main, CurrentContainerFrame(Main));
}
bool MayPaste(const frmMain& Main) {
    return MayAdd(Main) && CanPaste(Main);
}

constexpr MenuEntry addLines[] = {
    {"mnuConFileShortcut", "&File...", "Ctrl+F", &AddHere<&AddFileLink>, &MayAdd},
    {"mnuConDirectoryShortcut", "F&older...", "Ctrl+D", &AddHere<&AddFolderLink>, &MayAdd},
    {"mnuConWebURL", "&Web Address...", "Ctrl+W", &AddHere<&AddWebLink>, &MayAdd},
    {"mnuConCommand", "&Command...", "Ctrl+O", &AddHere<&AddCommand>, &MayAdd},
    MenuSeparator,
    {"mnuPasteToContainer", "Paste to Container", "Ctrl+Shift+V", &mnuPasteToContainer_Click, &MayPaste},
};

constexpr MenuEntry arrangeLines[] = {
    {"mnuAlignContainers(0)", "Align &Top", "Alt+T", &Item<&mnuAlignContainers_Click, 0>, &MayMoveOthers},
    {"mnuAlignContainers(1)", "Align &Left", "Alt+L", &Item<&mnuAlignContainers_Click, 1>, &MayMoveOthers},
    {"mnuAlignContainers(2)", "&Horizontal Space Evenly", "Alt+E", &Item<&mnuAlignContainers_Click, 2>,
     &MayMoveThese},
    MenuSeparator,
    {"mnuLineSpacing", "Line &Spacing...", "Alt+P", &InContainerOnly<&mnuLineSpacing_Click>, &MaySetSpacing},
    {"mnuAlign", "Snap to &Grid", "Alt+G", &mnuAlign_Click, nullptr, &SnapsToGrid},
    MenuSeparator,
    {"mnuConInvertSelection", "&Invert Selection", "Alt+Shift+I", &mnuConInvertSelection_Click},
    {"mnuConUnselectAll", "&Deselect All", "Esc", &mnuConUnselectAll_Click, &HasSelectedContainers},
};

constexpr MenuEntry shortcutLines[] = {
    {"mnuSelectShortcuts(0)", "&Select All", "Ctrl+A", &InContainerOnly<&Item<&mnuSelectShortcuts_Click, 0>>,
     &ShowsShortcuts},
    {"mnuSelectShortcuts(1)", "&Deselect All", "Esc", &InContainerOnly<&Item<&mnuSelectShortcuts_Click, 1>>,
     &HasSelectedShortcuts},
    {"mnuSelectShortcuts(2)", "&Invert Selection", "Alt+I",
     &InContainerOnly<&Item<&mnuSelectShortcuts_Click, 2>>, &ShowsShortcuts},
};

MenuTable AddLines() {
    return addLines;
}
MenuTable ArrangeLines() {
    return arrangeLines;
}
MenuTable ShortcutLines() {
    return shortcutLines;
}

constexpr MenuEntry containerMenu[] = {
    {"mnuConFold", "&Fold", "Alt+F", &FoldCurrent, nullptr, nullptr, &CanFold},
    {"mnuConUnfold", "Un&fold", "Alt+F", &FoldCurrent, nullptr, nullptr, &CanUnfold},
    {"mnuConShrink", "S&hrink", "Alt+X", &ToggleTile, nullptr, nullptr, &IsNoTile},
    {"mnuConExpand", "E&xpand", "Alt+X", &ToggleTile, nullptr, nullptr, &IsTile},
    {"mnuConKeepExpanded", "&Keep Expanded", "Alt+K", &mnuConKeepExpanded_Click, &ClosesByItself},
    MenuSeparator,
    {"mnuConSwitchPlaces", "S&witch", "Alt+W", &mnuConSwitchPlaces_Click, &MayMoveThese},
    {"mnuSetContainerSize", "Match &Size", "Alt+M", &mnuSetContainerSize_Click, &MayMoveOthers},
    {.Caption = "A&dd Shortcut", .Children = &AddLines},
    {.Caption = "&Arrange", .Children = &ArrangeLines},
    {.Caption = "Shortcu&ts", .Children = &ShortcutLines},
    MenuSeparator,
    {"mnuConShowNote", "Show &Note", "Alt+N", &ToggleNote, &IsNoReminder, nullptr, &NoteHides},
    {"mnuConHideNote", "Hide &Note", "Alt+N", &ToggleNote, &IsNoReminder, nullptr, &NoteShows},
    {"mnuStartAll", "&Start All", "Alt+S", &mnuStartAll_Click, &HoldsShortcuts},
    MenuSeparator,
    {"mnuConRemove", "&Remove Containers", "Ctrl+Delete", &mnuConRemove_Click, &HasContainer},
    {"mnuConProperties", "&Properties", "Alt+Enter", &mnuConProperties_Click, &HasContainer},
};

} // namespace

MenuTable ContainerMenu() {
    return containerMenu;
}

} // namespace quill
