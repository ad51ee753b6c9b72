#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/process_sample.h"
#include "model/system_snapshot.h"

namespace vantor::placeholders_test {
namespace {

using testing::IsEmpty;

TEST(CPUPlaceholder, NamesTheSearchAndReadsAsAnIdleProcessor) {
    const CPUStats& cpu = CPUStats::empty();
    EXPECT_EQ(cpu.model, "Detecting processor\xE2\x80\xA6");
    EXPECT_EQ(cpu.totalUsage, 0);
    EXPECT_EQ(cpu.userUsage, 0);
    EXPECT_EQ(cpu.systemUsage, 0);
    EXPECT_EQ(cpu.idleUsage, 1.0);
    EXPECT_THAT(cpu.perCoreUsage, IsEmpty());
    EXPECT_EQ(cpu.logicalCoreCount, 0);
    EXPECT_EQ(cpu.physicalCoreCount, 0);
    EXPECT_THAT(cpu.loadAverage, IsEmpty());
    EXPECT_EQ(cpu.nominalFrequencyHz, std::nullopt);
    EXPECT_EQ(cpu.temperatureCelsius, std::nullopt);
}

TEST(NetworkPlaceholder, NamesTheSearchAndHasNoInterface) {
    const NetworkStats& network = NetworkStats::empty();
    EXPECT_EQ(network.hostname, "Detecting host\xE2\x80\xA6");
    EXPECT_EQ(network.primaryInterfaceName, std::nullopt);
    EXPECT_EQ(network.primaryIPv4Address, std::nullopt);
    EXPECT_EQ(network.primaryIPv6Address, std::nullopt);
    EXPECT_EQ(network.downloadBytesPerSecond, 0);
    EXPECT_EQ(network.uploadBytesPerSecond, 0);
    EXPECT_THAT(network.interfaces, IsEmpty());
}

TEST(ProcessSamplePlaceholder, IsThreeEmptyLists) {
    EXPECT_THAT(ProcessSample::empty().all, IsEmpty());
    EXPECT_THAT(ProcessSample::empty().sortedByCPU, IsEmpty());
    EXPECT_THAT(ProcessSample::empty().sortedByMemory, IsEmpty());
}

TEST(SnapshotPlaceholder, HoldsThePlaceholdersOfItsParts) {
    const SystemSnapshot& snapshot = SystemSnapshot::empty();
    EXPECT_EQ(snapshot.cpu, CPUStats::empty());
    EXPECT_EQ(snapshot.network, NetworkStats::empty());
    EXPECT_THAT(snapshot.gpus, IsEmpty());
    EXPECT_THAT(snapshot.volumes, IsEmpty());
    EXPECT_THAT(snapshot.processes, IsEmpty());
    EXPECT_EQ(snapshot.power, std::nullopt);
}

TEST(SnapshotPlaceholder, HasNoMemoryAtAll) {
    const MemoryStats& memory = SystemSnapshot::empty().memory;
    EXPECT_EQ(memory.totalBytes, 0U);
    EXPECT_EQ(memory.usedBytes, 0U);
    EXPECT_EQ(memory.activeBytes, 0U);
    EXPECT_EQ(memory.wiredBytes, 0U);
    EXPECT_EQ(memory.compressedBytes, 0U);
    EXPECT_EQ(memory.cachedBytes, 0U);
    EXPECT_EQ(memory.availableBytes, 0U);
}

TEST(SnapshotPlaceholder, NamesTheSearchForTheSystem) {
    const SystemInfoStats& system = SystemSnapshot::empty().system;
    EXPECT_EQ(system.hostName, "Detecting host\xE2\x80\xA6");
    EXPECT_EQ(system.hardwareModel, "Detecting hardware\xE2\x80\xA6");
    EXPECT_EQ(system.operatingSystem, "Detecting macOS\xE2\x80\xA6");
    EXPECT_EQ(system.kernelVersion, "");
    EXPECT_EQ(system.architecture, "");
    EXPECT_FALSE(system.isRunningUnderRosetta);
    EXPECT_EQ(system.uptimeSeconds, 0);
    EXPECT_EQ(system.thermalState, "Unknown");
    EXPECT_FALSE(system.lowPowerModeEnabled);
}

TEST(SnapshotPlaceholder, IsOlderThanAnyRealSnapshot) {
    EXPECT_EQ(SystemSnapshot::empty().timestamp, Timestamp::min());
    EXPECT_LT(SystemSnapshot::empty().timestamp, Timestamp{});
}

TEST(Placeholders, AreBuiltOnceAndShared) {
    EXPECT_EQ(&CPUStats::empty(), &CPUStats::empty());
    EXPECT_EQ(&NetworkStats::empty(), &NetworkStats::empty());
    EXPECT_EQ(&ProcessSample::empty(), &ProcessSample::empty());
    EXPECT_EQ(&SystemSnapshot::empty(), &SystemSnapshot::empty());
}

}  // namespace
}  // namespace vantor::placeholders_test
