#include "support/threaded_main_loop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>
#include <vector>

namespace vantor::threaded_main_loop_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class ThreadedMainLoopTest : public testing::Test {
  protected:
    auto note(int number) {
        return [this, number] { ran.push_back(number); };
    }
    auto stop() {
        return [this] { loop.stop(); };
    }

    ThreadedMainLoop loop;
    std::vector<int> ran;
};

TEST_F(ThreadedMainLoopTest, RunsPostedTasksInOrderOnTheThreadThatRunsIt) {
    std::thread::id thread;
    loop.post(note(1));
    loop.post([&] { thread = std::this_thread::get_id(); });
    loop.post(note(2));
    loop.post(stop());
    loop.run();
    EXPECT_THAT(ran, ElementsAre(1, 2));
    EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST_F(ThreadedMainLoopTest, NeverRunsATaskFromWithinPost) {
    loop.post([this] {
        loop.post(note(2));
        ran.push_back(1);
        loop.post(stop());
    });
    loop.run();
    EXPECT_THAT(ran, ElementsAre(1, 2));
}

TEST_F(ThreadedMainLoopTest, WakesForATaskOfAnotherThread) {
    std::thread poster([this] {
        loop.post(note(1));
        loop.post(stop());
    });
    loop.run();
    poster.join();
    EXPECT_THAT(ran, ElementsAre(1));
}

TEST_F(ThreadedMainLoopTest, RunsTimersByDueTimeAndNotTooEarly) {
    std::chrono::steady_clock::duration waited{};
    // Where something else has the processor in between, the one asked for first may be due first.
    for (bool isInTime = false; !isInTime;) {
        const auto start = std::chrono::steady_clock::now();
        const auto last = loop.runAfter(5ms, [&, start] {
            waited = std::chrono::steady_clock::now() - start;
            ran.push_back(3);
            loop.stop();
        });
        const auto middle = loop.runAfter(1ms, note(2));
        const auto first = loop.runAfter(-1s, note(1));
        isInTime = std::chrono::steady_clock::now() - start < 4ms;
        if (isInTime) continue;
        for (const auto timer : {first, middle, last})
            loop.cancel(timer);
    }
    loop.run();
    EXPECT_THAT(ran, ElementsAre(1, 2, 3));
    EXPECT_GE(waited, 5ms);
}

TEST_F(ThreadedMainLoopTest, DoesNotRunACancelledTimer) {
    const auto owned = std::make_shared<int>(0);
    const auto timer = loop.runAfter(0ms, [this, owned] { ran.push_back(1); });
    EXPECT_NE(timer, 0U);
    loop.cancel(timer);
    EXPECT_EQ(owned.use_count(), 1) << "what it owned goes at once";
    loop.cancel(timer);
    loop.cancel(12345);
    loop.runAfter(1ms, stop());
    loop.run();
    EXPECT_THAT(ran, testing::IsEmpty());
}

TEST_F(ThreadedMainLoopTest, LetsAPostedTaskCancelATimerThatIsDue) {
    const auto timer = loop.runAfter(0ns, note(1));
    loop.post([&] {
        loop.cancel(timer);
        loop.runAfter(0ns, stop());
    });
    loop.run();
    EXPECT_TRUE(ran.empty());
}

TEST_F(ThreadedMainLoopTest, LetsACancelledTaskCallTheLoopAsItGoes) {
    struct PostsWhenGone {
        ThreadedMainLoop& told;
        explicit PostsWhenGone(ThreadedMainLoop& mainLoop) : told(mainLoop) {}
        ~PostsWhenGone() {
            told.post([] {});
        }
    };
    const auto timer = loop.runAfter(1h, [gone = std::make_unique<PostsWhenGone>(loop)] {});
    loop.cancel(timer);
}

TEST_F(ThreadedMainLoopTest, RunsNothingMoreOnceItIsStopped) {
    const auto owned = std::make_shared<int>(0);
    loop.post(note(1));
    loop.post(stop());
    loop.post([this, owned] { ran.push_back(2); });
    loop.runAfter(1h, note(3));
    loop.run();
    EXPECT_THAT(ran, ElementsAre(1));
}

TEST_F(ThreadedMainLoopTest, IsStoppedFromAnotherThread) {
    std::thread stopper([this] { loop.stop(); });
    loop.run();
    stopper.join();
}

TEST_F(ThreadedMainLoopTest, RunsATimerAmongPostedTasks) {
    loop.post([this] {
        ran.push_back(1);
        loop.runAfter(0ms, note(2));
        loop.runAfter(2ms, stop());
    });
    loop.run();
    EXPECT_THAT(ran, ElementsAre(1, 2));
}

}  // namespace
}  // namespace vantor::threaded_main_loop_test
