#include "appearance/settings_dialog.h"

#include "appearance/frmSettings.h"
#include "containers/workspace_fixture.h"
#include "core/caption.h"
#include "dock/hotkey.h"
#include "keyboard/web_search.h"
#include "persistence/settings_table.h"

#include <algorithm>
#include <set>
#include <string>

namespace quill {
namespace {

using S = SettingsRecord;

struct Settings : test::WorkspaceFixture {
    void SetUp() override { InitDefaultSettings(Main.Settings); }
    void TearDown() override {
        EXPECT_EQ(computer.Dialogs.Unexpected, 0);
        EXPECT_EQ(computer.Questions.Unexpected, 0);
        EXPECT_TRUE(computer.Questions.AllAnswered());
    }

    // The person works on the dialog; at the end of the scene it is closed, by OK if it says true.
    void Open(const std::function<bool(frmSettings&)>& scene, SettingsPage page = SettingsPage::FrameGeneral,
              bool emphasize = false) {
        computer.Dialogs.OnSettings = scene;
        ShowSettingsDialog(Main, page, emphasize);
    }
    // Changes something, and applies it by OK.
    void Change(const std::function<void(SettingsValues&)>& change) {
        Open([&](frmSettings& dialog) {
            change(dialog.Controls);
            dialog.Option_Click();
            return dialog.cmdOK_Click();
        });
    }
    std::string Saved() {
        auto file = computer.Files.Read(fake::SettingsFolder + "/Quillmere.REC", 1 << 20);
        return file ? file.Value() : "(none)";
    }
    bool HasSaved(const std::string& key, const std::string& value) {
        return Saved().find(key + "\r\n" + value + "\r\n") != std::string::npos;
    }
};

const SettingsControl& Named(const std::string& name) {
    return *std::ranges::find(SettingsControls(), name, [](const SettingsControl& it) { return it.Name; });
}

// ---- what goes in and out

TEST_F(Settings, EachCheckBoxShowsItsSettingAndWritesItAlone) {
    for (const auto& control : SettingsControls()) {
        if (control.Check == nullptr) continue;
        for (const bool on : {true, false}) {
            S settings;
            settings.*control.Check = !on;
            const auto before = ReadControls(settings);
            EXPECT_EQ(before.chkSettings.*control.Check, !on) << control.Caption;
            auto now = before;
            now.chkSettings.*control.Check = on;
            S written = settings;
            WriteControls(now, before, written);
            EXPECT_EQ(written.*control.Check, on) << control.Caption;
            for (const auto& other : SettingsControls()) {
                if (other.Check == nullptr || other.Check == control.Check) continue;
                EXPECT_EQ(written.*other.Check, settings.*other.Check)
                    << control.Caption << " changes " << other.Caption;
            }
        }
    }
}

struct CheckRow {
    const char* Caption;
    bool S::*Field;
};

TEST_F(Settings, EachCheckBoxIsOfTheOptionThatItsCaptionTells) {
    constexpr CheckRow rows[] = {
        {"&Tray Icon", &S::ShowTrayIcon},
        {"&Show in Taskbar", &S::ShowInTaskbar},
        {"&Keep On Top", &S::OnTop},
        {"Special &Effects", &S::Animate},
        {"Transparenc&y:", &S::Translucent},
        {"Delete &Confirmation", &S::ConfirmDelete},
        {"Backup on &Save [F8]", &S::BackupOnSave},
        {"&Date Stamp Backups", &S::BackupDateStamp},
        {"Undock &Immediately", &S::UndockImmediately},
        {"Undock on &Click", &S::UndockOnClick},
        {"&Grab Focus", &S::GrabFocus},
        {"&Center Mouse", &S::CenterMouse},
        {"Visible &Bar", &S::VisibleBorderCollapsed},
        {"&Flash", &S::MiniDockFlash},
        {"&Accent Color", &S::AccentColor},
        {"&Auto Fold", &S::FoldOnClick},
        {"Auto &Expand:", &S::AutoExpand},
        {"Explode/Implode &Effect", &S::Effect},
        {"&Fold effect", &S::FoldUnfoldEffect},
        {"&Tooltips", &S::ShowTips},
        {"&Double-Click to Start All", &S::DblClickToStartAll},
        {"&Confirm 'Start all shortcuts'", &S::ConfirmStartAllShortcuts},
        {"&Double-Click to Start", &S::DblClick},
        {"Confirm '&Open with...'", &S::ConfirmOpenWith},
        {"&Resolve", &S::ExtractURLs},
        {"&Delete Desktop Shortcuts", &S::DeleteDesktopShortcuts},
        {"&Container from Folder", &S::ContainerFromFolder},
        {"&Tooltips", &S::ShortcutTooltips},
        {"&Command Icon Overlay", &S::CommandOverlay},
        {"&Global Hotkey:", &S::GlobalHotkey},
        {"Open &Keyboard Launcher", &S::ShowKBLauncher},
        {"Keyboard Launcher &Tips", &S::KBLauncherTips},
        {"Keyboard Launcher History:", &S::KeyboardHistory},
        {"Start Web Search on Spacebar", &S::SearchOnSpace},
        {"&Speed Launch / Calculator", &S::CalcOrSpeedLaunch},
    };
    std::size_t place = 0;
    for (const auto& control : SettingsControls()) {
        if (control.Check == nullptr) continue;
        ASSERT_LT(place, std::size(rows)) << control.Caption;
        EXPECT_STREQ(control.Caption, rows[place].Caption);
        EXPECT_EQ(control.Check, rows[place].Field) << control.Caption;
        EXPECT_STRNE(control.Tip, "") << control.Caption;
        ++place;
    }
    EXPECT_EQ(place, std::size(rows));
}

struct ChoiceRow {
    const char* Control;
    const char* Entry;
    std::function<void(S&)> Holds; // the settings of this entry
};

TEST_F(Settings, EachEntryOfAChoiceStandsForItsValue) {
    const ChoiceRow rows[] = {
        {"CboTitleBar", "Default", [](S& s) { s.ShowTime = s.SystemInfo = false; }},
        {"CboTitleBar", "Date/Time", [](S& s) { s.ShowTime = true, s.SystemInfo = false; }},
        {"CboTitleBar", "System Info", [](S& s) { s.ShowTime = false, s.SystemInfo = true; }},
        {"CboQuicklyUnlock", "Off", [](S& s) { s.QuicklyUnlock = 0; }},
        {"CboQuicklyUnlock", "1", [](S& s) { s.QuicklyUnlock = 1; }},
        {"CboQuicklyUnlock", "10", [](S& s) { s.QuicklyUnlock = 10; }},
        {"CboQuicklyUnlock", "15", [](S& s) { s.QuicklyUnlock = 15; }},
        {"CboQuicklyUnlock", "20", [](S& s) { s.QuicklyUnlock = 20; }},
        {"OptMiniDock", "&Large", [](S& s) { s.MiniDockSize = 0; }},
        {"OptMiniDock", "&Normal", [](S& s) { s.MiniDockSize = 2500; }},
        {"OptMiniDock", "&Small", [](S& s) { s.MiniDockSize = 1500; }},
        {"OptSide", "&Center", [](S& s) { s.MiniDockSide = 2; }},
        {"OptSide", "&Left | Bottom", [](S& s) { s.MiniDockSide = 0; }},
        {"OptSide", "&Right | Top", [](S& s) { s.MiniDockSide = 1; }},
        {"cboAutoExpand", "None", [](S& s) { s.AutoExpandDelay = 0; }},
        {"cboAutoExpand", "Short", [](S& s) { s.AutoExpandDelay = 1; }},
        {"cboAutoExpand", "Long", [](S& s) { s.AutoExpandDelay = 2; }},
        {"OptionEffect", "Explode && &Implode", [](S& s) { s.EffectMode = 0; }},
        {"OptionEffect", "&Explode", [](S& s) { s.EffectMode = 1; }},
        {"OptionEffect", "&Implode", [](S& s) { s.EffectMode = 2; }},
        {"cboTips", "Full", [](S& s) { s.WhichTips = 0; }},
        {"cboTips", "Info", [](S& s) { s.WhichTips = 1; }},
        {"cboShrinkSize", "Normal", [](S& s) { s.ConShrinkW = 700, s.ConShrinkH = 950; }},
        {"cboShrinkSize", "Small", [](S& s) { s.ConShrinkW = 650, s.ConShrinkH = 870; }},
        {"cboShrinkSize", "Tiny", [](S& s) { s.ConShrinkW = 410, s.ConShrinkH = 650; }},
        {"ComboMods", "Win", [](S& s) { s.GlobalHotkeyMod = 8; }},
        {"ComboMods", "Alt", [](S& s) { s.GlobalHotkeyMod = 1; }},
        {"ComboMods", "Ctrl", [](S& s) { s.GlobalHotkeyMod = 2; }},
        {"ComboMods", "Ctrl+Shift", [](S& s) { s.GlobalHotkeyMod = 6; }},
        {"ComboMods", "Win+Ctrl", [](S& s) { s.GlobalHotkeyMod = 10; }},
        {"ComboMods", "Win+Alt", [](S& s) { s.GlobalHotkeyMod = 9; }},
        {"ComboMods", "Alt+Ctrl", [](S& s) { s.GlobalHotkeyMod = 3; }},
        {"cboSpacebar", "All Containers", [](S& s) { s.SpacebarFlip = 0; }},
        {"cboSpacebar", "RSS", [](S& s) { s.SpacebarFlip = 1; }},
        {"cboSpacebar", "Notes/Reminders", [](S& s) { s.SpacebarFlip = 2; }},
        {"cboSpacebar", "Selected", [](S& s) { s.SpacebarFlip = 3; }},
    };
    const auto text = [&](const S& settings) {
        Main.Settings = settings;
        std::string all;
        for (const auto& row : SettingsRows())
            if (row.Write != nullptr && (row.Stands == nullptr || row.Stands(Main)))
                row.Write(all += " ", Main);
        return all;
    };
    for (const auto& row : rows) {
        const auto& control = Named(row.Control);
        const auto entry =
            std::ranges::find(control.Entries, std::string(row.Entry), &SettingsEntry::Caption);
        ASSERT_NE(entry, control.Entries.end()) << row.Control << " offers " << row.Entry;
        const int place = static_cast<int>(entry - control.Entries.begin());
        S told = Main.Settings;
        row.Holds(told);
        EXPECT_EQ(ReadControls(told).*control.Choice, place) << row.Control << " " << row.Entry;
        S written = told;
        control.Write(written, (place + 1) % static_cast<int>(control.Entries.size()));
        const auto before = ReadControls(written);
        auto now = before;
        now.*control.Choice = place;
        WriteControls(now, before, written);
        EXPECT_EQ(text(written), text(told)) << row.Control << " " << row.Entry;
    }
}

TEST_F(Settings, AValueThatNoEntryStandsForIsShownAsNoneAndKept) {
    auto& settings = Main.Settings;
    settings.QuicklyUnlock = 33;
    settings.MiniDockSize = 1800;
    settings.MiniDockSide = 7;
    settings.AutoExpandDelay = 9;
    settings.EffectMode = 5;
    settings.ConShrinkW = 800;
    settings.GlobalHotkeyMod = 15;
    settings.SpacebarFlip = -1;
    settings.ShowTime = settings.SystemInfo = true;
    Open([&](frmSettings& dialog) {
        const auto& now = dialog.Controls;
        EXPECT_EQ(now.CboQuicklyUnlock, -1);
        EXPECT_EQ(now.OptMiniDock, -1);
        EXPECT_EQ(now.OptSide, -1);
        EXPECT_EQ(now.cboAutoExpand, -1);
        EXPECT_EQ(now.OptionEffect, -1);
        EXPECT_EQ(now.cboShrinkSize, -1);
        EXPECT_EQ(now.ComboMods, -1);
        EXPECT_EQ(now.cboSpacebar, -1);
        EXPECT_EQ(now.CboTitleBar, 2) << "with both the system shows";
        dialog.Controls.chkSettings.MiniDockFlash = false;
        dialog.Option_Click();
        return dialog.cmdOK_Click();
    });
    EXPECT_EQ(settings.QuicklyUnlock, 33);
    EXPECT_EQ(settings.MiniDockSize, 1800);
    EXPECT_EQ(settings.MiniDockSide, 7);
    EXPECT_EQ(settings.AutoExpandDelay, 9);
    EXPECT_EQ(settings.EffectMode, 5);
    EXPECT_EQ(settings.ConShrinkW, 800);
    EXPECT_EQ(settings.GlobalHotkeyMod, 15);
    EXPECT_EQ(settings.SpacebarFlip, -1);
    EXPECT_TRUE(settings.ShowTime);
}

struct OpacityRow {
    const char* Text;
    int Opacity;
    const char* Why;
};

TEST_F(Settings, TheOpacityIsANumberWithinItsBoundsOrStaysAsItWas) {
    for (const OpacityRow& row : {
             OpacityRow{"120", 120, "a number"},
             OpacityRow{" 120 ", 120, "with blanks"},
             OpacityRow{"120,6", 121, "a fraction is rounded"},
             OpacityRow{"9", 10, "below the least"},
             OpacityRow{"-5", 10, "far below"},
             OpacityRow{"251", 250, "above the most"},
             OpacityRow{"999999", 250, "far above"},
             OpacityRow{"", 200, "empty"},
             OpacityRow{"solid", 200, "no number"},
             OpacityRow{"12x", 200, "not a whole number of a text"},
         }) {
        Main.Settings.Opacity = 200;
        Open([&](frmSettings& dialog) {
            EXPECT_EQ(dialog.Controls.txtOpacity, "200");
            dialog.Controls.txtOpacity = row.Text;
            dialog.Option_Click();
            dialog.cmdApply_Click();
            EXPECT_EQ(dialog.Controls.txtOpacity, std::to_string(row.Opacity))
                << row.Why << ", as it is shown";
            return true;
        });
        EXPECT_EQ(Main.Settings.Opacity, row.Opacity) << row.Why;
    }
}

struct HistoryRow {
    const char* Text;
    float Count;
    const char* Why;
};

TEST_F(Settings, TheLengthOfTheHistoryIsANumberWithinItsBoundsOrStaysAsItWas) {
    for (const HistoryRow& row : {
             HistoryRow{"30", 30, "a number"},
             HistoryRow{"5", 5, "the least"},
             HistoryRow{"4", 5, "below the least"},
             HistoryRow{"-1", 5, "far below"},
             HistoryRow{"50", 50, "the most"},
             HistoryRow{"51", 50, "above the most"},
             HistoryRow{"999999", 50, "far above"},
             HistoryRow{"", 20, "empty"},
             HistoryRow{"many", 20, "no number"},
         }) {
        Main.Settings.KeyboardHistoryCount = 20;
        Open([&](frmSettings& dialog) {
            EXPECT_EQ(dialog.Controls.txtKBLauncherHistory, "20");
            dialog.Controls.txtKBLauncherHistory = row.Text;
            dialog.Option_Click();
            dialog.cmdApply_Click();
            EXPECT_EQ(std::stof(dialog.Controls.txtKBLauncherHistory), row.Count)
                << row.Why << ", as it is shown";
            return true;
        });
        EXPECT_EQ(Main.Settings.KeyboardHistoryCount, row.Count) << row.Why;
    }
}

// ---- the web search

// What a person does to one control, and what that does to the others.
void Put(SettingsValues& values, const char* control, int place) {
    values.*Named(control).Choice = place;
    Named(control).Follow(values);
}
void Put(SettingsValues& values, const char* control, const std::string& text) {
    values.*Named(control).Text = text;
    Named(control).Follow(values);
}

TEST_F(Settings, TheSearchEnginesAreOfferedBehindSelect) {
    const auto entries = EntriesOf(Named("CboSearchEngines"));
    ASSERT_EQ(entries.size(), SearchEngines().size() + 1);
    EXPECT_STREQ(entries[0].Caption, "Select...");
    for (std::size_t place = 1; place < entries.size(); ++place)
        EXPECT_EQ(entries[place].Caption, SearchEngines()[place - 1].Name);
}

TEST_F(Settings, ChoosingAnEngineWritesItsAddressIntoTheBox) {
    const auto engines = SearchEngines();
    ASSERT_FALSE(engines.empty());
    for (std::size_t place = 0; place < engines.size(); ++place) {
        Main.Settings.WebSearch = "https://example.org/?find=%s";
        Change([&](SettingsValues& now) {
            Put(now, "CboSearchEngines", static_cast<int>(place) + 1);
            EXPECT_EQ(now.txtWebSearch, engines[place].Address);
        });
        EXPECT_EQ(Main.Settings.WebSearch, engines[place].Address);
        EXPECT_TRUE(HasSaved("[Web Search]", std::string(engines[place].Address)));
    }
}

TEST_F(Settings, TheListShowsTheEngineWhoseAddressIsSet) {
    for (std::size_t place = 0; place < SearchEngines().size(); ++place) {
        Main.Settings.WebSearch = SearchEngines()[place].Address;
        EXPECT_EQ(ReadControls(Main.Settings).CboSearchEngines, static_cast<int>(place) + 1);
    }
}

TEST_F(Settings, TheListStaysAtSelectForACustomAddressAndTheAddressIsStored) {
    const std::string custom = "https://search.example.org/find?q=%s&lang=en";
    Change([&](SettingsValues& now) {
        Put(now, "txtWebSearch", custom);
        EXPECT_EQ(now.CboSearchEngines, 0);
    });
    EXPECT_EQ(Main.Settings.WebSearch, custom);
    Open([&](frmSettings& dialog) {
        EXPECT_EQ(dialog.Controls.txtWebSearch, custom);
        EXPECT_EQ(dialog.Controls.CboSearchEngines, 0);
        return false;
    });
}

TEST_F(Settings, AnAddressThatIsTypedInFullIsSeenAsItsEngines) {
    auto now = ReadControls(Main.Settings);
    Put(now, "txtWebSearch", std::string(SearchEngines().back().Address));
    EXPECT_EQ(now.CboSearchEngines, static_cast<int>(SearchEngines().size()));
}

TEST_F(Settings, GoingBackToSelectLeavesTheAddress) {
    auto now = ReadControls(Main.Settings);
    Put(now, "txtWebSearch", "https://example.org/%s");
    Put(now, "CboSearchEngines", 0);
    EXPECT_EQ(now.txtWebSearch, "https://example.org/%s");
    Put(now, "CboSearchEngines", -1);
    Put(now, "CboSearchEngines", 999);
    EXPECT_EQ(now.txtWebSearch, "https://example.org/%s") << "a place that is not offered";
}

TEST_F(Settings, AnEmptiedAddressMeansTheFirstEngineAndIsShownAsThat) {
    Change([&](SettingsValues& now) { Put(now, "txtWebSearch", "  "); });
    EXPECT_EQ(Main.Settings.WebSearch, "");
    const auto now = ReadControls(Main.Settings);
    EXPECT_EQ(now.txtWebSearch, SearchEngines().front().Address);
    EXPECT_EQ(now.CboSearchEngines, 1);
    Change([](SettingsValues& values) { values.chkSettings.MiniDockFlash = false; });
    EXPECT_EQ(Main.Settings.WebSearch, "") << "what was only shown is not written";
}

TEST_F(Settings, NothingIsShownWhoseSettingHasNoControl) {
    for (const auto& control : SettingsControls()) {
        if (control.Check == nullptr) continue;
        EXPECT_NE(control.Check, &S::RememberParams) << "the box of the parameters prompt has it";
        EXPECT_NE(control.Check, &S::CheckForUpdatesOnStartup);
        EXPECT_NE(control.Check, &S::FolderConnector);
    }
}

TEST_F(Settings, EachControlLiesOnThePageOfWhatItIsAbout) {
    using enum SettingsPage;
    for (const auto& control : SettingsControls()) {
        const std::string name = control.Name;
        if (name == "txtWebSearch" || name == "CboSearchEngines" || name == "txtKBLauncherHistory")
            EXPECT_EQ(control.Page, FrameKBNavigation) << name;
        for (const auto field : {&S::ConfirmOpenWith, &S::ExtractURLs, &S::DeleteDesktopShortcuts,
                                 &S::ContainerFromFolder, &S::ShortcutTooltips})
            if (control.Check == field) EXPECT_EQ(control.Page, FrameShortcuts) << control.Caption;
        for (const auto field : {&S::ShowKBLauncher, &S::KBLauncherTips, &S::KeyboardHistory,
                                 &S::SearchOnSpace, &S::CalcOrSpeedLaunch})
            if (control.Check == field) EXPECT_EQ(control.Page, FrameKBNavigation) << control.Caption;
    }
}

TEST_F(Settings, EachPageHasAControlAndEachControlAPage) {
    std::set<SettingsPage> pages;
    for (const auto& page : SettingsPages()) pages.insert(page.Page);
    EXPECT_EQ(pages.size(), SettingsPages().size());
    std::set<SettingsPage> used;
    for (const auto& control : SettingsControls()) used.insert(control.Page);
    EXPECT_EQ(used, pages);
}

// ---- when it is applied

TEST_F(Settings, TheDialogHasItsTitleAndOpensOnThePageThatIsAskedFor) {
    Open(
        [&](frmSettings& dialog) {
            EXPECT_EQ(dialog.Title(), "Quillmere Settings");
            EXPECT_EQ(dialog.Page(), SettingsPage::FrameDock);
            EXPECT_FALSE(dialog.IsHotkeyEmphasized());
            return false;
        },
        SettingsPage::FrameDock);
}

TEST_F(Settings, NothingChangesUntilItIsApplied) {
    Open([&](frmSettings& dialog) {
        dialog.Controls.chkSettings.OnTop = false;
        dialog.Controls.txtOpacity = "100";
        dialog.Option_Click();
        EXPECT_TRUE(Main.Settings.OnTop);
        EXPECT_EQ(Main.Settings.Opacity, 235);
        return false;
    });
    EXPECT_TRUE(Main.Settings.OnTop) << "it was closed without";
    EXPECT_EQ(Saved(), "(none)");
}

TEST_F(Settings, ApplyIsEnabledByTheFirstChangeAndDisabledByApplying) {
    Open([&](frmSettings& dialog) {
        EXPECT_FALSE(dialog.cmdApplyEnabled());
        dialog.Controls.chkSettings.MiniDockFlash = false;
        dialog.Option_Click();
        EXPECT_TRUE(dialog.cmdApplyEnabled());
        dialog.cmdApply_Click();
        EXPECT_FALSE(dialog.cmdApplyEnabled());
        EXPECT_FALSE(Main.Settings.MiniDockFlash);
        EXPECT_TRUE(HasSaved("[Mini Dock Flash]", "0"));
        return false;
    });
    EXPECT_FALSE(Main.Settings.MiniDockFlash) << "what was applied stays so when it is cancelled";
}

TEST_F(Settings, OkWithNoChangeDoesNotApply) {
    Open([&](frmSettings& dialog) {
        EXPECT_TRUE(dialog.cmdOK_Click());
        return true;
    });
    EXPECT_EQ(Saved(), "(none)");
}

TEST_F(Settings, OkBehindApplyDoesNotApplyAgain) {
    Open([&](frmSettings& dialog) {
        dialog.Controls.chkSettings.MiniDockFlash = false;
        dialog.Option_Click();
        dialog.cmdApply_Click();
        (void)computer.Files.Remove(fake::SettingsFolder + "/Quillmere.REC");
        EXPECT_TRUE(dialog.cmdOK_Click());
        return true;
    });
    EXPECT_EQ(Saved(), "(none)");
}

TEST_F(Settings, OkAppliesWhatHasChangedAndCloses) {
    Open([&](frmSettings& dialog) {
        dialog.Controls.chkSettings.ConfirmDelete = false;
        dialog.Option_Click();
        EXPECT_TRUE(dialog.cmdOK_Click());
        return true;
    });
    EXPECT_FALSE(Main.Settings.ConfirmDelete);
    EXPECT_TRUE(HasSaved("[ConfirmDelete]", "0"));
}

TEST_F(Settings, WhatChangedElsewhereMeanwhileIsNotTurnedBack) {
    Open([&](frmSettings& dialog) {
        Main.Settings.Animate = false;
        dialog.Controls.chkSettings.MiniDockFlash = false;
        dialog.Option_Click();
        return dialog.cmdOK_Click();
    });
    EXPECT_FALSE(Main.Settings.Animate);
}

TEST_F(Settings, WhileItIsOpenNothingSlidesAndTheHotkeyIsNotForTheWorkspace) {
    Open([&](frmSettings&) {
        EXPECT_GT(Main.Dock.DialogPauses, 0);
        EXPECT_TRUE(Main.Dock.JustUsedHotKey);
        return false;
    });
    EXPECT_EQ(Main.Dock.DialogPauses, 0);
    EXPECT_FALSE(Main.Dock.JustUsedHotKey);
    Main.Dock.JustUsedHotKey = true; // by whoever opened it
    Open([&](frmSettings&) { return false; });
    EXPECT_TRUE(Main.Dock.JustUsedHotKey);
}

TEST_F(Settings, AProgramThatLoadsOrEndsOpensNoSettings) {
    int opened = 0;
    const auto count = [&](frmSettings&) { return ++opened, false; };
    Main.IsLoading = true;
    Open(count);
    Main.IsLoading = false;
    Main.IsExiting = true;
    Open(count);
    EXPECT_EQ(opened, 0);
}

// ---- what takes effect at once

TEST_F(Settings, KeepOnTopIsFollowedAtOnce) {
    computer.Windows.SetWindowOnTop(MainWindow, true);
    Change([](SettingsValues& now) { now.chkSettings.OnTop = false; });
    EXPECT_FALSE(computer.Windows.Of(MainWindow).OnTop);
    Change([](SettingsValues& now) { now.chkSettings.OnTop = true; });
    EXPECT_TRUE(computer.Windows.Of(MainWindow).OnTop);
}

TEST_F(Settings, TransparencyIsFollowedAtOnce) {
    Change([](SettingsValues& now) { now.chkSettings.Translucent = true, now.txtOpacity = "90"; });
    EXPECT_EQ(computer.Windows.Of(MainWindow).Opacity, 90);
    Change([](SettingsValues& now) { now.txtOpacity = "160"; });
    EXPECT_EQ(computer.Windows.Of(MainWindow).Opacity, 160);
    Change([](SettingsValues& now) { now.chkSettings.Translucent = false; });
    EXPECT_EQ(computer.Windows.Of(MainWindow).Opacity, 255);
}

TEST_F(Settings, TheTaskbarIsFollowedAtOnce) {
    Change([](SettingsValues& now) { now.chkSettings.ShowInTaskbar = true; });
    EXPECT_TRUE(computer.Windows.Of(MainWindow).TaskbarEntry);
    Change([](SettingsValues& now) { now.chkSettings.ShowInTaskbar = false; });
    EXPECT_FALSE(computer.Windows.Of(MainWindow).TaskbarEntry);
}

TEST_F(Settings, TheTrayIconIsFollowedAtOnce) {
    computer.Tray.Shown = true;
    Change([](SettingsValues& now) { now.chkSettings.ShowTrayIcon = false; });
    EXPECT_FALSE(computer.Tray.Shown);
    Change([](SettingsValues& now) { now.chkSettings.ShowTrayIcon = true; });
    EXPECT_TRUE(computer.Tray.Shown);
}

TEST_F(Settings, TheTitleRowShowsWhatWasChosenAtOnce) {
    Main.View.Visible = true;
    Main.View.Caption = NormalCaption(Main);
    Change([](SettingsValues& now) { now.CboTitleBar = 2; });
    EXPECT_TRUE(computer.Clock.IsRunning({TimerName::TimerSysInfo}));
    EXPECT_TRUE(computer.Counters.Open);
    EXPECT_EQ(Main.View.Caption.find("Free Memory: "), 0U) << Main.View.Caption;
    Change([](SettingsValues& now) { now.CboTitleBar = 1; });
    EXPECT_FALSE(computer.Clock.IsRunning({TimerName::TimerSysInfo}));
    EXPECT_FALSE(computer.Counters.Open);
    EXPECT_NE(Main.View.Caption.find(" | "), std::string::npos) << Main.View.Caption;
    EXPECT_EQ(Main.View.Caption.find("Free Memory: "), std::string::npos) << Main.View.Caption;
    Change([](SettingsValues& now) { now.CboTitleBar = 0; });
    EXPECT_EQ(Main.View.Caption, std::string(ProgramName) + " " + ProgramVersion);
}

TEST_F(Settings, TheWorkspaceIsLaidAndPaintedAnew) {
    Main.Marks.Take();
    Change([](SettingsValues& now) { now.chkSettings.CommandOverlay = false; });
    EXPECT_TRUE(Main.Marks.Pending().Everything);
}

TEST_F(Settings, WhatDidNotChangeIsNotTouched) {
    computer.Windows.Log.clear();
    computer.Tray.Tip = "as it was";
    Change([](SettingsValues& now) { now.chkSettings.ConfirmDelete = false; });
    EXPECT_EQ(computer.Windows.Log, std::vector<std::string>{});
    EXPECT_EQ(computer.Tray.Tip, "as it was");
    EXPECT_EQ(computer.Hotkeys.Asked, 0);
}

TEST_F(Settings, AProgramThatEndsDuringTheQuestionIsLeftAlone) {
    computer.Questions.OnBox = [&](const fake::Box&) { Main.IsExiting = true; };
    computer.Questions.Answer(AnswerYes);
    const int tile = NewTile(6000, 3000);
    Open([&](frmSettings& dialog) {
        dialog.Controls.cboShrinkSize = 2;
        dialog.Controls.txtHotkey = "Q";
        dialog.Option_Click();
        EXPECT_TRUE(dialog.cmdOK_Click()) << "it does not hold up the end";
        return true;
    });
    EXPECT_EQ(Main.Con(tile).ShrinkSize(), (TileSize{700, 950}));
    EXPECT_EQ(computer.Hotkeys.Asked, 0);
    EXPECT_EQ(Saved(), "(none)") << "the exit saves";
}

TEST_F(Settings, TheColorOfTheBarIsChosenFromItsPresentOne) {
    computer.Dialogs.Colors = {Rgb(1, 2, 3)};
    Open([&](frmSettings& dialog) {
        const auto before = Main.Settings.DockingColor;
        dialog.picDockBorder_Click();
        EXPECT_EQ(computer.Dialogs.ColorsAsked.back(), before);
        EXPECT_EQ(dialog.Controls.picDockBorder, Rgb(1, 2, 3));
        EXPECT_TRUE(dialog.cmdApplyEnabled());
        EXPECT_EQ(Main.Settings.DockingColor, before) << "until it is applied";
        return dialog.cmdOK_Click();
    });
    EXPECT_EQ(Main.Settings.DockingColor, Rgb(1, 2, 3));
}

TEST_F(Settings, AColorThatIsNotChosenIsNoChange) {
    computer.Dialogs.Colors = {std::nullopt, Main.Settings.DockingColor};
    Open([&](frmSettings& dialog) {
        dialog.picDockBorder_Click();
        dialog.picDockBorder_Click();
        EXPECT_FALSE(dialog.cmdApplyEnabled()) << "nor the same one";
        return true;
    });
}

// ---- the size of tiles

TEST_F(Settings, ANewShrinkSizeIsGivenToExistingTilesOnlyWhenThePersonSaysSo) {
    const int tile = NewTile(6000, 3000);
    const int other = New({1500, 1500, 3000, 3000});
    computer.Questions.Answer(AnswerNo);
    Change([](SettingsValues& now) { now.cboShrinkSize = 2; });
    EXPECT_EQ(Main.Settings.ConShrinkW, 410);
    EXPECT_EQ(Main.Con(tile).ShrinkSize(), (TileSize{700, 950}));
    computer.Questions.Answer(AnswerYes);
    Change([](SettingsValues& now) { now.cboShrinkSize = 1; });
    EXPECT_EQ(Main.Con(tile).ShrinkSize(), (TileSize{650, 870}));
    EXPECT_EQ(computer.Questions.LastBox(), "Change the Shrink Size for existing containers?");
    EXPECT_EQ(Main.Con(other).ShrinkSize(), (TileSize{650, 870}));
    EXPECT_EQ(Box(tile).Width, 650);
}

// ---- the hotkey

struct HotkeySettings : Settings {
    using Key = fake::FakeHotkeys::Key;
    static constexpr const char* Refusal = "The Global Hotkey could not be registered since it is already in "
                                           "use. Please select a different one.";

    void SetUp() override {
        Settings::SetUp();
        ASSERT_TRUE(RegisterGlobalHotkey(Main, "S", 9));
    }
    // A key that another program has, chosen and given to OK; the scene goes on behind the refusal.
    void Refuse(const std::function<bool(frmSettings&)>& scene) {
        computer.Hotkeys.Taken = {Key{6, 'Q'}};
        computer.Questions.Answer(AnswerOk);
        Open([&](frmSettings& dialog) {
            dialog.Controls.txtHotkey = "q";
            dialog.Controls.ComboMods = 3;
            dialog.Controls.chkSettings.MiniDockFlash = false;
            dialog.Option_Click();
            EXPECT_FALSE(dialog.cmdOK_Click()) << "the dialog stays";
            return scene(dialog);
        });
    }
};

TEST_F(HotkeySettings, AnotherHotkeyWorksAtOnceInTheFormersPlace) {
    Change([](SettingsValues& now) { now.txtHotkey = "q", now.ComboMods = 3; });
    EXPECT_EQ(computer.Hotkeys.Held, (Key{6, 'Q'}));
    EXPECT_EQ(Main.Settings.GlobalHotkeyChar, "Q") << "letters are kept as capitals";
    EXPECT_EQ(Main.Settings.GlobalHotkeyMod, 6);
    EXPECT_TRUE(HasSaved("[GlobalHotkeyChar]", "Q"));
}

TEST_F(HotkeySettings, AHotkeyThatNobodyChangedIsNotAskedForAgain) {
    const int asked = computer.Hotkeys.Asked;
    Change([](SettingsValues& now) { now.chkSettings.MiniDockFlash = false; });
    EXPECT_EQ(computer.Hotkeys.Asked, asked);
    EXPECT_EQ(computer.Hotkeys.Held, (Key{9, 'S'}));
}

TEST_F(HotkeySettings, SwitchedOffItIsGivenUpAndSwitchedOnItIsTaken) {
    Change([](SettingsValues& now) { now.chkSettings.GlobalHotkey = false; });
    EXPECT_FALSE(computer.Hotkeys.Held);
    Change([](SettingsValues& now) { now.txtHotkey = "X"; });
    EXPECT_FALSE(computer.Hotkeys.Held) << "it is off";
    EXPECT_EQ(Main.Settings.GlobalHotkeyChar, "X");
    Change([](SettingsValues& now) { now.chkSettings.GlobalHotkey = true; });
    EXPECT_EQ(computer.Hotkeys.Held, (Key{9, 'X'}));
}

TEST_F(HotkeySettings, ARefusalIsToldAndTheFormerKeyWorksAgain) {
    Refuse([&](frmSettings& dialog) {
        EXPECT_EQ(computer.Questions.LastBox(), Refusal);
        EXPECT_EQ(computer.Hotkeys.Held, (Key{9, 'S'}));
        EXPECT_EQ(Main.Settings.GlobalHotkeyChar, "S");
        EXPECT_EQ(Main.Settings.GlobalHotkeyMod, 9);
        EXPECT_TRUE(dialog.txtGlobalHotkeyVisible());
        EXPECT_TRUE(dialog.IsHotkeyEmphasized());
        EXPECT_EQ(dialog.Page(), SettingsPage::FrameKBNavigation);
        EXPECT_EQ(dialog.Controls.txtHotkey, "Q") << "what was refused still stands there";
        EXPECT_EQ(dialog.Controls.ComboMods, 3);
        EXPECT_TRUE(dialog.cmdApplyEnabled()) << "it is not applied yet";
        EXPECT_FALSE(Main.Settings.MiniDockFlash) << "everything else is";
        EXPECT_TRUE(HasSaved("[Mini Dock Flash]", "0"));
        EXPECT_TRUE(HasSaved("[GlobalHotkeyChar]", "S"));
        return false;
    });
    EXPECT_EQ(computer.Hotkeys.Held, (Key{9, 'S'})) << "also when it is cancelled then";
}

TEST_F(HotkeySettings, TheWarningStandsOnlyBesideTheKeyThatIsRefused) {
    Refuse([&](frmSettings& dialog) {
        auto& now = dialog.Controls;
        now.txtHotkey = "W";
        EXPECT_FALSE(dialog.txtGlobalHotkeyVisible());
        now.txtHotkey = "q";
        EXPECT_TRUE(dialog.txtGlobalHotkeyVisible());
        now.ComboMods = 0;
        EXPECT_FALSE(dialog.txtGlobalHotkeyVisible());
        now.ComboMods = 3;
        now.chkSettings.GlobalHotkey = false;
        EXPECT_FALSE(dialog.txtGlobalHotkeyVisible());
        return false;
    });
}

TEST_F(HotkeySettings, AfterARefusalADifferentKeyIsTakenAndTheDialogCloses) {
    Refuse([&](frmSettings& dialog) {
        dialog.Controls.txtHotkey = "W";
        dialog.Option_Click();
        EXPECT_TRUE(dialog.cmdOK_Click());
        EXPECT_FALSE(dialog.txtGlobalHotkeyVisible());
        EXPECT_FALSE(dialog.IsHotkeyEmphasized());
        return true;
    });
    EXPECT_EQ(computer.Hotkeys.Held, (Key{6, 'W'}));
}

TEST_F(HotkeySettings, TheSameKeyIsAskedForAgainWhenThePersonInsists) {
    Refuse([&](frmSettings& dialog) {
        computer.Hotkeys.Taken.clear();
        EXPECT_TRUE(dialog.cmdOK_Click());
        return true;
    });
    EXPECT_EQ(computer.Hotkeys.Held, (Key{6, 'Q'}));
}

struct ImpossibleRow {
    const char* Character;
    const char* Why;
};

TEST_F(HotkeySettings, AKeyThatCannotBeIsRefusedLikeOneThatIsTaken) {
    for (const ImpossibleRow& row : {
             ImpossibleRow{"", "none"},
             ImpossibleRow{"I", "has no code"},
             ImpossibleRow{"\xC3\xA9", "no key of the ladder"},
             ImpossibleRow{"?", "a sign"},
         }) {
        computer.Questions.Answer(AnswerOk);
        Open([&](frmSettings& dialog) {
            dialog.Controls.txtHotkey = row.Character;
            dialog.Option_Click();
            EXPECT_FALSE(dialog.cmdOK_Click()) << row.Why;
            EXPECT_TRUE(dialog.txtGlobalHotkeyVisible()) << row.Why;
            return false;
        });
        EXPECT_EQ(Main.Settings.GlobalHotkeyChar, "S") << row.Why;
        EXPECT_EQ(computer.Hotkeys.Held, (Key{9, 'S'})) << row.Why;
    }
}

TEST_F(HotkeySettings, OneThatIsSwitchedOnAndRefusedStaysOff) {
    Change([](SettingsValues& now) { now.chkSettings.GlobalHotkey = false; });
    computer.Hotkeys.Taken = {Key{9, 'S'}};
    computer.Questions.Answer(AnswerOk);
    Open([&](frmSettings& dialog) {
        dialog.Controls.chkSettings.GlobalHotkey = true;
        dialog.Option_Click();
        EXPECT_FALSE(dialog.cmdOK_Click());
        return false;
    });
    EXPECT_FALSE(Main.Settings.GlobalHotkey);
    EXPECT_FALSE(Main.Dock.HotkeyRefused) << "none is wanted";
}

TEST_F(HotkeySettings, OpenedForARefusedHotkeyItShowsThePageTheWarningAndTheMark) {
    computer.Hotkeys.Taken = {Key{9, 'S'}};
    RegisterGlobalHotkey(Main, "S", 9);
    Open(
        [&](frmSettings& dialog) {
            EXPECT_EQ(dialog.Page(), SettingsPage::FrameKBNavigation);
            EXPECT_TRUE(dialog.IsHotkeyEmphasized());
            EXPECT_TRUE(dialog.txtGlobalHotkeyVisible());
            EXPECT_FALSE(dialog.cmdApplyEnabled());
            dialog.Controls.txtHotkey = "D";
            dialog.Option_Click();
            return dialog.cmdOK_Click();
        },
        SettingsPage::FrameKBNavigation, true);
    EXPECT_EQ(computer.Hotkeys.Held, (Key{9, 'D'}));
    EXPECT_FALSE(Main.Dock.HotkeyRefused);
}

TEST_F(HotkeySettings, AHotkeyThatBecameFreeIsTakenWhenTheDialogIsLeft) {
    computer.Hotkeys.Taken = {Key{9, 'S'}};
    RegisterGlobalHotkey(Main, "S", 9);
    Open([&](frmSettings&) {
        computer.Hotkeys.Taken.clear();
        return false;
    });
    EXPECT_EQ(computer.Hotkeys.Held, (Key{9, 'S'}));
}

TEST_F(HotkeySettings, AHotkeyThatIsFineShowsNoWarning) {
    Open([&](frmSettings& dialog) {
        EXPECT_FALSE(dialog.txtGlobalHotkeyVisible());
        return false;
    });
}

} // namespace
} // namespace quill
