#include "platform/linux/linux_process_info.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>

#include "support/fake_kernel_tree.h"

namespace vantor {
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

TEST(LinuxProcessInfo, HasEveryVersionOfAnotherSystem) {
    EXPECT_TRUE(LinuxProcessInfo(LinuxRoots{}).isOperatingSystemAtLeast(99, 9, 9));
}

}  // namespace
}  // namespace vantor
