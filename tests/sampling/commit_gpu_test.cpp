#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sampling/commit.h"
#include "sampling/sample_records.h"

namespace vantor::commit_gpu_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

bool applyGPUs(std::vector<GPUStats> gpus, DashboardState& state) {
    PendingUpdate update;
    update.of<GPUProvider>() = std::move(gpus);
    return applyUpdate(std::move(update), state, 30, Timestamp{}, 5);
}

TEST(GPUCommit, FirstDeviceGivesTheHistoryItsValues) {
    DashboardState state;
    EXPECT_TRUE(applyGPUs({gpuDevice("a", 0.5), gpuDevice("b", 0.9)}, state));
    EXPECT_EQ(state.gpuHistoryDeviceID, "a");
    EXPECT_THAT(state.histories.gpu, ElementsAre(0.5));
    EXPECT_EQ(state.snapshot.gpus.size(), 2u);
    EXPECT_EQ(state.revisions.gpu, 1u);
}

TEST(GPUCommit, EqualListWithAUtilizationStillMovesTheGraphOn) {
    DashboardState state;
    applyGPUs({gpuDevice("a", 0.5)}, state);
    EXPECT_TRUE(applyGPUs({gpuDevice("a", 0.5)}, state));
    EXPECT_THAT(state.histories.gpu, ElementsAre(0.5, 0.5));
    EXPECT_EQ(state.revisions.gpu, 2u);
}

TEST(GPUCommit, EqualListWithoutAUtilizationChangesNothing) {
    DashboardState state;
    applyGPUs({gpuDevice("a", std::nullopt)}, state);
    EXPECT_FALSE(applyGPUs({gpuDevice("a", std::nullopt)}, state));
    EXPECT_EQ(state.revisions.gpu, 1u);
    EXPECT_THAT(state.histories.gpu, IsEmpty());
}

TEST(GPUCommit, UtilizationOfALaterDeviceDoesNotMoveTheGraph) {
    DashboardState state;
    applyGPUs({gpuDevice("a", std::nullopt), gpuDevice("b", 0.5)}, state);
    EXPECT_FALSE(applyGPUs({gpuDevice("a", std::nullopt), gpuDevice("b", 0.5)}, state));
    EXPECT_THAT(state.histories.gpu, IsEmpty());
}

TEST(GPUCommit, FirstEmptyListTouchesNoRevision) {
    DashboardState state;
    EXPECT_TRUE(applyGPUs({}, state)) << "it is known now that there is none";
    EXPECT_FALSE(applyGPUs({}, state));
    EXPECT_EQ(state.revisions.gpu, 0u);
    EXPECT_EQ(state.gpuHistoryDeviceID, std::nullopt);
}

TEST(GPUCommit, UtilizationThatGoesMissingLeavesTheHistoryAsItIs) {
    DashboardState state;
    applyGPUs({gpuDevice("a", 0.5)}, state);
    EXPECT_TRUE(applyGPUs({gpuDevice("a", std::nullopt)}, state));
    EXPECT_THAT(state.histories.gpu, ElementsAre(0.5));
    EXPECT_EQ(state.revisions.gpu, 2u);
}

TEST(GPUCommit, AnotherFirstDeviceStartsANewHistoryInTheOldStorage) {
    DashboardState state;
    for (int i = 0; i < 10; ++i)
        applyGPUs({gpuDevice("a", 0.5)}, state);
    const double* const storage = state.histories.gpu.data();
    EXPECT_TRUE(applyGPUs({gpuDevice("b", 0.25)}, state));
    EXPECT_EQ(state.gpuHistoryDeviceID, "b");
    EXPECT_THAT(state.histories.gpu, ElementsAre(0.25));
    EXPECT_EQ(state.histories.gpu.data(), storage);
}

TEST(GPUCommit, SwappedDevicesStartANewHistory) {
    DashboardState state;
    applyGPUs({gpuDevice("a", 0.5), gpuDevice("b", 0.9)}, state);
    EXPECT_TRUE(applyGPUs({gpuDevice("b", 0.9), gpuDevice("a", 0.5)}, state));
    EXPECT_THAT(state.histories.gpu, ElementsAre(0.9));
}

TEST(GPUCommit, AnotherFirstDeviceWithoutAUtilizationEmptiesTheHistory) {
    DashboardState state;
    applyGPUs({gpuDevice("a", 0.5)}, state);
    EXPECT_TRUE(applyGPUs({gpuDevice("b", std::nullopt)}, state));
    EXPECT_EQ(state.gpuHistoryDeviceID, "b");
    EXPECT_THAT(state.histories.gpu, IsEmpty());
}

TEST(GPUCommit, ChangedLaterDeviceKeepsTheHistory) {
    DashboardState state;
    applyGPUs({gpuDevice("a", 0.5), gpuDevice("b", 0.9)}, state);
    EXPECT_TRUE(applyGPUs({gpuDevice("a", 0.6), gpuDevice("c", 0.1)}, state));
    EXPECT_THAT(state.histories.gpu, ElementsAre(0.5, 0.6));
    EXPECT_THAT(state.histories.times.gpu, ElementsAre(5, 5));
}

TEST(GPUCommit, ListThatBecomesEmptyForgetsDeviceAndHistory) {
    DashboardState state;
    applyGPUs({gpuDevice("a", 0.5)}, state);
    EXPECT_TRUE(applyGPUs({}, state));
    EXPECT_EQ(state.gpuHistoryDeviceID, std::nullopt);
    EXPECT_THAT(state.histories.gpu, IsEmpty());
    EXPECT_THAT(state.snapshot.gpus, IsEmpty());
    EXPECT_EQ(state.revisions.gpu, 2u);
}

TEST(GPUCommit, DeviceThatComesBackStartsANewHistory) {
    DashboardState state;
    applyGPUs({gpuDevice("a", 0.5)}, state);
    applyGPUs({}, state);
    EXPECT_TRUE(applyGPUs({gpuDevice("a", 0.7)}, state));
    EXPECT_THAT(state.histories.gpu, ElementsAre(0.7));
    EXPECT_EQ(state.revisions.gpu, 3u);
}

}  // namespace
}  // namespace vantor::commit_gpu_test
