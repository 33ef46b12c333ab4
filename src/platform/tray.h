// Tray: the icon in the desktop's notification area, one a program. What is done to it comes back as
// PicTray_MouseUp, TrayMenu_Lines and TrayMenu_Click (core/handlers.h); the desktop shows the menu itself,
// where and how its tray does.
#pragma once

#include <string>

namespace quill {

class Tray {
public:
    virtual ~Tray() = default;

    // Shows the icon with this tip, or changes the tip. With no tray on the desktop nothing shows; the icon
    // comes when a tray does.
    virtual void ShowTrayIcon(const std::string& tip) = 0;
    virtual void ShellTrayRemove() = 0;
};

} // namespace quill
