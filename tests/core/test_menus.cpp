#include "core/menus.h"
#include "fake/desk.h"

#include <gtest/gtest.h>

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
              "New &Container [Ctrl+T]\n&Note [Ctrl+N]\n-\n&Save [F8]\n&Backup\n-\n"
              "( ) &Lock [Ctrl+L]\n(x) &Keep On Top\n( ) Lock &Position\nMa&ximize [F11]\n-\n"
              "&Ignore Changes\nClea&r Workspace\nLoad &Defaults\nCommand-&line Options\n-\n"
              "E&xit [Alt+F4]\n");
}

TEST_F(Menus, AMaximisedWorkspaceOffersToRestore) {
    desk.PressKey(KeyF1 + 10);
    EXPECT_NE(Shown(MenuName::Workspace).find("Restor&e [F11]"), std::string::npos);
}

TEST_F(Menus, AContainersMenuOffersWhatFitsItsState) {
    desk.Main->Group.CurrentContainer = 0;
    EXPECT_EQ(Shown(MenuName::Container),
              "&Fold\nS&hrink\n-\nShow &Note\n-\n&Start All\n-\n&Remove Containers\n");
    desk.ClickOn(ElementKind::lblFoldUnfold, 0);
    EXPECT_EQ(Shown(MenuName::Container).substr(0, 7), "Un&fold");
}

TEST_F(Menus, ARightClickOnTheSurfaceOpensTheWorkspacesMenu) {
    desk.Person().ChooseMenu("Ma&ximize");
    desk.RightClickOn(ElementKind::picBack);
    EXPECT_TRUE(desk.Main->Dock.Maximized);
}

TEST_F(Menus, TheMenuButtonOpensItToo) {
    desk.Person().ChooseMenu("&Lock");
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

TEST_F(Menus, AnUnknownNameHasNoEntry) {
    EXPECT_EQ(EntryByName("mnuNobody"), nullptr);
}

} // namespace
} // namespace quill
