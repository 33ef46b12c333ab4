// frmSettings: the one dialog that edits the settings. It holds nothing of its own: on opening the settings
// go into its controls, and nothing changes until they are applied. Applying takes effect on the running
// workspace at once; what the controls did not change stays as it is, also what they can't show.
#pragma once

#include "appearance/settings_controls.h"

#include <optional>
#include <string>

namespace quill {

// The hotkey as the settings hold it.
struct HotkeyChoice {
    bool On = false;
    std::string Character;
    int Modifiers = 0;
    bool operator==(const HotkeyChoice&) const = default;
};

class frmSettings {
public:
    frmSettings(frmMain& main, SettingsPage page);
    frmSettings(const frmSettings&) = delete;
    frmSettings& operator=(const frmSettings&) = delete;

    SettingsValues Controls; // what the form fills in; after each change it calls Option_Click

    std::string Title() const;
    SettingsPage Page() const { return page_; }            // to be shown
    bool cmdApplyEnabled() const { return applyEnabled_; } // something has changed since it was applied last
    bool txtGlobalHotkeyVisible() const;                   // the hotkey that the controls show is refused
    bool IsHotkeyEmphasized() const { return emphasized_; }

    // What a person does.
    void Option_Click() { applyEnabled_ = true; }
    void picDockBorder_Click();
    void cmdApply_Click();
    bool cmdOK_Click(); // true: the dialog closes; a refused hotkey keeps it open
    // Brings the hotkey's page forward and marks the hotkey.
    void EmphasizeGlobalHotkey();

    const frmMain& Workspace() const { return Main; } // for the form's texts

private:
    void Apply();
    SettingsRecord Wanted() const;
    void AskForShrinkSize(const SettingsRecord& former);
    void TakeHotkey(const HotkeyChoice& wanted);
    void ShowSettings();
    void ShowHotkey(const HotkeyChoice& wanted);

    frmMain& Main;
    SettingsPage page_;
    SettingsValues before_; // what the controls held when they were last filled
    std::optional<HotkeyChoice> refused_;
    bool applyEnabled_ = false;
    bool emphasized_ = false;
};

} // namespace quill
