#include "platform/linux/sensors/processor_sensors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string>

#include "platform/linux/sensors/processor_sensors_fixture.h"
#include "support/named_row.h"

namespace vantor::processor_sensors_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
constexpr auto none = std::nullopt;

TEST_F(ProcessorSensorsTest, WithoutAnyThereIsNoTemperature) {
    EXPECT_EQ(sensors.hottestPackage(), none);
    EXPECT_EQ(sensors.hottestCore(), none);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ProcessorSensorsTest, TheHottestPackageAndTheHottestCoreOfAllCount) {
    monitor(3, "coretemp");
    sensor(3, 1, "Package id 0", "61000\n");
    sensor(3, 2, "Core 0", "55000\n");
    sensor(3, 3, "Core 1", "56000\n");
    sensor(3, 12, "Core 10", "57500\n");
    monitor(4, "coretemp");
    sensor(4, 1, "Package id 1", "64250\n");
    sensor(4, 2, "Core 0", "50000\n");
    EXPECT_EQ(sensors.hottestPackage(), 64.25);
    EXPECT_EQ(sensors.hottestCore(), 57.5);
}

TEST_F(ProcessorSensorsTest, TheDieCountsBeforeWhatTheFansAreSteeredBy) {
    monitor(0, "k10temp");
    sensor(0, 1, "Tctl", "88000\n");
    EXPECT_EQ(sensors.hottestPackage(), 88);
    uptime += 60;
    sensor(0, 2, "Tdie", "61000\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
    EXPECT_THAT(names(), ElementsAre("k10temp Tdie"));
    sensor(0, 2, "Tdie", "");
    uptime += 60;
    EXPECT_EQ(sensors.hottestPackage(), none) << "a number with an offset is no stand-in";
}

TEST_F(ProcessorSensorsTest, OldKernelsTellOneTemperatureWithoutALabel) {
    monitor(0, "k10temp");
    sensor(0, 1, "", "45500\n");
    EXPECT_EQ(sensors.hottestPackage(), 45.5);
    EXPECT_THAT(names(), ElementsAre("k10temp"));
}

TEST_F(ProcessorSensorsTest, ALabelThatCannotBeReadIsNotTheSameAsNone) {
    monitor(0, "k10temp");
    sensor(0, 1, "", "45500\n");
    attribute(0, "temp1_label", "");
    EXPECT_EQ(sensors.hottestPackage(), none);
}

TEST_F(ProcessorSensorsTest, CoresAloneGiveNoPackage) {
    monitor(0, "coretemp");
    sensor(0, 2, "Core 0", "48000\n");
    EXPECT_EQ(sensors.hottestPackage(), none);
    EXPECT_EQ(sensors.hottestCore(), 48);
}

TEST_F(ProcessorSensorsTest, ZonesCountWhereNoMonitorKnowsAPackage) {
    zone(0, "acpitz", "27800\n");
    zone(1, "cpu0-thermal", "51000\n");
    zone(7, "cpu1-thermal", "52500\n");
    zone(8, "gpu-thermal", "90000\n");
    EXPECT_EQ(sensors.hottestPackage(), 52.5);
    EXPECT_THAT(names(), ElementsAre("cpu0-thermal", "cpu1-thermal"));
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "40000\n");
    uptime += 60;
    EXPECT_EQ(sensors.hottestPackage(), 40);
    EXPECT_THAT(names(), ElementsAre("coretemp Package id 0"));
}

TEST_F(ProcessorSensorsTest, FirmwaresZoneAloneIsNoProcessor) {
    zone(0, "acpitz", "27800\n");
    EXPECT_EQ(sensors.hottestPackage(), none);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ProcessorSensorsTest, TemperaturesAreReadEachTime) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
    sensor(0, 1, "Package id 0", "9000\n");
    EXPECT_EQ(sensors.hottestPackage(), 9);
    sensor(0, 1, "Package id 0", "-5500\n");
    EXPECT_EQ(sensors.hottestPackage(), -5.5);
}

struct AbsentRow : NamedRow {
    const char* input;
};

class AbsentSensor : public ProcessorSensorsTest, public testing::WithParamInterface<AbsentRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, AbsentSensor,
    testing::Values(AbsentRow{{"Empty"}, ""}, AbsentRow{{"Blank"}, "\n"},
                    AbsentRow{{"Words"}, "N/A\n"}, AbsentRow{{"Fraction"}, "45.5\n"},
                    AbsentRow{{"TwoNumbers"}, "45000 46000\n"}, AbsentRow{{"Plus"}, "+45000\n"},
                    AbsentRow{{"Hexadecimal"}, "0xAFC8\n"},
                    AbsentRow{{"Wrapped"}, "18446744073709551615\n"},
                    AbsentRow{{"TooLong"}, "0000000000000000000000000000000000045000\n"},
                    AbsentRow{{"AbsoluteZero"}, "-273150\n"}, AbsentRow{{"Minus20"}, "-20000\n"},
                    AbsentRow{{"Exactly150"}, "150000\n"}, AbsentRow{{"Byte255"}, "255000\n"},
                    AbsentRow{{"Garbage"}, "\xFF\x00\x7F\n"}),
    rowName<AbsentRow>);

TEST_P(AbsentSensor, IsNot0DegreesAndHidesNoOther) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", GetParam().input);
    EXPECT_EQ(sensors.hottestPackage(), none);
    monitor(1, "coretemp");
    sensor(1, 1, "Package id 1", "41000\n");
    uptime += 60;
    EXPECT_EQ(sensors.hottestPackage(), 41);
}

TEST_F(ProcessorSensorsTest, ASensorWhoseReadingFailsIsAbsentAndHidesNoOther) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    sensor(0, 2, "Package id 1", "41000\n");
    std::filesystem::remove(inputPath(0, 1));
    // A pipe refuses to be read at a place, as a sensor refuses that has nothing to tell.
    ASSERT_EQ(::mkfifo(inputPath(0, 1).c_str(), 0600), 0);
    EXPECT_EQ(sensors.hottestPackage(), 41);
    EXPECT_EQ(names().size(), 2U);
}

TEST_F(ProcessorSensorsTest, ASensorWithAnInputErrorIsAbsentAndHidesNoOther) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    sensor(0, 2, "Package id 1", "41000\n");
    std::filesystem::remove(inputPath(0, 1));
    std::filesystem::create_symlink("/proc/self/mem", inputPath(0, 1));  // nothing is at 0
    EXPECT_EQ(sensors.hottestPackage(), 41);
}

TEST_F(ProcessorSensorsTest, ASensorThatSaysItIsBrokenIsAbsentForAsLong) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    attribute(0, "temp1_fault", "1\n");
    EXPECT_EQ(sensors.hottestPackage(), none);
    attribute(0, "temp1_fault", "0\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
}

TEST_F(ProcessorSensorsTest, ASensorThatIsOffIsAbsentForAsLong) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    attribute(0, "temp1_enable", "0\n");
    EXPECT_EQ(sensors.hottestPackage(), none);
    attribute(0, "temp1_enable", "1\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
}

}  // namespace
}  // namespace vantor::processor_sensors_test
