// The shortcut's menu. Its first lines are about the current shortcut; those about looks and order are about
// the selection, which the current one replaces when it is not part of it.
#include "containers/arrange.h"
#include "containers/selection.h"
#include "core/menu_tables.h"
#include "shortcuts/launch.h"
#include "shortcuts/selected.h"

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
    MenuSeparator,
    {.Caption = "S&elect", .Children = &SelectLines},
    {.Caption = "Arran&ge", .Children = &ArrangeLines},
    {.Caption = "Te&xt", .Children = &TextLines},
    MenuSeparator,
    {"DeleteSelectedShortcuts", "Remo&ve Shortcuts", "Shift+Delete", &OnSelection<&DeleteSelectedShortcuts>,
     &MayChange},
};

} // namespace

MenuTable ShortcutMenu() {
    return shortcutMenu;
}

} // namespace quill
