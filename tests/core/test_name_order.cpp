#include "core/name_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quill {
namespace {

TEST(NameOrder, NumbersCountByTheirValueAndCaseDoesNot) {
    std::vector<std::string> names = {"zebra", "Item 10", "item 9", "Apple",   "apple pie",
                                      "7",     "12",      "Äpfel",  "item 9b", "Item 010b"};
    std::ranges::stable_sort(names, [](const auto& a, const auto& b) { return CompareNames(a, b) < 0; });
    EXPECT_EQ(names, (std::vector<std::string>{"7", "12", "Äpfel", "Apple", "apple pie", "item 9", "item 9b",
                                               "Item 10", "Item 010b", "zebra"}));
}

TEST(NameOrder, WhatAPersonReadsAsTheSameIsEqual) {
    for (const auto& [one, other] : {std::pair{"Work", "wORK"}, {"7", "007"}, {"", ""}, {"ÄPFEL", "äpfel"}})
        EXPECT_EQ(CompareNames(one, other), 0) << one;
}

TEST(NameOrder, AnAccentDecidesOnlyWhereNothingElseDoes) {
    const char* names[] = {"resume", "résumé", "re\u0301sume\u0301s", "Zürich", "Żywiec", "ß", "Škoda",
                           "÷",      "þ"};
    EXPECT_LT(CompareNames("resume", "résumé"), 0);
    EXPECT_LT(CompareNames("résumé", "resumes"), 0);
    EXPECT_LT(CompareNames("re\u0301sume\u0301", "resumes"), 0);
    EXPECT_LT(CompareNames("Škoda", "Tesla"), 0);
    EXPECT_LT(CompareNames("Straße", "Strauss"), 0);
    for (const char* name : names) EXPECT_EQ(CompareNames(name, name), 0) << name;
}

TEST(NameOrder, NumbersOfAnyLengthAreCompared) {
    const std::string digits(400, '9');
    EXPECT_LT(CompareNames("a" + digits, "a1" + std::string(400, '0')), 0);
    EXPECT_GT(CompareNames(digits, "5"), 0);
}

TEST(NameOrder, TheOrderTurnsRoundWithItsNames) {
    const char* names[] = {"", "0", "a", "A1", "a01b", "b", "é", "\xFF", "7 up", "a1"};
    for (const char* one : names) {
        for (const char* other : names) {
            const int there = CompareNames(one, other), back = CompareNames(other, one);
            EXPECT_EQ(there<0, back> 0) << one << " " << other;
            EXPECT_EQ(there == 0, back == 0) << one << " " << other;
        }
    }
}

} // namespace
} // namespace quill
