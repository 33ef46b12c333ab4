#include "keyboard/matching.h"

#include "core/lower_case.h"
#include "keyboard/launcher_fixture.h"

#include <algorithm>
#include <random>

namespace quill {
namespace {

struct Matching : test::LauncherFixture {
    std::string ByName(const std::string& text) { return NameOf(FindShortcutByName(Main(), text)); }
    std::string ByPart(const std::string& text) { return NameOf(FindShortcutContaining(Main(), text)); }
    std::string InFront(const std::string& text) { return NameOf(FindShortcutInFront(Main(), text)); }
    std::string NameOf(int found) { return found == NoMatch ? "(none)" : Main().Link(found).FullCaption; }
};

TEST_F(Matching, NothingIsFoundInAnEmptyWorkspace) {
    EXPECT_EQ(FindShortcutByName(Main(), "x"), NoMatch);
    EXPECT_EQ(FindShortcutContaining(Main(), "x"), NoMatch);
    EXPECT_EQ(FindShortcutInFront(Main(), "x y"), NoMatch);
}

TEST_F(Matching, AnEqualNameWinsOverOneThatBeginsWithTheText) {
    Link("Mail Archive"), Link("Mail"), Link("E-Mail");
    EXPECT_EQ(ByName("mail"), "Mail");
    EXPECT_EQ(ByName("mai"), "Mail") << "the first in alphabetical order";
    EXPECT_EQ(ByName("mail "), "Mail Archive");
    EXPECT_EQ(ByName("ail"), "(none)") << "in the middle is not looked for here";
}

TEST_F(Matching, OfNamesThatHoldTheTextTheShorterWins) {
    Link("A long name with ink in it"), Link("Pink"), Link("Sink"), Link("Thinking");
    EXPECT_EQ(ByPart("ink"), "Pink") << "of equal ones the first in table order";
    EXPECT_EQ(ByPart("inki"), "Thinking");
    EXPECT_EQ(ByPart("k i"), "A long name with ink in it");
}

TEST_F(Matching, ShorterCountsLettersAndNotBytes) {
    Link("xxInk"), Link("ÄÄInk"), Link("ééInk"), Link("őInk");
    EXPECT_EQ(ByPart("ink"), "őInk");
    EXPECT_EQ(ByPart("xink"), "xxInk");
}

TEST_F(Matching, ANameOf255LettersIsOnlyFoundByItsBeginning) {
    Link(std::string(251, 'a') + "zed");
    EXPECT_EQ(FindShortcutContaining(Main(), "zed"), 0);
    Rename(0, std::string(252, 'a') + "zed");
    EXPECT_EQ(FindShortcutContaining(Main(), "zed"), NoMatch);
    EXPECT_EQ(FindShortcutByName(Main(), "aaa"), 0);
}

TEST_F(Matching, CaseIsIgnoredInEveryAlphabet) {
    Link("ÜBERSICHT"), Link("ΔΕΛΤΙΟ"), Link("ПОЧТА"), Link("Ōsaka");
    EXPECT_EQ(ByName(LowerCase("Über")), "ÜBERSICHT");
    EXPECT_EQ(ByName(LowerCase("Δελ")), "ΔΕΛΤΙΟ");
    EXPECT_EQ(ByPart(LowerCase("ЧТ")), "ПОЧТА");
    EXPECT_EQ(ByName(LowerCase("ŌSAKA")), "Ōsaka");
}

TEST_F(Matching, OfEqualNamesTheFirstInTheTableWins) {
    const int first = Link("Notes");
    Link("NOTES");
    EXPECT_EQ(FindShortcutByName(Main(), "notes"), first);
    DeleteShortcut(Main(), first);
    EXPECT_EQ(FindShortcutByName(Main(), "notes"), first + 1);
}

TEST_F(Matching, ARenamedOrNewShortcutIsFoundAtOnce) {
    const int link = Link("Old");
    EXPECT_EQ(ByName("old"), "Old");
    Rename(link, "New");
    EXPECT_EQ(ByName("old"), "(none)");
    EXPECT_EQ(ByName("ne"), "New");
    Link("Old again");
    EXPECT_EQ(ByName("old"), "Old again");
}

TEST_F(Matching, ARowThatDiedUnnoticedIsNeverFound) {
    Link("Ghost");
    const int alive = Link("Ghostly");
    EXPECT_EQ(FindShortcutByName(Main(), "ghost"), alive - 1);
    Main().Shortcuts[static_cast<std::size_t>(alive - 1)].Index = -1;
    EXPECT_EQ(FindShortcutByName(Main(), "ghost"), alive);
    EXPECT_EQ(FindShortcutContaining(Main(), "host"), alive);
}

TEST_F(Matching, TheCaptionsAreKeptWhileNoneChanges) {
    Link("Mail");
    const auto* kept = Captions(Main()).InTable.data();
    FindShortcutByName(Main(), "m");
    EXPECT_EQ(Captions(Main()).InTable.data(), kept);
    EXPECT_EQ(Captions(Main()).Revision, Main().Links.CaptionsRevision);
}

TEST_F(Matching, TheLongestNameInFrontTakesWhatFollowsABlank) {
    Link("git"), Link("Git Gui"), Link("");
    EXPECT_EQ(InFront("git push"), "git");
    EXPECT_EQ(InFront("git gui --all here"), "Git Gui");
    EXPECT_EQ(InFront("gitk x"), "(none)") << "a blank must follow";
    EXPECT_EQ(InFront("git"), "(none)");
    EXPECT_EQ(InFront("my git push"), "(none)") << "it must stand at the start";
    EXPECT_EQ(InFront(" x"), "(none)") << "a shortcut without a name takes nothing";
}

// ---- against the rule as it is told, word by word

struct Naive {
    std::vector<std::pair<std::string, int>> All; // in table order

    int ByName(const std::string& text) const {
        auto sorted = All;
        std::ranges::stable_sort(sorted, {}, &std::pair<std::string, int>::first);
        for (const auto& [name, index] : sorted)
            if (name == text) return index;
        for (const auto& [name, index] : sorted)
            if (name.starts_with(text)) return index;
        return NoMatch;
    }
    int ByPart(const std::string& text) const {
        int best = NoMatch;
        std::size_t bound = 255;
        for (const auto& [name, index] : All)
            if (name.size() < bound && name.find(text) != std::string::npos)
                best = index, bound = name.size();
        return best;
    }
};

std::string RandomName(std::mt19937& random, std::size_t most) {
    static constexpr std::string_view Letters = "abAB c";
    std::string name(random() % (most + 1), ' ');
    for (char& letter : name) letter = Letters[random() % Letters.size()];
    return name;
}

TEST_F(Matching, RandomNamesAreMatchedAsTheRuleSays) {
    std::mt19937 random(7);
    for (int round = 0; round < 40; ++round) {
        Naive naive;
        Link(RandomName(random, 7));
        if (round % 3 == 0) DeleteShortcut(Main(), static_cast<int>(random() % Main().Shortcuts.size()));
        if (const int link = static_cast<int>(random() % Main().Shortcuts.size()); round % 2 == 0)
            Rename(link, RandomName(random, 7));
        for (const auto& row : Live(Main().Shortcuts))
            naive.All.emplace_back(LowerCase(row.Object.FullCaption), row.Index);
        for (int text = 0; text < 60; ++text) {
            const auto typed = LowerCase(RandomName(random, 4));
            ASSERT_EQ(FindShortcutByName(Main(), typed), naive.ByName(typed)) << typed;
            ASSERT_EQ(FindShortcutContaining(Main(), typed), naive.ByPart(typed)) << typed;
        }
    }
}

} // namespace
} // namespace quill
