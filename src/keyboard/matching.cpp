#include "keyboard/matching.h"

#include "core/lower_case.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quill {
namespace {

constexpr int boundOfContaining = 255; // code points

bool IsAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// Nearly all captions are ASCII, and all of them are folded before a first key is answered.
std::string Folded(std::string_view caption) {
    if (!IsAscii(caption)) return LowerCase(caption);
    std::string lower(caption);
    for (char& letter : lower) letter = LowerAscii(letter);
    return lower;
}

int Length(std::string_view text) {
    return static_cast<int>(std::ranges::count_if(text, [](char byte) { return (byte & 0xC0) != 0x80; }));
}

// What has become of the rows that were collected before.
struct Changes {
    std::vector<int> NowAt; // of each former row; -1: it is gone, or reads otherwise now
    std::vector<int> Added; // rows that are new or read otherwise
};

Changes CollectRows(const frmMain& Main, std::vector<FoldedCaption>& rows) {
    auto former = std::exchange(rows, {});
    rows.reserve(former.size());
    Changes changes{std::vector<int>(former.size(), -1), {}};
    std::size_t at = 0;
    for (const auto& row : Live(Main.Shortcuts)) {
        while (at < former.size() && former[at].Index < row.Index) ++at;
        auto text = Folded(row.Object.FullCaption);
        const int now = static_cast<int>(rows.size());
        const bool same = at < former.size() && former[at].Index == row.Index && former[at].Text == text;
        (same ? changes.NowAt[at] : changes.Added.emplace_back()) = now;
        const int length = same ? former[at].Length : Length(text);
        rows.push_back({row.Index, length, std::move(text)});
    }
    return changes;
}

// Only what was added is sorted; the others stand in order already. first tells of two rows in the wanted
// order which comes first.
template <class First> void Rearrange(std::vector<int>& order, Changes& changes, const First& first) {
    std::vector<int> kept;
    kept.reserve(order.size());
    for (const int former : order) {
        const int now = changes.NowAt[static_cast<std::size_t>(former)];
        if (now != -1) kept.push_back(now);
    }
    std::ranges::sort(changes.Added, first);
    order.clear();
    order.reserve(kept.size() + changes.Added.size());
    std::ranges::merge(kept, changes.Added, std::back_inserter(order), first);
}

void Collect(frmMain& Main) {
    auto& index = Main.Keys.Captions;
    auto changes = CollectRows(Main, index.InTable);
    const auto row = [&](int at) -> const FoldedCaption& {
        return index.InTable[static_cast<std::size_t>(at)];
    };
    Rearrange(index.Sorted, changes, [&](int one, int other) {
        const int order = row(one).Text.compare(row(other).Text);
        return order != 0 ? order < 0 : one < other;
    });
    Rearrange(index.ByLength, changes, [&](int one, int other) {
        const int order = row(one).Length - row(other).Length;
        return order != 0 ? order < 0 : one < other;
    });
    index.Revision = Main.Links.CaptionsRevision;
}

const FoldedCaption& Row(const CaptionIndex& index, int row) {
    return index.InTable[static_cast<std::size_t>(row)];
}

int FirstFrom(const CaptionIndex& index, std::string_view text) {
    const auto found = std::ranges::lower_bound(
        index.Sorted, text, {}, [&](int row) -> std::string_view { return Row(index, row).Text; });
    return found == index.Sorted.end() ? -1 : *found;
}

int ByName(const CaptionIndex& index, std::string_view text) {
    const int row = FirstFrom(index, text);
    return row != -1 && Row(index, row).Text.starts_with(text) ? Row(index, row).Index : NoMatch;
}

int ByPart(const CaptionIndex& index, std::string_view text) {
    for (const int row : index.ByLength) {
        const auto& caption = Row(index, row);
        if (caption.Length >= boundOfContaining) break;
        if (caption.Text.size() >= text.size() && caption.Text.find(text) != std::string::npos)
            return caption.Index;
    }
    return NoMatch;
}

int InFront(const CaptionIndex& index, std::string_view text) {
    for (auto blank = text.rfind(' '); blank != 0 && blank != std::string_view::npos;
         blank = text.rfind(' ', blank - 1)) {
        const auto name = text.substr(0, blank);
        const int row = FirstFrom(index, name);
        if (row != -1 && Row(index, row).Text == name) return Row(index, row).Index;
    }
    return NoMatch;
}

// A row that died without a word about its caption is looked past once.
template <class Find> int FindLive(frmMain& Main, const Find& find, std::string_view text) {
    const int found = find(Captions(Main), text);
    if (found == NoMatch || IsLive(Main.Shortcuts, found)) return found;
    Collect(Main);
    return find(Main.Keys.Captions, text);
}

} // namespace

const CaptionIndex& Captions(frmMain& Main) {
    if (Main.Keys.Captions.Revision != Main.Links.CaptionsRevision) Collect(Main);
    return Main.Keys.Captions;
}

int FindShortcutByName(frmMain& Main, std::string_view text) {
    return FindLive(Main, ByName, text);
}

int FindShortcutContaining(frmMain& Main, std::string_view text) {
    return FindLive(Main, ByPart, text);
}

int FindShortcutInFront(frmMain& Main, std::string_view text) {
    return FindLive(Main, InFront, text);
}

bool IsNamed(const frmMain& Main, int Shortcut, std::string_view text) {
    return IsLive(Main.Shortcuts, Shortcut) && Folded(Main.Link(Shortcut).FullCaption) == text;
}

} // namespace quill
