// The system room's part of the workspace's state.
#pragma once

#include <string>
#include <vector>

namespace quill {

struct SystemState {
    bool CpuQuery = false;         // the counters are open
    int CpuCount = 0;              // logical processors minus 1
    std::vector<double> CpuValues; // percent, the last reading of each
    std::string SystemLine;        // what lblCaption shows of memory and load; empty: nothing yet
    std::string TimeLine;          // the time and date as of the last heartbeat; empty: not by [ShowTime]
};

} // namespace quill
