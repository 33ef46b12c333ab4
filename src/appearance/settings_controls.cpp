#include "appearance/settings_controls.h"

#include "keyboard/web_search.h"
#include "persistence/text_values.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <vector>

namespace quill {
namespace {

using S = SettingsRecord;
using V = SettingsValues;
using Kind = SettingsControlKind;
using enum SettingsPage;

constexpr std::int16_t leastOpacity = 10, mostOpacity = 250;
constexpr std::int32_t leastHistory = 5, mostHistory = 50;
constexpr int addressLimit = 2048; // in characters

// ---- choices whose entries stand for numbers

template <class Value, std::size_t Count> int PlaceOf(const std::array<Value, Count>& values, Value value) {
    const auto found = std::ranges::find(values, value);
    return found == values.end() ? -1 : static_cast<int>(found - values.begin());
}
template <auto Field, auto Values> int ReadNumbered(const S& settings) {
    return PlaceOf(Values, settings.*Field);
}
template <auto Field, auto Values> void WriteNumbered(S& settings, int place) {
    settings.*Field = Values[static_cast<std::size_t>(place)];
}

constexpr std::array<std::uint8_t, 13> unlockSeconds{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 15, 20};
constexpr std::array<float, 3> sides{2, 0, 1};
constexpr std::array<float, 3> sizes{0, 2500, 1500}; // twips
constexpr std::array<std::int16_t, 3> delays{0, 1, 2};
constexpr std::array<std::uint8_t, 3> effects{0, 1, 2};
constexpr std::array<std::uint8_t, 2> tips{0, 1};
constexpr std::array<std::int32_t, 7> modifiers{8, 1, 2, 6, 10, 9, 3};
constexpr std::array<std::int16_t, 4> flips{0, 1, 2, 3};

constexpr SettingsEntry titleEntries[] = {{"Default"}, {"Date/Time"}, {"System Info"}};
constexpr SettingsEntry unlockEntries[] = {{"Off"}, {"1"}, {"2"}, {"3"},  {"4"},  {"5"}, {"6"},
                                           {"7"},   {"8"}, {"9"}, {"10"}, {"15"}, {"20"}};
constexpr SettingsEntry sideEntries[] = {{"&Center"}, {"&Left | Bottom"}, {"&Right | Top"}};
constexpr SettingsEntry sizeEntries[] = {{"&Large"}, {"&Normal"}, {"&Small"}};
constexpr SettingsEntry delayEntries[] = {{"None"}, {"Short"}, {"Long"}};
constexpr SettingsEntry effectEntries[] = {{"Explode && &Implode", "Default explode/implode effect."},
                                           {"&Explode", "Explode only."},
                                           {"&Implode", "Implode only."}};
constexpr SettingsEntry tipEntries[] = {{"Full"}, {"Info"}};
constexpr SettingsEntry shrinkEntries[] = {{"Normal"}, {"Small"}, {"Tiny"}};
constexpr SettingsEntry modifierEntries[] = {{"Win"},      {"Alt"},     {"Ctrl"},    {"Ctrl+Shift"},
                                             {"Win+Ctrl"}, {"Win+Alt"}, {"Alt+Ctrl"}};
constexpr SettingsEntry flipEntries[] = {{"All Containers"}, {"RSS"}, {"Notes/Reminders"}, {"Selected"}};

// With both the row shows the system.
int ReadTitle(const S& settings) {
    return settings.SystemInfo ? 2 : settings.ShowTime ? 1 : 0;
}
void WriteTitle(S& settings, int place) {
    settings.ShowTime = place == 1;
    settings.SystemInfo = place == 2;
}

// The step is told by the width alone.
struct ShrinkStep {
    std::int32_t Width, Height; // twips
};
constexpr ShrinkStep shrinkSteps[] = {{700, 950}, {650, 870}, {410, 650}};
int ReadShrinkSize(const S& settings) {
    const auto* const found = std::ranges::find(shrinkSteps, settings.ConShrinkW, &ShrinkStep::Width);
    return found == std::end(shrinkSteps) ? -1 : static_cast<int>(found - shrinkSteps);
}
void WriteShrinkSize(S& settings, int place) {
    settings.ConShrinkW = shrinkSteps[place].Width;
    settings.ConShrinkH = shrinkSteps[place].Height;
}

// ---- the address of the web search, and the engines that are offered for it

constexpr const char* noEngine = "Select...";

// An engine's name is a name, and the same in every language.
SettingsEntries EngineEntries() {
    static const auto names = [] {
        std::vector<std::string> all;
        for (const auto& engine : SearchEngines()) all.emplace_back(engine.Name);
        return all;
    }();
    static const auto entries = [] {
        std::vector<SettingsEntry> all{{noEngine}};
        for (const auto& name : names) all.push_back({name.c_str()});
        return all;
    }();
    return entries;
}

int EngineOf(const std::string& address) {
    const auto engines = SearchEngines();
    const auto found = std::ranges::find(engines, std::string_view(address), &SearchEngine::Address);
    return found == engines.end() ? 0 : static_cast<int>(found - engines.begin()) + 1;
}

void FollowEngine(V& values) {
    const auto engines = SearchEngines();
    const auto place = static_cast<std::size_t>(values.CboSearchEngines);
    if (values.CboSearchEngines > 0 && place <= engines.size())
        values.txtWebSearch = engines[place - 1].Address;
}
void FollowAddress(V& values) {
    values.CboSearchEngines = EngineOf(values.txtWebSearch);
}

// ---- lines of the table

constexpr SettingsControl Check(SettingsPage page, bool S::*field, const char* caption, const char* tip) {
    return {.Page = page, .Caption = caption, .Tip = tip, .Check = field};
}

constexpr SettingsControl General(bool S::*field, const char* caption, const char* tip) {
    return Check(FrameGeneral, field, caption, tip);
}
constexpr SettingsControl Dock(bool S::*field, const char* caption, const char* tip) {
    return Check(FrameDock, field, caption, tip);
}
constexpr SettingsControl Containers(bool S::*field, const char* caption, const char* tip) {
    return Check(FrameContainers, field, caption, tip);
}
constexpr SettingsControl Shortcuts(bool S::*field, const char* caption, const char* tip) {
    return Check(FrameShortcuts, field, caption, tip);
}
constexpr SettingsControl Keys(bool S::*field, const char* caption, const char* tip) {
    return Check(FrameKBNavigation, field, caption, tip);
}

constexpr SettingsControl controls[] = {
    General(&S::ShowTrayIcon, "&Tray Icon", "Uncheck to hide the system tray icon (next to the clock)."),
    General(&S::ShowInTaskbar, "&Show in Taskbar", "Show the workspace in the Windows Taskbar."),
    General(&S::OnTop, "&Keep On Top",
            "Keep the workspace and detached containers on top of other windows. You can always show the "
            "workspace using the Global Hotkey, and focus on detached containers from the system-tray menu."),
    General(&S::Animate, "Special &Effects", "Use special effects such as slide-in and fade-outs."),
    General(&S::Translucent, "Transparenc&y:", "Toggle workspace transparency (F9)."),
    {.Page = FrameGeneral,
     .Kind = Kind::TextBox,
     .Name = "txtOpacity",
     .Tip = "10 (transparent) to 250",
     .Beside = true,
     .Spoken = "Opacity",
     .Text = &V::txtOpacity,
     .TextLimit = 6},
    General(&S::ConfirmDelete, "Delete &Confirmation",
            "Require confirmation before removing different objects."),
    General(&S::BackupOnSave, "Backup on &Save [F8]", "Create a zip file backup when saving the workspace."),
    General(&S::BackupDateStamp, "&Date Stamp Backups",
            "Use the current date as part of the backup zip file name (YYYY-MM-DD)."),
    {.Page = FrameGeneral,
     .Kind = Kind::List,
     .Name = "CboTitleBar",
     .Caption = "Title Bar:",
     .Tip = "Select the caption to display in the title bar.",
     .Choice = &V::CboTitleBar,
     .Entries = titleEntries,
     .Read = &ReadTitle,
     .Write = &WriteTitle},
    {.Page = FrameGeneral,
     .Kind = Kind::List,
     .Name = "CboQuicklyUnlock",
     .Caption = "Briefly Unlock:",
     .Tip = "Seconds for which a locked workspace opens when it is edited.",
     .Choice = &V::CboQuicklyUnlock,
     .Entries = unlockEntries,
     .Read = &ReadNumbered<&S::QuicklyUnlock, unlockSeconds>,
     .Write = &WriteNumbered<&S::QuicklyUnlock, unlockSeconds>},

    Dock(&S::UndockImmediately, "Undock &Immediately",
         "Undock immediately as soon as the mouse hovers over the docking bar. By default, you have to keep "
         "the mouse at the same place for half a second, or click the docking bar to immediately undock the "
         "workspace."),
    Dock(&S::UndockOnClick, "Undock on &Click", "Undock the workspace ONLY on mouse click."),
    Dock(&S::GrabFocus, "&Grab Focus",
         "Grab focus immediately when the workspace undocks. This setting is useful when you are using the "
         "mouse to undock the workspace (as opposed to the Global Hotkey) but launching shortcuts with the "
         "keyboard."),
    Dock(&S::CenterMouse, "&Center Mouse",
         "Move the mouse cursor to the center of the workspace when undocked."),
    Dock(&S::VisibleBorderCollapsed, "Visible &Bar",
         "Display a thin line when the workspace is docked so you can easily undock it with the mouse."),
    Dock(&S::MiniDockFlash, "&Flash", "Flash the docking bar a few times to indicate its location."),
    Dock(&S::AccentColor, "&Accent Color", "Use Windows accent color."),
    {.Page = FrameDock,
     .Kind = Kind::ColorBox,
     .Name = "picDockBorder",
     .Caption = "Color:",
     .Tip = "Choose the docking bar color."},
    {.Page = FrameDock,
     .Kind = Kind::Options,
     .Name = "OptMiniDock",
     .Caption = "Size:",
     .Choice = &V::OptMiniDock,
     .Entries = sizeEntries,
     .Read = &ReadNumbered<&S::MiniDockSize, sizes>,
     .Write = &WriteNumbered<&S::MiniDockSize, sizes>},
    {.Page = FrameDock,
     .Kind = Kind::Options,
     .Name = "OptSide",
     .Caption = "Relative Position:",
     .Choice = &V::OptSide,
     .Entries = sideEntries,
     .Read = &ReadNumbered<&S::MiniDockSide, sides>,
     .Write = &WriteNumbered<&S::MiniDockSide, sides>},

    Containers(&S::FoldOnClick, "&Auto Fold",
               "This setting affects containers unfolded by double-clicking the container label. Containers "
               "will fold back when the workspace collapses or clicked, and when double-clicking to unfold "
               "other containers."),
    Containers(&S::AutoExpand, "Auto &Expand:",
               "Auto expand containers when the mouse hovers over the Shrink/Expand button at the upper left "
               "side of the container. Containers will auto-shrink when moving the mouse away or when "
               "double-clicking an empty place inside."),
    {.Page = FrameContainers,
     .Kind = Kind::List,
     .Name = "cboAutoExpand",
     .Tip = "Select the delay before the container auto-expands.",
     .Beside = true,
     .Spoken = "Delay",
     .Choice = &V::cboAutoExpand,
     .Entries = delayEntries,
     .Read = &ReadNumbered<&S::AutoExpandDelay, delays>,
     .Write = &WriteNumbered<&S::AutoExpandDelay, delays>},
    Containers(&S::Effect, "Explode/Implode &Effect", "Animate container expansion and contraction."),
    {.Page = FrameContainers,
     .Kind = Kind::Options,
     .Name = "OptionEffect",
     .Beside = true,
     .Spoken = "Kind of effect",
     .Choice = &V::OptionEffect,
     .Entries = effectEntries,
     .Read = &ReadNumbered<&S::EffectMode, effects>,
     .Write = &WriteNumbered<&S::EffectMode, effects>},
    Containers(&S::FoldUnfoldEffect, "&Fold effect", "Special effect when folding containers."),
    Containers(&S::ShowTips, "&Tooltips",
               "Show tooltips with information about items within the container when hovering over the "
               "container name or icon (when shrunk) with the mouse."),
    {.Page = FrameContainers,
     .Kind = Kind::List,
     .Name = "cboTips",
     .Beside = true,
     .Spoken = "Content of tooltips",
     .Choice = &V::cboTips,
     .Entries = tipEntries,
     .Read = &ReadNumbered<&S::WhichTips, tips>,
     .Write = &WriteNumbered<&S::WhichTips, tips>},
    Containers(&S::DblClickToStartAll, "&Double-Click to Start All",
               "Double-click container icons to start all shortcuts within. By default, clicking the "
               "container icon will expand it (same as the Shrink/Expand button)."),
    Containers(&S::ConfirmStartAllShortcuts, "&Confirm 'Start all shortcuts'",
               "Require confirmation before starting all shortcuts within a single container. Tip: Use Tag "
               "Start to start all shortcuts that share the same tags even if they are located in different "
               "containers or in the workspace itself."),
    {.Page = FrameContainers,
     .Kind = Kind::List,
     .Name = "cboShrinkSize",
     .Caption = "Shrink Size:",
     .Tip = "Size of shrunk containers.",
     .Choice = &V::cboShrinkSize,
     .Entries = shrinkEntries,
     .Read = &ReadShrinkSize,
     .Write = &WriteShrinkSize},

    Shortcuts(&S::DblClick, "&Double-Click to Start",
              "Require double-click to start shortcuts from the workspace/containers."),
    Shortcuts(&S::ConfirmOpenWith, "Confirm '&Open with...'",
              "Require confirmation when dragging shortcut icons (or files from Windows) on top of other "
              "shortcut labels."),
    Shortcuts(
        &S::ExtractURLs, "&Resolve",
        "Resolve Windows shortcuts (.lnk and .url files) and point to the file location and website and "
        "not to the shortcut itself."),
    Shortcuts(
        &S::DeleteDesktopShortcuts, "&Delete Desktop Shortcuts",
        "Move shortcuts dragged to the workspace or containers from the Windows Desktop to the recycling "
        "bin."),
    Shortcuts(&S::ContainerFromFolder, "&Container from Folder",
              "Ask to create a container with shortcuts to the files inside when adding a folder shortcut to "
              "the workspace."),
    Shortcuts(&S::ShortcutTooltips, "&Tooltips",
              "Show tooltips when hovering over shortcuts (override using the Shift key)."),
    Shortcuts(&S::CommandOverlay, "&Command Icon Overlay",
              "Overlay a command indicator icon on top of System Command shortcuts."),

    Keys(&S::GlobalHotkey, "&Global Hotkey:",
         "Dock/Undock the workspace using a key combination. Enter an underscore to use the spacebar key, / "
         "Up Arrow, \\ Down Arrow, < Left Arrow, > Right Arrow."),
    {.Page = FrameKBNavigation,
     .Kind = Kind::List,
     .Name = "ComboMods",
     .Beside = true,
     .Spoken = "Modifier keys",
     .Choice = &V::ComboMods,
     .Entries = modifierEntries,
     .Read = &ReadNumbered<&S::GlobalHotkeyMod, modifiers>,
     .Write = &WriteNumbered<&S::GlobalHotkeyMod, modifiers>},
    {.Page = FrameKBNavigation,
     .Kind = Kind::TextBox,
     .Name = "txtHotkey",
     .Beside = true,
     .Spoken = "Key",
     .Text = &V::txtHotkey,
     .TextLimit = 1},
    {.Page = FrameKBNavigation,
     .Kind = Kind::Warning,
     .Name = "txtGlobalHotkey",
     .Caption = "Already in use",
     .Tip = "The Global Hotkey could not be registered since it is already in use. ",
     .Beside = true},
    Keys(
        &S::ShowKBLauncher, "Open &Keyboard Launcher",
        "Display the Keyboard Launcher dialog when the workspace is undocked using the Global Hotkey. The "
        "dialog is automatically shown when entering letters and the workspace is in focus. You can also use "
        "the arrow keys to select shortcuts."),
    Keys(&S::KBLauncherTips, "Keyboard Launcher &Tips",
         "Show tips when the Keyboard Launcher is activated. For more tips please see the online tour."),
    Keys(&S::KeyboardHistory, "Keyboard Launcher History:",
         "Keep a history of previously entered commands. Enter \"!\", Alt+H or use the right-click menu to "
         "show Keyboard Launcher command history."),
    {.Page = FrameKBNavigation,
     .Kind = Kind::TextBox,
     .Name = "txtKBLauncherHistory",
     .Tip = "The number of items to keep in the history file (5-50).",
     .Beside = true,
     .Spoken = "Items in the history",
     .Text = &V::txtKBLauncherHistory,
     .TextLimit = 6},
    Keys(&S::SearchOnSpace, "Start Web Search on Spacebar",
         "When this option is selected, any sequence of words separated by a space letter will perform a web "
         "search instead of a shortcut search. Otherwise, enter 's ' plus a search query to start a web "
         "search."),
    {.Page = FrameKBNavigation,
     .Kind = Kind::TextBox,
     .Name = "txtWebSearch",
     .Caption = "Web Search:",
     .Tip = "The address of the web search; %s stands for what is searched for.",
     .Text = &V::txtWebSearch,
     .TextLimit = addressLimit,
     .Follow = &FollowAddress},
    {.Page = FrameKBNavigation,
     .Kind = Kind::List,
     .Name = "CboSearchEngines",
     .Tip = "Writes the address of a search engine into the box beside it.",
     .Beside = true,
     .Spoken = "Search engine",
     .Choice = &V::CboSearchEngines,
     .Follow = &FollowEngine},
    Keys(&S::CalcOrSpeedLaunch, "&Speed Launch / Calculator",
         "Use the number keys for Speed Launch or to start the calculator. When selected, use = (equal) to "
         "start the calculator. When unselected, use Ctrl + Number for Speed Launch."),
    {.Page = FrameKBNavigation,
     .Kind = Kind::List,
     .Name = "cboSpacebar",
     .Caption = "Spacebar Flip:",
     .Tip =
         "Use the spacebar key to flip through (focus, unfold and expand) containers in the workspace. Flip "
         "through selected containers, all containers, RSS feeds or notes and reminders.\n"
         "Spacebar: Forward\nShift+Spacebar: Backward",
     .Choice = &V::cboSpacebar,
     .Entries = flipEntries,
     .Read = &ReadNumbered<&S::SpacebarFlip, flips>,
     .Write = &WriteNumbered<&S::SpacebarFlip, flips>},
};

constexpr SettingsPageName pages[] = {
    {FrameGeneral, "FrameGeneral", "Ge&neral"},
    {FrameDock, "FrameDock", "&Dock"},
    {FrameContainers, "FrameContainers", "Containe&rs"},
    {FrameShortcuts, "FrameShortcuts", "S&hortcuts"},
    {FrameKBNavigation, "FrameKBNavigation", "Keyboard Na&vigation"},
};

bool Offers(const SettingsControl& control, int place) {
    return place >= 0 && static_cast<std::size_t>(place) < EntriesOf(control).size();
}

// Letters are kept as capitals: that is how a keyboard shows them.
std::string Capital(std::string_view text) {
    std::string character(Trimmed(text));
    if (character.size() == 1 && character[0] >= 'a' && character[0] <= 'z')
        character[0] = static_cast<char>(character[0] - 'a' + 'A');
    return character;
}

void WriteOpacity(S& settings, const std::string& text) {
    if (const auto opacity = ReadWhole(text))
        settings.Opacity =
            static_cast<std::int16_t>(std::clamp<std::int32_t>(*opacity, leastOpacity, mostOpacity));
}

void WriteHistoryCount(S& settings, const std::string& text) {
    if (const auto count = ReadWhole(text))
        settings.KeyboardHistoryCount = static_cast<float>(std::clamp(*count, leastHistory, mostHistory));
}

// An address is one line without blanks around it; an emptied box means the first engine again.
void WriteWebSearch(S& settings, const std::string& text) {
    settings.WebSearch = std::string(Trimmed(text));
}
std::string ShownWebSearch(const S& settings) {
    const auto engines = SearchEngines();
    const bool first = settings.WebSearch.empty() && !engines.empty();
    return first ? std::string(engines.front().Address) : settings.WebSearch;
}

} // namespace

std::span<const SettingsPageName> SettingsPages() {
    return pages;
}
std::span<const SettingsControl> SettingsControls() {
    return controls;
}
SettingsEntries EntriesOf(const SettingsControl& control) {
    return control.Choice == &V::CboSearchEngines ? EngineEntries() : control.Entries;
}

SettingsValues ReadControls(const SettingsRecord& settings) {
    SettingsValues values;
    values.chkSettings = settings;
    for (const auto& control : controls)
        if (control.Read != nullptr) values.*control.Choice = control.Read(settings);
    values.txtOpacity = std::to_string(settings.Opacity);
    values.txtHotkey = settings.GlobalHotkeyChar;
    values.txtKBLauncherHistory = std::to_string(std::lround(settings.KeyboardHistoryCount));
    values.txtWebSearch = ShownWebSearch(settings);
    FollowAddress(values);
    values.picDockBorder = settings.DockingColor;
    return values;
}

void WriteControls(const SettingsValues& now, const SettingsValues& before, SettingsRecord& settings) {
    for (const auto& control : controls) {
        if (const auto field = control.Check; field != nullptr)
            if (now.chkSettings.*field != before.chkSettings.*field) settings.*field = now.chkSettings.*field;
        if (const auto field = control.Choice; field != nullptr && control.Write != nullptr)
            if (now.*field != before.*field && Offers(control, now.*field))
                control.Write(settings, now.*field);
    }
    if (now.txtOpacity != before.txtOpacity) WriteOpacity(settings, now.txtOpacity);
    if (now.txtHotkey != before.txtHotkey) settings.GlobalHotkeyChar = Capital(now.txtHotkey);
    if (now.txtKBLauncherHistory != before.txtKBLauncherHistory)
        WriteHistoryCount(settings, now.txtKBLauncherHistory);
    if (now.txtWebSearch != before.txtWebSearch) WriteWebSearch(settings, now.txtWebSearch);
    if (now.picDockBorder != before.picDockBorder) settings.DockingColor = now.picDockBorder;
}

} // namespace quill
