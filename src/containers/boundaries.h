// Boundaries: where an object may stand on its surface.
#pragma once

#include "core/frmMain.h"

namespace quill {

// A container, a shortcut or a picture by its table index.
struct ObjectRef {
    MovedKind Kind = MovedKind::Container;
    int Index = -1;
    bool operator==(const ObjectRef&) const = default;
};

// Keeps a moved object inside the surface that it lies on, by the order of the rules: under the title, not
// left of the surface, not lost at its right or lower edge. The rectangle, twips on the desktop, is where it
// was dropped: a container that a hand has carried wholly out of the window comes back as far as it fits.
// Nothing that stands well is moved. Places are in content coordinates: dropped in the visible part of a
// frame that is scrolled, a shortcut stays in it. The stored place of a record is its caller's.
void CheckBoundaries(frmMain& Main, ObjectRef object, bool InternalMove, float x, float y, float width,
                     float height);
void CheckBoundaries(frmMain& Main, ObjectRef object, bool InternalMove); // where it stands
// All of a container that fits comes inside the workspace. False: it stood there already.
bool BringInside(frmMain& Main, int Container);
// Whether a rectangle of the desktop lies wholly outside frmMain. Touching it is not outside.
bool LiesOutside(const frmMain& Main, const Rect& dropped);
// The surface that a parent offers, twips: of a folded container or a tile, the frame that it has when open.
Size GroundSize(const frmMain& Main, Parent in);
// An object whose upper edge is here or above is moved down.
float HighestTop(const frmMain& Main, Parent in);
// With [Align] on: the nearest place of the grid of the row spacing of where it lies, counted from the corner
// of the surface and not under its title; CheckBoundaries has still to be asked. Else the place itself.
Point SnapToGrid(const frmMain& Main, Parent in, Point at);

} // namespace quill
