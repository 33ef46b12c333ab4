// The containers' part of the workspace's state. Indices are table indices, -1 is none.
#pragma once

#include "platform/geometry.h"

#include <cstdint>
#include <vector>

namespace quill {

// What a move can move. The numbers are those of the undo records.
enum class MovedKind : std::uint8_t { Shortcut = 1, Picture = 2, Container = 3 };

// Where an object stood before it was moved. Parent is the container that a shortcut or a picture lay in, -1
// for the workspace and for containers.
struct MoveRecord {
    float Left = 0, Top = 0; // twips
    std::int32_t Index = -1;
    MovedKind Kind = MovedKind::Shortcut;
    std::int32_t Parent = -1;
};

// All that one gesture moved, taken back together.
using MoveStep = std::vector<MoveRecord>;

// A press on a container's title or tile that may become a drag. The whole selection goes along.
struct ContainerDrag {
    struct Part {
        int Index = -1;
        Point From; // its Left and Top at the press
    };
    int Pressed = -1;           // the container under the hand; -1: none
    Point PressScreen;          // twips on the desktop
    std::int64_t PressTick = 0; // GetTickCount
    bool Moving = false;        // the hand has left the place of the press
    std::vector<Part> Parts;
};

// The selection window of the workspace.
struct SelectionWindow {
    bool Loaded = false; // a rubber band or a group move runs; the workspace does not dock meanwhile
    bool Band = false;   // it is a rubber band
    Point From;          // on picBack, twips
    Rect Place;          // on picBack
};

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

    int HoverContainer = -1;     // TimerExpandContainer's tag: the tile that is about to open
    Point HoverAt;               // where the cursor was then
    int MouseContainer = -1;     // the mouse is over it, or was when its effect hid it
    int DragHoverContainer = -1; // TimerExpandUnfoldOnDrag's tag: opens under what is dragged over it
    Point DragHoverAt;

    ContainerDrag Drag;
    SelectionWindow frmSelection;
    std::vector<MoveStep> UndoStack, RedoStack; // the last is the newest

    int PressedTile = -1;        // the last press went down on this tile
    Point PressedAt;             // where on the desktop it went down
    int ResizingContainer = -1;  // its corner follows the mouse
    Size ResizeGrip;             // from the press to the container's lower-right corner
    int ScrollingContainer = -1; // its thumb is held
    float ScrollGrip = 0;        // from the thumb's upper edge to the press
};

} // namespace quill
