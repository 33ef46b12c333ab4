// The recent list: the shortcuts started last, newest first, none twice.
#include "shortcuts/launch.h"

#include "core/objects.h"

#include <algorithm>
#include <cmath>

namespace quill {

namespace {

constexpr float SamePlace = 1; // twips between a place in the files and the one in the tables

bool IsRowOf(const frmMain& Main, const RecentRow& row, int index) {
    const ShortcutView& view = Main.LinkView(index);
    return std::abs(view.lblShortcut.Place.Left - row.Left) <= SamePlace &&
           std::abs(view.lblShortcut.Place.Top - row.Top) <= SamePlace &&
           view.lblShortcut.Caption == row.Caption && ParentName(view.In) == row.ParentName;
}

// The shortcut of each row, -1 for none, in one walk over a table that may be long. No shortcut answers to
// two rows.
std::vector<int> FindRows(const frmMain& Main) {
    const auto& rows = Main.Links.RecentRows;
    std::vector<int> found(rows.size(), -1);
    for (const auto& entry : Live(Main.Shortcuts)) {
        for (std::size_t at = 0; at < rows.size(); ++at) {
            if (found[at] != -1 || !IsRowOf(Main, rows[at], entry.Index)) continue;
            found[at] = entry.Index;
            break;
        }
    }
    return found;
}

bool Holds(const std::vector<RecentItem>& items, int shortcut) {
    return std::any_of(items.begin(), items.end(),
                       [=](const RecentItem& item) { return item.Tag == shortcut; });
}

} // namespace

void RemoveFromRecent(frmMain& Main, int Shortcut) {
    std::erase_if(Main.Links.Recent, [=](const RecentItem& item) { return item.Tag == Shortcut; });
}

void UpdateRecent(frmMain& Main, int Shortcut) {
    if (!IsLive(Main.Shortcuts, Shortcut)) return;
    RemoveFromRecent(Main, Shortcut);
    auto& items = Main.Links.Recent;
    items.insert(items.begin(), {Main.LinkView(Shortcut).lblShortcut.Caption, Shortcut});
    if (items.size() > MaxRecent) items.resize(MaxRecent);
}

void ResolveRecentRows(frmMain& Main) {
    if (Main.Links.RecentRows.empty()) return;
    const std::vector<int> found = FindRows(Main);
    auto& items = Main.Links.Recent;
    for (std::size_t at = 0; at < found.size() && items.size() < MaxRecent; ++at)
        if (found[at] != -1 && !Holds(items, found[at]))
            items.push_back({Main.Links.RecentRows[at].Caption, found[at]});
    Main.Links.RecentRows.clear();
}

} // namespace quill
