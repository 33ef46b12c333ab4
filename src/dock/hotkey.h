// Hotkey: the key that calls the workspace from anywhere.
#pragma once

#include "core/frmMain.h"

#include <string_view>

namespace quill {

// The virtual key code of the character that the settings hold, by a fixed ladder: J, K and L stand for the
// key before them and I for none, which is required. 0: no key.
int HotkeyCode(std::string_view character);
// True if the system has accepted it; the key before it is given up in any case. No key and no modifier are
// refused without asking.
bool RegisterGlobalHotkey(frmMain& Main, std::string_view character, int modifiers);
void UnregisterGlobalHotkey(frmMain& Main);
// By the settings, at start: a refusal is told, and leads into the settings.
void StartGlobalHotkey(frmMain& Main);

} // namespace quill
