#include "keyboard/path_walk.h"

#include "keyboard/launcher_fixture.h"

namespace quill {
namespace {

struct FormRow {
    const char* Text;
    bool Path, Walkable;
};

const FormRow forms[] = {
    {"/", true, true},
    {"/usr/lib", true, true},
    {"~", true, true},
    {"~/Music", true, true},
    {".config", true, true},
    {"../x", true, true},
    {"notepad /home/a.txt", true, false},
    {"notepad ~/a.txt", true, false},
    {"usr/share", true, false},
    {"usr/share/my folder", true, false},
    {"either or/both", false, false},
    {"example.com/page", false, false},
    {"http://example.com", false, false},
    {"host:80/x", false, false},
    {"plain", false, false},
    {"node.js", false, false},
    {"", false, false},
    {"50% ~5", true, false},
    {"a~b", false, false},
};

TEST(PathForms, ATextIsAPathByHowItBeginsOrWhereItsSlashStands) {
    for (const auto& row : forms) {
        EXPECT_EQ(IsPathText(row.Text), row.Path) << row.Text;
        EXPECT_EQ(IsWalkable(row.Text), row.Walkable) << row.Text;
    }
}

struct UpRow {
    const char *Text, *Up;
};

const UpRow ups[] = {
    {"/usr/lib", "/usr"},  {"/usr", "/"},   {"/", "/"},       {"~/Music/old", "~/Music"},
    {"~/Music", "~"},      {"~", "~"},      {"./a/b", "./a"}, {".config", ".config"},
    {"/usr/lib/", "/usr"}, {"/a//b", "/a"}, {"//", "/"},
};

TEST(PathForms, UpOneFolderDropsTheLastElementAndKeepsTheRoots) {
    for (const auto& row : ups) EXPECT_EQ(UpOneFolder(row.Text), row.Up) << row.Text;
}

struct PathWalk : test::LauncherFixture {};

TEST_F(PathWalk, ATypedPathIsFoundFromHomeTheRootOrTheDriveOfTheProgram) {
    desk.Computer.Places.Mounts["/media/stick"] = DriveKind::Removable;
    desk.Computer.Places.Program = "/media/stick/quillmere";
    EXPECT_EQ(PathOfText(Main(), "/usr/lib"), "/usr/lib");
    EXPECT_EQ(PathOfText(Main(), "~"), "/home/user");
    EXPECT_EQ(PathOfText(Main(), "~/Music"), "/home/user/Music");
    EXPECT_EQ(PathOfText(Main(), "~other"), "/home/user/~other") << "a name, and no other person's home";
    EXPECT_EQ(PathOfText(Main(), ".config"), "/home/user/.config");
    EXPECT_EQ(PathOfText(Main(), "tools/bin"), "/media/stick/tools/bin");
    desk.Computer.Places.Folders.clear();
    EXPECT_EQ(PathOfText(Main(), "~/x"), "/x");
}

TEST_F(PathWalk, DownListsTheFoldersAndTheTextFollowsTheArrows) {
    desk.Files().Put("/usr/readme", "x");
    desk.Files().PutFolder("/usr/lib10");
    desk.Files().PutFolder("/usr/lib9");
    Type("/usr");
    Press(KeyDown);
    EXPECT_EQ(Lines(), "/usr/lib, /usr/lib9, /usr/lib10, /usr/share") << "natural order, folders only";
    EXPECT_TRUE(Field().DroppedDown);
    Press(KeyDown, 2);
    EXPECT_EQ(desk.Typed(), "/usr/lib9");
    EXPECT_TRUE(Field().DroppedDown) << "the arrows go on";
    EXPECT_TRUE(desk.Computer.Windows.WasBusy);
    EXPECT_FALSE(desk.Computer.Windows.Busy);
}

TEST_F(PathWalk, HiddenFoldersAreListedToo) {
    desk.Files().PutFolder("/usr/lib/.hidden");
    desk.Files().PutFolder("/usr/lib/seen");
    Type("/usr/lib/");
    Press(KeyDown);
    EXPECT_EQ(Lines(), "/usr/lib/.hidden, /usr/lib/seen");
}

TEST_F(PathWalk, TheRightArrowFillsTheListAndSaysHowItOpens) {
    Type("/usr");
    Press(KeyRight);
    EXPECT_EQ(Lines(), "/usr/lib, /usr/share");
    EXPECT_FALSE(Field().DroppedDown);
    EXPECT_EQ(Box().lblJumpToTip, "Down arrow: List folders");
    Press(KeyDown);
    EXPECT_TRUE(Field().DroppedDown);
    Press(KeyDown);
    Press(KeyRight);
    EXPECT_EQ(desk.Typed(), "/usr/lib");
    EXPECT_EQ(Box().lblJumpToTip, "No Subfolders");
}

TEST_F(PathWalk, TheLeftArrowGoesUpAndClearsTheList) {
    Type("/usr/lib");
    Press(KeyRight);
    Press(KeyLeft);
    EXPECT_EQ(desk.Typed(), "/usr");
    EXPECT_EQ(Lines(), "");
    EXPECT_EQ(Field().SelStart, 4) << "the caret is at the end";
    EXPECT_EQ(Preview(), "/usr | Use the arrow keys to navigate");
    Press(KeyLeft, 3);
    EXPECT_EQ(desk.Typed(), "/") << "the root stays";
}

TEST_F(PathWalk, TheLeftArrowMovesTheCaretWhereItStandsAheadOfTheEnd) {
    Type("/usr/lib");
    Press(KeyHome);
    Press(KeyLeft);
    EXPECT_EQ(desk.Typed(), "/usr/lib") << "a typing error can be reached without losing the rest";
}

TEST_F(PathWalk, TheLeftArrowOnASelectionIsTheFields) {
    Type("/usr/lib");
    desk.PressKey('A', true);
    Press(KeyLeft);
    EXPECT_EQ(desk.Typed(), "/usr/lib");
}

TEST_F(PathWalk, AFolderThatIsNotThereIsAnInvalidPath) {
    Type("/usr/nowhere");
    Press(KeyDown);
    EXPECT_EQ(Box().lblJumpToTip, "Invalid Path");
    EXPECT_FALSE(Field().DroppedDown);
    desk.Files().Put("/usr/file", "x");
    Type("/usr/file");
    Press(KeyRight);
    EXPECT_EQ(Box().lblJumpToTip, "Invalid Path") << "a file is no folder";
    desk.Files().PutFolder("/usr/closed");
    desk.Files().MakeUnreadable("/usr/closed");
    Type("/usr/closed");
    Press(KeyRight);
    EXPECT_EQ(Box().lblJumpToTip, "Invalid Path");
}

TEST_F(PathWalk, AFolderWithoutSubfoldersSaysSo) {
    desk.Files().Put("/usr/lib/file", "x");
    Type("/usr/lib");
    Press(KeyDown);
    EXPECT_EQ(Box().lblJumpToTip, "No Subfolders");
    EXPECT_FALSE(Field().DroppedDown);
}

// ---- servers

struct OnServer : PathWalk {
    void SetUp() override {
        PathWalk::SetUp();
        desk.Computer.Shell.NetworkPaths.push_back("/net/");
        desk.Files().PutFolder("/net/nas/films");
    }
};

TEST_F(OnServer, AFolderIsListedOffTheThread) {
    Type("/net/nas");
    Press(KeyDown);
    EXPECT_EQ(desk.Computer.Worker.Waiting(), 1U);
    EXPECT_EQ(Lines(), "");
    desk.Computer.Worker.RunAll();
    EXPECT_EQ(Lines(), "/net/nas/films");
    EXPECT_TRUE(Field().DroppedDown);
}

TEST_F(OnServer, ADeadOneIsAnInvalidPathAndHoldsNothingUp) {
    desk.Computer.Shell.SilentPaths.push_back("/net/");
    Type("/net/nas");
    desk.Files().Reads.clear();
    Press(KeyDown);
    EXPECT_TRUE(desk.Files().Reads.empty()) << "the thread never touches it";
    desk.Wait(5000);
    EXPECT_EQ(Box().lblJumpToTip, "Invalid Path");
    EXPECT_EQ(desk.Computer.Worker.Waiting(), 0U);
}

TEST_F(OnServer, AnAnswerThatComesLateForAnotherTextIsDropped) {
    Type("/net/nas");
    Press(KeyDown);
    desk.Type("/");
    desk.Computer.Worker.RunAll();
    EXPECT_EQ(Lines(), "");
    Press(KeyEscape, 2);
    EXPECT_FALSE(IsOpen());
    Type("/net/nas");
    Press(KeyDown);
    Press(KeyEscape, 2);
    desk.Computer.Worker.RunAll();
    EXPECT_EQ(Lines(), "") << "the box is closed";
}

TEST_F(OnServer, AMountAmongLocalFoldersIsListedWithoutBeingLookedAt) {
    desk.Computer.Shell.NetworkPaths = {"/usr/nas"};
    desk.Files().PutFolder("/usr/nas");
    Type("/usr");
    desk.Files().Reads.clear();
    Press(KeyDown);
    EXPECT_EQ(Lines(), "/usr/lib, /usr/nas, /usr/share");
    for (const auto& read : desk.Files().Reads) EXPECT_EQ(read.find("/usr/nas"), std::string::npos) << read;
}

} // namespace
} // namespace quill
