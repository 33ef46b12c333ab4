#include "core/menus.h"

#include "containers/selection.h"
#include "core/keyboard_focus.h"
#include "fake/desk.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quill {
namespace {

using fake::Desk;

struct Menus : testing::Test {
    Desk desk;
    void SetUp() override {
        desk.Files().Put(desk.Settings("Quillmere.ini"), "108\r\n");
        desk.Files().Put(desk.Settings("Containers/0.con"),
                         "108\r\n[Container]\r\n-1\r\n[Name]\r\nWork\r\n[X]\r\n1500\r\n[Y]\r\n1500\r\n[W]"
                         "\r\n3000\r\n[H]\r\n3000\r\n");
        desk.StartWorkspace();
    }
    std::string Shown(MenuName menu) {
        desk.Person().DismissMenu();
        PopupMenu(*desk.Main, menu, {0, 0});
        return desk.Person().Menus.back();
    }
};

TEST_F(Menus, TheWorkspacesMenuHoldsEverythingThatIsBuilt) {
    EXPECT_EQ(Shown(MenuName::Workspace),
              "New &Container [Ctrl+T]\n&Note [Ctrl+N]\n"
              "New Sh&ortcut\n  &File... [Ctrl+F]\n  F&older... [Ctrl+D]\n  &Web Address... [Ctrl+W]\n"
              "  &Command... [Ctrl+O]\n  -\n  (-) &Paste Shortcuts... [Ctrl+V]\n"
              "&Quick Start\n  &Keyboard Launcher [Ctrl+J]\n  Keyboard Launcher History [Alt+H]\n"
              "  Calculator [=]\n  -\n  &Speed Launch [/]\n  &Recent Shortcuts\n"
              "    (-) [No Recent Shortcuts]\n-\n"
              "(-) &Undo [Ctrl+Z]\n(-) &Redo [Ctrl+Y]\n(-) Clear Undo Histor&y [Ctrl+Shift+Delete]\n-\n"
              "S&hortcuts\n  (-) &Select All [Ctrl+A]\n  (-) &Deselect All [Esc]\n"
              "  (-) &Invert Selection [Alt+I]\n  -\n"
              "  (-) Sta&rt Selected [Alt+R]\n  (-) Remo&ve Shortcuts [Shift+Delete]\n"
              "Cont&ainers\n  &Next Container [Space]\n  &Previous Container [Shift+Space]\n  -\n"
              "  &Invert Selection [Alt+Shift+I]\n  (-) &Deselect All [Esc]\n"
              "Arran&ge\n  (-) Sort &Ascending [Alt+A]\n  (-) Sort &Descending [Alt+D]\n  -\n"
              "  &Line Spacing... [Alt+P]\n  ( ) &Snap to Grid [Alt+G]\n"
              "Te&xt\n  (-) &Larger [Ctrl++]\n  (-) &Smaller [Ctrl+-]\n  (-) &Other... [Alt+Z]\n"
              "  -\n  (-) &Bold [Ctrl+B]\n  (-) &Color... [Alt+Shift+C]\n"
              "Re&fresh [Shift+F5]\n-\n&Save [F8]\n&Backup [Ctrl+F8]\n-\n"
              "&Position\n  &Top [Alt+Up]\n  &Left [Alt+Left]\n  &Right [Alt+Right]\n  &Bottom [Alt+Down]\n"
              "  -\n  &Center Workspace [Alt+C]\n  ( ) Loc&k Position [Ctrl+Shift+L]\n"
              "&View\n  Collapse &Now [Esc]\n  ( ) &Suspend Auto-Collapse [Ctrl+Shift+U]\n"
              "  &Hide Workspace [Ctrl+Shift+H]\n  -\n  Ma&ximize [F11]\n"
              "  (x) Keep &On Top [Ctrl+Shift+T]\n  ( ) &Transparent [F9]\n"
              "( ) Loc&k [Ctrl+L]\nS&ettings... [F3]\n-\n&Ignore Changes [Ctrl+Shift+F8]\nClear &Workspace "
              "[Ctrl+Shift+F4]\n"
              "Load &Defaults [Ctrl+Shift+F5]\nHe&lp\n  &Help [F1]\n  Command-&line Options [Shift+F1]\n-\n"
              "Exi&t [Alt+F4]\n");
}

TEST_F(Menus, AMaximisedWorkspaceOffersToRestore) {
    desk.PressKey(KeyF1 + 10);
    EXPECT_NE(Shown(MenuName::Workspace).find("Restor&e [F11]"), std::string::npos);
}

TEST_F(Menus, AContainersMenuOffersWhatFitsItsState) {
    desk.Main->Group.CurrentContainer = 0;
    EXPECT_EQ(Shown(MenuName::Container),
              "&Fold [Alt+F]\nS&hrink [Alt+X]\n(-) &Keep Expanded [Alt+K]\n-\n"
              "S&witch [Alt+W]\n(-) Match &Size [Alt+M]\n"
              "A&dd Shortcut\n  &File... [Ctrl+F]\n  F&older... [Ctrl+D]\n  &Web Address... [Ctrl+W]\n"
              "  &Command... [Ctrl+O]\n  -\n  (-) Paste to Container [Ctrl+Shift+V]\n"
              "&Arrange\n  (-) Align &Top [Alt+T]\n  (-) Align &Left [Alt+L]\n"
              "  &Horizontal Space Evenly [Alt+E]\n  -\n  Line &Spacing... [Alt+P]\n"
              "  ( ) Snap to &Grid [Alt+G]\n  -\n  &Invert Selection [Alt+Shift+I]\n"
              "  (-) &Deselect All [Esc]\n"
              "Shortcu&ts\n  (-) &Select All [Ctrl+A]\n  (-) &Deselect All [Esc]\n"
              "  (-) &Invert Selection [Alt+I]\n-\n"
              "Show &Note [Alt+N]\n(-) &Start All [Alt+S]\n-\n"
              "&Remove Containers [Ctrl+Delete]\n&Properties [Alt+Enter]\n");
    desk.ClickOn(ElementKind::lblFoldUnfold, 0);
    EXPECT_EQ(Shown(MenuName::Container).substr(0, 7), "Un&fold");
}

TEST_F(Menus, AContainerThatClosesByItselfCanBeKeptOpenByItsMenu) {
    desk.Main->Group.CurrentContainer = desk.Main->Group.AutoFoldContainerIndex = 0;
    desk.Person().ChooseMenu("&Keep Expanded");
    PopupMenu(*desk.Main, MenuName::Container, {0, 0});
    EXPECT_EQ(desk.Main->Group.AutoFoldContainerIndex, -1);
}

// Behind its own menu a container that is expanded for the moment stays so; what the menu does comes later.
TEST_F(Menus, AnExpandedContainerIsHeldForAsLongAsItsMenuIsOpen) {
    bool held = false;
    desk.Person().OnMenu = [&](const auto&) { held = desk.Main->Group.HoldExpanded; };
    desk.Main->Group.CurrentContainer = 0;
    Shown(MenuName::Container);
    EXPECT_TRUE(held);
    EXPECT_FALSE(desk.Main->Group.HoldExpanded);
    Shown(MenuName::Workspace);
    EXPECT_FALSE(held) << "the workspace's menu holds nothing";
}

TEST_F(Menus, TheCommandIsAboutTheContainerOfTheMenuWhateverBecomesCurrentMeanwhile) {
    desk.PressKey('T', true);
    desk.Main->Group.CurrentContainer = 0;
    desk.Person().OnMenu = [&](const auto&) { desk.Main->Group.CurrentContainer = 1; };
    desk.Person().ChooseMenu("&Fold");
    PopupMenu(*desk.Main, MenuName::Container, {0, 0});
    EXPECT_EQ(desk.Main->ConView(0).FoldMark, "+");
    EXPECT_EQ(desk.Main->ConView(1).FoldMark, "-");
}

TEST_F(Menus, WhatTheLockHoldsFastIsDisabled) {
    desk.PressKey('T', true);
    SelectContainer(*desk.Main, 0);
    SelectContainer(*desk.Main, 1);
    EXPECT_EQ(Shown(MenuName::Container).find("(-) Align &Top"), std::string::npos);
    EXPECT_EQ(Shown(MenuName::Workspace).find("(-) &Line Spacing..."), std::string::npos);
    desk.PressKey('L', true);
    EXPECT_NE(Shown(MenuName::Container).find("(-) Align &Top"), std::string::npos);
    EXPECT_NE(Shown(MenuName::Container).find("(-) Line &Spacing..."), std::string::npos);
    EXPECT_NE(Shown(MenuName::Workspace).find("(-) &Line Spacing..."), std::string::npos);
}

TEST_F(Menus, F9MakesTheWorkspaceTransparentAndSolidAgain) {
    desk.PressKey(KeyF1 + 8);
    EXPECT_EQ(desk.Computer.Windows.Of(MainWindow).Opacity, 235);
    desk.PressKey(KeyF1 + 8);
    EXPECT_EQ(desk.Computer.Windows.Of(MainWindow).Opacity, 255);
}

TEST_F(Menus, F1OpensTheHelpPageThatCameWithTheProgram) {
    const std::string page = desk.Computer.Places.Data + "/Quillmere Home Page.html";
    desk.PressKey(KeyF1);
    EXPECT_EQ(desk.Person().LastBox().substr(0, 30), "The help page can't be opened.") << "there is none yet";
    desk.Files().Put(page, "<html>");
    desk.PressKey(KeyF1);
    EXPECT_EQ(desk.Computer.Shell.LastLaunch(), "open " + page);
}

TEST_F(Menus, AltWithSpaceOffersThePlacesAtTheTopOfTheWindow) {
    desk.Person().ChooseMenu("&Top");
    desk.PressKey(KeySpace, false, false, true);
    EXPECT_EQ(desk.Person().Menus.back().substr(0, 14), "&Top [Alt+Up]\n");
    const auto& window = desk.Main->View.Window;
    EXPECT_LE(window.Top, 0) << "and what was chosen is done";
}

TEST_F(Menus, ALineOfASubMenuDoesWhatItSays) {
    desk.Person().ChooseMenu("&Snap to Grid");
    PopupMenu(*desk.Main, MenuName::Workspace, {0, 0});
    EXPECT_TRUE(desk.Main->Dock.Align);
}

TEST_F(Menus, ARightClickOnTheSurfaceOpensTheWorkspacesMenu) {
    desk.Person().ChooseMenu("Ma&ximize");
    desk.RightClickOn(ElementKind::picBack);
    EXPECT_TRUE(desk.Main->Dock.Maximized);
}

TEST_F(Menus, ASecondQuickRightClickOpensItAgain) {
    const auto& back = desk.Main->View.picBack.Place;
    MouseEvent event;
    event.At = {back.Width - 600, back.Height - 600};
    event.Button = MouseButton::Right;
    desk.Person().DismissMenu();
    MouseDoubleClick(*desk.Main, {}, event);
    EXPECT_EQ(desk.Person().Menus.size(), 1U);
}

TEST_F(Menus, TheMenuButtonOpensItToo) {
    desk.Person().ChooseMenu("Loc&k");
    desk.ClickOn(ElementKind::PicMenu);
    EXPECT_TRUE(desk.Main->Dock.Locked);
}

TEST_F(Menus, EveryKeyThatALineShowsReallyDoesIt) {
    desk.PressKey('L', true);
    EXPECT_TRUE(desk.Main->Dock.Locked);
    desk.PressKey('T', true);
    EXPECT_EQ(desk.Containers().size(), 2U);
    desk.PressKey('N', true);
    EXPECT_EQ(desk.Containers().size(), 3U);
    desk.PressKey(KeyF1 + 7);
    EXPECT_EQ(desk.Main->View.Caption, "Workspace Saved");
    desk.PressKey(KeyF1 + 3, false, false, true);
    EXPECT_EQ(desk.Computer.Session.QuitCode, 0);
}

TEST_F(Menus, ANewContainerStandsWholeInTheWindow) {
    const auto& back = desk.Main->View.picBack.Place;
    desk.Main->Group.NewContainerPos = {back.Width - 300, back.Height - 300};
    desk.PressKey('T', true);
    const auto& place = desk.Main->ConView(desk.Main->NextContainerIndex - 1).Container.Place;
    EXPECT_LE(place.Right(), back.Width);
    EXPECT_LE(place.Bottom(), back.Height);
}

TEST_F(Menus, ANewContainerDoesNotHideTheOneMadeBeforeIt) {
    desk.Main->Group.NewContainerPos = {2000, 2000};
    desk.PressKey('T', true);
    const auto first = desk.Main->ConView(desk.Main->NextContainerIndex - 1).Container.Place;
    desk.PressKey('N', true);
    const auto second = desk.Main->ConView(desk.Main->NextContainerIndex - 1).Container.Place;
    EXPECT_NE(first.Left, second.Left);
    EXPECT_NE(first.Top, second.Top);
}

// ---- what holds for all menus

struct Shown {
    std::string Where;
    MenuTable Table;
    const MenuEntry* Entry = nullptr;
};

// A copy of where: it lies in the list that grows.
void Collect(std::string where, MenuTable table, std::vector<Shown>& lines) {
    for (const auto& entry : table) {
        lines.push_back({where + " > " + std::string(entry.Caption), table, &entry});
        if (entry.Children) Collect(lines.back().Where, entry.Children(), lines);
    }
}

std::vector<Shown> AllLines() {
    std::vector<Shown> lines;
    Collect("workspace", TableOf(MenuName::Workspace), lines);
    Collect("container", TableOf(MenuName::Container), lines);
    Collect("shortcut", TableOf(MenuName::Shortcut), lines);
    return lines;
}

std::string NameOfKey(int code) {
    if (code >= KeyF1 && code <= KeyF12) return "F" + std::to_string(code - KeyF1 + 1);
    switch (code) {
    case KeyReturn:
        return "Enter";
    case KeyEscape:
        return "Esc";
    case KeySpace:
        return "Space";
    case KeyDelete:
        return "Delete";
    case KeyLeft:
        return "Left";
    case KeyUp:
        return "Up";
    case KeyRight:
        return "Right";
    case KeyDown:
        return "Down";
    case 187:
        return "+";
    case 189:
        return "-";
    case 191:
        return "/";
    default:
        return std::string(1, static_cast<char>(code));
    }
}

std::string KeyText(const KeyRow& row) {
    if (row.Code == 187 && row.Modifiers == Plain) return "=";
    return std::string(row.Modifiers & Ctrl ? "Ctrl+" : "") + (row.Modifiers & Alt ? "Alt+" : "") +
           (row.Modifiers & Shift ? "Shift+" : "") + NameOfKey(row.Code);
}

TEST(AllMenus, NoLineIsDead) {
    for (const auto& line : AllLines()) {
        const bool separator = line.Entry->Caption == "-";
        EXPECT_EQ((line.Entry->Click != nullptr) + (line.Entry->Children != nullptr) +
                      (line.Entry->Items != nullptr && line.Entry->Choose != nullptr),
                  separator ? 0 : 1)
            << line.Where;
        if (line.Entry->Click) EXPECT_FALSE(line.Entry->Name.empty()) << line.Where;
    }
}

// What Esc does begins with the containers, docks, and ends with the shortcuts, in routines of its own.
bool IsPartOfEscape(const MenuEntry& entry) {
    return entry.Name == "mnuSelectShortcuts(1)" || entry.Name == "mnuDockNow";
}

TEST(AllMenus, EveryCommandHasAKeyAndTheKeyTableHasTheCommandForIt) {
    for (const auto& line : AllLines()) {
        if (!line.Entry->Click) continue;
        EXPECT_FALSE(line.Entry->Key.empty()) << line.Where;
        const bool bound = std::ranges::any_of(KeyTable(), [&](const KeyRow& row) {
            return row.Entry == line.Entry->Name && KeyText(row) == line.Entry->Key;
        });
        EXPECT_TRUE(bound || IsPartOfEscape(*line.Entry)) << line.Where << ": " << line.Entry->Key;
    }
}

TEST(AllMenus, EveryCommandOfTheKeyTableIsInAMenuWithThatKeyBesideIt) {
    for (const auto& row : KeyTable()) {
        if (row.Entry.empty()) continue;
        const auto* entry = EntryByName(row.Entry);
        ASSERT_NE(entry, nullptr) << row.Entry;
        // "+" typed with Shift, and "/" that a hand still holds Shift for
        const bool otherWay = (row.Code == 187 && row.Modifiers == (Ctrl | Shift)) ||
                              (row.Code == 191 && row.Modifiers == Shift);
        if (!otherWay) EXPECT_EQ(entry->Key, KeyText(row)) << row.Entry;
    }
}

TEST(AllMenus, AKeyHasOneMeaningUnlessItsLinesTakeTurns) {
    for (const auto& one : KeyTable()) {
        for (const auto& other : KeyTable()) {
            if (&one == &other || one.Entry.empty() || other.Entry.empty()) continue;
            if (KeyText(one) != KeyText(other)) continue;
            // The container's line has the key while a container is meant.
            if (FindEntry(one.Entry).Menu != FindEntry(other.Entry).Menu) continue;
            EXPECT_TRUE(EntryByName(one.Entry)->Visible && EntryByName(other.Entry)->Visible)
                << KeyText(one) << ": " << one.Entry << ", " << other.Entry;
        }
    }
}

std::string Mnemonics(std::string_view caption) {
    std::string letters;
    for (std::size_t at = 0; at + 1 < caption.size(); ++at)
        if (caption[at] == '&') letters += static_cast<char>(std::toupper(caption[at + 1]));
    return letters;
}

// Both captions are told.
bool MayShare(std::string_view one, std::string_view other) {
    return (one == "Match &Size" && other == "&Start All") || (one == "&Start All" && other == "Match &Size");
}

// Their captions are told, and have a key of their own beside them.
bool IsToldWithoutMnemonic(const MenuEntry& entry) {
    constexpr std::string_view told[] = {"mnuKeyboardLauncher(1)", "mnuCalculator", "mnuPasteToContainer",
                                         "mnuOpenFileLocation"};
    return std::ranges::find(told, entry.Name) != std::end(told);
}

TEST(AllMenus, EveryLineHasAMnemonicThatNoOtherLineBesideItHas) {
    for (const auto& line : AllLines()) {
        if (line.Entry->Caption == "-" || line.Entry->Items) continue;
        const auto letters = Mnemonics(line.Entry->Caption);
        EXPECT_EQ(letters.empty(), IsToldWithoutMnemonic(*line.Entry)) << line.Where;
        for (const auto& other : line.Table) {
            const bool turns = line.Entry->Visible && other.Visible;
            if (&other == line.Entry || turns || MayShare(line.Entry->Caption, other.Caption)) continue;
            EXPECT_EQ(Mnemonics(other.Caption).find_first_of(letters), std::string::npos)
                << line.Where << " and " << other.Caption;
        }
    }
}

TEST_F(Menus, AnUnknownNameHasNoEntry) {
    EXPECT_EQ(EntryByName("mnuNobody"), nullptr);
}

} // namespace
} // namespace quill
