#include "keyboard/jump_to.h"

#include "appearance/tips.h"
#include "containers/fold.h"
#include "containers/shrink.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "keyboard/jump_to_measures.h"
#include "keyboard/preview.h"
#include "keyboard/run_text.h"
#include "keyboard/search_list.h"
#include "persistence/save.h"
#include "platform/questions.h"

#include <algorithm>
#include <utility>

namespace quill {
namespace {

constexpr std::string_view tips[] = {
    "Keyboard Launcher Tips:",
    "Type any part of a shortcut and [Enter].",
    "[Tab] for additional parameters.",
    " URL to open the browser.",
    "[t ] Tag Start.",
    " [r ] Quick Reminder.",
    " [n ] Create a note.",
    "[s ] Web search.",
    " [=] Calculate an expression.",
    " [/] Navigate the directory tree. See the online tour for more.",
    "Disable from the Settings dialog",
};

// What is open for the moment goes back to rest, and the box opens empty.
void Open(frmMain& Main) {
    HideTip(Main);
    ShrinkBackContainer(Main, false);
    AutoFoldContainer(Main, Main.Group.AutoFoldContainerIndex);
    auto& keys = Main.Keys;
    auto& box = keys.PicJumpToLink;
    keys.HistoryMode = false;
    keys.MatchIndex = NoMatch;
    keys.MatchedName.clear();
    keys.PreviewedShortcut = keys.Picked = -1;
    PutSearchText(Main, {}, 0);
    ShowOwnLook(Main);
    box.lblHistoryVisible = Main.Settings.KeyboardHistory;
    box.Visible = keys.LauncherActive = true;
}

// The box is higher while it tells about itself.
void Centre(frmMain& Main) {
    Main.Keys.PicJumpToLink.Place = PlaceOfJumpTo(Main);
}

void OpenHistory(frmMain& Main) {
    Main.Keys.PicJumpToLink.lblJumpToLink = Tr(Main, "History");
    FillHistoryList(Main);
    Main.Keys.HistoryMode = Main.Keys.PicJumpToLink.cboSearch.DroppedDown;
}

bool HistoryTurnedOn(frmMain& Main) {
    if (Main.Settings.KeyboardHistory) return true;
    {
        const DialogPause pause(Main);
        if (Main.P.Questions.MsgBox(Tr(Main, "Keyboard Launcher History is turned off. Turn on?"),
                                    BoxYesNo | BoxWarning, ProgramName) != AnswerYes)
            return false;
    }
    if (Main.IsExiting) return false;
    Main.Settings.KeyboardHistory = Main.Keys.PicJumpToLink.lblHistoryVisible = true;
    SaveWorkspace(Main, true, false);
    return true;
}

} // namespace

bool IsJumpToOpen(const frmMain& Main) {
    return Main.Keys.PicJumpToLink.Visible;
}

void ShowPicJumpTo(frmMain& Main, const std::string& text, bool reposition, bool KeepCaption) {
    if (Main.IsLoading || Main.IsExiting) return;
    const bool opens = !IsJumpToOpen(Main);
    if (opens) Open(Main);
    const bool tips = !KeepCaption && Main.Settings.KBLauncherTips;
    const bool higher = std::exchange(Main.Keys.TipShown, tips) != tips;
    if (opens || reposition || higher) Centre(Main);
    if (!KeepCaption) CloseSearchList(Main);
    if (!text.empty()) SetSearchText(Main, text, CodePoints(text));
    if (!IsJumpToOpen(Main)) return; // it was the name of a tile
    if (KeepCaption) OpenHistory(Main);
    ++Main.Keys.PicJumpToLink.cboSearch.FocusWish;
    Main.Marks.JumpTo();
}

void ClosePicJumpTo(frmMain& Main) {
    if (!IsJumpToOpen(Main)) return;
    CloseSearchList(Main);
    Main.Keys.PicJumpToLink.Visible = Main.Keys.LauncherActive = Main.Keys.TipShown = false;
    Main.Marks.JumpTo();
}

void PutSearchText(frmMain& Main, const std::string& text, int caret) {
    auto& box = Main.Keys.PicJumpToLink.cboSearch;
    box.Text = text;
    box.SelStart = std::clamp(caret, 0, CodePoints(text));
    box.SelLength = 0;
    ++box.Revision;
    Main.Marks.JumpTo();
}

void SetSearchText(frmMain& Main, const std::string& text, int caret) {
    PutSearchText(Main, text, caret);
    int match = NoMatch;
    UpdateJumpTo(Main, text, match);
}

void ShowHistory(frmMain& Main) {
    if (!HistoryTurnedOn(Main)) return;
    if (IsJumpToOpen(Main)) SetSearchText(Main, {}, 0);
    ShowPicJumpTo(Main, {}, true, true);
}

void mnuKeyboardLauncher_Click(frmMain& Main) {
    if (IsJumpToOpen(Main)) SetSearchText(Main, {}, 0);
    ShowPicJumpTo(Main, {}, true, false);
}

void lblHistory_Click(frmMain& Main) {
    ShowHistory(Main);
}

void lblGo_Click(frmMain& Main) {
    RunTypedText(Main);
}

void lblClosePicJumpTo_Click(frmMain& Main) {
    ClosePicJumpTo(Main);
}

std::string KeyboardLauncherTips(const frmMain& Main) {
    std::string text;
    for (const auto line : tips) text += (text.empty() ? "" : "\n") + Tr(Main, line);
    return text;
}

int CodePoints(std::string_view text) {
    return static_cast<int>(std::ranges::count_if(text, [](char byte) { return (byte & 0xC0) != 0x80; }));
}

std::size_t ByteOfCodePoint(std::string_view text, int at) {
    std::size_t byte = 0;
    for (int passed = 0; byte < text.size(); ++byte)
        if ((text[byte] & 0xC0) != 0x80 && passed++ == at) break;
    return byte;
}

} // namespace quill
