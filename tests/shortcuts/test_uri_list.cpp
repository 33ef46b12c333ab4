#include "shortcuts/uri_list.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

std::string Words(const UriList& list) {
    std::string text;
    for (const auto& file : list.Files) text += "[" + file + "]";
    for (const auto& address : list.Addresses) text += "<" + address + ">";
    return text;
}

std::string Read(std::string_view text) {
    return Words(ReadUriList(text, "desk"));
}

TEST(UriList, FilesAreDecodedAndAddressesStayAsTheyStand) {
    EXPECT_EQ(Read("file:///home/user/a%20b.txt\r\nhttps://a.example/x%20y\r\n"),
              "[/home/user/a b.txt]<https://a.example/x%20y>");
}

TEST(UriList, TheFormsOfALocalFile) {
    for (const char* uri : {"file:///a", "FILE:///a", "file:/a", "file://localhost/a", "file://Desk/a"})
        EXPECT_EQ(Read(uri), "[/a]") << uri;
}

TEST(UriList, WhatIsNoFileOfThisMachineAndNoAddressIsLeftOut) {
    for (const char* uri : {"file://elsewhere/a", "file:a", "file:", "file://", "file://desk", "a b", "/a",
                            ":x", "1x:y", "", "#file:///a", "file:///a%00b"})
        EXPECT_EQ(Read(uri), "") << uri;
}

TEST(UriList, LinesEndInAnyOfTheWaysThatProgramsHave) {
    EXPECT_EQ(Read("file:///a\nfile:///b\r\n\r\nfile:///c"), "[/a][/b][/c]");
    EXPECT_EQ(Read(std::string_view("file:///a\r\n\0", 12)), "[/a]");
    EXPECT_EQ(Read(std::string_view("file:///a\0", 10)), "[/a]");
}

TEST(UriList, AHalfCodedLetterStandsForItself) {
    EXPECT_EQ(Read("file:///a%"), "[/a%]");
    EXPECT_EQ(Read("file:///a%4"), "[/a%4]");
    EXPECT_EQ(Read("file:///a%zz%41"), "[/a%zzA]");
}

TEST(UriList, ALineBreakInANameIsPartOfTheName) {
    EXPECT_EQ(Read("file:///a%0Ab"), "[/a\nb]");
}

TEST(UriList, AHugeListIsReadUpToItsLimit) {
    std::string text;
    for (int at = 0; at < 100'000; ++at) text += "file:///a\n";
    EXPECT_EQ(ReadUriList(text, "desk").Files.size(), static_cast<std::size_t>(MostUris));
}

TEST(UriList, APathComesBackAsItWas) {
    for (const std::string path :
         {"/home/user/a b.txt", "/100% #?[]\"<>\\", "/\xC3\xA4\xFF", "/two\nlines", "/ "})
        EXPECT_EQ(Read(FileUri(path)), "[" + path + "]");
    EXPECT_EQ(FileUri("/a b/\xC3\xA4.txt"), "file:///a%20b/%C3%A4.txt");
}

} // namespace
} // namespace quill
