#include "appearance/wallpaper.h"

#include "fake/computer.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct Skin : testing::Test {
    Skin() { Main.SettingsFolder = fake::SettingsFolder; }
    std::string Beside(const std::string& name) const { return Computer.Places.Data + "/" + name; }
    std::string Wallpaper(const std::string& name) {
        Main.Settings.Wallpaper = name;
        LoadWallpaper(Main);
        return Main.View.WallpaperFile;
    }
    fake::Computer Computer;
    frmMain Main{Computer.MakePlatform()};
};

TEST_F(Skin, WallpaperByNameComesFromTheUsersFolderFirst) {
    Computer.Files.Put(Beside("Skin/Wallpaper/Reed Bank.jpg"), "x");
    EXPECT_EQ(Wallpaper("Reed Bank.jpg"), Beside("Skin/Wallpaper/Reed Bank.jpg"));
    Computer.Files.Put(fake::SettingsFolder + "/Skin/Wallpaper/Reed Bank.jpg", "x");
    EXPECT_EQ(Wallpaper("Reed Bank.jpg"), fake::SettingsFolder + "/Skin/Wallpaper/Reed Bank.jpg");
}

TEST_F(Skin, WallpaperByFullPathAndOnTheProgramsDrive) {
    Computer.Places.Mounts["/media/stick"] = DriveKind::Removable;
    Computer.Places.Program = "/media/stick/quillmere";
    Computer.Files.Put("/home/user/Pictures/lake.jpg", "x");
    Computer.Files.Put("/media/stick/lake.jpg", "x");
    EXPECT_EQ(Wallpaper("/home/user/Pictures/lake.jpg"), "/home/user/Pictures/lake.jpg");
    EXPECT_EQ(Wallpaper("@/lake.jpg"), "/media/stick/lake.jpg");
    EXPECT_EQ(Wallpaper("@:\\lake.jpg"), "/media/stick/lake.jpg") << "the form of older workspaces";
}

TEST_F(Skin, AWallpaperThatIsMissingTodayIsNotShownAndItsNameIsKept) {
    EXPECT_EQ(Wallpaper("/home/user/gone.jpg"), "");
    EXPECT_EQ(Main.Settings.Wallpaper, "/home/user/gone.jpg");
    EXPECT_TRUE(Main.Marks.Pending().Workspace);
}

TEST_F(Skin, ANameLeadsNowhereElse) {
    Computer.Files.Put(fake::SettingsFolder + "/Skin/secret.jpg", "x");
    Computer.Files.PutFolder(fake::SettingsFolder + "/Skin/Wallpaper");
    EXPECT_EQ(Wallpaper("../secret.jpg"), "");
    EXPECT_EQ(Wallpaper(".."), "");
    Computer.Files.Put(fake::SettingsFolder + "/Skin/Buttons/lock.gif", "x");
    for (const char* set : {"..", ".", "", "Ink/..", "/etc"}) {
        InitButtons(Main, set);
        EXPECT_EQ(ButtonFile(Main, "lock"), "") << set;
    }
}

TEST_F(Skin, AWallpaperOnADeadServerDoesNotHoldUpTheStart) {
    Computer.Shell.NetworkPaths.push_back("/mnt/server");
    Computer.Files.Recount();
    EXPECT_EQ(Wallpaper("/mnt/server/lake.jpg"), "/mnt/server/lake.jpg") << "fetched when it is seen";
    EXPECT_TRUE(Computer.Files.Reads.empty());
}

TEST_F(Skin, ButtonsPreferTheDrawingBesideTheSmallPicture) {
    Computer.Files.Put(Beside("Skin/Buttons/Ink/lock.gif"), "x");
    Computer.Files.Put(Beside("Skin/Buttons/Ink/lock.svg"), "x");
    Computer.Files.Put(Beside("Skin/Buttons/Ink/dock.gif"), "x");
    InitButtons(Main, "Ink");
    EXPECT_EQ(ButtonFile(Main, "lock"), Beside("Skin/Buttons/Ink/lock.svg"));
    EXPECT_EQ(ButtonFile(Main, "dock"), Beside("Skin/Buttons/Ink/dock.gif"));
}

TEST_F(Skin, AUsersOwnSetWinsOverTheOneThatCameWithTheProgram) {
    Computer.Files.Put(Beside("Skin/Buttons/Ink/lock.svg"), "x");
    Computer.Files.Put(fake::SettingsFolder + "/Skin/Buttons/Ink/lock.gif", "x");
    InitButtons(Main, "Ink");
    EXPECT_EQ(ButtonFile(Main, "lock"), fake::SettingsFolder + "/Skin/Buttons/Ink/lock.gif");
}

TEST_F(Skin, WhatASetLacksKeepsItsDesign) {
    Computer.Files.Put(Beside("Skin/Buttons/Ink/lock.svg"), "x");
    InitButtons(Main, "Ink");
    EXPECT_EQ(ButtonFile(Main, "unlock"), "");
    InitButtons(Main, "Gone");
    EXPECT_EQ(ButtonFile(Main, "lock"), "") << "the picture of the set before does not stay";
}

TEST_F(Skin, FilesBesideTheProgramComeBeforeInstalledOnes) {
    EXPECT_EQ(FileBeside(Main, "note.ico"), Beside("note.ico"));
    Computer.Files.Put(Computer.Places.Program + "/note.ico", "x");
    EXPECT_EQ(FileBeside(Main, "note.ico"), Computer.Places.Program + "/note.ico");
    EXPECT_EQ(FileBeside(Main, "nothing.ico"), "");
    EXPECT_EQ(FileBeside(Main, "../note.ico"), "");
}

} // namespace
} // namespace quill
