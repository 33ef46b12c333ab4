// What other programs drop. Files and addresses become shortcuts, text becomes a note or joins one. Nothing
// of theirs is moved or opened; only a link on the desktop that a shortcut has taken the place of goes to the
// trash, where that is set.
#include "containers/boundaries.h"
#include "containers/measures.h"
#include "containers/selection.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "dock/foreground.h"
#include "notes/text_notes.h"
#include "persistence/save.h"
#include "platform/dialogs.h"
#include "platform/drawing.h"
#include "platform/places.h"
#include "platform/shell.h"
#include "shortcuts/create.h"
#include "shortcuts/drags.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/folder_items.h"
#include "shortcuts/incoming.h"
#include "shortcuts/link_target.h"
#include "shortcuts/placing.h"

#include <algorithm>
#include <utility>

namespace quill {
namespace {

constexpr float largestPicture = 4500; // twips of its longer side, when it is dropped
constexpr float unknownPicture = 3000;
constexpr int nameLetters = 15; // of a dropped text, as the name of its note

// Nothing collapses under the hand that drops.
class DropHold {
public:
    explicit DropHold(frmMain& main) : links_(main.Links), before_(std::exchange(links_.Dropping, true)) {}
    ~DropHold() { links_.Dropping = before_; }
    DropHold(const DropHold&) = delete;
    DropHold& operator=(const DropHold&) = delete;

private:
    ShortcutsState& links_;
    bool before_;
};

std::string FirstLetters(std::string_view text, int count) {
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        const bool begins = (static_cast<unsigned char>(text[end]) & 0xC0) != 0x80;
        if (begins && count-- == 0) break;
    }
    return std::string(text.substr(0, end));
}

bool LiesOnDesktop(const frmMain& Main, const std::string& path) {
    const std::string desktop = Main.P.Places.Folder(SpecialFolder::Desktop);
    const bool own = !desktop.empty() && desktop != Main.P.Places.Folder(SpecialFolder::Home);
    return own && path.substr(0, path.find_last_of('/')) == WithoutEndSeparator(desktop);
}

// Only when the shortcut that takes its place is on the disk.
void TrashDesktopLinks(frmMain& Main, const std::vector<std::string>& links) {
    const bool wanted = Main.Settings.DeleteDesktopShortcuts && Main.Settings.ExtractURLs;
    if (!wanted || !MaySave(Main) || !Main.Store.SaveFailure.empty()) return;
    for (const std::string& link : links) {
        if (!IsLinkFileName(link) || !LiesOnDesktop(Main, link)) continue;
        static_cast<void>(Main.P.Shell.MoveToTrash(link)); // what can't go stays where it is
    }
}

// A folder that is dropped alone may become a container. False: it is to become a shortcut.
bool BecomesContainer(frmMain& Main, const DropPlace& place, const std::vector<Incoming>& items) {
    const bool one = place.To.Kind == ParentKind::picBack && items.size() == 1 && !items.front().Address;
    return one && ContainerFromFolder(Main, items.front().Target, place.At);
}

DropAnswer DropShortcuts(frmMain& Main, const DropPlace& place, const DragData& data) {
    const auto items = IncomingOf(data.Files, data.Addresses, TrimmedText(data));
    UnselectLinks(Main);
    if (BecomesContainer(Main, place, items)) return DropAnswer::Copied;
    if (Main.IsExiting) return DropAnswer::Refused;
    const bool shownAll = ShowsAll(Main, place.To);
    const Added added = AddIncoming(Main, place, items);
    FitToContent(Main, place.To, shownAll);
    if (added.Count > 0) SaveWorkspace(Main, true, false);
    TrashDesktopLinks(Main, added.Links);
    TellAdded(Main, place.To, added);
    return added.Count > 0 ? DropAnswer::Copied : DropAnswer::Refused;
}

// In its own proportions, no larger than it can be taken in at a glance.
Size FirstSize(const frmMain& Main, const std::string& path) {
    const Size size = Main.P.Images.PictureSize(path);
    const float longer = std::max(size.Width, size.Height);
    if (longer <= 0) return {unknownPicture, unknownPicture};
    const float scale = std::min(1.0F, largestPicture / longer);
    return {size.Width * scale, size.Height * scale};
}

DropAnswer DropPicture(frmMain& Main, const DropPlace& place, const DragData& data) {
    const std::string& path = data.Files.front();
    const Size size = FirstSize(Main, path);
    const Point at = ShowsPlace(Main, place) ? place.At : Point{measures::EdgeGap, measures::EdgeGap};
    bool ok = false;
    AddPicture(Main, path, place.To, {at.X, at.Y, size.Width, size.Height}, ok);
    if (!ok || Main.IsExiting) return DropAnswer::Refused;
    CheckBoundaries(Main, {MovedKind::Picture, Main.NextPictureIndex - 1}, true);
    FitToContent(Main, place.To, false);
    SaveWorkspace(Main, true, false);
    return DropAnswer::Copied;
}

DropAnswer Saved(frmMain& Main, bool changed) {
    if (changed) SaveWorkspace(Main, true, false);
    return changed ? DropAnswer::Copied : DropAnswer::Refused;
}

DropAnswer DropNewNote(frmMain& Main, const DropPlace&, const DragData& data) {
    return Saved(Main, PasteTextFromClipboard(Main, data.Text, FirstLetters(TrimmedText(data), nameLetters)));
}

DropAnswer DropOnNote(frmMain& Main, const DropPlace& place, const DragData& data) {
    AppendToNote(Main, place.To.Index, data.Text);
    return Saved(Main, true);
}

DropAnswer DropText(frmMain& Main, const DropPlace&, const DragData& data) {
    TextQuestion question{Tr(Main, "Paste Text"), {}, DroppedText(data)};
    {
        const DialogPause pause(Main);
        if (!Main.P.Dialogs.Show(question) || Main.IsExiting) return DropAnswer::Refused;
    }
    return Saved(Main, PasteTextFromClipboard(Main, question.Text, Tr(Main, "Clipboard Text")));
}

DropAnswer DropTextFile(frmMain& Main, const DropPlace&, const DragData& data) {
    AddNoteFromTextFile(Main, data.Files.front());
    return DropAnswer::Copied;
}

void TakePlace(frmMain& Main, const DropPlace& place) {
    if (place.To.Kind == ParentKind::ContainerFrame)
        Main.Group.CurrentContainer = place.To.Index;
    else
        Main.Group.NewContainerPos = place.At;
    ForceForeground(Main);
}

struct OutcomeRow {
    DropOutcome Outcome;
    DropAnswer (*Act)(frmMain&, const DropPlace&, const DragData&);
};

constexpr OutcomeRow outcomes[] = {
    {DropOutcome::Shortcuts, &DropShortcuts},   {DropOutcome::Picture, &DropPicture},
    {DropOutcome::NoteText, &DropOnNote},       {DropOutcome::NewNote, &DropNewNote},
    {DropOutcome::NoteFromFile, &DropTextFile}, {DropOutcome::TextDialog, &DropText},
};

} // namespace

DropAnswer DropFromOutside(frmMain& Main, Parent to, Point at, const DragData& data, bool ShiftAlone) {
    if (!data.Objects.empty() || !OpensForDrop(Main, to, data, ShiftAlone)) return DropAnswer::Refused;
    const DropHold hold(Main);
    TakePlace(Main, {to, at});
    const auto found =
        std::ranges::find(outcomes, OutcomeOf(Main, to, data, ShiftAlone), &OutcomeRow::Outcome);
    return found == std::end(outcomes) ? DropAnswer::Refused : found->Act(Main, {to, at}, data);
}

} // namespace quill
