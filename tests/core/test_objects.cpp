#include "containers/workspace_fixture.h"

#include "persistence/save.h"

#include <algorithm>
#include <list>
#include <random>

namespace quill {
namespace {

struct Objects : test::WorkspaceFixture {};

ZOrderEntry Box1(int index) {
    return {KindContainer, index};
}
ZOrderEntry Pic(int index) {
    return {KindPicture, index};
}

TEST_F(Objects, TheStackingListHoldsAnObjectOnceInBothDirectionsAlsoWhileLoading) {
    for (const bool loading : {false, true}) {
        Main.IsLoading = loading;
        Main.ZOrderList.clear();
        for (const auto& entry : {Box1(0), Pic(0), Box1(1)}) AddToZorderCollection(Main, entry, false);
        AddToZorderCollection(Main, Box1(0), false);
        EXPECT_EQ(Main.ZOrderList, (std::vector{Pic(0), Box1(1), Box1(0)}));
        AddToZorderCollection(Main, Box1(1), true);
        EXPECT_EQ(Main.ZOrderList, (std::vector{Box1(1), Pic(0), Box1(0)}));
        AddToZorderCollection(Main, Pic(7), true);
        EXPECT_EQ(Main.ZOrderList, (std::vector{Pic(7), Box1(1), Pic(0), Box1(0)}));
        RemoveFromZorder(Main, Box1(1));
        RemoveFromZorder(Main, Box1(99));
        EXPECT_EQ(Main.ZOrderList, (std::vector{Pic(7), Pic(0), Box1(0)}));
    }
}

TEST_F(Objects, OnlyAChangeOfTheStackingIsMarked) {
    AddToZorderCollection(Main, Box1(0), false);
    Main.Marks.Take();
    AddToZorderCollection(Main, Box1(0), false);
    AddToZorderCollection(Main, Box1(0), true);
    RemoveFromZorder(Main, Box1(5));
    EXPECT_FALSE(Main.Marks.Take().Stacking);
    AddToZorderCollection(Main, Box1(1), true);
    EXPECT_TRUE(Main.Marks.Take().Stacking);
}

TEST_F(Objects, TheFirstTestThatHoldsSaysTheKindOfAContainer) {
    struct Row {
        bool Feed, Reminder;
        const char* CopyPath;
        bool Pin;
        ContainerKind Kind;
    };
    const Row rows[] = {
        {true, true, "http://feed", true, ContainerKind::Feed}, // its address is no connected folder
        {true, false, "http://feed", false, ContainerKind::Feed},
        {false, true, "/home/user", true, ContainerKind::Reminder},
        {false, false, "/home/user", true, ContainerKind::FolderConnector},
        {false, false, "", true, ContainerKind::Note},
        {false, false, "", false, ContainerKind::Plain},
    };
    const int index = New({0, 0, 3000, 3000});
    for (const auto& row : rows) {
        auto& container = Main.Con(index);
        container.RSS = row.Feed;
        container.SetReminder(row.Reminder, 2027, 1, 2, 3, 4, "");
        container.CopyPath = row.CopyPath;
        Main.ConView(index).PinPressed = row.Pin;
        EXPECT_EQ(KindOf(Main, index), row.Kind);
    }
}

TEST_F(Objects, AfterTheLastShortcutIsDeletedItsRowStaysAndTheNextTakesTheFollowingIndex) {
    const int link = NewLink(OnWorkspace(), {500, 500});
    DeleteShortcut(Main, link);
    EXPECT_EQ(Main.Shortcuts.size(), 1U);
    EXPECT_EQ(Main.Shortcuts[0].Index, -1);
    EXPECT_EQ(NewLink(OnWorkspace(), {500, 500}), 1);
}

TEST_F(Objects, ContainersHiddenByATagOrDetachedAreLiveAndSaved) {
    const int hidden = New({0, 0, 3000, 3000}, "Hidden"), detached = New({0, 0, 3000, 3000}, "Detached");
    for (const int index : {hidden, detached}) Main.ConView(index).Container.Visible = false;
    Main.Con(hidden).tag = true;
    Main.Con(detached).Detached = true;
    EXPECT_EQ(LiveContainers(Main), 2);
    SaveContainers(Main, true);
    EXPECT_NE(Recovery("0.REC").find("[Name]\r\nHidden\r\n"), std::string::npos) << Recovery("0.REC");
    EXPECT_NE(Recovery("1.REC").find("[Name]\r\nDetached\r\n"), std::string::npos) << Recovery("1.REC");
}

TEST_F(Objects, ShortcutsAreCountedByWhereTheyLie) {
    const int one = New({0, 0, 3000, 3000}), two = New({0, 0, 3000, 3000});
    for (const auto& parent : {InContainer(one), InContainer(one), InContainer(two), OnWorkspace()}) {
        NewLink(parent, {0, 0});
    }
    DeleteShortcut(Main, 0);
    EXPECT_EQ(GetContainerShortcutCount(Main, one), 1);
    EXPECT_EQ(GetContainerShortcutCount(Main, two), 1);
    EXPECT_EQ(WorkspaceShortcutCount(Main), 1);
}

TEST_F(Objects, ParentsAreNamedAsTheFilesNameThem) {
    EXPECT_EQ(ParentName(OnWorkspace()), "picBack");
    EXPECT_EQ(ParentName(InContainer(3)), "ContainerFrame");
}

TEST_F(Objects, ADateIsWrittenOut) {
    computer.Clock.SetNow({2027, 3, 4, 5, 6, 7, 0});
    EXPECT_EQ(DateText(Main), "2027-03-04 05:06:07");
}

// Create, delete, restack and move in any order, beside a model that is too simple to be wrong.
struct Model {
    std::vector<bool> Containers, Links;
    std::vector<int> LinkIn; // container, -1 for the workspace
    std::list<int> Order;    // containers from the bottom
};

struct RandomWalk : test::WorkspaceFixture {
    Model model;
    std::mt19937 random{20270102};

    int Pick(std::size_t count) { return static_cast<int>(random() % count); }
    int AnyContainer() { return model.Containers.empty() ? -1 : Pick(model.Containers.size()); }

    void Create() {
        if (std::ranges::count(model.Containers, true) >= 50) return;
        model.Order.push_back(New({0, 0, 3000, 3000}));
        model.Containers.push_back(true);
    }
    void Delete() {
        const int index = AnyContainer();
        DeleteContainer(Main, index, false);
        if (index == -1) return;
        model.Containers[static_cast<std::size_t>(index)] = false;
        model.Order.remove(index);
        for (std::size_t link = 0; link < model.Links.size(); ++link) {
            if (model.LinkIn[link] == index) model.Links[link] = false;
        }
    }
    void Restack(bool toBack) {
        const int index = AnyContainer();
        if (!IsLive(Main.Containers, index)) return;
        AddToZorderCollection(Main, {KindContainer, index}, toBack);
        model.Order.remove(index);
        toBack ? model.Order.push_front(index) : model.Order.push_back(index);
    }
    void CreateLink() {
        const int container = AnyContainer();
        const bool inside = IsLive(Main.Containers, container);
        NewLink(inside ? InContainer(container) : OnWorkspace(), {0, 0});
        model.Links.push_back(true);
        model.LinkIn.push_back(inside ? container : -1);
    }
    void DeleteLink() {
        if (model.Links.empty()) return;
        const int link = Pick(model.Links.size());
        DeleteShortcut(Main, link);
        model.Links[static_cast<std::size_t>(link)] = false;
    }
    void Toggle() {
        const int index = AnyContainer();
        Pick(2) == 0 ? ExpandShrinkContainer(Main, index, false) : ShrinkBackContainer(Main, false);
        if (IsLive(Main.Containers, index)) {
            const bool opened = Main.Group.CurrentContainer == index && Main.ZOrderList.back().Index == index;
            if (opened) model.Order.remove(index), model.Order.push_back(index);
        }
        Wait(20);
    }
    void Step() {
        switch (Pick(8)) {
        case 0:
        case 1:
            return Create();
        case 2:
            return Delete();
        case 3:
            return Restack(false);
        case 4:
            return Restack(true);
        case 5:
        case 6:
            return CreateLink();
        default:
            return DeleteLink();
        }
    }
    void Compare(int step) {
        ASSERT_EQ(LiveContainers(Main), std::ranges::count(model.Containers, true)) << step;
        std::vector<ZOrderEntry> order;
        for (const int index : model.Order) order.push_back({KindContainer, index});
        ASSERT_EQ(Main.ZOrderList, order) << step;
        for (std::size_t link = 0; link < model.Links.size(); ++link) {
            ASSERT_EQ(IsLive(Main.Shortcuts, static_cast<int>(link)), model.Links[link]) << step;
        }
        for (std::size_t index = 0; index < model.Containers.size(); ++index) {
            ASSERT_EQ(IsLive(Main.Containers, static_cast<int>(index)), model.Containers[index]) << step;
        }
        ASSERT_EQ(Main.Containers.size(), Main.ContainerViews.size());
        ASSERT_EQ(Main.Shortcuts.size(), Main.ShortcutViews.size());
    }
};

TEST_F(RandomWalk, TheTablesAgreeWithANaiveModel) {
    for (int step = 0; step < 4000 && !HasFatalFailure(); ++step) {
        Step();
        Compare(step);
    }
    EXPECT_GT(Main.NextContainerIndex, 100);
}

TEST_F(RandomWalk, FoldedShrunkAndOpenInAnyOrderEachContainerHasOneStateAndAFullSize) {
    for (int index = 0; index < 6; ++index) Create();
    for (int step = 0; step < 3000 && !HasFatalFailure(); ++step) {
        Toggle();
        for (const auto& row : Live(Main.Containers)) {
            ASSERT_EQ(Main.ConView(row.Index).ContainerIcon.Visible, IsShrunk(Main, row.Index)) << step;
            ASSERT_TRUE(Main.ConView(row.Index).Container.Visible) << step;
            ASSERT_TRUE(IsShrunk(Main, row.Index) || Box(row.Index).Width == 3000) << step;
        }
        ASSERT_TRUE(Main.Group.ExpandedContainer == -1 || !IsShrunk(Main, Main.Group.ExpandedContainer))
            << step;
    }
}

} // namespace
} // namespace quill
