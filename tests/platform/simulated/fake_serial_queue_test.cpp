#include "platform/simulated/fake_serial_queue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vantor::fake_serial_queue_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FakeSerialQueueTest : public testing::Test {
  protected:
    auto note(const std::string& text) {
        return [this, text] { ran.push_back(text); };
    }

    FakeSerialQueueFactory factory;
    std::vector<std::string> ran;
};

TEST_F(FakeSerialQueueTest, ListsItsLabelsInTheOrderOfMaking) {
    const auto b = factory.makeQueue("b");
    const auto a = factory.makeQueue("a");
    EXPECT_THAT(factory.labels(), ElementsAre("b", "a"));
}

TEST_F(FakeSerialQueueTest, RunsTheOldestTaskOfTheLabelTold) {
    const auto a = factory.makeQueue("a");
    const auto b = factory.makeQueue("b");
    a->submit(note("a1"));
    b->submit(note("b1"));
    a->submit(note("a2"));
    EXPECT_THAT(ran, IsEmpty());
    EXPECT_EQ(factory.waiting("a"), 2U);
    EXPECT_TRUE(factory.runNext("a"));
    EXPECT_THAT(ran, ElementsAre("a1"));
    EXPECT_EQ(factory.waiting("a"), 1U);
    EXPECT_EQ(factory.waiting("b"), 1U);
}

TEST_F(FakeSerialQueueTest, HasNothingToRunForAnIdleOrUnknownLabel) {
    const auto a = factory.makeQueue("a");
    EXPECT_FALSE(factory.runNext("a"));
    EXPECT_FALSE(factory.runNext("nobody"));
    EXPECT_EQ(factory.waiting("nobody"), 0U);
}

TEST_F(FakeSerialQueueTest, RunsEverythingQueueByQueue) {
    const auto b = factory.makeQueue("b");
    const auto a = factory.makeQueue("a");
    a->submit(note("a1"));
    b->submit(note("b1"));
    b->submit(note("b2"));
    EXPECT_EQ(factory.runWaiting(), 3U);
    EXPECT_THAT(ran, ElementsAre("b1", "b2", "a1"));
}

TEST_F(FakeSerialQueueTest, LeavesWhatATaskSubmitsToItsOwnQueue) {
    const auto a = factory.makeQueue("a");
    a->submit([&] { a->submit(note("later")); });
    EXPECT_EQ(factory.runWaiting(), 1U);
    EXPECT_THAT(ran, IsEmpty());
    EXPECT_EQ(factory.waiting("a"), 1U);
}

TEST_F(FakeSerialQueueTest, KeepsTheTasksOfAQueueThatIsGone) {
    factory.makeQueue("a")->submit(note("a1"));
    EXPECT_EQ(factory.waiting("a"), 1U);
    EXPECT_TRUE(factory.runNext("a"));
    EXPECT_THAT(ran, ElementsAre("a1"));
}

TEST(FakeSerialQueue, MayOutliveItsFactory) {
    std::unique_ptr<SerialQueue> queue;
    {
        FakeSerialQueueFactory factory;
        queue = factory.makeQueue("a");
    }
    queue->submit([] {});
}

}  // namespace
}  // namespace vantor::fake_serial_queue_test
