// SystemInfo: the title row shows free memory and the processors' load, by [SystemInfo]. Where the time is
// wanted too (core/caption.h), this goes before it. The first reading of the processors says 0.0: there is
// nothing yet that it could be compared with.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

bool CpuInit(frmMain& Main); // opens the counters, once; false: the system does not tell
// Starts TimerSysInfo if the counters can be opened; else the line stays as it is, and nothing is said.
void StartCPUMonitoring(frmMain& Main);
void StopCPUMonitoring(frmMain& Main);          // the timer; the counters are closed, the line goes
void ShowSystemInfo(frmMain& Main);             // reads, and brings the line up to date
std::string GetMemoryText(const frmMain& Main); // "4 GB (25%)"; empty: the system does not tell
void TimerSysInfo_Timer(frmMain& Main);

} // namespace quill
