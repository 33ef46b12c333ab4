#include "containers/commands.h"

#include "containers/con_properties.h"
#include "containers/fold.h"
#include "containers/full_size.h"
#include "containers/layout.h"
#include "containers/lifecycle.h"
#include "containers/lock.h"
#include "containers/selection.h"
#include "containers/undo.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/save.h"
#include "platform/dialogs.h"
#include "platform/drawing.h"
#include "platform/questions.h"
#include "shortcuts/icons.h"

#include <algorithm>
#include <utility>

namespace quill {
namespace {

// False when it was answered in any other way, or the program ends.
bool Agrees(frmMain& Main, const std::string& question) {
    DialogPause pause(Main);
    const int answer = Main.P.Questions.MsgBox(question, BoxYesNo | BoxQuestion, ProgramName);
    return answer == AnswerYes && !Main.IsExiting;
}

std::string NameOf(const frmMain& Main, int Index) {
    return Main.ConView(Index).ContainerLabel.Caption;
}

// --- removing

std::vector<int> ToRemove(const frmMain& Main) {
    const int current = Main.Group.CurrentContainer;
    const auto selected = SelectedContainers(Main);
    const bool among = std::ranges::find(selected, current) != selected.end();
    if (among || !IsLive(Main.Containers, current)) return selected;
    return {current};
}

std::string RemoveQuestion(const frmMain& Main, const std::vector<int>& containers) {
    if (containers.size() == 1) return Tr(Main, "%1?", NameOf(Main, containers.front()));
    return Tr(Main, "%1 Containers Selected", std::to_string(containers.size())) + "\n\n" +
           Tr(Main, "Remove Selected Containers?");
}

// --- changing places

void TellToSelectTwo(frmMain& Main) {
    DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, "You must have two (and only two) containers selected.") + "\n" +
                                Tr(Main, "* Select containers by holding down the Ctrl key and clicking the "
                                         "container name label (or icon, when the container is shrunk)."),
                            BoxOk | BoxInformation, ProgramName);
}

void MoveTo(frmMain& Main, int Index, Point place) {
    auto& box = Main.ConView(Index).Container.Place;
    box.Left = place.X;
    box.Top = place.Y;
    RememberPlace(Main, Index);
    ResetIconDrawn(Main, Index);
    Main.Marks.Container(Index);
}

// --- one size for all

void BecomeTile(frmMain& Main, int Index, TileSize size) {
    RememberPresentSize(Main, Index);
    if (Main.Group.ExpandedContainer == Index) Main.Group.ExpandedContainer = -1;
    Main.ConView(Index).FoldMark = "-"; // a tile is never folded
    Main.Con(Index).SetShrinkSize(size.Width, size.Height);
    auto& box = Main.ConView(Index).Container.Place;
    box.Width = static_cast<float>(size.Width);
    box.Height = static_cast<float>(size.Height);
    AddShrinkIcon(Main, Main.Con(Index).ShrinkPath, Index);
}

void BecomeOpen(frmMain& Main, int Index, Size size) {
    RememberFullSize(Main, Index, size);
    auto& box = Main.ConView(Index).Container.Place;
    box.Width = size.Width;
    if (!IsFolded(Main, Index)) box.Height = size.Height;
}

void TakeSizeOf(frmMain& Main, int Index, int model) {
    if (Index == model) return;
    if (IsShrunk(Main, model))
        BecomeTile(Main, Index, Main.Con(model).ShrinkSize());
    else
        BecomeOpen(Main, Index, FullSize(Main, model));
    ResetIconDrawn(Main, Index);
    SetObjectRelativeSize(Main, Index);
    DoRoundGradResizeSym(Main, Index, true);
}

// What nobody has seen yet is fetched when it is.
void DrawAfresh(frmMain& Main, int Shortcut) {
    auto& view = Main.LinkView(Shortcut);
    view.LabelMeasured = false;
    if (!std::exchange(view.IconDrawn, false)) return;
    Main.P.Images.Forget(GetIconSource(Main, Shortcut, true).File);
}

} // namespace

void mnuConKeepExpanded_Click(frmMain& Main) {
    Main.Group.ExpandedContainer = -1;
    Main.Group.AutoFoldContainerIndex = -1;
    SaveContainers(Main, true);
}

void mnuConRemove_Click(frmMain& Main) {
    const auto containers = ToRemove(Main);
    if (containers.empty()) return;
    if (Main.Settings.ConfirmDelete && !Agrees(Main, RemoveQuestion(Main, containers))) return;
    for (const int index : containers) DeleteContainer(Main, index, false);
    UnselectContainers(Main);
    SaveContainers(Main, true);
}

void mnuConSwitchPlaces_Click(frmMain& Main) {
    const auto selected = SelectedContainers(Main);
    if (selected.size() != 2) return TellToSelectTwo(Main);
    if (!NeedsEdit(Main, Edit::Containers)) return;
    const int one = selected.front(), other = selected.back();
    const auto first = PlaceNow(Main, MovedKind::Container, one);
    const auto second = PlaceNow(Main, MovedKind::Container, other);
    MoveTo(Main, one, {second.Left, second.Top});
    MoveTo(Main, other, {first.Left, first.Top});
    PushMove(Main, {first, second});
    SaveContainers(Main, true);
}

void mnuSetContainerSize_Click(frmMain& Main) {
    const int model = Main.Group.CurrentContainer;
    if (!IsLive(Main.Containers, model) || !MayMoveContainers(Main)) return;
    const auto question = Tr(Main, "Resize selected containers to match '%1' size?", NameOf(Main, model));
    if (!Agrees(Main, question) || !IsLive(Main.Containers, model)) return;
    if (!NeedsEdit(Main, Edit::Containers)) return;
    RememberPresentSize(Main, model);
    for (const int index : SelectedContainers(Main)) TakeSizeOf(Main, index, model);
    SaveContainers(Main, true);
}

void mnuConProperties_Click(frmMain& Main) {
    if (!IsLive(Main.Containers, Main.Group.CurrentContainer)) return;
    frmConProperties dialog(Main);
    DialogPause pause(Main);
    Main.P.Dialogs.Show(dialog);
}

void RefreshLinksAndShrinkIcons(frmMain& Main) {
    for (const auto& row : Live(Main.Containers)) {
        Main.P.Images.Forget(Main.ConView(row.Index).IconFile);
        AddShrinkIcon(Main, Main.Con(row.Index).ShrinkPath, row.Index);
    }
    for (const auto& row : Live(Main.Shortcuts)) DrawAfresh(Main, row.Index);
    Main.Marks.Everything();
}

void ResetIconDrawn(frmMain& Main, int Index) {
    if (!IsLive(Main.Containers, Index)) return;
    EachShortcutIn(Main, InContainer(Index), [&](int index) { Main.LinkView(index).IconDrawn = false; });
    if (IsShrunk(Main, Index) || IsFolded(Main, Index)) Main.Con(Index).IconsDrawn = false;
    Main.Marks.Container(Index);
}

} // namespace quill
