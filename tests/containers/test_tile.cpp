#include "containers/workspace_fixture.h"

namespace quill {
namespace {

struct Tile : test::WorkspaceFixture {};

struct IconRow {
    int Width, Height;
    const char* Place;
    bool Small;
};

TEST_F(Tile, TheIconStandsInTheMiddleOfEachStepAndIsSmallOnTheTinyOne) {
    const IconRow rows[] = {
        {700, 950, "40,165 620x620", false},   // Normal
        {650, 870, "20,130 610x610", false},   // Small
        {410, 650, "20,140 370x370", true},    // Tiny
        {2000, 2000, "20,520 960x960", false}, // never above 64 pixels
        {700, 30, "40,15 0x0", false},
    };
    const int index = New({0, 0, 3000, 3000});
    for (const auto& row : rows) {
        Main.Con(index).SetShrinkSize(row.Width, row.Height);
        AddShrinkIcon(Main, "note.ico", index);
        EXPECT_EQ(fake::Words(Main.ConView(index).ContainerIcon.Place), row.Place) << row.Width;
        EXPECT_EQ(Main.ConView(index).IconSmall, row.Small) << row.Width;
    }
}

TEST_F(Tile, AnIconWithoutAPathIsThatOfItsKind) {
    const int plain = New({0, 0, 3000, 3000}), note = New({0, 0, 3000, 3000}), feed = New({0, 0, 3000, 3000});
    Main.ConView(note).PinPressed = true;
    Main.ConView(feed).PinPressed = true;
    Main.Con(feed).RSS = true;
    EXPECT_EQ(DefaultShrinkIcon(Main, plain), "emptyicon.ico");
    EXPECT_EQ(DefaultShrinkIcon(Main, note), "note.ico");
    EXPECT_EQ(DefaultShrinkIcon(Main, feed), "rss.ico");
}

TEST_F(Tile, AnIconOfOursIsSavedByItsBareNameAndFoundBesideTheProgram) {
    const int index = New({0, 0, 3000, 3000});
    AddShrinkIcon(Main, "note.ico", index);
    EXPECT_EQ(Main.Con(index).ShrinkPath, "note.ico");
    EXPECT_EQ(Main.ConView(index).IconFile, computer.Places.Data + "/note.ico");
}

TEST_F(Tile, AnIconOfTheUsersIsShownFromWhereItIs) {
    computer.Files.Put("/home/user/cat.png", "picture");
    computer.Images.Sizes["/home/user/cat.png"] = {480, 480};
    const int index = New({0, 0, 3000, 3000});
    AddShrinkIcon(Main, "/home/user/cat.png", index);
    EXPECT_EQ(Main.ConView(index).IconFile, "/home/user/cat.png");
}

TEST_F(Tile, AnIconThatIsMissingShowsTheDefaultAndKeepsItsPath) {
    const int index = New({0, 0, 3000, 3000});
    AddShrinkIcon(Main, "/gone/cat.png", index);
    EXPECT_EQ(Main.Con(index).ShrinkPath, "/gone/cat.png");
    EXPECT_EQ(Main.ConView(index).IconFile, computer.Places.Data + "/emptyicon.ico");
}

TEST_F(Tile, AnIconThatIsNoPictureShowsTheDefaultAndKeepsItsPath) {
    computer.Files.Put("/home/user/letter.txt", "dear");
    const int index = New({0, 0, 3000, 3000});
    AddShrinkIcon(Main, "/home/user/letter.txt", index);
    EXPECT_EQ(Main.Con(index).ShrinkPath, "/home/user/letter.txt");
    EXPECT_EQ(Main.ConView(index).IconFile, computer.Places.Data + "/emptyicon.ico");
}

TEST_F(Tile, TheContainerMadeLastHasTheEmptyIconUnlessItIsGivenOne) {
    New({0, 0, 3000, 3000});
    const int last = New({0, 0, 3000, 3000});
    AddDefaultShrinkIcon(Main, "");
    EXPECT_EQ(Main.Con(last).ShrinkPath, "emptyicon.ico");
    AddDefaultShrinkIcon(Main, "note.ico");
    EXPECT_EQ(Main.ConView(last).IconFile, computer.Places.Data + "/note.ico");
}

TEST_F(Tile, AContainerThatHappensToHaveTheNewSizeIsLaidAsATile) {
    const int index = New({0, 0, 650, 870});
    SetContainerShrinkSize(Main, index, 650, 870);
    EXPECT_TRUE(IsShrunk(Main, index));
    EXPECT_TRUE(Main.ConView(index).ContainerIcon.Visible);
    EXPECT_FALSE(Main.ConView(index).ContainerLabel.Visible);
}

TEST_F(Tile, AnIconNamedInAnotherProgramFolderIsFoundBesideThisOne) {
    const int index = New({0, 0, 3000, 3000});
    AddShrinkIcon(Main, "C:\\Programs\\Quillmere\\rss.ico", index);
    EXPECT_EQ(Main.ConView(index).IconFile, computer.Places.Data + "/rss.ico");
    EXPECT_EQ(Main.Con(index).ShrinkPath, "C:\\Programs\\Quillmere\\rss.ico");
}

TEST_F(Tile, ANewSizeReachesATileAtOnceButAnOpenContainerOnlyWhenItShrinks) {
    const int open = New({0, 0, 3000, 3000}), tile = NewTile(5000, 500);
    SetContainerShrinkSize(Main, open, 650, 870);
    SetContainerShrinkSize(Main, tile, 650, 870);
    EXPECT_EQ(BoxWords(open), "0,0 3000x3000");
    EXPECT_EQ(BoxWords(tile), "5000,500 650x870");
    EXPECT_EQ(fake::Words(Main.ConView(tile).ContainerFrame.Place), "0,290 650x580");
    EXPECT_FALSE(Main.ConView(tile).ContainerLabel.Visible);
    ExpandShrinkContainer(Main, open, false);
    EXPECT_EQ(BoxWords(open), "0,0 650x870");
}

TEST_F(Tile, ASizeOfZeroKeepsThatSide) {
    const int tile = NewTile(500, 500);
    SetContainerShrinkSize(Main, tile, 0, 870);
    EXPECT_EQ(Main.Con(tile).ShrinkSize(), (TileSize{700, 870}));
}

TEST_F(Tile, OnlyATinyTileHidesTheMarkOfATag) {
    const int tile = NewTile(500, 500);
    Main.Con(tile).ShowingTag = "home";
    SetContainerShrinkSize(Main, tile, 650, 870);
    EXPECT_TRUE(Main.ConView(tile).shapeTags.Visible);
    SetContainerShrinkSize(Main, tile, 410, 650);
    EXPECT_FALSE(Main.ConView(tile).shapeTags.Visible);
    ExpandShrinkContainer(Main, tile, false);
    EXPECT_TRUE(Main.ConView(tile).shapeTags.Visible);
}

} // namespace
} // namespace quill
