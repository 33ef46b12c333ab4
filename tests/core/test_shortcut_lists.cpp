#include "core/shortcut_lists.h"

#include "shortcuts/at_work.h"

namespace quill {
namespace {

struct Lists : AtWork {
    std::vector<int> In(const Parent& parent) {
        std::vector<int> found;
        ShortcutLists(Main).Each(Main, parent, [&](int index) { found.push_back(index); });
        return found;
    }
};

TEST_F(Lists, EveryParentHasItsShortcutsInTableOrder) {
    const int box = Container("Box"), other = Container("Other");
    File("/a", InContainer(other));
    File("/b");
    File("/c", InContainer(box));
    File("/d", InContainer(other));
    EXPECT_EQ(In(OnWorkspace()), std::vector<int>{1});
    EXPECT_EQ(In(InContainer(box)), std::vector<int>{2});
    EXPECT_EQ(In(InContainer(other)), (std::vector<int>{0, 3}));
}

TEST_F(Lists, DeadShortcutsAndParentsThatAreNoneHaveNoPlace) {
    const int box = Container("Box");
    const int gone = File("/a", InContainer(box));
    File("/b", InContainer(box));
    DeleteShortcut(Main, gone);
    EXPECT_EQ(In(InContainer(box)), std::vector<int>{1});
    EXPECT_TRUE(In(InContainer(99)).empty());
    EXPECT_TRUE(In(InContainer(-1)).empty());
    EXPECT_TRUE(In(InContainer(-2)).empty());
    EXPECT_TRUE(In(OnWorkspace()).empty());
}

} // namespace
} // namespace quill
