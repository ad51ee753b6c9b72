#include "platform/linux/system/linux_process_info.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <string>
#include <string_view>

#include "support/fake_kernel_tree.h"

namespace vantor::linux_process_info_test {
namespace {

TEST(LinuxProcessInfo, CountsWhatIsPresentAndWhatIsOnline) {
    const FakeKernelTree tree;
    tree.sys("devices/system/cpu/present", "0-7\n");
    tree.sys("devices/system/cpu/online", "0,2-3\n");
    const LinuxProcessInfo info(tree.roots());
    EXPECT_EQ(info.processorCount(), 8);
    EXPECT_EQ(info.activeProcessorCount(), 3);
}

TEST(LinuxProcessInfo, AsksTheLibraryWhereTheListsAreMissing) {
    const FakeKernelTree tree;
    const LinuxProcessInfo info(tree.roots());
    EXPECT_EQ(info.processorCount(), ::sysconf(_SC_NPROCESSORS_CONF));
    EXPECT_EQ(info.activeProcessorCount(), ::sysconf(_SC_NPROCESSORS_ONLN));
    tree.sys("devices/system/cpu/present", "\n");
    tree.sys("devices/system/cpu/online", "none\n");
    EXPECT_GE(info.processorCount(), 1);
    EXPECT_GE(info.activeProcessorCount(), 1);
}

TEST(LinuxProcessInfo, MeasuresWithTheMonotonicClock) {
    const LinuxProcessInfo info(LinuxRoots{});
    const auto seconds = [] {
        timespec now{};
        ::clock_gettime(CLOCK_MONOTONIC, &now);
        return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
    };
    const double before = seconds();
    const double uptime = info.systemUptime();
    const double after = seconds();
    EXPECT_GE(uptime, before - 1e-6);
    EXPECT_LE(uptime, after + 1e-6);
}

TEST(LinuxProcessInfo, TellsTheTimeSinceBootAsTheKernelDoes) {
    const FakeKernelTree tree;
    tree.proc("uptime", "13023.22 13500.56\n");
    const LinuxProcessInfo info(tree.roots());
    EXPECT_DOUBLE_EQ(info.secondsSinceBoot(), 13023.22);
    tree.proc("uptime", "13024.00 13501.00\n");
    EXPECT_DOUBLE_EQ(info.secondsSinceBoot(), 13024);
}

TEST(LinuxProcessInfo, AsksTheClockWhereTheTimeSinceBootIsMissingOrDamaged) {
    const auto sinceBoot = [] {
        timespec now{};
        ::clock_gettime(CLOCK_BOOTTIME, &now);
        return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
    };
    const FakeKernelTree tree;
    EXPECT_NEAR(LinuxProcessInfo(tree.roots()).secondsSinceBoot(), sinceBoot(), 1);
    for (const char* text : {"", "\n", "soon 1\n", "-5.0 1\n", "1302", "inf 1\n", "nan 1\n"}) {
        tree.proc("uptime", text);
        EXPECT_NEAR(LinuxProcessInfo(tree.roots()).secondsSinceBoot(), sinceBoot(), 1) << text;
    }
}

TEST(LinuxProcessInfo, GivesTheHostsNameOfEachMoment) {
    const FakeKernelTree tree;
    tree.proc("sys/kernel/hostname", "first.example\n");
    const LinuxProcessInfo info(tree.roots());
    std::string name = "before";
    info.hostName(name);
    EXPECT_EQ(name, "first.example");
    tree.proc("sys/kernel/hostname", "second\n");
    info.hostName(name);
    EXPECT_EQ(name, "second");
}

TEST(LinuxProcessInfo, AsksTheLibraryForANameThatIsMissing) {
    std::array<char, 256> buffer{};
    ASSERT_EQ(::gethostname(buffer.data(), buffer.size() - 1), 0);
    const std::string_view real(buffer.data());
    const bool hasName = !real.empty() && real != "(none)";
    const FakeKernelTree tree;
    std::string name;
    LinuxProcessInfo(tree.roots()).hostName(name);
    EXPECT_EQ(name, hasName ? real : "localhost");
    for (const char* text : {"", "\n", "(none)\n"}) {
        tree.proc("sys/kernel/hostname", text);
        LinuxProcessInfo(tree.roots()).hostName(name);
        EXPECT_EQ(name, hasName ? real : "localhost") << text;
    }
}

TEST(LinuxProcessInfo, KnowsHowMuchMemoryThereIs) {
    const FakeKernelTree tree;
    const LinuxProcessInfo info(tree.roots());
    EXPECT_GT(info.physicalMemory(), 0U) << "the library's figure";
    tree.proc("meminfo", "MemTotal: 2000 kB\n");
    EXPECT_EQ(info.physicalMemory(), 2'048'000U);
}

TEST(LinuxProcessInfo, NamesTheSystemAsTheDistributionDoes) {
    const FakeKernelTree tree;
    const LinuxProcessInfo info(tree.roots());
    EXPECT_EQ(info.operatingSystemName(), "Linux");
    tree.etc("os-release", "NAME=Some\nPRETTY_NAME=\"Some OS 3\"\n");
    EXPECT_EQ(info.operatingSystemName(), "Some OS 3");
}

TEST(LinuxProcessInfo, HasTheVersionOfTheKernel) {
    const FakeKernelTree tree;
    const LinuxProcessInfo info(tree.roots());
    EXPECT_GE(info.operatingSystemVersion().major, 2) << "the library's";
    tree.proc("sys/kernel/osrelease", "97.4.11-custom\n");
    EXPECT_EQ(info.operatingSystemVersion().major, 97);
    EXPECT_EQ(info.operatingSystemVersion().minor, 4);
    EXPECT_EQ(info.operatingSystemVersion().patch, 11);
}

TEST(LinuxProcessInfo, TellsHeatAndSavingFromTheirTrees) {
    const FakeKernelTree tree;
    EXPECT_EQ(LinuxProcessInfo(tree.roots()).thermalState(), -1);
    EXPECT_FALSE(LinuxProcessInfo(tree.roots()).isLowPowerModeEnabled());
    tree.sys("class/thermal/thermal_zone0/temp", "91000\n");
    tree.sys("class/thermal/thermal_zone0/trip_point_0_type", "hot\n");
    tree.sys("class/thermal/thermal_zone0/trip_point_0_temp", "90000\n");
    tree.sys("firmware/acpi/platform_profile", "low-power\n");
    LinuxProcessInfo info(tree.roots());
    EXPECT_EQ(info.thermalState(), 2);
    EXPECT_TRUE(info.isLowPowerModeEnabled());
}

TEST(LinuxProcessInfo, HasEveryVersionOfAnotherSystem) {
    EXPECT_TRUE(LinuxProcessInfo(LinuxRoots{}).isOperatingSystemAtLeast(99, 9, 9));
}

}  // namespace
}  // namespace vantor::linux_process_info_test
