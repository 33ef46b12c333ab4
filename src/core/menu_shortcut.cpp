// The shortcut's menu. Its first lines are about the current shortcut; those about looks and order are about
// the selection, which the current one replaces when it is not part of it.
#include "containers/arrange.h"
#include "containers/selection.h"
#include "core/menu_tables.h"
#include "core/tr.h"
#include "dock/docking.h"
#include "platform/shell.h"
#include "shortcuts/create.h"
#include "shortcuts/favicon.h"
#include "shortcuts/launch.h"
#include "shortcuts/open_with.h"
#include "shortcuts/properties.h"
#include "shortcuts/selected.h"
#include "shortcuts/speed_launch.h"

namespace quill {
namespace {

int Link(const frmMain& Main) {
    return Main.Links.CurrentShortcut;
}

void mnuStart_Click(frmMain& Main) {
    StartShortcut(Main, Link(Main), false, "", false, false);
}
void mnuStartSelected_Click(frmMain& Main) {
    StartSelected(Main, false, false);
}
void mnuStartInBackground_Click(frmMain& Main) {
    StartSelected(Main, false, true);
}
void mnuStartAdmin_Click(frmMain& Main) {
    StartSelected(Main, true, false);
}
void mnuStartWithoutParameters_Click(frmMain& Main) {
    StartShortcut(Main, Link(Main), false, " ", false, false);
}

std::vector<MenuItem> SendToItems(const frmMain& Main) {
    std::vector<MenuItem> items;
    for (const int shortcut : SendToShortcuts(Main))
        items.push_back({Main.Link(shortcut).FullCaption, shortcut, CanOpenWith(Main, shortcut, Link(Main))});
    if (items.empty()) items.push_back({Tr(Main, "[SPEED LAUNCH IS EMPTY]"), -1, false});
    return items;
}
void mnuSendToItem_Click(frmMain& Main, int Program) {
    OpenShortcutWith(Main, Program, Link(Main));
}

constexpr MenuEntry sendToLines[] = {
    {.Name = "mnuSendToItem", .Items = &SendToItems, .Choose = &mnuSendToItem_Click},
};

MenuTable SendToLines() {
    return sendToLines;
}

bool IsFile(const frmMain& Main) {
    return HasShortcut(Main) && Main.Link(Link(Main)).ShortcutType == TypeFile &&
           !Main.Link(Link(Main)).Command;
}

// By its key it says why it does nothing.
void mnuOpenFileLocation_Click(frmMain& Main) {
    if (IsFile(Main)) return Main.P.Shell.ShowInFolder(ResolvedPath(Main, Main.Link(Link(Main)).Path));
    const DialogPause pause(Main);
    Main.P.Questions.MsgBox(Tr(Main, "The selected shortcut is not a file/directory shortcut."),
                            BoxOk | BoxWarning, ProgramName);
}

bool MayChange(const frmMain& Main) {
    return HasShortcut(Main) && MayArrangeShortcuts(Main);
}
bool InSeveral(const frmMain& Main) {
    return HasShortcut(Main) && Main.Link(Link(Main)).Selected && Main.Links.SelectedShortcuts.size() > 1 &&
           MayArrangeShortcuts(Main);
}

template <auto Command> void OnSelection(frmMain& Main) {
    if (!Main.Link(Link(Main)).Selected) {
        UnselectLinks(Main);
        SetSelection(Main, Link(Main), true);
    }
    Command(Main);
}

// Where the current shortcut lies is where its neighbours are selected.
template <int Index> void SelectAroundIt(frmMain& Main) {
    const Parent in = Main.LinkView(Link(Main)).In;
    Main.Group.ContainerHasFocus = in.Kind == ParentKind::ContainerFrame;
    if (Main.Group.ContainerHasFocus) Main.Group.CurrentContainer = in.Index;
    mnuSelectShortcuts_Click(Main, Index);
}

constexpr MenuEntry selectLines[] = {
    {"mnuSelectShortcuts(0)", "&Select All", "Ctrl+A", &SelectAroundIt<0>, &HasShortcut},
    {"mnuSelectShortcuts(1)", "&Deselect All", "Esc", &SelectAroundIt<1>, &HasSelectedShortcuts},
    {"mnuSelectShortcuts(2)", "&Invert Selection", "Alt+I", &SelectAroundIt<2>, &HasShortcut},
};

constexpr MenuEntry arrangeLines[] = {
    {"mnuSortShortcuts(0)", "Sort &Ascending", "Alt+A", &Item<&mnuSortShortcuts_Click, 0>, &InSeveral},
    {"mnuSortShortcuts(1)", "Sort &Descending", "Alt+D", &Item<&mnuSortShortcuts_Click, 1>, &InSeveral},
};

constexpr MenuEntry textLines[] = {
    {"MakeIconsLarger", "&Larger", "Ctrl++", &OnSelection<&MakeIconsLarger_Click>, &MayChange},
    {"MakeIconsSmaller", "&Smaller", "Ctrl+-", &OnSelection<&MakeIconsSmaller_Click>, &MayChange},
    {"MakeIconsSizeDifferent", "&Other...", "Alt+Z", &OnSelection<&MakeIconsSizeDifferent_Click>, &MayChange},
    MenuSeparator,
    {"ToggleBoldFont", "&Bold", "Ctrl+B", &OnSelection<&ToggleBoldFont>, &MayChange},
    {"mnuChooseColor", "&Color...", "Alt+Shift+C", &OnSelection<&mnuChooseColor_Click>, &MayChange},
    {"mnuColorFromIcon", "Color from &Icon", "Alt+Shift+O", &OnSelection<&mnuColorFromIcon_Click>,
     &MayChange},
    {"mnuLinkReset", "&Reset Style", "Ctrl+Shift+R", &OnSelection<&mnuLinkReset_Click>, &MayChange},
};

MenuTable SelectLines() {
    return selectLines;
}
MenuTable ArrangeLines() {
    return arrangeLines;
}
MenuTable TextLines() {
    return textLines;
}

constexpr MenuEntry shortcutMenu[] = {
    {"mnuStart", "&Start", "Enter", &mnuStart_Click, &HasShortcut},
    {"mnuStartSelected", "Sta&rt Selected", "Alt+R", &OnSelection<&mnuStartSelected_Click>, &HasShortcut},
    {"mnuStartInBackground", "Start in &Background", "Shift+Enter", &OnSelection<&mnuStartInBackground_Click>,
     &HasShortcut},
    {"mnuStartAdmin", "Run as &administrator", "Ctrl+Enter", &OnSelection<&mnuStartAdmin_Click>,
     &HasShortcut},
    {"mnuStartWithoutParameters", "&Override &Parameters Field", "Ctrl+Shift+Enter",
     &mnuStartWithoutParameters_Click, &HasShortcut},
    {.Caption = "Send &To..", .Children = &SendToLines},
    {"mnuOpenFileLocation", "Open File Location", "Alt+O", &mnuOpenFileLocation_Click, &HasShortcut},
    MenuSeparator,
    {.Caption = "S&elect", .Children = &SelectLines},
    {.Caption = "Arran&ge", .Children = &ArrangeLines},
    {.Caption = "Te&xt", .Children = &TextLines},
    MenuSeparator,
    {"DeleteSelectedShortcuts", "Remo&ve Shortcuts", "Shift+Delete", &OnSelection<&DeleteSelectedShortcuts>,
     &MayChange},
    {"mnuDownloadFavIcon", "Do&wnload Favicon", "Ctrl+Shift+I", &OnSelection<&mnuDownloadFavIcon_Click>,
     &MayChange},
    {"mnuCloneShortcut", "Clo&ne...", "Ctrl+Shift+D", &mnuCloneShortcut_Click, &MayChange},
    {"mnuShortcutProperties", "Propert&ies...", "F2", &mnuShortcutProperties_Click, &MayChange},
};

} // namespace

MenuTable ShortcutMenu() {
    return shortcutMenu;
}

} // namespace quill
