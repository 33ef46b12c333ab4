// The tables of the menus, and what several of them share.
#pragma once

#include "core/menus.h"

namespace quill {

MenuTable WorkspaceMenu();
MenuTable ContainerMenu();
MenuTable ShortcutMenu();
MenuTable TrayMenu();
MenuTable PositionMenu(); // a part of the workspace's menu that has a key of its own

inline constexpr MenuEntry MenuSeparator{.Caption = "-"};

// One item of a command that is told its index.
template <auto Command, int Index> void Item(frmMain& Main) {
    Command(Main, Index);
}

bool HasContainer(const frmMain& Main);         // the current one
bool HasShortcut(const frmMain& Main);          // the current one
bool HasSelectedShortcuts(const frmMain& Main); // anywhere
bool MayChangeSelected(const frmMain& Main);    // some are, and the lock does not hold them
bool MayArrangeShortcuts(const frmMain& Main);
bool HasSelectedContainers(const frmMain& Main);
bool HasContainers(const frmMain& Main);
bool SnapsToGrid(const frmMain& Main);

} // namespace quill
