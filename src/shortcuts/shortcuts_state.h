// The shortcuts' part of the workspace's state.
#pragma once

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

struct ShortcutsState {
    int CurrentShortcut = -1;
    int DragIndex = -2; // -1 from the start of a drag to the end of its release, -2 by keyboard, else the
                        // last released in place
    std::vector<int> SelectedShortcuts; // in order of selection
    std::vector<RecentItem> Recent;     // newest first, at most MaxRecent
    std::vector<RecentRow> RecentRows;  // read, not resolved yet
    std::vector<std::string> Subjects;  // subjects to track, at most MaxSubjects
    std::int64_t PressTick = 0;         // GetTickCount of the last press on a label
    int ClickStarted = -1;              // shortcut that the last release has started; -1 after a press
    bool ErrorShowing = false;          // a failed start is being told
};

} // namespace quill
