// Views: plain data about what is on the screen of each object, one record an object, whose fields carry the
// names of the elements. All places are twips relative to the parent element. Nothing here draws.
#pragma once

#include "platform/geometry.h"
#include "platform/system_colors.h"

#include <cstdint>
#include <string>

namespace quill {

struct Element {
    Rect Place;
    bool Visible = true;
};

enum class ParentKind : std::uint8_t { picBack, ContainerFrame };

// Where a shortcut or a picture lies: on the workspace (Index 0, unused) or in the frame of a container.
struct Parent {
    ParentKind Kind = ParentKind::picBack;
    std::int32_t Index = 0;
    bool operator==(const Parent&) const = default;
};

inline Parent OnWorkspace() {
    return {ParentKind::picBack, 0};
}
inline Parent InContainer(int index) {
    return {ParentKind::ContainerFrame, index};
}

// The owner-drawn label. Alignment 0 is left, 2 centred, anything else right. One that is not enabled looks
// the same and does nothing.
struct EruLabel {
    Rect Place;
    std::string Caption;
    quill::Color ForeColor = CodeOf(SystemColor::ButtonText);
    quill::Color BackColor = CodeOf(SystemColor::ButtonFace);
    quill::Color BorderColor = 0;
    float FontSize = 10; // points
    float Opacity = 1;   // 0 to 1, through SetOpacity
    std::uint8_t Alignment = 0;
    std::uint8_t BackStyle = 0; // 1: ground and border are drawn
    std::uint8_t BorderStyle = 0;
    std::uint8_t BorderWidth = 0;
    std::uint8_t BorderRadius = 0;
    bool FontBold = false;
    bool Visible = true;
    bool AutoSize = false; // the text may be larger than the place, which is made to fit it
    bool Enabled = true;
    bool WordWrap = false;

    void SetOpacity(float value) { Opacity = value < 0 ? 0 : value > 1 ? 1 : value; }
};

struct NoteView : Element {
    std::string Text;    // lines end in CR LF
    float FontSize = 10; // points
    quill::Color BackColor = 0;
    quill::Color ForeColor = 0;
    std::uint32_t Revision = 0; // counts every change of Text that did not come from typing
    float ScrollTop = 0;
    std::uint32_t FocusWish = 0; // counts the times that the box is to take the focus, caret behind the text
};

struct ContainerView {
    Element Container;                   // on picBack
    quill::Color ContainerBackColor = 0; // the border
    Element ContainerFrame;              // in Container
    quill::Color FrameBackColor = 0;
    quill::Color FrameForeColor = 0;
    bool Gradient = false;      // the frame is painted with its ramp
    EruLabel ContainerLabel;    // in Container; Caption is the container's name
    bool LabelSelected = false; // the container is in the selection
    Element ContainerIcon;      // in Container; shown exactly while it is a tile
    std::string IconFile;       // what the tile shows, resolved
    bool IconSmall = false;
    NoteView ContainerNote;     // in ContainerFrame
    Element lblFoldUnfold;      // in Container
    std::string FoldMark = "-"; // "-" open, "+" folded
    std::string FoldTip;
    Element lblPinNote;      // in Container
    bool PinPressed = false; // the note is showing
    quill::Color MarkForeColor = 0xFFFFFF;
    Element shapeShrink; // in Container
    Element shapeTags;
    Element shapeNoteIndicator;
    Element VScroll;     // in ContainerFrame; shown when the content is higher than the frame
    float ScrollTop = 0; // twips that the content is moved up
};

// An RSS container's list and its options. Addressed by clsContainer::RSSListIndex.
struct FeedView : Element {
    int GroupIndex = -1; // the owning container
    bool RefreshOnExpand = false;
    bool BuiltInViewer = false;
    bool ArticleTooltip = false;
    bool HighlightSearchTerms = false;
    bool Filter = false;
    std::string FilterString;
    std::int16_t FontSize = 9;
    quill::Color FeedForeColor = 0;
    quill::Color FeedBackColor = 0;
    quill::Color FrameBackColor = 0; // of lblRSSLastUpdate and the ground behind the rows
    bool LastUpdateVisible = true;
};

struct ShortcutView {
    Parent In;
    EruLabel lblShortcut{.AutoSize = true}; // Caption may be a shortened form of FullCaption
    Rect picShortcut;                       // the icon
    bool Visible = true;                    // false while a tag view hides it
    bool IconDrawn = false;                 // the icon has been asked for
    bool LabelMeasured = false;             // lblShortcut's width and height are those of its text
};

struct PictureView {
    Parent In;
    Rect PicContainer;
    bool Visible = true;
    bool Missing = false; // the file could not be read; an empty frame shows
};

} // namespace quill
