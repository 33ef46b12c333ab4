#include "appearance/settings_dialog.h"

#include "appearance/frmSettings.h"
#include "dock/docking.h"
#include "dock/hotkey.h"
#include "platform/dialogs.h"

namespace quill {
namespace {

// A press of the hotkey is not for a workspace that has its settings open.
class HotkeyHeldBack {
public:
    explicit HotkeyHeldBack(DockState& dock) : dock_(dock), before_(dock.JustUsedHotKey) {
        dock_.JustUsedHotKey = true;
    }
    ~HotkeyHeldBack() { dock_.JustUsedHotKey = before_; }
    HotkeyHeldBack(const HotkeyHeldBack&) = delete;
    HotkeyHeldBack& operator=(const HotkeyHeldBack&) = delete;

private:
    DockState& dock_;
    bool before_;
};

// The program that had the key may have gone meanwhile.
void AskForHotkeyAgain(frmMain& Main) {
    const auto& settings = Main.Settings;
    if (Main.IsExiting || !settings.GlobalHotkey || !Main.Dock.HotkeyRefused) return;
    RegisterGlobalHotkey(Main, settings.GlobalHotkeyChar, settings.GlobalHotkeyMod);
}

} // namespace

void ShowSettingsDialog(frmMain& Main, SettingsPage page, bool emphasizeHotkey) {
    if (Main.IsLoading || Main.IsExiting) return;
    {
        const DialogPause pause(Main);
        const HotkeyHeldBack held(Main.Dock);
        frmSettings dialog(Main, page);
        if (emphasizeHotkey) dialog.EmphasizeGlobalHotkey();
        Main.P.Dialogs.Show(dialog);
    }
    AskForHotkeyAgain(Main);
}

} // namespace quill
