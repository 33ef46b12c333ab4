// What stands behind the workspace's window on the desktop: its native kind, its layer, its way to the
// keyboard, and how dialogs stay above it. This is the only file that knows it; everybody else has a widget.
//
// The window must be left where it is put, also wholly beyond the screen, and only windows of the dock type
// are. A dock, however, lies above ordinary windows, so without "on top" its kind changes while it lives;
// how, depends on the window manager, and docs/windows.md tells what was found out about each.
//
// On platforms without window manager (offscreen) all of this does what the widget itself can, and no more.
#pragma once

#include <QRect>

#include <cstdint>

class QWidget;

namespace quill::qt {

// Makes a top-level widget a workspace window: frameless, without entry in the taskbar, on top, not activated
// when it is shown. To be called once, before the widget is first shown. It lives as long as the widget.
void MakeWorkspaceWindow(QWidget& window);

// Moves and sizes the window in one step, to the pixel, also beyond the edges of the screen.
void PlaceAt(QWidget& window, const QRect& place);

// On top: above all ordinary windows. Not on top: stacked as an ordinary window is. The window stays on the
// screen while this changes, and dialogs that were prepared for it follow.
void SetOnTop(QWidget& window, bool onTop);

// Brings the window above its equals without asking for the keyboard.
void RaiseWindow(QWidget& window);

// Brings any window of ours to the foreground with the keyboard, as a request of the user's that focus
// stealing prevention lets through. It arrives a moment later; HasForeground tells when.
void TakeFocus(QWidget& window);

// Brings a window of another program to the foreground with the keyboard, by any window of ours.
void GiveForegroundTo(std::uint32_t other, QWidget& ours);

// Whether the window is the active one for the whole desktop.
bool HasForeground(const QWidget& window);

// Whether taskbars and pagers list the window. Most of them never list docks, so it shows with "on top" off
// only.
void SetTaskbarEntry(QWidget& window, bool listed);

// To be called before a dialog is shown whose place is above the workspace. A blocked workspace that is
// clicked does not come above it.
void PrepareDialogAbove(QWidget& dialog, QWidget& workspace);

// 0 is invisible, 1 solid; anything between needs a compositor and is solid without one.
void SetOpacity(QWidget& window, double opacity);

} // namespace quill::qt
