#include "system/system_info.h"

#include "core/caption.h"
#include "core/tr.h"
#include "platform/clock.h"
#include "platform/counters.h"
#include "system/size_texts.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <numeric>

namespace quill {
namespace {

constexpr TimerId timer{TimerName::TimerSysInfo};
constexpr int period = 2000; // milliseconds

std::string SizeText(std::uint64_t bytes) {
    return NumberInKB(static_cast<std::uint32_t>(bytes), static_cast<std::int32_t>(bytes >> 32));
}

std::string OneDecimal(double value) {
    char text[64];
    const auto end = std::to_chars(std::begin(text), std::end(text), std::round(value * 10) / 10,
                                   std::chars_format::fixed, 1);
    return {text, end.ptr};
}

// What can't be read leaves the last value of that processor. One that was added while we run counts from
// now on.
void ReadLoads(frmMain& Main) {
    auto& system = Main.System;
    const auto read = Main.P.Counters.CollectQueryData();
    if (read.size() > system.CpuValues.size()) {
        system.CpuValues.resize(read.size());
        system.CpuCount = static_cast<int>(read.size()) - 1;
    }
    for (std::size_t at = 0; at < read.size(); ++at)
        if (read[at]) system.CpuValues[at] = *read[at];
}

double Load(const SystemState& system) {
    const double sum = std::accumulate(system.CpuValues.begin(), system.CpuValues.end(), 0.0);
    return sum / (system.CpuCount + 1);
}

bool IsSeen(const frmMain& Main) {
    return Main.View.Visible || Main.Dock.DockPosition != 0;
}

} // namespace

bool CpuInit(frmMain& Main) {
    auto& system = Main.System;
    if (system.CpuQuery) return true;
    const int processors = Main.P.Counters.ProcessorCount();
    if (processors < 1 || !Main.P.Counters.OpenQuery()) return false;
    system.CpuCount = processors - 1;
    system.CpuQuery = true;
    return true;
}

void StartCPUMonitoring(frmMain& Main) {
    if (!CpuInit(Main)) return;
    Main.System.CpuValues.resize(static_cast<std::size_t>(Main.System.CpuCount) + 1);
    Main.P.Clock.Start(timer, period);
}

void StopCPUMonitoring(frmMain& Main) {
    Main.P.Clock.Stop(timer);
    if (Main.System.CpuQuery) Main.P.Counters.CloseQuery();
    Main.System.CpuQuery = false;
    Main.System.CpuValues.clear();
    SetCaptionLine(Main, Main.System.SystemLine, {});
}

// Memory that can't be told just now leaves the whole line as it is.
void ShowSystemInfo(frmMain& Main) {
    const auto memory = GetMemoryText(Main);
    if (!Main.System.CpuQuery || memory.empty()) return;
    ReadLoads(Main);
    SetCaptionLine(Main, Main.System.SystemLine,
                   Tr(Main, "Free Memory: %1 | CPU Utilization: %2%", memory, OneDecimal(Load(Main.System))));
}

std::string GetMemoryText(const frmMain& Main) {
    const auto memory = Main.P.Counters.GlobalMemoryStatus();
    if (!memory || memory.Value().TotalPhysical == 0) return {};
    const auto& status = memory.Value();
    const double part =
        static_cast<double>(status.AvailablePhysical) / static_cast<double>(status.TotalPhysical);
    return Tr(Main, "%1 (%2%)", SizeText(status.AvailablePhysical), std::to_string(std::lround(part * 100)));
}

void TimerSysInfo_Timer(frmMain& Main) {
    if (Main.Dock.DialogPauses > 0 || !IsSeen(Main) || Main.Group.FrameLinkGroup) return;
    ShowSystemInfo(Main);
}

} // namespace quill
