#include "core/keyboard_focus.h"

#include "appearance/tips.h"
#include "containers/commands.h"
#include "containers/dragging.h"
#include "containers/fold.h"
#include "containers/gestures.h"
#include "containers/layout.h"
#include "containers/resize.h"
#include "containers/rubber_band.h"
#include "containers/selection.h"
#include "containers/shrink.h"
#include "core/frmMain.h"
#include "core/menus.h"
#include "core/objects.h"
#include "core/routes.h"
#include "dock/dock_commands.h"
#include "dock/docking.h"
#include "keyboard/typed_key.h"
#include "shortcuts/launch.h"
#include "shortcuts/selected.h"

#include <algorithm>

namespace quill {
namespace {

std::vector<FocusPlace> FocusPlaces(const frmMain& Main) {
    std::vector<FocusPlace> places;
    for (const auto surface : Surfaces(Main)) {
        if (!SurfaceVisible(Main, surface)) continue;
        Elements(Main, surface, [&](const ElementInfo& element) {
            if (!element.Action.empty()) places.push_back({surface, element});
            return true;
        });
    }
    return places;
}

// A shortcut is two elements on the screen and one stop of the keyboard. What only repeats a button or a key
// is none.
bool IsStop(const FocusPlace& place) {
    const auto kind = place.Element.Id.Kind;
    return kind != ElementKind::picShortcut && kind != ElementKind::lblCaption &&
           place.Element.Role != Role::Mark;
}

void MarkSurface(frmMain& Main, SurfaceId surface) {
    if (surface.Kind == SurfaceKind::Container)
        Main.Marks.Container(surface.Index);
    else if (surface.Kind == SurfaceKind::Picture)
        Main.Marks.Picture(surface.Index);
    else
        Main.Marks.Workspace();
}

void MarkFocus(frmMain& Main) {
    if (Main.View.Focus.Kind != ElementKind::None) MarkSurface(Main, Main.View.FocusSurface);
}

Point ScreenPlace(const frmMain& Main, SurfaceId surface, const Rect& element) {
    const auto& back = Main.View.picBack.Place;
    Point place{Main.View.Window.Left + back.Left + element.Left,
                Main.View.Window.Top + back.Top + element.Bottom()};
    if (surface.Kind != SurfaceKind::Workspace) {
        const auto lies = PlaceOfSurface(Main, surface);
        place.X += lies.Left, place.Y += lies.Top;
    }
    return place;
}

// The element with the focus, while it is shown; nothing when its object is gone.
std::optional<ElementInfo> FocusedElement(const frmMain& Main) {
    std::optional<ElementInfo> found;
    if (!Main.View.FocusVisible || Main.View.Focus.Kind == ElementKind::None) return found;
    Elements(Main, Main.View.FocusSurface, [&](const ElementInfo& element) {
        if (element.Id == Main.View.Focus) found = element;
        return !found;
    });
    return found;
}

// Whether the last thing a hand or a key went to is the current container, so that it is the one meant.
bool IsContainerMeant(const frmMain& Main) {
    const SurfaceId surface{SurfaceKind::Container, Main.Group.CurrentContainer};
    if (!IsLive(Main.Containers, surface.Index)) return false;
    const bool focused = Main.View.FocusVisible && Main.View.FocusSurface == surface;
    return focused || Main.Group.ContainerHasFocus || Main.View.PressedSurface == surface;
}

bool IsShortcutMeant(const frmMain& Main) {
    const int shortcut = Main.Links.CurrentShortcut;
    if (!IsLive(Main.Shortcuts, shortcut)) return false;
    const ElementId label{ElementKind::lblShortcut, shortcut};
    return Main.Link(shortcut).Selected || (Main.View.FocusVisible && Main.View.Focus == label);
}

// ---- the menu of what the keyboard is on

struct MenuPlace {
    MenuName Menu = MenuName::Workspace;
    SurfaceId Surface;
    Rect Element{300, 300, 0, 0};
};

Rect PlaceOn(const frmMain& Main, SurfaceId surface, ElementId id) {
    Rect place{};
    Elements(Main, surface, [&](const ElementInfo& element) {
        if (element.Id == id) place = element.Place;
        return element.Id != id;
    });
    return place;
}

MenuPlace PlaceOfFocus(const frmMain& Main, const ElementInfo& focused) {
    MenuPlace place{MenuName::Workspace, Main.View.FocusSurface, focused.Place};
    if (focused.Id.Kind == ElementKind::lblShortcut)
        place.Menu = MenuName::Shortcut;
    else if (place.Surface.Kind == SurfaceKind::Container)
        place.Menu = MenuName::Container;
    return place;
}

MenuPlace PlaceOfMenu(const frmMain& Main) {
    if (const auto focused = FocusedElement(Main)) return PlaceOfFocus(Main, *focused);
    if (IsShortcutMeant(Main)) {
        const auto& in = Main.LinkView(Main.Links.CurrentShortcut).In;
        const bool framed = in.Kind == ParentKind::ContainerFrame;
        const SurfaceId surface = framed ? SurfaceId{SurfaceKind::Container, in.Index} : SurfaceId{};
        const ElementId label{ElementKind::lblShortcut, Main.Links.CurrentShortcut};
        return {MenuName::Shortcut, surface, PlaceOn(Main, surface, label)};
    }
    if (!IsContainerMeant(Main)) return {};
    const SurfaceId surface{SurfaceKind::Container, Main.Group.CurrentContainer};
    const auto kind =
        IsShrunk(Main, surface.Index) ? ElementKind::ContainerIcon : ElementKind::ContainerLabel;
    return {MenuName::Container, surface, PlaceOn(Main, surface, {kind, surface.Index})};
}

bool PopupForFocus(frmMain& Main) {
    const auto place = PlaceOfMenu(Main);
    PopupMenu(Main, place.Menu, ScreenPlace(Main, place.Surface, place.Element));
    return true;
}

bool PopupPosition(frmMain& Main) {
    PopupMenu(Main, MenuName::Position, {Main.View.Window.Left, Main.View.Window.Top});
    return true;
}

// ---- what keys do that is no line of a menu

bool HandIsBusy(const frmMain& Main) {
    return Main.Group.Drag.Moving || Main.Group.frmSelection.Loaded || Main.Group.ResizingContainer != -1;
}

bool CancelHand(frmMain& Main) {
    if (!HandIsBusy(Main)) return false;
    if (Main.Group.Drag.Moving) CancelContainerDrag(Main);
    if (Main.Group.frmSelection.Loaded) UnloadSelection(Main);
    CancelResize(Main);
    return true;
}

// What was opened for the moment closes, and what is selected is no longer.
bool BackToRest(frmMain& Main) {
    if (Main.Group.ExpandedContainer != -1) ShrinkBackContainer(Main, true);
    if (Main.Group.AutoFoldContainerIndex != -1) AutoFoldContainer(Main, Main.Group.AutoFoldContainerIndex);
    UnselectLinks(Main);
    HideFocus(Main);
    return true;
}

bool NextStop(frmMain& Main) {
    MoveFocus(Main, true);
    return true;
}
bool PreviousStop(frmMain& Main) {
    MoveFocus(Main, false);
    return true;
}
template <Direction Way, bool Extend> bool Arrow(frmMain& Main) {
    return StepToShortcut(Main, Way, Extend);
}
constexpr int keyStep = 150; // twips that a key moves or resizes containers by
// What the keyboard is on moves: a shortcut, or else the container.
template <int X, int Y> bool MoveByKey(frmMain& Main) {
    const auto focused = FocusedElement(Main);
    if (focused && focused->Id.Kind == ElementKind::lblShortcut)
        return MoveShortcutsByKey(Main, X * keyStep, Y * keyStep), true;
    if (!IsContainerMeant(Main)) return false;
    MoveContainersByKey(Main, X * keyStep, Y * keyStep);
    return true;
}
template <int X, int Y> bool ResizeByKey(frmMain& Main) {
    if (!IsContainerMeant(Main)) return false;
    ResizeContainersByKey(Main, X * keyStep, Y * keyStep);
    return true;
}
bool ToggleFocused(frmMain& Main) {
    const auto focused = FocusedElement(Main);
    if (focused) ToggleSelection(Main, Main.View.FocusSurface, focused->Id);
    return focused.has_value();
}
bool PressButton(frmMain& Main) {
    const auto focused = FocusedElement(Main);
    return focused && focused->Role == Role::Button && ActivateFocus(Main);
}
// Without Shift only what is plainly meant: the current shortcut is one of those that go.
bool DeleteWithCurrent(frmMain& Main) {
    const int current = Main.Links.CurrentShortcut;
    if (!IsLive(Main.Shortcuts, current) || !Main.Link(current).Selected) return false;
    DeleteSelectedShortcuts(Main);
    return true;
}

constexpr int keyPlus = 187, keyMinus = 189, keySlash = 191;

constexpr KeyRow keys[] = {
    {KeyTab, Plain, &NextStop, {}},
    {KeyTab, Shift, &PreviousStop, {}},
    {KeyLeft, Plain, &Arrow<Direction::Left, false>, {}},
    {KeyUp, Plain, &Arrow<Direction::Up, false>, {}},
    {KeyRight, Plain, &Arrow<Direction::Right, false>, {}},
    {KeyDown, Plain, &Arrow<Direction::Down, false>, {}},
    {KeyLeft, Shift, &Arrow<Direction::Left, true>, {}},
    {KeyUp, Shift, &Arrow<Direction::Up, true>, {}},
    {KeyRight, Shift, &Arrow<Direction::Right, true>, {}},
    {KeyDown, Shift, &Arrow<Direction::Down, true>, {}},
    {KeyDown, Plain, &NextStop, {}},
    {KeyUp, Plain, &PreviousStop, {}},
    {KeyLeft, Ctrl, &MoveByKey<-1, 0>, {}},
    {KeyUp, Ctrl, &MoveByKey<0, -1>, {}},
    {KeyRight, Ctrl, &MoveByKey<1, 0>, {}},
    {KeyDown, Ctrl, &MoveByKey<0, 1>, {}},
    {KeyLeft, Ctrl | Shift, &ResizeByKey<-1, 0>, {}},
    {KeyUp, Ctrl | Shift, &ResizeByKey<0, -1>, {}},
    {KeyRight, Ctrl | Shift, &ResizeByKey<1, 0>, {}},
    {KeyDown, Ctrl | Shift, &ResizeByKey<0, 1>, {}},
    {KeyReturn, Plain, &ActivateFocus, {}},
    {KeyReturn, Plain, nullptr, "mnuStart"},
    {KeySpace, Ctrl, &ToggleFocused, {}},
    {KeySpace, Plain, &PressButton, {}},
    {KeySpace, Plain, nullptr, "mnuFlipForward"},
    {KeySpace, Shift, nullptr, "mnuFlipBackward"},
    {KeyEscape, Plain, &CancelHand, {}},
    {KeyEscape, Plain, nullptr, "mnuConUnselectAll"},
    {KeyEscape, Plain, &CollapseByKey, {}},
    {KeyEscape, Plain, &BackToRest, {}},
    {KeyMenu, Plain, &PopupForFocus, {}},
    {KeyF10, Shift, &PopupForFocus, {}},
    {KeySpace, Alt, &PopupPosition, {}},

    {'A', Ctrl, nullptr, "mnuSelectShortcuts(0)"},
    {'I', Alt, nullptr, "mnuSelectShortcuts(2)"},
    {'I', Alt | Shift, nullptr, "mnuConInvertSelection"},
    {'Z', Ctrl, nullptr, "mnuUndoRedo(0)"},
    {'Y', Ctrl, nullptr, "mnuUndoRedo(1)"},
    {KeyDelete, Ctrl | Shift, nullptr, "mnuClearUndoRedoBuffer"},
    {'A', Alt, nullptr, "mnuSortShortcuts(0)"},
    {'D', Alt, nullptr, "mnuSortShortcuts(1)"},
    {'P', Alt, nullptr, "mnuLineSpacing"},
    {'G', Alt, nullptr, "mnuAlign"},
    {keyPlus, Ctrl, nullptr, "MakeIconsLarger"},
    {keyPlus, Ctrl | Shift, nullptr, "MakeIconsLarger"}, // where "+" is typed with Shift
    {keyMinus, Ctrl, nullptr, "MakeIconsSmaller"},
    {'Z', Alt, nullptr, "MakeIconsSizeDifferent"},
    {'B', Ctrl, nullptr, "ToggleBoldFont"},
    {'C', Alt | Shift, nullptr, "mnuChooseColor"},
    {'R', Alt, nullptr, "mnuStartSelected"},
    {KeyDelete, Shift, nullptr, "DeleteSelectedShortcuts"},
    {KeyDelete, Plain, &DeleteWithCurrent, {}},
    {KeyF1 + 4, Shift, nullptr, "mnuRefresh"},

    {'N', Ctrl, nullptr, "mnuNewNote"},
    {'T', Ctrl, nullptr, "mnuNew"},
    {KeyF1 + 7, Plain, nullptr, "mnuSave"},
    {KeyF1 + 7, Ctrl, nullptr, "mnuBackup"},
    {'L', Ctrl, nullptr, "mnuLock"},
    {KeyUp, Alt, nullptr, "mnuDockPos(0)"},
    {KeyLeft, Alt, nullptr, "mnuDockPos(1)"},
    {KeyRight, Alt, nullptr, "mnuDockPos(2)"},
    {KeyDown, Alt, nullptr, "mnuDockPos(3)"},
    {'C', Alt, nullptr, "mnuCenterWorkspace"},
    {'U', Ctrl | Shift, nullptr, "mnuSuspendSlideOut"},
    {'H', Ctrl | Shift, nullptr, "mnuHideAlterDesk"},
    {KeyF1 + 2, Plain, nullptr, "mnuProgramSettings"},
    {'T', Ctrl | Shift, nullptr, "mnuOnTop"},
    {'L', Ctrl | Shift, nullptr, "mnuPreventWindowMovement"},
    {KeyF1 + 10, Plain, nullptr, "mnuMaximize"},
    {KeyF1 + 10, Plain, nullptr, "mnuRestore"},
    {KeyF1 + 7, Ctrl | Shift, nullptr, "mnuIgnoreChanges"},
    {KeyF1 + 3, Ctrl | Shift, nullptr, "mnuClearWorkspace"},
    {KeyF1 + 4, Ctrl | Shift, nullptr, "mnuLoadDefaults"},
    {KeyF1, Plain, nullptr, "mnuHelp"},
    {KeyF1, Shift, nullptr, "mnuHelpItem"},
    {KeyF1 + 8, Plain, nullptr, "ToggleTransparent"},
    {KeyF1 + 3, Alt, nullptr, "mnuExitMainWin"},

    {'F', Alt, nullptr, "mnuConFold"},
    {'F', Alt, nullptr, "mnuConUnfold"},
    {'X', Alt, nullptr, "mnuConShrink"},
    {'X', Alt, nullptr, "mnuConExpand"},
    {'K', Alt, nullptr, "mnuConKeepExpanded"},
    {'W', Alt, nullptr, "mnuConSwitchPlaces"},
    {'M', Alt, nullptr, "mnuSetContainerSize"},
    {'T', Alt, nullptr, "mnuAlignContainers(0)"},
    {'L', Alt, nullptr, "mnuAlignContainers(1)"},
    {'E', Alt, nullptr, "mnuAlignContainers(2)"},
    {'N', Alt, nullptr, "mnuConShowNote"},
    {'N', Alt, nullptr, "mnuConHideNote"},
    {'S', Alt, nullptr, "mnuStartAll"},
    {KeyDelete, Ctrl, nullptr, "mnuConRemove"},
    {KeyReturn, Alt, nullptr, "mnuConProperties"},

    {'F', Ctrl, nullptr, "mnuConFileShortcut"},
    {'F', Ctrl, nullptr, "mnuAddFileLink"},
    {'D', Ctrl, nullptr, "mnuConDirectoryShortcut"},
    {'D', Ctrl, nullptr, "mnuAddFolderLink"},
    {'W', Ctrl, nullptr, "mnuConWebURL"},
    {'W', Ctrl, nullptr, "mnuAddLink"},
    {'O', Ctrl, nullptr, "mnuConCommand"},
    {'O', Ctrl, nullptr, "mnuNewCommand"},
    {'V', Ctrl, nullptr, "mnuPaste"},
    {'V', Ctrl | Shift, nullptr, "mnuPasteToContainer"},
    {'J', Ctrl, nullptr, "mnuKeyboardLauncher(0)"},
    {'H', Alt, nullptr, "mnuKeyboardLauncher(1)"},
    {keyPlus, Plain, nullptr, "mnuCalculator"},
    {keySlash, Plain, nullptr, "mnuSpeedLaunch"},
    {keySlash, Shift, nullptr, "mnuSpeedLaunch"},

    {'O', Alt, nullptr, "mnuOpenFileLocation"},
    {'O', Alt | Shift, nullptr, "mnuColorFromIcon"},
    {'R', Ctrl | Shift, nullptr, "mnuLinkReset"},
    {'I', Ctrl | Shift, nullptr, "mnuDownloadFavIcon"},
    {'D', Ctrl | Shift, nullptr, "mnuCloneShortcut"},
    {KeyF1 + 1, Plain, nullptr, "mnuShortcutProperties"},
    {KeyReturn, Shift, nullptr, "mnuStartInBackground"},
    {KeyReturn, Ctrl, nullptr, "mnuStartAdmin"},
    {KeyReturn, Ctrl | Shift, nullptr, "mnuStartWithoutParameters"},
};

// In a field that edits text its own keys are the field's.
constexpr std::string_view editingLetters = "ACVXYZ";

bool BelongsToField(const KeyEvent& event) {
    if (!event.InTextField || (event.Code >= KeyF1 && event.Code <= KeyF12)) return false;
    if (event.Code < '0' || event.Code == KeyMenu || !(event.Ctrl || event.Alt)) return true;
    return event.Ctrl && !event.Alt &&
           editingLetters.find(static_cast<char>(event.Code)) != std::string::npos;
}

bool Reaches(const KeyRow& row, const KeyEvent& event) {
    const int modifiers = (event.Shift ? Shift : 0) | (event.Ctrl ? Ctrl : 0) | (event.Alt ? Alt : 0);
    return row.Code == event.Code && row.Modifiers == modifiers;
}

// ---- lines of menus, by their key

// What is selected comes before what was the last current one.
bool AddressContainer(frmMain& Main) {
    const auto selected = SelectedContainers(Main);
    if (selected.empty()) return IsContainerMeant(Main);
    if (std::ranges::find(selected, Main.Group.CurrentContainer) == selected.end())
        Main.Group.CurrentContainer = selected.front();
    return true;
}

bool Address(frmMain& Main, MenuName menu) {
    if (menu == MenuName::Container) return AddressContainer(Main);
    return menu != MenuName::Shortcut || IsShortcutMeant(Main);
}

// The focus stays on a container that a key has changed: the next key means it again, and it can be seen.
void FocusContainer(frmMain& Main, int Index) {
    if (Main.IsExiting || !IsLive(Main.Containers, Index)) return;
    const SurfaceId surface{SurfaceKind::Container, Index};
    if (!SurfaceVisible(Main, surface) || (Main.View.FocusSurface == surface && FocusedElement(Main))) return;
    const auto mark = Main.Group.ContainerHasFocus;
    std::optional<FocusPlace> first;
    Elements(Main, surface, [&](const ElementInfo& element) {
        if (!element.Action.empty()) first = {surface, element};
        return !first;
    });
    if (first) FocusOn(Main, *first);
    Main.Group.ContainerHasFocus = mark;
}

bool RunEntry(frmMain& Main, std::string_view name) {
    const auto found = FindEntry(name);
    if (!found.Entry || !Address(Main, found.Menu) || !MayRun(Main, *found.Entry)) return false;
    const int container = found.Menu == MenuName::Container ? Main.Group.CurrentContainer : -1;
    found.Entry->Click(Main);
    FocusContainer(Main, container);
    return true;
}

// The box opens over the note, with the keyboard in it.
void EditNote(frmMain& Main, int Index) {
    ++Main.ConView(Index).ContainerNote.FocusWish;
    Main.Marks.Note(Index);
}

} // namespace

void HideFocus(frmMain& Main) {
    if (!Main.View.FocusVisible) return;
    Main.View.FocusVisible = false;
    MarkFocus(Main);
}

void FocusOn(frmMain& Main, const FocusPlace& place) {
    MarkFocus(Main);
    Main.View.Focus = place.Element.Id;
    Main.View.FocusSurface = place.Surface;
    Main.View.FocusVisible = true;
    Main.Group.ContainerHasFocus = place.Surface.Kind == SurfaceKind::Container;
    if (place.Surface.Kind == SurfaceKind::Container) {
        Main.Group.CurrentContainer = place.Surface.Index;
        // The title row never scrolls.
        if (place.Element.Id.Kind == ElementKind::lblShortcut)
            ScrollIntoView(Main, place.Surface.Index, place.Element.Whole);
    }
    if (place.Element.Id.Kind == ElementKind::lblShortcut)
        Main.Links.CurrentShortcut = place.Element.Id.Index;
    MarkFocus(Main);
}

void MoveFocus(frmMain& Main, bool forward) {
    auto places = FocusPlaces(Main);
    std::erase_if(places, [](const FocusPlace& place) { return !IsStop(place); });
    if (places.empty()) return;
    const auto now = std::ranges::find_if(places, [&](const FocusPlace& place) {
        return place.Surface == Main.View.FocusSurface && place.Element.Id == Main.View.Focus;
    });
    const auto count = places.size();
    std::size_t next = forward ? 0 : count - 1;
    if (now != places.end()) {
        const auto at = static_cast<std::size_t>(now - places.begin());
        next = !Main.View.FocusVisible ? at : (at + (forward ? 1 : count - 1)) % count;
    }
    FocusOn(Main, places[next]);
}

bool ActivateElement(frmMain& Main, SurfaceId surface, ElementId element) {
    MouseEvent event;
    event.Button = MouseButton::Left;
    bool found = false;
    Elements(Main, surface, [&](const ElementInfo& info) {
        if (info.Id != element) return true;
        found = true;
        event.At = {info.Place.Left, info.Place.Top};
        event.Screen = ScreenPlace(Main, surface, info.Place);
        return false;
    });
    if (!found) return false;
    if (element.Kind == ElementKind::lblShortcut || element.Kind == ElementKind::picShortcut) {
        StartShortcut(Main, element.Index, false, "", false, false);
        return true;
    }
    if (element.Kind == ElementKind::ContainerNote) return EditNote(Main, element.Index), true;
    // A click on a tile is a press and a release, and no key presses.
    if (element.Kind == ElementKind::ContainerIcon) return ContainerIcon_DblClick(Main, element.Index), true;
    const auto* route = RouteOf(element.Kind);
    if (!route) return false;
    if (element.Kind == ElementKind::ResizeSymbol) {
        event.Button = MouseButton::Middle; // the size that fits, since the other button drags
        return route->Press(Main, element.Index, event), true;
    }
    if (route->Click)
        route->Click(Main, element.Index, event);
    else if (route->DoubleClick)
        route->DoubleClick(Main, element.Index, event);
    return route->Click || route->DoubleClick;
}

bool ActivateFocus(frmMain& Main) {
    if (!Main.View.FocusVisible || Main.View.Focus.Kind == ElementKind::None) return false;
    return ActivateElement(Main, Main.View.FocusSurface, Main.View.Focus);
}

std::span<const KeyRow> KeyTable() {
    return keys;
}

// A key that comes just behind the one that put the workspace away is not for it any more.
bool Form_KeyDown(frmMain& Main, const KeyEvent& event) {
    if (Main.IsLoading || Main.IsExiting) return false;
    if (Main.Dock.Hidden || Main.Dock.DockPosition != 0) return false;
    HideTip(Main);
    if (BelongsToField(event)) return false;
    // What a hand is carrying is not changed behind its back.
    if (HandIsBusy(Main)) return event.Code == KeyEscape && CancelHand(Main);
    for (const auto& row : keys) {
        if (!Reaches(row, event)) continue;
        if (row.Action ? row.Action(Main) : RunEntry(Main, row.Entry)) return true;
    }
    return TypedKey(Main, event);
}

} // namespace quill
