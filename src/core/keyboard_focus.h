// Keyboard focus: which painted element the keyboard is on, and the keys of the workspace. Tab walks over
// every element that does something, in the order in which the surfaces lie; Enter and Space do what a click
// does. The focus is shown once the keyboard is used and goes at the next press of the mouse.
#pragma once

#include "core/handlers.h"

namespace quill {

struct FocusPlace {
    SurfaceId Surface;
    ElementInfo Element;
};

void HideFocus(frmMain& Main);
// Moves to the next (or the one before) element with an action; wraps at the ends.
void MoveFocus(frmMain& Main, bool forward);
// Does what a click on the element does; false when nothing has the focus any more.
bool ActivateFocus(frmMain& Main);
// What a click on an element does, for assistive technology too.
bool ActivateElement(frmMain& Main, SurfaceId surface, ElementId element);

} // namespace quill
