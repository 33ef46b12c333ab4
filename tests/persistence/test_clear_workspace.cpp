#include "containers/lifecycle.h"
#include "core/objects.h"
#include "persistence/save.h"
#include "persistence/saving_desk.h"
#include "shortcuts/create.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using namespace test;

struct Clearing : testing::Test {
    fake::Computer Computer;
    std::unique_ptr<frmMain> Main = Process(Computer);

    Clearing() {
        for (int made = 0; made < 3; ++made) {
            bool ok = false;
            NewGroup(*Main, false, ok);
            AddFile(*Main, "/home/user/a", InContainer(made), {});
        }
        AddFile(*Main, "/home/user", OnWorkspace(), {});
        Main->Links.SelectedShortcuts = {1, 3};
        Main->Group.ExpandedContainer = 1;
        Main->Group.CurrentContainer = 2;
    }
};

TEST_F(Clearing, LeavesOneDeadRowEachAndNothingOnTheStack) {
    ClearWorkspace(*Main);
    EXPECT_EQ(Main->Containers.size(), 1u);
    EXPECT_EQ(Main->Shortcuts.size(), 1u);
    EXPECT_EQ(Main->Pictures.size(), 1u);
    EXPECT_FALSE(IsLive(Main->Containers, 0) || IsLive(Main->Shortcuts, 0) || IsLive(Main->Pictures, 0));
    EXPECT_TRUE(Main->ZOrderList.empty());
    EXPECT_TRUE(Main->Links.SelectedShortcuts.empty());
    EXPECT_EQ(Main->Group.ExpandedContainer, -1);
    EXPECT_EQ(Main->Group.CurrentContainer, -1);
    EXPECT_TRUE(Main->Marks.Pending().Everything);
}

TEST_F(Clearing, TheCountersGoOnAndNewObjectsTakeTheFollowingIndices) {
    ClearWorkspace(*Main);
    EXPECT_EQ(Main->NextContainerIndex, 3);
    EXPECT_EQ(Main->NextShortcutIndex, 4);
    bool ok = false;
    NewGroup(*Main, false, ok);
    AddFile(*Main, "/home/user/b", InContainer(3), {});
    EXPECT_TRUE(ok);
    EXPECT_TRUE(IsLive(Main->Containers, 3));
    EXPECT_TRUE(IsLive(Main->Shortcuts, 4));
    EXPECT_EQ(LiveContainers(*Main), 1);
    SaveWorkspace(*Main, false, false);
    EXPECT_EQ(Computer.Files.Names(At("Containers")), std::vector<std::string>{"0.con"});
}

TEST_F(Clearing, TouchesNoFile) {
    SaveWorkspace(*Main, false, false);
    SaveWorkspace(*Main, true, false);
    Computer.Files.Recount();
    ClearWorkspace(*Main);
    EXPECT_EQ(Computer.Files.Steps(), 0);
}

TEST_F(Clearing, ThenTheExitCommitsTheEmptyWorkspace) {
    SaveWorkspace(*Main, false, false);
    ClearWorkspace(*Main);
    SaveWorkspace(*Main, false, true);
    EXPECT_TRUE(Computer.Files.Names(At("Containers")).empty());
    EXPECT_TRUE(Computer.Files.Has(At("Quillmere.ini")));
}

} // namespace
} // namespace quill
