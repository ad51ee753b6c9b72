#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include "sampling/commit.h"
#include "sampling/fake_world.h"
#include "sampling/sample_records.h"
#include "support/named_row.h"

/// What the monitor takes in, when it commits it, and how often it publishes.
namespace vantor::system_monitor_receive_test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct ReceiveRow : NamedRow {
    std::function<void(SystemMonitor&, std::uint64_t generation)> receive;
    std::uint64_t Revisions::*revision;
};

class Receive : public testing::TestWithParam<ReceiveRow> {
  protected:
    FakeWorld world;
    void receive(std::uint64_t generation) { GetParam().receive(*world.monitor, generation); }
};

TEST_P(Receive, TakesAResultOfThePresentGeneration) {
    receive(0);
    world.advance(commitDelay);
    EXPECT_EQ(world.revisions().*GetParam().revision, 1u);
    EXPECT_EQ(world.publications, 1);
}

TEST_P(Receive, DropsAResultOfAnotherGeneration) {
    world.monitor->togglePause();
    receive(0);
    receive(2);
    EXPECT_EQ(world.loop->timerCount(), 0u);
    world.advance(1s);
    EXPECT_EQ(world.state(), DashboardState{});
    EXPECT_EQ(world.publications, 0);
}

const std::vector<ReceiveRow> receiveRows{
    {{"CPU"}, [](auto& m, auto g) { m.receiveCPU(cpuReading(0.5), g); }, &Revisions::cpu},
    {{"Memory"},
     [](auto& m, auto g) { m.receiveMemory(memoryReading(1, 2), g); },
     &Revisions::memory},
    {{"Network"},
     [](auto& m, auto g) { m.receiveNetwork(networkReading(1, 2), g); },
     &Revisions::network},
    {{"SystemInfo"},
     [](auto& m, auto g) { m.receiveSystemInfo(systemInfo("one"), g); },
     &Revisions::system},
    {{"Processes"},
     [](auto& m, auto g) { m.receiveProcesses(processSample(), g); },
     &Revisions::processes},
    {{"GPUs"},
     [](auto& m, auto g) { m.receiveGPUs(std::vector{gpuDevice("a", 0.5)}, g); },
     &Revisions::gpu},
    {{"Volumes"},
     [](auto& m, auto g) { m.receiveVolumes(std::vector{volume("/")}, g); },
     &Revisions::storage},
    {{"Power"},
     [](auto& m, auto g) { m.receivePower(PowerReadResult::update(battery(0.5)), g); },
     &Revisions::system}};

INSTANTIATE_TEST_SUITE_P(SystemMonitor, Receive, testing::ValuesIn(receiveRows),
                         rowName<ReceiveRow>);

struct NothingRow : NamedRow {
    std::function<void(SystemMonitor&)> receive;
};

class ReceiveNothing : public testing::TestWithParam<NothingRow> {};

TEST_P(ReceiveNothing, KeepsWhatIsThereAndSchedulesNoCommit) {
    FakeWorld world;
    for (const ReceiveRow& row : receiveRows)
        row.receive(*world.monitor, 0);
    world.advance(commitDelay);
    const DashboardState before = world.state();
    GetParam().receive(*world.monitor);
    EXPECT_EQ(world.loop->timerCount(), 0u);
    world.advance(1s);
    EXPECT_EQ(world.state(), before);
}

INSTANTIATE_TEST_SUITE_P(
    SystemMonitor, ReceiveNothing,
    testing::Values(
        NothingRow{{"AbsentCPU"}, [](auto& m) { m.receiveCPU(std::nullopt, 0); }},
        NothingRow{{"AbsentMemory"}, [](auto& m) { m.receiveMemory(std::nullopt, 0); }},
        NothingRow{{"AbsentNetwork"}, [](auto& m) { m.receiveNetwork(std::nullopt, 0); }},
        NothingRow{{"EmptyProcessList"},
                   [](auto& m) {
                       m.receiveProcesses({{}, processList({4}), processList({4})}, 0);
                   }},
        NothingRow{{"AbsentGPUs"}, [](auto& m) { m.receiveGPUs(std::nullopt, 0); }},
        NothingRow{{"AbsentVolumes"}, [](auto& m) { m.receiveVolumes(std::nullopt, 0); }},
        NothingRow{{"PowerFailure"},
                   [](auto& m) { m.receivePower(PowerReadResult::failure(), 0); }}),
    rowName<NothingRow>);

TEST(SystemMonitor, CommitsThirtyMillisecondsAfterTheFirstResult) {
    FakeWorld world;
    world.receiveCPU(cpuReading(0.1));
    world.advance(20ms);
    world.monitor->receiveMemory(memoryReading(1, 2), 0);
    world.advance(10ms - 1ns);
    EXPECT_EQ(world.publications, 0);
    world.advance(1ns);
    EXPECT_EQ(world.publications, 1);
    EXPECT_EQ(world.revisions().cpu, 1u);
    EXPECT_EQ(world.revisions().memory, 1u);
}

TEST(SystemMonitor, ResultAfterACommitGetsACommitOfItsOwn) {
    FakeWorld world;
    world.receiveCPU(cpuReading(0.1));
    world.advance(commitDelay);
    world.receiveCPU(cpuReading(0.2));
    world.advance(commitDelay - 1ms);
    EXPECT_EQ(world.publications, 1);
    world.advance(1ms);
    EXPECT_EQ(world.publications, 2);
    EXPECT_THAT(world.histories().cpu, ElementsAre(0.1, 0.2));
}

TEST(SystemMonitor, LaterReadingWithinACommitReplacesTheEarlierOne) {
    FakeWorld world;
    world.receiveCPU(cpuReading(0.1));
    world.receiveCPU(cpuReading(0.2));
    world.advance(commitDelay);
    EXPECT_EQ(world.state().snapshot.cpu, cpuReading(0.2));
    EXPECT_THAT(world.histories().cpu, ElementsAre(0.2));
    EXPECT_EQ(world.revisions().cpu, 1u);
}

TEST(SystemMonitor, LaterPowerResultReplacesTheEarlierOne) {
    FakeWorld world;
    world.monitor->receivePower(PowerReadResult::update(battery(0.5)), 0);
    world.monitor->receivePower(PowerReadResult::update(std::nullopt), 0);
    world.monitor->receivePower(PowerReadResult::failure(), 0);
    world.advance(commitDelay);
    EXPECT_EQ(world.state().snapshot.power, std::nullopt);
    EXPECT_EQ(world.publications, 0);
}

TEST(SystemMonitor, PublishesOnceHoweverManyProvidersAnswer) {
    FakeWorld world;
    for (const ReceiveRow& row : receiveRows)
        row.receive(*world.monitor, 0);
    world.advance(1s);
    EXPECT_EQ(world.publications, 1);
    EXPECT_EQ(world.revisions(), (Revisions{1, 1, 1, 1, 1, 2, 1}));
}

TEST(SystemMonitor, PublishesNothingWhenNothingChanged) {
    FakeWorld world;
    world.monitor->receiveSystemInfo(systemInfo("one"), 0);
    world.advance(commitDelay);
    const DashboardState before = world.state();
    world.monitor->receiveSystemInfo(systemInfo("one"), 0);
    world.advance(commitDelay);
    EXPECT_EQ(world.state(), before);  // the timestamp too
    EXPECT_EQ(world.publications, 1);
}

TEST(SystemMonitor, ObserversAreToldOnceThatThereAreNoVolumes) {
    FakeWorld world;
    world.monitor->receiveVolumes(std::vector<VolumeStats>{}, 0);
    world.advance(commitDelay);
    EXPECT_EQ(world.publications, 1);
    EXPECT_TRUE(world.state().answered.volumes);
    EXPECT_FALSE(world.state().answered.gpus);
    world.monitor->receiveVolumes(std::vector<VolumeStats>{}, 0);
    world.advance(commitDelay);
    EXPECT_EQ(world.publications, 1);
    EXPECT_EQ(world.revisions(), Revisions{});
}

TEST(SystemMonitor, ObserversAreToldOnceThatThereAreNoGraphicsDevices) {
    FakeWorld world;
    world.monitor->receiveGPUs(std::vector<GPUStats>{}, 0);
    world.advance(commitDelay);
    EXPECT_EQ(world.publications, 1);
    EXPECT_TRUE(world.state().answered.gpus);
    EXPECT_FALSE(world.state().answered.volumes);
    world.monitor->receiveGPUs(std::vector<GPUStats>{}, 0);
    world.advance(commitDelay);
    EXPECT_EQ(world.publications, 1);
    EXPECT_EQ(world.revisions(), Revisions{});
}

TEST(SystemMonitor, StampsTheSnapshotWithTheTimeOfTheCommit) {
    FakeWorld world;
    world.advance(5s);
    world.receiveCPU(cpuReading(0.1));
    world.advance(commitDelay);
    EXPECT_EQ(world.state().snapshot.timestamp, world.machine->wallClock().now());
}

TEST(SystemMonitor, APauseBeforeAnyReadingMakesNoQueues) {
    FakeWorld world;
    world.monitor->togglePause();
    world.settle();
    EXPECT_THAT(world.queues->labels(), IsEmpty());
    EXPECT_THAT(world.takeSubmissions(), IsEmpty());
    world.monitor->togglePause();
    world.settle();
    EXPECT_THAT(world.queues->labels(), SizeIs(allProviders.size()));
}

TEST(SystemMonitor, BatteryThatGoesCountsInTheSystemSection) {
    FakeWorld world;
    world.monitor->receivePower(PowerReadResult::update(battery(0.5)), 0);
    world.advance(commitDelay);
    world.monitor->receivePower(PowerReadResult::update(std::nullopt), 0);
    world.advance(commitDelay);
    EXPECT_EQ(world.state().snapshot.power, std::nullopt);
    EXPECT_EQ(world.revisions().system, 2u);
}

TEST(SystemMonitor, CommitsWhatTheProcessorsSay) {
    FakeWorld world;
    world.start();
    world.advance(1s);
    const int publications = world.publications;
    world.advance(commitDelay);
    EXPECT_EQ(world.state().snapshot.cpu.model, "Simulated Processor M1");
    EXPECT_EQ(world.state().snapshot.cpu.totalUsage, 0.4);
    EXPECT_THAT(world.state().snapshot.cpu.perCoreUsage, ElementsAre(0.4, 0.4, 0.4, 0.4));
    EXPECT_THAT(world.histories().cpu, ElementsAre(0.4));
    EXPECT_EQ(world.publications, publications + 1);
}

TEST(SystemMonitor, CommitsWhatTheMemoryAndTheSystemSay) {
    FakeWorld world;
    world.start();
    world.advance(commitDelay);
    EXPECT_EQ(world.state().snapshot.memory.totalBytes, std::uint64_t{16} << 30);
    EXPECT_EQ(world.state().snapshot.memory.usedBytes, std::uint64_t{7} << 30);
    EXPECT_THAT(world.histories().memory, ElementsAre(7.0 / 16.0));
    EXPECT_EQ(world.state().snapshot.system.hostName, "simbook.local");
    EXPECT_EQ(world.state().snapshot.system.operatingSystem, "macOS 14.2.1");
}

TEST(SystemMonitor, KeepsTheLastReadingWhenTheProcessorsStopAnswering) {
    FakeWorld world;
    world.start();
    world.advance(1s + commitDelay);
    world.machine->hostProcessors().totalFails = true;
    const DashboardState before = world.state();
    world.advance(10s);
    EXPECT_EQ(world.state().snapshot.cpu, before.snapshot.cpu);
    EXPECT_EQ(world.histories().cpu, before.histories.cpu);
    EXPECT_EQ(world.revisions().cpu, before.revisions.cpu);
    world.machine->hostProcessors().totalFails = false;
    world.advance(1s);
    EXPECT_THAT(world.histories().cpu, SizeIs(2));
}

}  // namespace
}  // namespace vantor::system_monitor_receive_test
