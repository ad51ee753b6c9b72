#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "platform/linux/linux_machine.h"
#include "platform/linux/sensors/processor_sensors.h"
#include "platform/linux/sensors/sensor_tree.h"
#include "support/failing_read.h"
#include "support/named_row.h"
#include "support/silent_pipe.h"

/// Sensors of the processor that fail as the kernel's do, and who stands in for them.
namespace vantor::failing_processor_sensor_test {
namespace {

constexpr auto none = std::nullopt;

struct ErrorRow : NamedRow {
    int error;
};

class FailingProcessorSensor : public testing::TestWithParam<ErrorRow>, protected SensorTree {
  protected:
    FailingProcessorSensor() {
        monitor(2, "coretemp");
        sensor(2, 1, "Package id 0", "61000\n");
        sensor(2, 2, "Core 0", "55000\n");
        sensor(2, 3, "Core 10", "54000\n");
    }

    FailingRead fail(int number) const { return {inputPath(2, number), GetParam().error}; }
    FailingRead failZone(int number) const {
        return {
            tree.roots().sys / ("class/thermal/thermal_zone" + std::to_string(number) + "/temp"),
            GetParam().error};
    }

    double uptime = 1000;
    ProcessorSensors sensors{tree.roots(), [this] { return uptime; }};
};

INSTANTIATE_TEST_SUITE_P(Errors, FailingProcessorSensor,
                         testing::Values(ErrorRow{{"TryAgain"}, EAGAIN}, ErrorRow{{"Input"}, EIO},
                                         ErrorRow{{"NoData"}, ENODATA},
                                         ErrorRow{{"NoDevice"}, ENODEV},
                                         ErrorRow{{"Invalid"}, EINVAL},
                                         ErrorRow{{"TimedOut"}, ETIMEDOUT}),
                         rowName<ErrorRow>);

TEST_P(FailingProcessorSensor, IsAbsentForAsLongAndThenThereAgain) {
    EXPECT_EQ(sensors.hottestPackage(), 61);
    {
        const FailingRead failing = fail(1);
        EXPECT_EQ(sensors.hottestPackage(), none);
        EXPECT_EQ(failing.count(), 1);
        EXPECT_EQ(sensors.hottestPackage(), none);
        uptime += 6;  // sensors are sought anew, and this one is found
        EXPECT_EQ(sensors.hottestPackage(), none);
        EXPECT_EQ(failing.count(), 4);
    }
    EXPECT_EQ(sensors.hottestPackage(), 61);
}

TEST_P(FailingProcessorSensor, HidesNoOtherPackageAndNoOtherCore) {
    sensor(2, 4, "Package id 1", "41000\n");
    const FailingRead package = fail(1);
    const FailingRead core = fail(2);
    EXPECT_EQ(sensors.hottestPackage(), 41);
    EXPECT_EQ(sensors.hottestCore(), 54);
    EXPECT_EQ(package.count(), 1);
    EXPECT_EQ(core.count(), 1);
}

TEST_P(FailingProcessorSensor, IsStoodInForByTheProcessorsZone) {
    zone(0, "acpitz", "27800\n");
    zone(1, "x86_pkg_temp", "60500\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
    {
        const FailingRead failing = fail(1);
        EXPECT_EQ(sensors.hottestPackage(), 60.5);
        zone(1, "x86_pkg_temp", "60700\n");
        uptime += 6;
        EXPECT_EQ(sensors.hottestPackage(), 60.7);
        EXPECT_EQ(failing.count(), 2) << "it is asked each time, and no sensor is sought anew";
        const FailingRead both = failZone(1);
        EXPECT_EQ(sensors.hottestPackage(), none);
    }
    EXPECT_EQ(sensors.hottestPackage(), 61);
}

TEST_P(FailingProcessorSensor, OfAZoneHidesNoOtherZone) {
    removeMonitor(2);
    zone(0, "cpu0-thermal", "51000\n");
    zone(1, "cpu1-thermal", "49000\n");
    const FailingRead failing = failZone(0);
    EXPECT_EQ(sensors.hottestPackage(), 49);
    EXPECT_EQ(failing.count(), 1);
}

TEST_P(FailingProcessorSensor, LeavesTheReaderTheZoneAndThenTheCores) {
    const FailingRead failing = fail(1);
    const auto read = [this] {
        return LinuxMachine(tree.roots()).sensors().processorTemperature();
    };
    EXPECT_EQ(read(), 55) << "the hottest core";
    zone(1, "x86_pkg_temp", "60500\n");
    EXPECT_EQ(read(), 60.5);
    const FailingRead firstCore = fail(2);
    const FailingRead zoneToo = failZone(1);
    EXPECT_EQ(read(), 54);
    const FailingRead secondCore = fail(3);
    EXPECT_EQ(read(), none);
}

TEST_P(FailingProcessorSensor, ThatIsTheOnlyOneLeavesNothing) {
    removeMonitor(2);
    monitor(2, "k10temp");
    sensor(2, 1, "Tctl", "61000\n");
    zone(0, "acpitz", "27800\n");
    const FailingRead failing = fail(1);
    EXPECT_EQ(sensors.hottestPackage(), none);
    EXPECT_EQ(failing.count(), 1);
}

TEST_P(FailingProcessorSensor, WhoseStateCannotBeReadIsTakenForWhole) {
    attribute(2, "temp1_fault", "1\n");
    EXPECT_EQ(sensors.hottestPackage(), none);
    const FailingRead state(inputPath(2, 1).parent_path() / "temp1_fault", GetParam().error);
    EXPECT_EQ(sensors.hottestPackage(), 61);
}

class SilentProcessorSensor : public testing::Test, protected SensorTree {
  protected:
    SilentProcessorSensor() {
        monitor(2, "coretemp");
        sensor(2, 1, "Package id 0", "61000\n");
        sensor(2, 2, "Package id 1", "41000\n");
    }

    std::filesystem::path fileOf(int number, const char* name) const {
        return inputPath(number, 1).parent_path() / name;
    }
};

TEST_F(SilentProcessorSensor, IsNotWaitedForAndHidesNoOther) {
    const SilentPipe input(inputPath(2, 1));
    EXPECT_EQ(ProcessorSensors(tree.roots()).hottestPackage(), 41);
}

TEST_F(SilentProcessorSensor, WhoseLabelIsNotTheSameAsNone) {
    const SilentPipe label(fileOf(2, "temp1_label"));
    EXPECT_EQ(ProcessorSensors(tree.roots()).hottestPackage(), 41);
}

TEST_F(SilentProcessorSensor, OfAMonitorWithoutANameHidesNoOtherMonitor) {
    monitor(1, "coretemp");
    sensor(1, 1, "Package id 2", "90000\n");
    const SilentPipe name(fileOf(1, "name"));
    EXPECT_EQ(ProcessorSensors(tree.roots()).hottestPackage(), 61);
}

TEST_F(SilentProcessorSensor, IsStoodInForByAZoneBesideAZoneWithoutAType) {
    zone(0, "x86_pkg_temp", "99000\n");
    zone(1, "x86_pkg_temp", "60000\n");
    const SilentPipe type(tree.roots().sys / "class/thermal/thermal_zone0/type");
    const SilentPipe first(inputPath(2, 1));
    const SilentPipe second(inputPath(2, 2));
    EXPECT_EQ(ProcessorSensors(tree.roots()).hottestPackage(), 60);
}

}  // namespace
}  // namespace vantor::failing_processor_sensor_test
