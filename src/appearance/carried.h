// Carried: the picture of what the hand carries. A picture is carried as it stands, shortcuts as a plate with
// their icons and captions, one below the other, the one under the hand first; more than a few are counted.
// The plate is solid, so that it is whole where nothing composes the screen.
#pragma once

#include "core/frmMain.h"
#include "platform/drawing.h"

#include <vector>

namespace quill {

inline constexpr std::size_t MostCarriedRows = 4;

// All sizes are twips. Objects must live; of none the picture is empty.
Size CarriedSize(const frmMain& Main, const std::vector<DraggedObject>& objects);
// Where the upper left corner of the first object stands in the picture, of its label if it is a shortcut.
Point CarriedCorner(const frmMain& Main, const std::vector<DraggedObject>& objects);
void PaintCarried(frmMain& Main, const std::vector<DraggedObject>& objects, Canvas& canvas);

} // namespace quill
