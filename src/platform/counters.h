// Counters: the system's memory and the load of its processors.
#pragma once

#include "platform/result.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quill {

// Bytes.
struct MemoryStatus {
    std::uint64_t TotalPhysical = 0;
    std::uint64_t AvailablePhysical = 0; // without swapping
    std::uint64_t AvailablePage = 0;     // of swap space
};

class Counters {
public:
    virtual ~Counters() = default;

    virtual Result<MemoryStatus> GlobalMemoryStatus() const = 0;
    // Logical processors.
    virtual int ProcessorCount() const = 0;
    // Begins to count; a failure when the system does not tell. A second call does nothing.
    virtual Status OpenQuery() = 0;
    // Percent of the time since the last call (or OpenQuery) in which each processor was busy; nothing for
    // one whose counter can't be read. The first call after OpenQuery gives 0 for each.
    virtual std::vector<std::optional<double>> CollectQueryData() = 0;
    virtual void CloseQuery() = 0;
};

} // namespace quill
