#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "platform/darwin/hid_sensors.h"
#include "support/named_row.h"

namespace vantor::gpu_sensors_test {
namespace {

using Reading = HIDTemperatureReader::Reading;

struct SensorRow : NamedRow {
    Reading reading;
    std::optional<double> expected;
};

class GPUSensor : public testing::TestWithParam<SensorRow> {};

TEST_P(GPUSensor, CountsByItsNameAndValue) {
    EXPECT_EQ(hottestGPUSensor({&GetParam().reading, 1}), GetParam().expected);
}

constexpr double infinite = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    GPUSensors, GPUSensor,
    testing::Values(
        SensorRow{{"ClusterSensor"}, {"gpu mtr temp sensor3", 41}, 41},
        SensorRow{{"SecondUnitDie"}, {"pmu2 tdie4", 42}, 42},
        SensorRow{{"SecondUnitDevice"}, {"pmu2 tdev2", 43}, 43},
        SensorRow{{"PointEndingWithG"}, {"pmu tp3g", 44}, 44},
        SensorRow{{"ShortestPoint"}, {"pmu tpg", 44}, 44},
        SensorRow{{"GPUAnywhere"}, {"soc gpu 1", 45}, 45},
        SensorRow{{"PointEndingOtherwise"}, {"pmu tp3s", 46}, {}},
        SensorRow{{"PointInside"}, {"x pmu tp3g", 46}, {}},
        SensorRow{{"FirstUnitDie"}, {"pmu tdie4", 46}, {}},
        SensorRow{{"SecondUnitInside"}, {"x pmu2 tdie4", 46}, {}},
        SensorRow{{"OtherSensor"}, {"nand ch0 temp", 46}, {}}, SensorRow{{"NoName"}, {"", 46}, {}},
        SensorRow{{"NamesAreLowerCasedAlready"}, {"GPU", 46}, {}},
        SensorRow{{"TenThousandOfADeviceSensorIs39AndABit"}, {"pmu2 tdev1", 10000}, 39.0625},
        SensorRow{{"DeviceSensorAt130IsDegrees"}, {"pmu2 tdev1", 130}, 130},
        SensorRow{{"DeviceSensorAbove130IsNot"}, {"pmu2 tdev1", 130.56}, 130.56 / 256},
        SensorRow{{"DeviceSensorTooHighAlsoWhenDivided"}, {"pmu2 tdev1", 38400}, {}},
        SensorRow{{"DeviceSensorAnywhereInAGPUName"}, {"gpu tdev", 12800}, 50},
        SensorRow{{"OtherSensorsAreNotDivided"}, {"gpu", 12800}, {}},
        SensorRow{{"GPUSensorOf150IsRejected"}, {"gpu 1", 150}, {}},
        SensorRow{{"JustBelow150"}, {"gpu 1", 149.99}, 149.99},
        SensorRow{{"Zero"}, {"gpu 1", 0}, {}}, SensorRow{{"JustAboveZero"}, {"gpu 1", 0.01}, 0.01},
        SensorRow{{"Negative"}, {"gpu 1", -5}, {}},
        SensorRow{{"Infinite"}, {"pmu2 tdev1", infinite}, {}},
        SensorRow{{"MinusInfinite"}, {"gpu", -infinite}, {}},
        SensorRow{{"NotANumber"}, {"gpu", std::numeric_limits<double>::quiet_NaN()}, {}}),
    rowName<SensorRow>);

TEST(GPUSensors, TheHottestSensorCounts) {
    EXPECT_EQ(hottestGPUSensor(std::vector<Reading>{
                  {"gpu 1", 40}, {"pmu tdie1", 90}, {"gpu 2", 60}, {"gpu 3", 150}, {"gpu 4", 50}}),
              60);
    EXPECT_EQ(hottestGPUSensor(std::vector<Reading>{{"pmu tdie1", 90}, {"gpu 3", 150}}),
              std::nullopt);
    EXPECT_EQ(hottestGPUSensor({}), std::nullopt);
}

}  // namespace
}  // namespace vantor::gpu_sensors_test
