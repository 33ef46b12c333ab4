// Handlers: what a person, the clock and the desktop do to the workspace, as plain calls. The screen side and
// the tests call these and nothing else; the route table in core/routes.cpp leads from an element to its
// handler.
#pragma once

#include "core/surfaces.h"
#include "platform/clock.h"
#include "platform/drags.h"
#include "platform/instance.h"
#include "platform/questions.h"
#include "platform/windows.h"

#include <string>
#include <vector>

namespace quill {

enum class MouseButton { None, Left, Middle, Right };

struct MouseEvent {
    Point At;     // twips on the surface
    Point Screen; // twips on the virtual desktop
    MouseButton Button = MouseButton::None;
    bool Shift = false, Ctrl = false, Alt = false;
};

// Keys by the platform's virtual codes: letters and digits are their upper-case ASCII.
enum KeyCode {
    KeyTab = 9,
    KeyReturn = 13,
    KeyEscape = 27,
    KeySpace = 32,
    KeyPageUp = 33,
    KeyPageDown = 34,
    KeyEnd = 35,
    KeyHome = 36,
    KeyLeft = 37,
    KeyUp = 38,
    KeyRight = 39,
    KeyDown = 40,
    KeyDelete = 46,
    KeyMenu = 93,
    KeyF1 = 112,
    KeyF10 = 121,
    KeyF12 = 123
};

struct KeyEvent {
    int Code = 0;
    bool Shift = false, Ctrl = false, Alt = false;
    std::string Text;         // what it types, UTF-8
    bool InTextField = false; // the focus is in a box that edits text
};

void MouseDown(frmMain& Main, SurfaceId surface, const MouseEvent& event);
void MouseMove(frmMain& Main, SurfaceId surface, const MouseEvent& event);
void MouseUp(frmMain& Main, SurfaceId surface, const MouseEvent& event);
void MouseDoubleClick(frmMain& Main, SurfaceId surface, const MouseEvent& event);
void MouseLeave(frmMain& Main, SurfaceId surface);
// What is carried over a surface, by this program or another. DragOver is asked at each move; whatever it has
// said last, DragLeave or DragDrop ends it.
struct DragEvent {
    Point At;     // twips on the surface
    Point Screen; // twips on the virtual desktop
    bool Shift = false, Ctrl = false, Alt = false;
};
DropAnswer DragOver(frmMain& Main, SurfaceId surface, const DragEvent& event, const DragData& data);
void DragLeave(frmMain& Main, SurfaceId surface);
DropAnswer DragDrop(frmMain& Main, SurfaceId surface, const DragEvent& event, const DragData& data);
void MouseWheel(frmMain& Main, SurfaceId surface, const MouseEvent& event, int steps); // up is positive
bool Form_KeyDown(frmMain& Main, const KeyEvent& event); // true when the key was used

void Timer_Tick(frmMain& Main, TimerId timer);
void Frame_Tick(frmMain& Main); // while frames are wanted

void ContainerNote_GotFocus(frmMain& Main, int Index);
void ContainerNote_KeyDown(frmMain& Main, int Index, const KeyEvent& event);
void ContainerNote_Change(frmMain& Main, int Index, const std::string& text); // LF or CR LF
// The box was left with this paragraph at its upper edge, and so many twips of it above.
void ContainerNote_Scroll(frmMain& Main, int Index, int paragraph, float above);
void ContainerNote_LostFocus(frmMain& Main, int Index);

void Form_Moved(frmMain& Main, const Rect& place); // frmMain stands there now, whoever put it there
void Form_StateChanged(frmMain& Main, WindowState state);
void Form_Closing(frmMain& Main); // the desktop asks the window to close
// The pointer has come over a window of ours, or has left it. Some sessions tell of nothing else.
void Form_MouseEnter(frmMain& Main, WindowId window);
void Form_MouseLeave(frmMain& Main, WindowId window);
void Foreground_Changed(frmMain& Main); // another window of the desktop has the keyboard, or none
void Hotkey_Pressed(frmMain& Main);
void PicTray_MouseUp(frmMain& Main, MouseButton button);
std::vector<MenuLine> TrayMenu_Lines(frmMain& Main); // asked for each time before the menu shows
void TrayMenu_Click(frmMain& Main, int id);          // of a line of the last answer
void Screen_Changed(frmMain& Main);                  // monitors or work areas differ
void SecondStart(frmMain& Main, Summons word);
void SessionEnd(frmMain& Main); // signal or session manager: save and end, ask nothing

} // namespace quill
