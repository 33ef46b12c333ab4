// What other programs drop becomes shortcuts. Nothing of theirs is moved or opened.
#include "containers/arrange.h"
#include "containers/boundaries.h"
#include "containers/full_size.h"
#include "containers/layout.h"
#include "containers/measures.h"
#include "containers/scroll.h"
#include "containers/selection.h"
#include "core/objects.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "persistence/save.h"
#include "platform/questions.h"
#include "platform/windows.h"
#include "shortcuts/create.h"
#include "shortcuts/drags.h"
#include "shortcuts/drop_target.h"

#include <algorithm>
#include <set>

namespace quill {
namespace {

constexpr Point Nowhere{-1e6F, -1e6F};

struct Item {
    bool Address = false;
    std::string Target;
};

std::string WithoutEndSeparator(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

// A text counts where there is nothing else.
std::vector<Item> ItemsOf(const DragData& data) {
    std::vector<Item> items;
    for (const std::string& file : data.Files)
        if (IsLocalPath(file)) items.push_back({false, WithoutEndSeparator(file)});
    for (const std::string& address : data.Addresses)
        if (IsWebAddress(address)) items.push_back({true, address});
    if (items.empty()) items.push_back({true, std::string(TrimmedText(data))});
    return items;
}

// Paths as the file tree knows them, and addresses, of what lies in a parent.
std::set<std::string> TargetsIn(const frmMain& Main, Parent in) {
    std::set<std::string> targets;
    EachShortcutIn(Main, in, [&](int link) {
        targets.insert(WithoutEndSeparator(ResolvedPath(Main, Main.Link(link).Path)));
    });
    return targets;
}

// A name with line breaks in it is one line on the screen.
std::string OneLine(std::string text) {
    for (char& letter : text)
        if (static_cast<unsigned char>(letter) < ' ' || letter == 127) letter = ' ';
    return text;
}

int AddItem(frmMain& Main, const Item& item, Parent to, Point at) {
    if (item.Address) {
        AddURL(Main, to, "", item.Target, at);
        return Main.NextShortcutIndex - 1;
    }
    const bool relative = ShouldUseRelativePath(Main, item.Target);
    const std::string path = relative ? ToRelativePath(Main, item.Target) : item.Target;
    AddFile(Main, path, to, at);
    const int added = Main.NextShortcutIndex - 1;
    Main.Link(added).Path = path; // blanks at the end of a name that exists belong to it
    EruLabel& label = Main.LinkView(added).lblShortcut;
    Main.Link(added).FullCaption = label.Caption = OneLine(label.Caption);
    return added;
}

bool Covers(const frmMain& Main, Parent in, const Rect& place) {
    const auto inTheWay = [&](const Rect& other) { return other.Intersects(place); };
    bool covered = false;
    for (const auto& row : Live(Main.Pictures))
        covered |= Main.PicView(row.Index).In == in && inTheWay(Main.PicView(row.Index).PicContainer);
    if (in.Kind == ParentKind::ContainerFrame) return covered;
    for (const auto& row : Live(Main.Containers)) {
        const Element& box = Main.ConView(row.Index).Container;
        covered |= box.Visible && inTheWay(box.Place);
    }
    return covered;
}

bool IsFree(const frmMain& Main, Parent in, int link) {
    const Rect label = LabelPlace(Main, link), icon = IconPlace(Main, link);
    const Rect whole{icon.Left, label.Top, label.Right() - icon.Left, label.Height};
    bool free = !Covers(Main, in, whole);
    EachShortcutIn(Main, in, [&](int other) {
        free = free && (other == link || !(whole.Intersects(LabelPlace(Main, other)) ||
                                           whole.Intersects(IconPlace(Main, other))));
    });
    return free;
}

float HeightOf(const frmMain& Main, Parent in) {
    if (in.Kind == ParentKind::picBack) return Main.View.picBack.Place.Height;
    return Main.ConView(in.Index).ScrollTop + Main.ConView(in.Index).ContainerFrame.Place.Height;
}

void PutAt(frmMain& Main, int link, Point at) {
    Rect& place = Main.LinkView(link).lblShortcut.Place;
    place.Left = at.X;
    place.Top = at.Y;
    MoveLinkIcon(Main, link);
}

void PutInFreeCell(frmMain& Main, Parent in, int link) {
    PutAt(Main, link, Nowhere); // it holds no cell itself
    PutAt(Main, link, NextFreeCell(Main, in));
}

// Below the one before it, as long as that is free and inside; else in the next free cell.
void PutBelow(frmMain& Main, Parent in, int link, int before) {
    const Rect above = LabelPlace(Main, before);
    const auto spacing = static_cast<float>(RowSpacing(Main, in));
    PutAt(Main, link, SnapToGrid(Main, in, {above.Left, above.Bottom() + spacing}));
    const bool inside = LabelPlace(Main, link).Bottom() <= HeightOf(Main, in);
    if (!inside || !IsFree(Main, in, link)) PutInFreeCell(Main, in, link);
}

// before: the one that was added last, -1 for none.
void Put(frmMain& Main, const DropPlace& place, int link, int before) {
    SetNewLinkHeight(Main, link);
    if (!ShowsPlace(Main, place)) return PutInFreeCell(Main, place.To, link);
    if (before != -1) return PutBelow(Main, place.To, link, before);
    PutAt(Main, link, SnapToGrid(Main, place.To, place.At));
    CheckBoundaries(Main, {MovedKind::Shortcut, link}, true);
}

struct Added {
    int Count = 0;
    bool All = true;  // nothing was there already
    bool Room = true; // for each of them
};

Added AddAll(frmMain& Main, const DropPlace& place, const std::vector<Item>& items) {
    Added added;
    auto there = TargetsIn(Main, place.To);
    const int room = RoomFor(Main, place.To);
    int last = -1;
    for (const Item& item : items) {
        if (!there.insert(item.Target).second) {
            added.All = false;
            continue;
        }
        added.Room = added.Count < room;
        if (!added.Room) break;
        const int link = AddItem(Main, item, place.To, place.At);
        Put(Main, place, link, last);
        SetSelection(Main, link, true);
        last = link;
        ++added.Count;
    }
    return added;
}

// A container whose frame has shown everything goes on showing everything, as far as the workspace reaches.
void GrowToContent(frmMain& Main, int container) {
    Rect& place = Main.ConView(container).Container.Place;
    const float lowest = Main.View.picBack.Place.Height - measures::EdgeGap - place.Top;
    const float needed = measures::ContainerTitle + ContentHeight(Main, container) + measures::FootHeight;
    const float height = std::min(needed, lowest);
    if (height <= place.Height) return;
    place.Height = height;
    RememberPresentSize(Main, container);
    SetObjectRelativeSize(Main, container);
    DoRoundGradResizeSym(Main, container, true);
}

bool ShowsAll(const frmMain& Main, Parent in) {
    return in.Kind == ParentKind::ContainerFrame && IsOpenFrame(Main, in.Index) &&
           !Main.ConView(in.Index).VScroll.Visible;
}

void TellDuplicates(frmMain& Main) {
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, "Duplicate items were not added."), BoxWarning, ProgramName);
}

} // namespace

DropAnswer DropFromOutside(frmMain& Main, Parent to, Point at, const DragData& data) {
    if (!data.Objects.empty() || !OpensForDrop(Main, to, data)) return DropAnswer::Refused;
    if (to.Kind == ParentKind::ContainerFrame)
        Main.Group.CurrentContainer = to.Index;
    else
        Main.Group.NewContainerPos = at;
    Main.P.Windows.SetForegroundWindow(MainWindow);
    UnselectLinks(Main);
    const bool shownAll = ShowsAll(Main, to);
    const Added added = AddAll(Main, {to, at}, ItemsOf(data));
    if (to.Kind == ParentKind::ContainerFrame) LayScrollBar(Main, to.Index);
    if (shownAll && Main.ConView(to.Index).VScroll.Visible) GrowToContent(Main, to.Index);
    MarkParent(Main, to);
    if (added.Count > 0) SaveWorkspace(Main, true, false);
    if (!added.Room) TellLimit(Main, to);
    if (!added.All && !Main.IsExiting) TellDuplicates(Main);
    return added.Count > 0 ? DropAnswer::Copied : DropAnswer::Refused;
}

} // namespace quill
