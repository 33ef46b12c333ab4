#include "persistence/container_file.h"

#include "containers/full_size.h"
#include "core/objects.h"
#include "notes/notes.h"
#include "platform/places.h"

namespace quill {

namespace {

// What stands beside the program is named without its folder, which differs from machine to machine.
std::string_view IconName(const frmMain& Main, std::string_view path) {
    const std::size_t cut = path.rfind('/');
    if (cut == path.npos) return path;
    const std::string_view folder = path.substr(0, cut);
    const Places& places = Main.P.Places;
    const bool own = folder == places.ProgramFolder() || folder == places.DataFolder();
    return own ? path.substr(cut + 1) : path;
}

void TakeIdentity(const frmMain& Main, int Index, ContainerRecord& record) {
    const clsContainer& container = Main.Con(Index);
    const ContainerView& view = Main.ConView(Index);
    record.Head = container.RSS ? HeadKind::Feed : HeadKind::Container;
    record.FeedUrl = record.CopyPath = container.CopyPath;
    record.FeedCaption = view.ContainerLabel.Caption;
    record.Name = view.ContainerLabel.Caption;
    record.Date = container.CreationDate;
    record.Modified = container.ModifyDate;
    record.Icon = IconName(Main, container.ShrinkPath);
    record.AutoRefresh = container.AutoRefresh;
    record.LineSpacing = container.LineSpacing;
    record.SpacebarFlip = container.SpacebarFlip;
    record.HideToolbar = container.HideToolbar;
    record.ShowTag = container.ShowingTag;
}

void TakeFeed(const FeedView& feed, ContainerRecord& record) {
    record.ContainerTextBack = feed.FeedBackColor;
    record.ContainerTextFor = feed.FeedForeColor;
    record.RSSFontSize = feed.FontSize;
    record.RefreshOnExpand = feed.RefreshOnExpand;
    record.BuiltInViewer = feed.BuiltInViewer;
    record.ArticleTooltip = feed.ArticleTooltip;
    record.HighlightSearchTerms = feed.HighlightSearchTerms;
    record.Filter = feed.Filter;
    record.FilterString = feed.FilterString;
}

void TakeNote(const frmMain& Main, int Index, ContainerRecord& record) {
    const clsContainer& container = Main.Con(Index);
    const ContainerView& view = Main.ConView(Index);
    record.Backcolor = view.FrameBackColor;
    record.Forecolor = view.FrameForeColor;
    record.ContainerTextBack = view.ContainerNote.BackColor;
    record.ContainerTextFor = view.ContainerNote.ForeColor;
    record.NoteOn = view.PinPressed || container.Detached_Note_Visible;
    record.NoteFontSize = view.ContainerNote.FontSize;
    record.WriteNote = CleanNoteText(view.ContainerNote.Text);
    record.Encrypted = container.Encrypted;
    const Reminder& reminder = container.ReminderRecord();
    if (reminder.IsReminder)
        record.ReminderV2 = ReminderFields{reminder.Hour,  reminder.Minute, reminder.Year,
                                           reminder.Month, reminder.Day,    reminder.ReadbleTimeString};
}

void TakeDetached(const clsContainer& container, ContainerRecord& record) {
    record.DetachedConFolded = container.DetachedConFolded;
    record.Detached = container.Detached;
    record.DetachedUndockOnClick = container.DetachedUndockOnClick;
    record.DetachedTab = container.DetachedUseTab;
    record.DetachedCollapseOnClick = container.DetachedCollapseOnClick;
    record.DetachedTransparent = container.DetachedTransparent;
    record.DetachedOnTop = container.DetachedOnTop;
    record.DetachedFadeOut = container.DetachedFadeOut;
    record.DetachedTabDocked = container.DetachedTabDockedWhere;
    const StoredRect& tab = container.DetachedLabelPos();
    record.DetachedTabX = tab.X, record.DetachedTabY = tab.Y;
    record.DetachedTabH = tab.H, record.DetachedTabW = tab.W;
    const StoredRect& window = container.DetachedSize();
    record.DetachedX = window.X, record.DetachedY = window.Y;
    record.DetachedH = window.H, record.DetachedW = window.W;
}

// The size to come back to: the present one while it is open and no side is the tile's.
Size SizeToKeep(const frmMain& Main, int Index) {
    const Rect& place = Main.ConView(Index).Container.Place;
    const TileSize tile = Main.Con(Index).ShrinkSize();
    const bool open = place.Width != static_cast<float>(tile.Width) &&
                      place.Height != static_cast<float>(tile.Height) && !IsFolded(Main, Index);
    if (open) return {place.Width, place.Height};
    const StoredRect& stored = Main.Con(Index).StoredSize();
    return stored.W == 0 && stored.H == 0 ? FullSize(Main, Index) : Size{stored.W, stored.H};
}

void TakePlace(const frmMain& Main, int Index, ContainerRecord& record) {
    const clsContainer& container = Main.Con(Index);
    const Rect& place = Main.ConView(Index).Container.Place;
    const TileSize tile = container.ShrinkSize();
    const Size size = SizeToKeep(Main, Index);
    const bool movedUpOutside = container.Detached && container.CloseToEdgeY && container.DetachedFolded;
    record.ConShrinkW = tile.Width;
    record.ConShrinkH = tile.Height;
    record.Folded = IsFolded(Main, Index) || (container.Detached && container.DetachedFolded);
    record.Flipped = container.CloseToEdgeY;
    record.Shrink = IsShrunk(Main, Index);
    record.X = place.Left;
    record.Y = movedUpOutside ? container.StoredSize().Y : place.Top;
    record.W = size.Width;
    record.H = size.Height;
}

} // namespace

ContainerRecord RecordOfContainer(const frmMain& Main, int Index) {
    ContainerRecord record;
    record.Version = FormatVersion;
    TakeIdentity(Main, Index, record);
    TakeNote(Main, Index, record);
    TakeDetached(Main.Con(Index), record);
    TakePlace(Main, Index, record);
    if (Main.Con(Index).RSS) TakeFeed(Main.Feed(Index), record);
    return record;
}

std::string ContainerText(const frmMain& Main, int Index) {
    return ContainerText(Main, Index, ObjectsByParent(Main));
}

std::string ContainerText(const frmMain& Main, int Index, const ObjectsByParent& objects) {
    constexpr std::size_t BytesOfTags = 1536, BytesOfLink = 512;
    const ContainerRecord record = RecordOfContainer(Main, Index);
    std::string text;
    text.reserve(BytesOfTags + record.WriteNote.size() +
                 objects.ShortcutsIn(InContainer(Index)).size() * BytesOfLink);
    AppendLine(text, FormatVersion);
    WriteTags(text, ContainerTags(), record);
    WriteObjects(text, Main, objects, InContainer(Index));
    return text;
}

std::optional<Damage> ParseContainer(std::string_view bytes, ContainerRecord& record) {
    record.Clear();
    TagReader reader(bytes);
    std::string_view line;
    if (reader.Next(line)) record.Version = Trimmed(line);
    std::size_t next = 0;
    while (reader.Next(line)) {
        const auto* row = FindTag(ContainerTags(), &TagRow<ContainerRecord>::Tag, line, next);
        if (row && !row->Read(reader, row->Tag, record)) break;
    }
    auto damage = reader.Finish();
    if (!damage && record.Head == HeadKind::None) damage = Damage{.Kind = DamageKind::NoHead};
    return damage;
}

} // namespace quill
