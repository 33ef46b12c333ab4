// Saving: two generations of the workspace on the disk, the committed one and the recovery one. At whatever
// moment the program dies the next start has one of them whole; how is told in persistence/generation.h.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

// False while IsLoading, under g_DontSave and after the exit's own save; a save does nothing then.
bool MaySave(const frmMain& Main);
// A failure is told by the title row and leaves what stands on the disk whole.
void SaveWorkspace(frmMain& Main, bool Recover, bool Exiting);
void SaveContainers(frmMain& Main, bool Recover);
void KillContainers(frmMain& Main, const std::string& Pattern); // one by one; case does not matter
// The recovery generation goes, all of it at once: the next start has the committed one. False: it is still
// there.
bool DropRecovery(frmMain& Main);
void ClearWorkspace(frmMain& Main); // touches no file
void mnuSave_Click(frmMain& Main);

} // namespace quill
