#include "core/keyboard_focus.h"

#include "containers/fold.h"
#include "containers/layout.h"
#include "containers/shrink.h"
#include "core/frmMain.h"
#include "core/menus.h"
#include "core/objects.h"
#include "core/routes.h"
#include "dock/docking.h"
#include "shortcuts/launch.h"

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

// A shortcut is two elements on the screen and one stop of the keyboard.
bool IsStop(const FocusPlace& place) {
    return place.Element.Id.Kind != ElementKind::picShortcut;
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

void SetFocus(frmMain& Main, const FocusPlace& place) {
    MarkFocus(Main);
    Main.View.Focus = place.Element.Id;
    Main.View.FocusSurface = place.Surface;
    Main.View.FocusVisible = true;
    if (place.Surface.Kind == SurfaceKind::Container) {
        Main.Group.CurrentContainer = place.Surface.Index;
        Main.Group.ContainerHasFocus = true;
        // The title row never scrolls.
        if (place.Element.Id.Kind == ElementKind::lblShortcut)
            ScrollIntoView(Main, place.Surface.Index, place.Element.Whole);
    }
    if (place.Element.Id.Kind == ElementKind::lblShortcut)
        Main.Links.CurrentShortcut = place.Element.Id.Index;
    MarkFocus(Main);
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

void PopupForFocus(frmMain& Main) {
    MenuName menu = MenuName::Workspace;
    if (Main.View.Focus.Kind == ElementKind::lblShortcut)
        menu = MenuName::Shortcut;
    else if (Main.View.FocusSurface.Kind == SurfaceKind::Container)
        menu = MenuName::Container;
    Rect place{300, 300, 0, 0};
    Elements(Main, Main.View.FocusSurface, [&](const ElementInfo& element) {
        if (element.Id == Main.View.Focus) place = element.Place;
        return element.Id != Main.View.Focus;
    });
    const auto surface = Main.View.Focus.Kind == ElementKind::None ? SurfaceId{} : Main.View.FocusSurface;
    PopupMenu(Main, menu, ScreenPlace(Main, surface, place));
}

// Back by one step: what is expanded for the moment shrinks, what is unfolded for the moment folds.
void Escape(frmMain& Main) {
    if (Main.Group.ExpandedContainer != -1)
        ShrinkBackContainer(Main, true);
    else if (Main.Group.AutoFoldContainerIndex != -1)
        AutoFoldContainer(Main, Main.Group.AutoFoldContainerIndex);
    else
        HideFocus(Main);
}

void NextStop(frmMain& Main) {
    MoveFocus(Main, true);
}
void PreviousStop(frmMain& Main) {
    MoveFocus(Main, false);
}
void Activate(frmMain& Main) {
    ActivateFocus(Main);
}

enum Modifiers { Plain = 0, Shift = 1, Ctrl = 2, Alt = 4 };

struct KeyRow {
    int Code;
    int Modifiers;
    void (*Action)(frmMain&);
    std::string_view Entry; // or the entry of a menu with that name
};

constexpr KeyRow keys[] = {
    {KeyTab, Plain, &NextStop, {}},
    {KeyTab, Shift, &PreviousStop, {}},
    {KeyDown, Plain, &NextStop, {}},
    {KeyUp, Plain, &PreviousStop, {}},
    {KeyReturn, Plain, &Activate, {}},
    {KeySpace, Plain, &Activate, {}},
    {KeyEscape, Plain, &Escape, {}},
    {KeyMenu, Plain, &PopupForFocus, {}},
    {KeyF10, Shift, &PopupForFocus, {}},
    {KeyF1 + 7, Plain, nullptr, "mnuSave"},
    {KeyF1 + 10, Plain, nullptr, "mnuMaximize"},
    {KeyF1 + 3, Alt, nullptr, "mnuExitMainWin"},
    {'L', Ctrl, nullptr, "mnuLock"},
    {'N', Ctrl, nullptr, "mnuNewNote"},
    {'T', Ctrl, nullptr, "mnuNew"},
    {KeyReturn, Ctrl, nullptr, "mnuStartAdmin"},
};

bool Reaches(const KeyRow& row, const KeyEvent& event) {
    const int modifiers = (event.Shift ? Shift : 0) | (event.Ctrl ? Ctrl : 0) | (event.Alt ? Alt : 0);
    if (row.Code != event.Code || row.Modifiers != modifiers) return false;
    const bool functionKey = event.Code >= KeyF1 && event.Code <= KeyF12;
    return !event.InTextField || functionKey || (event.Code >= 'A' && (event.Ctrl || event.Alt));
}

} // namespace

void HideFocus(frmMain& Main) {
    if (!Main.View.FocusVisible) return;
    Main.View.FocusVisible = false;
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
    SetFocus(Main, places[next]);
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
    if (element.Kind == ElementKind::ContainerNote) return Main.Marks.EditNote(element.Index), true;
    const auto* route = RouteOf(element.Kind);
    if (!route) return false;
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

bool Form_KeyDown(frmMain& Main, const KeyEvent& event) {
    if (Main.IsLoading || Main.IsExiting) return false;
    for (const auto& row : keys) {
        if (!Reaches(row, event)) continue;
        if (row.Action) return row.Action(Main), true;
        const auto* entry = EntryByName(row.Entry);
        if (!entry || (entry->Enabled && !entry->Enabled(Main))) return false;
        return entry->Click(Main), true;
    }
    return false;
}

} // namespace quill
