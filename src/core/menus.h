// Menus: one table a menu, in the order in which its items are shown. A line is a name, a caption with its
// mnemonic, a key, and functions that say whether it shows, is enabled and checked, and what it does. What is
// not built has no line.
#pragma once

#include "core/frmMain.h"
#include "platform/questions.h"

#include <string_view>

namespace quill {

struct MenuEntry {
    std::string_view Name;    // "mnuSave"; empty with Caption "-": a separator
    std::string_view Caption; // English, through Tr when shown
    std::string_view Key;     // shown beside it
    void (*Click)(frmMain&) = nullptr;
    bool (*Enabled)(const frmMain&) = nullptr; // null: always
    bool (*Checked)(const frmMain&) = nullptr; // null: not checkable
    bool (*Visible)(const frmMain&) = nullptr; // null: always
};

enum class MenuName { Workspace, Container, Shortcut, Picture, Tray };

// Shows the menu and runs what was chosen. The container, shortcut or picture is the current one.
void PopupMenu(frmMain& Main, MenuName menu, Point screen);
// The entry of a key, for the key table; null when nothing has it.
const MenuEntry* EntryByName(std::string_view name);

} // namespace quill
