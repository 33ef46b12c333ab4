// Save report: what a person learns of a save that went wrong. No box ever: a line on standard error, and the
// title row, which says it until a save succeeds.
#pragma once

#include "core/frmMain.h"
#include "platform/result.h"

#include <string>

namespace quill {

void ReportSave(frmMain& Main, const Status& saved);
// An interrupted save that could not be trusted was put there; an empty path says nothing.
void ReportDamagedSave(frmMain& Main, const std::string& path);

} // namespace quill
