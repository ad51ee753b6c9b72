#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "model/filled_records.h"
#include "model/power_read_result.h"

namespace vantor::equality_test {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

template <class Record>
struct Change {
    const char* field;
    void (*make)(Record&);
};

template <class Record>
void expectEveryChangeToCount(const Record& record, const std::vector<Change<Record>>& changes) {
    const Record copy = record;
    EXPECT_EQ(copy, record);
    for (const auto& [field, make] : changes) {
        SCOPED_TRACE(field);
        Record changed = record;
        make(changed);
        EXPECT_NE(changed, record);
    }
}

TEST(Equality, OfProcessorsComparesEveryField) {
    expectEveryChangeToCount<CPUStats>(
        filled::cpu(),
        {
            {"model", [](CPUStats& r) { r.model = "?"; }},
            {"totalUsage", [](CPUStats& r) { r.totalUsage += 1e-15; }},
            {"userUsage", [](CPUStats& r) { r.userUsage = 0; }},
            {"systemUsage", [](CPUStats& r) { r.systemUsage = 0; }},
            {"idleUsage", [](CPUStats& r) { r.idleUsage = 0; }},
            {"perCoreUsage", [](CPUStats& r) { r.perCoreUsage.pop_back(); }},
            {"logicalCoreCount", [](CPUStats& r) { ++r.logicalCoreCount; }},
            {"physicalCoreCount", [](CPUStats& r) { ++r.physicalCoreCount; }},
            {"loadAverage", [](CPUStats& r) { r.loadAverage.clear(); }},
            {"nominalFrequencyHz", [](CPUStats& r) { r.nominalFrequencyHz.reset(); }},
            {"temperatureCelsius", [](CPUStats& r) { r.temperatureCelsius = 0; }},
        });
}

TEST(Equality, OfMemoryComparesEveryField) {
    expectEveryChangeToCount<MemoryStats>(
        filled::memory(), {
                              {"totalBytes", [](MemoryStats& r) { ++r.totalBytes; }},
                              {"usedBytes", [](MemoryStats& r) { ++r.usedBytes; }},
                              {"activeBytes", [](MemoryStats& r) { ++r.activeBytes; }},
                              {"wiredBytes", [](MemoryStats& r) { ++r.wiredBytes; }},
                              {"compressedBytes", [](MemoryStats& r) { ++r.compressedBytes; }},
                              {"cachedBytes", [](MemoryStats& r) { ++r.cachedBytes; }},
                              {"availableBytes", [](MemoryStats& r) { ++r.availableBytes; }},
                          });
}

TEST(Equality, OfInterfacesComparesEveryField) {
    using R = NetworkInterfaceStats;
    expectEveryChangeToCount<R>(
        filled::interface(),
        {
            {"name", [](R& r) { r.name += "?"; }},
            {"ipv4Address", [](R& r) { r.ipv4Address.reset(); }},
            {"ipv6Address", [](R& r) { r.ipv6Address = ""; }},
            {"receivedBytes", [](R& r) { ++r.receivedBytes; }},
            {"sentBytes", [](R& r) { ++r.sentBytes; }},
            {"downloadBytesPerSecond", [](R& r) { r.downloadBytesPerSecond = 0; }},
            {"uploadBytesPerSecond", [](R& r) { r.uploadBytesPerSecond = 0; }},
            {"isPointToPoint", [](R& r) { r.isPointToPoint = false; }},
        });
}

TEST(Equality, OfNetworksComparesEveryField) {
    using R = NetworkStats;
    expectEveryChangeToCount<R>(
        filled::network(),
        {
            {"hostname", [](R& r) { r.hostname += "?"; }},
            {"primaryInterfaceName", [](R& r) { r.primaryInterfaceName.reset(); }},
            {"primaryIPv4Address", [](R& r) { r.primaryIPv4Address.reset(); }},
            {"primaryIPv6Address", [](R& r) { r.primaryIPv6Address.reset(); }},
            {"downloadBytesPerSecond", [](R& r) { r.downloadBytesPerSecond = 0; }},
            {"uploadBytesPerSecond", [](R& r) { r.uploadBytesPerSecond = 0; }},
            {"interfaces", [](R& r) { r.interfaces[0].sentBytes = 0; }},
        });
}

TEST(Equality, OfGraphicsDevicesComparesEveryField) {
    using R = GPUStats;
    expectEveryChangeToCount<R>(
        filled::gpu(),
        {
            {"id", [](R& r) { r.id += "?"; }},
            {"name", [](R& r) { r.name += "?"; }},
            {"isUnifiedMemory", [](R& r) { r.isUnifiedMemory = false; }},
            {"utilization", [](R& r) { r.utilization.reset(); }},
            {"temperatureCelsius", [](R& r) { r.temperatureCelsius.reset(); }},
            {"vramUsedBytes", [](R& r) { r.vramUsedBytes.reset(); }},
            {"vramTotalBytes", [](R& r) { r.vramTotalBytes.reset(); }},
            {"recommendedWorkingSetBytes", [](R& r) { r.recommendedWorkingSetBytes.reset(); }},
        });
}

TEST(Equality, OfVolumesComparesEveryField) {
    using R = VolumeStats;
    expectEveryChangeToCount<R>(filled::volume(),
                                {
                                    {"name", [](R& r) { r.name += "?"; }},
                                    {"path", [](R& r) { r.path += "?"; }},
                                    {"totalBytes", [](R& r) { ++r.totalBytes; }},
                                    {"availableBytes", [](R& r) { ++r.availableBytes; }},
                                    {"isInternal", [](R& r) { r.isInternal = false; }},
                                    {"isRemovable", [](R& r) { r.isRemovable = false; }},
                                    {"isReadOnly", [](R& r) { r.isReadOnly = false; }},
                                });
}

TEST(Equality, OfProcessesComparesEveryField) {
    using R = ProcessStats;
    expectEveryChangeToCount<R>(filled::process(),
                                {
                                    {"pid", [](R& r) { ++r.pid; }},
                                    {"name", [](R& r) { r.name = "?"; }},
                                    {"command", [](R& r) { r.command = "?"; }},
                                    {"cpuPercent", [](R& r) { r.cpuPercent = 0; }},
                                    {"residentMemoryBytes", [](R& r) { ++r.residentMemoryBytes; }},
                                });
}

TEST(Equality, OfProcessSamplesComparesEveryList) {
    using R = ProcessSample;
    expectEveryChangeToCount<R>(filled::processSample(),
                                {
                                    {"all", [](R& r) { r.all.pop_back(); }},
                                    {"sortedByCPU", [](R& r) { r.sortedByCPU.pop_back(); }},
                                    {"sortedByMemory", [](R& r) { r.sortedByMemory.pop_back(); }},
                                });
}

TEST(Equality, OfSystemsComparesEveryField) {
    using R = SystemInfoStats;
    expectEveryChangeToCount<R>(
        filled::system(),
        {
            {"hostName", [](R& r) { r.hostName += "?"; }},
            {"hardwareModel", [](R& r) { r.hardwareModel += "?"; }},
            {"operatingSystem", [](R& r) { r.operatingSystem += "?"; }},
            {"kernelVersion", [](R& r) { r.kernelVersion += "?"; }},
            {"architecture", [](R& r) { r.architecture += "?"; }},
            {"isRunningUnderRosetta", [](R& r) { r.isRunningUnderRosetta = false; }},
            {"uptimeSeconds", [](R& r) { r.uptimeSeconds = 0; }},
            {"thermalState", [](R& r) { r.thermalState = "Fair"; }},
            {"lowPowerModeEnabled", [](R& r) { r.lowPowerModeEnabled = false; }},
        });
}

TEST(Equality, OfBatteriesComparesEveryField) {
    using R = PowerStats;
    expectEveryChangeToCount<R>(
        filled::power(), {
                             {"name", [](R& r) { r.name += "?"; }},
                             {"chargeFraction", [](R& r) { r.chargeFraction = 0; }},
                             {"isCharging", [](R& r) { r.isCharging = false; }},
                             {"isConnectedToAC", [](R& r) { r.isConnectedToAC = false; }},
                             {"timeRemainingMinutes", [](R& r) { r.timeRemainingMinutes.reset(); }},
                             {"cycleCount", [](R& r) { r.cycleCount.reset(); }},
                         });
}

TEST(Equality, OfSnapshotsComparesEveryPart) {
    using R = SystemSnapshot;
    expectEveryChangeToCount<R>(
        filled::snapshot(),
        {
            {"timestamp", [](R& r) { r.timestamp += std::chrono::milliseconds{1}; }},
            {"cpu", [](R& r) { r.cpu.userUsage = 0; }},
            {"memory", [](R& r) { r.memory.usedBytes = 0; }},
            {"network", [](R& r) { r.network.hostname.clear(); }},
            {"gpus", [](R& r) { r.gpus.clear(); }},
            {"volumes", [](R& r) { r.volumes.clear(); }},
            {"processes", [](R& r) { r.processes.push_back(r.processes.front()); }},
            {"system", [](R& r) { r.system.uptimeSeconds = 0; }},
            {"power", [](R& r) { r.power.reset(); }},
        });
}

TEST(Equality, OfListsDependsOnTheirOrder) {
    const CPUStats forward = filled::cpu();
    CPUStats backward = forward;
    std::swap(backward.perCoreUsage.front(), backward.perCoreUsage.back());
    EXPECT_NE(forward, backward);
}

TEST(Equality, HoldsForZerosOfBothSigns) {
    ProcessStats positive, negative;
    negative.cpuPercent = -0.0;
    EXPECT_EQ(positive, negative);
}

TEST(Equality, NeverHoldsWithAValueThatIsNotANumber) {
    SystemSnapshot snapshot = filled::snapshot();
    snapshot.cpu.perCoreUsage.back() = nan;
    const SystemSnapshot sameData = snapshot;
    EXPECT_NE(snapshot, sameData);
    EXPECT_NE(snapshot, snapshot);
    PowerStats power = filled::power();
    power.chargeFraction = nan;
    EXPECT_NE(power, power);
}

TEST(Identity, OfAProcessIsItsPidWhateverElseChanged) {
    const ProcessStats before = filled::process();
    ProcessStats after = before;
    after.cpuPercent = 3;
    EXPECT_EQ(before.identity(), after.identity());
    EXPECT_NE(before, after);
    after.pid = before.pid + 1;
    EXPECT_NE(before.identity(), after.identity());
}

TEST(Identity, OfAVolumeIsItsPathAndOfADeviceItsID) {
    VolumeStats volume = filled::volume();
    volume.name = "Renamed";
    EXPECT_EQ(volume.identity(), filled::volume().identity());
    volume.path = "/elsewhere";
    EXPECT_NE(volume.identity(), filled::volume().identity());
    GPUStats gpu = filled::gpu();
    gpu.name = "Renamed";
    EXPECT_EQ(gpu.identity(), filled::gpu().identity());
    gpu.id = "gpu:2";
    EXPECT_NE(gpu.identity(), filled::gpu().identity());
}

TEST(PowerReadResult, TellsAMachineWithoutBatteryFromAFailure) {
    const auto withBattery = PowerReadResult::update(filled::power());
    const auto withoutBattery = PowerReadResult::update(std::nullopt);
    const auto failure = PowerReadResult::failure();
    EXPECT_TRUE(withBattery.isUpdate());
    EXPECT_EQ(withBattery.stats(), filled::power());
    EXPECT_TRUE(withoutBattery.isUpdate());
    EXPECT_EQ(withoutBattery.stats(), std::nullopt);
    EXPECT_FALSE(failure.isUpdate());
    EXPECT_NE(withoutBattery, failure);
    EXPECT_NE(withoutBattery, withBattery);
    EXPECT_EQ(failure, PowerReadResult::failure());
}

}  // namespace
}  // namespace vantor::equality_test
