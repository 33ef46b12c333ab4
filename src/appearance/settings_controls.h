// The controls of the settings dialog as one table: page, kind, caption, tip, and how a value stands in the
// settings. Opening, applying, the form and the tests walk it; an option more is a line more. Knows nothing
// of what a change does to the workspace.
#pragma once

#include "appearance/settings_dialog.h"
#include "core/settings.h"

#include <span>
#include <string>

namespace quill {

// What the controls hold. A choice is the place in its list, -1 for a value that the list does not offer.
struct SettingsValues {
    SettingsRecord chkSettings; // its truth values are the check boxes; the other fields mean nothing
    int CboTitleBar = 0, CboQuicklyUnlock = 0;
    int OptSide = 0, OptMiniDock = 0;
    int cboAutoExpand = 0, OptionEffect = 0, cboTips = 0, cboShrinkSize = 0;
    int ComboMods = 0, cboSpacebar = 0;
    int CboSearchEngines = 0; // 0: none of those that are offered
    std::string txtOpacity, txtHotkey, txtWebSearch, txtKBLauncherHistory;
    Color picDockBorder = 0;
};

enum class SettingsControlKind {
    CheckBox, // one element of chkSettings
    List,     // opens, one entry is chosen
    Options,  // all entries stand side by side, one is on
    TextBox,
    ColorBox,
    Warning, // no value: shown while the hotkey is refused
};

struct SettingsEntry {
    const char* Caption;
    const char* Tip = "";
};
using SettingsEntries = std::span<const SettingsEntry>;

// How a choice stands in the settings; only a place of the list is ever written. One that only fills another
// control has neither.
using ReadChoice = int (*)(const SettingsRecord& settings);
using WriteChoice = void (*)(SettingsRecord& settings, int place);

struct SettingsControl {
    SettingsPage Page = SettingsPage::FrameGeneral;
    SettingsControlKind Kind = SettingsControlKind::CheckBox;
    const char* Name = "chkSettings";
    const char* Caption = ""; // "&" before its letter; a list's label
    const char* Tip = "";
    bool Beside = false; // stands beside the control before it, and can be used while that check box is on
    const char* Spoken = "";               // name for who can't see what it stands beside
    bool SettingsRecord::*Check = nullptr; // of a check box
    int SettingsValues::*Choice = nullptr; // of a list and of options
    std::string SettingsValues::*Text = nullptr;
    SettingsEntries Entries{}; // of a list and of options
    ReadChoice Read = nullptr;
    WriteChoice Write = nullptr;
    int TextLimit = 0;                         // characters of a text box
    void (*Follow)(SettingsValues&) = nullptr; // what a change of it does to other controls
};

struct SettingsPageName {
    SettingsPage Page;
    const char* Name;
    const char* Caption;
};

std::span<const SettingsPageName> SettingsPages();   // in the order of the tabs
std::span<const SettingsControl> SettingsControls(); // page by page, from top to bottom
SettingsEntries EntriesOf(const SettingsControl& control);

SettingsValues ReadControls(const SettingsRecord& settings);
// What differs from before goes into the settings; a text that is no number keeps the old one.
void WriteControls(const SettingsValues& now, const SettingsValues& before, SettingsRecord& settings);

} // namespace quill
