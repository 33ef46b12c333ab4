// What waits while a shortcut starts: a server that does not answer, and questions. The world changes
// meanwhile.
#include "shortcuts/at_work.h"
#include "shortcuts/properties.h"

namespace quill {
namespace {

struct DeadServer : AtWork {
    DeadServer() {
        Computer.Shell.NetworkPaths.push_back("/mnt/server");
        Computer.Shell.SilentPaths.push_back("/mnt/server");
        Index = File(Path);
    }
    const std::string Path = "/mnt/server/report.odt";
    int Index = -1;
};

TEST_F(DeadServer, IsAskedOffTheThreadAndNothingStartsBefore) {
    Start(Index);
    EXPECT_EQ(Computer.Shell.Waiting(), 1U);
    EXPECT_EQ(Started(), "");
    Computer.Shell.Answer(Path, true);
    EXPECT_EQ(Started(), "start /mnt/server/report.odt\n");
    EXPECT_EQ(Recent(), "report.odt");
}

TEST_F(DeadServer, ThatNeverAnswersIsToldAsAMissingFileAndStartsNothing) {
    Start(Index);
    std::string told;
    Computer.Dialogs.OnEditLink = [&](frmEditLink& dialog) { return told = dialog.Caption(), false; };
    EXPECT_TRUE(Computer.Windows.Busy) << "while it is waited for";
    Computer.Clock.Advance(60'000);
    EXPECT_FALSE(Computer.Windows.Busy);
    EXPECT_EQ(told, "Error: No such file or directory");
    EXPECT_EQ(Started(), "") << "the shell would freeze on it";
    EXPECT_EQ(Recent(), "report.odt") << "a failed start is recent like a good one";
}

TEST_F(DeadServer, IsAskedOnlyAboutPathsOnTheNetwork) {
    Start(File("/home/user/a.txt"));
    Start(Url("https://a.example/"));
    EXPECT_TRUE(Computer.Shell.Asked.empty());
}

TEST_F(DeadServer, ShortcutThatDiesMeanwhileIsNotStarted) {
    Start(Index);
    DeleteShortcut(Main, Index);
    Computer.Shell.Answer(Path, true);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Recent(), "");
}

TEST_F(DeadServer, ShortcutThatDiesMeanwhileIsNotComplainedAbout) {
    Start(Index);
    DeleteShortcut(Main, Index);
    Computer.Clock.Advance(60'000);
    EXPECT_EQ(Computer.Dialogs.Unexpected, 0);
    EXPECT_FALSE(Computer.Windows.Busy);
}

TEST_F(DeadServer, NothingStartsWhenTheProgramExitsMeanwhile) {
    Start(Index);
    Main.IsExiting = true;
    Computer.Shell.Answer(Path, true);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Computer.Dialogs.Unexpected, 0);
}

TEST_F(DeadServer, TheSameShortcutStartedAgainMeanwhileKeepsEachStartsOwnParameters) {
    StartShortcut(Main, Index, false, "--first", false, false);
    StartShortcut(Main, Index, false, "--second", false, false);
    Main.Links.CurrentShortcut = File("/elsewhere");
    Computer.Shell.Answer(Path, true);
    EXPECT_EQ(Started(), "start /mnt/server/report.odt --first\nstart /mnt/server/report.odt --second\n");
    EXPECT_EQ(Recent(), "report.odt") << "one entry";
}

TEST_F(DeadServer, RecordsWhatWasStartedAndNotWhatIsCurrentByThen) {
    Start(Index);
    Start(File("/home/user/a.txt"));
    Computer.Shell.Answer(Path, true);
    EXPECT_EQ(Recent(), "report.odt, a.txt");
}

TEST_F(DeadServer, ParametersAreAskedForAfterItAnswered) {
    Main.Link(Index).PromptParameters = true;
    Start(Index);
    EXPECT_TRUE(Person().Inputs.empty());
    Person().Type("--late");
    Computer.Shell.Answer(Path, true);
    EXPECT_EQ(Started(), "start /mnt/server/report.odt --late\n");
}

// ----------------------------------------------------------------------------------------------- questions

struct OpenQuestion : AtWork {
    OpenQuestion() { Index = File("/usr/bin/editor"); }
    int Index = -1;
};

TEST_F(OpenQuestion, ConfirmedShortcutThatWasDeletedMeanwhileIsNotStarted) {
    Main.Link(Index).Confirm = true;
    Person().OnBox = [&](const fake::Box&) { DeleteShortcut(Main, Index); };
    Person().Answer(AnswerYes);
    Start(Index);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Recent(), "");
}

TEST_F(OpenQuestion, ConfirmedStartWhileTheProgramExitsStartsNothing) {
    Main.Link(Index).Confirm = true;
    Person().OnBox = [&](const fake::Box&) { Main.IsExiting = true; };
    Person().Answer(AnswerYes);
    Start(Index);
    EXPECT_EQ(Started(), "");
}

TEST_F(OpenQuestion, ConfirmedShortcutStartedAgainMeanwhileStartsOncePerYes) {
    Main.Link(Index).Confirm = true;
    bool again = true;
    Person().OnBox = [&](const fake::Box&) {
        if (std::exchange(again, false)) Start(Index);
    };
    Person().Answer(AnswerNo); // the inner one
    Person().Answer(AnswerYes);
    Start(Index);
    EXPECT_EQ(Started(), "start /usr/bin/editor\n");
}

TEST_F(OpenQuestion, ParametersOfADeletedShortcutGoNowhere) {
    Main.Link(Index).PromptParameters = true;
    Main.Settings.RememberParams = true;
    Person().OnInput = [&](InputQuestion&) { DeleteShortcut(Main, Index); };
    Person().Type("--typed");
    Start(Index);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Main.Link(Index).Parameters, "") << "the dead row stays empty";
}

TEST_F(OpenQuestion, APromptThatTheEndOfTheProgramCancelsStartsNothing) {
    Main.Link(Index).PromptParameters = true;
    Person().OnInput = [&](InputQuestion&) { Person().Ending = true; };
    Start(Index);
    EXPECT_EQ(Started(), "");
}

TEST_F(OpenQuestion, AShortcutDeletedWhileItsErrorIsToldIsNotRecent) {
    Computer.Shell.FailNext({Reason::Other, "Broken"});
    Computer.Dialogs.OnEditLink = [&](frmEditLink&) { return DeleteShortcut(Main, Index), false; };
    Start(Index);
    EXPECT_EQ(Recent(), "");
}

TEST_F(OpenQuestion, AContainerDeletedWhileStartAllAsksStartsNothing) {
    const int box = Container("Work");
    File("/a", InContainer(box));
    Person().OnBox = [&](const fake::Box&) { DeleteContainer(Main, box, false); };
    Person().Answer(AnswerYes);
    StartAllInContainer(Main, box);
    EXPECT_EQ(Started(), "");
}

TEST_F(OpenQuestion, AStartAllEndsWhereTheProgramExits) {
    const int box = Container("Work");
    Main.Settings.ConfirmStartAllShortcuts = false;
    File("/a", InContainer(box));
    File("/b", InContainer(box));
    Computer.Shell.OnLaunch = [&](const LaunchRequest&) { Main.IsExiting = true; };
    StartAllInContainer(Main, box);
    EXPECT_EQ(Started(), "start /a\n");
}

} // namespace
} // namespace quill
