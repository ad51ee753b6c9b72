#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <limits>

#include "sampling/fake_world.h"
#include "support/named_row.h"

/// The refresh loop and the staged start of the slow providers.
namespace vantor::system_monitor_loop_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct PaceRow : NamedRow {
    double refreshInterval;
    double fast;
    double systemInfo;
    std::chrono::nanoseconds sleep;
};

class Pace : public testing::TestWithParam<PaceRow> {};

TEST_P(Pace, FollowsFromTheRefreshInterval) {
    EXPECT_EQ(SystemMonitor::fastInterval(GetParam().refreshInterval), GetParam().fast);
    EXPECT_EQ(SystemMonitor::systemInfoInterval(GetParam().refreshInterval), GetParam().systemInfo);
    EXPECT_EQ(SystemMonitor::loopSleep(GetParam().refreshInterval), GetParam().sleep);
}

TEST_P(Pace, IsThatOfTheLoop) {
    FakeWorld world(GetParam().refreshInterval);
    world.start();
    world.advance(2 * GetParam().sleep);
    EXPECT_THAT(world.submissionTimes("cpu"), ElementsAre(0, GetParam().fast, 2 * GetParam().fast));
}

INSTANTIATE_TEST_SUITE_P(
    SystemMonitor, Pace,
    testing::Values(PaceRow{{"TooShort"}, 0.1, 0.5, 5, 500ms}, PaceRow{{"Zero"}, 0, 0.5, 5, 500ms},
                    PaceRow{{"Negative"}, -3, 0.5, 5, 500ms},
                    PaceRow{{"Shortest"}, 0.5, 0.5, 5, 500ms}, PaceRow{{"Ordinary"}, 2, 2, 5, 2s},
                    PaceRow{{"LongerThanTheSystemInfos"}, 7, 7, 7, 7s},
                    PaceRow{{"Longest"}, 10, 10, 10, 10s}, PaceRow{{"TooLong"}, 60, 10, 10, 10s},
                    PaceRow{{"NotANumber"}, notANumber, 1, 5, 1s},
                    PaceRow{{"Infinite"}, infinity, 1, 5, 1s},
                    PaceRow{{"MinusInfinite"}, -infinity, 1, 5, 1s}),
    rowName<PaceRow>);

TEST(SystemMonitor, AsksNobodyUntilItIsStarted) {
    FakeWorld world;
    world.advance(1min);
    EXPECT_THAT(world.queues->labels(), IsEmpty());
    EXPECT_FALSE(world.monitor->isMonitoring());
    EXPECT_FALSE(world.monitor->isPaused());
    EXPECT_EQ(world.monitor->generation(), 0u);
    EXPECT_EQ(world.state(), DashboardState{});
}

TEST(SystemMonitor, StartAsksTheFastGroupInOrderInTheNextTurn) {
    FakeWorld world;
    world.monitor->start();
    EXPECT_THAT(world.takeSubmissions(), IsEmpty());
    EXPECT_TRUE(world.monitor->isMonitoring());
    EXPECT_EQ(world.monitor->generation(), 1u);
    world.settle();
    EXPECT_THAT(world.takeSubmissions(), ElementsAreArray(fastGroup));
}

TEST(SystemMonitor, StartingTwiceMakesOneLoop) {
    FakeWorld world;
    world.monitor->start();
    world.start();
    world.monitor->start();
    world.advance(3s);
    EXPECT_EQ(world.monitor->generation(), 1u);
    EXPECT_THAT(world.submissionTimes("memory"), ElementsAre(0, 1, 2, 3));
}

TEST(SystemMonitor, StartWhilePausedDoesNothing) {
    FakeWorld world;
    world.monitor->togglePause();
    world.settle();
    world.takeSubmissions();
    world.start();
    world.advance(10s);
    EXPECT_FALSE(world.monitor->isMonitoring());
    EXPECT_EQ(world.monitor->generation(), 1u);
    EXPECT_THAT(world.takeSubmissions(), IsEmpty());
}

TEST(SystemMonitor, FirstTickIsForced) {
    FakeWorld world;
    world.start();
    world.monitor->togglePause();
    world.monitor->togglePause();  // within the interval of the reading just made
    world.settle();
    EXPECT_THAT(world.submissionTimes("memory"), ElementsAre(0, 0));
}

TEST(SystemMonitor, TickAsksTheFastGroupAndOnceStagedTheSlowOne) {
    FakeWorld world;
    world.start();
    world.advance(1999ms);
    world.takeSubmissions();
    world.advance(1ms);
    // The volumes' 15 s and the power's 10 s are not over, nor the system information's 5 s.
    EXPECT_THAT(world.takeSubmissions(),
                ElementsAre("cpu", "memory", "network", "processes", "gpu"));
}

TEST(SystemMonitor, ProviderThatIsStillReadingIsSkippedByTheTicks) {
    FakeWorld world;
    world.providersRun = false;
    world.start();
    world.advance(30s);
    for (const std::string& provider : allProviders) {
        EXPECT_EQ(world.waiting(provider), 1u) << provider;
    }
    EXPECT_TRUE(world.monitor->isMonitoring());
}

TEST(SystemMonitor, SystemInfoIsAskedEveryFiveSecondsAtMost) {
    FakeWorld world(0.5);
    world.start();
    world.advance(20s);
    EXPECT_THAT(world.submissionTimes("system"), ElementsAre(0, 5, 10, 15, 20));
}

TEST(SystemMonitor, SystemInfoFollowsAnIntervalLongerThanItsOwn) {
    FakeWorld world(10);
    world.start();
    world.advance(30s);
    EXPECT_THAT(world.submissionTimes("system"), ElementsAre(0, 10, 20, 30));
}

TEST(SystemMonitor, SlowProvidersAreStagedIn) {
    FakeWorld world(10);
    world.start();
    world.advance(9s);
    EXPECT_THAT(world.submissionTimes("processes"), ElementsAre(0.3));
    EXPECT_THAT(world.submissionTimes("gpu"), ElementsAre(0.6));
    EXPECT_THAT(world.submissionTimes("power"), ElementsAre(0.9));
    EXPECT_THAT(world.submissionTimes("storage"), ElementsAre(1.2));
}

TEST(SystemMonitor, SlowProvidersJoinTheTicksAfterTheFourthStage) {
    FakeWorld world(0.5);
    world.start();
    world.advance(1200ms - 1ns);
    EXPECT_FALSE(world.monitor->slowProvidersEnabled());
    world.advance(1ns);
    EXPECT_TRUE(world.monitor->slowProvidersEnabled());
    world.advance(1300ms);
    EXPECT_THAT(world.submissionTimes("processes"), ElementsAre(0.3, 1.5, 2.0, 2.5));
    EXPECT_THAT(world.submissionTimes("gpu"), ElementsAre(0.6, 1.5, 2.0, 2.5));
}

TEST(SystemMonitor, VolumesAndPowerKeepTheirOwnPace) {
    FakeWorld world;
    world.start();
    world.advance(50s);
    EXPECT_THAT(world.submissionTimes("power"), ElementsAre(0.9, 11, 21, 31, 41));
    EXPECT_THAT(world.submissionTimes("storage"), ElementsAre(1.2, 17, 32, 47));
}

TEST(SystemMonitor, StagesAreForced) {
    FakeWorld world;
    world.start();
    world.providersRun = false;
    world.monitor->forceRefresh();
    world.advance(1200ms);
    for (const std::string provider : {"processes", "gpu", "power", "storage"}) {
        EXPECT_EQ(world.waiting(provider), 2u) << provider;
    }
}

TEST(SystemMonitor, FirstTickDuringALiveResizeAsksNobodyButStagesTheSlowGroup) {
    FakeWorld world(10);
    world.monitor->setDashboardLiveResizeActive(true);
    world.start();
    EXPECT_THAT(world.takeSubmissions(), IsEmpty());
    world.monitor->setDashboardLiveResizeActive(false);
    world.advance(2s);
    EXPECT_THAT(world.takeSubmissions(), ElementsAre("processes", "gpu", "power", "storage"));
    EXPECT_TRUE(world.monitor->slowProvidersEnabled());
}

TEST(SystemMonitor, StageDuringALiveResizeIsSkippedForGood) {
    FakeWorld world(10);
    world.start();
    world.advance(500ms);
    world.monitor->setDashboardLiveResizeActive(true);
    world.advance(500ms);  // the stages of graphics and power pass by
    world.monitor->setDashboardLiveResizeActive(false);
    world.advance(8s);
    EXPECT_THAT(world.submissionTimes("processes"), ElementsAre(0.3));
    EXPECT_THAT(world.submissionTimes("gpu"), IsEmpty());
    EXPECT_THAT(world.submissionTimes("power"), IsEmpty());
    EXPECT_THAT(world.submissionTimes("storage"), ElementsAre(1.2));
    EXPECT_TRUE(world.monitor->slowProvidersEnabled());
    world.advance(1s);
    EXPECT_THAT(world.submissionTimes("gpu"), ElementsAre(10));
}

TEST(SystemMonitor, TicksDuringALiveResizeAskNobodyButGoOn) {
    FakeWorld world;
    world.start();
    world.advance(2500ms);
    world.takeSubmissions();
    world.monitor->setDashboardLiveResizeActive(true);
    world.advance(4s);
    EXPECT_THAT(world.takeSubmissions(), IsEmpty());
    EXPECT_TRUE(world.monitor->isMonitoring());
    world.monitor->setDashboardLiveResizeActive(false);
    EXPECT_THAT(world.takeSubmissions(), IsEmpty());
    world.advance(500ms);
    EXPECT_THAT(world.submissionTimes("cpu"), ElementsAre(0, 1, 2, 7));
}

}  // namespace
}  // namespace vantor::system_monitor_loop_test
