#include "dock/clsTick.h"

#include <gtest/gtest.h>

namespace quill {
namespace {

constexpr std::int64_t ms = 1'000'000;

TEST(FrameClock, ARateThatIsNotAboveZeroIsRefused) {
    clsTick tick;
    EXPECT_EQ(tick.Add(0, false), -1);
    EXPECT_EQ(tick.Add(-50, false), -1);
    EXPECT_EQ(tick.Add(50, false), 0);
}

TEST(FrameClock, StreamsAreNumberedInTheOrderOfTheirComingAndStartIsTold) {
    clsTick tick;
    EXPECT_EQ(tick.Add(50, false), 0);
    EXPECT_EQ(tick.Add(0, false), -1);
    EXPECT_EQ(tick.Add(12.5, true), 1);
    EXPECT_TRUE(tick.start(1000 * ms));
    EXPECT_EQ(tick.Due(999 * ms), -1);
    EXPECT_EQ(tick.Due(1000 * ms), 0);
    EXPECT_EQ(tick.Due(1000 * ms), 1);
    EXPECT_EQ(tick.Due(1079 * ms), 0);
}

TEST(FrameClock, AStreamThatWasNeverStartedIsDueAtTheFirstQuestion) {
    clsTick tick;
    tick.Add(50, false);
    EXPECT_EQ(tick.Due(1000 * ms), 0);
    EXPECT_EQ(tick.Due(1000 * ms), -1);
    EXPECT_EQ(tick.Due(1020 * ms), 0);
}

TEST(FrameClock, NothingThatIsNotDueIsCounted) {
    clsTick tick;
    tick.Add(50, false);
    tick.start(1000 * ms);
    tick.Due(1000 * ms);
    tick.Due(1010 * ms);
    tick.Due(1019 * ms);
    EXPECT_EQ(tick.CountOf(0), 1);
}

TEST(FrameClock, FiftyFramesASecondAreDueEveryTwentyMilliseconds) {
    clsTick tick;
    tick.Add(50, false);
    tick.start(1000 * ms);
    std::string due;
    for (std::int64_t at = 1000; at <= 1060; at += 10) due += tick.Due(at * ms) == 0 ? "x" : ".";
    EXPECT_EQ(due, "x.x.x.x");
    EXPECT_EQ(tick.CountOf(0), 4);
}

TEST(FrameClock, TheStreamThatIsDueSoonestComesFirstAndTheEarlierWinsATie) {
    clsTick tick;
    tick.Add(50, false);
    tick.Add(40, false);
    tick.start(1000 * ms);
    EXPECT_EQ(tick.Due(1000 * ms), 0);
    EXPECT_EQ(tick.Due(1000 * ms), 1);
    EXPECT_EQ(tick.Due(1000 * ms), -1);
    EXPECT_EQ(tick.Due(1030 * ms), 0); // due at 1020
    EXPECT_EQ(tick.Due(1030 * ms), 1); // due at 1025
}

TEST(FrameClock, ALittleLateCatchesUpAndMuchLateStartsOver) {
    clsTick tick;
    tick.Add(50, false);
    tick.start(1000 * ms);
    EXPECT_EQ(tick.Due(1100 * ms), 0);
    EXPECT_EQ(tick.Due(1100 * ms), 0); // 1020, 1040 ... are made up for
    EXPECT_EQ(tick.Due(1900 * ms), 0);
    EXPECT_EQ(tick.Due(1900 * ms), -1); // more than a fifth of a second: from now on
    EXPECT_EQ(tick.Due(1920 * ms), 0);
}

TEST(FrameClock, AFifthOfASecondLateIsStillMadeUpFor) {
    clsTick tick;
    tick.Add(50, false);
    tick.start(1000 * ms);
    EXPECT_EQ(tick.Due(1200 * ms), 0);
    EXPECT_EQ(tick.Due(1200 * ms), 0);
    clsTick other;
    other.Add(50, false);
    other.start(1000 * ms);
    EXPECT_EQ(other.Due(1200 * ms + 1), 0);
    EXPECT_EQ(other.Due(1200 * ms + 1), -1);
}

TEST(FrameClock, AStreamWithTheSkipFlagNeverStartsOver) {
    clsTick tick;
    tick.Add(50, true);
    tick.start(1000 * ms);
    EXPECT_EQ(tick.Due(1900 * ms), 0);
    EXPECT_EQ(tick.Due(1900 * ms), 0);
}

} // namespace
} // namespace quill
