#include "persistence/text_values.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

struct BooleanCase {
    const char* Text;
    std::optional<bool> Value;
};

TEST(TextValues, EveryFormOfATruthValueIsUnderstood) {
    const BooleanCase cases[] = {
        {"1", true},           {"0", false},          {"-1", true},          {"True", true},
        {"False", false},      {"TRUE", true},        {"false", false},      {" 1 ", true},
        {" True\t", true},     {"2", true},           {"0.0", false},        {"-0", false},
        {"0,5", true},         {"", std::nullopt},    {"yes", std::nullopt}, {"Truex", std::nullopt},
        {"1 0", std::nullopt}, {"tru", std::nullopt},
    };
    for (const auto& row : cases) EXPECT_EQ(ReadBoolean(row.Text), row.Value) << '"' << row.Text << '"';
}

struct NumberCase {
    const char* Text;
    std::optional<double> Value;
};

TEST(TextValues, NumbersAreReadWhateverSignTheDecimalsHave) {
    const NumberCase cases[] = {
        {"155", 155},
        {" 155 ", 155},
        {"-200", -200},
        {"+7", 7},
        {"1.5", 1.5},
        {"1,5", 1.5},
        {".5", 0.5},
        {"-,25", -0.25},
        {"1E3", 1000},
        {"16777215", 16777215},
        {"4294967296", 2147483647.0},
        {"-1e300", -2147483648.0},
        {"1e999", 2147483647.0},
        {"1e-999", 0},
    };
    for (const auto& row : cases) EXPECT_EQ(ReadNumber(row.Text), row.Value) << '"' << row.Text << '"';
}

TEST(TextValues, WhatIsNoNumberIsRefused) {
    for (const char* text : {"", " ", "-", "+", "+-1", "--1", "1x", "x1", "1.2.3", "1,234.5", "nan", "inf",
                             "-inf", "0x10", "1 2", "1e", "."})
        EXPECT_FALSE(ReadNumber(text)) << '"' << text << '"';
}

struct WholeCase {
    const char* Text;
    std::int32_t Value;
};

TEST(TextValues, AFractionIsRoundedToTheNearestWholeNumber) {
    const WholeCase cases[] = {
        {"100.4", 100},
        {"100.6", 101},
        {"100,6", 101},
        {"-1.6", -2},
        {"-0.4", 0},
        {"99.5", 100},
        {"99999999999", 2147483647},
        {"-99999999999", -2147483647 - 1},
    };
    for (const auto& row : cases) EXPECT_EQ(ReadWhole(row.Text), row.Value) << row.Text;
}

TEST(TextValues, AWholeNumberBeyondItsTypeEndsAtTheBound) {
    std::int16_t narrow = 0;
    EXPECT_TRUE(ReadValue("40000", narrow));
    EXPECT_EQ(narrow, 32767);
    EXPECT_TRUE(ReadValue("-40000", narrow));
    EXPECT_EQ(narrow, -32768);
    std::uint8_t byte = 0;
    EXPECT_TRUE(ReadValue("-3", byte));
    EXPECT_EQ(byte, 0);
    EXPECT_TRUE(ReadValue("300", byte));
    EXPECT_EQ(byte, 255);
}

TEST(TextValues, AValueThatCantBeReadLeavesTheFieldAsItWas) {
    std::int16_t number = 7;
    EXPECT_FALSE(ReadValue("seven", number));
    EXPECT_EQ(number, 7);
    bool truth = true;
    EXPECT_FALSE(ReadValue("maybe", truth));
    EXPECT_TRUE(truth);
}

struct WrittenCase {
    float Value;
    const char* Text;
};

TEST(TextValues, NumbersAreWrittenWithAPointAndWithoutAnExponent) {
    const WrittenCase cases[] = {
        {0, "0"},
        {-0.0F, "0"},
        {155, "155"},
        {-200, "-200"},
        {1.5F, "1.5"},
        {0.1F, "0.1"},
        {123456.5F, "123456.5"},
        {1e9F, "1000000000"},
        {1e-3F, "0.001"},
        {1e20F, "2147483648"},
    };
    for (const auto& row : cases) {
        std::string out;
        AppendValue(out, row.Value);
        EXPECT_EQ(out, row.Text);
    }
}

TEST(TextValues, AFractionComesBackAsItWas) {
    for (const float value : {0.1F, 1234.567F, -98.7654F, 3.14159274F, 1e-30F}) {
        std::string out;
        AppendValue(out, value);
        float back = 0;
        ASSERT_TRUE(ReadValue(out, back)) << out;
        EXPECT_EQ(back, value);
    }
}

std::string OneLine(std::string_view text) {
    std::string out;
    AppendValue(out, text);
    return out;
}

TEST(TextValues, ControlCharactersInOneLineBecomeBlanks) {
    EXPECT_EQ(OneLine("a\r\nb\tc\x01"), "a  b c ");
    EXPECT_EQ(OneLine(std::string_view("a\0b", 3)), "a b");
    EXPECT_EQ(OneLine("Gr\xC3\xB6\xC3\x9F"
                      "e\n"),
              "Gr\xC3\xB6\xC3\x9F"
              "e ");
    EXPECT_EQ(OneLine("nothing to do in this text"), "nothing to do in this text");
}

TEST(TextValues, WhatIsWrittenIsAlwaysUtf8) {
    EXPECT_EQ(OneLine("caf\xE9 \x80"), "caf\xC3\xA9 \xE2\x82\xAC");
}

struct Utf8Case {
    const char* Text;
    bool Valid;
};

TEST(TextValues, MalformedUtf8IsFound) {
    const Utf8Case cases[] = {
        {"", true},
        {"plain text of more than eight bytes", true},
        {"\xC3\xA4", true},
        {"\xE2\x82\xAC", true},
        {"\xF0\x9F\x98\x80", true},
        {"\xF4\x8F\xBF\xBF", true},
        {"\xC3", false},
        {"\xE2\x82", false},
        {"\x80", false},
        {"\xC0\xAF", false},
        {"\xE0\x80\x80", false},
        {"\xED\xA0\x80", false},
        {"\xF0\x80\x80\x80", false},
        {"\xF4\x90\x80\x80", false},
        {"\xFF", false},
        {"12345678\xE9", false},
    };
    for (const auto& row : cases) EXPECT_EQ(IsUtf8(row.Text), row.Valid) << row.Text;
}

std::string Stored(const std::string& path) {
    std::string out;
    AppendPath(out, path);
    return out;
}

struct PathCase {
    const char* Path;
    const char* Stored;
};

TEST(TextValues, PathsThatALineCantHoldComeBackAsTheyWere) {
    const PathCase cases[] = {
        {"/home/user/plain", "/home/user/plain"},
        {"/home/user/with blank", "/home/user/with blank"},
        {"/home/user/\xC3\xA4", "/home/user/\xC3\xA4"},
        {"/home/user/\xE4", "file:///home/user/%E4"},
        {"/home/user/end ", "file:///home/user/end%20"},
        {"/home/user/two\nlines", "file:///home/user/two%0Alines"},
        {"/home/user/100% sure\r", "file:///home/user/100%25%20sure%0D"},
        {"@/on the stick ", "file://@/on%20the%20stick%20"},
        {"/", "/"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(Stored(row.Path), row.Stored);
        EXPECT_EQ(ReadPath(row.Stored), row.Path);
    }
}

TEST(TextValues, AnAddressThatWasTypedStaysAsItWasTyped) {
    for (const char* text :
         {"file:///home/user/plain", "file://server/share", "file:///bad%2", "file:///bad%zz",
          "file:///a%00b", "http://example.org/%20", "C:\\Windows\\calc.exe "})
        EXPECT_EQ(ReadPath(text), text);
}

TEST(TextValues, NamesOfOtherSystemsAreNoPathsHere) {
    EXPECT_EQ(Stored("C:\\Program Files\\x.exe "), "C:\\Program Files\\x.exe ");
    EXPECT_EQ(Stored(""), "");
}

TEST(TextValues, BlanksTabsAndLineEndsAreTrimmed) {
    EXPECT_EQ(Trimmed(" \t a b \r\n"), "a b");
    EXPECT_EQ(Trimmed("  "), "");
    EXPECT_EQ(Trimmed(""), "");
}

} // namespace
} // namespace quill
