#include "appearance/frmSettings.h"

#include "containers/layout.h"
#include "containers/lifecycle.h"
#include "core/caption.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "dock/hotkey.h"
#include "dock/tray_icon.h"
#include "persistence/save.h"
#include "platform/dialogs.h"
#include "platform/questions.h"
#include "platform/windows.h"
#include "system/system_info.h"

namespace quill {
namespace {

using S = SettingsRecord;

HotkeyChoice HotkeyOf(const S& settings) {
    return {settings.GlobalHotkey, settings.GlobalHotkeyChar, settings.GlobalHotkeyMod};
}
void SetHotkey(S& settings, const HotkeyChoice& hotkey) {
    settings.GlobalHotkey = hotkey.On;
    settings.GlobalHotkeyChar = hotkey.Character;
    settings.GlobalHotkeyMod = hotkey.Modifiers;
}

// False: it is wanted and refused.
bool HoldHotkey(frmMain& Main, const HotkeyChoice& hotkey) {
    if (hotkey.On) return RegisterGlobalHotkey(Main, hotkey.Character, hotkey.Modifiers);
    UnregisterGlobalHotkey(Main);
    return true;
}

// ---- what a changed setting does at once

void ShowTaskbarEntry(frmMain& Main) {
    Main.P.Windows.SetTaskbarEntry(MainWindow, Main.Settings.ShowInTaskbar);
}
void FollowTrayIcon(frmMain& Main) {
    ShowTrayIcon(Main, Main.Settings.ShowTrayIcon);
}
// The timers that write these lines rest while a dialog is open.
void FollowSystemInfo(frmMain& Main) {
    if (Main.Settings.SystemInfo) {
        StartCPUMonitoring(Main);
        ShowSystemInfo(Main);
    } else {
        StopCPUMonitoring(Main);
    }
    RestoreCaption(Main);
}
void FollowTime(frmMain& Main) {
    ShowTimeLine(Main);
    RestoreCaption(Main);
}

template <auto Field> bool Differs(const S& one, const S& other) {
    return one.*Field != other.*Field;
}

struct Outcome {
    bool (*Differs)(const S& one, const S& other);
    void (*Follow)(frmMain& Main);
};

constexpr Outcome outcomes[] = {
    {&Differs<&S::OnTop>, &SetWindowOnTop},        {&Differs<&S::Translucent>, &ApplyOpacity},
    {&Differs<&S::Opacity>, &ApplyOpacity},        {&Differs<&S::ShowInTaskbar>, &ShowTaskbarEntry},
    {&Differs<&S::ShowTrayIcon>, &FollowTrayIcon}, {&Differs<&S::SystemInfo>, &FollowSystemInfo},
    {&Differs<&S::ShowTime>, &FollowTime},
};

} // namespace

frmSettings::frmSettings(frmMain& main, SettingsPage page) : Main(main), page_(page) {
    if (Main.Dock.HotkeyRefused) refused_ = HotkeyOf(Main.Settings);
    ShowSettings();
}

std::string frmSettings::Title() const {
    return Tr(Main, "Quillmere Settings");
}

void frmSettings::ShowSettings() {
    before_ = Controls = ReadControls(Main.Settings);
}

S frmSettings::Wanted() const {
    S wanted = Main.Settings;
    WriteControls(Controls, before_, wanted);
    return wanted;
}

bool frmSettings::txtGlobalHotkeyVisible() const {
    const auto wanted = HotkeyOf(Wanted());
    return wanted.On && refused_ == wanted;
}

void frmSettings::EmphasizeGlobalHotkey() {
    page_ = SettingsPage::FrameKBNavigation;
    emphasized_ = true;
}

void frmSettings::picDockBorder_Click() {
    const DialogPause pause(Main);
    const auto chosen = Main.P.Dialogs.ChooseColor(Controls.picDockBorder, Tr(Main, "Docking Bar Color"));
    if (!chosen || *chosen == Controls.picDockBorder) return;
    Controls.picDockBorder = *chosen;
    Option_Click();
}

// ---- applying

void frmSettings::cmdApply_Click() {
    if (applyEnabled_) Apply();
}

bool frmSettings::cmdOK_Click() {
    cmdApply_Click();
    return !applyEnabled_ || Main.IsExiting;
}

void frmSettings::Apply() {
    const S former = Main.Settings;
    const S wanted = Wanted();
    applyEnabled_ = emphasized_ = false;
    // Nobody knows yet whether the hotkey can be had.
    Main.Settings = wanted;
    SetHotkey(Main.Settings, HotkeyOf(former));
    for (const auto& outcome : outcomes)
        if (outcome.Differs(former, Main.Settings)) outcome.Follow(Main);
    AskForShrinkSize(former);
    if (Main.IsExiting) return;
    TakeHotkey(HotkeyOf(wanted));
    if (Main.IsExiting) return;
    ResizeForm(Main);
    Main.Marks.Everything();
    SaveWorkspace(Main, true, false);
    ShowSettings();
    if (applyEnabled_) ShowHotkey(HotkeyOf(wanted));
}

void frmSettings::AskForShrinkSize(const S& former) {
    const auto& settings = Main.Settings;
    if (settings.ConShrinkW == former.ConShrinkW && settings.ConShrinkH == former.ConShrinkH) return;
    const DialogPause pause(Main);
    const auto question = Tr(Main, "Change the Shrink Size for existing containers?");
    if (Main.P.Questions.MsgBox(question, BoxYesNo | BoxQuestion, ProgramName) != AnswerYes) return;
    if (Main.IsExiting) return;
    for (std::size_t row = 0; row < Main.Containers.size(); ++row) {
        const int index = static_cast<int>(row);
        if (IsLive(Main.Containers, index))
            SetContainerShrinkSize(Main, index, settings.ConShrinkW, settings.ConShrinkH);
    }
}

// A refused one is not kept: the former works on, and the dialog still has something to apply.
void frmSettings::TakeHotkey(const HotkeyChoice& wanted) {
    const auto former = HotkeyOf(Main.Settings);
    if (wanted == former) return;
    if (HoldHotkey(Main, wanted)) {
        SetHotkey(Main.Settings, wanted);
        refused_.reset();
        return;
    }
    HoldHotkey(Main, former);
    refused_ = wanted;
    applyEnabled_ = true;
    EmphasizeGlobalHotkey();
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, "The Global Hotkey could not be registered since it is already in use. "
                                     "Please select a different one."),
                            BoxOk | BoxWarning, ProgramName);
}

// The controls go on showing the hotkey that is wanted, over the one that holds.
void frmSettings::ShowHotkey(const HotkeyChoice& wanted) {
    S shown = Main.Settings;
    SetHotkey(shown, wanted);
    Controls = ReadControls(shown);
}

} // namespace quill
