#include "platform/threads/threaded_serial_queue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <numeric>
#include <string>
#include <thread>
#include <vector>

namespace vantor::threaded_serial_queue_test {
namespace {

using namespace std::chrono_literals;

constexpr auto patience = 30s;  // a bound for a machine gone mad, never waited for

class ThreadedSerialQueueTest : public testing::Test {
  protected:
    /// Runs a task on the queue to its end and gives its result.
    template <class F>
    static auto runOn(SerialQueue& queue, F work) {
        std::promise<decltype(work())> promise;
        auto result = promise.get_future();
        queue.submit([&promise, &work] { promise.set_value(work()); });
        EXPECT_EQ(result.wait_for(patience), std::future_status::ready);
        return result.get();
    }

    ThreadedSerialQueueFactory factory;
};

TEST_F(ThreadedSerialQueueTest, RunsItsTasksInOrderOneAtATime) {
    const auto queue = factory.makeQueue("order");
    std::vector<int> ran;  // unguarded: one thread and one task at a time need no lock
    for (int i = 0; i < 1000; ++i)
        queue->submit([&ran, i] { ran.push_back(i); });
    runOn(*queue, [] { return 0; });
    std::vector<int> expected(1000);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(ran, expected);
}

TEST_F(ThreadedSerialQueueTest, RunsAllItsTasksOnOneThreadOfItsOwn) {
    const auto queue = factory.makeQueue("one");
    const auto other = factory.makeQueue("two");
    const auto thread = [] { return std::this_thread::get_id(); };
    const auto first = runOn(*queue, thread);
    EXPECT_EQ(runOn(*queue, thread), first);
    EXPECT_NE(first, std::this_thread::get_id());
    EXPECT_NE(first, runOn(*other, thread));
}

TEST_F(ThreadedSerialQueueTest, DoesNotWaitForATaskThatHangs) {
    std::promise<void> release;
    auto released = release.get_future().share();
    std::promise<void> started;
    std::atomic<bool> ranAfterwards = false;
    {
        const auto stuck = factory.makeQueue("stuck");
        stuck->submit([&started, released] {
            started.set_value();
            released.wait();
        });
        stuck->submit([&ranAfterwards] { ranAfterwards = true; });
        started.get_future().wait();
        const auto healthy = factory.makeQueue("healthy");
        EXPECT_EQ(runOn(*healthy, [] { return 5; }), 5);
    }  // both queues end here, with the task still hanging
    EXPECT_FALSE(ranAfterwards);
    EXPECT_FALSE(factory.waitForThreads(0ms));
    release.set_value();
    EXPECT_TRUE(factory.waitForThreads(patience));
    EXPECT_TRUE(ranAfterwards) << "what was submitted still runs";
}

TEST_F(ThreadedSerialQueueTest, LetsGoOfATasksBelongingsBeforeTheNextTaskRuns) {
    const auto queue = factory.makeQueue("tidy");
    auto owned = std::make_shared<int>(1);
    const std::weak_ptr<int> watched = owned;
    std::promise<void> bothSubmitted;
    queue->submit(
        [owned = std::move(owned), gate = bothSubmitted.get_future().share()] { gate.wait(); });
    std::promise<bool> wasGone;
    queue->submit([&] { wasGone.set_value(watched.expired()); });
    bothSubmitted.set_value();
    EXPECT_TRUE(wasGone.get_future().get());
}

TEST_F(ThreadedSerialQueueTest, StartsNoThreadWithoutATask) {
    const auto queue = factory.makeQueue("idle");
    EXPECT_TRUE(factory.waitForThreads(0ms));
}

TEST_F(ThreadedSerialQueueTest, EndsItsThreadOnceTheQueueIsGone) {
    auto queue = factory.makeQueue("short");
    runOn(*queue, [] { return 0; });
    EXPECT_FALSE(factory.waitForThreads(0ms));
    queue.reset();
    EXPECT_TRUE(factory.waitForThreads(patience));
}

TEST_F(ThreadedSerialQueueTest, LetsATaskSubmitToItsOwnQueue) {
    const auto queue = factory.makeQueue("self");
    std::promise<int> promise;
    queue->submit([&] { queue->submit([&] { promise.set_value(3); }); });
    EXPECT_EQ(promise.get_future().get(), 3);
}

TEST_F(ThreadedSerialQueueTest, TakesTasksFromSeveralThreads) {
    const auto queue = factory.makeQueue("many");
    int count = 0;  // unguarded on purpose, see above
    std::vector<std::thread> submitters;
    for (int i = 0; i < 4; ++i) {
        submitters.emplace_back([&] {
            for (int k = 0; k < 250; ++k)
                queue->submit([&count] { ++count; });
        });
    }
    for (auto& submitter : submitters)
        submitter.join();
    runOn(*queue, [] { return 0; });
    EXPECT_EQ(count, 1000);
}

TEST(ThreadPriority, IsTakenOnceOnEachNewThreadBeforeItsFirstTask) {
    std::vector<std::string> roles;
    ThreadedSerialQueueFactory factory([&](const std::string& label) { roles.push_back(label); });
    std::size_t takenBefore = 0;
    {
        const auto queue = factory.makeQueue("com.example.cpu");
        queue->submit([&] { takenBefore = roles.size(); });
        queue->submit([] {});
    }
    ASSERT_TRUE(factory.waitForThreads(patience));
    EXPECT_EQ(takenBefore, 1U);
    EXPECT_EQ(roles, std::vector<std::string>{"com.example.cpu"});
}

}  // namespace
}  // namespace vantor::threaded_serial_queue_test
