#include "core/lower_case.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

TEST(LowerCaseOf, EveryAlphabetWithTwoCases) {
    const char* rows[][2] = {
        {"Quillmere 5", "quillmere 5"},
        {"ÀÉÎÕÜÞ×÷ß", "àéîõüþ×÷ß"},
        {"ŁÓDŹ Ÿ Ž", "łódź ÿ ž"},
        {"ΑΒΓΩ Άέ", "αβγω άέ"},
        {"ДОМ Ёж Ҳ", "дом ёж ҳ"},
        {"ԱՐԵՎ", "արեվ"},
        {"ẤỘ ẞ", "ấộ ß"},
        {"ＡＢＣ", "ａｂｃ"},
        {"漢字 かな", "漢字 かな"},
        {"", ""},
        {"Ā ā İ", "ā ā İ"},
    };
    for (const auto& row : rows) EXPECT_EQ(LowerCase(row[0]), row[1]);
}

TEST(LowerCaseOf, BytesThatAreNoUtf8StayAsTheyAre) {
    for (const std::string text : {"\xC4", "a\xFF\xFE", "\xE2\x82", "\xC0\x80", "\xF5\x80\x80\x80"}) {
        EXPECT_EQ(LowerCase("X" + text + "Y"), "x" + text + "y");
    }
}

} // namespace
} // namespace quill
