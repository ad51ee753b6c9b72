#include <gtest/gtest.h>
#include <sys/utsname.h>

#include <fstream>
#include <memory>

#include "platform/linux/linux_machine.h"
#include "probes/system_info_reader.h"

namespace vantor::live_system_info_test {
namespace {

double uptime() {
    double seconds = 0;
    std::ifstream("/proc/uptime") >> seconds;
    return seconds;
}

TEST(LiveSystemInfo, TellsTheTimeSinceBoot) {
    SystemInfoReader reader(std::make_shared<LinuxMachine>());
    const double before = uptime();
    const double seconds = reader.read().uptimeSeconds;
    const double after = uptime();
    ASSERT_GT(before, 0);
    EXPECT_GE(seconds, before - 1);
    EXPECT_LE(seconds, after + 1);
}

TEST(LiveSystemInfo, NamesThisMachine) {
    utsname name{};
    ASSERT_EQ(::uname(&name), 0);
    SystemInfoReader reader(std::make_shared<LinuxMachine>());
    const SystemInfoStats& stats = reader.read();
    EXPECT_EQ(stats.hostName, name.nodename);
    EXPECT_EQ(stats.kernelVersion, name.release);
    EXPECT_FALSE(stats.operatingSystem.empty());
    EXPECT_EQ(stats.operatingSystem.find("macOS"), std::string::npos);
    EXPECT_FALSE(stats.hardwareModel.empty());
    EXPECT_FALSE(stats.isRunningUnderRosetta);
}

}  // namespace
}  // namespace vantor::live_system_info_test
