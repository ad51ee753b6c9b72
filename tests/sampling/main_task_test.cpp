#include "sampling/main_task.h"

#include <gtest/gtest.h>

#include <chrono>

#include "platform/simulated/fake_main_loop.h"

namespace vantor::main_task_test {
namespace {

using namespace std::chrono_literals;

struct TaskWorld {
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<FakeMainLoop> loop = std::make_shared<FakeMainLoop>(clock);
    std::shared_ptr<MainTask> task = std::make_shared<MainTask>(loop);
    int steps = 0;

    Task count() {
        return [this] { ++steps; };
    }
    void wind(std::chrono::nanoseconds by) {
        clock->wind(by);
        while (loop->runDueTimer()) {
        }
    }
};

TEST(MainTask, PostedStepRunsInTheNextTurn) {
    TaskWorld world;
    world.task->post(world.count());
    EXPECT_EQ(world.steps, 0);
    world.loop->runPosted();
    EXPECT_EQ(world.steps, 1);
}

TEST(MainTask, SleepingStepRunsWhenItsTimeHasCome) {
    TaskWorld world;
    world.task->sleep(30ms, world.count());
    world.wind(30ms - 1ns);
    EXPECT_EQ(world.steps, 0);
    world.wind(1ns);
    EXPECT_EQ(world.steps, 1);
}

TEST(MainTask, CancelledOneSkipsAStepThatIsAlreadyPosted) {
    TaskWorld world;
    world.task->post(world.count());
    world.task->cancel();
    EXPECT_TRUE(world.task->isCancelled());
    world.loop->runPosted();
    EXPECT_EQ(world.steps, 0);
}

TEST(MainTask, CancelledOneTakesItsTimerOutOfTheLoop) {
    TaskWorld world;
    world.task->sleep(30ms, world.count());
    world.task->cancel();
    EXPECT_EQ(world.loop->timerCount(), 0u);
}

TEST(MainTask, CancelledOneAcceptsNoMoreSteps) {
    TaskWorld world;
    world.task->cancel();
    world.task->post(world.count());
    world.task->sleep(0ns, world.count());
    EXPECT_EQ(world.loop->timerCount(), 0u);
    EXPECT_EQ(world.loop->runPosted(), 0u);
}

TEST(MainTask, StepMayCancelItsOwnTask) {
    TaskWorld world;
    world.task->sleep(1ms, [&world] {
        world.task->cancel();
        world.task->sleep(1ms, world.count());
        ++world.steps;
    });
    world.wind(1s);
    EXPECT_EQ(world.steps, 1);
}

TEST(MainTask, CancelAfterAStepLeavesOtherTimersAlone) {
    TaskWorld world;
    world.task->sleep(1ms, world.count());
    world.wind(1ms);
    world.loop->runAfter(1ms, world.count());
    world.task->cancel();
    EXPECT_EQ(world.loop->timerCount(), 1u);
}

TEST(MainTask, StepKeepsTheTaskAliveUntilItHasRun) {
    TaskWorld world;
    const std::weak_ptr<MainTask> weak = world.task;
    world.task->sleep(1ms, world.count());
    world.task.reset();
    EXPECT_FALSE(weak.expired());
    world.wind(1ms);
    EXPECT_EQ(world.steps, 1);
    EXPECT_TRUE(weak.expired());
}

TEST(MainTask, CancelledOneDoesNotKeepTheLoop) {
    TaskWorld world;
    const std::weak_ptr<FakeMainLoop> loop = world.loop;
    // A step that never runs and owns its task, as the refresh loop's steps do.
    world.task->post([task = world.task] { static_cast<void>(task); });
    cancelTask(world.task);
    EXPECT_EQ(world.task, nullptr);
    world.loop.reset();
    EXPECT_TRUE(loop.expired());
}

}  // namespace
}  // namespace vantor::main_task_test
