#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "platform/simulated/simulated_graphics.h"
#include "sampling/commit.h"
#include "sampling/fake_world.h"

/// Graphics devices on their way from the machine to the dashboard's state.
namespace vantor::gpu_monitoring_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const std::string laptopsDevice = "4294968421";
const std::string desktopsFirstDevice = "4294968800";

/// The laptop's device is first read 0.6 s after the start, then with the ticks from 2 s on; the
/// list of devices is read again with the tick at 11 s.
class GPUMonitoring : public testing::Test {
  protected:
    void setUtilization(double fraction) {
        world.machine->accelerators().services.at(0).statistics =
            SimulatedAccelerators::RawDictionary{{"GPU Utilization", fraction}};
    }
    void removeGraphics() {
        world.machine->graphicsDevices().devices.clear();
        world.machine->accelerators().services.clear();
    }
    const std::vector<GPUStats>& gpus() const { return world.state().snapshot.gpus; }

    FakeWorld world;
};

TEST_F(GPUMonitoring, TheFirstReadingFillsTheSnapshotAndStartsTheHistory) {
    world.start();
    world.advance(600ms + commitDelay - 1ms);
    EXPECT_THAT(gpus(), IsEmpty());
    world.advance(1ms);
    ASSERT_THAT(gpus(), SizeIs(1));
    EXPECT_EQ(gpus().front().name, "Simulated Graphics");
    EXPECT_EQ(world.state().gpuHistoryDeviceID, laptopsDevice);
    EXPECT_THAT(world.histories().gpu, ElementsAre(0.12));
    EXPECT_EQ(world.revisions().gpu, 1u);
}

TEST_F(GPUMonitoring, EveryTickMovesTheHistoryOn) {
    world.start();
    world.advance(2500ms);
    EXPECT_THAT(world.histories().gpu, ElementsAre(0.12, 0.12));
    setUtilization(0.5);
    world.advance(2s);
    EXPECT_THAT(world.histories().gpu, ElementsAre(0.12, 0.12, 0.5, 0.5));
    EXPECT_EQ(world.revisions().gpu, 4u);
}

TEST_F(GPUMonitoring, TheHistoryIsAsLongAsTheSettingsSay) {
    world.settings->setHistoryLength(30);
    world.start();
    world.advance(60s);
    EXPECT_THAT(world.histories().gpu, SizeIs(30));
}

TEST_F(GPUMonitoring, AnotherFirstDeviceStartsANewHistory) {
    world.start();
    world.advance(10500ms);
    EXPECT_THAT(world.histories().gpu, SizeIs(10));
    addDesktopGraphics(*world.machine);
    world.advance(1s);
    EXPECT_THAT(gpus(), SizeIs(2));
    EXPECT_EQ(world.state().gpuHistoryDeviceID, desktopsFirstDevice);
    EXPECT_THAT(world.histories().gpu, ElementsAre(0.02));
}

TEST_F(GPUMonitoring, ADeviceWithoutFiguresHasNoHistoryButIsShown) {
    world.machine->accelerators().lookupFails = true;
    world.start();
    world.advance(3500ms);
    ASSERT_THAT(gpus(), SizeIs(1));
    EXPECT_EQ(gpus().front().utilization, std::nullopt);
    EXPECT_EQ(world.state().gpuHistoryDeviceID, laptopsDevice);
    EXPECT_THAT(world.histories().gpu, IsEmpty());
    EXPECT_EQ(world.revisions().gpu, 1u);
}

TEST_F(GPUMonitoring, DevicesThatAreGoneTakeTheirHistoryWithThem) {
    world.start();
    world.advance(10500ms);
    removeGraphics();
    const auto revision = world.revisions().gpu;
    world.advance(1s);
    EXPECT_THAT(gpus(), IsEmpty());
    EXPECT_EQ(world.state().gpuHistoryDeviceID, std::nullopt);
    EXPECT_THAT(world.histories().gpu, IsEmpty());
    EXPECT_EQ(world.revisions().gpu, revision + 1);
    world.advance(5s);
    EXPECT_EQ(world.revisions().gpu, revision + 1);
}

TEST_F(GPUMonitoring, NoAnswerLeavesTheLastOneStanding) {
    world.machine->graphicsDevices().devices.clear();
    world.start();
    world.advance(2500ms);
    ASSERT_THAT(gpus(), SizeIs(1));
    EXPECT_EQ(gpus().front().id, "registry-" + laptopsDevice);
    const DashboardState before = world.state();
    world.machine->accelerators().lookupFails = true;
    world.advance(5s);
    EXPECT_EQ(gpus(), before.snapshot.gpus);
    EXPECT_EQ(world.histories().gpu, before.histories.gpu);
    EXPECT_EQ(world.revisions().gpu, before.revisions.gpu);
}

TEST_F(GPUMonitoring, AReadingRequestedBeforeAPauseIsDropped) {
    world.start();
    world.advance(500ms);
    world.providersRun = false;
    world.advance(200ms);
    ASSERT_EQ(world.waiting("gpu"), 1u);
    world.monitor->togglePause();
    world.providersRun = true;
    world.advance(1s);
    EXPECT_EQ(world.machine->accelerators().lookups, 1);
    EXPECT_THAT(gpus(), IsEmpty());
    EXPECT_EQ(world.revisions().gpu, 0u);
}

TEST_F(GPUMonitoring, APauseStopsTheReadingsAndKeepsTheHistory) {
    world.start();
    world.advance(3500ms);
    world.monitor->togglePause();
    const int lookups = world.machine->accelerators().lookups;
    world.advance(60s);
    EXPECT_EQ(world.machine->accelerators().lookups, lookups);
    world.monitor->togglePause();
    world.advance(700ms);
    EXPECT_THAT(world.histories().gpu, ElementsAre(0.12, 0.12, 0.12, 0.12));
}

TEST_F(GPUMonitoring, ARefreshByHandWorksDuringAPause) {
    world.start();
    world.advance(700ms);
    world.monitor->togglePause();
    setUtilization(0.75);
    world.monitor->forceRefresh();
    world.advance(commitDelay);
    EXPECT_THAT(world.histories().gpu, ElementsAre(0.12, 0.75));
}

TEST_F(GPUMonitoring, ARefreshByHandDoesNotRelistTheDevices) {
    world.start();
    world.advance(700ms);
    removeGraphics();
    world.monitor->forceRefresh();
    world.advance(commitDelay);
    EXPECT_THAT(gpus(), SizeIs(1));
    EXPECT_EQ(world.machine->graphicsDevices().copies, 1);
}

TEST(GPUMonitoringOfABrokenMachine, NeverShowsADevice) {
    FakeWorld world;
    world.machine->graphicsDevices().devices.clear();
    world.machine->accelerators().lookupFails = true;
    world.start();
    world.advance(10s);
    EXPECT_GT(world.machine->accelerators().lookups, 5);
    EXPECT_THAT(world.state().snapshot.gpus, IsEmpty());
    EXPECT_EQ(world.revisions().gpu, 0u);
}

}  // namespace
}  // namespace vantor::gpu_monitoring_test
