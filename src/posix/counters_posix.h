// Counters over the kernel's tables in /proc. They lie in memory, so that reading them wakes no disk and
// waits for nothing. What is damaged, missing or runs backwards is no value; the next reading begins anew
// there.
#pragma once

#include "platform/counters.h"

#include <string>
#include <utility>

namespace quill {

// Of one processor since the system began, in ticks of the kernel.
struct ProcessorTimes {
    std::uint64_t Idle = 0;
    std::uint64_t All = 0;
};

class CountersPosix : public Counters {
public:
    // Where the tables stand; another folder in tests.
    explicit CountersPosix(std::string proc = "/proc") : proc_(std::move(proc)) {}

    Result<MemoryStatus> GlobalMemoryStatus() const override;
    int ProcessorCount() const override;
    Status OpenQuery() override;
    // In the order in which they were first met. One that is switched off does nothing: 0. Those that are
    // added later stand at the end.
    std::vector<std::optional<double>> CollectQueryData() override;
    void CloseQuery() override;

private:
    struct Processor {
        int Number = 0;
        std::optional<ProcessorTimes> Last; // nothing: the next reading is the first
    };

    std::string proc_;
    bool open_ = false;
    std::vector<Processor> known_;
};

} // namespace quill
