// The menu of the icon in the notification area.
#include "core/menu_tables.h"
#include "core/start.h"
#include "dock/dock_commands.h"

namespace quill {
namespace {

bool IsNotHidden(const frmMain& Main) {
    return !Main.Dock.Hidden;
}

constexpr MenuEntry trayMenu[] = {
    {"mnuTrayShow", "&Show Workspace", {}, &CallForward},
    {"mnuCenterWorkspace2", "&Center Workspace", {}, &mnuCenterWorkspace_Click},
    {"mnuHideAlterDesk2", "&Hide Workspace", {}, &mnuHideAlterDesk_Click, &IsNotHidden},
    MenuSeparator,
    {"mnuExitApp", "Exi&t", {}, &mnuExitApp_Click},
};

} // namespace

MenuTable TrayMenu() {
    return trayMenu;
}

} // namespace quill
