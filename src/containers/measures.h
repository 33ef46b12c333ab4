// Measures: the one table of design sizes and places of the workspace's window and of a container, in twips.
// What stands here has no place told by anything else; routines of the layout read it and hold no number of
// their own.
#pragma once

namespace quill::measures {

// --- the window -------------------------------------------------------------------------------------------
// While the window may be moved a rim stays free around picBack, wide enough to grab.
inline constexpr float WindowRimLeft = 20;
inline constexpr float WindowRimTop = 15; // half of what the height gives up, so that it is the same below
inline constexpr float WindowRimWidth = 35;
inline constexpr float WindowRimHeight = 30;

inline constexpr float TitleHeight = 330; // one line of the caption's font with air above and below
// A workspace that touches the upper edge stands 100 twips beyond it: what is read and pressed lies below
// that.
inline constexpr float TitleContentTop = 60;
// Clear of the screen's edge: a workspace that is out at the left stands 200 twips beyond it.
inline constexpr float CaptionLeft = 270;
inline constexpr float CaptionNarrower = 1350; // leaves the room of the buttons at the right
inline constexpr float ButtonEdge = 240;       // 16 pixels, the size that the button sets are drawn for
inline constexpr float DockFromRight = 16 * 15 + 130;
inline constexpr float ButtonStep = 320; // from one button to the next at its left
inline constexpr float GroupFrameBelowTitle = 120;

// --- a container ------------------------------------------------------------------------------------------
inline constexpr float NewContainerEdge =
    3000;                                    // width and height of a new one, and of one without a full size
inline constexpr float ContainerTitle = 290; // title row; the frame begins below it
inline constexpr float LabelLeft = 260;      // right of the Shrink/Expand mark
inline constexpr float LabelTop = 30;
inline constexpr float LabelHeight = 240;
inline constexpr float LabelNarrower = 1240;

inline constexpr float MarkEdge = 200; // fold mark and pin
inline constexpr float MarkTop = 45;   // centred on the label's line of text
inline constexpr float FoldFromRight = 280;
inline constexpr float PinFromRight = 560;

inline constexpr float ShrinkMarkLeft = 80;
inline constexpr float ShrinkMarkTop = 60;
inline constexpr float ShrinkMarkEdge = 150;
inline constexpr float ShrinkZoneWidth = 230; // Shrink/Expand zone in the upper-left corner
inline constexpr float ShrinkZoneHeight = 200;

// The two silent marks stand between the end of the label and the pin.
inline constexpr float StateMarkEdge = 140;
inline constexpr float StateMarkTop = 75;
inline constexpr float TagsFromRight = 920;
inline constexpr float NoteMarkFromRight = 740;
inline constexpr float TileTagsLeft = 80;
inline constexpr float TileTagsFromBottom = 180;

inline constexpr float NoteLeft = 75;
inline constexpr float NoteTop = 10;
inline constexpr float NoteNarrower = 150;
inline constexpr float NoteLower = 400;
inline constexpr float FeedLeft = 65; // the list has the same margin at both sides
inline constexpr float FeedNarrower = 130;
inline constexpr float FeedInward = 10; // of a list that takes the title row's room, from the rounded frame
inline constexpr float NotePadding = 75;
inline constexpr float NoteFontSize = 10; // points

inline constexpr float FootHeight = 390;          // words and resize mark, below the note box
inline constexpr float ResizeHitEdge = 330;       // from the corner: the mark and what a hand misses it by
inline constexpr float ResizeMarkEdge = 160;      // of the mark itself
inline constexpr float ResizeMarkFromRight = 130; // clear of the rounded corner
inline constexpr float ResizeMarkFromBottom = 145;

inline constexpr float ScrollBarWidth = 120;
inline constexpr float ScrollBarFromRight = 150;
inline constexpr float ScrollBarTop = 30;
inline constexpr float ScrollThumbSmallest = 240;

// --- where an object may stand ----------------------------------------------------------------------------
inline constexpr float BelowTitleBar = 150; // from the workspace's title row to the first place below it
inline constexpr float BelowFrameTop = 190; // from the top of a frame
inline constexpr float LinkExtra = 50;      // a shortcut goes so much further down than anything else
inline constexpr float EdgeGap = 100; // kept free at an edge by what is brought back from it or opens near it
inline constexpr float RightmostObject = 700; // what is left of the surface right of an object's left edge
inline constexpr float LowestObject = 500;    // and below its upper edge
inline constexpr float LowestLink = 200;

// --- shortcuts in columns ---------------------------------------------------------------------------------
inline constexpr float ColumnStep = 2400; // from one column of new shortcuts to the next
inline constexpr float ColumnGap = 200;   // free between the longest label and the icons of the next column
inline constexpr float ColumnSlack = 240; // labels that stand this far apart still are one column

// --- a tile -----------------------------------------------------------------------------------------------
inline constexpr int NormalTileWidth = 700; // at exactly this width the icon stands further in
inline constexpr int TinyTileWidth = 410; // the marker of the smallest step: no tag mark, small form of icon
inline constexpr float TileIconEdge = 64 * 15;
inline constexpr float TileIconLeftNormal = 40;
inline constexpr float TileIconLeft = 20;

// --- a shortcut -------------------------------------------------------------------------------------------
inline constexpr float SmallIconPixels = 16;
inline constexpr float LargeIconFrom = 11; // points of the label's font from which its icon is the large one
inline constexpr float IconGap = 10;       // between icon and label
inline constexpr float LinePerPoint = 20 * 1.4F; // height of a line that was not measured yet, twips a point

// --- a picture --------------------------------------------------------------------------------------------
inline constexpr float PictureRim = 30; // of the frame around the image

} // namespace quill::measures
