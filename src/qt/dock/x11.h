// The few calls to the X server that the toolkit has no words for: properties, messages to the window
// manager, its name. Everything here is safe to call on any platform; where there is no X server, reads
// give nothing and messages go nowhere. What to say to the window manager is known elsewhere
// (qt/dock/native_window.h).
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

struct xcb_connection_t;

namespace quill::qt::x11 {

using WindowId = std::uint32_t; // 0 is no window

bool IsPresent();
xcb_connection_t* Connection(); // the toolkit's own; null without an X server
WindowId Root();
bool IsOurs(WindowId window); // made by this program

// The number the server has given a name. 0 without an X server. Each call asks the server only once for a
// name.
std::uint32_t Atom(std::string_view name);

// A property of numbers; empty when it is missing or the window is gone.
std::vector<std::uint32_t> Numbers(WindowId window, std::string_view property);
std::string Text(WindowId window, std::string_view property);

// Replaces a list of atoms, each given by its name.
void WriteAtoms(WindowId window, std::string_view property, std::initializer_list<std::string_view> names);

// Replaces a list of plain numbers.
void WriteNumbers(WindowId window, std::string_view property, const std::vector<std::uint32_t>& values);

// Changes a property of the window in a way that shows nowhere, so that the server tells the present time in
// the notice of the change.
void TouchProperty(WindowId window, std::string_view property);

// A client message about the window, sent to the root, where the window manager hears it.
void TellWindowManager(WindowId window, std::string_view message, std::initializer_list<std::uint32_t> data);

// Raises the window above its siblings, without asking for the keyboard. Said in both ways there are, since
// some window managers hear only the one and some only the other.
void Raise(WindowId window);

// Whether the window has reached the screen, or a window manager has taken it and keeps it off (minimised).
bool IsTaken(WindowId window);

// Tells the toolkit where its window stands, in the form in which window managers do it. A busy one may leave
// the toolkit with a place that was true for a moment only, while it was taking the window.
void TellPlace(WindowId window);

// The window that the server sends keys to; 0 where there is none.
WindowId KeyboardWindow();

// Sends what the toolkit has queued; its own calls from a timer would wait for the next event.
void Flush();

// Whether the parts of a window that are transparent show what lies behind; without that they are black.
bool HasCompositor();

// As the window manager calls itself; empty when there is none.
std::string WindowManagerName();

} // namespace quill::qt::x11
