#include "core/menus.h"

#include "containers/lock.h"
#include "containers/selection.h"
#include "core/menu_tables.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"

namespace quill {
namespace {

bool IsSeparator(const MenuEntry& entry) {
    return !entry.Click && !entry.Children && !entry.Items;
}

bool Shows(const frmMain& Main, const MenuEntry& entry) {
    return !entry.Visible || entry.Visible(Main);
}

using Offered = std::vector<OfferedLine>;
std::vector<MenuLine> LinesOf(const frmMain& Main, MenuTable table, Offered& offered);

MenuLine SubMenu(const frmMain& Main, const MenuEntry& entry, Offered& offered) {
    MenuLine line;
    line.Caption = Tr(Main, entry.Caption);
    line.Children = LinesOf(Main, entry.Children(), offered);
    line.Enabled = !line.Children.empty() && (!entry.Enabled || entry.Enabled(Main));
    return line;
}

MenuLine CommandLine(const frmMain& Main, const MenuEntry& entry, Offered& offered) {
    MenuLine line;
    line.Caption = Tr(Main, entry.Caption);
    line.Key = entry.Key;
    line.Enabled = !entry.Enabled || entry.Enabled(Main);
    line.Checkable = entry.Checked != nullptr;
    line.Checked = entry.Checked && entry.Checked(Main);
    line.Id = static_cast<int>(offered.size());
    offered.push_back({&entry});
    return line;
}

// No name of the person's makes a mnemonic, or a key behind a tab.
std::string LetterByLetter(const std::string& caption) {
    std::string text;
    for (const char letter : caption) {
        text += static_cast<unsigned char>(letter) < ' ' ? ' ' : letter;
        if (letter == '&') text += letter;
    }
    return text;
}

void AddItems(const frmMain& Main, const MenuEntry& entry, Offered& offered, std::vector<MenuLine>& lines) {
    for (const auto& item : entry.Items(Main)) {
        MenuLine& line = lines.emplace_back();
        line.Caption = LetterByLetter(item.Caption);
        line.Enabled = item.Enabled;
        line.Id = static_cast<int>(offered.size());
        offered.push_back({&entry, item.Value});
    }
}

// Separators stand only between lines that show.
std::vector<MenuLine> LinesOf(const frmMain& Main, MenuTable table, Offered& offered) {
    std::vector<MenuLine> lines;
    for (const auto& entry : table) {
        if (!Shows(Main, entry)) continue;
        if (entry.Items)
            AddItems(Main, entry, offered, lines);
        else if (!IsSeparator(entry))
            lines.push_back(entry.Children ? SubMenu(Main, entry, offered)
                                           : CommandLine(Main, entry, offered));
        else if (!lines.empty() && lines.back().Caption != "-")
            lines.emplace_back().Caption = entry.Caption;
    }
    while (!lines.empty() && lines.back().Caption == "-") lines.pop_back();
    return lines;
}

// What the menu is about stays the current one: the mouse and the clock go on while it is open. Nothing that
// died meanwhile is replaced by something else.
class Subject {
public:
    explicit Subject(const frmMain& Main)
        : container_(Main.Group.CurrentContainer), shortcut_(Main.Links.CurrentShortcut) {}
    void Restore(frmMain& Main) const {
        Main.Group.CurrentContainer = IsLive(Main.Containers, container_) ? container_ : -1;
        Main.Links.CurrentShortcut = IsLive(Main.Shortcuts, shortcut_) ? shortcut_ : -1;
    }

private:
    int container_, shortcut_;
};

int AskMenu(frmMain& Main, const std::vector<MenuLine>& lines, MenuName menu, Point screen) {
    const DialogPause pause(Main);
    if (menu == MenuName::Container) Main.Group.HoldExpanded = true;
    const int chosen = Main.P.Questions.PopupMenu(lines, screen);
    if (menu == MenuName::Container) Main.Group.HoldExpanded = false;
    return chosen;
}

const MenuEntry* FindIn(MenuTable table, std::string_view name) {
    for (const auto& entry : table) {
        if (entry.Click && entry.Name == name) return &entry;
        const auto* below = entry.Children ? FindIn(entry.Children(), name) : nullptr;
        if (below) return below;
    }
    return nullptr;
}

} // namespace

MenuTable TableOf(MenuName menu) {
    switch (menu) {
    case MenuName::Workspace:
        return WorkspaceMenu();
    case MenuName::Container:
        return ContainerMenu();
    case MenuName::Shortcut:
        return ShortcutMenu();
    case MenuName::Tray:
        return TrayMenu();
    case MenuName::Position:
        return PositionMenu();
    default:
        return {};
    }
}

std::vector<MenuLine> LinesOfMenu(const frmMain& Main, MenuName menu, Offered& offered) {
    return LinesOf(Main, TableOf(menu), offered);
}

void PopupMenu(frmMain& Main, MenuName menu, Point screen) {
    Offered offered;
    const auto lines = LinesOf(Main, TableOf(menu), offered);
    if (lines.empty()) return;
    const Subject subject(Main);
    const int chosen = AskMenu(Main, lines, menu, screen);
    if (chosen < 0 || Main.IsExiting) return;
    subject.Restore(Main);
    RunOffered(Main, offered[static_cast<std::size_t>(chosen)]);
}

void RunOffered(frmMain& Main, const OfferedLine& line) {
    if (!MayRun(Main, *line.Entry)) return;
    if (line.Entry->Choose)
        line.Entry->Choose(Main, line.Value);
    else
        line.Entry->Click(Main);
}

FoundEntry FindEntry(std::string_view name) {
    for (const auto menu : {MenuName::Workspace, MenuName::Container, MenuName::Shortcut})
        if (const auto* entry = FindIn(TableOf(menu), name)) return {menu, entry};
    return {};
}

const MenuEntry* EntryByName(std::string_view name) {
    return FindEntry(name).Entry;
}

bool MayRun(const frmMain& Main, const MenuEntry& entry) {
    return Shows(Main, entry) && (!entry.Enabled || entry.Enabled(Main));
}

bool HasContainer(const frmMain& Main) {
    return IsLive(Main.Containers, Main.Group.CurrentContainer);
}

bool HasShortcut(const frmMain& Main) {
    return IsLive(Main.Shortcuts, Main.Links.CurrentShortcut);
}

bool HasSelectedShortcuts(const frmMain& Main) {
    return !Main.Links.SelectedShortcuts.empty();
}

bool MayChangeSelected(const frmMain& Main) {
    return HasSelectedShortcuts(Main) && MayMoveShortcuts(Main);
}

bool MayArrangeShortcuts(const frmMain& Main) {
    return MayMoveShortcuts(Main);
}

bool HasSelectedContainers(const frmMain& Main) {
    return GetSelectedContainersCount(Main) > 0;
}

bool HasContainers(const frmMain& Main) {
    return LiveContainers(Main) > 0;
}

bool SnapsToGrid(const frmMain& Main) {
    return Main.Dock.Align;
}

} // namespace quill
