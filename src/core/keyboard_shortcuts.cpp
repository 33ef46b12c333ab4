// The arrows: from one shortcut to the nearest in a direction.
#include "containers/selection.h"
#include "core/frmMain.h"
#include "core/keyboard_focus.h"

#include <algorithm>
#include <cmath>

namespace quill {
namespace {

constexpr float sameLine = TwipsPerPixel; // places closer than this lie beside each other
constexpr float asideWeighs = 3;          // what lies straight ahead is nearer than what lies aside

SurfaceId SurfaceOf(Parent place) {
    if (place.Kind == ParentKind::ContainerFrame) return {SurfaceKind::Container, place.Index};
    return {};
}

std::vector<FocusPlace> ShortcutsOn(const frmMain& Main, SurfaceId surface) {
    std::vector<FocusPlace> places;
    if (!SurfaceVisible(Main, surface)) return places;
    Elements(Main, surface, [&](const ElementInfo& element) {
        if (element.Id.Kind == ElementKind::lblShortcut) places.push_back({surface, element});
        return true;
    });
    return places;
}

// Columns are flush at the left, so that is where a label is taken to be.
Point Anchor(const FocusPlace& place) {
    const auto& label = place.Element.Whole;
    return {label.Left, label.Top + label.Height / 2};
}

// The one that has the focus, or the last that was selected; null: none of these.
const FocusPlace* Start(const frmMain& Main, const std::vector<FocusPlace>& places) {
    const auto& view = Main.View;
    const int current = Main.Links.CurrentShortcut;
    const bool selected = IsLive(Main.Shortcuts, current) && Main.Link(current).Selected;
    const auto isStart = [&](const FocusPlace& place) {
        return view.FocusVisible && view.FocusSurface == place.Surface
                   ? view.Focus == place.Element.Id
                   : selected && place.Element.Id.Index == current;
    };
    const auto found = std::ranges::find_if(places, isStart);
    return found == places.end() ? nullptr : &*found;
}

// How far it is that way; nothing for what does not lie that way.
std::optional<float> Distance(Point from, Point to, Direction way) {
    const float right = to.X - from.X, down = to.Y - from.Y;
    const bool level = way == Direction::Left || way == Direction::Right;
    const bool back = way == Direction::Left || way == Direction::Up;
    const float ahead = (level ? right : down) * (back ? -1.0F : 1.0F);
    if (ahead < sameLine) return std::nullopt;
    return ahead + asideWeighs * std::abs(level ? down : right);
}

const FocusPlace* Nearest(const std::vector<FocusPlace>& places, Point from, Direction way) {
    const FocusPlace* nearest = nullptr;
    float least = 0;
    for (const auto& place : places) {
        const auto distance = Distance(from, Anchor(place), way);
        if (!distance || (nearest && *distance >= least)) continue;
        nearest = &place;
        least = *distance;
    }
    return nearest;
}

const FocusPlace& Topmost(const std::vector<FocusPlace>& places) {
    return *std::ranges::min_element(places, {}, [](const FocusPlace& place) {
        return std::pair(place.Element.Whole.Top, place.Element.Whole.Left);
    });
}

} // namespace

Parent KeyboardPlace(const frmMain& Main) {
    const int container = Main.Group.CurrentContainer;
    const bool inContainer = Main.Group.ContainerHasFocus && IsLive(Main.Containers, container);
    return inContainer ? InContainer(container) : OnWorkspace();
}

bool StepToShortcut(frmMain& Main, Direction way, bool Extend) {
    const auto places = ShortcutsOn(Main, SurfaceOf(KeyboardPlace(Main)));
    if (places.empty()) return false;
    const auto* from = Start(Main, places);
    const auto* to = from ? Nearest(places, Anchor(*from), way) : &Topmost(places);
    if (!to) return true;
    if (!Extend) UnselectLinks(Main);
    if (Extend && from) SetSelection(Main, from->Element.Id.Index, true);
    SetSelection(Main, to->Element.Id.Index, true);
    FocusOn(Main, *to);
    return true;
}

} // namespace quill
