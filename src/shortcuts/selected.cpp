#include "shortcuts/selected.h"

#include "containers/arrange.h"
#include "containers/layout.h"
#include "containers/lock.h"
#include "containers/scroll.h"
#include "containers/selection.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/save.h"
#include "platform/dialogs.h"
#include "platform/questions.h"
#include "shortcuts/create.h"
#include "shortcuts/launch.h"

#include <algorithm>

namespace quill {
namespace {

void DropDead(const frmMain& Main, std::vector<int>& links) {
    std::erase_if(links, [&](int link) { return !IsLive(Main.Shortcuts, link); });
}

// By value, in order of selection: what is done to one may change the selection, or end another.
std::vector<int> SelectedNow(const frmMain& Main) {
    std::vector<int> links = Main.Links.SelectedShortcuts;
    DropDead(Main, links);
    return links;
}

// Larger letters and fewer rows make another content.
void LayScrollBars(frmMain& Main, const std::vector<Parent>& parents) {
    for (const auto& in : parents)
        if (in.Kind == ParentKind::ContainerFrame) LayScrollBar(Main, in.Index);
}

void SetBold(frmMain& Main, int link, bool bold) {
    Main.Link(link).FontBold = bold;
    ApplyShortcutStyle(Main, link);
    SetNewLinkHeight(Main, link);
    MoveLinkIcon(Main, link);
}

std::optional<Color> AskColor(frmMain& Main, Color now) {
    const DialogPause pause(Main);
    return Main.P.Dialogs.ChooseColor(now, Tr(Main, "Color"));
}

std::string RemoveQuestion(const frmMain& Main, const std::vector<int>& links) {
    if (links.size() == 1) return Tr(Main, "Remove '%1'?", Main.Link(links.front()).FullCaption);
    return Tr(Main, "Remove Selected Shortcuts?") + "\n\n" +
           Tr(Main, "%1 Shortcuts Selected", std::to_string(links.size()));
}

bool RemovalConfirmed(frmMain& Main, const std::vector<int>& links) {
    if (!Main.Settings.ConfirmDelete) return true;
    const DialogPause pause(Main);
    return Main.P.Questions.MsgBox(RemoveQuestion(Main, links), BoxYesNo | BoxWarning,
                                   Tr(Main, "Remove Shortcuts")) == AnswerYes;
}

} // namespace

void StartSelected(frmMain& Main, bool ForceAdmin, bool Background) {
    for (const int link : SelectedNow(Main)) StartShortcut(Main, link, true, "", ForceAdmin, Background);
}

void lblShortcut_MiddleUp(frmMain& Main, int Index) {
    if (!IsLive(Main.Shortcuts, Index) || Main.Links.CurrentShortcut != Index) return;
    SetSelection(Main, Index, true);
    StartSelected(Main, false, true);
}

void ToggleBoldFont(frmMain& Main) {
    const auto links = SelectedNow(Main);
    if (links.empty() || !NeedsEdit(Main, Edit::Shortcuts)) return;
    const bool bold = !Main.Link(links.front()).FontBold;
    for (const int link : links) SetBold(Main, link, bold);
    LayScrollBars(Main, ParentsOf(Main, links));
    SaveWorkspace(Main, true, false);
}

void SetSelectedColor(frmMain& Main, Color color) {
    const auto links = SelectedNow(Main);
    if (links.empty() || !NeedsEdit(Main, Edit::Shortcuts)) return;
    for (const int link : links) {
        Main.Link(link).Color = color;
        SetSelection(Main, link, true); // its plate is in that colour now
    }
    SaveWorkspace(Main, true, false);
}

void mnuChooseColor_Click(frmMain& Main) {
    const auto links = SelectedNow(Main);
    if (links.empty() || !MayMoveShortcuts(Main)) return;
    const auto color = AskColor(Main, ShortcutInk(Main, links.front()));
    if (color && !Main.IsExiting) SetSelectedColor(Main, *color);
}

// What was asked about goes, whatever became selected while the question was open.
void DeleteSelectedShortcuts(frmMain& Main) {
    auto links = SelectedNow(Main);
    if (links.empty() || !MayMoveShortcuts(Main)) return;
    if (!RemovalConfirmed(Main, links) || Main.IsExiting) return;
    DropDead(Main, links);
    if (links.empty() || !NeedsEdit(Main, Edit::Shortcuts)) return;
    const auto parents = ParentsOf(Main, links);
    for (auto link = links.rbegin(); link != links.rend(); ++link) DeleteShortcut(Main, *link);
    LayScrollBars(Main, parents);
    SaveWorkspace(Main, true, false);
}

} // namespace quill
