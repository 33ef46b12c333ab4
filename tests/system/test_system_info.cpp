#include "system/system_info.h"

#include "containers/selection.h"
#include "core/caption.h"
#include "dock/dock_commands.h"
#include "dock/docking.h"
#include "fake/desk.h"
#include "shortcuts/create.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

using fake::Desk;

const std::string ProgramLine = std::string(ProgramName) + " " + ProgramVersion;
constexpr TimerId infoTimer{TimerName::TimerSysInfo};
constexpr int period = 2000; // milliseconds

struct SystemInfo : testing::Test {
    Desk desk;

    void Start(const std::string& settings) {
        desk.Files().Put(desk.Settings("Quillmere.ini"),
                         "108\r\n[X]\r\n1500\r\n[Y]\r\n1500\r\n[W]\r\n9000\r\n[H]\r\n6000\r\n" + settings);
        desk.StartWorkspace();
    }
    void StartWithInfo() { Start("[SystemInfo]\r\n1\r\n"); }
    fake::FakeCounters& Counters() { return desk.Computer.Counters; }
    std::string Caption() { return desk.Main->View.Caption; }
    bool Runs() { return desk.Computer.Clock.IsRunning(infoTimer); }
    // The first reading has nothing to compare with.
    void WaitForLoad() { desk.Wait(50 + 2 * period); }
};

TEST_F(SystemInfo, TheLineShowsFreeMemoryAndTheLoad) {
    StartWithInfo();
    WaitForLoad();
    EXPECT_EQ(Caption(), "Free Memory: 4 GB (25%) | CPU Utilization: 25.0%");
}

TEST_F(SystemInfo, FourProcessorsAt10And20And30And40GiveALoadOf25Point0) {
    StartWithInfo();
    Counters().Loads = {10, 20, 30, 40};
    WaitForLoad();
    EXPECT_NE(Caption().find("CPU Utilization: 25.0%"), std::string::npos) << Caption();
}

TEST_F(SystemInfo, TheFirstReadingShowsNoLoad) {
    StartWithInfo();
    desk.Wait(50 + period);
    EXPECT_EQ(Caption(), "Free Memory: 4 GB (25%) | CPU Utilization: 0.0%");
}

TEST_F(SystemInfo, ItIsReadEveryTwoSeconds) {
    StartWithInfo();
    desk.Wait(50);
    EXPECT_EQ(desk.Computer.Clock.IntervalOf(infoTimer), period);
    desk.Wait(5 * period);
    EXPECT_EQ(Counters().Collected, 5);
}

TEST_F(SystemInfo, WithTheSettingOffNothingIsOpened) {
    Start("");
    desk.Wait(10'000);
    EXPECT_EQ(Counters().Opened, 0);
    EXPECT_FALSE(Runs());
    EXPECT_EQ(Caption(), ProgramLine);
}

TEST_F(SystemInfo, CountersThatCanNotBeOpenedLeaveTheLineAndSayNothing) {
    Counters().Broken = true;
    StartWithInfo();
    desk.Wait(10'000);
    Counters().Broken = false;
    ShowSystemInfo(*desk.Main); // nobody has opened them
    EXPECT_FALSE(Runs());
    EXPECT_EQ(Caption(), ProgramLine);
    EXPECT_TRUE(desk.Person().Boxes.empty());
}

TEST_F(SystemInfo, ASystemThatTellsOfNoProcessorHasNoLine) {
    Counters().Loads.clear();
    StartWithInfo();
    WaitForLoad();
    EXPECT_FALSE(Runs());
    EXPECT_EQ(Caption(), ProgramLine);
}

TEST_F(SystemInfo, AProcessorThatCanNotBeReadKeepsItsOldValueInTheSum) {
    StartWithInfo();
    WaitForLoad();
    Counters().Loads = {std::nullopt, 60, std::nullopt, 100};
    desk.Wait(period);
    EXPECT_NE(Caption().find("CPU Utilization: 50.0%"), std::string::npos) << Caption(); // 10 60 30 100
}

TEST_F(SystemInfo, AProcessorThatIsAddedCountsFromThenOn) {
    StartWithInfo();
    WaitForLoad();
    Counters().Loads = {10, 20, 30, 40, 100};
    desk.Wait(period);
    EXPECT_NE(Caption().find("CPU Utilization: 40.0%"), std::string::npos) << Caption();
}

TEST_F(SystemInfo, AProcessorThatIsNoLongerToldKeepsItsValue) {
    StartWithInfo();
    WaitForLoad();
    Counters().Loads = {50, 40};
    desk.Wait(period);
    EXPECT_NE(Caption().find("CPU Utilization: 40.0%"), std::string::npos) << Caption(); // 50 40 30 40
}

TEST_F(SystemInfo, MemoryThatCanNotBeReadLeavesTheWholeLine) {
    StartWithInfo();
    WaitForLoad();
    const auto before = Caption();
    Counters().MemoryBroken = true;
    Counters().Loads = {100, 100, 100, 100};
    desk.Wait(period);
    EXPECT_EQ(Caption(), before);
}

TEST_F(SystemInfo, AComputerThatTellsNoMemoryIsNotDividedBy) {
    StartWithInfo();
    Counters().Memory = {};
    WaitForLoad();
    EXPECT_EQ(GetMemoryText(*desk.Main), "");
    EXPECT_EQ(Caption(), ProgramLine);
}

struct MemoryRow {
    std::uint64_t Total, Available;
    const char* Text;
};

TEST_F(SystemInfo, MemoryIsToldWithItsPart) {
    Start("");
    constexpr std::uint64_t K = 1024, M = K * K, G = K * M;
    const MemoryRow rows[] = {
        {16 * G, 16 * G, "16 GB (100%)"},       {16 * G, 0, "0 bytes (0%)"},
        {8 * G, 3 * G + G / 2, "3.5 GB (44%)"}, // 43.75
        {200 * M, 1 * M, "1 MB (1%)"},          // half a percent goes up
        {2048 * G, 1024 * G, "1 TB (50%)"},
    };
    for (const auto& row : rows) {
        Counters().Memory = {row.Total, row.Available, 0};
        EXPECT_EQ(GetMemoryText(*desk.Main), row.Text);
    }
}

TEST_F(SystemInfo, ASecondInitialisationOpensNothingAnew) {
    StartWithInfo();
    WaitForLoad();
    EXPECT_TRUE(CpuInit(*desk.Main));
    Counters().Broken = true;
    EXPECT_TRUE(CpuInit(*desk.Main)) << "they are open";
    EXPECT_EQ(Counters().Opened, 1);
    EXPECT_EQ(desk.Main->System.CpuCount, 3);
    StartCPUMonitoring(*desk.Main);
    EXPECT_EQ(desk.Main->System.CpuValues, (std::vector<double>{10, 20, 30, 40}));
}

TEST_F(SystemInfo, NothingIsReadWhileADialogIsOpen) {
    StartWithInfo();
    WaitForLoad();
    const int before = Counters().Collected;
    {
        const DialogPause pause(*desk.Main);
        desk.Wait(5 * period);
        EXPECT_EQ(Counters().Collected, before);
    }
    desk.Wait(period);
    EXPECT_EQ(Counters().Collected, before + 1);
}

TEST_F(SystemInfo, NothingIsReadWhileTheWorkspaceIsHidden) {
    StartWithInfo();
    WaitForLoad();
    mnuHideAlterDesk_Click(*desk.Main);
    const int before = Counters().Collected;
    desk.Wait(5 * period);
    EXPECT_EQ(Counters().Collected, before);
}

TEST_F(SystemInfo, ADockedWorkspaceComesOutWithFreshFigures) {
    StartWithInfo();
    WaitForLoad();
    desk.Main->View.Visible = false;
    desk.Main->Dock.DockPosition = 2;
    Counters().Loads = {80, 80, 80, 80};
    TimerSysInfo_Timer(*desk.Main);
    EXPECT_NE(Caption().find("CPU Utilization: 80.0%"), std::string::npos) << Caption();
}

TEST_F(SystemInfo, WhileATagViewShowsTheTitleIsNotTouched) {
    StartWithInfo();
    WaitForLoad();
    const auto before = Caption();
    desk.Main->Group.FrameLinkGroup = true;
    Counters().Loads = {80, 80, 80, 80};
    desk.Wait(3 * period);
    EXPECT_EQ(Caption(), before);
}

TEST_F(SystemInfo, APassingTextIsNotCutShort) {
    StartWithInfo();
    WaitForLoad();
    ShowPassingCaption(*desk.Main, "Workspace Saved");
    TimerSysInfo_Timer(*desk.Main);
    EXPECT_EQ(Caption(), "Workspace Saved");
    desk.Wait(PassingCaptionTime);
    EXPECT_EQ(Caption(), "Free Memory: 4 GB (25%) | CPU Utilization: 25.0%");
}

TEST_F(SystemInfo, SwitchedOffItClosesTheCountersAndTheLineGoes) {
    StartWithInfo();
    WaitForLoad();
    desk.Main->Settings.SystemInfo = false;
    EXPECT_EQ(NormalCaption(*desk.Main), ProgramLine);
    StopCPUMonitoring(*desk.Main);
    EXPECT_EQ(Caption(), ProgramLine);
    EXPECT_FALSE(Runs());
    EXPECT_FALSE(Counters().Open);
}

TEST_F(SystemInfo, SwitchedOnAgainItBeginsAnew) {
    StartWithInfo();
    WaitForLoad();
    StopCPUMonitoring(*desk.Main);
    StartCPUMonitoring(*desk.Main);
    ShowSystemInfo(*desk.Main); // as the settings dialog does
    EXPECT_EQ(Caption(), "Free Memory: 4 GB (25%) | CPU Utilization: 0.0%");
}

TEST_F(SystemInfo, TheEndOfTheProgramClosesTheCounters) {
    StartWithInfo();
    WaitForLoad();
    desk.ExitWorkspace();
    EXPECT_FALSE(Counters().Open);
}

TEST_F(SystemInfo, AnUnchangedLineIsNotPaintedAgain) {
    StartWithInfo();
    WaitForLoad();
    desk.Turn();
    TimerSysInfo_Timer(*desk.Main);
    EXPECT_FALSE(desk.Main->Marks.Pending().Workspace);
    Counters().Loads = {11, 20, 30, 40}; // 25.25
    TimerSysInfo_Timer(*desk.Main);
    EXPECT_TRUE(desk.Main->Marks.Pending().Workspace);
}

TEST_F(SystemInfo, ItsWordsAreTranslatedAndHoldPercentSigns) {
    desk.Computer.Catalogue.Messages["Free Memory: %1 | CPU Utilization: %2%"] =
        "Frei: %1 | Prozessoren: %2 %";
    StartWithInfo();
    WaitForLoad();
    EXPECT_EQ(Caption(), "Frei: 4 GB (25%) | Prozessoren: 25.0 %");
}

// ---- the time

struct TimeLine : SystemInfo {
    void StartWithTime(const std::string& more = "") { Start("[ShowTime]\r\n1\r\n" + more); }
    void SetTime(int hour, int minute, int second = 0) {
        desk.Computer.Clock.SetNow({2026, 11, 22, hour, minute, second});
    }
    void Beat() { desk.Wait(1000); }
    void SelectTwo() {
        for (const int link : {0, 1}) {
            AddFile(*desk.Main, "/usr/bin/thing", OnWorkspace(), {1000, 1000});
            SetSelection(*desk.Main, link, true);
        }
    }
};

struct TimeRow {
    int Hour, Minute;
    const char* Text;
};

TEST_F(TimeLine, TheTimeIsToldInTwelveHoursWithALeadingZero) {
    StartWithTime();
    const TimeRow rows[] = {{0, 0, "12:00 AM"},   {0, 59, "12:59 AM"},  {1, 5, "01:05 AM"},
                            {9, 30, "09:30 AM"},  {11, 59, "11:59 AM"}, {12, 0, "12:00 PM"},
                            {12, 30, "12:30 PM"}, {13, 0, "01:00 PM"},  {14, 5, "02:05 PM"},
                            {22, 10, "10:10 PM"}, {23, 59, "11:59 PM"}};
    for (const auto& row : rows) {
        SetTime(row.Hour, row.Minute);
        Beat();
        EXPECT_EQ(Caption(), std::string(row.Text) + " | Sunday, November 22, 2026");
    }
}

TEST_F(TimeLine, EveryDayAndMonthHasItsName) {
    StartWithTime();
    const std::pair<DateTime, const char*> rows[] = {
        {{2026, 1, 5}, "Monday, January 5, 2026"},
        {{2026, 2, 3}, "Tuesday, February 3, 2026"},
        {{2026, 3, 4}, "Wednesday, March 4, 2026"},
        {{2026, 4, 2}, "Thursday, April 2, 2026"},
        {{2026, 5, 1}, "Friday, May 1, 2026"},
        {{2026, 6, 6}, "Saturday, June 6, 2026"},
        {{2026, 7, 5}, "Sunday, July 5, 2026"},
        {{2026, 8, 31}, "Monday, August 31, 2026"},
        {{2026, 9, 30}, "Wednesday, September 30, 2026"},
        {{2026, 10, 31}, "Saturday, October 31, 2026"},
        {{2026, 11, 22}, "Sunday, November 22, 2026"},
        {{2028, 2, 29}, "Tuesday, February 29, 2028"},
        {{2026, 12, 31}, "Thursday, December 31, 2026"},
    };
    for (const auto& [date, text] : rows) {
        desk.Computer.Clock.SetNow(date);
        Beat();
        EXPECT_EQ(Caption(), std::string("12:00 AM | ") + text);
    }
}

TEST_F(TimeLine, ItFollowsTheClockOverMidnight) {
    StartWithTime();
    SetTime(23, 59, 58);
    Beat();
    EXPECT_EQ(Caption(), "11:59 PM | Sunday, November 22, 2026");
    Beat();
    EXPECT_EQ(Caption(), "12:00 AM | Monday, November 23, 2026");
}

TEST_F(TimeLine, ItIsPaintedOnlyWhenAMinuteHasPassed) {
    StartWithTime();
    SetTime(14, 5, 0);
    Beat();
    ShowTimeLine(*desk.Main);
    EXPECT_FALSE(desk.Main->Marks.Pending().Workspace);
    SetTime(14, 6, 0);
    ShowTimeLine(*desk.Main);
    EXPECT_TRUE(desk.Main->Marks.Pending().Workspace);
}

TEST_F(TimeLine, BothSwitchesOnTheLineShowsMemoryAndLoad) {
    StartWithTime("[SystemInfo]\r\n1\r\n");
    WaitForLoad();
    for (int beat = 0; beat < 5; ++beat) {
        Beat();
        EXPECT_EQ(Caption(), "Free Memory: 4 GB (25%) | CPU Utilization: 25.0%");
    }
}

TEST_F(TimeLine, WhereTheCountersAreMissingBothSwitchesShowTheTime) {
    Counters().Broken = true;
    StartWithTime("[SystemInfo]\r\n1\r\n");
    SetTime(14, 5);
    Beat();
    EXPECT_EQ(Caption(), "02:05 PM | Sunday, November 22, 2026");
}

TEST_F(TimeLine, WithTheSettingOffTheNameStandsThere) {
    Start("");
    Beat();
    EXPECT_EQ(Caption(), ProgramLine);
}

TEST_F(TimeLine, SwitchedOffTheTimeGoesWithTheNextBeat) {
    StartWithTime();
    Beat();
    EXPECT_NE(Caption(), ProgramLine);
    desk.Main->Settings.ShowTime = false;
    Beat();
    EXPECT_EQ(Caption(), ProgramLine);
}

TEST_F(TimeLine, SuspendedTheTitleSaysSoAndAfterwardsTheTimeIsNotOld) {
    StartWithTime();
    SetTime(14, 5);
    Beat();
    mnuSuspendSlideOut_Click(*desk.Main);
    SetTime(17, 20);
    Beat();
    EXPECT_EQ(Caption(), "AUTO-COLLAPSE SUSPENDED");
    mnuSuspendSlideOut_Click(*desk.Main);
    EXPECT_EQ(Caption(), "05:20 PM | Sunday, November 22, 2026");
}

TEST_F(TimeLine, TheClockGoesOnWhileADialogIsOpen) {
    StartWithTime();
    SetTime(14, 5);
    const DialogPause pause(*desk.Main);
    Beat();
    EXPECT_EQ(Caption(), "02:05 PM | Sunday, November 22, 2026");
}

TEST_F(TimeLine, AHiddenWorkspaceTellsNobodyTheTime) {
    StartWithTime();
    mnuHideAlterDesk_Click(*desk.Main);
    const auto before = Caption();
    SetTime(3, 33);
    Beat();
    ShowTimeLine(*desk.Main);
    EXPECT_EQ(Caption(), before);
}

TEST_F(TimeLine, ADockedWorkspaceComesOutWithTheTime) {
    StartWithTime();
    desk.Main->View.Visible = false;
    desk.Main->Dock.DockPosition = 1;
    SetTime(3, 33);
    ShowTimeLine(*desk.Main);
    EXPECT_EQ(Caption(), "03:33 AM | Sunday, November 22, 2026");
}

TEST_F(TimeLine, WhileATagViewShowsTheTimeDoesNotTakeItsTitle) {
    StartWithTime();
    desk.Main->Group.FrameLinkGroup = true;
    Beat();
    EXPECT_EQ(Caption(), ProgramLine);
}

TEST_F(TimeLine, APassingTextIsNotCutShortByTheClock) {
    StartWithTime();
    SetTime(14, 5, 59);
    Beat();
    ShowPassingCaption(*desk.Main, "Workspace Saved");
    Beat();
    EXPECT_EQ(Caption(), "Workspace Saved");
    desk.Wait(PassingCaptionTime);
    EXPECT_EQ(Caption(), "02:06 PM | Sunday, November 22, 2026");
}

TEST_F(TimeLine, ASelectionOfSeveralStandsBeforeTheTimeUntilItEnds) {
    StartWithTime();
    SetTime(14, 5);
    Beat();
    SelectTwo();
    Beat();
    EXPECT_EQ(Caption(), "2 shortcuts selected");
    UnselectLinks(*desk.Main);
    EXPECT_EQ(Caption(), "02:05 PM | Sunday, November 22, 2026");
}

TEST_F(TimeLine, ASelectionRightAfterAMinuteHasPassedIsToldAllTheSame) {
    StartWithTime();
    SetTime(14, 5, 59);
    Beat();
    SetTime(14, 7); // no beat since
    SelectTwo();
    EXPECT_EQ(Caption(), "2 shortcuts selected");
}

TEST_F(TimeLine, OneSelectedShortcutLeavesTheClockRunning) {
    StartWithTime();
    SelectTwo();
    SetSelection(*desk.Main, 1, false);
    SetTime(14, 8);
    Beat();
    EXPECT_EQ(Caption(), "02:08 PM | Sunday, November 22, 2026");
}

TEST_F(TimeLine, AWorkspaceThatCanNotBeSavedSaysThatBeforeAll) {
    StartWithTime("[SystemInfo]\r\n1\r\n");
    WaitForLoad();
    desk.Main->Dock.Suspended = true;
    SelectTwo();
    desk.Main->Store.SaveFailure = "disk full";
    RestoreCaption(*desk.Main);
    Beat();
    EXPECT_EQ(Caption(), "Can't save the workspace: disk full");
}

TEST_F(TimeLine, DaysAndMonthsAndTheirOrderAreTranslated) {
    auto& words = desk.Computer.Catalogue.Messages;
    words["Sunday"] = "Sonntag";
    words["November"] = "Nov.";
    words["%1, %2 %3, %4"] = "%1, %3. %2 %4";
    words["%1:%2 PM"] = "%1.%2 nachm.";
    StartWithTime();
    SetTime(14, 5);
    Beat();
    EXPECT_EQ(Caption(), "02.05 nachm. | Sonntag, 22. Nov. 2026");
}

} // namespace
} // namespace quill
