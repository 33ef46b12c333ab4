// The fake computer's notification area.
#pragma once

#include "platform/tray.h"

#include <string>

namespace quill::fake {

class FakeTray : public Tray {
public:
    void ShowTrayIcon(const std::string& tip) override { Shown = true, Tip = tip; }
    void ShellTrayRemove() override { Shown = false; }

    bool Shown = false;
    std::string Tip;
};

} // namespace quill::fake
