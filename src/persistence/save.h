// Saving: two generations of the workspace on the disk, the committed one and the recovery one. At whatever
// moment the program dies the next start has one of them whole; how is told in persistence/generation.h.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

void SaveWorkspace(frmMain& Main, bool Recover, bool Exiting);
void SaveContainers(frmMain& Main, bool Recover);
void KillContainers(frmMain& Main, const std::string& Pattern);
void ClearWorkspace(frmMain& Main);
void mnuSave_Click(frmMain& Main);

} // namespace quill
