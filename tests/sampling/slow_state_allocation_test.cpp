#include <gtest/gtest.h>

#include <memory>

#include "platform/linux/linux_machine.h"
#include "probes/memory_reader.h"
#include "probes/system_info_reader.h"
#include "sampling/counted_passes.h"
#include "support/fake_kernel_tree.h"

/// Memory and the system's state are read all day long: in the steady state neither allocates.
namespace vantor::slow_state_allocation_test {
namespace {

void recordMemory(const FakeKernelTree& tree) {
    tree.proc("meminfo",
              "MemTotal: 1000 kB\nMemFree: 100 kB\nMemAvailable: 400 kB\nMlocked: 20 kB\n"
              "SwapTotal: 7 kB\nZswap: 5 kB\nSUnreclaim: 10 kB\n");
    tree.proc("spl/kstat/zfs/arcstats", "c_min 4 10240\nsize 4 61440\n");
    tree.sys("block/zram0/mm_stat", "1 1 40960 0\n");
    tree.sys("block/zram1/mm_stat", "1 1 20480 0\n");
}

TEST(Allocations, OfAMemoryReadingOnARecordedMachineAreNone) {
    const FakeKernelTree tree;
    recordMemory(tree);
    MemoryReader reader(std::make_shared<LinuxMachine>(tree.roots()));
    int readings = 0;
    EXPECT_EQ(allocationsOf([&] {
                  const auto stats = reader.read();
                  if (stats && stats->usedBytes == 550 * 1024) ++readings;
              }),
              0U);
    EXPECT_EQ(readings, warmUp + passes);
}

// Kernels before 3.14 have one more file read.
TEST(Allocations, OfAMemoryReadingOnAnOldKernelAreNone) {
    const FakeKernelTree tree;
    tree.proc("meminfo", "MemTotal: 1000 kB\nMemFree: 100 kB\nCached: 30 kB\n");
    tree.proc("sys/vm/min_free_kbytes", "8\n");
    MemoryReader reader(std::make_shared<LinuxMachine>(tree.roots()));
    int readings = 0;
    EXPECT_EQ(allocationsOf([&] { readings += reader.read() ? 1 : 0; }), 0U);
    EXPECT_EQ(readings, warmUp + passes);
}

TEST(Allocations, OfAMemoryReadingOnThisMachineAreNone) {
    MemoryReader reader(std::make_shared<LinuxMachine>());
    int readings = 0;
    EXPECT_EQ(allocationsOf([&] { readings += reader.read() ? 1 : 0; }), 0U);
    EXPECT_EQ(readings, warmUp + passes);
}

TEST(Allocations, OfASystemInfoReadingOnARecordedMachineAreNone) {
    const FakeKernelTree tree;
    tree.proc("uptime", "13023.22 13500.56\n");
    tree.proc("sys/kernel/hostname", "a-name-that-is-longer-than-any-short-string.example\n");
    tree.sys("class/thermal/thermal_zone0/temp", "91000\n");
    tree.sys("class/thermal/thermal_zone0/trip_point_0_type", "hot\n");
    tree.sys("class/thermal/thermal_zone0/trip_point_0_temp", "90000\n");
    tree.sys("firmware/acpi/platform_profile", "balanced\n");
    tree.sys("devices/system/cpu/cpufreq/policy0/energy_performance_preference", "power\n");
    SystemInfoReader reader(std::make_shared<LinuxMachine>(tree.roots()));
    int readings = 0;
    EXPECT_EQ(allocationsOf([&] {
                  const SystemInfoStats& stats = reader.read();
                  if (stats.thermalState == "Serious" && stats.lowPowerModeEnabled) ++readings;
              }),
              0U);
    EXPECT_EQ(readings, warmUp + passes);
}

TEST(Allocations, OfASystemInfoReadingOnThisMachineAreNone) {
    SystemInfoReader reader(std::make_shared<LinuxMachine>());
    int readings = 0;
    EXPECT_EQ(allocationsOf([&] { readings += reader.read().uptimeSeconds > 0 ? 1 : 0; }), 0U);
    EXPECT_EQ(readings, warmUp + passes);
}

}  // namespace
}  // namespace vantor::slow_state_allocation_test
