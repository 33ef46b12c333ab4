#include "shortcuts/drags.h"

#include "appearance/carried.h"
#include "containers/layout.h"
#include "containers/selection.h"
#include "core/surfaces.h"
#include "dock/docking.h"
#include "platform/clock.h"
#include "shortcuts/create.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/open_with.h"

#include <cmath>
#include <utility>

namespace quill {
namespace {

constexpr float slip = 4 * TwipsPerPixel;       // what a hand moves while it clicks
constexpr float quickSlip = 16 * TwipsPerPixel; // while it clicks quickly
constexpr std::int64_t quickClick = 250;        // milliseconds

DraggedObject LinkObject(int index) {
    return {static_cast<std::uint8_t>(MovedKind::Shortcut), index};
}

// The upper left corner of a parent's content on picBack.
Point OriginOf(const frmMain& Main, const Parent& in) {
    if (in.Kind == ParentKind::picBack || !IsLive(Main.Containers, in.Index)) return {};
    const auto& view = Main.ConView(in.Index);
    return {view.Container.Place.Left + view.ContainerFrame.Place.Left,
            view.Container.Place.Top + view.ContainerFrame.Place.Top - view.ScrollTop};
}

Point CornerOf(const frmMain& Main, const DraggedObject& object) {
    const Rect place =
        IsPicture(object) ? Main.PicView(object.Index).PicContainer : LabelPlace(Main, object.Index);
    const Point origin = OriginOf(Main, ParentOf(Main, object));
    return {origin.X + place.Left, origin.Y + place.Top};
}

bool CanBeSeen(const frmMain& Main, int shortcut) {
    if (!IsLive(Main.Shortcuts, shortcut)) return false;
    const auto& view = Main.LinkView(shortcut);
    return view.Visible && (view.In.Kind == ParentKind::picBack || IsOpenFrame(Main, view.In.Index));
}

// The one under the hand is the first.
std::vector<DraggedObject> InHand(frmMain& Main, const DraggedObject& held) {
    std::vector<DraggedObject> objects{held};
    if (IsPicture(held)) return objects;
    bool selected = false;
    GetSelection(Main, held.Index, selected);
    if (!selected) {
        UnselectLinks(Main);
        SetSelection(Main, held.Index, true);
    }
    for (const int other : Main.Links.SelectedShortcuts)
        if (other != held.Index && CanBeSeen(Main, other)) objects.push_back(LinkObject(other));
    return objects;
}

// Where the pointer was at the press, on picBack: the surface of the event tells where it lies on the
// desktop.
Point PressOnBack(const frmMain& Main, const DraggedObject& held, const MouseEvent& event) {
    const Parent in = ParentOf(Main, held);
    Point surface; // its corner on picBack
    if (IsPicture(held))
        surface = CornerOf(Main, held);
    else if (in.Kind == ParentKind::ContainerFrame)
        surface = {Main.ConView(in.Index).Container.Place.Left, Main.ConView(in.Index).Container.Place.Top};
    return {surface.X + event.At.X + Main.View.PressedAt.X - event.Screen.X,
            surface.Y + event.At.Y + Main.View.PressedAt.Y - event.Screen.Y};
}

std::vector<CarriedObject> Lifted(const frmMain& Main, const std::vector<DraggedObject>& objects,
                                  Point hand) {
    std::vector<CarriedObject> carried;
    for (const DraggedObject& object : objects) {
        const Point corner = CornerOf(Main, object);
        carried.push_back({object, {corner.X - hand.X, corner.Y - hand.Y}});
    }
    return carried;
}

void AddLine(std::string& text, const std::string& line) {
    if (!line.empty()) text += (text.empty() ? "" : "\n") + line;
}

// What it is for other programs: a file of the file tree, an address, or the text of a command.
void AddForOthers(const frmMain& Main, const DraggedObject& object, DragData& data) {
    const bool picture = IsPicture(object);
    if (!picture && Main.Link(object.Index).Command)
        return AddLine(data.Text, Main.Link(object.Index).Parameters);
    std::string target =
        ResolvedPath(Main, picture ? Main.Pic(object.Index).Path : Main.Link(object.Index).Path);
    AddLine(data.Text, target);
    if (IsLocalPath(target))
        data.Files.push_back(std::move(target));
    else if (IsWebAddress(target))
        data.Addresses.push_back(std::move(target));
}

DragData DataOf(const frmMain& Main, const std::vector<DraggedObject>& objects) {
    DragData data;
    data.Objects = objects;
    for (const DraggedObject& object : objects) AddForOthers(Main, object, data);
    return data;
}

} // namespace

bool IsBeyondClick(const frmMain& Main, Point now) {
    const Point from = Main.View.PressedAt;
    const bool quick = Main.P.Clock.GetTickCount() - Main.Links.PressTick <= quickClick;
    const float allowed = quick ? quickSlip : slip;
    return std::abs(now.X - from.X) > allowed || std::abs(now.Y - from.Y) > allowed;
}

void BeginObjectDrag(frmMain& Main, DraggedObject object, const MouseEvent& event) {
    if (!IsThere(Main, object)) return;
    const auto objects = InHand(Main, object);
    Main.Links.Carried = Lifted(Main, objects, PressOnBack(Main, object, event));
    const Point corner = CarriedCorner(Main, objects), away = Main.Links.Carried.front().FromHand;
    const int lastReleased = std::exchange(Main.Links.DragIndex, -1);
    auto answer = DropAnswer::Refused;
    {
        const DialogPause pause(Main);
        answer = Main.P.Drags.StartDrag(DataOf(Main, objects), corner.X - away.X, corner.Y - away.Y);
    }
    Main.Links.DragIndex = lastReleased;
    Main.Links.Carried.clear();
    const int program = answer == DropAnswer::Copied ? Main.Links.OpenWithTarget : -1;
    DragLeftSurface(Main);
    if (program != -1) DropOnShortcut(Main, program, object.Index);
}

DropAnswer DragOverSurface(frmMain& Main, SurfaceId surface, const DragEvent& event, const DragData& data) {
    const auto place = DropPlaceAt(Main, surface, event.At);
    if (!place) return DropAnswer::Refused;
    const int program = OpenWithAt(Main, surface, event.At, data);
    const bool taken = program == -1 && TakesDrop(Main, place->To, data, IsShiftAlone(event));
    WatchDrag(Main, *place, taken, event.Screen);
    ShowOpenWith(Main, program, program == -1 ? -1 : data.Objects.front().Index);
    return taken || program != -1 ? DropAnswer::Copied : DropAnswer::Refused;
}

namespace {

// The program starts when the hand has let go of everything: while it carries, no workspace makes room.
DropAnswer OpenDropped(frmMain& Main, int program, const DragData& data) {
    if (Main.Links.Carried.empty())
        DropOnShortcut(Main, program, data.Objects.front().Index);
    else
        Main.Links.OpenWithTarget = program;
    return DropAnswer::Copied;
}

} // namespace

DropAnswer DropOnSurface(frmMain& Main, SurfaceId surface, const DragEvent& event, const DragData& data) {
    const auto place = DropPlaceAt(Main, surface, event.At);
    if (!place) return DropAnswer::Refused;
    if (const int program = OpenWithAt(Main, surface, event.At, data); program != -1)
        return OpenDropped(Main, program, data);
    return data.Objects.empty() ? DropFromOutside(Main, place->To, place->At, data, IsShiftAlone(event))
                                : DropObjects(Main, place->To, place->At, data);
}

} // namespace quill
