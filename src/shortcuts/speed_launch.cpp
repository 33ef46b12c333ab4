#include "shortcuts/speed_launch.h"

#include "core/caption.h"
#include "core/objects.h"
#include "core/tr.h"
#include "keyboard/jump_to.h"
#include "platform/windows.h"
#include "shortcuts/launch.h"

#include <algorithm>

namespace quill {
namespace {

// Some of it, on any monitor. A docked workspace is beyond the edge, or on its way there.
bool LiesOnScreen(const frmMain& Main) {
    const auto monitors = Main.P.Windows.Monitors();
    return Main.Dock.DockPosition == 0 && std::ranges::any_of(monitors, [&](const Monitor& monitor) {
               return monitor.Place.Intersects(Main.View.Window);
           });
}

void TellStart(frmMain& Main, const std::string& name) {
    ShowPassingCaption(Main, LiesOnScreen(Main) ? name : Tr(Main, "Speed Launch: %1", name));
}

} // namespace

int ShortcutInSlot(const frmMain& Main, int digit) {
    if (digit < 1 || digit > SpeedLaunchSlots) return -1;
    for (const auto& entry : Live(Main.Shortcuts))
        if (Main.Link(entry.Index).SpeedLaunch == digit) return entry.Index;
    return -1;
}

// What was called off, refused or has failed is not told as started; nor what only waits for a server.
bool RunSpeedLaunchSlot(frmMain& Main, int digit) {
    const int index = ShortcutInSlot(Main, digit);
    if (index == -1) return false;
    const std::string name = Main.Link(index).FullCaption;
    const auto before = Main.Links.Starts;
    StartShortcut(Main, index, false, "", false, true);
    const bool started = Main.Links.Starts != before && !Main.IsExiting;
    if (started && Main.View.Visible) TellStart(Main, name);
    return true;
}

bool IsSpeedLaunchKey(int code) {
    return code >= '1' && code < '1' + SpeedLaunchSlots;
}

bool SpeedLaunchKey(frmMain& Main, int code) {
    if (!IsSpeedLaunchKey(code) || !RunSpeedLaunchSlot(Main, code - '0')) return false;
    if (!Main.IsExiting && IsJumpToOpen(Main)) SetSearchText(Main, "", 0);
    return true;
}

std::vector<int> SendToShortcuts(const frmMain& Main) {
    std::vector<int> found;
    for (const auto& entry : Live(Main.Shortcuts))
        if (Main.Link(entry.Index).SpeedLaunch > 0) found.push_back(entry.Index);
    return found;
}

} // namespace quill
