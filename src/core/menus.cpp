#include "core/menus.h"

#include "containers/fold.h"
#include "containers/gestures.h"
#include "containers/lifecycle.h"
#include "containers/measures.h"
#include "containers/shrink.h"
#include "core/objects.h"
#include "core/start.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "notes/notes.h"
#include "persistence/backup.h"
#include "persistence/save.h"
#include "shortcuts/launch.h"

#include <algorithm>
#include <span>

namespace quill {
namespace {

constexpr float stepAside = 300; // twips, about a title row
constexpr int mostSteps = 20;

bool HasContainer(const frmMain& Main) {
    return IsLive(Main.Containers, Main.Group.CurrentContainer);
}
bool HasShortcut(const frmMain& Main) {
    return IsLive(Main.Shortcuts, Main.Links.CurrentShortcut);
}

bool StandsAt(const frmMain& Main, Point corner) {
    for (const auto& row : Live(Main.Containers)) {
        const auto& place = Main.ConView(row.Index).Container.Place;
        if (place.Left == corner.X && place.Top == corner.Y) return true;
    }
    return false;
}

// Where the last press was, but whole, and not exactly over a container that nobody would then see.
void ChooseNewPlace(frmMain& Main) {
    const auto& back = Main.View.picBack.Place;
    const float edge = measures::NewContainerEdge + measures::EdgeGap;
    const float top = Main.View.picMoveMe.Place.Bottom();
    const float right = std::max(0.0F, back.Width - edge), bottom = std::max(top, back.Height - edge);
    Point& place = Main.Group.NewContainerPos;
    place = {std::clamp(place.X, 0.0F, right), std::clamp(place.Y, top, bottom)};
    const Point step{place.X + stepAside > right ? -stepAside : stepAside,
                     place.Y + stepAside > bottom ? -stepAside : stepAside};
    for (int tries = 0; tries < mostSteps && StandsAt(Main, place); ++tries)
        place = {std::clamp(place.X + step.X, 0.0F, right), std::clamp(place.Y + step.Y, top, bottom)};
}

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

bool IsLocked(const frmMain& Main) {
    return Main.Dock.Locked;
}
bool IsOnTop(const frmMain& Main) {
    return Main.Settings.OnTop;
}
bool IsMovementLocked(const frmMain& Main) {
    return Main.Settings.PreventWindowMovement;
}
bool IsMaximized(const frmMain& Main) {
    return Main.Dock.Maximized;
}
bool IsNotMaximized(const frmMain& Main) {
    return !Main.Dock.Maximized;
}

void mnuHelpItem_Click(frmMain& Main) {
    DialogPause pause(Main);
    Main.P.Questions.MsgBox(CommandLineHelp(), BoxInformation, ProgramName);
}

constexpr MenuEntry separator{"", "-", "", nullptr};

constexpr MenuEntry workspaceMenu[] = {
    {"mnuNew", "New &Container", "Ctrl+T", &mnuNew_Click},
    {"mnuNewNote", "&Note", "Ctrl+N", &mnuNewNote_Click},
    separator,
    {"mnuSave", "&Save", "F8", &mnuSave_Click},
    {"mnuBackup", "&Backup", "", &mnuBackup_Click},
    separator,
    {"mnuLock", "&Lock", "Ctrl+L", &mnuLock_Click, nullptr, &IsLocked},
    {"mnuOnTop", "&Keep On Top", "", &mnuOnTop_Click, nullptr, &IsOnTop},
    {"mnuPreventWindowMovement", "Lock &Position", "", &mnuPreventWindowMovement_Click, nullptr,
     &IsMovementLocked},
    {"mnuMaximize", "Ma&ximize", "F11", &mnuMaximize_Click, nullptr, nullptr, &IsNotMaximized},
    {"mnuRestore", "Restor&e", "F11", &mnuMaximize_Click, nullptr, nullptr, &IsMaximized},
    separator,
    {"mnuIgnoreChanges", "&Ignore Changes", "", &RestartIgnoringChanges},
    {"mnuClearWorkspace", "Clea&r Workspace", "", &mnuClearWorkspace_Click},
    {"mnuLoadDefaults", "Load &Defaults", "", &mnuLoadDefaults_Click},
    {"mnuHelpItem", "Command-&line Options", "", &mnuHelpItem_Click},
    separator,
    {"mnuExitMainWin", "E&xit", "Alt+F4", &mnuExitMainWin_Click},
};

int Current(const frmMain& Main) {
    return Main.Group.CurrentContainer;
}
bool CanFold(const frmMain& Main) {
    return HasContainer(Main) && !IsShrunk(Main, Current(Main)) && !IsFolded(Main, Current(Main));
}
bool CanUnfold(const frmMain& Main) {
    return HasContainer(Main) && !IsShrunk(Main, Current(Main)) && IsFolded(Main, Current(Main));
}
bool CanShrink(const frmMain& Main) {
    return HasContainer(Main) && !IsShrunk(Main, Current(Main));
}
bool CanExpand(const frmMain& Main) {
    return HasContainer(Main) && IsShrunk(Main, Current(Main));
}
bool CanKeep(const frmMain& Main) {
    return HasContainer(Main) && Main.Group.ExpandedContainer == Current(Main);
}
bool NoteShows(const frmMain& Main) {
    return CanShrink(Main) && Main.ConView(Current(Main)).PinPressed;
}
bool NoteHides(const frmMain& Main) {
    return CanShrink(Main) && !Main.ConView(Current(Main)).PinPressed;
}
bool IsNoReminder(const frmMain& Main) {
    return !HasContainer(Main) || !Main.Con(Current(Main)).IsReminder();
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

void mnuConKeepExpanded_Click(frmMain& Main) {
    Main.Group.ExpandedContainer = -1;
    Main.Group.AutoFoldContainerIndex = -1;
}

void mnuConRemove_Click(frmMain& Main) {
    const int index = Current(Main);
    if (Main.Settings.ConfirmDelete) {
        DialogPause pause(Main);
        const auto question = Tr(Main, "%1?", Main.ConView(index).ContainerLabel.Caption);
        if (Main.P.Questions.MsgBox(question, BoxYesNo | BoxQuestion, ProgramName) != AnswerYes) return;
        if (Main.IsExiting || !IsLive(Main.Containers, index)) return;
    }
    DeleteContainer(Main, index, false);
    SaveContainers(Main, true);
}

void mnuStartAll_Click(frmMain& Main) {
    StartAllInContainer(Main, Current(Main));
}

constexpr MenuEntry containerMenu[] = {
    {"mnuConFold", "&Fold", "", &FoldCurrent, nullptr, nullptr, &CanFold},
    {"mnuConUnfold", "Un&fold", "", &FoldCurrent, nullptr, nullptr, &CanUnfold},
    {"mnuConShrink", "S&hrink", "", &ToggleTile, nullptr, nullptr, &CanShrink},
    {"mnuConExpand", "E&xpand", "", &ToggleTile, nullptr, nullptr, &CanExpand},
    {"mnuConKeepExpanded", "&Keep Expanded", "", &mnuConKeepExpanded_Click, nullptr, nullptr, &CanKeep},
    separator,
    {"mnuConShowNote", "Show &Note", "", &ToggleNote, &IsNoReminder, nullptr, &NoteHides},
    {"mnuConHideNote", "Hide &Note", "", &ToggleNote, &IsNoReminder, nullptr, &NoteShows},
    separator,
    {"mnuStartAll", "&Start All", "", &mnuStartAll_Click, &HasContainer},
    separator,
    {"mnuConRemove", "&Remove Containers", "", &mnuConRemove_Click, &HasContainer},
};

int Link(const frmMain& Main) {
    return Main.Links.CurrentShortcut;
}
void mnuStart_Click(frmMain& Main) {
    StartShortcut(Main, Link(Main), false, "", false, false);
}
void mnuStartInBackground_Click(frmMain& Main) {
    StartShortcut(Main, Link(Main), true, "", false, true);
}
void mnuStartAdmin_Click(frmMain& Main) {
    StartShortcut(Main, Link(Main), false, "", true, false);
}
void mnuStartWithoutParameters_Click(frmMain& Main) {
    StartShortcut(Main, Link(Main), false, " ", false, false);
}

constexpr MenuEntry shortcutMenu[] = {
    {"mnuStart", "&Start", "Enter", &mnuStart_Click, &HasShortcut},
    {"mnuStartInBackground", "Start in &Background", "", &mnuStartInBackground_Click, &HasShortcut},
    {"mnuStartAdmin", "Run as &administrator", "Ctrl+Enter", &mnuStartAdmin_Click, &HasShortcut},
    {"mnuStartWithoutParameters", "&Override &Parameters Field", "", &mnuStartWithoutParameters_Click,
     &HasShortcut},
};

std::span<const MenuEntry> EntriesOf(MenuName menu) {
    switch (menu) {
    case MenuName::Workspace:
        return workspaceMenu;
    case MenuName::Container:
        return containerMenu;
    case MenuName::Shortcut:
        return shortcutMenu;
    default:
        return {};
    }
}

MenuLine LineOf(const frmMain& Main, const MenuEntry& entry, int id) {
    MenuLine line;
    line.Caption = entry.Click ? Tr(Main, entry.Caption) : std::string(entry.Caption);
    line.Key = entry.Key;
    line.Enabled = !entry.Enabled || entry.Enabled(Main);
    line.Checkable = entry.Checked != nullptr;
    line.Checked = entry.Checked && entry.Checked(Main);
    line.Id = id;
    return line;
}

// Separators stand only between lines that show.
std::vector<MenuLine> LinesOf(const frmMain& Main, std::span<const MenuEntry> entries) {
    std::vector<MenuLine> lines;
    for (std::size_t at = 0; at < entries.size(); ++at) {
        if (entries[at].Visible && !entries[at].Visible(Main)) continue;
        if (!entries[at].Click && (lines.empty() || lines.back().Caption == "-")) continue;
        lines.push_back(LineOf(Main, entries[at], entries[at].Click ? static_cast<int>(at) : -1));
    }
    while (!lines.empty() && lines.back().Caption == "-") lines.pop_back();
    return lines;
}

} // namespace

void PopupMenu(frmMain& Main, MenuName menu, Point screen) {
    const auto entries = EntriesOf(menu);
    const auto lines = LinesOf(Main, entries);
    if (lines.empty()) return;
    int chosen = -1;
    {
        DialogPause pause(Main);
        chosen = Main.P.Questions.PopupMenu(lines, screen);
    }
    if (chosen < 0 || Main.IsExiting) return;
    const auto& entry = entries[static_cast<std::size_t>(chosen)];
    if (!entry.Enabled || entry.Enabled(Main)) entry.Click(Main);
}

const MenuEntry* EntryByName(std::string_view name) {
    for (const auto menu : {MenuName::Workspace, MenuName::Container, MenuName::Shortcut}) {
        const auto entries = EntriesOf(menu);
        const auto found = std::ranges::find(entries, name, &MenuEntry::Name);
        if (found != entries.end()) return &*found;
    }
    return nullptr;
}

} // namespace quill
