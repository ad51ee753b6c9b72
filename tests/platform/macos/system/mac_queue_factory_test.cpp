#include "platform/macos/system/mac_queue_factory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>
#include <memory>
#include <utility>
#include <vector>

#include "platform/macos/fake_dispatcher.h"

namespace vantor::mac_queue_factory_test {
namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;

constexpr auto patience = 10s;

/// Waits until all that was submitted so far has run.
void drain(SerialQueue& queue) {
    std::promise<void> reached;
    queue.submit([&] { reached.set_value(); });
    ASSERT_EQ(reached.get_future().wait_for(patience), std::future_status::ready);
}

TEST(MacQueueFactory, MakesLabelledQueuesOfUtilityQuality) {
    MacQueueFactory factory;
    const auto queue = factory.makeQueue("com.kestrone.Vantor.provider.cpu");
    const auto asked = fake_dispatcher::asked();
    EXPECT_THAT(asked.labels, Contains("com.kestrone.Vantor.provider.cpu"));
    EXPECT_EQ(asked.quality, QOS_CLASS_UTILITY);
}

TEST(MacQueueFactory, RunsTasksInOrderWithinTheirSurroundings) {
    std::vector<int> order;
    MacQueueFactory factory([&](Task& task) {
        order.push_back(-1);
        task();
        order.push_back(-2);
    });
    auto queue = factory.makeQueue("order");
    queue->submit([&] { order.push_back(1); });
    queue->submit([&] { order.push_back(2); });
    queue.reset();
    ASSERT_TRUE(factory.waitForThreads(patience));
    EXPECT_THAT(order, ElementsAre(-1, 1, -2, -1, 2, -2));
}

TEST(MacQueueFactory, LetsGoOfATaskBeforeTheNextOneRuns) {
    MacQueueFactory factory;
    const auto queue = factory.makeQueue("order");
    auto owned = std::make_shared<int>(1);
    const std::weak_ptr<int> seen = owned;
    queue->submit([kept = std::move(owned)] { (void)kept; });
    bool isGone = false;
    queue->submit([&] { isGone = seen.expired(); });
    drain(*queue);
    EXPECT_TRUE(isGone);
}

TEST(MacQueueFactory, RunsWhatWasSubmittedBeforeTheQueueWentAway) {
    MacQueueFactory factory;
    auto queue = factory.makeQueue("short");
    std::promise<void> mayGoOn;
    std::promise<void> hasRun;
    queue->submit([&] { mayGoOn.get_future().wait(); });
    queue->submit([&] { hasRun.set_value(); });
    queue.reset();  // does not wait for either
    EXPECT_FALSE(factory.waitForThreads(0ms)) << "while a task is at work";
    mayGoOn.set_value();
    EXPECT_EQ(hasRun.get_future().wait_for(patience), std::future_status::ready);
    EXPECT_TRUE(factory.waitForThreads(patience));
}

TEST(MacQueueFactory, WaitsForNothingWhenThereIsNoQueue) {
    MacQueueFactory factory;
    EXPECT_TRUE(factory.waitForThreads(0ms));
    auto queue = factory.makeQueue("idle");
    EXPECT_FALSE(factory.waitForThreads(0ms)) << "it may still be given work";
    queue.reset();
    EXPECT_TRUE(factory.waitForThreads(patience));
}

TEST(MacQueueFactory, MayBeGoneBeforeItsQueues) {
    auto factory = std::make_unique<MacQueueFactory>();
    auto queue = factory->makeQueue("orphan");
    factory.reset();
    drain(*queue);
}

TEST(MacQueueFactory, ReleasesEveryQueueOnce) {
    MacQueueFactory factory;
    const auto before = fake_dispatcher::asked();
    for (int i = 0; i < 8; ++i)
        factory.makeQueue("many")->submit([] {});
    EXPECT_TRUE(factory.waitForThreads(patience));
    const auto after = fake_dispatcher::asked();
    EXPECT_EQ(after.created - before.created, 8);
    EXPECT_EQ(after.released - before.released, 8);
    EXPECT_GE(after.ended - before.ended, 8);
}

}  // namespace
}  // namespace vantor::mac_queue_factory_test
