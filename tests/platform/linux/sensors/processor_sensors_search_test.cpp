#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <filesystem>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/file_descriptor.h"
#include "platform/linux/sensors/processor_sensors.h"
#include "platform/linux/sensors/processor_sensors_fixture.h"

/// How sensors are sought: when, where, and what is never touched.
namespace vantor::processor_sensors_search_test {
namespace {

using testing::IsEmpty;
constexpr auto none = std::nullopt;

TEST_F(ProcessorSensorsTest, MonitorsMayHaveOtherNumbersAtTheNextBoot) {
    monitor(1, "nvme");
    sensor(1, 1, "Composite", "70000\n");
    monitor(2, "coretemp");
    sensor(2, 1, "Package id 0", "61000\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
    SensorTree next;
    next.monitor(1, "coretemp");
    next.sensor(1, 1, "Package id 0", "62000\n");
    next.monitor(2, "nvme");
    next.sensor(2, 1, "Composite", "71000\n");
    EXPECT_EQ(ProcessorSensors(next.tree.roots()).hottestPackage(), 62);
}

TEST_F(ProcessorSensorsTest, AMonitorThatGoesAndComesBackWithAnotherNumberIsFound) {
    monitor(2, "coretemp");
    sensor(2, 1, "Package id 0", "61000\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
    // An open file of a removed device fails; of a file that is only removed, it does not.
    sensor(2, 1, "Package id 0", "");
    removeMonitor(2);
    monitor(5, "coretemp");
    sensor(5, 1, "Package id 0", "62000\n");
    uptime += 4.9;
    EXPECT_EQ(sensors.hottestPackage(), none);
    uptime += 0.1;
    EXPECT_EQ(sensors.hottestPackage(), 62);
    sensor(5, 1, "Package id 0", "");
    removeMonitor(5);
    uptime += 5;
    EXPECT_EQ(sensors.hottestPackage(), none);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ProcessorSensorsTest, SensorsAreSoughtOnceAMinute) {
    EXPECT_EQ(sensors.hottestPackage(), none);
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    uptime += 59.9;
    EXPECT_EQ(sensors.hottestPackage(), none);
    uptime += 0.1;
    EXPECT_EQ(sensors.hottestPackage(), 61);
}

TEST_F(ProcessorSensorsTest, Of128CoresEachIsFound) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    for (int core = 0; core < 128; ++core)
        sensor(0, core + 2, "Core " + std::to_string(core), std::to_string(40000 + core * 100));
    EXPECT_EQ(sensors.hottestCore(), 52.7);
    EXPECT_EQ(sensors.list()->cores.size(), 128U);
    EXPECT_EQ(names().size(), 129U);
}

/// Tells which files of a folder are opened.
class OpeningWatch {
  public:
    void watch(const std::filesystem::path& path) {
        ASSERT_GE(::inotify_add_watch(events_.get(), path.c_str(), IN_OPEN | IN_ACCESS), 0);
    }
    bool sawAny() const {
        std::array<char, 4096> buffer{};
        return ::read(events_.get(), buffer.data(), buffer.size()) > 0;
    }

  private:
    FileDescriptor events_{::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)};
};

TEST_F(ProcessorSensorsTest, DisksAndGraphicsCardsAreNeverOpened) {
    OpeningWatch others;
    OpeningWatch own;
    int number = 0;
    for (const char* driver :
         {"drivetemp", "nvme", "amdgpu", "nouveau", "i915", "xe", "acpitz", "nct6775"}) {
        monitor(number, driver);
        sensor(number, 1, "Tdie", "70000\n");
        attribute(number, "temp1_fault", "0\n");
        others.watch(inputPath(number, 1));
        others.watch(inputPath(number, 1).parent_path() / "temp1_label");
        others.watch(inputPath(number, 1).parent_path() / "temp1_fault");
        ++number;
    }
    monitor(number, "coretemp");
    sensor(number, 1, "Package id 0", "61000\n");
    sensor(number, 2, "Core 0", "60000\n");
    own.watch(inputPath(number, 1));
    OpeningWatch core;
    core.watch(inputPath(number, 2));
    EXPECT_EQ(sensors.hottestPackage(), 61);
    EXPECT_TRUE(own.sawAny());
    EXPECT_FALSE(core.sawAny()) << "one package is asked, not its cores";
    EXPECT_EQ(sensors.hottestCore(), 60);
    EXPECT_TRUE(core.sawAny());
    uptime += 60;
    EXPECT_EQ(sensors.hottestPackage(), 61);
    EXPECT_FALSE(others.sawAny());
}

TEST_F(ProcessorSensorsTest, SeveralThreadsMayAskWhileSensorsAreSought) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    sensor(0, 2, "Core 0", "60000\n");
    std::atomic<double> now{0};
    ProcessorSensors shared(tree.roots(), [&now] { return now.load(); });
    ASSERT_EQ(shared.hottestPackage(), 61);
    std::atomic<int> wrong{0};
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([&] {
                for (int i = 0; i < 50; ++i) {
                    now = now + 20;
                    if (shared.hottestPackage() != 61 || shared.hottestCore() != 60) ++wrong;
                }
            });
        }
    }
    EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace vantor::processor_sensors_search_test
