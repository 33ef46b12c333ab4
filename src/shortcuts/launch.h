// Launch: every way of starting something ends in StartShortcut, which reads the record, and LinkClick, which
// starts it.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

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
void LinkClick(frmMain& Main, Launch launch);
void PreLaunch(frmMain& Main);

// Recent list.
void UpdateRecent(frmMain& Main, int Shortcut);
void RemoveFromRecent(frmMain& Main, int Shortcut);
void ResolveRecentRows(frmMain& Main); // after a load

void lblShortcut_MouseDown(frmMain& Main, int Index, const struct MouseEvent& event);
void lblShortcut_MouseUp(frmMain& Main, int Index, const struct MouseEvent& event);
void lblShortcut_DblClick(frmMain& Main, int Index); // by [Dbl-Click]
void picShortcut_DblClick(frmMain& Main, int Index); // always
// Start all shortcuts in a container, asked about where that is set.
void StartAllInContainer(frmMain& Main, int Index);

} // namespace quill
