#include "dock/foreground.h"

#include "dock/docking.h"
#include "platform/windows.h"

namespace quill {
namespace {

constexpr int paleness = 4; // a part in so many of the fore colour, over the back colour

// Between the workspace's back and fore colours, near enough to the former that the caption stays readable.
Color Between(Color back, Color fore) {
    const auto mixed = [](int one, int other) { return one + (other - one) / paleness; };
    return Rgb(mixed(RedOf(back), RedOf(fore)), mixed(GreenOf(back), GreenOf(fore)),
               mixed(BlueOf(back), BlueOf(fore)));
}

void PaintTitle(frmMain& Main, bool active, Color ground) {
    auto& view = Main.View;
    const bool same = view.TitleActive == active && view.MoveMeColor == ground;
    if (same && view.CaptionForeColor == view.ForeColor) return;
    view.TitleActive = active;
    view.MoveMeColor = ground;
    view.CaptionForeColor = view.ForeColor;
    Main.Marks.Workspace();
}

} // namespace

bool ForceForeground(frmMain& Main) {
    if (!Main.P.Windows.IsForeground(MainWindow)) Main.P.Windows.SetForegroundWindow(MainWindow);
    return Main.P.Windows.IsForeground(MainWindow);
}

void MakeTitleBarActive(frmMain& Main) {
    PaintTitle(Main, true, Main.View.BackColor);
}

// What a started program was let in front of comes on top again by the setting.
void TitleBarFollowFocus(frmMain& Main) {
    if (!Main.P.Windows.IsForeground(MainWindow))
        return PaintTitle(Main, false, Between(Main.View.BackColor, Main.View.ForeColor));
    MakeTitleBarActive(Main);
    if (Main.Dock.DockPosition == 0) SetWindowOnTop(Main);
}

} // namespace quill
