// Keys of the launcher's field, and what else the field tells. The left arrow leads up from folder to folder
// only with the caret at the end, so that a typing error further ahead can be reached.
#include "keyboard/jump_to.h"

#include "core/lower_case.h"
#include "keyboard/path_walk.h"
#include "keyboard/preview.h"
#include "keyboard/run_text.h"
#include "keyboard/search_list.h"
#include "shortcuts/speed_launch.h"

#include <algorithm>

namespace quill {
namespace {

constexpr int pageOfList = 10;

SearchBox& Box(frmMain& Main) {
    return Main.Keys.PicJumpToLink.cboSearch;
}

bool IsCaretAtEnd(const SearchBox& box) {
    return box.SelStart + box.SelLength >= CodePoints(box.Text);
}

// What stands behind the name already stays.
bool Complete(frmMain& Main, const std::string& behind) {
    const std::string name = Main.Keys.MatchedName;
    if (name.empty()) return false;
    const bool stands = LowerCase(Box(Main).Text).starts_with(LowerCase(name) + " ");
    const std::string text = stands ? Box(Main).Text : name + behind;
    Main.Keys.Picked = Main.Keys.PreviewedShortcut;
    CloseSearchList(Main);
    PutSearchText(Main, text, CodePoints(text));
    PreviewText(Main, NoMatch);
    return true;
}

bool TabKey(frmMain& Main) {
    Complete(Main, " ");
    return true; // the keyboard stays in the field
}

bool DownBy(frmMain& Main, int lines) {
    if (Box(Main).DroppedDown)
        MoveInSearchList(Main, lines);
    else if (Box(Main).List.empty())
        FillSearchList(Main);
    else
        OpenSearchList(Main);
    return true;
}

bool DownKey(frmMain& Main) {
    return DownBy(Main, 1);
}
bool PageDownKey(frmMain& Main) {
    return DownBy(Main, pageOfList);
}

template <int Lines> bool UpKey(frmMain& Main) {
    if (Box(Main).DroppedDown) MoveInSearchList(Main, -Lines);
    return true;
}

bool RightKey(frmMain& Main) {
    const std::string text = Box(Main).Text;
    if (!IsCaretAtEnd(Box(Main)) || text.starts_with('=')) return false;
    if (IsWalkable(text)) return ListSubfolders(Main, text, ListThen::Keep), true;
    return Complete(Main, {});
}

bool LeftKey(frmMain& Main) {
    const std::string text = Box(Main).Text;
    if (!IsWalkable(text) || !IsCaretAtEnd(Box(Main)) || Box(Main).SelLength != 0) return false;
    CloseSearchList(Main);
    const auto up = UpOneFolder(text);
    PutSearchText(Main, up, CodePoints(up));
    PreviewText(Main, NoMatch);
    return true;
}

bool EscapeKey(frmMain& Main) {
    if (Box(Main).Text.empty()) return ClosePicJumpTo(Main), true;
    CloseSearchList(Main);
    return SetSearchText(Main, {}, 0), true;
}

bool SelectAllKey(frmMain& Main) {
    auto& box = Box(Main);
    box.SelStart = 0;
    box.SelLength = CodePoints(box.Text);
    ++box.Revision;
    Main.Marks.JumpTo();
    return true;
}

bool EnterKey(frmMain& Main) {
    RunTypedText(Main);
    return true;
}

bool AdminKey(frmMain& Main) {
    RunAsAdministrator(Main);
    return true;
}

struct SearchKeyRow {
    int Code;
    bool Ctrl;
    bool (*Action)(frmMain&); // true: used
};

constexpr SearchKeyRow keys[] = {
    {KeyTab, false, &TabKey},
    {KeyDown, false, &DownKey},
    {KeyUp, false, &UpKey<1>},
    {KeyPageDown, false, &PageDownKey},
    {KeyPageUp, false, &UpKey<pageOfList>},
    {KeyRight, false, &RightKey},
    {KeyLeft, false, &LeftKey},
    {KeyEscape, false, &EscapeKey},
    {'A', true, &SelectAllKey},
    {KeyReturn, false, &EnterKey},
    {KeyReturn, true, &AdminKey},
};

bool IsCtrlDigit(const KeyEvent& event) {
    return event.Ctrl && !event.Alt && !event.Shift && event.Code >= '1' && event.Code <= '9';
}

bool OpensHistory(const frmMain& Main, const std::string& text) {
    return text == "!" && !Main.Keys.HistoryMode;
}

} // namespace

void cboSearch_Change(frmMain& Main, const std::string& text, int caret) {
    if (!IsJumpToOpen(Main)) return;
    auto& box = Box(Main);
    box.Text = text;
    box.SelStart = caret;
    box.SelLength = 0;
    if (OpensHistory(Main, text)) return ShowHistory(Main);
    // A list that was made for another text goes; the history is none.
    if (Main.Keys.HistoryMode)
        box.ListIndex = -1;
    else
        CloseSearchList(Main);
    int match = NoMatch;
    UpdateJumpTo(Main, text, match);
}

bool cboSearch_KeyDown(frmMain& Main, const KeyEvent& event, int SelStart, int SelLength) {
    if (!IsJumpToOpen(Main)) return false;
    Box(Main).SelStart = SelStart;
    Box(Main).SelLength = SelLength;
    if (IsCtrlDigit(event)) return SpeedLaunchKey(Main, event.Code), true;
    if (event.Shift || event.Alt) return false;
    const auto row = std::ranges::find_if(
        keys, [&](const SearchKeyRow& key) { return key.Code == event.Code && key.Ctrl == event.Ctrl; });
    return row != std::end(keys) && row->Action(Main);
}

void cboSearch_Highlight(frmMain& Main, int row) {
    auto& box = Box(Main);
    if (!box.DroppedDown || row >= static_cast<int>(box.List.size())) return;
    box.ListIndex = std::max(-1, row);
    Main.Marks.JumpTo();
}

void cboSearch_Choose(frmMain& Main, int row) {
    auto& box = Box(Main);
    if (!box.DroppedDown || row < 0 || row >= static_cast<int>(box.List.size())) return;
    TakeLine(Main, row);
    CloseSearchList(Main);
    ++box.FocusWish;
}

} // namespace quill
