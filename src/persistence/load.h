// Loading: which generation is read, the reading itself, and what happens with a damaged file. The order of
// the whole start stands in core/start_load.cpp.
#pragma once

#include "core/frmMain.h"

#include <optional>
#include <string>
#include <vector>

namespace quill {

struct GenerationFiles {
    std::string Settings;                // full path; empty: there is none, a first run
    std::vector<std::string> Containers; // full paths in the order to load
    bool Recovery = false;               // the recovery set is what is read
};

// Values that the settings file holds and the end of the load applies.
struct DeferredSettings {
    std::optional<std::string> X, Y, W, H, Hidden, WindowState, Maximized, SuspendAutoCollapse, Locked;
};

void InitDefaultSettings(SettingsRecord& settings); // all but colours, fonts and icon sizes
void InitAppearanceDefaults(SettingsRecord& settings);

void FinishInterruptedSave(frmMain& Main);          // first: what a death left half moved
GenerationFiles ChooseGeneration(frmMain& Main);    // .bak of older versions, recovery set, committed set
GenerationFiles CommittedGeneration(frmMain& Main); // the same with the recovery set left out: it is damaged
// Tries whether the recovery set can be read whole; where it can't be, asks, and files becomes the committed
// set. False when the user chose to end.
bool SettleGeneration(frmMain& Main, GenerationFiles& files);
// Reads one file into the tables; asks about damage. False when the user chose to end: nothing on disk is
// touched.
bool ReadSettingsFile(frmMain& Main, const GenerationFiles& files, DeferredSettings& deferred);
// #STARTUP containers are added to startup. False: the load ended (limit, or the user's wish).
bool ReadContainerFiles(frmMain& Main, const GenerationFiles& files, std::vector<int>& startup);
// On the disk, after all has loaded: what was read becomes the committed generation. Call it after every
// load; mostly there is nothing to do. A recovery set that was not read goes aside whole.
void TakeOverRecovery(frmMain& Main, const GenerationFiles& files);

} // namespace quill
