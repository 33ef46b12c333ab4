#include "shortcuts/foreign_text.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(ForeignText, LinesEndInALineFeedWhateverTheyEndedIn) {
    EXPECT_EQ(FromTextFile("a\r\nb\rc\nd\n\r\n"), "a\nb\nc\nd\n\n");
}

TEST(ForeignText, EachLineIsReadInTheLettersThatItIsWrittenIn) {
    EXPECT_EQ(FromTextFile("caf\xE9\nçà\n"), "café\nçà\n");
    EXPECT_EQ(FromTextFile("caf\xE9\rçà"), "café\nçà") << "also where a carriage return ends the line";
    EXPECT_EQ(FromTextFile("\xEF\xBB\xBF\xC3\xA4"), "ä");
    EXPECT_EQ(FromTextFile(std::string("\xFF\xFE\xE4\x00\x0D\x00\x0A\x00x", 9)), "ä\n");
    EXPECT_EQ(FromTextFile(std::string("\xFE\xFF\x00\xE4", 4)), "ä");
}

TEST(ForeignText, WhatIsShownIsOneLineOfLetters) {
    EXPECT_EQ(ShownLine("two\nlines\tand\x01 more"), "two lines and  more");
    EXPECT_EQ(ShownLine("caf\xE9"), "café");
    EXPECT_EQ(ShownLine("<b>%1 &x"), "<b>%1 &x") << "and nothing of it means anything";
}

TEST(ForeignText, EndingsAreComparedInAnyCase) {
    EXPECT_TRUE(EndsInAnyCase("A.LnK", ".lnk"));
    EXPECT_FALSE(EndsInAnyCase("lnk", ".lnk"));
    EXPECT_FALSE(EndsInAnyCase("", ".lnk"));
}

} // namespace
} // namespace quill
