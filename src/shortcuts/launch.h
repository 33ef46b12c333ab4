// Launch: every way of starting something ends in StartShortcut, which reads the record, and LinkClick, which
// starts it.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

struct MouseEvent;

// An empty OverrideParameters means the record's own; one blank means none.
void StartShortcut(frmMain& Main, int Index, bool NoTagStart, const std::string& OverrideParameters,
                   bool ForceAdmin, bool SkipPreLaunch);

// What LinkClick needs, by value: it may wait for a dead server between its steps.
struct Launch {
    int Shortcut = -1;
    bool Confirm = false;
    std::string Caption, Parameters, Path, StartIn;
    int RunIn = 1;
    bool Command = false, Admin = false, Prompt = false, SkipPreLaunch = false;
};
// Confirmation, paths, parameters, PreLaunch, the start, the recent list, in this order. A shortcut that died
// while something was waited for is not started.
void LinkClick(frmMain& Main, Launch launch);
void PreLaunch(frmMain& Main);

// What a failed start tells: "Error: " and the system's text, one at a time.
void ShowLaunchError(frmMain& Main, const std::string& text);

// Recent list.
void UpdateRecent(frmMain& Main, int Shortcut);
void RemoveFromRecent(frmMain& Main, int Shortcut);
void ResolveRecentRows(frmMain& Main); // after a load

void lblShortcut_MouseDown(frmMain& Main, int Index, const MouseEvent& event);
void lblShortcut_MouseUp(frmMain& Main, int Index, const MouseEvent& event);
void lblShortcut_DblClick(frmMain& Main, int Index); // by [Dbl-Click]
void picShortcut_DblClick(frmMain& Main, int Index); // always
// Start all shortcuts in a container, asked about where that is set.
void StartAllInContainer(frmMain& Main, int Index);

} // namespace quill
