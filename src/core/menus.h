// Menus: one table a menu, in the order in which its items are shown. A line is a name, a caption with its
// mnemonic, a key, and functions that say whether it shows, is enabled and checked, and what it does; or it
// has lines of its own below it. What is not built has no line. The tables stand in core/menu_*.cpp; what the
// keys do without a menu stands in core/keyboard_focus.cpp, and both say the same.
#pragma once

#include "core/frmMain.h"
#include "platform/questions.h"

#include <span>
#include <string_view>

namespace quill {

struct MenuEntry;
using MenuTable = std::span<const MenuEntry>;

// A line that is made when the menu is: a shortcut's name and what is passed on when it is chosen.
struct MenuItem {
    std::string Caption; // as it stands; "&" is a letter in it
    int Value = -1;
    bool Enabled = true;
};

// Either Click or Children, or Items with Choose, which stand for as many lines; a line with none of them and
// the Caption "-" is a separator. Items of one command with an index are named like "mnuUndoRedo(1)".
struct MenuEntry {
    std::string_view Name{};    // "mnuSave"; empty for a separator
    std::string_view Caption{}; // English, through Tr when shown
    std::string_view Key{};     // shown beside it
    void (*Click)(frmMain&) = nullptr;
    bool (*Enabled)(const frmMain&) = nullptr; // null: always
    bool (*Checked)(const frmMain&) = nullptr; // null: not checkable
    bool (*Visible)(const frmMain&) = nullptr; // null: always
    MenuTable (*Children)() = nullptr;         // lines of its sub-menu
    std::vector<MenuItem> (*Items)(const frmMain&) = nullptr;
    void (*Choose)(frmMain&, int value) = nullptr;
};

enum class MenuName { Workspace, Container, Shortcut, Picture, Tray, Position };

// The table of a menu; empty for those that are not built.
MenuTable TableOf(MenuName menu);
// Shows the menu and runs what was chosen. The container, shortcut or picture is the current one at that
// moment, whatever becomes current while the menu is open. What is expanded stays so behind its own menu.
void PopupMenu(frmMain& Main, MenuName menu, Point screen);

// A line with a command, wherever it stands; Entry is null when nothing has that name.
struct FoundEntry {
    MenuName Menu = MenuName::Workspace;
    const MenuEntry* Entry = nullptr;
};
FoundEntry FindEntry(std::string_view name);
const MenuEntry* EntryByName(std::string_view name);
bool MayRun(const frmMain& Main, const MenuEntry& entry); // it shows and is enabled
// The lines of a menu that the desktop itself shows; offered holds what stands behind each id.
std::vector<MenuLine> LinesOfMenu(const frmMain& Main, MenuName menu, std::vector<OfferedLine>& offered);
void RunOffered(frmMain& Main, const OfferedLine& line);

} // namespace quill
