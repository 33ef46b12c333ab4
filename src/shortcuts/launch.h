// Launch: every way of starting something ends in StartShortcut, which reads the record, and LinkClick, which
// starts it.
#pragma once

#include "core/frmMain.h"
#include "platform/result.h"

#include <string>

namespace quill {

struct MouseEvent;

// An empty OverrideParameters means the record's own; one blank means none. A shortcut with TagStart starts
// all that share its tags instead, unless NoTagStart says that it is meant itself.
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
// All of it from the record; the caption only where the start is asked about.
Launch LaunchOf(const frmMain& Main, int Index);
// Confirmation, paths, parameters, PreLaunch, the start, the recent list, in this order. A shortcut that died
// while something was waited for is not started.
void LinkClick(frmMain& Main, Launch launch);
void PreLaunch(frmMain& Main);

// A failed start tells the system's text in the shortcut's properties, so that the target can be mended at
// once. While those are open a second failure tells nothing.
void ShowLaunchError(frmMain& Main, int Shortcut, const Failure& failure);

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
