// The keyboard's part of the workspace's state: the Keyboard Launcher's box and what it knows of captions.
#pragma once

#include "platform/geometry.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quill {

inline constexpr int NoMatch = -1;         // nothing found: what the text means is decided by its form
inline constexpr int NoShortcutMeant = -2; // a text with a blank under [SearchOnSpace]: none was looked for

// A line of the list below the typed text.
struct JumpItem {
    std::string Text;
    int Index = -1; // table index of the shortcut; -1: a folder or a line of the history
};

// cboSearch: what stands in it, and its list. The field on the screen holds the truth while a person types
// and tells every change; Revision counts each change of text or caret that did not come from there.
struct SearchBox {
    std::string Text;
    int SelStart = 0; // code points
    int SelLength = 0;
    std::uint32_t Revision = 0;
    std::uint32_t FocusWish = 0; // counts the times that it is to take the keyboard
    std::vector<JumpItem> List;
    int ListIndex = -1; // the highlighted line, -1: none
    bool DroppedDown = false;
    std::uint32_t ListRevision = 0; // counts each change of the lines
};

// What stands for the icon of PicJumpToIcon.
struct JumpIcon {
    int Shortcut = -1;     // the icon of this shortcut; -1: File or Symbol
    std::string File;      // an icon file, or a file whose own icon is shown
    std::string ThemeName; // or a name of the icon theme
    std::string Symbol;    // what is drawn until it is there, or where the desktop has none
    bool operator==(const JumpIcon&) const = default;
};

// PicJumpToLink, the box in the middle of the workspace. Places of its parts are fixed measures of the box
// (keyboard/jump_to.h).
struct JumpToView {
    bool Visible = false;
    Rect Place;                // on picBack, twips
    std::string lblJumpToLink; // the name line
    std::string lblJumpToTip;  // the hint line
    JumpIcon PicJumpToIcon;
    bool lblHistoryVisible = true;
    SearchBox cboSearch;
};

// A live shortcut's caption in lower case.
struct FoldedCaption {
    int Index = -1; // table index
    int Length = 0; // of FullCaption, code points
    std::string Text;
};

// Made when it is first asked for after the captions have changed.
struct CaptionIndex {
    std::uint32_t Revision = 0;         // of ShortcutsState::CaptionsRevision that it was made for; 0: never
    std::vector<FoldedCaption> InTable; // in table order
    std::vector<int> Sorted;            // rows of InTable, ascending by Text, equal ones in table order
    std::vector<int> ByLength;          // rows of InTable, ascending by Length, equal ones in table order
};

struct KeyboardState {
    JumpToView PicJumpToLink;
    bool HistoryMode = false;    // cboSearch shows the history
    bool LauncherActive = false; // Enter in the box does something
    int MatchIndex = NoMatch;
    std::string MatchedName;    // what Tab and the right arrow complete to
    int PreviewedShortcut = -1; // the one that the preview has made current; -1: none
    int Picked = -1; // taken from the list or completed to: meant while the text is its caption, or that, a
                     // blank and parameters; -1: none
    CaptionIndex Captions;
    bool TipShown = false; // the tip balloon is up
};

} // namespace quill
