#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>

#include "platform/simulated/simulated_machine.h"
#include "probes/cpu_reader.h"

namespace vantor::cpu_reader_cores_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CoreShares : public testing::Test {
  protected:
    const CPUStats* read() {
        const CPUStats* stats = reader.read();
        EXPECT_EQ(host.portsOutstanding, 0);
        EXPECT_EQ(host.arraysOutstanding, 0);
        return stats;
    }
    std::vector<double> shares() {
        const CPUStats* stats = read();
        EXPECT_NE(stats, nullptr);
        return stats ? stats->perCoreUsage : std::vector<double>{-1};
    }

    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    SimulatedHostProcessors& host = machine->hostProcessors();
    CPUReader reader{machine};
};

TEST_F(CoreShares, ComeInTheKernelsOrder) {
    read();
    host.spend(0, {25, 0, 75, 0});
    host.spend(1, {0, 50, 50, 0});
    host.spend(2, {0, 0, 25, 75});
    host.spend(3, {40, 30, 0, 30});
    EXPECT_THAT(shares(), ElementsAre(0.25, 0.5, 0.75, 1));
}

TEST_F(CoreShares, AreZeroForAProcessorWithoutATick) {
    read();
    host.spend(1, {10, 0, 0, 0});
    EXPECT_THAT(shares(), ElementsAre(0, 1, 0, 0));
}

TEST_F(CoreShares, CoverTheIntervalOfEachReadAnew) {
    read();
    host.spend(0, {10, 0, 0, 0});
    EXPECT_THAT(shares(), ElementsAre(1, 0, 0, 0));
    host.spend(0, {10, 0, 30, 0});
    EXPECT_THAT(shares(), ElementsAre(0.25, 0, 0, 0));
}

TEST_F(CoreShares, AreEmptyForOneReadWhenAProcessorComes) {
    read();
    host.spend(0, {10, 0, 10, 0});
    shares();
    host.processors.push_back({500, 500, 500, 500});
    host.spend(0, {10, 0, 10, 0});
    EXPECT_THAT(shares(), IsEmpty());
    host.spend(4, {30, 0, 10, 0});
    EXPECT_THAT(shares(), ElementsAre(0, 0, 0, 0, 0.75));
}

TEST_F(CoreShares, AreEmptyForOneReadWhenAProcessorGoes) {
    read();
    host.spend(0, {10, 0, 10, 0});
    shares();
    host.processors.pop_back();
    host.spend(0, {10, 0, 10, 0});
    EXPECT_THAT(shares(), IsEmpty());
    host.spend(1, {10, 0, 30, 0});
    EXPECT_THAT(shares(), ElementsAre(0, 0.25, 0));
}

TEST_F(CoreShares, AreForgottenWhenTheCountChangesInAReadWithoutATick) {
    read();
    host.spend(0, {10, 0, 10, 0});
    shares();
    host.processors.pop_back();
    EXPECT_EQ(read(), nullptr);
    host.processorsFail = true;
    host.spend(0, {10, 0, 10, 0});
    EXPECT_THAT(shares(), IsEmpty());
}

TEST_F(CoreShares, StayAfterAReadWithoutATickOfTheSameProcessors) {
    read();
    host.spend(0, {10, 0, 10, 0});
    shares();
    EXPECT_EQ(read(), nullptr);
    host.processorsFail = true;
    host.spend(0, {10, 0, 10, 0});
    EXPECT_THAT(shares(), ElementsAre(0.5, 0, 0, 0));
}

TEST_F(CoreShares, AreEmptyOnceWhenTheirFirstReadComesLate) {
    host.processorsFail = true;
    read();
    host.spend(0, {10, 0, 10, 0});
    EXPECT_THAT(shares(), IsEmpty());
    host.processorsFail = false;
    host.spend(0, {10, 0, 10, 0});
    EXPECT_THAT(shares(), IsEmpty());
    host.spend(0, {10, 0, 30, 0});
    EXPECT_THAT(shares(), ElementsAre(0.25, 0, 0, 0));
}

TEST_F(CoreShares, SpanTheReadsThatFailedBetween) {
    read();
    host.processorsFail = true;
    host.spend(0, {10, 0, 0, 0});
    EXPECT_THAT(shares(), IsEmpty());
    host.processorsFail = false;
    host.spend(0, {0, 0, 30, 0});
    EXPECT_THAT(shares(), ElementsAre(0.25, 0, 0, 0));
}

struct FailureRow {
    const char* name;
    std::function<void(SimulatedHostProcessors&)> happen;

    friend void PrintTo(const FailureRow& row, std::ostream* out) { *out << row.name; }
};

class CoreFailure : public testing::TestWithParam<FailureRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, CoreFailure,
    testing::Values(
        FailureRow{"CallFails", [](auto& host) { host.processorsFail = true; }},
        FailureRow{"NoArray", [](auto& host) { host.processorsAnswerNoArray = true; }},
        FailureRow{"NoProcessors", [](auto& host) { host.claimedProcessorCount = 0; }},
        FailureRow{"TwoToTheThirty", [](auto& host) { host.claimedProcessorCount = 1U << 30; }},
        FailureRow{"MoreThanAnyMachine", [](auto& host) { host.claimedProcessorCount = ~0U; }},
        FailureRow{"OneWordTooFew", [](auto& host) { host.claimedWordCount = 15; }},
        FailureRow{"OneProcessorTooMany", [](auto& host) { host.claimedProcessorCount = 5; }},
        FailureRow{"NoWords", [](auto& host) { host.claimedWordCount = 0; }},
        FailureRow{"LargestCountWithFewWords",
                   [](auto& host) { host.claimedProcessorCount = (1U << 30) - 1; }}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(CoreFailure, RepeatsTheLastSharesAndFreesWhatItGot) {
    const auto machine = SimulatedMachine::laptop();
    auto& host = machine->hostProcessors();
    CPUReader reader(machine);
    reader.read();
    host.spend(2, {30, 0, 10, 0});
    ASSERT_THAT(reader.read()->perCoreUsage, ElementsAre(0, 0, 0.75, 0));
    GetParam().happen(host);
    host.spend(2, {10, 0, 30, 0});
    const CPUStats* stats = reader.read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->totalUsage, 0.25);
    EXPECT_THAT(stats->perCoreUsage, ElementsAre(0, 0, 0.75, 0));
    EXPECT_EQ(host.portsOutstanding, 0);
    EXPECT_EQ(host.arraysOutstanding, 0);
}

TEST_P(CoreFailure, OnTheFirstReadLeavesNothingBehind) {
    const auto machine = SimulatedMachine::laptop();
    auto& host = machine->hostProcessors();
    CPUReader reader(machine);
    GetParam().happen(host);
    EXPECT_EQ(reader.read(), nullptr);
    EXPECT_EQ(reader.read(), nullptr);
    EXPECT_EQ(host.portsOutstanding, 0);
    EXPECT_EQ(host.arraysOutstanding, 0);
}

TEST_F(CoreShares, TakeMoreWordsThanNeededAsThereAre) {
    host.processors.resize(5);
    host.claimedProcessorCount = 4;  // five processors' words for four
    read();
    host.spend(1, {10, 0, 10, 0});
    EXPECT_THAT(shares(), ElementsAre(0, 0.5, 0, 0));
}

/// Hears how much memory each array is given back with.
class MeasuredHost : public SimulatedHostProcessors {
  public:
    std::vector<std::size_t> released;
    void releaseArray(const std::uint32_t* words, std::size_t byteCount) override {
        released.push_back(byteCount);
        SimulatedHostProcessors::releaseArray(words, byteCount);
    }
};

class MeasuredMachine : public SimulatedMachine {
  public:
    MeasuredMachine() { calls().hostProcessors = measured; }

    MeasuredHost measured;
};

TEST(CPUReader, GivesTheArrayBackWithItsSizeInBytes) {
    const auto machine = std::make_shared<MeasuredMachine>();
    machine->measured.processors.resize(3);
    CPUReader reader(machine);
    reader.read();
    EXPECT_THAT(machine->measured.released, ElementsAre(3 * 4 * 4));
}

}  // namespace
}  // namespace vantor::cpu_reader_cores_test
