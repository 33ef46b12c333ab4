// MiniToolbar: the small strip beside a selection of several shortcuts, with what is most often done to one.
// It is a window of its own above the others and takes no keyboard. It stands below or above the shortcut
// that was selected last and goes with it, but never from under the pointer. Docking closes it, and so does,
// within a tenth of a second, another program's window that has the keyboard.
#pragma once

#include "core/handlers.h"

#include <span>
#include <string>

namespace quill {

// The selection has changed, or what it lies on. One of fewer than two closes the strip at once; for any
// other it is placed when the turn of events is over, however many were selected in it.
void FollowSelection(frmMain& Main);
void CloseMiniToolbar(frmMain& Main);
void TimerUnload_Timer(frmMain& Main);

// The cells from left to right: eight buttons, and PicLinkColor behind them.
struct MiniToolbarCell {
    std::string_view Symbol;
    std::string_view Tip; // English, through Tr; "%1" is how many are selected
    void (*Press)(frmMain&);
    bool Changes; // the lock holds it fast
};
std::span<const MiniToolbarCell> MiniToolbarCells();
inline constexpr int MiniToolbarButtons = 8; // the cell behind these is PicLinkColor
Rect PlaceOfMiniToolbarCell(int Index);      // on the strip
std::string TipOfMiniToolbarCell(const frmMain& Main, int Index);
bool MiniToolbarCellWorks(const frmMain& Main, int Index); // false: the lock holds it

void MiniToolbarButton_Click(frmMain& Main, int Index);
void PicLinkColor_Click(frmMain& Main);
void picMiniToolbar_MouseMove(frmMain& Main, const MouseEvent& event); // marks the cell under the pointer
void picMiniToolbar_MouseLeave(frmMain& Main);

} // namespace quill
