#include "keyboard/run_text.h"

#include "keyboard/launcher_fixture.h"
#include "shortcuts/launch.h"

namespace quill {
namespace {

struct Running : test::LauncherFixture {
    void SetUp() override {
        LauncherFixture::SetUp();
        Main().Settings.WebSearch = "https://find.example/?q=%s";
        Link("Notepad");
    }
    fake::FakeShell& Shell() { return desk.Computer.Shell; }
    void Forget() {
        Shell().Launches.clear();
        static_cast<void>(desk.Files().Remove(desk.Settings("KB_History.txt")));
    }
};

struct RunRow {
    const char* Text;
    bool SearchOnSpace;
    const char* Starts;
    const char* Remembers;
};

const RunRow rows[] = {
    {"note", false, "start /apps/Notepad", "Notepad"},
    {"NOTEPAD", true, "start /apps/Notepad", "Notepad"},
    {"epa", false, "start /apps/Notepad", "Notepad"},
    {"notepad /a.txt", false, "start /apps/Notepad /a.txt", "Notepad"},
    {"notepad /a.txt", true, "open /notepad /a.txt", "notepad /a.txt"},
    {"notepad   \"a b\" -x ", false, "start /apps/Notepad \"a b\" -x", "Notepad"},
    {"notepad a.txt", false, "start /apps/Notepad a.txt", "Notepad"},
    {"notepad ", false, "start /apps/Notepad", "Notepad"},
    {"notepad.txt", false, "start http://notepad.txt", "notepad.txt"},
    {"my notepad x", false, "", ""},
    {"/usr/lib", false, "open /usr/lib", "/usr/lib"},
    {"/usr/my lib", true, "open /usr/my lib", "/usr/my lib"},
    {"~/Music", false, "open /home/user/Music", "~/Music"},
    {".config", false, "open /home/user/.config", ".config"},
    {"usr/lib", false, "open /usr/lib", "usr/lib"},
    {"example.com", false, "start http://example.com", "example.com"},
    {"example.com/a/b?c=%s", false, "start http://example.com/a/b?c=%s", "example.com/a/b?c=%s"},
    {"HTTPS://example.com", false, "start HTTPS://example.com", "HTTPS://example.com"},
    {"ftp://host", false, "start ftp://host", "ftp://host"},
    {"a.example/?u=http://b", false, "start http://a.example/?u=http://b", "a.example/?u=http://b"},
    {"mailto:me@a.example", false, "start mailto:me@a.example", "mailto:me@a.example"},
    {"-x.y", false, "start http://-x.y", "-x.y"},
    {"s open mind", false, "start https://find.example/?q=open%20mind", "s open mind"},
    {"S  /usr", false, "start https://find.example/?q=%2Fusr", "S  /usr"},
    {"open \"mind\"", true, "start https://find.example/?q=open%20%22mind%22", "open \"mind\""},
    {"s open mind", true, "start https://find.example/?q=open%20mind", "s open mind"},
    {"nothing", false, "", ""},
    {"two words", false, "", ""},
    {"t", false, "start /apps/Tagged", "Tagged"},
    {"t ", false, "", ""},
    {"t home", false, "start /apps/Tagged", "t home"},
    {"T home", true, "start /apps/Tagged", "T home"},
    {"   ", false, "", ""},
};

TEST_F(Running, EnterDoesWhatTheTextMeans) {
    Main().Link(Link("Tagged")).Tags = "Home";
    for (const auto& row : rows) {
        Main().Settings.SearchOnSpace = row.SearchOnSpace;
        Forget();
        Run(row.Text);
        EXPECT_EQ(Started(), row.Starts) << row.Text;
        EXPECT_EQ(History(), row.Remembers) << row.Text;
        EXPECT_EQ(IsOpen(), *row.Starts == '\0') << row.Text << ": what did nothing keeps the box";
        for (const auto& request : Shell().Launches) EXPECT_FALSE(request.Command) << row.Text;
    }
}

TEST_F(Running, TheSelectionOfThePreviewStays) {
    Run("note");
    EXPECT_EQ(Selected(), "Notepad");
    EXPECT_EQ(Main().Links.CurrentShortcut, 0);
}

TEST_F(Running, AnEqualNameStartsAndALongerOneDoesNot) {
    Link("example.com"), Link("example.community");
    Run("example.com");
    Run("example.comm");
    EXPECT_EQ(Started(), "start /apps/example.com; start http://example.comm");
}

TEST_F(Running, AnEqualNameWinsThenABeginningThenAPart) {
    Link("My Pad"), Link("Padding"), Link("Pad");
    Run("pad"), Run("padd"), Run("y pad");
    EXPECT_EQ(Started(), "start /apps/Pad; start /apps/Padding") << "behind one letter and a blank no parts";
    Run("my p");
    EXPECT_EQ(Shell().LastLaunch(), "start /apps/My Pad");
}

TEST_F(Running, TheLongestNameTakesTheParameters) {
    Link("Notepad Plus");
    Run("notepad plus a b");
    EXPECT_EQ(Started(), "start /apps/Notepad Plus a b");
}

TEST_F(Running, ANameThatHoldsTheWholeTextComesBeforeAShorterOneWithParameters) {
    Link("git"), Link("Launch git gui tool");
    Run("git gui"), Run("git push");
    EXPECT_EQ(Started(), "start /apps/Launch git gui tool; start /apps/git push");
}

TEST_F(Running, WhatBeginsWithASlashIsAPathAndNoNameWithParameters) {
    Link("/usr"), Link("~"), Link(".net tool");
    Run("/usr x"), Run("~ x"), Run(".net tool x");
    EXPECT_EQ(Started(), "open /usr x; open /home/user/~ x; start /apps/.net tool x");
}

TEST_F(Running, ParametersKeepTheirLettersBehindANameInAnyAlphabet) {
    Link("İstanbul ÄÖ"); // a letter whose lower case has other bytes
    Run("İSTANBUL äö Größe Ω");
    EXPECT_EQ(Started(), "start /apps/İstanbul ÄÖ Größe Ω");
}

TEST_F(Running, ASecondHitOfEnterDoesNothingMore) {
    Type("note");
    Enter();
    RunTypedText(Main());
    EXPECT_EQ(Started(), "start /apps/Notepad");
}

TEST_F(Running, ACommandStaysOneAndGetsNothingThatWasTyped) {
    Main().Link(0).Command = true;
    Main().Link(0).Parameters = "df -h";
    for (const char* text : {"notepad rm x", "notepad; rm x", "Notepad !"}) {
        Run(text);
        EXPECT_EQ(Started(), "") << text;
        desk.PressKey(KeyReturn, true);
        EXPECT_EQ(Started(), "") << text << ": nor as administrator";
    }
    Type("note");
    Press(KeyTab);
    desk.Type("rm x");
    Enter();
    EXPECT_EQ(Started(), "") << "nor behind what Tab has completed";
    Type("note");
    Press(KeyTab);
    Enter();
    EXPECT_EQ(Started(), "command df -h");
}

// ---- what is shown is what starts

TEST_F(Running, AShortcutThatDiesWhileItIsTypedIsNotStartedNorTheNextInItsPlace) {
    const int other = Link("Notepad two");
    Type("notep");
    DeleteShortcut(Main(), 0);
    Enter();
    EXPECT_EQ(Started(), "") << "the box showed another one";
    EXPECT_EQ(Box().lblJumpToLink, "Notepad two");
    EXPECT_EQ(Keys().PreviewedShortcut, other);
    Enter();
    EXPECT_EQ(Started(), "start /apps/Notepad two");
}

TEST_F(Running, AShortcutThatIsRenamedWhileItIsTypedIsShownAgainFirst) {
    Type("note");
    Rename(0, "Notebook");
    Enter();
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Box().lblJumpToLink, "Notebook");
    Enter();
    EXPECT_EQ(Started(), "start /apps/Notepad");
}

TEST_F(Running, ABetterMatchThatComesWhileTypingIsShownAgainFirst) {
    Type("note");
    Link("note");
    Enter();
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Box().lblJumpToLink, "note");
}

TEST_F(Running, NothingStartsFromABoxThatIsClosedOrNotActive) {
    Type("note");
    Keys().LauncherActive = false;
    RunTypedText(Main());
    EXPECT_EQ(Started(), "");
    Keys().LauncherActive = true;
    Main().IsExiting = true;
    RunTypedText(Main());
    EXPECT_EQ(Started(), "");
    Main().IsExiting = false;
}

// ---- administrator

TEST_F(Running, CtrlEnterStartsTheShownShortcutAsAdministrator) {
    Type("note");
    desk.PressKey(KeyReturn, true);
    EXPECT_EQ(Started(), "runas /apps/Notepad");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(History(), "Notepad");
    Type("notepad x");
    desk.PressKey(KeyReturn, true);
    EXPECT_EQ(Shell().LastLaunch(), "runas /apps/Notepad x");
}

TEST_F(Running, CtrlEnterNeedsAShortcut) {
    Main().Links.CurrentShortcut = 0;
    for (const char* text : {"", "nothing", "/usr", "example.com", "s x"}) {
        Type(text);
        desk.PressKey(KeyReturn, true);
        EXPECT_TRUE(IsOpen()) << text;
    }
    EXPECT_EQ(Started(), "");
}

// ---- refusals

TEST_F(Running, APathThatTheShellRefusesIsToldAndTheTextStays) {
    Shell().FailNext({Reason::NotFound, "No such file or directory"});
    desk.Person().Answer(AnswerOk);
    Run("/usr/nowhere %1");
    EXPECT_EQ(Boxes(), "Error opening /usr/nowhere %1 (48, Quillmere)");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(desk.Typed(), "/usr/nowhere %1");
    EXPECT_TRUE(Keys().LauncherActive);
    Enter();
    EXPECT_FALSE(IsOpen()) << "the second attempt is a whole one";
}

TEST_F(Running, ARefusedAddressOrSearchIsToldToo) {
    Shell().FailNext({Reason::Other, "no browser"});
    Shell().FailNext({Reason::Other, "no browser"});
    desk.Person().Answer(AnswerOk);
    desk.Person().Answer(AnswerOk);
    Run("example.com");
    EXPECT_EQ(desk.Typed(), "example.com");
    Run("s x");
    EXPECT_EQ(desk.Typed(), "s x");
    EXPECT_EQ(Boxes(), "Error opening example.com (48, Quillmere)Error opening s x (48, Quillmere)");
}

TEST_F(Running, AWorkspaceThatMadeRoomForARefusedPathComesBackWithTheText) {
    desk.MoveWindow({0, 3000, 15000, 9000});
    Shell().FailNext({Reason::NotFound, "x"});
    desk.Person().Answer(AnswerOk);
    Run("/usr/nowhere");
    desk.Wait(900);
    ASSERT_EQ(Main().Dock.DockPosition, 0);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(desk.Typed(), "/usr/nowhere");
}

TEST_F(Running, WhatStartsMakesRoomFirst) {
    desk.MoveWindow({0, 3000, 15000, 9000});
    bool docked = false;
    Shell().OnLaunch = [&](const LaunchRequest&) { docked = Main().Dock.DockPosition != 0; };
    Run("s x");
    EXPECT_TRUE(docked);
}

TEST_F(Running, TheEndOfTheProgramBehindARefusalOpensNothing) {
    Shell().FailNext({Reason::Other, "x"});
    desk.Person().Answer(AnswerOk);
    desk.Person().OnBox = [this](const fake::Box&) { Main().IsExiting = true; };
    Run("/usr/nowhere");
    EXPECT_FALSE(IsOpen());
    Main().IsExiting = false;
}

TEST_F(Running, APathOnADeadServerIsAskedForAndHoldsNothingUp) {
    Shell().NetworkPaths.push_back("/net/");
    Shell().SilentPaths.push_back("/net/");
    desk.Person().Answer(AnswerOk);
    Run("/net/nas");
    EXPECT_EQ(Started(), "");
    EXPECT_FALSE(IsOpen());
    desk.Wait(5000);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Boxes(), "Error opening /net/nas (48, Quillmere)");
    EXPECT_EQ(desk.Typed(), "/net/nas");
    EXPECT_TRUE(IsOpen());
}

TEST_F(Running, ALateAnswerNeverOverwritesWhatIsTypedMeanwhile) {
    Shell().NetworkPaths.push_back("/net/");
    Shell().SilentPaths.push_back("/net/");
    desk.Person().Answer(AnswerOk);
    Run("/net/nas");
    Type("note");
    desk.Wait(5000);
    EXPECT_EQ(desk.Typed(), "note");
    EXPECT_EQ(Selected(), "Notepad");
}

TEST_F(Running, APathOnAServerThatAnswersIsOpened) {
    Shell().NetworkPaths.push_back("/net/");
    desk.Files().PutFolder("/net/nas");
    Run("/net/nas");
    desk.Wait(10);
    EXPECT_EQ(Started(), "open /net/nas");
}

// ---- commands

TEST_F(Running, ANoteIsMadeWithItsTextAndTheKeyboardInIt) {
    Run("n buy milk");
    ASSERT_EQ(desk.Containers(), std::vector<std::string>{"Note"});
    const int note = desk.ContainerNamed("Note");
    EXPECT_EQ(Main().ConView(note).ContainerNote.Text, "buy milk");
    EXPECT_GT(Main().ConView(note).ContainerNote.FocusWish, 0U);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(History(), "n buy milk");
    desk.RestartAfterKill();
    EXPECT_EQ(desk.Containers(), std::vector<std::string>{"Note"}) << "it is saved";
}

TEST_F(Running, ANoteWithoutTextIsAnEmptyOne) {
    Run("n ");
    EXPECT_EQ(desk.Containers(), std::vector<std::string>{"Note"});
}

TEST_F(Running, ANoteBeyondTheLimitIsRefusedAndTheTextStays) {
    Main().Settings.MaxContainers = 1;
    Run("n one");
    desk.Person().Answer(AnswerOk);
    Run("n two");
    EXPECT_EQ(desk.Containers().size(), 1U);
    EXPECT_EQ(desk.Typed(), "n two");
    EXPECT_TRUE(IsOpen());
}

TEST_F(Running, ABlankBehindTheEqualsSignIsIgnored) {
    desk.Person().CancelInput();
    Run("= 2+2");
    ASSERT_EQ(desk.Person().Inputs.size(), 1U);
    EXPECT_EQ(desk.Person().Inputs[0].Text, "4");
    EXPECT_EQ(desk.Person().Inputs[0].Title, "Calculator");
    EXPECT_EQ(History(), "= 2+2");
}

TEST_F(Running, TheCalculatorComesBeforePathsAndNames) {
    Link("=1/2");
    desk.Person().CancelInput();
    Run("=1/2");
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(desk.Person().Inputs.size(), 1U);
}

// ---- history

TEST_F(Running, TheSameTextTwiceIsOneLineTheNewest) {
    Run("/usr/lib"), Run("example.com"), Run("/USR/LIB");
    EXPECT_EQ(History(), "/USR/LIB, example.com");
}

TEST_F(Running, ATextThatIsNotAsciiRunsButIsNotRemembered) {
    Link("Größe");
    Run("größe"), Run("ärger.example");
    EXPECT_EQ(Started(), "start /apps/Größe; start http://ärger.example");
    EXPECT_EQ(History(), "");
}

// ---- hostile texts start the right thing or nothing

struct HostileRow {
    std::string Text, Starts;
};

TEST_F(Running, HostileTextsStartTheRightThingOrNothing) {
    const std::string longName(4096, 'x');
    const HostileRow hostile[] = {
        {"$(reboot)", ""},
        {"; rm -rf /home", "open /; rm -rf /home"},
        {"/usr/$(x)/`y`", "open /usr/$(x)/`y`"},
        {"/-rf", "open /-rf"},
        {"--help", ""},
        {"%s%s%n", ""},
        {"/%s", "open /%s"},
        {"notepad $(x) `y` | z", "start /apps/Notepad $(x) `y` | z"},
        {"\u202E", ""},
        {"/\xFF\xC3", "open /\xFF\xC3"},
        {"/" + longName, "open /" + longName},
        {longName, ""},
        {"s %s", "start https://find.example/?q=%25s"},
        {"://", ""},
        {"javascript:alert(1)", ""},
    };
    for (const auto& row : hostile) {
        Forget();
        Open();
        SetSearchText(Main(), row.Text, 0);
        Enter();
        EXPECT_EQ(Started(), row.Starts) << row.Text;
    }
}

} // namespace
} // namespace quill
