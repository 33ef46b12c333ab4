#include "containers/tag_view.h"
#include "containers/workspace_fixture.h"

namespace quill {
namespace {

struct TagView : test::WorkspaceFixture {
    int Tagged(Parent in, const std::string& tags) {
        const int link = NewLink(in, {500, 500});
        Main.Link(link).Tags = tags;
        return link;
    }
};

TEST_F(TagView, TagsAreComparedWholeWithoutBlanksAndCase) {
    struct Row {
        const char* Tags;
        const char* Tag;
        bool Has;
    };
    const Row rows[] = {
        {"Work, Home", "home", true},    {"Work, Home", "HOME ", true}, {"art", "start", false},
        {"start", "art", false},         {"", "home", false},           {"home", "", false},
        {"my place,x", "MyPlace", true}, {"GRÜN", "grün", true},        {"ΔΕΛΤΑ,Дом", "дом", true},
    };
    for (const auto& row : rows)
        EXPECT_EQ(HasTag(row.Tags, row.Tag), row.Has) << row.Tags << " / " << row.Tag;
}

TEST_F(TagView, OnlyTheShortcutsOfTheTagAreSeenInThatContainer) {
    const int index = New({600, 600, 3000, 3000}), other = New({4000, 600, 3000, 3000});
    const int home = Tagged(InContainer(index), "Home"), work = Tagged(InContainer(index), "Work");
    const int elsewhere = Tagged(InContainer(other), "Work"), onBack = Tagged(OnWorkspace(), "Work");
    Main.Con(index).ShowingTag = "home";
    ApplyContainerTag(Main, index);
    EXPECT_TRUE(Main.LinkView(home).Visible);
    EXPECT_FALSE(Main.LinkView(work).Visible);
    EXPECT_TRUE(Main.Link(work).TagHidden);
    EXPECT_TRUE(Main.LinkView(elsewhere).Visible);
    EXPECT_TRUE(Main.LinkView(onBack).Visible);
    EXPECT_TRUE(Main.ConView(index).shapeTags.Visible);
    EXPECT_TRUE(Main.ConView(index).Container.Visible);
    EXPECT_TRUE(Main.ConView(other).Container.Visible);
}

TEST_F(TagView, WithoutATagEveryShortcutIsSeenAgain) {
    const int index = New({600, 600, 3000, 3000});
    const int work = Tagged(InContainer(index), "Work");
    Main.Con(index).ShowingTag = "home";
    ApplyContainerTag(Main, index);
    Main.Con(index).ShowingTag.clear();
    ApplyContainerTag(Main, index);
    EXPECT_TRUE(Main.LinkView(work).Visible);
    EXPECT_FALSE(Main.Link(work).TagHidden);
    EXPECT_FALSE(Main.ConView(index).shapeTags.Visible);
}

TEST_F(TagView, AHiddenShortcutIsNotHitAndNeedsNoRoom) {
    const int index = New({600, 600, 3000, 3000});
    const int work = Tagged(InContainer(index), "Work");
    Main.LinkView(work).lblShortcut.Place.Top = 9000;
    Main.Con(index).ShowingTag = "home";
    ApplyContainerTag(Main, index);
    EXPECT_EQ(ContentHeight(Main, index), 0);
    EXPECT_FALSE(Main.ConView(index).VScroll.Visible);
    EXPECT_EQ(Seen(OnContainer(index)).find("lblShortcut"), std::string::npos);
}

} // namespace
} // namespace quill
