#include "platform/darwin/hid_sensors.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "support/named_row.h"

namespace vantor::hid_sensors_test {
namespace {

using Reading = HIDTemperatureReader::Reading;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr auto none = std::nullopt;

struct SensorRow : NamedRow {
    Reading reading;
    std::optional<double> temperature;  ///< the processor's by this sensor alone
};

class HIDSensor : public testing::TestWithParam<SensorRow> {};

INSTANTIATE_TEST_SUITE_P(
    Names, HIDSensor,
    testing::Values(SensorRow{{"Die"}, {"pmu tdie1", 48.2}, 48.2},
                    SensorRow{{"DieAlone"}, {"pmu tdie", 48.2}, 48.2},
                    SensorRow{{"Dev"}, {"pmu tdev3", 40}, 40},
                    SensorRow{{"PerformanceCluster"}, {"pacc mtr temp sensor2", 50}, 50},
                    SensorRow{{"EfficiencyCluster"}, {"eacc mtr temp sensor0", 47}, 47},
                    SensorRow{{"Tp"}, {"pmu tp1s", 51}, 51},
                    SensorRow{{"TpShortest"}, {"pmu tps", 51}, 51},
                    SensorRow{{"TpGraphics"}, {"pmu tp1g", 51}, none},
                    SensorRow{{"TpNotAtTheFront"}, {"a pmu tp1s", 51}, none},
                    SensorRow{{"CPUAnywhere"}, {"soc cpu 3 average", 52}, 52},
                    SensorRow{{"DieNotAtTheFront"}, {"x pmu tdie1", 48}, none},
                    SensorRow{{"SecondDie"}, {"pmu2 tdie1", 48}, none},
                    SensorRow{{"ClusterNotAtTheFront"}, {"x pacc mtr temp", 48}, none},
                    SensorRow{{"OtherCluster"}, {"sacc mtr temp sensor1", 48}, none},
                    SensorRow{{"Graphics"}, {"gpu mtr temp sensor1", 48}, none},
                    SensorRow{{"Battery"}, {"gas gauge battery", 30}, none},
                    SensorRow{{"Calibration"}, {"pmu tcal", 51}, none},
                    SensorRow{{"NotLowerCased"}, {"PMU tdie1", 48}, none},
                    SensorRow{{"NoName"}, {"", 48}, none}),
    rowName<SensorRow>);

INSTANTIATE_TEST_SUITE_P(
    Values, HIDSensor,
    testing::Values(SensorRow{{"TdevIn256ths"}, {"pmu tdev1", 12'800}, 50.0},
                    SensorRow{{"TdevAt130"}, {"pmu tdev1", 130}, 130},
                    SensorRow{{"TdevAbove130"}, {"pmu tdev1", 131}, 131 / 256.0},
                    SensorRow{{"TdevTooLarge"}, {"pmu tdev1", 150.0 * 256}, none},
                    SensorRow{{"TdevAnywhere"}, {"cpu tdev", 12'800}, 50.0},
                    SensorRow{{"OthersAreNotScaled"}, {"pmu tdie1", 12'800}, none},
                    SensorRow{{"Above130"}, {"pmu tdie1", 149.9}, 149.9},
                    SensorRow{{"Exactly150"}, {"pmu tdie1", 150}, none},
                    SensorRow{{"Zero"}, {"pmu tdie1", 0}, none},
                    SensorRow{{"AboveZero"}, {"pmu tdie1", 0.01}, 0.01},
                    SensorRow{{"Negative"}, {"pmu tdie1", -5}, none},
                    SensorRow{{"NotANumber"}, {"pmu tdie1", nan}, none},
                    SensorRow{{"Infinite"}, {"pmu tdie1", infinity}, none},
                    SensorRow{{"TdevInfinite"}, {"pmu tdev1", infinity}, none},
                    SensorRow{{"MinusInfinite"}, {"pmu tdie1", -infinity}, none}),
    rowName<SensorRow>);

TEST_P(HIDSensor, CountsByItsNameAndItsValue) {
    EXPECT_EQ(hottestCPUSensor(std::vector<Reading>{GetParam().reading}), GetParam().temperature);
}

TEST(HIDSensors, PerformanceClusterPrefixHas13Characters) {
    EXPECT_TRUE(isCPUSensor({"pacc mtr temp", 48}));
    EXPECT_FALSE(isCPUSensor({"pacc mtr tem", 48}));
}

TEST(HIDSensors, TheHottestPlausibleOneCounts) {
    const std::vector<Reading> readings{{"pmu tdie1", 48},      {"gpu mtr temp sensor1", 90},
                                        {"pmu tdev1", 12'800},  {"pmu tdie2", nan},
                                        {"eacc mtr temp", 150}, {"pmu tdie3", 47}};
    EXPECT_EQ(hottestCPUSensor(readings), 50.0);
    EXPECT_EQ(hottestCPUSensor({}), std::nullopt);
}

TEST(HIDSensors, PlausibilityDoesNotDependOnWhoseSensorItIs) {
    EXPECT_EQ(plausibleTemperature({"pmu2 tdev1", 10'000}), 39.0625);
    EXPECT_EQ(plausibleTemperature({"gpu", 150}), std::nullopt);
    EXPECT_EQ(plausibleTemperature({"anything", 20}), 20);
}

}  // namespace
}  // namespace vantor::hid_sensors_test
