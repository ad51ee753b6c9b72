#include "platform/linux/sensors/linux_sensors.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <memory>
#include <optional>
#include <string>

#include "platform/linux/linux_machine.h"
#include "platform/linux/sensors/sensor_tree.h"

namespace vantor::linux_sensors_test {
namespace {

constexpr auto none = std::nullopt;

class LinuxTemperature : public testing::Test, protected SensorTree {
  protected:
    void processor(const std::string& name) const {
        tree.proc("cpuinfo", "processor\t: 0\nmodel name\t: " + name + "\n\n");
    }
    std::optional<double> read() {
        return LinuxMachine(tree.roots()).sensors().processorTemperature();
    }
    std::optional<double> readGraphics() {
        return LinuxMachine(tree.roots()).sensors().graphicsTemperature();
    }
};

TEST_F(LinuxTemperature, IsThePackages) {
    processor("Some Processor 9000");
    EXPECT_EQ(read(), none);
    monitor(0, "k10temp");
    sensor(0, 1, "Tctl", "61500\n");
    sensor(0, 3, "Tccd1", "65000\n");
    EXPECT_EQ(read(), 61.5);
}

TEST_F(LinuxTemperature, IsTheHottestCoresWhereThePackageFailsOrIsNotKnown) {
    monitor(0, "coretemp");
    sensor(0, 2, "Core 0", "55000\n");
    sensor(0, 3, "Core 9", "57250\n");
    sensor(0, 4, "Core 14", "56000\n");
    EXPECT_EQ(read(), 57.25);
    sensor(0, 1, "Package id 0", "");
    EXPECT_EQ(read(), 57.25);
    sensor(0, 1, "Package id 0", "50000\n");
    EXPECT_EQ(read(), 50);
}

TEST_F(LinuxTemperature, OfASensorThatFailsIsAbsentAndNot0Degrees) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "");
    EXPECT_EQ(read(), none);
}

TEST_F(LinuxTemperature, IsAsPreciseAsAFloat) {
    zone(0, "cpu-thermal", "80317\n");
    EXPECT_EQ(read(), 80.317F);
}

TEST_F(LinuxTemperature, OfFirmwaresZoneAndOfDisksIsNone) {
    zone(0, "acpitz", "27800\n");
    monitor(1, "nvme");
    sensor(1, 1, "Composite", "40000\n");
    EXPECT_EQ(read(), none);
}

TEST_F(LinuxTemperature, OfAProcessorThatCallsItselfApplesIsThatOfItsSensors) {
    processor("Apple M2");
    zone(0, "cpu-thermal", "44750\n");
    zone(1, "gpu-thermal", "60000\n");
    EXPECT_EQ(read(), 44.75);
    EXPECT_EQ(readGraphics(), none);
}

TEST_F(LinuxTemperature, OfGraphicsIsTheirDriversToTell) {
    processor("Some Processor 9000");
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "50000\n");
    EXPECT_EQ(readGraphics(), none);
}

TEST_F(LinuxTemperature, KeepsNoFileOfAMachineThatHasGone) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "50000\n");
    const auto open = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    };
    const auto before = open();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(read(), 50);
    EXPECT_EQ(open(), before);
}

}  // namespace
}  // namespace vantor::linux_sensors_test
