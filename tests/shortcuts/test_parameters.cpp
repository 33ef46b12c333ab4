#include "shortcuts/parameters.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct SplitRow {
    const char* Name;
    const char* Text;
    std::vector<std::string> Words;
};

class Parameters : public testing::TestWithParam<SplitRow> {};

TEST_P(Parameters, AreSplitAsAShellWould) {
    const auto words = SplitParameters(GetParam().Text);
    ASSERT_TRUE(words) << words.Error().Text;
    EXPECT_EQ(words.Value(), GetParam().Words);
}

const SplitRow SplitRows[] = {
    {"NothingIsNoWord", "", {}},
    {"BlanksAloneAreNoWord", " \t\r\n ", {}},
    {"BlanksSeparate", "  one\ttwo  three ", {"one", "two", "three"}},
    {"DoubleQuotesKeepBlanks", R"("My Letter.txt" -p)", {"My Letter.txt", "-p"}},
    {"SingleQuotesKeepEverything", R"('a "b" \ $c')", {R"(a "b" \ $c)"}},
    {"EmptyQuotesAreAnEmptyWord", R"('' "" x)", {"", "", "x"}},
    {"QuotesInsideAWordJoin", R"(--name="A B"'C D'E)", {"--name=A BC DE"}},
    {"ABackslashKeepsABlank", R"(My\ Letter.txt)", {"My Letter.txt"}},
    {"ABackslashKeepsAQuote", R"(it\'s \"so\")", {"it's", "\"so\""}},
    {"InDoubleQuotesItEscapesOnlySome", R"("a\"b\\c\$d\`e\nf")", {R"(a"b\c$d`e\nf)"}},
    {"ABackslashAtTheEndStays", R"(folder\)", {R"(folder\)"}},
    {"ALineEndAfterABackslashJoins", "one\\\ntwo", {"onetwo"}},
    {"NothingIsExpanded",
     "$HOME ~ *.txt `id` $(id) a;b|c>d&e #f",
     {"$HOME", "~", "*.txt", "`id`", "$(id)", "a;b|c>d&e", "#f"}},
    {"LettersOfEveryAlphabetStay", "Grüße 'über \xE2\x82\xAC'", {"Grüße", "über \xE2\x82\xAC"}},
};

INSTANTIATE_TEST_SUITE_P(Table, Parameters, testing::ValuesIn(SplitRows),
                         [](const auto& row) { return std::string(row.param.Name); });

class OpenQuotes : public testing::TestWithParam<const char*> {};

TEST_P(OpenQuotes, AreRefusedAndNothingIsGuessed) {
    const auto words = SplitParameters(GetParam());
    ASSERT_FALSE(words);
    EXPECT_EQ(words.Error().Kind, Reason::Damaged);
    EXPECT_EQ(words.Error().Text, "A quote in the parameters is not closed");
}

INSTANTIATE_TEST_SUITE_P(Table, OpenQuotes, testing::Values("'", "\"", "it's", "a \"b", "\"b\\\"", "'a' 'b"));

} // namespace
} // namespace quill
