#include "sampling/commit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <limits>

#include "sampling/sample_records.h"
#include "support/named_row.h"

namespace vantor::commit_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t limit = 30;
constexpr Timestamp noon{std::chrono::hours{12}};

bool apply(PendingUpdate update, DashboardState& state) {
    return applyUpdate(std::move(update), state, limit, noon, 90);
}

TEST(Commit, CPUReadingReplacesTheRecordAndGoesIntoItsHistory) {
    DashboardState state;
    PendingUpdate update;
    update.of<CPUProvider>() = cpuReading(0.25);
    EXPECT_TRUE(apply(update, state));
    DashboardState expected;
    expected.snapshot.timestamp = noon;
    expected.snapshot.cpu = cpuReading(0.25);
    expected.histories.cpu = {0.25};
    expected.histories.times.cpu = {90};
    expected.revisions.cpu = 1;
    EXPECT_EQ(state, expected);
}

struct MemoryRow : NamedRow {
    std::uint64_t used;
    std::uint64_t total;
    double expected;
};

class MemoryFraction : public testing::TestWithParam<MemoryRow> {};

TEST_P(MemoryFraction, GoesIntoTheHistory) {
    DashboardState state;
    PendingUpdate update;
    update.of<MemoryProvider>() = memoryReading(GetParam().used, GetParam().total);
    EXPECT_TRUE(apply(update, state));
    EXPECT_EQ(state.snapshot.memory, memoryReading(GetParam().used, GetParam().total));
    EXPECT_THAT(state.histories.memory, ElementsAre(GetParam().expected));
    EXPECT_EQ(state.revisions.memory, 1u);
}

INSTANTIATE_TEST_SUITE_P(
    Commit, MemoryFraction,
    testing::Values(MemoryRow{{"UsedQuarter"}, 1, 4, 0.25}, MemoryRow{{"Full"}, 4, 4, 1.0},
                    MemoryRow{{"MoreThanThereIs"}, 5, 4, 1.0},
                    MemoryRow{{"NothingInstalled"}, 5, 0, 0.0},
                    MemoryRow{{"LargestNumbers"}, UINT64_MAX / 2, UINT64_MAX, 0.5}),
    rowName<MemoryRow>);

TEST(Commit, NetworkReadingGoesIntoTwoHistories) {
    DashboardState state;
    PendingUpdate update;
    update.of<NetworkProvider>() = networkReading(1000, 20);
    EXPECT_TRUE(apply(update, state));
    EXPECT_EQ(state.snapshot.network, networkReading(1000, 20));
    EXPECT_THAT(state.histories.download, ElementsAre(1000));
    EXPECT_THAT(state.histories.upload, ElementsAre(20));
    EXPECT_EQ(state.revisions.network, 1u);
}

TEST(Commit, SameCPUMemoryAndNetworkReadingsStillMoveTheGraphsOn) {
    DashboardState state;
    for (int i = 0; i < 2; ++i) {
        PendingUpdate update;
        update.of<CPUProvider>() = cpuReading(0.5);
        update.of<MemoryProvider>() = memoryReading(1, 2);
        update.of<NetworkProvider>() = networkReading(3, 4);
        EXPECT_TRUE(apply(update, state));
    }
    EXPECT_THAT(state.histories.cpu, ElementsAre(0.5, 0.5));
    EXPECT_THAT(state.histories.memory, ElementsAre(0.5, 0.5));
    EXPECT_THAT(state.histories.download, ElementsAre(3, 3));
    EXPECT_EQ(state.revisions.cpu + state.revisions.memory + state.revisions.network, 6u);
}

TEST(Commit, DifferentSystemInfoReplacesTheRecord) {
    DashboardState state;
    PendingUpdate update;
    update.of<SystemInfoProvider>() = systemInfo("one");
    EXPECT_TRUE(apply(update, state));
    EXPECT_EQ(state.snapshot.system.hostName, "one");
    EXPECT_EQ(state.revisions.system, 1u);
}

TEST(Commit, EqualSystemInfoChangesNothing) {
    DashboardState state;
    state.snapshot.system = systemInfo("one");
    PendingUpdate update;
    update.of<SystemInfoProvider>() = systemInfo("one");
    EXPECT_FALSE(apply(update, state));
    EXPECT_EQ(state.revisions, Revisions{});
}

TEST(Commit, ProcessListsAreTakenAsDeliveredAndNotCompared) {
    DashboardState state;
    for (std::uint64_t revision = 1; revision <= 2; ++revision) {
        PendingUpdate update;
        update.of<ProcessProvider>() = processSample();
        EXPECT_TRUE(apply(update, state));
        EXPECT_EQ(state.revisions.processes, revision);
    }
    EXPECT_EQ(state.snapshot.processes, processSample().all);
    EXPECT_EQ(state.processesByCPU, processSample().sortedByCPU);
    EXPECT_EQ(state.processesByMemory, processSample().sortedByMemory);
}

TEST(Commit, VolumesCountOnlyWhenTheyDiffer) {
    DashboardState state;
    PendingUpdate update;
    update.of<VolumeProvider>() = std::vector{volume("/"), volume("/home")};
    EXPECT_TRUE(apply(update, state));
    EXPECT_FALSE(apply(update, state));
    EXPECT_EQ(state.revisions.storage, 1u);
    update.of<VolumeProvider>() = std::vector<VolumeStats>{};
    EXPECT_TRUE(apply(update, state));
    EXPECT_THAT(state.snapshot.volumes, IsEmpty());
    EXPECT_EQ(state.revisions.storage, 2u);
}

TEST(Commit, AnEmptyFirstListIsAnAnswerOnce) {
    DashboardState state;
    PendingUpdate update;
    update.of<GPUProvider>() = std::vector<GPUStats>{};
    EXPECT_TRUE(apply(update, state));
    EXPECT_TRUE(state.answered.gpus);
    EXPECT_FALSE(state.answered.volumes);
    EXPECT_FALSE(apply(update, state));
    update = {};
    update.of<VolumeProvider>() = std::vector<VolumeStats>{};
    EXPECT_TRUE(apply(update, state));
    EXPECT_TRUE(state.answered.volumes);
    EXPECT_FALSE(apply(update, state));
    EXPECT_EQ(state.revisions, Revisions{});
}

struct PowerRow : NamedRow {
    std::optional<PowerStats> before;
    std::optional<PowerStats> arrived;
    bool changes;
};

class PowerUpdate : public testing::TestWithParam<PowerRow> {};

TEST_P(PowerUpdate, CountsInTheSystemSectionWhenItDiffers) {
    DashboardState state;
    state.snapshot.power = GetParam().before;
    PendingUpdate update;
    update.of<PowerProvider>().emplace(GetParam().arrived);
    EXPECT_EQ(apply(update, state), GetParam().changes);
    EXPECT_EQ(state.snapshot.power, GetParam().arrived);
    EXPECT_EQ(state.revisions.system, GetParam().changes ? 1u : 0u);
}

INSTANTIATE_TEST_SUITE_P(
    Commit, PowerUpdate,
    testing::Values(PowerRow{{"BatteryAppears"}, std::nullopt, battery(0.5), true},
                    PowerRow{{"BatteryGoes"}, battery(0.5), std::nullopt, true},
                    PowerRow{{"ChargeMoves"}, battery(0.5), battery(0.6), true},
                    PowerRow{{"SameCharge"}, battery(0.5), battery(0.5), false},
                    PowerRow{{"StillNone"}, std::nullopt, std::nullopt, false}),
    rowName<PowerRow>);

TEST(Commit, BatteryIsKeptWhenNoPowerResultArrived) {
    DashboardState state;
    state.snapshot.power = battery(0.5);
    PendingUpdate update;
    update.of<CPUProvider>() = cpuReading(0.1);
    EXPECT_TRUE(apply(update, state));
    EXPECT_EQ(state.snapshot.power, battery(0.5));
    EXPECT_EQ(state.revisions.system, 0u);
}

TEST(Commit, SystemInfoAndPowerTogetherCountTwice) {
    DashboardState state;
    PendingUpdate update;
    update.of<SystemInfoProvider>() = systemInfo("one");
    update.of<PowerProvider>().emplace(battery(0.5));
    EXPECT_TRUE(apply(update, state));
    EXPECT_EQ(state.revisions.system, 2u);
}

TEST(Commit, UnchangedSectionDoesNotHideAChangedOne) {
    DashboardState state;
    state.snapshot.system = systemInfo("one");
    PendingUpdate update;
    update.of<SystemInfoProvider>() = systemInfo("one");
    update.of<VolumeProvider>() = std::vector{volume("/")};
    EXPECT_TRUE(apply(update, state));
    EXPECT_EQ(state.revisions.system, 0u);
    EXPECT_EQ(state.revisions.storage, 1u);
}

TEST(Commit, RevisionsWrapAround) {
    DashboardState state;
    state.revisions.cpu = UINT64_MAX;
    PendingUpdate update;
    update.of<CPUProvider>() = cpuReading(0.5);
    EXPECT_TRUE(apply(update, state));
    EXPECT_EQ(state.revisions.cpu, 0u);
}

TEST(PendingUpdate, PowerWithoutABatteryIsAResult) {
    PendingUpdate update;
    EXPECT_TRUE(update.isEmpty());
    update.of<PowerProvider>().emplace();
    EXPECT_FALSE(update.isEmpty());
}

}  // namespace
}  // namespace vantor::commit_test
