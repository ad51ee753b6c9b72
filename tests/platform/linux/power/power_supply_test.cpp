#include "platform/linux/power/power_supply.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/power/only_power_source.h"
#include "support/named_row.h"

namespace vantor::power_supply_test {
namespace {

using testing::IsEmpty;
using testing::SizeIs;
using Supplies = std::vector<PowerSupplyTexts>;

PowerSupplyTexts battery(const char* folder = "BAT0", const char* status = "Discharging") {
    PowerSupplyTexts texts;
    texts.folder = folder;
    texts.type = "Battery";
    texts.status = status;
    texts.energyNow = "40000000";
    texts.energyFull = "50000000";
    texts.powerNow = "10000000";
    return texts;
}

PowerSupplyTexts charger(const char* type, const char* online) {
    PowerSupplyTexts texts;
    texts.folder = "AC";
    texts.type = type;
    if (online) texts.online = online;
    return texts;
}

template <class Change>
PowerSupplyTexts with(PowerSupplyTexts texts, Change change) {
    change(texts);
    return texts;
}

TEST(PowerSupplies, ABatteryIsDescribed) {
    const auto description = describeOnlySource({with(battery(), [](auto& b) {
        b.modelName = " DELL 1VX1H ";
        b.cycleCount = "321";
    })});
    EXPECT_EQ(textIn(description, "Type"), "InternalBattery");
    EXPECT_EQ(textIn(description, "Name"), "DELL 1VX1H");
    EXPECT_EQ(textIn(description, "Power Source State"), "Battery Power");
    EXPECT_EQ(findInteger(description, "Current Capacity"), 40000000);
    EXPECT_EQ(findInteger(description, "Max Capacity"), 50000000);
    EXPECT_EQ(findBoolean(description, "Is Charging"), false);
    EXPECT_EQ(findInteger(description, "Time to Empty"), 240);
    EXPECT_EQ(findInteger(description, "Time to Full Charge"), -1);
    EXPECT_EQ(findInteger(description, "Cycle Count"), 321);
}

TEST(PowerSupplies, NoneGiveNoSource) {
    EXPECT_THAT(describePowerSupplies({}), IsEmpty());
}

TEST(PowerSupplies, ChargersAloneGiveNoSource) {
    EXPECT_THAT(describePowerSupplies(Supplies{charger("Mains", "1"), charger("USB", "0")}),
                IsEmpty());
}

TEST(PowerSupplies, AMouseIsNoBatteryOfTheMachine) {
    EXPECT_THAT(
        describePowerSupplies(Supplies{with(battery(), [](auto& b) { b.scope = "Device"; })}),
        IsEmpty());
    EXPECT_THAT(
        describePowerSupplies(Supplies{with(battery(), [](auto& b) { b.scope = "System"; })}),
        SizeIs(1));
}

TEST(PowerSupplies, AnEmptyBayIsNoBattery) {
    EXPECT_THAT(describePowerSupplies(Supplies{with(battery(), [](auto& b) { b.present = "0"; })}),
                IsEmpty());
    EXPECT_THAT(describePowerSupplies(Supplies{with(battery(), [](auto& b) { b.present = "1"; })}),
                SizeIs(1));
}

TEST(PowerSupplies, ASupplyWithoutATypeIsASourceWithoutADescription) {
    PowerSupplyTexts unreadable;
    unreadable.folder = "BAT1";
    const auto sources = describePowerSupplies(Supplies{unreadable, battery()});
    ASSERT_THAT(sources, SizeIs(2));
    EXPECT_TRUE(sources[0]);
    EXPECT_FALSE(sources[1]);
}

TEST(PowerSupplies, ABatteryThatDoesNotSayHowFullItIsHasNoCapacities) {
    const auto description =
        describeOnlySource({with(battery(), [](auto& b) { b.energyNow.reset(); })});
    EXPECT_EQ(find(description, "Current Capacity"), nullptr);
    EXPECT_EQ(find(description, "Max Capacity"), nullptr);
    EXPECT_EQ(textIn(description, "Type"), "InternalBattery");
    EXPECT_EQ(findInteger(description, "Time to Empty"), -1);
}

TEST(PowerSupplies, TwoBatteriesAreOneSource) {
    const auto description = describeOnlySource(
        {with(battery("BAT0", "Not charging"),
              [](auto& b) {
                  b.modelName = "Inner";
                  b.cycleCount = "10";
                  b.powerNow = "0";
              }),
         with(battery("BAT1"), [](auto& b) { b.cycleCount = "30"; }), charger("Mains", "0")});
    EXPECT_EQ(textIn(description, "Name"), "Inner + BAT1");
    EXPECT_EQ(findInteger(description, "Current Capacity"), 80000000);
    EXPECT_EQ(findInteger(description, "Max Capacity"), 100000000);
    EXPECT_EQ(findInteger(description, "Time to Empty"), 480);
    EXPECT_EQ(findInteger(description, "Cycle Count"), 30);
}

TEST(PowerSupplies, AUPSIsASourceOfItsOwnAfterTheBatteries) {
    PowerSupplyTexts ups = battery("ups", "Full");
    ups.type = "UPS";
    const auto sources = describePowerSupplies(Supplies{ups, battery()});
    ASSERT_THAT(sources, SizeIs(2));
    ASSERT_TRUE(sources[0] && sources[1]);
    EXPECT_EQ(textIn(*sources[0], "Type"), "InternalBattery");
    EXPECT_EQ(findInteger(*sources[0], "Max Capacity"), 50000000);
    EXPECT_EQ(textIn(*sources[1], "Type"), "UPS");
    EXPECT_EQ(textIn(*sources[1], "Name"), "ups");
    EXPECT_EQ(textIn(*sources[1], "Power Source State"), "AC Power");
}

struct StateRow : NamedRow {
    Supplies supplies;
    std::string state;
    bool isCharging;
};

class PowerState : public testing::TestWithParam<StateRow> {};

constexpr const char* ac = "AC Power";
constexpr const char* bat = "Battery Power";

INSTANTIATE_TEST_SUITE_P(
    Rows, PowerState,
    testing::Values(
        StateRow{{"MainsOn"}, {battery("B", "Charging"), charger("Mains", "1")}, ac, true},
        StateRow{{"MainsOnButDraining"},
                 {battery("B", "Discharging"), charger("Mains", "1")},
                 ac,
                 false},
        StateRow{{"MainsOff"}, {battery("B", "Discharging"), charger("Mains", "0")}, bat, false},
        StateRow{{"MainsOffButFull"}, {battery("B", "Full"), charger("Mains", "0")}, bat, false},
        StateRow{{"MainsOffUSBOn"},
                 {battery("B", "Charging"), charger("Mains", "0"), charger("USB", "1")},
                 ac,
                 true},
        StateRow{
            {"USBToldWhatToDeliver"}, {battery("B", "Charging"), charger("USB_PD", "2")}, ac, true},
        StateRow{{"WirelessOn"}, {battery("B", "Charging"), charger("Wireless", "1")}, ac, true},
        StateRow{
            {"USBOffDischarging"}, {battery("B", "Discharging"), charger("USB", "0")}, bat, false},
        StateRow{{"USBOffFull"}, {battery("B", "Full"), charger("USB", "0")}, ac, false},
        StateRow{{"NoneFull"}, {battery("B", "Full")}, ac, false},
        StateRow{{"NoneCharging"}, {battery("B", "Charging")}, ac, true},
        StateRow{{"NoneNotCharging"}, {battery("B", "Not charging")}, ac, false},
        StateRow{{"NoneUnknown"}, {battery("B", "Unknown")}, ac, false},
        StateRow{{"NoneDischarging"}, {battery("B", "Discharging")}, bat, false},
        StateRow{{"MainsUnreadableDischarging"},
                 {battery("B", "Discharging"), charger("Mains", nullptr)},
                 bat,
                 false},
        StateRow{{"MainsUnreadableCharging"},
                 {battery("B", "Charging"), charger("Mains", nullptr)},
                 ac,
                 true},
        StateRow{{"ChargerOfADevice"},
                 {battery("B", "Discharging"),
                  with(charger("USB", "1"), [](auto& c) { c.scope = "Device"; })},
                 bat,
                 false},
        StateRow{{"OneOfTwoDischarging"},
                 {battery("B", "Not charging"), battery("C", "Discharging")},
                 bat,
                 false},
        StateRow{{"OneOfTwoCharging"},
                 {battery("B", "Full"), battery("C", "Charging"), charger("Mains", "1")},
                 ac,
                 true}),
    rowName<StateRow>);

TEST_P(PowerState, FollowsFromChargersAndBatteries) {
    const auto description = describeOnlySource(GetParam().supplies);
    EXPECT_EQ(textIn(description, "Power Source State"), GetParam().state);
    EXPECT_EQ(findBoolean(description, "Is Charging"), GetParam().isCharging);
}

struct TimeRow : NamedRow {
    Supplies supplies;
    std::int64_t toEmpty;
    std::int64_t toFull;
};

class PowerTime : public testing::TestWithParam<TimeRow> {};

const auto discharging = battery("B", "Discharging");
const auto charging = battery("B", "Charging");

INSTANTIATE_TEST_SUITE_P(
    Rows, PowerTime,
    testing::Values(
        TimeRow{{"Draining"}, {discharging}, 240, -1}, TimeRow{{"Filling"}, {charging}, -1, 60},
        TimeRow{{"NegativePower"},
                {with(discharging, [](auto& b) { b.powerNow = "-10000000"; })},
                240,
                -1},
        TimeRow{{"NegativeCurrent"},
                {with(discharging,
                      [](auto& b) {
                          b.powerNow.reset();
                          b.currentNow = "-1000000";
                          b.voltageNow = "10000000";
                      })},
                240,
                -1},
        TimeRow{{"RateZero"}, {with(discharging, [](auto& b) { b.powerNow = "0"; })}, -1, -1},
        TimeRow{{"RateUnknown"}, {with(discharging, [](auto& b) { b.powerNow.reset(); })}, -1, -1},
        TimeRow{{"AHundredHours"},
                {with(discharging, [](auto& b) { b.powerNow = "400000"; })},
                6000,
                -1},
        TimeRow{{"Absurd"}, {with(discharging, [](auto& b) { b.powerNow = "399000"; })}, -1, -1},
        TimeRow{
            {"MoreThanFull"}, {with(charging, [](auto& b) { b.energyNow = "51000000"; })}, -1, 0},
        TimeRow{{"SaidByTheBattery"},
                {with(discharging, [](auto& b) { b.timeToEmpty = "7260"; })},
                121,
                -1},
        TimeRow{{"SaidByTheBatteryToFull"},
                {with(charging, [](auto& b) { b.timeToFull = "600"; })},
                -1,
                10},
        TimeRow{{"SaidButAbsurd"},
                {with(discharging, [](auto& b) { b.timeToEmpty = "3932100"; })},
                240,
                -1},
        TimeRow{
            {"SaidToBeZero"}, {with(discharging, [](auto& b) { b.timeToEmpty = "0"; })}, 240, -1},
        TimeRow{{"SaidWithoutARate"},
                {with(discharging,
                      [](auto& b) {
                          b.powerNow.reset();
                          b.timeToEmpty = "7200";
                      })},
                120,
                -1},
        TimeRow{{"OfTwoIsComputed"},
                {with(discharging, [](auto& b) { b.timeToEmpty = "60"; }), discharging},
                240,
                -1},
        TimeRow{{"PercentHasNoRate"},
                {with(discharging,
                      [](auto& b) {
                          b.energyNow.reset();
                          b.capacity = "50";
                      })},
                -1,
                -1}),
    rowName<TimeRow>);

TEST_P(PowerTime, IsSaidOrComputed) {
    const auto description = describeOnlySource(GetParam().supplies);
    EXPECT_EQ(findInteger(description, "Time to Empty"), GetParam().toEmpty);
    EXPECT_EQ(findInteger(description, "Time to Full Charge"), GetParam().toFull);
}

TEST(PowerSupplies, CyclesThatAreNotKnownAreAbsent) {
    for (const char* count : {"0", "-1", "", "many"}) {
        SCOPED_TRACE(count);
        const auto description =
            describeOnlySource({with(battery(), [&](auto& b) { b.cycleCount = count; })});
        EXPECT_EQ(find(description, "Cycle Count"), nullptr);
    }
}

TEST(PowerSupplies, ABatteryWithoutAModelIsNamedByItsFolder) {
    for (const char* model : {"", "  \t"}) {
        SCOPED_TRACE(model);
        EXPECT_EQ(
            textIn(describeOnlySource({with(battery(), [&](auto& b) { b.modelName = model; })}),
                   "Name"),
            "BAT0");
    }
}

}  // namespace
}  // namespace vantor::power_supply_test
