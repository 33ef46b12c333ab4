// The shortcuts' part of the workspace's state.
#pragma once

#include "platform/drags.h"
#include "platform/geometry.h"

#include <array>
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

inline constexpr int SpeedLaunchSlots = 9;

struct SpeedLaunchRow {
    int Shortcut = -1; // table index; -1: the slot is empty
    std::string Caption;
};

// frmQuickLaunch while it is open; a window of its own.
struct QuickLaunchView {
    bool Loaded = false;
    Rect Place;        // on the virtual desktop, twips
    int Selected = -1; // row from 0; -1: the marker is hidden
    std::array<SpeedLaunchRow, SpeedLaunchSlots> Rows;
    bool HadKeyboard = false; // since it was opened
    int TicksWithout = 0;     // of TimeUnload, until it had the keyboard first
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
    std::uint32_t Starts = 0;           // counts every start that the system has taken
    bool PropertiesOpen = false;        // the properties dialog is
    bool Dropping = false;              // a drop is being taken; nothing collapses meanwhile
    std::uint32_t CaptionsRevision = 1; // counts every change of a FullCaption, and rows that come or go
    QuickLaunchView QuickLaunch;
    int OpenWithTarget = -1; // the shortcut that what is dragged would be opened with; -1: none
};

} // namespace quill
