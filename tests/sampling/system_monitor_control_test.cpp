#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "sampling/fake_world.h"
#include "sampling/sample_records.h"

/// Pause, manual refresh, a change of the interval, and the monitor's end.
namespace vantor::system_monitor_control_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::SizeIs;

TEST(SystemMonitor, PauseStopsTheLoop) {
    FakeWorld world;
    world.start();
    world.advance(3s);
    world.monitor->togglePause();
    world.settle();
    world.takeSubmissions();
    EXPECT_TRUE(world.monitor->isPaused());
    EXPECT_FALSE(world.monitor->isMonitoring());
    EXPECT_FALSE(world.monitor->slowProvidersEnabled());
    EXPECT_EQ(world.monitor->generation(), 2u);
    EXPECT_EQ(world.loop->timerCount(), 0u);
    world.advance(1min);
    EXPECT_THAT(world.takeSubmissions(), IsEmpty());
}

TEST(SystemMonitor, PauseIsPublishedBeforeAndAfter) {
    FakeWorld world;
    std::vector<bool> told;
    const auto observation =
        world.monitor->isPausedStream().observe([&](bool paused) { told.push_back(paused); });
    world.monitor->togglePause();
    world.monitor->togglePause();
    EXPECT_THAT(told, ElementsAre(true, false));
}

TEST(SystemMonitor, PauseDuringTheStagingCancelsIt) {
    FakeWorld world;
    world.start();
    world.advance(700ms);
    world.monitor->togglePause();
    world.advance(1min);
    EXPECT_THAT(world.submissionTimes("processes"), ElementsAre(0.3, 0.7));  // 0.7: the reset
    EXPECT_THAT(world.submissionTimes("gpu"), ElementsAre(0.6));
    EXPECT_THAT(world.submissionTimes("power"), IsEmpty());
    EXPECT_THAT(world.submissionTimes("storage"), IsEmpty());
    EXPECT_FALSE(world.monitor->slowProvidersEnabled());
}

TEST(SystemMonitor, PauseBeforeTheFirstTickAsksNobody) {
    FakeWorld world;
    world.monitor->start();
    world.monitor->togglePause();
    world.advance(1min);
    EXPECT_THAT(world.submissionTimes("memory"), IsEmpty());
    EXPECT_EQ(world.monitor->generation(), 2u);
}

TEST(SystemMonitor, ResumeStartsAgainWithTheStaging) {
    FakeWorld world;
    world.start();
    world.advance(5s);
    world.monitor->togglePause();
    world.advance(5s);
    world.monitor->togglePause();
    world.settle();
    EXPECT_EQ(world.monitor->generation(), 3u);
    EXPECT_TRUE(world.monitor->isMonitoring());
    EXPECT_FALSE(world.monitor->slowProvidersEnabled());
    world.advance(1200ms);
    EXPECT_TRUE(world.monitor->slowProvidersEnabled());
    EXPECT_THAT(world.submissionTimes("gpu"), ElementsAre(0.6, 2, 3, 4, 5, 10.6));
    EXPECT_THAT(world.submissionTimes("memory"), ElementsAre(0, 1, 2, 3, 4, 5, 10, 11));
}

TEST(SystemMonitor, QuickPauseAndResumeLeavesOneLoop) {
    FakeWorld world;
    world.monitor->start();
    for (int i = 0; i < 4; ++i)
        world.monitor->togglePause();
    world.settle();
    EXPECT_THAT(world.submissionTimes("memory"), ElementsAre(0));
    world.advance(2s);
    EXPECT_THAT(world.submissionTimes("memory"), ElementsAre(0, 1, 2));
    EXPECT_EQ(world.monitor->generation(), 5u);
}

TEST(SystemMonitor, ResumeMeasuresFromANewBaseline) {
    FakeWorld world;
    world.start();
    world.advance(1100ms);
    EXPECT_THAT(world.histories().cpu, ElementsAre(0.4));
    world.monitor->togglePause();
    // What is spent during the pause belongs to no interval.
    world.machine->hostProcessors().total.user += 1'000'000;
    world.monitor->togglePause();
    world.advance(100ms);
    EXPECT_THAT(world.histories().cpu, ElementsAre(0.4));
    world.advance(1s);
    EXPECT_THAT(world.histories().cpu, ElementsAre(0.4, 0.4));
}

TEST(SystemMonitor, ResultAskedForBeforeAPauseAndDeliveredAfterItIsDropped) {
    FakeWorld world;
    world.start();
    world.providersRun = false;
    world.advance(1s);
    EXPECT_EQ(world.waiting("cpu"), 1u);
    const int publications = world.publications;
    world.monitor->togglePause();
    world.providersRun = true;
    world.advance(1s);
    EXPECT_EQ(world.waiting("cpu"), 0u);
    EXPECT_EQ(world.machine->hostProcessors().totalReads, 2);
    EXPECT_EQ(world.publications, publications);
}

TEST(SystemMonitor, PauseForgetsWhatIsNotCommitted) {
    FakeWorld world;
    world.start();
    world.receiveCPU(cpuReading(0.9));
    world.monitor->togglePause();
    world.advance(1s);
    world.monitor->togglePause();
    world.advance(1500ms);
    EXPECT_THAT(world.histories().cpu, ElementsAre(0.4));
}

TEST(SystemMonitor, ForceRefreshStartsTheLoopAndNothingElse) {
    FakeWorld world;
    world.monitor->forceRefresh();
    world.settle();
    EXPECT_TRUE(world.monitor->isMonitoring());
    EXPECT_THAT(world.takeSubmissions(), ElementsAreArray(fastGroup));
}

TEST(SystemMonitor, ForceRefreshAsksAllProvidersInOrder) {
    FakeWorld world;
    world.start();
    world.takeSubmissions();
    world.monitor->forceRefresh();
    EXPECT_THAT(world.takeSubmissions(), ElementsAreArray(allProviders));
    EXPECT_EQ(world.monitor->generation(), 1u);
}

TEST(SystemMonitor, ForceRefreshQueuesOneRunBehindAnother) {
    FakeWorld world;
    world.providersRun = false;
    world.start();
    for (int i = 0; i < 5; ++i)
        world.monitor->forceRefresh();
    for (const std::string& provider : allProviders) {
        EXPECT_EQ(world.waiting(provider), 2u) << provider;
    }
}

TEST(SystemMonitor, ForceRefreshWhilePausedAsksAllProvidersAndTakesTheirResults) {
    FakeWorld world;
    world.start();
    world.monitor->togglePause();
    world.settle();
    world.takeSubmissions();
    world.monitor->forceRefresh();
    EXPECT_THAT(world.takeSubmissions(), ElementsAreArray(allProviders));
    world.settle();
    world.monitor->forceRefresh();
    world.advance(1s);
    EXPECT_THAT(world.histories().cpu, ElementsAre(0.4));
    EXPECT_FALSE(world.monitor->isMonitoring());
    EXPECT_TRUE(world.monitor->isPaused());
}

TEST(SystemMonitor, ForceRefreshWorksDuringALiveResize) {
    FakeWorld world;
    world.start();
    world.takeSubmissions();
    world.monitor->setDashboardLiveResizeActive(true);
    world.monitor->forceRefresh();
    EXPECT_THAT(world.takeSubmissions(), ElementsAreArray(allProviders));
}

TEST(SystemMonitor, ChangedIntervalRestartsInTheNextTurn) {
    FakeWorld world(10);
    world.start();
    world.advance(3s);
    world.settings->setRefreshInterval(2);
    EXPECT_EQ(world.monitor->generation(), 1u);
    world.settle();
    EXPECT_EQ(world.monitor->generation(), 3u);
    EXPECT_FALSE(world.monitor->slowProvidersEnabled());
    world.advance(4s);
    EXPECT_THAT(world.submissionTimes("memory"), ElementsAre(0, 3, 5, 7));
    // At 5 s the processes' staged reading is only 1.7 s old; at 3 s their baseline is forgotten.
    EXPECT_THAT(world.submissionTimes("processes"), ElementsAre(0.3, 3, 3.3, 7));
    EXPECT_TRUE(world.monitor->slowProvidersEnabled());
}

TEST(SystemMonitor, ChangedIntervalDropsWhatIsUnderWay) {
    FakeWorld world(10);
    world.start();
    world.advance(2s);
    world.receiveCPU(cpuReading(0.9));
    world.settings->setRefreshInterval(5);
    world.advance(1s);
    EXPECT_THAT(world.histories().cpu, IsEmpty());
    EXPECT_EQ(world.revisions().cpu, 0u);
}

TEST(SystemMonitor, EqualIntervalDoesNotRestart) {
    FakeWorld world(2);
    world.start();
    world.settings->setRefreshInterval(2);
    world.settle();
    EXPECT_EQ(world.monitor->generation(), 1u);
}

TEST(SystemMonitor, ChangedIntervalWhileIdleOrPausedStartsNothing) {
    FakeWorld world(2);
    world.settings->setRefreshInterval(1);
    world.settle();
    EXPECT_EQ(world.monitor->generation(), 0u);
    world.start();
    world.monitor->togglePause();
    world.settings->setRefreshInterval(5);
    world.settle();
    EXPECT_EQ(world.monitor->generation(), 2u);
    EXPECT_FALSE(world.monitor->isMonitoring());
}

TEST(SystemMonitor, ChangedIntervalHoldsForTheNextStart) {
    FakeWorld world(2);
    world.settings->setRefreshInterval(5);
    world.start();
    world.advance(10s);
    EXPECT_THAT(world.submissionTimes("memory"), ElementsAre(0, 5, 10));
}

TEST(SystemMonitor, EndTakesItsTimersAlong) {
    FakeWorld world;
    world.start();
    world.receiveCPU(cpuReading(0.5));
    EXPECT_EQ(world.loop->timerCount(), 3u);  // the next tick, the next stage and a commit
    const std::weak_ptr<SystemMonitor> monitor = world.monitor;
    world.monitor.reset();
    EXPECT_TRUE(monitor.expired());
    EXPECT_EQ(world.loop->timerCount(), 0u);
}

TEST(SystemMonitor, EndLeavesNothingForPostedWorkToDo) {
    FakeWorld world;
    world.monitor->start();
    world.settings->setRefreshInterval(7);
    world.settings->setHistoryLength(40);
    world.monitor.reset();
    world.advance(1min);
    EXPECT_THAT(world.takeSubmissions(), IsEmpty());
    world.settings->setRefreshInterval(8);  // there is no observer any more
    EXPECT_EQ(world.loop->runPosted(), 0u);
}

TEST(SystemMonitor, EndSkipsTheQueuedReadings) {
    FakeWorld world;
    world.providersRun = false;
    world.start();
    EXPECT_EQ(world.waiting("cpu"), 1u);
    world.monitor.reset();
    world.providersRun = true;
    world.settle();
    EXPECT_EQ(world.machine->hostProcessors().totalReads, 0);
}

TEST(SystemMonitor, ResultForAMonitorThatIsGoneIsLost) {
    FakeWorld world;
    world.start();
    world.advance(990ms);
    world.providersRun = false;
    world.advance(10ms);
    world.queues->runWaiting();  // its answers are on their way to the main thread
    const int publications = world.publications;
    world.monitor.reset();
    world.advance(1min);
    EXPECT_EQ(world.publications, publications);
}

}  // namespace
}  // namespace vantor::system_monitor_control_test
