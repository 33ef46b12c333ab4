// The fake computer's memory and processors.
#pragma once

#include "platform/counters.h"

#include <utility>
#include <vector>

namespace quill::fake {

class FakeCounters : public Counters {
public:
    Result<MemoryStatus> GlobalMemoryStatus() const override {
        if (Broken || MemoryBroken) return Failure{Reason::NotFound, "no counters"};
        return Memory;
    }
    int ProcessorCount() const override { return Broken ? 0 : static_cast<int>(Loads.size()); }
    Status OpenQuery() override {
        if (Broken) return Failure{Reason::NotFound, "no counters"};
        if (Open) return {};
        Open = first_ = true;
        ++Opened;
        return {};
    }
    std::vector<std::optional<double>> CollectQueryData() override {
        ++Collected;
        if (!Open) return {};
        if (!std::exchange(first_, false)) return Loads;
        return std::vector<std::optional<double>>(Loads.size(), 0.0);
    }
    void CloseQuery() override { Open = false; }

    MemoryStatus Memory{16ULL << 30, 4ULL << 30, 0};
    std::vector<std::optional<double>> Loads{10, 20, 30, 40}; // percent, from the second reading on
    bool Broken = false;
    bool MemoryBroken = false;
    bool Open = false;
    int Opened = 0;
    int Collected = 0;

private:
    bool first_ = false; // nothing was collected since it was opened
};

} // namespace quill::fake
