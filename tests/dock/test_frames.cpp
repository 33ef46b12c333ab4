#include "dock/frames.h"

#include "containers/workspace_fixture.h"

namespace quill::test {
namespace {

struct Frames : WorkspaceFixture {
    int slides = 0, effects = 0;

    void StartSlide() {
        StartFrames(Main, FrameStream::Slide, 50, [this](frmMain&) { ++slides; });
    }
    void StartEffect(int perSecond = 40) {
        StartFrames(Main, FrameStream::Effect, perSecond, [this](frmMain&) { ++effects; });
    }
};

TEST_F(Frames, TheFirstComesAfterOnePeriodAndTheClockRestsWhenNothingMoves) {
    StartSlide();
    Wait(19);
    EXPECT_EQ(slides, 0);
    Wait(1);
    EXPECT_EQ(slides, 1);
    Wait(980);
    EXPECT_EQ(slides, 50);
    StopFrames(Main, FrameStream::Slide);
    EXPECT_FALSE(FramesRun(Main, FrameStream::Slide));
    EXPECT_EQ(computer.Clock.FramesWanted(), 0);
    Wait(1000);
    EXPECT_EQ(slides, 50);
}

TEST_F(Frames, StreamsOfFortyAndFiftyAtTheSameTimeKeepTheirRates) {
    StartSlide();
    StartEffect();
    Wait(1000);
    EXPECT_EQ(slides, 50);
    EXPECT_EQ(effects, 40);
}

TEST_F(Frames, AStreamThatComesAndGoesLeavesTheOthersTheirRate) {
    StartSlide();
    Wait(310);
    StartEffect();
    Wait(333);
    StopFrames(Main, FrameStream::Effect);
    Wait(357);
    EXPECT_NEAR(slides, 50, 1);
    EXPECT_NEAR(effects, 13, 1);
}

TEST_F(Frames, ALateStreamCatchesUp) {
    StartSlide();
    computer.Clock.OnFrame = nullptr; // the interface is held up
    Wait(100);
    fake::Connect(computer, &Main);
    EXPECT_EQ(slides, 0);
    Wait(20);
    EXPECT_EQ(slides, 6);
}

TEST_F(Frames, AStreamThatIsMuchTooLateStartsOver) {
    StartSlide();
    computer.Clock.OnFrame = nullptr;
    Wait(1000);
    fake::Connect(computer, &Main);
    Wait(20);
    EXPECT_EQ(slides, 1);
    Wait(100);
    EXPECT_EQ(slides, 6);
}

TEST_F(Frames, AStepMayStopItsOwnStreamAlsoWhenItIsLate) {
    int steps = 0;
    StartFrames(Main, FrameStream::Effect, 50, [&](frmMain& main) {
        if (++steps == 2) StopFrames(main, FrameStream::Effect);
    });
    computer.Clock.OnFrame = nullptr;
    Wait(100);
    fake::Connect(computer, &Main);
    Wait(200);
    EXPECT_EQ(steps, 2);
}

TEST_F(Frames, AStepMayStartItsStreamOverAtAnotherRate) {
    StartFrames(Main, FrameStream::Effect, 50, [this](frmMain&) { StartEffect(40); });
    Wait(20);
    EXPECT_EQ(computer.Clock.FramesWanted(), 40);
    Wait(1000);
    EXPECT_EQ(effects, 40);
}

TEST_F(Frames, StartingAStreamAgainReplacesItsStep) {
    StartSlide();
    int others = 0;
    StartFrames(Main, FrameStream::Slide, 50, [&](frmMain&) { ++others; });
    Wait(100);
    EXPECT_EQ(slides, 0);
    EXPECT_EQ(others, 5);
}

TEST_F(Frames, ARateThatIsNotAboveZeroStartsNothing) {
    StartEffect(0);
    StartEffect(-40);
    EXPECT_FALSE(FramesRun(Main, FrameStream::Effect));
    EXPECT_EQ(computer.Clock.FramesWanted(), 0);
}

TEST_F(Frames, NothingMovesAnyMoreOnceTheProgramEnds) {
    StartSlide();
    Main.IsExiting = true;
    Wait(100);
    EXPECT_EQ(slides, 0);
}

} // namespace
} // namespace quill::test
