#include "core/start.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

std::string Asked(const std::vector<std::string>& arguments) {
    const auto options = ReadCommandLine(arguments);
    std::string text;
    const auto add = [&](bool flag, const char* name) {
        text += flag ? std::string(text.empty() ? "" : " ") + name : "";
    };
    add(options.Backup, "backup");
    add(options.Silent, "silent");
    add(options.HelpBox, "helpbox");
    add(options.Help, "help");
    add(options.Version, "version");
    add(options.NoSplash, "nosplash");
    add(options.LoadRss, "loadrss");
    add(options.Toggle, "toggle");
    if (!options.Unknown.empty()) text += " unknown:" + options.Unknown;
    return text;
}

struct Line {
    const char* Behaviour;
    std::vector<std::string> Arguments;
    const char* Asked;
};

const Line lines[] = {
    {"CapitalsMakeABackupToo", {"/BACKUP"}, "backup"},
    {"ALeadingBlankDoesNotMatter", {"  /backup"}, "backup"},
    {"ABackupIsOnlyHonouredAtTheStart", {"/nosplash", "/backup"}, "nosplash"},
    {"SilentIsFoundAnywhere", {"/backup", "x", "/silent"}, "backup silent"},
    {"FeedsAreNotRefreshedBehindAnotherSwitch", {"/nosplash", "/loadrss"}, "nosplash"},
    {"FeedsAreRefreshedWhenTheLineBeginsWithIt", {"/loadrss", "/nosplash"}, "nosplash loadrss"},
    {"TheQuestionMarkIsTheWholeLine", {"/?"}, "helpbox"},
    {"TheQuestionMarkBehindSomethingIsNoHelp", {"/nosplash", "/?"}, "nosplash"},
    {"TheUsualSpellingsStandInAnyOrder", {"--nosplash", "--silent", "--backup"}, "backup silent nosplash"},
    {"TheUsualSpellingsIgnoreCase", {"--HELP"}, "help"},
    {"ToggleIsOfTheUsualSpellingsAlone", {"--toggle"}, "toggle"},
    {"ATypingErrorIsNotAWorkspace", {"--bakcup"}, " unknown:--bakcup"},
    {"OptionsOfTheToolkitPass", {"-platform", "offscreen"}, ""},
    {"NothingAsksNothing", {}, ""},
};

TEST(CommandLine, EverySwitchIsUnderstoodByItsOwnRule) {
    for (const auto& line : lines) EXPECT_EQ(Asked(line.Arguments), line.Asked) << line.Behaviour;
}

TEST(CommandLine, FeedNamesStayOutOfTheSplashWhereverLoadrssStands) {
    EXPECT_TRUE(ReadCommandLine({"/nosplash", "/loadrss"}).QuietFeedNames);
    EXPECT_FALSE(ReadCommandLine({"/nosplash"}).QuietFeedNames);
}

TEST(CommandLine, TheHelpBoxSaysItToTheLetter) {
    EXPECT_EQ(CommandLineHelp(), "Command-line Options:\n\n/nosplash\t- Suppress splash screen\n"
                                 "/loadrss\t\t- Load RSS newsfeeds on startup\n"
                                 "/backup\t\t- Backup Quillmere settings into a zip file\n"
                                 "/silent\t\t- Hide 'Backup Complete' notification");
}

} // namespace
} // namespace quill
