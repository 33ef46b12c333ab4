// A workspace with a hand that carries: what it lets go is handed on as the window system would, move by
// move.
#pragma once

#include "containers/workspace_fixture.h"

#include "containers/arrange.h"
#include "containers/fold.h"
#include "containers/scroll.h"
#include "containers/selection.h"
#include "containers/undo.h"
#include "notes/notes.h"
#include "shortcuts/drags.h"
#include "shortcuts/drop_target.h"
#include "shortcuts/launch.h"

#include <functional>
#include <utility>

namespace quill::test {

struct DragFixture : WorkspaceFixture {
    static constexpr Point Grip{100, 50}; // where the hand takes a label or a picture

    // A shortcut that has been seen: its label is measured.
    int SeenLink(Parent in, Point at, const std::string& path = "/usr/bin/thing") {
        const int link = NewLink(in, at, path);
        SetNewLinkHeight(Main, link);
        return link;
    }
    int NewPicture(Parent in, const Rect& place) {
        bool ok = false;
        Main.IsLoading = true;
        AddPicture(Main, "/home/user/cat.png", in, place, ok);
        Main.IsLoading = false;
        return Main.NextPictureIndex - 1;
    }

    Point CornerOf(SurfaceId surface) { // on the desktop
        const auto window = Main.View.Window, back = Main.View.picBack.Place;
        Point corner{window.Left + back.Left, window.Top + back.Top};
        if (surface.Kind == SurfaceKind::Workspace) return corner;
        if (surface.Kind == SurfaceKind::Picture &&
            Main.PicView(surface.Index).In.Kind != ParentKind::picBack)
            corner = CornerOf(OnContainer(Main.PicView(surface.Index).In.Index));
        const Rect place = PlaceOfSurface(Main, surface);
        return {corner.X + place.Left, corner.Y + place.Top};
    }
    DragEvent EventAt(SurfaceId surface, Point at) {
        const Point corner = CornerOf(surface);
        return {at, {corner.X + at.X, corner.Y + at.Y}};
    }
    MouseEvent MouseAt(SurfaceId surface, Point at) {
        return {at, EventAt(surface, at).Screen, MouseButton::Left};
    }

    // The press, and the moves until it is a drag; the fake computer's scene carries it on.
    void Lift(SurfaceId surface, Point at) {
        Main.Links.PressTick = -1000;
        const MouseEvent press = MouseAt(surface, at);
        computer.Clock.Advance(300);
        MouseDown(Main, surface, press);
        computer.Clock.Advance(300);
        MouseMove(Main, surface, MouseAt(surface, {at.X + 90, at.Y}));
        MouseUp(Main, surface, MouseAt(surface, {at.X + 90, at.Y}));
    }
    void LiftLink(int link) {
        const Parent in = Main.LinkView(link).In;
        const bool framed = in.Kind == ParentKind::ContainerFrame;
        const Point corner = framed ? FrameCorner(in.Index) : Point{};
        const Rect label = LabelPlace(Main, link);
        Lift(framed ? OnContainer(in.Index) : OnBack,
             {corner.X + label.Left + Grip.X, corner.Y + label.Top + Grip.Y});
    }
    // Carries it over a place of a surface and lets go there.
    DropAnswer Carry(int link, SurfaceId to, Point at) {
        DropAnswer answer = DropAnswer::Refused;
        computer.Drags.OnDrag = [&](const DragData& data) { return answer = LetGo(data, to, at); };
        LiftLink(link);
        return answer;
    }
    DropAnswer LetGo(const DragData& data, SurfaceId to, Point at) {
        const DropAnswer over = DragOver(Main, to, EventAt(to, at), data);
        if (over == DropAnswer::Refused) {
            DragLeave(Main, to);
            return over;
        }
        return DragDrop(Main, to, EventAt(to, at), data);
    }
    // So that the label's own corner comes to lie there.
    DropAnswer CarryCornerTo(int link, SurfaceId to, Point corner) {
        const Point frame = to.Kind == SurfaceKind::Container ? FrameCorner(to.Index) : Point{};
        return Carry(link, to, {frame.X + corner.X + Grip.X, frame.Y + corner.Y + Grip.Y});
    }
    Point FrameCorner(int container) { // of what lies in it, on the container's surface
        const auto& view = Main.ConView(container);
        return {view.ContainerFrame.Place.Left, view.ContainerFrame.Place.Top - view.ScrollTop};
    }

    // "workspace 500,600" or "container 2 500,600".
    std::string Where(int link) {
        return PlaceWords(Main.LinkView(link).In, Main.LinkView(link).lblShortcut.Place);
    }
    std::string WhereIsPicture(int picture) {
        return PlaceWords(Main.PicView(picture).In, Main.PicView(picture).PicContainer);
    }
    static std::string PlaceWords(Parent in, const Rect& place) {
        const std::string parent =
            in.Kind == ParentKind::picBack ? "workspace" : "container " + std::to_string(in.Index);
        return parent + " " + fake::Words(Point{place.Left, place.Top});
    }
    std::string LastBox() {
        if (computer.Questions.Boxes.empty()) return "(none)";
        const auto& box = computer.Questions.Boxes.back();
        return box.Title + " " + std::to_string(box.Flags) + ": " + box.Text;
    }
    std::vector<int> LinksIn(Parent in) {
        std::vector<int> links;
        EachShortcutIn(Main, in, [&](int link) { links.push_back(link); });
        return links;
    }
};

} // namespace quill::test
