// The containers' part of the workspace's state. Indices are table indices, -1 is none.
#pragma once

#include "platform/geometry.h"

namespace quill {

struct ContainersState {
    int CurrentContainer = -1;
    int ExpandedContainer = -1;  // temporarily expanded, shrinks back
    int ExpandingContainer = -1; // its effect is running
    int LastShrunkBack = -1;
    int AutoFoldContainerIndex = -1;
    int FlipPosition = -1;
    bool ContainerHasFocus = false;
    bool JustExpanded = false;
    bool HoldExpanded = false;
    bool SuspendAutoExpand = false;
    bool DblClickGuard = false;
    Point NewContainerPos{600, 600}; // where the next object goes, twips
    bool FrameLinkGroup = false;     // the workspace-wide tag view or grouped shortcuts show

    int PressedTile = -1;        // the last press went down on this tile
    Point PressedAt;             // where on the desktop it went down
    int ResizingContainer = -1;  // its corner follows the mouse
    Size ResizeGrip;             // from the press to the container's lower-right corner
    int ScrollingContainer = -1; // its thumb is held
    float ScrollGrip = 0;        // from the thumb's upper edge to the press
};

} // namespace quill
