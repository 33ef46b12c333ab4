// QtTray: the tray port on the toolkit's tray icon, which speaks both of the languages that trays have. The
// icon is made when there is a tray to show it.
#pragma once

#include "platform/tray.h"
#include "qt/core/display.h"

#include <memory>

namespace quill {

class QtTray : public Tray {
public:
    QtTray(const Attachment& attached, const DisplayHolder& display);
    ~QtTray() override;

    void ShowTrayIcon(const std::string& tip) override;
    void ShellTrayRemove() override;

private:
    class Icon;
    const Attachment& attached_;
    const DisplayHolder& display_;
    std::unique_ptr<Icon> icon_;
};

} // namespace quill
