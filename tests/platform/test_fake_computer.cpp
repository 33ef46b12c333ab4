// The rest of the fake computer: its clock, its person, its shell, its fonts, its screen.
#include "fake/canvas.h"
#include "fake/computer.h"

#include <gtest/gtest.h>

namespace quill::fake {
namespace {

constexpr TimerId Hide{TimerName::TimerHide};
constexpr TimerId Tip{TimerName::TimerTip, 3};

struct FakeClockTest : testing::Test {
    FakeClockTest() {
        clock.OnTimer = [this](TimerId timer) { Note(timer == Hide ? "hide" : "tip"); };
        clock.OnFrame = [this] { Note("frame"); };
        start = clock.GetTickCount();
    }
    void Note(const std::string& what) { seen += what + std::to_string(clock.GetTickCount() - start) + " "; }
    FakeClock clock;
    std::int64_t start = 0;
    std::string seen;
};

TEST_F(FakeClockTest, WhatFallsDueRunsInOrderAndAtItsTime) {
    clock.Start(Hide, 100);
    clock.Start(Tip, 150);
    clock.Advance(99);
    EXPECT_EQ(seen, "");
    clock.Advance(201);
    EXPECT_EQ(seen, "hide100 tip150 hide200 hide300 tip300 ");
}

TEST_F(FakeClockTest, StartingOverCountsFromNowAndStoppingEndsIt) {
    clock.Start(Hide, 100);
    clock.Advance(60);
    clock.Start(Hide, 100);
    clock.Advance(60);
    EXPECT_EQ(seen, "");
    EXPECT_EQ(clock.IntervalOf(Hide), 100);
    clock.Stop(Hide);
    clock.Advance(1000);
    EXPECT_EQ(seen, "");
    EXPECT_FALSE(clock.IsRunning(Hide));
}

TEST_F(FakeClockTest, ATimerMayStopItselfAndFramesEndWhenNobodyWantsThem) {
    clock.OnTimer = [this](TimerId timer) {
        Note("once");
        clock.Stop(timer);
        clock.WantFrames(0);
    };
    clock.WantFrames(50);
    clock.Start(Tip, 50);
    clock.Advance(200);
    EXPECT_EQ(seen, "frame20 frame40 once50 ");
}

TEST_F(FakeClockTest, TheCalendarMovesWithIt) {
    clock.SetNow({2024, 2, 28, 23, 59, 30, 0});
    clock.Advance(30'000);
    const DateTime now = clock.Now();
    EXPECT_EQ(now.Month * 100 + now.Day, 229);
    EXPECT_EQ(now.Hour * 60 + now.Minute, 0);
    EXPECT_EQ(now.Weekday, 4);
}

TEST(FakePerson, AnswersInLineAndCountsWhatNobodyPrepared) {
    FakeQuestions person;
    person.AnswerTo("damaged", AnswerYes);
    person.Answer(AnswerOk);
    EXPECT_EQ(person.MsgBox("0.CON is damaged", BoxYesNo | BoxWarning, "Quillmere"), AnswerYes);
    EXPECT_EQ(person.MsgBox("hello", BoxOk, "Quillmere"), AnswerOk);
    EXPECT_EQ(person.Unexpected, 0);
    EXPECT_EQ(person.MsgBox("really?", BoxYesNo | BoxQuestion, "Quillmere"), AnswerNo);
    EXPECT_EQ(person.MsgBox("so", BoxInformation, "Quillmere"), AnswerCancel);
    EXPECT_EQ(person.Unexpected, 2);
    EXPECT_EQ(person.LastBox(), "so");
}

TEST(FakePerson, TheWorldMayChangeWhileAQuestionIsOpen) {
    Computer computer;
    computer.Questions.Answer(AnswerYes);
    computer.Questions.OnBox = [&](const Box&) { computer.Session.Quit(0); };
    EXPECT_EQ(computer.Questions.MsgBox("go on?", BoxYesNo, "Quillmere"), AnswerNo) << "the program ends";
    EXPECT_EQ(computer.Questions.Unexpected, 0);
}

TEST(FakePerson, TypesIntoInputsOrCancelsThem) {
    FakeQuestions person;
    person.Type("new");
    person.CancelInput();
    person.TypeOther("other");
    person.TypeAndTick("text", true);
    InputQuestion question{"Title", "Name:", "old"};
    EXPECT_TRUE(person.AskInput(question));
    EXPECT_EQ(question.Text, "new");
    EXPECT_FALSE(person.AskInput(question));
    EXPECT_EQ(question.Text, "new");
    EXPECT_TRUE(person.AskInput(question));
    EXPECT_TRUE(question.Other);
    EXPECT_TRUE(person.AskInput(question));
    EXPECT_TRUE(question.Checked);
    EXPECT_TRUE(person.AllAnswered());
}

TEST(FakePerson, ChoosesOnlyLinesThatCanBeChosen) {
    FakeQuestions person;
    MenuLine save{"&Save", "Ctrl+S", true, false, false, 7, {}};
    MenuLine lock{"&Lock", "", true, true, true, 8, {}};
    MenuLine grey{"&Paste", "", false, false, false, 9, {}};
    MenuLine more{"&More", "", true, false, false, -1, {lock}};
    const std::vector<MenuLine> menu{save, {"-"}, grey, more};
    person.ChooseMenu("&Save");
    person.ChooseMenu("Lock");
    person.DismissMenu();
    EXPECT_EQ(person.PopupMenu(menu, {}), 7);
    EXPECT_EQ(person.PopupMenu(menu, {}), 8);
    EXPECT_EQ(person.PopupMenu(menu, {}), -1);
    EXPECT_EQ(person.Unexpected, 0);
    person.ChooseMenu("&Paste");
    EXPECT_EQ(person.PopupMenu(menu, {}), -1);
    EXPECT_EQ(person.Unexpected, 1);
    EXPECT_EQ(person.Menus[0], "&Save [Ctrl+S]\n-\n(-) &Paste\n&More\n  (x) &Lock\n");
}

TEST(FakeShellTest, ADeadShareAnswersLateOrNever) {
    Computer computer;
    computer.Files.Put("/home/user/a", "");
    computer.Shell.SilentPaths = {"/net/"};
    std::string seen;
    const auto note = [&](const char* name) {
        return [&seen, name](bool yes) { seen += name + std::string(yes ? "+ " : "- "); };
    };
    computer.Shell.PathFileExists("/home/user/a", 5000, note("a"));
    computer.Shell.PathFileExists("/net/late", 5000, note("late"));
    computer.Shell.PathFileExists("/net/never", 5000, note("never"));
    EXPECT_EQ(seen, "") << "never inside the call";
    computer.Clock.Advance(0);
    EXPECT_EQ(seen, "a+ ");
    computer.Shell.Answer("/net/late", true);
    computer.Clock.Advance(5000);
    EXPECT_EQ(seen, "a+ late+ never- ");
}

TEST(FakeShellTest, LaunchesAreWrittenDownAndFailWhenTold) {
    Computer computer;
    computer.Shell.FailNext({Reason::Denied, "Permission denied"});
    EXPECT_EQ(computer.Shell.ShellExecute({"open", "/bin/a", "-x", "/tmp", 2, false}).Error().Text,
              "Permission denied");
    EXPECT_TRUE(computer.Shell.ShellExecute({"", "", "ls | wc", "", 1, true}));
    EXPECT_EQ(Words(computer.Shell.Launches[0]), "open /bin/a -x in /tmp show 2");
    EXPECT_EQ(computer.Shell.LastLaunch(), "command ls | wc");
}

TEST(FakeTextsTest, LettersAreAllOfOneSize) {
    const FakeTexts texts;
    const FontSpec font{"Tahoma", 10};
    EXPECT_EQ(texts.MeasureText(font, "Grüße", 0), (Size{450, 260}));
    EXPECT_EQ(texts.MeasureText(font, "", 0), (Size{0, 260}));
    EXPECT_EQ(texts.MeasureText(font, "a\r\nbcd", 0), (Size{270, 520}));
    EXPECT_EQ(texts.MeasureText(font, "one two three", 7 * 90), (Size{630, 520}));
    EXPECT_EQ(texts.MeasureText(font, "toolongword x", 4 * 90), (Size{360, 1040}));
}

TEST(FakeWindowsTest, WhatIsOnTopStaysAboveWhatIsNot) {
    FakeWindows windows;
    windows.Show(MainWindow, Activate::Yes);
    windows.SetWindowOnTop(MainWindow, true);
    windows.Show(SplashWindow, Activate::No);
    EXPECT_EQ(windows.Stack, (std::vector{SplashWindow, MainWindow}));
    EXPECT_TRUE(windows.IsForeground(MainWindow));
    windows.Hide(MainWindow);
    EXPECT_FALSE(windows.Foreground);
    EXPECT_EQ(windows.Log.back(), "hide frmMain");
}

TEST(FakeWorkerTest, AJobItsCompletionAndTheEndOfTheProgramAreThreeMoments) {
    FakeWorker worker;
    std::string seen;
    worker.Run([&] { seen += "job "; }, [&] { seen += "done "; });
    EXPECT_EQ(seen, "");
    worker.RunJob();
    EXPECT_EQ(seen, "job ");
    worker.Drop();
    worker.RunAll();
    EXPECT_EQ(seen, "job ");
    worker.Run([&] { seen += "again "; }, [&] { seen += "done "; });
    worker.RunAll();
    EXPECT_EQ(seen, "job again done ");
}

TEST(FakeZipTest, AnArchiveIsAFileInTheTree) {
    Computer computer;
    EXPECT_TRUE(computer.Zip.Write("/home/user/a.zip", {{"0.CON", "x"}, {"1.CON", "y"}}));
    EXPECT_EQ(computer.Files.Get("/home/user/a.zip"), "zip: 0.CON 1.CON");
    EXPECT_FALSE(computer.Zip.Write("/home/user/a.zip", {}));
    computer.Zip.FailNext({Reason::NoSpace, "full"});
    EXPECT_EQ(computer.Zip.Write("/home/user/b.zip", {}).Error().Text, "full");
}

TEST(FakePlacesTest, APathLiesOnItsDeepestMount) {
    FakePlaces places;
    places.Mounts["/media/stick"] = DriveKind::Removable;
    EXPECT_EQ(places.MountPoint("/media/stick/a"), "/media/stick");
    EXPECT_EQ(places.MountPoint("/media/sticky"), "/");
    EXPECT_EQ(places.KindOfDrive("/media/stick"), DriveKind::Removable);
    EXPECT_EQ(places.KindOfDrive("/home"), DriveKind::Fixed);
}

TEST(FakeCanvasTest, PaintingReadsAsLines) {
    FakeCanvas canvas;
    TextStyle style;
    style.Ink = 0xFFFFFF;
    canvas.Missing.insert("/none");
    canvas.PushClip({0, 0, 100, 50}, 0);
    canvas.FillRect({0, 0, 100, 50}, Rgb(255, 128, 0), 0.5F);
    canvas.Text({260, 20, 1760, 250}, "Container", style);
    EXPECT_FALSE(canvas.Icon({"/none", "", false}, {0, 0, 10, 10}));
    canvas.PopClip();
    EXPECT_EQ(canvas.Painted(), "clip 0,0 100x50\n"
                                "fill 0,0 100x50 #FF8000 opacity 0.5\n"
                                "text \"Container\" 260,20 1760x250 white left 10pt\n"
                                "icon /none 0,0 10x10 missing\n"
                                "unclip\n");
    EXPECT_EQ(canvas.Clips, 0);
}

TEST(FakeCatalogueTest, GivesTheKeyBackUnlessItKnowsBetter) {
    FakeCatalogue catalogue;
    catalogue.Messages["Save"] = "Sichern";
    EXPECT_EQ(catalogue.Lookup("Save"), "Sichern");
    EXPECT_EQ(catalogue.Lookup("Exit"), "Exit");
}

TEST(ComputerTest, TheDiskOutlivesTheProcess) {
    Computer computer;
    computer.Clock.Start(Hide, 10);
    computer.Windows.Show(MainWindow, Activate::Yes);
    computer.Files.Put(SettingsFolder + "/a", "x");
    computer.EndProcess();
    EXPECT_EQ(computer.Clock.RunningTimers(), 0U);
    EXPECT_FALSE(computer.Windows.IsVisible(MainWindow));
    EXPECT_EQ(computer.Files.Get(SettingsFolder + "/a"), "x");
}

} // namespace
} // namespace quill::fake
