// Tips: frmTip tells what a container holds and what the mouse does there, once the mouse rests on its title
// or tile; on the workspace's own title it tells how that is moved and how the workspace comes out. It is a
// window of its own, since it may reach beyond the workspace; it takes neither the mouse nor the keyboard, so
// that all that is done over it reaches what lies below. Plain text only.
//
// Whatever is done with a hand hides it at once: a press, the wheel, a key, a menu, a question.
#pragma once

#include "core/frmMain.h"

#include <string>

namespace quill {

struct MouseEvent;

inline constexpr int TitleTip = -1; // the "container" whose tip is that of the workspace's title

// The text for a container, by [ShowTips] and [WhichTips], lines end in LF; empty: none.
std::string TipOfContainer(const frmMain& Main, int Index);
// Empty while maximised: the workspace is neither moved then nor does it dock.
std::string TipOfTitle(const frmMain& Main);

void ContainerLabel_MouseMove(frmMain& Main, int Index, const MouseEvent& event); // the tile's icon too
void Title_MouseMove(frmMain& Main, const MouseEvent& event);                     // anywhere on the workspace
void Tip_MouseLeave(frmMain& Main, int Index); // the mouse has left this container
void HideTip(frmMain& Main);                   // at once, as by a press

// Shows the text beside the cursor, inside its monitor; fading in unless the person wants less motion.
void SetTip(frmMain& Main, const std::string& text);

void TimerTip_Timer(frmMain& Main);
void TipTimerFadeIn_Timer(frmMain& Main);
void TipTimerFadeOut_Timer(frmMain& Main);
void TipTimerMouseMove_Timer(frmMain& Main);

} // namespace quill
