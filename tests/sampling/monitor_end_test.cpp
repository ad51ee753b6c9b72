#include <gtest/gtest.h>

#include "sampling/fake_world.h"

namespace vantor::monitor_end_test {
namespace {

TEST(SystemMonitor, EndSkipsTheQueuedReadingsEvenWhileAnotherOneKeepsTheSampler) {
    FakeWorld world;
    world.providersRun = false;
    world.start();
    ASSERT_EQ(world.waiting("memory"), 1u);
    // The processor's reading is under way when the monitor goes, and keeps the sampler until the
    // other queues have had their turn.
    std::size_t answersOfOthers = 0;
    world.machine->hostProcessors().onTotalTicks = [&] {
        world.monitor.reset();
        for (const char* provider : {"memory", "network", "system"}) {
            world.queues->runNext(queueLabel(provider));
        }
        answersOfOthers = world.loop->runPosted();
    };
    world.queues->runNext(queueLabel("cpu"));
    EXPECT_EQ(world.monitor, nullptr);
    EXPECT_EQ(answersOfOthers, 0u);
}

}  // namespace
}  // namespace vantor::monitor_end_test
