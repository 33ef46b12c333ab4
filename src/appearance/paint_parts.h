// The painters behind PaintSurface, one a kind of surface, and what they share. Coordinates are twips from
// the surface's corner.
#pragma once

#include "appearance/drawing_primitives.h"
#include "core/frmMain.h"
#include "core/shortcut_lists.h"
#include "platform/drawing.h"

namespace quill {

void PaintWorkspace(frmMain& Main, const ShortcutLists& lists, Canvas& canvas);
void PaintContainer(frmMain& Main, int Index, const ShortcutLists& lists, Canvas& canvas);
void PaintOverlay(const frmMain& Main, Canvas& canvas);
void PaintMiniToolbar(const frmMain& Main, Canvas& canvas);
void PaintPicture(frmMain& Main, int Index, Canvas& canvas);
void PaintMiniDock(const frmMain& Main, Canvas& canvas);
void PaintJumpTo(frmMain& Main, Canvas& canvas);
void PaintQuickLaunch(frmMain& Main, Canvas& canvas);

// What lies behind the captions of shortcuts.
struct Ground {
    Parent In;
    Point Origin; // of the parent on the surface, scrolled
    Rect Place;   // of the ramp on the surface
    Color BackColor = 0;
    RampKind Kind = RampKind::ContainerFrame;
    bool HasRamp = false;
    bool HasPicture = false; // of any brightness
};
// Every shortcut that lies there and is exposed: icon, caption, marks. Measures labels that are first seen.
void PaintShortcuts(frmMain& Main, const Ground& ground, const ShortcutLists& lists, Canvas& canvas);

} // namespace quill
