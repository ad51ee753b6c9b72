#include "app/qt_main_loop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include <chrono>
#include <memory>
#include <thread>
#include <vector>

namespace vantor::qt_main_loop_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class QtMainLoopTest : public testing::Test {
  protected:
    std::unique_ptr<QtMainLoop> loop = std::make_unique<QtMainLoop>();
    std::vector<int> ran;

    Task note(int number) {
        return [this, number] { ran.push_back(number); };
    }
    /// Runs the toolkit's loop until `count` tasks have run.
    void runUntil(std::size_t count) {
        QElapsedTimer patience;
        patience.start();
        while (ran.size() < count && !patience.hasExpired(5000)) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        }
    }
    static void turn() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
};

TEST_F(QtMainLoopTest, RunsTasksInTheOrderPosted) {
    for (const int number : {1, 2, 3})
        loop->post(note(number));
    EXPECT_THAT(ran, IsEmpty()) << "never from within the call";
    turn();
    EXPECT_THAT(ran, ElementsAre(1, 2, 3));
}

TEST_F(QtMainLoopTest, TasksPostedByATaskRunInALaterTurn) {
    loop->post([this] {
        loop->post(note(2));
        ran.push_back(1);
    });
    runUntil(2);
    EXPECT_THAT(ran, ElementsAre(1, 2));
}

TEST_F(QtMainLoopTest, TasksFromOtherThreadsRunOnTheMainOne) {
    const QThread* const main = QThread::currentThread();
    const QThread* seen = nullptr;
    std::thread poster([&] {
        loop->post([&] {
            seen = QThread::currentThread();
            ran.push_back(1);
        });
        loop->post(note(2));
    });
    poster.join();
    runUntil(2);
    EXPECT_THAT(ran, ElementsAre(1, 2));
    EXPECT_EQ(seen, main);
}

TEST_F(QtMainLoopTest, KeepsEachThreadsOrderWhenManyPost) {
    constexpr int perThread = 500;
    constexpr std::size_t all = 4 * std::size_t{perThread};
    std::vector<std::thread> posters;
    posters.reserve(4);
    for (int thread = 0; thread < 4; ++thread) {
        posters.emplace_back([this, thread] {
            for (int i = 0; i < perThread; ++i)
                loop->post(note(thread * perThread + i));
        });
    }
    runUntil(all);
    for (std::thread& poster : posters)
        poster.join();
    runUntil(all);
    ASSERT_EQ(ran.size(), all);
    std::array<int, 4> last{-1, -1, -1, -1};
    for (const int number : ran) {
        int& before = last.at(static_cast<std::size_t>(number / perThread));
        EXPECT_LT(before, number % perThread);
        before = number % perThread;
    }
}

TEST_F(QtMainLoopTest, ATaskThatRunsALoopOfItsOwnSkipsNobody) {
    loop->post([this] {
        ran.push_back(1);
        loop->post(note(3));
        turn();  // as a dialog does
    });
    loop->post(note(2));
    turn();
    EXPECT_THAT(ran, testing::UnorderedElementsAre(1, 2, 3));
}

TEST_F(QtMainLoopTest, WhatComesShortlyBeforeATimerWaitsForIt) {
    loop->runAfter(20ms, note(3));
    loop->post(note(1));
    loop->post(note(2));
    turn();
    EXPECT_THAT(ran, IsEmpty()) << "woken although the timer is close";
    runUntil(3);
    EXPECT_THAT(ran, ElementsAre(1, 2, 3));
}

TEST_F(QtMainLoopTest, WhatComesLongBeforeATimerDoesNotWait) {
    const auto timer = loop->runAfter(1h, note(2));
    loop->post(note(1));
    turn();
    EXPECT_THAT(ran, ElementsAre(1));
    loop->cancel(timer);
}

TEST_F(QtMainLoopTest, WhoseTimerIsCancelledWaitsNoLonger) {
    const auto timer = loop->runAfter(20ms, note(2));
    loop->post(note(1));
    loop->cancel(timer);
    turn();
    EXPECT_THAT(ran, ElementsAre(1));
}

TEST_F(QtMainLoopTest, ATaskOfATimerThatRunsALoopOfItsOwnKeepsNobodyWaiting) {
    loop->runAfter(0ms, [this] {
        loop->post(note(1));
        turn();  // as a dialog does
        ran.push_back(2);
    });
    runUntil(2);
    EXPECT_THAT(ran, ElementsAre(1, 2));
}

TEST_F(QtMainLoopTest, TimersAreNeverEarlyAndHardlyLate) {
    QElapsedTimer watch;
    watch.start();
    loop->runAfter(30ms, note(1));
    runUntil(1);
    EXPECT_GE(watch.nsecsElapsed(), std::chrono::nanoseconds(30ms).count());
    EXPECT_LT(watch.elapsed(), 1000);
}

TEST_F(QtMainLoopTest, TimersRoundFractionsOfAMillisecondUp) {
    QElapsedTimer watch;
    watch.start();
    loop->runAfter(10ms + 900us, note(1));
    runUntil(1);
    EXPECT_GE(watch.nsecsElapsed(), std::chrono::nanoseconds(10ms + 900us).count());
}

TEST_F(QtMainLoopTest, TimersRunInTheOrderOfTheirTimes) {
    loop->runAfter(30ms, note(2));
    loop->runAfter(5ms, note(1));
    runUntil(2);
    EXPECT_THAT(ran, ElementsAre(1, 2));
}

TEST_F(QtMainLoopTest, ADelayBelowZeroIsNone) {
    EXPECT_NE(loop->runAfter(-5s, note(1)), 0u);
    EXPECT_THAT(ran, IsEmpty());
    runUntil(1);
    EXPECT_THAT(ran, ElementsAre(1));
}

TEST_F(QtMainLoopTest, ATimerRunsOnce) {
    loop->runAfter(0ms, note(1));
    loop->runAfter(20ms, note(2));
    runUntil(2);
    EXPECT_THAT(ran, ElementsAre(1, 2));
}

TEST_F(QtMainLoopTest, CancelledTimersNeverRun) {
    const auto timer = loop->runAfter(0ms, note(1));
    loop->runAfter(10ms, note(2));
    loop->cancel(timer);
    runUntil(1);
    EXPECT_THAT(ran, ElementsAre(2));
}

TEST_F(QtMainLoopTest, CancellingAnUnknownOrFinishedTimerIsIgnored) {
    const auto timer = loop->runAfter(0ms, note(1));
    runUntil(1);
    loop->cancel(timer);
    loop->cancel(12345);
    EXPECT_THAT(ran, ElementsAre(1));
}

TEST_F(QtMainLoopTest, ATimersTaskMayCancelItselfAndStartAnother) {
    MainLoop::TimerID timer = 0;
    timer = loop->runAfter(0ms, [&] {
        loop->cancel(timer);
        ran.push_back(1);
        loop->runAfter(0ms, note(2));
    });
    runUntil(2);
    EXPECT_THAT(ran, ElementsAre(1, 2));
}

TEST_F(QtMainLoopTest, CancellingEndsTheTask) {
    const auto held = std::make_shared<int>(1);
    const auto timer = loop->runAfter(1h, [held] {});
    EXPECT_EQ(held.use_count(), 2);
    loop->cancel(timer);
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(QtMainLoopTest, WhatIsLeftWhenTheLoopEndsIsDropped) {
    const auto held = std::make_shared<int>(1);
    loop->post([this, held] { ran.push_back(1); });
    loop->runAfter(0ms, [this, held] { ran.push_back(2); });
    loop.reset();
    turn();
    EXPECT_THAT(ran, IsEmpty());
    EXPECT_EQ(held.use_count(), 1);
}

}  // namespace
}  // namespace vantor::qt_main_loop_test
