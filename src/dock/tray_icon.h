// TrayIcon: the workspace in the notification area. A press brings it forward; the menu is mnuTray.
#pragma once

#include "core/handlers.h"

namespace quill {

void ShowTrayIcon(frmMain& Main, bool show);
void ShellTrayRemove(frmMain& Main);

} // namespace quill
