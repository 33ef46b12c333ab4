#include "notes/notes.h"

#include "containers/fold.h"
#include "containers/layout.h"
#include "containers/lifecycle.h"
#include "containers/scroll.h"
#include "core/objects.h"
#include "core/tr.h"

#include <algorithm>

namespace quill {
namespace {

constexpr std::string_view blank = " \t\r\n";

// A lone carriage return ends a line too.
void AppendLine(std::string& lines, std::string_view line) {
    for (auto end = line.find('\r'); end != std::string_view::npos; end = line.find('\r')) {
        lines.append(line.substr(0, end)).append("\r\n");
        line.remove_prefix(end + 1);
    }
    lines.append(line);
}

std::string WithLineEnds(const std::string& text) {
    std::string lines;
    lines.reserve(text.size());
    for (std::size_t from = 0; from < text.size();) {
        const auto feed = std::min(text.find('\n', from), text.size());
        auto line = std::string_view(text).substr(from, feed - from);
        const bool ended = feed < text.size();
        if (ended && line.ends_with('\r')) line.remove_suffix(1);
        AppendLine(lines, line);
        if (ended) lines += "\r\n";
        from = feed + 1;
    }
    return lines;
}

void ShowFeed(frmMain& Main, int Index, bool shown) {
    const int row = Main.Con(Index).RSSListIndex;
    if (row >= 0 && static_cast<std::size_t>(row) < Main.FeedViews.size()) Main.Feed(Index).Visible = shown;
}

// The marks of the title row, the bar and the words at the foot follow what shows.
void LayAgain(frmMain& Main, int Index) {
    ShowHideContainerToolbar(Main, Index, !Main.Con(Index).HideToolbar);
    if (!Main.IsLoading) LayScrollBar(Main, Index);
    Main.Marks.Note(Index);
}

void HideNote(frmMain& Main, int Index) {
    Main.ConView(Index).ContainerNote.Visible = false;
    SelectNote(Main, false, Index);
    Main.Con(Index).Detached_Note_Visible = false;
    if (Main.Con(Index).RSS) ShowFeed(Main, Index, true);
}

void ShowNote(frmMain& Main, int Index) {
    auto& note = Main.ConView(Index).ContainerNote;
    note.Visible = true;
    ++note.FocusWish;
    SelectNote(Main, true, Index);
    if (Main.Con(Index).RSS) ShowFeed(Main, Index, false);
}

} // namespace

bool NewNote(frmMain& Main, const std::string& Text, const std::string& Caption, bool /*NoDetach*/) {
    bool ok = false;
    NewGroup(Main, false, ok);
    if (!ok) return false;
    const int index = Main.NextContainerIndex - 1;
    Main.Con(index).CreationDate = Main.Con(index).ModifyDate = DateText(Main);
    Main.Group.CurrentContainer = index;
    AddDefaultShrinkIcon(Main, "note.ico");
    SetObjectRelativeSize(Main, index);
    DoRoundGradResizeSym(Main, index, true);
    lblPinNote_Click(Main, index);
    SetNoteText(Main, index, Text);
    Main.ConView(index).ContainerLabel.Caption = Caption;
    return true;
}

void SelectNote(frmMain& Main, bool Selected, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    Main.ConView(Index).PinPressed = Selected;
    LayAgain(Main, Index);
}

// A folded container unfolds first; the second pass then shows the note.
void lblPinNote_Click(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    if (Main.Group.FrameLinkGroup) return LayAgain(Main, Index);
    const bool showing = Main.ConView(Index).PinPressed;
    if (showing) return HideNote(Main, Index);
    if (IsFolded(Main, Index)) FoldUnfoldContainer(Main, Index, true);
    if (!IsShrunk(Main, Index)) ShowNote(Main, Index);
}

void SetNoteText(frmMain& Main, int Index, std::string text) {
    if (!IsLive(Main.Containers, Index)) return;
    auto& note = Main.ConView(Index).ContainerNote;
    auto lines = WithLineEnds(text);
    if (note.Text == lines) return;
    note.Text = std::move(lines);
    note.ScrollTop = 0;
    ++note.Revision;
    LayAgain(Main, Index);
}

bool TypeNoteText(frmMain& Main, int Index, const std::string& text) {
    auto& note = Main.ConView(Index).ContainerNote;
    auto lines = WithLineEnds(text);
    if (note.Text == lines) return false;
    note.Text = std::move(lines);
    return true;
}

std::string_view CleanNoteText(std::string_view text) {
    const auto first = text.find_first_not_of(blank);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blank) - first + 1);
}

std::string FootText(const frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index) || IsShrunk(Main, Index)) return {};
    const auto& view = Main.ConView(Index);
    // Both words have one place: the second is written over the first.
    if (Main.Con(Index).Encrypted && view.ContainerNote.Visible && view.PinPressed)
        return Tr(Main, "Encrypted");
    return Main.Con(Index).IsReminder() ? Tr(Main, "Reminder") : std::string();
}

} // namespace quill
