// Container tags: what a container file can say, as a plain record, and the one table that ties each tag to
// its field, in the order of writing. A field is empty when the file lacks its tag or when it is not to be
// written. Nothing here knows the tables of the workspace.
#pragma once

#include "core/clsContainer.h"
#include "persistence/object_records.h"
#include "persistence/tag_reader.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quill {

enum class HeadKind { None, Container, Feed };

struct ReminderFields {
    std::int16_t Hour = 0, Minute = 0, Year = 0, Month = 0, Day = 0; // the file's order
    std::string_view ReadbleTimeString;
    bool operator==(const ReminderFields&) const = default;
};

// Texts point into what was read, or into the tables when it is to be written.
struct ContainerRecord {
    std::string_view Version; // trimmed first line
    HeadKind Head = HeadKind::None;
    std::string_view FeedUrl, FeedCaption;
    std::optional<std::string_view> Name, Date, Modified;
    std::optional<Color> Backcolor, Forecolor, ContainerTextBack, ContainerTextFor;
    std::string_view Icon;     // as stored; empty: that of its kind
    std::string_view CopyPath; // as stored
    std::optional<std::int16_t> AutoRefresh;
    bool NoteOn = false;
    std::optional<float> NoteFontSize;
    std::optional<std::int16_t> RSSFontSize;
    std::optional<bool> RefreshOnExpand, BuiltInViewer, ArticleTooltip, HighlightSearchTerms, Filter;
    std::optional<std::string_view> FilterString;
    std::string ReadNote;                        // what was read, CR LF behind each line
    std::string_view WriteNote;                  // what is to be written
    std::int32_t ConShrinkW = 0, ConShrinkH = 0; // 0: the default
    std::optional<ReminderFields> ReminderV2;
    bool Folded = false, DetachedConFolded = false, Flipped = false, Detached = false;
    std::optional<bool> DetachedUndockOnClick, DetachedTab, DetachedCollapseOnClick, DetachedTransparent,
        DetachedOnTop, DetachedFadeOut;
    float DetachedTabX = 0, DetachedTabY = 0, DetachedTabH = 0, DetachedTabW = 0;
    std::int16_t DetachedTabDocked = 0;
    float DetachedX = 0, DetachedY = 0, DetachedH = 0, DetachedW = 0;
    bool HideToolbar = false, SpacebarFlip = false, Encrypted = false;
    std::optional<std::int16_t> LineSpacing;
    bool Shrink = false;
    std::optional<float> X, Y, W, H;
    std::string_view ShowTag;
    ObjectRecords Objects; // filled by reading only; writing takes them from the tables

    void Clear(); // keeps memory for the next file
};

std::span<const TagRow<ContainerRecord>> ContainerTags();

} // namespace quill
