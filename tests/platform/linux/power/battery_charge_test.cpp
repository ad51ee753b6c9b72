#include "platform/linux/power/battery_charge.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "support/named_row.h"

namespace vantor {

static void PrintTo(const BatteryCharge& fill, std::ostream* out) {
    *out << fill.now << " of " << fill.full << " at ";
    fill.rate ? *out << *fill.rate : *out << "no rate";
}

}  // namespace vantor

namespace vantor::battery_charge_test {
namespace {

using Batteries = std::vector<PowerSupplyTexts>;

struct QuantityRow : NamedRow {
    std::optional<std::string> text;
    std::optional<std::int64_t> value;
};

class QuantityText : public testing::TestWithParam<QuantityRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, QuantityText,
    testing::Values(QuantityRow{{"Absent"}, std::nullopt, std::nullopt},
                    QuantityRow{{"Empty"}, "", std::nullopt}, QuantityRow{{"Zero"}, "0", 0},
                    QuantityRow{{"Usual"}, "50270000", 50270000},
                    QuantityRow{{"Negative"}, "-1234", -1234},
                    QuantityRow{{"Largest"}, "1000000000000", 1000000000000},
                    QuantityRow{{"TooLarge"}, "1000000000001", std::nullopt},
                    QuantityRow{{"TooSmall"}, "-1000000000001", std::nullopt},
                    QuantityRow{{"PastAllIntegers"}, "99999999999999999999", std::nullopt},
                    QuantityRow{{"WithUnit"}, "50 mWh", std::nullopt},
                    QuantityRow{{"Words"}, "unknown", std::nullopt},
                    QuantityRow{{"Broken"}, "1.5", std::nullopt}),
    rowName<QuantityRow>);

TEST_P(QuantityText, IsParsedWholeOrNotAtAll) {
    EXPECT_EQ(parseQuantity(GetParam().text), GetParam().value);
}

PowerSupplyTexts energy(const char* now, const char* full, const char* power = "10000000") {
    PowerSupplyTexts battery;
    battery.status = "Discharging";
    battery.energyNow = now;
    battery.energyFull = full;
    if (power) battery.powerNow = power;
    return battery;
}

PowerSupplyTexts charge(const char* now, const char* full, const char* current = "1000000",
                        const char* volts = nullptr) {
    PowerSupplyTexts battery;
    battery.status = "Discharging";
    battery.chargeNow = now;
    battery.chargeFull = full;
    if (current) battery.currentNow = current;
    if (volts) battery.voltageDesign = volts;
    return battery;
}

PowerSupplyTexts percent(const char* capacity) {
    PowerSupplyTexts battery;
    battery.capacity = capacity;
    return battery;
}

template <class Change>
PowerSupplyTexts with(PowerSupplyTexts battery, Change change) {
    change(battery);
    return battery;
}

struct FillRow : NamedRow {
    Batteries batteries;
    std::optional<BatteryCharge> fill;
};

class Fill : public testing::TestWithParam<FillRow> {};

TEST_P(Fill, IsCountedInOneUnit) {
    EXPECT_EQ(chargeOf(GetParam().batteries), GetParam().fill);
}

constexpr auto none = std::nullopt;

INSTANTIATE_TEST_SUITE_P(
    OfOneBattery, Fill,
    testing::Values(
        FillRow{{"Nothing"}, {PowerSupplyTexts{}}, none},
        FillRow{{"Energy"}, {energy("40", "50")}, BatteryCharge{40, 50, 10000000}},
        FillRow{{"EnergyOfNegativePower"},
                {energy("40", "50", "-7000000")},
                BatteryCharge{40, 50, 7000000}},
        FillRow{{"EnergyByCurrentAndVoltage"},
                {with(energy("40", "50", nullptr),
                      [](auto& b) {
                          b.currentNow = "-2000000";
                          b.voltageNow = "12000000";
                          b.voltageDesign = "11000000";
                      })},
                BatteryCharge{40, 50, 24000000}},
        FillRow{{"EnergyWithoutARate"}, {energy("40", "50", nullptr)}, BatteryCharge{40, 50, none}},
        FillRow{{"EnergyOfZeroFull"}, {energy("0", "0")}, none},
        FillRow{{"EnergyOfZeroFullButPercent"},
                {with(energy("0", "0"), [](auto& b) { b.capacity = "64"; })},
                BatteryCharge{64, 100, none}},
        FillRow{{"EnergyOfZeroFullButCharge"},
                {with(charge("30", "60"),
                      [](auto& b) {
                          b.energyNow = "5";
                          b.energyFull = "0";
                      })},
                BatteryCharge{30, 60, 1000000}},
        FillRow{{"EnergyOfNegativeFullButPercent"},
                {with(energy("5", "-1"), [](auto& b) { b.capacity = "64"; })},
                BatteryCharge{64, 100, none}},
        FillRow{{"NegativeEnergyButPercent"},
                {with(energy("-5", "50"), [](auto& b) { b.capacity = "1"; })},
                BatteryCharge{1, 100, none}},
        FillRow{{"ChargeOfZeroFull"}, {charge("0", "0")}, none},
        FillRow{{"ChargeOfZeroFullButPercent"},
                {with(charge("7", "0"), [](auto& b) { b.capacity = "64"; })},
                BatteryCharge{64, 100, none}},
        FillRow{{"EnergyWithoutFullButCharge"},
                {with(charge("30", "60"), [](auto& b) { b.energyNow = "5"; })},
                BatteryCharge{30, 60, 1000000}},
        FillRow{{"EnergyRatherThanCharge"},
                {with(charge("30", "60"),
                      [](auto& b) {
                          b.energyNow = "5";
                          b.energyFull = "6";
                          b.powerNow = "7";
                      })},
                BatteryCharge{5, 6, 7}},
        FillRow{{"Charge"}, {charge("30", "60", "-1500")}, BatteryCharge{30, 60, 1500}},
        FillRow{{"ChargeByPowerAndVoltage"},
                {with(charge("30", "60", nullptr),
                      [](auto& b) {
                          b.powerNow = "24000000";
                          b.voltageNow = "12000000";
                      })},
                BatteryCharge{30, 60, 2000000}},
        FillRow{{"Percent"}, {percent("77")}, BatteryCharge{77, 100, none}},
        FillRow{{"PercentAbove100"}, {percent("101")}, BatteryCharge{101, 100, none}},
        FillRow{{"NegativePercent"}, {percent("-1")}, none},
        FillRow{{"NoNumber"}, {energy("unknown", "50")}, none}),
    rowName<FillRow>);

INSTANTIATE_TEST_SUITE_P(
    OfTwoBatteries, Fill,
    testing::Values(
        FillRow{{"Energies"},
                {energy("10", "50"), energy("20", "30", "5000000")},
                BatteryCharge{30, 80, 15000000}},
        FillRow{{"OneIdleWithoutARate"},
                {energy("10", "50"),
                 with(energy("20", "30", nullptr), [](auto& b) { b.status = "Not charging"; })},
                BatteryCharge{30, 80, 10000000}},
        FillRow{{"OneAtWorkWithoutARate"},
                {energy("10", "50"), energy("20", "30", nullptr)},
                BatteryCharge{30, 80, none}},
        FillRow{
            {"EnergyAndCharge"},
            {energy("10000000", "50000000"), charge("1000000", "2000000", "500000", "10000000")},
            BatteryCharge{20000000, 70000000, 15000000}},
        FillRow{{"ChargeByThePresentVoltage"},
                {energy("10000000", "50000000"), with(charge("1000000", "2000000", "500000"),
                                                      [](auto& b) { b.voltageNow = "10000000"; })},
                BatteryCharge{20000000, 70000000, 15000000}},
        FillRow{{"ChargesOfDifferentVoltages"},
                {charge("1000000", "2000000", "1000000", "10000000"),
                 charge("1000000", "2000000", "1000000", "20000000")},
                BatteryCharge{30000000, 60000000, 30000000}},
        FillRow{{"ChargesWithoutVoltages"},
                {charge("30", "60", "5"), charge("10", "40", "7")},
                BatteryCharge{40, 100, 12}},
        FillRow{{"EnergyAndChargeWithoutAVoltage"},
                {energy("25", "50"), charge("60", "80")},
                BatteryCharge{125, 200, none}},
        FillRow{{"EnergyAndPercent"},
                {energy("25", "50"), percent("80")},
                BatteryCharge{130, 200, none}},
        FillRow{{"Percents"}, {percent("40"), percent("81")}, BatteryCharge{121, 200, none}},
        FillRow{{"OneSaysNothing"},
                {energy("25", "50"), PowerSupplyTexts{}},
                BatteryCharge{25, 50, 10000000}},
        FillRow{{"TheFirstSaysNothing"},
                {PowerSupplyTexts{}, charge("30", "60"), percent("81")},
                BatteryCharge{131, 200, none}},
        FillRow{{"OneAtWorkSaysNothing"},
                {with(PowerSupplyTexts{}, [](auto& b) { b.status = "Discharging"; }),
                 energy("25", "50")},
                BatteryCharge{25, 50, 10000000}},
        FillRow{{"OneSaysHowFastOnly"},
                {with(PowerSupplyTexts{}, [](auto& b) { b.powerNow = "5"; }), energy("25", "50")},
                BatteryCharge{25, 50, 10000000}},
        FillRow{{"BothSayNothing"}, {PowerSupplyTexts{}, percent("-1")}, none},
        FillRow{{"OneWithAnAbsurdPercent"},
                {with(energy("25", "50"), [](auto& b) { b.capacity = "-1"; }), percent("80")},
                BatteryCharge{130, 200, none}},
        FillRow{{"OneOfZeroFullAmongPercents"},
                {energy("0", "0"), percent("40")},
                BatteryCharge{40, 100, none}}),
    rowName<FillRow>);

TEST(BatteryFillOf, NoBatteryIsAbsent) {
    EXPECT_EQ(chargeOf({}), std::nullopt);
}

}  // namespace
}  // namespace vantor::battery_charge_test
