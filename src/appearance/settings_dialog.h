// The settings dialog as the rest of the program calls it.
#pragma once

#include "core/frmMain.h"

namespace quill {

enum class SettingsPage { FrameGeneral, FrameDock, FrameContainers, FrameShortcuts, FrameKBNavigation };

// A question, as every dialog. emphasizeHotkey draws the eye to the hotkey, which another program has.
void ShowSettingsDialog(frmMain& Main, SettingsPage page, bool emphasizeHotkey = false);

} // namespace quill
