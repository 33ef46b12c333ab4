#include "dock/docking.h"
#include "shortcuts/at_work.h"
#include "shortcuts/properties.h"

namespace quill {
namespace {

using Launching = AtWork;

TEST_F(Launching, AFileStartsWithItsParametersInItsFolder) {
    const int index = File("/usr/bin/editor");
    clsShortcut& record = Main.Link(index);
    record.Parameters = "--new \"a b\"";
    record.StartIn = "@/home/user";
    record.RunIn = 3;
    Start(index);
    EXPECT_EQ(Started(), "start /usr/bin/editor --new \"a b\" in /home/user show 3\n");
    EXPECT_EQ(Main.Links.CurrentShortcut, index);
}

TEST_F(Launching, AnAddressStaysAnAddress) {
    Start(Url("https://a.example/x%20y"));
    Start(Url("file:///home/user/page%20one.html"));
    EXPECT_EQ(Started(), "start https://a.example/x%20y\nstart file:///home/user/page%20one.html\n");
}

TEST_F(Launching, TheMarkerAtTheBeginningIsExpandedAndNoOther) {
    Start(File("@/tools/x"));
    Start(File("/home/me@home/x"));
    EXPECT_EQ(Started(), "start /tools/x\nstart /home/me@home/x\n");
}

TEST_F(Launching, ACommandGoesToTheShellAndItsPathIsNeverTested) {
    Computer.Shell.NetworkPaths.push_back("/unused");
    const int index = Command("df -h && sleep 1");
    Start(index);
    EXPECT_EQ(Started(), "command df -h && sleep 1\n");
    EXPECT_EQ(Computer.Shell.Launches.back().Verb, "open");
    EXPECT_TRUE(Computer.Shell.Launches.back().File.empty());
    EXPECT_TRUE(Computer.Shell.Asked.empty());
}

TEST_F(Launching, ElevationIsAskedForByTheRecordOrByTheMenu) {
    const int index = File("/usr/bin/editor");
    StartShortcut(Main, index, false, "", true, false);
    Main.Link(index).Admin = true;
    Start(index);
    EXPECT_EQ(Started(), "runas /usr/bin/editor\nrunas /usr/bin/editor\n");
}

TEST_F(Launching, AnElevatedCommandIsBoth) {
    const int index = Command("apt update");
    Main.Link(index).Admin = true;
    Start(index);
    EXPECT_EQ(Computer.Shell.Launches.back().Verb, "runas");
    EXPECT_TRUE(Computer.Shell.Launches.back().Command);
    EXPECT_EQ(Computer.Shell.Launches.back().Parameters, "apt update");
}

TEST_F(Launching, OverriddenParametersAreOneBlankAndNotTheStoredOnes) {
    const int index = File("/usr/bin/editor");
    Main.Link(index).Parameters = "--stored";
    StartShortcut(Main, index, false, " ", false, false);
    EXPECT_EQ(Computer.Shell.Launches.back().Parameters, " ");
    EXPECT_EQ(Main.Link(index).Parameters, "--stored");
}

TEST_F(Launching, AConfirmationNamesTheShortcutAndNoStartsNothing) {
    const int index = File("/usr/bin/editor");
    Main.Link(index).Confirm = true;
    Main.Link(index).FullCaption = "The %1 Editor";
    Person().Answer(AnswerNo);
    Start(index);
    EXPECT_EQ(Person().LastBox(), "Start The %1 Editor?");
    EXPECT_EQ(Person().Boxes.back().Title, "Launch Confirmation");
    EXPECT_EQ(Person().Boxes.back().Flags, 52);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Recent(), "") << "nothing is recorded";
    Person().Answer(AnswerYes);
    Start(index);
    EXPECT_EQ(Started(), "start /usr/bin/editor\n");
}

TEST_F(Launching, AShortcutThatWasDraggedDoesNotStart) {
    const int index = File("/usr/bin/editor");
    Main.Links.DragIndex = -1;
    Main.Link(index).Confirm = true;
    Start(index);
    EXPECT_EQ(Started(), "");
    EXPECT_TRUE(Person().Boxes.empty());
}

TEST_F(Launching, TheWorkspaceGivesWayToWhatStarts) {
    const auto gaveWay = [&] {
        const auto& log = Computer.Windows.Log;
        const bool moved = !log.empty();
        Computer.Windows.Log.clear();
        return moved;
    };
    const int index = File("/usr/bin/editor");
    Main.Settings.OnTop = true;
    Start(index);
    EXPECT_TRUE(gaveWay()) << "out of the on-top order";
    EXPECT_FALSE(Computer.Windows.Of(MainWindow).OnTop);
    StartShortcut(Main, index, false, "", false, true);
    EXPECT_FALSE(gaveWay()) << "started in the background";
    Main.Dock.Suspended = true;
    Start(index);
    EXPECT_FALSE(gaveWay()) << "suspended: it stays where it is";
    Main.Dock.Suspended = false;
    Main.Settings.OnTop = false;
    Start(index);
    EXPECT_FALSE(gaveWay()) << "it is not on top";
}

TEST_F(Launching, ADeadOrUnknownShortcutStartsNothing) {
    const int index = File("/usr/bin/editor");
    DeleteShortcut(Main, index);
    Start(index);
    Start(99);
    Start(-1);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Main.Links.CurrentShortcut, -1);
}

// -------------------------------------------------------------------------------------------- the pointer

TEST_F(Launching, ThePointerIsThatOfWhoWaitsWhileSomethingStartsAndNotAfterwards) {
    const int index = File("/usr/bin/editor");
    bool during = false;
    Computer.Shell.OnLaunch = [&](const LaunchRequest&) { during = Computer.Windows.Busy; };
    Start(index);
    EXPECT_TRUE(during);
    EXPECT_FALSE(Computer.Windows.Busy);
}

TEST_F(Launching, ThePointerStaysAsItIsWhenNothingStarts) {
    const int index = File("/usr/bin/editor");
    Main.Link(index).Confirm = true;
    Person().Answer(AnswerNo);
    Start(index);
    EXPECT_FALSE(Computer.Windows.WasBusy);
}

TEST_F(Launching, AReleaseAfterADragGivesThePointerBack) {
    Computer.Windows.Busy = true;
    Main.Links.DragIndex = -1;
    Start(File("/usr/bin/editor"));
    EXPECT_FALSE(Computer.Windows.Busy);
}

// ------------------------------------------------------------------------------------------------ failures

struct FailedStart : AtWork {
    FailedStart() {
        Computer.Dialogs.OnEditLink = [this](frmEditLink& dialog) {
            Told.push_back(dialog.Caption());
            BusyThen = Computer.Windows.Busy;
            if (Scene) Scene(dialog);
            return false;
        };
        Index = File("/usr/bin/editor");
    }
    std::vector<std::string> Told; // captions of the properties
    bool BusyThen = false;
    std::function<void(frmEditLink&)> Scene;
    int Index = -1;
};

TEST_F(FailedStart, TellsTheSystemsTextInThePropertiesAndIsStillRecent) {
    Computer.Shell.FailNext({Reason::Denied, "Permission denied"});
    Scene = [&](frmEditLink& dialog) { EXPECT_EQ(dialog.txtPath, "/usr/bin/editor") << "to be mended"; };
    Start(Index);
    EXPECT_EQ(Told, std::vector<std::string>{"Error: Permission denied"});
    EXPECT_FALSE(BusyThen) << "the pointer is given back first";
    EXPECT_EQ(Recent(), "editor");
    EXPECT_TRUE(Person().Boxes.empty());
}

TEST_F(FailedStart, OfARefusedElevationIsSilentAndStillRecent) {
    Main.Link(Index).Admin = true;
    Computer.Shell.FailNext({Reason::Refused, "Request dismissed"});
    Start(Index);
    EXPECT_TRUE(Told.empty());
    EXPECT_EQ(Recent(), "editor");
}

TEST_F(FailedStart, ASecondOneWhileThePropertiesAreOpenOpensNothing) {
    const int other = File("/usr/bin/other");
    Computer.Shell.FailNext({Reason::NotFound, "No such file or directory"});
    Computer.Shell.FailNext({Reason::NotFound, "No such file or directory"});
    Scene = [&](frmEditLink&) { Start(other); };
    Start(Index);
    EXPECT_EQ(Told.size(), 1U);
    EXPECT_EQ(Recent(), "editor, other");
}

TEST_F(FailedStart, TheNextOneIsToldAgain) {
    for (int time = 0; time < 2; ++time) {
        Computer.Shell.FailNext({Reason::NotFound, "No such file or directory"});
        Start(Index);
    }
    EXPECT_EQ(Told.size(), 2U);
}

TEST_F(FailedStart, EachOfASelectionIsTold) {
    const int other = File("/usr/bin/other");
    for (const int link : {Index, other}) {
        Computer.Shell.FailNext({Reason::NotFound, "No such file or directory"});
        Start(link);
    }
    EXPECT_EQ(Told.size(), 2U);
    EXPECT_EQ(Recent(), "other, editor");
}

TEST_F(Launching, DockingIsHeldBackWhileSomethingIsAsked) {
    const int index = File("/usr/bin/editor");
    Main.Link(index).Confirm = true;
    int pauses = -1;
    Person().OnBox = [&](const fake::Box&) { pauses = Main.Dock.DialogPauses; };
    Person().Answer(AnswerYes);
    Start(index);
    EXPECT_EQ(pauses, 1);
    EXPECT_EQ(Main.Dock.DialogPauses, 0);
}

// ---------------------------------------------------------------------------------------------- parameters

struct Prompting : AtWork {
    Prompting() {
        Index = File("/usr/bin/editor");
        Main.Link(Index).PromptParameters = true;
        Main.Link(Index).Parameters = "--stored";
        Main.Settings.RememberParams = false;
    }
    void Answer(const std::string& text, bool remember) { Person().TypeAndTick(text, remember); }
    int Index = -1;
};

TEST_F(Prompting, TheAnswerIsWhatItStartsWith) {
    Answer("--typed", false);
    Start(Index);
    EXPECT_EQ(Person().Inputs.back().Text, "--stored");
    EXPECT_EQ(Started(), "start /usr/bin/editor --typed\n");
    EXPECT_EQ(Main.Link(Index).Parameters, "--stored") << "not to be remembered";
}

TEST_F(Prompting, RememberedParametersAreStoredUnlessBlank) {
    Answer("--typed", true);
    Start(Index);
    EXPECT_EQ(Main.Link(Index).Parameters, "--typed");
    EXPECT_TRUE(Main.Settings.RememberParams);
    Answer("  ", true);
    Start(Index);
    EXPECT_EQ(Main.Link(Index).Parameters, "--typed");
}

TEST_F(Prompting, TheRememberBoxShowsTheSetting) {
    Main.Settings.RememberParams = true;
    Answer("x", true);
    Start(Index);
    EXPECT_TRUE(Person().Inputs.back().Checked);
    EXPECT_EQ(Person().Inputs.back().CheckCaption, "Remember");
}

TEST_F(Prompting, IgnoreStartsWithNoneAndTheStoredOnesSurvive) {
    Main.Settings.RememberParams = true;
    Person().TypeOther("--typed");
    Start(Index);
    EXPECT_EQ(Person().Inputs.back().OtherCaption, "Ignore");
    EXPECT_EQ(Started(), "start /usr/bin/editor\n");
    EXPECT_EQ(Main.Link(Index).Parameters, "--stored");
}

TEST_F(Prompting, OverridingOpensItShowingABlank) {
    Answer("--typed", false);
    StartShortcut(Main, Index, false, " ", false, false);
    EXPECT_EQ(Person().Inputs.back().Text, " ");
}

TEST_F(Prompting, ACancelledPromptStartsNothing) {
    Person().CancelInput();
    Start(Index);
    EXPECT_EQ(Started(), "");
    EXPECT_EQ(Recent(), "");
}

// ------------------------------------------------------------------------------------------------ start all

TEST_F(Launching, StartAllStartsWhatLiesInTheContainerAndNothingElse) {
    const int box = Container("Work"), other = Container("Other");
    File("/a", InContainer(box));
    File("/b", InContainer(other));
    File("/c");
    File("/d", InContainer(box));
    Person().Answer(AnswerYes);
    StartAllInContainer(Main, box);
    EXPECT_EQ(Person().LastBox(),
              "Start all shortcuts in Work?\n\n* Disable this confirmation from the Settings dialog.");
    EXPECT_EQ(Person().Boxes.back().Flags, 36);
    EXPECT_EQ(Started(), "start /a\nstart /d\n");
}

TEST_F(Launching, StartAllMakesRoomBeforeItAsks) {
    const int box = Container("Work");
    File("/a", InContainer(box));
    Main.Settings.OnTop = true;
    Computer.Windows.SetWindowOnTop(MainWindow, true);
    bool onTop = true;
    Person().OnBox = [&](const fake::Box&) { onTop = Computer.Windows.Of(MainWindow).OnTop; };
    Person().Answer(AnswerNo);
    StartAllInContainer(Main, box);
    EXPECT_FALSE(onTop);
}

TEST_F(Launching, StartAllStartsEachItselfAndNotItsTags) {
    const int box = Container("Work");
    const int index = File("/a", InContainer(box));
    Main.Link(index).TagStart = true;
    Main.Link(index).Tags = "work";
    Main.Link(File("/b")).Tags = "work";
    Main.Settings.ConfirmStartAllShortcuts = false;
    StartAllInContainer(Main, box);
    EXPECT_EQ(Started(), "start /a\n");
}

TEST_F(Launching, StartAllIsNoReleaseOfADrag) {
    const int box = Container("Work");
    const int index = File("/a", InContainer(box));
    Main.Settings.ConfirmStartAllShortcuts = false;
    Main.Links.DragIndex = -1;
    StartAllInContainer(Main, box);
    EXPECT_EQ(Started(), "start /a\n");
    EXPECT_EQ(Main.Links.DragIndex, index);
}

TEST_F(Launching, StartAllLeavesTheKeyboardWhereItIs) {
    const int box = Container("Work");
    File("/a", InContainer(box));
    Main.Settings.ConfirmStartAllShortcuts = false;
    Computer.Windows.Foreground.reset();
    StartAllInContainer(Main, box);
    EXPECT_FALSE(Computer.Windows.Foreground) << "what was started is to have it";
}

TEST_F(Launching, StartAllAsksOnlyWhereThatIsSetAndNoStartsNothing) {
    const int box = Container("Work");
    File("/a", InContainer(box));
    Person().Answer(AnswerNo);
    StartAllInContainer(Main, box);
    EXPECT_EQ(Started(), "");
    Main.Settings.ConfirmStartAllShortcuts = false;
    StartAllInContainer(Main, box);
    EXPECT_EQ(Started(), "start /a\n");
}

TEST_F(Launching, ANoInAStartAllSkipsThatShortcutOnly) {
    const int box = Container("Work");
    for (const char* path : {"/a", "/b", "/c"}) Main.Link(File(path, InContainer(box))).Confirm = true;
    Main.Settings.ConfirmStartAllShortcuts = false;
    for (const int answer : {AnswerYes, AnswerNo, AnswerYes}) Person().Answer(answer);
    StartAllInContainer(Main, box);
    EXPECT_EQ(Started(), "start /a\nstart /c\n");
}

} // namespace
} // namespace quill
