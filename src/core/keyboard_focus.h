// Keyboard focus: which painted element the keyboard is on, and the keys of the workspace. Tab walks over
// every element that does something, in the order in which the surfaces lie; the arrows walk over the
// shortcuts of one place and select them; Enter does what a click does, and Space does so on a button. The
// focus is shown once the keyboard is used and goes at the next press of the mouse.
//
// The key table leads from a key to an action of the keyboard's own or to the line of a menu. What stands
// beside a line of a menu is in the table, and the other way round. Letters with Ctrl are told by a long
// custom; letters with Alt are for containers and for order.
#pragma once

#include "core/handlers.h"
#include "core/views.h"

#include <span>
#include <string_view>

namespace quill {

struct FocusPlace {
    SurfaceId Surface;
    ElementInfo Element;
};

void HideFocus(frmMain& Main);
void FocusOn(frmMain& Main, const FocusPlace& place); // shows it, and scrolls it into view
// Moves to the next (or the one before) element with an action; wraps at the ends.
void MoveFocus(frmMain& Main, bool forward);
// Does what a click on the element does; false when nothing has the focus any more.
bool ActivateFocus(frmMain& Main);
// What a click on an element does, for assistive technology too.
bool ActivateElement(frmMain& Main, SurfaceId surface, ElementId element);

// Where keys and commands about shortcuts go: the container with the keys, else the workspace.
Parent KeyboardPlace(const frmMain& Main);
enum class Direction { Left, Up, Right, Down };
// To the nearest shortcut that way, in the place where the keys go; it is selected, in place of all others or
// (Extend) with them. True also at an end; false when no shortcut lies there.
bool StepToShortcut(frmMain& Main, Direction way, bool Extend);

enum KeyModifiers { Plain = 0, Shift = 1, Ctrl = 2, Alt = 4 };

// The first row of a key that has something to do is taken.
struct KeyRow {
    int Code;
    int Modifiers;
    bool (*Action)(frmMain&); // false: it had nothing to do
    std::string_view Entry;   // or the entry of a menu with that name
};
std::span<const KeyRow> KeyTable();

} // namespace quill
