#include "containers/arrange.h"

#include "containers/columns.h"
#include "containers/layout.h"
#include "containers/lock.h"
#include "containers/scroll.h"
#include "containers/undo.h"
#include "core/name_order.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/save.h"
#include "persistence/text_values.h"
#include "platform/questions.h"
#include "shortcuts/create.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

constexpr int smallestFont = 1, largestFont = 200, fontStep = 2; // points
constexpr float smallestOffered = 55, largestOffered = 445;      // spacings in the prompt, twips
constexpr int largestNumber = 10000;                             // of pixels that are worth converting

std::vector<int> SelectedLinks(const frmMain& Main) {
    std::vector<int> links = Main.Links.SelectedShortcuts;
    std::erase_if(links, [&](int link) { return !IsLive(Main.Shortcuts, link); });
    std::ranges::sort(links); // equal names stay in the order of the table
    return links;
}

MoveStep PlacesOf(const frmMain& Main, const std::vector<int>& links) {
    MoveStep step;
    for (const int link : links) step.push_back(PlaceNow(Main, MovedKind::Shortcut, link));
    return step;
}

// ---- sorting

// The column begins at the highest of them, so that sorting once more, or the other way round, leaves it
// where it is.
Point FirstPlace(const frmMain& Main, const std::vector<int>& links) {
    const auto higher = [&](int one, int other) {
        const auto &a = Main.LinkView(one).lblShortcut.Place, &b = Main.LinkView(other).lblShortcut.Place;
        return a.Top != b.Top ? a.Top < b.Top : a.Left < b.Left;
    };
    const auto& place = Main.LinkView(*std::ranges::min_element(links, higher)).lblShortcut.Place;
    return {place.Left, place.Top};
}

void SortByName(const frmMain& Main, std::vector<int>& links, SortOrder order) {
    std::ranges::stable_sort(links, [&](int one, int other) {
        const int names = CompareNames(Main.Link(one).FullCaption, Main.Link(other).FullCaption);
        return order == SortOrder::Ascending ? names < 0 : names > 0;
    });
}

void SortIn(frmMain& Main, Parent in, std::vector<int> links, SortOrder order) {
    std::erase_if(links, [&](int link) { return Main.LinkView(link).In != in; });
    const auto from = FirstPlace(Main, links);
    SortByName(Main, links, order);
    LayColumn(Main, in, links, from);
}

// ---- sizes

void SetFontSize(frmMain& Main, int link, int points) {
    Main.Link(link).FontSize = static_cast<std::int16_t>(points);
    ApplyShortcutStyle(Main, link);
    SetNewLinkHeight(Main, link);
    MoveLinkIcon(Main, link);
}

// What is no font size leaves a shortcut as it is.
template <class NewSize> void ChangeFontSizes(frmMain& Main, const NewSize& newSize) {
    const auto links = SelectedLinks(Main);
    if (links.empty() || !NeedsEdit(Main, Edit::Shortcuts)) return;
    for (const int link : links) {
        const int points = newSize(Main.Link(link).FontSize);
        if (points >= smallestFont && points <= largestFont) SetFontSize(Main, link, points);
    }
    for (const auto& in : ParentsOf(Main, links)) {
        if (in.Kind == ParentKind::ContainerFrame) LayScrollBar(Main, in.Index);
    }
    SaveWorkspace(Main, true, false);
}

// ---- spacing

std::string Pixels(float twips) {
    return std::to_string(std::lround(twips / TwipsPerPixel));
}

Parent PlaceOfSpacing(const frmMain& Main) {
    const int container = Main.Group.CurrentContainer;
    const bool inContainer = Main.Group.ContainerHasFocus && IsLive(Main.Containers, container);
    return inContainer ? InContainer(container) : OnWorkspace();
}

InputQuestion SpacingQuestion(const frmMain& Main, Parent in) {
    const std::string name = in.Kind == ParentKind::picBack ? Tr(Main, "Workspace")
                                                            : Main.ConView(in.Index).ContainerLabel.Caption;
    InputQuestion question;
    question.Title = ProgramName;
    question.Caption =
        Tr(Main, "%1: Spacing in pixels when arranging workspace shortcuts in columns:%2 to %3", name,
           Pixels(smallestOffered), Pixels(largestOffered));
    question.Text = Pixels(static_cast<float>(RowSpacing(Main, in)));
    return question;
}

// Twips; the offered number means the spacing as it is, which need not be whole pixels.
int AnsweredSpacing(const frmMain& Main, Parent in, double pixels) {
    if (std::to_string(std::lround(pixels)) == SpacingQuestion(Main, in).Text) return RowSpacing(Main, in);
    const double twips = std::clamp<double>(pixels, -largestNumber, largestNumber) * TwipsPerPixel;
    return GetProperSpacing(static_cast<int>(std::lround(twips)));
}

void SetSpacing(frmMain& Main, Parent in, int twips) {
    auto& spacing =
        in.Kind == ParentKind::picBack ? Main.Settings.LineSpacing : Main.Con(in.Index).LineSpacing;
    spacing = static_cast<std::int16_t>(twips);
}

void RelayShortcuts(frmMain& Main, Parent in) {
    std::vector<int> links;
    EachShortcutIn(Main, in, [&](int link) { links.push_back(link); });
    auto before = PlacesOf(Main, links);
    LayShortcuts(Main, in);
    PushMove(Main, std::move(before));
}

// Nothing: cancelled, or no number. The workspace may have changed while the question was open.
std::optional<double> AskNumber(frmMain& Main, InputQuestion question) {
    const DialogPause pause(Main);
    if (!Main.P.Questions.AskInput(question) || Main.IsExiting) return {};
    return ReadNumber(question.Text);
}

} // namespace

std::vector<Parent> ParentsOf(const frmMain& Main, const std::vector<int>& links) {
    std::vector<Parent> parents;
    for (const int link : links) {
        const auto& in = Main.LinkView(link).In;
        if (std::ranges::find(parents, in) == parents.end()) parents.push_back(in);
    }
    return parents;
}

void SortShortcuts(frmMain& Main, SortOrder order) {
    const auto links = SelectedLinks(Main);
    if (links.empty() || !NeedsEdit(Main, Edit::Shortcuts)) return;
    auto before = PlacesOf(Main, links);
    for (const auto& in : ParentsOf(Main, links)) SortIn(Main, in, links, order);
    PushMove(Main, std::move(before));
    SaveWorkspace(Main, true, false);
}

void mnuSortShortcuts_Click(frmMain& Main, int Index) {
    SortShortcuts(Main, Index == 0 ? SortOrder::Ascending : SortOrder::Descending);
}

void MakeIconsLarger_Click(frmMain& Main) {
    ChangeFontSizes(Main, [](int points) { return points + fontStep; });
}

void MakeIconsSmaller_Click(frmMain& Main) {
    ChangeFontSizes(Main, [](int points) { return points - fontStep; });
}

void MakeIconsSizeDifferent_Click(frmMain& Main) {
    const auto links = SelectedLinks(Main);
    if (links.empty() || !MayMoveShortcuts(Main)) return;
    InputQuestion question;
    question.Title = Tr(Main, "Font Size");
    question.Caption = Tr(Main, "New Size:");
    question.Text = std::to_string(Main.Link(links.front()).FontSize);
    const auto size = AskNumber(Main, question);
    if (!size || *size < smallestFont || *size > largestFont) return;
    ChangeFontSizes(Main, [&](int) { return static_cast<int>(std::lround(*size)); });
}

void mnuLineSpacing_Click(frmMain& Main) {
    const auto in = PlaceOfSpacing(Main);
    if (!MayMoveShortcuts(Main)) return;
    const auto pixels = AskNumber(Main, SpacingQuestion(Main, in));
    if (!pixels || (in.Kind == ParentKind::ContainerFrame && !IsLive(Main.Containers, in.Index))) return;
    if (!NeedsEdit(Main, Edit::Shortcuts)) return;
    SetSpacing(Main, in, AnsweredSpacing(Main, in, *pixels));
    RelayShortcuts(Main, in);
    SaveWorkspace(Main, true, false);
}

void mnuAlign_Click(frmMain& Main) {
    Main.Dock.Align = !Main.Dock.Align;
    SaveWorkspace(Main, true, false);
}

} // namespace quill
