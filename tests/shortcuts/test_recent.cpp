#include "shortcuts/at_work.h"

namespace quill {
namespace {

struct RecentList : AtWork {
    int Named(const std::string& name, Parent in = OnWorkspace()) { return File("/" + name, in); }
};

TEST_F(RecentList, NewestFirstWithoutDuplicates) {
    const int a = Named("a"), b = Named("b"), c = Named("c");
    for (const int index : {a, b, c, a}) Start(index);
    EXPECT_EQ(Recent(), "a, c, b");
}

TEST_F(RecentList, StartingItsHeadLeavesTheOrder) {
    const int a = Named("a"), b = Named("b");
    for (const int index : {a, b, b}) Start(index);
    EXPECT_EQ(Recent(), "b, a");
}

TEST_F(RecentList, TheEleventhDropsTheOldest) {
    for (const char name : std::string("abcdefghijk")) Start(Named(std::string(1, name)));
    EXPECT_EQ(Recent(), "k, j, i, h, g, f, e, d, c, b");
}

TEST_F(RecentList, ItsCaptionIsTheLabelsAtTheLastStart) {
    const int a = Named("a");
    Start(a);
    Main.LinkView(a).lblShortcut.Caption = "renamed";
    Start(a);
    EXPECT_EQ(Recent(), "renamed");
}

TEST_F(RecentList, RemovingTakesExactlyTheEntryOfThatShortcut) {
    const int a = Named("x"), b = Named("x"), c = Named("x");
    for (const int index : {a, b, c}) UpdateRecent(Main, index);
    RemoveFromRecent(Main, b);
    ASSERT_EQ(Main.Links.Recent.size(), 2U);
    EXPECT_EQ(Main.Links.Recent[0].Tag, c);
    EXPECT_EQ(Main.Links.Recent[1].Tag, a);
    RemoveFromRecent(Main, b);
    EXPECT_EQ(Main.Links.Recent.size(), 2U);
}

TEST_F(RecentList, ADeadShortcutIsNotRecorded) {
    const int a = Named("a");
    DeleteShortcut(Main, a);
    UpdateRecent(Main, a);
    EXPECT_EQ(Recent(), "");
}

TEST_F(RecentList, EveryStartIsInTheNextRecoverySave) {
    Start(Named("a"));
    const std::string saved = Computer.Files.Dump(fake::SettingsFolder);
    EXPECT_NE(saved.find("[Recent 1]"), std::string::npos) << saved;
}

TEST_F(RecentList, RowsOfAFileFindTheirShortcutsByCaptionPlaceAndParent) {
    const int box = Container("Box");
    const int outside = Named("a"), inside = Named("a", InContainer(box)), moved = Named("a");
    Main.LinkView(moved).lblShortcut.Place.Left += 2;
    Main.Links.RecentRows = {{"a", 601, 899, "ContainerFrame"},
                             {"a", 600, 900, "picBack"},
                             {"a", 602.5F, 900, "picBack"},
                             {"gone", 600, 900, "picBack"},
                             {"a", 700, 900, "picBack"}};
    ResolveRecentRows(Main);
    ASSERT_EQ(Main.Links.Recent.size(), 3U) << "what is not found is dropped";
    EXPECT_EQ(Main.Links.Recent[0].Tag, inside) << "one twip of tolerance";
    EXPECT_EQ(Main.Links.Recent[1].Tag, outside);
    EXPECT_EQ(Main.Links.Recent[2].Tag, moved);
    EXPECT_TRUE(Main.Links.RecentRows.empty());
}

TEST_F(RecentList, ARowFindsNoShortcutTwiceAndTheListStaysTen) {
    Named("a");
    Main.Links.RecentRows.assign(2, {"a", 600, 900, "picBack"});
    ResolveRecentRows(Main);
    EXPECT_EQ(Recent(), "a");
    for (int at = 0; at < 11; ++at) {
        Named("n" + std::to_string(at));
        Main.Links.RecentRows.push_back({"n" + std::to_string(at), 600, 900, "picBack"});
    }
    ResolveRecentRows(Main);
    EXPECT_EQ(Main.Links.Recent.size(), 10U);
}

} // namespace
} // namespace quill
