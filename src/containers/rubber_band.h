// Rubber band: from a press on an empty place of the workspace to the release; every shortcut and container
// that it touches is selected.
#pragma once

#include "core/frmMain.h"

namespace quill {

struct MouseEvent;

void BeginRubberBand(frmMain& Main, const MouseEvent& event);
void RubberBand_MouseMove(frmMain& Main, const MouseEvent& event); // while frmSelection is loaded
void RubberBand_MouseUp(frmMain& Main, const MouseEvent& event);
void UnloadSelection(frmMain& Main); // closes frmSelection and selects nothing

} // namespace quill
