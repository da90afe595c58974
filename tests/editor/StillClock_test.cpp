#include "editor/StillClock.h"

#include <gtest/gtest.h>
#include <string>

namespace tintora {
namespace {

using std::chrono::milliseconds;

class StillClockTest : public testing::Test {
  protected:
    std::unique_ptr<DelayTimer> TimerThatWrites(int interval, char letter) {
        return clock.MakeTimer(milliseconds(interval), [this, letter] { fired.push_back(letter); });
    }

    StillClock clock;
    std::string fired;
};

TEST_F(StillClockTest, ANewTimerDoesNotRun) {
    const auto timer = TimerThatWrites(10, 'a');
    EXPECT_FALSE(timer->IsRunning());
    clock.Advance(milliseconds(100));
    EXPECT_EQ(fired, "");
}

TEST_F(StillClockTest, ATimerFiresWhenItsIntervalHasPassedAndNotBefore) {
    const auto timer = TimerThatWrites(10, 'a');
    timer->Restart();
    clock.Advance(milliseconds(9));
    EXPECT_EQ(fired, "");
    EXPECT_TRUE(timer->IsRunning());
    clock.Advance(milliseconds(1));
    EXPECT_EQ(fired, "a");
}

TEST_F(StillClockTest, ATimerFiresOnceForEachStart) {
    const auto timer = TimerThatWrites(10, 'a');
    timer->Restart();
    clock.Advance(milliseconds(100));
    EXPECT_EQ(fired, "a");
    EXPECT_FALSE(timer->IsRunning());
    timer->Restart();
    clock.Advance(milliseconds(10));
    EXPECT_EQ(fired, "aa");
}

TEST_F(StillClockTest, ARestartBeginsTheFullIntervalAnew) {
    const auto timer = TimerThatWrites(10, 'a');
    timer->Restart();
    clock.Advance(milliseconds(9));
    timer->Restart();
    clock.Advance(milliseconds(9));
    EXPECT_EQ(fired, "");
    clock.Advance(milliseconds(1));
    EXPECT_EQ(fired, "a");
}

TEST_F(StillClockTest, AStoppedTimerNeverFires) {
    const auto timer = TimerThatWrites(10, 'a');
    timer->Restart();
    timer->Stop();
    EXPECT_FALSE(timer->IsRunning());
    clock.Advance(milliseconds(100));
    EXPECT_EQ(fired, "");
}

TEST_F(StillClockTest, TimersFireInTheOrderOfTheirTimes) {
    const auto late = TimerThatWrites(30, 'c');
    const auto early = TimerThatWrites(10, 'a');
    const auto middle = TimerThatWrites(20, 'b');
    late->Restart();
    middle->Restart();
    early->Restart();
    clock.Advance(milliseconds(30));
    EXPECT_EQ(fired, "abc");
}

TEST_F(StillClockTest, OfTwoAtTheSameTimeTheOneStartedFirstFiresFirst) {
    const auto made = TimerThatWrites(20, 'b');
    const auto started = TimerThatWrites(20, 'a');
    started->Restart();
    made->Restart();
    clock.Advance(milliseconds(20));
    EXPECT_EQ(fired, "ab");
}

TEST_F(StillClockTest, ATimerHasStoppedWhenItsHandlerRuns) {
    bool isRunning = true;
    std::unique_ptr<DelayTimer> timer;
    timer = clock.MakeTimer(milliseconds(10), [&] { isRunning = timer->IsRunning(); });
    timer->Restart();
    clock.Advance(milliseconds(10));
    EXPECT_FALSE(isRunning);
}

TEST_F(StillClockTest, AHandlerThatRestartsItsTimerIsCalledAgainWithinTheSameMove) {
    std::unique_ptr<DelayTimer> timer;
    timer = clock.MakeTimer(milliseconds(10), [&] {
        fired.push_back('a');
        timer->Restart();
    });
    timer->Restart();
    clock.Advance(milliseconds(35));
    EXPECT_EQ(fired, "aaa");
    clock.Advance(milliseconds(5));
    EXPECT_EQ(fired, "aaaa");
}

TEST_F(StillClockTest, AHandlerThatStopsAnotherTimerKeepsItFromFiring) {
    const auto other = TimerThatWrites(20, 'b');
    const auto timer = clock.MakeTimer(milliseconds(10), [&] { other->Stop(); });
    other->Restart();
    timer->Restart();
    clock.Advance(milliseconds(50));
    EXPECT_EQ(fired, "");
}

TEST_F(StillClockTest, ATimerThatIsGoneDoesNotFire) {
    auto timer = TimerThatWrites(10, 'a');
    timer->Restart();
    timer.reset();
    clock.Advance(milliseconds(50));
    EXPECT_EQ(fired, "");
}

}  // namespace
}  // namespace tintora
