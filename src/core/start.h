// Start and stop: the entry routine, the order in which the workspace comes up, and the way out.
#pragma once

#include "core/core_state.h"

#include <string>
#include <vector>

namespace quill {

struct frmMain;
struct Platform;

// Arguments without the program's own name. Knows no platform.
StartOptions ReadCommandLine(const std::vector<std::string>& arguments);

// The entry routine: switches, settings folder, one running copy, load, event loop. Returns the exit status.
int Main(const Platform& platform, const std::vector<std::string>& arguments);

std::string CommandLineHelp(); // the text of "/?"
std::string PlainHelp();       // the text of --help

void SettleSettingsFolder(frmMain& Main); // PortableMode and SettingsFolder
void LoadSettings(frmMain& Main);         // core/start_load.cpp, reads like the list that it is
Rect FirstPlace(const frmMain& Main);     // of the window while no file tells one
void FirstRun(frmMain& Main);             // no settings file: the default workspace
void PostLoad(frmMain& Main);

// The way out. mnuExitApp_Click calls mnuExitMainWin_Click, which unloads the window.
void mnuExitApp_Click(frmMain& Main);
void mnuExitMainWin_Click(frmMain& Main);
void UnloadMain(frmMain& Main);              // the exit routine in its order, each step for itself; runs once
void RestartIgnoringChanges(frmMain& Main);  // [Ignore Changes]
void mnuClearWorkspace_Click(frmMain& Main); // "Clear Workspace" with its question
void mnuLoadDefaults_Click(frmMain& Main);   // "Load the default settings?"

} // namespace quill
