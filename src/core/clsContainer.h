// clsContainer: the record of a container. It is no store for what the view holds: name, colours and the
// present place are in the ContainerView of the same index. The kind of a container is read from the record,
// never kept.
#pragma once

#include "platform/geometry.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quill {

// A rectangle remembered by a record, in the order that the files use.
struct StoredRect {
    float X = 0, Y = 0, H = 0, W = 0;
    bool operator==(const StoredRect&) const = default;
};

// What changes of a remembered rectangle; an empty field is kept.
struct RectChange {
    std::optional<float> X{}, Y{}, H{}, W{};
};

// Whole twips.
struct TileSize {
    std::int32_t Width = 0, Height = 0;
    bool operator==(const TileSize&) const = default;
};

struct Reminder {
    bool IsReminder = false;
    std::int16_t Year = 0, Month = 0, Day = 0, Hour = 0, Minute = 0;
    std::string ReadbleTimeString; // written out for people
};

class clsContainer {
public:
    void SetOriginalSize(float width, float height) { original_ = {width, height}; }
    Size OriginalSize() const { return original_; } // 0 by 0: none known yet

    void SetShrinkSize(std::int32_t width, std::int32_t height); // 0 keeps that side
    TileSize ShrinkSize() const { return shrink_; }

    void SetSize(const RectChange& change) { Apply(change, size_); }
    const StoredRect& StoredSize() const { return size_; } // while folded, shrunk or detached
    void SetDetachedSize(const RectChange& change) { Apply(change, detached_); }
    const StoredRect& DetachedSize() const { return detached_; }
    void SetDetachedLabelPos(const RectChange& change) { Apply(change, tab_); }
    const StoredRect& DetachedLabelPos() const { return tab_; }

    // An empty text leaves the old one.
    void SetReminder(bool is, int year, int month, int day, int hour, int minute,
                     const std::string& readable);
    const quill::Reminder& ReminderRecord() const { return reminder_; }
    bool IsReminder() const { return reminder_.IsReminder; }

    std::string ShrinkPath;    // icon of the tile; after a load never empty
    std::string CopyPath;      // a Folder Connector's folder; for a feed its address
    bool CloseToEdgeY = false; // moved up when it unfolded; saved as flipped
    bool CloseToEdge = false;  // transient
    bool tag = false;          // hidden by the workspace's tag view; still saved
    bool Detached = false;
    bool DetachedUndockOnClick = false;
    bool RSS = false;
    std::int16_t DetachedTabDockedWhere = 0;
    bool Detached_Note_Visible = false;
    bool DetachedFolded = false;
    bool DetachedConFolded = false;
    bool DetachedUseTab = true;
    std::int16_t LineSpacing = 155; // twips
    bool Encrypted = false;
    bool SpacebarFlip = false;
    bool DetachedTransparent = false;
    bool DetachedOnTop = false;
    bool DetachedCollapseOnClick = true;
    bool DetachedFadeOut = false;
    std::int16_t AutoRefresh = 0; // minutes, 0 = none
    std::string CreationDate;
    std::string ModifyDate;
    std::string ShowingTag; // tag whose view is shown; empty = none
    bool HideToolbar = false;
    std::int32_t RSSListIndex = -1; // row of frmMain::FeedViews; -1 when it is no feed
    bool IconsDrawn = false;        // transient

private:
    static void Apply(const RectChange& change, StoredRect& rect);

    Size original_;
    TileSize shrink_;
    StoredRect size_, detached_, tab_;
    quill::Reminder reminder_;
};

// A container is of the first kind whose test holds.
enum class ContainerKind { Feed, Reminder, FolderConnector, Note, Plain };

} // namespace quill
