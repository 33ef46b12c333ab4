#include "posix/counters_posix.h"
#include "posix/temp_folder.h"

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace quill {
namespace {

// What the kernel tells of two processors, in ticks since it began.
constexpr const char* twoProcessors = "cpu  300 0 100 1600 0 0 0 0 0 0\n"
                                      "cpu0 100 0 100 800 0 0 0 0 0 0\n"
                                      "cpu1 200 0 0 800 0 0 0 0 0 0\n"
                                      "intr 12345 0 0 0\nctxt 99\nbtime 1700000000\nprocesses 5\n";

struct CountersTest : testing::Test {
    TempFolder folder;
    CountersPosix counters{folder.Path};

    void Write(const std::string& name, const std::string& text) const {
        std::ofstream(folder.At(name), std::ios::trunc) << text;
    }
    void Stat(const std::string& text) const { Write("stat", text); }
    void Memory(const std::string& text) const { Write("meminfo", text); }

    static std::string OneDecimal(double value) {
        char text[32];
        std::snprintf(text, sizeof text, "%.1f", value);
        return text;
    }
    // The loads of a reading in one line, "-" for nothing.
    std::string Collect() {
        std::string words;
        for (const auto& load : counters.CollectQueryData()) {
            words += words.empty() ? "" : " ";
            words += load ? OneDecimal(*load) : "-";
        }
        return words;
    }
    // A reading of these is what the next one is compared with.
    void Begin(const std::string& text = twoProcessors) {
        Stat(text);
        ASSERT_TRUE(counters.OpenQuery().Ok());
        Collect();
    }
};

TEST_F(CountersTest, TheFirstReadingIsZeroForEach) {
    Stat(twoProcessors);
    ASSERT_TRUE(counters.OpenQuery().Ok());
    EXPECT_EQ(Collect(), "0.0 0.0");
}

TEST_F(CountersTest, LoadIsTheBusyPartOfTheTimeSinceTheLastReading) {
    Begin();
    Stat("cpu0 125 0 100 875 0 0 0 0\ncpu1 200 0 0 900 0 0 0 0\n");
    EXPECT_EQ(Collect(), "25.0 0.0");
    Stat("cpu0 125 0 200 875 0 0 0 0\ncpu1 201 1 1 900 0 1 0 0\n");
    EXPECT_EQ(Collect(), "100.0 100.0");
}

TEST_F(CountersTest, WaitingForADiskIsNoLoadAndTimeTakenByOtherMachinesIs) {
    Begin("cpu0 100 0 0 100 0 0 0 0\n");
    Stat("cpu0 110 0 0 130 60 0 0 0\n");
    EXPECT_EQ(Collect(), "10.0");
    Stat("cpu0 110 0 0 180 60 0 0 50\n");
    EXPECT_EQ(Collect(), "50.0");
}

TEST_F(CountersTest, TimeOfGuestsIsNotCountedTwice) {
    Begin("cpu0 100 0 0 100 0 0 0 0 0 0\n");
    Stat("cpu0 150 0 0 150 0 0 0 0 50 50\n");
    EXPECT_EQ(Collect(), "50.0");
}

TEST_F(CountersTest, OldKernelsWithFourFieldsAreRead) {
    Begin("cpu0 100 0 0 100\n");
    Stat("cpu0 175 0 0 125\n");
    EXPECT_EQ(Collect(), "75.0");
}

TEST_F(CountersTest, AReadingInTheSameTickIsNoValueAndLosesNoTime) {
    Begin();
    EXPECT_EQ(Collect(), "- -");
    Stat("cpu0 125 0 100 875 0 0 0 0\ncpu1 200 0 0 900 0 0 0 0\n");
    EXPECT_EQ(Collect(), "25.0 0.0");
}

TEST_F(CountersTest, CountersThatRunBackwardsAreNoValueAndBeginAnew) {
    Begin();
    Stat("cpu0 10 0 10 80 0 0 0 0\ncpu1 300 0 0 800 0 0 0 0\n");
    EXPECT_EQ(Collect(), "- 100.0");
    Stat("cpu0 60 0 10 130 0 0 0 0\ncpu1 300 0 0 900 0 0 0 0\n");
    EXPECT_EQ(Collect(), "50.0 0.0");
}

TEST_F(CountersTest, IdleTimeThatRunsBackwardsIsNoNegativeLoadAndNoneAboveAHundred) {
    Begin("cpu0 100 0 0 500 50 0 0 0\n");
    Stat("cpu0 200 0 0 480 20 0 0 0\n");
    EXPECT_EQ(Collect(), "100.0");
    Stat("cpu0 100 0 0 700 20 0 0 0\n"); // more idle than time has passed
    EXPECT_EQ(Collect(), "0.0");
}

TEST_F(CountersTest, AProcessorThatIsSwitchedOffDoesNothingAndComesBackAnew) {
    Begin();
    Stat("cpu1 300 0 0 800 0 0 0 0\n");
    EXPECT_EQ(Collect(), "0.0 100.0");
    Stat("cpu0 9000 0 0 800 0 0 0 0\ncpu1 300 0 0 900 0 0 0 0\n");
    EXPECT_EQ(Collect(), "0.0 0.0");
    Stat("cpu0 9050 0 0 850 0 0 0 0\ncpu1 300 0 0 900 0 0 0 0\n");
    EXPECT_EQ(Collect(), "50.0 -");
}

TEST_F(CountersTest, AProcessorThatIsAddedStandsBehindTheOthers) {
    Begin("cpu0 100 0 0 100\ncpu2 100 0 0 100\n");
    Stat("cpu0 200 0 0 100\ncpu1 500 0 0 500\ncpu2 100 0 0 200\n");
    EXPECT_EQ(Collect(), "100.0 0.0 0.0");
    Stat("cpu0 200 0 0 200\ncpu1 600 0 0 500\ncpu2 200 0 0 200\n");
    EXPECT_EQ(Collect(), "0.0 100.0 100.0");
}

TEST_F(CountersTest, ADamagedLineIsNoValueOfThatProcessorAlone) {
    for (const char* line : {"cpu0", "cpu0 ", "cpu0 1 2 3", "cpu0 100 0 x 900", "cpu0 -100 0 0 900",
                             "cpu0 99999999999999999999999 0 0 900", "cpu0 125 0 100 875 0 0 0 0x"}) {
        counters.CloseQuery();
        Begin();
        Stat(std::string(line) + "\ncpu1 300 0 0 800 0 0 0 0\n");
        EXPECT_EQ(Collect(), "- 100.0") << line;
        Stat("cpu0 150 0 100 850 0 0 0 0\ncpu1 300 0 0 900 0 0 0 0\n");
        EXPECT_EQ(Collect(), "50.0 0.0") << "compared with the last good one, after " << line;
    }
}

TEST_F(CountersTest, NoiseBetweenTheLinesIsPassedOver) {
    Begin();
    Stat("\n\ncpux 1 2 3 4\ncpu-1 1 2 3 4\n" + std::string(3, '\0') + "\ncpu0 125 0 100 875\nintr " +
         std::string(100'000, '7') + "\ncpu1 200 0 0 900 0 0 0 0"); // no line end
    EXPECT_EQ(Collect(), "25.0 0.0");
}

TEST_F(CountersTest, ATableThatIsGoneOrEmptyIsNoValueForEach) {
    Begin();
    std::filesystem::remove(folder.At("stat"));
    EXPECT_EQ(Collect(), "- -");
    Stat("");
    EXPECT_EQ(Collect(), "- -");
    Stat("intr 5\n");
    EXPECT_EQ(Collect(), "- -");
    Stat("cpu0 125 0 100 875 0 0 0 0\ncpu1 200 0 0 900 0 0 0 0\n");
    EXPECT_EQ(Collect(), "25.0 0.0");
}

TEST_F(CountersTest, WithoutATableNothingIsOpened) {
    EXPECT_FALSE(counters.OpenQuery().Ok());
    EXPECT_EQ(counters.ProcessorCount(), 0);
    EXPECT_TRUE(counters.CollectQueryData().empty());
    Stat("no processors here\n");
    EXPECT_FALSE(counters.OpenQuery().Ok());
    std::filesystem::remove(folder.At("stat"));
    std::filesystem::create_directory(folder.At("stat"));
    EXPECT_FALSE(counters.OpenQuery().Ok());
}

TEST_F(CountersTest, APipeInItsPlaceIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(folder.At("stat").c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo(folder.At("meminfo").c_str(), 0600), 0);
    EXPECT_FALSE(counters.OpenQuery().Ok());
    EXPECT_FALSE(counters.GlobalMemoryStatus().Ok());
}

TEST_F(CountersTest, TheSumOfAllIsNoProcessor) {
    Stat(twoProcessors);
    EXPECT_EQ(counters.ProcessorCount(), 2);
}

TEST_F(CountersTest, ASecondOpeningForgetsNothing) {
    Begin();
    EXPECT_TRUE(counters.OpenQuery().Ok());
    Stat("cpu0 125 0 100 875 0 0 0 0\ncpu1 200 0 0 900 0 0 0 0\n");
    EXPECT_EQ(Collect(), "25.0 0.0");
}

TEST_F(CountersTest, ClosedItTellsNothingAndOpenedAgainItBeginsAnew) {
    Begin();
    counters.CloseQuery();
    EXPECT_TRUE(counters.CollectQueryData().empty());
    ASSERT_TRUE(counters.OpenQuery().Ok());
    Stat("cpu0 125 0 100 875 0 0 0 0\ncpu1 200 0 0 900 0 0 0 0\n");
    EXPECT_EQ(Collect(), "0.0 0.0");
}

// ---- memory

TEST_F(CountersTest, MemoryIsToldInBytes) {
    Memory("MemTotal:       16384 kB\nMemFree:         1024 kB\nMemAvailable:    4096 kB\n"
           "SwapTotal:       9000 kB\nSwapFree:        2048 kB\n");
    const auto memory = counters.GlobalMemoryStatus();
    ASSERT_TRUE(memory.Ok());
    EXPECT_EQ(memory.Value().TotalPhysical, 16384U * 1024);
    EXPECT_EQ(memory.Value().AvailablePhysical, 4096U * 1024);
    EXPECT_EQ(memory.Value().AvailablePage, 2048U * 1024);
}

TEST_F(CountersTest, MoreThanFourGigabytesAreNotCut) {
    Memory("MemTotal: 67108864 kB\nMemAvailable: 33554432 kB\n");
    EXPECT_EQ(counters.GlobalMemoryStatus().Value().TotalPhysical, 64ULL << 30);
    EXPECT_EQ(counters.GlobalMemoryStatus().Value().AvailablePage, 0U) << "no swap space";
}

TEST_F(CountersTest, OldKernelsTellWhatIsFreeAndWhatIsOnlyKept) {
    Memory("MemTotal: 16384 kB\nMemFree: 1024 kB\nBuffers: 100 kB\nCached: 900 kB\nSwapCached: 7 kB\n");
    EXPECT_EQ(counters.GlobalMemoryStatus().Value().AvailablePhysical, 2024U * 1024);
}

TEST_F(CountersTest, NeverMoreIsAvailableThanThereIs) {
    Memory("MemTotal: 1000 kB\nMemAvailable: 5000 kB\n");
    EXPECT_EQ(counters.GlobalMemoryStatus().Value().AvailablePhysical, 1000U * 1024);
}

TEST_F(CountersTest, ADamagedTableOfMemoryIsAFailure) {
    const char* tables[] = {"",
                            "MemTotal: 0 kB\nMemAvailable: 0 kB\n",
                            "MemTotal: 1000 kB\n",
                            "MemAvailable: 1000 kB\n",
                            "MemTotal: many kB\nMemAvailable: 1000 kB\n",
                            "MemTotal:\nMemAvailable: 1000 kB\n",
                            "MemTotal: 99999999999999999999 kB\nMemAvailable: 1000 kB\n",
                            "MemTotal: 18446744073709551615 kB\nMemAvailable: 1000 kB\n"};
    for (const char* table : tables) {
        Memory(table);
        EXPECT_FALSE(counters.GlobalMemoryStatus().Ok()) << table;
    }
    std::filesystem::remove(folder.At("meminfo"));
    EXPECT_FALSE(counters.GlobalMemoryStatus().Ok());
}

TEST(Counters, OfThisSystemAreRead) {
    CountersPosix counters;
    EXPECT_GT(counters.ProcessorCount(), 0);
    const auto memory = counters.GlobalMemoryStatus();
    ASSERT_TRUE(memory.Ok());
    EXPECT_LE(memory.Value().AvailablePhysical, memory.Value().TotalPhysical);
    ASSERT_TRUE(counters.OpenQuery().Ok());
    EXPECT_EQ(counters.CollectQueryData(),
              std::vector<std::optional<double>>(static_cast<std::size_t>(counters.ProcessorCount()), 0.0));
}

} // namespace
} // namespace quill
