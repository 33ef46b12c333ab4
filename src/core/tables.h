// Tables: the four object tables and the rule of their rows. A table only grows. A row is live while its
// Index is not -1; row 0 exists from the start and counts as dead until the first object takes it. Indices
// are never used again while the program runs, and are handed out afresh in file order by a load. "None" is
// -1 everywhere.
#pragma once

#include "core/clsContainer.h"
#include "core/clsPicture.h"
#include "core/clsShortcut.h"

#include <cstdint>
#include <vector>

namespace quill {

struct ContainerEntry {
    std::int32_t Index = -1;
    clsContainer Object;
};

struct ShortcutEntry {
    std::int32_t Index = -1;
    clsShortcut Object;
};

struct PictureEntry {
    std::int32_t Index = -1;
    clsPicture Object;
};

inline constexpr std::uint8_t KindContainer = 1;
inline constexpr std::uint8_t KindPicture = 2;

struct ZOrderEntry {
    std::uint8_t Kind = KindContainer;
    std::int32_t Index = -1;
    bool operator==(const ZOrderEntry&) const = default;
};

inline constexpr int MaxShortcutsInContainer = 250;
inline constexpr int MaxShortcutsOnWorkspace = 350;
inline constexpr int MaxSubjects = 20;
inline constexpr int MaxRecent = 10;

// The rows of a table that are alive; every walk goes through it, so that the rule stands once.
//     for (auto& row : Live(Main.Containers)) ...
template <class Table> class LiveRows {
public:
    explicit LiveRows(Table& table) : table_(table) {}

    class Iterator {
    public:
        Iterator(Table& table, std::size_t at) : table_(table), at_(at) { Skip(); }
        auto& operator*() const { return table_[at_]; }
        Iterator& operator++() {
            ++at_;
            Skip();
            return *this;
        }
        // The end is asked of the table at each step, so that a walk may add rows.
        bool operator!=(const Iterator&) const { return at_ < table_.size(); }

    private:
        void Skip() {
            while (at_ < table_.size() && table_[at_].Index == -1) ++at_;
        }
        Table& table_;
        std::size_t at_;
    };

    Iterator begin() const { return {table_, 0}; }
    Iterator end() const { return {table_, table_.size()}; }

private:
    Table& table_;
};

template <class Table> LiveRows<Table> Live(Table& table) {
    return LiveRows<Table>(table);
}

template <class Table> bool IsLive(const Table& table, std::int32_t index) {
    return index >= 0 && static_cast<std::size_t>(index) < table.size() &&
           table[static_cast<std::size_t>(index)].Index != -1;
}

} // namespace quill
