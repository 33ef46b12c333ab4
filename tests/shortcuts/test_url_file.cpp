#include "shortcuts/url_file.h"

#include "shortcuts/link_files.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

std::string Read(std::string_view bytes) {
    return ReadUrlFile(bytes).value_or("none");
}

TEST(UrlFile, TheAddressIsReadHoweverTheFileIsWritten) {
    struct Row {
        const char* Name;
        std::string Bytes;
        const char* Expected;
    };
    const Row rows[] = {
        {"Windows line ends", "[InternetShortcut]\r\nURL=https://a.example/\r\n", "https://a.example/"},
        {"line feeds", "[InternetShortcut]\nURL=https://a.example/\n", "https://a.example/"},
        {"carriage returns", "[InternetShortcut]\rURL=https://a.example/\r", "https://a.example/"},
        {"no end of the last line", "[InternetShortcut]\nURL=https://a.example/", "https://a.example/"},
        {"a mark in front", "\xEF\xBB\xBF[InternetShortcut]\nURL=https://a.example/", "https://a.example/"},
        {"two bytes a letter", "\xFF\xFE" + test::Utf16(u"[InternetShortcut]\r\nURL=https://ä.example/\r\n"),
         "https://ä.example/"},
        {"the higher byte first",
         std::string("\xFE\xFF\0[\0I\0n\0t\0e\0r\0n\0e\0t\0S\0h\0o\0r\0t\0c\0u\0t\0]"
                     "\0\n\0U\0R\0L\0=\0x",
                     50),
         "x"},
        {"letters of another code page", "[InternetShortcut]\nURL=https://a.example/\xE4",
         "https://a.example/ä"},
        {"any case, blanks", " [INTERNETSHORTCUT] \n url = https://a.example/ \n", "https://a.example/"},
        {"quotes", "[InternetShortcut]\nURL=\"https://a.example/\"\n", "https://a.example/"},
        {"other groups around it",
         "[DEFAULT]\nURL=no\nBASEURL=no\n[InternetShortcut]\nIconIndex=0\n"
         "URL=https://a.example/?a=b\n[X]\nURL=no",
         "https://a.example/?a=b"},
        {"the first counts", "[InternetShortcut]\nURL=one\nURL=two", "one"},
    };
    for (const Row& row : rows) EXPECT_EQ(Read(row.Bytes), row.Expected) << row.Name;
}

TEST(UrlFile, WhatHoldsNoAddressIsNone) {
    for (const char* bytes :
         {"", "[InternetShortcut]", "[InternetShortcut]\nURL=", "[InternetShortcut]\nURL=  \n",
          "URL=https://a.example/", "[Other]\nURL=https://a.example/", "[InternetShortcut]\nURL",
          "[InternetShortcut]\nXURL=x", "\xFF\xFE", "\xFF\xFE["})
        EXPECT_EQ(Read(bytes), "none") << bytes;
}

TEST(UrlFile, OneThatIsCutAtAnyByteGivesNoMoreThanItHolds) {
    const std::string whole = "[InternetShortcut]\r\nURL=https://a.example/\r\n";
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const std::string read = Read(std::string_view(whole).substr(0, length));
        EXPECT_TRUE(read == "none" || std::string("https://a.example/").starts_with(read)) << length;
    }
}

} // namespace
} // namespace quill
