// The shortcuts' part of the workspace's state.
#pragma once

#include "platform/drags.h"
#include "platform/geometry.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quill {

struct RecentItem {
    std::string Caption;
    int Tag = -1; // table index of the shortcut
};

// A row of the settings file before it is resolved to a shortcut.
struct RecentRow {
    std::string Caption;
    float Left = 0, Top = 0; // twips
    std::string ParentName;
};

// One of our own objects in the hand.
struct CarriedObject {
    DraggedObject Object;
    Point FromHand; // from the pointer to its upper left corner, a shortcut's label; twips
};

// What is dragged over the workspace at this moment, by this program or another.
struct DragWatch {
    int Over = -1;        // the container under the pointer; -1: none
    bool Taken = false;   // it would take what is dragged, and its rim shows that
    float ScrollStep = 0; // of its frame at each tick of TimerScrollOnDrag, twips; 0: it rests
};

struct ShortcutsState {
    int CurrentShortcut = -1;
    int DragIndex = -2; // -1 from the start of a drag to the end of its release, -2 by keyboard, else the
                        // last released in place
    std::vector<CarriedObject> Carried; // from the start of a drag to the end of its release
    DragWatch Dragged;
    std::vector<int> SelectedShortcuts; // in order of selection
    std::vector<RecentItem> Recent;     // newest first, at most MaxRecent
    std::vector<RecentRow> RecentRows;  // read, not resolved yet
    std::vector<std::string> Subjects;  // subjects to track, at most MaxSubjects
    std::int64_t PressTick = 0;         // GetTickCount of the last press on a label
    int ClickStarted = -1;              // shortcut that the last release has started; -1 after a press
    bool ErrorShowing = false;          // a failed start is being told
};

} // namespace quill
