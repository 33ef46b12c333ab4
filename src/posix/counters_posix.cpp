#include "posix/counters_posix.h"

#include "posix/descriptor.h"
#include "posix/errors.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fcntl.h>
#include <limits>
#include <map>
#include <string_view>

namespace quill {
namespace {

constexpr std::size_t largestTable = 1 << 20;
constexpr std::uint64_t kilobyte = 1024;

// Whatever else stands under the name, as a pipe, is not waited for.
Result<std::string> ReadTable(const std::string& path) {
    const Descriptor file(
        Repeat([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY); }));
    if (!file) return FailureOfErrno(errno);
    std::string text;
    std::array<char, 16384> bytes;
    while (text.size() < largestTable) {
        const auto got = Repeat([&] { return ::read(file.Get(), bytes.data(), bytes.size()); });
        if (got < 0) return FailureOfErrno(errno);
        if (got == 0) break;
        text.append(bytes.data(), static_cast<std::size_t>(got));
    }
    return text;
}

std::string_view TakeLine(std::string_view& text) {
    const auto end = std::min(text.find('\n'), text.size());
    const auto line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

// The next whole number behind blanks; nothing for anything else.
template <class Number> std::optional<Number> TakeNumber(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    Number number{};
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    if (error != std::errc()) return {};
    line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    if (!line.empty() && line.front() != ' ' && line.front() != '\t') return {};
    return number;
}

// ---- processors

// "user nice system idle iowait irq softirq steal ...": the last ones are missing in old kernels, and what
// follows is counted in the first ones already.
std::optional<ProcessorTimes> TimesOf(std::string_view fields) {
    constexpr int fewest = 4, most = 8, idle = 3, waiting = 4;
    ProcessorTimes times;
    for (int at = 0; at < most; ++at) {
        if (at >= fewest && fields.find_first_not_of(" \t") == fields.npos) break;
        const auto ticks = TakeNumber<std::uint64_t>(fields);
        if (!ticks) return {};
        times.All += *ticks;
        if (at == idle || at == waiting) times.Idle += *ticks;
    }
    return times;
}

// By their numbers; nothing for one whose line is damaged.
using Table = std::map<int, std::optional<ProcessorTimes>>;

// "cpu" without a number is their sum.
Table ProcessorsIn(std::string_view text) {
    constexpr std::string_view mark = "cpu";
    Table table;
    while (!text.empty()) {
        auto line = TakeLine(text);
        if (!line.starts_with(mark) || line.size() == mark.size()) continue;
        line.remove_prefix(mark.size());
        if (line.front() < '0' || line.front() > '9') continue;
        if (const auto number = TakeNumber<int>(line)) table.emplace(*number, TimesOf(line));
    }
    return table;
}

Table ReadProcessors(const std::string& proc) {
    const auto text = ReadTable(proc + "/stat");
    return text ? ProcessorsIn(text.Value()) : Table();
}

// Percent of the time between two readings; nothing when none has passed. The times of idling alone run
// backwards now and then.
std::optional<double> Load(const ProcessorTimes& before, const ProcessorTimes& now) {
    if (now.All <= before.All) return {};
    const auto all = now.All - before.All;
    const auto idle = now.Idle > before.Idle ? std::min(now.Idle - before.Idle, all) : 0;
    return 100.0 * static_cast<double>(all - idle) / static_cast<double>(all);
}

std::optional<double> NextLoad(std::optional<ProcessorTimes>& last, const ProcessorTimes& now) {
    const auto load = last ? Load(*last, now) : 0;
    last = now;
    return load;
}

// ---- memory

// "MemTotal:       16315504 kB", in bytes.
std::optional<std::uint64_t> MemoryValue(std::string_view text, std::string_view name) {
    while (!text.empty()) {
        auto line = TakeLine(text);
        if (!line.starts_with(name)) continue;
        line.remove_prefix(name.size());
        const auto value = TakeNumber<std::uint64_t>(line);
        const bool fits = value && *value <= std::numeric_limits<std::uint64_t>::max() / kilobyte;
        return fits ? std::optional(*value * kilobyte) : std::nullopt;
    }
    return {};
}

// Older kernels do not tell what is available: what is free, and what is kept only while nobody wants it.
std::optional<std::uint64_t> AvailableMemory(std::string_view text) {
    if (const auto available = MemoryValue(text, "MemAvailable:")) return available;
    const auto unused = MemoryValue(text, "MemFree:");
    if (!unused) return {};
    return *unused + MemoryValue(text, "Buffers:").value_or(0) + MemoryValue(text, "Cached:").value_or(0);
}

} // namespace

Result<MemoryStatus> CountersPosix::GlobalMemoryStatus() const {
    const auto text = ReadTable(proc_ + "/meminfo");
    if (!text) return text.Error();
    const auto total = MemoryValue(text.Value(), "MemTotal:");
    const auto available = AvailableMemory(text.Value());
    if (!total || *total == 0 || !available) return Failure{Reason::Damaged, proc_ + "/meminfo"};
    return MemoryStatus{*total, std::min(*available, *total),
                        MemoryValue(text.Value(), "SwapFree:").value_or(0)};
}

int CountersPosix::ProcessorCount() const {
    return static_cast<int>(ReadProcessors(proc_).size());
}

Status CountersPosix::OpenQuery() {
    if (open_) return {};
    const auto table = ReadProcessors(proc_);
    if (table.empty()) return Failure{Reason::NotFound, proc_ + "/stat"};
    for (const auto& [number, times] : table) known_.push_back({number, {}});
    open_ = true;
    return {};
}

std::vector<std::optional<double>> CountersPosix::CollectQueryData() {
    if (!open_) return {};
    auto table = ReadProcessors(proc_);
    std::vector<std::optional<double>> loads(known_.size());
    if (table.empty()) return loads;
    for (std::size_t at = 0; at < known_.size(); ++at) {
        const auto row = table.extract(known_[at].Number);
        if (row.empty())
            known_[at].Last.reset(), loads[at] = 0;
        else if (row.mapped())
            loads[at] = NextLoad(known_[at].Last, *row.mapped());
    }
    for (const auto& [number, times] : table) {
        known_.push_back({number, times});
        loads.emplace_back(0);
    }
    return loads;
}

void CountersPosix::CloseQuery() {
    open_ = false;
    known_.clear();
}

} // namespace quill
