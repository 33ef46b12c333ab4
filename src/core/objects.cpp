#include "core/objects.h"

#include "platform/clock.h"

#include <algorithm>
#include <cstdio>

namespace quill {
namespace {

int CountIn(const frmMain& Main, Parent parent) {
    int count = 0;
    for (const auto& row : Live(Main.Shortcuts)) count += Main.LinkView(row.Index).In == parent ? 1 : 0;
    return count;
}

bool LiesOnWorkspace(const ShortcutView& view) {
    return view.In.Kind == ParentKind::picBack;
}

} // namespace

void AddToZorderCollection(frmMain& Main, ZOrderEntry Object, bool ToBack) {
    auto& list = Main.ZOrderList;
    const bool inPlace = !list.empty() && (ToBack ? list.front() : list.back()) == Object;
    if (inPlace) return;
    std::erase(list, Object);
    list.insert(ToBack ? list.begin() : list.end(), Object);
    Main.Marks.Stacking();
}

void RemoveFromZorder(frmMain& Main, ZOrderEntry Object) {
    if (std::erase(Main.ZOrderList, Object) != 0) Main.Marks.Stacking();
}

ContainerKind KindOf(const frmMain& Main, int Index) {
    const auto& container = Main.Con(Index);
    if (container.RSS) return ContainerKind::Feed;
    if (container.IsReminder()) return ContainerKind::Reminder;
    if (!container.CopyPath.empty()) return ContainerKind::FolderConnector;
    return Main.ConView(Index).PinPressed ? ContainerKind::Note : ContainerKind::Plain;
}

bool IsShrunk(const frmMain& Main, int Index) {
    const auto& place = Main.ConView(Index).Container.Place;
    const auto tile = Main.Con(Index).ShrinkSize();
    return place.Width == static_cast<float>(tile.Width) && place.Height == static_cast<float>(tile.Height);
}

bool IsFolded(const frmMain& Main, int Index) {
    return Main.ConView(Index).FoldMark == "+";
}

int LiveContainers(const frmMain& Main) {
    return static_cast<int>(
        std::ranges::count_if(Main.Containers, [](const auto& row) { return row.Index != -1; }));
}

int GetContainerShortcutCount(const frmMain& Main, int Index) {
    return CountIn(Main, InContainer(Index));
}

int WorkspaceShortcutCount(const frmMain& Main) {
    int count = 0;
    for (const auto& row : Live(Main.Shortcuts)) count += LiesOnWorkspace(Main.LinkView(row.Index)) ? 1 : 0;
    return count;
}

std::string ParentName(const Parent& parent) {
    return parent.Kind == ParentKind::picBack ? "picBack" : "ContainerFrame";
}

std::string DateText(const frmMain& Main) {
    const auto now = Main.P.Clock.Now();
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", now.Year, now.Month, now.Day, now.Hour,
                  now.Minute, now.Second);
    return text;
}

} // namespace quill
