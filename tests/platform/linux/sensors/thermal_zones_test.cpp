#include "platform/linux/sensors/thermal_zones.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "support/fake_kernel_tree.h"

namespace vantor::thermal_zones_test {
namespace {

struct Text {
    const char* name;
    const char* text;
    std::optional<std::int64_t> temperature;

    friend void PrintTo(const Text& row, std::ostream* out) { *out << row.name; }
};

class TemperatureText : public testing::TestWithParam<Text> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, TemperatureText,
    testing::Values(Text{"Plain", "45000\n", 45000}, Text{"Zero", "0\n", 0},
                    Text{"Frost", "-5000\n", -5000}, Text{"NoLineEnd", "45000", 45000},
                    Text{"Empty", "", std::nullopt}, Text{"LineEndAlone", "\n", std::nullopt},
                    Text{"Word", "hot\n", std::nullopt}, Text{"Fraction", "45.5\n", std::nullopt},
                    Text{"Two", "1 2\n", std::nullopt},
                    Text{"TooLarge", "9223372036854775808\n", std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(TemperatureText, IsParsed) {
    EXPECT_EQ(parseTemperature(GetParam().text), GetParam().temperature);
}

using Trip = std::pair<const char*, std::int64_t>;

struct Row {
    const char* name;
    std::vector<Trip> trips;
    std::int64_t temperature;
    std::optional<int> state;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class ThermalZone : public testing::TestWithParam<Row> {};

const std::vector<Trip> usual{
    {"active", 40000}, {"critical", 105000}, {"passive", 80000}, {"hot", 95000}};

INSTANTIATE_TEST_SUITE_P(
    Rows, ThermalZone,
    testing::Values(Row{"Cool", usual, 45000, 0}, Row{"JustBelowPassive", usual, 79999, 0},
                    Row{"AtPassive", usual, 80000, 1}, Row{"JustBelowHot", usual, 94999, 1},
                    Row{"AtHot", usual, 95000, 2}, Row{"AtCritical", usual, 105000, 3},
                    Row{"Beyond", usual, 120000, 3}, Row{"Frost", usual, -5000, 0},
                    Row{"CriticalAlone", {{"critical", 90000}}, 89999, 0},
                    Row{"CriticalAloneReached", {{"critical", 90000}}, 90000, 3},
                    Row{"LowestOfAType", {{"passive", 90000}, {"passive", 70000}}, 75000, 1},
                    Row{"TripOfZeroIsNone", {{"passive", 0}, {"critical", 90000}}, 45000, 0},
                    Row{"TripBelowZeroIsNone", {{"hot", -273200}, {"critical", 90000}}, 45000, 0},
                    Row{"ActiveAlone", {{"active", 40000}}, 90000, std::nullopt},
                    Row{"NoTripThatCounts", {{"critical", 0}}, 90000, std::nullopt},
                    Row{"UnknownType", {{"lukewarm", 40000}}, 90000, std::nullopt},
                    Row{"NoTrips", {}, 90000, std::nullopt},
                    Row{"SensorThatIsOff", usual, -273200, std::nullopt},
                    Row{"SensorThatIsBroken", usual, 2147483647, std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

class ThermalZonesTest : public testing::Test {
  protected:
    void zone(const std::string& number, const std::vector<Trip>& trips,
              const std::string& temperature) const {
        const std::string folder = "class/thermal/thermal_zone" + number + "/";
        tree.sys(folder + "temp", temperature);
        for (std::size_t i = 0; i < trips.size(); ++i) {
            const std::string trip = folder + "trip_point_" + std::to_string(i);
            tree.sys(trip + "_type", std::string(trips[i].first) + '\n');
            tree.sys(trip + "_temp", std::to_string(trips[i].second) + '\n');
        }
    }

    FakeKernelTree tree;
    ThermalZones zones{tree.roots()};
};

TEST_P(ThermalZone, IsJudgedByItsOwnTripPoints) {
    const auto& [name, trips, temperature, state] = GetParam();
    const FakeKernelTree tree;
    const std::string folder = "class/thermal/thermal_zone0/";
    tree.sys(folder + "temp", std::to_string(temperature) + '\n');
    for (std::size_t i = 0; i < trips.size(); ++i) {
        const std::string trip = folder + "trip_point_" + std::to_string(i);
        tree.sys(trip + "_type", std::string(trips[i].first) + '\n');
        tree.sys(trip + "_temp", std::to_string(trips[i].second) + '\n');
    }
    EXPECT_EQ(ThermalZones(tree.roots()).state(0), state);
}

TEST_F(ThermalZonesTest, AreUnknownWhereThereAreNone) {
    EXPECT_EQ(zones.state(0), std::nullopt);
    tree.sys("class/thermal/cooling_device0/temp", "120000\n");
    EXPECT_EQ(zones.state(100), std::nullopt);
}

TEST_F(ThermalZonesTest, TheWorstOneCounts) {
    zone("0", usual, "30000\n");
    zone("1", usual, "96000\n");
    zone("10", usual, "81000\n");
    EXPECT_EQ(zones.state(0), 2);
}

TEST_F(ThermalZonesTest, TemperaturesAreReadEachTime) {
    zone("0", usual, "30000\n");
    EXPECT_EQ(zones.state(0), 0);
    zone("0", usual, "85000\n");
    EXPECT_EQ(zones.state(1), 1);
}

TEST_F(ThermalZonesTest, ASensorThatFailsHidesNoOther) {
    zone("0", usual, "");
    zone("1", usual, "81000\n");
    zone("2", usual, "no data\n");
    EXPECT_EQ(zones.state(0), 1);
}

TEST_F(ThermalZonesTest, AreUnknownWhenEverySensorFails) {
    zone("0", usual, "99000\n");
    EXPECT_EQ(zones.state(0), 2);
    zone("0", usual, "");
    EXPECT_EQ(zones.state(1), std::nullopt) << "a failed read is not 0 degrees";
}

TEST_F(ThermalZonesTest, AreListedOnceAMinute) {
    EXPECT_EQ(zones.state(1000), std::nullopt);
    zone("0", usual, "30000\n");
    EXPECT_EQ(zones.state(1059.9), std::nullopt);
    EXPECT_EQ(zones.state(1060), 0);
    zone("1", usual, "99000\n");
    tree.sys("class/thermal/thermal_zone0/trip_point_2_temp", "20000\n");
    EXPECT_EQ(zones.state(1119.9), 0);
    EXPECT_EQ(zones.state(1120), 2);
}

TEST_F(ThermalZonesTest, ATripPointWithoutATemperatureHidesNoLaterOne) {
    zone("0", usual, "106000\n");
    tree.removeSys("class/thermal/thermal_zone0/trip_point_0_temp");
    EXPECT_EQ(zones.state(0), 3);
}

}  // namespace
}  // namespace vantor::thermal_zones_test
