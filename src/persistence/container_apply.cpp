// From the record of a container file to the tables: the container, its values, what lies in it, and at the
// end the state that it was saved in.
#include "persistence/container_file.h"

#include "appearance/colors.h"
#include "containers/fold.h"
#include "containers/full_size.h"
#include "containers/layout.h"
#include "containers/lifecycle.h"
#include "containers/shrink.h"
#include "containers/tag_view.h"
#include "core/objects.h"
#include "core/splash.h"
#include "core/tr.h"
#include "notes/notes.h"

#include <algorithm>

namespace quill {

namespace {

bool IsFeed(const ContainerRecord& record) {
    return record.Head == HeadKind::Feed;
}

// With "/loadrss" the feeds themselves tell more than their names.
void TellProgress(frmMain& Main, const ContainerRecord& record) {
    if (!IsFeed(record))
        ShowSplashText(Main, Tr(Main, "Loading %1...", record.Name.value_or("")));
    else if (!Main.Start.QuietFeedNames)
        ShowSplashText(Main, Tr(Main, "%1...", record.FeedCaption));
}

template <class Field, class Value> void TakeGiven(Field& field, const std::optional<Value>& given) {
    if (given) field = Field(*given);
}

void AddFeedRow(frmMain& Main, int Index, const ContainerRecord& record) {
    clsContainer& container = Main.Con(Index);
    container.RSS = true;
    container.CopyPath = record.FeedUrl;
    container.RSSListIndex = Main.NextRSSIndex++;
    if (Main.FeedViews.size() < static_cast<std::size_t>(Main.NextRSSIndex))
        Main.FeedViews.resize(static_cast<std::size_t>(Main.NextRSSIndex));
    FeedView& feed = Main.Feed(Index);
    feed = {};
    feed.GroupIndex = Index;
    feed.BuiltInViewer = feed.ArticleTooltip = feed.HighlightSearchTerms = true;
    Main.ConView(Index).ContainerLabel.Caption = record.FeedCaption;
}

void ApplyFeedOptions(FeedView& feed, const ContainerRecord& record) {
    TakeGiven(feed.FontSize, record.RSSFontSize);
    TakeGiven(feed.RefreshOnExpand, record.RefreshOnExpand);
    TakeGiven(feed.BuiltInViewer, record.BuiltInViewer);
    TakeGiven(feed.ArticleTooltip, record.ArticleTooltip);
    TakeGiven(feed.HighlightSearchTerms, record.HighlightSearchTerms);
    TakeGiven(feed.Filter, record.Filter);
    TakeGiven(feed.FilterString, record.FilterString);
}

void ApplyIdentity(frmMain& Main, int Index, const ContainerRecord& record) {
    clsContainer& container = Main.Con(Index);
    TakeGiven(Main.ConView(Index).ContainerLabel.Caption, record.Name);
    TakeGiven(container.CreationDate, record.Date);
    TakeGiven(container.ModifyDate, record.Modified);
    TakeGiven(container.AutoRefresh, record.AutoRefresh);
    TakeGiven(container.LineSpacing, record.LineSpacing);
    container.SpacebarFlip = record.SpacebarFlip;
    container.HideToolbar = record.HideToolbar;
    if (!IsFeed(record)) container.CopyPath = ReadPath(record.CopyPath);
}

void ApplyColors(frmMain& Main, int Index, const ContainerRecord& record) {
    ContainerView& view = Main.ConView(Index);
    if (record.Backcolor) SetColors(Main, Index, *record.Backcolor);
    if (record.Forecolor) SetLabelColors(Main, Index, *record.Forecolor);
    if (KindOf(Main, Index) != ContainerKind::FolderConnector) return;
    view.ContainerLabel.BorderStyle = 1;
    view.ContainerLabel.BorderColor = Lighter(view.FrameBackColor, true);
}

// The colours of the text; a file without them takes those of the workspace.
void ApplyTextColors(frmMain& Main, int Index, const ContainerRecord& record) {
    const Color back = record.ContainerTextBack.value_or(Main.Settings.ContainerTextBack);
    const Color ink = record.ContainerTextFor.value_or(Main.Settings.ContainerTextFor);
    NoteView& note = Main.ConView(Index).ContainerNote;
    note.BackColor = back;
    note.ForeColor = ink;
    if (!IsFeed(record)) return;
    FeedView& feed = Main.Feed(Index);
    feed.FeedBackColor = back;
    feed.FeedForeColor = ink;
    feed.FrameBackColor = Main.ConView(Index).FrameBackColor;
}

void ApplyDetached(clsContainer& container, const ContainerRecord& record) {
    container.Detached = record.Detached;
    container.DetachedFolded = record.Detached && record.Folded;
    container.DetachedConFolded = record.DetachedConFolded;
    TakeGiven(container.DetachedUndockOnClick, record.DetachedUndockOnClick);
    TakeGiven(container.DetachedUseTab, record.DetachedTab);
    TakeGiven(container.DetachedCollapseOnClick, record.DetachedCollapseOnClick);
    TakeGiven(container.DetachedTransparent, record.DetachedTransparent);
    TakeGiven(container.DetachedOnTop, record.DetachedOnTop);
    TakeGiven(container.DetachedFadeOut, record.DetachedFadeOut);
    container.DetachedTabDockedWhere = record.DetachedTabDocked;
    container.SetDetachedLabelPos({.X = record.DetachedTabX,
                                   .Y = record.DetachedTabY,
                                   .H = record.DetachedTabH,
                                   .W = record.DetachedTabW});
    container.SetDetachedSize(
        {.X = record.DetachedX, .Y = record.DetachedY, .H = record.DetachedH, .W = record.DetachedW});
}

// Only the left edge is kept inside: a container above the window is brought back by its layout.
void ApplyPlace(frmMain& Main, int Index, const ContainerRecord& record) {
    clsContainer& container = Main.Con(Index);
    Rect& place = Main.ConView(Index).Container.Place;
    container.SetShrinkSize(std::max(0, record.ConShrinkW), std::max(0, record.ConShrinkH));
    if (record.X) place.Left = std::max(0.0F, *record.X);
    TakeGiven(place.Top, record.Y);
    TakeGiven(place.Width, record.W);
    TakeGiven(place.Height, record.H);
    container.SetSize({.X = place.Left, .Y = place.Top});
    if (record.H || record.W) container.SetSize({.H = record.H, .W = record.W});
    RememberFullSize(Main, Index, {place.Width, place.Height});
}

void ApplyNoteText(frmMain& Main, int Index, const ContainerRecord& record) {
    clsContainer& container = Main.Con(Index);
    if (!CleanNoteText(record.ReadNote).empty()) SetNoteText(Main, Index, record.ReadNote);
    container.Encrypted = record.Encrypted;
    if (record.Encrypted) Main.ConView(Index).ContainerNote.Place.Height = 0;
    if (const auto& reminder = record.ReminderV2)
        container.SetReminder(true, reminder->Year, reminder->Month, reminder->Day, reminder->Hour,
                              reminder->Minute, std::string(reminder->ReadbleTimeString));
    TakeGiven(Main.ConView(Index).ContainerNote.FontSize, record.NoteFontSize);
}

// A reminder is its note, in the colours of the container.
void ShowReminder(frmMain& Main, int Index, bool pinned) {
    ContainerView& view = Main.ConView(Index);
    view.ContainerNote.BackColor = view.FrameBackColor;
    view.ContainerNote.ForeColor = view.ContainerLabel.ForeColor;
    view.ContainerNote.Visible = true;
    SelectNote(Main, pinned, Index);
}

void ShowNoteAsSaved(frmMain& Main, int Index, const ContainerRecord& record) {
    if (Main.Con(Index).IsReminder()) return ShowReminder(Main, Index, record.NoteOn);
    const bool shown = record.NoteOn && !IsFeed(record);
    ApplyTextColors(Main, Index, record);
    Main.ConView(Index).ContainerNote.Visible = shown;
    Main.Con(Index).Detached_Note_Visible = record.NoteOn; // a feed opens with its list, and keeps the word
    SelectNote(Main, shown, Index);
}

// By its saved word, or because it has the tile's size.
bool IsTile(const frmMain& Main, int Index, const ContainerRecord& record) {
    return record.Shrink || IsShrunk(Main, Index);
}

void ShrinkAsSaved(frmMain& Main, int Index) {
    const Size full = FullSize(Main, Index);
    Rect& place = Main.ConView(Index).Container.Place;
    if (IsShrunk(Main, Index)) place.Width = full.Width, place.Height = full.Height;
    ExpandShrinkContainer(Main, Index, false);
    if (Main.Con(Index).RSS) Main.Feed(Index).LastUpdateVisible = false;
}

// While it is detached the fold belongs to its own window.
void ApplyState(frmMain& Main, int Index, const ContainerRecord& record) {
    const bool folded = record.Folded && !record.Detached;
    const bool tile = IsTile(Main, Index, record);
    if (folded || !tile) SetObjectRelativeSize(Main, Index);
    if (!folded && !tile) DoRoundGradResizeSym(Main, Index, true);
    if (!folded && !Main.Con(Index).IsReminder())
        ShowHideContainerToolbar(Main, Index, !Main.Con(Index).HideToolbar);
    if (tile)
        ShrinkAsSaved(Main, Index);
    else if (folded)
        FoldUnfoldContainer(Main, Index, false);
    if (record.Flipped && !record.Folded && !tile) FlipFoldedNote(Main, Index);
    Main.Con(Index).CloseToEdgeY = record.Flipped;
}

void ApplyTag(frmMain& Main, int Index, const ContainerRecord& record) {
    if (record.ShowTag.empty()) return;
    Main.Con(Index).ShowingTag = record.ShowTag;
    ApplyContainerTag(Main, Index);
}

} // namespace

bool ApplyContainer(frmMain& Main, const ContainerRecord& record) {
    TellProgress(Main, record);
    bool ok = false;
    NewGroup(Main, false, ok);
    if (!ok) return false;
    const int index = Main.NextContainerIndex - 1;
    if (IsFeed(record)) {
        AddFeedRow(Main, index, record);
        ApplyFeedOptions(Main.Feed(index), record);
    }
    ApplyIdentity(Main, index, record);
    ApplyColors(Main, index, record);
    ApplyDetached(Main.Con(index), record);
    ApplyPlace(Main, index, record);
    ApplyNoteText(Main, index, record);
    ApplyObjects(Main, record.Objects, InContainer(index));
    ShowNoteAsSaved(Main, index, record);
    AddShrinkIcon(Main, ReadPath(record.Icon), index);
    ApplyState(Main, index, record);
    ApplyTag(Main, index, record);
    Main.ConView(index).Container.Visible = true;
    Main.Marks.Container(index);
    return true;
}

} // namespace quill
