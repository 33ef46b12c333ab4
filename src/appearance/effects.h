// Effects: a container's change of size is shown by frmExplode, a rectangle that runs between the two places
// on the frame clock. Starting one returns at once. The container may be hidden meanwhile; it is shown when
// the effect ends, whatever ended it: its last frame, a docking, another effect, the end of the program. A
// person who asked for less motion gets none.
//
// Places are twips on picBack. At most one effect runs. ExpandingContainer is its container until it ends.
#pragma once

#include "core/frmMain.h"

namespace quill {

// Whether this change is shown at all, by the settings and the person's wish for less motion.
bool ExplodeWanted(const frmMain& Main);
bool ImplodeWanted(const frmMain& Main);
bool FoldEffectWanted(const frmMain& Main);

// From a tile to the open container, then a flash around it. Clears JustExpanded when it ends.
void Explode(frmMain& Main, int Container, const Rect& start, const Rect& end);
// From the open container to what it becomes; what arrives at a folded one fades out there.
void Implode(frmMain& Main, int Container, const Rect& start, const Rect& end, bool UseBlast);
// A place that a container gives up pales where it is.
void FadeOut(frmMain& Main, const Rect& place, int Container);
// Ends what runs as its last frame would, without a flash: the rectangle goes, the container shows.
void EndEffect(frmMain& Main);

} // namespace quill
