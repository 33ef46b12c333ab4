// Scroll: a container's frame whose content is higher than itself. The bar is a place in the view; nothing
// here draws. ContentHeight and ScrollContainer stand in layout.h.
#pragma once

#include "containers/boundaries.h"
#include "core/frmMain.h"

namespace quill {

struct MouseEvent;
class ShortcutLists;

inline constexpr float WheelStep = 465; // twips a notch, three lines of shortcuts at the usual spacing

float ContentHeight(const frmMain& Main, int Index, ObjectRef except); // of all but one object
void LayScrollBar(frmMain& Main, int Index);      // shows, hides and places VScroll, clamps ScrollTop
void LayAllScrollBars(frmMain& Main);             // all containers in one walk over the shortcuts
Rect ScrollThumb(const frmMain& Main, int Index); // in ContainerFrame; empty when there is no bar
Rect ScrollThumb(const frmMain& Main, int Index, const ShortcutLists& lists); // the same by a list

// A press beside the thumb turns a page, one on it holds it until the release.
void VScroll_MouseDown(frmMain& Main, int Index, const MouseEvent& event);
void VScroll_MouseMove(frmMain& Main, const MouseEvent& event); // while Group.ScrollingContainer is not -1
void VScroll_MouseUp(frmMain& Main);
void ContainerFrame_MouseWheel(frmMain& Main, int Index, int steps); // up is positive

} // namespace quill
