// Caption: the text of the title row, and passing texts in it that go away by themselves. While the workspace
// can't be saved the caption says so, whatever else it would show.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

inline constexpr int PassingCaptionTime = 2500; // milliseconds

std::string NormalCaption(const frmMain& Main);
void SetCaption(frmMain& Main, const std::string& text);         // until something else is set
void ShowPassingCaption(frmMain& Main, const std::string& text); // then the normal one comes back
void RestoreCaption(frmMain& Main);
void TimerRestoreCaption_Timer(frmMain& Main);

} // namespace quill
