#include "shortcuts/icon_cache.h"

#include "containers/workspace_fixture.h"
#include "persistence/save.h"

#include <set>

namespace quill {
namespace {

const std::string One = "0f8fad5b-d9cb-469f-a165-70867728950e.ico",
                  Two = "7c9e6679-7425-40de-944b-e07fc1f90ae7.ico";

struct IconCache : test::WorkspaceFixture {
    std::string At(const std::string& name) { return IconCacheFolder(Main) + "/" + name; }
    void Put(const std::string& name) { computer.Files.Put(At(name), "picture"); }
    int NewAddress(const std::string& icon) {
        AddURL(Main, OnWorkspace(), "", "https://a.example/", {600, 900});
        Main.Link(Main.NextShortcutIndex - 1).Icon = icon;
        return Main.NextShortcutIndex - 1;
    }
    void Save() { SaveWorkspace(Main, false, false); }
    std::vector<std::string> Cached() { return computer.Files.Names(IconCacheFolder(Main)); }
    using Names = std::vector<std::string>;
};

TEST_F(IconCache, EachFileHasANameThatNoOtherHas) {
    computer.Images.OnSize = [](const std::string&) { return Size{240, 240}; };
    std::set<std::string> names;
    for (int file = 0; file < 200; ++file) {
        const std::string path = KeepInIconCache(Main, "picture");
        EXPECT_TRUE(IsCachedIcon(Main, path)) << path;
        names.insert(path);
    }
    EXPECT_EQ(names.size(), 200U);
}

TEST_F(IconCache, OnlyNamesOfThatFormBelongToIt) {
    EXPECT_TRUE(IsCacheName(One));
    for (const std::string name :
         {"", ".ico", "favicon.ico", "0f8fad5b-d9cb-469f-a165-70867728950e",
          "0f8fad5b-d9cb-469f-a165-70867728950e.png", "0F8FAD5B-D9CB-469F-A165-70867728950E.ico",
          "0f8fad5b-d9cb-169f-a165-70867728950e.ico", "0f8fad5b-d9cb-469f-c165-70867728950e.ico",
          "0f8fad5b/d9cb-469f-a165-70867728950e.ico", "../../etc/passwd-469f-a165-70867728950e.ico",
          "0f8fad5b-d9cb-469f-a165-70867728950e.ico "})
        EXPECT_FALSE(IsCacheName(name)) << name;
    EXPECT_TRUE(IsCachedIcon(Main, At(One)));
    EXPECT_FALSE(IsCachedIcon(Main, "/elsewhere/" + One));
    EXPECT_FALSE(IsCachedIcon(Main, One));
    EXPECT_FALSE(IsCachedIcon(Main, ""));
}

TEST_F(IconCache, AFileThatNothingNamesGoesAtACommittedSaveAndNoEarlier) {
    Put(One);
    Put(Two);
    const int link = NewAddress(At(One));
    NewAddress(At(Two));
    Save();
    EXPECT_EQ(Cached(), (Names{One, Two}));
    DeleteShortcut(Main, link);
    SaveWorkspace(Main, true, false);
    SaveContainers(Main, true);
    EXPECT_EQ(Cached(), (Names{One, Two})) << "the committed generation still names it";
    Save();
    EXPECT_EQ(Cached(), Names{Two});
    EXPECT_EQ(computer.Images.Forgotten, Names{At(One)});
}

TEST_F(IconCache, TheEndOfTheProgramAndOfAContainerCleanItToo) {
    Put(One);
    Put(Two);
    SaveContainers(Main, false);
    EXPECT_EQ(Cached(), Names{});
    Put(One);
    SaveWorkspace(Main, false, true);
    EXPECT_EQ(Cached(), Names{});
}

TEST_F(IconCache, AFailedSaveDeletesNothing) {
    Put(One);
    NewAddress("");
    computer.Files.FailFrom(1, Reason::NoSpace);
    Save();
    computer.Files.Heal();
    EXPECT_EQ(Cached(), Names{One});
}

TEST_F(IconCache, AFileThatACloneNamesAsWellStays) {
    Put(One);
    const int link = NewAddress(At(One));
    NewAddress(At(One));
    DeleteShortcut(Main, link);
    Save();
    EXPECT_EQ(Cached(), Names{One});
}

TEST_F(IconCache, AContainersTileKeepsItsFile) {
    Put(One);
    Put(Two);
    const int box = New({4000, 1000, 3000, 3000});
    Main.Con(box).ShrinkPath = At(One);
    Save();
    EXPECT_EQ(Cached(), Names{One});
    DeleteContainer(Main, box, false);
    Save();
    EXPECT_EQ(Cached(), Names{});
}

TEST_F(IconCache, ANameFromAnotherMountOrAnEncodedOneCounts) {
    Put(One);
    Put(Two);
    NewAddress("@/quillmere/iconcache/" + One);
    NewAddress("file:///somewhere/else%20now/iconcache/" + Two);
    Save();
    EXPECT_EQ(Cached(), (Names{One, Two}));
}

TEST_F(IconCache, WhatIsNotItsOwnIsLeftAlone) {
    Put("favicon.ico");
    Put("notes.txt");
    computer.Files.PutFolder(At("folder"));
    computer.Files.Put(At("folder/" + One), "deep");
    computer.Files.Put(fake::SettingsFolder + "/" + Two, "beside");
    Save();
    EXPECT_EQ(Cached(), (Names{"favicon.ico", "folder", "notes.txt"}));
    EXPECT_EQ(computer.Files.Get(At("folder/" + One)), "deep");
    EXPECT_EQ(computer.Files.Get(fake::SettingsFolder + "/" + Two), "beside");
}

TEST_F(IconCache, AFileThatWasSetAsideKeepsItsIcons) {
    Put(One);
    Put(Two);
    computer.Files.Put(fake::SettingsFolder + "/Containers/0.con.damaged", "[Icon]\r\n" + At(One) + "\r\n");
    Save();
    EXPECT_EQ(Cached(), Names{One});
}

TEST_F(IconCache, WhereAFileCannotBeReadNothingIsDeleted) {
    Put(One);
    const std::string aside = fake::SettingsFolder + "/Containers/0.con.damaged";
    computer.Files.Put(aside, "?");
    computer.Files.MakeUnreadable(aside);
    Save();
    EXPECT_EQ(Cached(), Names{One});
}

} // namespace
} // namespace quill
