#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "sampling/commit.h"
#include "sampling/fake_world.h"
#include "sampling/sample_records.h"
#include "support/named_row.h"

/// The length of the histories, and the live resize that holds commits back.
namespace vantor::system_monitor_history_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct LengthRow : NamedRow {
    std::int64_t historyLength;
    std::size_t expected;
};

class HistoryLength : public testing::TestWithParam<LengthRow> {};

/// Commits `count` readings of everything with a history; the usages count up from 0.
void commitReadings(FakeWorld& world, int count) {
    for (int i = 0; i < count; ++i) {
        world.receiveCPU(cpuReading(i));
        world.monitor->receiveMemory(memoryReading(1, 2), world.monitor->generation());
        world.monitor->receiveNetwork(networkReading(1, 2), world.monitor->generation());
        world.monitor->receiveGPUs(std::vector{gpuDevice("a", 0.5)}, world.monitor->generation());
        world.advance(commitDelay);
    }
}

TEST_P(HistoryLength, BoundsEachHistory) {
    FakeWorld world;
    world.settings->setHistoryLength(GetParam().historyLength);
    commitReadings(world, 310);
    for (const auto* history :
         {&world.histories().cpu, &world.histories().memory, &world.histories().download,
          &world.histories().upload, &world.histories().gpu}) {
        EXPECT_THAT(*history, SizeIs(GetParam().expected));
    }
    EXPECT_EQ(world.histories().cpu.back(), 309);
    EXPECT_EQ(world.histories().cpu.front(), 310 - static_cast<double>(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(SystemMonitor, HistoryLength,
                         testing::Values(LengthRow{{"TooShort"}, 10, 30},
                                         LengthRow{{"Within"}, 120, 120},
                                         LengthRow{{"TooLong"}, 1000, 300}),
                         rowName<LengthRow>);

TEST(SystemMonitor, ShorterHistoryTrimsInTheNextTurnAndPublishesOnce) {
    FakeWorld world;
    commitReadings(world, 60);
    const Revisions revisions = world.revisions();
    const Timestamp timestamp = world.state().snapshot.timestamp;
    world.publications = 0;
    world.settings->setHistoryLength(40);
    EXPECT_THAT(world.histories().cpu, SizeIs(60));
    world.settle();
    EXPECT_EQ(world.publications, 1);
    EXPECT_THAT(world.histories().cpu, SizeIs(40));
    EXPECT_EQ(world.histories().cpu.front(), 20);
    EXPECT_THAT(world.histories().gpu, SizeIs(40));
    EXPECT_EQ(world.revisions(), revisions);
    EXPECT_EQ(world.state().snapshot.timestamp, timestamp);
}

TEST(SystemMonitor, HistoryLengthThatTrimsNothingPublishesNothing) {
    FakeWorld world;
    commitReadings(world, 60);
    const DashboardState before = world.state();
    world.publications = 0;
    world.settings->setHistoryLength(60);
    world.settings->setHistoryLength(200);
    world.settings->setHistoryLength(200);
    world.settle();
    EXPECT_EQ(world.publications, 0);
    EXPECT_EQ(world.state(), before);
}

TEST(SystemMonitor, ShortestHistoryIsThirtyHoweverShortTheSettingIs) {
    FakeWorld world;
    commitReadings(world, 60);
    world.settings->setHistoryLength(1);
    world.settle();
    EXPECT_THAT(world.histories().cpu, SizeIs(30));
}

TEST(SystemMonitor, EachOfTwoChangesInOneTurnTrims) {
    FakeWorld world;
    commitReadings(world, 60);
    world.settings->setHistoryLength(40);
    world.settings->setHistoryLength(90);
    world.settle();
    EXPECT_THAT(world.histories().cpu, SizeIs(40));
}

TEST(SystemMonitor, HistoryIsTrimmedWhilePaused) {
    FakeWorld world;
    commitReadings(world, 60);
    world.monitor->togglePause();
    world.settings->setHistoryLength(30);
    world.settle();
    EXPECT_THAT(world.histories().memory, SizeIs(30));
}

TEST(SystemMonitor, LiveResizeGathersResultsAndItsEndCommitsThemAtOnce) {
    FakeWorld world;
    world.monitor->setDashboardLiveResizeActive(true);
    world.receiveCPU(cpuReading(0.1));
    world.advance(1s);
    world.receiveCPU(cpuReading(0.2));
    world.monitor->receiveMemory(memoryReading(1, 2), 0);
    world.advance(1s);
    EXPECT_EQ(world.publications, 0);
    world.monitor->setDashboardLiveResizeActive(false);
    EXPECT_EQ(world.publications, 1);
    EXPECT_THAT(world.histories().cpu, ElementsAre(0.2));
    EXPECT_THAT(world.histories().memory, ElementsAre(0.5));
    EXPECT_EQ(world.loop->timerCount(), 0u);
}

TEST(SystemMonitor, LiveResizeCallsAScheduledCommitOff) {
    FakeWorld world;
    world.receiveCPU(cpuReading(0.1));
    world.monitor->setDashboardLiveResizeActive(true);
    EXPECT_EQ(world.loop->timerCount(), 0u);
    world.advance(1s);
    EXPECT_EQ(world.publications, 0);
    world.monitor->setDashboardLiveResizeActive(false);
    EXPECT_EQ(world.publications, 1);
}

TEST(SystemMonitor, ResultAfterALiveResizeWaitsForItsOwnCommit) {
    FakeWorld world;
    world.monitor->setDashboardLiveResizeActive(true);
    world.monitor->setDashboardLiveResizeActive(false);
    EXPECT_EQ(world.publications, 0);
    world.receiveCPU(cpuReading(0.1));
    EXPECT_EQ(world.publications, 0);
    world.advance(commitDelay);
    EXPECT_EQ(world.publications, 1);
}

TEST(SystemMonitor, RepeatedLiveResizeSwitchIsIgnored) {
    FakeWorld world;
    world.receiveCPU(cpuReading(0.1));
    world.monitor->setDashboardLiveResizeActive(false);
    EXPECT_EQ(world.publications, 0);
    world.advance(commitDelay);
    EXPECT_EQ(world.publications, 1);
    EXPECT_FALSE(world.monitor->isDashboardLiveResizeActive());
}

TEST(SystemMonitor, PauseDuringALiveResizeForgetsWhatIsGathered) {
    FakeWorld world;
    world.monitor->setDashboardLiveResizeActive(true);
    world.receiveCPU(cpuReading(0.1));
    world.monitor->togglePause();
    world.monitor->setDashboardLiveResizeActive(false);
    world.advance(1s);
    EXPECT_EQ(world.publications, 0);
    EXPECT_THAT(world.histories().cpu, IsEmpty());
}

}  // namespace
}  // namespace vantor::system_monitor_history_test
