// Caption: the text of the title row, and passing texts in it that go away by themselves. The normal one is
// the first of these that there is: why the workspace can't be saved, that it does not collapse by itself,
// how many shortcuts are selected, memory and load, the time, the program's name.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

inline constexpr int PassingCaptionTime = 2500; // milliseconds

std::string NormalCaption(const frmMain& Main);
void SetCaption(frmMain& Main, const std::string& text);         // until something else is set
void ShowPassingCaption(frmMain& Main, const std::string& text); // then the normal one comes back
void RestoreCaption(frmMain& Main);
// Brings a line that the normal caption may show up to date. What else stands in the title row stays there.
void SetCaptionLine(frmMain& Main, std::string& line, std::string text);
// The time and date by [ShowTime], as of now; the heartbeat calls it.
void ShowTimeLine(frmMain& Main);
void TimerRestoreCaption_Timer(frmMain& Main);

} // namespace quill
