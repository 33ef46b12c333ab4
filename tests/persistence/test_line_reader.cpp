#include "persistence/line_reader.h"

#include <gtest/gtest.h>

#include <vector>

namespace quill {
namespace {

std::vector<std::string> LinesOf(std::string_view bytes) {
    LineReader reader(bytes);
    std::vector<std::string> lines;
    for (std::string_view line; reader.Next(line);) lines.emplace_back(line);
    return lines;
}

using Lines = std::vector<std::string>;

TEST(LineReader, BothLineEndsAreRead) {
    EXPECT_EQ(LinesOf("a\r\nb\nc"), (Lines{"a", "b", "c"}));
    EXPECT_EQ(LinesOf("a\r\n\r\nb\r\n"), (Lines{"a", "", "b"}));
    EXPECT_EQ(LinesOf("a\r\r\n"), (Lines{"a\r"}));
    EXPECT_EQ(LinesOf(""), Lines{});
    EXPECT_EQ(LinesOf("\n"), Lines{""});
}

TEST(LineReader, AByteOrderMarkIsIgnored) {
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                      "108\r\n"),
              Lines{"108"});
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"), Lines{});
}

TEST(LineReader, AMessageCanNameTheLine) {
    LineReader reader("a\nb\n");
    std::string_view line;
    EXPECT_EQ(reader.Line(), 0U);
    ASSERT_TRUE(reader.Next(line));
    ASSERT_TRUE(reader.Next(line));
    EXPECT_EQ(reader.Line(), 2U);
    EXPECT_FALSE(reader.Next(line));
    EXPECT_FALSE(reader.HitLongLine());
}

TEST(LineReader, AnEndlessLineStopsTheReading) {
    const std::string allowed(MaxLineBytes, 'x');
    EXPECT_EQ(LinesOf(allowed).size(), 1U);
    const std::string endless = "108\n" + allowed + "y\nnext\n";
    LineReader reader(endless);
    std::string_view line;
    ASSERT_TRUE(reader.Next(line));
    EXPECT_FALSE(reader.Next(line));
    EXPECT_TRUE(reader.HitLongLine());
    EXPECT_EQ(reader.Line(), 2U);
    EXPECT_FALSE(reader.Next(line));
}

TEST(LineReader, OnlyTheLinesThatAreNotUtf8AreReadAsWindows1252) {
    std::string bytes = "caf\xE9\r\n\xC3\xA9t\xC3\xA9\r\n\x93quoted\x94";
    PrepareText(bytes);
    EXPECT_EQ(bytes, "caf\xC3\xA9\r\n\xC3\xA9t\xC3\xA9\r\n\xE2\x80\x9Cquoted\xE2\x80\x9D");
}

TEST(LineReader, ValidTextIsLeftUntouched) {
    std::string bytes = "108\r\n\xE2\x82\xAC\r\n";
    const char* const before = bytes.data();
    PrepareText(bytes);
    EXPECT_EQ(bytes, "108\r\n\xE2\x82\xAC\r\n");
    EXPECT_EQ(bytes.data(), before);
}

} // namespace
} // namespace quill
