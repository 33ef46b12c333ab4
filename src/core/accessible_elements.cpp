#include "core/accessible_elements.h"

#include "core/element_walk.h"
#include "core/keyboard_focus.h"
#include "core/tr.h"
#include "dock/dock_commands.h"
#include "notes/notes.h"

#include <array>

namespace quill {
namespace {

constexpr auto untold = std::to_array<ElementKind>(
    {ElementKind::None, ElementKind::picBack, ElementKind::picMoveMe, ElementKind::Container,
     ElementKind::ContainerFrame, ElementKind::picShortcut, ElementKind::PicContainer, ElementKind::PicImage,
     ElementKind::frmSelection, ElementKind::frmExplode, ElementKind::frmMiniDock,
     ElementKind::picMiniToolbar, ElementKind::PicJumpToLink, ElementKind::PicJumpToIcon,
     ElementKind::frmQuickLaunch, ElementKind::picIcon, ElementKind::cboSearch}); // the field tells of itself

bool IsTold(ElementKind kind) {
    return std::ranges::find(untold, kind) == untold.end();
}

// A shortcut's icon counts as its label.
ElementId Told(ElementId id) {
    if (id.Kind == ElementKind::picShortcut) return {ElementKind::lblShortcut, id.Index};
    return IsTold(id.Kind) ? id : ElementId{};
}

// The element that stands for a surface where one is needed.
ElementId GroundOf(const frmMain& Main, SurfaceId surface) {
    if (surface.Kind == SurfaceKind::Workspace) return {ElementKind::picBack, -1};
    if (surface.Kind == SurfaceKind::Picture) return {ElementKind::PicImage, surface.Index};
    if (surface.Kind == SurfaceKind::MiniDock) return {ElementKind::frmMiniDock, -1};
    if (surface.Kind == SurfaceKind::MiniToolbar) return {ElementKind::picMiniToolbar, -1};
    if (surface.Kind == SurfaceKind::JumpTo) return {ElementKind::PicJumpToLink, -1};
    if (surface.Kind == SurfaceKind::QuickLaunch) return {ElementKind::frmQuickLaunch, -1};
    const bool tile = surface.Kind == SurfaceKind::Container && IsShrunk(Main, surface.Index);
    return {tile ? ElementKind::ContainerIcon : ElementKind::ContainerLabel, surface.Index};
}

SurfaceId SurfaceOf(const Parent& in) {
    if (in.Kind == ParentKind::picBack) return {};
    return {SurfaceKind::Container, in.Index};
}

bool IsLiveSurface(const frmMain& Main, SurfaceId surface) {
    if (surface.Kind == SurfaceKind::Container) return IsLive(Main.Containers, surface.Index);
    if (surface.Kind == SurfaceKind::Picture) return IsLive(Main.Pictures, surface.Index);
    if (surface.Kind == SurfaceKind::MiniDock) return Main.Dock.MiniDock.Loaded;
    if (surface.Kind == SurfaceKind::JumpTo) return Main.Keys.PicJumpToLink.Visible;
    if (surface.Kind == SurfaceKind::QuickLaunch) return Main.Links.QuickLaunch.Loaded;
    return surface.Kind != SurfaceKind::MiniToolbar || Main.Dock.MiniToolbar.Loaded;
}

bool IsShortcut(ElementId element) {
    return element.Kind == ElementKind::lblShortcut;
}

bool IsOfStrip(ElementId element) {
    return element.Kind == ElementKind::MiniToolbarButton || element.Kind == ElementKind::PicLinkColor;
}

bool HasMenu(ElementId element) {
    return IsShortcut(element) || element.Kind == ElementKind::ContainerLabel ||
           element.Kind == ElementKind::ContainerIcon;
}

// What a person can do with a container as a whole are the deeds of the marks in its title row, or of its
// tile.
bool SpeaksForContainer(ElementKind kind) {
    return kind == ElementKind::ContainerIcon || kind == ElementKind::lblFoldUnfold ||
           kind == ElementKind::shapeShrink || kind == ElementKind::lblPinNote;
}

bool IsOut(const Spot& spot) {
    return spot.Place.Width <= 0 || spot.Place.Height <= 0;
}

// What is seen counts before what is not.
void Add(ToldPlace& place, const Spot& icon) {
    if (place.Scrolled == IsOut(icon))
        place.Place = walk::Around(place.Place, place.Scrolled ? icon.Whole : icon.Place);
    else if (place.Scrolled)
        place = {icon.Place, false};
}

struct Deed {
    std::string Name;
    ElementId Pressed; // None: the menu
};

void AddPress(const frmMain& Main, const Spot& spot, std::vector<Deed>& deeds) {
    const auto info = DescribeElement(Main, spot);
    if (!info.Action.empty()) deeds.push_back({info.Action, info.Id});
}

// The bar has no keyboard and shows no menu: all it does is to call the workspace.
std::vector<Deed> DeedsOfSurface(const frmMain& Main, SurfaceId surface) {
    if (surface.Kind == SurfaceKind::MiniDock)
        return {{Tr(Main, "Bring Out"), {ElementKind::frmMiniDock, -1}}};
    const bool noMenu = surface.Kind == SurfaceKind::MiniToolbar || surface.Kind == SurfaceKind::JumpTo ||
                        surface.Kind == SurfaceKind::QuickLaunch;
    if (noMenu) return {};
    std::vector<Deed> deeds;
    WalkElements(Main, surface, [&](const Spot& spot) {
        if (surface.Kind == SurfaceKind::Container && SpeaksForContainer(spot.Id.Kind))
            AddPress(Main, spot, deeds);
        return true;
    });
    deeds.push_back({Tr(Main, "Show Menu"), {}});
    return deeds;
}

std::vector<Deed> DeedsOf(const frmMain& Main, SurfaceId surface, ElementId element) {
    if (!LiesOn(Main, surface, element)) return {};
    if (element.Kind == ElementKind::None) return DeedsOfSurface(Main, surface);
    if (!PlaceOfTold(Main, surface, element)) return {};
    std::vector<Deed> deeds;
    AddPress(Main, {element, {}, {}}, deeds);
    if (HasMenu(element)) deeds.push_back({Tr(Main, "Show Menu"), {}});
    return deeds;
}

std::optional<ElementInfo> Seen(const frmMain& Main, SurfaceId surface, ElementId element) {
    std::optional<ElementInfo> found;
    WalkElements(Main, surface, [&](const Spot& spot) {
        if (spot.Id == element) found = DescribeElement(Main, spot);
        return !found;
    });
    return found;
}

// The menu of what has the focus, as by its key.
bool ShowMenu(frmMain& Main, SurfaceId surface, ElementId element) {
    if (surface.Kind == SurfaceKind::Workspace && element.Kind == ElementKind::None)
        return ActivateElement(Main, surface, {ElementKind::PicMenu, -1});
    const auto target =
        Seen(Main, surface, element.Kind == ElementKind::None ? GroundOf(Main, surface) : element);
    if (!target) return false;
    FocusOn(Main, {surface, *target});
    KeyEvent menu;
    menu.Code = KeyMenu;
    return Form_KeyDown(Main, menu);
}

} // namespace

std::vector<ElementId> ToldElements(const frmMain& Main, SurfaceId surface) {
    std::vector<ElementId> told;
    WalkElements(Main, surface, [&](const Spot& spot) {
        if (IsTold(spot.Id.Kind)) told.push_back(spot.Id);
        return true;
    });
    return told;
}

ElementId ToldElementAt(const frmMain& Main, SurfaceId surface, Point at) {
    return Told(ElementAt(Main, surface, at));
}

std::optional<ToldPlace> PlaceOfTold(const frmMain& Main, SurfaceId surface, ElementId element) {
    std::optional<ToldPlace> place;
    WalkElements(Main, surface, [&](const Spot& spot) {
        if (spot.Id == element)
            place = IsOut(spot) ? ToldPlace{spot.Whole, true} : ToldPlace{spot.Place, false};
        else if (place && Told(spot.Id) == element) // the icon comes right behind its label
            Add(*place, spot);
        return !place || (IsShortcut(element) && Told(spot.Id) == element);
    });
    return place;
}

bool LiesOn(const frmMain& Main, SurfaceId surface, ElementId element) {
    if (!IsLiveSurface(Main, surface)) return false;
    if (surface.Kind == SurfaceKind::MiniToolbar && IsOfStrip(element)) return true;
    if (element.Kind == ElementKind::lblSpeedLaunch) return surface.Kind == SurfaceKind::QuickLaunch;
    if (!IsShortcut(element)) return element.Kind == ElementKind::None || element.Index == surface.Index;
    return IsLive(Main.Shortcuts, element.Index) && SurfaceOf(Main.LinkView(element.Index).In) == surface;
}

ElementInfo DescribeTold(const frmMain& Main, SurfaceId surface, ElementId element) {
    if (!LiesOn(Main, surface, element)) return {};
    if (element.Kind != ElementKind::None) return DescribeElement(Main, {element, {}, {}});
    auto info = DescribeElement(Main, {GroundOf(Main, surface), {}, {}});
    info.Id = {};
    if (surface.Kind != SurfaceKind::Picture) info.Role = Role::Pane;
    if (surface.Kind == SurfaceKind::Container) info.Tip = FootText(Main, surface.Index);
    return info;
}

std::vector<std::string> ActionsOf(const frmMain& Main, SurfaceId surface, ElementId element) {
    std::vector<std::string> names;
    for (auto& deed : DeedsOf(Main, surface, element)) names.push_back(std::move(deed.Name));
    return names;
}

bool DoAction(frmMain& Main, SurfaceId surface, ElementId element, std::string_view action) {
    if (Main.IsLoading || Main.IsExiting) return false;
    const auto deeds = DeedsOf(Main, surface, element);
    const auto deed = std::ranges::find(deeds, action, &Deed::Name);
    if (deed == deeds.end()) return false;
    if (surface.Kind == SurfaceKind::MiniDock) return BringOut(Main, true), true;
    if (deed->Pressed.Kind != ElementKind::None) return ActivateElement(Main, surface, deed->Pressed);
    return ShowMenu(Main, surface, element);
}

bool FocusElement(frmMain& Main, SurfaceId surface, ElementId element) {
    if (Main.IsLoading || Main.IsExiting) return false;
    const auto target = Seen(Main, surface, element);
    if (!target || target->Action.empty()) return false;
    FocusOn(Main, {surface, *target});
    return true;
}

} // namespace quill
