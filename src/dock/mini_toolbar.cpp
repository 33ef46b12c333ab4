#include "dock/mini_toolbar.h"

#include "containers/arrange.h"
#include "containers/layout.h"
#include "containers/lock.h"
#include "core/element_walk.h"
#include "core/frmMain.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "platform/clock.h"
#include "platform/windows.h"
#include "shortcuts/selected.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace quill {
namespace {

constexpr TimerId unloadTimer{TimerName::TimerUnload};
constexpr int unloadTime = 100; // milliseconds
constexpr int atOnce = 1;

constexpr float cellEdge = 28 * TwipsPerPixel;
constexpr float rim = 4 * TwipsPerPixel;
constexpr float gapBeforeColor = 6 * TwipsPerPixel;
constexpr float gapToLabels = 6 * TwipsPerPixel;
constexpr Size stripSize{(MiniToolbarButtons + 1) * cellEdge + gapBeforeColor + 2 * rim, cellEdge + 2 * rim};

// ---- what the cells do

void SortUp(frmMain& Main) {
    SortShortcuts(Main, SortOrder::Ascending);
}
void SortDown(frmMain& Main) {
    SortShortcuts(Main, SortOrder::Descending);
}
void Start(frmMain& Main) {
    StartSelected(Main, false, false);
}

constexpr MiniToolbarCell cells[] = {
    {"larger", "Larger", &MakeIconsLarger_Click, true},
    {"smaller", "Smaller", &MakeIconsSmaller_Click, true},
    {"text-size", "Other Size...", &MakeIconsSizeDifferent_Click, true},
    {"bold", "Bold", &ToggleBoldFont, true},
    {"sort-ascending", "Sort Ascending", &SortUp, true},
    {"sort-descending", "Sort Descending", &SortDown, true},
    {"delete", "Remove Shortcuts", &DeleteSelectedShortcuts, true},
    {"start", "Start Selected (%1)", &Start, false},
    {"color", "Click to select color", &mnuChooseColor_Click, true},
};
static_assert(std::size(cells) == MiniToolbarButtons + 1);

// ---- where the selection is seen

// Where the shortcuts of a parent are seen on the desktop, and where the parent's own corner is.
struct Window {
    Rect Area;
    Point Origin;
};

std::optional<Window> WindowOnto(const frmMain& Main, const Parent& in) {
    const auto& back = Main.View.picBack.Place;
    const Rect ground{Main.View.Window.Left + back.Left, Main.View.Window.Top + back.Top, back.Width,
                      back.Height};
    if (in.Kind == ParentKind::picBack) return Window{ground, {ground.Left, ground.Top}};
    if (!IsLive(Main.Containers, in.Index)) return {};
    const auto& view = Main.ConView(in.Index);
    const bool shut = IsShrunk(Main, in.Index) || IsFolded(Main, in.Index) || view.ContainerNote.Visible;
    if (shut || !view.Container.Visible) return {};
    const auto& box = view.Container.Place;
    const Rect frame = walk::Moved(view.ContainerFrame.Place, ground.Left + box.Left, ground.Top + box.Top);
    return Window{walk::Cut(frame, ground), {frame.Left, frame.Top - view.ScrollTop}};
}

std::optional<Rect> SeenOnDesktop(const frmMain& Main, int link) {
    if (!IsLive(Main.Shortcuts, link) || !Main.LinkView(link).Visible) return {};
    const auto window = WindowOnto(Main, Main.LinkView(link).In);
    if (!window) return {};
    const Rect whole = walk::Around(LabelPlace(Main, link), IconPlace(Main, link));
    const Rect seen = walk::Cut(walk::Moved(whole, window->Origin.X, window->Origin.Y), window->Area);
    if (seen.Width <= 0 || seen.Height <= 0) return {};
    return seen;
}

// The one that was selected last comes last.
std::vector<Rect> SeenLabels(const frmMain& Main) {
    std::vector<Rect> labels;
    for (const int link : Main.Links.SelectedShortcuts)
        if (const auto seen = SeenOnDesktop(Main, link)) labels.push_back(*seen);
    return labels;
}

// ---- where the strip goes

float WholePixels(float twips) {
    return std::round(twips / TwipsPerPixel) * TwipsPerPixel;
}

float Within(float begin, float length, float areaBegin, float areaEnd) {
    return std::max(areaBegin, std::min(begin, areaEnd - length));
}

Rect MovedInto(const Rect& area, const Rect& place) {
    return {Within(place.Left, place.Width, area.Left, area.Right()),
            Within(place.Top, place.Height, area.Top, area.Bottom()), place.Width, place.Height};
}

Rect StripAt(float left, float top) {
    return {WholePixels(left), WholePixels(top), stripSize.Width, stripSize.Height};
}

// Best first: below and above the last one, then beside the whole selection.
std::vector<Rect> Candidates(const std::vector<Rect>& labels) {
    const Rect& last = labels.back();
    Rect all = last;
    for (const auto& label : labels) all = walk::Around(all, label);
    const float above = gapToLabels + stripSize.Height;
    return {StripAt(last.Left, last.Bottom() + gapToLabels),
            StripAt(last.Left, last.Top - above),
            StripAt(last.Left, all.Bottom() + gapToLabels),
            StripAt(last.Left, all.Top - above),
            StripAt(all.Right() + gapToLabels, last.Top),
            StripAt(all.Left - gapToLabels - stripSize.Width, last.Top)};
}

// Wherever nothing that is selected would be covered; over it only where the monitor has no such place.
Rect PlaceBeside(const frmMain& Main, const std::vector<Rect>& labels) {
    const Rect area = WorkAreaOf(Main, labels.back());
    const auto candidates = Candidates(labels);
    for (const auto& candidate : candidates) {
        const Rect place = MovedInto(area, candidate);
        const auto covers = [&](const Rect& label) { return place.Intersects(label); };
        if (std::ranges::none_of(labels, covers)) return place;
    }
    return MovedInto(area, candidates.front());
}

// ---- whether it shows

bool MayShow(const frmMain& Main) {
    return Main.Links.SelectedShortcuts.size() > 1 && Main.View.Visible &&
           Main.View.State != WindowState::Minimized && Main.Dock.DockPosition == 0;
}

// An effect, something in the hand, or a question.
bool IsBusy(const frmMain& Main) {
    const auto& dock = Main.Dock;
    const auto& group = Main.Group;
    return dock.DialogPauses > 0 || dock.WorkspaceDragging || Main.Looks.frmExplode.Loaded ||
           group.Drag.Moving || group.ResizingContainer != -1 || !Main.Links.Carried.empty();
}

bool OneOfOursHasKeyboard(const frmMain& Main) {
    const auto has = [&](WindowId window) { return Main.P.Windows.IsForeground(window); };
    if (has(MainWindow) || has(MiniToolbarWindow)) return true;
    for (const auto& row : Live(Main.Containers))
        if (has({WindowName::frmContainer, row.Index})) return true;
    return false;
}

void Open(frmMain& Main, const Rect& place) {
    Main.Dock.MiniToolbar = {};
    Main.Dock.MiniToolbar.Loaded = true;
    Main.Dock.MiniToolbar.Place = place;
    Main.Marks.MiniToolbar();
    Main.P.Windows.Place(MiniToolbarWindow, place);
    Main.P.Windows.Show(MiniToolbarWindow, Activate::No);
    Main.P.Windows.SetWindowOnTop(MiniToolbarWindow, true);
    Main.P.Windows.RaiseWindow(MiniToolbarWindow);
}

// The press that changed the selection has brought the workspace in front of it.
void Move(frmMain& Main, const Rect& place) {
    auto& strip = Main.Dock.MiniToolbar;
    if (strip.Pointed != -1 || strip.Place == place) return;
    strip.Place = place;
    Main.P.Windows.Place(MiniToolbarWindow, place);
    Main.P.Windows.RaiseWindow(MiniToolbarWindow);
}

void PlaceStrip(frmMain& Main) {
    const auto labels = SeenLabels(Main);
    if (labels.empty()) return CloseMiniToolbar(Main);
    const Rect place = PlaceBeside(Main, labels);
    if (Main.Dock.MiniToolbar.Loaded)
        Move(Main, place);
    else
        Open(Main, place);
}

int CellAt(const frmMain& Main, Point at) {
    const auto hit = ElementAt(Main, {SurfaceKind::MiniToolbar, -1}, at);
    if (hit.Kind == ElementKind::PicLinkColor) return MiniToolbarButtons;
    return hit.Kind == ElementKind::MiniToolbarButton ? hit.Index : -1;
}

void PointTo(frmMain& Main, int cell) {
    auto& strip = Main.Dock.MiniToolbar;
    if (!strip.Loaded || std::exchange(strip.Pointed, cell) == cell) return;
    Main.Marks.MiniToolbar();
}

void PressCell(frmMain& Main, int cell) {
    if (MiniToolbarCellWorks(Main, cell)) cells[cell].Press(Main);
}

} // namespace

void FollowSelection(frmMain& Main) {
    if (Main.IsLoading || Main.IsExiting) return;
    if (Main.Links.SelectedShortcuts.size() < 2) return CloseMiniToolbar(Main);
    if (!MayShow(Main)) return;
    if (Main.Dock.MiniToolbar.Loaded) Main.Marks.MiniToolbar();
    Main.P.Clock.Start(unloadTimer, atOnce);
}

void CloseMiniToolbar(frmMain& Main) {
    Main.P.Clock.Stop(unloadTimer);
    if (!std::exchange(Main.Dock.MiniToolbar, {}).Loaded) return;
    Main.P.Windows.Hide(MiniToolbarWindow);
}

// A question that has closed gives the keyboard back a moment later, so the first look after it counts for
// nothing.
void TimerUnload_Timer(frmMain& Main) {
    Main.P.Clock.Start(unloadTimer, unloadTime);
    auto& strip = Main.Dock.MiniToolbar;
    if (!MayShow(Main)) return CloseMiniToolbar(Main);
    if (IsBusy(Main)) {
        strip.WasBusy = true;
        return;
    }
    const bool wasBusy = std::exchange(strip.WasBusy, false);
    if (strip.Loaded && !wasBusy && !OneOfOursHasKeyboard(Main)) return CloseMiniToolbar(Main);
    PlaceStrip(Main);
}

std::span<const MiniToolbarCell> MiniToolbarCells() {
    return cells;
}

Rect PlaceOfMiniToolbarCell(int Index) {
    const float gap = Index == MiniToolbarButtons ? gapBeforeColor : 0;
    return {rim + static_cast<float>(Index) * cellEdge + gap, rim, cellEdge, cellEdge};
}

std::string TipOfMiniToolbarCell(const frmMain& Main, int Index) {
    return Tr(Main, cells[Index].Tip, std::to_string(Main.Links.SelectedShortcuts.size()));
}

bool MiniToolbarCellWorks(const frmMain& Main, int Index) {
    const bool told = Index >= 0 && Index <= MiniToolbarButtons;
    return told && (!cells[Index].Changes || MayMoveShortcuts(Main));
}

void MiniToolbarButton_Click(frmMain& Main, int Index) {
    PressCell(Main, Index);
}

void PicLinkColor_Click(frmMain& Main) {
    PressCell(Main, MiniToolbarButtons);
}

void picMiniToolbar_MouseMove(frmMain& Main, const MouseEvent& event) {
    PointTo(Main, CellAt(Main, event.At));
}

void picMiniToolbar_MouseLeave(frmMain& Main) {
    PointTo(Main, -1);
}

} // namespace quill
