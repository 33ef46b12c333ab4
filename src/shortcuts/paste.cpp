#include "shortcuts/paste.h"

#include "containers/lock.h"
#include "containers/selection.h"
#include "core/caption.h"
#include "core/objects.h"
#include "core/tr.h"
#include "notes/text_notes.h"
#include "persistence/save.h"
#include "platform/clipboard.h"
#include "shortcuts/create.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/foreign_text.h"
#include "shortcuts/incoming.h"
#include "shortcuts/placing.h"

namespace quill {
namespace {

// Where the keys go: a container, or the workspace at its last press.
DropPlace PlaceOfPaste(const frmMain& Main) {
    const int container = Main.Group.CurrentContainer;
    const bool inContainer = Main.Group.ContainerHasFocus && IsLive(Main.Containers, container);
    return inContainer ? DropPlace{InContainer(container), {0, -1}}
                       : DropPlace{OnWorkspace(), Main.Group.NewContainerPos};
}

bool PasteShortcuts(frmMain& Main, const DropPlace& place, const std::vector<Incoming>& items) {
    if (!TakesShortcuts(Main, place.To) || !NeedsEdit(Main, Edit::Shortcuts)) return false;
    UnselectLinks(Main);
    const bool shownAll = ShowsAll(Main, place.To);
    const Added added = AddIncoming(Main, place, items);
    FitToContent(Main, place.To, shownAll);
    if (added.Count > 0) SaveWorkspace(Main, true, false);
    TellAdded(Main, place.To, added);
    return true;
}

bool PasteText(frmMain& Main, const DropPlace& place, const std::string& text) {
    if (WithoutBlanks(text).empty()) return false;
    if (place.To.Kind == ParentKind::picBack) {
        if (!PasteTextFromClipboard(Main, text, Tr(Main, "Clipboard Text"))) return true; // it was told why
    } else {
        const int container = place.To.Index;
        if (!IsOpenToDrops(Main, container) || !Main.ConView(container).ContainerNote.Visible) return false;
        AppendToNote(Main, container, text);
    }
    SaveWorkspace(Main, true, false);
    return true;
}

void Paste(frmMain& Main, const DropPlace& place) {
    const ClipboardData data = Main.P.Clipboard.Read();
    if (Main.IsExiting) return;
    const auto items = IncomingOf(data.Files, data.Addresses, WithoutBlanks(data.Text));
    const bool done = items.empty() ? PasteText(Main, place, data.Text) : PasteShortcuts(Main, place, items);
    if (!done) ShowPassingCaption(Main, Tr(Main, "Nothing to paste here"));
}

} // namespace

void mnuPaste_Click(frmMain& Main) {
    Paste(Main, PlaceOfPaste(Main));
}

void mnuPasteToContainer_Click(frmMain& Main) {
    const int container = Main.Group.CurrentContainer;
    if (IsLive(Main.Containers, container)) Paste(Main, {InContainer(container), {0, -1}});
}

bool CanPaste(const frmMain& Main) {
    return Main.P.Clipboard.HasSomething();
}

} // namespace quill
