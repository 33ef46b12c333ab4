#include "containers/selection.h"

#include "appearance/palette.h"
#include "containers/layout.h"
#include "core/caption.h"
#include "core/objects.h"
#include "dock/mini_toolbar.h"
#include "shortcuts/create.h"

#include <algorithm>

namespace quill {
namespace {

constexpr std::uint8_t plateRadius = 2;

// The plate takes the colour that the caption had, which stands out from whatever it lies on; the caption
// that of the two extremes which is read best on it.
void TakeSelectionColors(frmMain& Main, int Shortcut) {
    EruLabel& label = Main.LinkView(Shortcut).lblShortcut;
    label.BackColor = ShortcutInk(Main, Shortcut);
    label.ForeColor = ExtremeOn(label.BackColor);
    label.BackStyle = 1;
    label.BorderRadius = plateRadius;
}

void TakeOwnColors(frmMain& Main, int Shortcut) {
    EruLabel& label = Main.LinkView(Shortcut).lblShortcut;
    label.SetOpacity(1);
    label.BackStyle = label.BorderRadius = 0;
    label.ForeColor = ShortcutInk(Main, Shortcut);
}

void Unselect(frmMain& Main, int Shortcut) {
    if (!IsLive(Main.Shortcuts, Shortcut)) return;
    Main.Link(Shortcut).Selected = false;
    TakeOwnColors(Main, Shortcut);
    MarkParent(Main, Main.LinkView(Shortcut).In);
}

// The title row tells how many are selected, unless it tells something else just now. The strip comes and
// goes with them.
template <class Change> void ChangeWithTitle(frmMain& Main, const Change& change) {
    const bool normal = Main.View.Caption == NormalCaption(Main);
    change();
    if (normal) SetCaption(Main, NormalCaption(Main));
    FollowSelection(Main);
}

void FlagContainer(frmMain& Main, int Index, bool Selected) {
    if (!IsLive(Main.Containers, Index) || Main.ConView(Index).LabelSelected == Selected) return;
    Main.ConView(Index).LabelSelected = Selected;
    Main.Marks.Container(Index);
}

Parent PlaceOfCommand(const frmMain& Main) {
    const int container = Main.Group.CurrentContainer;
    const bool inContainer = Main.Group.ContainerHasFocus && IsLive(Main.Containers, container);
    return inContainer ? InContainer(container) : OnWorkspace();
}

Rect Around(const Rect& one, const Rect& other) {
    const float left = std::min(one.Left, other.Left), top = std::min(one.Top, other.Top);
    return {left, top, std::max(one.Right(), other.Right()) - left,
            std::max(one.Bottom(), other.Bottom()) - top};
}

bool Wanted(int command, bool selected) {
    return command == 0 || (command == 2 && !selected);
}

} // namespace

void SetSelection(frmMain& Main, int Shortcut, bool Selected) {
    if (!IsLive(Main.Shortcuts, Shortcut)) return;
    ChangeWithTitle(Main, [&] {
        auto& list = Main.Links.SelectedShortcuts;
        if (!Selected) std::erase(list, Shortcut);
        if (!Selected) return Unselect(Main, Shortcut);
        if (!Main.Link(Shortcut).Selected) list.push_back(Shortcut);
        Main.Link(Shortcut).Selected = true;
        TakeSelectionColors(Main, Shortcut);
        MarkParent(Main, Main.LinkView(Shortcut).In);
    });
}

void GetSelection(const frmMain& Main, int Shortcut, bool& Selected) {
    Selected = IsLive(Main.Shortcuts, Shortcut) && Main.Link(Shortcut).Selected;
}

void UnselectLinks(frmMain& Main) {
    ChangeWithTitle(Main, [&] {
        for (const int shortcut : Main.Links.SelectedShortcuts) Unselect(Main, shortcut);
        Main.Links.SelectedShortcuts.clear();
    });
}

void SelectRange(frmMain& Main, int Shortcut) {
    if (!IsLive(Main.Shortcuts, Shortcut)) return;
    const auto in = Main.LinkView(Shortcut).In;
    const auto& list = Main.Links.SelectedShortcuts;
    const int last = list.empty() ? -1 : list.back();
    const bool here = IsLive(Main.Shortcuts, last) && Main.LinkView(last).In == in;
    const int anchor = here ? last : Shortcut;
    const auto range = Around(LabelPlace(Main, anchor), LabelPlace(Main, Shortcut));
    UnselectLinks(Main);
    EachShortcutIn(Main, in, [&](int link) {
        const bool between = Main.LinkView(link).Visible && range.Intersects(LabelPlace(Main, link));
        if (between && link != anchor) SetSelection(Main, link, true);
    });
    SetSelection(Main, anchor, true);
}

void ToggleSelection(frmMain& Main, SurfaceId surface, ElementId element) {
    if (element.Kind == ElementKind::lblShortcut || element.Kind == ElementKind::picShortcut) {
        bool selected = false;
        GetSelection(Main, element.Index, selected);
        SetSelection(Main, element.Index, !selected);
    } else if (surface.Kind == SurfaceKind::Container && IsLive(Main.Containers, surface.Index)) {
        FlagContainer(Main, surface.Index, !Main.ConView(surface.Index).LabelSelected);
    }
}

void SelectContainer(frmMain& Main, int Index) {
    FlagContainer(Main, Index, true);
}

void UnselectContainer(frmMain& Main, int Index) {
    FlagContainer(Main, Index, false);
}

void UnselectContainers(frmMain& Main) {
    for (const auto& row : Live(Main.Containers)) FlagContainer(Main, row.Index, false);
}

int GetSelectedContainersCount(const frmMain& Main) {
    return static_cast<int>(SelectedContainers(Main).size());
}

std::vector<int> SelectedContainers(const frmMain& Main) {
    std::vector<int> selected;
    for (const auto& row : Live(Main.Containers)) {
        const auto& view = Main.ConView(row.Index);
        if (view.LabelSelected && view.Container.Visible) selected.push_back(row.Index);
    }
    return selected;
}

void mnuConInvertSelection_Click(frmMain& Main) {
    for (const auto& row : Live(Main.Containers))
        FlagContainer(Main, row.Index, !Main.ConView(row.Index).LabelSelected);
}

void mnuConUnselectAll_Click(frmMain& Main) {
    UnselectContainers(Main);
}

void mnuSelectShortcuts_Click(frmMain& Main, int Index) {
    EachShortcutIn(Main, PlaceOfCommand(Main), [&](int shortcut) {
        const bool seen = Main.LinkView(shortcut).Visible; // a tag view hides the others from commands too
        const bool selected = Main.Link(shortcut).Selected;
        if (seen && Wanted(Index, selected) != selected) SetSelection(Main, shortcut, !selected);
    });
}

} // namespace quill
