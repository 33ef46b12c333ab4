// Selected containers in line with the current one, or spaced evenly.
#include "containers/arrange.h"
#include "containers/commands.h"
#include "containers/full_size.h"
#include "containers/lock.h"
#include "containers/selection.h"
#include "containers/undo.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/save.h"
#include "platform/questions.h"

#include <algorithm>

namespace quill {
namespace {

constexpr std::size_t fewestToSpace = 3;

// What is open for a moment counts where its tile stands.
Point PlaceOf(const frmMain& Main, int Index) {
    if (Main.Group.ExpandedContainer == Index)
        return {Main.Con(Index).StoredSize().X, Main.Con(Index).StoredSize().Y};
    const auto& place = Main.ConView(Index).Container.Place;
    return {place.Left, place.Top};
}

struct Move {
    int Index = -1;
    Point To;
};

// All in one step, and only what moves.
void MoveAll(frmMain& Main, std::vector<Move> moves) {
    std::erase_if(moves, [&](const Move& move) { return move.To == PlaceOf(Main, move.Index); });
    if (moves.empty() || !NeedsEdit(Main, Edit::Containers)) return;
    MoveStep before;
    for (const auto& [index, to] : moves) before.push_back(PlaceNow(Main, MovedKind::Container, index));
    for (const auto& [index, to] : moves) {
        auto& place = Main.ConView(index).Container.Place;
        place.Left = to.X;
        place.Top = to.Y;
        RememberPlace(Main, index);
        ResetIconDrawn(Main, index);
        Main.Marks.Container(index);
    }
    PushMove(Main, std::move(before));
    SaveContainers(Main, true);
}

template <class Target> void MoveEach(frmMain& Main, const std::vector<int>& chosen, const Target& target) {
    std::vector<Move> moves;
    for (const int index : chosen) moves.push_back({index, target(PlaceOf(Main, index))});
    MoveAll(Main, std::move(moves));
}

void AlignToCurrent(frmMain& Main, bool top) {
    const int current = Main.Group.CurrentContainer;
    if (!IsLive(Main.Containers, current)) return;
    const auto reference = PlaceOf(Main, current);
    const bool selected = Main.ConView(current).LabelSelected;
    UnselectContainer(Main, current);
    MoveEach(Main, SelectedContainers(Main), [&](Point at) {
        return top ? Point{at.X, reference.Y} : Point{reference.X, at.Y};
    });
    if (selected) SelectContainer(Main, current);
}

void TellThatThreeAreNeeded(frmMain& Main) {
    const DialogPause pause(Main);
    const auto text = Tr(Main, "You must have three or more containers selected.") + "\r\n" +
                      Tr(Main, "* Select containers by holding down the Ctrl key and clicking the container "
                               "name label (or icon, when the container is shrunk).");
    Main.P.Questions.MsgBox(text, BoxOk | BoxInformation, ProgramName);
}

float WidthOf(const frmMain& Main, int Index) {
    if (Main.Group.ExpandedContainer == Index) return static_cast<float>(Main.Con(Index).ShrinkSize().Width);
    return Main.ConView(Index).Container.Place.Width;
}

// The widths that lie between the left edges of the first and the last.
float InnerWidths(const frmMain& Main, const std::vector<int>& chosen) {
    float sum = 0;
    for (std::size_t at = 0; at + 1 < chosen.size(); ++at) sum += WidthOf(Main, chosen[at]);
    return sum;
}

void SpaceEvenly(frmMain& Main) {
    auto chosen = SelectedContainers(Main);
    if (chosen.size() < fewestToSpace) return TellThatThreeAreNeeded(Main);
    std::ranges::stable_sort(chosen, {}, [&](int index) { return PlaceOf(Main, index).X; });
    const float first = PlaceOf(Main, chosen.front()).X, last = PlaceOf(Main, chosen.back()).X;
    const float gap = (last - first - InnerWidths(Main, chosen)) / static_cast<float>(chosen.size() - 1);
    std::vector<Move> moves;
    float left = first;
    for (const int index : chosen) {
        if (index != chosen.back()) moves.push_back({index, {left, PlaceOf(Main, index).Y}});
        left += WidthOf(Main, index) + gap;
    }
    MoveAll(Main, std::move(moves));
}

} // namespace

void mnuAlignContainers_Click(frmMain& Main, int Index) {
    if (!MayMoveContainers(Main)) return;
    if (Index == 2) return SpaceEvenly(Main);
    AlignToCurrent(Main, Index == 0);
}

} // namespace quill
