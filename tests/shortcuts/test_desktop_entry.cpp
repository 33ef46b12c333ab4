#include "shortcuts/desktop_entry.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

std::string Read(std::string_view bytes, const std::vector<std::string>& languages = {"de_AT", "de"}) {
    const auto entry = ReadDesktopEntry(bytes, languages);
    if (!entry) return "none";
    return entry->Type + "|" + entry->Name + "|" + entry->Comment + "|" + entry->Url;
}

const std::string Head = "[Desktop Entry]\nType=Application\n";

TEST(DesktopEntry, TypeNameCommentAndAddressAreRead) {
    EXPECT_EQ(Read(Head + "Name=Editor\nComment=Edits\nExec=edit %F\n"), "Application|Editor|Edits|");
    EXPECT_EQ(Read("[Desktop Entry]\r\nType=Link\r\nName=Site\r\nURL=https://a.example/\r\n"),
              "Link|Site||https://a.example/");
}

TEST(DesktopEntry, TheNameIsThatOfTheFirstLanguageThatHasOne) {
    const std::string names = "Name=Plain\nName[fr]=Français\nName[de]=Deutsch\nName[de_AT]=Österreich\n";
    struct Row {
        std::vector<std::string> Languages;
        const char* Expected;
    };
    const Row rows[] = {
        {{"de_AT", "de"}, "Application|Österreich||"},
        {{"de_DE", "de"}, "Application|Deutsch||"},
        {{"es", "fr"}, "Application|Français||"},
        {{"fr", "de"}, "Application|Français||"},
        {{"es"}, "Application|Plain||"},
        {{}, "Application|Plain||"},
    };
    for (const Row& row : rows) EXPECT_EQ(Read(Head + names, row.Languages), row.Expected);
    EXPECT_EQ(Read(Head + "Name[de]=Deutsch\nName=Plain\n"), "Application|Deutsch||") << "in any order";
}

TEST(DesktopEntry, OtherGroupsCommentsAndKeysThatOnlyBeginAlikeDoNotCount) {
    EXPECT_EQ(Read("# a comment\n\n" + Head +
                   "# Name=No\nNameSpace=No\nName[x=No\nGenericName=No\nName = Yes \n"
                   "[Desktop Action new]\nName=No\nType=No\n"),
              "Application|Yes||");
    EXPECT_EQ(Read("[Other]\nName=No\nType=No\n" + Head + "Name=Yes"), "Application|Yes||");
}

TEST(DesktopEntry, EscapesAreTakenBack) {
    EXPECT_EQ(Read(Head + R"(Name=a\sb\\c\xd\)"), R"(Application|a b\c\xd\||)");
    EXPECT_EQ(Read(Head + R"(Name=a\nb\tc)"), "Application|a\nb\tc||");
}

TEST(DesktopEntry, TheSameKeyAgainTakesThePlaceOfTheOneBefore) {
    EXPECT_EQ(Read(Head + "Name=One\nName=Two\n"), "Application|Two||");
}

TEST(DesktopEntry, ANameThatIsNotUtf8IsReadWithItsLetters) {
    EXPECT_EQ(Read(Head + "Name=Caf\xE9\n"), "Application|Café||");
}

TEST(DesktopEntry, WhatHasNoTypeOrNameIsNone) {
    for (const std::string& bytes :
         {std::string(), Head, std::string("[Desktop Entry]\nName=x\n"), Head + "Name=\n",
          Head + "Name[fr]=x\n", std::string("Type=a\nName=b\n"),
          std::string("[desktop entry]\nType=a\nName=b\n"), std::string("[Desktop Entry]\n=x\nType\n[\n]\n")})
        EXPECT_EQ(Read(bytes), "none") << bytes;
}

} // namespace
} // namespace quill
