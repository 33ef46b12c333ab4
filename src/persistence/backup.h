// Backup: one zip in the settings folder with the committed files as they stand.
#pragma once

#include "core/frmMain.h"
#include "platform/result.h"

#include <string>

namespace quill {

std::string BackupName(const frmMain& Main); // with the date where BackupDateStamp is set
// Packs the committed files; asks and saves nothing. Runs to its end on the calling thread.
Status BackupQuillmere(frmMain& Main, const std::string& FileName);
// The menu's and the save's way in: asks, saves, packs off the thread.
void BackupSetings(frmMain& Main, bool Confirm);
void mnuBackup_Click(frmMain& Main);

} // namespace quill
