#include "dock/tray_icon.h"

#include "core/frmMain.h"
#include "core/menus.h"
#include "dock/dock_commands.h"
#include "platform/tray.h"

namespace quill {

void ShowTrayIcon(frmMain& Main, bool show) {
    if (show)
        Main.P.Tray.ShowTrayIcon(std::string(ProgramName) + " " + ProgramVersion);
    else
        ShellTrayRemove(Main);
}

void ShellTrayRemove(frmMain& Main) {
    Main.P.Tray.ShellTrayRemove();
}

void PicTray_MouseUp(frmMain& Main, MouseButton button) {
    if (Main.IsLoading || Main.IsExiting || button != MouseButton::Left) return;
    CallForward(Main);
}

std::vector<MenuLine> TrayMenu_Lines(frmMain& Main) {
    Main.Dock.TrayLines.clear();
    if (Main.IsLoading || Main.IsExiting) return {};
    return LinesOfMenu(Main, MenuName::Tray, Main.Dock.TrayLines);
}

void TrayMenu_Click(frmMain& Main, int id) {
    const auto& lines = Main.Dock.TrayLines;
    if (Main.IsExiting || id < 0 || static_cast<std::size_t>(id) >= lines.size()) return;
    RunOffered(Main, lines[static_cast<std::size_t>(id)]);
}

} // namespace quill
