// The lines of the shortcut's menu that are about its properties and its looks.
#include "shortcuts/properties.h"

#include "appearance/schemes.h"
#include "containers/arrange.h"
#include "containers/layout.h"
#include "containers/lock.h"
#include "containers/scroll.h"
#include "containers/selection.h"
#include "core/lower_case.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/save.h"
#include "persistence/text_values.h"
#include "platform/dialogs.h"
#include "platform/questions.h"
#include "shortcuts/create.h"
#include "shortcuts/icon_cache.h"
#include "shortcuts/icons.h"
#include "shortcuts/launch.h"

#include <algorithm>
#include <optional>
#include <set>

namespace quill {
namespace {

constexpr int iconPixels = 64; // enough of it for a mean
constexpr Color white = 0xFFFFFF;

// By value: a question may change the selection.
std::vector<int> SelectedNow(const frmMain& Main) {
    std::vector<int> links = Main.Links.SelectedShortcuts;
    std::erase_if(links, [&](int link) { return !IsLive(Main.Shortcuts, link); });
    return links;
}

// The selection that the shortcut is part of; without it the shortcut alone. A failed start leaves what is
// selected as it is.
void SelectShown(frmMain& Main, const frmEditLink::Opening& opening) {
    const bool others = !Main.Links.SelectedShortcuts.empty();
    if (Main.Link(opening.Index).Selected || (others && (!opening.ErrorText.empty() || opening.Clone)))
        return;
    UnselectLinks(Main);
    SetSelection(Main, opening.Index, true);
}

// The shortcut that is to be started now; -1: none.
int AskProperties(frmMain& Main, const frmEditLink::Opening& opening) {
    Main.Links.PropertiesOpen = true;
    SelectShown(Main, opening);
    frmEditLink dialog(Main, opening);
    bool accepted = false;
    {
        const DialogPause pause(Main);
        accepted = Main.P.Dialogs.Show(dialog);
    }
    Main.Links.PropertiesOpen = false;
    return accepted && dialog.WantsStart() ? dialog.Written() : -1;
}

void ShowStyle(frmMain& Main, int Index) {
    ApplyShortcutStyle(Main, Index);
    SetSelection(Main, Index, true); // its plate is in the colour that it has now
    SetNewLinkHeight(Main, Index);
    MoveLinkIcon(Main, Index);
}

// An icon that is nothing but white gives white.
std::optional<Color> IconColor(const frmMain& Main, int Index) {
    const auto pixels = Main.P.Images.PixelsOf(GetIconSource(Main, Index, true), iconPixels);
    if (pixels.Colors.empty()) return std::nullopt;
    Color color = white;
    ComputeAveragePixelColor(pixels, true, color);
    return color;
}

// A picture that was fetched can be fetched again; one that a person chose stays.
void ResetStyle(frmMain& Main, int Index) {
    clsShortcut& record = Main.Link(Index);
    record.Color = -1;
    record.FontBold = false;
    record.FontSize = static_cast<std::int16_t>(Main.Settings.FontSize);
    if (IsCachedIcon(Main, record.Icon)) {
        record.Icon.clear();
        Main.LinkView(Index).IconDrawn = false;
    }
    ShowStyle(Main, Index);
}

void SaveStyles(frmMain& Main, const std::vector<int>& links) {
    for (const auto& in : ParentsOf(Main, links))
        if (in.Kind == ParentKind::ContainerFrame) LayScrollBar(Main, in.Index);
    SaveWorkspace(Main, true, false);
}

bool ResetConfirmed(frmMain& Main) {
    const DialogPause pause(Main);
    const auto question = Tr(Main, "Reset selected shortcuts style to default values?");
    return Main.P.Questions.MsgBox(question, BoxYesNo | BoxQuestion, ProgramName) == AnswerYes;
}

} // namespace

// A start that fails at once may show the dialog again, which the guard must not prevent.
void ShowShortcutProperties(frmMain& Main, const frmEditLink::Opening& opening) {
    auto shown = opening;
    if (shown.Index == -1) shown.Index = Main.Links.CurrentShortcut;
    if (Main.Links.PropertiesOpen || Main.IsExiting || !IsLive(Main.Shortcuts, shown.Index)) return;
    const int start = AskProperties(Main, shown);
    if (start != -1) StartShortcut(Main, start, false, "", false, false);
}

void mnuShortcutProperties_Click(frmMain& Main) {
    ShowShortcutProperties(Main, {});
}

void mnuCloneShortcut_Click(frmMain& Main) {
    ShowShortcutProperties(Main, {.Clone = true});
}

void mnuLinkReset_Click(frmMain& Main) {
    auto links = SelectedNow(Main);
    if (links.empty() || !MayMoveShortcuts(Main)) return;
    if (!ResetConfirmed(Main) || Main.IsExiting) return;
    std::erase_if(links, [&](int link) { return !IsLive(Main.Shortcuts, link); });
    if (links.empty() || !NeedsEdit(Main, Edit::Shortcuts)) return;
    for (const int link : links) ResetStyle(Main, link);
    SaveStyles(Main, links);
}

void mnuColorFromIcon_Click(frmMain& Main) {
    const auto links = SelectedNow(Main);
    if (links.empty() || !NeedsEdit(Main, Edit::Shortcuts)) return;
    for (const int link : links) {
        const auto color = IconColor(Main, link);
        if (!color) continue;
        Main.Link(link).Color = *color;
        ShowStyle(Main, link);
    }
    SaveStyles(Main, links);
}

std::vector<std::string> ExistingTags(const frmMain& Main) {
    std::vector<std::string> tags;
    std::set<std::string> seen;
    for (const auto& row : Live(Main.Shortcuts)) {
        std::string_view rest = row.Object.Tags;
        while (!rest.empty()) {
            const auto comma = rest.find(',');
            const auto tag = Trimmed(rest.substr(0, comma));
            if (!tag.empty() && seen.insert(LowerCase(tag)).second) tags.emplace_back(tag);
            rest.remove_prefix(comma == rest.npos ? rest.size() : comma + 1);
        }
    }
    return tags;
}

} // namespace quill
