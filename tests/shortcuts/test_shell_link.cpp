#include "shortcuts/shell_link.h"

#include "shortcuts/link_files.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using test::Bytes;
using test::LinkFile;

std::string Words(const std::optional<ShellLink>& link) {
    if (!link) return "damaged";
    return link->LocalPath + "|" + link->NetworkPath + "|" + link->RelativePath + "|" +
           link->WorkingDirectory + "|" + link->Arguments + "|" + link->Description;
}

std::string Read(const LinkFile& file) {
    return Words(ReadShellLink(file.Text()));
}

// All that a link can hold at once.
LinkFile Everything() {
    LinkFile file;
    file.ItemIds = std::string(7, '\0');
    file.Local = "C:\\Tools\\edit.exe";
    file.LocalWide = u"C:\\Tools\\Ärger.exe";
    file.Share = "\\\\server\\share";
    file.ShareWide = u"\\\\server\\Öffentlich";
    file.Suffix = "";
    file.Wide = true;
    file.Description = "An editor";
    file.Relative = "..\\Tools\\edit.exe";
    file.WorkingDirectory = "C:\\Tools";
    file.Arguments = "--new \"a b\"";
    file.Icon = "C:\\Tools\\edit.ico";
    return file;
}

struct Sample {
    const char* Name;
    LinkFile File;
    const char* Expected;
};

LinkFile Narrow(const std::string& local, const std::string& suffix = "") {
    LinkFile file;
    file.Local = local;
    file.Suffix = suffix;
    return file;
}

TEST(ShellLink, WhatALinkHoldsIsReadInEveryFormThatItIsWritten) {
    LinkFile narrowTexts = Narrow("C:\\a.exe");
    narrowTexts.Arguments = "caf\xE9";
    narrowTexts.Relative = ".\\a.exe";
    LinkFile server;
    server.Share = "\\\\server\\share";
    server.Suffix = "docs\\a.txt";
    LinkFile wide;
    wide.Local = "C:\\?.exe";
    wide.LocalWide = u"C:\\Ωmega\\";
    wide.SuffixWide = u"λ.exe";
    wide.Suffix = "?";
    LinkFile noLocation;
    noLocation.Relative = "..\\b.exe";
    LinkFile ignored = Narrow("C:\\a.exe");
    ignored.Flags = 0x100;
    LinkFile withIds = Narrow("C:\\a.exe");
    withIds.ItemIds = std::string(300, 'x');
    const Sample samples[] = {
        {"a local path", Narrow("C:\\Tools\\edit.exe"), "C:\\Tools\\edit.exe|||||"},
        {"a path in two pieces", Narrow("C:\\Tools\\", "edit.exe"), "C:\\Tools\\edit.exe|||||"},
        {"letters above ASCII", Narrow("C:\\M\xFCll\\\x80.txt"), "C:\\Müll\\€.txt|||||"},
        {"texts in narrow letters", narrowTexts, "C:\\a.exe||.\\a.exe||café|"},
        {"a share", server, "|\\\\server\\share\\docs\\a.txt||||"},
        {"the wide form goes first", wide, "C:\\Ωmega\\λ.exe|||||"},
        {"no location", noLocation, "||..\\b.exe|||"},
        {"a location that is to be ignored", ignored, "|||||"},
        {"a list of item ids", withIds, "C:\\a.exe|||||"},
        {"everything", Everything(),
         "C:\\Tools\\Ärger.exe|\\\\server\\Öffentlich|..\\Tools\\edit.exe|C:\\Tools|--new \"a b\"|An editor"},
    };
    for (const Sample& sample : samples) EXPECT_EQ(Read(sample.File), sample.Expected) << sample.Name;
}

TEST(ShellLink, WhatFollowsTheTextsIsNotNeeded) {
    EXPECT_EQ(Words(ReadShellLink(Narrow("C:\\a").Text() + Bytes(0xA0000001, 4))), "C:\\a|||||");
}

TEST(ShellLink, ATextStopsWhereAZeroStandsInIt) {
    LinkFile file = Narrow("C:\\a");
    file.Arguments = std::string("one\0two", 7);
    EXPECT_EQ(Read(file), "C:\\a||||one|");
}

TEST(ShellLink, HalvesOfLettersBecomeALetterThatStandsForThem) {
    LinkFile file = Narrow("C:\\a");
    file.Wide = true;
    file.ArgumentsWide = {u'x', char16_t(0xD83D), u'y'};
    EXPECT_EQ(Read(file), "C:\\a||||x\uFFFDy|");
    file.ArgumentsWide = {char16_t(0xD83D), char16_t(0xDE00)};
    EXPECT_EQ(Read(file), "C:\\a||||\U0001F600|");
}

TEST(ShellLink, OneThatIsCutAtAnyByteIsDamaged) {
    const std::string whole = Everything().Text();
    ASSERT_NE(Words(ReadShellLink(whole)), "damaged");
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ(Words(ReadShellLink(std::string_view(whole).substr(0, length))), "damaged") << length;
}

TEST(ShellLink, WhatIsNoLinkIsNone) {
    std::string otherClass = Narrow("C:\\a").Text(), otherSize = otherClass;
    otherClass[5] = 'x';
    otherSize[0] = 75;
    for (const std::string& bytes :
         {std::string(), std::string("[InternetShortcut]\nURL=x"), std::string(4096, '\0'),
          std::string(4096, '\xFF'), otherClass, otherSize})
        EXPECT_EQ(Words(ReadShellLink(bytes)), "damaged") << bytes.substr(0, 20);
}

TEST(ShellLink, ANumberThatPointsBeyondTheEndIsDamage) {
    const std::string whole = Everything().Text();
    const std::size_t location = 76 + 2 + Everything().ItemIds.size();
    constexpr std::size_t itsLength = 0, share = 20, localWide = 28, suffixWide = 32;
    for (const std::size_t at : {itsLength, share, localWide, suffixWide})
        for (const std::uint32_t beyond : {0xFFFFFFF0U, 4000U}) {
            std::string bytes = whole;
            bytes.replace(location + at, 4, Bytes(beyond, 4));
            EXPECT_EQ(Words(ReadShellLink(bytes)), "damaged") << at << " " << beyond;
        }
}

TEST(ShellLink, ATextThatDoesNotEndInItsBlockIsDamage) {
    std::string narrow = Narrow("C:\\a").Text();
    narrow.back() = 'x';
    EXPECT_EQ(Words(ReadShellLink(narrow)), "damaged");
    EXPECT_EQ(Words(ReadShellLink(narrow + std::string(9, '\0'))), "damaged") << "also if it ends behind it";
    LinkFile wide = Narrow("C:\\a");
    wide.LocalWide = u"C:\\a";
    std::string bytes = wide.Text();
    bytes.back() = 'x';
    EXPECT_EQ(Words(ReadShellLink(bytes)), "damaged");
}

TEST(ShellLink, AnyByteChangedNeverReadsBeyondTheFile) {
    const std::string whole = Everything().Text();
    for (std::size_t at = 0; at < whole.size(); ++at)
        for (const char value : {'\0', '\x7F', '\xFF'}) {
            std::string bytes = whole;
            bytes[at] = value;
            bytes.shrink_to_fit();
            const std::string words = Words(ReadShellLink(bytes));
            EXPECT_LT(words.size(), 2 * whole.size() + 100) << at;
        }
}

} // namespace
} // namespace quill
