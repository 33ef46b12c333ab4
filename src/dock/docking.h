// Docking's helpers that place and show the window. When it moves is decided in dock/sliding.h.
#pragma once

#include "core/frmMain.h"

#include <cstdint>
#include <vector>

namespace quill {

Rect VirtualDesktop(const frmMain& Main);
Rect MonitorOf(const frmMain& Main, const Rect& window); // the nearest one, with its work area below
Rect WorkAreaOf(const frmMain& Main, const Rect& window);
void PlaceMain(frmMain& Main, const Rect& window); // moves and sizes frmMain, lays its parts
void BringIntoView(frmMain& Main);                 // a floating workspace that no monitor shows
// Sum of the edges whose grip lies at a place of picBack, 0 for none or while movement is locked.
enum GripEdge { EdgeLeft = 1, EdgeTop = 2, EdgeRight = 4, EdgeBottom = 8 };
int GripEdgesAt(const frmMain& Main, Point at);
void SetWindowOnTop(frmMain& Main); // by [OnTop]
void ApplyOpacity(frmMain& Main);
void mnuMaximize_Click(frmMain& Main);
void mnuOnTop_Click(frmMain& Main);
void mnuPreventWindowMovement_Click(frmMain& Main);
// Docking is held back while a question is open; one object a question. The splash lies over everything, so
// it makes room for the question.
class DialogPause {
public:
    explicit DialogPause(frmMain& main);
    ~DialogPause() { --dock_.DialogPauses; }
    DialogPause(const DialogPause&) = delete;
    DialogPause& operator=(const DialogPause&) = delete;

private:
    DockState& dock_;
};

} // namespace quill
