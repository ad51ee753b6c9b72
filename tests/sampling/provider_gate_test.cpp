#include "sampling/provider_gate.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>

#include "platform/simulated/simulated_machine.h"
#include "support/named_row.h"

namespace vantor::provider_gate_test {
namespace {

using namespace std::chrono_literals;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct GateWorld {
    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    ProviderGate gate{SimulatedMachine::laptop(clock)};

    void runOnce() {
        ASSERT_TRUE(gate.begin(0, true));
        ASSERT_TRUE(gate.startRun());
        gate.finish();
    }
};

struct FirstRequestRow : NamedRow {
    double minimumInterval;
};

class FirstRequest : public testing::TestWithParam<FirstRequestRow> {};

TEST_P(FirstRequest, IsAdmittedWithoutForce) {
    GateWorld world;
    EXPECT_TRUE(world.gate.begin(GetParam().minimumInterval, false));
    EXPECT_EQ(world.gate.outstandingRuns(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    ProviderGate, FirstRequest,
    testing::Values(FirstRequestRow{{"OfASecond"}, 1.0}, FirstRequestRow{{"OfAnAge"}, 1e300},
                    FirstRequestRow{{"OfTheLargestNumber"}, std::numeric_limits<double>::max()},
                    FirstRequestRow{{"OfInfinity"}, infinity},
                    FirstRequestRow{{"OfNotANumber"}, notANumber}),
    rowName<FirstRequestRow>);

struct IntervalRow : NamedRow {
    double minimumInterval;
    std::chrono::milliseconds sinceStart;
    bool admitted;
};

class IntervalOfAGate : public testing::TestWithParam<IntervalRow> {};

TEST_P(IntervalOfAGate, DecidesAnUnforcedRequest) {
    GateWorld world;
    world.runOnce();
    world.clock->wind(GetParam().sinceStart);
    EXPECT_EQ(world.gate.begin(GetParam().minimumInterval, false), GetParam().admitted);
    EXPECT_EQ(world.gate.outstandingRuns(), GetParam().admitted ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    ProviderGate, IntervalOfAGate,
    testing::Values(IntervalRow{{"ShortOneIsFlooredBefore"}, 0.01, 50ms, false},
                    IntervalRow{{"ShortOneIsFlooredAt"}, 0.01, 100ms, true},
                    IntervalRow{{"ZeroIsFlooredBefore"}, 0.0, 99ms, false},
                    IntervalRow{{"ZeroIsFlooredAt"}, 0.0, 100ms, true},
                    IntervalRow{{"NegativeIsFlooredBefore"}, -5.0, 99ms, false},
                    IntervalRow{{"NegativeIsFlooredAt"}, -5.0, 100ms, true},
                    IntervalRow{{"InfinityIsTheFloorBefore"}, infinity, 99ms, false},
                    IntervalRow{{"InfinityIsTheFloorAt"}, infinity, 100ms, true},
                    IntervalRow{{"MinusInfinityIsTheFloorBefore"}, -infinity, 99ms, false},
                    IntervalRow{{"MinusInfinityIsTheFloorAt"}, -infinity, 100ms, true},
                    IntervalRow{{"NotANumberIsTheFloorBefore"}, notANumber, 99ms, false},
                    IntervalRow{{"NotANumberIsTheFloorAt"}, notANumber, 100ms, true},
                    IntervalRow{{"LongOneHoldsBefore"}, 2.5, 2499ms, false},
                    IntervalRow{{"LongOneIsOverAt"}, 2.5, 2500ms, true},
                    IntervalRow{{"LongOneIsOverAfter"}, 2.5, 9s, true}),
    rowName<IntervalRow>);

TEST(ProviderGate, ForcedRequestIgnoresTheInterval) {
    GateWorld world;
    world.runOnce();
    EXPECT_FALSE(world.gate.begin(60, false));
    EXPECT_TRUE(world.gate.begin(60, true));
}

TEST(ProviderGate, UnforcedRequestIsRefusedBehindARunHoweverLongItTakes) {
    GateWorld world;
    ASSERT_TRUE(world.gate.begin(1, false));
    ASSERT_TRUE(world.gate.startRun());
    world.clock->wind(1h);
    EXPECT_FALSE(world.gate.begin(1, false));
    EXPECT_EQ(world.gate.outstandingRuns(), 1);
}

TEST(ProviderGate, OneForcedRequestWaitsBehindARunAndTheNextIsRefused) {
    GateWorld world;
    ASSERT_TRUE(world.gate.begin(1, false));
    EXPECT_TRUE(world.gate.begin(1, true));
    EXPECT_EQ(world.gate.outstandingRuns(), 2);
    EXPECT_FALSE(world.gate.begin(1, true));
    EXPECT_FALSE(world.gate.begin(1, false));
    EXPECT_EQ(world.gate.outstandingRuns(), 2);
}

TEST(ProviderGate, AnotherForcedRequestMayWaitOnceTheFirstRunIsOver) {
    GateWorld world;
    ASSERT_TRUE(world.gate.begin(1, true));
    ASSERT_TRUE(world.gate.begin(1, true));
    ASSERT_TRUE(world.gate.startRun());
    world.gate.finish();
    EXPECT_EQ(world.gate.outstandingRuns(), 1);
    EXPECT_TRUE(world.gate.begin(1, true));
    EXPECT_EQ(world.gate.outstandingRuns(), 2);
}

TEST(ProviderGate, WaitingInTheQueueDoesNotCountAgainstTheInterval) {
    GateWorld world;
    ASSERT_TRUE(world.gate.begin(1, false));
    world.clock->wind(10s);
    ASSERT_TRUE(world.gate.startRun());
    world.gate.finish();
    world.clock->wind(999ms);
    EXPECT_FALSE(world.gate.begin(1, false));
    world.clock->wind(1ms);
    EXPECT_TRUE(world.gate.begin(1, false));
}

TEST(ProviderGate, RunThatNeverStartedDoesNotPutTheNextOneOff) {
    GateWorld world;
    ASSERT_TRUE(world.gate.begin(1, false));
    world.gate.finish();
    EXPECT_TRUE(world.gate.begin(1, false));
}

TEST(ProviderGate, IntervalCountsFromTheStartOfARunNotFromItsEnd) {
    GateWorld world;
    ASSERT_TRUE(world.gate.begin(1, false));
    ASSERT_TRUE(world.gate.startRun());
    world.clock->wind(2s);
    world.gate.finish();
    EXPECT_TRUE(world.gate.begin(1, false));
}

TEST(ProviderGate, RefusalDoesNotPutTheNextRunOff) {
    GateWorld world;
    world.runOnce();
    world.clock->wind(900ms);
    EXPECT_FALSE(world.gate.begin(1, false));
    world.clock->wind(100ms);
    EXPECT_TRUE(world.gate.begin(1, false));
}

TEST(ProviderGate, InvalidatedOneAdmitsNothing) {
    GateWorld world;
    world.gate.invalidate();
    EXPECT_FALSE(world.gate.begin(1, false));
    EXPECT_FALSE(world.gate.begin(1, true));
    EXPECT_EQ(world.gate.outstandingRuns(), 0);
}

TEST(ProviderGate, InvalidatedOneEndsWaitingRunsWithoutStartingThem) {
    GateWorld world;
    ASSERT_TRUE(world.gate.begin(1, true));
    ASSERT_TRUE(world.gate.begin(1, true));
    world.gate.invalidate();
    EXPECT_FALSE(world.gate.startRun());
    EXPECT_EQ(world.gate.outstandingRuns(), 1);
    EXPECT_FALSE(world.gate.startRun());
    EXPECT_EQ(world.gate.outstandingRuns(), 0);
    EXPECT_FALSE(world.gate.startRun());
    EXPECT_EQ(world.gate.outstandingRuns(), 0);
}

TEST(ProviderGate, RunThatWasGoingWhenInvalidatedStillBalances) {
    GateWorld world;
    ASSERT_TRUE(world.gate.begin(1, true));
    ASSERT_TRUE(world.gate.startRun());
    world.gate.invalidate();
    world.gate.finish();
    EXPECT_EQ(world.gate.outstandingRuns(), 0);
}

TEST(ProviderGate, CountNeverFallsBelowZero) {
    GateWorld world;
    world.gate.finish();
    EXPECT_EQ(world.gate.outstandingRuns(), 0);
    EXPECT_TRUE(world.gate.begin(1, false));
    EXPECT_EQ(world.gate.outstandingRuns(), 1);
}

}  // namespace
}  // namespace vantor::provider_gate_test
