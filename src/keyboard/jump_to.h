// Keyboard Launcher: the box in the middle of the workspace in which a person types what is to be started.
// While it is typed the box shows what Enter would do: the preview. The keys inside the box, its list and its
// links are here; what the text means stands in keyboard/preview.h, what Enter does in keyboard/run_text.h.
#pragma once

#include "core/frmMain.h"
#include "core/handlers.h"

#include <string>
#include <string_view>

namespace quill {

// Opens the box, or refills it. An empty text leaves what stands there. With KeepCaption the name line, the
// hint and the icon stay, and the history's list opens.
void ShowPicJumpTo(frmMain& Main, const std::string& text, bool reposition, bool KeepCaption);
void ClosePicJumpTo(frmMain& Main); // the keyboard goes back to the workspace; what is selected stays
bool IsJumpToOpen(const frmMain& Main);
// Puts a text into the field with the caret at a place (code points), as if not typed, and shows what it
// means.
void SetSearchText(frmMain& Main, const std::string& text, int caret);
void PutSearchText(frmMain& Main, const std::string& text, int caret); // the text alone, nothing is shown
// Opens the history, and asks first where it is turned off.
void ShowHistory(frmMain& Main);
// What the balloon tells, a line each.
std::string KeyboardLauncherTips(const frmMain& Main);

// Menu lines and links.
void mnuKeyboardLauncher_Click(frmMain& Main); // the empty box
void lblHistory_Click(frmMain& Main);          // the history; asks first where it is turned off
void lblGo_Click(frmMain& Main);               // as Enter
void lblClosePicJumpTo_Click(frmMain& Main);

// What the field tells. Text is what stands in it after the change.
void cboSearch_Change(frmMain& Main, const std::string& text, int caret);
bool cboSearch_KeyDown(frmMain& Main, const KeyEvent& event, int SelStart, int SelLength); // true: used
// By the pointer, -1: none. It is only shown: what Enter does is what the text says, wherever the pointer
// happens to lie.
void cboSearch_Highlight(frmMain& Main, int row);
void cboSearch_Choose(frmMain& Main, int row); // by a click: its text is taken, and the list closes

// Places of the parts in the box, twips.
Rect PlaceOfJumpToPart(const frmMain& Main, ElementKind part);

// Code points of a text, and the byte at which one of them begins.
int CodePoints(std::string_view text);
std::size_t ByteOfCodePoint(std::string_view text, int at);

} // namespace quill
