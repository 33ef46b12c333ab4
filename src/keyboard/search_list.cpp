#include "keyboard/search_list.h"

#include "core/lower_case.h"
#include "keyboard/history.h"
#include "keyboard/jump_to.h"
#include "keyboard/matching.h"
#include "keyboard/path_walk.h"
#include "keyboard/preview.h"
#include "platform/windows.h"

#include <algorithm>
#include <string_view>

namespace quill {
namespace {

SearchBox& Box(frmMain& Main) {
    return Main.Keys.PicJumpToLink.cboSearch;
}

std::string_view FirstLetter(std::string_view text) {
    return text.substr(0, ByteOfCodePoint(text, 1));
}

// Names that begin with the first letter of the text, then those that hold the text; nothing twice.
std::vector<JumpItem> ShortcutLines(frmMain& Main, const std::string& lower) {
    std::vector<JumpItem> begin, hold;
    const auto letter = FirstLetter(lower);
    for (const auto& caption : Captions(Main).InTable) {
        if (!IsLive(Main.Shortcuts, caption.Index) || caption.Text.empty()) continue;
        const bool same = !letter.empty() && FirstLetter(caption.Text) == letter;
        if (!same && caption.Text.find(lower) == std::string::npos) continue;
        (same ? begin : hold).push_back({Main.Link(caption.Index).FullCaption, caption.Index});
    }
    std::ranges::move(hold, std::back_inserter(begin));
    return begin;
}

} // namespace

void SetSearchList(frmMain& Main, std::vector<JumpItem> items) {
    auto& box = Box(Main);
    box.List = std::move(items);
    box.ListIndex = -1;
    box.DroppedDown = false;
    ++box.ListRevision;
    Main.Marks.JumpTo();
}

void OpenSearchList(frmMain& Main) {
    if (Box(Main).List.empty()) return;
    Box(Main).DroppedDown = true;
    Main.Marks.JumpTo();
}

void CloseSearchList(frmMain& Main) {
    Main.Keys.HistoryMode = false;
    if (!Box(Main).List.empty() || Box(Main).DroppedDown) SetSearchList(Main, {});
}

void FillSearchList(frmMain& Main) {
    const std::string text = Box(Main).Text;
    if (IsWalkable(text)) return ListSubfolders(Main, text);
    Main.P.Windows.ShowBusy(true);
    SetSearchList(Main, ShortcutLines(Main, LowerCase(text)));
    Main.P.Windows.ShowBusy(false);
    OpenSearchList(Main);
}

void FillHistoryList(frmMain& Main) {
    std::vector<JumpItem> items;
    for (auto& line : HistoryLines(Main)) items.push_back({std::move(line), -1});
    SetSearchList(Main, std::move(items));
    OpenSearchList(Main);
}

void MoveInSearchList(frmMain& Main, int by) {
    const int last = static_cast<int>(Box(Main).List.size()) - 1, now = Box(Main).ListIndex;
    if (last < 0 || (now == -1 && by < 0)) return;
    const int row = std::clamp(now + by, 0, last);
    Box(Main).ListIndex = row;
    Main.Marks.JumpTo();
    TakeLine(Main, row);
}

void TakeLine(frmMain& Main, int row) {
    const JumpItem item = Box(Main).List[static_cast<std::size_t>(row)];
    Main.Keys.Picked = item.Index;
    PutSearchText(Main, item.Text, CodePoints(item.Text));
    PreviewText(Main, item.Index);
}

} // namespace quill
