#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sampling/commit.h"
#include "sampling/histories.h"
#include "sampling/sample_records.h"

namespace vantor::commit_times_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Timestamp noon{std::chrono::hours{12}};

TEST(CommitTimes, EachSampleKeepsTheUptimeOfItsCommit) {
    DashboardState state;
    for (const double uptime : {10.0, 11.0, 700.0}) {
        PendingUpdate update;
        update.of<CPUProvider>() = cpuReading(0.5);
        update.of<NetworkProvider>() = networkReading(3, 4);
        if (uptime > 10) update.of<MemoryProvider>() = memoryReading(1, 2);
        applyUpdate(std::move(update), state, 2, noon, uptime);
    }
    EXPECT_THAT(state.histories.times.cpu, ElementsAre(11, 700));
    EXPECT_THAT(state.histories.times.memory, ElementsAre(11, 700));
    EXPECT_THAT(state.histories.times.network, ElementsAre(11, 700));
    EXPECT_THAT(state.histories.times.gpu, IsEmpty());
    EXPECT_TRUE(trimHistories(state.histories, 1));
    EXPECT_THAT(state.histories.times.cpu, ElementsAre(700));
}

}  // namespace
}  // namespace vantor::commit_times_test
