#include "probes/cpu_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/simulated/simulated_machine.h"

namespace vantor::cpu_reader_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CPUReaderTest : public testing::Test {
  protected:
    /// Nothing of the kernel's may be left with the reader between two reads.
    const CPUStats* read() {
        const CPUStats* stats = reader.read();
        EXPECT_EQ(host.portsOutstanding, 0);
        EXPECT_EQ(host.arraysOutstanding, 0);
        return stats;
    }

    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    SimulatedHostProcessors& host = machine->hostProcessors();
    CPUReader reader{machine};
};

TEST_F(CPUReaderTest, FirstReadStoresABaselineAndTheSecondGivesShares) {
    EXPECT_EQ(read(), nullptr);
    host.spend(0, {10, 5, 80, 5});
    const CPUStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_DOUBLE_EQ(stats->userUsage, 0.15);
    EXPECT_DOUBLE_EQ(stats->systemUsage, 0.05);
    EXPECT_DOUBLE_EQ(stats->idleUsage, 0.80);
    EXPECT_DOUBLE_EQ(stats->totalUsage, 0.20);
}

TEST_F(CPUReaderTest, EachReadReportsTheTimeSinceTheReadBefore) {
    read();
    host.spend(0, {100, 0, 0, 0});
    EXPECT_EQ(read()->totalUsage, 1.0);
    host.spend(0, {0, 0, 100, 0});
    EXPECT_EQ(read()->totalUsage, 0.0);
    host.spend(0, {50, 0, 50, 0});
    EXPECT_EQ(read()->totalUsage, 0.5);
}

TEST_F(CPUReaderTest, ReadWithoutAnElapsedTickGivesNothingAndKeepsTheBaseline) {
    read();
    EXPECT_EQ(read(), nullptr);
    EXPECT_EQ(read(), nullptr);
    host.spend(1, {30, 0, 10, 0});
    const CPUStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->totalUsage, 0.75);
    EXPECT_THAT(stats->perCoreUsage, ElementsAre(0, 0.75, 0, 0));
}

TEST_F(CPUReaderTest, ReadWithoutAnElapsedTickStillTakesTheProcessorsAsTheirBaseline) {
    read();
    host.processors[2].user += 40;  // seen by its own counters one read before the total's
    EXPECT_EQ(read(), nullptr);
    host.spend(0, {10, 0, 10, 0});
    EXPECT_THAT(read()->perCoreUsage, ElementsAre(0.5, 0, 0, 0));
}

TEST_F(CPUReaderTest, CountersThatWrappedGiveASmallDifference) {
    host.total = {4294967290U, 4294967291U, 4294967292U, 4294967293U};
    host.processors[0] = host.total;
    read();
    host.spend(0, {20, 20, 40, 20});
    const CPUStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_DOUBLE_EQ(stats->userUsage, 0.4);
    EXPECT_DOUBLE_EQ(stats->systemUsage, 0.2);
    EXPECT_DOUBLE_EQ(stats->idleUsage, 0.4);
    EXPECT_THAT(stats->perCoreUsage, ElementsAre(0.6, 0, 0, 0));
}

TEST_F(CPUReaderTest, FailedReadOfTheTotalsTouchesNothing) {
    read();
    host.spend(0, {60, 0, 40, 0});
    host.totalFails = true;
    const int processorReads = host.processorReads;
    EXPECT_EQ(read(), nullptr);
    EXPECT_EQ(host.processorReads, processorReads);
    host.totalFails = false;
    const CPUStats* stats = read();
    ASSERT_NE(stats, nullptr) << "the baseline of the first read still counts";
    EXPECT_EQ(stats->totalUsage, 0.6);
    EXPECT_THAT(stats->perCoreUsage, ElementsAre(0.6, 0, 0, 0));
}

TEST_F(CPUReaderTest, FewerThanFourCountersAreAFailedRead) {
    for (const std::size_t counters : {0U, 1U, 3U}) {
        SCOPED_TRACE(counters);
        reader.resetDeltas();
        read();
        host.spend(0, {60, 0, 40, 0});
        host.totalCounters = counters;
        EXPECT_EQ(read(), nullptr);
        host.totalCounters = 4;
        EXPECT_NE(read(), nullptr);
    }
}

TEST_F(CPUReaderTest, FailureOnTheVeryFirstReadLeavesTheNextOneTheFirst) {
    host.totalFails = true;
    EXPECT_EQ(read(), nullptr);
    host.totalFails = false;
    EXPECT_EQ(read(), nullptr);
    host.spend(0, {1, 0, 1, 0});
    EXPECT_NE(read(), nullptr);
}

TEST_F(CPUReaderTest, ResetMakesTheNextReadAFirstOne) {
    read();
    host.spend(0, {50, 0, 50, 0});
    ASSERT_NE(read(), nullptr);
    host.spend(0, {90, 0, 10, 0});
    reader.resetDeltas();
    EXPECT_EQ(read(), nullptr);
    host.spend(0, {25, 0, 75, 0});
    const CPUStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->totalUsage, 0.25);
    EXPECT_THAT(stats->perCoreUsage, ElementsAre(0.25, 0, 0, 0));
}

TEST_F(CPUReaderTest, ResetForgetsTheSharesButNotTheLoadAverages) {
    read();
    host.spend(0, {50, 0, 50, 0});
    ASSERT_NE(read(), nullptr);
    reader.resetDeltas();
    host.processorsFail = true;
    machine->loadAverages().answer = -1;
    read();
    host.spend(0, {50, 0, 50, 0});
    const CPUStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_THAT(stats->perCoreUsage, IsEmpty());
    EXPECT_THAT(stats->loadAverage, ElementsAre(0.5, 0.25, 0.125));
}

TEST(CPUReader, GivesNothingOnAMachineWhereEveryCallFails) {
    CPUReader reader(SimulatedMachine::broken());
    EXPECT_EQ(reader.read(), nullptr);
    EXPECT_EQ(reader.read(), nullptr);
}

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

struct LoadRow {
    const char* name;
    std::vector<double> values;
    int answer;
    std::vector<double> reported;  ///< after 0.5, 0.25, 0.125

    friend void PrintTo(const LoadRow& row, std::ostream* out) { *out << row.name; }
};

class LoadAverageReading : public testing::TestWithParam<LoadRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, LoadAverageReading,
    testing::Values(LoadRow{"Three", {1, 2, 3}, 3, {1, 2, 3}},
                    LoadRow{"Two", {1, 2, nan}, 2, {1, 2}}, LoadRow{"One", {1, nan, nan}, 1, {1}},
                    LoadRow{"MoreThanAskedFor", {1, 2, 3}, 5, {1, 2, 3}},
                    LoadRow{"None", {1, 2, 3}, 0, {0.5, 0.25, 0.125}},
                    LoadRow{"Failure", {1, 2, 3}, -1, {0.5, 0.25, 0.125}},
                    LoadRow{"NotANumber", {1, nan, 3}, 3, {0.5, 0.25, 0.125}},
                    LoadRow{"Infinite", {1, 2, infinity}, 3, {0.5, 0.25, 0.125}},
                    LoadRow{"Negative", {-0.01, 2, 3}, 3, {0.5, 0.25, 0.125}},
                    LoadRow{"NegativeZero", {-0.0, 2, 3}, 3, {0, 2, 3}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(LoadAverageReading, IsTakenWholeOrNotAtAll) {
    const auto machine = SimulatedMachine::laptop();
    CPUReader reader(machine);
    reader.read();
    machine->hostProcessors().spend(0, {1, 0, 1, 0});
    ASSERT_THAT(reader.read()->loadAverage, ElementsAre(0.5, 0.25, 0.125));
    machine->loadAverages().values = GetParam().values;
    machine->loadAverages().answer = GetParam().answer;
    machine->hostProcessors().spend(0, {1, 0, 1, 0});
    EXPECT_EQ(reader.read()->loadAverage, GetParam().reported);
}

TEST_F(CPUReaderTest, LoadAveragesAreEmptyUntilTheyFirstAnswer) {
    machine->loadAverages().answer = -1;
    read();
    host.spend(0, {1, 0, 1, 0});
    EXPECT_THAT(read()->loadAverage, IsEmpty());
}

}  // namespace
}  // namespace vantor::cpu_reader_test
