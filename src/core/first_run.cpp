#include "core/start.h"

#include "appearance/colors.h"
#include "core/frmMain.h"
#include "dock/docking.h"
#include "platform/files.h"
#include "platform/places.h"
#include "shortcuts/create.h"

namespace quill {
namespace {

struct FirstShortcut {
    SpecialFolder Folder;
    float Y; // twips on picBack
};

// Folders that do not exist are left out.
constexpr FirstShortcut firstShortcuts[] = {
    {SpecialFolder::Home, 1010},    {SpecialFolder::Pictures, 2400},     {SpecialFolder::Documents, 2000},
    {SpecialFolder::Desktop, 1610}, {SpecialFolder::Applications, 2790},
};
constexpr float firstX = 1000;
constexpr float firstWidth = 10065, firstHeight = 7500, firstTop = -100;

void AddFirstShortcut(frmMain& Main, const FirstShortcut& entry, bool isFirst) {
    const auto path = Main.P.Places.Folder(entry.Folder);
    if (path.empty() || !Main.P.Files.FolderExists(path)) return;
    AddFile(Main, path, OnWorkspace(), {firstX, entry.Y});
    const int index = Main.NextShortcutIndex - 1;
    Main.Link(index).Tags = "User Folders";
    if (entry.Folder == SpecialFolder::Applications) {
        Main.Link(index).FullCaption = "Programs";
        ++Main.Links.CaptionsRevision;
        Main.LinkView(index).lblShortcut.Caption = "Programs";
    }
    if (!isFirst) return;
    Main.Link(index).FontSize = 12;
    Main.LinkView(index).lblShortcut.FontSize = 12;
}

} // namespace

Rect FirstPlace(const frmMain& Main) {
    const auto screen = MonitorOf(Main, {});
    return {screen.Left + screen.Width / 2 - firstWidth / 2, firstTop, firstWidth, firstHeight};
}

void FirstRun(frmMain& Main) {
    Main.Settings.FontName = "Segoe UI";
    Main.Settings.Stretch = true;
    SetWorkspaceColors(Main, 0x1A1306, 0xFFFFFF);
    for (const auto& entry : firstShortcuts) AddFirstShortcut(Main, entry, &entry == firstShortcuts);
}

} // namespace quill
