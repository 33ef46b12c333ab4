// Edges: where a window stands at an edge of the virtual desktop, parked behind it and out at it. All numbers
// that differ from edge to edge are here and in the slide (dock/sliding.cpp).
//
// The screens need not fill the virtual desktop: its corners may show nothing, and an edge may belong to one
// of several monitors. What would stand out of sight there is moved along its edge.
#pragma once

#include "core/frmMain.h"

namespace quill {

namespace edge {
enum Edge { None, Top, Left, Right, Bottom };
}

// The edge of the virtual desktop that a window touches or crosses: right, left, top, bottom, the first hit.
// At the bottom the desktop's height counts, not where its top is.
int EdgeOfWindow(const frmMain& Main, const Rect& window);

// Beyond the edge but for a rim that differs from edge to edge, as the bar's places do. At the right the
// monitor counts, at the other edges the virtual desktop.
Rect ParkedPlace(const frmMain& Main, int edge, Rect window);
// Where a window stands when it is out at an edge; the window itself for no edge.
Rect OutPlace(const frmMain& Main, int edge, Rect window);
float RightOfMonitor(const frmMain& Main,
                     const Rect& window); // the edge at which frmMain is docked, or its own

// Among the monitors that reach an edge of the desktop, the one nearest to a window.
Rect MonitorAtEdge(const frmMain& Main, int edge, const Rect& window);
// A bar of which no monitor shows enough is moved along its edge, never from beside the place where the
// workspace comes out: a mouse that calls it from elsewhere is not over it, and it would go and come for
// ever.
Rect BarInReach(const frmMain& Main, int edge, Rect bar, const Rect& out);
Rect CenteredOn(const Rect& area, const Rect& window);
Rect KeptInView(const frmMain& Main,
                Rect window); // into the nearest work area, if no monitor shows enough of it

} // namespace quill
