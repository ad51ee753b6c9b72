#include "platform/simulated/fake_main_loop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <vector>

namespace vantor::fake_main_loop_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class FakeMainLoopTest : public testing::Test {
  protected:
    auto note(int number) {
        return [this, number] { ran.push_back(number); };
    }

    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    FakeMainLoop loop{clock};
    std::vector<int> ran;
};

TEST_F(FakeMainLoopTest, RunsPostedTasksInOrderAndOnlyWhenTold) {
    loop.post(note(1));
    loop.post(note(2));
    EXPECT_THAT(ran, IsEmpty());
    EXPECT_EQ(loop.runPosted(), 2U);
    EXPECT_THAT(ran, ElementsAre(1, 2));
    EXPECT_EQ(loop.runPosted(), 0U);
}

TEST_F(FakeMainLoopTest, LeavesWhatATaskPostsForTheNextTime) {
    loop.post([this] { loop.post(note(2)); });
    EXPECT_EQ(loop.runPosted(), 1U);
    EXPECT_THAT(ran, IsEmpty());
    EXPECT_EQ(loop.runPosted(), 1U);
    EXPECT_THAT(ran, ElementsAre(2));
}

TEST_F(FakeMainLoopTest, RunsATimerOnceItIsDue) {
    loop.runAfter(100ms, note(1));
    clock->wind(99ms);
    EXPECT_FALSE(loop.runDueTimer());
    clock->wind(1ms);
    EXPECT_TRUE(loop.runDueTimer());
    EXPECT_FALSE(loop.runDueTimer());
    EXPECT_THAT(ran, ElementsAre(1));
}

TEST_F(FakeMainLoopTest, RunsTimersByDueTimeThenByAge) {
    loop.runAfter(20ms, note(3));
    loop.runAfter(10ms, note(1));
    loop.runAfter(10ms, note(2));
    clock->wind(1s);
    while (loop.runDueTimer()) {
    }
    EXPECT_THAT(ran, ElementsAre(1, 2, 3));
}

TEST_F(FakeMainLoopTest, TakesANegativeDelayForNone) {
    loop.runAfter(-5s, note(1));
    EXPECT_EQ(loop.nextDue(), clock->now());
    EXPECT_TRUE(loop.runDueTimer());
}

TEST_F(FakeMainLoopTest, TellsWhenTheNextTimerIsDue) {
    EXPECT_EQ(loop.nextDue(), std::chrono::nanoseconds::max());
    loop.runAfter(50ms, note(1));
    const auto earlier = loop.runAfter(20ms, note(2));
    EXPECT_EQ(loop.nextDue(), clock->now() + 20ms);
    loop.cancel(earlier);
    EXPECT_EQ(loop.nextDue(), clock->now() + 50ms);
    EXPECT_EQ(loop.timerCount(), 1U);
}

TEST_F(FakeMainLoopTest, ForgetsACancelledTimerAndIgnoresUnknownOnes) {
    const auto held = std::make_shared<int>(0);
    const auto timer = loop.runAfter(1ms, [held] {});
    EXPECT_NE(timer, 0U);
    EXPECT_EQ(held.use_count(), 2);
    loop.cancel(timer);
    EXPECT_EQ(held.use_count(), 1);
    loop.cancel(timer);
    loop.cancel(0);
    clock->wind(1s);
    EXPECT_FALSE(loop.runDueTimer());
}

TEST_F(FakeMainLoopTest, LetsATimerCancelItselfAndArmAnother) {
    MainLoop::TimerID timer = 0;
    timer = loop.runAfter(1ms, [&] {
        loop.cancel(timer);
        loop.runAfter(1ms, note(2));
    });
    clock->wind(1ms);
    EXPECT_TRUE(loop.runDueTimer());
    EXPECT_FALSE(loop.runDueTimer());
    clock->wind(1ms);
    EXPECT_TRUE(loop.runDueTimer());
    EXPECT_THAT(ran, ElementsAre(2));
}

TEST(FakeClock, MovesOnlyWhenAdvancedAndNeverStartsAtZero) {
    FakeClock clock;
    const auto start = clock.now();
    EXPECT_GT(start, 0ns);
    EXPECT_EQ(clock.now(), start);
    clock.wind(1500ms);
    EXPECT_EQ(clock.now(), start + 1500ms);
    clock.setNow(90s);
    EXPECT_EQ(clock.seconds(), 90.0);
}

}  // namespace
}  // namespace vantor::fake_main_loop_test
