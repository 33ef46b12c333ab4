#include "dock/hotkey.h"

#include "appearance/settings_dialog.h"
#include "core/tr.h"
#include "dock/dock_commands.h"
#include "dock/docking.h"
#include "platform/files.h"
#include "platform/hotkeys.h"
#include "platform/questions.h"

#include <algorithm>

namespace quill {
namespace {

// The first row that holds the character is taken.
struct Rung {
    char First, Last;
    int Code; // of First; the codes of the others follow
};

constexpr Rung ladder[] = {
    {'A', 'H', 65}, {'J', 'J', 73},   {'K', 'K', 74}, {'L', 'L', 75}, {'M', 'R', 77},
    {'S', 'S', 83}, {'T', 'Z', 84},   {'_', '_', 32}, {'>', '>', 39}, {'<', '<', 37},
    {'/', '/', 38}, {'\\', '\\', 40}, {'0', '9', 48},
};

constexpr int everyModifier = ModAlt | ModControl | ModShift | ModWin;

void TellRefusal(frmMain& Main) {
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(
        Tr(Main, "Could not register the Global Hotkey since it is already in use by the system or another "
                 "application. Press OK and select different key combination in the following dialog."),
        BoxOk | BoxWarning, ProgramName);
}

bool HasSettingsFile(const frmMain& Main) {
    return Main.P.Files.Exists(Main.SettingsFolder + "/Quillmere.ini");
}

} // namespace

int HotkeyCode(std::string_view character) {
    if (character.size() != 1) return 0;
    char letter = character.front();
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    const auto rung = std::ranges::find_if(
        ladder, [letter](const Rung& row) { return letter >= row.First && letter <= row.Last; });
    return rung == std::end(ladder) ? 0 : rung->Code + (letter - rung->First);
}

bool RegisterGlobalHotkey(frmMain& Main, std::string_view character, int modifiers) {
    const int key = HotkeyCode(character);
    UnregisterGlobalHotkey(Main);
    const bool possible = key != 0 && (modifiers & everyModifier) != 0;
    const bool held = possible && Main.P.Hotkeys.RegisterHotKey(modifiers & everyModifier, key).Ok();
    Main.Dock.HotkeyRefused = !held;
    return held;
}

void UnregisterGlobalHotkey(frmMain& Main) {
    Main.Dock.HotkeyRefused = false;
    Main.P.Hotkeys.UnregisterHotKey();
}

void StartGlobalHotkey(frmMain& Main) {
    const auto& settings = Main.Settings;
    if (!settings.GlobalHotkey) return;
    if (RegisterGlobalHotkey(Main, settings.GlobalHotkeyChar, settings.GlobalHotkeyMod)) return;
    if (!HasSettingsFile(Main)) return;
    TellRefusal(Main);
    ShowSettingsDialog(Main, SettingsPage::FrameKBNavigation, true);
}

} // namespace quill
